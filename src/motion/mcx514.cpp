#include "motion/mcx514.hpp"

#include <algorithm>
#include <cmath>

#include "link/convert.hpp"

namespace orv {

namespace mcx514 {

void checkIn(const Value& v, std::initializer_list<int64_t> valid, ErrorId err) {
  checkInputType(v, kTypeInt);
  if (std::find(valid.begin(), valid.end(), v.asInt()) == valid.end()) raise(err);
}

bool isZero(const Value& v) { return looseEquals(v, Value(0)); }
bool isOne(const Value& v) { return looseEquals(v, Value(1)); }

int64_t initialSpeed(int64_t acceleration) {
  if (acceleration < 0) throw ValueError("math domain error");
  return static_cast<int64_t>(std::sqrt(static_cast<double>(acceleration)) * 1.1);
}

}  // namespace mcx514

using mcx514::checkIn;
using mcx514::Greatest;
using mcx514::isOne;
using mcx514::isZero;

namespace {

// Reads outside the command layer's rows: the two position counters.
constexpr McxOp kGetLogicalPosi{
    "Motion_getLogicalPosi", MOTION_30_LP,  McxForm::ACT, McxAxis::OneHot,
    McxConv::None,           McxReply::I32, {"axis"},     1};
constexpr McxOp kGetEncoderPosi{
    "Motion_getEncoderPosi", MOTION_31_RP,  McxForm::ACT, McxAxis::OneHot,
    McxConv::None,           McxReply::I32, {"axis"},     1};

}  // namespace

// ---- checks ----------------------------------------------------------------------

void MCX514Module::_checkMCX514MotionPort(const Value& port) const {
  checkInputType(port, kTypeInt);
  if (!model().motion_dict.contains(static_cast<int>(port.asInt())) ||
      port.asInt() != static_cast<int>(port.asInt()))
    raise(ErrorId::MotionPortNotAvaliable);
}
void MCX514Module::_checkMCX514Axis(const Value& axis, bool mode) {
  checkInputType(axis, kTypeInt);
  if (mode && (axis.asInt() < 0 || axis.asInt() > 3)) raise(ErrorId::MotionAxisError);
}
void MCX514Module::_checkMCX514StopMode(const Value& m) {
  checkIn(m, {0, 1}, ErrorId::MotionStopModeError);
}
void MCX514Module::_checkMCX514SearchType(const Value& t) {
  checkIn(t, {0, 1, 2}, ErrorId::MotionSearchTypeError);
}
// Refused with the search type's class, as the device family does.
void MCX514Module::_checkMCX514SearchDirection(const Value& d) {
  checkIn(d, {0, 1}, ErrorId::MotionSearchTypeError);
}
void MCX514Module::_checkMCX514Enable(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionEnableError);
}
void MCX514Module::_checkMCX514StepperOutput(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionStepperOutputError);
}
void MCX514Module::_checkMCX514Direction(const Value& d) {
  checkIn(d, {0, 1}, ErrorId::MotionDirectionError);
}
void MCX514Module::_checkMCX514Polarity(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionPolarityError);
}
void MCX514Module::_checkMCX514CaptureType(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionCaptureTypeError);
}
void MCX514Module::_checkMCX514CaptureMode(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionCaptureModeError);
}
void MCX514Module::_checkMCX514BreakPointMode(const Value& s) {
  checkIn(s, {0, 1}, ErrorId::MotionBreakPointModeError);
}
void MCX514Module::_checkMCX514OperationMode(const Value& s) {
  checkIn(s, {0, 1, 2}, ErrorId::MotionOperationModeError);
}
void MCX514Module::_checkMCX514AccelerationMode(const Value& s) {
  checkIn(s, {0, 1, 2}, ErrorId::MotionAccelerationModeError);
}

Value MCX514Module::portOf(const Value& port) const {
  return model().slot_ports ? changeToTrellisPort(port) : port;
}

// ---- mode words --------------------------------------------------------------------

int MCX514Module::changeWord(const Call& c, const Value& port, const Value& axis, bool wr3,
                             std::initializer_list<std::pair<int, int64_t>> bits) {
  int64_t state = wr3 ? Motion_getWR3_(c, port, axis) : Motion_getWR2_(c, port, axis);
  for (const auto& [index, value] : bits) state = writeBit(state, index, value);
  return wr3 ? Motion_writeWR3_(c, port, axis, Value(state))
             : Motion_writeWR2_(c, port, axis, Value(state));
}

