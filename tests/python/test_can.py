"""CAN through the device against the simulated controller: frame packing,
the pin-mode check across two digital ports, standard, extended and remote
frames round-tripped with acceptance filters, error counters, the odd
_CAN_setTXPriority, and the stream thread's end."""

import threading

import pytest

import pyorv
from conftest import answer, last, refuses, run, sent, thread_ids, threads_gone, wait_until, wire

# The USB models look for the USB library beside the module and warn when it is not there.
pytestmark = pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")

OPEN_CAN, START_CAN, WRITE_CAN, STOP_CAN, CLOSE_CAN, SET_CAN_SPEED = 48, 49, 50, 51, 52, 53
SET_CAN_RX_FILTERING_ON, SET_CAN_RX_FILTER_OR_MASK = 57, 58
GET_PIN_MODE_OF_SLOT = 127


@pytest.fixture
def plover_can(pair):
    """PloverCan: CAN port 1 on pins 4, 5 of digital port 1 and 0..3 of port 2."""
    return pair("PloverCan")


def started(plover_can, loopback=True):
    dev, s = plover_can
    s.state_set("can.loopback", loopback)
    assert dev.CAN_open(1) == 0
    assert run(dev.CAN_start_async(1)) == 0
    assert s.wait_for_packets(4)  # two pin-mode reads, the open, the start (sent, not awaited)
    s.clear_packets()
    return dev, s


# ---- frames ----------------------------------------------------------------------------

@pytest.mark.parametrize("frame, wire_form", [
    (pyorv.CANFrame(0x123, False, False, [1, 2]), [0x24, 0x60, 0, 0, 1, 2, 0, 0, 0, 0, 0, 0]),
    (pyorv.CANFrame(0x18FF1234, True, False, []), [0xC7, 0xEB, 0x12, 0x34] + [0] * 8),
    (pyorv.CANFrame(0x7FF, False, True), [0xFF, 0xF0, 0, 0] + [0] * 8),
    (pyorv.CANFrame(0x1FFFFFFF, True, True, [9] * 10), [0xFF, 0xFB, 0xFF, 0xFF] + [9] * 8),  # bit 18 stays 0
])
def test_frames_pack_and_unpack(frame, wire_form):
    assert frame.frame_in_list == wire_form and frame.id_in_list == wire_form[:4]
    assert pyorv.CANFrame.fromU8List(wire_form) == frame
    assert pyorv.CANFrame.fromU8List(wire_form[:4]).data == [0] * 8


def test_frame_copies_its_data_reads_and_compares():
    data = [1, 2]
    f = pyorv.CANFrame(0x123, data=data)
    assert data == [1, 2] and f.data == [1, 2, 0, 0, 0, 0, 0, 0]
    assert repr(f) == "CANFrame(id=291, extended_id=False, remote=False, data=[1, 2, 0, 0, 0, 0, 0, 0])"
    assert f == pyorv.CANFrame(0x123, False, False, [1, 2, 0])
    assert f != pyorv.CANFrame(0x123, True, False, [1, 2]) and f != pyorv.CANFrame(0x123, data=[1])


# ---- opening and the pin check ---------------------------------------------------------

def test_open_reads_both_ports_and_a_busy_pin_index_on_either_refuses(plover_can):
    dev, s = plover_can
    assert dev.CAN_getPort() == [1] and dev._CAN_getPinMapPort(1) == [1, 2]
    # Pin 4 of port 2 is no CAN pin, but pin 4 of port 1 is: the index is busy.
    s.set_handler(GET_PIN_MODE_OF_SLOT, lambda ctx, req: ctx.reply(
        bytes([8, req.data[0], 0x11, 0x11, 0x14 if req.data[0] == 2 else 0x11, 0x11])))
    with pytest.raises(pyorv.CANPortNotAvaliableError):
        dev.CAN_open(1)
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x01"), (GET_PIN_MODE_OF_SLOT, b"\x02")]
    assert not dev.can_open_flag
    s.set_handler(GET_PIN_MODE_OF_SLOT, None)
    s.clear_packets()
    assert dev.CAN_open(1) == 0
    # OPEN_CAN goes out as the one byte 0x30, which the device reads as the
    # two-byte command 0x30 0x01: the port is in the command.
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x01"), (GET_PIN_MODE_OF_SLOT, b"\x02"),
                       (OPEN_CAN * 256 + 1, b"")]
    assert dev.can_open_flag and dev._canGateOpen()
    assert dev.Sys_getPinModeInPort(2)[:4] == ["CAN"] * 4


def test_blocking_start_waits_for_an_echo_that_never_comes(plover_can):
    dev, s = plover_can
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.CAN_start(1, timeout=0.3)
    assert wire(s) == [(START_CAN, b"\x01")] * 3
    s.clear_packets()
    assert run(dev.CAN_start_async(1)) == 0
    assert s.wait_for_packets(1) and wire(s) == [(START_CAN, b"\x01")]


