"""UART through the device against the simulated firmware: the bytes on the
wire, the one open flag of both ports, the pin-mode check, loopback and a
scripted peer, a 1 MB stream with its overflow warnings, and the stream
threads' end."""

import threading
import warnings

import pytest

import pyorv
from conftest import answer, last, refuses, run, sent, thread_ids, threads_gone, wait_until, wire

# The USB models look for the USB library beside the module and warn when it is not there.
pytestmark = pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")

OPEN_UART, START_UART_READING, WRITE_UART, STOP_UART_READING, CLOSE_UART = 128, 129, 130, 131, 132
RESET_UART, SET_UART_BAUD_RATE, SET_UART_DATA_SIZE, SET_UART_PARITY = 133, 134, 135, 136
SET_UART_NUM_STOP_BITS, GET_PIN_MODE_OF_SLOT = 139, 127


@pytest.fixture
def plover(pair):
    """PloverDio: UART 1 on pins 6, 7 of digital port 2, UART 2 on pins 0, 1 of port 3."""
    return pair("PloverDio")


def opened(plover, *wires, port=1):
    dev, s = plover
    if wires:
        s.state_set("uart.loopback", [list(w) for w in wires])
    assert dev.UART_open(port) == 0
    s.clear_packets()
    return dev, s


def test_first_open_starts_one_stream_and_opens_both_gates(plover):
    dev, s = plover
    assert dev.UART_getPinMap() == {1: [(2, 6), (2, 7)], 2: [(3, 0), (3, 1)]}
    assert not dev.uart_open_flag and not dev._uartGateOpen(1)
    assert dev.UART_open(1) == 0 and dev.UART_open(2) == 0
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x02"), (OPEN_UART, b"\x01"),
                       (START_UART_READING, b"\x01"),
                       (GET_PIN_MODE_OF_SLOT, b"\x03"), (OPEN_UART, b"\x02")]
    assert dev.uart_open_flag and dev._uartGateOpen(1) and dev._uartGateOpen(2)
    assert dev.Sys_getPinModeInPort(2)[6:] == ["UART", "UART"]
    # Opened pins are busy: a second open is refused after the mode read.
    s.clear_packets()
    with pytest.raises(pyorv.UARTPortNotAvaliableError):
        dev.UART_open(1)
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x02")]
    # The first close parks both threads; the second finds the flag down.
    assert dev.UART_close(1) == 0
    assert not dev.uart_open_flag and not dev._uartGateOpen(1) and not dev._uartGateOpen(2)
    assert dev.UART_close(2) == 0
    assert wire(s)[1:] == [(STOP_UART_READING, b"\x01"), (CLOSE_UART, b"\x01"),
                           (STOP_UART_READING, b"\x02"), (CLOSE_UART, b"\x02")]
    assert dev.Sys_getPinModeInPort(2)[6:] == ["Idle", "Idle"]


def test_a_failed_first_open_keeps_the_flag_and_starts_nothing(plover):
    dev, s = plover
    s.set_handler(OPEN_UART, answer([1, 23]))
    assert dev.UART_open(1) == pyorv.errFirmwareUART
    assert dev.uart_open_flag and not dev._uartGateOpen(1)
    s.set_handler(OPEN_UART, None)
    assert dev.UART_open(2) == 0  # the flag stands: no stream is started
    assert sent(s, START_UART_READING) == 0 and not dev._uartGateOpen(2)


@pytest.mark.parametrize("call, data", [
    (lambda d: d.UART_setBaudRate(1, 400000), (SET_UART_BAUD_RATE, bytes([1, 0, 6, 0x1A, 0x80]))),
    (lambda d: d.UART_setBaudRate(2, 0), (SET_UART_BAUD_RATE, bytes([2, 0, 0, 0, 0]))),
    (lambda d: d.UART_setDataBit(2, 1), (SET_UART_DATA_SIZE, bytes([2, 1]))),
    (lambda d: d.UART_setParity(1, 3), (SET_UART_PARITY, bytes([1, 3]))),
    (lambda d: d.UART_setNumStopBit(1, 2), (SET_UART_NUM_STOP_BITS, bytes([1, 2]))),
    (lambda d: d.UART_reset(2), (RESET_UART, bytes([2]))),
    (lambda d: d.UART_write(1, "x" * 50), (WRITE_UART, bytes([1, 50]) + b"x" * 50)),
    (lambda d: d.UART_write(1, ["A", "\xe9"]), (WRITE_UART, bytes([1, 2, 65, 0xE9]))),
    (lambda d: d.UART_write(2, ""), (WRITE_UART, bytes([2, 0]))),
    (lambda d: run(d.UART_write_async(2, "hi")), (WRITE_UART, bytes([2, 2]) + b"hi")),
])
def test_commands_on_the_wire(plover, call, data):
    dev, s = plover
    assert call(dev) == 0
    assert wire(s) == [data]


