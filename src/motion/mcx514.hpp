// MCX514Module: the user's view of the MCX514 four-axis pulse chip.  One
// call (configure an axis, start a move, search a reference, interpolate)
// becomes a fixed sequence of register rows of MCX514Driver, and the axis
// records mirror what was asked so that a later start can use it.
//
// A composite call runs every step and keeps the greatest status starting
// from 0: a firmware failure of a step (a negative code) never shows in its
// result, a reply timeout stops it where it happens.  The mode words WR2 and
// WR3 are read, changed bit by bit and written back; that is not atomic
// against another thread configuring the same axis.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"
#include "motion/ini_file.hpp"
#include "motion/mcx514_driver.hpp"

namespace orv {

namespace mcx514 {
// The status of a composite call: the greatest of its steps, starting from 0.
struct Greatest {
  int status = 0;
  void operator+=(int64_t s) {
    if (s > status) status = static_cast<int>(s);
  }
};
// int(sqrt(acceleration) * 1.1): the initial speed that goes with an acceleration.
int64_t initialSpeed(int64_t acceleration);
}  // namespace mcx514

class MCX514Module : public MCX514Driver {
 public:
  // ---- axis configuration and moves ----
  int Motion_open(const Call& c, const Value& port);
  int Motion_close(const Call& c, const Value& port);
  int Motion_stop(const Call& c, const Value& port, const Value& axis, const Value& mode);
  int Motion_cfgAxis(const Call& c, const Value& port, const Value& axis,
                     const Value& stepper_output, const Value& axis_dir, const Value& encoder_dir,
                     const Value& servo_on_polarity);
  int Motion_cfgAlarm(const Call& c, const Value& port, const Value& axis, const Value& en_alarm,
                      const Value& alarm_polarity);
  int Motion_cfgHome(const Call& c, const Value& port, const Value& axis, const Value& en_home,
                     const Value& home_polarity);
  int Motion_cfgInposi(const Call& c, const Value& port, const Value& axis, const Value& en_inposi,
                       const Value& inposi_polarity);
  int Motion_cfgLimit(const Call& c, const Value& port, const Value& axis, const Value& en_forward,
                      const Value& en_reverse, const Value& limit_polarity);
  int Motion_cfgEncoder(const Call& c, const Value& port, const Value& axis,
                        const Value& encoder_z_polarity);
  int Motion_cfgJerkAndAccelMode(const Call& c, const Value& port, const Value& axis,
                                 const Value& jerk, const Value& accel_mode);
  int Motion_cfgAxisMove(const Call& c, const Value& port, const Value& axis, const Value& mode,
                         const Value& target_posi, const Value& velo, const Value& accel,
                         const Value& decel);
  int Motion_startSingleAxisMove(const Call& c, const Value& port, const Value& axis);
  int Motion_startMultiAxisMove(const Call& c, const Value& port, const Value& axis_list);
  int Motion_overrideAxisPosi(const Call& c, const Value& port, const Value& axis,
                              const Value& new_position);
  int Motion_overrideAxisAccel(const Call& c, const Value& port, const Value& axis,
                               const Value& new_accel, const Value& new_decel);
  int Motion_overrideAxisVelocity(const Call& c, const Value& port, const Value& axis,
                                  const Value& new_velo);
  int Motion_cfgFindRef(const Call& c, const Value& port, const Value& axis,
                        const Value& search_type, const Value& search_dir, const Value& search_velo,
                        const Value& search_accle, const Value& approach_velo_percent,
                        const Value& en_reset_posi, const Value& offset_posi);
  int Motion_findRef(const Call& c, const Value& port, const Value& axis);
  int64_t Motion_checkRef(const Call& c, const Value& port, const Value& axis);
  int64_t Motion_getMoveStatus(const Call& c, const Value& port, const Value& axis);
  int64_t Motion_getHomeStatus(const Call& c, const Value& port, const Value& axis);
  std::vector<int64_t> Motion_getLimitStatus(const Call& c, const Value& port, const Value& axis);
  int64_t Motion_getLogicalPosi(const Call& c, const Value& port, const Value& axis);
  int64_t Motion_getEncoderPosi(const Call& c, const Value& port, const Value& axis);
  int Motion_rstEncoderPosi(const Call& c, const Value& port, const Value& axis,
                            const Value& encoder_posi);
  int Motion_cfgCapture(const Call& c, const Value& port, const Value& axis,
                        const Value& capture_type, const Value& mode);
  int Motion_enableCapture(const Call& c, const Value& port, const Value& axis,
                           const Value& en_capture);
  int64_t Motion_readCapturePoint(const Call& c, const Value& port, const Value& axis);
  int Motion_enableServoOn(const Call& c, const Value& port, const Value& axis);
  int Motion_enableServoOff(const Call& c, const Value& port, const Value& axis);

