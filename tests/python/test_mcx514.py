"""MCX514 motion against a simulated MerlinAxis (and Trellis for slot ports):
the command layer's packets row by row, the composite sequences packet by
packet, the checks, firmware statuses, the ini file and a simulated move."""

import asyncio
import configparser
import csv
import math
import pathlib
import re
import runpy

import pytest

import pyorv
from conftest import refuses, wait_until, wire

MOTION = 208


@pytest.fixture
def axis(pair):
    return pair("MerlinAxis")


def motion(sim_dev):
    """The seven data bytes of every MOTION packet received, as lists."""
    return [list(data) for cmd, data in wire(sim_dev) if cmd == MOTION]


def answer_status(status):
    """A MOTION handler that echoes the request with `status` in byte 6."""
    return lambda ctx, req: ctx.reply(bytes(list(req.data[:3]) + [0, 0, 0, status]))


# ---- the command layer: one row, one packet ------------------------------------------

# Written out by hand from the register catalogue, across every data form.
SAMPLES = {
    "_Motion_setAcceleration": ((2, 0, 1000), [2, 0x02, 1, 0, 0, 3, 232]),
    "_Motion_setAccelerationJerk": ((0, 1, 5), [0, 0x00, 2, 0, 0, 0, 5]),
    "_Motion_setDriveSpeed": ((0, 3, 0x01020304), [0, 0x05, 8, 1, 2, 3, 4]),
    "_Motion_setTimer": ((0, 2, 70000), [0, 0x16, 4, 0, 1, 0x11, 0x70]),
    "_Motion_setHomeSearchSpeed": ((0, 0, 2000.7), [0, 0x14, 1, 0, 0, 7, 0xD0]),
    "_Motion_setSoftwareLimitM": ((0, 1, -1), [0, 0x0C, 2, 255, 255, 255, 255]),
    "Motion_setLogicalPosi": ((0, 0, -2), [0, 0x09, 1, 255, 255, 255, 254]),
    "_Motion_setMultiPurposeRegister3": ((0, 3, -2**31), [0, 0x13, 8, 0x80, 0, 0, 0]),
    "_Motion_setDrivePositionFinishPoint": ((0, 2, 100000), [0, 0x06, 4, 0, 1, 0x86, 0xA0]),
    "_Motion_setMaxInterpolationPoint": ((0, 65536), [0, 0x19, 0, 0, 1, 0, 0]),
    "_Motion_setHelicalCalculation": ((0, 7), [0, 0x1B, 0, 0, 0, 0, 7]),
    "_Motion_setAccelerationCounterOffset": ((0, 0, -2), [0, 0x0D, 1, 0, 0, 0xFF, 0xFE]),
    "_Motion_splitPulse2": ((0, 1, 300), [0, 0x16, 2, 0, 0, 1, 0x2C]),
    "_Motion_setSYNCAction1": ((0, 2, 230), [0, 0x27, 4, 0, 0, 0, 0xE6]),
    "_Motion_writeWR3": ((0, 3, 0x8001), [0, 0xE3, 8, 0, 0, 0x80, 1]),
    "_Motion_writeWR0": ((0, 0x1234), [0, 0xE0, 0, 0, 0, 0x12, 0x34]),
    "_Motion_setInterpolationMode": ((0, 0x14B), [0, 0x2A, 0, 0, 0, 1, 0x4B]),
    "_Motion_setHelicalRotationNumber": ((0, 3), [0, 0x1A, 0, 0, 0, 0, 3]),
    "_Motion_splitPulse1": ((0, 0, 10, 1000), [0, 0x17, 1, 0, 10, 3, 232]),
    "_Motion_setGPIOValue": ((0, 1, 1, 0), [0, 0x1C, 2, 0, 0, 1, 0]),
    "_Motion_setPIOSignal1": ((0, 15, 99), [0, 0x21, 15, 0, 0, 0x55, 0x05]),
    "_Motion_enableServoAlarm": ((0, 0, 1), [0, 0xC9, 1, 0, 0, 0, 1]),
    "_Motion_enableRepeatTimer": ((0, 3, 0), [0, 0xDE, 8, 0, 0, 0, 0]),
    "_Motion_instantStop": ((0, 1), [0, 0x57, 2, 0, 0, 0, 0]),
    "_Motion_clearMaxFinishPoint": ((0, 3), [0, 0x7C, 8, 0, 0, 0, 0]),
    "_Motion_reset": ((0,), [0, 0xFE, 0, 0, 0, 0, 0]),
    "_Motion_resetHardware": ((0,), [0, 0xFE, 0, 0, 0, 0, 0]),
    "_Motion_twoAxisPatternPolation": ((0,), [0, 0x66, 0, 0, 0, 0, 0]),
    "_Motion_checkI2C": ((0,), [0, 0xFC, 0, 0, 0, 0, 0]),
    "_Motion_enableActionSYNC0SYNC2": ((0, 0), [0, 0x85, 1, 0, 0, 0, 0]),
    "_Motion_disableActionSYNC1SYNC3": ((0, 2), [0, 0x9A, 4, 0, 0, 0, 0]),
    "_Motion_enableActionSYNC0SYNC1SYNC2SYNC3": ((0, 1), [0, 0x8F, 2, 0, 0, 0, 0]),
    "_Motion_getCurrentDriveSpeed": ((0, 1), [0, 0x32, 2, 0, 0, 0, 0]),
    "_Motion_getHelicalCalculation": ((0,), [0, 0x3B, 0, 0, 0, 0, 0]),
    "_Motion_getHelicalRotaionNumber": ((0, 2), [0, 0x3A, 4, 0, 0, 0, 0]),
    "_Motion_writeRR3": ((0, 2, 1), [0, 0xEB, 4, 0, 0, 0, 1]),
    "_Motion_writeRR0": ((0,), [0, 0xE8, 0, 0, 0, 0, 0]),
}

