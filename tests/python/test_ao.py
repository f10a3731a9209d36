"""Analog outputs against simulated devices: payloads on USB and Ethernet
models, Trellis doing nothing but its writes, the two twin-name exceptions,
the checks and their kept oddities, the simulated output state, and an
output wired back to an analog input."""

import asyncio
import math
import struct

import pytest

import pyorv
from conftest import refuses, wait_until, wire

OPEN_AO, WRITE_AO_BY_CHANNEL, INIT_AO_BUFFER, GET_AO_COUNTERS = 192, 197, 202, 204
WRITE_AO_SYNCHRONIZED, GET_AO_VALUES, CLOSE_AO = 205, 206, 207
OPEN_AO_STREAMING, START_AO_STREAMING, STOP_AO_STREAMING, CLOSE_AO_STREAMING = 8264, 8265, 8266, 8267
SET_AO_SPAN, SET_AO_MODE, SET_AO_SAMPLING_RATE, SET_AO_NUM_SAMPLES = 8272, 8273, 8274, 8275
SET_AO_ENABLED_CHANNELS, SET_AO_FORM, SET_AO_FORM_PARAM, SET_AO_PUSH_TO_BUFFER = 8276, 8277, 8278, 8280
GET_AO_MODE, GET_AO_STATE, GET_AO_ENABLED_CHANNELS = 8290, 8291, 8292
GET_PIN_MODE_OF_SLOT = 127


def f32(*vals):
    return b"".join(struct.pack(">f", v) for v in vals)


@pytest.mark.parametrize("model", ["PloverAio", "KestrelAout"])
def test_operations_send_their_payloads_and_run_the_output(pair, model):
    dev, s = pair(model)
    assert dev.AO_getPort() == [0]
    assert dev.AO_open(0) == 0
    s.clear_packets()
    assert dev.AO_setMode(0, 1) == 0
    assert dev.AO_setSamplingRate(0, 1000) == 0
    assert dev.AO_setNumSamples(0, 0x10203) == 0
    assert dev._AO_setSpan(0, 0) == 0
    assert dev.AO_setEnableChannels(0, [0, 2]) == 0
    assert dev.AO_setForm(0, 2, 3) == 0
    assert dev.AO_setFormParam(0, 2, 1.5, 0.25, 10) == 0
    assert dev.AO_openStreaming(0) == [1, 1000.0]
    assert dev.AO_getState(0) == 1
    assert dev.AO_startStreaming(0) == 0
    assert dev.AO_getState(0) == 2
    assert dev.AO_getMode(0) == 1
    assert asyncio.run(dev.AO_getEnableChannels(0)) == 0b101
    assert dev._AO_stopStreaming(0) == 0
    assert dev.AO_closeStreaming(0) == 0
    assert dev._AO_pushToBuffer(0, 2, [1, 2]) == 0
    assert dev._AO_initialBuffer(0) == [2, 0b101]
    assert dev._AO_getCounters(0) == [0, 1]
    assert wire(s) == [
        (SET_AO_MODE, bytes([0, 1])),
        (SET_AO_SAMPLING_RATE, b"\x00" + f32(1000)),
        (SET_AO_NUM_SAMPLES, bytes([0, 0, 1, 2, 3])),
        (SET_AO_SPAN, bytes([0, 0])),
        (SET_AO_ENABLED_CHANNELS, bytes([0, 0, 0b101])),
        (SET_AO_FORM, bytes([0, 0, 2, 3])),
        (SET_AO_FORM_PARAM, bytes([0, 0, 2]) + f32(1.5, 0.25, 10, 0, 0.5)),
        (OPEN_AO_STREAMING, b"\x00"),
        (GET_AO_STATE, b"\x00"),
        (START_AO_STREAMING, b"\x00"),
        (GET_AO_STATE, b"\x00"),
        (GET_AO_MODE, b"\x00"),
        (GET_AO_ENABLED_CHANNELS, bytes([0, 0])),
        (STOP_AO_STREAMING, b"\x00"),
        (CLOSE_AO_STREAMING, b"\x00"),
        (SET_AO_PUSH_TO_BUFFER, bytes([0, 0, 2]) + f32(1, 2)),
        (INIT_AO_BUFFER, b"\x00"),
        (GET_AO_COUNTERS, b"\x00"),
    ]


