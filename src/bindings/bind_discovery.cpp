// BroadcastModule and DeviceFinder as the host sees them.
//
// The broadcast operations take no timeout argument in either world: each
// always collects answers for PACKET_TIMEOUT.  defBroadcastTwin binds the
// blocking method and its awaitable twin from the one C++ body, like defTwin
// does for the command operations.
#include <pybind11/stl.h>

#include <memory>
#include <optional>

#include "bindings/bindings.hpp"
#include "bindings/devices.hpp"
#include "bindings/twin.hpp"
#include "bindings/value_caster.hpp"
#include "services/discovery.hpp"

namespace orv::py_bind {

namespace {

template <class Cls, class R, class... Args, class... Extra>
void defBroadcastTwin(Cls& cls, const char* name, R (BroadcastModule::*op)(const Call&, Args...),
                      const Extra&... extra) {
  cls.def(
      name,
      [op](BroadcastModule& self, Args... args) {
        std::optional<R> r;
        {
          py::gil_scoped_release rel;
          r.emplace(
              (self.*op)(Call(self.device(), Call::Flavour::Blocking, PACKET_TIMEOUT), args...));
        }
        return py::cast(std::move(*r));
      },
      extra...);
  const std::string async_name = std::string(name) + "_async";
  cls.def(
      async_name.c_str(),
      [op](py::object self_obj, Args... args) {
        BroadcastModule& self = self_obj.cast<BroadcastModule&>();
        return makeCoroutine(self_obj, [&self, op, args...](CancelToken* tok) {
          auto r = std::make_shared<R>((self.*op)(
              Call(self.device(), Call::Flavour::Awaitable, PACKET_TIMEOUT, tok), args...));
          return std::function<py::object()>([r] { return py::cast(*r); });
        });
      },
      extra...);
}

void bindDiscovery(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<BroadcastModule, std::shared_ptr<BroadcastModule>> cls(m, "BroadcastModule");
  defBroadcastTwin(cls, "Bcst_enumerateNetworkDevices",
                   &BroadcastModule::Bcst_enumerateNetworkDevices);
  defBroadcastTwin(cls, "Bcst_checkMACAndReboot", &BroadcastModule::Bcst_checkMACAndReboot,
                   "mac_addr"_a);
  defBroadcastTwin(cls, "Bcst_checkMACAndSetIP", &BroadcastModule::Bcst_checkMACAndSetIP,
                   "ip_addr"_a, "mac_addr"_a, "subnet_mask"_a);
  // Blocking in both worlds, with no awaitable name.
  cls.def("Bcst_enumerateUSBDevices", &BroadcastModule::Bcst_enumerateUSBDevices,
          py::call_guard<py::gil_scoped_release>());

  bindDeviceClass<DeviceFinder, BroadcastDevice, BroadcastModule>(m, "DeviceFinder");
}

// DeviceFinder names BroadcastDevice (the link classes, bound first) and
// BroadcastModule, bound just above.
const BindingRegistrar kDiscovery{
    {.name = "DeviceFinder", .bind = &bindDiscovery, .order = kBindDevices}};

}  // namespace

}  // namespace orv::py_bind