ROWS = sorted(name for name in vars(pyorv.MCX514Driver)
              if (name.startswith("_Motion_") or name == "Motion_setLogicalPosi")
              and not name.endswith("_async"))


def test_the_layer_has_every_row_in_both_forms():
    assert len(ROWS) == 182  # every name the catalogue of operations lists
    assert all(hasattr(pyorv.MCX514Driver, n + "_async") for n in ROWS)
    assert pyorv.MOTION_2A_IPM == 0x2A and pyorv.MOTION_C9_ALME == 0xC9
    codes = [n for n in dir(pyorv) if re.fullmatch(r"MOTION_[0-9A-F]{2}_\w+", n)]
    assert len(codes) == 199 and all(getattr(pyorv, n) == int(n[7:9], 16) for n in codes)


@pytest.mark.parametrize("name", [n for n in ROWS if n != "_Motion_releaseDrivingStart"])
def test_each_row_sends_one_packet(axis, name):
    dev, s = axis
    doc = getattr(pyorv.MCX514Driver, name).__doc__
    params = re.match(r"\w+\(self((?:, \w+: int)*), timeout", doc).group(1)
    params = re.findall(r"(\w+): int", params)[1:]
    if name in SAMPLES:
        args, expected = SAMPLES[name]
    else:  # port 0, axis 2, every other argument 1
        args = (0,) + tuple(2 if p == "axis" else 1 for p in params)
        expected = None
    result = getattr(dev, name)(*args)
    [sent] = motion(s)
    if expected is not None:
        assert sent == expected
    else:
        code = getattr(pyorv, re.search(r"MOTION_[0-9A-F]{2}_\w+", doc).group(0))
        axis_byte = 4 if params[:1] == ["axis"] else 0
        assert sent[:3] == [0, code, axis_byte]
    if doc.split("\n\n")[1].startswith(("Writes", "Sends")):
        assert result == 0


def test_release_of_a_held_start_fails_before_sending(axis):
    dev, s = axis
    refuses(s, AttributeError, lambda: dev._Motion_releaseDrivingStart(0, 3),
            lambda: asyncio.run(dev._Motion_releaseDrivingStart_async(0, 3)))


@pytest.mark.parametrize("call, error", [
    (lambda d: d._Motion_setRealPositionCounter(0, 0, 2**31), ValueError),
    (lambda d: d._Motion_setAcceleration(0, 0, -1), ValueError),
    (lambda d: d._Motion_writeWR2(0, 0, 0x10000), ValueError),
    (lambda d: d._Motion_setAcceleration(0, 8, 1), ValueError),       # axis byte 256
    (lambda d: d._Motion_setDriveSpeed(0, 0, "fast"), TypeError),
])
def test_a_value_outside_its_form_fails_before_sending(axis, call, error):
    dev, s = axis
    refuses(s, error, lambda: call(dev))


def test_firmware_status_is_the_result_of_a_row_but_not_of_a_composite(axis):
    dev, s = axis
    s.set_handler(MOTION, answer_status(54))  # the firmware's motion error
    assert dev._Motion_setAcceleration(0, 0, 1000) == pyorv.FirmwareMotionError().code
    assert dev.Motion_open(0) == pyorv.FirmwareMotionError().code
    s.clear_packets()
    assert dev.Motion_cfgAxisMove(0, 1, 0) == 0
    assert len(motion(s)) == 7  # every step ran


def test_reads_decode_their_width(axis):
    dev, s = axis
    s.set_handler(MOTION, lambda ctx, req: ctx.reply(bytes(list(req.data[:3]) + [0xFF, 0xFF, 0xFF, 0xFE])))
    assert dev._Motion_getMultiPurposeRegister0(0, 0) == -2
    assert dev._Motion_getDriveSpeed(0, 0) == 0xFFFFFFFE
    assert dev._Motion_getWR2(0, 0) == 0xFFFE
    assert dev.Motion_getLogicalPosi(0, 0) == -2


# ---- checks --------------------------------------------------------------------------

