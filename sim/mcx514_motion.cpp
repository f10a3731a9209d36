#include "sim/mcx514_motion.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "link/constants.hpp"
#include "motion/mcx514_driver.hpp"

namespace orv::sim::mcx514 {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTwoPi = 2 * std::numbers::pi;

bool bit(uint32_t w, int n) { return (w >> n) & 1u; }

// The ramp parameters of a drive, read live from its main axis so that a
// speed written during a drive takes effect.
struct Ramp {
  double sv = 1, dv = 1, ac = 0, dc = 0, jk = 0, dj = 0;
  bool scurve = false, decel = false;
};

Ramp rampOf(const Axis& m, bool slow, bool decel) {
  Ramp p;
  const uint32_t wr3 = m.reg(MOTION_E3_WR3);
  if (slow) {  // the search's low speed: constant, as the chip's approach
    p.dv = p.sv = std::max<double>(1, m.reg(MOTION_14_HV));
    return p;
  }
  p.dv = std::max<double>(1, m.reg(MOTION_05_DV));
  p.sv = std::clamp<double>(m.reg(MOTION_04_SV), 1, p.dv);
  const bool asym = bit(wr3, 1);
  p.ac = m.reg(MOTION_02_AC);
  p.dc = asym ? m.reg(MOTION_03_DC) : p.ac;
  p.scurve = bit(wr3, 2);
  p.jk = m.reg(MOTION_00_JK);
  p.dj = asym ? m.reg(MOTION_01_DJ) : p.jk;
  p.decel = decel;
  return p;
}

// Distance needed to slow from v to sv.  The S-curve figure assumes the
// deceleration starts from zero and is an estimate.
double brakeDistance(const Ramp& p, double v) {
  if (v <= p.sv || p.dc <= 0) return 0;
  const double dv = v - p.sv;
  if (p.scurve && p.dj > 0) {
    const double t = dv >= p.dc * p.dc / p.dj ? dv / p.dc + p.dc / p.dj : 2 * std::sqrt(dv / p.dj);
    return (v + p.sv) / 2 * t;
  }
  return (v * v - p.sv * p.sv) / (2 * p.dc);
}

// The speed from which brakeDistance is dist (at most vmax).
double speedToStopIn(const Ramp& p, double dist, double vmax) {
  if (brakeDistance(p, vmax) <= dist) return vmax;
  double lo = p.sv, hi = vmax;
  for (int i = 0; i < 40; ++i) {
    const double mid = (lo + hi) / 2;
    (brakeDistance(p, mid) <= dist ? lo : hi) = mid;
  }
  return lo;
}

// One small step of the speed toward target; a is the signed acceleration.
void ramp(double& v, double& a, double target, double rate, double jerk, bool scurve, double h) {
  const double sign = target > v ? 1 : -1;
  const double need = std::abs(target - v);
  if (rate <= 0) {
    v = target;
    a = 0;
    return;
  }
  double mag = a * sign > 0 ? std::abs(a) : 0;
  if (scurve && jerk > 0) {
    if (need <= mag * mag / (2 * jerk))
      mag = std::max(jerk * h, mag - jerk * h);  // ease into the new speed
    else
      mag = std::min(rate, mag + jerk * h);
  } else {
    mag = rate;
  }
  const double dv = std::min(need, mag * h);
  v += sign * dv;
  a = dv >= need ? 0 : sign * mag;
}

double normalizedTurn(double x) {  // into [0, 2 pi)
  x = std::fmod(x, kTwoPi);
  return x < 0 ? x + kTwoPi : x;
}

}  // namespace

std::optional<int64_t> Input::change(int64_t p0, int64_t p1) const {
  if (forced || !banded || p0 == p1 || lo > hi) return std::nullopt;
  const bool in = active(p0);
  if (p1 > p0) {
    if (!in && p0 < lo && p1 >= lo) return lo;
    if (in && p1 > hi) return hi + 1;
  } else {
    if (!in && p0 > hi && p1 <= hi) return hi;
    if (in && p1 < lo) return lo - 1;
  }
  return std::nullopt;
}

