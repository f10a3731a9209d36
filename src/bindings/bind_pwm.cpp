// PWMModule and CounterModule as the host sees them: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "digital/counter.hpp"
#include "digital/pwm.hpp"

namespace orv::py_bind {

namespace {

// The two families report each other's error for a bad channel, on purpose.
const Arg kChannel{"channel", kInt, "0 or 1"};
constexpr const char* kPWMRefused = "CounterChannelNotAvaliableError: channel is not 0 or 1.";
constexpr const char* kCounterRefused = "PWMChannelNotAvaliableError: channel is not 0 or 1.";

void bindPWM(py::module_& m) {
  using P = PWMModule;
  py::class_<P, std::shared_ptr<P>> pwm(
      m, "PWMModule",
      "The device's two PWM outputs: the host checks the channel and passes frequency and duty "
      "cycle on as 32-bit floats.");
  const Result status{kInt, kStatusText};
  defTwin(pwm, &P::PWM_open, {"PWM_open", "Opens a PWM channel.", {kChannel}, status, kPWMRefused});
  defTwin(pwm, &P::PWM_start,
          {"PWM_start", "Starts a PWM channel's output.", {kChannel}, status, kPWMRefused});
  defTwin(pwm, &P::PWM_stop,
          {"PWM_stop", "Stops a PWM channel's output.", {kChannel}, status, kPWMRefused});
  defTwin(pwm, &P::PWM_close,
          {"PWM_close", "Closes a PWM channel.", {kChannel}, status, kPWMRefused});
  defTwin(pwm, &P::PWM_setFrequency,
          {"PWM_setFrequency",
           "Sets a PWM channel's frequency.",
           {kChannel,
            {"frequency", kFloat, "sent as a 32-bit float; its unit and range are the firmware's"}},
           status,
           "CounterChannelNotAvaliableError: channel is not 0 or 1.\n"
           "TypeError: frequency is not a number."});
  defTwin(
      pwm, &P::PWM_setDutyCycle,
      {"PWM_setDutyCycle",
       "Sets a PWM channel's duty cycle.",
       {kChannel,
        {"duty_cycle", kFloat, "sent as a 32-bit float; its unit and range are the firmware's"}},
       status,
       "CounterChannelNotAvaliableError: channel is not 0 or 1.\n"
       "TypeError: duty_cycle is not a number."});
  pwm.def(
      "_checkPWMChannel", [](P&, const Value& ch) { return P::_checkPWMChannel(ch); },
      py::arg("channel"));
}

void bindCounter(py::module_& m) {
  using C = CounterModule;
  py::class_<C, std::shared_ptr<C>> cnt(m, "CounterModule",
                                        "The device's two pulse counters; the host reads 16 bits.");
  const Result status{kInt, kStatusText};
  defTwin(cnt, &C::Counter_open,
          {"Counter_open", "Opens a counter channel.", {kChannel}, status, kCounterRefused});
  defTwin(cnt, &C::Counter_start,
          {"Counter_start", "Starts counting.", {kChannel}, status, kCounterRefused});
  defTwin(cnt, &C::Counter_read,
          {"Counter_read",
           "Reads a counter.",
           {kChannel},
           {kInt, "the count, 0..65535"},
           kCounterRefused});
  defTwin(cnt, &C::Counter_stop,
          {"Counter_stop", "Stops counting.", {kChannel}, status, kCounterRefused});
  defTwin(cnt, &C::Counter_close,
          {"Counter_close", "Closes a counter channel.", {kChannel}, status, kCounterRefused});
  cnt.def(
      "_checkCounterChannel", [](C&, const Value& ch) { return C::_checkCounterChannel(ch); },
      py::arg("channel"));
}

const BindingRegistrar kPWM{{.name = "PWMModule", .module = "PWM", .bind = &bindPWM}};
const BindingRegistrar kCounter{
    {.name = "CounterModule", .module = "Counter", .bind = &bindCounter}};

}  // namespace

}  // namespace orv::py_bind