@pytest.mark.parametrize("call, error", [
    (lambda d: d.Motion_open(1), pyorv.MotionPortNotAvaliable),
    (lambda d: d.Motion_open(0.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Motion_stop(0, 0, 2), pyorv.MotionStopModeError),
    (lambda d: d.Motion_stop(0, 4, 0), pyorv.MotionAxisError),
    (lambda d: d.Motion_cfgAxis(0, 0, 0, 0, 2, 1), pyorv.MotionDirectionError),
    (lambda d: d.Motion_cfgAxis(0, 0, 2, 0, 0, 1), pyorv.MotionStepperOutputError),
    (lambda d: d.Motion_cfgAxisMove(0, 0, 3), pyorv.MotionOperationModeError),
    (lambda d: d.Motion_cfgAxisMove(0, 0, 0, 1.5), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Motion_cfgFindRef(0, 0, 0, 2), pyorv.MotionSearchTypeError),
    (lambda d: d.Motion_cfgFindRef(0, 0, 3, 0), pyorv.MotionSearchTypeError),
    (lambda d: d.Motion_cfgCapture(0, 0, 0, 2), pyorv.MotionCaptureModeError),
    (lambda d: d.Motion_cfgBreakPoint(0, 0, 2, 0, 0, 1, 1, 1), pyorv.MotionBreakPointModeError),
    (lambda d: d.Motion_cfgJerkAndAccelMode(0, 0, 1, 3), pyorv.MotionAccelerationModeError),
    (lambda d: d.Motion_cfg2AxisLinearInterpo(0, 0, 1, 5, 2), pyorv.MotionAxisError),
    (lambda d: d.Motion_cfgCircularInterpo(0, 0, 1, 0, 0, 0, 0, 2), pyorv.MotionDirectionError),
    (lambda d: d.Motion_cfgHelicalInterpo(0, 0, 0, 0, 0, 2, 0, 0, 0, 1, 1, 0, 10),
     pyorv.MotionEnableError),
    (lambda d: d.Motion_startMultiAxisMove(0, [0, 7]), pyorv.MotionAxisError),
])
def test_arguments_are_refused_before_anything_is_sent(axis, call, error):
    dev, s = axis
    before = dev.axis_1.motion_dict
    refuses(s, error, lambda: call(dev))
    assert dev.axis_1.motion_dict == before


def test_the_motion_checks_are_warnings_and_keep_their_crossed_classes(axis):
    dev, _ = axis
    assert issubclass(pyorv.MotionAxisError, pyorv.ORVWarning)
    with pytest.raises(pyorv.MotionSearchTypeError):
        dev._checkMCX514SearchDirection(2)
    dev._checkMCX514Axis(9, mode=False)  # only the type without the mode
    assert dev.Motion_close(0) == 0
    assert dev.Motion_cfgJerkAndAccelMode(0, 2, 5, 2) == 0
    assert (dev.axis_3.jerk, dev.axis_3.acceleration_mode) == (5, 2)


# ---- composite sequences -------------------------------------------------------------

WR3_AXIS1_DEFAULT = [0, 0xE3, 2, 0, 0, 0, 0x58]  # step/dir, not inverted


def rd(code, axis_byte):
    return [0, code, axis_byte, 0, 0, 0, 0]


@pytest.mark.parametrize("call, expected", [
    (lambda d: d.Motion_cfgAxis(0, 0, 1, 1, 1, 0),      # CW/CCW, both directions inverted
     [rd(0x3F, 1), [0, 0xE3, 1, 0, 0, 0, 0x40], rd(0x3F, 1), [0, 0xE3, 1, 0, 0, 0x08, 0x40]]),
    (lambda d: d.Motion_cfgLimit(0, 3, 1, 0, 0),
     [rd(0x3E, 8), [0, 0xE2, 8, 0, 0, 0x08, 0], rd(0x3E, 8), [0, 0xE2, 8, 0, 0, 0x08, 0]]),
    (lambda d: d.Motion_cfgAlarm(0, 1, 1, 1),
     [rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0x02, 0], rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0x03, 0]]),
    (lambda d: d.Motion_cfgHome(0, 1, 1, 0),
     [rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0, 0x08], rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0, 0x08]]),
    (lambda d: d.Motion_cfgInposi(0, 1, 1, 1),
     [rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0, 0x80], rd(0x3E, 2), [0, 0xE2, 2, 0, 0, 0, 0xC0]]),
    (lambda d: d.Motion_cfgEncoder(0, 0, 0), [rd(0x3E, 1), [0, 0xE2, 1, 0, 0, 0, 0x10]]),
    (lambda d: asyncio.run(d.Motion_cfgEncoder_async(0, 0, 0)),   # the twin writes it as given
     [rd(0x3E, 1), [0, 0xE2, 1, 0, 0, 0, 0]]),
    (lambda d: d.Motion_rstEncoderPosi(0, 2, -5),
     [[0, 0x09, 4, 255, 255, 255, 0xFB], [0, 0x0A, 4, 255, 255, 255, 0xFB]]),
    (lambda d: d.Motion_stop(0, 1, 1), [rd(0x57, 2)]),
    (lambda d: d.Motion_stop(0, 1, 0), [rd(0x56, 2)]),
    (lambda d: d.Motion_findRef(0, 2), [rd(0x5A, 4)]),
    (lambda d: d.Motion_checkRef(0, 2), [rd(0xE8, 0)]),
    (lambda d: d.Motion_readCapturePoint(0, 1), [rd(0x37, 2)]),
    (lambda d: d.Motion_enableBreakPoint(0, 3, 0), [rd(0x91, 8)]),
    (lambda d: d.Motion_overrideAxisPosi(0, 0, -3), [[0, 0x06, 1, 255, 255, 255, 0xFD]]),
    (lambda d: d.Motion_close(0), []),
])
def test_short_operations_packet_by_packet(axis, call, expected):
    dev, s = axis
    assert call(dev) in (0, 1)
    assert motion(s) == expected


def test_cfg_axis_move_packet_by_packet(axis):
    dev, s = axis
    assert dev.Motion_cfgAxisMove(0, 1, 0, 5000, 20000, 40000, 30000) == 0
    assert motion(s) == [
        [0, 0x06, 2, 0, 0, 0x13, 0x88],     # TP 5000
        [0, 0x05, 2, 0, 0, 0x4E, 0x20],     # DV 20000
        [0, 0x04, 2, 0, 0, 0x01, 0x5B],     # SV int(sqrt(100000) * 1.1): the previous acceleration
        [0, 0x02, 2, 0, 0, 0x9C, 0x40],     # AC 40000
        [0, 0x03, 2, 0, 0, 0x75, 0x30],     # DC 30000
        [0, 0x3F, 2, 0, 0, 0, 0],           # read WR3
        [0, 0xE3, 2, 0, 0, 0, 0x02],        # asymmetric trapezoid
        [0, 0x3E, 2, 0, 0, 0, 0],           # read WR2
        [0, 0xE2, 2, 0, 0, 0x10, 0x00],     # stop at the limit
    ]
    a = dev.axis_2
    assert (a.operation_mode, a.target_position, a.velocity, a.acceleration, a.deceleration,
            a.stop) == (0, 5000, 20000, 40000, 30000, 1)


