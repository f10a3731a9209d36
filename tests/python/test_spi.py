"""SPI through a simulated Plover: the bytes on the wire, the two commands of
SPI_setMode, the pin-state checks before OPEN_SPI, argument errors that send
nothing, and the simulated slaves (MISO wired to MOSI, or a register file)."""

import asyncio

import pytest

import pyorv
from conftest import last, refuses, wire

OPEN_SPI, READ_SPI, WRITE_SPI, READ_AND_WRITE_SPI, CLOSE_SPI, RESET_SPI = 160, 161, 162, 163, 164, 165
SET_SPI_DATA_SIZE, SET_SPI_FIRST_BIT, SET_SPI_PRESCALER, SET_SPI_CPOL, SET_SPI_CPHA = range(166, 171)
GET_PIN_MODE_OF_SLOT = 127
SPI_ERROR = -7006  # the firmware's SPI status (22)


@pytest.fixture
def plover(pair):
    """PloverDio: SPI port 1 on pins 1..3 of digital port 2, port 2 on pins 3..5 of port 3."""
    return pair("PloverDio")


@pytest.fixture
def bus(plover):
    """SPI port 1 opened; the packet record starts empty."""
    dev, s = plover
    assert dev.SPI_open(1) == 0
    s.clear_packets()
    return dev, s


def test_open_reads_the_pin_modes_then_opens_and_pins_stay_taken(plover):
    dev, s = plover
    assert dev.SPI_getPinMap() == {1: [(2, 1), (2, 2), (2, 3)], 2: [(3, 3), (3, 4), (3, 5)]}
    assert dev._SPI_getPinMapPort(1) == [2]
    assert dev.SPI_open(1) == 0
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, bytes([2])), (OPEN_SPI, bytes([1]))]
    assert dev.Sys_getPinModeInPort(2)[1:4] == ["SPI"] * 3
    s.clear_packets()
    with pytest.raises(pyorv.SPIPortNotAvaliableError):
        dev.SPI_open(1)
    with pytest.raises(pyorv.DIPortNotAvaliableError):
        dev.DI_openPins(2, [0, 2])
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, bytes([2]))] * 2
    assert dev.SPI_close(1) == 0 and dev.DI_openPins(2, [0, 2]) == 0
    assert dev.SPI_open(1) == 0  # a digital input under the bus does not stand in the way


@pytest.mark.parametrize("mode, cpol, cpha", [(0, 0, 0), (1, 0, 1), (2, 1, 0), (3, 1, 1)])
def test_set_mode_sends_polarity_then_phase(bus, mode, cpol, cpha):
    dev, s = bus
    assert dev.SPI_setMode(1, mode) == 0
    assert wire(s) == [(SET_SPI_CPOL, bytes([1, cpol])), (SET_SPI_CPHA, bytes([1, cpha]))]
    assert s.state_get("spi.mode.1") == mode


def test_set_mode_ors_the_two_statuses_and_a_failure_does_not_stop_the_second(bus):
    dev, s = bus
    s.set_handler(SET_SPI_CPOL, lambda ctx, req: ctx.reply(bytes([1, 22])))
    assert dev.SPI_setMode(1, 3) == SPI_ERROR | 0
    assert [p.cmd for p in s.packets()] == [SET_SPI_CPOL, SET_SPI_CPHA]
    s.set_handler(SET_SPI_CPHA, lambda ctx, req: ctx.reply(bytes([1, 11])))
    assert dev.SPI_setMode(1, 3) == -7006 | -7001  # a mixture that names neither


def test_settings_wire_bytes(bus):
    dev, s = bus
    assert dev.SPI_setPrescaler(1, 256) == 0
    assert dev.SPI_setPrescaler(1, 8) == 0
    assert dev.SPI_setDataSize(1, 1) == 0
    assert dev.SPI_setFirstBit(1, True) == 0  # a bool passes as an int
    assert dev.SPI_reset(1) == 0
    assert wire(s) == [(SET_SPI_PRESCALER, bytes([1, 0x01, 0x00])),
                       (SET_SPI_PRESCALER, bytes([1, 0x00, 0x08])),
                       (SET_SPI_DATA_SIZE, bytes([1, 1])), (SET_SPI_FIRST_BIT, bytes([1, 1])),
                       (RESET_SPI, bytes([1]))]
    assert s.state_get("spi.prescaler.1") == 8


