#include "motion/tmc5240.hpp"

#include <algorithm>
#include <cstdio>

#include "link/convert.hpp"

namespace orv {

// ---- the register catalogue ------------------------------------------------------

const TmcRegister* tmc5240Register(int64_t address) {
  for (const TmcRegister& r : kTmc5240Registers)
    if (r.address == address) return &r;
  return nullptr;
}

std::vector<std::pair<std::string, int64_t>> tmc5240Fields(const TmcRegister& reg, uint32_t word) {
  std::vector<std::pair<std::string, int64_t>> out;
  for (const TmcField& f : reg.fields) {
    const int width = f.high - f.low + 1;
    const uint64_t mask = (uint64_t{1} << width) - 1;
    auto v = static_cast<int64_t>((uint64_t{word} >> f.low) & mask);
    if (f.is_signed && (v >> (width - 1)) & 1) v -= int64_t{1} << width;
    out.emplace_back(f.name, v);
  }
  return out;
}

namespace {

// The greatest status of a composite call, starting from 0.
struct Most {
  int status = 0;
  void operator+=(int64_t s) {
    if (s > status) status = static_cast<int>(s);
  }
};

// One payload byte as given: an int in 0..255.
uint8_t byteOf(const Value& v) {
  if (!v.isInt())
    throw TypeError("'" + std::string(v.typeName()) +
                    "' object cannot be interpreted as an integer");
  const int64_t i = v.asInt();
  if (i < 0 || i > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(i);
}

// A field of a start command, packed at its width; a value that does not fit
// fails here, before anything is sent.
void packInt(Bytes& out, const Value& v, int bits, bool is_signed) {
  const char* format = bits == 8 ? "b" : (is_signed ? "i" : "I");
  if (!v.isInt()) throw TypeError("required argument is not an integer");
  const int64_t lo = is_signed ? -(int64_t{1} << (bits - 1)) : 0;
  const int64_t hi = is_signed ? (int64_t{1} << (bits - 1)) - 1 : (int64_t{1} << bits) - 1;
  const int64_t i = v.asInt();
  if (i < lo || i > hi)
    throw ValueError("'" + std::string(format) + "' format requires " + std::to_string(lo) +
                     " <= number <= " + std::to_string(hi));
  const auto u = static_cast<uint64_t>(i);
  for (int s = bits - 8; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(u >> s));
}
void u32(Bytes& out, const Value& v) { packInt(out, v, 32, false); }
void i32(Bytes& out, const Value& v) { packInt(out, v, 32, true); }
void i8(Bytes& out, const Value& v) { packInt(out, v, 8, true); }
// The reset byte: 1 only for the exact text "true".
uint8_t resetByte(const Value& v) { return v.isText() && v.asText() == "true" ? 1 : 0; }

void need(const Bytes& data_in, size_t n, int cmd) {
  if (data_in.size() < n)
    raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) + " holds " +
                                         std::to_string(data_in.size()) + " bytes, " +
                                         std::to_string(n) + " expected.");
}

constexpr size_t kBlockValues = 22;

std::vector<TmcEntry> rampSet(int64_t acceleration, int64_t deceleration) {
  return {{"vstart_23", 0, MRDR_23_VSTART},         {"vstop_2B", 500, MRDR_2B_VSTOP},
          {"A1_x24", acceleration, MRDR_24_A1},     {"A2_x2F", acceleration, MRDR_2F_A2},
          {"AMAX_x26", acceleration, MRDR_26_AMAX}, {"D1_x2A", deceleration, MRDR_2A_D1},
          {"D2_x30", deceleration, MRDR_30_D2},     {"DMAX_x28", deceleration, MRDR_28_DMAX}};
}

// The parameter block as the factory sets it, in wire order.
std::vector<TmcEntry> parameterBlock() {
  return {{"x00_GCONF", 8, MRDR_00_GCONF},
          {"x0A_DRV_CONF", 32, MRDR_0A_DRV_CONF},
          {"x10_IHOLD_IRUN", 461315, MRDR_10_IHOLD_IRUN},
          {"x11_TPOWERDOWN", 10, MRDR_11_TPOWERDOWN},
          {"x2A_D1", 10, MRDR_2A_D1},
          {"x2B_VSTOP", 10, MRDR_2B_VSTOP},
          {"x30_D2", 10, MRDR_30_D2},
          {"x3A_ENC_CONST", 65536, MRDR_3A_ENC_CONST},
          {"x52_OTW_OV_VTH", 194121509, MRDR_52_OTW_OV_VTH},
          {"x60_MSLUT0", 2863314260, MRDR_60_MSLUT0},
          {"x61_MSLUT1", 1251300522, MRDR_61_MSLUT1},
          {"x62_MSLUT2", 608774441, MRDR_62_MSLUT2},
          {"x63_MSLUT3", 269500962, MRDR_63_MSLUT3},
          {"x64_MSLUT4", 4227858431, MRDR_64_MSLUT4},
          {"x65_MSLUT5", 3048961917, MRDR_65_MSLUT5},
          {"x66_MSLUT6", 1227445590, MRDR_66_MSLUT6},
          {"x67_MSLUT7", 4211234, MRDR_67_MSLUT7},
          {"x68_MSLUT8", 4294934614, MRDR_68_MSLUTSEL},
          {"x69_MSLUT9", 16187392, MRDR_69_MSLUTSTART},
          {"x6C_CHOPCONF", 4260179, MRDR_6C_CHOPCONF},
          {"x70_PWMCONF", 3293315102, MRDR_70_PWMCONF},
          {"x74_SG4_THRS", 0, MRDR_74_SG4_THRS}};
}

void setIn(std::vector<TmcEntry>& dict, std::string_view name, int64_t value) {
  for (TmcEntry& e : dict)
    if (e.name == name) {
      e.value = value;
      return;
    }
  throw KeyError("'" + std::string(name) + "'");
}

}  // namespace

