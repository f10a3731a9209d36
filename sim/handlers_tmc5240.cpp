// The simulated firmware of the stepper drive's TMC5240 (MerlinDrive).
//
// Each drive port holds the chip's register file, the 22-value parameter
// block in RAM and in EEPROM (factory values until saved), the axis position
// and at most one process.
//
//   MOTION_READ_REG    [port, reg]        -> [port, reg, SPI status, 4 bytes]
//   MOTION_WRITE_REG   [port, reg, 0, w]  -> [port, 0]; GSTAT, RAMPSTAT and
//                      ENC_STATUS clear the bits written as 1
//   MOTION_GET_PARAM   [port]             -> [port, 0, 88, 22 values (RAM)]
//   MOTION_LOAD_PARAM  [port]             EEPROM -> RAM, then as GET_PARAM
//   MOTION_SET_PARAM   [port, 88, values] -> RAM and the registers, [port, 0]
//   MOTION_SAVE_PARAM  [port, 88, values] -> EEPROM and RAM, [port, 0]
//   MOTION_RESET_FACTORY                  factory block -> EEPROM and RAM
//   MOTION_GET_PROC_STATE [port]          -> [port, state, result, XACTUAL i32]
//   MOTION_STOP_PROC   [port]             -> [port, 0]; ends the process (result 1)
//   the six starts                        -> [port, 0], or [port, 55] (the
//                      firmware's drive error) while a process runs or GSTAT
//                      shows a driver error; a payload of the wrong length
//                      gets [port, 80] (parser error)
//
// Process states: 0 idle, 1 velocity move, 2 position move, 3 scan move,
// 4 limit search, 5 home search, 6 index (Z) search.  The result byte of the
// last process: 0 completed, 1 stopped by the host, 2 stopped at a limit,
// 3 ended by a driver fault, 4 the switch was not found (a limit on both sides).
//
// Processes run over simulated time on the device's ticker (every 2 ms while
// one runs), at constant speed: ramps are not simulated.  A search runs at
// the searching speed until it meets its switch, approaches the switch's
// position at the approaching speed, moves by the offset, and sets the
// position to 0 when its reset byte is 1.  A limit met during a home or index
// search turns the search round once.  A velocity, position or scan move
// stops at an active limit in its direction.
//
// Inputs, set from the host side through the device's key/value state:
//   "tmc5240.home", "tmc5240.index", "tmc5240.limit_forward",
//   "tmc5240.limit_reverse"   int: the input's level now (1 active)
//   "tmc5240.home_at", "tmc5240.index_at"   int: the switch's position; a
//                             search meets it when the axis passes it
//   "tmc5240.limit_forward_at", "tmc5240.limit_reverse_at"   int: the limit
//                             is active at and beyond that position
//   "tmc5240.gstat"           int: GSTAT fault bits (bit 1 driver error ends a
//                             process); writing GSTAT clears them
//   "tmc5240.time_scale"      float: simulated seconds per real second (1.0)
// The SPI status byte: bit 0 reset, bit 1 driver error (from GSTAT), bit 3
// standstill, bit 4 velocity reached (moving), bit 5 position reached (idle
// at XTARGET or after a completed position move), bits 6 and 7 the forward
// and reverse limits.  READ_AND_GET_DI [port, mask] on the drive answers
// [port, word] with the forward limit (bit 0), the reverse limit (bit 1) and
// home (bit 2) as the inputs stand now.  Not simulated: ramps, stallGuard,
// the encoder's own motion (XENC follows XACTUAL).
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "motion/tmc5240.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

using Clock = std::chrono::steady_clock;

constexpr uint8_t kDriveError = 55, kParserError = 80;
constexpr size_t kBlock = 22;
constexpr std::array<uint32_t, kBlock> kFactory{
    8,         32,         461315,     10,        10,         10,         10,         65536,
    194121509, 2863314260, 1251300522, 608774441, 269500962,  4227858431, 3048961917, 1227445590,
    4211234,   4294934614, 16187392,   4260179,   3293315102, 0};
constexpr std::array<int, kBlock> kBlockRegs{
    MRDR_00_GCONF,   MRDR_0A_DRV_CONF, MRDR_10_IHOLD_IRUN, MRDR_11_TPOWERDOWN, MRDR_2A_D1,
    MRDR_2B_VSTOP,   MRDR_30_D2,       MRDR_3A_ENC_CONST,  MRDR_52_OTW_OV_VTH, MRDR_60_MSLUT0,
    MRDR_61_MSLUT1,  MRDR_62_MSLUT2,   MRDR_63_MSLUT3,     MRDR_64_MSLUT4,     MRDR_65_MSLUT5,
    MRDR_66_MSLUT6,  MRDR_67_MSLUT7,   MRDR_68_MSLUTSEL,   MRDR_69_MSLUTSTART, MRDR_6C_CHOPCONF,
    MRDR_70_PWMCONF, MRDR_74_SG4_THRS};