def test_internal_clock_commands_check_nothing(plover):
    dev, s = plover
    assert dev._SPI_setCPOL(7, 1) == SPI_ERROR  # an unknown port: the firmware answers
    assert dev._SPI_setCPHA(1, 0) == SPI_ERROR  # not open
    assert wire(s) == [(SET_SPI_CPOL, bytes([7, 1])), (SET_SPI_CPHA, bytes([1, 0]))]


@pytest.mark.parametrize("call, error", [
    (lambda d: d.SPI_open(3), pyorv.SPIPortNotAvaliableError),
    (lambda d: d.SPI_open("1"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.SPI_close(0), pyorv.SPIPortNotAvaliableError),
    (lambda d: d.SPI_setMode(1, 4), pyorv.SPIModeNotVaildError),
    (lambda d: d.SPI_setMode(1, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.SPI_setDataSize(1, 2), pyorv.SPIDataSizeNotVaildError),
    (lambda d: d.SPI_setFirstBit(1, -1), pyorv.SPIFirstBitNotVaildError),
    (lambda d: d.SPI_setPrescaler(1, 3), pyorv.SPIPrescalerNotVaildError),
    (lambda d: d.SPI_setPrescaler(1, 512), pyorv.SPIPrescalerNotVaildError),
    (lambda d: d.SPI_setPrescaler(9, 8), pyorv.SPIPortNotAvaliableError),
    (lambda d: d.SPI_write(1, "ab"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.SPI_readAndWrite(1, b"ab"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.SPI_write(1, [0x100]), ValueError),
    (lambda d: d.SPI_write(1, [0] * 256), ValueError),  # the length does not fit its byte
    (lambda d: d.SPI_read(1, 2.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d._SPI_setCPOL(1.0, 1), TypeError),  # no check: the payload byte refuses
])
def test_argument_errors_send_nothing(plover, call, error):
    dev, s = plover
    refuses(s, error, lambda: call(dev))


def test_loopback_returns_what_was_written(bus):
    dev, s = bus
    data = [0x00, 0x5A, 0xA5, 0xFF, 0x80]
    assert dev.SPI_readAndWrite(1, data) == data
    assert last(s) == (READ_AND_WRITE_SPI, bytes([1, 5] + data))
    assert dev.SPI_write(1, []) == 0
    assert last(s) == (WRITE_SPI, bytes([1, 0]))
    assert dev.SPI_read(1, 3) == [0, 0, 0]  # zeros clocked out come back
    assert last(s) == (READ_SPI, bytes([1, 3]))


def test_register_file_slave(bus):
    dev, s = bus
    s.state_set("spi.slave", "registers")
    assert dev.SPI_write(1, [0x7E, 0x11, 0x22, 0x33]) == 0  # registers 126, 127, then 0
    assert last(s) == (WRITE_SPI, bytes([1, 4, 0x7E, 0x11, 0x22, 0x33]))
    assert dev.SPI_readAndWrite(1, [0x80 | 0x7E, 0, 0, 0]) == [0, 0x11, 0x22, 0x33]
    assert s.state_get("spi.registers")[:2] == [0x33, 0]


def test_short_replies_and_a_closed_port_give_empty_reads(plover):
    dev, s = plover
    assert dev.SPI_read(1, 2) == []  # not open: status only
    assert dev.SPI_write(1, [1]) == SPI_ERROR
    s.set_handler(READ_SPI, lambda ctx, req: ctx.reply(bytes([1, 0])))
    assert dev.SPI_read(1, 2) == []


def test_awaitable_twins_share_the_bodies(bus):
    dev, s = bus

    async def run():
        assert await dev.SPI_setMode_async(1, 2) == 0
        return await dev.SPI_readAndWrite_async(1, [1, 2, 3]), await dev.SPI_getPinMap_async()

    data, pin_map = asyncio.run(run())
    assert data == [1, 2, 3] and pin_map == dev.SPI_getPinMap()
    assert [p.cmd for p in s.packets()] == [SET_SPI_CPOL, SET_SPI_CPHA, READ_AND_WRITE_SPI]
    with pytest.raises(pyorv.SPIPrescalerNotVaildError):
        asyncio.run(dev.SPI_setPrescaler_async(1, 3))
    assert s.packet_count() == 3
