"""Temperature inputs: thermocouples (KestrelTherm, PloverTc) and resistance
sensors (PloverRtd) against simulated devices."""

import asyncio
import struct

import pytest

import pyorv
from conftest import refuses, wire

(OPEN_THERMAL, READ_THERMAL_JUNCTION, READ_THERMAL_COUPLE, CLOSE_THERMAL, SET_THERMAL_NOISE_FILTER,
 SET_THERMAL_OVER_SAMPLING, SET_THERMAL_TYPE, GET_THERMAL_STATUS, SET_THERMAL_JUNCTION_ON,
 READ_THERMAL_OFFSET, WRITE_THERMAL_OFFSET, WRITE_THERMAL_JUNCTION, LOAD_THERMAL_OFFSET,
 SAVE_THERMAL_OFFSET) = range(64, 78)
GET_PIN_MODE_OF_SLOT = 127


def f32(x):
    return struct.pack(">f", x)


@pytest.fixture
def tc(pair):
    return pair("PloverTc")


@pytest.fixture
def therm(pair):
    return pair("KestrelTherm")


@pytest.fixture
def rtd(pair):
    return pair("PloverRtd")


def test_bases_and_pin_map(tc, rtd):
    assert issubclass(pyorv.ThermocoupleModule, pyorv.ThermalModule)
    assert issubclass(pyorv.ThermalResistanceModule, pyorv.ThermalModule)
    assert tc[0].Thermal_getPinMap() == {1: [(1, 5), (2, 0), (2, 1), (2, 2), (2, 3)],
                                         2: [(1, 5), (2, 0), (3, 3), (3, 4), (3, 5)]}
    assert not hasattr(rtd[0], "Thermal_setOverSampling")


def test_open_reads_pin_modes_then_opens_and_read_decodes(tc):
    dev, s = tc
    s.state_set("thermal.temperature", [21.0, -40.1234])
    assert dev.Thermal_open(1) == 0
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, bytes([1])), (GET_PIN_MODE_OF_SLOT, bytes([2])),
                       (OPEN_THERMAL, bytes([1]))]
    assert dev.Thermal_readSensor(1, 1) == -40.123  # a float32 rounded to 3 places
    assert dev.Thermal_readSensor(1, 0) == 21.0
    assert wire(s)[-1] == (READ_THERMAL_COUPLE, bytes([1, 0]))
    assert dev.Thermal_close(1) == 0
    assert wire(s)[-1] == (CLOSE_THERMAL, bytes([1]))


def test_open_refuses_a_port_whose_pin_serves_another_function(tc):
    dev, s = tc
    # Port 1 answers pin 5 in PWM mode (8); the thermal port uses (1, 5).
    modes = bytes([8, 1, 0x11, 0x11, 0x81, 0x11])
    s.set_handler(GET_PIN_MODE_OF_SLOT,
                  lambda ctx, req: ctx.reply(modes if req.data[0] == 1 else bytes([8, 2]) + b"\x11" * 4))
    with pytest.raises(pyorv.ThermalPortNotAvaliableError):
        dev.Thermal_open(1)
    assert OPEN_THERMAL not in [c for c, _ in wire(s)]


def test_kestrel_therm_opens_without_pin_check_and_closes_without_sending(therm):
    dev, s = therm
    assert dev.Thermal_open(1) == 0
    assert wire(s) == [(OPEN_THERMAL, bytes([1]))]
    assert dev.Thermal_close(1) == 0
    assert dev.Thermal_close(99) == 0  # checks nothing either
    assert wire(s) == [(OPEN_THERMAL, bytes([1]))]


@pytest.mark.parametrize("model, channel, ok", [
    ("PloverTc", 1, True), ("PloverTc", 2, False), ("KestrelTherm", 2, True),
    ("KestrelTherm", 6, True), ("KestrelTherm", 7, False), ("PloverTc", -1, False),
])
def test_channel_range_per_model(pair, model, channel, ok):
    dev, s = pair(model)
    port = 1
    dev.Thermal_open(port)
    before = len(s.packets())
    if ok:
        assert dev.Thermal_readSensor(port, channel) == 25.0
    else:
        with pytest.raises(pyorv.ThermalChipSelectNotAvaliableError):
            dev.Thermal_readSensor(port, channel)
        assert len(s.packets()) == before


