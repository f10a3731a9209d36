// SystemModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/system.hpp"

namespace orv::py_bind {

namespace {

constexpr const char* kSlotRefused =
    "InputTypeNotCorrectError: slot is not an int.\n"
    "TrellisPortNotAvaliableError: slot is not 1, 2 or 4.";

// One of the slot mode setters: they differ in the mode they write only.
Op slotMode(const char* name, const char* summary) {
  return {name,
          summary,
          {{"slot", kInt, "Trellis slot: 1, 2 or 4"}},
          {kInt, "the firmware's status byte, as it comes"},
          kSlotRefused};
}

void bindSystem(py::module_& m) {
  using S = SystemModule;
  py::class_<S, std::shared_ptr<S>> cls(
      m, "SystemModule",
      "What every firmware offers: identity, real-time clock, pin and slot modes, reboot, "
      "EEPROM and factory services.");
  defTwin(cls, &S::Sys_getDriverInfo,
          {"Sys_getDriverInfo",
           "Reads the firmware's driver information.",
           {},
           {kStrs, "the driver text split at each \"_\"; also kept in driver_info"}});
  defTwin(cls, &S::Sys_getPythonVersion,
          {"Sys_getPythonVersion",
           "The library's version; nothing is sent and timeout has no effect.",
           {},
           {kStr, "pyorv.__version__"}});
  defTwin(cls, &S::Sys_getSerialNumber,
          {"Sys_getSerialNumber",
           "Reads the device's serial number.",
           {},
           {kStr, "the serial number (8 characters); also kept in serial_number"}});
  defTwin(cls, &S::Sys_getRTC,
          {"Sys_getRTC",
           "Reads the device's real-time clock.",
           {},
           {kStr, "\"YYYY-MM-DD, hh:mm:ss\"; also kept in rtc_time"}});
  defTwin(cls, &S::Sys_setRTC,
          {"Sys_setRTC",
           "Sets the device's real-time clock.",
           {{"year", kInt, "1900..2155; 0..99 counts from 1900"},
            {"month", kInt, "1..12"},
            {"day", kInt, "1..31"},
            {"hour", kInt, "0..23"},
            {"minute", kInt, "0..59"},
            {"second", kInt, "0..59"}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: an argument that is not an int."});
  defTwin(cls, &S::Sys_getPinModeInPort,
          {"Sys_getPinModeInPort",
           "Reads the mode of each pin of a port.",
           {{"port", kInt, "port number"}},
           {kStrs,
            "one name per pin, by pin: \"Disabled\", \"Idle\", \"DI\", \"DO\", \"UART\", "
            "\"I2C\", \"SPI\", \"CAN\", \"PWM\" or \"ADC\"; an odd pin count gives one name "
            "more"},
           "InputTypeNotCorrectError: port is not an int."});
  defTwin(
      cls, &S::Sys_getMode,
      {"Sys_getMode",
       "Reads the modes of a Trellis slot.",
       {{"slot", kInt, "Trellis slot: 1, 2 or 4"}},
       {kStrs, "\"Idle\", \"DI\", \"DO\", \"DIO\", \"Motion\", \"AIO\" or \"Switch\" per entry"},
       kSlotRefused});
  defTwin(cls, &S::Sys_setIdleMode,
          slotMode("Sys_setIdleMode", "Puts a Trellis slot into idle mode."));
  defTwin(cls, &S::Sys_setDIMode,
          slotMode("Sys_setDIMode", "Puts a Trellis slot into digital input mode."));
  defTwin(cls, &S::Sys_setDOMode,
          slotMode("Sys_setDOMode", "Puts a Trellis slot into digital output mode."));
  defTwin(cls, &S::Sys_setDIOMode,
          slotMode("Sys_setDIOMode", "Puts a Trellis slot into digital input and output mode."));
  defTwin(cls, &S::Sys_setMotionMode,
          slotMode("Sys_setMotionMode", "Puts a Trellis slot into motion mode."));
  defTwin(cls, &S::Sys_setAIOMode,
          slotMode("Sys_setAIOMode", "Puts a Trellis slot into analog input and output mode."));
  defTwin(cls, &S::Sys_setSwitchMode,
          slotMode("Sys_setSwitchMode", "Puts a Trellis slot into switch mode."));
  defTwin(cls, &S::Sys_setSlotMode_,
          {"_Sys_setSlotMode",
           "Writes a Trellis slot's mode number.",
           {{"slot", kInt, "1, 2 or 4"}, {"mode", kInt, "0 idle .. 6 switch"}},
           {kInt, "the firmware's status byte"},
           kSlotRefused});
  defTwin(cls, &S::Sys_reboot, {"Sys_reboot", "Reboots the device.", {}, {kInt, kStatusText}});
  defTwin(cls, &S::Sys_rebootOnBootloader,
          {"Sys_rebootOnBootloader",
           "Reboots the device into its bootloader.",
           {},
           {kInt, kStatusText}});
  defTwin(
      cls, &S::_getEEPROMPage,
      {"_getEEPROMPage", "Reads an EEPROM page.", {{"page_number", kInt, ""}}, {kInts, "bytes"}});
  defTwin(cls, &S::_getEEPROMDevice,
          {"_getEEPROMDevice",
           "Reads an EEPROM device.",
           {{"device_number", kInt, ""}},
           {kInts, "bytes"}});
  defTwin(cls, &S::_setEEPROMPage,
          {"_setEEPROMPage",
           "Writes an EEPROM page.",
           {{"page_number", kInt, ""}, {"int_list", "collections.abc.Sequence[int]", "bytes"}},
           {kInt, kStatusText}});
  defTwin(cls, &S::_setEEPROMByte,
          {"_setEEPROMByte",
           "Writes one EEPROM byte.",
           {{"page_number", kInt, ""}, {"byte_index", kInt, ""}, {"value", kInt, "0..255"}},
           {kInt, kStatusText}});
  defTwin(cls, &S::_getDriverInfo_dev,
          {"_getDriverInfo_dev",
           "Reads the driver information of a mode, unsplit.",
           {{"mode", kInt, ""}},
           {kStr, "the driver text"}});
  defTwin(cls, &S::_setSerialNumber,
          {"_setSerialNumber",
           "Writes the serial number.",
           {{"serial_num", kStr, ""}},
           {kInt, kStatusText}});
  defTwin(cls, &S::_resetFactory,
          {"_resetFactory", "Restores the factory settings.", {}, {kInt, kStatusText}});
  defTwin(cls, &S::_getThreads,
          {"_getThreads", "Reads the firmware's thread report.", {}, {kStr, "the report"}});
  cls.def(
      "_checkTrellisSlot", [](S&, const Value& slot) { S::_checkTrellisSlot(slot); },
      py::arg("slot"));
  defAttr(cls, "driver_info", &S::driver_info);
  defAttr(cls, "serial_number", &S::serial_number);
  defAttr(cls, "rtc_time", &S::rtc_time);
  defAttr(cls, "num_of_pins", &S::num_of_pins);
  defAttr(cls, "pin_mode_list", &S::pin_mode_list);
  defAttr(cls, "thread_info", &S::thread_info);
}

const BindingRegistrar kSystem{{.name = "SystemModule", .module = "System", .bind = &bindSystem}};

}  // namespace

}  // namespace orv::py_bind
