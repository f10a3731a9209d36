// CounterModule: the device's two pulse counters.  What a counter counts and
// whether it wraps are the firmware's matters; the host reads 16 bits.
#pragma once

#include <cstdint>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int PULSE_OPEN = 4128;
inline constexpr int PULSE_START = 4129;
inline constexpr int PULSE_READ = 4130;
inline constexpr int PULSE_STOP = 4131;
inline constexpr int PULSE_CLOSE = 4132;

class CounterModule : public ModuleBase {
 public:
  int Counter_open(const Call& c, const Value& channel);
  int Counter_start(const Call& c, const Value& channel);
  int64_t Counter_read(const Call& c, const Value& channel);
  int Counter_stop(const Call& c, const Value& channel);
  int Counter_close(const Call& c, const Value& channel);

  // Channel 0 or 1 by value.  A bad channel reports the PWM's error: the two
  // families' errors are crossed on purpose.
  static bool _checkCounterChannel(const Value& channel);
};
ORV_MODULE_CLASS("Counter", CounterModule);

}  // namespace orv
