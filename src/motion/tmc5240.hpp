// TMC5240Module: the stepper drive's one TMC5240 axis.  The firmware runs
// whole moves and searches as processes: the host starts one with a single
// command carrying all of its parameters, watches it with
// Motion_getProcessState and may end it with Motion_stopProcess.  Beside
// that the host reads and writes single chip registers (the catalogue in
// motion/tmc5240_registers.def) and a block of 22 parameters that the
// firmware keeps in its EEPROM.
//
// Every command carries the port in its first byte; no operation here
// translates the port.  A composite call keeps the greatest status of its
// steps starting from 0.  The read-modify-write of GCONF and SWMODE takes no
// lock.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"
#include "motion/ini_file.hpp"
#include "motion/motion_axis.hpp"

namespace orv {

// Command codes of the drive.
inline constexpr int MOTION_READ_REG = 7172;
inline constexpr int MOTION_WRITE_REG = 7173;
inline constexpr int MOTION_GET_PARAM = 7184;
inline constexpr int MOTION_SET_PARAM = 7185;
inline constexpr int MOTION_LOAD_PARAM = 7186;
inline constexpr int MOTION_SAVE_PARAM = 7187;
inline constexpr int MOTION_RESET_FACTORY = 7188;
inline constexpr int MOTION_GET_PROC_STATE = 7296;
inline constexpr int MOTION_STOP_PROC = 7297;
inline constexpr int MOTION_START_V_MOVE = 7312;
inline constexpr int MOTION_START_P_MOVE = 7313;
inline constexpr int MOTION_START_SCAN_MOVE = 7314;
inline constexpr int MOTION_START_FIND_END = 7328;
inline constexpr int MOTION_START_FIND_HOME = 7329;
inline constexpr int MOTION_START_FIND_Z = 7330;
// The digital port commands the drive's servo and limit lines use.
inline constexpr int MRDR_READ_AND_GET_DI = 233;
inline constexpr int MRDR_SET_AND_WRITE_DO = 234;

// MRDR_<hex>_<NAME>: the register addresses.
#define ORV_TMC5240_REG(hex, NAME, ...) inline constexpr int MRDR_##hex##_##NAME = 0x##hex;
#include "motion/tmc5240_registers.def"
#undef ORV_TMC5240_REG

// ---- the register catalogue ------------------------------------------------------

enum class TmcAccess : uint8_t { R, W, RW, RC };

struct TmcField {
  const char* name;
  uint8_t low, high;  // bit range, both included
  bool is_signed;     // two's complement over the range
};

struct TmcRegister {
  int address;
  const char* name;  // the chip's name ("CHOPCONF")
  TmcAccess access;
  std::span<const TmcField> fields;
  bool readable() const { return access != TmcAccess::W; }
};

namespace tmc5240 {
#define ORV_TMC5240_FIELD(n, lo, hi) TmcField{#n, lo, hi, false},
#define ORV_TMC5240_SFIELD(n, lo, hi) TmcField{#n, lo, hi, true},
#define ORV_TMC5240_REG(hex, NAME, access, ...) \
  inline constexpr TmcField kFields_##hex[] = {__VA_ARGS__};
#include "motion/tmc5240_registers.def"
#undef ORV_TMC5240_REG
}  // namespace tmc5240

inline constexpr TmcRegister kTmc5240Registers[] = {
#define ORV_TMC5240_REG(hex, NAME, access, ...) \
  TmcRegister{0x##hex, #NAME, TmcAccess::access, tmc5240::kFields_##hex},
#include "motion/tmc5240_registers.def"
#undef ORV_TMC5240_REG
#undef ORV_TMC5240_FIELD
#undef ORV_TMC5240_SFIELD
};

// The catalogue row of an address, or nullptr.
const TmcRegister* tmc5240Register(int64_t address);
// The fields of a register word, in bit order.
std::vector<std::pair<std::string, int64_t>> tmc5240Fields(const TmcRegister& reg, uint32_t word);

// What Motion_readRegisterFields answers: the raw word and its named fields.
struct TmcRegisterValue {
  int address = 0;
  std::string name;  // MRDR_<hex>_<NAME>
  uint32_t word = 0;
  std::vector<std::pair<std::string, int64_t>> fields;
};

// One entry of the ramp set or the parameter block: name, value, register.
struct TmcEntry {
  std::string name;
  int64_t value;
  int reg;
};

// ---- the module ----------------------------------------------------------------------

class TMC5240Module : public ModuleBase {
 public:
  TMC5240Module();

  // The host's mirror of the axis and the ini translation.
  MotionAxis axis;
  MotionInifile motion_ini;
  static constexpr int64_t TMC5240_axis = 0;

  // The ramp set and the parameter block, in their wire order (copies).
  std::vector<TmcEntry> mainDict() const;
  std::vector<TmcEntry> defaultDict() const;
  // Changes an entry's value; an unknown name raises KeyError.
  void setMainValue(std::string_view name, int64_t value);
  void setDefaultValue(std::string_view name, int64_t value);

  // The SPI status byte of the last register read, bit by bit (0..7).
  int statusBit(int bit) const { return (status_byte_.load() >> bit) & 1; }

  // ---- checks and raw access ----
  void _checkTMC5240Port(const Value& port) const;
  int TMC5240_getSPIStatus_(const Value& status_byte);
  Bytes Motion_read_(const Call& c, const Value& port, const Value& reg_addr);
  int Motion_write_(const Call& c, const Value& port, const Value& reg_addr, const Value& data);

  // One register each (no check): writes return the raw status byte.
#define ORV_TMC5240_WRITE_OPS(X)                                                         \
  X(Motion_resetPosition_, "_Motion_resetPosition", 21_XACTUAL, position)                \
  X(Motion_setLimitSwitch_, "_Motion_setLimitSwitch", 34_SWMODE, value)                  \
  X(Motion_setRampMode_, "_Motion_setRampMode", 20_RAMPMODE, ramp_mode)                  \
  X(Motion_setEncoderPosition_, "_Motion_setEncoderPosition", 39_XENC, position)         \
  X(Motion_setEncoderDirection_, "_Motion_setEncoderDirection", 3A_ENC_CONST, direction) \
  X(Motion_setGlobalStatus_, "_Motion_setGlobalStatus", 01_GSTAT, value)                 \
  X(Motion_setGlobalConfig_, "_Motion_setGlobalConfig", 00_GCONF, value)
#define ORV_TMC5240_READ_OPS(X)                                                 \
  X(Motion_readCurrentVelocity_, "_Motion_readCurrentVelocity", 22_VACTUAL)     \
  X(Motion_readEncoderDirection_, "_Motion_readEncoderDirection", 3A_ENC_CONST) \
  X(Motion_readEncoderPosition_, "_Motion_readEncoderPosition", 39_XENC)        \
  X(Motion_readCurrentPosition_, "_Motion_readCurrentPosition", 21_XACTUAL)     \
  X(Motion_getGlobalStatus_, "_Motion_getGlobalStatus", 01_GSTAT)               \
  X(Motion_getGlobalConfig_, "_Motion_getGlobalConfig", 00_GCONF)               \
  X(Motion_getLimitSwitch_, "_Motion_getLimitSwitch", 34_SWMODE)
#define ORV_TMC5240_DECLARE_WRITE(Cpp, name, reg, arg)          \
  int Cpp(const Call& c, const Value& port, const Value& arg) { \
    return Motion_write_(c, port, Value(MRDR_##reg), arg);      \
  }
#define ORV_TMC5240_DECLARE_READ(Cpp, name, reg) \
  Bytes Cpp(const Call& c, const Value& port) { return Motion_read_(c, port, Value(MRDR_##reg)); }
  ORV_TMC5240_WRITE_OPS(ORV_TMC5240_DECLARE_WRITE)
  ORV_TMC5240_READ_OPS(ORV_TMC5240_DECLARE_READ)
#undef ORV_TMC5240_DECLARE_WRITE
#undef ORV_TMC5240_DECLARE_READ

  int Motion_clearFault_(const Call& c, const Value& port);
  int Motion_setRamp_(const Call& c, const Value& port);
  int Motion_setLimitEnable_(const Call& c, const Value& port, const Value& forward_enable,
                             const Value& reverse_enable);
  int Motion_setLimitPolarity_(const Call& c, const Value& port, const Value& limit_polarity);
  int Motion_writeDO_(const Call& c, const Value& port, const Value& pin, const Value& value);
  int Motion_readDI_(const Call& c, const Value& port);
  int Motion_getServeoOnStatus_(const Call& c, const Value& port);
  int Motion_getInpositionStatus_(const Call& c, const Value& port);

  // ---- public operations ----
  int Motion_open(const Call& c, const Value& port);
  int Motion_close(const Call& c, const Value& port);
  int Motion_getParameters(const Call& c, const Value& port);
  int Motion_loadParameters(const Call& c, const Value& port);
  int Motion_setParameters(const Call& c, const Value& port);
  int Motion_saveParameters(const Call& c, const Value& port);
  int Motion_resetFactory(const Call& c, const Value& port);
  int Motion_getProcessState(const Call& c, const Value& port);
  int Motion_stopProcess(const Call& c, const Value& port);
  int64_t Motion_readCurrentVelocity(const Call& c, const Value& port);
  std::vector<int64_t> Motion_readEncoderPosition(const Call& c, const Value& port);
  int Motion_rstEncoderPosi(const Call& c, const Value& port, const Value& encoder_posi);
  int Motion_cfgEncoder(const Call& c, const Value& port, const Value& encoder_dir,
                        const Value& encoder_posi);
  int Motion_cfgAxisDirection(const Call& c, const Value& port, const Value& axis_dir);
  int Motion_cfgLimit(const Call& c, const Value& port, const Value& en_forward,
                      const Value& en_reverse, const Value& limit_polarity);
  int Motion_getAlarmStatus(const Call& c, const Value& port);
  std::vector<int64_t> Motion_getLimitStatus(const Call& c, const Value& port);
  int Motion_enableServoOn(const Call& c, const Value& port);
  int Motion_enableServoOff(const Call& c, const Value& port);
  // A register read decoded by the catalogue: the raw word and its fields.
  TmcRegisterValue Motion_readRegisterFields(const Call& c, const Value& port,
                                             const Value& reg_addr);

  // ---- processes ----
  int Motion_startVelocticyMove(const Call& c, const Value& port, const Value& speed,
                                const Value& acceleration, const Value& deceleration,
                                const Value& direction);
  int Motion_startPositionMove(const Call& c, const Value& port, const Value& position,
                               const Value& speed, const Value& acceleration,
                               const Value& deceleration, const Value& mode);
  int Motion_startScanMove(const Call& c, const Value& port, const Value& position_0,
                           const Value& position_1, const Value& speed, const Value& acceleration);
  int Motion_startFindLimit(const Call& c, const Value& port, const Value& mode,
                            const Value& searching_speed, const Value& approaching_speed,
                            const Value& acceleration, const Value& offset,
                            const Value& reset_position);
  int Motion_startFindHome(const Call& c, const Value& port, const Value& searching_speed,
                           const Value& approaching_speed, const Value& acceleration,
                           const Value& search_direction, const Value& approach_direction,
                           const Value& offset, const Value& reset_position);
  int Motion_startFindZPolarity(const Call& c, const Value& port, const Value& searching_speed,
                                const Value& approaching_speed, const Value& acceleration,
                                const Value& search_direction, const Value& approach_direction,
                                const Value& offset, const Value& reset_position);

  // ---- the motion ini file ----
  int Motion_openCfgFile(const Call& c, const Value& filename);
  int Motion_saveCfgFile(const Call& c);
  int Motion_loadCfgFile(const Call& c);
  int Motion_sendAllConfiguration_(const Call& c, const Value& port);
  // Set by Motion_openCfgFile; before it they raise AttributeError.
  std::string inifile() const;
  std::string inimode() const;
  std::string iniconfigText() const;

 private:
  int paramBlock(const Call& c, const Value& port, int cmd);  // get and load
  int sendBlock(const Call& c, const Value& port, int cmd);   // set and save
  int findHomeOrZ(const Call& c, int cmd, const Value& port, const Value& searching_speed,
                  const Value& approaching_speed, const Value& acceleration,
                  const Value& search_direction, const Value& approach_direction,
                  const Value& offset, const Value& reset_position);
  void requireIni(const char* attribute) const;

  mutable std::mutex dict_m_;
  std::vector<TmcEntry> main_dict_, default_dict_;
  std::atomic<int> status_byte_{0};
  std::unique_ptr<IniConfig> iniconfig_;
  std::string inifile_, inimode_;
};
ORV_MODULE_CLASS("TMC5240", TMC5240Module);

}  // namespace orv