TMC5240Module::TMC5240Module()
    : main_dict_(rampSet(axis.acceleration, axis.deceleration)), default_dict_(parameterBlock()) {}

std::vector<TmcEntry> TMC5240Module::mainDict() const {
  std::lock_guard lk(dict_m_);
  return main_dict_;
}
std::vector<TmcEntry> TMC5240Module::defaultDict() const {
  std::lock_guard lk(dict_m_);
  return default_dict_;
}
void TMC5240Module::setMainValue(std::string_view name, int64_t value) {
  std::lock_guard lk(dict_m_);
  setIn(main_dict_, name, value);
}
void TMC5240Module::setDefaultValue(std::string_view name, int64_t value) {
  std::lock_guard lk(dict_m_);
  setIn(default_dict_, name, value);
}

// ---- checks and raw access ---------------------------------------------------------

void TMC5240Module::_checkTMC5240Port(const Value& port) const {
  checkInputType(port, kTypeInt);
  const int64_t p = port.asInt();
  if (p != static_cast<int>(p) || !model().mrdr_dict.contains(static_cast<int>(p)))
    raise(ErrorId::MRDRPortNotAvaliable);
}

int TMC5240Module::TMC5240_getSPIStatus_(const Value& status_byte) {
  status_byte_.store(static_cast<int>(status_byte.asInt() & 0xFF));
  return 0;
}

Bytes TMC5240Module::Motion_read_(const Call& c, const Value& port, const Value& reg_addr) {
  const Bytes data_out{byteOf(port), byteOf(reg_addr)};
  const Bytes data_in = c.exchange(MOTION_READ_REG, data_out);
  need(data_in, 7, MOTION_READ_REG);
  TMC5240_getSPIStatus_(Value(data_in[2]));
  return Bytes(data_in.begin() + 3, data_in.end());
}

int TMC5240Module::Motion_write_(const Call& c, const Value& port, const Value& reg_addr,
                                 const Value& data) {
  Bytes data_out{byteOf(port), byteOf(reg_addr), 0};
  const Bytes value = convertU32To4U8(data);
  data_out.insert(data_out.end(), value.begin(), value.end());
  const Bytes data_in = c.exchange(MOTION_WRITE_REG, data_out);
  need(data_in, 2, MOTION_WRITE_REG);
  return data_in[1];
}

int TMC5240Module::Motion_clearFault_(const Call& c, const Value& port) {
  return Motion_setGlobalStatus_(c, port, 31);
}

