// AOModule as the host sees it: one row per operation.
#include "analog/ao.hpp"
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "bindings/twin_untimed.hpp"

namespace orv::py_bind {

namespace {

const Arg kPort{"port", kInt, "AO port, a key of ao_dict"};
const Arg kSlotPort{"port", kInt, "AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)"};
const Arg kChannel{"channel", kInt, "0..7"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "AOPortNotAvaliableError: port is not a key of ao_dict.";
constexpr const char* kMaybeStatus = "int | None";
constexpr const char* kStatusOrNone = "0, or a negative firmware error code; None on Trellis";

void bindAO(py::module_& m) {
  using A = AOModule;
  py::class_<A, std::shared_ptr<A>> cls(
      m, "AOModule",
      "Analog outputs: one value at once, firmware waveforms (form and parameters), or values "
      "pushed to the device's buffer in N-samples or continuous mode.");
  const Op get_port{"AO_getPort",
                    "The AO ports of the model; nothing is sent.",
                    {},
                    {kInts, "the keys of ao_dict in order"}};
  defPlain(cls, get_port, &A::AO_getPort);
  defPlain(
      cls, get_port,
      [](A& self) {
        auto ports = self.AO_getPort();
        return immediateCoroutine([ports] { return py::object(py::cast(ports)); });
      },
      true);
  defTwin(cls, &A::AO_open,
          {"AO_open",
           "Opens an AO port whose pins are idle (KestrelAout and Trellis send nothing).",
           {kPort},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict, or a pin of it is in use "
           "(after the pin-mode read)."});
  defTwin(cls, &A::AO_close,
          {"AO_close",
           "Closes an AO port (KestrelAout and Trellis send nothing).",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &A::AO_openStreaming,
          {"AO_openStreaming",
           "Opens the port for buffered output and reads its mode and rate.",
           {kPort},
           {"list[int | float] | None", "info: [mode, sampling_rate]; None on Trellis"},
           kPortRefused});
  defUntimed(cls, &A::AO_startStreaming,
             {"AO_startStreaming",
              "Starts output without waiting for a reply.",
              {kPort},
              {kMaybeStatus, "0; None on Trellis"},
              kPortRefused});
  defTwin(
      cls, &A::AO_stopStreaming_,
      {"_AO_stopStreaming", "Stops output.", {kPort}, {kMaybeStatus, kStatusOrNone}, kPortRefused});
  defTwin(cls, &A::AO_closeStreaming,
          {"AO_closeStreaming",
           "Closes buffered output.",
           {kPort},
           {kMaybeStatus, kStatusOrNone},
           kPortRefused});
  defTwin(cls, &A::AO_getMode,
          {"AO_getMode",
           "Reads the generation mode.",
           {kPort},
           {kMaybeStatus, "0 on demand, 1 N-samples, 2 continuous; None on Trellis"},
           kPortRefused});
  // The awaitable namesake of AO_getState is hidden by the blocking method.
  defTwins(cls, &A::AO_getState,
           {"AO_getState",
            "Reads the output state.",
            {kPort},
            {kMaybeStatus, "0 idle, 1 stand-by, 2 running; None on Trellis"},
            kPortRefused},
           Twins::BlockingOnly, true);
  // Awaitable only, under its own name.
  defTwins(cls, &A::AO_getEnableChannels,
           {"AO_getEnableChannels",
            "Reads the enabled channels.",
            {kPort},
            {kMaybeStatus, "the enabled-channel value (bit n: channel n); None on Trellis"},
            kPortRefused},
           Twins::AwaitableOnly, false);
  defTwin(cls, &A::AO_getValues,
          {"AO_getValues",
           "Reads the values the channels output.",
           {kPort},
           {"list[float] | None", "8 volts, channel 0 first; None on Trellis"},
           kPortRefused});
  defTwin(cls, &A::AO_setEnableChannels,
          {"AO_setEnableChannels",
           "Enables the listed channels and disables the others.",
           {kPort, {"channel_list", kInts, "channels 0..7"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: port is not an int, or channel_list not a list.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AOChannelNotAvaliableError: a channel is not in 0..7."});
  defTwin(cls, &A::AO_setForm,
          {"AO_setForm",
           "Sets the waveform of a channel.",
           {kPort, kChannel, {"form", kInt, "1 rectangular, 2 triangular, 3 sine"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: an argument is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AOChannelNotAvaliableError: channel is not in 0..7.\n"
           "AOFormNotAvaliableError: form is not 1, 2 or 3 (DC, 0, is refused)."});
  defTwin<2>(cls, &A::AO_setFormParam,
             {"AO_setFormParam",
              "Sets the waveform parameters of a channel, each sent as a 32-bit float.",
              {kPort,
               kChannel,
               {"amplitude", kFloat, "volts"},
               {"offset", kFloat, "volts"},
               {"frequency", kFloat, "Hz"},
               {"phase", kFloat, "phase", "0"},
               {"duty_cycle", kFloat, "0..1, for the rectangular form", "0.5"}},
              {kMaybeStatus, kStatusOrNone},
              "InputTypeNotCorrectError: port or channel is not an int, or a parameter not a "
              "number.\n"
              "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
              "AOChannelNotAvaliableError: channel is not in 0..7."});
  defTwin(cls, &A::AO_setMode,
          {"AO_setMode",
           "Sets the generation mode.",
           {kPort, {"mode", kInt, "0 on demand, 1 N-samples, 2 continuous"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AOModeNotVaildError: mode is not 0, 1 or 2."});
  defTwin(cls, &A::AO_setNumSamples,
          {"AO_setNumSamples",
           "Sets how many samples N-samples mode outputs.",
           {kPort, {"num_samples", kInt, "samples, sent as 32 bits"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: port or num_samples is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict."});
  defTwin(cls, &A::AO_setSamplingRate,
          {"AO_setSamplingRate",
           "Sets the output sampling rate.",
           {kPort, {"sampling_rate", kFloat, "Hz, at most ao_rate"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AORateNotVaildError: sampling_rate above ao_rate."});
  defTwin(cls, &A::AO_setSpan_,
          {"_AO_setSpan",
           "Sets the output span.",
           {kPort, {"span", kInt, "0: 0..5 V, 1: 0..10 V, 2: +-5 V, 3: +-10 V, 4: +-2.5 V"}},
           {kMaybeStatus, kStatusOrNone},
           "InputTypeNotCorrectError: port or span is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AOSpanNotVaildError: span is not in 0..4."});
  defTwin(cls, &A::AO_getCounters_,
          {"_AO_getCounters",
           "Reads the interrupt and SPI counters.",
           {kPort},
           {"list[int] | None", "counter_list: [interrupt counter, SPI counter]; None on Trellis"},
           kPortRefused});
  defTwin(cls, &A::AO_initialBuffer_,
          {"_AO_initialBuffer",
           "Initialises the output buffer and reads its state.",
           {kPort},
           {"list[int] | None", "state: [num_of_samples, channel_mask]; None on Trellis"},
           kPortRefused});
  defTwin(cls, &A::AO_writeOneChannel,
          {"AO_writeOneChannel",
           "Outputs one value on one channel.",
           {kSlotPort, kChannel, {"value", kFloat, "volts within ao_volt_min..ao_volt_max"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or channel is not an int, or value not a number.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "AOChannelNotAvaliableError: channel is not in 0..7.\n"
           "InputDataNotInRangeError: value outside ao_volt_min..ao_volt_max."});
  defTwin(cls, &A::AO_writeAllChannels,
          {"AO_writeAllChannels",
           "Outputs values on all 8 channels at once (missing ones 0, extra ones dropped).",
           {kSlotPort, {"value_list", kFloats, "volts, channel 0 first"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int, or value_list not a list.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict.\n"
           "InputDataNotInRangeError: a value outside ao_volt_min..ao_volt_max."});
  defTwin(cls, &A::AO_pushToBuffer_,
          {"_AO_pushToBuffer",
           "Pushes values into the device's output buffer.",
           {kSlotPort,
            {"num_of_val", kInt, "the count sent (13 fit; more is sent all the same)"},
            {"value_list", kFloats, "volts, each sent as a 32-bit float"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or num_of_val is not an int.\n"
           "AOPortNotAvaliableError: port is not a key of ao_dict."});
  defTwin(cls, &A::_checkAOPinState,
          {"_checkAOPinState",
           "Checks that every pin of the port is in one of the allowed modes.",
           {kPort, {"allow_state", kStrs, "allowed pin modes, e.g. [\"Idle\"]"}},
           {"bool", "True"},
           "AOPortNotAvaliableError: a pin of the port in another mode."});
  cls.def("_AO_getPinMapPort", &A::AO_getPinMapPort_, py::arg("ao_port"),
          "The pin-map ports of an AO port.");
  cls.def("_checkAOPort", &A::_checkAOPort, py::arg("port"));
  cls.def_static("_checkAOChannel", &A::_checkAOChannel, py::arg("channel"));
  cls.def_static("_checkAOForm", &A::_checkAOForm, py::arg("form"));
  cls.def_static("_checkAOMode", &A::_checkAOMode, py::arg("mode"));
  cls.def_static("_checkAOSpan", &A::_checkAOSpan, py::arg("span"));
  cls.def("_ckeckAOSamplingRate", &A::_ckeckAOSamplingRate, py::arg("rate"));
  cls.def_static("_checkAONumOfValues", &A::_checkAONumOfValues, py::arg("value"));
  cls.def_property_readonly("ao_dict", [](A& self) { return self.model().ao_dict; });
  cls.def_property_readonly("ao_volt_min", [](A& self) { return self.model().ao.volt_min; });
  cls.def_property_readonly("ao_volt_max", [](A& self) { return self.model().ao.volt_max; });
  cls.def_property_readonly("ao_channel", [](A& self) { return self.model().ao.channel; });
  cls.def_property_readonly("ao_rate", [](A& self) { return self.model().ao.rate; });
}

const BindingRegistrar kAO{{.name = "AOModule", .module = "AO", .bind = &bindAO}};

}  // namespace

}  // namespace orv::py_bind
