"""Analog inputs against simulated devices: the bytes each operation sends on
USB, Ethernet and Wi-Fi models, the gate of the decoder and its kept quirks,
streams checked sample by sample against the simulated waveform, the exact
rounding of every count, overflow, malformed records, and close during a
read."""

import asyncio
import random
import struct
import threading
import time
from functools import partial

import pytest

import pyorv
import pyorv.sim as sim
from conftest import refuses, wait_until, wire

OPEN_AI, SET_AI_SAMPLING_RATE, SET_AI_MODE, SET_AI_NUM_SAMPLES = 176, 177, 178, 179
SET_AI_ENABLED_CS, READ_AI_ON_DEMAND, OPEN_AI_STREAMING, START_AI_STREAMING = 180, 181, 182, 183
CLOSE_AI_STREAMING, CLEAR_DATA, CHECK_BUFFER_STATUS, GET_AI_COUNTERS = 184, 186, 187, 188
READ_AI_ON_DEMAND_VARIABLE, START_AI_STREAMING_VARIABLE, CLOSE_AI, READAI24BIT = 189, 190, 191, 8196
R5, R10 = 5 / 32768, 10 / 32768


def ramp_values(start, n, channels, ratio, step=1):
    """The samples the default ramp waveform gives: channel c counts from
    1000*c + start, one count per sample."""
    def volts(count):
        count = (count + 32768) % 65536 - 32768
        return round(count * ratio, 4)
    return [[volts(1000 * c + step * k) for c in range(channels)] for k in range(start, start + n)]


def streaming(pair, model):
    """pair(model), once a Wi-Fi device has taken the data link its records go on."""
    dev, s = pair(model)
    if s.link == sim.Link.Wifi:
        assert s.wait_for_host(sim.Channel.Data, 5.0)
    return dev, s


# ---- wire bytes ----------------------------------------------------------------------

@pytest.mark.parametrize("model, echo, strm, opened", [
    ("PloverAin", READ_AI_ON_DEMAND_VARIABLE, START_AI_STREAMING_VARIABLE, True),    # USB
    ("KestrelAin", READ_AI_ON_DEMAND, START_AI_STREAMING, False),                    # Ethernet
    ("HeronAinImu", READ_AI_ON_DEMAND_VARIABLE, START_AI_STREAMING_VARIABLE, True),  # Wi-Fi
])
def test_operations_send_their_payloads(pair, model, echo, strm, opened):
    dev, s = pair(model)
    assert dev.AI_open(0) == 0
    assert dev.AI_setMode(0, 2) == 0
    assert dev.AI_setNumSamples(0, 0x01020304) == 0
    assert dev.AI_setSamplingRate(0, 1000) == 0
    assert dev.AI_start(0) == 0
    assert dev.AI_stop(0) == 0
    assert dev._AI_clearBufferStatus(0) == 0
    assert len(dev._AI_readBufferStatus(0)) == 4
    assert len(dev._AI_getCounter(0)) == 9
    sample = dev.AI_readOnDemand(0)
    assert dev.AI_close(0) == 0
    expect = ([(OPEN_AI, b"\x00")] if opened else []) + [
        (SET_AI_MODE, bytes([0, 2])),
        (SET_AI_NUM_SAMPLES, bytes([0, 1, 2, 3, 4])),
        (SET_AI_SAMPLING_RATE, b"\x00" + struct.pack(">f", 1000)),
        (OPEN_AI_STREAMING, b"\x00"),
        (strm, b"\x00"),
        (CLOSE_AI_STREAMING, b"\x00"),
        (CLEAR_DATA, b"\x00"),
        (CHECK_BUFFER_STATUS, b"\x00"),
        (GET_AI_COUNTERS, b"\x00"),
        (echo, b"\x00\x00" if echo == READ_AI_ON_DEMAND else b"\x00"),
    ] + ([(CLOSE_AI, b"\x00")] if opened else [])
    assert wire(s) == expect
    # The first on-demand read of the default waveform: channel c holds count 1000*c.
    assert sample == ramp_values(0, 1, 8, dev.ai_ratio)[0]