def test_multi_axis_move_writes_each_axis_then_fails_at_the_release(axis):
    dev, s = axis
    dev.Motion_cfgAxisMove(0, 1, 0, 5000, 20000, 40000, 30000)
    s.clear_packets()
    with pytest.raises(AttributeError, match="_checkMotionAxis"):
        dev.Motion_startMultiAxisMove(0, [1])
    assert motion(s) == [
        [0, 0x3F, 2, 0, 0, 0, 0], WR3_AXIS1_DEFAULT,
        [0, 0x06, 2, 0, 0, 0x13, 0x88],
        [0, 0x05, 2, 0, 0, 0x4E, 0x20], [0, 0x04, 2, 0, 0, 0, 0xDC],  # SV from 40000
        [0, 0x02, 2, 0, 0, 0x9C, 0x40], [0, 0x03, 2, 0, 0, 0x75, 0x30],
        [0, 0x3F, 2, 0, 0, 0, 0], [0, 0xE3, 2, 0, 0, 0, 0x5A],
        [0, 0x3E, 2, 0, 0, 0, 0], [0, 0xE2, 2, 0, 0, 0x10, 0x00],
        [0, 0x77, 2, 0, 0, 0, 0],           # hold
        [0, 0x54, 2, 0, 0, 0, 0],           # absolute drive
    ]
    s.clear_packets()
    with pytest.raises(AttributeError):
        dev.Motion_startMultiAxisMove(0, [])
    assert motion(s) == []


def test_cfg_find_ref_packet_by_packet(axis):
    dev, s = axis
    assert dev.Motion_cfgFindRef(0, 0, 0, 1, 10000, 50000, 20, 1, 100) == 0
    assert motion(s) == [
        [0, 0x3F, 1, 0, 0, 0, 0], [0, 0xE3, 1, 0, 0, 0, 0x58],
        [0, 0x06, 1, 0, 0, 0, 0],
        [0, 0x05, 1, 0, 0, 0x27, 0x10], [0, 0x04, 1, 0, 0, 0x01, 0x5B],
        [0, 0x02, 1, 0, 0, 0xC3, 0x50], [0, 0x03, 1, 0, 0, 0xC3, 0x50],  # equal: no WR3
        [0, 0x23, 1, 0, 0, 0x80, 0x37],     # home search, offset flag in bit 15
        [0, 0x3E, 1, 0, 0, 0, 0], [0, 0xE2, 1, 0, 0, 0x10, 0x00],
        [0, 0x24, 1, 0, 0, 0, 0x06],        # reset position
        [0, 0x14, 1, 0, 0, 0x07, 0xD0],     # 20 % of 10000
        [0, 0x06, 1, 0, 0, 0, 100],         # offset, direction 1
    ]
    d = dev.axis_1.motion_dict
    assert (d["Offset Position"], d["Approach Velocity Percent"], d["Enable Reset Position"]) == (100, 20, 1)
    assert (dev.axis_1.search_velocity, dev.axis_1.search_accerleration) == (10000, 50000)


@pytest.mark.parametrize("call, expected", [
    # no offset, zero percent: approach speed 1, the percent flag 0
    (lambda d: d.Motion_cfgFindRef(0, 0, 2, 0, 10000, 100000, 0, 0, 0),
     {0x23: [0, 0, 0, 0x49], 0x14: [0, 0, 0, 1], 0x06: [0, 0, 0, 0]}),
    (lambda d: d._Motion_writeOffsetPosition(0, 0, 100, 0), {0x06: [255, 255, 255, 0x9C]}),
    (lambda d: d._Motion_writeOffsetPosition(0, 0, 100, 1), {0x06: [0, 0, 0, 100]}),
])
def test_search_words(axis, call, expected):
    dev, s = axis
    call(dev)
    last = {p[1]: p[3:] for p in motion(s)}  # the last packet of each code
    assert {code: last[code] for code in expected} == expected


def test_equal_ramps_send_two_packets_and_s_curve_sends_the_jerk(axis):
    dev, s = axis
    assert dev._Motion_writeAcceleration(0, 0, 500, 500) == 0
    assert [p[1] for p in motion(s)] == [0x02, 0x03]
    dev.Motion_cfgJerkAndAccelMode(0, 0, 7, 2)
    s.clear_packets()
    dev._Motion_writeAcceleration(0, 0, 500, 500)
    assert motion(s)[2:] == [[0, 0x00, 1, 0, 0, 0, 7], [0, 0x01, 1, 0, 0, 0, 7],
                             [0, 0x3F, 1, 0, 0, 0, 0], [0, 0xE3, 1, 0, 0, 0, 0x04]]


def test_velocity_override_reverses_through_sync1(axis):
    dev, s = axis
    dev.Motion_cfgAxisMove(0, 0, 2, 0, 3000)
    s.clear_packets()
    assert dev.Motion_overrideAxisVelocity(0, 0, 2500) == 0      # same direction: one write
    assert motion(s) == [[0, 0x05, 1, 0, 0, 0x09, 0xC4]]
    s.clear_packets()
    assert dev.Motion_overrideAxisVelocity(0, 0, 0) == 0         # 0 counts as reverse
    assert motion(s) == [[0, 0x00, 1, 0, 0, 0, 0], [0, 0x27, 1, 0, 0, 0, 0xE6],
                         [0, 0x82, 1, 0, 0, 0, 0], [0, 0x56, 1, 0, 0, 0, 0],
                         [0, 0x05, 1, 0, 0, 0, 0]]
    assert dev.axis_1.velocity_move_direction == 1


