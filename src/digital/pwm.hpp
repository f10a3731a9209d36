// PWMModule: the device's two PWM outputs.  The host checks the channel and
// passes frequency and duty cycle on as 32-bit floats; the firmware does the
// arithmetic.
#pragma once

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_PWM = 80;
inline constexpr int START_PWM = 81;
inline constexpr int STOP_PWM = 82;
inline constexpr int CLOSE_PWM = 83;
inline constexpr int SET_PWM_FREQUENCY = 84;
inline constexpr int SET_PWM_DUTY_CYCLE = 85;

class PWMModule : public ModuleBase {
 public:
  int PWM_open(const Call& c, const Value& channel);
  int PWM_start(const Call& c, const Value& channel);
  int PWM_stop(const Call& c, const Value& channel);
  int PWM_close(const Call& c, const Value& channel);
  int PWM_setFrequency(const Call& c, const Value& channel, const Value& frequency);
  int PWM_setDutyCycle(const Call& c, const Value& channel, const Value& duty_cycle);

  // Channel 0 or 1 by value (1.0 passes).  A bad channel reports the
  // counter's error: the two families' errors are crossed on purpose.
  static bool _checkPWMChannel(const Value& channel);
};
ORV_MODULE_CLASS("PWM", PWMModule);

}  // namespace orv
