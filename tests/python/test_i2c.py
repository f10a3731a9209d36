"""I2C through a simulated Plover: the bytes on the wire, the pin-state checks
before OPEN_I2C, argument errors that send nothing, and the simulated slaves
(a 24C02-style EEPROM at 0x50, an LM75-style sensor at 0x48, a NACK for any
other address)."""

import asyncio

import pytest

import pyorv
from conftest import last, refuses, wire

OPEN_I2C, READ_I2C, WRITE_I2C, CLOSE_I2C, RESET_I2C = 144, 145, 146, 148, 149
SET_I2C_FREQUENCY, SET_I2C_ADDR_SIZE = 150, 151
GET_PIN_MODE_OF_SLOT = 127
I2C_ERROR = -7005  # the firmware's I2C status (21)
EEPROM, SENSOR = 0x50, 0x48


@pytest.fixture
def plover(pair):
    """PloverDio: I2C port 1 on pins 3, 4 of digital port 0, port 2 on pins 2, 3 of port 1."""
    return pair("PloverDio")


@pytest.fixture
def bus(plover):
    """I2C port 1 opened; the packet record starts empty."""
    dev, s = plover
    assert dev.I2C_open(1) == 0
    s.clear_packets()
    return dev, s


def test_open_reads_the_pin_modes_of_the_bus_ports_then_opens(plover):
    dev, s = plover
    assert dev.I2C_getPinMap() == {1: [(0, 3), (0, 4)], 2: [(1, 2), (1, 3)]}
    assert dev._I2C_getPinMapPort(2) == [1]
    assert dev.I2C_open(2) == 0
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, bytes([1])), (OPEN_I2C, bytes([2]))]
    assert dev.Sys_getPinModeInPort(1)[2:4] == ["I2C", "I2C"]
    assert dev.I2C_close(2) == 0
    assert last(s) == (CLOSE_I2C, bytes([2]))
    assert dev.Sys_getPinModeInPort(1)[2:4] == ["Idle", "Idle"]


def test_pins_held_by_a_bus_refuse_other_opens_before_anything_is_sent(plover):
    dev, s = plover
    assert dev.I2C_open(1) == 0
    s.clear_packets()
    # The same bus again, and the digital port under it: both read the modes and stop.
    with pytest.raises(pyorv.I2CPortNotAvaliableError):
        dev.I2C_open(1)
    with pytest.raises(pyorv.DOPortNotAvaliableError):
        dev.DO_openPort(0)
    assert [p.cmd for p in s.packets()] == [GET_PIN_MODE_OF_SLOT] * 2
    # Pins that are digital inputs or outputs do not stand in the way.
    assert dev.I2C_close(1) == 0 and dev.DO_openPins(0, [3]) == 0 and dev.DI_openPins(0, [4]) == 0
    assert dev.I2C_open(1) == 0
    # A pin in another function's mode (UART on pin 3) refuses the open.
    modes = bytes([8, 0, 0x11, 0x41, 0x11, 0x11])
    s.set_handler(GET_PIN_MODE_OF_SLOT, lambda ctx, req: ctx.reply(modes))
    s.clear_packets()
    with pytest.raises(pyorv.I2CPortNotAvaliableError):
        dev._checkI2CPinState(1, ["Idle", "DI", "DO"])
    dev._checkI2CPinState(1, ["Idle", "UART"])  # the allowed modes are the caller's
    with pytest.raises(KeyError):
        dev._checkI2CPinState(3, ["Idle"])
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, bytes([0]))] * 2


@pytest.mark.parametrize("mode, rate", [(0, 100000), (1, 400000), (2, 1000000), (3, 3400000)])
def test_clock_rates_go_out_as_four_bytes_high_first(bus, mode, rate):
    dev, s = bus
    assert dev.I2C_setClockRate(1, mode) == 0
    assert last(s) == (SET_I2C_FREQUENCY, bytes([1]) + rate.to_bytes(4, "big"))
    assert s.state_get("i2c.rate.1") == rate


def test_status_commands_wire_bytes(bus):
    dev, s = bus
    assert dev.I2C_setAddressSize(1, 1) == 0
    assert dev.I2C_reset(1) == 0
    assert dev.I2C_write(1, EEPROM, []) == 0  # the length 0 goes out
    assert wire(s) == [(SET_I2C_ADDR_SIZE, bytes([1, 1])), (RESET_I2C, bytes([1])),
                       (WRITE_I2C, bytes([1, EEPROM, 0]))]
    assert s.state_get("i2c.addr_size.1") == 1


