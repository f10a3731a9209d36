// DIOModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "digital/dio.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kPinStates = "one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first";
constexpr const char* kDioWords = "tuple[list[int], list[int], list[int]]";
constexpr const char* kMap = "dict[int, list[int]]";

// The arguments most rows share.
const Arg kDIPort{"port", kInt, "input port, a key of di_dict"};
const Arg kDOPort{"port", kInt, "output port, a key of do_dict"};
const Arg kAnyPort{"port", kInt, "port number (not checked)"};
const Arg kDIPins{"pin", "collections.abc.Sequence[int]", "pins of the port, e.g. [0, 2]"};
const Arg kDOPins{"pin", kPins, "pins of the port: a list ([0, 2]) or a bit mask (0b101)"};
const Arg kMask{"mask", kInt, "16-bit word, bit n selects pin n"};
const Arg kWord{"state", kInt, "16-bit word, bit n for pin n"};

constexpr const char* kDIPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "DIPortNotAvaliableError: port is not a key of di_dict.";
constexpr const char* kDOPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "DOPortNotAvaliableError: port is not a key of do_dict.";
constexpr const char* kDIPinsRefused =
    "InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.\n"
    "DIPortNotAvaliableError: port is not a key of di_dict.\n"
    "PinsNotExistError: a pin that is not in di_dict[port].\n"
    "TypeError: pin given as an int (input pins take a list only).";
constexpr const char* kDOPinsRefused =
    "TypeError: pin is neither an int nor a list.\n"
    "InputTypeNotCorrectError: port is not an int.\n"
    "DOPortNotAvaliableError: port is not a key of do_dict.\n"
    "PinsNotExistError: a pin that is not in do_dict[port].";
