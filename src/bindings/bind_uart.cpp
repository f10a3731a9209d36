// UARTModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/bus_read.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "buses/uart.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kMap = "dict[int, list[tuple[int, int]]]";
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "UARTPortNotAvaliableError: port is not a key of uart_dict.";
const Arg kPort{"port", kInt, "UART port, a key of uart_dict (1 or 2)"};

void bindUART(py::module_& m) {
  using U = UARTModule;
  py::class_<U, std::shared_ptr<U>> cls(
      m, "UARTModule",
      "The device's two UARTs: open, line settings, write up to 50 bytes a command, read what "
      "the device received (streamed by the device, one thread per port).");

  const Op pin_map{"UART_getPinMap",
                   "The UART ports and their pins; nothing is sent.",
                   {},
                   {kMap, "uart_dict: port -> (digital port, pin) pairs"}};
  defPlain(cls, pin_map, [](U& self) { return portMapObject(self.UART_getPinMap()); });
  defPlain(
      cls, pin_map,
      [](U& self) {
        auto map = self.UART_getPinMap();
        return immediateCoroutine([map] { return portMapObject(map); });
      },
      true);

  defTwin(cls, &U::UART_open,
          {"UART_open",
           "Opens a UART after reading the modes of its pins; the first open after a close "
           "starts the port's stream and opens both ports' stream gates.",
           {kPort},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict, or (after the pin-mode "
           "read) a pin of the port is in a mode other than Idle, DI or DO."});
  defTwin(cls, &U::UART_close,
          {"UART_close",
           "Stops the reading, closes the UART; the first close after an open parks both "
           "stream threads.",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &U::UART_reset,
          {"UART_reset", "Resets a UART.", {kPort}, {kInt, kStatusText}, kPortRefused});
  defTwin(cls, &U::UART_stopReading,
          {"UART_stopReading",
           "Stops the stream of received bytes of a UART.",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &U::UART_setBaudRate,
          {"UART_setBaudRate",
           "Sets the baud rate, sent as four bytes, high byte first.",
           {kPort, {"baud_rate", kInt, "bits per second, at most 400000 (no lower bound)"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or baud_rate is not an int.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict.\n"
           "UARTBaudRateNotSupportError: baud_rate above 400000."});
  defTwin(cls, &U::UART_setDataBit,
          {"UART_setDataBit",
           "Sets the data size.",
           {kPort, {"mode", kInt, "0 or 1, passed to the firmware as it is"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict.\n"
           "UARTDataBitNotSupportError: mode is not 0 or 1."});
  defTwin(cls, &U::UART_setParity,
          {"UART_setParity",
           "Sets the parity.",
           {kPort, {"mode", kInt, "0..3, passed to the firmware as it is"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict.\n"
           "UARTParityNotSupportError: mode is not in 0..3."});
  defTwin(cls, &U::UART_setNumStopBit,
          {"UART_setNumStopBit",
           "Sets the number of stop bits.",
           {kPort, {"mode", kInt, "0..3, passed to the firmware as it is"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict.\n"
           "UARTStopBitNotSupportError: mode is not in 0..3."});
  defTwin(cls, &U::UART_write,
          {"UART_write",
           "Writes up to 50 characters in one command: a length byte (the items given), then "
           "one byte per character code.",
           {kPort,
            {"write_data", "str | list[str]",
             "a text, or a list of one-character strings; codes 0..255"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int, or write_data neither a str nor a "
           "list.\n"
           "UARTPortNotAvaliableError: port is not a key of uart_dict.\n"
           "UARTExceedMaxLengthError: more than 50 items.\n"
           "TypeError: an item of the list is not a one-character string.\n"
           "ValueError: a character code above 255."});
  defStreamRead(
      cls,
      {"UART_read",
       "Takes received bytes of a UART. The blocking method waits until bytes_to_read "
       "are there, open or not; the awaitable twin takes what is there, up to "
       "bytes_to_read, without waiting.",
       {kPort,
        {"bytes_to_read", kInt, "how many bytes; -1 for all that are there"},
        {"delay", kFloat, "kept for the interface; a byte wakes the reader at once", "0.005"}},
       {kStrs, "one one-character string per byte, oldest first"},
       "InputTypeNotCorrectError: port or bytes_to_read is not an int.\n"
       "UARTPortNotAvaliableError: port is not a key of uart_dict."},
      [](U& self, const Call& c, const Value& port, const Value& n, double delay) {
        return self.UART_read(c, port, n, delay);
      });
  defTwin(cls, &U::UART_startReading_,
          {"_UART_startReading",
           "Asks the firmware to stream what the UART receives; no reply is awaited.",
           {kPort},
           {kInt, "0"},
           kPortRefused});
  defTwin(cls, &U::_checkUARTPinState,
          {"_checkUARTPinState",
           "Reads the modes of the digital ports the UART's pins lie on and tests every pin "
           "of the UART against each port's modes.",
           {kPort, {"allow_state", kStrs, "mode names that count as free, e.g. ['Idle']"}},
           {"None", "nothing; raises on a busy pin"},
           "UARTPortNotAvaliableError: a pin in a mode not in allow_state (after the read)."});

  cls.def("_UART_getPinMapPort", &U::UART_getPinMapPort_, py::arg("UART_port"),
          "The digital ports the UART's pins lie on, each once.");
  cls.def("_UART_free", &U::UART_free_, py::call_guard<py::gil_scoped_release>(),
          "Ends both stream threads (the model's close does this and joins them).");
  cls.def("_checkUARTPort", &U::_checkUARTPort, py::arg("port"));
  cls.def_static("_checkUARTBaudRate", &U::_checkUARTBaudRate, py::arg("baud_rate"));
  cls.def_static("_checkUARTDataBit", &U::_checkUARTDataBit, py::arg("mode"));
  cls.def_static("_checkUARTParityMode", &U::_checkUARTParityMode, py::arg("mode"));
  cls.def_static("_checkUARTNumStopBitMode", &U::_checkUARTNumStopBitMode, py::arg("mode"));
  cls.def_static("_checkUARTDataLength", &U::_checkUARTDataLength, py::arg("data"));
  cls.def_property_readonly("uart_open_flag", &U::uartOpenFlag,
                            "True from a first open to the matching close; one for both ports.");
  cls.def_property_readonly("uart_killed", &U::uartKilled, "True once the stream threads end.");
  cls.def("_uartGateOpen", &U::uartGateOpen, py::arg("port"),
          "Whether the stream thread of a port may pass its gate.");
  cls.def("_uartSignalSize", &U::uartSignalSize, py::arg("port"),
          "Bytes waiting in a port's signal queue.");
}

const BindingRegistrar kUART{{.name = "UARTModule", .module = "UART", .bind = &bindUART}};

}  // namespace

}  // namespace orv::py_bind