enum Kind : uint8_t { kIdle, kVelocity, kPosition, kScan, kLimit, kHome, kIndex };
enum Result : uint8_t { kDone, kStopped, kAtLimit, kFault, kNotFound };

struct Process {
  Kind kind = kIdle;
  int phase = 0;  // searches: 0 search, 1 approach, 2 offset
  double speed = 0, approach_speed = 0;
  int dir = 1;
  double target = 0;
  double ends[2] = {0, 0};  // scan
  int64_t offset = 0;
  bool reset = false, turned = false;
  double found = 0;
};

struct PortSim {
  // At power-up the firmware writes the EEPROM's block to the chip.
  PortSim() {
    for (size_t i = 0; i < kBlock; ++i) regs[kBlockRegs[i]] = eeprom[i];
  }
  std::map<int, uint32_t> regs;
  std::array<uint32_t, kBlock> ram = kFactory, eeprom = kFactory;
  double position = 0, encoder_offset = 0;
  Process proc;
  Result result = kDone;
  Kind last = kIdle;
  Clock::time_point since{};
};

struct TmcSim {
  std::map<int, PortSim> ports;
  int ticker = 0;  // the ticker task while a process runs
};

int64_t intKey(DeviceState& st, const std::string& key) {
  return st.get("tmc5240." + key, Value(0)).asInt();
}
std::optional<double> switchAt(DeviceState& st, const std::string& key) {
  const Value v = st.get("tmc5240." + key + "_at");
  if (!v.isNumber()) return std::nullopt;
  return v.asFloat();
}

// The limit in a direction (1 forward, -1 reverse), active now.
bool limitActive(DeviceState& st, const PortSim& p, int dir) {
  const std::string name = dir > 0 ? "limit_forward" : "limit_reverse";
  if (intKey(st, name)) return true;
  const auto at = switchAt(st, name);
  return at && (dir > 0 ? p.position >= *at : p.position <= *at);
}

uint32_t gstat(DeviceState& st, PortSim& p) {
  return (p.regs[MRDR_01_GSTAT] | static_cast<uint32_t>(intKey(st, "gstat"))) & 0x1F;
}

void finish(PortSim& p, Result r) {
  p.last = p.proc.kind;
  p.result = r;
  p.proc = Process{};
}

// Moves toward `target` by at most `step`; true when there.
bool moveTo(PortSim& p, double target, double step) {
  const double d = target - p.position;
  if (std::abs(d) <= step) {
    p.position = target;
    return true;
  }
  p.position += d > 0 ? step : -step;
  return false;
}

// The switch a search looks for; true when the move from `from` to the
// current position met it (its position is then in `at`).
bool metSwitch(DeviceState& st, const PortSim& p, double from, double& at) {
  const Process& r = p.proc;
  if (r.kind == kLimit) {
    if (!limitActive(st, p, r.dir)) return false;
    const auto s = switchAt(st, r.dir > 0 ? "limit_forward" : "limit_reverse");
    at = s ? *s : p.position;
    return true;
  }
  const std::string name = r.kind == kHome ? "home" : "index";
  if (intKey(st, name)) {
    at = p.position;
    return true;
  }
  const auto s = switchAt(st, name);
  if (s && std::min(from, p.position) <= *s && *s <= std::max(from, p.position)) {
    at = *s;
    return true;
  }
  return false;
}

void advanceSearch(DeviceState& st, PortSim& p, double dt) {
  Process& r = p.proc;
  if (r.phase == 0) {
    const double from = p.position;
    p.position += r.dir * r.speed * dt;
    double at = 0;
    if (metSwitch(st, p, from, at)) {
      r.found = at;
      r.phase = 1;
    } else if (r.kind != kLimit && limitActive(st, p, r.dir)) {
      if (r.turned) return finish(p, kNotFound);
      r.turned = true;
      r.dir = -r.dir;
    }
    return;
  }
  const double step = r.approach_speed * dt;
  if (r.phase == 1) {
    if (moveTo(p, r.found, step)) r.phase = 2;
    return;
  }
  if (moveTo(p, r.found + static_cast<double>(r.offset), step)) {
    if (r.reset) p.position = 0;
    finish(p, kDone);
  }
}

