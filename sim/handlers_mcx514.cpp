// The simulated firmware's MCX514 motion chip (command MOTION).
//
// A request is [port, code, axis byte, d0, d1, d2, d3]; the reply repeats the
// first three bytes.  A write or command answers status 0 in byte 6; a read
// answers its value in bytes 3..6 (16-bit registers in bytes 5..6).
//
// Each motion port of the model holds a register file per axis (the 32-bit
// data word of every write code, one-hot axis bytes may address several
// axes) and one chip-wide file (axis byte 0).  Reads answer from the file:
// LP, RP, MR0..3, WR1..3, MRM, P1M, P2M, AC, SV, DV, TP from the codes that
// write them, TX, CHLN and HLV from the chip-wide file.
//
// Kinematics, worked out when the host looks (no thread): a drive command
// moves the logical position (LP, and RP with it) at the drive speed DV in
// counts per second, straight to the target with no ramp: relative (50)
// and counter-relative (51) by TP, absolute (54) to TP, continuous (52, 53)
// until a stop (56, 57).  A drive held by 77 waits.  RR0 has bit n set while
// axis n drives; CV is DV while driving, else 0.
//
// Set from the host side through the device's key/value state:
//   "mcx514.rr3.<axis>"   int: RR3 page 0 of the axis (home bit 1, limits 7, 8)
//   "mcx514.helical_busy" int: how many RR0 reads after a helical calculation
//                         command still show axis 0 busy (default 0)
//   "mcx514.helical_value" int: the HLV that the calculation leaves (default 0)
// Not simulated: acceleration profiles, limit and home inputs stopping a
// drive, the reference search, capture, synchronous actions, interpolated
// paths and split pulses.
#include <chrono>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "link/constants.hpp"
#include "motion/mcx514_driver.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

using Clock = std::chrono::steady_clock;

struct AxisSim {
  std::map<int, uint32_t> regs;  // write code -> data word
  int64_t position = 0;          // logical position; the encoder follows it
  // The drive in progress.
  bool driving = false, held = false, continuous = false;
  int64_t from = 0, target = 0, direction = 1;
  Clock::time_point since{};
  double speed = 0;

  void update(Clock::time_point now) {
    if (!driving || held) return;
    const double moved = speed * std::chrono::duration<double>(now - since).count();
    const auto step = static_cast<int64_t>(moved);
    if (!continuous && step >= std::llabs(target - from)) {
      position = target;
      driving = false;
      return;
    }
    position = from + direction * step;
  }
};

struct PortSim {
  AxisSim axis[4];
  std::map<int, uint32_t> chip;  // chip-wide writes
  int64_t helical_busy = 0;
};

struct Mcx514Sim {
  std::map<int, PortSim> ports;
};

uint32_t dataWord(const Bytes& d) {
  return (uint32_t{d[3]} << 24) | (uint32_t{d[4]} << 16) | (uint32_t{d[5]} << 8) | d[6];
}

// Read code -> the write code whose word it reads.
const std::map<int, int>& readBack() {
  static const std::map<int, int> m{{MOTION_34_MR0, MOTION_10_MR0}, {MOTION_35_MR1, MOTION_11_MR1},
                                    {MOTION_36_MR2, MOTION_12_MR2}, {MOTION_37_MR3, MOTION_13_MR3},
                                    {MOTION_38_CT, MOTION_16_TM},   {MOTION_3D_WR1, MOTION_E1_WR1},
                                    {MOTION_3E_WR2, MOTION_E2_WR2}, {MOTION_3F_WR3, MOTION_E3_WR3},
                                    {MOTION_40_MRM, MOTION_20_MRM}, {MOTION_41_P1M, MOTION_21_P1M},
                                    {MOTION_42_P2M, MOTION_22_P2M}, {MOTION_43_AC, MOTION_02_AC},
                                    {MOTION_44_SV, MOTION_04_SV},   {MOTION_45_DV, MOTION_05_DV},
                                    {MOTION_46_TP, MOTION_06_TP}};
  return m;
}