uint8_t Chip::drivingMask() const {
  uint8_t m = 0;
  for (const auto& d : drives_) m |= d.axes;
  return m;
}

void Chip::begin(Drive d) {
  for (int i = 0; i < 4; ++i) {
    if (!bit(d.axes, i)) continue;
    d.start[i] = axis_[i].lp;
    if (axis_[i].held) d.held = true;
  }
  const Ramp p = rampOf(axis_[d.main], !d.pieces.empty() && d.pieces.front().slow, false);
  d.v = p.sv;
  drives_.push_back(std::move(d));
}

void Chip::startSingle(int n, int code, const AxisInputs in[4]) {
  Drive d;
  d.axes = static_cast<uint8_t>(1u << n);
  d.main = n;
  Piece piece;
  const int64_t tp = axis_[n].sreg(MOTION_06_TP);
  if (code == MOTION_52_DRVVP || code == MOTION_53_DRVVM) {
    piece.dir = code == MOTION_52_DRVVP ? 1 : -1;
    piece.length = kInf;
  } else {
    const int64_t target = code == MOTION_54_DRVAB   ? tp
                           : code == MOTION_50_DRVRL ? axis_[n].lp + tp
                                                     : axis_[n].lp - tp;
    piece.dir = target >= axis_[n].lp ? 1 : -1;
    piece.length = static_cast<double>(std::llabs(target - axis_[n].lp));
    d.abs_target = code == MOTION_54_DRVAB;
    d.tp_sign = code == MOTION_51_DRVNR ? -1 : 1;
    if (piece.length == 0) return;
  }
  // A drive toward a limit that is already active does not start.
  const uint32_t wr2 = axis_[n].reg(MOTION_E2_WR2);
  if (bit(wr2, 11)) {
    const int64_t p = axis_[n].lp;
    if (piece.dir > 0 && in[n].forward.active(p)) return void(axis_[n].rr2 |= 1u << 2);
    if (piece.dir < 0 && in[n].reverse.active(p)) return void(axis_[n].rr2 |= 1u << 3);
  }
  d.pieces.push_back(piece);
  d.length = piece.length;
  begin(std::move(d));
}

// The reference search, from the mode word that the driver builds (H1M):
// bit 6 marks a search for a limit, bit 0 one for the home input, bit 2
// alone one for the encoder index.  Step 1 runs at DV in the initial
// direction until the input closes; with the percent flag (bit 4) the axis
// backs off the switch and approaches it again at HV in the final direction
// (bit 5); the index is sought at HV.  H2M bits 1 and 2 clear the counters
// at the found point, and H1M bit 15 then drives the offset TP at DV.  All
// stops of the search are taken at the pulse where the input changes.
void Chip::startSearch(int n, const AxisInputs in[4]) {
  const uint32_t h1 = axis_[n].reg(MOTION_23_H1M);
  const uint32_t h2 = axis_[n].reg(MOTION_24_H2M);
  Drive d;
  d.axes = static_cast<uint8_t>(1u << n);
  d.main = n;
  d.search = true;
  auto seek = [](int dir, InputId id, bool want, bool slow) {
    Piece p;
    p.dir = dir;
    p.length = kInf;
    p.seek = id;
    p.want = want;
    p.slow = slow;
    return p;
  };
  const bool limit = bit(h1, 6), home = !limit && bit(h1, 0), index = !limit && !home && bit(h1, 2);
  if (!limit && !home && !index) return;
  const int dir1 = bit(h1, index ? 3 : 1) ? -1 : 1;
  if (index) {
    d.pieces.push_back(seek(dir1, kIndex, true, true));
  } else {
    const InputId id = home ? kHome : (dir1 > 0 ? kForward : kReverse);
    d.pieces.push_back(seek(dir1, id, true, false));
    if (bit(h1, 4)) {
      const int fin = bit(h1, 5) ? -1 : 1;
      d.pieces.push_back(seek(-fin, id, false, true));
      d.pieces.push_back(seek(fin, id, true, true));
    }
  }
  (void)in;
  d.pieces.back().reset_after = bit(h2, 1) || bit(h2, 2);
  if (bit(h1, 15)) {
    const int64_t tp = axis_[n].sreg(MOTION_06_TP);
    if (tp != 0) {
      Piece off;
      off.dir = tp > 0 ? 1 : -1;
      off.length = static_cast<double>(std::llabs(tp));
      d.pieces.push_back(off);
    }
  }
  d.length = d.pieces.front().length;
  begin(std::move(d));
}