def test_status_reads_capture_and_servo(axis):
    dev, s = axis
    s.state_set("mcx514.rr3.2", (1 << 1) | (1 << 8))
    assert dev.Motion_getHomeStatus(0, 2) == 1
    assert dev.Motion_getLimitStatus(0, 2) == [0, 1]
    dev._Motion_setLimitPolarity(0, 2, 0)   # active low: the readings invert
    assert dev.Motion_getHomeStatus(0, 2) == 0
    assert dev.Motion_getLimitStatus(0, 2) == [1, 0]
    s.clear_packets()
    assert dev.Motion_cfgCapture(0, 2, 1, 1) == 0
    assert dev.Motion_enableCapture(0, 2, 1) == 0
    assert motion(s) == [[0, 0x29, 4, 0, 0, 0, 107], [0, 0x88, 4, 0, 0, 0, 0]]
    dev.Motion_setLogicalPosi(0, 2, 77)
    s.clear_packets()
    assert dev.Motion_enableServoOn(0, 2) == 0     # polarity 1: on is high
    assert motion(s) == [[0, 0x1C, 4, 0, 0, 1, 1], [0, 0x30, 4, 0, 0, 0, 0],
                         [0, 0x09, 4, 0, 0, 0, 77]]


# ---- interpolation -------------------------------------------------------------------

def test_two_axis_line_sorts_its_axes(axis):
    dev, s = axis
    assert dev.Motion_startLinearInterpo(0) == 0               # nothing configured: two axes
    assert motion(s) == [[0, 0x61, 0, 0, 0, 0, 0]]
    s.clear_packets()
    assert dev.Motion_cfg2AxisLinearInterpo(0, 3, 100, 1, 200) == 0
    assert motion(s) == [
        [0, 0x3F, 2, 0, 0, 0, 0], WR3_AXIS1_DEFAULT,
        [0, 0x3F, 8, 0, 0, 0, 0], [0, 0xE3, 8, 0, 0, 0, 0x58],
        [0, 0x2A, 0, 0, 0, 0, 0x4A],        # axes 1 and 3, bit 6
        [0, 0x04, 2, 0, 0, 0x01, 0x5B], [0, 0x05, 2, 0, 0, 0x27, 0x10],
        [0, 0x02, 2, 0, 1, 0x86, 0xA0], [0, 0x03, 2, 0, 1, 0x86, 0xA0],
        [0, 0x06, 2, 0, 0, 0, 200], [0, 0x06, 8, 0, 0, 0, 100],
        [0, 0x6D, 0, 0, 0, 0, 0],
    ]
    r = dev.linear_interpo
    assert (r.main_axis, r.main_dest, r.second_axis, r.second_dest, r.mode) == (1, 200, 3, 100, 2)


@pytest.mark.parametrize("call, word, start", [
    (lambda d: d.Motion_cfg3AxisLinearInterpo(0, 0, 1, 1, 2, 2, 3), 0x87, 0x62),
    (lambda d: d.Motion_cfg4AxisLinearInterpo(0, 3, 1, 2, 2, 1, 3, 0, 4, 500), 0x0F, 0x63),
])
def test_three_and_four_axis_mode_words(axis, call, word, start):
    dev, s = axis
    call(dev)
    dev.Motion_startLinearInterpo(0)
    packets = motion(s)
    assert [0, 0x2A, 0, 0, 0, 0, word] in packets and packets[-1] == [0, start, 0, 0, 0, 0, 0]


def test_circular_arc_packet_by_packet(axis):
    dev, s = axis
    assert dev.Motion_cfgCircularInterpo(0, 2, 0, 10, 20, 30, 40, 1, 500, 1000, 2000) == 0
    assert dev.Motion_startCircularInterpo(0) == 0
    assert motion(s) == [
        [0, 0x3F, 4, 0, 0, 0, 0], [0, 0xE3, 4, 0, 0, 0, 0x58],
        [0, 0x3F, 1, 0, 0, 0, 0], [0, 0xE3, 1, 0, 0, 0, 0x58],
        [0, 0x2A, 0, 0, 0, 0, 0x55],        # axes 2 and 0, bit 6, bit 4 as x > y
        [0, 0x04, 1, 0, 0, 1, 0xF4], [0, 0x05, 1, 0, 0, 1, 0xF4],
        [0, 0x02, 1, 0, 0, 3, 0xE8], [0, 0x03, 1, 0, 0, 7, 0xD0],
        [0, 0x08, 4, 0, 0, 0, 10], [0, 0x06, 4, 0, 0, 0, 30],
        [0, 0x08, 1, 0, 0, 0, 20], [0, 0x06, 1, 0, 0, 0, 40],
        [0, 0x65, 0, 0, 0, 0, 0],           # counter-clockwise
    ]
    assert dev.circular_interpo.main_axis == 0


HELIX_WRITE = [
    [0, 0x3F, 1, 0, 0, 0, 0], [0, 0xE3, 1, 0, 0, 0, 0x58],
    [0, 0x3F, 2, 0, 0, 0, 0], WR3_AXIS1_DEFAULT,
    [0, 0x3F, 4, 0, 0, 0, 0], [0, 0xE3, 4, 0, 0, 0, 0x58],
    [0, 0x2A, 0, 0, 0, 1, 0x47],            # bits 0, 1, 2 (axis 3 on), 6, 8
    [0, 0x04, 1, 0, 0, 1, 0x2C], [0, 0x05, 1, 0, 0, 1, 0x2C],
    [0, 0x1A, 0, 0, 0, 0, 2],
    [0, 0x06, 1, 0, 0, 0, 30], [0, 0x08, 1, 0, 0, 0, 10],
    [0, 0x06, 2, 0, 0, 0, 40], [0, 0x08, 2, 0, 0, 0, 20],
    [0, 0x06, 4, 0, 0, 0, 50],              # pitch of axis 3 only
]


