// SystemModule: what every firmware offers — identity, clock, pin and slot
// modes, reboot, EEPROM and factory services.  Each operation is written once
// against a Call; the blocking method and its awaitable twin share it.
#pragma once

#include <string>
#include <vector>

#include "link/call.hpp"
#include "link/module.hpp"
#include "link/value.hpp"

namespace orv {

inline constexpr int GET_DATE_TIME = 241;
inline constexpr int SET_DATE_TIME = 242;
inline constexpr int GET_SERIAL_NUMBER = 122;

class SystemModule : public ModuleBase {
 public:
  std::vector<std::string> Sys_getDriverInfo(const Call& c);
  std::string Sys_getSerialNumber(const Call& c);
  std::string Sys_getRTC(const Call& c);
  int Sys_setRTC(const Call& c, const Value& year, const Value& month, const Value& day,
                 const Value& hour, const Value& minute, const Value& second);

  // Attributes holding the last result of a read.
  Attr<std::vector<std::string>> driver_info;
  Attr<std::string> serial_number;
  Attr<std::string> rtc_time;
};

}  // namespace orv