void Chip::startLinear() {
  const uint32_t ipm = chip_[MOTION_2A_IPM];
  Drive d;
  d.kind = Drive::Kind::Linear;
  d.axes = static_cast<uint8_t>(ipm & 0x0F);
  if (d.axes == 0) return;
  double len2 = 0;
  for (int i = 3; i >= 0; --i) {
    if (!bit(d.axes, i)) continue;
    d.main = i;
    d.delta[i] = axis_[i].sreg(MOTION_06_TP);
    len2 += d.delta[i] * d.delta[i];
  }
  d.length = std::sqrt(len2);
  if (d.length == 0) return;
  begin(std::move(d));
}

std::optional<Drive> Chip::makeArc(bool ccw, bool helix) {
  const uint32_t ipm = chip_[MOTION_2A_IPM];
  Drive d;
  d.kind = helix ? Drive::Kind::Helix : Drive::Kind::Circle;
  if (helix) {
    d.ax = 0;
    d.ay = 1;
  } else {
    int lo = -1, hi = -1;
    for (int i = 0; i < 4; ++i) {
      if (!bit(ipm, i)) continue;
      (lo < 0 ? lo : hi) = i;
    }
    if (lo < 0 || hi < 0) return std::nullopt;
    d.ax = bit(ipm, 4) ? hi : lo;
    d.ay = bit(ipm, 4) ? lo : hi;
  }
  d.main = std::min(d.ax, d.ay);
  d.axes = static_cast<uint8_t>((1u << d.ax) | (1u << d.ay));
  d.cx = axis_[d.ax].sreg(MOTION_08_CP);
  d.cy = axis_[d.ay].sreg(MOTION_08_CP);
  d.fx = axis_[d.ax].sreg(MOTION_06_TP);
  d.fy = axis_[d.ay].sreg(MOTION_06_TP);
  d.r = std::hypot(d.cx, d.cy);
  d.theta0 = std::atan2(-d.cy, -d.cx);
  const double theta1 = std::atan2(d.fy - d.cy, d.fx - d.cx);
  double arc = normalizedTurn(ccw ? theta1 - d.theta0 : d.theta0 - theta1);
  if (arc < 1e-9) arc = 0;  // ends where it starts
  if (helix) {
    arc += kTwoPi * chip_[MOTION_1A_HLN];
    for (int i = 2; i < 4; ++i) {
      if (!bit(ipm, i)) continue;
      d.axes |= static_cast<uint8_t>(1u << i);
      d.delta[i] = axis_[i].sreg(MOTION_06_TP);  // per turn for now
    }
  }
  if (arc == 0) arc = kTwoPi;  // a whole circle
  d.sweep = ccw ? arc : -arc;
  for (double& z : d.delta) z *= arc / kTwoPi;
  d.length = d.r * arc;
  if (d.r < 0.5) return std::nullopt;
  return d;
}

// Sets the axes' positions from the path position s.
void Chip::place(Drive& d) {
  const double f = d.length > 0 ? std::min(1.0, d.s / d.length) : 1;
  switch (d.kind) {
    case Drive::Kind::Single: {
      const Piece& p = d.pieces.front();
      const double s = std::isinf(p.length) ? d.s : std::min(d.s, p.length);
      axis_[d.main].lp = d.start[d.main] + p.dir * static_cast<int64_t>(std::floor(s + 1e-9));
      break;
    }
    case Drive::Kind::Linear:
      for (int i = 0; i < 4; ++i)
        if (bit(d.axes, i)) axis_[i].lp = d.start[i] + std::llround(d.delta[i] * f);
      break;
    case Drive::Kind::Circle:
    case Drive::Kind::Helix: {
      if (f >= 1) {
        axis_[d.ax].lp = d.start[d.ax] + d.fx;
        axis_[d.ay].lp = d.start[d.ay] + d.fy;
      } else {
        const double ang = d.theta0 + d.sweep * f;
        axis_[d.ax].lp = d.start[d.ax] + std::llround(d.cx + d.r * std::cos(ang));
        axis_[d.ay].lp = d.start[d.ay] + std::llround(d.cy + d.r * std::sin(ang));
      }
      for (int i = 2; i < 4; ++i)
        if (d.kind == Drive::Kind::Helix && bit(d.axes, i))
          axis_[i].lp = d.start[i] + std::llround(d.delta[i] * f);
      break;
    }
  }
}