namespace {
int64_t bitOf(const Value& v) { return isOne(v) ? 1 : 0; }
}  // namespace

#define ORV_MCX514_WORD_HELPER(Name, arg, label, wr3, bit)                                        \
  int MCX514Module::Name(const Call& c, const Value& port, const Value& axis, const Value& arg) { \
    _checkMCX514MotionPort(port);                                                                 \
    _checkMCX514Axis(axis);                                                                       \
    axisOf(axis).motion_dict.set(label, arg);                                                     \
    return changeWord(c, port, axis, wr3, {{bit, bitOf(arg)}});                                   \
  }
ORV_MCX514_WORD_HELPER(Motion_setAlarmLimitEnable_, alarm_enable, "Alarm Enable", false, 9)
ORV_MCX514_WORD_HELPER(Motion_setAlarmPolarity_, alarm_polarity, "Alarm Polarity", false, 8)
ORV_MCX514_WORD_HELPER(Motion_setHomeLimitEnable_, home_enable, "Home Enable", false, 3)
ORV_MCX514_WORD_HELPER(Motion_setHomePolarity_, home_polarity, "Home Polarity", false, 2)
ORV_MCX514_WORD_HELPER(Motion_setInpositionLimitEnable_, inposition_enable, "Inposition Enable",
                       false, 7)
ORV_MCX514_WORD_HELPER(Motion_setInpositionPolarity_, inposition_polarity, "Inposition Polarity",
                       false, 6)
ORV_MCX514_WORD_HELPER(Motion_setEncoderDirection_, encoder_direction, "Inverse Encoder Direction",
                       true, 11)
#undef ORV_MCX514_WORD_HELPER

int MCX514Module::Motion_setLimitPolarity_(const Call& c, const Value& port, const Value& axis,
                                           const Value& limit_polarity) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  MotionAxis& rec = axisOf(axis);
  rec.motion_dict.set("Forward Polarity", limit_polarity);
  rec.motion_dict.set("Reverse Polarity", limit_polarity);
  return changeWord(c, port, axis, false, {{10, bitOf(limit_polarity)}});
}

int MCX514Module::Motion_setInstantLimitStop_(const Call& c, const Value& port, const Value& axis,
                                              const Value& stop) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  axisOf(axis).stop = stop.asInt();
  return changeWord(c, port, axis, false, {{12, bitOf(stop)}});
}

int MCX514Module::Motion_setLimitEnable_(const Call& c, const Value& port, const Value& axis,
                                         const Value& forward_enable, const Value& reverse_enable) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  MotionAxis& rec = axisOf(axis);
  rec.motion_dict.set("Forward Enable", forward_enable);
  rec.motion_dict.set("Reverse Enable", reverse_enable);
  const int64_t either = forward_enable.asInt() | reverse_enable.asInt();
  return changeWord(c, port, axis, false, {{11, either == 1 ? 1 : 0}, {12, 0}});
}

int MCX514Module::Motion_setAxisModeAndDirection_(const Call& c, const Value& port,
                                                  const Value& axis, const Value& stepper_output,
                                                  const Value& axis_direction) {
  MotionAxis& rec = axisOf(axis);
  rec.motion_dict.set("Inverse Motion Direction", axis_direction);
  if (c.isAwaitable()) rec.motion_dict.set("Stepper Output", stepper_output);
  int64_t state = Motion_getWR3_(c, port, axis);
  for (int b : {0, 1, 2}) state = clearBit(state, b);
  const int64_t dir = axis_direction.asInt();
  int64_t dir_l = 0, dpinv = 0;
  if (isZero(stepper_output)) {
    state = fillBit(fillBit(state, 3), 4);
    dir_l = dir ^ 1;
    dpinv = dir ^ 0;
  } else {
    state = clearBit(clearBit(state, 3), 4);
    dir_l = dir ^ 0;
    dpinv = dir ^ 1;
  }
  state = writeBit(state, 6, dir_l);
  state = writeBit(state, 7, dpinv);
  state = writeBit(state, 5, int64_t{0});
  return Motion_writeWR3_(c, port, axis, Value(state));
}

