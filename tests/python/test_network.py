"""Network and Wi-Fi settings against simulated devices: address, mask,
gateway and MAC read and written (and a new address seen by discovery), the
MAC text form, the Wi-Fi LEDs' masks, power lines, bandwidth clamp, radio
configuration, RSSI sign, and firmware statuses as negative codes."""

import pytest

import pyorv
from conftest import answer, refuses, run, wire

SET_AP, GET_RSSI, SET_WIFI_CONFIGURATION, GET_WIFI_CONFIGURATION = 112, 113, 116, 117
SET_WIFI_BANDWIDTH, GET_WIFI_BANDWIDTH, GET_GATEWAY, SET_GATEWAY = 118, 119, 124, 125
READ_AND_GET_DI, SET_AND_WRITE_DO = 233, 234
GET_IP, SET_IP, GET_MAC, SET_MAC = 243, 244, 245, 246


# ---- addressing --------------------------------------------------------------------------

def test_address_and_mask_read_by_both_names(trellis):
    dev, s = trellis
    assert dev.Net_getIPAddrAndSubmask() == ["127.0.0.1", "255.255.255.0"]
    assert dev.subnet_mask == "255.255.255.0"
    assert dev.Sys_getIPAddrAndSubmask(timeout=2) == ["127.0.0.1", "255.255.255.0"]
    assert run(dev.Net_getIPAddrAndSubmask_async()) == ["127.0.0.1", "255.255.255.0"]
    assert wire(s) == [(GET_IP, b"")] * 3


def test_new_address_is_read_back_and_shared_with_the_device(trellis):
    # (Discovery reporting a changed address: test_discovery.)
    dev, s = trellis
    assert dev.Net_setIPAddrAndSubmask("127.0.0.9", "255.255.0.0") == 0
    assert wire(s) == [(SET_IP, bytes([127, 0, 0, 9, 255, 255, 0, 0]))]
    assert s.ip_addr == "127.0.0.9" and s.subnet_mask == "255.255.0.0"
    assert dev.ip_addr == "127.0.0.1"  # the address connected to, until a read
    assert dev.Net_getIPAddrAndSubmask() == ["127.0.0.9", "255.255.0.0"]
    assert dev.ip_addr == "127.0.0.9"  # one attribute with the device's address
    # The text forms are those of inet_aton (test_convert).
    assert run(dev.Sys_setIPAddrAndSubmask_async("1.2.3", "255.0.0.0")) == 0
    assert wire(s)[-1] == (SET_IP, bytes([1, 2, 0, 3, 255, 0, 0, 0]))


@pytest.mark.parametrize("call, error", [
    (lambda d: d.Net_setIPAddrAndSubmask(167772161, "255.0.0.0"), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Net_setIPAddrAndSubmask("10.0.0.1", None), pyorv.InputTypeNotCorrectError),
    (lambda d: d.Net_setIPAddrAndSubmask("10.0.0.256", "255.0.0.0"), OSError),
    (lambda d: d.Sys_setIPAddrAndSubmask("10.0.0.1", "mask"), OSError),
    (lambda d: d._setGateway(b"10.0.0.1"), pyorv.InputTypeNotCorrectError),
    (lambda d: d._setMACAddr(["02", "4f"]), pyorv.InputTypeNotCorrectError),
    (lambda d: d._setMACAddr("02:4f:52:56:00:zz"), ValueError),
    (lambda d: d._setMACAddr("02:4f:52:56:00:1ff"), ValueError),  # not a byte
    (lambda d: run(d._setGateway_async("a.b.c.d")), OSError),
    (lambda d: d.Wifi_setGreenLED("on"), TypeError),
    (lambda d: d._setWifiConfiguration(3, 1.5), pyorv.InputTypeNotCorrectError),
    *[(call, error) for value, error in ((1.0, pyorv.InputTypeNotCorrectError),
                                         ("1", pyorv.InputTypeNotCorrectError), (-1, ValueError))
      for call in (lambda d, v=value: d.Wifi_setBandwidth(v),
                   lambda d, v=value: run(d.Wifi_setBandwidth_async(v)))],
])
def test_argument_errors_send_nothing(heron, call, error):
    dev, s = heron
    refuses(s, error, lambda: call(dev))