def test_helix_waits_for_the_calculation_then_starts_from_the_record(axis):
    dev, s = axis
    s.state_set("mcx514.helical_busy", 2)
    s.state_set("mcx514.helical_value", 1234)
    assert dev.Motion_cfgHelicalInterpo(0, 10, 20, 30, 40, 1, 50, 0, 60, 2, 300, 0, 1000) == 0
    rr0 = [0, 0xE8, 0, 0, 0, 0, 0]
    assert motion(s) == HELIX_WRITE + [[0, 0x6B, 0, 0, 0, 0, 0], rr0, rr0, rr0,
                                       [0, 0x3B, 0, 0, 0, 0, 0]]
    assert dev.helical_interpo.calculation_result == 1234
    s.clear_packets()
    assert dev.Motion_startHelicalInterpo(0) == 0
    assert motion(s) == HELIX_WRITE + [[0, 0x1B, 0, 0, 0, 0x04, 0xD2], [0, 0x69, 0, 0, 0, 0, 0]]


def test_helix_calculation_that_never_ends_stops_at_its_timeout(axis):
    dev, s = axis
    s.state_set("mcx514.helical_busy", 10**9)
    assert dev.Motion_cfgHelicalInterpo(0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 100, 1, -1) == 0
    codes = [p[1] for p in motion(s)]
    assert codes[-3:] == [0x6C, 0xE8, 0x3B]  # one read with a negative timeout


def test_break_point_relative_to_the_logical_position(axis):
    dev, s = axis
    dev.Motion_setLogicalPosi(0, 1, 500)
    s.clear_packets()
    assert dev.Motion_cfgBreakPoint(0, 1, 1, 0, 100, 10, 1000, 5) == 0
    assert motion(s) == [
        [0, 0x17, 2, 0, 10, 3, 0xE8], [0, 0x16, 2, 0, 0, 0, 5],
        [0, 0x42, 2, 0, 0, 0, 0], [0, 0x22, 2, 0, 0, 0x0C, 0x00],
        [0, 0x40, 2, 0, 0, 0, 0], [0, 0x20, 2, 0, 0, 0, 0x08],
        [0, 0x30, 2, 0, 0, 0, 0], [0, 0x10, 2, 0, 0, 0x02, 0x58],   # 100 + 500
        [0, 0x26, 2, 0, 0, 0x01, 0x71],
    ]
    s.clear_packets()
    dev.Motion_cfgBreakPoint(0, 1, 0, 1, 100, 10, 1000, 5)          # absolute: no position read
    assert [0, 0x30, 2, 0, 0, 0, 0] not in motion(s)
    assert [0, 0x10, 2, 0, 0, 0, 100] in motion(s)


# ---- both twins, ports of slots, a simulated move ------------------------------------

def test_awaitable_composite_sends_what_the_blocking_one_sends(pair):
    dev_a, s_a = pair("MerlinAxis")
    dev_b, s_b = pair("MerlinAxis")
    dev_a.Motion_cfgFindRef(0, 3, 1, 0, 5000, 20000, 12.5, 0, 10)
    assert asyncio.run(dev_b.Motion_cfgFindRef_async(0, 3, 1, 0, 5000, 20000, 12.5, 0, 10)) == 0
    assert motion(s_a) == motion(s_b) and len(motion(s_a)) == 13


def test_trellis_ports_are_slots(trellis):
    dev, s = trellis
    assert dev.Motion_open(1) == 0
    with pytest.raises(pyorv.MotionPortNotAvaliable):
        dev.Motion_open(3)
    dev.Motion_setLogicalPosi(1, 0, 5)          # the layer's blocking form keeps the port
    asyncio.run(dev.Motion_setLogicalPosi_async(1, 0, 5))
    assert motion(s) == [[0, 0x21, 15, 0, 0, 0x55, 0x05], [1, 0x09, 1, 0, 0, 0, 5],
                         [0, 0x09, 1, 0, 0, 0, 5]]


def done(dev, *axes):
    """Polls the move status of the axes, as a user does, until each reports complete."""
    return wait_until(lambda: all(dev.Motion_getMoveStatus(0, a) == 1 for a in axes))


def path_of(s, *axes):
    """The recorded (t, positions of the axes) samples of port 0."""
    return [(p[0], [p[2 + a] for a in axes]) for p in s.state_get("mcx514.path") if p[1] == 0]


@pytest.mark.parametrize("accel_mode", [0, 1])   # trapezoid, S curve
def test_simulated_move_ramps_to_its_target(axis, accel_mode):
    dev, s = axis
    assert dev.Motion_open(0) == 0
    dev.Motion_cfgJerkAndAccelMode(0, 0, 400_000_000, accel_mode)
    dev.Motion_cfgAxisMove(0, 0, 1, 4000, 100_000, 4_000_000, 2_000_000)  # SV from 100000: 347
    s.state_set("mcx514.path", [])
    assert dev.Motion_startSingleAxisMove(0, 0) == 0
    assert done(dev, 0)
    assert dev.Motion_getLogicalPosi(0, 0) == 4000 and dev.Motion_getEncoderPosi(0, 0) == 4000
    samples = path_of(s, 0)
    speeds = [(b[1][0] - a[1][0]) / (b[0] - a[0])
              for a, b in zip(samples, samples[1:]) if b[0] - a[0] >= 0.0005]
    assert samples[-1][1] == [4000] and all(v >= 0 for v in speeds)
    assert speeds[0] < 0.5 * max(speeds) and max(speeds) <= 100_000 * 1.05  # a ramp up to DV
    assert speeds[-1] < max(speeds)                                           # and down
    dev.Motion_startSingleAxisMove(0, 0)        # relative again
    assert done(dev, 0) and dev.Motion_getLogicalPosi(0, 0) == 8000


