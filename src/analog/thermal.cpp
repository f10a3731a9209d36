#include "analog/thermal.hpp"

#include <algorithm>

#include "analog/py_round.hpp"
#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

namespace {

// Membership in a list of ints as `x in [..]` tests it, without a type check.
bool inInts(const Value& v, int first, int last) {
  for (int i = first; i <= last; ++i)
    if (looseEquals(v, Value(i))) return true;
  return false;
}

const char* kPlover_Tc = "Plover-Tc";

}  // namespace

// ---- checks -------------------------------------------------------------------------

bool ThermalModule::_checkThermalPort(const Value& port) {
  checkInputType(port, kTypeInt);
  const int64_t p = port.asInt();
  if (p != static_cast<int>(p) || !model().thermal_dict.contains(static_cast<int>(p)))
    raise(ErrorId::ThermalPortNotAvaliableError);
  return true;
}

bool ThermalModule::_checkThermalChipSelect(const Value& cs) {
  checkInputType(cs, kTypeInt);
  const int64_t i = cs.asInt();
  if (i < 0 || i >= model().thermal_channels) raise(ErrorId::ThermalChipSelectNotAvaliableError);
  return true;
}

bool ThermalModule::_checkThermalFilterMode(const Value& mode) {
  checkInputType(mode, kTypeInt);
  if (mode.asInt() != 0 && mode.asInt() != 1) raise(ErrorId::ThermalModeNotVaildError);
  return true;
}

bool ThermalModule::_checkThermalSamplingMode(const Value& mode) {
  if (!inInts(mode, 0, 4)) raise(ErrorId::ThermalModeNotVaildError);
  return true;
}

bool ThermalModule::_checkThermalTCType(const Value& tc_type) {
  if (!inInts(tc_type, 0, 7)) raise(ErrorId::ThermalTypeNotVaildError);
  return true;
}

bool ThermalModule::_checkThermalRTDType(const Value& rtd_type) {
  if (!inInts(rtd_type, 0, 1)) raise(ErrorId::ThermalTypeNotVaildError);
  return true;
}

std::vector<int64_t> ThermalModule::Thermal_getPinMapPort_(const Value& thermal_port) {
  const auto it = model().thermal_dict.find(static_cast<int>(thermal_port.asInt()));
  std::vector<int64_t> ports;
  if (it == model().thermal_dict.end()) return ports;
  for (const PinPair& p : it->second)
    if (std::find(ports.begin(), ports.end(), p.port) == ports.end()) ports.push_back(p.port);
  return ports;
}

bool ThermalModule::_checkThermalPinState(const Call& c, const Value& port,
                                          const Value& allow_state) {
  auto* sys = sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  const auto& pairs = model().thermal_dict.at(static_cast<int>(port.asInt()));
  for (int64_t i : Thermal_getPinMapPort_(port)) {
    const Value pin_map = Value::listOf(sys->Sys_getPinModeInPort(c, Value(i)));
    for (const PinPair& p : pairs)
      if (p.port == i && !checkFuncPinMap(Value{p.port, p.pin}, pin_map, allow_state))
        raise(ErrorId::ThermalPortNotAvaliableError);
  }
  return true;
}

// ---- operations -----------------------------------------------------------------------

Bytes ThermalModule::portAndChannel(const Value& port, const Value& channel) {
  _checkThermalPort(port);
  _checkThermalChipSelect(channel);
  return Bytes{portByte(port), portByte(channel)};
}

int ThermalModule::Thermal_open(const Call& c, const Value& port) {
  _checkThermalPort(port);
  if (!model().thermal_board)
    _checkThermalPinState(c, port, Value::list({Value("Idle"), Value("DI"), Value("DO")}));
  const uint8_t data_out[] = {portByte(port)};
  return c.exchangeStatus(OPEN_THERMAL, data_out, 1);
}

// The thermocouple board keeps its port open: nothing to send, nothing checked.
int ThermalModule::Thermal_close(const Call& c, const Value& port) {
  if (model().thermal_board) return 0;
  _checkThermalPort(port);
  const uint8_t data_out[] = {portByte(port)};
  return c.exchangeStatus(CLOSE_THERMAL, data_out, 1);
}

// Plover-Tc reports its fault bits in mode 2 and only bit 0 counts there.
int64_t ThermalModule::Thermal_getStatus(const Call& c, const Value& port, const Value& channel) {
  Bytes data_out = portAndChannel(port, channel);
  const bool plover_tc = c.device().deviceName() == kPlover_Tc;
  data_out.push_back(plover_tc ? 2 : 1);
  const Bytes data_in = c.exchange(GET_THERMAL_STATUS, data_out);
  needReplyBytes(data_in, 3, GET_THERMAL_STATUS);
  return plover_tc ? (data_in[2] & 1) : data_in[2];
}

