"""PWM outputs and pulse counters against simulated devices: the channel checks
and their crossed errors, F32 packing on the wire, firmware statuses, the
counter reply, and a counter that counts a running PWM channel."""

import asyncio
import struct
import time

import pytest

import pyorv
from conftest import last, refuses

OPEN_PWM, START_PWM, STOP_PWM, CLOSE_PWM, SET_PWM_FREQUENCY, SET_PWM_DUTY_CYCLE = range(80, 86)
PULSE_OPEN, PULSE_START, PULSE_READ, PULSE_STOP, PULSE_CLOSE = range(4128, 4133)


@pytest.fixture
def plover(pair):
    """PloverDio over the virtual USB backend: two PWM channels, two counters."""
    return pair("PloverDio")


@pytest.fixture
def kestrel(pair):
    """KestrelDio over Ethernet: PWM without counters."""
    return pair("KestrelDio")


# The checks are crossed: a bad PWM channel is the counter error and the reverse.
@pytest.mark.parametrize("call, error", [
    *[(call, pyorv.CounterChannelNotAvaliableError) for call in (
        lambda d: d.PWM_open(2), lambda d: d.PWM_start(-1), lambda d: d.PWM_stop("0"),
        lambda d: d.PWM_close(None), lambda d: d.PWM_setFrequency(2, 1000),
        lambda d: d.PWM_setDutyCycle(1.5, 50))],
    *[(call, pyorv.PWMChannelNotAvaliableError) for call in (
        lambda d: d.Counter_open(2), lambda d: d.Counter_start(-1), lambda d: d.Counter_read(3),
        lambda d: d.Counter_stop("1"), lambda d: d.Counter_close(0.5))],
])
def test_bad_channel_reports_the_other_error(plover, call, error):
    dev, s = plover
    refuses(s, error, lambda: call(dev))


@pytest.mark.parametrize("op, cmd, value, payload", [
    ("PWM_setFrequency", SET_PWM_FREQUENCY, 1000, bytes([0, 0x44, 0x7A, 0, 0])),
    ("PWM_setDutyCycle", SET_PWM_DUTY_CYCLE, 50, bytes([0, 0x42, 0x48, 0, 0])),
    ("PWM_setDutyCycle", SET_PWM_DUTY_CYCLE, 0.1, bytes([0]) + struct.pack(">f", 0.1)),
    ("PWM_setDutyCycle", SET_PWM_DUTY_CYCLE, -5, bytes([0]) + struct.pack(">f", -5)),  # no range
])
def test_f32_values_on_the_wire(kestrel, op, cmd, value, payload):
    dev, s = kestrel
    assert getattr(dev, op)(0, value) == 0
    assert last(s) == (cmd, payload)


def test_packing_refusals_and_channel_true(kestrel):
    dev, s = kestrel
    # A non-number fails in packing; 1.0 passes the channel check by value but
    # does not become a payload byte.
    refuses(s, TypeError, lambda: dev.PWM_setFrequency(0, "1000"),
            lambda: dev.PWM_setDutyCycle(1, [50]), lambda: dev.PWM_open(1.0))
    assert dev.PWM_open(True) == 0
    assert last(s) == (OPEN_PWM, bytes([1]))


def test_status_replies_and_firmware_codes(kestrel):
    dev, s = kestrel
    assert dev.PWM_start(0) == -7009  # not open: the simulated firmware refuses
    assert dev.PWM_open(0) == 0 and dev.PWM_start(0) == 0
    assert dev.PWM_setFrequency(0, 0) == -7009
    assert dev.PWM_stop(0) == 0 and dev.PWM_close(0) == 0
    assert [p.cmd for p in s.packets()] == [START_PWM, OPEN_PWM, START_PWM, SET_PWM_FREQUENCY,
                                            STOP_PWM, CLOSE_PWM]
    assert all(bytes(p.data) == b"\x00" for p in s.packets()[:3])


# Bytes 0 to 4 are not looked at; a reply of another length fails in the conversion.
@pytest.mark.parametrize("reply, result", [
    (bytes([0, 0, 0, 0, 0, 0x01, 0x02]), 258), (bytes([9, 9, 9, 9, 9, 0xFF, 0xFF]), 65535),
    (bytes([0, 0, 0, 0, 0, 1]), ValueError), (bytes([0] * 8), ValueError),
    (bytes([0, 11]), ValueError),
])
def test_counter_read_decodes_from_byte_5(plover, reply, result):
    dev, s = plover
    s.set_handler(PULSE_READ, lambda ctx, req: ctx.reply(reply))
    if result is ValueError:
        with pytest.raises(ValueError):
            dev.Counter_read(1)
    else:
        assert dev.Counter_read(1) == result
    assert last(s) == (PULSE_READ, bytes([1]))


def test_counter_counts_a_running_pwm_channel(plover):
    dev, s = plover
    assert dev.PWM_open(0) == 0 and dev.PWM_setFrequency(0, 1000) == 0
    assert dev.Counter_open(0) == 0 and dev.Counter_start(0) == 0
    assert dev.Counter_read(0) == 0  # the PWM channel is not running yet
    t0 = time.monotonic()
    assert dev.PWM_start(0) == 0
    time.sleep(0.05)
    assert dev.PWM_stop(0) == 0
    elapsed = time.monotonic() - t0
    count = dev.Counter_read(0)
    assert 0 < count <= 1000 * elapsed + 1
    time.sleep(0.02)
    assert dev.Counter_read(0) == count  # a stopped PWM channel gives no pulses
    assert dev.Counter_read(1) == 0       # counter 1 counts PWM channel 1
    assert dev.Counter_stop(0) == 0 and dev.Counter_close(0) == 0


def test_awaitable_twins(plover):
    dev, s = plover
    s.set_handler(PULSE_READ, lambda ctx, req: ctx.reply(bytes([0, 0, 0, 0, 0, 0x12, 0x34])))

    async def run():
        with pytest.raises(pyorv.CounterChannelNotAvaliableError):
            await dev.PWM_open_async(5)
        assert await dev.PWM_open_async(1) == 0
        assert await dev.PWM_setFrequency_async(1, 1000) == 0
        return await dev.Counter_read_async(0)

    assert asyncio.run(run()) == 0x1234
    assert [(p.cmd, bytes(p.data)) for p in s.packets()] == [
        (OPEN_PWM, b"\x01"), (SET_PWM_FREQUENCY, bytes([1, 0x44, 0x7A, 0, 0])),
        (PULSE_READ, b"\x00")]