def test_continuous_move_reverses_then_stops(axis):
    dev, s = axis
    dev.Motion_cfgAxisMove(0, 2, 2, 0, 50_000)
    dev.Motion_startSingleAxisMove(0, 2)
    assert wait_until(lambda: dev.Motion_getLogicalPosi(0, 2) > 100)
    assert dev.Motion_getMoveStatus(0, 2) == 0 and dev._Motion_getCurrentDriveSpeed(0, 2) > 0
    dev.Motion_overrideAxisVelocity(0, 2, -50_000)   # slows down, then SYNC1 drives back
    assert wait_until(lambda: dev.Motion_getLogicalPosi(0, 2) < -100)
    dev.Motion_stop(0, 2, 0)                          # decelerating, and no second reversal
    assert done(dev, 2) and dev._Motion_getCurrentDriveSpeed(0, 2) == 0
    stopped = dev.Motion_getLogicalPosi(0, 2)
    assert stopped < -100 and dev.Motion_getLogicalPosi(0, 2) == stopped


def test_limit_input_stops_a_move(axis):
    dev, s = axis
    dev.Motion_cfgLimit(0, 0, 1, 1, 1)          # both enabled, active high
    s.state_set("mcx514.limit_fwd_at.0", 3000)
    dev.Motion_cfgAxisMove(0, 0, 0, 10_000, 200_000, 10_000_000, 10_000_000)
    dev.Motion_startSingleAxisMove(0, 0)
    assert done(dev, 0)
    assert dev.Motion_getLogicalPosi(0, 0) == 3000          # instant stop at the switch
    assert dev.Motion_getLimitStatus(0, 0) == [1, 0]
    assert dev._Motion_writeRR2(0, 0) == 0b0100             # forward limit error
    dev.Motion_startSingleAxisMove(0, 0)                    # toward it again: no move
    assert dev.Motion_getMoveStatus(0, 0) == 1 and dev.Motion_getLogicalPosi(0, 0) == 3000
    s.state_set("mcx514.limit_rev.0", 1)                    # a held input refuses the way back
    dev.Motion_cfgAxisMove(0, 0, 0, -500)
    dev.Motion_startSingleAxisMove(0, 0)
    assert done(dev, 0) and dev.Motion_getLogicalPosi(0, 0) == 3000
    assert dev.Motion_getLimitStatus(0, 0) == [1, 1]


def test_home_search_ends_at_the_home_input(axis):
    dev, s = axis
    s.state_set("mcx514.home_at.1", 5000)       # the switch spans 4900..5100
    # home search forward, back off and approach again slowly, reset, offset 100
    assert dev.Motion_cfgFindRef(0, 1, 0, 0, 200_000, 20_000_000, 50, 1, 100) == 0
    assert dev.Motion_findRef(0, 1) == 0
    assert wait_until(lambda: dev.Motion_checkRef(0, 1) == 1)
    # found at 4900, counters cleared there, then the offset away from the switch
    assert dev.Motion_getLogicalPosi(0, 1) == -100 and dev.Motion_getEncoderPosi(0, 1) == -100


def test_capture_keeps_the_position_of_the_input_edge(axis):
    dev, s = axis
    s.state_set("mcx514.sync_at.3", 2500)
    dev.Motion_cfgCapture(0, 3, 0, 0)           # rising edge, logical position
    dev.Motion_enableCapture(0, 3, 1)
    dev.Motion_cfgAxisMove(0, 3, 0, 6000, 300_000, 10_000_000, 10_000_000)
    dev.Motion_startSingleAxisMove(0, 3)
    assert done(dev, 3)
    assert dev.Motion_readCapturePoint(0, 3) == 2500


def off_line(p, end):
    return abs(p[0] * end[1] - p[1] * end[0]) / math.hypot(*end)


@pytest.mark.parametrize("move", ["line", "arc"])
def test_interpolated_path_stays_within_one_pulse(axis, move):
    dev, s = axis
    dev.Motion_rstEncoderPosi(0, 1, 1000)
    dev.Motion_rstEncoderPosi(0, 3, -2000)
    s.state_set("mcx514.path", [])
    if move == "line":
        dev.Motion_cfg2AxisLinearInterpo(0, 3, 3000, 1, -4000, 100_000, 2_000_000, 2_000_000)
        dev.Motion_startLinearInterpo(0)
        end = (-4000, 3000)                     # axis 1, axis 3
        miss = lambda p: off_line(p, end)       # noqa: E731
    else:
        # x is axis 3, y axis 1: centre (-1500, 0) from the start, half a turn clockwise
        dev.Motion_cfgCircularInterpo(0, 3, 1, -1500, 0, -3000, 0, 0, 100_000)
        dev.Motion_startCircularInterpo(0)
        end = (0, -3000)
        miss = lambda p: abs(math.hypot(p[1] + 1500, p[0]) - 1500)   # noqa: E731
    assert done(dev, 1, 3)
    rel = [(p[0] - 1000, p[1] + 2000) for _, p in path_of(s, 1, 3)]
    assert rel[0] == (0, 0) and rel[-1] == end and len(rel) > 10
    assert max(miss(p) for p in rel) <= 1
    if move == "arc":                           # clockwise from the right: y goes down
        assert min(p[0] for p in rel) < -1400


def test_helix_calculates_then_turns_and_climbs(axis):
    dev, s = axis
    # two whole turns of radius 1000, axis 2 climbs 300 a turn
    assert dev.Motion_cfgHelicalInterpo(0, 1000, 0, 0, 0, 1, 300, 0, 0, 2, 200_000, 1, 1000) == 0
    assert dev.helical_interpo.calculation_result == round(2 * 2 * math.pi * 1000)
    assert dev.Motion_startHelicalInterpo(0) == 0
    assert done(dev, 0, 1, 2)
    assert [dev.Motion_getLogicalPosi(0, a) for a in (0, 1, 2)] == [0, 0, 600]


