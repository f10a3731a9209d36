// DIOModule as the host sees it: one line per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "digital/dio.hpp"

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

const BindingRegistrar kDIO{{.name = "DIOModule", .module = "DIO", .bind = &bindDIO}};

}  // namespace

}  // namespace orv::py_bind
