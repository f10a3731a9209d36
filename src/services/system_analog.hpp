// SystemAnalogModule: what only the Wi-Fi analog models add to the system
// services — acceleration, battery and board temperature, and the reset of
// the analog input buffer.
#pragma once

#include <cstdint>
#include <vector>

#include "link/call.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int READ_ACCELERATION = 111;
inline constexpr int GET_BATTERY = 114;
inline constexpr int GET_THERMOMETER = 115;
inline constexpr int AI_RESET_BUFFER = 8213;

class SystemAnalogModule : public ModuleBase {
 public:
  // Three raw 16-bit words, read unsigned.  The awaitable twin is spelled
  // Wifi_readAccleration_async.
  std::vector<int64_t> Wifi_readAcceleration(const Call& c);
  // The raw 16-bit battery word.
  int64_t Wifi_readBattery(const Call& c);
  // Degrees Celsius: the signed word over 128.
  double Wifi_readThermo(const Call& c);
  int Wifi_resetAIBuffer_(const Call& c);

  // Attributes holding the last result of a read.
  Attr<int64_t> battery;
  Attr<double> thermo;
};
ORV_MODULE_CLASS("SystemAnalog", SystemAnalogModule);

}  // namespace orv
