// How the records of a streaming command are filed.  The link knows which
// commands stream (the protocol's list in constants.hpp) but not how their
// records are laid out: the module that owns a stream registers a route that
// names the queue a record goes to and where its samples start.
//
//   const StreamRouteRegistrar kUartRoute{START_UART_READING, {&portKey, 2}};
//
// A streaming record with no route is filed whole under its command.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/pools.hpp"

namespace orv {

struct StreamRoute {
  // The queue of a record; throws orv::IndexError when the record is too
  // short for its key bytes.
  StreamKey (*key)(int cmd, std::span<const uint8_t> data) = nullptr;
  // The samples start after this many bytes (none when the record is shorter).
  size_t payload_at = 0;
};

// Registered while the program starts (static registrars), read by the
// receive threads afterwards.
void registerStreamRoute(int cmd, StreamRoute route);
const StreamRoute* findStreamRoute(int cmd);

struct StreamRouteRegistrar {
  StreamRouteRegistrar(int cmd, StreamRoute route) { registerStreamRoute(cmd, route); }
};

}  // namespace orv