@pytest.mark.parametrize("call, error", [
    (lambda d: d.UART_open(3), pyorv.UARTPortNotAvaliableError),
    (lambda d: d.UART_open(1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.UART_setBaudRate(1, 400001), pyorv.UARTBaudRateNotSupportError),
    (lambda d: d.UART_setBaudRate(1, 9600.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.UART_setDataBit(1, 2), pyorv.UARTDataBitNotSupportError),
    (lambda d: d.UART_setParity(1, 4), pyorv.UARTParityNotSupportError),
    (lambda d: d.UART_setNumStopBit(1, -1), pyorv.UARTStopBitNotSupportError),
    (lambda d: d.UART_write(1, "x" * 51), pyorv.UARTExceedMaxLengthError),
    (lambda d: d.UART_write(1, [65]), TypeError),  # list items are one-character strings
    (lambda d: d.UART_write(1, ["AB"]), TypeError),
    (lambda d: d.UART_write(1, b"x"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.UART_write(1, "\u20ac"), ValueError),  # no byte for that character
    (lambda d: d.UART_close(0), pyorv.UARTPortNotAvaliableError),
    (lambda d: d.UART_read(1, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d._UART_startReading(2.0), pyorv.InputTypeNotCorrectError),
    (lambda d: run(d.UART_setParity_async(1, 9)), pyorv.UARTParityNotSupportError),
    (lambda d: run(d.UART_read_async(5, 1)), pyorv.UARTPortNotAvaliableError),
    (lambda d: d._UART_getPinMapPort(5), KeyError),  # uart_dict[5]
    (lambda d: d._checkUARTPinState(5, ["Idle"]), KeyError),
])
def test_argument_errors_send_nothing(plover, call, error):
    dev, s = plover
    refuses(s, error, lambda: call(dev))


def test_loopback_of_50_bytes_and_a_scripted_peer(plover):
    text = "".join(chr(32 + i) for i in range(50))
    dev, s = opened(plover, (1, 1))
    s.state_set("uart.peer.1", [[b"AT\r", b"OK\r\n"]])
    assert dev.UART_write(1, text) == 0
    assert dev.UART_read(1, 50) == list(text)
    assert dev.UART_write(1, "AT\r") == 0
    assert dev.UART_read(1, 7) == list("AT\rOK\r\n")  # the echo of the wire, then the answer


def test_the_second_port_streams_only_once_its_reading_is_started(plover):
    dev, s = opened(plover, (1, 2))
    assert dev.UART_open(2) == 0  # the flag stands: no START_UART_READING for port 2
    dev.UART_write(1, "lost")
    assert dev.UART_read(2, -1) == []
    assert dev._UART_startReading(2) == 0
    assert wait_until(lambda: last(s) == (START_UART_READING, b"\x02"))
    dev.UART_write(1, "wired")
    assert dev.UART_read(2, 5) == list("wired")
    assert run(dev.UART_read_async(1, -1)) == []  # nothing came back on port 1


def test_awaitable_read_takes_what_is_there_without_waiting(plover):
    dev, s = opened(plover, (1, 1))
    assert run(dev.UART_read_async(1, 10)) == []
    dev.UART_write(1, "abc")
    assert wait_until(lambda: dev._uartSignalSize(1) == 3)
    assert run(dev.UART_read_async(1, 10)) == ["a", "b", "c"]


def test_write_reads_its_status_behind_the_echoed_port_and_length(plover):
    dev, s = plover
    s.set_handler(WRITE_UART, answer([1, 23, 0]))
    assert dev.UART_write(1, "ab") == 0
    s.set_handler(WRITE_UART, answer([1, 2, 23]))
    assert dev.UART_write(1, "ab") == pyorv.errFirmwareUART
    assert run(dev.UART_write_async(1, "ab")) == pyorv.errFirmwareUART


def test_a_blocking_read_waits_for_its_count_open_or_not(plover):
    dev, s = plover
    assert dev.UART_read(1, -1) == [] and dev.UART_read(1, 0) == []
    got = []
    t = threading.Thread(target=lambda: got.append(dev.UART_read(1, 3)))
    t.start()
    assert not wait_until(lambda: got, timeout=0.2)  # never opened: it waits all the same
    opened(plover, (1, 1))
    dev.UART_write(1, "ab")
    assert not wait_until(lambda: got, timeout=0.2)  # 2 of 3
    assert dev.UART_close(1) == 0
    assert not wait_until(lambda: got, timeout=0.2)  # a close does not end it
    opened(plover, (1, 1))
    dev.UART_write(1, "c")
    t.join(5)
    assert got == [["a", "b", "c"]]


def test_a_megabyte_stream_arrives_whole_and_overflow_drops_with_warnings(plover):
    dev, s = plover
    n = 1_000_000  # the signal queue's bound
    s.state_set("uart.flood.1", n + 3)
    with warnings.catch_warnings(record=True) as caught:
        warnings.simplefilter("always")
        assert dev.UART_open(1) == 0
        assert wait_until(lambda: len(caught) == 3, timeout=60)
    assert all(isinstance(w.message, pyorv.UARTQueueOverflowWarning) for w in caught)
    data = dev.UART_read(1, n)
    assert len(data) == n and dev._uartSignalSize(1) == 0
    first = ord(data[0])
    assert all(ord(c) == (first + i) % 256 for i, c in enumerate(data))


def test_close_ends_a_pending_read_and_joins_the_threads(plover):
    dev, s = plover
    before = thread_ids()
    dev.UART_open(1)
    streams = thread_ids() - before
    assert len(streams) == 2  # one stream thread per port
    result = []

    def reader():
        try:
            dev.UART_read(1, 10)
        except pyorv.DeviceClosedError as e:
            result.append(e)

    t = threading.Thread(target=reader)
    t.start()
    assert not wait_until(lambda: result, timeout=0.2)  # it waits for its bytes
    dev.close(verbose=False)
    t.join(5)
    assert not t.is_alive() and result
    assert dev.uart_killed
    assert threads_gone(streams)
