// The pin bookkeeping the I2C and SPI modules share: a bus port's pins are
// pairs (digital port, pin index) of the model's function map, and a bus may
// only take pins whose firmware mode is one of a few (Idle, DI, DO).
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "link/call.hpp"
#include "link/error.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

// A function map as the host gives it: port -> [(digital port, pin), ...].
using PinPairMap = std::map<int, std::vector<std::pair<int, int>>>;
PinPairMap pinPairMap(const PortMap& map);

// The pins of a bus port; nullptr when port is no key of the map (a float of
// an integral value finds its key, as a dict lookup does).
const std::vector<PinPair>* busPins(const PortMap& map, const Value& port);

// The port is an int and a key of the map, else `not_there`.
void checkBusPort(const PortMap& map, const Value& port, ErrorId not_there);

// The digital ports the pins of a bus port lie on, each once, ascending.
// A port that is no key of the map raises KeyError.
std::vector<int64_t> busPinMapPorts(const PortMap& map, const Value& port);

// Reads the pin modes of each digital port of the bus (Sys_getPinModeInPort)
// and, after each read, tests every pin index of the bus against that port's
// modes: a pin whose mode is not in allow_state raises `busy`.  The pin's own
// digital port is not compared, so a bus on two ports has every pin index
// tested in the modes of both.
void checkBusPinState(ModuleBase& self, const Call& c, const PortMap& map, const Value& port,
                      const Value& allow_state, ErrorId busy);

// The modes a bus may take its pins from.
Value idleOrDigitalModes();

// The reply from byte `from` to its end; empty for a shorter reply.
std::vector<int64_t> replyTail(const Bytes& data_in, size_t from);

}  // namespace orv
