// SystemModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/system.hpp"

namespace orv::py_bind {

namespace {

void bindSystem(py::module_& m) {
  using namespace pybind11::literals;
  using S = SystemModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "SystemModule");
  defTwin(cls, "Sys_getDriverInfo", &S::Sys_getDriverInfo);
  defTwin(cls, "Sys_getPythonVersion", &S::Sys_getPythonVersion);
  defTwin(cls, "Sys_getSerialNumber", &S::Sys_getSerialNumber);
  defTwin(cls, "Sys_getRTC", &S::Sys_getRTC);
  defTwin(cls, "Sys_setRTC", &S::Sys_setRTC, "year"_a, "month"_a, "day"_a, "hour"_a, "minute"_a,
          "second"_a);
  defTwin(cls, "Sys_getPinModeInPort", &S::Sys_getPinModeInPort, "port"_a);
  defTwin(cls, "Sys_getMode", &S::Sys_getMode, "slot"_a);
  defTwin(cls, "Sys_setIdleMode", &S::Sys_setIdleMode, "slot"_a);
  defTwin(cls, "Sys_setDIMode", &S::Sys_setDIMode, "slot"_a);
  defTwin(cls, "Sys_setDOMode", &S::Sys_setDOMode, "slot"_a);
  defTwin(cls, "Sys_setDIOMode", &S::Sys_setDIOMode, "slot"_a);
  defTwin(cls, "Sys_setMotionMode", &S::Sys_setMotionMode, "slot"_a);
  defTwin(cls, "Sys_setAIOMode", &S::Sys_setAIOMode, "slot"_a);
  defTwin(cls, "Sys_setSwitchMode", &S::Sys_setSwitchMode, "slot"_a);
  defTwin(cls, "_Sys_setSlotMode", &S::Sys_setSlotMode_, "slot"_a, "mode"_a);
  defTwin(cls, "Sys_reboot", &S::Sys_reboot);
  defTwin(cls, "Sys_rebootOnBootloader", &S::Sys_rebootOnBootloader);
  defTwin(cls, "_getEEPROMPage", &S::_getEEPROMPage, "page_number"_a);
  defTwin(cls, "_getEEPROMDevice", &S::_getEEPROMDevice, "device_number"_a);
  defTwin(cls, "_setEEPROMPage", &S::_setEEPROMPage, "page_number"_a, "int_list"_a);
  defTwin(cls, "_setEEPROMByte", &S::_setEEPROMByte, "page_number"_a, "byte_index"_a, "value"_a);
  defTwin(cls, "_getDriverInfo_dev", &S::_getDriverInfo_dev, "mode"_a);
  defTwin(cls, "_setSerialNumber", &S::_setSerialNumber, "serial_num"_a);
  defTwin(cls, "_resetFactory", &S::_resetFactory);
  defTwin(cls, "_getThreads", &S::_getThreads);
  cls.def(
      "_checkTrellisSlot", [](S&, const Value& slot) { S::_checkTrellisSlot(slot); }, "slot"_a);
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