void startDrive(AxisSim& a, int code, Clock::time_point now) {
  a.update(now);
  const auto tp = static_cast<int64_t>(static_cast<int32_t>(a.regs[MOTION_06_TP]));
  a.from = a.position;
  a.continuous = code == MOTION_52_DRVVP || code == MOTION_53_DRVVM;
  if (code == MOTION_50_DRVRL) a.target = a.position + tp;
  if (code == MOTION_51_DRVNR) a.target = a.position - tp;
  if (code == MOTION_54_DRVAB) a.target = tp;
  a.direction = a.continuous ? (code == MOTION_52_DRVVP ? 1 : -1) : (a.target >= a.from ? 1 : -1);
  a.speed = std::max<double>(1.0, a.regs[MOTION_05_DV]);
  a.since = now;
  a.driving = a.continuous || a.target != a.from;
}

uint32_t readValue(Context& ctx, PortSim& p, int code, int axis_byte, Clock::time_point now) {
  int n = 0;  // the first addressed axis
  while (n < 3 && !(axis_byte & (1 << n))) ++n;
  AxisSim& a = p.axis[n];
  a.update(now);
  switch (code) {
    case MOTION_30_LP:
    case MOTION_31_RP:
      return static_cast<uint32_t>(a.position);
    case MOTION_32_CV:
      return a.driving && !a.held ? static_cast<uint32_t>(a.speed) : 0;
    case MOTION_33_CA:
      return a.driving ? a.regs[MOTION_02_AC] : 0;
    case MOTION_39_TX:
      return p.chip[MOTION_19_TX];
    case MOTION_3A_CHLN:
      return p.chip[MOTION_1A_HLN];
    case MOTION_3B_HLV:
      return p.chip[MOTION_1B_HLV];
    case MOTION_E8_RR0: {
      uint32_t rr0 = 0;
      for (int i = 0; i < 4; ++i) {
        p.axis[i].update(now);
        if (p.axis[i].driving) rr0 |= 1u << i;
      }
      if (p.helical_busy > 0) {
        --p.helical_busy;
        rr0 |= 1;
      }
      return rr0;
    }
    case MOTION_EB_RR3:
      return static_cast<uint32_t>(
          ctx.state().get("mcx514.rr3." + std::to_string(n), Value(0)).asInt());
    default:
      break;
  }
  auto it = readBack().find(code);
  return it == readBack().end() ? 0 : a.regs[it->second];
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
  auto sim = ctx.state().slot<Mcx514Sim>();
  PortSim& p = sim.get().ports[port];
  if (isRead(code)) {
    const uint32_t v = readValue(ctx, p, code, axis_byte, now);
    for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(v >> s));
    return ctx.reply(out);
  }
  const uint32_t word = dataWord(d);
  if (axis_byte == 0) p.chip[code] = word;
  if (code == MOTION_6B_HLPCW || code == MOTION_6C_HLPCCW) {
    p.helical_busy = ctx.state().get("mcx514.helical_busy", Value(0)).asInt();
    p.chip[MOTION_1B_HLV] =
        static_cast<uint32_t>(ctx.state().get("mcx514.helical_value", Value(0)).asInt());
  }
  for (int i = 0; i < 4; ++i) {
    if (!(axis_byte & (1 << i))) continue;
    AxisSim& a = p.axis[i];
    a.update(now);
    a.regs[code] = word;
    switch (code) {
      case MOTION_09_LP:
      case MOTION_0A_RP:
        a.position = static_cast<int32_t>(word);
        a.from = a.position;
        a.since = now;
        break;
      case MOTION_50_DRVRL:
      case MOTION_51_DRVNR:
      case MOTION_52_DRVVP:
      case MOTION_53_DRVVM:
      case MOTION_54_DRVAB:
        startDrive(a, code, now);
        break;
      case MOTION_56_DRVSBRK:
      case MOTION_57_DRVFBRK:
        a.driving = false;
        a.held = false;
        break;
      case MOTION_77_DHOLD:
        a.held = true;
        break;
      default:
        break;
    }
  }
  out.insert(out.end(), {0, 0, 0, 0});  // status 0 in byte 6
  ctx.reply(out);
}

const Registrar reg{{{MOTION, motion}}};

}  // namespace

}  // namespace orv::sim
