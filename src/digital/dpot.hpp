// DPOTModule: the four resistor channels of KestrelRes.  Ratios go out as
// 32-bit floats; a read returns the firmware's 32 bits as an unsigned int.
#pragma once

#include <cstdint>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int POT_OPEN = 8512;
inline constexpr int POT_READ = 8513;
inline constexpr int POT_WRITE_BY_CS = 8514;
inline constexpr int POT_WRITE_ALL_CS = 8515;
inline constexpr int POT_CLOSE = 8516;

class DPOTModule : public ModuleBase {
 public:
  // Nothing to set up on the device: the port is checked, 0 returned.
  int DPOT_open(const Call& c, const Value& port);
  int DPOT_close(const Call& c, const Value& port);
  int64_t DPOT_readByChannel(const Call& c, const Value& port, const Value& channel);
  int DPOT_writeAllChannel(const Call& c, const Value& port, const Value& resistance_ratio);

  static bool _checkDPOTPort(const Value& port);
  static bool _checkDPOTChannelAmount(const Value& channel);
};
ORV_MODULE_CLASS("DPOT", DPOTModule);

}  // namespace orv