def test_open_reads_the_pin_modes_and_kestrel_sends_nothing(pair):
    dev, s = pair("PloverAio")
    assert dev.AO_open(0) == 0 and dev.AO_close(0) == 0
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x01"), (OPEN_AO, b"\x00"), (CLOSE_AO, b"\x00")]
    k, ks = pair("KestrelAout")
    assert k.AO_open(0) == 0 and k.AO_close(0) == 0 and wire(ks) == []


def test_writes_and_their_ranges(pair):
    dev, s = pair("PloverAio")
    assert dev.AO_writeOneChannel(0, 3, 2.5) == 0
    assert dev.AO_writeAllChannels(0, [1, 2, 3]) == 0
    assert wire(s) == [(WRITE_AO_BY_CHANNEL, bytes([0, 3]) + f32(2.5)),
                       (WRITE_AO_SYNCHRONIZED, b"\x00" + f32(1, 2, 3, 0, 0, 0, 0, 0))]
    assert dev.AO_getValues(0) == [1.0, 2.0, 3.0, 0, 0, 0, 0, 0]
    s.clear_packets()
    # Bounds 0..5 V on this model, though the device has negative spans.
    refuses(s, pyorv.InputDataNotInRangeError, lambda: dev.AO_writeOneChannel(0, 0, -1),
            lambda: dev.AO_writeAllChannels(0, [0] * 8 + [6]))
    k, ks = pair("KestrelAout")
    # Nine values: the range covers all nine, the first eight go out.
    assert k.AO_writeAllChannels(0, list(range(-4, 5))) == 0
    assert wire(ks) == [(WRITE_AO_SYNCHRONIZED, b"\x00" + f32(*range(-4, 4)))]


def test_checks_and_their_oddities(pair):
    dev, s = pair("PloverAio")
    refuses(s, pyorv.AOFormNotAvaliableError, lambda: dev.AO_setForm(0, 0, 0))
    refuses(s, pyorv.AOPortNotAvaliableError, lambda: dev.AO_setMode(1, 0),
            lambda: dev.AO_writeOneChannel(1, 0, 1))
    refuses(s, pyorv.AOChannelNotAvaliableError, lambda: dev.AO_setEnableChannels(0, [8]),
            lambda: dev.AO_setForm(0, 8, 1))
    refuses(s, pyorv.AOModeNotVaildError, lambda: dev.AO_setMode(0, 3))
    refuses(s, pyorv.AOSpanNotVaildError, lambda: dev._AO_setSpan(0, 5))
    refuses(s, pyorv.AORateNotVaildError, lambda: dev.AO_setSamplingRate(0, 16000.5))
    refuses(s, pyorv.InputTypeNotCorrectError, lambda: dev.AO_setEnableChannels(0, (1,)),
            lambda: dev.AO_setFormParam(0, 0, "1", 0, 1), lambda: dev.AO_setNumSamples(0, 1.0))
    assert dev.AO_setSamplingRate(0, 16000) == 0
    # More than 13 values go out all the same, the count as given.
    assert dev._AO_pushToBuffer(0, 20, [0.5]) == 0
    assert wire(s)[-1] == (SET_AO_PUSH_TO_BUFFER, bytes([0, 0, 20]) + f32(0.5))
    assert dev._checkAONumOfValues(13) is True and dev._checkAONumOfValues(14) is False


def test_twin_names_keep_their_two_exceptions(pair):
    dev, _ = pair("PloverAio")
    assert not hasattr(dev, "AO_getState_async")
    assert not hasattr(dev, "AO_getEnableChannels_async")
    assert asyncio.iscoroutine(c := dev.AO_getEnableChannels(0)) and asyncio.run(c) == 0xFF
    assert asyncio.run(dev.AO_setMode_async(0, 2)) == 0
    assert dev.AO_getMode(0) == 2


