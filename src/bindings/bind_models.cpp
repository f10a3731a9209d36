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

const char* deviceKindName(DeviceKind k) {
  switch (k) {
    case DeviceKind::Usb:
      return "USB";
    case DeviceKind::Ethernet:
      return "Ethernet";
    case DeviceKind::Wifi:
      return "Wifi";
    case DeviceKind::None:
      break;
  }
  return "None";
}

// One row of the model table as a dict, for tools and tests.
py::dict rowDict(const ModelInfo& r) {
  py::dict d;
  d["label"] = r.label;
  d["device"] = deviceKindName(r.device);
  d["device_class"] = deviceClassName(r.device);
  d["data_logger"] = r.data_logger;
  d["modules"] = py::cast(r.modules);
#define ORV_PORT_MAP(name) d[#name] = portMap(r.name)
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
  d["di_dict"] = digitalMap(r.di_dict);
  d["do_dict"] = digitalMap(r.do_dict);
  d["dio_num_pins_per_port"] = r.dio_num_pins_per_port;
  if (r.has("AI")) {
    d["ai_max_rate"] = r.ai.max_rate;
    d["ai_ratio"] = r.ai.ratio;
    d["ai_num_channels"] = r.ai.num_channels;
    d["ai_variable"] = r.ai.variable;
  }
  if (r.has("AO")) {
    d["ao_volt_min"] = r.ao.volt_min;
    d["ao_volt_max"] = r.ao.volt_max;
    d["ao_channel"] = r.ao.channel;
    d["ao_rate"] = r.ao.rate;
  }
  return d;
}

void bindCatalogue(py::module_& m) {
  py::dict labels;
  for (const auto& [key, label] : labelEntries()) labels[py::str(key)] = label;
  m.attr("LABEL_DICT") = labels;
  py::dict handles;
  for (const auto& [group, names] : handleGroups()) handles[py::str(group)] = py::cast(names);
  m.attr("HANDLE_DICT") = handles;
  m.attr("PRODUCT_LIST") = py::cast(productList());
  m.attr("HANDLE_LIST") = py::cast(handleList());
  m.def("_modelTable", [] {
    py::dict t;
    for (const auto& row : modelTable()) t[py::str(row.class_name)] = rowDict(row);
    return t;
  });
}

}  // namespace

void bindModels(py::module_& m) {
  auto dev = py::reinterpret_borrow<py::class_<Device, std::shared_ptr<Device>>>(m.attr("Device"));
  bindModelAttributes(dev);

#define ORV_MODEL(Name, DeviceClass, ...) bindDeviceClass<Name, DeviceClass, __VA_ARGS__>(m, #Name);
#include "models/models.def"
#undef ORV_MODEL

  // TrellisLite: an empty class with no bases.
  py::dict ns;
  ns["__module__"] = m.attr("__name__");
  ns["__doc__"] = "Trellis-Lite: a class with no bases and no operations.";
  m.attr("TrellisLite") =
      py::reinterpret_borrow<py::object>((PyObject*)&PyType_Type)("TrellisLite", py::tuple(), ns);

  bindCatalogue(m);
}

}  // namespace orv::py_bind
