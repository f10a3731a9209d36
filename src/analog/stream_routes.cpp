// How the analog streams are filed.
//   AI (fixed rate)     [port, cs, ...]  one queue per (port, cs), the samples after the two
//   AI (variable rate)  [port, cs, ...]  one queue for all ports, the samples after the two
//   AHRS                [x, ...]         one queue, the record after its first byte
#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/stream_route.hpp"

namespace orv {
namespace {

StreamKey byPortAndChip(int cmd, std::span<const uint8_t> data) {
  if (data.size() < 2) throw IndexError("index out of range: stream record too short");
  return StreamKey::triple(cmd, data[0], data[1]);
}
StreamKey allPorts(int cmd, std::span<const uint8_t>) { return StreamKey::triple(cmd, 0, 0); }
StreamKey byCommand(int cmd, std::span<const uint8_t>) { return StreamKey::one(cmd); }

const StreamRouteRegistrar kAi{START_AI_STREAMING, {&byPortAndChip, 2}};
const StreamRouteRegistrar kAiVariable{START_AI_STREAMING_VARIABLE, {&allPorts, 2}};
const StreamRouteRegistrar kAhrs{AHRS_START, {&byCommand, 1}};

}  // namespace
}  // namespace orv
