// AIModule and AI24BitModule as the host sees them: one row per operation.
#include "analog/ai.hpp"
#include "analog/ai24.hpp"
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "bindings/twin_untimed.hpp"

namespace orv::py_bind {

// bind_ai_array.cpp: the array reads and the per-read dropped count.
void bindAIArrays(py::class_<AIModule, std::shared_ptr<AIModule>>& cls);

namespace {

constexpr const char* kVolts = "list[float]";
constexpr const char* kSamples = "list[list[float]]";
const Arg kPort{"port", kInt, "AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)"};
const Arg kRawPort{"port", kInt, "AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "AIPortNotAvaliableError: port is not a key of ai_dict.";

void bindAI(py::module_& m) {
  using A = AIModule;
  py::class_<A, std::shared_ptr<A>> cls(
      m, "AIModule",
      "16-bit analog inputs: on-demand reads, N-samples and continuous streams decoded by "
      "ai_stream_thread into samples of volts.");
  defTwin(cls, &A::AI_open,
          {"AI_open",
           "Opens the AI port and lets the decoder run (KestrelAin and Trellis send nothing).",
           {kRawPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &A::AI_close,
          {"AI_close",
           "Closes the AI port and parks the decoder (KestrelAin and Trellis send nothing).",
           {kRawPort},
           {kInt, kStatusText},
           kPortRefused});
  const Op get_port{"AI_getPort",
                    "The AI ports of the model (on Trellis 0, 1, 3); nothing is sent.",
                    {},
                    {kInts, "the keys of ai_dict in order"}};
  defPlain(cls, get_port, &A::AI_getPort);
  defPlain(
      cls, get_port,
      [](A& self) {
        auto ports = self.AI_getPort();
        return immediateCoroutine([ports] { return py::object(py::cast(ports)); });
      },
      true);
  defTwin(cls, &A::AI_setMode,
          {"AI_setMode",
           "Sets the acquisition mode.",
           {kPort, {"mode", kInt, "0 on demand, 1 N-samples, 2 continuous"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "AIPortNotAvaliableError: port is not a key of ai_dict.\n"
           "AIModeNotAvaliableError: mode is not 0, 1 or 2."});
  defTwin(cls, &A::AI_setNumSamples,
          {"AI_setNumSamples",
           "Sets how many samples mode 1 acquires.",
           {kPort, {"num_samples", kInt, "samples, sent as 32 bits"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: num_samples or port is not an int.\n"
           "AIPortNotAvaliableError: port is not a key of ai_dict."});
  defTwin(cls, &A::AI_setSamplingRate,
          {"AI_setSamplingRate",
           "Sets the sampling rate of modes 1 and 2.",
           {kPort, {"sampling_rate", "float", "Hz, sent as a 32-bit float"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.\n"
           "AIPortNotAvaliableError: port is not a key of ai_dict.\n"
           "AIRateNotVaildError: sampling_rate above the model's limit for its channels or "
           "chip selects."});
  defTwin(cls, &A::AI_enableChannel,
          {"AI_enableChannel",
           "Enables channels 0 to channel-1; samples then hold that many values.",
           {kRawPort, {"channel", kInt, "how many channels, 1..8"}},
           {kInt, kStatusText},
           "APINotSupportError: on KestrelAin, Trellis, HeronAin and HeronAinPlus.\n"
           "InputTypeNotCorrectError: port or channel is not an int.\n"
           "AIPortNotAvaliableError: port is not a key of ai_dict.\n"
           "AIChannelNotAvaliableError: channel is not in 1..8."});
  defTwin(cls, &A::AI_enableCS,
          {"AI_enableCS",
           "Enables chip selects of a Trellis AI slot; samples then hold 8 values per chip.",
           {{"slot", kInt, "1, 2 or 4"}, {"chip_select", kInts, "chips 0..2, e.g. [0, 2]"}},
           {kInt, kStatusText},
           "APINotSupportError: on any model but Trellis.\n"
           "InputTypeNotCorrectError: slot or a chip is not an int.\n"
           "AIPortNotAvaliableError: slot is not 1, 2 or 4.\n"
           "AICSNotAvaliableError: a chip is not 0, 1 or 2."});
  defTwin(cls, &A::AI_start,
          {"AI_start",
           "Starts streaming (OPEN_AI_STREAMING first, except on HeronAin and HeronAinPlus).",
           {kPort},
           {kInt, "0, whatever the device did"},
           kPortRefused});
  defTwin(cls, &A::AI_stop,
          {"AI_stop",
           "Stops streaming; decoded samples stay readable.",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &A::AI_readOnDemand,
          {"AI_readOnDemand",
           "Reads one sample now.",
           {kPort},
           {kVolts, "volts, one per channel (per enabled chip select on Trellis), 4 decimals"},
           kPortRefused});
  defUntimed<1>(cls, &A::AI_readStreaming,
                {"AI_readStreaming",
                 "Takes decoded samples, waiting until num_samples are there or delay passed.",
                 {kPort,
                  {"num_samples", kInt, "samples wanted"},
                  {"delay", kFloat, "seconds to wait for them", "0.005"}},
                 {kSamples, "samples, each a list of volts; fewer than asked when delay ran out"},
                 kPortRefused});
  bindAIArrays(cls);

  defTwin(cls, &A::AI_getCounter_,
          {"_AI_getCounter",
           "Reads the firmware's nine AI counters (port not checked).",
           {kPort},
           {kInts, "9 unsigned 32-bit counters"}});
  defTwin(cls, &A::AI_readBufferStatus_,
          {"_AI_readBufferStatus",
           "Reads the stream buffer status.",
           {kPort},
           {kInts, "buffer_status: 4 unsigned 32-bit values"},
           kPortRefused});
  defTwin(cls, &A::AI_clearBufferStatus_,
          {"_AI_clearBufferStatus",
           "Clears the stream buffer status.",
           {kRawPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &A::AI_openStreaming_,
          {"_AI_openStreaming",
           "Sends OPEN_AI_STREAMING.",
           {kRawPort},
           {"None", "nothing"},
           kPortRefused});
  defTwin(cls, &A::AI_startStreaming_,
          {"_AI_startStreaming",
           "Sends the start of the stream without waiting for a reply.",
           {kRawPort},
           {kInt, "0"},
           kPortRefused});
  defTwin(cls, &A::_checkAIPinState,
          {"_checkAIPinState",
           "Checks that every pin of the port is in one of the allowed modes.",
           {kRawPort, {"allow_state", kStrs, "allowed pin modes, e.g. [\"Idle\"]"}},
           {"bool", "True"},
           "AIPortNotAvaliableError: a pin of the port in another mode."});
  cls.def(
      "_AI_free", [](A& self) { self.AI_free_(); },
      "_AI_free(self) -> None\n\nEnds and joins the decoder thread (the model's close).",
      py::call_guard<py::gil_scoped_release>());
  cls.def("_AI_getPinMapPort", &A::AI_getPinMapPort_, py::arg("ai_port"),
          "The pin-map ports of an AI port.");
  cls.def_static("_AI_changePortToIndex", &A::AI_changePortToIndex_, py::arg("port"), py::arg("cs"),
                 "The stream index of port 0, 1 or 3 and chip select 0..2.");
  cls.def("_checkAIPort", &A::_checkAIPort, py::arg("port"));
  cls.def_static("_checkAIMode", &A::_checkAIMode, py::arg("mode"));
  cls.def_static("_checkAIChannel", &A::_checkAIChannel, py::arg("channel"));
  cls.def_static("_checkAIChipSelect", &A::_checkAIChipSelect, py::arg("cs"));
  cls.def("_ckeckAISamplingRate", &A::_ckeckAISamplingRate, py::arg("port"),
          py::arg("sampling_rate"));
  // The decoder's own scaling of one raw count, for checks against the host.
  cls.def(
      "_AI_decodeCount",
      [](A& self, int count) {
        return aiVolts(static_cast<int16_t>(count), self.model().ai.ratio);
      },
      py::arg("count"), "The value the decoder makes of one signed 16-bit count.");
  cls.def_property_readonly("ai_dict", [](A& self) { return self.model().ai_dict; });
  cls.def_property_readonly("ai_max_rate", [](A& self) { return self.model().ai.max_rate; });
  cls.def_property_readonly("ai_ratio", [](A& self) { return self.model().ai.ratio; });
  cls.def_property_readonly("ai_num_channels", &A::aiNumChannels);
  cls.def_property_readonly("ai_echo_cmd", &A::aiEchoCmd);
  cls.def_property_readonly("ai_strm_cmd", &A::aiStrmCmd);
  cls.def_property_readonly("ai_open_flag", &A::aiOpenFlag);
  cls.def_property_readonly("ai_killed", &A::aiKilled);
  cls.def_property_readonly("chip_select_p0", [](A& self) { return self.chipSelect(0); });
  cls.def_property_readonly("chip_select_p1", [](A& self) { return self.chipSelect(1); });
  cls.def_property_readonly("chip_select_p3", [](A& self) { return self.chipSelect(3); });
  cls.def_property_readonly("ai_dropped_samples", &A::droppedSamples);
  cls.def_property_readonly("ai_decoder_alive", &A::decoderAlive);
  cls.def("_AI_decodedSize", &A::decodedSize, py::arg("index"),
          "Samples waiting in the decoded queue at a stream index.");
}

void bindAI24(py::module_& m) {
  using A = AI24BitModule;
  py::class_<A, std::shared_ptr<A>> cls(
      m, "AI24BitModule", "24-bit current and voltage inputs of KestrelCin and KestrelCvin.");
  defTwin(cls, &A::AI_readOnDemand,
          {"AI_readOnDemand",
           "Reads the eight 24-bit inputs of a port now.",
           {{"port", kInt, "0 (current, mA) or on KestrelCvin 1 (voltage, V)"}},
           {kVolts, "8 values, 3 decimals: mA when the device answers for port 0, else V"},
           "InputTypeNotCorrectError: port is not an int.\n"
           "AIPortNotAvaliableError: port is not one of the model's."});
  cls.def("_checkAI24BitPort", &A::_checkAI24BitPort, py::arg("port"));
}

const BindingRegistrar kAI{{.name = "AIModule", .module = "AI", .bind = &bindAI}};
const BindingRegistrar kAI24{{.name = "AI24BitModule", .module = "AI24Bit", .bind = &bindAI24}};

}  // namespace

}  // namespace orv::py_bind
