// The simulated firmware's MCX514 motion chip (command MOTION).
//
// A request is [port, code, axis byte, d0, d1, d2, d3]; the reply repeats the
// first three bytes.  A write or command answers status 0 in byte 6; a read
// answers its value in bytes 3..6 (16-bit registers in bytes 5..6).
//
// Each motion port of the model holds one chip (sim/mcx514_motion.hpp): a
// register file per axis, the chip-wide registers, and the drives in
// progress.  Simulated time runs at the steady clock times
// "mcx514.time_scale"; the chip is brought up to date at every request and,
// while anything moves, on the device's ticker every millisecond, which also
// records the positions.
//
// Set from the host side through the device's key/value state (<n> is the
// axis 0..3; the inputs are the same on every port of the device):
//   "mcx514.time_scale"       float: simulated seconds per real second (1)
//   "mcx514.limit_fwd.<n>"    int: forward limit held active (0)
//   "mcx514.limit_fwd_at.<n>" int: forward limit active at this logical
//                             position and beyond
//   "mcx514.limit_rev.<n>", "mcx514.limit_rev_at.<n>": reverse limit, active
//                             at the position and below
//   "mcx514.home.<n>", "mcx514.home_at.<n>": home input, active within
//                             "mcx514.home_width" (100) of the position
//   "mcx514.index.<n>", "mcx514.index_at.<n>": encoder index, at the position
//   "mcx514.sync.<n>", "mcx514.sync_at.<n>": the capture input, active at the
//                             position and beyond (capture on its edges)
//   "mcx514.rr3.<n>"          int: a raw RR3 page 0 that replaces the levels
//                             worked out from the inputs
//   "mcx514.helical_busy"     int: how many RR0 reads after a helical
//                             calculation command still show axis 0 busy
//                             (unset: busy for 2 ms of simulated time)
//   "mcx514.helical_value"    int: the HLV that the calculation leaves
//                             (unset: the helix's length in pulses)
// Read by the host:
//   "mcx514.path"             list of [t, port, lp0, lp1, lp2, lp3]: the
//                             positions at each tick while anything moves
//                             (t in simulated seconds), the last 5000
//                             samples; brought up to date at each start and
//                             end of a drive and every 0.1 s of moving.  The
//                             host sets it to [] to start a new recording.
// A drive command after DHOLD (77) waits, shown as driving in RR0, until
// DFREE (78) names its axis.
// Not simulated: software limits, alarm and in-position inputs, the
// synchronous actions other than capture (SYNC3) and the reversal at the end
// of a drive (SYNC1), the break point pulse train, pattern interpolation,
// split pulses and the timer.
#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "link/constants.hpp"
#include "motion/mcx514_driver.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/mcx514_motion.hpp"

