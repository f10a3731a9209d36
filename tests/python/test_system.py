"""System services against simulated devices: identity, the real-time clock
and its year offsets, pin and slot modes, reboot, EEPROM and factory
services, and the board sensors of the Wi-Fi analog models.  Wire bytes,
decoded results, argument errors that send nothing, and firmware statuses
returned as negative codes."""

import datetime
import re

import pytest

import pyorv
from conftest import answer, refuses, run, wait_until, wire

RESET_FACTORY, GET_SERIAL_NUMBER, SET_SERIAL_NUMBER, GET_THREADS = 121, 122, 123, 126
GET_PIN_MODE_OF_SLOT, GET_DATE_TIME, SET_DATE_TIME = 127, 241, 242
GET_EEPROM_PAGE, SET_EEPROM_PAGE, GET_EEPROM_DEVICE, SET_EEPROM_BYTE = 247, 248, 249, 255
REBOOT, REBOOT_ON_BOOTLOADER, GET_SLOT_MODE, SET_SLOT_MODE = 250, 251, 2054, 2055
READ_ACCELERATION, GET_BATTERY, GET_THERMOMETER, AI_RESET_BUFFER = 111, 114, 115, 8213

RTC_FORMAT = re.compile(r"^\d{4}-\d{2}-\d{2}, \d{2}:\d{2}:\d{2}$")


# ---- identity ----------------------------------------------------------------------------

def test_driver_info_split_the_service_form_unsplit_and_the_python_version(trellis):
    dev, s = trellis
    text = s.config.driver_info
    assert dev.Sys_getDriverInfo() == text.split("_")
    assert dev.driver_info == text.split("_")
    assert dev._getDriverInfo_dev(3) == text
    assert dev.driver_info == text  # the service form keeps the whole text
    assert wire(s) == [(pyorv.GET_DRIVER_INFO, b"\x00"), (pyorv.GET_DRIVER_INFO, b"\x03")]
    # The Python version is answered without an exchange.
    assert dev.Sys_getPythonVersion() == pyorv.__version__ == "3.0.19"
    assert dev.Sys_getPythonVersion(timeout=0.001) == "3.0.19"  # the timeout has no effect
    assert run(dev.Sys_getPythonVersion_async()) == "3.0.19"
    assert len(s.packets()) == 2


@pytest.mark.parametrize("call, cmd", [
    pytest.param(lambda d: d.Sys_getDriverInfo(), pyorv.GET_DRIVER_INFO, id="driver_info"),
    pytest.param(lambda d: d._getDriverInfo_dev(0), pyorv.GET_DRIVER_INFO, id="driver_info_dev"),
    pytest.param(lambda d: d.Sys_getSerialNumber(), GET_SERIAL_NUMBER, id="serial_number"),
    pytest.param(lambda d: d._getThreads(), GET_THREADS, id="threads"),
    pytest.param(lambda d: run(d._getThreads_async()), GET_THREADS, id="threads_async"),
])
def test_reply_text_that_is_no_utf8_is_a_reply_format_error(trellis, call, cmd):
    dev, s = trellis
    s.set_handler(cmd, answer(b"ok\xff\xfe"))
    with pytest.raises(pyorv.ReplyFormatError, match=f"command {cmd} .*0xff"):
        call(dev)


def test_serial_number_set_and_read_back(trellis):
    dev, s = trellis
    assert dev.Sys_getSerialNumber() == s.config.serial == dev.serial_number
    assert dev._setSerialNumber("AB12") == 0
    assert wire(s)[-1] == (SET_SERIAL_NUMBER, b"AB12")
    # The firmware pads its 8 bytes with blanks; the driver keeps them.
    assert dev.Sys_getSerialNumber() == "AB12    " == dev.serial_number
    assert run(dev.Sys_getSerialNumber_async()) == "AB12    "
    assert wire(s)[-1] == (GET_SERIAL_NUMBER, b"")
    # Longer than the firmware keeps: its EEPROM status comes back as a code.
    assert dev._setSerialNumber("123456789") == pyorv.errFirmwareEEPROM
    s.clear_packets()
    refuses(s, TypeError, lambda: dev._setSerialNumber(1234))
    refuses(s, ValueError, lambda: dev._setSerialNumber("\u20ac"))  # beyond one byte


