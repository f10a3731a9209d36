// NetworkModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/network.hpp"

namespace orv::py_bind {

namespace {

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

const BindingRegistrar kNetwork{
    {.name = "NetworkModule", .module = "Network", .bind = &bindNetwork}};

}  // namespace

}  // namespace orv::py_bind