void Chip::capture(int n, int64_t where) {
  Axis& a = axis_[n];
  if (!bit(a.sync_enabled, 3)) return;
  const uint32_t word = a.reg(MOTION_29_S3M);
  const uint32_t factor = word & 0x0F;  // 0xA: rising edge of the input, 0xB: falling
  const bool rising = !a.sync_level;
  if (!((factor == 0xA && rising) || (factor == 0xB && !rising))) return;
  const uint32_t action = (word >> 4) & 0x0F;  // 5: LP to MR3, 6: RP to MR3
  if (action == 5) a.regs[MOTION_13_MR3] = static_cast<uint32_t>(where);
  if (action == 6) a.regs[MOTION_13_MR3] = static_cast<uint32_t>(where + a.rp_offset);
}

// Runs drive d for h seconds; true when it has ended.
bool Chip::step(Drive& d, double h, const AxisInputs in[4]) {
  const bool single = d.kind == Drive::Kind::Single;
  const bool slow = single && d.pieces.front().slow;
  const bool autodecel = single ? true : decel_enabled_;
  const Ramp p = rampOf(axis_[d.main], slow, autodecel);
  // Speed.
  if (p.decel && !std::isinf(d.length) && d.length - d.s <= brakeDistance(p, d.v) + d.v * h)
    d.braking = true;
  const double target = d.stopping || d.braking ? p.sv : p.dv;
  const bool up = target > d.v;
  const double before_v = d.v;
  ramp(d.v, d.a, target, up ? p.ac : p.dc, up ? p.jk : p.dj, p.scurve, h);
  if (d.braking && !d.stopping && p.dc > 0) {
    // Follow the speed that still stops at the end, so that the steps leave
    // neither a long creep at SV nor an overshoot.
    const double rem = std::max(0.0, d.length - d.s);
    d.v = std::max(d.v, std::min(before_v, speedToStopIn(p, rem, before_v)));
  }
  d.s += d.v * h;
  bool done = false;
  if (d.s >= d.length) {
    d.s = d.length;
    done = true;
  }
  if (d.stopping && d.v <= p.sv) done = true;
  // Positions, and what the inputs say on the way.
  int64_t before[4];
  for (int i = 0; i < 4; ++i) before[i] = axis_[i].lp;
  place(d);
  for (int i = 0; i < 4; ++i) {
    if (!bit(d.axes, i)) continue;
    Axis& a = axis_[i];
    const int64_t from = before[i], to = a.lp;
    a.v = d.v;
    a.a = std::abs(d.a);
    if (from == to) continue;
    const int dir = to > from ? 1 : -1;
    // Capture input.
    if (auto c = in[i].sync.change(from, to)) {
      capture(i, *c);
      a.sync_level = in[i].sync.active(*c);
    }
    // The sought input of a search.
    if (single && d.search && d.pieces.front().seek != kNone) {
      const Piece& pc = d.pieces.front();
      const Input& x = pc.seek == kHome      ? in[i].home
                       : pc.seek == kIndex   ? in[i].index
                       : pc.seek == kForward ? in[i].forward
                                             : in[i].reverse;
      std::optional<int64_t> at;
      if (x.active(from) == pc.want)
        at = from;
      else if (auto c = x.change(from, to))
        at = *c;
      else if (x.active(to) == pc.want)
        at = to;  // held by the host meanwhile
      if (at) {
        a.lp = *at;
        if (pc.reset_after) {
          a.rp_offset = 0;
          a.lp = 0;
        }
        d.pieces.pop_front();
        if (d.pieces.empty()) return true;
        d.start[i] = a.lp;
        d.s = 0;
        d.v = rampOf(a, d.pieces.front().slow, true).sv;
        d.length = d.pieces.front().length;
        d.braking = false;
        return false;
      }
      // A search that meets a limit it does not seek ends there.
    }
    // Limits, when enabled (WR2 bit 11); bit 12 selects the instant stop.
    const uint32_t wr2 = a.reg(MOTION_E2_WR2);
    const bool searching_limit =
        d.search && !d.pieces.empty() &&
        (d.pieces.front().seek == kForward || d.pieces.front().seek == kReverse);
    if ((bit(wr2, 11) || d.search) && !searching_limit) {
      const Input& lim = dir > 0 ? in[i].forward : in[i].reverse;
      std::optional<int64_t> at;
      if (lim.active(from))
        at = from;
      else if (auto c = lim.change(from, to))
        at = *c;
      else if (lim.active(to))
        at = to;
      if (at) {
        a.rr2 |= static_cast<uint16_t>(1u << (dir > 0 ? 2 : 3));
        if (single && (bit(wr2, 12) || d.search)) {
          a.lp = *at;
          return true;
        }
        if (!single) return true;  // the whole interpolation stops here
        d.stopping = true;
      }
    }
  }
  return done;
}