# ---- real-time clock ---------------------------------------------------------------------

@pytest.mark.parametrize("model, first_byte, shown", [
    ("HeronAin", 24, "2024-01-02, 03:04:05"),
    ("Trellis", 124, "2024-01-02, 03:04:05"),
    ("HeronAin", 124, "2124-01-02, 03:04:05"),
    ("Trellis", 24, "1924-01-02, 03:04:05"),
], indirect=["model"])
def test_rtc_year_byte_counts_from_2000_on_heron_and_1900_elsewhere(model, first_byte, shown):
    dev, s = model
    s.set_handler(GET_DATE_TIME, answer([first_byte, 1, 2, 3, 4, 5]))
    assert dev.Sys_getRTC() == shown == dev.rtc_time
    assert run(dev.Sys_getRTC_async()) == shown
    assert wire(s) == [(GET_DATE_TIME, b"\x00")] * 2


def test_simulated_clock_shows_the_current_year_and_runs_over_a_leap_day(trellis, heron):
    utc = datetime.datetime.now(datetime.timezone.utc)
    for dev, _ in (trellis, heron):
        text = dev.Sys_getRTC()
        assert RTC_FORMAT.match(text)
        read = datetime.datetime.strptime(text, "%Y-%m-%d, %H:%M:%S").replace(
            tzinfo=datetime.timezone.utc)
        assert abs((read - utc).total_seconds()) < 60
    dev, _ = trellis
    assert dev.Sys_setRTC(2024, 2, 29, 23, 59, 59) == 0
    assert wait_until(lambda: dev.Sys_getRTC(timeout=0.3) == "2024-03-01, 00:00:00", 4.0)


# The driver writes year - 1900 on every model; the Heron clock reads the
# byte from 2000, so 2024 comes back as 2124 there.
@pytest.mark.parametrize("model, year, read", [
    ("Trellis", 24, "2024"), ("Trellis", 2024, "2024"), ("HeronAin", 2024, "2124"),
], indirect=["model"])
def test_set_rtc_sends_year_from_1900_both_forms(model, year, read):
    dev, s = model
    assert dev.Sys_setRTC(year, 1, 2, 3, 4, 5) == 0
    assert run(dev.Sys_setRTC_async(year, 1, 2, 3, 4, 5)) == 0
    assert wire(s) == [(SET_DATE_TIME, bytes([124, 1, 2, 3, 4, 5]))] * 2
    assert dev.Sys_getRTC()[:-1] == f"{read}-01-02, 03:04:0"


RTC_ARGS = (2024, 1, 2, 3, 4, 5)


@pytest.mark.parametrize("args, error", [
    *[(RTC_ARGS[:i] + (float(RTC_ARGS[i]),) + RTC_ARGS[i + 1:], pyorv.InputTypeNotCorrectError)
      for i in range(6)],                      # a float anywhere
    (("2024", 1, 2, 3, 4, 5), TypeError),      # the year is compared with 100 first
    ((2024, 1, 2, 3, 4, "5"), pyorv.InputTypeNotCorrectError),
    ((2024, 256, 2, 3, 4, 5), ValueError),     # not a byte
    ((1899, 1, 2, 3, 4, 5), ValueError),       # the year byte would be negative
])
def test_set_rtc_argument_errors_send_nothing(trellis, args, error):
    dev, s = trellis
    refuses(s, error, lambda: dev.Sys_setRTC(*args), lambda: run(dev.Sys_setRTC_async(*args)))