def test_motion_path_example_writes_its_csv(tmp_path):
    example = pathlib.Path(__file__).resolve().parents[2] / "examples" / "motion_path.py"
    written = runpy.run_path(str(example))["main"](str(tmp_path))
    assert written[0] == str(tmp_path / "motion_path.csv")
    with open(written[0]) as f:
        rows = list(csv.reader(f))
    assert rows[0] == ["t", "port", "axis0", "axis1", "axis2", "axis3"]
    points = {(int(r[2]), int(r[3])) for r in rows[1:]}
    assert (0, 0) in points and (4000, 3000) in points                  # the line's ends
    assert any(x < 100 and y > 2900 for x, y in points)                 # the circle's far side
    assert all(p.parent == tmp_path for p in map(pathlib.Path, written))


# ---- the ini file --------------------------------------------------------------------

def test_saved_file_is_what_configparser_writes(axis, tmp_path):
    dev, s = axis
    path = tmp_path / "axes.ini"
    path.write_text("")
    with pytest.raises(AttributeError):
        dev.Motion_saveCfgFile()
    with pytest.raises(AttributeError):
        dev.iniconfig
    assert dev.Motion_openCfgFile(str(path)) == 0
    assert dev.iniconfig.sections() == []
    dev.Motion_cfgAxis(0, 2, 1, 1, 0, 0)
    dev._Motion_writeHomeSpeed(0, 2, 37.5, 100)
    assert dev.Motion_saveCfgFile() == 0
    expected = configparser.ConfigParser()
    for i in range(4):
        section = f"Axis_{i + 1}"
        expected[section] = {}
        for label, value in getattr(dev, f"axis_{i + 1}").motion_dict.items():
            word = dev.motion_ini._Motion_INI_convertIntToString(label, value)
            expected[section][label] = str(word)
    ours = path.read_text()
    other = tmp_path / "configparser.ini"
    with open(other, "w") as f:
        expected.write(f)
    assert ours == other.read_text()
    assert "stepper output = CW/CCW(Two Pulse)" in ours and "approach velocity percent = 37.5" in ours
    assert dev.iniconfig.get("Axis_3", "Stepper Output") == "CW/CCW(Two Pulse)"


def test_file_saved_edited_and_loaded_reaches_port_zero(axis, tmp_path):
    dev, s = axis
    path = tmp_path / "axes.ini"
    path.write_text("")
    dev.Motion_openCfgFile(str(path))
    dev.Motion_saveCfgFile()
    text = path.read_text().replace("home enable = FALSE", 'home enable = "TRUE"', 1)
    text = text.replace("offset position = 2000", "offset position = -15", 1)
    path.write_text(text)
    s.clear_packets()
    assert dev.Motion_loadCfgFile() == 0
    assert dev.axis_1.motion_dict["Home Enable"] == 1 and dev.axis_2.motion_dict["Home Enable"] == 0
    assert dev.axis_1.motion_dict["Offset Position"] == -15
    assert dev.axis_1.motion_dict["Approach Velocity Percent"] == 20.0
    packets = motion(s)
    assert len(packets) == 4 * 20 and all(p[0] == 0 for p in packets)
    assert [0, 0xE2, 1, 0, 0, 0, 0x18] in packets      # Z bit, then home enable of axis 0


def test_file_names_are_checked_in_order(axis, tmp_path):
    dev, s = axis
    (tmp_path / "axes.txt").write_text("")
    refuses(s, pyorv.IniFileNotFoundError, lambda: dev.Motion_openCfgFile(str(tmp_path / "no.txt")))
    refuses(s, pyorv.IniFileExtensionNameError,
            lambda: dev.Motion_openCfgFile(str(tmp_path / "axes.txt")))
    (tmp_path / "a.ini").write_text("")
    assert asyncio.run(dev.Motion_openCfgFile_async(str(tmp_path / "a.ini"))) == 0
    assert (dev.inifile, dev.inimode) == (str(tmp_path / "a.ini"), "w")


@pytest.mark.parametrize("label, value, word", [
    ("Stepper Output", 1, "CW/CCW(Two Pulse)"),
    ("Initial Search Direction", 0, "Forward"),
    ("Alarm Polarity", 1, "Active High"),
    ("Home Enable", 0, "FALSE"),
])
def test_ini_words_both_ways(axis, label, value, word):
    ini = axis[0].motion_ini
    assert ini._Motion_INI_convertIntToString(label, value) == word
    assert ini._Motion_INI_convertStringToInt(label, word) == value
    with pytest.raises(KeyError):
        ini._Motion_INI_convertStringToInt(label, "Sideways")
    assert ini._Motion_INI_convertStringToInt("Approach Velocity Percent", "12.5") == 12.5
    assert ini._Motion_INI_convertStringToInt("Offset Position", "-7") == -7


def test_awaitable_helix_waits_on_the_loop_like_the_blocking_one(pair):
    results = []
    for twin in ("blocking", "awaitable"):
        dev, s = pair("MerlinAxis")
        s.state_set("mcx514.helical_busy", 3)
        s.state_set("mcx514.helical_value", 99)
        args = (0, 1, 2, 3, 4, 0, 0, 1, 7, 1, 200, 1, 1000)
        if twin == "blocking":
            assert dev.Motion_cfgHelicalInterpo(*args) == 0
        else:
            assert asyncio.run(dev.Motion_cfgHelicalInterpo_async(*args)) == 0
        assert dev.helical_interpo.calculation_result == 99
        results.append(motion(s))
    assert results[0] == results[1] and [p[1] for p in results[0]].count(0xE8) == 4


def test_a_silent_chip_ends_a_composite_at_its_first_step(axis):
    dev, s = axis
    s.set_handler(MOTION, lambda ctx, req: None)
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.Motion_cfgAxisMove(0, 0, 0, 10, timeout=0.3)
    assert {p[1] for p in motion(s)} == {0x06}   # the target step only, however often tried
    assert dev.axis_1.target_position == 10