// ---- moves ---------------------------------------------------------------------------

int MCX514Module::Motion_writeAcceleration_(const Call& c, const Value& port, const Value& axis,
                                            const Value& acceleration, const Value& deceleration) {
  MotionAxis& rec = axisOf(axis);
  rec.acceleration = acceleration.asInt();
  rec.deceleration = deceleration.asInt();
  const int64_t mode = rec.acceleration_mode;
  const int64_t jerk = rec.jerk;
  Greatest g;
  g += Motion_setAcceleration_(c, port, axis, acceleration);
  g += Motion_setDeceleration_(c, port, axis, deceleration);
  if (mode == 0 && !looseEquals(acceleration, deceleration))
    g += changeWord(c, port, axis, true, {{0, 0}, {1, 1}, {2, 0}});
  if (mode != 0) {
    g += Motion_setAccelerationJerk_(c, port, axis, Value(jerk));
    g += Motion_setDecelerationJerk_(c, port, axis, Value(jerk));
    g += changeWord(c, port, axis, true, {{0, 0}, {1, 0}, {2, 1}});
  }
  return g.status;
}

int MCX514Module::Motion_writeVelocity_(const Call& c, const Value& port, const Value& axis,
                                        const Value& velocity) {
  MotionAxis& rec = axisOf(axis);
  rec.velocity = velocity.asInt();
  const int64_t start_speed = mcx514::initialSpeed(rec.acceleration);
  Greatest g;
  g += Motion_setDriveSpeed_(c, port, axis, Value(std::abs(rec.velocity)));
  g += Motion_setInitialSpeed_(c, port, axis, Value(start_speed));
  return g.status;
}

int MCX514Module::Motion_writeTargetPosition_(const Call& c, const Value& port, const Value& axis,
                                              const Value& target_position) {
  axisOf(axis).target_position = target_position.asInt();
  return Motion_setDrivePositionFinishPoint_(c, port, axis, target_position);
}

int MCX514Module::Motion_writeDriveMode_(const Call& c, const Value& port, const Value& axis,
                                         const Value& operation_mode, const Value& velocity) {
  MotionAxis& rec = axisOf(axis);
  rec.operation_mode = operation_mode.asInt();
  rec.velocity = velocity.asInt();
  if (rec.operation_mode == 0) return Motion_absolutePositionDriving_(c, port, axis);
  if (rec.operation_mode == 1) return Motion_relativePositionDriving_(c, port, axis);
  if (rec.velocity >= 0) return Motion_positiveDirContinuousPlusDriving_(c, port, axis);
  return Motion_negativeDirContinuousPlusDriving_(c, port, axis);
}

int MCX514Module::Motion_open(const Call& c, const Value& port_in) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  const int state = 5;  // bits 0 and 2
  return Motion_setPIOSignal1_(c, port, 15, state);
}

int MCX514Module::Motion_close(const Call&, const Value& port_in) {
  _checkMCX514MotionPort(portOf(port_in));
  return 0;
}

int MCX514Module::Motion_stop(const Call& c, const Value& port_in, const Value& axis,
                              const Value& mode) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514StopMode(mode);
  axisOf(axis).stop_decl = mode.asInt();
  if (mode.asInt() == 0) return Motion_decelerateStop_(c, port, axis);
  return Motion_instantStop_(c, port, axis);
}

int MCX514Module::Motion_cfgAxis(const Call& c, const Value& port_in, const Value& axis,
                                 const Value& stepper_output, const Value& axis_dir,
                                 const Value& encoder_dir, const Value& servo_on_polarity) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514StepperOutput(stepper_output);
  _checkMCX514Direction(axis_dir);
  _checkMCX514Direction(encoder_dir);
  _checkMCX514Polarity(servo_on_polarity);
  MotionAxis& rec = axisOf(axis);
  rec.motion_dict.set("Servo On Polarity", servo_on_polarity);
  if (!c.isAwaitable()) rec.motion_dict.set("Stepper Output", stepper_output);
  Greatest g;
  g += Motion_setAxisModeAndDirection_(c, port, axis, stepper_output, axis_dir);
  g += Motion_setEncoderDirection_(c, port, axis, encoder_dir);
  return g.status;
}

