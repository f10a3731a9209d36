// MCX514Driver and MCX514Module as the host sees them.  The command layer's
// 183 operations are bound by one loop over its table
// (motion/mcx514_registers.def), each row's docstring made from the row; the
// module's operations have one row each.
#include <pybind11/stl.h>

#include <map>
#include <string>
#include <utility>

#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "bindings/twin_untimed.hpp"
#include "motion/mcx514.hpp"

namespace orv::py_bind {

namespace {

using D = MCX514Driver;
using M = MCX514Module;

// ---- the command layer, from its table ------------------------------------------

const std::map<int, std::string>& codeNames() {
  static const std::map<int, std::string> names = [] {
    std::map<int, std::string> n;
#define ORV_MCX514_CODE(hex, mnemonic) n[0x##hex] = "MOTION_" #hex "_" #mnemonic;
#include "motion/mcx514_codes.def"
#undef ORV_MCX514_CODE
    return n;
  }();
  return names;
}

const char* formText(const McxOp& op) {
  switch (op.form) {
    case McxForm::W32:
      return op.conv == McxConv::I32 ? "a signed 32-bit value" : "an unsigned 32-bit value";
    case McxForm::W16:
      return op.conv == McxConv::I16 ? "a signed 16-bit value" : "a 16-bit word";
    case McxForm::SW:
      return "a single switch";
    case McxForm::SP1:
      return "two 16-bit values";
    case McxForm::GPIO:
      return "a mask and a value byte";
    case McxForm::PIO1:
      return "the fixed word 0x5505";
    case McxForm::ACT:
    case McxForm::PG:
      break;
  }
  return "";
}

std::string summaryOf(const McxOp& op) {
  const std::string code = codeNames().at(op.code);
  const char* where = op.axis == McxAxis::Chip ? "the chip" : "an axis";
  if (op.reply != McxReply::Status) {
    const char* width = op.reply == McxReply::U16   ? "16-bit unsigned"
                        : op.reply == McxReply::I32 ? "32-bit signed"
                                                    : "32-bit unsigned";
    return "Reads " + code + " of " + where + " (one MOTION packet): a " + width + " value.";
  }
  if (op.form == McxForm::ACT)
    return "Sends the command " + code + " to " + where + " (one MOTION packet).";
  return "Writes " + code + " of " + where + " (one MOTION packet): " + formText(op) + ".";
}

const char* argAbout(const McxOp& op, std::string_view name) {
  if (name == "axis")
    return op.axis == McxAxis::Raw ? "the axis byte as given: a mask of axes, bit n for axis n"
                                   : "0..3, sent as the one-hot mask 1 << axis";
  if (op.form == McxForm::SW) return "0 or 1 by intent, sent as one byte as given";
  if (op.form == McxForm::PG) return "the RR3 page, one byte";
  if (op.form == McxForm::PIO1) return "not sent";
  if (op.form == McxForm::GPIO) return "one byte";
  switch (op.conv) {
    case McxConv::U32:
      return "0..2**32-1; a float is truncated";
    case McxConv::I32:
      return "-2**31..2**31-1; a float is truncated";
    case McxConv::U16:
      return "0..65535";
    case McxConv::I16:
      return "-32768..32767";
    case McxConv::None:
      break;
  }
  return "";
}

template <size_t>
using ValueArg = const Value&;

template <size_t Row, size_t... I>
void defRow(py::class_<D, std::shared_ptr<D>>& cls, std::index_sequence<I...>) {
  constexpr McxOp op = kMcx514Ops[Row];
  const std::string summary = summaryOf(op);
  std::vector<Arg> args{{"port", kInt, "motion port byte as given (not translated or checked)"}};
  for (size_t i = 0; i < op.nargs; ++i)
    args.push_back({op.args[i], kInt, argAbout(op, op.args[i])});
  const bool release = op.code == MOTION_78_DFREE;
  const Result result =
      op.reply != McxReply::Status
          ? Result{kInt, "the value read from the reply"}
          : Result{kInt, release ? "never: the call raises AttributeError and sends nothing"
                                 : "0, or the negative code of the firmware's status"};
  const char* raises = release ? "AttributeError: always, before any packet: the axis check "
                                 "_checkMotionAxis does not exist in this version."
                               : "TypeError: an argument that is not a number.\n"
                                 "ValueError: a value outside its width, or a byte outside "
                                 "0..255.";
  defTwin(cls, &D::template tableOp<Row, ValueArg<I>...>,
          {op.name, summary.c_str(), args, result, raises});
}

template <size_t... Row>
void defRows(py::class_<D, std::shared_ptr<D>>& cls, std::index_sequence<Row...>) {
  (defRow<Row>(cls, std::make_index_sequence<kMcx514Ops[Row].nargs>{}), ...);
}

template <class Rec>
void recordAccess(py::class_<D, std::shared_ptr<D>>& cls, const char* name, Rec D::*member) {
  cls.def_property_readonly(
      name, [member](D& d) -> Rec& { return d.*member; },
      py::return_value_policy::reference_internal);
}

void bindRecords(py::module_& m) {
  py::class_<MotionAxis> axis(m, "MotionAxis",
                              "The host's mirror of one motion axis and its ini-file settings.");
  axis.def(py::init<>());
#define ORV_FIELD(f) axis.def_readwrite(#f, &MotionAxis::f)
  ORV_FIELD(acceleration);
  ORV_FIELD(deceleration);
  ORV_FIELD(target_position);
  ORV_FIELD(encoder_position);
  ORV_FIELD(velocity);
  ORV_FIELD(velocity_move_direction);
  ORV_FIELD(jerk);
  ORV_FIELD(search_velocity);
  ORV_FIELD(search_accerleration);
  ORV_FIELD(acceleration_mode);
  ORV_FIELD(operation_mode);
  ORV_FIELD(stop_decl);
  ORV_FIELD(stop);
  ORV_FIELD(search_type);
  ORV_FIELD(destinate_position);
  ORV_FIELD(capture_type);
  ORV_FIELD(capture_mode);
  ORV_FIELD(breakpoint_mode);
  ORV_FIELD(breakpoint_polarity);
  ORV_FIELD(breakpoint_start_position);
  ORV_FIELD(breakpoint_pulse_width);
  ORV_FIELD(breakpoint_pulse_period);
  ORV_FIELD(breakpoint_pulse_number);
#undef ORV_FIELD
  axis.def_property_readonly(
      "motion_dict",
      [](const MotionAxis& a) {
        py::dict d;
        for (const auto& [label, v] : a.motion_dict.entries()) d[py::str(label)] = py::cast(v);
        return d;
      },
      "A copy of the labelled settings, in the ini file's order.");

  py::class_<MotionLinearInterpolation> lin(m, "MotionLinearInterpolation",
                                            "The last linear interpolation request.");
#define ORV_FIELD(f) lin.def_readwrite(#f, &MotionLinearInterpolation::f)
  ORV_FIELD(main_axis);
  ORV_FIELD(main_dest);
  ORV_FIELD(second_axis);
  ORV_FIELD(second_dest);
  ORV_FIELD(third_axis);
  ORV_FIELD(third_dest);
  ORV_FIELD(fourth_axis);
  ORV_FIELD(fourth_dest);
  ORV_FIELD(speed);
  ORV_FIELD(acceleration);
  ORV_FIELD(mode);
#undef ORV_FIELD
  py::class_<MotionCircularInterpolation> circ(m, "MotionCircularInterpolation",
                                               "The last circular interpolation request.");
#define ORV_FIELD(f) circ.def_readwrite(#f, &MotionCircularInterpolation::f)
  ORV_FIELD(main_axis);
  ORV_FIELD(second_axis);
  ORV_FIELD(finish_point_x);
  ORV_FIELD(finish_point_y);
  ORV_FIELD(center_point_x);
  ORV_FIELD(center_point_y);
  ORV_FIELD(speed);
  ORV_FIELD(acceleration);
  ORV_FIELD(deceleration);
  ORV_FIELD(direction);
#undef ORV_FIELD
  py::class_<MotionHelicalInterpolation> hel(m, "MotionHelicalInterpolation",
                                             "The last helical interpolation request.");
#define ORV_FIELD(f) hel.def_readwrite(#f, &MotionHelicalInterpolation::f)
  ORV_FIELD(finish_point_axis1);
  ORV_FIELD(finish_point_axis2);
  ORV_FIELD(center_point_axis1);
  ORV_FIELD(center_point_axis2);
  ORV_FIELD(circular_direction);
  ORV_FIELD(circular_speed);
  ORV_FIELD(pitch_axis3);
  ORV_FIELD(enable_axis4);
  ORV_FIELD(pitch_axis4);
  ORV_FIELD(rotation_number);
  ORV_FIELD(calculation_result);
#undef ORV_FIELD

  py::class_<MotionInifile> ini(m, "MotionInifile",
                                "Settings and the words the motion ini file shows for them.");
  ini.def(py::init<>());
  ini.def_property_readonly("ini_out_dict", &MotionInifile::ini_out_dict);
  ini.def_property_readonly("ini_in_dict", &MotionInifile::ini_in_dict);
  ini.def("_Motion_INI_convertIntToString", &MotionInifile::_Motion_INI_convertIntToString,
          py::arg("key"), py::arg("value"));
  ini.def("_Motion_INI_convertStringToInt", &MotionInifile::_Motion_INI_convertStringToInt,
          py::arg("key"), py::arg("label"));
}

void bindDriver(py::module_& m) {
#define ORV_MCX514_CODE(hex, mnemonic) m.attr("MOTION_" #hex "_" #mnemonic) = 0x##hex;
#include "motion/mcx514_codes.def"
#undef ORV_MCX514_CODE
  m.attr("CHECK_CALCULATUON") = CHECK_CALCULATUON;
  bindRecords(m);
  py::class_<D, std::shared_ptr<D>> cls(
      m, "MCX514Driver",
      "The MCX514 command layer: one register write, read or chip command per MOTION packet.");
  defRows(cls, std::make_index_sequence<mcx514::kRows>{});
  recordAccess(cls, "axis_1", &D::axis_1);
  recordAccess(cls, "axis_2", &D::axis_2);
  recordAccess(cls, "axis_3", &D::axis_3);
  recordAccess(cls, "axis_4", &D::axis_4);
  recordAccess(cls, "linear_interpo", &D::linear_interpo);
  recordAccess(cls, "circular_interpo", &D::circular_interpo);
  recordAccess(cls, "helical_interpo", &D::helical_interpo);
  recordAccess(cls, "motion_ini", &D::motion_ini);
  cls.def("_getAxisHandle", &D::_getAxisHandle, py::arg("axis"),
          py::return_value_policy::reference_internal);
}

// ---- the module ---------------------------------------------------------------------

const Arg kPort{"port", kInt, "motion port, a key of motion_dict (a slot from 1 on Trellis)"};
const Arg kHelperPort{"port", kInt, "motion port as the chip sees it (not translated)"};
const Arg kAxis{"axis", kInt, "0..3"};
const Result kStatus{kInt, "the greatest status of the steps, from 0: 0 or a positive status"};
const Result kOne{kInt, "0, or the negative code of the firmware's status"};
const Result kBit{kInt, "0 or 1"};
constexpr const char* kPortAxis =
    "InputTypeNotCorrectError: port or axis is not an int.\n"
    "MotionPortNotAvaliable: port is not a key of motion_dict.\n"
    "MotionAxisError: axis is not 0..3.";
constexpr const char* kPortOnly =
    "InputTypeNotCorrectError: port is not an int.\n"
    "MotionPortNotAvaliable: port is not a key of motion_dict.";

Arg flag(const char* name, const char* about) { return {name, kInt, about}; }
Arg num(const char* name, const char* about, const char* def = nullptr) {
  return {name, kInt, about, def};
}

void bindModule(py::module_& m) {
  py::class_<M, D, std::shared_ptr<M>> cls(
      m, "MCX514Module",
      "Axes of the MCX514 pulse chip: configuration, moves, reference search, capture, servo, "
      "interpolation and the motion ini file.  Composite calls run every step and return the "
      "greatest status from 0.");
  const Arg stepper = flag("stepper_output", "0 step/dir (one pulse), 1 CW/CCW (two pulse)");
  defTwin(cls, &M::Motion_open,
          {"Motion_open",
           "Sets the PIO signals of all four axes (axis byte 15).",
           {kPort},
           kOne,
           kPortOnly});
  defTwin(cls, &M::Motion_close,
          {"Motion_close", "Checks the port; nothing is sent.", {kPort}, {kInt, "0"}, kPortOnly});
  defTwin(cls, &M::Motion_stop,
          {"Motion_stop",
           "Stops an axis: 0 decelerating, 1 at once.",
           {kPort, kAxis, flag("mode", "0 decelerate, 1 instant")},
           kOne,
           "(port, axis as usual)\nMotionStopModeError: mode is not 0 or 1."});
  defTwin(cls, &M::Motion_cfgAxis,
          {"Motion_cfgAxis",
           "Sets the pulse output form, directions and servo-on polarity.",
           {kPort, kAxis, stepper, flag("axis_dir", "0 or 1: inverse motion direction"),
            flag("encoder_dir", "0 or 1: inverse encoder direction"),
            flag("servo_on_polarity", "0 active low, 1 active high")},
           kStatus,
           "(port, axis as usual)\nMotionStepperOutputError, MotionDirectionError, "
           "MotionPolarityError: a value that is not 0 or 1."});
  const char* en_pol = "(port, axis as usual)\nMotionEnableError, MotionPolarityError: not 0 or 1.";
  defTwin(cls, &M::Motion_cfgAlarm,
          {"Motion_cfgAlarm",
           "Enables the servo alarm input and sets its polarity.",
           {kPort, kAxis, flag("en_alarm", "0 or 1"), flag("alarm_polarity", "0 or 1")},
           kStatus,
           en_pol});
  defTwin(cls, &M::Motion_cfgHome,
          {"Motion_cfgHome",
           "Enables the home input and sets its polarity.",
           {kPort, kAxis, flag("en_home", "0 or 1"), flag("home_polarity", "0 or 1")},
           kStatus,
           en_pol});
  defTwin(cls, &M::Motion_cfgInposi,
          {"Motion_cfgInposi",
           "Enables the in-position input and sets its polarity.",
           {kPort, kAxis, flag("en_inposi", "0 or 1"), flag("inposi_polarity", "0 or 1")},
           kStatus,
           en_pol});
  defTwin(cls, &M::Motion_cfgLimit,
          {"Motion_cfgLimit",
           "Enables the hardware limits and sets their polarity.",
           {kPort, kAxis, flag("en_forward", "0 or 1"), flag("en_reverse", "0 or 1"),
            flag("limit_polarity", "0 or 1")},
           kStatus,
           en_pol});
  defTwin(cls, &M::Motion_cfgEncoder,
          {"Motion_cfgEncoder",
           "Sets the encoder Z polarity (WR2 bit 4: the blocking form writes its inverse).",
           {kPort, kAxis, flag("encoder_z_polarity", "0 or 1")},
           kOne,
           "(port, axis as usual)\nMotionPolarityError: not 0 or 1."});
  defTwin(cls, &M::Motion_cfgJerkAndAccelMode,
          {"Motion_cfgJerkAndAccelMode",
           "Stores jerk and acceleration mode; nothing is sent.",
           {kPort, kAxis, num("jerk", "S-curve jerk"),
            flag("accel_mode", "0 trapezoidal, 1 or 2 S curve")},
           {kInt, "0"},
           "(port, axis as usual)\nMotionAccelerationModeError: not 0..2."});
  defTwin<4>(cls, &M::Motion_cfgAxisMove,
             {"Motion_cfgAxisMove",
              "Sets target, speed and acceleration of an axis's next move.",
              {kPort, kAxis, flag("mode", "0 absolute, 1 relative, 2 velocity"),
               num("target_posi", "counts", "0"), num("velo", "counts/s", "10000"),
               num("accel", "counts/s2", "100000"), num("decel", "counts/s2", "100000")},
              kStatus,
              "(port, axis as usual)\nMotionOperationModeError: mode is not 0..2."});
  defTwin(cls, &M::Motion_startSingleAxisMove,
          {"Motion_startSingleAxisMove",
           "Starts the configured move of one axis.",
           {kPort, kAxis},
           kStatus,
           kPortAxis});
  defTwin(cls, &M::Motion_startMultiAxisMove,
          {"Motion_startMultiAxisMove",
           "Writes each listed axis's move and holds its start; the held start's release then "
           "raises AttributeError (no axis check of that name in this version).",
           {kPort, {"axis_list", kInts, "axes 0..3"}},
           {kInt, "never returns normally"},
           kPortAxis});
  defTwin(cls, &M::Motion_overrideAxisPosi,
          {"Motion_overrideAxisPosi",
           "Changes the target position.",
           {kPort, kAxis, num("new_position", "counts")},
           kOne,
           kPortAxis});
  defTwin(cls, &M::Motion_overrideAxisAccel,
          {"Motion_overrideAxisAccel",
           "Changes acceleration and deceleration.",
           {kPort, kAxis, num("new_accel", "counts/s2"), num("new_decel", "counts/s2")},
           kStatus,
           kPortAxis});
  defTwin(cls, &M::Motion_overrideAxisVelocity,
          {"Motion_overrideAxisVelocity",
           "Changes the speed; in velocity mode a change of sign reverses through a stop.",
           {kPort, kAxis, num("new_velo", "counts/s, signed")},
           kStatus,
           kPortAxis});
  defTwin<5>(cls, &M::Motion_cfgFindRef,
             {"Motion_cfgFindRef",
              "Configures the automatic reference search.",
              {kPort,
               kAxis,
               flag("search_type", "0 home, 1 index, 2 limit"),
               flag("search_dir", "0 or 1"),
               num("search_velo", "counts/s", "10000"),
               num("search_accle", "counts/s2", "100000"),
               {"approach_velo_percent", "int | float", "percent of search_velo", "20"},
               {"en_reset_posi", kInt, "0 or 1", "0"},
               num("offset_posi", "counts", "0")},
              kStatus,
              "(port, axis as usual)\nMotionSearchTypeError: search_type not 0..2 or search_dir "
              "not 0 or 1.\nMotionEnableError: en_reset_posi not 0 or 1."});
  defTwin(cls, &M::Motion_findRef,
          {"Motion_findRef", "Starts the reference search.", {kPort, kAxis}, kOne, kPortAxis});
  defTwin(cls, &M::Motion_checkRef,
          {"Motion_checkRef",
           "Whether the search is over (RR0).",
           {kPort, kAxis},
           {kInt, "0 while searching, 1 when found"},
           kPortAxis});
  defTwin(cls, &M::Motion_getMoveStatus,
          {"Motion_getMoveStatus",
           "Whether the axis's move is over (RR0).",
           {kPort, kAxis},
           {kInt, "1 when the move is complete, 0 while driving"},
           kPortAxis});
  defTwin(cls, &M::Motion_getHomeStatus,
          {"Motion_getHomeStatus",
           "The home input (RR3 bit 1) after the forward polarity.",
           {kPort, kAxis},
           kBit,
           kPortAxis});
  defTwin(cls, &M::Motion_getLimitStatus,
          {"Motion_getLimitStatus",
           "The limit inputs (RR3 bits 7 and 8).",
           {kPort, kAxis},
           {kInts, "[forward hit, reverse hit]"},
           kPortAxis});
  defTwin(cls, &M::Motion_getLogicalPosi,
          {"Motion_getLogicalPosi",
           "Reads the logical position counter.",
           {kPort, kAxis},
           {kInt, "signed 32-bit count"},
           "MotionAxisError: axis is not 0..3 (port not checked)."});
  defTwin(cls, &M::Motion_getEncoderPosi,
          {"Motion_getEncoderPosi",
           "Reads the encoder (real) position counter; no check.",
           {kPort, kAxis},
           {kInt, "signed 32-bit count"}});
  defTwin<1>(cls, &M::Motion_rstEncoderPosi,
             {"Motion_rstEncoderPosi",
              "Sets both position counters.",
              {kPort, kAxis, num("encoder_posi", "counts", "0")},
              kStatus,
              kPortAxis});
  defTwin(cls, &M::Motion_cfgCapture,
          {"Motion_cfgCapture",
           "Sets what SYNC3 captures on the input edge.",
           {kPort, kAxis, flag("capture_type", "0 rising, 1 falling edge"),
            flag("mode", "0 logical, 1 encoder position")},
           kStatus,
           "(port, axis as usual)\nMotionCaptureTypeError, MotionCaptureModeError: not 0 or 1."});
  defTwin(cls, &M::Motion_enableCapture,
          {"Motion_enableCapture",
           "Enables or disables the capture (SYNC3).",
           {kPort, kAxis, flag("en_capture", "0 or 1")},
           kOne,
           "(port, axis as usual)\nMotionEnableError: not 0 or 1."});
  defTwin(cls, &M::Motion_readCapturePoint,
          {"Motion_readCapturePoint",
           "The captured position (multipurpose register 3).",
           {kPort, kAxis},
           {kInt, "signed 32-bit count"},
           kPortAxis});
  defTwin(cls, &M::Motion_enableServoOn,
          {"Motion_enableServoOn",
           "Switches the servo on, then writes the position back.",
           {kPort, kAxis},
           kStatus,
           kPortAxis});
  defTwin(cls, &M::Motion_enableServoOff,
          {"Motion_enableServoOff",
           "Switches the servo off, then writes the position back.",
           {kPort, kAxis},
           kStatus,
           kPortAxis});

  // Interpolation.
  const Arg speed = num("speed", "vector speed, counts/s", "10000");
  const Arg accel = num("accel", "counts/s2", "100000");
  const Arg decel = num("decel", "counts/s2", "100000");
  const char* lin_refused =
      "(port, each axis as usual)\nInputTypeNotCorrectError: a "
      "destination, speed, accel or decel that is not an int.";
  defTwin<3>(cls, &M::Motion_cfg2AxisLinearInterpo,
             {"Motion_cfg2AxisLinearInterpo",
              "Configures a two-axis straight line.",
              {kPort,
               {"axis1", kInt, "0..3"},
               num("dest_posi1", "counts"),
               {"axis2", kInt, "0..3"},
               num("dest_posi2", "counts"),
               speed,
               accel,
               decel},
              kStatus,
              lin_refused});
  defTwin<3>(cls, &M::Motion_cfg3AxisLinearInterpo,
             {"Motion_cfg3AxisLinearInterpo",
              "Configures a three-axis straight line.",
              {kPort,
               {"axis1", kInt, "0..3"},
               num("dest_posi1", "counts"),
               {"axis2", kInt, "0..3"},
               num("dest_posi2", "counts"),
               {"axis3", kInt, "0..3"},
               num("dest_posi3", "counts"),
               speed,
               accel,
               decel},
              kStatus,
              lin_refused});
  defTwin<2>(cls, &M::Motion_cfg4AxisLinearInterpo,
             {"Motion_cfg4AxisLinearInterpo",
              "Configures a four-axis straight line.",
              {kPort,
               {"axis1", kInt, "0..3"},
               num("dest_posi1", "counts"),
               {"axis2", kInt, "0..3"},
               num("dest_posi2", "counts"),
               {"axis3", kInt, "0..3"},
               num("dest_posi3", "counts"),
               {"axis4", kInt, "0..3"},
               num("dest_posi4", "counts"),
               num("speed", "vector speed, counts/s (no default)"),
               accel,
               decel},
              kStatus,
              lin_refused});
  defTwin(cls, &M::Motion_startLinearInterpo,
          {"Motion_startLinearInterpo",
           "Starts the configured line (two axes unless set).",
           {kPort},
           kStatus,
           kPortOnly});
  defTwin<3>(cls, &M::Motion_cfgCircularInterpo,
             {"Motion_cfgCircularInterpo",
              "Configures a circular arc on two axes.",
              {kPort,
               {"x_axis", kInt, "0..3"},
               {"y_axis", kInt, "0..3"},
               num("center_point_x", "relative counts"),
               num("center_point_y", "relative counts"),
               num("finish_point_x", "relative counts"),
               num("finish_point_y", "relative counts"),
               flag("dir", "0 clockwise, 1 counter-clockwise"),
               speed,
               accel,
               decel},
              kStatus,
              "(port, axes as usual)\nMotionDirectionError: dir is not 0 or 1."});
  defTwin(
      cls, &M::Motion_startCircularInterpo,
      {"Motion_startCircularInterpo", "Starts the configured arc.", {kPort}, kStatus, kPortOnly});
  defTwin(cls, &M::Motion_cfgHelicalInterpo,
          {"Motion_cfgHelicalInterpo",
           "Configures a helix on axes 0 and 1 (2 and 3 following) and waits for the chip's "
           "calculation.",
           {kPort, num("center_point_x", "counts"), num("center_point_y", "counts"),
            num("finish_point_x", "counts"), num("finish_point_y", "counts"),
            flag("en_axis3", "0 or 1"), num("pitch_axis3", "counts"), flag("en_axis4", "0 or 1"),
            num("pitch_axis4", "counts"), num("rotation_number", "turns"), num("speed", "counts/s"),
            flag("dir", "0 clockwise, 1 counter-clockwise"),
            num("calculation_timeout", "milliseconds; the wait ends then without an error")},
           kStatus,
           "(port as usual)\nMotionEnableError: en_axis3 or en_axis4 not 0 or 1.\n"
           "MotionDirectionError: dir is not 0 or 1."});
  defTwin(cls, &M::Motion_startHelicalInterpo,
          {"Motion_startHelicalInterpo",
           "Writes the stored helix again and starts it.",
           {kPort},
           kStatus,
           kPortOnly});
  defTwin(
      cls, &M::Motion_cfgBreakPoint,
      {"Motion_cfgBreakPoint",
       "Configures the break point pulse train (SYNC0).",
       {kPort, kAxis, flag("mode", "0 absolute, 1 relative start position"),
        flag("breakpoint_polarity", "0 or 1"), num("start_posi", "counts"),
        num("pulse_width", "16-bit"), num("pulse_period", "16-bit"), num("pulse_number", "16-bit")},
       kStatus,
       "(port, axis as usual)\nMotionBreakPointModeError: mode is not 0 or 1.\n"
       "MotionPolarityError: breakpoint_polarity is not 0 or 1."});
  defTwin(cls, &M::Motion_enableBreakPoint,
          {"Motion_enableBreakPoint",
           "Enables or disables the break point (SYNC0).",
           {kPort, kAxis, flag("en_break", "0 or 1")},
           kOne,
           "(port, axis as usual)\nMotionEnableError: not 0 or 1."});

  // The ini file.
  defUntimed<1>(
      cls, &M::Motion_openCfgFile,
      {"Motion_openCfgFile",
       "Chooses an existing .ini file for save and load.",
       {{"filename", kStr, "an existing file ending in .ini", "'test.ini'"}},
       {kInt, "0"},
       "IniFileNotFoundError: no such file.\nIniFileExtensionNameError: the name does not "
       "end in .ini."});
  defUntimed(cls, &M::Motion_saveCfgFile,
             {"Motion_saveCfgFile",
              "Writes the four axes' settings to the file.",
              {},
              {kInt, "0"},
              "AttributeError: no file opened yet."});
  defTwin(cls, &M::Motion_loadCfgFile,
          {"Motion_loadCfgFile",
           "Reads the four axes' settings and sends them to motion port 0, axis by axis.",
           {},
           {kInt, "0, or the first axis's non-zero status"},
           "AttributeError: no file opened yet."});
  cls.def_property_readonly("inifile", &M::inifile);
  cls.def_property_readonly("inimode", &M::inimode);
  cls.def_property_readonly(
      "iniconfig",
      [](const M& m) {
        const std::string text = m.iniconfigText();
        py::object parser = py::module_::import("configparser").attr("ConfigParser")();
        parser.attr("read_string")(text);
        return parser;
      },
      "The settings the module's parser holds, as a configparser.ConfigParser read from its "
      "text (a copy: changing it changes nothing here). AttributeError before "
      "Motion_openCfgFile.");

  // Helpers of one register word or record (the port as the chip sees it).
  const char* helper = "(port, axis as usual)";
  auto word = [&](const char* name, auto op, const char* arg, const char* about) {
    defTwin(cls, op, {name, about, {kHelperPort, kAxis, flag(arg, "0 or 1")}, kOne, helper});
  };
  word("_Motion_setAlarmLimitEnable", &M::Motion_setAlarmLimitEnable_, "alarm_enable",
       "WR2 bit 9.");
  word("_Motion_setAlarmPolarity", &M::Motion_setAlarmPolarity_, "alarm_polarity", "WR2 bit 8.");
  word("_Motion_setHomeLimitEnable", &M::Motion_setHomeLimitEnable_, "home_enable", "WR2 bit 3.");
  word("_Motion_setHomePolarity", &M::Motion_setHomePolarity_, "home_polarity", "WR2 bit 2.");
  word("_Motion_setInpositionLimitEnable", &M::Motion_setInpositionLimitEnable_,
       "inposition_enable", "WR2 bit 7.");
  word("_Motion_setInpositionPolarity", &M::Motion_setInpositionPolarity_, "inposition_polarity",
       "WR2 bit 6.");
  word("_Motion_setEncoderDirection", &M::Motion_setEncoderDirection_, "encoder_direction",
       "WR3 bit 11.");
  word("_Motion_setLimitPolarity", &M::Motion_setLimitPolarity_, "limit_polarity", "WR2 bit 10.");
  word("_Motion_setInstantLimitStop", &M::Motion_setInstantLimitStop_, "stop", "WR2 bit 12.");
  defTwin(cls, &M::Motion_setLimitEnable_,
          {"_Motion_setLimitEnable",
           "WR2 bit 11 to forward OR reverse, bit 12 to 0.",
           {kHelperPort, kAxis, flag("forward_enable", "0 or 1"), flag("reverse_enable", "0 or 1")},
           kOne,
           helper});
  defTwin(cls, &M::Motion_setAxisModeAndDirection_,
          {"_Motion_setAxisModeAndDirection",
           "WR3: pulse form and direction levels; no check.",
           {kHelperPort, kAxis, stepper, flag("axis_direction", "0 or 1")},
           kOne});
  defTwin<2>(cls, &M::Motion_writeAcceleration_,
             {"_Motion_writeAcceleration",
              "Acceleration, deceleration and the WR3 shape.",
              {kHelperPort, kAxis, num("acceleration", "counts/s2", "100000"),
               num("deceleration", "counts/s2", "100000")},
              kStatus});
  defTwin<1>(cls, &M::Motion_writeVelocity_,
             {"_Motion_writeVelocity",
              "Drive speed and the initial speed of the stored acceleration.",
              {kHelperPort, kAxis, num("velocity", "counts/s", "10000")},
              kStatus});
  defTwin<1>(cls, &M::Motion_writeTargetPosition_,
             {"_Motion_writeTargetPosition",
              "The drive's finish point.",
              {kHelperPort, kAxis, num("target_position", "counts", "0")},
              kOne});
  defTwin(cls, &M::Motion_writeDriveMode_,
          {"_Motion_writeDriveMode",
           "Starts the drive of a mode.",
           {kHelperPort, kAxis, flag("operation_mode", "0, 1 or 2"), num("velocity", "counts/s")},
           kOne});
  defTwin(cls, &M::Motion_setAutoHome1_,
          {"_Motion_setAutoHome1",
           "Home search mode word 1.",
           {kHelperPort,
            kAxis,
            flag("search_type", "0, 1 or 2"),
            flag("initial_search_direction", "0 or 1"),
            flag("final_approach_direction", "0 or 1"),
            {"approach_velocity_percent", "int | float", "percent"},
            num("offset_position", "counts")},
           kStatus,
           helper});
  defTwin(cls, &M::Motion_setAutoHome2_,
          {"_Motion_setAutoHome2",
           "Home search mode word 2.",
           {kHelperPort, kAxis, flag("reset_position_enable", "0 or 1")},
           kOne});
  defTwin(cls, &M::Motion_writeHomeSpeed_,
          {"_Motion_writeHomeSpeed",
           "The approach speed: percent of the search speed, at least 1.",
           {kHelperPort,
            kAxis,
            {"approach_velocity_percent", "int | float", "percent"},
            num("search_velocity", "counts/s")},
           kOne});
  defTwin(cls, &M::Motion_writeOffsetPosition_,
          {"_Motion_writeOffsetPosition",
           "The offset, negated for initial direction 0.",
           {kHelperPort, kAxis, num("offset_position", "counts"),
            flag("initial_search_direction", "0 or 1")},
           kOne});
  defTwin(cls, &M::Motion_enableServoOn_,
          {"_Motion_enableServoOn",
           "The servo-on output, then the position written back.",
           {kHelperPort, kAxis, flag("en_servo_on", "0 or 1")},
           kStatus,
           helper});
  defTwin(cls, &M::Motion_writeHelicalInterpolation_,
          {"_Motion_writeHelicalInterpolation",
           "Writes a helix's registers.",
           {kHelperPort, num("finish_point_axis1", "counts"), num("finish_point_axis2", "counts"),
            num("center_point_axis1", "counts"), num("center_point_axis2", "counts"),
            flag("enable_axis3", "0 or 1"), num("pitch_axis3", "counts"),
            flag("enable_axis4", "0 or 1"), num("pitch_axis4", "counts"),
            num("rotation_number", "turns"), num("circular_speed", "counts/s"),
            flag("circular_direction", "0 or 1")},
           kStatus});
  defTwin(cls, &M::Motion_sendAllConfiguration_,
          {"_Motion_sendAllConfiguration",
           "Sends an axis's stored settings to the chip.",
           {kHelperPort, kAxis},
           kStatus,
           helper});

  // The checks of MCX514Based.
  cls.def("_checkMCX514MotionPort", &M::_checkMCX514MotionPort, py::arg("port"));
  cls.def_static("_checkMCX514Axis", &M::_checkMCX514Axis, py::arg("axis"), py::arg("mode") = true);
#define ORV_CHECK(name, what) cls.def_static(#name, &M::name, py::arg(what));
  ORV_CHECK(_checkMCX514StopMode, "mode")
  ORV_CHECK(_checkMCX514SearchType, "search_type")
  ORV_CHECK(_checkMCX514SearchDirection, "direction")
  ORV_CHECK(_checkMCX514Enable, "status")
  ORV_CHECK(_checkMCX514StepperOutput, "status")
  ORV_CHECK(_checkMCX514Direction, "direction")
  ORV_CHECK(_checkMCX514Polarity, "status")
  ORV_CHECK(_checkMCX514CaptureType, "status")
  ORV_CHECK(_checkMCX514CaptureMode, "status")
  ORV_CHECK(_checkMCX514BreakPointMode, "status")
  ORV_CHECK(_checkMCX514OperationMode, "status")
  ORV_CHECK(_checkMCX514AccelerationMode, "status")
#undef ORV_CHECK
}

const BindingRegistrar kDriver{{.name = "MCX514Driver", .bind = &bindDriver, .order = kBindBases}};
const BindingRegistrar kModule{{.name = "MCX514Module", .module = "MCX514", .bind = &bindModule}};

}  // namespace

}  // namespace orv::py_bind
