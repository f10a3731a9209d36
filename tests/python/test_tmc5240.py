"""TMC5240 drive against a simulated MerlinDrive: the bytes of the start
commands and the parameter block, register access and decoded fields,
composite writes, a home search and a move run by the simulated firmware,
the ini file, argument errors and a silent device."""

import asyncio
import configparser
import struct

import pytest

import pyorv
from conftest import refuses, wait_until, wire

READ, WRITE = pyorv.MOTION_READ_REG, pyorv.MOTION_WRITE_REG
DRIVE_ERROR = -7020  # FirmwareDriveError: the drive refuses a start


@pytest.fixture
def drive(pair):
    return pair("MerlinDrive")


def u32(*values):
    return list(struct.pack(f">{len(values)}I", *values))


def i32(*values):
    return list(struct.pack(f">{len(values)}i", *values))


def writes(sim_dev):
    """(register, word) of every register write received."""
    return [(d[1], struct.unpack(">I", d[3:7])[0]) for c, d in wire(sim_dev) if c == WRITE]


# ---- the six starts: payloads written out by hand -----------------------------------

STARTS = {
    "Motion_startVelocticyMove": (
        (0, 1000, 2000, 3000, -1), pyorv.MOTION_START_V_MOVE,
        [0, 0, 0, 3, 232, 0, 0, 7, 208, 0, 0, 11, 184, 0xFF]),
    "Motion_startPositionMove": (
        (0, -200000, 500, 10, 20, 1), pyorv.MOTION_START_P_MOVE,
        [0] + i32(-200000) + u32(500, 10, 20) + [1]),
    "Motion_startScanMove": (
        (0, -100, 100, 50, 7), pyorv.MOTION_START_SCAN_MOVE,
        [0] + i32(-100, 100) + u32(50, 7)),
    "Motion_startFindLimit": (
        (0, -1, 300, 30, 1000, 5, "true"), pyorv.MOTION_START_FIND_END,
        [0, 0xFF] + u32(300, 30, 1000) + i32(5) + [1]),
    "Motion_startFindHome": (
        (0, 300, 30, 1000, 1, -1, -5, True), pyorv.MOTION_START_FIND_HOME,
        [0] + u32(300, 30, 1000) + [1, 0xFF] + i32(-5) + [0]),
    "Motion_startFindZPolarity": (
        (0, 300, 30, 1000, -1, 1, 5, "true"), pyorv.MOTION_START_FIND_Z,
        [0] + u32(300, 30, 1000) + [0xFF, 1] + i32(5) + [1]),
}


@pytest.mark.parametrize("awaitable", [False, True], ids=["blocking", "async"])
@pytest.mark.parametrize("name", STARTS)
def test_start_payloads(drive, name, awaitable):
    dev, s = drive
    args, cmd, payload = STARTS[name]
    if awaitable:
        status = asyncio.run(getattr(dev, name + "_async")(*args))
    else:
        status = getattr(dev, name)(*args)
    assert status == 0
    assert wire(s) == [(cmd, bytes(payload))]
    # A second start while the process runs is the firmware's refusal.
    assert getattr(dev, name)(*args) == DRIVE_ERROR


# ---- the parameter block -------------------------------------------------------------

def test_parameter_block_travels_whole_and_lives_in_eeprom(drive):
    dev, s = drive
    names = list(dev.TMC5240_default_dict)
    factory = [v for v, _ in dev.TMC5240_default_dict.values()]
    assert len(names) == 22 and names[0] == "x00_GCONF" and names[-1] == "x74_SG4_THRS"
    assert dev.TMC5240_default_dict["x68_MSLUT8"] == (4294934614, pyorv.MRDR_68_MSLUTSEL)
    dev.TMC5240_default_dict = {"x6C_CHOPCONF": 0x10410153, "x00_GCONF": (12, 0)}
    mine = [v for v, _ in dev.TMC5240_default_dict.values()]
    assert dev.Motion_saveParameters(0) == 0
    assert dev.Motion_setParameters(0) == 0
    block = bytes([0, 88] + u32(*mine))
    assert wire(s) == [(pyorv.MOTION_SAVE_PARAM, block), (pyorv.MOTION_SET_PARAM, block)]
    assert len(block) == 90
    dev.TMC5240_default_dict = {"x6C_CHOPCONF": 1}
    assert dev.Motion_resetFactory(0) == 0                    # EEPROM and RAM to factory
    assert asyncio.run(dev.Motion_getParameters_async(0)) == 0
    assert [v for v, _ in dev.TMC5240_default_dict.values()] == factory
    with pytest.raises(KeyError):
        dev.TMC5240_default_dict = {"x99_NOPE": 1}