#define ORV_MCX514_ENABLE_AND_POLARITY(Name, en, pol, SetEnable, SetPolarity)                     \
  int MCX514Module::Name(const Call& c, const Value& port_in, const Value& axis, const Value& en, \
                         const Value& pol) {                                                      \
    const Value port = portOf(port_in);                                                           \
    _checkMCX514MotionPort(port);                                                                 \
    _checkMCX514Axis(axis);                                                                       \
    _checkMCX514Enable(en);                                                                       \
    _checkMCX514Polarity(pol);                                                                    \
    Greatest g;                                                                                   \
    g += SetEnable(c, port, axis, en);                                                            \
    g += SetPolarity(c, port, axis, pol);                                                         \
    return g.status;                                                                              \
  }
ORV_MCX514_ENABLE_AND_POLARITY(Motion_cfgAlarm, en_alarm, alarm_polarity,
                               Motion_setAlarmLimitEnable_, Motion_setAlarmPolarity_)
ORV_MCX514_ENABLE_AND_POLARITY(Motion_cfgHome, en_home, home_polarity, Motion_setHomeLimitEnable_,
                               Motion_setHomePolarity_)
ORV_MCX514_ENABLE_AND_POLARITY(Motion_cfgInposi, en_inposi, inposi_polarity,
                               Motion_setInpositionLimitEnable_, Motion_setInpositionPolarity_)
#undef ORV_MCX514_ENABLE_AND_POLARITY

int MCX514Module::Motion_cfgLimit(const Call& c, const Value& port_in, const Value& axis,
                                  const Value& en_forward, const Value& en_reverse,
                                  const Value& limit_polarity) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514Enable(en_forward);
  _checkMCX514Enable(en_reverse);
  _checkMCX514Polarity(limit_polarity);
  Greatest g;
  g += Motion_setLimitEnable_(c, port, axis, en_forward, en_reverse);
  g += Motion_setLimitPolarity_(c, port, axis, limit_polarity);
  return g.status;
}

// The blocking operation sets the Z bit to the inverse of the polarity, the
// awaitable one to the polarity itself: both forms are in use and stay.
int MCX514Module::Motion_cfgEncoder(const Call& c, const Value& port_in, const Value& axis,
                                    const Value& encoder_z_polarity) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514Polarity(encoder_z_polarity);
  axisOf(axis).motion_dict.set("Encoder Z Polarity", encoder_z_polarity);
  const int64_t z =
      c.isAwaitable() ? bitOf(encoder_z_polarity) : (isZero(encoder_z_polarity) ? 1 : 0);
  return changeWord(c, port, axis, false, {{4, z}});
}

int MCX514Module::Motion_cfgJerkAndAccelMode(const Call&, const Value& port_in, const Value& axis,
                                             const Value& jerk, const Value& accel_mode) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  checkInputType(jerk, kTypeInt);
  _checkMCX514AccelerationMode(accel_mode);
  MotionAxis& rec = axisOf(axis);
  rec.jerk = jerk.asInt();
  rec.acceleration_mode = accel_mode.asInt();
  return 0;
}

int MCX514Module::Motion_cfgAxisMove(const Call& c, const Value& port_in, const Value& axis,
                                     const Value& mode, const Value& target_posi, const Value& velo,
                                     const Value& accel, const Value& decel) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514OperationMode(mode);
  for (const Value* v : {&target_posi, &velo, &accel, &decel}) checkInputType(*v, kTypeInt);
  axisOf(axis).operation_mode = mode.asInt();
  Greatest g;
  g += Motion_writeTargetPosition_(c, port, axis, target_posi);
  g += Motion_writeVelocity_(c, port, axis, velo);
  g += Motion_writeAcceleration_(c, port, axis, accel, decel);
  g += Motion_setInstantLimitStop_(c, port, axis, 1);
  return g.status;
}

int MCX514Module::Motion_startSingleAxisMove(const Call& c, const Value& port_in,
                                             const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  const MotionAxis& rec = axisOf(axis);
  Greatest g;
  g += Motion_writeDriveMode_(c, port, axis, Value(rec.operation_mode), Value(rec.velocity));
  return g.status;
}

