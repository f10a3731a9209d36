#include "analog/ao.hpp"

#include <algorithm>
#include <string>

#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

namespace {

void appendU32(Bytes& out, const Value& v) {
  const Bytes b = convertU32To4U8(v);
  out.insert(out.end(), b.begin(), b.end());
}

uint32_t u32At(const Bytes& d, size_t at) { return convert4U8ToU32(std::span(d).subspan(at, 4)); }

bool checkRange(const Value& v, int64_t low, int64_t high, ErrorId refused) {
  checkInputType(v, kTypeInt);
  const int64_t i = v.asInt();
  if (i < low || i > high) raise(refused);
  return true;
}

}  // namespace

// ---------------------------------------------------------------------------
// Checks.

bool AOModule::_checkAOPort(const Value& port) {
  checkInputType(port, kTypeInt);
  const int64_t p = port.asInt();
  if (p < 0 || p > 255 || !model().ao_dict.count(static_cast<int>(p)))
    raise(ErrorId::AOPortNotAvaliableError);
  return true;
}
bool AOModule::_checkAOChannel(const Value& channel) {
  return checkRange(channel, 0, 7, ErrorId::AOChannelNotAvaliableError);
}
// Form 0 (DC) is known to the device and refused here.
bool AOModule::_checkAOForm(const Value& form) {
  return checkRange(form, 1, 3, ErrorId::AOFormNotAvaliableError);
}
bool AOModule::_checkAOMode(const Value& mode) {
  return checkRange(mode, 0, 2, ErrorId::AOModeNotVaildError);
}
bool AOModule::_checkAOSpan(const Value& span) {
  return checkRange(span, 0, 4, ErrorId::AOSpanNotVaildError);
}
bool AOModule::_ckeckAOSamplingRate(const Value& rate) {
  checkInputType(rate, kTypeInt | kTypeFloat);
  if (compareNumbers(rate, Value(model().ao.rate)) == 1) raise(ErrorId::AORateNotVaildError);
  return true;
}
bool AOModule::_checkAONumOfValues(const Value& value) {
  checkInputType(value, kTypeInt);
  return value.asInt() <= 13;
}

std::vector<int> AOModule::AO_getPinMapPort_(const Value& ao_port) {
  checkInputType(ao_port, kTypeInt);
  auto it = model().ao_dict.find(static_cast<int>(ao_port.asInt()));
  if (it == model().ao_dict.end()) throw KeyError(ao_port.repr());
  std::vector<int> out;
  for (const PinPair& p : it->second)
    if (std::find(out.begin(), out.end(), p.port) == out.end()) out.push_back(p.port);
  return out;
}

bool AOModule::_checkAOPinState(const Call& c, const Value& port, const Value& allow_state) {
  auto* sys = sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  const auto& pairs = model().ao_dict.at(static_cast<int>(port.asInt()));
  for (int i : AO_getPinMapPort_(port)) {
    const Value pin_map = Value::listOf(sys->Sys_getPinModeInPort(c, Value(i)));
    for (const PinPair& p : pairs)
      if (p.port == i && !checkFuncPinMap(Value{p.port, p.pin}, pin_map, allow_state))
        raise(ErrorId::AOPortNotAvaliableError);
  }
  return true;
}

Value AOModule::slotPort(const Value& port) const {
  return slots() ? changeToTrellisPort(port) : port;
}

int AOModule::status(const Call& c, int cmd, const Bytes& out, size_t offset) {
  return c.exchangeStatus(cmd, out, offset);
}

std::vector<int> AOModule::AO_getPort() {
  std::vector<int> out;
  for (const auto& [port, pins] : model().ao_dict) out.push_back(port);
  return out;
}

// ---------------------------------------------------------------------------
// Opening and closing.