def test_saved_block_is_loaded_back(drive):
    dev, s = drive
    dev.TMC5240_default_dict = {"x10_IHOLD_IRUN": 0x71F05}
    dev.Motion_saveParameters(0)
    dev.TMC5240_default_dict = {"x10_IHOLD_IRUN": 0}
    assert dev.Motion_loadParameters(0) == 0
    assert dev.TMC5240_default_dict["x10_IHOLD_IRUN"][0] == 0x71F05
    assert wire(s)[-1] == (pyorv.MOTION_LOAD_PARAM, b"\x00")


# ---- registers -----------------------------------------------------------------------

def test_catalogue_constants():
    names = [n for n in dir(pyorv) if n.startswith("MRDR_") and n[5:7].isalnum() and n[7] == "_"]
    assert len(names) == 67
    assert all(getattr(pyorv, n) == int(n[5:7], 16) for n in names)


def test_fields_decode_from_the_catalogue(drive):
    dev, s = drive
    r = dev.Motion_readRegisterFields(0, pyorv.MRDR_6C_CHOPCONF)   # factory 0x00410153
    assert (r.name, r.word) == ("MRDR_6C_CHOPCONF", 4260179)
    assert {k: r.fields[k] for k in ("toff", "hstrt_tfd210", "hend_offset", "tbl", "tpfd")} == {
        "toff": 3, "hstrt_tfd210": 5, "hend_offset": 2, "tbl": 2, "tpfd": 4}
    assert wire(s) == [(READ, bytes([0, 0x6C]))]
    dev._Motion_resetPosition(0, -5)
    assert dev.Motion_readRegisterFields(0, pyorv.MRDR_21_XACTUAL).fields == {"xactual": -5}
    assert dev.Motion_readEncoderPosition(0) == [0, 2**32 - 5]   # the encoder stays; unsigned
    s.state_set("tmc5240.limit_forward", 1)
    ramp = asyncio.run(dev.Motion_readRegisterFields_async(0, pyorv.MRDR_35_RAMPSTAT))
    assert ramp.fields["status_stop_l"] == 1 and ramp.fields["status_stop_r"] == 0
    assert (dev.status_bit6_stopl, dev.status_bit7_stopr, dev.status_bit3_standstill) == (1, 0, 1)


@pytest.mark.parametrize("call, expected", [
    (lambda d: d.Motion_rstEncoderPosi(0, 7), [(0x20, 3), (0x21, 7), (0x39, 7)]),
    (lambda d: d.Motion_cfgEncoder(0, 1, -2),
     [(0x21, 2**32 - 2), (0x39, 2**32 - 2), (0x3A, 2**32 - 1)]),
    (lambda d: d._Motion_clearFault(0), [(0x01, 31)]),
    (lambda d: d._Motion_setRamp(0),
     [(0x23, 0), (0x2B, 500), (0x24, 100000), (0x2F, 100000), (0x26, 100000),
      (0x2A, 100000), (0x30, 100000), (0x28, 100000)]),
])
def test_composite_writes(drive, call, expected):
    dev, s = drive
    assert call(dev) == 0
    assert writes(s) == expected


def test_limit_and_direction_words(drive):
    dev, s = drive
    dev._Motion_write(0, pyorv.MRDR_34_SWMODE, 0xFFFF3402)
    s.clear_packets()
    assert dev.Motion_cfgLimit(0, 1, 0, 0) == 0
    assert writes(s) == [(0x34, 0x340D)]    # bits 3, 2, 0 set, bit 1 and upper half cleared
    assert dev.axis.motion_dict["Reverse Enable"] == 0
    s.clear_packets()
    assert dev.Motion_cfgAxisDirection(0, 0) == 0
    assert writes(s) == [(0x00, 8 | 16), (0x34, 0x341D)]   # shaft and swap_lr set


