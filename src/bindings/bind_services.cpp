// SystemAnalogModule, NetworkModule and WifiModule as the host sees them:
// one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/network.hpp"
#include "services/system_analog.hpp"
#include "services/wifi.hpp"

namespace orv::py_bind {

namespace {

void bindSystemAnalog(py::module_& m) {
  using S = SystemAnalogModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "SystemAnalogModule");
  defTwin(cls, "Wifi_readAcceleration", &S::Wifi_readAcceleration,
          TwinOptions{.async_name = "Wifi_readAccleration_async"});
  defTwin(cls, "Wifi_readBattery", &S::Wifi_readBattery);
  defTwin(cls, "Wifi_readThermo", &S::Wifi_readThermo);
  defTwin(cls, "_Wifi_resetAIBuffer", &S::Wifi_resetAIBuffer_);
  defAttr(cls, "battery", &S::battery);
  defAttr(cls, "thermo", &S::thermo);
}

void bindNetwork(py::module_& m) {
  using namespace pybind11::literals;
  using S = NetworkModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "NetworkModule");
  defTwin(cls, "Net_getGateway", &S::Net_getGateway);
  defTwin(cls, "Net_getIPAddrAndSubmask", &S::Net_getIPAddrAndSubmask);
  defTwin(cls, "Net_getMACAddr", &S::Net_getMACAddr);
  defTwin(cls, "Net_setIPAddrAndSubmask", &S::Net_setIPAddrAndSubmask, "ip_addr"_a,
          "subnet_mask"_a);
  defTwin(cls, "_setGateway", &S::_setGateway, "gateway"_a);
  defTwin(cls, "_setMACAddr", &S::_setMACAddr, "mac_addr"_a);
  defTwin(cls, "Sys_getGateway", &S::Sys_getGateway);
  defTwin(cls, "Sys_getIPAddrAndSubmask", &S::Sys_getIPAddrAndSubmask);
  defTwin(cls, "Sys_getMACAddr", &S::Sys_getMACAddr);
  defTwin(cls, "Sys_setIPAddrAndSubmask", &S::Sys_setIPAddrAndSubmask, "ip_addr"_a,
          "subnet_mask"_a);
  defAttr(cls, "gateway", &S::gateway);
  defAttr(cls, "ip_addr", &S::ip_addr);  // the device class's ip_addr stands first on a model
  defAttr(cls, "subnet_mask", &S::subnet_mask);
  defAttr(cls, "mac_addr", &S::mac_addr);
}

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

const BindingRegistrar kSystemAnalog{
    {.name = "SystemAnalogModule", .module = "SystemAnalog", .bind = &bindSystemAnalog}};
const BindingRegistrar kNetwork{
    {.name = "NetworkModule", .module = "Network", .bind = &bindNetwork}};
const BindingRegistrar kWifi{{.name = "WifiModule", .module = "Wifi", .bind = &bindWifi}};

}  // namespace

}  // namespace orv::py_bind