namespace orv::sim {

namespace {

using Clock = std::chrono::steady_clock;
using mcx514::AxisInputs;
using mcx514::Chip;
using mcx514::Input;

constexpr size_t kPathSamples = 5000;
constexpr int kPublishTicks = 100;

struct Mcx514Sim {
  std::map<int, Chip> ports;
  double t = 0;  // simulated seconds
  Clock::time_point last{};
  bool clock_started = false;
  bool ticking = false;
  Clock::time_point last_tick{};
  int ticks_since_publish = 0;
  std::deque<Value> path;
};

std::optional<int64_t> intKey(DeviceState& st, const std::string& key) {
  const Value v = st.get(key);
  if (v.isInt()) return v.asInt();
  if (v.isFloat()) return static_cast<int64_t>(v.asFloat());
  return std::nullopt;
}

void readInputs(DeviceState& st, AxisInputs in[4]) {
  const int64_t width = intKey(st, "mcx514.home_width").value_or(100);
  constexpr int64_t kFar = int64_t{1} << 40;
  auto input = [&](const std::string& name, int n, int64_t below, int64_t above) {
    Input x;
    const std::string suffix = "." + std::to_string(n);
    x.forced = intKey(st, "mcx514." + name + suffix).value_or(0) != 0;
    if (auto at = intKey(st, "mcx514." + name + "_at" + suffix)) {
      x.banded = true;
      x.lo = below == kFar ? -kFar : *at - below;
      x.hi = above == kFar ? kFar : *at + above;
    }
    return x;
  };
  for (int n = 0; n < 4; ++n) {
    in[n].forward = input("limit_fwd", n, 0, kFar);
    in[n].reverse = input("limit_rev", n, kFar, 0);
    in[n].home = input("home", n, width, width);
    in[n].index = input("index", n, 0, 0);
    in[n].sync = input("sync", n, 0, kFar);
    if (auto raw = intKey(st, "mcx514.rr3." + std::to_string(n)))
      in[n].rr3 = static_cast<uint32_t>(*raw);
  }
}

void publish(DeviceState& st, Mcx514Sim& s) {
  s.ticks_since_publish = 0;
  st.set("mcx514.path", Value::list(Value::List(s.path.begin(), s.path.end())));
}

void record(DeviceState& st, Mcx514Sim& s) {
  const Value old = st.get("mcx514.path");
  const bool restart = old.isList() && old.asList().empty();  // the host asked for it
  if (restart) s.path.clear();
  for (const auto& [port, chip] : s.ports) {
    Value::List sample{Value(s.t), Value(port)};
    for (int n = 0; n < 4; ++n) sample.emplace_back(chip.axis(n).lp);
    s.path.push_back(Value::list(std::move(sample)));
    if (s.path.size() > kPathSamples) s.path.pop_front();
  }
  if (restart) publish(st, s);
}

// Brings every chip of the device to now; true when a drive ended.
bool advance(DeviceState& st, Mcx514Sim& s, Clock::time_point now, const AxisInputs in[4]) {
  const Value scale = st.get("mcx514.time_scale", Value(1.0));
  if (!s.clock_started) {
    s.clock_started = true;
    s.last = now;
  }
  const double k = scale.asFloat();
  const double factor = k > 1e6 ? 1e6 : k >= 0 ? k : 0;  // NaN and negatives: time stands
  s.t += std::chrono::duration<double>(now - s.last).count() * factor;
  s.last = now;
  int ended = 0;
  for (auto& [port, chip] : s.ports) {
    chip.advance(s.t, in);
    ended += chip.takeEnded();
  }
  return ended > 0;
}

bool anyMoving(const Mcx514Sim& s) {
  for (const auto& [port, chip] : s.ports)
    if (chip.moving()) return true;
  return false;
}

void ensureTicker(SimDevice& dev, Mcx514Sim& s, Clock::time_point now) {
  // A ticker that stopped ticking (the device rebooted) is replaced; two at
  // once only make smaller steps.
  if (s.ticking && now - s.last_tick < std::chrono::milliseconds(500)) return;
  s.ticking = true;
  s.last_tick = now;
  dev.startPeriodic(std::chrono::milliseconds(1), [&dev] {
    DeviceState& st = dev.state();
    auto sim = st.slot<Mcx514Sim>();
    const auto now = Clock::now();
    sim->last_tick = now;
    AxisInputs in[4];
    readInputs(st, in);
    const bool ended = advance(st, *sim, now, in);
    record(st, *sim);
    if (!anyMoving(*sim)) {
      publish(st, *sim);
      sim->ticking = false;
      return false;
    }
    if (ended || ++sim->ticks_since_publish >= kPublishTicks) publish(st, *sim);
    return true;
  });
}

uint32_t dataWord(const Bytes& d) {
  return (uint32_t{d[3]} << 24) | (uint32_t{d[4]} << 16) | (uint32_t{d[5]} << 8) | d[6];
}

bool isRead(int code) {
  return (code >= MOTION_30_LP && code <= MOTION_48_UI) ||
         (code >= MOTION_E8_RR0 && code <= MOTION_EF_RR7);
}

void motion(Context& ctx, const Request& req) {
  if (req.data.size() < 7) return;
  const Bytes& d = req.data;
  const int port = d[0], code = d[1], axis_byte = d[2];
  const auto now = Clock::now();
  Bytes out(d.begin(), d.begin() + 3);
  DeviceState& st = ctx.state();
  auto sim = st.slot<Mcx514Sim>();
  Chip& chip = sim->ports[port];
  AxisInputs in[4];
  readInputs(st, in);
  const bool ended = advance(st, *sim, now, in);
  if (isRead(code)) {
    const uint32_t v = chip.read(code, axis_byte, in);
    for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(v >> s));
    if (ended) {
      record(st, *sim);
      publish(st, *sim);
    }
    return ctx.reply(out);
  }
  if (code == MOTION_6B_HLPCW || code == MOTION_6C_HLPCCW) {
    chip.helical_reads = intKey(st, "mcx514.helical_busy");
    const auto value = intKey(st, "mcx514.helical_value");
    chip.helical_value =
        value ? std::optional<uint32_t>(static_cast<uint32_t>(*value)) : std::nullopt;
  }
  const uint8_t before = chip.drivingMask();
  chip.write(code, axis_byte, dataWord(d), in);
  if (ended || chip.drivingMask() != before) {
    record(st, *sim);
    publish(st, *sim);
  }
  if (anyMoving(*sim)) ensureTicker(ctx.device(), *sim, now);
  out.insert(out.end(), {0, 0, 0, 0});  // status 0 in byte 6
  ctx.reply(out);
}

const Registrar reg{{{MOTION, motion}}};

}  // namespace

}  // namespace orv::sim
