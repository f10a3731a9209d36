"""Digital ports and pins against simulated devices: the bytes on the wire,
the order of the checks, the fixed-direction models, firmware statuses, and
an output pin wired back to an input pin."""

import asyncio

import pytest

import pyorv
from conftest import last, refuses, wire

LOAD_DIO_STARTUP, SAVE_DIO_STARTUP, GET_DIO_CURRENT, SET_DIO_CURRENT = 224, 225, 226, 227
TOGGLE_DIO_DIR, GET_DIO_STATE, SET_DIO_STATE, READ_DI, WRITE_DO = 228, 229, 230, 231, 232
READ_AND_GET_DI, SET_AND_WRITE_DO, SET_SLOT_DI, SET_SLOT_DO = 233, 234, 235, 236
SET_SLOT_IDLE, TOGGLE_AND_WRITE_DO = 237, 238
GET_PIN_MODE_OF_SLOT = 127


@pytest.fixture
def dio_x(pair):
    """KestrelDioX: inputs on ports 2 and 3, outputs on ports 0 and 1, 8 pins each."""
    return pair("KestrelDioX")


# ---- opening, closing ------------------------------------------------------------------

def test_open_ports_read_modes_then_write_whole_port_words(dio_x):
    dev, s = dio_x
    assert dev.DI_openPort(2) == 0
    assert dev.DO_openPort(0) == 0
    assert wire(s) == [
        (GET_PIN_MODE_OF_SLOT, bytes([2])),
        (SET_DIO_CURRENT, bytes([2, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0])),
        (GET_PIN_MODE_OF_SLOT, bytes([0])),
        (SET_DIO_CURRENT, bytes([0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0])),
    ]
    # The simulated firmware now reports the pins in their modes.
    assert dev.Sys_getPinModeInPort(2) == ["DI"] * 8
    assert dev.Sys_getPinModeInPort(0) == ["DO"] * 8
    assert dev.DI_closePort(2) == 0 and dev.DO_closePort(0) == 0
    assert wire(s)[-2:] == [(SET_DIO_CURRENT, bytes([2, 0xFF, 0xFF] + [0] * 6)),
                            (SET_DIO_CURRENT, bytes([0, 0xFF, 0xFF] + [0] * 6))]
    assert dev.Sys_getPinModeInPort(0) == ["Idle"] * 8


def test_a_pin_in_another_mode_refuses_the_open_before_any_write(dio_x):
    dev, s = dio_x
    dev.DO_openPins(0, [1])  # pin 1 of port 0 is now an output
    s.clear_packets()
    with pytest.raises(pyorv.DIPortNotAvaliableError):
        dev._checkDIPort(0)  # port 0 is no input port at all
    # An output pin refuses DO_openPort only if it is in another mode: DO is fine.
    assert dev.DO_openPort(0) == 0
    # UART on pin 3: opening the port as output is refused after the mode read.
    s.set_handler(GET_PIN_MODE_OF_SLOT, lambda ctx, req: ctx.reply(bytes([8, 0, 0x11, 0x41, 0x11, 0x11])))
    s.clear_packets()
    with pytest.raises(pyorv.DOPortNotAvaliableError):
        dev.DO_openPort(0)
    with pytest.raises(pyorv.DOPortNotAvaliableError):
        dev.DO_openPins(0, [0, 3])
    assert dev.DO_openPins(0, [0, 2]) == 0  # pins 0 and 2 are idle
    assert [p.cmd for p in s.packets()] == [GET_PIN_MODE_OF_SLOT] * 3 + [SET_DIO_CURRENT]


def test_di_pins_take_a_list_only_do_pins_take_a_mask_as_well(dio_x):
    dev, s = dio_x
    refuses(s, TypeError, lambda: dev.DI_openPins(2, 5),  # the raw int fails in the set test
            lambda: dev.DI_closePins(2, 5), lambda: dev.DI_readPins(2, 5))
    assert dev.DO_openPins(0, 5) == 0  # pins 0 and 2
    assert last(s) == (SET_DIO_CURRENT, bytes([0, 0, 5, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0]))
    assert dev.DI_openPins(2, [0, 2]) == 0
    assert last(s) == (SET_DIO_CURRENT, bytes([2, 0, 5, 0xFF, 0xFF, 0, 0, 0, 0]))
    assert dev.DO_closePins(0, 4) == 0
    assert last(s) == (SET_DIO_CURRENT, bytes([0, 0, 4, 0, 0, 0, 0, 0, 0]))
    assert dev.DI_closePins(2, [2]) == 0
    assert last(s) == (SET_DIO_CURRENT, bytes([2, 0, 4, 0, 0, 0, 0, 0, 0]))


