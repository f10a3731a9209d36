// How the bus streams are filed.
//   UART  [port, x, bytes...]  one queue per port, the bytes after the two
//   CAN   [x, x, frames...]    one queue, the frames after the two
#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/stream_route.hpp"

namespace orv {
namespace {

StreamKey byPort(int cmd, std::span<const uint8_t> data) {
  if (data.empty()) throw IndexError("index out of range: stream record too short");
  return StreamKey::pair(cmd, data[0]);
}
StreamKey byCommand(int cmd, std::span<const uint8_t>) { return StreamKey::one(cmd); }

const StreamRouteRegistrar kUart{START_UART_READING, {&byPort, 2}};
const StreamRouteRegistrar kCan{START_CAN, {&byCommand, 2}};

}  // namespace
}  // namespace orv