double ThermalModule::readFloat(const Call& c, int cmd, const Value& port, const Value& channel) {
  const Bytes data_out = portAndChannel(port, channel);
  const Bytes data_in = c.exchange(cmd, data_out);
  needReplyBytes(data_in, 6, cmd);
  return convert4U8ToF32(std::span(data_in).subspan(2, 4));
}

double ThermalModule::Thermal_readSensor(const Call& c, const Value& port, const Value& channel) {
  return roundPlaces(readFloat(c, READ_THERMAL_COUPLE, port, channel), 3);
}

double ThermalModule::Thermal_loadOffset_(const Call& c, const Value& port, const Value& channel) {
  return readFloat(c, LOAD_THERMAL_OFFSET, port, channel);
}

double ThermalModule::Thermal_readOffset_(const Call& c, const Value& port, const Value& channel) {
  return readFloat(c, READ_THERMAL_OFFSET, port, channel);
}

int ThermalModule::sendWithTemperature(const Call& c, int cmd, const Value& port,
                                       const Value& channel, const Value& temperature) {
  Bytes data_out = portAndChannel(port, channel);
  checkInputType(temperature, kTypeInt | kTypeFloat);
  appendF32(data_out, temperature);
  return c.exchangeStatus(cmd, data_out, 1);
}

int ThermalModule::sendWithByte(const Call& c, int cmd, const Value& port, const Value& channel,
                                const Value& arg) {
  Bytes data_out = portAndChannel(port, channel);
  data_out.push_back(portByte(arg));
  return c.exchangeStatus(cmd, data_out, 1);
}

int ThermalModule::Thermal_saveOffset_(const Call& c, const Value& port, const Value& channel,
                                       const Value& temperature) {
  return sendWithTemperature(c, SAVE_THERMAL_OFFSET, port, channel, temperature);
}

int ThermalModule::Thermal_writeOffset_(const Call& c, const Value& port, const Value& channel,
                                        const Value& temperature) {
  return sendWithTemperature(c, WRITE_THERMAL_OFFSET, port, channel, temperature);
}

int ThermalModule::Thermal_setNoiseFilter_(const Call& c, const Value& port, const Value& channel,
                                           const Value& mode) {
  _checkThermalPort(port);
  _checkThermalChipSelect(channel);
  _checkThermalFilterMode(mode);
  return sendWithByte(c, SET_THERMAL_NOISE_FILTER, port, channel, mode);
}

// ---- thermocouples ------------------------------------------------------------------

int ThermocoupleModule::Thermal_setOverSampling(const Call& c, const Value& port,
                                                const Value& channel, const Value& mode) {
  _checkThermalPort(port);
  _checkThermalChipSelect(channel);
  _checkThermalSamplingMode(mode);
  return sendWithByte(c, SET_THERMAL_OVER_SAMPLING, port, channel, mode);
}

int ThermocoupleModule::Thermal_setType(const Call& c, const Value& port, const Value& channel,
                                        const Value& type_) {
  _checkThermalPort(port);
  _checkThermalChipSelect(channel);
  _checkThermalTCType(type_);
  (void)c.device().deviceName();
  return sendWithByte(c, SET_THERMAL_TYPE, port, channel, type_);
}

double ThermocoupleModule::Thermal_readJunction_(const Call& c, const Value& port,
                                                 const Value& channel) {
  return readFloat(c, READ_THERMAL_JUNCTION, port, channel);
}

int ThermocoupleModule::Thermal_setJunctionOn_(const Call& c, const Value& port,
                                               const Value& channel, const Value& status) {
  Bytes data_out = portAndChannel(port, channel);
  const bool on = status.isFloat() ? status.asFloat() != 0.0 : status.asBool();
  data_out.push_back(on ? 1 : 0);
  return c.exchangeStatus(SET_THERMAL_JUNCTION_ON, data_out, 1);
}

int ThermocoupleModule::Thermal_writeJunction_(const Call& c, const Value& port,
                                               const Value& channel, const Value& temperature) {
  return sendWithTemperature(c, WRITE_THERMAL_JUNCTION, port, channel, temperature);
}

// ---- resistance sensors ---------------------------------------------------------------

int ThermalResistanceModule::Thermal_setType(const Call& c, const Value& port, const Value& channel,
                                             const Value& type_) {
  _checkThermalPort(port);
  _checkThermalChipSelect(channel);
  _checkThermalRTDType(type_);
  (void)c.device().deviceName();
  return sendWithByte(c, SET_THERMAL_TYPE, port, channel, type_);
}

}  // namespace orv