void Chip::advance(double t, const AxisInputs in[4]) {
  // An edge of the capture input while standing still (the host toggled it).
  for (int n = 0; n < 4; ++n) {
    const bool level = in[n].sync.active(axis_[n].lp);
    if (level != axis_[n].sync_level) {
      capture(n, axis_[n].lp);
      axis_[n].sync_level = level;
    }
  }
  const double dt = t - t_;
  if (dt <= 0) return;
  t_ = t;
  // Steps of at most 0.5 ms simulated, at most 4000 per call.
  const int steps = static_cast<int>(std::clamp(std::ceil(dt / 0.0005), 1.0, 4000.0));
  uint8_t ended = 0;
  const double h = dt / steps;
  for (auto it = drives_.begin(); it != drives_.end();) {
    bool done = false;
    if (!it->held)
      for (int k = 0; k < steps && !done; ++k) done = step(*it, h, in);
    if (done) {
      for (int i = 0; i < 4; ++i)
        if (bit(it->axes, i)) axis_[i].v = axis_[i].a = 0;
      const uint8_t axes = it->kind == Drive::Kind::Single ? it->axes : 0;
      it = drives_.erase(it);
      ++ended_;
      ended |= axes;
    } else {
      ++it;
    }
  }
  for (int n = 0; n < 4; ++n)
    if (bit(ended, n)) driveEnded(n, in);
}

// SYNC1 as the reversing velocity override arms it: activated by the end of
// a drive (low nibble 6), it starts a continuous drive, + for action 0xD and
// - for 0xE.  The simulated action fires once and disarms itself.
void Chip::driveEnded(int n, const AxisInputs in[4]) {
  Axis& a = axis_[n];
  if (!bit(a.sync_enabled, 1)) return;
  const uint32_t word = a.reg(MOTION_27_S1M);
  if ((word & 0x0F) != 6) return;
  const uint32_t action = (word >> 4) & 0x0F;
  if (action != 0xD && action != 0xE) return;
  a.sync_enabled &= static_cast<uint8_t>(~2u);
  startSingle(n, action == 0xD ? MOTION_52_DRVVP : MOTION_53_DRVVM, in);
}

void Chip::stopAxis(int n, bool instant, const AxisInputs in[4]) {
  for (auto it = drives_.begin(); it != drives_.end(); ++it) {
    if (!bit(it->axes, n)) continue;
    if (instant || it->held) {
      for (int i = 0; i < 4; ++i)
        if (bit(it->axes, i)) axis_[i].v = axis_[i].a = 0;
      const bool single = it->kind == Drive::Kind::Single;
      drives_.erase(it);
      ++ended_;
      if (single) driveEnded(n, in);
    } else {
      it->stopping = true;
      it->pieces.resize(std::min<size_t>(it->pieces.size(), 1));  // no further search step
    }
    return;
  }
}