@pytest.mark.parametrize("call, error", [
    (lambda d: d.Thermal_open(3), pyorv.ThermalPortNotAvaliableError),
    (lambda d: d.Thermal_open(1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Thermal_close(0), pyorv.ThermalPortNotAvaliableError),
    (lambda d: d.Thermal_readSensor(1, "0"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Thermal_getStatus(2, 2), pyorv.ThermalChipSelectNotAvaliableError),
    (lambda d: d._Thermal_setNoiseFilter(1, 0, 2), pyorv.ThermalModeNotVaildError),
    (lambda d: d._Thermal_setNoiseFilter(1, 0, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Thermal_setOverSampling(1, 0, 5), pyorv.ThermalModeNotVaildError),
    (lambda d: d.Thermal_setOverSampling(1, 0, "1"), pyorv.ThermalModeNotVaildError),
    (lambda d: d.Thermal_setType(1, 0, 8), pyorv.ThermalTypeNotVaildError),
    (lambda d: d._Thermal_writeOffset(1, 0, "1.5"), pyorv.InputTypeNotCorrectError),
    (lambda d: d._Thermal_writeJunction(1, 5, 1.5), pyorv.ThermalChipSelectNotAvaliableError),
])
def test_argument_errors_send_nothing(tc, call, error):
    dev, s = tc
    refuses(s, error, lambda: call(dev))


def test_rtd_type_check_differs(rtd):
    dev, s = rtd
    refuses(s, pyorv.ThermalTypeNotVaildError, lambda: dev.Thermal_setType(1, 0, 2))
    dev.Thermal_open(2)
    assert dev.Thermal_setType(2, 1, 1) == 0
    assert wire(s)[-1] == (SET_THERMAL_TYPE, bytes([2, 1, 1]))
    assert s.state_get("thermal.2.1")[0] == 1


@pytest.mark.parametrize("call, sent", [
    (lambda d: d._Thermal_setNoiseFilter(1, 1, 1), (SET_THERMAL_NOISE_FILTER, bytes([1, 1, 1]))),
    (lambda d: d.Thermal_setOverSampling(1, 0, 4), (SET_THERMAL_OVER_SAMPLING, bytes([1, 0, 4]))),
    (lambda d: d.Thermal_setOverSampling(1, 0, 2.0), (SET_THERMAL_OVER_SAMPLING, None)),
    (lambda d: d.Thermal_setType(1, 0, 7), (SET_THERMAL_TYPE, bytes([1, 0, 7]))),
    (lambda d: d._Thermal_setJunctionOn(1, 1, True), (SET_THERMAL_JUNCTION_ON, bytes([1, 1, 1]))),
    (lambda d: d._Thermal_setJunctionOn(1, 1, False), (SET_THERMAL_JUNCTION_ON, bytes([1, 1, 0]))),
    (lambda d: d._Thermal_writeOffset(1, 0, 1.5), (WRITE_THERMAL_OFFSET, bytes([1, 0]) + f32(1.5))),
    (lambda d: d._Thermal_saveOffset(1, 1, -2), (SAVE_THERMAL_OFFSET, bytes([1, 1]) + f32(-2))),
    (lambda d: d._Thermal_writeJunction(1, 0, 30), (WRITE_THERMAL_JUNCTION, bytes([1, 0]) + f32(30))),
])
def test_setters_on_the_wire(tc, call, sent):
    dev, s = tc
    dev.Thermal_open(1)
    if sent[1] is None:  # a float mode passes the check; it cannot go out as a byte
        with pytest.raises(TypeError):
            call(dev)
        assert wire(s)[-1][0] == OPEN_THERMAL
        return
    assert call(dev) == 0
    assert wire(s)[-1] == sent


def test_offsets_and_junction_read_back_unrounded(tc):
    dev, s = tc
    dev.Thermal_open(1)
    dev._Thermal_writeOffset(1, 0, 0.1)
    dev._Thermal_saveOffset(1, 0, -0.25)
    dev._Thermal_writeJunction(1, 1, 23.3)
    assert dev._Thermal_readOffset(1, 0) == struct.unpack(">f", f32(0.1))[0]
    assert dev._Thermal_loadOffset(1, 0) == -0.25
    assert dev._Thermal_readJunction(1, 1) == struct.unpack(">f", f32(23.3))[0]
    assert [c for c, _ in wire(s)[-3:]] == [READ_THERMAL_OFFSET, LOAD_THERMAL_OFFSET,
                                            READ_THERMAL_JUNCTION]
    assert dev.Thermal_readSensor(1, 0) == 25.1  # the simulated device adds its offset


@pytest.mark.parametrize("model, mode", [("PloverTc", 2), ("KestrelTherm", 1)])
def test_status_shows_open_circuit(pair, model, mode):
    dev, s = pair(model)
    dev.Thermal_open(1)
    assert dev.Thermal_getStatus(1, 1) == 0
    s.state_set("thermal.open_circuit", [1])
    status = dev.Thermal_getStatus(1, 1)
    assert wire(s)[-1] == (GET_THERMAL_STATUS, bytes([1, 1, mode]))
    # Plover-Tc masks its answer to bit 0; the simulated firmware sets bit 7 in mode 2.
    assert status == 1
    assert dev.Thermal_readSensor(1, 1) != dev.Thermal_readSensor(1, 1)  # NaN


def test_firmware_error_is_returned_as_code(tc):
    dev, s = tc
    # Not opened: the simulated firmware answers the thermal error status.
    assert dev.Thermal_setType(1, 0, 3) == pyorv.FirmwareThermalError().code


def test_awaitable_twins(tc):
    dev, s = tc

    async def main():
        assert await dev.Thermal_open_async(2) == 0
        return await dev.Thermal_readSensor_async(2, 0), await dev.Thermal_setType_async(2, 0, 1)

    assert asyncio.run(main()) == (25.0, 0)
    assert wire(s)[-1] == (SET_THERMAL_TYPE, bytes([2, 0, 1]))


@pytest.mark.parametrize("model, want", [("PloverTc", 1), ("KestrelTherm", 0x83)])
def test_status_masked_on_plover_tc_only(pair, model, want):
    dev, s = pair(model)
    s.set_handler(GET_THERMAL_STATUS, lambda ctx, req: ctx.reply(bytes([req.data[0], 0, 0x83])))
    assert dev.Thermal_getStatus(1, 0) == want


def test_a_silent_device_ends_the_read_by_its_timeout(tc):
    dev, s = tc
    s.set_handler(READ_THERMAL_COUPLE, lambda ctx, req: None)
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.Thermal_readSensor(1, 0, timeout=0.3)
