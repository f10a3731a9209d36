// MCX514Module: coordinated axes.  Linear interpolation on two to four
// axes, circular on a pair, helical on axes 0 and 1 with axes 2 and 3
// following, and the break point pulse train (synchronous action SYNC0).
// A configure call stores the request in its record and writes the chip's
// registers; a start call sends the one command (helical writes it all anew).
#include <algorithm>
#include <chrono>
#include <cmath>

#include "link/convert.hpp"
#include "motion/mcx514.hpp"

namespace orv {

using mcx514::Greatest;

namespace {

bool isOne(const Value& v) { return looseEquals(v, Value(1)); }

}  // namespace

int MCX514Module::linearInterpo(const Call& c, const Value& port_in,
                                std::vector<std::pair<Value, Value>> pairs, const Value& speed,
                                const Value& accel, const Value& decel) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  for (const auto& [axis, dest] : pairs) {
    _checkMCX514Axis(axis);
    checkInputType(dest, kTypeInt);
  }
  for (const Value* v : {&speed, &accel, &decel}) checkInputType(*v, kTypeInt);

  // The chip takes the vector parameters from the lowest axis of the group.
  std::sort(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) {
    if (a.first.asInt() != b.first.asInt()) return a.first.asInt() < b.first.asInt();
    return a.second.asInt() < b.second.asInt();
  });
  const size_t n = pairs.size();
  MotionLinearInterpolation& r = linear_interpo;
  int64_t* slots[][2] = {{&r.main_axis, &r.main_dest},
                         {&r.second_axis, &r.second_dest},
                         {&r.third_axis, &r.third_dest},
                         {&r.fourth_axis, &r.fourth_dest}};
  for (size_t i = 0; i < n; ++i) {
    *slots[i][0] = pairs[i].first.asInt();
    *slots[i][1] = pairs[i].second.asInt();
  }
  r.speed = speed.asInt();
  r.acceleration = accel.asInt();
  r.deceleration = decel.asInt();
  r.mode = static_cast<int64_t>(n);

  Greatest g;
  for (const auto& [axis, dest] : pairs) {
    const MotionSettings& d = axisOf(axis).motion_dict;
    g += Motion_setAxisModeAndDirection_(c, port, axis, Value(d.get("Stepper Output")),
                                         Value(d.get("Inverse Motion Direction")));
  }
  int64_t state = 0;
  if (n == 4) {
    state = 0x0F;
  } else {
    for (const auto& pair : pairs) state = fillBit(state, pair.first.asInt());
    state = fillBit(state, n == 2 ? 6 : 7);
  }
  g += Motion_setInterpolationMode_(c, port, Value(state));
  const Value& main_axis = pairs.front().first;
  g += Motion_setInitialSpeed_(c, port, main_axis, Value(mcx514::initialSpeed(r.acceleration)));
  g += Motion_setDriveSpeed_(c, port, main_axis, speed);
  g += Motion_setAcceleration_(c, port, main_axis, accel);
  g += Motion_setDeceleration_(c, port, main_axis, decel);
  for (const auto& [axis, dest] : pairs)
    g += Motion_setDrivePositionFinishPoint_(c, port, axis, dest);
  g += Motion_enableDeceleration_(c, port);
  return g.status;
}

int MCX514Module::Motion_cfg2AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                               const Value& dest_posi1, const Value& axis2,
                                               const Value& dest_posi2, const Value& speed,
                                               const Value& accel, const Value& decel) {
  return linearInterpo(c, port, {{axis1, dest_posi1}, {axis2, dest_posi2}}, speed, accel, decel);
}

int MCX514Module::Motion_cfg3AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                               const Value& dest_posi1, const Value& axis2,
                                               const Value& dest_posi2, const Value& axis3,
                                               const Value& dest_posi3, const Value& speed,
                                               const Value& accel, const Value& decel) {
  return linearInterpo(c, port, {{axis1, dest_posi1}, {axis2, dest_posi2}, {axis3, dest_posi3}},
                       speed, accel, decel);
}