def test_servo_and_input_lines(drive):
    dev, s = drive
    assert dev.Motion_enableServoOn(0) == 0 and dev.Motion_enableServoOff(0) == 0
    assert wire(s) == [(234, bytes([2, 0, 1, 0, 0])), (234, bytes([2, 0, 1, 0, 1]))]
    s.set_handler(233, lambda ctx, req: ctx.reply(bytes([0, 0, 5, 9, 9])))
    assert dev.Motion_getLimitStatus(0) == [1, 0, 1]


def test_global_fault_alarms_refuses_and_ends_a_move(drive):
    dev, s = drive
    assert dev.Motion_getAlarmStatus(0) == 0
    assert dev.Motion_startVelocticyMove(0, 100, 10, 10, 1) == 0
    s.state_set("tmc5240.gstat", 2)
    assert wait_until(lambda: dev.Motion_getProcessState(0) == 0)
    assert dev.Motion_getAlarmStatus(0) == 1
    assert dev.Motion_startPositionMove(0, 10, 100, 10, 10, 0) == DRIVE_ERROR
    dev._Motion_clearFault(0)
    assert dev.Motion_getAlarmStatus(0) == 0


# ---- processes on the simulated firmware ---------------------------------------------

SEARCHES = {  # start, the switch's state key, arguments before reset_position, process state
    "home": ("Motion_startFindHome", "home_at", (0, 1500, 1000, 10000, -1, 1, 40), 5),
    "index": ("Motion_startFindZPolarity", "index_at", (0, 1500, 1000, 10000, -1, 1, 40), 6),
    "limit": ("Motion_startFindLimit", "limit_reverse_at", (0, -1, 1500, 1000, 10000, 40), 4),
}


@pytest.mark.parametrize("reset, end", [("true", 0), (True, -600 + 40)])
@pytest.mark.parametrize("search", SEARCHES)
def test_search_then_position_move(drive, search, reset, end):
    dev, s = drive
    name, key, args, state = SEARCHES[search]
    s.state_set("tmc5240." + key, -600)
    assert getattr(dev, name)(*args, reset) == 0
    assert dev.Motion_getProcessState(0) == state
    assert wait_until(lambda: dev.Motion_getProcessState(0) == 0)
    assert dev.Motion_readEncoderPosition(0)[1] == end % 2**32
    assert dev.Motion_startPositionMove(0, 500, 2500, 10000, 10000, 0) == 0
    assert dev.Motion_getProcessState(0) == 2
    assert wait_until(lambda: asyncio.run(dev.Motion_getProcessState_async(0)) == 0)
    assert dev.Motion_readEncoderPosition(0) == [500, 500]
    assert dev._Motion_getInpositionStatus(0) == 1


def test_stop_ends_a_velocity_move(drive):
    dev, s = drive
    dev.Motion_startVelocticyMove(0, 2000, 100, 100, -1)
    assert dev.Motion_getProcessState(0) == 1
    assert dev.Motion_readCurrentVelocity(0) == 2**24 - 2000    # VACTUAL is 24-bit signed
    assert dev.Motion_stopProcess(0) == 0
    assert dev.Motion_getProcessState(0) == 0
    assert dev.Motion_readCurrentVelocity(0) == 0


def test_a_limit_ends_a_velocity_move(drive):
    dev, s = drive
    s.state_set("tmc5240.limit_forward_at", 300)
    assert dev.Motion_startVelocticyMove(0, 2000, 100, 100, 1) == 0
    assert wait_until(lambda: dev.Motion_getProcessState(0) == 0)
    position = dev.Motion_readEncoderPosition(0)[1]
    assert 300 <= position < 2**31 and dev.status_bit6_stopl == 1
    assert dev.Motion_getLimitStatus(0) == [1, 0, 0]   # the simulated inputs reach the DI word
    assert dev.Motion_startVelocticyMove(0, 2000, 100, 100, -1) == 0   # away from it is free
    assert dev.Motion_getProcessState(0) == 1