int AOModule::AO_open(const Call& c, const Value& port) {
  if (model().ao.open_silent) return 0;
  _checkAOPort(port);
  _checkAOPinState(c, port, Value::list({Value("Idle")}));
  return status(c, OPEN_AO, Bytes{portByte(port)});
}

int AOModule::AO_close(const Call& c, const Value& port) {
  if (model().ao.open_silent) return 0;
  _checkAOPort(port);
  return status(c, CLOSE_AO, Bytes{portByte(port)});
}

// ---------------------------------------------------------------------------
// Streaming, getters and setters: nothing on a slotted model.

std::optional<Value> AOModule::AO_openStreaming(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(OPEN_AO_STREAMING, Bytes{portByte(port)});
  needReplyBytes(d, 6, OPEN_AO_STREAMING);
  return Value::list(
      {Value(int64_t{d[1]}), Value(double{convert4U8ToF32(std::span(d).subspan(2, 4))})});
}

AOModule::MaybeInt AOModule::AO_startStreaming(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes out{portByte(port)};
  c.send(START_AO_STREAMING, out);
  return 0;
}

AOModule::MaybeInt AOModule::AO_stopStreaming_(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  return status(c, STOP_AO_STREAMING, Bytes{portByte(port)});
}

AOModule::MaybeInt AOModule::AO_closeStreaming(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  return status(c, CLOSE_AO_STREAMING, Bytes{portByte(port)});
}

AOModule::MaybeInt AOModule::AO_getMode(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(GET_AO_MODE, Bytes{portByte(port)});
  needReplyBytes(d, 2, GET_AO_MODE);
  return d[1];
}

AOModule::MaybeInt AOModule::AO_getState(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(GET_AO_STATE, Bytes{portByte(port)});
  needReplyBytes(d, 2, GET_AO_STATE);
  return d[1];
}

AOModule::MaybeInt AOModule::AO_getEnableChannels(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(GET_AO_ENABLED_CHANNELS, Bytes{portByte(port), 0});
  needReplyBytes(d, 3, GET_AO_ENABLED_CHANNELS);
  return d[2];
}

std::optional<std::vector<double>> AOModule::AO_getValues(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(GET_AO_VALUES, Bytes{portByte(port)});
  needReplyBytes(d, 2 + 32, GET_AO_VALUES);
  std::vector<double> out;
  for (size_t i = 0; i < 8; ++i) out.push_back(convert4U8ToF32(std::span(d).subspan(2 + 4 * i, 4)));
  return out;
}

AOModule::MaybeInt AOModule::AO_setEnableChannels(const Call& c, const Value& port,
                                                  const Value& channel_list) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  checkInputType(channel_list, kTypeList);
  for (const Value& ch : channel_list.asList()) _checkAOChannel(ch);
  const int64_t channel_int = convertIndexListToInt(channel_list);
  return status(c, SET_AO_ENABLED_CHANNELS,
                Bytes{portByte(port), 0, static_cast<uint8_t>(channel_int & 0xFF)});
}

AOModule::MaybeInt AOModule::AO_setForm(const Call& c, const Value& port, const Value& channel,
                                        const Value& form) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  _checkAOChannel(channel);
  _checkAOForm(form);
  return status(c, SET_AO_FORM, Bytes{portByte(port), 0, portByte(channel), portByte(form)}, 3);
}

AOModule::MaybeInt AOModule::AO_setFormParam(const Call& c, const Value& port, const Value& channel,
                                             const Value& amplitude, const Value& offset,
                                             const Value& frequency, const Value& phase,
                                             const Value& duty_cycle) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  _checkAOChannel(channel);
  const Value* params[] = {&amplitude, &offset, &frequency, &phase, &duty_cycle};
  for (const Value* v : params) checkInputType(*v, kTypeInt | kTypeFloat);
  Bytes out{portByte(port), 0, portByte(channel)};
  for (const Value* v : params) appendF32(out, *v);
  return status(c, SET_AO_FORM_PARAM, out, 3);
}

