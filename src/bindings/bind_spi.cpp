// SPIModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "buses/spi.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kPinMap = "dict[int, list[tuple[int, int]]]";
const Arg kPort{"port", kInt, "SPI port, a key of SPI_dict"};
const Arg kAnyPort{"port", kInt, "SPI port (not checked)"};
const Arg kData{"write_data", kInts, "the bytes, each 0..255; their count goes out as one byte"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "SPIPortNotAvaliableError: port is not a key of SPI_dict.";
constexpr const char* kDataRefused =
    "InputTypeNotCorrectError: port is not an int, or write_data is not a list.\n"
    "SPIPortNotAvaliableError: port is not a key of SPI_dict.\n"
    "ValueError: a byte or the count outside 0..255.";

std::string modeRefused(const char* error, const char* what) {
  return std::string(kPortRefused) + "\nInputTypeNotCorrectError: " + what + " is not an int.\n" +
         error;
}

void bindSPI(py::module_& m) {
  using M = SPIModule;
  py::class_<M, std::shared_ptr<M>> cls(
      m, "SPIModule",
      "The device as an SPI master: open a port, set mode, data size, bit order and prescaler, "
      "read, write or exchange bytes.  Chip select is an ordinary digital output.");
  const Op map_row{"SPI_getPinMap",
                   "The SPI ports and the pins they occupy; nothing is sent.",
                   {},
                   {kPinMap, "SPI_dict: port -> [(digital port, pin), ...]"}};
  defPlain(cls, map_row, &M::SPI_getPinMap);
  defPlain(
      cls, map_row,
      [](M& self) {
        auto map = self.SPI_getPinMap();
        return immediateCoroutine([map] { return py::object(py::cast(map)); });
      },
      true);

  defTwin(cls, &M::SPI_open,
          {"SPI_open",
           "Opens an SPI port.",
           {kPort},
           {kInt,
            "0, or a negative firmware error code; after reading the pin modes of the port's "
            "digital ports (Sys_getPinModeInPort), SPIPortNotAvaliableError for a pin in a mode "
            "other than Idle, DI or DO, before OPEN_SPI is sent"},
           kPortRefused});
  defTwin(cls, &M::SPI_close,
          {"SPI_close", "Closes an SPI port.", {kPort}, {kInt, kStatusText}, kPortRefused});
  defTwin(cls, &M::SPI_reset,
          {"SPI_reset", "Resets an SPI port.", {kPort}, {kInt, kStatusText}, kPortRefused});

  static const std::string mode_refused =
      modeRefused("SPIModeNotVaildError: mode is not 0..3.", "mode");
  defTwin(cls, &M::SPI_setMode,
          {"SPI_setMode",
           "Sets clock polarity and phase: SET_SPI_CPOL, then SET_SPI_CPHA.",
           {kPort, {"mode", kInt, "0: CPOL 0 CPHA 0, 1: 0 1, 2: 1 0, 3: 1 1"}},
           {kInt, "the two statuses or'ed bit by bit: 0 when both succeed"},
           mode_refused.c_str()});
  static const std::string size_refused =
      modeRefused("SPIDataSizeNotVaildError: mode is not 0 or 1.", "mode");
  defTwin(cls, &M::SPI_setDataSize,
          {"SPI_setDataSize",
           "Sets the data size of an SPI port.",
           {kPort, {"mode", kInt, "0 or 1, passed on to the firmware"}},
           {kInt, kStatusText},
           size_refused.c_str()});
  static const std::string bit_refused =
      modeRefused("SPIFirstBitNotVaildError: mode is not 0 or 1.", "mode");
  defTwin(cls, &M::SPI_setFirstBit,
          {"SPI_setFirstBit",
           "Sets the bit order of an SPI port.",
           {kPort, {"mode", kInt, "0 or 1, passed on to the firmware"}},
           {kInt, kStatusText},
           bit_refused.c_str()});
  static const std::string prescaler_refused =
      modeRefused("SPIPrescalerNotVaildError: prescaler is not 2, 4, 8, ... 256.", "prescaler");
  defTwin(cls, &M::SPI_setPrescaler,
          {"SPI_setPrescaler",
           "Sets the clock prescaler of an SPI port.",
           {kPort, {"prescaler", kInt, "2, 4, 8, 16, 32, 64, 128 or 256"}},
           {kInt, kStatusText},
           prescaler_refused.c_str()});
  defTwin(cls, &M::SPI_write,
          {"SPI_write", "Writes bytes.", {kPort, kData}, {kInt, kStatusText}, kDataRefused});
  defTwin(cls, &M::SPI_read,
          {"SPI_read",
           "Reads bytes.",
           {kPort, {"bytes_to_read", kInt, "how many bytes, 0..255"}},
           {kInts, "the bytes read (no status: a failure gives a short or empty list)"},
           "InputTypeNotCorrectError: port or bytes_to_read is not an int.\n"
           "SPIPortNotAvaliableError: port is not a key of SPI_dict.\n"
           "ValueError: bytes_to_read outside 0..255."});
  defTwin(cls, &M::SPI_readAndWrite,
          {"SPI_readAndWrite",
           "Writes bytes and reads as many at once.",
           {kPort, kData},
           {kInts, "the bytes read while writing (no status)"},
           kDataRefused});
  defTwin(cls, &M::_SPI_setCPOL,
          {"_SPI_setCPOL",
           "Sends SET_SPI_CPOL; nothing is checked.",
           {kAnyPort, {"polarity", kInt, "0 or 1"}},
           {kInt, kStatusText}});
  defTwin(cls, &M::_SPI_setCPHA,
          {"_SPI_setCPHA",
           "Sends SET_SPI_CPHA; nothing is checked.",
           {kAnyPort, {"phase", kInt, "0 or 1"}},
           {kInt, kStatusText}});
  defTwin(cls, &M::_checkSPIPinState,
          {"_checkSPIPinState",
           "Reads the pin modes of the port's digital ports and tests every pin of the port.",
           {{"port", kInt, "SPI port, a key of SPI_dict (not checked for its type)"},
            {"allow_state", "collections.abc.Sequence[str]",
             "mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']"}},
           {"None", "None; SPIPortNotAvaliableError for a pin in another mode"},
           "KeyError: port is not a key of SPI_dict."});
  cls.def("_SPI_getPinMapPort", &M::_SPI_getPinMapPort, py::arg("SPI_port"),
          "The digital ports the pins of an SPI port lie on, each once.");
  cls.def("_checkSPIPort", &M::_checkSPIPort, py::arg("port"));
  cls.def(
      "_checkSPIDataSize", [](M&, const Value& v) { M::_checkSPIDataSize(v); }, py::arg("mode"));
  cls.def(
      "_checkSPIFirstBit", [](M&, const Value& v) { M::_checkSPIFirstBit(v); }, py::arg("mode"));
  cls.def(
      "_checkSPIMode", [](M&, const Value& v) { M::_checkSPIMode(v); }, py::arg("mode"));
  cls.def(
      "_checkSPIPrescaler", [](M&, const Value& v) { M::_checkSPIPrescaler(v); }, py::arg("mode"));
}

const BindingRegistrar kSPI{{.name = "SPIModule", .module = "SPI", .bind = &bindSPI}};

}  // namespace

}  // namespace orv::py_bind