@pytest.mark.parametrize("call, error", [
    (lambda d: d.DI_openPort(0), pyorv.DIPortNotAvaliableError),     # an output port
    (lambda d: d.DO_openPort(2), pyorv.DOPortNotAvaliableError),     # an input port
    (lambda d: d.DI_openPort(2.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.DI_openPins(2, [8]), pyorv.PinsNotExistError),
    (lambda d: d.DO_openPins(0, 0x100), pyorv.PinsNotExistError),    # pin 8 as a mask
    (lambda d: d.DI_openPins(2, "0"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.DI_readPort(0), pyorv.DIPortNotAvaliableError),
    (lambda d: d.DO_writePort(2, 1), pyorv.DOPortNotAvaliableError),
    (lambda d: d.DO_writePort(0, 1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.DO_writePins(0, [0, 1], [1]), pyorv.PinsValueNotDefineError),
    (lambda d: d.DO_writePins(0, [0, 1], 3), pyorv.InputTypeNotConsistentError),
    (lambda d: d.DO_writePins(0, 3, [1, 1]), pyorv.InputTypeNotConsistentError),
    (lambda d: d.DO_writePins(0, [9], [1]), pyorv.PinsNotExistError),
    (lambda d: d.DO_togglePort(3), pyorv.DOPortNotAvaliableError),
    (lambda d: d.DIO_setPortIdle(2), pyorv.DOPortNotAvaliableError),  # idle is checked on outputs
    (lambda d: d.DIO_setPortDI(0), pyorv.DIPortNotAvaliableError),
    (lambda d: d.DIO_setPortDO(2), pyorv.DOPortNotAvaliableError),
    (lambda d: d._writeDO(256), ValueError),  # no map check here: the payload byte refuses
])
def test_argument_errors_send_nothing(dio_x, call, error):
    dev, s = dio_x
    refuses(s, error, lambda: call(dev))


@pytest.mark.parametrize("model", ["KestrelRelay", "KestrelDio", "PloverSink", "Trellis"])
def test_fixed_direction_models_open_and_close_nothing(pair, model):
    dev, s = pair(model)
    for call in (lambda: dev.DI_openPort(99), lambda: dev.DO_openPort(99),
                 lambda: dev.DI_openPins(99, 5), lambda: dev.DO_openPins(99, "x"),
                 lambda: dev.DI_closePort(99), lambda: dev.DO_closePort(99),
                 lambda: dev.DI_closePins(99, 5), lambda: dev.DO_closePins(99, 5)):
        assert call() == 0
    assert s.packet_count() == 0
    # Reading does check the port and does send.
    with pytest.raises(pyorv.DIPortNotAvaliableError):
        dev.DI_readPort(99)
    port = min(dev.di_dict)
    assert dev.DI_readPort(port) == [0] * dev.dio_num_pins_per_port
    assert last(s) == (READ_AND_GET_DI, bytes([port, 0xFF, 0xFF]))


# ---- writing, toggling -----------------------------------------------------------------

@pytest.mark.parametrize("call, mask, state", [
    (lambda d: d.DO_writePins(1, 0b110, 0b010), 6, 2),  # value bits stand at the pin positions
    (lambda d: d.DO_writePins(1, [0], [1, 0]), 1, 1),  # a longer value is accepted
    (lambda d: d.DO_writePins(1, [2, 0], [1, 0]), 5, 4),
    (lambda d: d.DO_writePins(1, [7, 1], [True, 5]), 0x82, 0x82),  # values clipped to 0..1
    (lambda d: d.DO_writePins(1, 0xFF, 0x1FF), 0xFF, 0x1FF),  # the word goes out as it is
    (lambda d: d.DO_writePort(1, [1, 0, 1]), 0xFFFF, 5),  # pins above the list are written 0
    (lambda d: d.DO_writePort(1, [1] * 8), 0xFFFF, 0xFF),
    (lambda d: d.DO_writePort(1, 0x1234), 0xFFFF, 0x1234),
])
def test_write_pins_and_port_masks_and_states(dio_x, call, mask, state):
    dev, s = dio_x
    assert call(dev) == 0
    assert last(s) == (SET_AND_WRITE_DO, bytes([1, mask >> 8, mask & 0xFF, state >> 8, state & 0xFF]))


def test_toggles_return_states_and_unchecked_pins_still_go_out(dio_x):
    dev, s = dio_x
    assert dev.DO_writePort(0, 0x1205) == 0
    assert dev._getDIOState(0, 0xFFFF) == [1, 0, 1, 0, 0, 0, 0, 0]  # 0x05 on the 8 real pins
    assert dev.DO_togglePort(0) == [0, 1, 0, 1, 1, 1, 1, 1]
    assert last(s) == (TOGGLE_AND_WRITE_DO, bytes([0, 0xFF, 0xFF]))
    assert dev.DO_togglePins(0, [1, 15]) == [0, 0, 0, 1, 1, 1, 1, 1]  # pin 15 is not in the map
    assert last(s) == (TOGGLE_AND_WRITE_DO, bytes([0, 0x80, 0x02]))
    assert dev.DO_togglePins(0, 0x300) == [0, 0, 0, 1, 1, 1, 1, 1]
    assert last(s) == (TOGGLE_AND_WRITE_DO, bytes([0, 0x03, 0x00]))


# ---- start-up words, slot modes, internal commands -------------------------------------

def test_startup_words_round_trip_through_the_firmware(dio_x):
    dev, s = dio_x
    assert dev.DIO_loadStartup(0) == ([0] * 8, [0] * 8, [0] * 8)
    assert last(s) == (LOAD_DIO_STARTUP, bytes([0, 1, 1, 1, 1, 1, 1]))
    assert dev.DIO_saveStartup(0, 0x00FF, 0x000F, 0x0005) == 0
    assert last(s) == (SAVE_DIO_STARTUP, bytes([0, 0, 0xFF, 0, 0x0F, 0, 5]))
    assert dev.DIO_loadStartup(0) == ([1] * 8, [1] * 4 + [0] * 4, [1, 0, 1, 0, 0, 0, 0, 0])
    assert dev.DIO_saveStartup(42, 0, 0, 0) == -7001  # no check: the firmware refuses


def test_slot_modes_and_the_internal_wrappers(dio_x):
    dev, s = dio_x
    assert dev.DIO_setPortDO(1) == 0
    assert dev.DIO_setPortDI(3) == 0
    assert dev.DIO_setPortIdle(1) == 0
    assert wire(s) == [(SET_SLOT_DO, bytes([1, 0])), (SET_SLOT_DI, bytes([3, 0])),
                       (SET_SLOT_IDLE, bytes([1, 0]))]
    assert dev.Sys_getPinModeInPort(3) == ["DI"] * 8
    s.clear_packets()
    assert dev._setDIOCurrent(1, 0x000F, 0x000F, 0x0003, 0x0001) == 0
    assert dev._getDIOCurrent(1, 0x00FF) == ([1] * 4 + [0] * 4, [1, 1] + [0] * 6, [1] + [0] * 7)
    assert dev._setDIOState(1, 0x0006, 0x0004) == 0
    assert dev._toggleDIODirection(1, 0x000C, 0x0008) == 0
    assert dev._readDI(3) == 0 and dev._writeDO(1) == 0
    assert dev._getDIOState(1, 0x00FF) == [1, 0, 1, 0, 0, 0, 0, 0]
    assert dev._getDIOCurrent(1, 0xFFFF)[1] == [1, 1, 0, 1, 0, 0, 0, 0]
    assert wire(s) == [
        (SET_DIO_CURRENT, bytes([1, 0, 0x0F, 0, 0x0F, 0, 3, 0, 1])),
        (GET_DIO_CURRENT, bytes([1, 0, 0xFF, 1, 1, 1, 1, 1, 1])),
        (SET_DIO_STATE, bytes([1, 0, 6, 0, 4])),
        (TOGGLE_DIO_DIR, bytes([1, 0, 0x0C, 0, 8])),
        (READ_DI, bytes([3, 0])), (WRITE_DO, bytes([1, 0])),
        (GET_DIO_STATE, bytes([1, 0, 0xFF])),
        (GET_DIO_CURRENT, bytes([1, 0xFF, 0xFF, 1, 1, 1, 1, 1, 1])),
    ]


@pytest.mark.parametrize("cmd, call", [
    (SET_SLOT_DO, lambda d: d.DIO_setPortDO(0)),
    (SET_DIO_CURRENT, lambda d: d.DO_closePort(0)),
    (SAVE_DIO_STARTUP, lambda d: d.DIO_saveStartup(0, 1, 1, 1)),
])
@pytest.mark.parametrize("status, code", [(11, -7001), (50, -7015), (200, -7028)])
def test_firmware_statuses_come_back_as_negative_codes(dio_x, cmd, call, status, code):
    dev, s = dio_x
    s.set_handler(cmd, lambda ctx, req: ctx.reply(bytes([req.data[0], status])))
    assert call(dev) == code
    assert last(s)[0] == cmd


def test_state_replies_look_at_no_status(dio_x):
    dev, s = dio_x
    s.set_handler(SET_AND_WRITE_DO, lambda ctx, req: ctx.reply(bytes([11, 0x00, 0x81])))
    assert dev.DO_writePort(0, 1) == 0  # the written state is dropped
    assert dev._setAndWriteDO(0, 0xFFFF, 1) == [1, 0, 0, 0, 0, 0, 0, 1]
    s.set_handler(READ_AND_GET_DI, lambda ctx, req: ctx.reply(bytes([0, 0x01])))
    with pytest.raises(pyorv.ReplyFormatError):
        dev.DI_readPort(2)


def test_trellis_lists_have_twelve_entries(pair):
    dev, s = pair("Trellis")
    s.state_set("dio.inputs.4", 0x0801)
    assert dev.DI_readPort(4) == [1] + [0] * 10 + [1]
    assert dev.DI_readPins(4, [11, 0, 11, 1]) == [1, 1, 1, 0]  # in the order named
    assert last(s) == (READ_AND_GET_DI, bytes([4, 0x08, 0x03]))


# ---- an output wired to an input -------------------------------------------------------

def test_loopback_blocking(dio_x):
    dev, s = dio_x
    s.state_set("dio.loopback", [[0, 3, 2, 5], [1, 0, 3, 0]])
    assert dev.DO_openPins(0, [3]) == 0 and dev.DI_openPins(2, [5]) == 0
    assert dev.DI_readPins(2, [5]) == [0]
    dev.DO_writePins(0, [3], [1])
    assert dev.DI_readPins(2, [5]) == [1]
    assert dev.DI_readPort(2) == [0, 0, 0, 0, 0, 1, 0, 0]
    dev.DO_togglePins(0, 1 << 3)
    assert dev.DI_readPins(2, [5]) == [0]
    dev.DO_writePort(1, 1)
    assert dev.DI_readPort(3) == [1] + [0] * 7


def test_loopback_awaitable(dio_x):
    dev, s = dio_x
    s.state_set("dio.loopback", [[1, 7, 3, 2]])

    async def run():
        assert await dev.DO_openPort_async(1) == 0
        assert await dev.DI_openPort_async(3) == 0
        before = await dev.DI_readPins_async(3, [2])
        await dev.DO_writePins_async(1, 0x80, 0x80)
        after = await dev.DI_readPort_async(3)
        toggled = await dev.DO_togglePort_async(1)
        return before, after, toggled, await dev.DI_readPins_async(3, [2])

    before, after, toggled, again = asyncio.run(run())
    assert before == [0] and after == [0, 0, 1, 0, 0, 0, 0, 0]
    assert toggled == [1] * 7 + [0] and again == [0]
    assert asyncio.run(dev.DO_getPinMap_async()) == {0: list(range(8)), 1: list(range(8))}
    assert dev.DI_getPinMap() == {2: list(range(8)), 3: list(range(8))}