int MCX514Module::Motion_startMultiAxisMove(const Call& c, const Value& port_in,
                                            const Value& axis_list) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  if (!axis_list.isSequence())
    throw TypeError("'" + std::string(axis_list.typeName()) + "' object is not iterable");
  for (const Value& axis : axis_list.asList()) _checkMCX514Axis(axis);
  Greatest g;
  int64_t state = 0;
  for (const Value& axis : axis_list.asList()) {
    state = fillBit(state, axis.asInt());
    const MotionAxis& rec = axisOf(axis);
    const Value target(rec.target_position), velocity(rec.velocity);
    const Value accel(rec.acceleration), decel(rec.deceleration), mode(rec.operation_mode);
    g += Motion_setAxisModeAndDirection_(c, port, axis, rec.motion_dict.get("Stepper Output"),
                                         rec.motion_dict.get("Inverse Motion Direction"));
    g += Motion_writeTargetPosition_(c, port, axis, target);
    g += Motion_writeVelocity_(c, port, axis, velocity);
    g += Motion_writeAcceleration_(c, port, axis, accel, decel);
    g += Motion_setInstantLimitStop_(c, port, axis, 1);
    g += Motion_holdDrivingStart_(c, port, axis);
    g += Motion_writeDriveMode_(c, port, axis, mode, velocity);
  }
  g += Motion_releaseDrivingStart_(c, port, Value(state));
  return g.status;
}

int MCX514Module::Motion_overrideAxisPosi(const Call& c, const Value& port_in, const Value& axis,
                                          const Value& new_position) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  return Motion_writeTargetPosition_(c, port, axis, new_position);
}

int MCX514Module::Motion_overrideAxisAccel(const Call& c, const Value& port_in, const Value& axis,
                                           const Value& new_accel, const Value& new_decel) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  checkInputType(new_accel, kTypeInt);
  checkInputType(new_decel, kTypeInt);
  MotionAxis& rec = axisOf(axis);
  rec.acceleration = new_accel.asInt();
  rec.deceleration = new_decel.asInt();
  return Motion_writeAcceleration_(c, port, axis, new_accel, new_decel);
}

// In velocity mode a change of sign decelerates the axis to a stop, and the
// armed synchronous action SYNC1 restarts it the other way.
int MCX514Module::Motion_overrideAxisVelocity(const Call& c, const Value& port_in,
                                              const Value& axis, const Value& new_velo) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  checkInputType(new_velo, kTypeInt);
  MotionAxis& rec = axisOf(axis);
  const int64_t old_dir = rec.velocity_move_direction;
  rec.velocity = new_velo.asInt();
  const int64_t new_dir = rec.velocity > 0 ? 0 : 1;
  const int64_t reversal = rec.velocity > 0 ? 214 : 230;
  const Value speed(std::abs(rec.velocity));
  if (rec.operation_mode != 2 || (old_dir ^ new_dir) == 0)
    return Motion_setDriveSpeed_(c, port, axis, speed);
  rec.velocity_move_direction = new_dir;
  Greatest g;
  g += Motion_setAccelerationJerk_(c, port, axis, 0);
  g += Motion_setSYNCAction1_(c, port, axis, Value(reversal));
  g += Motion_enableActionSYNC1_(c, port, axis);
  g += Motion_decelerateStop_(c, port, axis);
  g += Motion_setDriveSpeed_(c, port, axis, speed);
  return g.status;
}

// ---- reference search ------------------------------------------------------------------

int MCX514Module::Motion_cfgFindRef(const Call& c, const Value& port_in, const Value& axis,
                                    const Value& search_type, const Value& search_dir,
                                    const Value& search_velo, const Value& search_accle,
                                    const Value& approach_velo_percent, const Value& en_reset_posi,
                                    const Value& offset_posi) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514SearchType(search_type);
  _checkMCX514SearchDirection(search_dir);
  checkInputType(search_velo, kTypeInt);
  checkInputType(search_accle, kTypeInt);
  checkInputType(approach_velo_percent, kTypeInt | kTypeFloat);
  _checkMCX514Enable(en_reset_posi);
  checkInputType(offset_posi, kTypeInt);
  const Value& init_search_dir = search_dir;
  const Value& final_search_dir = search_dir;
  MotionAxis& rec = axisOf(axis);
  rec.search_type = search_type.asInt();
  rec.search_velocity = search_velo.asInt();
  rec.search_accerleration = search_accle.asInt();
  Greatest g;
  g += Motion_setAxisModeAndDirection_(c, port, axis, rec.motion_dict.get("Stepper Output"),
                                       rec.motion_dict.get("Inverse Motion Direction"));
  g += Motion_writeTargetPosition_(c, port, axis, Value(rec.target_position));
  g += Motion_writeVelocity_(c, port, axis, search_velo);
  g += Motion_writeAcceleration_(c, port, axis, search_accle, search_accle);
  g += Motion_setAutoHome1_(c, port, axis, search_type, init_search_dir, final_search_dir,
                            approach_velo_percent, offset_posi);
  g += Motion_setAutoHome2_(c, port, axis, en_reset_posi);
  g += Motion_writeHomeSpeed_(c, port, axis, approach_velo_percent, search_velo);
  g += Motion_writeOffsetPosition_(c, port, axis, offset_posi, init_search_dir);
  return g.status;
}

