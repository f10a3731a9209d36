// The temperature inputs as the host sees them: ThermalModule holds what both
// sensor kinds share, ThermocoupleModule and ThermalResistanceModule add their
// own settings.
#include "analog/thermal.hpp"
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"

namespace orv::py_bind {

namespace {

py::dict pinMapDict(const PortMap& pm) {
  py::dict d;
  for (const auto& [port, pins] : pm) {
    py::list l;
    for (const auto& p : pins) l.append(py::make_tuple(p.port, p.pin));
    d[py::int_(port)] = l;
  }
  return d;
}

const Arg kPort{"port", kInt, "thermal port, a key of thermal_dict"};
const Arg kChannel{"channel", kInt, "sensor channel: 0..1, on KestrelTherm 0..6"};
const Arg kTemperature{"temperature", "float", "degrees Celsius, sent as a 32-bit float"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "ThermalPortNotAvaliableError: port is not a key of thermal_dict.";
constexpr const char* kChannelRefused =
    "InputTypeNotCorrectError: port or channel is not an int.\n"
    "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
    "ThermalChipSelectNotAvaliableError: channel is out of range.";
constexpr const char* kTemperatureRefused =
    "InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.\n"
    "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
    "ThermalChipSelectNotAvaliableError: channel is out of range.";

void bindThermal(py::module_& m) {
  using T = ThermalModule;
  py::class_<T, std::shared_ptr<T>> cls(
      m, "ThermalModule", "Temperature inputs: what thermocouples and resistance sensors share.");
  cls.def(
      "Thermal_getPinMap", [](T& self) { return pinMapDict(self.Thermal_getPinMap()); },
      "Thermal_getPinMap(self) -> dict[int, list[tuple[int, int]]]\n\n"
      "thermal_dict: each thermal port and the (pin-map port, pin) pairs it occupies.");
  defTwin(cls, &T::Thermal_open,
          {"Thermal_open",
           "Opens a thermal port (its pins must be Idle, DI or DO, except on KestrelTherm).",
           {kPort},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port is not an int.\n"
           "ThermalPortNotAvaliableError: port is not a key of thermal_dict, or a pin of it "
           "serves another function."});
  defTwin(cls, &T::Thermal_close,
          {"Thermal_close",
           "Closes a thermal port; on KestrelTherm nothing is checked or sent and 0 returned.",
           {kPort},
           {kInt, kStatusText},
           kPortRefused});
  defTwin(cls, &T::Thermal_getStatus,
          {"Thermal_getStatus",
           "Reads a sensor's status bits (on Plover-Tc bit 0 only: open-circuit fault).",
           {kPort, kChannel},
           {kInt, "the status bits"},
           kChannelRefused});
  defTwin(cls, &T::Thermal_readSensor,
          {"Thermal_readSensor",
           "Reads a temperature.",
           {kPort, kChannel},
           {kFloat, "degrees Celsius, rounded to 3 decimal places"},
           kChannelRefused});
  defTwin(cls, &T::Thermal_setNoiseFilter_,
          {"_Thermal_setNoiseFilter",
           "Sets the mains filter of a channel.",
           {kPort, kChannel, {"mode", kInt, "0: 60 Hz (device default), 1: 50 Hz"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port, channel or mode is not an int.\n"
           "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
           "ThermalChipSelectNotAvaliableError: channel is out of range.\n"
           "ThermalModeNotVaildError: mode is not 0 or 1."});
  defTwin(cls, &T::Thermal_loadOffset_,
          {"_Thermal_loadOffset",
           "Loads a channel's saved offset.",
           {kPort, kChannel},
           {kFloat, "degrees Celsius"},
           kChannelRefused});
  defTwin(cls, &T::Thermal_readOffset_,
          {"_Thermal_readOffset",
           "Reads a channel's offset.",
           {kPort, kChannel},
           {kFloat, "degrees Celsius"},
           kChannelRefused});
  defTwin(cls, &T::Thermal_saveOffset_,
          {"_Thermal_saveOffset",
           "Saves a channel's offset in the device.",
           {kPort, kChannel, kTemperature},
           {kInt, kStatusText},
           kTemperatureRefused});
  defTwin(cls, &T::Thermal_writeOffset_,
          {"_Thermal_writeOffset",
           "Sets a channel's offset.",
           {kPort, kChannel, kTemperature},
           {kInt, kStatusText},
           kTemperatureRefused});
  cls.def(
      "_checkThermalPort", [](T& self, const Value& p) { return self._checkThermalPort(p); },
      py::arg("port"));
  cls.def(
      "_checkThermalChipSelect",
      [](T& self, const Value& cs) { return self._checkThermalChipSelect(cs); }, py::arg("cs"));
  defTwin(cls, &T::_checkThermalPinState,
          {"_checkThermalPinState",
           "Checks that every pin of the port is in one of the allowed modes.",
           {kPort, {"allow_state", kStrs, "allowed pin modes, e.g. [\"Idle\", \"DI\", \"DO\"]"}},
           {"bool", "True"},
           "ThermalPortNotAvaliableError: a pin of the port in another mode."});
  cls.def("_Thermal_getPinMapPort", &T::Thermal_getPinMapPort_, py::arg("thermal_port"),
          "The pin-map ports of a thermal port.");
  cls.def_static("_checkThermalFilterMode", &T::_checkThermalFilterMode, py::arg("mode"));
  cls.def_static("_checkThermalSamplingMode", &T::_checkThermalSamplingMode, py::arg("mode"));
  cls.def_static("_checkThermalTCType", &T::_checkThermalTCType, py::arg("tc_type"));
  cls.def_static("_checkThermalRTDType", &T::_checkThermalRTDType, py::arg("rtd_type"));
}

void bindThermocouple(py::module_& m) {
  using T = ThermocoupleModule;
  py::class_<T, ThermalModule, std::shared_ptr<T>> cls(
      m, "ThermocoupleModule", "Thermocouple inputs (KestrelTherm, PloverTc).");
  defTwin(cls, &T::Thermal_setOverSampling,
          {"Thermal_setOverSampling",
           "Sets how many samples a reading averages.",
           {kPort, kChannel, {"mode", kInt, "0: 1 (device default), 1: 2, 2: 4, 3: 8, 4: 16"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or channel is not an int.\n"
           "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
           "ThermalChipSelectNotAvaliableError: channel is out of range.\n"
           "ThermalModeNotVaildError: mode is not one of 0..4."});
  defTwin(cls, &T::Thermal_setType,
          {"Thermal_setType",
           "Sets the thermocouple type.",
           {kPort,
            kChannel,
            {"type_", kInt, "0 B, 1 E, 2 J, 3 K (device default), 4 N, 5 R, 6 S, 7 T"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or channel is not an int.\n"
           "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
           "ThermalChipSelectNotAvaliableError: channel is out of range.\n"
           "ThermalTypeNotVaildError: type_ is not one of 0..7."});
  defTwin(cls, &T::Thermal_readJunction_,
          {"_Thermal_readJunction",
           "Reads the cold-junction temperature.",
           {kPort, kChannel},
           {kFloat, "degrees Celsius"},
           kChannelRefused});
  defTwin(cls, &T::Thermal_setJunctionOn_,
          {"_Thermal_setJunctionOn",
           "Turns the cold-junction compensation on or off.",
           {kPort, kChannel, {"status", "bool", "True sends 1, False 0"}},
           {kInt, kStatusText},
           kChannelRefused});
  defTwin(cls, &T::Thermal_writeJunction_,
          {"_Thermal_writeJunction",
           "Sets the cold-junction temperature.",
           {kPort, kChannel, kTemperature},
           {kInt, kStatusText},
           kTemperatureRefused});
}

void bindThermalResistance(py::module_& m) {
  using T = ThermalResistanceModule;
  py::class_<T, ThermalModule, std::shared_ptr<T>> cls(
      m, "ThermalResistanceModule",
      "Resistance temperature sensors, PT-100 and PT-1000 (PloverRtd).");
  defTwin(cls, &T::Thermal_setType,
          {"Thermal_setType",
           "Sets the sensor wiring.",
           {kPort, kChannel, {"type_", kInt, "0: two- or four-wire, 1: three-wire"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: port or channel is not an int.\n"
           "ThermalPortNotAvaliableError: port is not a key of thermal_dict.\n"
           "ThermalChipSelectNotAvaliableError: channel is out of range.\n"
           "ThermalTypeNotVaildError: type_ is not 0 or 1."});
}

const BindingRegistrar kThermal{
    {.name = "ThermalModule", .bind = &bindThermal, .order = kBindBases}};
const BindingRegistrar kThermocouple{
    {.name = "ThermocoupleModule", .module = "Thermocouple", .bind = &bindThermocouple}};
const BindingRegistrar kThermalResistance{{.name = "ThermalResistanceModule",
                                           .module = "ThermalResistance",
                                           .bind = &bindThermalResistance}};

}  // namespace

}  // namespace orv::py_bind