int TMC5240Module::Motion_setRamp_(const Call& c, const Value& port) {
  Most g;
  for (const TmcEntry& e : mainDict()) g += Motion_write_(c, port, Value(e.reg), Value(e.value));
  return g.status;
}

int TMC5240Module::Motion_setLimitEnable_(const Call&, const Value&, const Value& forward_enable,
                                          const Value& reverse_enable) {
  axis.motion_dict.set("Forward Enable", forward_enable);
  axis.motion_dict.set("Reverse Enable", reverse_enable);
  return 0;
}

int TMC5240Module::Motion_setLimitPolarity_(const Call&, const Value&,
                                            const Value& limit_polarity) {
  axis.motion_dict.set("Forward Polarity", limit_polarity);
  axis.motion_dict.set("Reverse Polarity", limit_polarity);
  return 0;
}

int TMC5240Module::Motion_writeDO_(const Call& c, const Value& port, const Value& pin,
                                   const Value& value) {
  checkInputType(pin, kTypeInt);
  checkInputType(value, kTypeInt);
  if (pin.asInt() < 0 || pin.asInt() > 7) throw ValueError("bytes must be in range(0, 256)");
  const int64_t mask = int64_t{1} << pin.asInt();
  const Bytes data_out{byteOf(port), 0, byteOf(Value(mask)), 0,
                       byteOf(Value(value.asInt() * mask))};
  c.exchange(MRDR_SET_AND_WRITE_DO, data_out);
  return 0;
}

int TMC5240Module::Motion_readDI_(const Call& c, const Value& port) {
  c.exchange(MRDR_READ_AND_GET_DI, {byteOf(port), 0, 7});
  return 0;
}

int TMC5240Module::Motion_getServeoOnStatus_(const Call&, const Value& port) {
  _checkTMC5240Port(port);
  return 0;
}

int TMC5240Module::Motion_getInpositionStatus_(const Call&, const Value& port) {
  _checkTMC5240Port(port);
  return statusBit(5);
}

// ---- public operations ---------------------------------------------------------------

int TMC5240Module::Motion_open(const Call&, const Value& port) {
  _checkTMC5240Port(port);
  return 0;
}

int TMC5240Module::Motion_close(const Call&, const Value& port) {
  _checkTMC5240Port(port);
  return 0;
}

int TMC5240Module::paramBlock(const Call& c, const Value& port, int cmd) {
  _checkTMC5240Port(port);
  const Bytes data_in = c.exchange(cmd, {byteOf(port)});
  need(data_in, 3 + 4 * kBlockValues, cmd);
  const std::span<const uint8_t> data(data_in.data() + 3, data_in.size() - 3);
  {
    std::lock_guard lk(dict_m_);
    for (size_t i = 0; i < default_dict_.size(); ++i)
      default_dict_[i].value = convert4U8ToU32(data.subspan(i * 4, 4));
  }
  try {
    return checkFirmwareError(data_in[1]);
  } catch (const Error& e) {
    return e.code();
  }
}

int TMC5240Module::sendBlock(const Call& c, const Value& port, int cmd) {
  _checkTMC5240Port(port);
  Bytes data_out{byteOf(port), static_cast<uint8_t>(4 * kBlockValues)};
  for (const TmcEntry& e : defaultDict())
    appendBytes(data_out, convertU32To4U8(static_cast<uint32_t>(e.value)));
  return c.exchangeStatus(cmd, data_out, 1);
}

int TMC5240Module::Motion_getParameters(const Call& c, const Value& port) {
  return paramBlock(c, port, MOTION_GET_PARAM);
}
int TMC5240Module::Motion_loadParameters(const Call& c, const Value& port) {
  return paramBlock(c, port, MOTION_LOAD_PARAM);
}
int TMC5240Module::Motion_setParameters(const Call& c, const Value& port) {
  return sendBlock(c, port, MOTION_SET_PARAM);
}
int TMC5240Module::Motion_saveParameters(const Call& c, const Value& port) {
  return sendBlock(c, port, MOTION_SAVE_PARAM);
}

int TMC5240Module::Motion_resetFactory(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  return c.exchangeStatus(MOTION_RESET_FACTORY, Bytes{byteOf(port)}, 1);
}