def test_heron_ain_starts_without_open_streaming_and_enables_no_channels(pair):
    dev, s = pair("HeronAin")
    assert dev.AI_start(0) == 0
    assert s.wait_for_packets(1, 5.0)  # sent without a reply to wait for
    assert wire(s) == [(START_AI_STREAMING_VARIABLE, b"\x00")]
    s.clear_packets()
    refuses(s, pyorv.APINotSupportError, lambda: dev.AI_enableChannel(0, 2),
            lambda: dev.AI_enableCS(1, [0]))


def test_trellis_converts_slots_and_reads_per_chip_select(trellis):
    dev, s = trellis
    assert dev.AI_getPort() == [0, 1, 3]
    assert dev.AI_enableCS(2, [0, 2]) == 0
    assert dev.chip_select_p1 == [0, 2]
    assert dev.AI_setMode(2, 1) == 0
    sample = dev.AI_readOnDemand(2)
    assert wire(s) == [(SET_AI_ENABLED_CS, bytes([1, 0b101])), (SET_AI_MODE, bytes([1, 1])),
                       (READ_AI_ON_DEMAND, bytes([1, 0])), (READ_AI_ON_DEMAND, bytes([1, 2]))]
    assert len(sample) == 16
    s.clear_packets()
    # AI_open and AI_close keep the internal port and send nothing here.
    assert dev.AI_open(1) == 0 and dev.AI_close(1) == 0 and wire(s) == []
    assert [dev._AI_changePortToIndex(p, c) for p in (0, 1, 3) for c in range(3)] == list(range(9))


def test_argument_errors_send_nothing(pair, trellis):
    dev, s = pair("PloverAin")
    refuses(s, pyorv.AIPortNotAvaliableError, lambda: dev.AI_open(1),
            lambda: dev.AI_readOnDemand(2), lambda: dev.AI_readStreaming(1, 1))
    refuses(s, pyorv.InputTypeNotCorrectError, lambda: dev.AI_setMode(0.0, 1),
            lambda: dev.AI_setNumSamples(0, 1.5), lambda: dev.AI_setSamplingRate(0, "1"))
    refuses(s, pyorv.AIModeNotAvaliableError, lambda: dev.AI_setMode(0, 3))
    refuses(s, pyorv.AIChannelNotAvaliableError, lambda: dev.AI_enableChannel(0, 9),
            lambda: dev.AI_enableChannel(0, 0))
    refuses(s, pyorv.APINotSupportError, lambda: dev.AI_enableCS(1, [0]))
    tdev, ts = trellis
    refuses(ts, pyorv.AICSNotAvaliableError, lambda: tdev.AI_enableCS(1, [0, 3]))
    refuses(ts, pyorv.AIPortNotAvaliableError, lambda: tdev.AI_enableCS(3, [0]))


@pytest.mark.parametrize("channels, limit", [(1, 16000), (3, 6300), (8, 2000)])
def test_plover_rate_limit_follows_the_channels(pair, channels, limit):
    dev, s = pair("PloverAin")
    dev.AI_enableChannel(0, channels)
    assert dev.AI_setSamplingRate(0, limit) == 0
    s.clear_packets()
    refuses(s, pyorv.AIRateNotVaildError, lambda: dev.AI_setSamplingRate(0, limit + 0.5))


def test_trellis_rate_limit_follows_the_chip_selects(trellis):
    dev, s = trellis
    dev.AI_enableCS(1, [0, 1])
    dev._ckeckAISamplingRate(0, 6000)
    with pytest.raises(pyorv.AIRateNotVaildError):
        dev._ckeckAISamplingRate(0, 6001)
    assert dev._ckeckAISamplingRate(1, 12000)


# ---- the gate --------------------------------------------------------------------------

def decoded(dev):
    return dev._AI_decodedSize(0)


