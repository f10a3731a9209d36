#include "buses/bus_pins.hpp"

#include <cmath>
#include <set>

#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

PinPairMap pinPairMap(const PortMap& map) {
  PinPairMap out;
  for (const auto& [port, pins] : map)
    for (const PinPair& p : pins) out[port].emplace_back(p.port, p.pin);
  return out;
}

const std::vector<PinPair>* busPins(const PortMap& map, const Value& port) {
  int64_t key = 0;
  if (port.isInt()) {
    key = port.asInt();
  } else if (port.isFloat() && std::isfinite(port.asFloat()) &&
             port.asFloat() == std::trunc(port.asFloat()) && std::fabs(port.asFloat()) < 1e15) {
    key = static_cast<int64_t>(port.asFloat());
  } else {
    return nullptr;
  }
  auto it = map.find(static_cast<int>(key));
  if (it == map.end() || it->first != key) return nullptr;
  return &it->second;
}

void checkBusPort(const PortMap& map, const Value& port, ErrorId not_there) {
  checkInputType(port, kTypeInt);
  if (!busPins(map, port)) raise(not_there);
}

namespace {
const std::vector<PinPair>& pinsOrKeyError(const PortMap& map, const Value& port) {
  const std::vector<PinPair>* pins = busPins(map, port);
  if (!pins) throw KeyError(port.repr());
  return *pins;
}
}  // namespace

std::vector<int64_t> busPinMapPorts(const PortMap& map, const Value& port) {
  std::set<int64_t> ports;
  for (const PinPair& p : pinsOrKeyError(map, port)) ports.insert(p.port);
  return {ports.begin(), ports.end()};
}

void checkBusPinState(ModuleBase& self, const Call& c, const PortMap& map, const Value& port,
                      const Value& allow_state, ErrorId busy) {
  const std::vector<PinPair>& pins = pinsOrKeyError(map, port);
  auto* sys = self.sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  for (int64_t i : busPinMapPorts(map, port)) {
    const Value pin_map = Value::listOf(sys->Sys_getPinModeInPort(c, Value(i)));
    for (const PinPair& p : pins) {
      const Value cell = Value::tuple({Value(p.port), Value(p.pin)});
      if (!checkFuncPinMap(cell, pin_map, allow_state)) raise(busy);
    }
  }
}

Value idleOrDigitalModes() { return Value::list({Value("Idle"), Value("DI"), Value("DO")}); }

std::vector<int64_t> replyTail(const Bytes& data_in, size_t from) {
  if (data_in.size() <= from) return {};
  return {data_in.begin() + static_cast<std::ptrdiff_t>(from), data_in.end()};
}

}  // namespace orv