int TMC5240Module::Motion_getProcessState(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  const Bytes data_in = c.exchange(MOTION_GET_PROC_STATE, {byteOf(port)});
  need(data_in, 2, MOTION_GET_PROC_STATE);
  return data_in[1];
}

int TMC5240Module::Motion_stopProcess(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  return c.exchangeStatus(MOTION_STOP_PROC, Bytes{byteOf(port)}, 1);
}

int64_t TMC5240Module::Motion_readCurrentVelocity(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  return convert4U8ToU32(Motion_readCurrentVelocity_(c, port));
}

std::vector<int64_t> TMC5240Module::Motion_readEncoderPosition(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  const int64_t encoder = convert4U8ToU32(Motion_readEncoderPosition_(c, port));
  const int64_t logical = convert4U8ToU32(Motion_readCurrentPosition_(c, port));
  return {encoder, logical};
}

int TMC5240Module::Motion_rstEncoderPosi(const Call& c, const Value& port,
                                         const Value& encoder_posi) {
  _checkTMC5240Port(port);
  convertU32To4U8(encoder_posi);  // a value that cannot be sent fails before the first step
  Most g;
  g += Motion_setRampMode_(c, port, 3);
  g += Motion_resetPosition_(c, port, encoder_posi);
  g += Motion_setEncoderPosition_(c, port, encoder_posi);
  return g.status;
}

int TMC5240Module::Motion_cfgEncoder(const Call& c, const Value& port, const Value& encoder_dir,
                                     const Value& encoder_posi) {
  _checkTMC5240Port(port);
  convertU32To4U8(encoder_posi);
  const Value dir_val(looseEquals(encoder_dir, Value(0)) ? 1 : -1);
  Most g;
  g += Motion_resetPosition_(c, port, encoder_posi);
  g += Motion_setEncoderPosition_(c, port, encoder_posi);
  g += Motion_setEncoderDirection_(c, port, dir_val);
  return g.status;
}

int TMC5240Module::Motion_cfgAxisDirection(const Call& c, const Value& port,
                                           const Value& axis_dir) {
  _checkTMC5240Port(port);
  if (!axis_dir.isInt())
    throw TypeError("unsupported operand type(s) for ^: '" + std::string(axis_dir.typeName()) +
                    "' and 'int'");
  const int64_t state = axis_dir.asInt() ^ 1;
  Most g;
  const int64_t value_cfg = writeBit(convert4U8ToU32(Motion_getGlobalConfig_(c, port)), 4, state);
  g += Motion_setGlobalConfig_(c, port, Value(value_cfg));
  const int64_t value_switch = writeBit(convert4U8ToU32(Motion_getLimitSwitch_(c, port)), 4, state);
  g += Motion_setLimitSwitch_(c, port, Value(value_switch));
  return g.status;
}

int TMC5240Module::Motion_cfgLimit(const Call& c, const Value& port, const Value& en_forward,
                                   const Value& en_reverse, const Value& limit_polarity) {
  _checkTMC5240Port(port);
  Most g;
  g += Motion_setLimitEnable_(c, port, en_forward, en_reverse);
  g += Motion_setLimitPolarity_(c, port, limit_polarity);
  const Bytes u8_list = Motion_getLimitSwitch_(c, port);
  const int64_t polarity_low = looseEquals(limit_polarity, Value(0)) ? 1 : 0;
  const int64_t forward_enabled = looseEquals(en_forward, Value(1)) ? 1 : 0;
  const int64_t reverse_enabled = looseEquals(en_reverse, Value(1)) ? 1 : 0;
  int64_t byte4 = u8_list[3];
  byte4 = writeBit(byte4, 3, polarity_low);
  byte4 = writeBit(byte4, 2, polarity_low);
  byte4 = writeBit(byte4, 1, reverse_enabled);
  byte4 = writeBit(byte4, 0, forward_enabled);
  const Bytes word{0, 0, u8_list[2], static_cast<uint8_t>(byte4)};
  g += Motion_setLimitSwitch_(c, port, Value(static_cast<int64_t>(convert4U8ToU32(word))));
  return g.status;
}

int TMC5240Module::Motion_getAlarmStatus(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  const Bytes u8_list = Motion_getGlobalStatus_(c, port);
  return (readBit(u8_list[2], 4) || readBit(u8_list[3], 2) || readBit(u8_list[3], 1)) ? 1 : 0;
}