def push_records(s, n, cmd=START_AI_STREAMING_VARIABLE, channels=8):
    for k in range(n):
        s.send(cmd, bytes([0, 0]) + struct.pack(f">{channels}h", *([k] * channels)))


def test_a_failed_open_keeps_the_decoder_parked_until_close(pair):
    dev, s = pair("PloverAin")
    s.set_handler(OPEN_AI, lambda ctx, req: ctx.reply(bytes([0, 52])))
    assert dev.AI_open(0) == pyorv.errFirmwareAI
    assert dev.ai_open_flag is True
    push_records(s, 3)
    raw = dev._streamQueue((START_AI_STREAMING_VARIABLE, 0, 0))
    assert wait_until(lambda: raw.qsize() == 3)
    s.set_handler(OPEN_AI, None)
    assert dev.AI_open(0) == 0          # sent, flag already true: the gate stays shut
    assert wire(s).count((OPEN_AI, b"\x00")) == 2
    assert dev.AI_readStreaming(0, 3, 0.2) == [] and raw.qsize() == 3
    dev.close(verbose=False)            # _AI_free opens the gate; the decoder ends
    assert dev.ai_decoder_alive is False


def test_open_decodes_close_parks_and_a_failed_close_leaves_the_gate_open(pair):
    dev, s = pair("PloverAin")
    assert dev.AI_open(0) == 0
    push_records(s, 2)
    assert wait_until(lambda: decoded(dev) == 2)
    assert dev.AI_close(0) == 0 and dev.ai_open_flag is False
    push_records(s, 2)
    raw = dev._streamQueue((START_AI_STREAMING_VARIABLE, 0, 0))
    assert wait_until(lambda: raw.qsize() == 3)  # a close marker and two records wait
    assert decoded(dev) == 2
    assert dev.AI_open(0) == 0
    assert wait_until(lambda: decoded(dev) == 4)
    # A close the firmware refuses: flag false, gate still open, decoding goes on.
    s.set_handler(CLOSE_AI, lambda ctx, req: ctx.reply(bytes([0, 52])))
    assert dev.AI_close(0) == pyorv.errFirmwareAI and dev.ai_open_flag is False
    push_records(s, 1)
    assert wait_until(lambda: decoded(dev) == 5)
    # Opening again releases a gate that is not held: the lock's RuntimeError.
    s.set_handler(CLOSE_AI, None)
    with pytest.raises(RuntimeError):
        dev.AI_open(0)
    assert len(dev.AI_readStreaming(0, 5, 1.0)) == 5


def test_enable_channel_changes_the_count_even_when_refused(pair):
    dev, s = pair("PloverAin")
    s.set_handler(SET_AI_ENABLED_CS, lambda ctx, req: ctx.reply(bytes([0, 52])))
    assert dev.AI_enableChannel(0, 3) == pyorv.errFirmwareAI
    assert dev.ai_num_channels == 3 and wire(s) == [(SET_AI_ENABLED_CS, bytes([0, 3]))]


# ---- streams ---------------------------------------------------------------------------

@pytest.mark.parametrize("model", ["PloverAin", "KestrelAin", "HeronAinPlus"])
def test_a_stream_is_the_waveform_sample_by_sample(pair, model):
    dev, s = streaming(pair, model)
    s.state_set("ai.flat_out", True)
    dev.AI_open(0)
    dev.AI_setMode(0, 1)
    dev.AI_setNumSamples(0, 3000)
    dev.AI_start(0)
    got = []
    while len(got) < 3000:
        part = dev.AI_readStreaming(0, 3000 - len(got), 2.0)
        assert part, "the stream stopped early"
        got += part
    assert got == ramp_values(0, 3000, 8, dev.ai_ratio)
    assert dev.AI_readStreaming(0, 1, 0.05) == []  # N-samples ended