void Chip::write(int code, int axis_byte, uint32_t word, const AxisInputs in[4]) {
  if (axis_byte == 0 || code == MOTION_78_DFREE) {
    switch (code) {
      case MOTION_60_LHK1:
      case MOTION_61_LHK2:
      case MOTION_62_LHK3:
      case MOTION_63_LHK4:
        if (!(chip_[MOTION_2A_IPM] & 0x0F & drivingMask())) startLinear();
        return;
      case MOTION_64_CHKCW:
      case MOTION_65_CHKCCW:
        if (chip_[MOTION_2A_IPM] & 0x0F & drivingMask()) return;
        if (auto d = makeArc(code == MOTION_65_CHKCCW, false)) begin(std::move(*d));
        return;
      case MOTION_69_HLCW:
      case MOTION_6A_HLCCW:
        if (drivingMask() & 0x0F & (chip_[MOTION_2A_IPM] | 3)) return;
        if (auto d = makeArc(code == MOTION_6A_HLCCW, true)) begin(std::move(*d));
        return;
      case MOTION_6B_HLPCW:
      case MOTION_6C_HLPCCW: {
        const auto d = makeArc(code == MOTION_6C_HLPCCW, true);  // worked out, not driven
        chip_[MOTION_1B_HLV] = helical_value ? *helical_value
                               : d           ? static_cast<uint32_t>(std::llround(d->length))
                                             : 0;
        if (helical_reads)
          calc_reads_ = *helical_reads;
        else
          calc_until_ = t_ + helical_seconds;
        return;
      }
      case MOTION_6D_DECEN:
        decel_enabled_ = true;
        return;
      case MOTION_6E_DECDIS:
        decel_enabled_ = false;
        return;
      case MOTION_78_DFREE:
        for (int i = 0; i < 4; ++i)
          if (bit(static_cast<uint32_t>(axis_byte), i)) axis_[i].held = false;
        for (auto& d : drives_) {
          bool still = false;
          for (int i = 0; i < 4; ++i) still = still || (bit(d.axes, i) && axis_[i].held);
          d.held = still;
        }
        return;
      default:
        chip_[code] = word;
        return;
    }
  }
  for (int n = 0; n < 4; ++n) {
    if (!bit(static_cast<uint32_t>(axis_byte), n)) continue;
    Axis& a = axis_[n];
    const bool driving = bit(drivingMask(), n);
    if (code >= 0x80 && code <= 0x8F) a.sync_enabled |= static_cast<uint8_t>(code & 0x0F);
    if (code >= 0x90 && code <= 0x9F) a.sync_enabled &= static_cast<uint8_t>(~code & 0x0F);
    switch (code) {
      case MOTION_09_LP:
        a.lp = static_cast<int32_t>(word);
        break;
      case MOTION_0A_RP:
        a.rp_offset = static_cast<int32_t>(word) - a.lp;
        break;
      case MOTION_06_TP:
        a.regs[code] = word;
        // A new finish point during a fixed-pulse drive moves its end.
        for (auto& d : drives_) {
          if (d.kind != Drive::Kind::Single || d.search || d.main != n) continue;
          if (std::isinf(d.pieces.front().length)) continue;
          const Piece& pc = d.pieces.front();
          const int64_t target = d.abs_target ? static_cast<int32_t>(word)
                                              : d.start[n] + d.tp_sign * static_cast<int32_t>(word);
          const double len = static_cast<double>((target - d.start[n]) * pc.dir);
          if (len >= d.s) {
            d.pieces.front().length = d.length = len;
            d.braking = false;
          } else {
            d.stopping = true;
          }
        }
        break;
      case MOTION_50_DRVRL:
      case MOTION_51_DRVNR:
      case MOTION_52_DRVVP:
      case MOTION_53_DRVVM:
      case MOTION_54_DRVAB:
        if (!driving) startSingle(n, code, in);
        break;
      case MOTION_5A_HMSRC:
        if (!driving) startSearch(n, in);
        break;
      case MOTION_56_DRVSBRK:
        stopAxis(n, false, in);
        break;
      case MOTION_57_DRVFBRK:
        stopAxis(n, true, in);
        break;
      case MOTION_77_DHOLD:
        a.held = true;
        break;
      case MOTION_79_R2CLR:
        a.rr2 = 0;
        break;
      default:
        a.regs[code] = word;
        break;
    }
  }
}