std::vector<int64_t> TMC5240Module::Motion_getLimitStatus(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  const Bytes data_in = c.exchange(MRDR_READ_AND_GET_DI, {byteOf(port), 0, 7});
  need(data_in, 3, MRDR_READ_AND_GET_DI);
  const int64_t new_state = convert2U8ToU16(std::span(data_in).subspan(1, 2));
  return {readBit(new_state, 0), readBit(new_state, 1), readBit(new_state, 2)};
}

int TMC5240Module::Motion_enableServoOn(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  return Motion_writeDO_(c, 2, 0, 0);
}

int TMC5240Module::Motion_enableServoOff(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  return Motion_writeDO_(c, 2, 0, 1);
}

TmcRegisterValue TMC5240Module::Motion_readRegisterFields(const Call& c, const Value& port,
                                                          const Value& reg_addr) {
  _checkTMC5240Port(port);
  checkInputType(reg_addr, kTypeInt);
  const TmcRegister* reg = tmc5240Register(reg_addr.asInt());
  if (!reg || !reg->readable())
    raise(ErrorId::InputDataNotInRangeError,
          reg ? "The register " + std::string(reg->name) + " is write-only."
              : "No TMC5240 register at address " + reg_addr.repr() + ".");
  TmcRegisterValue out;
  out.address = reg->address;
  char hex[3];
  std::snprintf(hex, sizeof hex, "%02X", reg->address);
  out.name = std::string("MRDR_") + hex + "_" + reg->name;
  out.word = convert4U8ToU32(Motion_read_(c, port, reg_addr));
  out.fields = tmc5240Fields(*reg, out.word);
  return out;
}

// ---- processes ------------------------------------------------------------------------

namespace {
int startStatus(const Call& c, int cmd, const Bytes& data_out) {
  return c.exchangeStatus(cmd, data_out, 1);
}
}  // namespace

int TMC5240Module::Motion_startVelocticyMove(const Call& c, const Value& port, const Value& speed,
                                             const Value& acceleration, const Value& deceleration,
                                             const Value& direction) {
  _checkTMC5240Port(port);
  for (const Value* v : {&speed, &acceleration, &deceleration}) checkInputType(*v, kTypeInt);
  Bytes data_out{byteOf(port)};
  u32(data_out, speed);
  u32(data_out, acceleration);
  u32(data_out, deceleration);
  i8(data_out, direction);
  return startStatus(c, MOTION_START_V_MOVE, data_out);
}

int TMC5240Module::Motion_startPositionMove(const Call& c, const Value& port, const Value& position,
                                            const Value& speed, const Value& acceleration,
                                            const Value& deceleration, const Value& mode) {
  _checkTMC5240Port(port);
  for (const Value* v : {&speed, &acceleration, &deceleration}) checkInputType(*v, kTypeInt);
  Bytes data_out{byteOf(port)};
  i32(data_out, position);
  u32(data_out, speed);
  u32(data_out, acceleration);
  u32(data_out, deceleration);
  i8(data_out, mode);
  return startStatus(c, MOTION_START_P_MOVE, data_out);
}

int TMC5240Module::Motion_startScanMove(const Call& c, const Value& port, const Value& position_0,
                                        const Value& position_1, const Value& speed,
                                        const Value& acceleration) {
  _checkTMC5240Port(port);
  for (const Value* v : {&speed, &acceleration}) checkInputType(*v, kTypeInt);
  Bytes data_out{byteOf(port)};
  i32(data_out, position_0);
  i32(data_out, position_1);
  u32(data_out, speed);
  u32(data_out, acceleration);
  return startStatus(c, MOTION_START_SCAN_MOVE, data_out);
}

int TMC5240Module::Motion_startFindLimit(const Call& c, const Value& port, const Value& mode,
                                         const Value& searching_speed,
                                         const Value& approaching_speed, const Value& acceleration,
                                         const Value& offset, const Value& reset_position) {
  _checkTMC5240Port(port);
  Bytes data_out{byteOf(port)};
  i8(data_out, mode);
  u32(data_out, searching_speed);
  u32(data_out, approaching_speed);
  u32(data_out, acceleration);
  i32(data_out, offset);
  data_out.push_back(resetByte(reset_position));
  return startStatus(c, MOTION_START_FIND_END, data_out);
}

