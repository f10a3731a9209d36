// RelayModule and DPOTModule as the host sees them: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "digital/dpot.hpp"
#include "digital/relay.hpp"

namespace orv::py_bind {

namespace {

void bindRelay(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<RelayModule, std::shared_ptr<RelayModule>> relay(m, "RelayModule");
  defTwin(relay, "Relay_open", &RelayModule::Relay_open);
  defTwin(relay, "Relay_close", &RelayModule::Relay_close);
  defTwin(relay, "Relay_read", &RelayModule::Relay_read, "index"_a = -1);
  relay.def(
      "_checkRelayindex",
      [](RelayModule&, const Value& i) { return RelayModule::_checkRelayindex(i); }, "index"_a);
}

void bindDPOT(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<DPOTModule, std::shared_ptr<DPOTModule>> dpot(m, "DPOTModule");
  defTwin(dpot, "DPOT_open", &DPOTModule::DPOT_open, "port"_a);
  defTwin(dpot, "DPOT_close", &DPOTModule::DPOT_close, "port"_a);
  defTwin(dpot, "DPOT_readByChannel", &DPOTModule::DPOT_readByChannel, "port"_a, "channel"_a);
  defTwin(dpot, "DPOT_writeAllChannel", &DPOTModule::DPOT_writeAllChannel, "port"_a,
          "resistance_ratio"_a);
  dpot.def(
      "_checkDPOTPort", [](DPOTModule&, const Value& p) { return DPOTModule::_checkDPOTPort(p); },
      "port"_a);
  dpot.def(
      "_checkDPOTChannelAmount",
      [](DPOTModule&, const Value& ch) { return DPOTModule::_checkDPOTChannelAmount(ch); },
      "channel"_a);
}

const BindingRegistrar kRelay{{.name = "RelayModule", .module = "Relay", .bind = &bindRelay}};
const BindingRegistrar kDPOT{{.name = "DPOTModule", .module = "DPOT", .bind = &bindDPOT}};

}  // namespace

}  // namespace orv::py_bind