def test_trellis_writes_by_slot_and_does_nothing_else(trellis):
    dev, s = trellis
    for call in (lambda: dev.AO_setMode(1, 2), lambda: dev.AO_openStreaming(1),
                 lambda: dev.AO_startStreaming(1), lambda: dev.AO_getState(1),
                 lambda: dev.AO_getValues(9), lambda: dev._AO_initialBuffer(1)):
        assert call() is None
    assert asyncio.run(dev.AO_getEnableChannels(1)) is None
    assert dev.AO_open(1) == 0 and wire(s) == []
    assert dev.AO_writeOneChannel(2, 0, -10) == 0
    assert dev._AO_pushToBuffer(4, 1, [1]) == 0
    assert wire(s) == [(WRITE_AO_BY_CHANNEL, bytes([1, 0]) + f32(-10)),
                       (SET_AO_PUSH_TO_BUFFER, bytes([3, 0, 1]) + f32(1))]


def test_n_samples_output_ends_in_stand_by(pair):
    dev, s = pair("KestrelAout")
    dev.AO_setMode(0, 1)
    dev.AO_setSamplingRate(0, 1000)
    dev.AO_setNumSamples(0, 50)
    dev.AO_openStreaming(0)
    dev.AO_startStreaming(0)
    assert wait_until(lambda: dev.AO_getState(0) == 1)


def test_an_output_read_back_by_an_input(pair):
    dev, s = pair("PloverAio")
    s.state_set("ai.wave", [["ao", c] for c in range(8)])
    dev.AO_writeAllChannels(0, [0, 0.5, 1.25, 2, 3.3, 4, 4.75, 5])
    ratio = dev.ai_ratio
    assert dev.AI_readOnDemand(0) == [round(round(v / ratio) * ratio, 4)
                                      for v in (0, 0.5, 1.25, 2, 3.3, 4, 4.75, 5)]
    # A running sine on AO channel 1 (5 Hz, 2 V about 2.5 V), streamed back on
    # AI channel 0 at 1 kHz: two whole periods of that sine, of some phase.
    s.state_set("ai.wave", [["ao", 1, 0]])
    dev.AO_setMode(0, 2)
    dev.AO_setEnableChannels(0, [1])
    dev.AO_setForm(0, 1, 3)
    dev.AO_setFormParam(0, 1, 2, 2.5, 5)
    dev.AO_openStreaming(0)
    dev.AO_startStreaming(0)
    dev.AI_enableChannel(0, 1)
    dev.AI_setSamplingRate(0, 1000)
    dev.AI_setMode(0, 1)
    dev.AI_setNumSamples(0, 400)
    dev.AI_open(0)
    dev.AI_start(0)
    got = []
    while len(got) < 400:
        part = dev.AI_readStreaming(0, 400 - len(got), 3.0)
        assert part, "the stream stopped early"
        got += [v for (v,) in part]
    w = [2 * math.pi * 5 * k / 1000 for k in range(400)]
    cos_phi = sum((v - 2.5) * math.sin(x) for v, x in zip(got, w)) / 400
    sin_phi = sum((v - 2.5) * math.cos(x) for v, x in zip(got, w)) / 400
    assert math.hypot(cos_phi, sin_phi) == pytest.approx(1, abs=0.01)  # amplitude 2: 2 * 2 / 4
    phi = math.atan2(sin_phi, cos_phi)
    assert max(abs(v - 2.5 - 2 * math.sin(x + phi)) for v, x in zip(got, w)) < 2 * ratio
    # Stopped: the channel holds its on-demand value again.
    dev._AO_stopStreaming(0)
    assert dev.AI_readOnDemand(0) == [round(round(0.5 / ratio) * ratio, 4)]