int MCX514Module::Motion_cfg4AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                               const Value& dest_posi1, const Value& axis2,
                                               const Value& dest_posi2, const Value& axis3,
                                               const Value& dest_posi3, const Value& axis4,
                                               const Value& dest_posi4, const Value& speed,
                                               const Value& accel, const Value& decel) {
  return linearInterpo(
      c, port, {{axis1, dest_posi1}, {axis2, dest_posi2}, {axis3, dest_posi3}, {axis4, dest_posi4}},
      speed, accel, decel);
}

int MCX514Module::Motion_startLinearInterpo(const Call& c, const Value& port_in) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  Greatest g;
  switch (linear_interpo.mode) {
    case 3:
      g += Motion_threeAxisLinearInterpolation_(c, port);
      break;
    case 4:
      g += Motion_fourAxisLinearInterpolation_(c, port);
      break;
    default:
      g += Motion_twoAxisLinearInterpolation_(c, port);
  }
  return g.status;
}

int MCX514Module::Motion_cfgCircularInterpo(
    const Call& c, const Value& port_in, const Value& x_axis, const Value& y_axis,
    const Value& center_point_x, const Value& center_point_y, const Value& finish_point_x,
    const Value& finish_point_y, const Value& dir, const Value& speed, const Value& accel,
    const Value& decel) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(x_axis);
  _checkMCX514Axis(y_axis);
  for (const Value* v : {&center_point_x, &center_point_y, &finish_point_x, &finish_point_y})
    checkInputType(*v, kTypeInt);
  _checkMCX514Direction(dir);
  for (const Value* v : {&speed, &accel, &decel}) checkInputType(*v, kTypeInt);

  const int64_t x = x_axis.asInt(), y = y_axis.asInt();
  const Value main_axis(std::min(x, y));
  MotionCircularInterpolation& r = circular_interpo;
  r.main_axis = std::min(x, y);
  r.center_point_x = center_point_x.asInt();
  r.center_point_y = center_point_y.asInt();
  r.finish_point_x = finish_point_x.asInt();
  r.finish_point_y = finish_point_y.asInt();
  r.direction = dir.asInt();
  r.speed = speed.asInt();
  r.acceleration = accel.asInt();
  r.deceleration = decel.asInt();

  Greatest g;
  for (const Value* axis : {&x_axis, &y_axis}) {
    const MotionSettings& d = axisOf(*axis).motion_dict;
    g += Motion_setAxisModeAndDirection_(c, port, *axis, Value(d.get("Stepper Output")),
                                         Value(d.get("Inverse Motion Direction")));
  }
  int64_t state = fillBit(fillBit(fillBit(0, x), y), 6);
  if (x > y) state = fillBit(state, 4);
  g += Motion_setInterpolationMode_(c, port, Value(state));
  g += Motion_setInitialSpeed_(c, port, main_axis, speed);
  g += Motion_setDriveSpeed_(c, port, main_axis, speed);
  g += Motion_setAcceleration_(c, port, main_axis, accel);
  g += Motion_setDeceleration_(c, port, main_axis, decel);
  g += Motion_setCircularCenterPoint_(c, port, x_axis, center_point_x);
  g += Motion_setDrivePositionFinishPoint_(c, port, x_axis, finish_point_x);
  g += Motion_setCircularCenterPoint_(c, port, y_axis, center_point_y);
  g += Motion_setDrivePositionFinishPoint_(c, port, y_axis, finish_point_y);
  return g.status;
}

int MCX514Module::Motion_startCircularInterpo(const Call& c, const Value& port_in) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  Greatest g;
  if (circular_interpo.direction == 0)
    g += Motion_cwCircularInterpolation_(c, port);
  else
    g += Motion_ccwCircularInterpolation_(c, port);
  return g.status;
}

