"""Relay counters (KestrelRelay) and the digital potentiometer (KestrelRes)
against simulated devices."""

import asyncio
import struct

import pytest

import pyorv
from conftest import refuses, wire

RELAY_READ, POT_READ, POT_WRITE_ALL_CS = 6912, 8513, 8515
SET_AND_WRITE_DO, TOGGLE_AND_WRITE_DO = 234, 238


@pytest.fixture
def relay(pair):
    return pair("KestrelRelay")


@pytest.fixture
def res(pair):
    return pair("KestrelRes")


# ---- relays ------------------------------------------------------------------------------

@pytest.mark.parametrize("counters", [[7], [1, 2, 3, 4, 5, 0xFFFFFFFF]])
def test_read_decodes_as_many_counters_as_the_reply_holds(relay, counters):
    dev, s = relay
    reply = bytes([0, 0]) + b"".join(struct.pack(">I", c) for c in counters) + b"\x01\x02"
    s.set_handler(RELAY_READ, lambda ctx, req: ctx.reply(reply))
    assert dev.Relay_read() == counters  # a partial group at the end is dropped
    assert wire(s) == [(RELAY_READ, bytes([0, 255]))]


@pytest.mark.parametrize("index, sent", [(-1, 255), (0, 0), (5, 5), (True, 1)])
def test_index_on_the_wire(relay, index, sent):
    dev, s = relay
    assert len(dev.Relay_read(index)) == (6 if index == -1 else 1)
    assert wire(s) == [(RELAY_READ, bytes([0, sent]))]


@pytest.mark.parametrize("index, error", [
    (6, pyorv.RelayCounterIndexError), (-2, pyorv.RelayCounterIndexError),
    (1.0, pyorv.InputTypeNotCorrectError), ("0", pyorv.InputTypeNotCorrectError),
    ([0], pyorv.InputTypeNotCorrectError),
])
def test_bad_index_open_and_close_send_nothing(relay, index, error):
    dev, s = relay
    refuses(s, error, lambda: dev.Relay_read(index))
    assert dev.Relay_open() == 0 and dev.Relay_close() == 0
    assert s.packet_count() == 0


def test_relays_driven_through_output_port_0_are_counted(relay):
    dev, s = relay
    assert dev.Relay_read() == [0] * 6
    dev.DO_writePins(0, [0, 2], [1, 1])   # relays 0 and 2 switch on
    dev.DO_writePort(0, [0, 0, 1])        # relay 0 off, relay 2 stays
    dev.DO_togglePins(0, [5])             # relay 5 on
    assert dev.Relay_read() == [2, 0, 1, 0, 0, 1]
    assert dev.Relay_read(0) == [2]
    assert [c for c, _ in wire(s)] == [RELAY_READ, SET_AND_WRITE_DO, SET_AND_WRITE_DO,
                                       TOGGLE_AND_WRITE_DO, RELAY_READ, RELAY_READ]


# ---- digital potentiometer ------------------------------------------------------------------

@pytest.mark.parametrize("call, error", [
    (lambda d: d.DPOT_open(1), pyorv.DPOTPortNotAvaliableError),
    (lambda d: d.DPOT_close(-1), pyorv.DPOTPortNotAvaliableError),
    (lambda d: d.DPOT_open(0.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.DPOT_readByChannel(1, 0), pyorv.DPOTPortNotAvaliableError),
    (lambda d: d.DPOT_writeAllChannel(0, [0.5, 0.5, 0.5]), pyorv.DPOTChannelNotAvaliableError),
    (lambda d: d.DPOT_writeAllChannel(0, [0.5] * 5), pyorv.DPOTChannelNotAvaliableError),
    (lambda d: d.DPOT_writeAllChannel(0, (1, 2, 3, 4)), pyorv.InputTypeNotCorrectError),
    (lambda d: d.DPOT_writeAllChannel(2, [1, 2, 3, 4]), pyorv.DPOTPortNotAvaliableError),
])
def test_dpot_checks_send_nothing(res, call, error):
    dev, s = res
    refuses(s, error, lambda: call(dev))
    assert dev.DPOT_open(0) == 0 and dev.DPOT_close(0) == 0  # and the good port sends nothing
    assert s.packet_count() == 0


def test_dpot_write_read_and_status(res):
    dev, s = res
    assert dev.DPOT_writeAllChannel(0, [1, 2, 3, 4]) == 0
    assert wire(s) == [(POT_WRITE_ALL_CS, bytes([0]) + struct.pack(">4f", 1, 2, 3, 4))]
    assert s.state_get("dpot.ratios") == [1.0, 2.0, 3.0, 4.0]
    bits = dev.DPOT_readByChannel(0, 2)
    assert bits == struct.unpack(">I", struct.pack(">f", 3.0))[0]
    assert wire(s)[-1] == (POT_READ, bytes([0, 2]))
    # The channel is not checked on the host: the firmware refuses it and the
    # short reply fails in the four-byte conversion.
    with pytest.raises(ValueError):
        dev.DPOT_readByChannel(0, 9)
    assert wire(s)[-1] == (POT_READ, bytes([0, 9]))
    s.set_handler(POT_WRITE_ALL_CS, lambda ctx, req: ctx.reply(bytes([0, 4, 11])))  # status at byte 2
    assert dev.DPOT_writeAllChannel(0, [0.25, 0.5, 0.75, 1.0]) == -7001


def test_relay_and_dpot_awaitables(relay, res):
    (rdev, rs), (dev, _) = relay, res

    async def run():
        assert await rdev.Relay_open_async() == 0
        with pytest.raises(pyorv.RelayCounterIndexError):
            await rdev.Relay_read_async(7)
        assert await rdev.Relay_read_async(3) == [0]
        assert await dev.DPOT_open_async(0) == 0
        assert await dev.DPOT_writeAllChannel_async(0, [0.5, 0.5, 0.5, 0.125]) == 0
        return await dev.DPOT_readByChannel_async(0, 3)

    assert asyncio.run(run()) == struct.unpack(">I", struct.pack(">f", 0.125))[0]
    assert wire(rs) == [(RELAY_READ, bytes([0, 3]))]