# ---- the ini file --------------------------------------------------------------------

def test_ini_file_is_configparsers_and_loads_to_port_zero(drive, tmp_path):
    dev, s = drive
    path = tmp_path / "drive.ini"
    path.write_text("")
    assert dev.Motion_openCfgFile(str(path)) == 0
    dev.Motion_cfgLimit(0, 0, 1, 0)
    assert dev.Motion_saveCfgFile() == 0
    expected = configparser.ConfigParser()
    expected["Axis_1"] = {label: str(dev.motion_ini._Motion_INI_convertIntToString(label, value))
                          for label, value in dev.axis.motion_dict.items()}
    other = tmp_path / "configparser.ini"
    with open(other, "w") as f:
        expected.write(f)
    assert path.read_text() == other.read_text()
    assert "forward enable = FALSE" in path.read_text()
    path.write_text(path.read_text().replace("inverse motion direction = FALSE",
                                             'inverse motion direction = "TRUE"'))
    s.clear_packets()
    assert asyncio.run(dev.Motion_loadCfgFile_async()) == 0
    assert dev.axis.motion_dict["Inverse Motion Direction"] == 1
    assert [(c, d[:2]) for c, d in wire(s)] == [
        (WRITE, b"\x00\x3a"), (READ, b"\x00\x00"), (WRITE, b"\x00\x00"),
        (READ, b"\x00\x34"), (WRITE, b"\x00\x34"), (READ, b"\x00\x34"), (WRITE, b"\x00\x34")]
    assert writes(s)[0] == (0x3A, 0)           # the raw setting, not 1 or -1


# ---- refusals and silence ------------------------------------------------------------

@pytest.mark.parametrize("error, call", [
    (pyorv.MRDRPortNotAvaliable, lambda d: d.Motion_open(1)),
    (pyorv.MRDRPortNotAvaliable, lambda d: d.Motion_setParameters(3)),
    (pyorv.InputTypeNotCorrectError, lambda d: d.Motion_getProcessState("0")),
    (pyorv.InputTypeNotCorrectError, lambda d: d.Motion_startVelocticyMove(0, 1.5, 1, 1, 1)),
    (pyorv.InputTypeNotCorrectError, lambda d: d.Motion_startScanMove(0, 0, 1, 10, 2.0)),
    (ValueError, lambda d: d.Motion_startVelocticyMove(0, -1, 1, 1, 1)),
    (ValueError, lambda d: d.Motion_startVelocticyMove(0, 1, 1, 1, 128)),
    (ValueError, lambda d: d.Motion_startPositionMove(0, 2**31, 1, 1, 1, 0)),
    (TypeError, lambda d: d.Motion_startFindHome(0, 1.0, 1, 1, 1, 1, 0, "true")),
    (ValueError, lambda d: d.Motion_startFindLimit(0, 1, 1, 1, 1, -2**31 - 1, "true")),
    (TypeError, lambda d: d.Motion_cfgAxisDirection(0, 1.0)),
    (pyorv.InputDataNotInRangeError, lambda d: d.Motion_readRegisterFields(0, pyorv.MRDR_6D_COOLCONF)),
    (pyorv.InputDataNotInRangeError, lambda d: d.Motion_readRegisterFields(0, 0x7F)),
    (pyorv.MRDRPortNotAvaliable, lambda d: asyncio.run(d.Motion_startFindZPolarity_async(
        2, 1, 1, 1, 1, 1, 0, "true"))),
])
def test_argument_errors_send_nothing(drive, error, call):
    dev, s = drive
    refuses(s, error, lambda: call(dev))


def test_silent_process_poll_times_out(drive):
    dev, s = drive
    s.set_handler(pyorv.MOTION_GET_PROC_STATE, lambda ctx, req: None)
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.Motion_getProcessState(0, timeout=0.3)
    assert issubclass(pyorv.ReceivePacketTimeoutError, TimeoutError)
