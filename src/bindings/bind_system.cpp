// SystemModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/system.hpp"

namespace orv::py_bind {

void bindSystem(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<SystemModule, std::shared_ptr<SystemModule>> cls(m, "SystemModule");
  defTwin(cls, "Sys_getDriverInfo", &SystemModule::Sys_getDriverInfo);
  defTwin(cls, "Sys_getSerialNumber", &SystemModule::Sys_getSerialNumber);
  defTwin(cls, "Sys_getRTC", &SystemModule::Sys_getRTC);
  defTwin(cls, "Sys_setRTC", &SystemModule::Sys_setRTC, "year"_a, "month"_a, "day"_a, "hour"_a,
          "minute"_a, "second"_a);
  defAttr(cls, "driver_info", &SystemModule::driver_info);
  defAttr(cls, "serial_number", &SystemModule::serial_number);
  defAttr(cls, "rtc_time", &SystemModule::rtc_time);
}

}  // namespace orv::py_bind