def test_every_count_decodes_as_python_rounds_it(pair):
    """All 65536 counts through the stream decoder, for both model ratios."""
    for model in ("PloverAin", "HeronAin"):
        dev, s = streaming(pair, model)
        s.state_set("ai.flat_out", True)
        s.state_set("ai.wave", [["ramp", -32768 + 8192 * c, 1] for c in range(8)])
        dev.AI_open(0)
        dev.AI_setMode(0, 1)
        dev.AI_setNumSamples(0, 8192)
        dev.AI_start(0)
        got = []
        while len(got) < 8192:
            got += dev.AI_readStreaming(0, 8192 - len(got), 2.0)
        values = [v for sample in got for v in sample]
        counts = [-32768 + 8192 * c + k for k in range(8192) for c in range(8)]
        assert sorted(counts) == list(range(-32768, 32768))
        ratio = dev.ai_ratio
        expect = [round(c * ratio, 4) for c in counts]
        bad = [(c, v, e) for c, v, e in zip(counts, values, expect) if struct.pack("d", v) != struct.pack("d", e)]
        assert bad == []
        # The hook of the same scaling agrees, sign of zero included.
        assert [dev._AI_decodeCount(c) for c in range(-32768, 32768, 7)] == \
            [round(c * ratio, 4) for c in range(-32768, 32768, 7)]


def test_trellis_streams_each_chip_select_into_one_sample(trellis):
    dev, s = trellis
    s.state_set("ai.flat_out", True)
    dev.AI_enableCS(1, [0, 2])
    dev.AI_setMode(1, 1)
    dev.AI_setNumSamples(1, 200)
    dev.AI_open(0)
    dev.AI_start(1)
    got = []
    while len(got) < 200:
        got += dev.AI_readStreaming(1, 200 - len(got), 2.0)
    ramp = ramp_values(0, 200, 8, dev.ai_ratio)
    assert got == [r + r for r in ramp]  # 8 values of chip 0, then 8 of chip 2


def test_delay_and_count_edges(pair):
    dev, s = pair("PloverAin")
    dev.AI_open(0)
    push_records(s, 4)
    assert wait_until(lambda: decoded(dev) == 4)
    assert dev.AI_readStreaming(0, 2, 0) == []     # the counting loop never runs
    assert dev.AI_readStreaming(0, 0, 0.1) == []
    assert dev.AI_readStreaming(0, -1, 0.1) == []
    assert len(dev.AI_readStreaming(0, 10, 0.05)) == 4  # fewer than asked once delay ran out
    push_records(s, 2)
    assert wait_until(lambda: decoded(dev) == 2)
    assert len(asyncio.run(dev.AI_readStreaming_async(0, 5, 0.05))) == 2


def test_three_channels_group_the_stream_by_three(pair):
    dev, s = pair("PloverAin")
    assert dev.AI_enableChannel(0, 3) == 0
    dev.AI_open(0)
    s.send(START_AI_STREAMING_VARIABLE, bytes([0, 0]) + struct.pack(">6h", 1, 2, 3, -1, -2, -3))
    r = dev.AI_readStreaming(0, 2, 1.0)
    assert r == [[round(c * R10, 4) for c in (1, 2, 3)], [round(c * R10, 4) for c in (-1, -2, -3)]]


def test_a_malformed_record_ends_the_decoder_and_reads_return(pair):
    dev, s = pair("PloverAin")
    dev.AI_open(0)
    push_records(s, 1)
    s.send(START_AI_STREAMING_VARIABLE, bytes([0, 0, 1, 2, 3]))  # no whole sample
    push_records(s, 1)
    assert wait_until(lambda: dev.ai_decoder_alive is False)
    assert len(dev.AI_readStreaming(0, 5, 0.1)) == 1


