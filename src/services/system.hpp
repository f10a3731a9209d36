// SystemModule: what every firmware offers — identity, clock, pin and slot
// modes, reboot, EEPROM and factory services.  Each operation is written once
// against a Call; the blocking method and its awaitable twin share it.
//
// Operations whose name begins with an underscore are service operations
// (EEPROM, serial number, factory reset, thread dump): they stay off the
// user's documented surface but are kept.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

// GET_DRIVER_INFO (240) is in link/constants.hpp.
inline constexpr int GET_DATE_TIME = 241;
inline constexpr int SET_DATE_TIME = 242;
inline constexpr int GET_EEPROM_PAGE = 247;
inline constexpr int SET_EEPROM_PAGE = 248;
inline constexpr int GET_EEPROM_DEVICE = 249;
inline constexpr int REBOOT = 250;
inline constexpr int REBOOT_ON_BOOTLOADER = 251;
inline constexpr int SET_EEPROM_BYTE = 255;
inline constexpr int RESET_FACTORY = 121;
inline constexpr int GET_SERIAL_NUMBER = 122;
inline constexpr int SET_SERIAL_NUMBER = 123;
inline constexpr int GET_THREADS = 126;
inline constexpr int GET_PIN_MODE_OF_SLOT = 127;
inline constexpr int GET_SLOT_MODE = 2054;
inline constexpr int SET_SLOT_MODE = 2055;

// The driver's own version, answered by Sys_getPythonVersion.
inline constexpr std::string_view kDriverVersion = "3.0.19";

// Names of the firmware's pin modes (GET_PIN_MODE_OF_SLOT), by code.
inline constexpr std::string_view kPinModeNames[] = {"Disabled", "Idle", "DI",  "DO",  "UART",
                                                     "I2C",      "SPI",  "CAN", "PWM", "ADC"};
// Names of the Trellis slot modes (GET_SLOT_MODE), by code.
inline constexpr std::string_view kSlotModeNames[] = {"Idle",   "DI",  "DO",    "DIO",
                                                      "Motion", "AIO", "Switch"};

// The shared argument check of the system operations.
class SystemBased {
 public:
  // Trellis slots are 1, 2 and 4; slot 3 is refused on purpose.
  static void _checkTrellisSlot(const Value& slot);
};

class SystemModule : public ModuleBase, public SystemBased {
 public:
  // Identity.
  std::vector<std::string> Sys_getDriverInfo(const Call& c);
  std::string Sys_getPythonVersion(const Call& c);
  std::string Sys_getSerialNumber(const Call& c);
  std::string _getDriverInfo_dev(const Call& c, const Value& mode);
  int _setSerialNumber(const Call& c, const Value& serial_num);

  // Real-time clock.
  std::string Sys_getRTC(const Call& c);
  int Sys_setRTC(const Call& c, const Value& year, const Value& month, const Value& day,
                 const Value& hour, const Value& minute, const Value& second);

  // Pin modes of a digital port, and Trellis slot modes.
  std::vector<std::string> Sys_getPinModeInPort(const Call& c, const Value& port);
  std::vector<std::string> Sys_getMode(const Call& c, const Value& slot);
  int Sys_setIdleMode(const Call& c, const Value& slot);
  int Sys_setDIMode(const Call& c, const Value& slot);
  int Sys_setDOMode(const Call& c, const Value& slot);
  int Sys_setDIOMode(const Call& c, const Value& slot);
  int Sys_setMotionMode(const Call& c, const Value& slot);
  int Sys_setAIOMode(const Call& c, const Value& slot);
  int Sys_setSwitchMode(const Call& c, const Value& slot);
  // The firmware's status byte as it stands (not turned into a code).
  int Sys_setSlotMode_(const Call& c, const Value& slot, const Value& mode);

  // Reboot.
  int Sys_reboot(const Call& c);
  int Sys_rebootOnBootloader(const Call& c);

  // EEPROM and factory services.
  std::vector<int64_t> _getEEPROMPage(const Call& c, const Value& page_number);
  std::vector<int64_t> _getEEPROMDevice(const Call& c, const Value& device_number);
  int _setEEPROMPage(const Call& c, const Value& page_number, const Value& int_list);
  int _setEEPROMByte(const Call& c, const Value& page_number, const Value& byte_index,
                     const Value& value);
  int _resetFactory(const Call& c);
  std::string _getThreads(const Call& c);

  // Attributes holding the last result of a read.  driver_info is the list of
  // parts after Sys_getDriverInfo and the whole text after _getDriverInfo_dev.
  Attr<Value> driver_info{Value(Value::List{})};
  Attr<std::string> serial_number;
  Attr<std::string> rtc_time;
  Attr<int64_t> num_of_pins;
  Attr<std::vector<int64_t>> pin_mode_list;
  Attr<std::string> thread_info;
};
ORV_MODULE_CLASS("System", SystemModule);

// Payload helpers of the service modules.
namespace services {
// One payload byte from an argument, as a byte list takes it: an int (bools
// count) in 0..255; TypeError for other kinds, ValueError out of range.
uint8_t byteArg(const Value& v);
// A reply too short for its fields: ReplyFormatError.
void needBytes(const Bytes& data_in, size_t n, int cmd);
// Bytes as a list of ints.
std::vector<int64_t> intList(const Bytes& data);
}  // namespace services

}  // namespace orv
