// WifiModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/wifi.hpp"

namespace orv::py_bind {

namespace {

void bindWifi(py::module_& m) {
  using S = WifiModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "WifiModule",
                                        "The Wi-Fi models' LEDs, power state and radio settings.");
  const Arg led{"value", kInt, "above 0 lights the LED, 0 or below turns it off"};
  const Result zero{kInt, "always 0 (the reply is not read)"};
  defTwin(cls, &S::Wifi_getPowerGoodStatus,
          {"Wifi_getPowerGoodStatus", "Reads the power-good line.", {}, {kInt, "0 or 1"}});
  defTwin(cls, &S::Wifi_getChargeStatus,
          {"Wifi_getChargeStatus", "Reads the battery charge line.", {}, {kInt, "0 or 1"}});
  defTwin(cls, &S::Wifi_resetLED, {"Wifi_resetLED", "Turns the three LEDs off.", {}, zero});
  defTwin(cls, &S::Wifi_setRedLED, {"Wifi_setRedLED", "Turns the red LED on or off.", {led}, zero});
  defTwin(cls, &S::Wifi_setGreenLED,
          {"Wifi_setGreenLED", "Turns the green LED on or off.", {led}, zero});
  defTwin(cls, &S::Wifi_setBlueLED,
          {"Wifi_setBlueLED", "Turns the blue LED on or off.", {led}, zero});
  defTwin(cls, &S::Wifi_getWifiBandWidth,
          {"Wifi_getWifiBandWidth",
           "Reads the radio bandwidth setting.",
           {},
           {kInt, "the firmware's bandwidth number, 0..255; also kept in bandwidth"}});
  defTwin(cls, &S::Wifi_getWifiConfiguration,
          {"Wifi_getWifiConfiguration",
           "Reads the radio configuration.",
           {},
           {kInts, "[retry_wifi_times, ap_time], 16-bit each"}});
  defTwin(cls, &S::Wifi_readRSSI,
          {"Wifi_readRSSI",
           "Reads the received signal strength.",
           {},
           {kInt, "the reading less 256, -256..-1; also kept in rssi"}});
  defTwin(cls, &S::Wifi_setAP,
          {"Wifi_setAP", "Switches the device into access-point mode.", {}, {kInt, kStatusText}});
  defTwin(cls, &S::Wifi_setBandwidth,
          {"Wifi_setBandwidth",
           "Sets the radio bandwidth.",
           {{"bandwidth", kInt, "0 or 1; a larger number is sent as 1"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: bandwidth is not an int."});
  defTwin(cls, &S::_setWifiConfiguration,
          {"_setWifiConfiguration",
           "Writes the radio configuration.",
           {{"retry_wifi_times", kInt, "0..65535"}, {"ap_time", kInt, "0..65535"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: an argument that is not an int."});
  defAttr(cls, "bandwidth", &S::bandwidth);
  defAttr(cls, "rssi", &S::rssi);
}

const BindingRegistrar kWifi{{.name = "WifiModule", .module = "Wifi", .bind = &bindWifi}};

}  // namespace

}  // namespace orv::py_bind