int MCX514Module::Motion_setAutoHome1_(const Call& c, const Value& port, const Value& axis,
                                       const Value& search_type,
                                       const Value& initial_search_direction,
                                       const Value& final_approach_direction,
                                       const Value& approach_velocity_percent,
                                       const Value& offset_position) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  MotionSettings& d = axisOf(axis).motion_dict;
  d.set("Offset Position", offset_position);
  d.set("Approach Velocity Percent", approach_velocity_percent);
  d.set("Initial Search Direction", initial_search_direction);
  d.set("Final Approach Direction", final_approach_direction);
  const int64_t dir_flag = isZero(initial_search_direction) ? 0 : 1;
  const int64_t percent_flag = isZero(approach_velocity_percent) ? 0 : 1;
  const int64_t offset_flag = isZero(offset_position) ? 0 : 1;
  int64_t state = 0;
  if (isZero(search_type)) {
    state = writeBit(state, 0, int64_t{1});
    state = writeBit(state, 1, dir_flag);
    state = writeBit(state, 2, int64_t{1});
    state = writeBit(state, 4, percent_flag);
    state = writeBit(state, 5, final_approach_direction);
  } else if (isOne(search_type)) {
    state = writeBit(state, 2, int64_t{1});
    state = writeBit(state, 3, dir_flag);
  } else {
    state = writeBit(state, 0, int64_t{1});
    state = writeBit(state, 1, dir_flag);
    state = writeBit(state, 3, int64_t{1});
    state = writeBit(state, 4, percent_flag);
    state = writeBit(state, 5, dir_flag);
    state = writeBit(state, 6, int64_t{1});
  }
  state = writeBit(state, 15, offset_flag);
  Greatest g;
  g += Motion_setAutoHomeSearchMode1_(c, port, axis, Value(state));
  g += Motion_setInstantLimitStop_(c, port, axis, 1);
  return g.status;
}

int MCX514Module::Motion_setAutoHome2_(const Call& c, const Value& port, const Value& axis,
                                       const Value& reset_position_enable) {
  axisOf(axis).motion_dict.set("Enable Reset Position", reset_position_enable);
  int64_t state = writeBit(int64_t{0}, 1, reset_position_enable);
  state = writeBit(state, 2, reset_position_enable);
  return Motion_setAutoHomeSearchMode2_(c, port, axis, Value(state));
}

int MCX514Module::Motion_writeHomeSpeed_(const Call& c, const Value& port, const Value& axis,
                                         const Value& approach_velocity_percent,
                                         const Value& search_velocity) {
  axisOf(axis).motion_dict.set("Approach Velocity Percent", approach_velocity_percent);
  double cal = approach_velocity_percent.asFloat() / 100.0 * search_velocity.asFloat();
  if (cal == 0) cal = 1;
  return Motion_setHomeSearchSpeed_(c, port, axis, Value(cal));
}

int MCX514Module::Motion_writeOffsetPosition_(const Call& c, const Value& port, const Value& axis,
                                              const Value& offset_position,
                                              const Value& initial_search_direction) {
  MotionSettings& d = axisOf(axis).motion_dict;
  d.set("Offset Position", offset_position);
  d.set("Initial Search Direction", initial_search_direction);
  Value offset = offset_position;
  if (isZero(initial_search_direction))
    offset = offset.isFloat() ? Value(-offset.asFloat()) : Value(-offset.asInt());
  return Motion_setDrivePositionFinishPoint_(c, port, axis, offset);
}