def test_set_rtc_refused_by_the_firmware_returns_the_rtc_code(trellis, heron):
    for (dev, _), args in ((trellis, (2023, 2, 29, 0, 0, 0)),  # no such day
                           (trellis, (2024, 1, 2, 24, 0, 0)),
                           (heron, (2024, 13, 1, 0, 0, 0))):   # no such month
        assert dev.Sys_setRTC(*args) == pyorv.errFirmwareRTC
    assert wire(trellis[1]) == [(SET_DATE_TIME, bytes([123, 2, 29, 0, 0, 0])),
                                (SET_DATE_TIME, bytes([124, 1, 2, 24, 0, 0]))]
    assert len(heron[1].packets()) == 1


# ---- pin modes ---------------------------------------------------------------------------

def test_pin_modes_of_a_trellis_port_after_power_up(trellis):
    dev, s = trellis
    assert dev.Sys_getPinModeInPort(3) == ["Idle"] * 12
    assert dev.num_of_pins == 12 and dev.pin_mode_list == [1] * 12
    assert run(dev.Sys_getPinModeInPort_async(0)) == ["Idle"] * 12
    assert wire(s) == [(GET_PIN_MODE_OF_SLOT, b"\x03"), (GET_PIN_MODE_OF_SLOT, b"\x00")]
    # A port the model does not have holds no pin.
    assert dev.Sys_getPinModeInPort(9) == [] and dev.num_of_pins == 0


def test_pin_modes_decoding_with_an_odd_pin_count(trellis):
    dev, s = trellis
    # 5 pins, an unread byte, then low half first; the high half of the last
    # byte gives a sixth mode.
    s.set_handler(GET_PIN_MODE_OF_SLOT, answer([5, 0xEE, 0x21, 0x43, 0x95]))
    assert dev.Sys_getPinModeInPort(1) == ["Idle", "DI", "DO", "UART", "I2C", "ADC"]
    assert dev.num_of_pins == 5
    assert dev.pin_mode_list == [1, 2, 3, 4, 5, 9]
    s.set_handler(GET_PIN_MODE_OF_SLOT, answer([2, 0, 0x76, 0x08]))  # extra bytes unread
    assert dev.Sys_getPinModeInPort(1) == ["SPI", "CAN"]
    assert dev.pin_mode_list == [6, 7]
    s.set_handler(GET_PIN_MODE_OF_SLOT, answer([1, 0, 0x80]))
    assert dev.Sys_getPinModeInPort(1) == ["Disabled", "PWM"]
    for reply in ([2, 0, 0xA1], [3, 0, 0x11], []):  # outside the vocabulary, or short
        s.set_handler(GET_PIN_MODE_OF_SLOT, answer(reply))
        with pytest.raises(pyorv.ReplyFormatError):
            dev.Sys_getPinModeInPort(0)


# ---- Trellis slot modes ------------------------------------------------------------------

@pytest.mark.parametrize("mode, name", enumerate(
    ["Idle", "DI", "DO", "DIO", "Motion", "AIO", "Switch"]))
@pytest.mark.parametrize("slot", [1, 2, 4])
def test_slot_mode_setters_send_twice_the_port_and_their_mode(trellis, mode, name, slot):
    dev, s = trellis
    assert getattr(dev, f"Sys_set{name}Mode")(slot) == 0
    assert dev.Sys_getMode(slot) == [name]
    port = slot - 1
    assert wire(s) == [(SET_SLOT_MODE, bytes([2 * port, mode])), (GET_SLOT_MODE, bytes([port]))]


def test_slot_mode_status_as_the_firmware_sent_it_and_decoding(trellis, heron):
    dev, s = trellis
    s.set_handler(SET_SLOT_MODE, answer([10]))
    assert dev.Sys_setDIMode(1) == 10  # not turned into a negative code
    hdev, _ = heron
    assert hdev.Sys_setDOMode(2) == 11  # a model without slots: the firmware's index error
    assert hdev.Sys_getMode(2) == []
    # Decoding masks the high half.
    s.set_handler(GET_SLOT_MODE, answer([3, 0x11, 0x05, 0xF6, 0x99]))
    assert dev.Sys_getMode(4) == ["DI", "AIO", "Switch"]
    s.set_handler(GET_SLOT_MODE, answer([2, 0x01, 0x07]))
    with pytest.raises(pyorv.ReplyFormatError):
        dev.Sys_getMode(4)