# ---- writing and reading ---------------------------------------------------------------

@pytest.mark.parametrize("call, frame", [
    (lambda d: d.CAN_write(1, 0x123, [1, 2, 3]), [0x24, 0x60, 0, 0, 1, 2, 3, 0, 0, 0, 0, 0]),
    (lambda d: d.CAN_write(1, 1, None, remote=True), [0, 0x30, 0, 0] + [0] * 8),
    (lambda d: d.CAN_write(1, 0x18FF1234, [255] * 8, extended_id=True),
     [0xC7, 0xEB, 0x12, 0x34] + [255] * 8),
    (lambda d: run(d.CAN_write_async(1, 5, [])), [0, 0xA0, 0, 0] + [0] * 8),
])
def test_write_sends_tx_index_0_and_the_twelve_frame_bytes(plover_can, call, frame):
    dev, s = started(plover_can, loopback=False)
    assert call(dev) == 0
    assert wire(s) == [(WRITE_CAN, bytes([1, 0] + frame))]


def test_standard_extended_and_remote_frames_round_trip(plover_can):
    dev, s = started(plover_can)
    frames = [pyorv.CANFrame(0x123, data=[1, 2, 3]), pyorv.CANFrame(0x18FF1234, True, False, [7] * 8),
              pyorv.CANFrame(0x7E0, False, True)]
    for f in frames:
        assert dev.CAN_write(1, f.id, f.data, remote=f.remote, extended_id=f.extended_id) == 0
    assert dev.CAN_read(1, 3) == frames
    assert run(dev.CAN_read_async(1, 3)) == []  # takes what is there, without waiting


def test_acceptance_filters_pass_only_matching_frames(plover_can):
    dev, s = started(plover_can)
    assert dev.CAN_setRXFilterOrMask(1, 0, 0x120) == 0             # filter 0
    assert dev.CAN_setRXFilterOrMask(1, 1, 0x7F0) == 0             # its mask: the low 4 bits are free
    assert dev.CAN_setRXFilterOrMask(1, 2, 0x1ABCDE, extended_id=True) == 0  # filter 1, all bits
    assert dev.CAN_setRXFilteringOn(1, True) == 0
    assert wire(s)[:2] == [(SET_CAN_RX_FILTER_OR_MASK, bytes([1, 0, 0x24, 0, 0, 0] + [0] * 8)),
                           (SET_CAN_RX_FILTER_OR_MASK, bytes([1, 1, 0xFE, 0, 0, 0] + [0] * 8))]
    assert last(s) == (SET_CAN_RX_FILTERING_ON, bytes([1, 1]))
    for id_, ext in [(0x12F, False), (0x130, False), (0x1ABCDE, True), (0x1ABCDF, True)]:
        dev.CAN_write(1, id_, [id_ & 0xFF], extended_id=ext)
    got = dev.CAN_read(1, 2)
    assert [(f.id, f.extended_id) for f in got] == [(0x12F, False), (0x1ABCDE, True)]
    assert dev._CAN_getCounters(1) == [4, 2, 2, 0, 0, 0]  # sent, received, refused


def test_frames_streamed_in_one_record_and_the_read_waits_for_its_count(plover_can):
    dev, s = started(plover_can)
    got = []
    t = threading.Thread(target=lambda: got.extend(dev.CAN_read(1, 4)))
    t.start()
    rows = [pyorv.CANFrame(i, data=[i]).frame_in_list for i in range(4)]
    s.send(START_CAN, bytes([0, 0] + rows[0] + rows[1]))
    assert not wait_until(lambda: got, timeout=0.2)  # two of four
    s.send(START_CAN, bytes([0, 0] + rows[2] + rows[3]))
    t.join(5)
    assert [f.id for f in got] == [0, 1, 2, 3]


# ---- statuses, errors, the odd ones ----------------------------------------------------

def test_writing_while_stopped_counts_tx_errors(plover_can):
    dev, s = plover_can
    dev.CAN_open(1)
    assert dev.CAN_write(1, 1, [1]) == pyorv.errFirmwareCAN
    assert dev.CAN_write(1, 1, [1]) == pyorv.errFirmwareCAN
    assert dev._CAN_getErrors(1) == [16, 0]
    assert dev._CAN_setEnableInterrupt(1, True) == 0
    s.state_set("can.errors", [130, 0])
    assert dev._CAN_getInterrupts(1) == [1, 0, 1]  # enabled, error passive