def test_overflow_drops_and_warns_and_each_read_tells_its_drops(pair):
    dev, s = streaming(pair, "HeronAinImu")
    s.state_set("ai.flat_out", True)
    s.state_set("ai.record_samples", 4000)
    assert dev.AI_enableChannel(0, 1) == 0
    dev.AI_open(0)
    dev.AI_setMode(0, 1)
    dev.AI_setNumSamples(0, 1_000_003)
    with pytest.warns(pyorv.AIQueueOverflowWarning) as caught:
        dev.AI_start(0)
        assert wait_until(lambda: dev.ai_dropped_samples == 3, timeout=60)
    assert decoded(dev) == 1_000_000
    assert sum(isinstance(w.message, pyorv.AIQueueOverflowWarning) for w in caught) == 3
    assert dev.AI_getReadDropped(0) == 0  # no read yet
    first = dev.AI_readStreaming(0, 2, 1.0)
    assert first == [[round(0 * R5, 4)], [round(1 * R5, 4)]]
    assert dev.AI_getReadDropped(0) == 3
    # Two places free, five samples come: three more are lost, and the next
    # read (the array read here: every read counts) tells those three only.
    with pytest.warns(pyorv.AIQueueOverflowWarning):
        s.send(START_AI_STREAMING_VARIABLE, bytes([0, 0]) + struct.pack(">5h", *range(5)))
        assert wait_until(lambda: dev.ai_dropped_samples == 6)
    out = memoryview(bytearray(8)).cast("d", [1, 1])
    assert dev.AI_readStreamingInto(0, out, 1.0) == 1 and out[0, 0] == round(2 * R5, 4)
    assert asyncio.run(dev.AI_getReadDropped_async(0)) == 3
    assert len(asyncio.run(dev.AI_readStreaming_async(0, 1, 1.0))) == 1
    assert dev.AI_getReadDropped(0) == 0 and dev.ai_dropped_samples == 6
    with pytest.raises(pyorv.AIPortNotAvaliableError):
        dev.AI_getReadDropped(1)


# ---- array reads -----------------------------------------------------------------------

@pytest.mark.parametrize("model", ["PloverAin", "Trellis"])
def test_array_reads_give_the_list_reads_values(pair, model):
    np = pytest.importorskip("numpy")
    if model == "Trellis":
        dev, s = pair(model, mac="02:4F:52:56:00:0A", gateway="127.0.0.254")
        dev.AI_enableCS(1, [0, 2])
        width, port = 16, 1
    else:
        dev, s = pair(model)
        dev.AI_enableChannel(0, 3)
        width, port = 3, 0
    s.state_set("ai.flat_out", True)
    dev.AI_open(0)
    dev.AI_setMode(port, 1)
    dev.AI_setNumSamples(port, 2000)
    dev.AI_start(port)
    expect = ramp_values(0, 2000, 8 if model == "Trellis" else 3, dev.ai_ratio)
    if model == "Trellis":
        expect = [r + r for r in expect]  # chip 0, then chip 2
    got = dev.AI_readStreaming(port, 500, 2.0)
    a = dev.AI_readStreamingArray(port, 500, 2.0)
    assert a.dtype == np.float64 and a.shape == (500, width) and a.flags.c_contiguous
    b = asyncio.run(dev.AI_readStreamingArray_async(port, 300, 2.0))
    out = np.full((450, width), -99.0)
    assert dev.AI_readStreamingInto(port, out[:400], 2.0) == 400
    assert out[400:].tolist() == [[-99.0] * width] * 50  # rows past the view untouched
    rest = np.empty((400, width))
    assert asyncio.run(dev.AI_readStreamingInto_async(port, rest, 2.0)) == 300
    assert got == expect[:500]
    assert np.concatenate([a, b, out[:400], rest[:300]]).tolist() == expect[500:]
    assert dev.AI_readStreamingArray(port, 10, 0.05).shape == (0, width)