def test_gateway_read_set_and_read_back(trellis):
    dev, s = trellis
    assert dev.Net_getGateway() == "127.0.0.254" == dev.gateway
    assert dev._setGateway("10.20.30.1") == 0
    assert dev.Sys_getGateway() == "10.20.30.1" == dev.gateway
    assert wire(s) == [(GET_GATEWAY, b""), (SET_GATEWAY, bytes([10, 20, 30, 1])),
                       (GET_GATEWAY, b"")]


def test_mac_text_has_no_leading_zeros_and_a_short_mac_is_refused(trellis):
    dev, s = trellis
    assert dev.Net_getMACAddr() == "2:4f:52:56:0:a" == dev.mac_addr  # byte 10 is "a"
    assert dev._setMACAddr("0A:0B:0C:00:FF:10") == 0
    assert wire(s)[-1] == (SET_MAC, bytes([10, 11, 12, 0, 255, 16]))
    assert run(dev.Sys_getMACAddr_async()) == "a:b:c:0:ff:10" == dev.mac_addr
    assert wire(s)[-1] == (GET_MAC, b"")
    # Too few parts: sent, and refused by the firmware.
    assert dev._setMACAddr("aa:bb") == pyorv.errFirmwareParser
    assert wire(s)[-1] == (SET_MAC, b"\xaa\xbb")
    assert dev.Net_getMACAddr() == "a:b:c:0:ff:10"  # unchanged


@pytest.mark.parametrize("call, cmd, status, code", [
    (lambda d: d.Net_setIPAddrAndSubmask("10.0.0.2", "255.0.0.0"), SET_IP, 71,
     pyorv.errFirmwareTCP),
    (lambda d: d._setGateway("10.0.0.1"), SET_GATEWAY, 80, pyorv.errFirmwareParser),
    (lambda d: run(d._setMACAddr_async("2:0:0:0:0:1")), SET_MAC, 40, pyorv.errFirmwareEEPROM),
])
def test_network_firmware_status_becomes_a_negative_code(trellis, call, cmd, status, code):
    dev, s = trellis
    s.set_handler(cmd, answer([status]))
    assert call(dev) == code
    assert s.ip_addr == "127.0.0.1"  # the override answered; nothing was applied


def test_short_address_reply_is_a_format_error(trellis):
    dev, s = trellis
    s.set_handler(GET_IP, answer([127, 0, 0, 1, 255, 255, 255]))
    with pytest.raises(pyorv.ReplyFormatError):
        dev.Net_getIPAddrAndSubmask()
    s.set_handler(GET_MAC, answer([1, 2, 3, 4, 5]))
    with pytest.raises(pyorv.ReplyFormatError):
        dev.Net_getMACAddr()


# ---- Wi-Fi: LEDs and power lines ---------------------------------------------------------

@pytest.mark.parametrize("call, mask, state", [
    (lambda d: d.Wifi_setRedLED(1), 1, 1),
    (lambda d: d.Wifi_setRedLED(-1), 1, 0),
    (lambda d: d.Wifi_setGreenLED(3), 2, 2),
    (lambda d: d.Wifi_setGreenLED(0.5), 2, 2),
    (lambda d: d.Wifi_setBlueLED(5), 4, 4),
    (lambda d: d.Wifi_setBlueLED(0), 4, 0),
    (lambda d: d.Wifi_resetLED(), 7, 0),
    (lambda d: run(d.Wifi_setBlueLED_async(True)), 4, 4),
])
def test_led_writes_port_0_with_the_pin_mask(heron, call, mask, state):
    dev, s = heron
    assert call(dev) == 0
    assert wire(s) == [(SET_AND_WRITE_DO, bytes([0, 0, mask, 0, state]))]


