// I2CModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "buses/i2c.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kPinMap = "dict[int, list[tuple[int, int]]]";
const Arg kPort{"port", kInt, "I2C port, a key of I2C_dict"};
const Arg kAnyPort{"port", kInt, "I2C port, a key of I2C_dict (not checked for its type)"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "I2CPortNotAvaliableError: port is not a key of I2C_dict.";

void bindI2C(py::module_& m) {
  using M = I2CModule;
  py::class_<M, std::shared_ptr<M>> cls(
      m, "I2CModule",
      "The device as an I2C master: open a port, set its clock rate and address size, read and "
      "write bytes at an address.");
  const Op map_row{"I2C_getPinMap",
                   "The I2C ports and the pins they occupy; nothing is sent.",
                   {},
                   {kPinMap, "I2C_dict: port -> [(digital port, pin), ...]"}};
  defPlain(cls, map_row, &M::I2C_getPinMap);
  defPlain(
      cls, map_row,
      [](M& self) {
        auto map = self.I2C_getPinMap();
        return immediateCoroutine([map] { return py::object(py::cast(map)); });
      },
      true);

  defTwin(cls, &M::I2C_open,
          {"I2C_open",
           "Opens an I2C port.",
           {kPort},
           {kInt,
            "0, or a negative firmware error code; after reading the pin modes of the port's "
            "digital ports (Sys_getPinModeInPort), I2CPortNotAvaliableError for a pin in a mode "
            "other than Idle, DI or DO, before OPEN_I2C is sent"},
           kPortRefused});
  defTwin(cls, &M::I2C_close,
          {"I2C_close", "Closes an I2C port.", {kPort}, {kInt, kStatusText}, kPortRefused});
  defTwin(cls, &M::I2C_reset,
          {"I2C_reset", "Resets an I2C port.", {kPort}, {kInt, kStatusText}, kPortRefused});
  defTwin(cls, &M::I2C_setClockRate,
          {"I2C_setClockRate",
           "Sets the clock rate of an I2C port.",
           {kPort, {"mode", kInt, "0: 100 kHz, 1: 400 kHz, 2: 1 MHz, 3: 3.4 MHz"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "I2CPortNotAvaliableError: port is not a key of I2C_dict.\n"
           "I2CClockNotSupportError: mode is not 0..3."});
  defTwin(cls, &M::I2C_setAddressSize,
          {"I2C_setAddressSize",
           "Sets the address size of an I2C port.",
           {kPort, {"mode", kInt, "0 or 1, passed on to the firmware"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "I2CPortNotAvaliableError: port is not a key of I2C_dict.\n"
           "I2CAddressSizeNotVaildError: mode is not 0 or 1."});
  defTwin(cls, &M::I2C_write,
          {"I2C_write",
           "Writes bytes to a slave.",
           {kPort,
            {"write_address", kInt, "the slave's address byte"},
            {"write_data", kInts, "the bytes, each 0..255; their count goes out as one byte"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or write_address is not an int, or write_data is not "
           "a list.\n"
           "I2CPortNotAvaliableError: port is not a key of I2C_dict.\n"
           "ValueError: an address, byte or count outside 0..255."});
  defTwin(cls, &M::I2C_read,
          {"I2C_read",
           "Reads bytes from a slave.",
           {kPort,
            {"read_address", kInt, "the slave's address byte"},
            {"bytes_to_read", kInt, "how many bytes, 0..255"}},
           {kInts, "the bytes read; a failed read gives a short or empty list (no status)"},
           "InputTypeNotCorrectError: an argument that is not an int.\n"
           "I2CPortNotAvaliableError: port is not a key of I2C_dict.\n"
           "ValueError: read_address or bytes_to_read outside 0..255."});
  defTwin(cls, &M::_checkI2CPinState,
          {"_checkI2CPinState",
           "Reads the pin modes of the port's digital ports and tests every pin of the port.",
           {kAnyPort,
            {"allow_state", "collections.abc.Sequence[str]",
             "mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']"}},
           {"None", "None; I2CPortNotAvaliableError for a pin in another mode"},
           "KeyError: port is not a key of I2C_dict."});
  cls.def("_I2C_getPinMapPort", &M::_I2C_getPinMapPort, py::arg("I2C_port"),
          "The digital ports the pins of an I2C port lie on, each once.");
  cls.def("_checkI2CPort", &M::_checkI2CPort, py::arg("port"));
  cls.def(
      "_checkI2CClockRate", [](M&, const Value& mode) { M::_checkI2CClockRate(mode); },
      py::arg("mode"));
  cls.def(
      "_checkI2CAddressSize", [](M&, const Value& mode) { M::_checkI2CAddressSize(mode); },
      py::arg("mode"));
}

const BindingRegistrar kI2C{{.name = "I2CModule", .module = "I2C", .bind = &bindI2C}};

}  // namespace

}  // namespace orv::py_bind