# ---- reboot ------------------------------------------------------------------------------

@pytest.mark.parametrize("name, cmd", [("Sys_reboot", REBOOT),
                                       ("Sys_rebootOnBootloader", REBOOT_ON_BOOTLOADER)])
def test_reboot_sends_its_own_command_value_and_the_device_restarts(trellis, name, cmd):
    dev, s = trellis
    assert getattr(dev, name)() == 0
    assert wire(s) == [(cmd, bytes([cmd]))]
    assert wait_until(lambda: s.reboot_count == 1)
    # The link went down with the reboot; a new connection is served.
    dev.disconnect(verbose=False)
    dev.connect(s.host, s.cmd_port, verbose=False)
    assert RTC_FORMAT.match(dev.Sys_getRTC())


# ---- EEPROM and factory services ---------------------------------------------------------

def test_eeprom_pages_bytes_and_device(trellis):
    dev, s = trellis
    assert dev._getEEPROMDevice(0) == [0, 1, 0, 32]  # 256 pages of 32 bytes
    assert dev._getEEPROMPage(5) == [0xFF] * 32
    assert dev._setEEPROMPage(5, [1, 2, 3]) == 0
    assert dev._setEEPROMByte(5, 31, 7) == 0
    assert run(dev._getEEPROMPage_async(5)) == [1, 2, 3] + [0xFF] * 28 + [7]
    assert wire(s)[:5] == [
        (GET_EEPROM_DEVICE, b"\x00"), (GET_EEPROM_PAGE, b"\x05"),
        (SET_EEPROM_PAGE, b"\x05\x01\x02\x03"), (SET_EEPROM_BYTE, b"\x05\x1f\x07"),
        (GET_EEPROM_PAGE, b"\x05"),
    ]
    # Beyond the page: the firmware's EEPROM status as a code.
    assert dev._setEEPROMByte(5, 32, 7) == pyorv.errFirmwareEEPROM
    assert dev._setEEPROMPage(5, [0] * 33) == pyorv.errFirmwareEEPROM
    assert dev._setEEPROMPage(5, []) == pyorv.errFirmwareParser


def test_reset_factory_erases_settings_and_threads_are_listed(trellis):
    dev, s = trellis
    assert dev._setEEPROMByte(0, 0, 0x42) == 0
    assert dev.Sys_setMotionMode(4) == 0
    assert dev._resetFactory() == 0
    assert wire(s)[-1] == (RESET_FACTORY, b"")
    assert dev._getEEPROMPage(0)[0] == 0xFF
    assert dev.Sys_getMode(4) == ["Idle"]
    text = dev._getThreads()
    assert text == dev.thread_info
    assert text.splitlines()[0].split("\t") == ["Name", "State", "Prio", "Stack", "Num"]
    assert any(line.startswith("cmd_task\t") for line in text.splitlines())
    assert wire(s)[-1] == (GET_THREADS, b"")


@pytest.mark.parametrize("call, cmd, status, code", [
    (lambda d: d.Sys_setRTC(2024, 1, 2, 3, 4, 5), SET_DATE_TIME, 21, pyorv.errFirmwareI2C),
    (lambda d: d._resetFactory(), RESET_FACTORY, 40, pyorv.errFirmwareEEPROM),
    (lambda d: d.Sys_reboot(), REBOOT, 42, pyorv.errFirmwareCore),
    (lambda d: run(d.Sys_rebootOnBootloader_async()), REBOOT_ON_BOOTLOADER, 73,
     pyorv.errFirmwareBootloader),
    (lambda d: d._setSerialNumber("X"), SET_SERIAL_NUMBER, 99, pyorv.errFirmwareOther),
    (lambda d: run(d._setEEPROMByte_async(1, 1, 1)), SET_EEPROM_BYTE, 40,
     pyorv.errFirmwareEEPROM),
])
def test_firmware_status_at_offset_0_becomes_a_negative_code(trellis, call, cmd, status, code):
    dev, s = trellis
    s.set_handler(cmd, answer([status, 0xAA]))  # the status is byte 0
    assert call(dev) == code
    assert s.reboot_count == 0