@pytest.mark.parametrize("call, error", [
    (lambda d: d.I2C_open(3), pyorv.I2CPortNotAvaliableError),
    (lambda d: d.I2C_open(1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_close("1"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_reset(0), pyorv.I2CPortNotAvaliableError),
    (lambda d: d.I2C_setClockRate(1, 4), pyorv.I2CClockNotSupportError),
    (lambda d: d.I2C_setClockRate(1, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_setClockRate(3, 0), pyorv.I2CPortNotAvaliableError),
    (lambda d: d.I2C_setAddressSize(1, 2), pyorv.I2CAddressSizeNotVaildError),
    (lambda d: d.I2C_write(1, EEPROM, "ab"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_write(1, EEPROM, (1, 2)), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_write(1, 80.0, [1]), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_write(1, 0x150, [1]), ValueError),  # does not fit its byte
    (lambda d: d.I2C_write(1, EEPROM, [256]), ValueError),
    (lambda d: d.I2C_write(1, EEPROM, [0] * 256), ValueError),  # nor does the length
    (lambda d: d.I2C_read(1, EEPROM, 2.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.I2C_read(2.0, EEPROM, 2), pyorv.InputTypeNotCorrectError),
])
def test_argument_errors_send_nothing(plover, call, error):
    dev, s = plover
    refuses(s, error, lambda: call(dev))


def test_eeprom_page_write_wraps_within_its_page_and_reads_back(bus):
    dev, s = bus
    assert dev.I2C_write(1, EEPROM, [0x00] + list(range(0x10, 0x18))) == 0  # page 0 filled
    assert dev.I2C_write(1, EEPROM, [0x06, 0xA6, 0xA7, 0xA8, 0xA9]) == 0  # 6, 7, then 0, 1
    assert last(s) == (WRITE_I2C, bytes([1, EEPROM, 5, 0x06, 0xA6, 0xA7, 0xA8, 0xA9]))
    assert dev.I2C_write(1, EEPROM, [0x00]) == 0  # word address 0
    assert dev.I2C_read(1, EEPROM, 10) == [0xA8, 0xA9, 0x12, 0x13, 0x14, 0x15, 0xA6, 0xA7, 0, 0]
    assert last(s) == (READ_I2C, bytes([1, EEPROM, 10]))
    # Reads go on from where the last one stopped, across pages and around the end.
    assert dev.I2C_write(1, EEPROM, [0xFE, 0x55, 0x66]) == 0
    assert dev.I2C_write(1, EEPROM, [0xFE]) == 0
    assert dev.I2C_read(1, EEPROM, 3) == [0x55, 0x66, 0xA8]


def test_temperature_sensor_registers(bus):
    dev, s = bus
    s.state_set("i2c.lm75.temp", -25.5)
    assert dev.I2C_write(1, SENSOR, [0]) == 0
    assert dev.I2C_read(1, SENSOR, 2) == [0xE6, 0x80]  # -25.5 degrees: 0xE680
    s.state_set("i2c.lm75.temp", 31.0)
    assert dev.I2C_read(1, SENSOR, 2) == [0x1F, 0x00]
    assert dev.I2C_write(1, SENSOR, [3, 0x5A, 0x80]) == 0  # over-temperature 90.5
    assert dev.I2C_read(1, SENSOR, 2) == [0x5A, 0x80]


def test_a_nack_and_a_closed_port_give_negative_codes_and_empty_reads(plover):
    dev, s = plover
    assert dev.I2C_read(1, EEPROM, 2) == []  # not open
    assert dev.I2C_open(1) == 0
    assert dev.I2C_write(1, 0x21, [1, 2]) == I2C_ERROR
    assert dev.I2C_read(1, 0x21, 4) == []
    # A reply of three bytes holds no data; a longer one holds it from byte 3.
    s.set_handler(READ_I2C, lambda ctx, req: ctx.reply(bytes([1, 0, 2])))
    assert dev.I2C_read(1, EEPROM, 2) == []
    s.set_handler(READ_I2C, lambda ctx, req: ctx.reply(bytes([1, 0, 2, 7, 9])))
    assert dev.I2C_read(1, EEPROM, 2) == [7, 9]


def test_awaitable_twins_share_the_bodies(bus):
    dev, s = bus

    async def run():
        assert await dev.I2C_setClockRate_async(1, 3) == 0
        assert await dev.I2C_write_async(1, EEPROM, [0x20, 1, 2, 3]) == 0
        assert await dev.I2C_write_async(1, EEPROM, [0x20]) == 0
        return await dev.I2C_read_async(1, EEPROM, 3), await dev.I2C_getPinMap_async()

    data, pin_map = asyncio.run(run())
    assert data == [1, 2, 3] and pin_map == dev.I2C_getPinMap()
    assert wire(s)[0] == (SET_I2C_FREQUENCY, bytes([1, 0x00, 0x33, 0xE1, 0x40]))
    with pytest.raises(pyorv.I2CClockNotSupportError):
        asyncio.run(dev.I2C_setClockRate_async(1, 4))
    assert s.packet_count() == 4