AOModule::MaybeInt AOModule::AO_setMode(const Call& c, const Value& port, const Value& mode) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  _checkAOMode(mode);
  return status(c, SET_AO_MODE, Bytes{portByte(port), portByte(mode)});
}

AOModule::MaybeInt AOModule::AO_setNumSamples(const Call& c, const Value& port,
                                              const Value& num_samples) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  checkInputType(num_samples, kTypeInt);
  Bytes out{portByte(port)};
  appendU32(out, num_samples);
  return status(c, SET_AO_NUM_SAMPLES, out);
}

AOModule::MaybeInt AOModule::AO_setSamplingRate(const Call& c, const Value& port,
                                                const Value& sampling_rate) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  _ckeckAOSamplingRate(sampling_rate);
  Bytes out{portByte(port)};
  appendF32(out, sampling_rate);
  return status(c, SET_AO_SAMPLING_RATE, out);
}

AOModule::MaybeInt AOModule::AO_setSpan_(const Call& c, const Value& port, const Value& span) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  _checkAOSpan(span);
  return status(c, SET_AO_SPAN, Bytes{portByte(port), portByte(span)});
}

std::optional<std::vector<uint32_t>> AOModule::AO_getCounters_(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(GET_AO_COUNTERS, Bytes{portByte(port)});
  needReplyBytes(d, 9, GET_AO_COUNTERS);
  return std::vector<uint32_t>{u32At(d, 1), u32At(d, 5)};
}

std::optional<std::vector<uint32_t>> AOModule::AO_initialBuffer_(const Call& c, const Value& port) {
  if (slots()) return std::nullopt;
  _checkAOPort(port);
  const Bytes d = c.exchange(INIT_AO_BUFFER, Bytes{portByte(port)});
  needReplyBytes(d, 6, INIT_AO_BUFFER);
  return std::vector<uint32_t>{u32At(d, 1), d[5]};
}

// ---------------------------------------------------------------------------
// Writes.

int AOModule::AO_writeOneChannel(const Call& c, const Value& port_in, const Value& channel,
                                 const Value& value) {
  const Value port = slotPort(port_in);
  _checkAOPort(port);
  _checkAOChannel(channel);
  checkInputType(value, kTypeInt | kTypeFloat);
  checkEachItemInRange(Value::list({value}), Value(model().ao.volt_min),
                       Value(model().ao.volt_max));
  Bytes out{portByte(port), portByte(channel)};
  appendF32(out, value);
  return status(c, WRITE_AO_BY_CHANNEL, out);
}

// The range check covers every value given; then the list is cut or padded
// with zeros to 8, so a short list also zeroes the remaining channels.
int AOModule::AO_writeAllChannels(const Call& c, const Value& port_in, const Value& value_list) {
  const Value port = slotPort(port_in);
  _checkAOPort(port);
  checkInputType(value_list, kTypeList);
  checkEachItemInRange(value_list, Value(model().ao.volt_min), Value(model().ao.volt_max));
  const Value values = adjustDataList(value_list);
  Bytes out{portByte(port)};
  for (const Value& v : values.asList()) appendF32(out, v);
  return status(c, WRITE_AO_SYNCHRONIZED, out);
}

// num_of_val goes out as given, whatever its size and whatever the list holds.
int AOModule::AO_pushToBuffer_(const Call& c, const Value& port_in, const Value& num_of_val,
                               const Value& value_list) {
  const Value port = slotPort(port_in);
  _checkAOPort(port);
  _checkAONumOfValues(num_of_val);
  if (!value_list.isSequence())
    throw TypeError("'" + std::string(value_list.typeName()) + "' object is not iterable");
  Bytes out{portByte(port), 0, portByte(num_of_val)};
  for (const Value& v : value_list.asList()) appendF32(out, v);
  return status(c, SET_AO_PUSH_TO_BUFFER, out);
}

}  // namespace orv