void bindDIO(py::module_& m) {
  using D = DIOModule;
  py::class_<D, std::shared_ptr<D>> cls(
      m, "DIOModule",
      "Digital input and output ports: open ports or pins as inputs or outputs, read, write, "
      "toggle, close, slot modes and the start-up state.");
  // The pin maps: no exchange; the twin is a coroutine that returns at once.
  const Op do_map{"DO_getPinMap",
                  "The output ports and their pins; nothing is sent.",
                  {},
                  {kMap, "do_dict: output port -> pin numbers"}};
  const Op di_map{"DI_getPinMap",
                  "The input ports and their pins; nothing is sent.",
                  {},
                  {kMap, "di_dict: input port -> pin numbers"}};
  defPlain(cls, do_map, &D::DO_getPinMap);
  defPlain(cls, di_map, &D::DI_getPinMap);
  defPlain(
      cls, do_map,
      [](D& self) {
        auto map = self.DO_getPinMap();
        return immediateCoroutine([map] { return py::object(py::cast(map)); });
      },
      true);
  defPlain(
      cls, di_map,
      [](D& self) {
        auto map = self.DI_getPinMap();
        return immediateCoroutine([map] { return py::object(py::cast(map)); });
      },
      true);

  // Open and close: the wired models answer 0 at once.
  const Result opened{kInt,
                      "0, or a negative firmware error code; 0 at once, with nothing checked or "
                      "sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)"};
  // Opening reads the pin modes first, and refuses a pin in another mode after that read.
  const Result opened_di{kInt,
                         "as for DI_closePort; after reading the pin modes (Sys_getPinModeInPort), "
                         "DIPortNotAvaliableError for a pin in a mode other than Idle or DI"};
  const Result opened_do{kInt,
                         "as for DO_closePort; after reading the pin modes (Sys_getPinModeInPort), "
                         "DOPortNotAvaliableError for a pin in a mode other than Idle or DO"};
  defTwin(cls, &D::DI_openPort,
          {"DI_openPort",
           "Opens every pin of an input port as an input.",
           {kDIPort},
           opened_di,
           kDIPortRefused});
  defTwin(cls, &D::DI_openPins,
          {"DI_openPins",
           "Opens pins of an input port as inputs.",
           {kDIPort, kDIPins},
           opened_di,
           kDIPinsRefused});
  defTwin(
      cls, &D::DI_closePort,
      {"DI_closePort", "Closes every pin of an input port.", {kDIPort}, opened, kDIPortRefused});
  defTwin(cls, &D::DI_closePins,
          {"DI_closePins",
           "Closes pins of an input port.",
           {kDIPort, kDIPins},
           opened,
           kDIPinsRefused});
  defTwin(cls, &D::DO_openPort,
          {"DO_openPort",
           "Opens every pin of an output port as an output.",
           {kDOPort},
           opened_do,
           kDOPortRefused});
  defTwin(cls, &D::DO_openPins,
          {"DO_openPins",
           "Opens pins of an output port as outputs.",
           {kDOPort, kDOPins},
           opened_do,
           kDOPinsRefused});
  defTwin(
      cls, &D::DO_closePort,
      {"DO_closePort", "Closes every pin of an output port.", {kDOPort}, opened, kDOPortRefused});
  defTwin(cls, &D::DO_closePins,
          {"DO_closePins",
           "Closes pins of an output port.",
           {kDOPort, kDOPins},
           opened,
           kDOPinsRefused});

  // Read, write, toggle.
  defTwin(cls, &D::DI_readPort,
          {"DI_readPort",
           "Reads every pin of an input port.",
           {kDIPort},
           {kInts, kPinStates},
           kDIPortRefused});
  defTwin(cls, &D::DI_readPins,
          {"DI_readPins",
           "Reads pins of an input port.",
           {kDIPort, kDIPins},
           {kInts, "the state (0 or 1) of each named pin, in the order named"},
           kDIPinsRefused});
  defTwin(cls, &D::DO_writePort,
          {"DO_writePort",
           "Writes every pin of an output port.",
           {kDOPort,
            {"value", kPins,
             "pin states: a list of 0 and 1, pin 0 first (pins past its end are written 0), "
             "or a 16-bit word, bit n for pin n"}},
           {kInt, "always 0"},
           "InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.\n"
           "DOPortNotAvaliableError: port is not a key of do_dict."});
  defTwin(cls, &D::DO_writePins,
          {"DO_writePins",
           "Writes pins of an output port; the other pins keep their state.",
           {kDOPort,
            kDOPins,
            {"value", kPins,
             "of pin's type: a list of 0 and 1, one per pin of a pin list (extra values are "
             "ignored), or a word whose bits under the pin mask are written"}},
           {kInt, "always 0"},
           "TypeError: pin is neither an int nor a list.\n"
           "InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.\n"
           "DOPortNotAvaliableError: port is not a key of do_dict.\n"
           "PinsNotExistError: a pin that is not in do_dict[port].\n"
           "InputTypeNotConsistentError: pin and value of different types.\n"
           "PinsValueNotDefineError: fewer values than pins."});
  defTwin(cls, &D::DO_togglePort,
          {"DO_togglePort",
           "Toggles every pin of an output port.",
           {kDOPort},
           {kInts, "the pin states after the toggle, pin 0 first"},
           kDOPortRefused});
  defTwin(cls, &D::DO_togglePins,
          {"DO_togglePins",
           "Toggles pins of an output port (the pins are not checked against do_dict).",
           {kDOPort, kDOPins},
           {kInts, "the pin states after the toggle, pin 0 first"},
           kDOPortRefused});

  // Start-up state and slot modes.
  defTwin(cls, &D::DIO_loadStartup,
          {"DIO_loadStartup",
           "Reads the state the firmware restores at power-on.",
           {kAnyPort},
           {kDioWords, "enabled, direction (1 output) and state, each a list of pin states"}});
  defTwin(cls, &D::DIO_saveStartup,
          {"DIO_saveStartup",
           "Saves the state the firmware restores at power-on.",
           {kAnyPort,
            {"enabled", kInt, "16-bit word, bit n enables pin n"},
            {"direction", kInt, "16-bit word, bit n 1 makes pin n an output"},
            {"state", kInt, "16-bit word, bit n for pin n"}},
           {kInt, kStatusText}});
  defTwin(cls, &D::DIO_setPortIdle,
          {"DIO_setPortIdle",
           "Puts an output port into idle slot mode.",
           {kDOPort},
           {kInt, kStatusText},
           kDOPortRefused});
  defTwin(cls, &D::DIO_setPortDI,
          {"DIO_setPortDI",
           "Puts an input port into DI slot mode.",
           {kDIPort},
           {kInt, kStatusText},
           kDIPortRefused});
  defTwin(cls, &D::DIO_setPortDO,
          {"DIO_setPortDO",
           "Puts an output port into DO slot mode.",
           {kDOPort},
           {kInt, kStatusText},
           kDOPortRefused});

  // One command each, no checks.
  defTwin(cls, &D::_closeDIOInPins,
          {"_closeDIOInPins",
           "Disables the pins of a mask.",
           {kAnyPort, {"pin", kInt, "mask"}},
           {kInt, kStatusText}});
  defTwin(cls, &D::_closeDIOInPort,
          {"_closeDIOInPort", "Disables every pin of a port.", {kAnyPort}, {kInt, kStatusText}});
  defTwin(cls, &D::_getDIOCurrent,
          {"_getDIOCurrent",
           "Reads enabled, direction and state.",
           {kAnyPort, kMask},
           {kDioWords, "enabled, direction, state"}});
  defTwin(cls, &D::_getDIOState,
          {"_getDIOState", "Reads the pin states.", {kAnyPort, kMask}, {kInts, kPinStates}});
  defTwin(cls, &D::_readAndGetDI,
          {"_readAndGetDI", "Reads the inputs.", {kAnyPort, kMask}, {kInts, kPinStates}});
  defTwin(cls, &D::_readDI, {"_readDI", "READ_DI.", {kAnyPort}, {kInt, kStatusText}});
  defTwin(cls, &D::_setAndWriteDO,
          {"_setAndWriteDO", "Writes outputs.", {kAnyPort, kMask, kWord}, {kInts, kPinStates}});
  defTwin(
      cls, &D::_setDIOCurrent,
      {"_setDIOCurrent",
       "Writes enabled, direction and state.",
       {kAnyPort, kMask, {"enabled", kInt, "word"}, {"direction", kInt, "word, 1 output"}, kWord},
       {kInt, kStatusText}});
  defTwin(
      cls, &D::_setDIOState,
      {"_setDIOState", "Writes the pin states.", {kAnyPort, kMask, kWord}, {kInt, kStatusText}});
  defTwin(cls, &D::_toggleAndWriteDO,
          {"_toggleAndWriteDO", "Toggles outputs.", {kAnyPort, kMask}, {kInts, kPinStates}});
  defTwin(cls, &D::_toggleDIODirection,
          {"_toggleDIODirection",
           "Toggles directions.",
           {kAnyPort, kMask, kWord},
           {kInt, kStatusText}});
  defTwin(cls, &D::_writeDO, {"_writeDO", "WRITE_DO.", {kAnyPort}, {kInt, kStatusText}});

  cls.def("_checkDIPort", &D::_checkDIPort, py::arg("port"));
  cls.def("_checkDOPort", &D::_checkDOPort, py::arg("port"));
  cls.def("_checkDIPortAndPin", &D::_checkDIPortAndPin, py::arg("port"), py::arg("pin_list"));
  cls.def("_checkDOPortAndPin", &D::_checkDOPortAndPin, py::arg("port"), py::arg("pin_list"));
  cls.def(
      "_getPinIndexInInt", [](D&, const Value& pin) { return D::_getPinIndexInInt(pin); },
      py::arg("pin"));
  cls.def(
      "_getPinIndexInList", [](D&, const Value& pin) { return D::_getPinIndexInList(pin); },
      py::arg("pin"));
}

const BindingRegistrar kDIO{{.name = "DIOModule", .module = "DIO", .bind = &bindDIO}};

}  // namespace

}  // namespace orv::py_bind