def test_awaitable_twins_take_no_timeout_the_blocking_ones_do(trellis):
    dev, s = trellis
    refuses(s, TypeError, lambda: dev.Sys_getRTC_async(timeout=1),
            lambda: dev.Sys_setDOMode_async(2, timeout=1))
    s.faults.never_answer = {GET_DATE_TIME}
    with pytest.raises(pyorv.ReceivePacketTimeoutError):
        dev.Sys_getRTC(timeout=0.3)
    assert len(s.packets()) == 3  # three attempts of a third of the timeout


# ---- argument errors of the pin, slot and EEPROM services ---------------------------------

@pytest.mark.parametrize("call, error", [
    (lambda d: d.Sys_getPinModeInPort(1.0), pyorv.InputTypeNotCorrectError),
    (lambda d: run(d.Sys_getPinModeInPort_async("1")), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Sys_getPinModeInPort(300), ValueError),
    # Trellis slot 3 and the slots beyond 1 to 4
    *[(call, pyorv.TrellisPortNotAvaliableError) for call in (
        lambda d: d.Sys_getMode(3), lambda d: d.Sys_setDOMode(3), lambda d: d.Sys_setIdleMode(0),
        lambda d: d.Sys_setSwitchMode(5), lambda d: d._Sys_setSlotMode(3, 1),
        lambda d: d._checkTrellisSlot(3), lambda d: run(d.Sys_getMode_async(3)),
        lambda d: run(d.Sys_setAIOMode_async(3)))],
    (lambda d: d.Sys_getMode(2.0), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Sys_setDIMode("2"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Sys_getMode(None), pyorv.InputTypeNotCorrectError),
    (lambda d: d._setEEPROMPage(1, [256]), ValueError),
    (lambda d: d._setEEPROMPage(1, 5), TypeError),
    (lambda d: d._setEEPROMByte(1, 2, -1), ValueError),
    (lambda d: d._getEEPROMPage(1.0), TypeError),
])
def test_argument_errors_send_nothing(trellis, call, error):
    dev, s = trellis
    refuses(s, error, lambda: call(dev))
    dev._checkTrellisSlot(True)  # a bool is an int, and True is slot 1


# ---- board sensors of the Wi-Fi analog models --------------------------------------------

def test_board_sensors_and_ai_buffer_reset(heron):
    # Acceleration words are read unsigned; the twin is spelled without e.
    dev, s = heron
    assert dev.Wifi_readAcceleration() == [65516, 5, 16384]  # -20 seen as unsigned
    s.state_set("wifi.accel", [1, -1, 300])
    assert run(dev.Wifi_readAccleration_async()) == [1, 65535, 300]
    assert not hasattr(dev, "Wifi_readAcceleration_async")
    assert dev.Wifi_readBattery() == 4012 == dev.battery
    assert dev.Wifi_readThermo() == 25.5 == dev.thermo
    s.state_set("wifi.thermo_raw", -640)
    assert run(dev.Wifi_readThermo_async()) == -5.0 == dev.thermo
    s.state_set("wifi.battery", 65535)
    assert dev.Wifi_readBattery() == 65535
    assert dev._Wifi_resetAIBuffer() == 0
    assert wire(s) == [(READ_ACCELERATION, b"")] * 2 + [
        (GET_BATTERY, b""), (GET_THERMOMETER, b""), (GET_THERMOMETER, b""), (GET_BATTERY, b""),
        (AI_RESET_BUFFER, b"\x00")]
    s.set_handler(AI_RESET_BUFFER, answer([52]))
    assert dev._Wifi_resetAIBuffer() == pyorv.errFirmwareAI
