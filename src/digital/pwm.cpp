#include "digital/pwm.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool PWMModule::_checkPWMChannel(const Value& channel) {
  if (!looseEquals(channel, Value(0)) && !looseEquals(channel, Value(1)))
    raise(ErrorId::CounterChannelNotAvaliableError);
  return true;
}

namespace {
int channelCommand(const Call& c, int cmd, const Value& channel) {
  PWMModule::_checkPWMChannel(channel);
  return c.exchangeStatus(cmd, Bytes{portByte(channel)}, 1);
}

int channelFloatCommand(const Call& c, int cmd, const Value& channel, const Value& x) {
  PWMModule::_checkPWMChannel(channel);
  Bytes out{portByte(channel)};
  appendF32(out, x);  // a non-number fails here, before anything is sent
  return c.exchangeStatus(cmd, out, 1);
}
}  // namespace

int PWMModule::PWM_open(const Call& c, const Value& channel) {
  return channelCommand(c, OPEN_PWM, channel);
}
int PWMModule::PWM_start(const Call& c, const Value& channel) {
  return channelCommand(c, START_PWM, channel);
}
int PWMModule::PWM_stop(const Call& c, const Value& channel) {
  return channelCommand(c, STOP_PWM, channel);
}
int PWMModule::PWM_close(const Call& c, const Value& channel) {
  return channelCommand(c, CLOSE_PWM, channel);
}
int PWMModule::PWM_setFrequency(const Call& c, const Value& channel, const Value& frequency) {
  return channelFloatCommand(c, SET_PWM_FREQUENCY, channel, frequency);
}
int PWMModule::PWM_setDutyCycle(const Call& c, const Value& channel, const Value& duty_cycle) {
  return channelFloatCommand(c, SET_PWM_DUTY_CYCLE, channel, duty_cycle);
}

}  // namespace orv