def test_array_reads_refuse_a_wrong_out_and_take_nothing(pair):
    np = pytest.importorskip("numpy")
    dev, s = pair("PloverAin")
    dev.AI_open(0)
    push_records(s, 3)
    assert wait_until(lambda: decoded(dev) == 3)
    for bad, error in [(np.zeros((3, 8), np.float32), TypeError),
                       (np.zeros((3, 8), np.int64), TypeError),
                       (np.zeros((3, 7)), ValueError),
                       (np.zeros(24), ValueError),
                       (np.zeros((3, 16))[:, ::2], ValueError),
                       (np.zeros((8, 3)).T, ValueError)]:
        with pytest.raises(error):
            dev.AI_readStreamingInto(0, bad, 1.0)
        with pytest.raises(error):
            dev.AI_readStreamingInto_async(0, bad, 1.0)
    frozen = np.zeros((3, 8))
    frozen.flags.writeable = False
    with pytest.raises((BufferError, ValueError)):
        dev.AI_readStreamingInto(0, frozen, 1.0)
    with pytest.raises(pyorv.AIPortNotAvaliableError):
        dev.AI_readStreamingArray(1, 3, 1.0)
    assert decoded(dev) == 3
    assert dev.AI_readStreamingArray(0, 3, 1.0).tolist() == [[round(k * R10, 4)] * 8
                                                              for k in range(3)]


# ---- close during a read ---------------------------------------------------------------

def read_into(dev, port, n, delay):
    """AI_readStreamingInto with no numpy: a memoryview of n rows of 8 doubles."""
    return dev.AI_readStreamingInto(port, memoryview(bytearray(64 * n)).cast("d", [n, 8]), delay)


@pytest.mark.parametrize("name", ["AI_readStreaming", "AI_readStreamingInto",
                                  "AI_readStreamingArray"])
def test_close_ends_a_blocking_read(pair, name):
    if name == "AI_readStreamingArray":
        pytest.importorskip("numpy")
    dev, s = pair("KestrelAin")
    dev.AI_open(0)
    read = partial(read_into, dev) if name == "AI_readStreamingInto" else getattr(dev, name)
    out = {}

    def read_now():
        t = time.monotonic()
        try:
            out["r"] = read(0, 10, 30)
        except Exception as e:  # noqa: BLE001 - the error is the result here
            out["r"] = e
        out["t"] = time.monotonic() - t

    th = threading.Thread(target=read_now)
    th.start()
    time.sleep(0.2)
    dev.close(verbose=False)
    th.join(10)
    assert not th.is_alive() and out["t"] < 10
    assert isinstance(out["r"], pyorv.DeviceClosedError)
    assert dev.ai_decoder_alive is False


@pytest.mark.parametrize("name", ["AI_readStreaming_async", "AI_readStreamingArray_async"])
def test_close_ends_an_awaitable_read_and_the_loop_stays_free(pair, name):
    if "Array" in name:
        pytest.importorskip("numpy")
    dev, s = pair("HeronAin")
    dev.AI_open(0)

    async def main():
        task = asyncio.ensure_future(getattr(dev, name)(0, 10, 30))
        ticks = 0
        for _ in range(5):
            await asyncio.sleep(0.02)
            ticks += 1
        dev.close(verbose=False)
        with pytest.raises(pyorv.DeviceClosedError):
            await asyncio.wait_for(task, 10)
        return ticks

    assert asyncio.run(main()) == 5


# ---- 24-bit inputs ---------------------------------------------------------------------

@pytest.mark.parametrize("model, ports", [("KestrelCin", [0]), ("KestrelCvin", [0, 1])])
def test_24bit_values_round_as_python(pair, model, ports):
    dev, s = pair(model)
    rnd = random.Random(5)
    edges = [0, 1, 2**23 - 1, 2**23, 2**23 + 1, 2**24 - 1]
    for port in ports:
        for batch in range(40):
            counts = edges[:] + [rnd.randrange(2**24) for _ in range(2)] if batch == 0 else \
                [rnd.randrange(2**24) for _ in range(8)]
            s.state_set("ai24.counts", counts)
            full = 50 if port == 0 else 25
            got = dev.AI_readOnDemand(port)
            expect = [round(-full + n * full / 2**23, 3) for n in counts]
            assert [struct.pack("d", v) for v in got] == [struct.pack("d", v) for v in expect]
    assert wire(s)[0] == (READAI24BIT, bytes([0, 255]))
    s.clear_packets()
    refuses(s, pyorv.AIPortNotAvaliableError, lambda: dev.AI_readOnDemand(len(ports)))
    with pytest.raises(AttributeError):
        dev.AI_open(0)
