// TMC5240Module as the host sees it: the register constants from the
// catalogue (motion/tmc5240_registers.def), the module's operations one row
// each, the ramp set and the parameter block as dictionaries.
#include <pybind11/stl.h>

#include <cstdio>
#include <string>

#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "bindings/twin_untimed.hpp"
#include "motion/tmc5240.hpp"

namespace orv::py_bind {

namespace {

using M = TMC5240Module;
using Cls = py::class_<M, std::shared_ptr<M>>;

const Arg kPort{"port", kInt, "drive port, a key of mrdr_dict"};
const Arg kRawPort{"port", kInt, "drive port byte as given (not checked)"};
const Arg kReg{"reg_addr", kInt, "register address, an MRDR_ constant"};
const Result kStatus{kInt, "0, or the negative code of the firmware's status"};
const Result kMost{kInt, "the greatest status of the steps, from 0"};
const Result kRaw{kInt, "the reply's status byte as it is (no firmware check)"};
const Result kWord{kInts, "the register's four bytes, most significant first"};
constexpr const char* kPortErr =
    "InputTypeNotCorrectError: port is not an int.\n"
    "MRDRPortNotAvaliable: port is not a key of mrdr_dict.";
constexpr const char* kStartErr =
    "InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.\n"
    "MRDRPortNotAvaliable: port is not a key of mrdr_dict.\n"
    "TypeError: a field that is not an integer.\n"
    "ValueError: a field outside its width (u32, i32, i8).";

Arg u32(const char* name, const char* unit) { return {name, kInt, unit}; }
const Arg kReset{"reset_position", "object",
                 "1 is sent only for the exact text \"true\"; anything else (True included) "
                 "sends 0"};

// An operation without an awaitable twin.
template <class R, class... A>
void defBlocking(Cls& cls, R (M::*op)(const Call&, A...), const Op& row) {
  py::options opts;
  opts.disable_function_signatures();
  const std::string doc = blockingDoc(row);
  withRowArgs<sizeof...(A), 0>(row, [&](const auto&... args) {
    cls.def(
        row.name,
        [op](M& self, A... a, double timeout) {
          py::gil_scoped_release rel;
          return (self.*op)(Call(self.device(), Call::Flavour::Blocking, timeout), a...);
        },
        args..., py::arg("timeout") = row.timeout, py::doc(doc.c_str()));
  });
}

py::dict entriesDict(const std::vector<TmcEntry>& entries) {
  py::dict d;
  for (const TmcEntry& e : entries) d[py::str(e.name)] = py::make_tuple(e.value, e.reg);
  return d;
}

// name -> value or (value, register): the values are taken, registers are fixed.
template <class Set>
void setEntries(const py::dict& d, Set set) {
  for (const auto& item : d) {
    const py::handle k = item.first;
    py::object value = py::reinterpret_borrow<py::object>(item.second);
    if (py::isinstance<py::sequence>(value) && !py::isinstance<py::str>(value))
      value = value[py::int_(0)];
    set(py::cast<std::string>(k), py::cast<int64_t>(value));
  }
}

void bindTmcConstants(py::module_& m) {
#define ORV_TMC5240_REG(hex, NAME, ...) m.attr("MRDR_" #hex "_" #NAME) = 0x##hex;
#include "motion/tmc5240_registers.def"
#undef ORV_TMC5240_REG
#define ORV_CODE(name) m.attr(#name) = name;
  ORV_CODE(MOTION_READ_REG)
  ORV_CODE(MOTION_WRITE_REG)
  ORV_CODE(MOTION_GET_PARAM)
  ORV_CODE(MOTION_SET_PARAM)
  ORV_CODE(MOTION_LOAD_PARAM)
  ORV_CODE(MOTION_SAVE_PARAM)
  ORV_CODE(MOTION_RESET_FACTORY)
  ORV_CODE(MOTION_GET_PROC_STATE)
  ORV_CODE(MOTION_STOP_PROC)
  ORV_CODE(MOTION_START_V_MOVE)
  ORV_CODE(MOTION_START_P_MOVE)
  ORV_CODE(MOTION_START_SCAN_MOVE)
  ORV_CODE(MOTION_START_FIND_END)
  ORV_CODE(MOTION_START_FIND_HOME)
  ORV_CODE(MOTION_START_FIND_Z)
#undef ORV_CODE

  py::class_<TmcRegisterValue> value(
      m, "TMC5240RegisterValue",
      "A TMC5240 register read: the raw word and its fields decoded by the register catalogue.");
  value.def_readonly("address", &TmcRegisterValue::address, "The register address.");
  value.def_readonly("name", &TmcRegisterValue::name, "The register's MRDR_ constant name.");
  value.def_readonly("word", &TmcRegisterValue::word, "The 32-bit word read, unsigned.");
  value.def_property_readonly(
      "fields",
      [](const TmcRegisterValue& v) {
        py::dict d;
        for (const auto& [name, f] : v.fields) d[py::str(name)] = f;
        return d;
      },
      "Field name -> value, from bit 0 up; signed fields in two's complement.");
  value.def("__repr__", [](const TmcRegisterValue& v) {
    char word[16];
    std::snprintf(word, sizeof word, "0x%08X", v.word);
    return "TMC5240RegisterValue(" + v.name + ", word=" + word +
           ", fields=" + py::repr(py::cast(v).attr("fields")).cast<std::string>() + ")";
  });
}

void bindModule(py::module_& m) {
  bindTmcConstants(m);
  Cls cls(m, "TMC5240Module",
          "The stepper drive's TMC5240 axis: register access, the parameter block, "
          "configuration, and moves and searches that the firmware runs as processes.");

  // State of the module.
  cls.def_property_readonly(
      "axis", [](M& self) -> MotionAxis& { return self.axis; },
      py::return_value_policy::reference_internal, "The axis record and its ini settings.");
  cls.def_property_readonly(
      "motion_ini", [](M& self) -> MotionInifile& { return self.motion_ini; },
      py::return_value_policy::reference_internal, "The ini file's words for the settings.");
  cls.def_property_readonly_static(
      "TMC5240_axis", [](py::object) { return M::TMC5240_axis; }, "The chip's axis, 0.");
  cls.def_property(
      "TMC5240_main_dict", [](const M& self) { return entriesDict(self.mainDict()); },
      [](M& self, const py::dict& d) {
        setEntries(d, [&](const std::string& k, int64_t v) { self.setMainValue(k, v); });
      },
      "The ramp set that _Motion_setRamp writes: name -> (value, register), in order.  "
      "A copy; assign a dict of name -> value (or (value, register)) to change values.");
  cls.def_property(
      "TMC5240_default_dict", [](const M& self) { return entriesDict(self.defaultDict()); },
      [](M& self, const py::dict& d) {
        setEntries(d, [&](const std::string& k, int64_t v) { self.setDefaultValue(k, v); });
      },
      "The parameter block, name -> (value, register) in wire order: what Motion_setParameters "
      "and Motion_saveParameters send and Motion_getParameters and Motion_loadParameters fill. "
      "A copy; assign a dict of name -> value (or (value, register)) to change values.");
  const char* const kBits[] = {"status_bit0_resetflag",     "status_bit1_driver_err",
                               "status_bit2_sg2",           "status_bit3_standstill",
                               "status_bit4_velocityreach", "status_bit5_positionreach",
                               "status_bit6_stopl",         "status_bit7_stopr"};
  for (int bit = 0; bit < 8; ++bit)
    cls.def_property_readonly(
        kBits[bit], [bit](const M& self) { return self.statusBit(bit); },
        "A bit of the SPI status byte of the last register read.");

  // Checks and raw access.
  cls.def("_checkTMC5240Port", &M::_checkTMC5240Port, py::arg("port"),
          "Raises InputTypeNotCorrectError or MRDRPortNotAvaliable for a port not in mrdr_dict.");
  cls.def("_TMC5240_getSPIStatus", &M::TMC5240_getSPIStatus_, py::arg("status_byte"),
          "Stores the eight bits of a status byte in the status_bit attributes; returns 0.");
  defTwin(cls, &M::Motion_read_,
          {"_Motion_read",
           "Reads a chip register (MOTION_READ_REG) and keeps its status byte.",
           {kRawPort, kReg},
           kWord,
           "ValueError: port or reg_addr outside 0..255."});
  defTwin(cls, &M::Motion_write_,
          {"_Motion_write",
           "Writes a chip register (MOTION_WRITE_REG).",
           {kRawPort, kReg, {"data", kInt, "the 32-bit word; negative values wrap"}},
           kRaw,
           "ValueError: port or reg_addr outside 0..255."});
#define ORV_BIND_WRITE(Cpp, name, reg, arg) \
  defTwin(cls, &M::Cpp,                     \
          {name, "Writes MRDR_" #reg " (no check).", {kRawPort, {#arg, kInt, "the word"}}, kRaw});
#define ORV_BIND_READ(Cpp, name, reg) \
  defTwin(cls, &M::Cpp, {name, "Reads MRDR_" #reg " (no check).", {kRawPort}, kWord});
  ORV_TMC5240_WRITE_OPS(ORV_BIND_WRITE)
  // The encoder direction read has no awaitable twin.
#define ORV_BIND_READ_ONE(Cpp, name, reg)                                                    \
  if (std::string_view(name) == "_Motion_readEncoderDirection")                              \
    defBlocking(cls, &M::Cpp, {name, "Reads MRDR_" #reg " (no check).", {kRawPort}, kWord}); \
  else                                                                                       \
    ORV_BIND_READ(Cpp, name, reg)
  ORV_TMC5240_READ_OPS(ORV_BIND_READ_ONE)
#undef ORV_BIND_READ_ONE
#undef ORV_BIND_READ
#undef ORV_BIND_WRITE
  defTwin(
      cls, &M::Motion_clearFault_,
      {"_Motion_clearFault", "Writes 31 to GSTAT: clears the global faults.", {kRawPort}, kRaw});
  defTwin(cls, &M::Motion_setRamp_,
          {"_Motion_setRamp",
           "Writes the eight entries of TMC5240_main_dict in order.",
           {kRawPort},
           kMost});
  defTwin(cls, &M::Motion_setLimitEnable_,
          {"_Motion_setLimitEnable",
           "Stores Forward Enable and Reverse Enable in axis.motion_dict; sends nothing.",
           {kRawPort, {"forward_enable", kInt, "0 or 1"}, {"reverse_enable", kInt, "0 or 1"}},
           {kInt, "0"}});
  defTwin(cls, &M::Motion_setLimitPolarity_,
          {"_Motion_setLimitPolarity",
           "Stores Forward Polarity and Reverse Polarity in axis.motion_dict; sends nothing.",
           {kRawPort, {"limit_polarity", kInt, "0 active low, 1 active high"}},
           {kInt, "0"}});
  defTwin(cls, &M::Motion_writeDO_,
          {"_Motion_writeDO",
           "Writes one digital output pin (SET_AND_WRITE_DO); the reply is not looked at.",
           {{"port", kInt, "digital port"}, {"pin", kInt, "0..7"}, {"value", kInt, "0 or 1"}},
           {kInt, "0"},
           "InputTypeNotCorrectError: pin or value is not an int.\n"
           "ValueError: a byte outside 0..255."});
  defBlocking(cls, &M::Motion_readDI_,
              {"_Motion_readDI",
               "Reads the limit and home inputs (READ_AND_GET_DI, mask 7) and drops them.",
               {{"port", kInt, "digital port"}},
               {kInt, "0"}});
  defTwin(cls, &M::Motion_getServeoOnStatus_,
          {"_Motion_getServeoOnStatus", "Checks the port.", {kPort}, {kInt, "0"}, kPortErr});
  defTwin(cls, &M::Motion_getInpositionStatus_,
          {"_Motion_getInpositionStatus",
           "Checks the port; the position-reached bit of the last register read.",
           {kPort},
           {kInt, "0 or 1"},
           kPortErr});

  // Public operations.
  defTwin(cls, &M::Motion_open,
          {"Motion_open", "Checks the port; nothing is sent.", {kPort}, {kInt, "0"}, kPortErr});
  defTwin(cls, &M::Motion_close,
          {"Motion_close", "Checks the port; nothing is sent.", {kPort}, {kInt, "0"}, kPortErr});
  defTwin(cls, &M::Motion_getParameters,
          {"Motion_getParameters",
           "Reads the parameter block the drive uses into TMC5240_default_dict.",
           {kPort},
           kStatus,
           kPortErr});
  defTwin(cls, &M::Motion_loadParameters,
          {"Motion_loadParameters",
           "Loads the parameter block from the drive's EEPROM and reads it into "
           "TMC5240_default_dict.",
           {kPort},
           kStatus,
           kPortErr});
  defTwin(cls, &M::Motion_setParameters,
          {"Motion_setParameters",
           "Sends TMC5240_default_dict (88 bytes, 22 values) for the drive to use.",
           {kPort},
           kStatus,
           kPortErr});
  defTwin(cls, &M::Motion_saveParameters,
          {"Motion_saveParameters",
           "Sends TMC5240_default_dict for the drive to store in its EEPROM.",
           {kPort},
           kStatus,
           kPortErr});
  defTwin(
      cls, &M::Motion_resetFactory,
      {"Motion_resetFactory", "Restores the factory parameter block.", {kPort}, kStatus, kPortErr});
  defTwin(cls, &M::Motion_getProcessState,
          {"Motion_getProcessState",
           "The state of the drive's process (the firmware's number; the simulator answers 0 "
           "when idle).",
           {kPort},
           {kInt, "the process state byte"},
           kPortErr});
  defTwin(cls, &M::Motion_stopProcess,
          {"Motion_stopProcess", "Ends the running move or search.", {kPort}, kStatus, kPortErr});
  defTwin(cls, &M::Motion_readCurrentVelocity,
          {"Motion_readCurrentVelocity",
           "VACTUAL, decoded unsigned.",
           {kPort},
           {kInt, "0..2**32-1"},
           kPortErr});
  defTwin(cls, &M::Motion_readEncoderPosition,
          {"Motion_readEncoderPosition",
           "XENC and XACTUAL, both decoded unsigned (a negative position reads large).",
           {kPort},
           {kInts, "[encoder position, logical position]"},
           kPortErr});
  defTwin<1>(cls, &M::Motion_rstEncoderPosi,
             {"Motion_rstEncoderPosi",
              "Hold mode (RAMPMODE 3), then XACTUAL and XENC to the position.",
              {kPort, {"encoder_posi", kInt, "steps", "0"}},
              kMost,
              kPortErr});
  defTwin(cls, &M::Motion_cfgEncoder,
          {"Motion_cfgEncoder",
           "XACTUAL and XENC to the position, ENC_CONST 1 (encoder_dir 0) or -1.",
           {kPort, {"encoder_dir", kInt, "0 or 1"}, {"encoder_posi", kInt, "steps"}},
           kMost,
           kPortErr});
  defTwin(cls, &M::Motion_cfgAxisDirection,
          {"Motion_cfgAxisDirection",
           "Bit 4 of GCONF (shaft) and of SWMODE (swap_lr) to axis_dir XOR 1.",
           {kPort, {"axis_dir", kInt, "0 or 1"}},
           kMost,
           "(port as usual)\nTypeError: axis_dir is not an int."});
  defTwin(cls, &M::Motion_cfgLimit,
          {"Motion_cfgLimit",
           "Stores the limit settings, then writes SWMODE's low byte (enables and polarities); "
           "its upper half is cleared.",
           {kPort,
            {"en_forward", kInt, "1 enables"},
            {"en_reverse", kInt, "1 enables"},
            {"limit_polarity", kInt, "0 active low, 1 active high"}},
           kMost,
           kPortErr});
  defTwin(cls, &M::Motion_getAlarmStatus,
          {"Motion_getAlarmStatus",
           "1 when GSTAT shows a driver error, a charge pump undervoltage or bit 12.",
           {kPort},
           {kInt, "0 or 1"},
           kPortErr});
  defTwin(cls, &M::Motion_getLimitStatus,
          {"Motion_getLimitStatus",
           "The limit and home inputs (READ_AND_GET_DI, mask 7).",
           {kPort},
           {kInts, "[forward, reverse, home], each 0 or 1"},
           kPortErr});
  defTwin(cls, &M::Motion_enableServoOn,
          {"Motion_enableServoOn", "Digital port 2, pin 0 to 0.", {kPort}, {kInt, "0"}, kPortErr});
  defTwin(cls, &M::Motion_enableServoOff,
          {"Motion_enableServoOff", "Digital port 2, pin 0 to 1.", {kPort}, {kInt, "0"}, kPortErr});
  defTwin(cls, &M::Motion_readRegisterFields,
          {"Motion_readRegisterFields",
           "Reads a register and decodes its named fields from the register catalogue: "
           "r = Motion_readRegisterFields(0, MRDR_6C_CHOPCONF); r.word, r.fields['toff'].",
           {kPort, kReg},
           {"TMC5240RegisterValue", "the raw word and the fields (name -> value)"},
           "(port as usual)\nInputTypeNotCorrectError: reg_addr is not an int.\n"
           "InputDataNotInRangeError: no register at reg_addr, or a write-only one."});

  // Processes.
  const Arg speed = u32("speed", "steps/s, u32");
  const Arg accel = u32("acceleration", "steps/s2, u32");
  const Arg decel = u32("deceleration", "steps/s2, u32");
  const Arg search = u32("searching_speed", "steps/s, u32");
  const Arg approach = u32("approaching_speed", "steps/s, u32");
  const Arg offset{"offset", kInt, "steps, i32"};
  defTwin(cls, &M::Motion_startVelocticyMove,
          {"Motion_startVelocticyMove",
           "Starts a move at a speed until stopped (MOTION_START_V_MOVE).",
           {kPort, speed, accel, decel, {"direction", kInt, "1 forward, -1 reverse (i8)"}},
           kStatus,
           kStartErr});
  defTwin(cls, &M::Motion_startPositionMove,
          {"Motion_startPositionMove",
           "Starts a move to a position (MOTION_START_P_MOVE).",
           {kPort,
            {"position", kInt, "steps, i32"},
            speed,
            accel,
            decel,
            {"mode", kInt, "0 absolute, 1 relative (i8)"}},
           kStatus,
           kStartErr});
  defTwin(cls, &M::Motion_startScanMove,
          {"Motion_startScanMove",
           "Starts a back-and-forth move between two positions (MOTION_START_SCAN_MOVE).",
           {kPort,
            {"position_0", kInt, "steps, i32"},
            {"position_1", kInt, "steps, i32"},
            speed,
            accel},
           kStatus,
           kStartErr});
  defTwin(cls, &M::Motion_startFindLimit,
          {"Motion_startFindLimit",
           "Starts a limit search (MOTION_START_FIND_END); the direction byte comes first.",
           {kPort,
            {"mode", kInt, "1 forward, -1 reverse (i8)"},
            search,
            approach,
            accel,
            offset,
            kReset},
           kStatus,
           kStartErr});
  const char* search_dir = "1 forward, -1 reverse (i8)";
  defTwin(cls, &M::Motion_startFindHome,
          {"Motion_startFindHome",
           "Starts a home search (MOTION_START_FIND_HOME).",
           {kPort,
            search,
            approach,
            accel,
            {"search_direction", kInt, search_dir},
            {"approach_direction", kInt, search_dir},
            offset,
            kReset},
           kStatus,
           kStartErr});
  defTwin(cls, &M::Motion_startFindZPolarity,
          {"Motion_startFindZPolarity",
           "Starts an encoder index (Z) search (MOTION_START_FIND_Z).",
           {kPort,
            search,
            approach,
            accel,
            {"search_direction", kInt, search_dir},
            {"approach_direction", kInt, search_dir},
            offset,
            kReset},
           kStatus,
           kStartErr});

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
              "Writes the axis's settings to the file, section Axis_1.",
              {},
              {kInt, "0"},
              "AttributeError: no file opened yet."});
  defTwin(cls, &M::Motion_loadCfgFile,
          {"Motion_loadCfgFile",
           "Reads the axis's settings from section Axis_1 and sends them to drive port 0.",
           {},
           {kInt, "0"},
           "AttributeError: no file opened yet."});
  defTwin(cls, &M::Motion_sendAllConfiguration_,
          {"_Motion_sendAllConfiguration",
           "Sends the stored encoder direction, axis direction and limit settings.",
           {kPort},
           {kInt, "0"},
           kPortErr});
  cls.def_property_readonly("inifile", &M::inifile, "The ini file's name.");
  cls.def_property_readonly("inimode", &M::inimode, "The mode the file is written with.");
  cls.def_property_readonly(
      "iniconfig",
      [](const M& m) {
        py::object parser = py::module_::import("configparser").attr("ConfigParser")();
        parser.attr("read_string")(m.iniconfigText());
        return parser;
      },
      "The settings the module's parser holds, as a configparser.ConfigParser read from its "
      "text (a copy). AttributeError before Motion_openCfgFile.");
}

const BindingRegistrar kModule{{.name = "TMC5240Module", .module = "TMC5240", .bind = &bindModule}};

}  // namespace

}  // namespace orv::py_bind
