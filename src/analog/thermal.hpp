// Temperature inputs: thermocouples (KestrelTherm, PloverTc) and resistance
// sensors (PloverRtd).  The device linearises and compensates; the host sends
// settings and reads 32-bit float degrees Celsius.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_THERMAL = 64;
inline constexpr int READ_THERMAL_JUNCTION = 65;
inline constexpr int READ_THERMAL_COUPLE = 66;
inline constexpr int CLOSE_THERMAL = 67;
inline constexpr int SET_THERMAL_NOISE_FILTER = 68;
inline constexpr int SET_THERMAL_OVER_SAMPLING = 69;
inline constexpr int SET_THERMAL_TYPE = 70;
inline constexpr int GET_THERMAL_STATUS = 71;
inline constexpr int SET_THERMAL_JUNCTION_ON = 72;
inline constexpr int READ_THERMAL_OFFSET = 73;
inline constexpr int WRITE_THERMAL_OFFSET = 74;
inline constexpr int WRITE_THERMAL_JUNCTION = 75;
inline constexpr int LOAD_THERMAL_OFFSET = 76;
inline constexpr int SAVE_THERMAL_OFFSET = 77;

// What both sensor kinds share.
class ThermalModule : public ModuleBase {
 public:
  PortMap Thermal_getPinMap() { return model().thermal_dict; }

  int Thermal_open(const Call& c, const Value& port);
  int Thermal_close(const Call& c, const Value& port);
  int64_t Thermal_getStatus(const Call& c, const Value& port, const Value& channel);
  double Thermal_readSensor(const Call& c, const Value& port, const Value& channel);
  int Thermal_setNoiseFilter_(const Call& c, const Value& port, const Value& channel,
                              const Value& mode);
  double Thermal_loadOffset_(const Call& c, const Value& port, const Value& channel);
  double Thermal_readOffset_(const Call& c, const Value& port, const Value& channel);
  int Thermal_saveOffset_(const Call& c, const Value& port, const Value& channel,
                          const Value& temperature);
  int Thermal_writeOffset_(const Call& c, const Value& port, const Value& channel,
                           const Value& temperature);

  bool _checkThermalPort(const Value& port);
  bool _checkThermalChipSelect(const Value& cs);
  static bool _checkThermalFilterMode(const Value& mode);
  static bool _checkThermalSamplingMode(const Value& mode);
  static bool _checkThermalTCType(const Value& tc_type);
  static bool _checkThermalRTDType(const Value& rtd_type);
  // Raises ThermalPortNotAvaliableError when a pin of the port is in a mode
  // outside allow_state.
  bool _checkThermalPinState(const Call& c, const Value& port, const Value& allow_state);
  // The distinct digital ports the thermal port's pins lie on.
  std::vector<int64_t> Thermal_getPinMapPort_(const Value& thermal_port);

 protected:
  // Port and channel checked: the payload's first two bytes.
  Bytes portAndChannel(const Value& port, const Value& channel);
  double readFloat(const Call& c, int cmd, const Value& port, const Value& channel);
  int sendWithTemperature(const Call& c, int cmd, const Value& port, const Value& channel,
                          const Value& temperature);
  int sendWithByte(const Call& c, int cmd, const Value& port, const Value& channel,
                   const Value& arg);
};

class ThermocoupleModule : public ThermalModule {
 public:
  int Thermal_setOverSampling(const Call& c, const Value& port, const Value& channel,
                              const Value& mode);
  int Thermal_setType(const Call& c, const Value& port, const Value& channel, const Value& type_);
  double Thermal_readJunction_(const Call& c, const Value& port, const Value& channel);
  int Thermal_setJunctionOn_(const Call& c, const Value& port, const Value& channel,
                             const Value& status);
  int Thermal_writeJunction_(const Call& c, const Value& port, const Value& channel,
                             const Value& temperature);
};
ORV_MODULE_CLASS("Thermocouple", ThermocoupleModule);

class ThermalResistanceModule : public ThermalModule {
 public:
  int Thermal_setType(const Call& c, const Value& port, const Value& channel, const Value& type_);
};
ORV_MODULE_CLASS("ThermalResistance", ThermalResistanceModule);

}  // namespace orv
