// CANFrame and CANModule as the host sees them: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/bus_read.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "buses/can.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "CANPortNotAvaliableError: port is not a key of can_dict.";
constexpr const char* kFlagRefused =
    "InputTypeNotCorrectError: port is not an int, or the flag not a bool.\n"
    "CANPortNotAvaliableError: port is not a key of can_dict.";
const Arg kPort{"port", kInt, "CAN port, a key of can_dict"};

void bindFrame(py::module_& m) {
  py::class_<CANFrame>(m, "CANFrame",
                       "One CAN frame: identifier (11 or 29 bits), extended and remote flags, "
                       "eight data bytes, and its twelve-byte wire form.")
      .def(py::init([](int64_t id_, bool extended_id, bool remote, std::vector<int64_t> data) {
             return CANFrame(id_, extended_id, remote, std::move(data));
           }),
           py::arg("id_"), py::arg("extended_id") = false, py::arg("remote") = false,
           py::arg_v("data", std::vector<int64_t>(8, 0), "[0, 0, 0, 0, 0, 0, 0, 0]"),
           "A frame; data is copied, padded with zeros and cut to eight bytes.")
      .def_readwrite("id", &CANFrame::id, "the identifier")
      .def_readwrite("extended_id", &CANFrame::extended_id, "True for a 29-bit identifier")
      .def_readwrite("remote", &CANFrame::remote, "True for a remote frame")
      .def_readwrite("data", &CANFrame::data, "eight data bytes")
      .def_readwrite("id_in_list", &CANFrame::id_in_list,
                     "the identifier word as four bytes, high byte first")
      .def_readwrite("frame_in_list", &CANFrame::frame_in_list,
                     "the wire form: id_in_list, then data")
      .def("setID", &CANFrame::setID,
           "Recomputes id_in_list and frame_in_list from id, extended_id, remote and data.")
      .def_static("regularizeData", &CANFrame::regularizeData, py::arg("data"),
                  "A copy of data padded with zeros and cut to eight entries.")
      .def_static(
          "fromU8List",
          [](const std::vector<int64_t>& u8_list) {
            return CANFrame::fromU8List(std::span(u8_list));
          },
          py::arg("u8_list"), "The frame of a wire form: four identifier bytes, then the data.")
      .def(
          "to_message",
          [](const CANFrame& f) {
            // A remote frame carries no data; a data frame its eight bytes.
            py::object message = py::module_::import("can").attr("Message");
            Bytes data;
            if (!f.remote)
              for (int64_t b : f.data) data.push_back(static_cast<uint8_t>(b));
            return message(py::arg("arbitration_id") = f.id,
                           py::arg("is_extended_id") = f.extended_id,
                           py::arg("is_remote_frame") = f.remote,
                           py::arg("data") =
                               py::bytes(reinterpret_cast<const char*>(data.data()), data.size()));
          },
          "The frame as a python-can Message (ImportError without python-can).")
      .def_static(
          "from_message",
          [](const py::object& msg) {
            return CANFrame(msg.attr("arbitration_id").cast<int64_t>(),
                            msg.attr("is_extended_id").cast<bool>(),
                            msg.attr("is_remote_frame").cast<bool>(),
                            py::list(msg.attr("data")).cast<std::vector<int64_t>>());
          },
          py::arg("msg"),
          "A frame from a python-can Message: its identifier, flags and data (padded to eight "
          "bytes).")
      .def("__repr__", &CANFrame::repr)
      .def(
          "__eq__", [](const CANFrame& a, const CANFrame& b) { return a == b; }, py::is_operator());
}