def test_close_stops_first_and_a_failed_stop_sends_no_close(plover_can):
    dev, s = started(plover_can)
    s.set_handler(STOP_CAN, answer([1, 57]))
    # The stop's code (errFirmwareCAN) checked once more reads as an unknown status.
    assert dev.CAN_close(1) == pyorv.errFirmwareOther
    assert sent(s, CLOSE_CAN) == 0 and dev.can_open_flag
    s.set_handler(STOP_CAN, None)
    assert dev.CAN_close(1) == 0
    assert wire(s)[-2:] == [(STOP_CAN, b"\x01"), (CLOSE_CAN, b"\x01")]
    assert not dev.can_open_flag and not dev._canGateOpen()
    got = []
    t = threading.Thread(target=lambda: got.append(dev.CAN_read(1, 1)))
    t.start()
    assert not wait_until(lambda: got, timeout=0.2)  # closed: it waits for its frame all the same
    assert dev.CAN_open(1) == 0
    s.send(START_CAN, bytes([0, 0] + pyorv.CANFrame(7).frame_in_list))
    t.join(5)
    assert [f.id for f in got[0]] == [7]


@pytest.mark.parametrize("call, error", [
    (lambda d: d.CAN_write(1, 1, [0] * 9), pyorv.CANDataLengthNotVaildError),
    (lambda d: d.CAN_write(1, 1, [256]), pyorv.InputDataNotInRangeError),
    (lambda d: d.CAN_write(1, 1, (1, 2)), pyorv.InputTypeNotCorrectError),
    (lambda d: d.CAN_write(1, 1.0, [1]), pyorv.InputTypeNotCorrectError),
    (lambda d: d.CAN_write(1, 1, [1], remote=1), pyorv.InputTypeNotCorrectError),
    (lambda d: d.CAN_write(2, 1, [1]), pyorv.CANPortNotAvaliableError),
    (lambda d: d.CAN_setSpeed(1, 4), pyorv.CANSpeedNotVaildError),
    (lambda d: d.CAN_setRXFilteringOn(1, 1), pyorv.InputTypeNotCorrectError),
    (lambda d: d.CAN_setRXFilterOrMask(1, 0, 1, extended_id=0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.CAN_read(1, "3"), pyorv.InputTypeNotCorrectError),
    (lambda d: d._CAN_setTXPriority(1, 0, 0), TypeError),  # the mode check's argument count
    (lambda d: d._CAN_setTXPriority(2, 0, 0), pyorv.CANPortNotAvaliableError),
    (lambda d: run(d._CAN_setTXPriority_async(1, 9, 9)), TypeError),
    (lambda d: run(d.CAN_open_async(0)), pyorv.CANPortNotAvaliableError),
    (lambda d: d._CAN_getPinMapPort(2), KeyError),  # can_dict[2]
    (lambda d: d._checkCANPinState_(2, ["Idle"]), KeyError),
])
def test_argument_errors_send_nothing(plover_can, call, error):
    dev, s = plover_can
    refuses(s, error, lambda: call(dev))


def test_data_range_error_names_the_can_data():
    with pytest.raises(pyorv.InputDataNotInRangeError, match="CAN data elements not in range"):
        pyorv.CANModule._checkCANDataRangeAndLength([1, -1])


def test_close_ends_a_pending_read_and_joins_the_thread(plover_can):
    dev, s = plover_can
    before = thread_ids()
    dev.CAN_open(1)
    stream = thread_ids() - before
    assert len(stream) == 1
    result = []
    t = threading.Thread(target=lambda: result.append(
        pytest.raises(pyorv.DeviceClosedError, dev.CAN_read, 1, 1)))
    t.start()
    assert not wait_until(lambda: result, timeout=0.2)
    dev.close(verbose=False)
    t.join(5)
    assert not t.is_alive() and result and dev.can_killed
    assert threads_gone(stream)


def test_frames_convert_to_and_from_python_can_messages(plover_can):
    can = pytest.importorskip("can")
    dev, s = started(plover_can)
    msg = can.Message(arbitration_id=0x18FF1234, is_extended_id=True, data=[1, 2, 3])
    frame = pyorv.CANFrame.from_message(msg)
    assert frame == pyorv.CANFrame(0x18FF1234, True, False, [1, 2, 3])
    dev.CAN_write(1, frame.id, frame.data, extended_id=frame.extended_id)
    back = dev.CAN_read(1, 1)[0].to_message()
    assert (back.arbitration_id, back.is_extended_id, back.is_remote_frame) == (0x18FF1234, True, False)
    assert list(back.data) == [1, 2, 3, 0, 0, 0, 0, 0]
    remote = pyorv.CANFrame(0x7E0, remote=True).to_message()
    assert remote.is_remote_frame and not remote.is_extended_id and len(remote.data) == 0
    assert pyorv.CANFrame.from_message(remote) == pyorv.CANFrame(0x7E0, remote=True)
