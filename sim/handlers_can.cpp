// The simulated firmware's CAN controller.
//
// OPEN_CAN goes out from the host as the one byte 48, which the firmware's
// receiver reads as the high byte of a two-byte command: OPEN_CAN for port p
// arrives as the command 48 * 256 + p with no data.  The answer goes back
// under OPEN_CAN, in two-byte form (sim/device.cpp).
//
// OPEN_CAN takes the bus's pins (pin mode CAN), CLOSE_CAN gives them back
// (Idle).  START_CAN sets the controller running (no answer: every packet
// under START_CAN is a stream record to the host), STOP_CAN stops it.  A
// running controller hands each frame it receives to the host as a record
// [0, 0, frame] under START_CAN, frame being the twelve bytes of the wire
// form (identifier word, eight data bytes).
//
// Acceptance filters: SET_CAN_RX_FILTER_OR_MASK with an even index 2k writes
// the identifier word of filter k, an odd index 2k+1 its mask (bits that must
// match; a filter without a mask compares every bit).  With filtering on
// (SET_CAN_RX_FILTERING_ON 1), a frame is received only when it matches a
// filter that was written.
//
// Error counters: a frame written while the controller is not running is not
// sent: the TX error count grows by 8 and the write answers the firmware's CAN
// error.  GET_CAN_ERRORS answers [port, TX count, RX count]; GET_CAN_INTERRUPTS
// [port, enabled (SET_CAN_ENABLED_ITR), 0, error state (0 active, 1 passive
// from a count of 128, 2 bus off from a TX count of 256)]; GET_CAN_COUNTERS
// [port, six 32-bit counters]: frames sent, frames received, frames the
// filters refused, then three zeros.
//
// Keys, set from the host side through the key/value state:
//   "can.loopback"  true: every frame written is received back (the
//                   controller's loopback mode); default false
//   "can.errors"    [tx, rx]: the error counts (read back after each change)
#include <array>
#include <cstdint>
#include <map>
#include <optional>

#include "buses/can.hpp"
#include "link/constants.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusCAN = 57;  // the firmware's CAN error
constexpr int kTxErrorStep = 8;

struct CanSim {
  bool open = false, running = false, filtering = false, interrupts = false;
  uint8_t speed = 0;
  std::map<int, uint32_t> filters, masks;
  std::array<uint32_t, 3> counters{};  // sent, received, refused
};

const PortMap& canMap(Context& ctx) { return modelInfo(ctx.device().model()).can_dict; }

bool knownPort(Context& ctx, const Request& req) {
  return !req.data.empty() && canMap(ctx).count(req.data[0]);
}

void status(Context& ctx, const Request& req, uint8_t s) {
  ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0], s});
}

uint32_t wordAt(const Bytes& d, size_t at) {
  return (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) | (uint32_t{d[at + 2]} << 8) |
         d[at + 3];
}

std::array<int64_t, 2> errorsOf(Context& ctx) {
  const Value v = ctx.state().get("can.errors", Value::list({Value(0), Value(0)}));
  return {v.asList().at(0).asInt(), v.asList().at(1).asInt()};
}

bool accepted(const CanSim& can, uint32_t word) {
  if (!can.filtering) return true;
  for (const auto& [k, filter] : can.filters) {
    const auto m = can.masks.find(k);
    const uint32_t mask = m == can.masks.end() ? 0xFFFFFFFFu : m->second;
    if ((word & mask) == (filter & mask)) return true;
  }
  return false;
}

// A handler for a command whose whole work is the port check and a status.
template <class F>
Handler onPort(F work) {
  return [work](Context& ctx, const Request& req) {
    if (!knownPort(ctx, req)) return status(ctx, req, kStatusCAN);
    work(ctx, req, *ctx.state().slot<CanSim>());
    status(ctx, req, 0);
  };
}

void write(Context& ctx, const Request& req) {
  if (!knownPort(ctx, req) || req.data.size() != 2 + CAN_FRAME_BYTES)
    return status(ctx, req, kStatusCAN);
  const Bytes frame(req.data.begin() + 2, req.data.end());
  std::optional<Bytes> back;
  {
    auto can = ctx.state().slot<CanSim>();
    if (!can->running) {
      auto [tx, rx] = errorsOf(ctx);
      ctx.state().set("can.errors", Value::list({Value(tx + kTxErrorStep), Value(rx)}));
      return status(ctx, req, kStatusCAN);
    }
    ++can->counters[0];
    if (ctx.state().get("can.loopback", Value(false)).asBool()) {
      if (accepted(*can, wordAt(frame, 0))) {
        ++can->counters[1];
        back = Bytes{0, 0};
        back->insert(back->end(), frame.begin(), frame.end());
      } else {
        ++can->counters[2];
      }
    }
  }
  status(ctx, req, 0);
  if (back) ctx.stream(START_CAN, *back);
}