int MCX514Module::Motion_findRef(const Call& c, const Value& port_in, const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  return Motion_autoHomeSearch_(c, port, axis);
}

int64_t MCX514Module::Motion_checkRef(const Call& c, const Value& port_in, const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  return readBit(Motion_writeRR0_(c, port), axis.asInt()) ^ 1;
}

int64_t MCX514Module::Motion_getMoveStatus(const Call& c, const Value& port, const Value& axis) {
  return Motion_checkRef(c, port, axis);
}

int64_t MCX514Module::Motion_getHomeStatus(const Call& c, const Value& port_in, const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  const int64_t stop = readBit(Motion_writeRR3_(c, port, axis, 0), 1);
  // Read against the forward limit's polarity, as the firmware family does.
  return isZero(axisOf(axis).motion_dict.get("Forward Polarity")) ? stop ^ 1 : stop;
}

std::vector<int64_t> MCX514Module::Motion_getLimitStatus(const Call& c, const Value& port_in,
                                                         const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  const int64_t state = Motion_writeRR3_(c, port, axis, 0);
  const int64_t flip = isZero(axisOf(axis).motion_dict.get("Forward Polarity")) ? 1 : 0;
  return {readBit(state, 7) ^ flip, readBit(state, 8) ^ flip};
}

int64_t MCX514Module::Motion_getLogicalPosi(const Call& c, const Value& port_in,
                                            const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514Axis(axis);
  const Value args[] = {axis};
  return mcx514Send(c, kGetLogicalPosi, port, args);
}

int64_t MCX514Module::Motion_getEncoderPosi(const Call& c, const Value& port_in,
                                            const Value& axis) {
  const Value args[] = {axis};
  return mcx514Send(c, kGetEncoderPosi, portOf(port_in), args);
}

int MCX514Module::Motion_rstEncoderPosi(const Call& c, const Value& port_in, const Value& axis,
                                        const Value& encoder_posi) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  checkInputType(encoder_posi, kTypeInt);
  axisOf(axis).encoder_position = encoder_posi.asInt();
  Greatest g;
  g += Motion_setLogicalPosi(c, port, axis, encoder_posi);
  g += Motion_setRealPositionCounter_(c, port, axis, encoder_posi);
  return g.status;
}

// ---- capture and servo ---------------------------------------------------------------

int MCX514Module::Motion_cfgCapture(const Call& c, const Value& port_in, const Value& axis,
                                    const Value& capture_type, const Value& mode) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514CaptureType(capture_type);
  _checkMCX514CaptureMode(mode);
  MotionAxis& rec = axisOf(axis);
  rec.capture_type = capture_type.asInt();
  rec.capture_mode = mode.asInt();
  // SYNC3 latches the logical (90, 91) or the encoder position (106, 107)
  // on a rising or falling edge.
  const int64_t word = (rec.capture_mode == 0 ? 90 : 106) + (rec.capture_type == 0 ? 0 : 1);
  Greatest g;
  g += Motion_setSYNCAction3_(c, port, axis, Value(word));
  return g.status;
}

int MCX514Module::Motion_enableCapture(const Call& c, const Value& port_in, const Value& axis,
                                       const Value& en_capture) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514Enable(en_capture);
  if (isOne(en_capture)) return Motion_enableActionSYNC3_(c, port, axis);
  return Motion_disableActionSYNC3_(c, port, axis);
}

int64_t MCX514Module::Motion_readCapturePoint(const Call& c, const Value& port_in,
                                              const Value& axis) {
  const Value port = portOf(port_in);
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  return Motion_getMultiPurposeRegister3_(c, port, axis);
}

int MCX514Module::Motion_enableServoOn_(const Call& c, const Value& port, const Value& axis,
                                        const Value& en_servo_on) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  _checkMCX514Enable(en_servo_on);
  // On is low for servo-on polarity 0 and high for 1.
  const int64_t level = isZero(axisOf(axis).motion_dict.get("Servo On Polarity")) ? 1 : 0;
  const int64_t state = writeBit(int64_t{0}, 0, level ^ en_servo_on.asInt());
  Greatest g;
  g += Motion_setGPIOValue_(c, port, axis, 1, Value(state));
  // The position is read and written back after each switch.
  const int64_t position = Motion_getLogicalPosi(c, port, axis);
  g += Motion_setLogicalPosi(c, port, axis, Value(position));
  return g.status;
}