def test_simulated_board_keeps_the_led_latch_and_power_lines(heron):
    dev, s = heron
    dev.Wifi_setBlueLED(5)
    dev.Wifi_setRedLED(1)
    assert s.state_get("wifi.leds") == 5
    dev.Wifi_resetLED()
    assert s.state_get("wifi.leds") == 0
    s.state_set("wifi.charging", 1)
    assert dev.Wifi_getChargeStatus() == 1 and dev.Wifi_getPowerGoodStatus() == 1
    s.set_handler(SET_AND_WRITE_DO, answer([0x55]))  # the LED result is 0 whatever the reply
    assert dev.Wifi_setRedLED(1) == 0 and dev.Wifi_resetLED() == 0


@pytest.mark.parametrize("word, power_good, charging", [
    (0x0000, 0, 0), (0x0001, 1, 0), (0x0002, 0, 1), (0x0003, 1, 1), (0xFFFC, 0, 0),
])
def test_power_lines_read_bits_0_and_1_of_input_port_1(heron, word, power_good, charging):
    dev, s = heron
    s.set_handler(READ_AND_GET_DI, answer([1, word >> 8, word & 0xFF]))
    assert dev.Wifi_getPowerGoodStatus() == power_good
    assert run(dev.Wifi_getChargeStatus_async()) == charging
    assert wire(s) == [(READ_AND_GET_DI, b"\x01\x00\x01"), (READ_AND_GET_DI, b"\x01\x00\x02")]


# ---- Wi-Fi: radio settings ---------------------------------------------------------------

@pytest.mark.parametrize("value, sent", [(0, 0), (1, 1), (7, 1), (True, 1)])
def test_bandwidth_is_clamped_to_1_and_read_back(heron, value, sent):
    dev, s = heron
    assert dev.Wifi_setBandwidth(value) == 0
    assert dev.Wifi_getWifiBandWidth() == sent == dev.bandwidth
    assert wire(s) == [(SET_WIFI_BANDWIDTH, bytes([sent])), (GET_WIFI_BANDWIDTH, b"")]


def test_wifi_configuration_words(heron):
    dev, s = heron
    assert dev.Wifi_getWifiConfiguration() == [5, 60]
    assert dev._setWifiConfiguration(3, 300) == 0
    assert run(dev.Wifi_getWifiConfiguration_async()) == [3, 300]
    assert dev._setWifiConfiguration(70000, -1) == 0  # 16-bit words wrap
    assert dev.Wifi_getWifiConfiguration() == [70000 - 65536, 65535]
    assert wire(s)[1] == (SET_WIFI_CONFIGURATION, bytes([0, 3, 1, 44]))
    assert wire(s)[3] == (SET_WIFI_CONFIGURATION, bytes([0x11, 0x70, 0xFF, 0xFF]))


@pytest.mark.parametrize("byte, dbm", [(200, -56), (255, -1), (0, -256)])
def test_rssi_is_the_reply_byte_less_256(heron, byte, dbm):
    dev, s = heron
    s.set_handler(GET_RSSI, answer([byte]))
    assert dev.Wifi_readRSSI() == dbm == dev.rssi
    assert run(dev.Wifi_readRSSI_async()) == dbm


def test_simulated_rssi_access_point_and_network_settings(heron):
    dev, s = heron
    assert dev.Net_getIPAddrAndSubmask() == ["127.0.0.1", "255.255.255.0"]
    assert dev.Net_getMACAddr() == "2:4f:52:56:0:1"
    assert dev.Wifi_readRSSI() == -56
    s.state_set("wifi.rssi", -90)
    assert dev.Wifi_readRSSI() == -90
    assert dev.Wifi_setAP() == 0
    assert s.state_get("wifi.ap_mode") is True
    assert wire(s)[-1] == (SET_AP, b"")
    s.set_handler(SET_AP, answer([71]))
    assert run(dev.Wifi_setAP_async()) == pyorv.errFirmwareTCP