void filterOrMask(Context& ctx, const Request& req) {
  if (!knownPort(ctx, req) || req.data.size() != 2 + CAN_FRAME_BYTES)
    return status(ctx, req, kStatusCAN);
  const int index = req.data[1];
  const uint32_t word = wordAt(req.data, 2);
  {
    auto can = ctx.state().slot<CanSim>();
    (index % 2 == 0 ? can->filters : can->masks)[index / 2] = word;
  }
  status(ctx, req, 0);
}

void start(Context& ctx, const Request& req) {
  if (knownPort(ctx, req)) ctx.state().slot<CanSim>()->running = true;
}

void getErrors(Context& ctx, const Request& req) {
  const auto [tx, rx] = errorsOf(ctx);
  ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0],
             static_cast<uint8_t>(std::min<int64_t>(tx, 255)),
             static_cast<uint8_t>(std::min<int64_t>(rx, 255))});
}

void getInterrupts(Context& ctx, const Request& req) {
  const auto [tx, rx] = errorsOf(ctx);
  const uint8_t state = tx >= 256 ? 2 : (tx >= 128 || rx >= 128) ? 1 : 0;
  const bool enabled = ctx.state().slot<CanSim>()->interrupts;
  ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0], static_cast<uint8_t>(enabled), 0, state});
}

void getCounters(Context& ctx, const Request& req) {
  Bytes out{req.data.empty() ? uint8_t{0} : req.data[0]};
  const auto counters = ctx.state().slot<CanSim>()->counters;
  for (size_t i = 0; i < 6; ++i) {
    const uint32_t v = i < counters.size() ? counters[i] : 0;
    for (int shift : {24, 16, 8, 0}) out.push_back(static_cast<uint8_t>(v >> shift));
  }
  ctx.reply(out);
}

void open(Context& ctx, const Request& req) {
  const int port = req.cmd > 255 ? (req.cmd & 0xFF) : (req.data.empty() ? -1 : req.data[0]);
  const auto status = [&](uint8_t s) { ctx.reply(OPEN_CAN, {static_cast<uint8_t>(port), s}); };
  if (port < 0 || !canMap(ctx).count(port)) return status(kStatusCAN);
  ctx.state().slot<CanSim>()->open = true;
  setPinModes(ctx.device(), canMap(ctx).at(port), PinMode::CAN);
  status(0);
}

constexpr int kOpenCanOnePort = OPEN_CAN << 8;  // + port, as received
const Registrar kCanOpen{{{OPEN_CAN, open},
                          {kOpenCanOnePort + 0, open},
                          {kOpenCanOnePort + 1, open},
                          {kOpenCanOnePort + 2, open},
                          {kOpenCanOnePort + 3, open}}};

const Registrar kCan{{
    {START_CAN, start},
    {WRITE_CAN, write},
    {STOP_CAN, onPort([](Context&, const Request&, CanSim& can) { can.running = false; })},
    {CLOSE_CAN, onPort([](Context& ctx, const Request& req, CanSim& can) {
       can.open = can.running = false;
       setPinModes(ctx.device(), canMap(ctx).at(req.data[0]), PinMode::Idle);
     })},
    {SET_CAN_SPEED, onPort([](Context&, const Request& req, CanSim& can) {
       if (req.data.size() > 1) can.speed = req.data[1];
     })},
    {SET_CAN_ENABLED_ITR, onPort([](Context&, const Request& req, CanSim& can) {
       can.interrupts = req.data.size() > 1 && req.data[1];
     })},
    {SET_CAN_RX_ROLLOVER, onPort([](Context&, const Request&, CanSim&) {})},
    {SET_CAN_TX_PRIORITY, onPort([](Context&, const Request&, CanSim&) {})},
    {SET_CAN_RX_FILTERING_ON, onPort([](Context&, const Request& req, CanSim& can) {
       can.filtering = req.data.size() > 1 && req.data[1];
     })},
    {SET_CAN_RX_FILTER_OR_MASK, filterOrMask},
    {GET_CAN_ERRORS, getErrors},
    {GET_CAN_INTERRUPTS, getInterrupts},
    {GET_CAN_COUNTERS, getCounters},
}};

}  // namespace

}  // namespace orv::sim