  // ---- interpolation and synchronous actions ----
  int Motion_cfg2AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                   const Value& dest_posi1, const Value& axis2,
                                   const Value& dest_posi2, const Value& speed, const Value& accel,
                                   const Value& decel);
  int Motion_cfg3AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                   const Value& dest_posi1, const Value& axis2,
                                   const Value& dest_posi2, const Value& axis3,
                                   const Value& dest_posi3, const Value& speed, const Value& accel,
                                   const Value& decel);
  int Motion_cfg4AxisLinearInterpo(const Call& c, const Value& port, const Value& axis1,
                                   const Value& dest_posi1, const Value& axis2,
                                   const Value& dest_posi2, const Value& axis3,
                                   const Value& dest_posi3, const Value& axis4,
                                   const Value& dest_posi4, const Value& speed, const Value& accel,
                                   const Value& decel);
  int Motion_startLinearInterpo(const Call& c, const Value& port);
  int Motion_cfgCircularInterpo(const Call& c, const Value& port, const Value& x_axis,
                                const Value& y_axis, const Value& center_point_x,
                                const Value& center_point_y, const Value& finish_point_x,
                                const Value& finish_point_y, const Value& dir, const Value& speed,
                                const Value& accel, const Value& decel);
  int Motion_startCircularInterpo(const Call& c, const Value& port);
  int Motion_cfgHelicalInterpo(const Call& c, const Value& port, const Value& center_point_x,
                               const Value& center_point_y, const Value& finish_point_x,
                               const Value& finish_point_y, const Value& en_axis3,
                               const Value& pitch_axis3, const Value& en_axis4,
                               const Value& pitch_axis4, const Value& rotation_number,
                               const Value& speed, const Value& dir,
                               const Value& calculation_timeout);
  int Motion_startHelicalInterpo(const Call& c, const Value& port);
  int Motion_cfgBreakPoint(const Call& c, const Value& port, const Value& axis, const Value& mode,
                           const Value& breakpoint_polarity, const Value& start_posi,
                           const Value& pulse_width, const Value& pulse_period,
                           const Value& pulse_number);
  int Motion_enableBreakPoint(const Call& c, const Value& port, const Value& axis,
                              const Value& en_break);

  // ---- the motion ini file ----
  int Motion_openCfgFile(const Call& c, const Value& filename);
  int Motion_saveCfgFile(const Call& c);
  int Motion_loadCfgFile(const Call& c);
  // Set by Motion_openCfgFile; reading them before raises AttributeError.
  std::string inifile() const;
  std::string inimode() const;
  // The text the parser holds (what a save writes); before Motion_openCfgFile
  // it raises AttributeError naming iniconfig.
  std::string iniconfigText() const;

  // ---- helpers: one register word or one record at a time (no port translation) ----
  int Motion_setAlarmLimitEnable_(const Call& c, const Value& port, const Value& axis,
                                  const Value& alarm_enable);
  int Motion_setAlarmPolarity_(const Call& c, const Value& port, const Value& axis,
                               const Value& alarm_polarity);
  int Motion_setHomeLimitEnable_(const Call& c, const Value& port, const Value& axis,
                                 const Value& home_enable);
  int Motion_setHomePolarity_(const Call& c, const Value& port, const Value& axis,
                              const Value& home_polarity);
  int Motion_setInpositionLimitEnable_(const Call& c, const Value& port, const Value& axis,
                                       const Value& inposition_enable);
  int Motion_setInpositionPolarity_(const Call& c, const Value& port, const Value& axis,
                                    const Value& inposition_polarity);
  int Motion_setEncoderDirection_(const Call& c, const Value& port, const Value& axis,
                                  const Value& encoder_direction);
  int Motion_setLimitPolarity_(const Call& c, const Value& port, const Value& axis,
                               const Value& limit_polarity);
  int Motion_setInstantLimitStop_(const Call& c, const Value& port, const Value& axis,
                                  const Value& stop);
  int Motion_setLimitEnable_(const Call& c, const Value& port, const Value& axis,
                             const Value& forward_enable, const Value& reverse_enable);
  int Motion_setAxisModeAndDirection_(const Call& c, const Value& port, const Value& axis,
                                      const Value& stepper_output, const Value& axis_direction);
  int Motion_writeAcceleration_(const Call& c, const Value& port, const Value& axis,
                                const Value& acceleration, const Value& deceleration);
  int Motion_writeVelocity_(const Call& c, const Value& port, const Value& axis,
                            const Value& velocity);
  int Motion_writeTargetPosition_(const Call& c, const Value& port, const Value& axis,
                                  const Value& target_position);
  int Motion_writeDriveMode_(const Call& c, const Value& port, const Value& axis,
                             const Value& operation_mode, const Value& velocity);
  int Motion_setAutoHome1_(const Call& c, const Value& port, const Value& axis,
                           const Value& search_type, const Value& initial_search_direction,
                           const Value& final_approach_direction,
                           const Value& approach_velocity_percent, const Value& offset_position);
  int Motion_setAutoHome2_(const Call& c, const Value& port, const Value& axis,
                           const Value& reset_position_enable);
  int Motion_writeHomeSpeed_(const Call& c, const Value& port, const Value& axis,
                             const Value& approach_velocity_percent, const Value& search_velocity);
  int Motion_writeOffsetPosition_(const Call& c, const Value& port, const Value& axis,
                                  const Value& offset_position,
                                  const Value& initial_search_direction);
  int Motion_enableServoOn_(const Call& c, const Value& port, const Value& axis,
                            const Value& en_servo_on);
  int Motion_writeHelicalInterpolation_(
      const Call& c, const Value& port, const Value& finish_point_axis1,
      const Value& finish_point_axis2, const Value& center_point_axis1,
      const Value& center_point_axis2, const Value& enable_axis3, const Value& pitch_axis3,
      const Value& enable_axis4, const Value& pitch_axis4, const Value& rotation_number,
      const Value& circular_speed, const Value& circular_direction);
  int Motion_sendAllConfiguration_(const Call& c, const Value& port, const Value& axis);

  // ---- checks of MCX514Based: each raises its motion warning class ----
  void _checkMCX514MotionPort(const Value& port) const;
  static void _checkMCX514Axis(const Value& axis, bool mode = true);
  static void _checkMCX514StopMode(const Value& mode);
  static void _checkMCX514SearchType(const Value& search_type);
  static void _checkMCX514SearchDirection(const Value& direction);
  static void _checkMCX514Enable(const Value& status);
  static void _checkMCX514StepperOutput(const Value& status);
  static void _checkMCX514Direction(const Value& direction);
  static void _checkMCX514Polarity(const Value& status);
  static void _checkMCX514CaptureType(const Value& status);
  static void _checkMCX514CaptureMode(const Value& status);
  static void _checkMCX514BreakPointMode(const Value& status);
  static void _checkMCX514OperationMode(const Value& status);
  static void _checkMCX514AccelerationMode(const Value& status);

 private:
  // changeToTrellisPort of the port on a model whose ports are slots.
  Value portOf(const Value& port) const;
  MotionAxis& axisOf(const Value& axis) { return _getAxisHandle(axis.asInt()); }
  // Reads WR2 or WR3, writes `bits` (index, value) into it, writes it back.
  int changeWord(const Call& c, const Value& port, const Value& axis, bool wr3,
                 std::initializer_list<std::pair<int, int64_t>> bits);
  int linearInterpo(const Call& c, const Value& port, std::vector<std::pair<Value, Value>> pairs,
                    const Value& speed, const Value& accel, const Value& decel);

  std::unique_ptr<IniConfig> iniconfig_;
  std::string inifile_, inimode_;
};
ORV_MODULE_CLASS("MCX514", MCX514Module);

}  // namespace orv