int MCX514Module::Motion_writeHelicalInterpolation_(
    const Call& c, const Value& port, const Value& finish_point_axis1,
    const Value& finish_point_axis2, const Value& center_point_axis1,
    const Value& center_point_axis2, const Value& enable_axis3, const Value& pitch_axis3,
    const Value& enable_axis4, const Value& pitch_axis4, const Value& rotation_number,
    const Value& circular_speed, const Value& circular_direction) {
  _checkMCX514MotionPort(port);
  MotionHelicalInterpolation& r = helical_interpo;
  r.finish_point_axis1 = finish_point_axis1.asInt();
  r.finish_point_axis2 = finish_point_axis2.asInt();
  r.center_point_axis1 = center_point_axis1.asInt();
  r.center_point_axis2 = center_point_axis2.asInt();
  r.enable_axis3 = enable_axis3.asInt();
  r.pitch_axis3 = pitch_axis3.asInt();
  r.enable_axis4 = enable_axis4.asInt();
  r.pitch_axis4 = pitch_axis4.asInt();
  r.rotation_number = rotation_number.asInt();
  r.circular_speed = circular_speed.asInt();
  r.circular_direction = circular_direction.asInt();

  const bool axis3 = isOne(enable_axis3), axis4 = isOne(enable_axis4);
  Greatest g;
  for (int axis = 0; axis < 4; ++axis) {
    if ((axis == 2 && !axis3) || (axis == 3 && !axis4)) continue;
    const MotionSettings& d = _getAxisHandle(axis).motion_dict;
    g += Motion_setAxisModeAndDirection_(c, port, axis, Value(d.get("Stepper Output")),
                                         Value(d.get("Inverse Motion Direction")));
  }
  int64_t state = fillBit(fillBit(0, 0), 1);
  state = writeBit(state, 2, enable_axis3);
  state = writeBit(state, 3, enable_axis4);
  state = fillBit(fillBit(state, 6), 8);
  g += Motion_setInterpolationMode_(c, port, Value(state));
  g += Motion_setInitialSpeed_(c, port, 0, circular_speed);
  g += Motion_setDriveSpeed_(c, port, 0, circular_speed);
  g += Motion_setHelicalRotationNumber_(c, port, rotation_number);
  g += Motion_setDrivePositionFinishPoint_(c, port, 0, finish_point_axis1);
  g += Motion_setCircularCenterPoint_(c, port, 0, center_point_axis1);
  g += Motion_setDrivePositionFinishPoint_(c, port, 1, finish_point_axis2);
  g += Motion_setCircularCenterPoint_(c, port, 1, center_point_axis2);
  if (axis3) g += Motion_setDrivePositionFinishPoint_(c, port, 2, pitch_axis3);
  if (axis4) g += Motion_setDrivePositionFinishPoint_(c, port, 3, pitch_axis4);
  return g.status;
}

int MCX514Module::Motion_cfgHelicalInterpo(const Call& c, const Value& port_in,
                                           const Value& center_point_x, const Value& center_point_y,
                                           const Value& finish_point_x, const Value& finish_point_y,
                                           const Value& en_axis3, const Value& pitch_axis3,
                                           const Value& en_axis4, const Value& pitch_axis4,
                                           const Value& rotation_number, const Value& speed,
                                           const Value& dir, const Value& calculation_timeout) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  for (const Value* v : {&center_point_x, &center_point_y, &finish_point_x, &finish_point_y})
    checkInputType(*v, kTypeInt);
  _checkMCX514Enable(en_axis3);
  checkInputType(pitch_axis3, kTypeInt);
  _checkMCX514Enable(en_axis4);
  for (const Value* v : {&pitch_axis4, &rotation_number, &speed}) checkInputType(*v, kTypeInt);
  _checkMCX514Direction(dir);
  checkInputType(calculation_timeout, kTypeInt);

  Greatest g;
  g += Motion_writeHelicalInterpolation_(c, port, finish_point_x, finish_point_y, center_point_x,
                                         center_point_y, en_axis3, pitch_axis3, en_axis4,
                                         pitch_axis4, rotation_number, speed, dir);
  if (dir.asInt() == 0)
    g += Motion_cwHelicalCalculation_(c, port);
  else
    g += Motion_ccwHelicalCalculation_(c, port);

  // The chip computes; RR0 bit 0 is set while it does.  Each round is one
  // exchange, so the wait is paced by the replies, and at least one read
  // always happens.
  using Ms = std::chrono::milliseconds;
  const auto start = std::chrono::steady_clock::now();
  const int64_t limit = calculation_timeout.asInt();
  for (bool stop_condition = false; !stop_condition;) {
    const int64_t delta =
        std::chrono::duration_cast<Ms>(std::chrono::steady_clock::now() - start).count();
    const bool time_over = delta >= limit;
    const bool drive_status = (readBit(Motion_writeRR0_(c, port), 0) ^ 1) != 0;
    stop_condition = time_over || drive_status;
  }
  helical_interpo.calculation_result = Motion_getHelicalCalculation_(c, port);
  return g.status;
}

