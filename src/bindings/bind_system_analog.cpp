// SystemAnalogModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/system_analog.hpp"

namespace orv::py_bind {

namespace {

void bindSystemAnalog(py::module_& m) {
  using S = SystemAnalogModule;
  py::class_<S, std::shared_ptr<S>> cls(
      m, "SystemAnalogModule",
      "What only the Wi-Fi analog models have: acceleration, battery, temperature.");
  // The twin's name lacks the e on purpose.
  defTwin(cls, &S::Wifi_readAcceleration,
          {.name = "Wifi_readAcceleration",
           .summary = "Reads the three acceleration axes.",
           .args = {},
           .result = {kInts, "x, y, z as raw 16-bit words"},
           .async_name = "Wifi_readAccleration_async"});
  defTwin(cls, &S::Wifi_readBattery,
          {"Wifi_readBattery",
           "Reads the battery.",
           {},
           {kInt, "the raw 16-bit battery word; also kept in battery"}});
  defTwin(cls, &S::Wifi_readThermo,
          {"Wifi_readThermo",
           "Reads the board temperature.",
           {},
           {kFloat, "the signed 16-bit reading divided by 128; also kept in thermo"}});
  defTwin(cls, &S::Wifi_resetAIBuffer_,
          {"_Wifi_resetAIBuffer", "Empties the AI buffer.", {}, {kInt, kStatusText}});
  defAttr(cls, "battery", &S::battery);
  defAttr(cls, "thermo", &S::thermo);
}

const BindingRegistrar kSystemAnalog{
    {.name = "SystemAnalogModule", .module = "SystemAnalog", .bind = &bindSystemAnalog}};

}  // namespace

}  // namespace orv::py_bind
