// RelayModule and DPOTModule as the host sees them: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "digital/dpot.hpp"
#include "digital/relay.hpp"

namespace orv::py_bind {

namespace {

void bindRelay(py::module_& m) {
  using R = RelayModule;
  py::class_<R, std::shared_ptr<R>> relay(
      m, "RelayModule",
      "The switching counters of KestrelRelay's six relays; the relays themselves are digital "
      "output port 0.");
  const Result kestrel_only{kInt, "0 on KestrelRelay, -1 on any other class; nothing is sent"};
  defTwin(relay, &R::Relay_open,
          {"Relay_open",
           "Nothing to set up: tells whether the relay counters exist.",
           {},
           kestrel_only});
  defTwin(relay, &R::Relay_close,
          {"Relay_close",
           "Nothing to close: tells whether the relay counters exist.",
           {},
           kestrel_only});
  defTwin<1>(relay, &R::Relay_read,
             {"Relay_read",
              "Reads relay switching counters.",
              {{"index", kInt, "relay 0..5, or -1 for every relay", "-1"}},
              {kInts, "32-bit counters, one per relay read"},
              "InputTypeNotCorrectError: index is not an int.\n"
              "RelayCounterIndexError: index is not in -1..5."});
  relay.def(
      "_checkRelayindex", [](R&, const Value& i) { return R::_checkRelayindex(i); },
      py::arg("index"));
}

void bindDPOT(py::module_& m) {
  using P = DPOTModule;
  py::class_<P, std::shared_ptr<P>> dpot(
      m, "DPOTModule", "The four resistor channels of KestrelRes (digital potentiometer).");
  const Arg port{"port", kInt, "0, the one DPOT port"};
  constexpr const char* port_refused =
      "InputTypeNotCorrectError: port is not an int.\n"
      "DPOTPortNotAvaliableError: port is not 0.";
  defTwin(dpot, &P::DPOT_open,
          {"DPOT_open",
           "Checks the port; nothing to set up on the device.",
           {port},
           {kInt, "0; nothing is sent"},
           port_refused});
  defTwin(dpot, &P::DPOT_close,
          {"DPOT_close",
           "Checks the port; nothing to close on the device.",
           {port},
           {kInt, "0; nothing is sent"},
           port_refused});
  defTwin(dpot, &P::DPOT_readByChannel,
          {"DPOT_readByChannel",
           "Reads one resistor channel.",
           {port, {"channel", kInt, "0..3 (not checked)"}},
           {kInt, "the firmware's 32 bits as an unsigned int"},
           port_refused});
  defTwin(dpot, &P::DPOT_writeAllChannel,
          {"DPOT_writeAllChannel",
           "Writes the four resistor channels.",
           {port,
            {"resistance_ratio", kFloats,
             "four ratios, channel 0 first, each sent as a 32-bit float; no range on the host"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int, or resistance_ratio not a list.\n"
           "DPOTPortNotAvaliableError: port is not 0.\n"
           "DPOTChannelNotAvaliableError: resistance_ratio does not hold exactly 4 values."});
  dpot.def(
      "_checkDPOTPort", [](P&, const Value& p) { return P::_checkDPOTPort(p); }, py::arg("port"));
  dpot.def(
      "_checkDPOTChannelAmount", [](P&, const Value& ch) { return P::_checkDPOTChannelAmount(ch); },
      py::arg("channel"));
}

const BindingRegistrar kRelay{{.name = "RelayModule", .module = "Relay", .bind = &bindRelay}};
const BindingRegistrar kDPOT{{.name = "DPOTModule", .module = "DPOT", .bind = &bindDPOT}};

}  // namespace

}  // namespace orv::py_bind