int MCX514Module::Motion_startHelicalInterpo(const Call& c, const Value& port_in) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  const MotionHelicalInterpolation r = helical_interpo;
  Greatest g;
  g += Motion_writeHelicalInterpolation_(
      c, port, Value(r.finish_point_axis1), Value(r.finish_point_axis2),
      Value(r.center_point_axis1), Value(r.center_point_axis2), Value(r.enable_axis3),
      Value(r.pitch_axis3), Value(r.enable_axis4), Value(r.pitch_axis4), Value(r.rotation_number),
      Value(r.circular_speed), Value(r.circular_direction));
  g += Motion_setHelicalCalculation_(c, port, Value(r.calculation_result));
  if (r.circular_direction == 0)
    g += Motion_cwHelicalInterpolation_(c, port);
  else
    g += Motion_ccwHelicalInterpolation_(c, port);
  return g.status;
}

// The break point pulse train: SYNC0 fires at the multipurpose register 0
// position and sends pulse_number pulses of the given width and period.
int MCX514Module::Motion_cfgBreakPoint(const Call& c, const Value& port_in, const Value& axis,
                                       const Value& mode, const Value& breakpoint_polarity,
                                       const Value& start_posi, const Value& pulse_width,
                                       const Value& pulse_period, const Value& pulse_number) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514BreakPointMode(mode);
  _checkMCX514Polarity(breakpoint_polarity);
  for (const Value* v : {&start_posi, &pulse_width, &pulse_period, &pulse_number})
    checkInputType(*v, kTypeInt);
  MotionAxis& rec = axisOf(axis);
  rec.breakpoint_mode = mode.asInt();
  rec.breakpoint_polarity = breakpoint_polarity.asInt();
  rec.breakpoint_start_position = start_posi.asInt();
  rec.breakpoint_pulse_width = pulse_width.asInt();
  rec.breakpoint_pulse_period = pulse_period.asInt();
  rec.breakpoint_pulse_number = pulse_number.asInt();

  Greatest g;
  g += Motion_splitPulse1_(c, port, axis, pulse_width, pulse_period);
  g += Motion_splitPulse2_(c, port, axis, pulse_number);
  int64_t pio2 = Motion_getPIOSignal2_(c, port, axis);
  pio2 = writeBit(pio2, 10, int64_t{rec.breakpoint_polarity == 0 ? 1 : 0});
  pio2 = fillBit(pio2, 11);
  g += Motion_setPIOSignal2_(c, port, axis, Value(pio2));
  int64_t mrm = Motion_getMultiPurposeRegisterMode_(c, port, axis);
  for (int b : {0, 1, 2}) mrm = clearBit(mrm, b);
  mrm = fillBit(mrm, 3);
  g += Motion_setMultiPurposeMode_(c, port, axis, Value(mrm));
  int64_t total_posi = start_posi.asInt();
  if (mode.asInt() == 1) total_posi += Motion_getLogicalPosi(c, port, axis);
  g += Motion_setMultiPurposeRegister0_(c, port, axis, Value(total_posi));
  g += Motion_setSYNCAction0_(c, port, axis, 369);
  return g.status;
}

int MCX514Module::Motion_enableBreakPoint(const Call& c, const Value& port_in, const Value& axis,
                                          const Value& en_break) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514Enable(en_break);
  if (isOne(en_break)) return Motion_enableActionSYNC0_(c, port, axis);
  return Motion_disableActionSYNC0_(c, port, axis);
}

}  // namespace orv