int TMC5240Module::findHomeOrZ(const Call& c, int cmd, const Value& port,
                               const Value& searching_speed, const Value& approaching_speed,
                               const Value& acceleration, const Value& search_direction,
                               const Value& approach_direction, const Value& offset,
                               const Value& reset_position) {
  _checkTMC5240Port(port);
  Bytes data_out{byteOf(port)};
  u32(data_out, searching_speed);
  u32(data_out, approaching_speed);
  u32(data_out, acceleration);
  i8(data_out, search_direction);
  i8(data_out, approach_direction);
  i32(data_out, offset);
  data_out.push_back(resetByte(reset_position));
  return startStatus(c, cmd, data_out);
}

int TMC5240Module::Motion_startFindHome(const Call& c, const Value& port,
                                        const Value& searching_speed,
                                        const Value& approaching_speed, const Value& acceleration,
                                        const Value& search_direction,
                                        const Value& approach_direction, const Value& offset,
                                        const Value& reset_position) {
  return findHomeOrZ(c, MOTION_START_FIND_HOME, port, searching_speed, approaching_speed,
                     acceleration, search_direction, approach_direction, offset, reset_position);
}

int TMC5240Module::Motion_startFindZPolarity(
    const Call& c, const Value& port, const Value& searching_speed, const Value& approaching_speed,
    const Value& acceleration, const Value& search_direction, const Value& approach_direction,
    const Value& offset, const Value& reset_position) {
  return findHomeOrZ(c, MOTION_START_FIND_Z, port, searching_speed, approaching_speed, acceleration,
                     search_direction, approach_direction, offset, reset_position);
}

// ---- the motion ini file ----------------------------------------------------------------

namespace {
constexpr const char* kSection = "Axis_1";
}

void TMC5240Module::requireIni(const char* attribute) const {
  if (!iniconfig_)
    throw AttributeError("'" + model().class_name + "' object has no attribute '" + attribute +
                         "'");
}

std::string TMC5240Module::inifile() const {
  requireIni("inifile");
  return inifile_;
}
std::string TMC5240Module::inimode() const {
  requireIni("inimode");
  return inimode_;
}
std::string TMC5240Module::iniconfigText() const {
  requireIni("iniconfig");
  return iniconfig_->text();
}

int TMC5240Module::Motion_openCfgFile(const Call&, const Value& filename) {
  inifile_ = checkedIniPath(filename);
  inimode_ = "w";
  iniconfig_ = std::make_unique<IniConfig>();
  return 0;
}

int TMC5240Module::Motion_saveCfgFile(const Call&) {
  requireIni("iniconfig");
  iniconfig_->clearSection(kSection);
  for (const auto& [label, value] : axis.motion_dict.entries()) {
    const Value write_data = motion_ini._Motion_INI_convertIntToString(label, value);
    iniconfig_->set(kSection, label, MotionInifile::textOf(write_data));
  }
  iniconfig_->write(inifile_, inimode_);
  return 0;
}

int TMC5240Module::Motion_loadCfgFile(const Call& c) {
  requireIni("iniconfig");
  iniconfig_->read(inifile_);
  const auto labels = axis.motion_dict.entries();
  for (const auto& entry : labels) {
    std::string text = iniconfig_->get(kSection, entry.first);
    std::erase(text, '"');
    axis.motion_dict.set(entry.first, motion_ini._Motion_INI_convertStringToInt(entry.first, text));
  }
  // The settings go to port 0 whatever port was opened.
  return Motion_sendAllConfiguration_(c, 0);
}

int TMC5240Module::Motion_sendAllConfiguration_(const Call& c, const Value& port) {
  _checkTMC5240Port(port);
  const MotionSettings& d = axis.motion_dict;
  // Copies: Motion_cfgLimit stores into the same settings.
  auto at = [&](const char* label) { return Value(d.get(label)); };
  Motion_setEncoderDirection_(c, port, at("Inverse Encoder Direction"));
  Motion_cfgAxisDirection(c, port, at("Inverse Motion Direction"));
  Motion_cfgLimit(c, port, at("Forward Enable"), at("Reverse Enable"), at("Forward Polarity"));
  return 0;
}

}  // namespace orv