int MCX514Module::Motion_enableServoOn(const Call& c, const Value& port, const Value& axis) {
  return Motion_enableServoOn_(c, portOf(port), axis, 1);
}

int MCX514Module::Motion_enableServoOff(const Call& c, const Value& port, const Value& axis) {
  return Motion_enableServoOn_(c, portOf(port), axis, 0);
}

// ---- the motion ini file ---------------------------------------------------------------

namespace {
const char* const kSections[] = {"Axis_1", "Axis_2", "Axis_3", "Axis_4"};

// The awaitable twins of open and save yield to the event loop once.
void yieldOnce(const Call& c) {
  if (c.isAwaitable()) c.sleep(0.001);
}
}  // namespace

std::string MCX514Module::inifile() const {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute 'inifile'");
  return inifile_;
}

std::string MCX514Module::inimode() const {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute 'inimode'");
  return inimode_;
}

std::string MCX514Module::iniconfigText() const {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute 'iniconfig'");
  return iniconfig_->text();
}

int MCX514Module::Motion_openCfgFile(const Call& c, const Value& filename) {
  inifile_ = checkedIniPath(filename);
  inimode_ = "w";
  iniconfig_ = std::make_unique<IniConfig>();
  yieldOnce(c);
  return 0;
}

int MCX514Module::Motion_saveCfgFile(const Call& c) {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute 'iniconfig'");
  for (int i = 0; i < 4; ++i) {
    iniconfig_->clearSection(kSections[i]);
    for (const auto& [label, value] : _getAxisHandle(i).motion_dict.entries()) {
      const Value write_data = motion_ini._Motion_INI_convertIntToString(label, value);
      iniconfig_->set(kSections[i], label, MotionInifile::textOf(write_data));
    }
  }
  iniconfig_->write(inifile_, inimode_);
  yieldOnce(c);
  return 0;
}

int MCX514Module::Motion_loadCfgFile(const Call& c) {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute 'iniconfig'");
  iniconfig_->read(inifile_);
  const auto labels = axis_1.motion_dict.entries();
  for (int i = 0; i < 4; ++i) {
    for (const auto& entry : labels) {
      const std::string& label = entry.first;
      std::string text = iniconfig_->get(kSections[i], label);
      std::erase(text, '"');
      _getAxisHandle(i).motion_dict.set(label,
                                        motion_ini._Motion_INI_convertStringToInt(label, text));
    }
    // The settings go to port 0 whatever port was opened.
    const int status = Motion_sendAllConfiguration_(c, 0, i);
    if (status != 0) return status;
  }
  return 0;
}

int MCX514Module::Motion_sendAllConfiguration_(const Call& c, const Value& port,
                                               const Value& axis) {
  _checkMCX514MotionPort(port);
  _checkMCX514Axis(axis);
  const MotionSettings& d = axisOf(axis).motion_dict;
  // Copies: each step stores into the same settings.
  auto at = [&](const char* label) { return Value(d.get(label)); };
  Greatest g;
  g += Motion_setAxisModeAndDirection_(c, port, axis, at("Stepper Output"),
                                       at("Inverse Motion Direction"));
  g += Motion_cfgEncoder(c, port, axis, at("Encoder Z Polarity"));
  g += Motion_setHomeLimitEnable_(c, port, axis, at("Home Enable"));
  g += Motion_setLimitEnable_(c, port, axis, at("Forward Enable"), at("Reverse Enable"));
  g += Motion_setAlarmLimitEnable_(c, port, axis, at("Alarm Enable"));
  g += Motion_setInpositionLimitEnable_(c, port, axis, at("Inposition Enable"));
  g += Motion_setHomePolarity_(c, port, axis, at("Home Polarity"));
  g += Motion_setLimitPolarity_(c, port, axis, at("Forward Polarity"));
  g += Motion_setAlarmPolarity_(c, port, axis, at("Alarm Polarity"));
  g += Motion_setInpositionPolarity_(c, port, axis, at("Inposition Polarity"));
  return g.status;
}

}  // namespace orv
