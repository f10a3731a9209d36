// WifiModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/wifi.hpp"

namespace orv::py_bind {

namespace {

void bindWifi(py::module_& m) {
  using namespace pybind11::literals;
  using S = WifiModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "WifiModule");
  defTwin(cls, "Wifi_getPowerGoodStatus", &S::Wifi_getPowerGoodStatus);
  defTwin(cls, "Wifi_getChargeStatus", &S::Wifi_getChargeStatus);
  defTwin(cls, "Wifi_resetLED", &S::Wifi_resetLED);
  defTwin(cls, "Wifi_setRedLED", &S::Wifi_setRedLED, "value"_a);
  defTwin(cls, "Wifi_setGreenLED", &S::Wifi_setGreenLED, "value"_a);
  defTwin(cls, "Wifi_setBlueLED", &S::Wifi_setBlueLED, "value"_a);
  defTwin(cls, "Wifi_getWifiBandWidth", &S::Wifi_getWifiBandWidth);
  defTwin(cls, "Wifi_getWifiConfiguration", &S::Wifi_getWifiConfiguration);
  defTwin(cls, "Wifi_readRSSI", &S::Wifi_readRSSI);
  defTwin(cls, "Wifi_setAP", &S::Wifi_setAP);
  defTwin(cls, "Wifi_setBandwidth", &S::Wifi_setBandwidth, "bandwidth"_a);
  defTwin(cls, "_setWifiConfiguration", &S::_setWifiConfiguration, "retry_wifi_times"_a,
          "ap_time"_a);
  defAttr(cls, "bandwidth", &S::bandwidth);
  defAttr(cls, "rssi", &S::rssi);
}

const BindingRegistrar kWifi{{.name = "WifiModule", .module = "Wifi", .bind = &bindWifi}};

}  // namespace

}  // namespace orv::py_bind
