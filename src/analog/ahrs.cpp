#include "analog/ahrs.hpp"

#include <numbers>

#include "analog/py_round.hpp"
#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool AHRSModule::_checkAHRSPort(const Value& port) {
  checkInputType(port, kTypeInt);
  const int64_t p = port.asInt();
  if (p != static_cast<int>(p) || !model().ahrs_dict.contains(static_cast<int>(p)))
    raise(ErrorId::AHRSPortNotAvaliableError);
  return true;
}

// A bad mode is refused as a bad port: AHRSModeNotAvaliableError stays unused.
bool AHRSModule::_checkAHRSMode(const Value& mode) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  if (m < 0 || m > 2) raise(ErrorId::AHRSPortNotAvaliableError);
  return true;
}

int AHRSModule::_convertModeToMask(const Value& mode) {
  if (looseEquals(mode, Value(0))) return 1;
  if (looseEquals(mode, Value(1))) return 16;
  return 17;
}

int AHRSModule::portOnly(const Call& c, int cmd, const Value& port) {
  _checkAHRSPort(port);
  const uint8_t data_out[] = {portByte(port)};
  return c.exchangeStatus(cmd, data_out, 1);
}

int AHRSModule::AHRS_open(const Call& c, const Value& port) { return portOnly(c, AHRS_OPEN, port); }
int AHRSModule::AHRS_stop(const Call& c, const Value& port) { return portOnly(c, AHRS_STOP, port); }
int AHRSModule::AHRS_close(const Call& c, const Value& port) {
  return portOnly(c, AHRS_CLOSE, port);
}
int AHRSModule::AHRS_reset(const Call& c, const Value& port) {
  return portOnly(c, AHRS_RESET, port);
}

// Sent without waiting for a reply; the mask is that of mode 2 (both estimates).
int AHRSModule::AHRS_start(const Call& c, const Value& port) {
  _checkAHRSPort(port);
  const uint8_t data_out[] = {portByte(port), static_cast<uint8_t>(_convertModeToMask(Value()))};
  c.send(AHRS_START, data_out);
  return 0;
}

int AHRSModule::AHRS_setGeneral_(const Call& c, const Value& port, const Value& gravity,
                                 const Value& dt, const Value& z_offset) {
  _checkAHRSPort(port);
  for (const Value* v : {&gravity, &dt, &z_offset}) checkInputType(*v, kTypeInt | kTypeFloat);
  Bytes data_out{portByte(port)};
  for (const Value* v : {&gravity, &dt, &z_offset}) appendF32(data_out, *v);
  return c.exchangeStatus(AHRS_SET_GNRL, data_out, 1);
}

int AHRSModule::AHRS_setSamplingPeriod(const Call& c, const Value& port,
                                       const Value& sampling_period) {
  return AHRS_setGeneral_(c, port, Value(9.81), sampling_period, Value(0.001));
}

int AHRSModule::AHRS_VQF_setTau_(const Call& c, const Value& port,
                                 const Value& accelerator_decay_time,
                                 const Value& magnetometer_decay_time) {
  _checkAHRSPort(port);
  checkInputType(accelerator_decay_time, kTypeInt | kTypeFloat);
  checkInputType(magnetometer_decay_time, kTypeInt | kTypeFloat);
  Bytes data_out{portByte(port)};
  appendF32(data_out, accelerator_decay_time);
  appendF32(data_out, magnetometer_decay_time);
  return c.exchangeStatus(AHRS_VQF_SET_TAU, data_out, 1);
}

std::vector<double> AHRSModule::AHRS_getEstimate(const Call& c, const Value& port,
                                                 const Value& mode) {
  _checkAHRSPort(port);
  _checkAHRSMode(mode);
  const int mask = _convertModeToMask(mode);
  const uint8_t data_out[] = {portByte(port), static_cast<uint8_t>(mask)};
  const Bytes data_in = c.exchange(AHRS_GET_ESTIMATES, data_out);
  std::vector<double> ahrs_float_list;
  if (data_in.size() > 2) {
    const auto values = std::span(data_in).subspan(2);
    for (size_t k = 0; k + 4 <= values.size(); k += 4)
      ahrs_float_list.push_back(convert4U8ToF32(values.subspan(k, 4)));
  }
  const auto at = [&](size_t i) {
    if (i >= ahrs_float_list.size()) throw IndexError("list index out of range");
    return ahrs_float_list[i];
  };
  const auto degrees = [](double rad) { return roundPlaces(rad * 180 / std::numbers::pi, 4); };
  std::vector<double> out;
  const int64_t m = mode.asInt();
  if (m == 0 || m == 2)
    for (size_t i = 0; i < 3; ++i) out.push_back(degrees(at(i)));
  const size_t first = m == 2 ? 3 : 0;
  if (m == 1 || m == 2)
    for (size_t i = first; i < first + 3; ++i) out.push_back(roundPlaces(at(i), 4));
  return out;
}

}  // namespace orv
