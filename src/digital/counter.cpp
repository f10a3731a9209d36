#include "digital/counter.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool CounterModule::_checkCounterChannel(const Value& channel) {
  if (!looseEquals(channel, Value(0)) && !looseEquals(channel, Value(1)))
    raise(ErrorId::PWMChannelNotAvaliableError);
  return true;
}

namespace {
int channelCommand(const Call& c, int cmd, const Value& channel) {
  CounterModule::_checkCounterChannel(channel);
  return c.exchangeStatus(cmd, Bytes{portByte(channel)}, 1);
}
}  // namespace

int CounterModule::Counter_open(const Call& c, const Value& channel) {
  return channelCommand(c, PULSE_OPEN, channel);
}
int CounterModule::Counter_start(const Call& c, const Value& channel) {
  return channelCommand(c, PULSE_START, channel);
}
int CounterModule::Counter_stop(const Call& c, const Value& channel) {
  return channelCommand(c, PULSE_STOP, channel);
}
int CounterModule::Counter_close(const Call& c, const Value& channel) {
  return channelCommand(c, PULSE_CLOSE, channel);
}

// The count is the two bytes from byte 5 on, high byte first; no status.
int64_t CounterModule::Counter_read(const Call& c, const Value& channel) {
  _checkCounterChannel(channel);
  const Bytes data_in = c.exchange(PULSE_READ, Bytes{portByte(channel)});
  const size_t from = std::min<size_t>(5, data_in.size());
  return convert2U8ToU16(std::span(data_in).subspan(from));
}

}  // namespace orv
