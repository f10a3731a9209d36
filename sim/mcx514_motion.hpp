// The kinematics of the simulated MCX514 chip: drives, ramps, inputs,
// interpolated paths, the reference search and capture.
//
// Units are the chip's: positions in pulses, speeds in pulses per second,
// accelerations in pulses/s^2, jerks in pulses/s^3.  Time is simulated time
// in seconds, which the caller advances (sim/handlers_mcx514.cpp derives it
// from the steady clock times a scale).
//
// Where the chip's exact behaviour is not known to us it is simplified, and
// the simplification is told where it is made:
//  - a drive starts at the initial speed SV and ramps at AC up to DV (or DV
//    down and DC/DJ instead of AC/JK when WR3 bit 1 selects asymmetric
//    ramps); WR3 bit 2 selects the S curve, whose acceleration itself rises
//    and falls at the jerk JK (DJ when decelerating).  Fixed-pulse drives
//    decelerate by themselves: the deceleration begins when the remaining
//    path is no longer than the braking distance of the current speed (for
//    the S curve an estimate), and a drive that arrives early creeps at SV;
//    the last pulse always lands on the target.
//  - interpolation runs one ramp along the path, with DV of the lowest axis
//    as the vector speed; it decelerates only after DECEN (6D).  Finish and
//    centre points are relative to where the axes stand at the start.  An
//    arc ends on its finish point.
//  - a helix turns HLN whole turns plus the arc to the finish point on axes
//    0 and 1; axes 2 and 3 (when the mode word enables them) move TP per
//    turn.  The helical calculation value is the arc length in pulses.
//  - inputs are ideal switches with no filter; a stop at a limit is taken at
//    the pulse where the switch closes (single axis), or at the end of the
//    step in which it closes (interpolation).
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

namespace orv::sim::mcx514 {

// One input of an axis: held active by the host, and/or active while the
// axis stands in [lo, hi] (a switch at a place of the axis).
struct Input {
  bool forced = false;
  bool banded = false;
  int64_t lo = 0, hi = 0;

  bool active(int64_t p) const { return forced || (banded && lo <= p && p <= hi); }
  // The first position after p0, on the way to p1, at which active() differs
  // from active(p0); none when it does not change on the way.
  std::optional<int64_t> change(int64_t p0, int64_t p1) const;
};

struct AxisInputs {
  Input forward, reverse, home, index, sync;
  std::optional<uint32_t> rr3;  // a raw RR3 page 0 set by the host
};

enum InputId { kNone, kForward, kReverse, kHome, kIndex };

// One piece of a single-axis drive: a fixed length (pulses) or, with a seek
// input, until that input reaches the wanted state.
struct Piece {
  int dir = 1;
  double length = 0;  // infinite for continuous drives and seeks
  InputId seek = kNone;
  bool want = true;
  bool slow = false;         // at the home search speed HV, no ramp
  bool reset_after = false;  // clears LP and RP when the piece ends
};

struct Drive {
  enum class Kind { Single, Linear, Circle, Helix } kind = Kind::Single;
  uint8_t axes = 0;  // bit n: axis n belongs to the drive
  int main = 0;      // the axis whose registers give the speeds
  bool held = false;
  bool search = false;      // a reference search: its own switch is no limit
  bool abs_target = false;  // single absolute drive
  int tp_sign = 1;          // single relative drive: +TP (50) or -TP (51)
  double s = 0, v = 0, a = 0, length = 0;
  bool stopping = false;  // a decelerating stop
  bool braking = false;   // the automatic deceleration began
  int64_t start[4] = {0, 0, 0, 0};
  // single
  std::deque<Piece> pieces;
  // linear: displacement of each axis; helix: of the following axes
  double delta[4] = {0, 0, 0, 0};
  // arcs: the axes, the centre relative to the start, radius, angles
  int ax = 0, ay = 1;
  double cx = 0, cy = 0, r = 0, theta0 = 0, sweep = 0;
  int64_t fx = 0, fy = 0;
};

struct Axis {
  std::map<int, uint32_t> regs;  // write code -> data word
  int64_t lp = 0;                // logical position
  int64_t rp_offset = 0;         // real position = lp + rp_offset
  uint16_t rr2 = 0;              // error bits: 2 forward limit, 3 reverse limit
  uint8_t sync_enabled = 0;      // bit n: SYNCn armed
  bool held = false;             // DHOLD: drives wait for DFREE
  bool sync_level = false;       // last level of the capture input
  double v = 0, a = 0;           // current speed and acceleration

  uint32_t reg(int code) const {
    auto it = regs.find(code);
    return it == regs.end() ? 0 : it->second;
  }
  int32_t sreg(int code) const { return static_cast<int32_t>(reg(code)); }
};

class Chip {
 public:
  // A write or command with its data word, at simulated time t.
  void write(int code, int axis_byte, uint32_t word, const AxisInputs in[4]);
  // A read (the codes 30..48 and E8..EF).
  uint32_t read(int code, int axis_byte, const AxisInputs in[4]) const;
  // Runs the drives up to simulated time t.
  void advance(double t, const AxisInputs in[4]);

  // Whether a drive runs (held drives wait for a command, not for time).
  bool moving() const {
    for (const auto& d : drives_)
      if (!d.held) return true;
    return false;
  }
  uint8_t drivingMask() const;
  const Axis& axis(int n) const { return axis_[n]; }
  // Number of drives that ended since the last call.
  int takeEnded() {
    const int n = ended_;
    ended_ = 0;
    return n;
  }

  // Helical calculation: how many RR0 reads it stays busy for (the host's
  // override), or else how long in simulated time; the value it leaves.
  std::optional<int64_t> helical_reads;
  std::optional<uint32_t> helical_value;
  double helical_seconds = 0.002;

 private:
  void startSingle(int n, int code, const AxisInputs in[4]);
  void startSearch(int n, const AxisInputs in[4]);
  void startLinear();
  std::optional<Drive> makeArc(bool ccw, bool helix);
  void begin(Drive d);
  bool step(Drive& d, double h, const AxisInputs in[4]);
  void place(Drive& d);
  void stopAxis(int n, bool instant, const AxisInputs in[4]);
  void driveEnded(int n, const AxisInputs in[4]);
  void capture(int n, int64_t where);

  Axis axis_[4];
  std::map<int, uint32_t> chip_;  // chip-wide writes
  std::vector<Drive> drives_;
  bool decel_enabled_ = false;  // DECEN / DECDIS for interpolation
  double t_ = 0;
  mutable int64_t calc_reads_ = 0;
  double calc_until_ = 0;
  int ended_ = 0;
};

}  // namespace orv::sim::mcx514
