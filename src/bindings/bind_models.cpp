// The model classes and the model table as the host sees them.
#include <pybind11/stl.h>

#include "bindings/bindings.hpp"
#include "bindings/devices.hpp"
#include "models/models.hpp"

namespace orv::py_bind {

namespace {

py::dict portMap(const PortMap& pm) {
  py::dict d;
  for (const auto& [port, pins] : pm) {
    py::list l;
    for (const auto& p : pins) l.append(py::make_tuple(p.port, p.pin));
    d[py::int_(port)] = l;
  }
  return d;
}

py::dict digitalMap(const DigitalMap& dm) {
  py::dict d;
  for (const auto& [port, pins] : dm) d[py::int_(port)] = py::cast(pins);
  return d;
}

// The model table's row as attributes of every device object.
void bindModelAttributes(py::class_<Device, std::shared_ptr<Device>>& dev) {
#define ORV_PORT_MAP(name) \
  dev.def_property_readonly(#name, [](Device& d) { return portMap(d.modelInfo().name); })
  ORV_PORT_MAP(ai_dict);
  ORV_PORT_MAP(ao_dict);
  ORV_PORT_MAP(thermal_dict);
  ORV_PORT_MAP(ahrs_dict);
  ORV_PORT_MAP(uart_dict);
  ORV_PORT_MAP(I2C_dict);
  ORV_PORT_MAP(SPI_dict);
  ORV_PORT_MAP(can_dict);
  ORV_PORT_MAP(motion_dict);
  ORV_PORT_MAP(mrdr_dict);
#undef ORV_PORT_MAP
  dev.def_property_readonly("di_dict", [](Device& d) { return digitalMap(d.modelInfo().di_dict); });
  dev.def_property_readonly("do_dict", [](Device& d) { return digitalMap(d.modelInfo().do_dict); });
  dev.def_property_readonly("dio_num_pins_per_port",
                            [](Device& d) { return d.modelInfo().dio_num_pins_per_port; });
}

}  // namespace

void bindModels(py::module_& m) {
  auto dev = py::reinterpret_borrow<py::class_<Device, std::shared_ptr<Device>>>(m.attr("Device"));
  bindModelAttributes(dev);

#define ORV_MODEL(Name, DeviceClass, ...) \
  bindDeviceClass<Name, DeviceClass, __VA_ARGS__>(m, #Name);
#include "models/models.def"
#undef ORV_MODEL

  // TrellisLite: an empty class with no bases.
  py::dict ns;
  ns["__module__"] = m.attr("__name__");
  ns["__doc__"] = "Trellis-Lite: a class with no bases and no operations.";
  m.attr("TrellisLite") = py::reinterpret_borrow<py::object>((PyObject*)&PyType_Type)(
      "TrellisLite", py::tuple(), ns);

  m.attr("LABEL_DICT") = py::cast(labelDict());
}

}  // namespace orv::py_bind
