// The digital I/O modules as the host sees them: DIOModule, PWMModule,
// CounterModule, RelayModule and DPOTModule, one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "digital/counter.hpp"
#include "digital/dio.hpp"
#include "digital/dpot.hpp"
#include "digital/pwm.hpp"
#include "digital/relay.hpp"

namespace orv::py_bind {

namespace {

void bindDIO(py::module_& m) {
  using namespace pybind11::literals;
  using D = DIOModule;
  py::class_<D, std::shared_ptr<D>> cls(m, "DIOModule");
  // The pin maps: no exchange; the twin is a coroutine that returns at once.
  cls.def("DO_getPinMap", &D::DO_getPinMap);
  cls.def("DI_getPinMap", &D::DI_getPinMap);
  cls.def("DO_getPinMap_async", [](D& self) {
    auto map = self.DO_getPinMap();
    return immediateCoroutine([map] { return py::object(py::cast(map)); });
  });
  cls.def("DI_getPinMap_async", [](D& self) {
    auto map = self.DI_getPinMap();
    return immediateCoroutine([map] { return py::object(py::cast(map)); });
  });

  defTwin(cls, "DI_openPort", &D::DI_openPort, "port"_a);
  defTwin(cls, "DI_openPins", &D::DI_openPins, "port"_a, "pin"_a);
  defTwin(cls, "DI_closePort", &D::DI_closePort, "port"_a);
  defTwin(cls, "DI_closePins", &D::DI_closePins, "port"_a, "pin"_a);
  defTwin(cls, "DI_readPort", &D::DI_readPort, "port"_a);
  defTwin(cls, "DI_readPins", &D::DI_readPins, "port"_a, "pin"_a);
  defTwin(cls, "DO_openPort", &D::DO_openPort, "port"_a);
  defTwin(cls, "DO_openPins", &D::DO_openPins, "port"_a, "pin"_a);
  defTwin(cls, "DO_closePort", &D::DO_closePort, "port"_a);
  defTwin(cls, "DO_closePins", &D::DO_closePins, "port"_a, "pin"_a);
  defTwin(cls, "DO_writePort", &D::DO_writePort, "port"_a, "value"_a);
  defTwin(cls, "DO_writePins", &D::DO_writePins, "port"_a, "pin"_a, "value"_a);
  defTwin(cls, "DO_togglePort", &D::DO_togglePort, "port"_a);
  defTwin(cls, "DO_togglePins", &D::DO_togglePins, "port"_a, "pin"_a);
  defTwin(cls, "DIO_loadStartup", &D::DIO_loadStartup, "port"_a);
  defTwin(cls, "DIO_saveStartup", &D::DIO_saveStartup, "port"_a, "enabled"_a, "direction"_a,
          "state"_a);
  defTwin(cls, "DIO_setPortIdle", &D::DIO_setPortIdle, "port"_a);
  defTwin(cls, "DIO_setPortDI", &D::DIO_setPortDI, "port"_a);
  defTwin(cls, "DIO_setPortDO", &D::DIO_setPortDO, "port"_a);

  defTwin(cls, "_closeDIOInPins", &D::_closeDIOInPins, "port"_a, "pin"_a);
  defTwin(cls, "_closeDIOInPort", &D::_closeDIOInPort, "port"_a);
  defTwin(cls, "_getDIOCurrent", &D::_getDIOCurrent, "port"_a, "mask"_a);
  defTwin(cls, "_getDIOState", &D::_getDIOState, "port"_a, "mask"_a);
  defTwin(cls, "_readAndGetDI", &D::_readAndGetDI, "port"_a, "mask"_a);
  defTwin(cls, "_readDI", &D::_readDI, "port"_a);
  defTwin(cls, "_setAndWriteDO", &D::_setAndWriteDO, "port"_a, "mask"_a, "state"_a);
  defTwin(cls, "_setDIOCurrent", &D::_setDIOCurrent, "port"_a, "mask"_a, "enabled"_a, "direction"_a,
          "state"_a);
  defTwin(cls, "_setDIOState", &D::_setDIOState, "port"_a, "mask"_a, "state"_a);
  defTwin(cls, "_toggleAndWriteDO", &D::_toggleAndWriteDO, "port"_a, "mask"_a);
  defTwin(cls, "_toggleDIODirection", &D::_toggleDIODirection, "port"_a, "mask"_a, "state"_a);
  defTwin(cls, "_writeDO", &D::_writeDO, "port"_a);

  cls.def("_checkDIPort", &D::_checkDIPort, "port"_a);
  cls.def("_checkDOPort", &D::_checkDOPort, "port"_a);
  cls.def("_checkDIPortAndPin", &D::_checkDIPortAndPin, "port"_a, "pin_list"_a);
  cls.def("_checkDOPortAndPin", &D::_checkDOPortAndPin, "port"_a, "pin_list"_a);
  cls.def(
      "_getPinIndexInInt", [](D&, const Value& pin) { return D::_getPinIndexInInt(pin); }, "pin"_a);
  cls.def(
      "_getPinIndexInList", [](D&, const Value& pin) { return D::_getPinIndexInList(pin); },
      "pin"_a);
}

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

void bindRelay(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<RelayModule, std::shared_ptr<RelayModule>> relay(m, "RelayModule");
  defTwin(relay, "Relay_open", &RelayModule::Relay_open);
  defTwin(relay, "Relay_close", &RelayModule::Relay_close);
  defTwin(relay, "Relay_read", &RelayModule::Relay_read, "index"_a = -1);
  relay.def(
      "_checkRelayindex",
      [](RelayModule&, const Value& i) { return RelayModule::_checkRelayindex(i); }, "index"_a);
}

void bindDPOT(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<DPOTModule, std::shared_ptr<DPOTModule>> dpot(m, "DPOTModule");
  defTwin(dpot, "DPOT_open", &DPOTModule::DPOT_open, "port"_a);
  defTwin(dpot, "DPOT_close", &DPOTModule::DPOT_close, "port"_a);
  defTwin(dpot, "DPOT_readByChannel", &DPOTModule::DPOT_readByChannel, "port"_a, "channel"_a);
  defTwin(dpot, "DPOT_writeAllChannel", &DPOTModule::DPOT_writeAllChannel, "port"_a,
          "resistance_ratio"_a);
  dpot.def(
      "_checkDPOTPort", [](DPOTModule&, const Value& p) { return DPOTModule::_checkDPOTPort(p); },
      "port"_a);
  dpot.def(
      "_checkDPOTChannelAmount",
      [](DPOTModule&, const Value& ch) { return DPOTModule::_checkDPOTChannelAmount(ch); },
      "channel"_a);
}

const BindingRegistrar kDIO{{.name = "DIOModule", .module = "DIO", .bind = &bindDIO}};
const BindingRegistrar kPWM{{.name = "PWMModule", .module = "PWM", .bind = &bindPWM}};
const BindingRegistrar kCounter{
    {.name = "CounterModule", .module = "Counter", .bind = &bindCounter}};
const BindingRegistrar kRelay{{.name = "RelayModule", .module = "Relay", .bind = &bindRelay}};
const BindingRegistrar kDPOT{{.name = "DPOTModule", .module = "DPOT", .bind = &bindDPOT}};

}  // namespace

}  // namespace orv::py_bind