// Brings a port's process up to `now`.
void advance(DeviceState& st, PortSim& p, Clock::time_point now) {
  const double scale = st.get("tmc5240.time_scale", Value(1.0)).asFloat();
  const double dt = std::chrono::duration<double>(now - p.since).count() * scale;
  p.since = now;
  Process& r = p.proc;
  if (r.kind == kIdle || dt <= 0) return;
  if (gstat(st, p) & 2) return finish(p, kFault);
  switch (r.kind) {
    case kVelocity:
      if (limitActive(st, p, r.dir)) return finish(p, kAtLimit);
      p.position += r.dir * r.speed * dt;
      break;
    case kPosition:
      if (limitActive(st, p, r.target >= p.position ? 1 : -1)) return finish(p, kAtLimit);
      if (moveTo(p, r.target, r.speed * dt)) finish(p, kDone);
      break;
    case kScan: {
      if (limitActive(st, p, r.ends[1] >= p.position ? 1 : -1)) return finish(p, kAtLimit);
      if (moveTo(p, r.ends[1], r.speed * dt)) std::swap(r.ends[0], r.ends[1]);
      break;
    }
    default:
      advanceSearch(st, p, dt);
      break;
  }
}

// The signed velocity of the running process, steps/s.
double velocity(const PortSim& p) {
  const Process& r = p.proc;
  auto toward = [&](double target, double speed) {
    return target > p.position ? speed : (target < p.position ? -speed : 0.0);
  };
  switch (r.kind) {
    case kIdle:
      return 0;
    case kVelocity:
      return r.dir * r.speed;
    case kPosition:
      return toward(r.target, r.speed);
    case kScan:
      return toward(r.ends[1], r.speed);
    default:
      if (r.phase == 0) return r.dir * r.speed;
      return toward(r.phase == 1 ? r.found : r.found + static_cast<double>(r.offset),
                    r.approach_speed);
  }
}

uint8_t spiStatus(DeviceState& st, PortSim& p) {
  const uint32_t g = gstat(st, p);
  const bool moving = p.proc.kind != kIdle;
  const bool reached =
      !moving && (p.last == kPosition
                      ? p.result == kDone
                      : std::llround(p.position) == static_cast<int32_t>(p.regs[MRDR_2D_XTARGET]));
  return static_cast<uint8_t>((g & 1) | (g & 2) | (moving ? 0 : 8) | (moving ? 16 : 0) |
                              (reached ? 32 : 0) | (limitActive(st, p, 1) ? 64 : 0) |
                              (limitActive(st, p, -1) ? 128 : 0));
}

uint32_t readRegister(DeviceState& st, PortSim& p, int reg) {
  const auto pos = static_cast<uint32_t>(static_cast<int32_t>(std::llround(p.position)));
  switch (reg) {
    case MRDR_01_GSTAT:
      return gstat(st, p);
    case MRDR_21_XACTUAL:
      return pos;
    case MRDR_39_XENC:
      return static_cast<uint32_t>(
          static_cast<int32_t>(std::llround(p.position + p.encoder_offset)));
    case MRDR_22_VACTUAL: {
      const auto v = static_cast<int32_t>(std::llround(velocity(p)));
      return static_cast<uint32_t>(v) & 0xFFFFFF;
    }
    case MRDR_35_RAMPSTAT:
      return (limitActive(st, p, 1) ? 1u : 0u) | (limitActive(st, p, -1) ? 2u : 0u) |
             (p.proc.kind == kIdle ? (1u << 10) : (1u << 8)) | p.regs[reg];
    default:
      return p.regs[reg];
  }
}

void writeRegister(DeviceState& st, PortSim& p, int reg, uint32_t w) {
  switch (reg) {
    case MRDR_01_GSTAT:
      p.regs[reg] &= ~w;
      st.set("tmc5240.gstat", static_cast<int64_t>(intKey(st, "gstat") & ~int64_t{w}));
      return;
    case MRDR_35_RAMPSTAT:
    case MRDR_3B_ENC_STATUS:
      p.regs[reg] &= ~w;
      return;
    case MRDR_21_XACTUAL:
      p.encoder_offset += p.position - static_cast<int32_t>(w);
      p.position = static_cast<int32_t>(w);
      return;
    case MRDR_39_XENC:
      p.encoder_offset = static_cast<int32_t>(w) - p.position;
      return;
    default:
      p.regs[reg] = w;
  }
}