uint32_t Chip::read(int code, int axis_byte, const AxisInputs in[4]) const {
  int n = 0;  // the first addressed axis
  while (n < 3 && !bit(static_cast<uint32_t>(axis_byte), n)) ++n;
  const Axis& a = axis_[n];
  auto chipReg = [&](int c) {
    auto it = chip_.find(c);
    return it == chip_.end() ? 0u : it->second;
  };
  switch (code) {
    case MOTION_30_LP:
      return static_cast<uint32_t>(a.lp);
    case MOTION_31_RP:
      return static_cast<uint32_t>(a.lp + a.rp_offset);
    case MOTION_32_CV:
      return static_cast<uint32_t>(std::llround(a.v));
    case MOTION_33_CA:
      return static_cast<uint32_t>(std::llround(a.a));
    case MOTION_34_MR0:
      return a.reg(MOTION_10_MR0);
    case MOTION_35_MR1:
      return a.reg(MOTION_11_MR1);
    case MOTION_36_MR2:
      return a.reg(MOTION_12_MR2);
    case MOTION_37_MR3:
      return a.reg(MOTION_13_MR3);
    case MOTION_38_CT:
      return a.reg(MOTION_16_TM);
    case MOTION_39_TX:
      return chipReg(MOTION_19_TX);
    case MOTION_3A_CHLN:
      return chipReg(MOTION_1A_HLN);
    case MOTION_3B_HLV:
      return chipReg(MOTION_1B_HLV);
    case MOTION_3D_WR1:
      return a.reg(MOTION_E1_WR1);
    case MOTION_3E_WR2:
      return a.reg(MOTION_E2_WR2);
    case MOTION_3F_WR3:
      return a.reg(MOTION_E3_WR3);
    case MOTION_40_MRM:
      return a.reg(MOTION_20_MRM);
    case MOTION_41_P1M:
      return a.reg(MOTION_21_P1M);
    case MOTION_42_P2M:
      return a.reg(MOTION_22_P2M);
    case MOTION_43_AC:
      return a.reg(MOTION_02_AC);
    case MOTION_44_SV:
      return a.reg(MOTION_04_SV);
    case MOTION_45_DV:
      return a.reg(MOTION_05_DV);
    case MOTION_46_TP:
      return a.reg(MOTION_06_TP);
    case MOTION_E8_RR0: {
      uint32_t rr0 = drivingMask();
      for (int i = 0; i < 4; ++i)
        if (axis_[i].rr2) rr0 |= 1u << (4 + i);
      if (calc_reads_ > 0) {
        --calc_reads_;
        rr0 |= 1;
      } else if (calc_until_ > t_) {
        rr0 |= 1;
      }
      return rr0;
    }
    case MOTION_EA_RR2:
      return a.rr2;
    case MOTION_EB_RR3: {
      if (in[n].rr3) return *in[n].rr3;
      // Signal levels: an input reads at its active level as WR2 sets it
      // (bit 2 home, bit 4 index, bit 10 limits; 1 active high).
      const uint32_t wr2 = a.reg(MOTION_E2_WR2);
      auto level = [&](const Input& x, int pol_bit) {
        return static_cast<uint32_t>(x.active(a.lp) == bit(wr2, pol_bit));
      };
      return (level(in[n].home, 2) << 1) | (level(in[n].index, 4) << 2) |
             (level(in[n].forward, 10) << 7) | (level(in[n].reverse, 10) << 8);
    }
    default:
      return 0;
  }
}

}  // namespace orv::sim::mcx514
