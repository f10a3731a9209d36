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
#include "bindings/twin_def.hpp"
#include "bindings/value_caster.hpp"
#include "services/discovery.hpp"

namespace orv::py_bind {

namespace {

template <class Cls, class R, class... Args>
void defBroadcastTwin(Cls& cls, R (BroadcastModule::*op)(const Call&, Args...), const Op& row) {
  py::options opts;
  opts.disable_function_signatures();
  const std::string doc = blockingDoc(row, false);
  const std::string async_doc = awaitableDoc(row);
  const std::string async_name = asyncName(row);
  withRowArgs<sizeof...(Args), 0>(row, [&](const auto&... args) {
    cls.def(
        row.name,
        [op](BroadcastModule& self, Args... args) {
          std::optional<R> r;
          {
            py::gil_scoped_release rel;
            r.emplace(
                (self.*op)(Call(self.device(), Call::Flavour::Blocking, PACKET_TIMEOUT), args...));
          }
          return py::cast(std::move(*r));
        },
        args..., py::doc(doc.c_str()));
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
        args..., py::doc(async_doc.c_str()));
  });
}

void bindDiscovery(py::module_& m) {
  using B = BroadcastModule;
  py::class_<B, std::shared_ptr<B>> cls(
      m, "BroadcastModule",
      "Discovery over UDP broadcast: find devices, reboot one or set its address by MAC. Each "
      "broadcast collects answers for PACKET_TIMEOUT seconds.");
  constexpr const char* statuses = "one status byte per answering device; empty when none answers";
  defBroadcastTwin(
      cls, &B::Bcst_enumerateNetworkDevices,
      {"Bcst_enumerateNetworkDevices",
       "Finds the network devices that answer a broadcast.",
       {},
       {"list[list[str]]",
        "[ip_addr, submask, mac_addr, firmware_model] per device, in no order; empty when none "
        "answers"}});
  defBroadcastTwin(cls, &B::Bcst_checkMACAndReboot,
                   {"Bcst_checkMACAndReboot",
                    "Reboots the device with a MAC address.",
                    {{"mac_addr", kStr, "\"aa:bb:cc:dd:ee:ff\""}},
                    {kInts, statuses},
                    "InputTypeNotCorrectError: mac_addr is not a str.\n"
                    "ValueError: mac_addr is not six hex numbers."});
  defBroadcastTwin(cls, &B::Bcst_checkMACAndSetIP,
                   {"Bcst_checkMACAndSetIP",
                    "Sets the IP address and mask of the device with a MAC address.",
                    {{"ip_addr", kStr, "dotted IPv4 address"},
                     {"mac_addr", kStr, "\"aa:bb:cc:dd:ee:ff\""},
                     {"subnet_mask", kStr, "dotted IPv4 mask"}},
                    {kInts, statuses},
                    "InputTypeNotCorrectError: an argument that is not a str.\n"
                    "OSError, ValueError: a malformed address."});
  // Blocking in both worlds, with no awaitable name.
  {
    py::options opts;
    opts.disable_function_signatures();
    const Op usb{"Bcst_enumerateUSBDevices",
                 "Lists the USB devices of the family; blocking, no connect needed.",
                 {},
                 {"list[list[str]]", "one entry per device: its serial number and product name"}};
    cls.def("Bcst_enumerateUSBDevices", &B::Bcst_enumerateUSBDevices,
            py::call_guard<py::gil_scoped_release>(), py::doc(blockingDoc(usb, false).c_str()));
  }

  bindDeviceClass<DeviceFinder, BroadcastDevice, BroadcastModule>(
      m, "DeviceFinder",
      "Finds devices by broadcast: a BroadcastDevice with the BroadcastModule operations. "
      "DeviceFinder(verbose=True, broadcast_addr=None); connect() before broadcasting.");
}

// DeviceFinder names BroadcastDevice (the link classes, bound first) and
// BroadcastModule, bound just above.
const BindingRegistrar kDiscovery{
    {.name = "DeviceFinder", .bind = &bindDiscovery, .order = kBindDevices}};

}  // namespace

}  // namespace orv::py_bind