uint32_t word32(const Bytes& d, size_t at) {
  return (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) | (uint32_t{d[at + 2]} << 8) |
         d[at + 3];
}
void put32(Bytes& out, uint32_t w) {
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(w >> s));
}

// Runs fn(state, sim, port) under the state lock, the port's process brought
// up to now first.
template <class Fn>
void onPort(Context& ctx, const Request& req, Fn fn) {
  if (req.data.empty()) return;
  DeviceState& st = ctx.state();
  auto sim = st.slot<TmcSim>();
  PortSim& p = sim->ports[req.data[0]];
  advance(st, p, Clock::now());
  fn(st, sim.get(), p);
}

void readReg(Context& ctx, const Request& req) {
  if (req.data.size() < 2) return;
  onPort(ctx, req, [&](DeviceState& st, TmcSim&, PortSim& p) {
    Bytes out{req.data[0], req.data[1], spiStatus(st, p)};
    put32(out, readRegister(st, p, req.data[1]));
    ctx.reply(out);
  });
}

void writeReg(Context& ctx, const Request& req) {
  if (req.data.size() < 7) return;
  onPort(ctx, req, [&](DeviceState& st, TmcSim&, PortSim& p) {
    writeRegister(st, p, req.data[1], word32(req.data, 3));
    ctx.reply({req.data[0], 0});
  });
}

void replyBlock(Context& ctx, uint8_t port, const std::array<uint32_t, kBlock>& block) {
  Bytes out{port, 0, static_cast<uint8_t>(4 * kBlock)};
  for (uint32_t w : block) put32(out, w);
  ctx.reply(out);
}

void paramBlock(Context& ctx, const Request& req) {
  onPort(ctx, req, [&](DeviceState& st, TmcSim&, PortSim& p) {
    if (req.cmd == MOTION_LOAD_PARAM) {
      p.ram = p.eeprom;
      for (size_t i = 0; i < kBlock; ++i) writeRegister(st, p, kBlockRegs[i], p.ram[i]);
    }
    if (req.cmd == MOTION_RESET_FACTORY) {
      p.ram = p.eeprom = kFactory;
      for (size_t i = 0; i < kBlock; ++i) writeRegister(st, p, kBlockRegs[i], p.ram[i]);
      return ctx.reply({req.data[0], 0});
    }
    if (req.cmd == MOTION_SET_PARAM || req.cmd == MOTION_SAVE_PARAM) {
      if (req.data.size() != 2 + 4 * kBlock || req.data[1] != 4 * kBlock)
        return ctx.reply({req.data[0], kParserError});
      for (size_t i = 0; i < kBlock; ++i) {
        p.ram[i] = word32(req.data, 2 + 4 * i);
        writeRegister(st, p, kBlockRegs[i], p.ram[i]);
      }
      if (req.cmd == MOTION_SAVE_PARAM) p.eeprom = p.ram;
      return ctx.reply({req.data[0], 0});
    }
    replyBlock(ctx, req.data[0], p.ram);
  });
}

void procState(Context& ctx, const Request& req) {
  onPort(ctx, req, [&](DeviceState&, TmcSim&, PortSim& p) {
    Bytes out{req.data[0], static_cast<uint8_t>(p.proc.kind), static_cast<uint8_t>(p.result)};
    put32(out, static_cast<uint32_t>(static_cast<int32_t>(std::llround(p.position))));
    ctx.reply(out);
  });
}

void stopProc(Context& ctx, const Request& req) {
  onPort(ctx, req, [&](DeviceState&, TmcSim&, PortSim& p) {
    if (p.proc.kind != kIdle) finish(p, kStopped);
    ctx.reply({req.data[0], 0});
  });
}

// Starts the ticker that runs the processes, unless it runs.
void ensureTicker(SimDevice& dev, TmcSim& sim) {
  if (sim.ticker) return;
  DeviceState* st = &dev.state();
  sim.ticker = dev.startPeriodic(std::chrono::milliseconds(2), [st] {
    auto s = st->slot<TmcSim>();
    bool running = false;
    const auto now = Clock::now();
    for (auto& [port, p] : s->ports) {
      advance(*st, p, now);
      running = running || p.proc.kind != kIdle;
    }
    if (!running) s->ticker = 0;
    return running;
  });
}

int32_t i32At(const Bytes& d, size_t at) { return static_cast<int32_t>(word32(d, at)); }
int dirAt(const Bytes& d, size_t at) { return static_cast<int8_t>(d[at]) < 0 ? -1 : 1; }

