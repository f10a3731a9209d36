// SystemAnalogModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/system_analog.hpp"

namespace orv::py_bind {

namespace {

void bindSystemAnalog(py::module_& m) {
  using S = SystemAnalogModule;
  py::class_<S, std::shared_ptr<S>> cls(m, "SystemAnalogModule");
  defTwin(cls, "Wifi_readAcceleration", &S::Wifi_readAcceleration,
          TwinOptions{.async_name = "Wifi_readAccleration_async"});
  defTwin(cls, "Wifi_readBattery", &S::Wifi_readBattery);
  defTwin(cls, "Wifi_readThermo", &S::Wifi_readThermo);
  defTwin(cls, "_Wifi_resetAIBuffer", &S::Wifi_resetAIBuffer_);
  defAttr(cls, "battery", &S::battery);
  defAttr(cls, "thermo", &S::thermo);
}

const BindingRegistrar kSystemAnalog{
    {.name = "SystemAnalogModule", .module = "SystemAnalog", .bind = &bindSystemAnalog}};

}  // namespace

}  // namespace orv::py_bind