void bindCAN(py::module_& m) {
  using C = CANModule;
  py::class_<C, std::shared_ptr<C>> cls(
      m, "CANModule",
      "The device's CAN controller: open, bus speed, receive filters, start, write and read "
      "frames, stop, close; received frames are streamed by the device onto one queue.");

  const Op ports{
      "CAN_getPort", "The CAN ports; nothing is sent.", {}, {kInts, "the keys of can_dict"}};
  defPlain(cls, ports, &C::CAN_getPort);
  defPlain(
      cls, ports,
      [](C& self) {
        auto keys = self.CAN_getPort();
        return immediateCoroutine([keys] { return py::object(py::cast(keys)); });
      },
      true);

  defTwin(cls, &C::CAN_open,
          {"CAN_open",
           "Opens the controller after reading the modes of its pins; the first open after a "
           "close lets the stream thread run.",
           {kPort},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int.\n"
           "CANPortNotAvaliableError: port is not a key of can_dict, or (after the pin-mode "
           "read) a pin index of the bus is in a mode other than Idle, DI or DO on one of the "
           "bus's digital ports."});
  defTwin(cls, &C::CAN_close,
          {"CAN_close",
           "Stops and closes the controller; when the stop fails, returns its code and sends "
           "no close.",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &C::CAN_setSpeed,
          {"CAN_setSpeed",
           "Sets the bus speed.",
           {kPort, {"speed_mode", kInt, "0..3, passed to the firmware as it is"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or speed_mode is not an int.\n"
           "CANPortNotAvaliableError: port is not a key of can_dict.\n"
           "CANSpeedNotVaildError: speed_mode not in 0..3."});
  defTwin(cls, &C::CAN_setRXFilteringOn,
          {"CAN_setRXFilteringOn",
           "Turns the receive filters on or off.",
           {kPort, {"on_off", "bool", "True: only frames that pass the filters are received"}},
           {kInt, kStatusText},
           kFlagRefused});
  defTwin<2>(cls, &C::CAN_setRXFilterOrMask,
             {"CAN_setRXFilterOrMask",
              "Writes one receive filter or mask as a frame's identifier word.",
              {kPort,
               {"index", kInt, "filter or mask number, the firmware's (not checked)"},
               {"id_", kInt, "identifier bits"},
               {"remote", "bool", "the remote bit", "False"},
               {"extended_id", "bool", "a 29-bit identifier", "False"}},
              {kInt, kStatusText},
              "InputTypeNotCorrectError: port or id_ is not an int, or remote or extended_id "
              "not a bool.\n"
              "CANPortNotAvaliableError: port is not a key of can_dict."});
  defTwin(cls, &C::CAN_start,
          {"CAN_start",
           "Starts the controller. The blocking method sends START_CAN as an exchange and "
           "waits for an answer the firmware gives as a stream record, so it ends in "
           "ReceivePacketTimeoutError after its timeout; the awaitable twin sends and returns "
           "0 at once.",
           {kPort},
           {kInt, "0"},
           kPortRefused});
  defTwin(cls, &C::CAN_stop,
          {"CAN_stop", "Stops the controller.", {kPort}, {kInt, kStatusText}, kPortRefused});
  defTwin<2>(
      cls, &C::CAN_write,
      {"CAN_write",
       "Writes one frame (TX index 0).",
       {kPort,
        {"id_", kInt, "identifier, 11 or 29 bits"},
        {"data", "list[int] | None", "up to 8 bytes; ignored (eight zeros) for a remote frame"},
        {"remote", "bool", "a remote frame", "False"},
        {"extended_id", "bool", "a 29-bit identifier", "False"}},
       {kInt, kStatusText},
       "InputTypeNotCorrectError: port or id_ not an int, remote or extended_id not a "
       "bool, data not a list.\n"
       "CANPortNotAvaliableError: port is not a key of can_dict.\n"
       "CANDataLengthNotVaildError: more than 8 data bytes.\n"
       "InputDataNotInRangeError: a data byte outside 0..255."});
  defStreamRead(
      cls,
      {"CAN_read",
       "Takes received frames (one queue for the controller). The blocking method "
       "waits until num_frames are there, open or not; the awaitable twin takes what "
       "is there, up to num_frames, without waiting.",
       {kPort,
        {"num_frames", kInt, "how many frames; -1 for all that are there"},
        {"delay", kFloat, "kept for the interface; a frame wakes the reader at once", "0.005"}},
       {"list[CANFrame]", "the frames, oldest first"},
       "InputTypeNotCorrectError: port or num_frames is not an int.\n"
       "CANPortNotAvaliableError: port is not a key of can_dict."},
      [](C& self, const Call& c, const Value& port, const Value& n, double delay) {
        return self.CAN_read(c, port, n, delay);
      });

  defTwin(cls, &C::CAN_getErrors_,
          {"_CAN_getErrors",
           "Reads the controller's error counters.",
           {kPort},
           {kInts, "[TX error count, RX error count]"},
           kPortRefused});
  defTwin(cls, &C::CAN_getCounters_,
          {"_CAN_getCounters",
           "Reads the controller's six 32-bit counters.",
           {kPort},
           {kInts, "six counters, the firmware's order"},
           kPortRefused});
  defTwin(cls, &C::CAN_getInterrupts_,
          {"_CAN_getInterrupts",
           "Reads the interrupt words.",
           {kPort},
           {kInts, "[enabled interrupts, interrupt state, error state]"},
           kPortRefused});
  defTwin(cls, &C::CAN_setEnableInterrupt_,
          {"_CAN_setEnableInterrupt",
           "Enables or disables the controller's interrupts.",
           {kPort, {"status", "bool", "True to enable"}},
           {kInt, kStatusText},
           kFlagRefused});
  defTwin(cls, &C::CAN_setRXRollover_,
          {"_CAN_setRXRollover",
           "Turns receive-buffer rollover on or off.",
           {kPort, {"status", "bool", "True for rollover"}},
           {kInt, kStatusText},
           kFlagRefused});
  defTwin(cls, &C::CAN_setTXPriority_,
          {"_CAN_setTXPriority",
           "Would set a TX buffer's priority; its mode check is reached with one argument too "
           "many, so every call with a good port ends in TypeError and nothing is sent.",
           {kPort, {"tx_mode", kInt, "TX buffer 0..2"}, {"priority_mode", kInt, "0..3"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int.\n"
           "CANPortNotAvaliableError: port is not a key of can_dict.\n"
           "TypeError: any call with a good port (the mode check's argument count)."});
  defTwin(cls, &C::_checkCANPinState_,
          {"_checkCANPinState_",
           "Reads the modes of the digital ports the bus's pins lie on and tests every pin of "
           "the bus against each port's modes.",
           {kPort, {"allow_state", kStrs, "mode names that count as free, e.g. ['Idle']"}},
           {"None", "nothing; raises on a busy pin"},
           "CANPortNotAvaliableError: a pin in a mode not in allow_state (after the read).",
           "_checkCANPinState_async"});

  cls.def("_CAN_getPinMapPort", &C::CAN_getPinMapPort_, py::arg("CAN_port"),
          "The digital ports the bus's pins lie on, each once.");
  cls.def("_CAN_free", &C::CAN_free_, py::call_guard<py::gil_scoped_release>(),
          "Ends the stream thread (the model's close does this and joins it).");
  cls.def("_checkCANPort", &C::_checkCANPort, py::arg("port"));
  cls.def_static("_checkCANSpeed", &C::_checkCANSpeed, py::arg("speed"));
  cls.def_static("_checkCANDataRangeAndLength", &C::_checkCANDataRangeAndLength, py::arg("data"));
  cls.def_static("_checkCANTXIndex", &C::_checkCANTXIndex, py::arg("mode"));
  cls.def_static("_checkCANTXPriority", &C::_checkCANTXPriority, py::arg("mode"));
  cls.def_property_readonly("can_open_flag", &C::canOpenFlag,
                            "True from a first open to the matching close.");
  cls.def_property_readonly("can_killed", &C::canKilled, "True once the stream thread ends.");
  cls.def("_canGateOpen", &C::canGateOpen, "Whether the stream thread may pass its gate.");
  cls.def("_canFrameQueueSize", &C::canFrameQueueSize, "Frames waiting in the frame queue.");
}

const BindingRegistrar kCANFrame{
    {.name = "CANFrame", .module = nullptr, .bind = &bindFrame, .order = kBindBases}};
const BindingRegistrar kCAN{{.name = "CANModule", .module = "CAN", .bind = &bindCAN}};

}  // namespace

}  // namespace orv::py_bind