void start(Context& ctx, const Request& req) {
  static const std::map<int, size_t> kLength{
      {MOTION_START_V_MOVE, 14},   {MOTION_START_P_MOVE, 18},    {MOTION_START_SCAN_MOVE, 17},
      {MOTION_START_FIND_END, 19}, {MOTION_START_FIND_HOME, 20}, {MOTION_START_FIND_Z, 20}};
  onPort(ctx, req, [&](DeviceState& st, TmcSim& sim, PortSim& p) {
    const Bytes& d = req.data;
    if (d.size() != kLength.at(req.cmd)) return ctx.reply({d[0], kParserError});
    if (p.proc.kind != kIdle || (gstat(st, p) & 2)) return ctx.reply({d[0], kDriveError});
    Process r;
    switch (req.cmd) {
      case MOTION_START_V_MOVE:
        r.kind = kVelocity;
        r.speed = word32(d, 1);
        r.dir = dirAt(d, 13);
        break;
      case MOTION_START_P_MOVE:
        r.kind = kPosition;
        r.speed = word32(d, 5);
        r.target = d[17] == 1 ? std::llround(p.position) + i32At(d, 1) : i32At(d, 1);
        p.regs[MRDR_2D_XTARGET] = static_cast<uint32_t>(static_cast<int32_t>(r.target));
        break;
      case MOTION_START_SCAN_MOVE:
        r.kind = kScan;
        r.ends[0] = i32At(d, 1);
        r.ends[1] = i32At(d, 5);
        r.speed = word32(d, 9);
        // The scan runs to position_0 first.
        std::swap(r.ends[0], r.ends[1]);
        break;
      case MOTION_START_FIND_END:
        r.kind = kLimit;
        r.dir = dirAt(d, 1);
        r.speed = word32(d, 2);
        r.approach_speed = word32(d, 6);
        r.offset = i32At(d, 14);
        r.reset = d[18] == 1;
        break;
      default:
        r.kind = req.cmd == MOTION_START_FIND_HOME ? kHome : kIndex;
        r.speed = word32(d, 1);
        r.approach_speed = word32(d, 5);
        r.dir = dirAt(d, 13);
        r.offset = i32At(d, 15);
        r.reset = d[19] == 1;
        break;
    }
    r.speed = std::max(r.speed, 1.0);
    r.approach_speed = std::max(r.approach_speed, 1.0);
    p.proc = r;
    p.result = kDone;
    p.since = Clock::now();
    ensureTicker(ctx.device(), sim);
    ctx.reply({d[0], 0});
  });
}

}  // namespace

bool serveTmc5240Inputs(Context& ctx, const Request& req) {
  if (!modelInfo(ctx.device().model()).has("TMC5240") || req.data.size() < 3) return false;
  uint16_t levels = 0;
  {
    DeviceState& st = ctx.state();
    auto sim = st.slot<TmcSim>();
    PortSim& p = sim->ports[req.data[0]];
    advance(st, p, Clock::now());
    const bool home = intKey(st, "home") != 0 || [&] {
      const auto at = switchAt(st, "home");
      return at && std::abs(p.position - *at) < 0.5;
    }();
    levels = static_cast<uint16_t>((limitActive(st, p, 1) ? 1 : 0) |
                                   (limitActive(st, p, -1) ? 2 : 0) | (home ? 4 : 0));
  }
  const uint16_t mask = static_cast<uint16_t>((req.data[1] << 8) | req.data[2]);
  levels &= mask;
  ctx.reply({req.data[0], static_cast<uint8_t>(levels >> 8), static_cast<uint8_t>(levels)});
  return true;
}

namespace {

const Registrar reg{{
    {MOTION_READ_REG, readReg},
    {MOTION_WRITE_REG, writeReg},
    {MOTION_GET_PARAM, paramBlock},
    {MOTION_LOAD_PARAM, paramBlock},
    {MOTION_SET_PARAM, paramBlock},
    {MOTION_SAVE_PARAM, paramBlock},
    {MOTION_RESET_FACTORY, paramBlock},
    {MOTION_GET_PROC_STATE, procState},
    {MOTION_STOP_PROC, stopProc},
    {MOTION_START_V_MOVE, start},
    {MOTION_START_P_MOVE, start},
    {MOTION_START_SCAN_MOVE, start},
    {MOTION_START_FIND_END, start},
    {MOTION_START_FIND_HOME, start},
    {MOTION_START_FIND_Z, start},
}};

}  // namespace

}  // namespace orv::sim
