// PWMModule and CounterModule as the host sees them: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "digital/counter.hpp"
#include "digital/pwm.hpp"

namespace orv::py_bind {

namespace {

void bindPWM(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<PWMModule, std::shared_ptr<PWMModule>> pwm(m, "PWMModule");
  defTwin(pwm, "PWM_open", &PWMModule::PWM_open, "channel"_a);
  defTwin(pwm, "PWM_start", &PWMModule::PWM_start, "channel"_a);
  defTwin(pwm, "PWM_stop", &PWMModule::PWM_stop, "channel"_a);
  defTwin(pwm, "PWM_close", &PWMModule::PWM_close, "channel"_a);
  defTwin(pwm, "PWM_setFrequency", &PWMModule::PWM_setFrequency, "channel"_a, "frequency"_a);
  defTwin(pwm, "PWM_setDutyCycle", &PWMModule::PWM_setDutyCycle, "channel"_a, "duty_cycle"_a);
  pwm.def(
      "_checkPWMChannel",
      [](PWMModule&, const Value& ch) { return PWMModule::_checkPWMChannel(ch); }, "channel"_a);
}

void bindCounter(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<CounterModule, std::shared_ptr<CounterModule>> cnt(m, "CounterModule");
  defTwin(cnt, "Counter_open", &CounterModule::Counter_open, "channel"_a);
  defTwin(cnt, "Counter_start", &CounterModule::Counter_start, "channel"_a);
  defTwin(cnt, "Counter_read", &CounterModule::Counter_read, "channel"_a);
  defTwin(cnt, "Counter_stop", &CounterModule::Counter_stop, "channel"_a);
  defTwin(cnt, "Counter_close", &CounterModule::Counter_close, "channel"_a);
  cnt.def(
      "_checkCounterChannel",
      [](CounterModule&, const Value& ch) { return CounterModule::_checkCounterChannel(ch); },
      "channel"_a);
}

const BindingRegistrar kPWM{{.name = "PWMModule", .module = "PWM", .bind = &bindPWM}};
const BindingRegistrar kCounter{
    {.name = "CounterModule", .module = "Counter", .bind = &bindCounter}};

}  // namespace

}  // namespace orv::py_bind
