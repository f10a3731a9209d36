"""The attitude sensor of HeronAinImu against a simulated device."""

import asyncio
import math
import struct

import pytest

import pyorv
from conftest import refuses, wire

AHRS_OPEN, AHRS_START, AHRS_STOP, AHRS_CLOSE = 9216, 9217, 9218, 9219
AHRS_RESET, AHRS_SET_GNRL, AHRS_VQF_SET_TAU, AHRS_GET_ESTIMATES = 9232, 9233, 9234, 9250


def f32(*xs):
    return b"".join(struct.pack(">f", x) for x in xs)


def as_f32(x):
    return struct.unpack(">f", struct.pack(">f", x))[0]


@pytest.fixture
def imu(pair):
    dev, s = pair("HeronAinImu")
    assert dev.AHRS_open(0) == 0
    return dev, s


def test_port_commands_on_the_wire(imu):
    dev, s = imu
    assert dev.AHRS_start(0) == 0
    assert dev.AHRS_reset(0) == 0
    assert dev.AHRS_stop(0) == 0
    assert dev.AHRS_close(0) == 0
    assert wire(s) == [(AHRS_OPEN, b"\0"), (AHRS_START, bytes([0, 17])), (AHRS_RESET, b"\0"),
                       (AHRS_STOP, b"\0"), (AHRS_CLOSE, b"\0")]
    assert s.state_get("ahrs.state") == "closed"
    # The unit is closed: the simulated firmware answers an error status.
    assert dev.AHRS_reset(0) == pyorv.FirmwareCoreError().code


def test_sampling_period_sends_fixed_gravity_and_z_offset(imu):
    dev, s = imu
    assert dev.AHRS_setSamplingPeriod(0, 0.01) == 0
    assert wire(s)[-1] == (AHRS_SET_GNRL, b"\0" + f32(9.81, 0.01, 0.001))
    assert dev._AHRS_setGeneral(0, 9.8, 1, 0) == 0
    assert wire(s)[-1] == (AHRS_SET_GNRL, b"\0" + f32(9.8, 1, 0))
    assert dev._AHRS_VQF_setTau(0, 3, 9.5) == 0
    assert wire(s)[-1] == (AHRS_VQF_SET_TAU, b"\0" + f32(3, 9.5))
    assert s.state_get("ahrs.tau") == [3.0, 9.5]


@pytest.mark.parametrize("mode, mask", [(0, 1), (1, 16), (2, 17)])
def test_estimates_degrees_first_then_raw_acceleration(imu, mode, mask):
    dev, s = imu
    s.state_set("ahrs.attitude", [10.0, -45.5, 179.0])
    s.state_set("ahrs.acceleration", [0.123456, -9.80665, 1.5])
    got = dev.AHRS_getEstimate(0, mode)
    assert wire(s)[-1] == (AHRS_GET_ESTIMATES, bytes([0, mask]))
    angles = [round(as_f32(math.radians(d)) * 180 / math.pi, 4) for d in (10.0, -45.5, 179.0)]
    accel = [round(as_f32(a), 4) for a in (0.123456, -9.80665, 1.5)]
    assert got == {0: angles, 1: accel, 2: angles + accel}[mode]
    assert angles == [10.0, -45.5, 179.0] and accel == [0.1235, -9.8067, 1.5]


def test_short_estimate_raises_index_error(imu):
    dev, s = imu
    s.set_handler(AHRS_GET_ESTIMATES, lambda ctx, req: ctx.reply(bytes([0, 0]) + f32(1, 2)))
    with pytest.raises(IndexError):
        dev.AHRS_getEstimate(0, 1)


@pytest.mark.parametrize("call, error", [
    (lambda d: d.AHRS_open(1), pyorv.AHRSPortNotAvaliableError),
    (lambda d: d.AHRS_start(0.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.AHRS_getEstimate(0, 3), pyorv.AHRSPortNotAvaliableError),  # a mode, as a port
    (lambda d: d.AHRS_getEstimate(0, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.AHRS_setSamplingPeriod(0, "1"), pyorv.InputTypeNotCorrectError),
    (lambda d: d._AHRS_VQF_setTau(0, 1, None), pyorv.InputTypeNotCorrectError),
])
def test_argument_errors_send_nothing(pair, call, error):
    dev, s = pair("HeronAinImu")
    refuses(s, error, lambda: call(dev))


def test_awaitable_twins_and_the_shared_tau_name(imu):
    dev, s = imu
    s.state_set("ahrs.acceleration", [1.0, 2.0, 3.0])

    async def main():
        return await dev.AHRS_getEstimate_async(0, 1), await dev.AHRS_stop_async(0)

    assert asyncio.run(main()) == ([1.0, 2.0, 3.0], 0)
    assert not hasattr(dev, "_AHRS_VQF_setTau_async")
    assert dev._AHRS_VQF_setTau(0, 1, 2) == 0  # the blocking one is found


def test_a_silent_device_ends_the_estimate_by_its_timeout(imu):
    dev, s = imu
    s.set_handler(AHRS_GET_ESTIMATES, lambda ctx, req: None)
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.AHRS_getEstimate(0, 2, timeout=0.3)
