// The model classes and the model table as the host sees them.
#include <pybind11/stl.h>

#include "bindings/bindings.hpp"
#include "bindings/devices.hpp"
#include "models/catalogue.hpp"
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

// The function maps of a row, each bound under its own name.
#define ORV_PORT_MAPS(X) \
  X(ai_dict)             \
  X(ao_dict)             \
  X(thermal_dict)        \
  X(ahrs_dict)           \
  X(uart_dict)           \
  X(I2C_dict)            \
  X(SPI_dict)            \
  X(can_dict)            \
  X(motion_dict)         \
  X(mrdr_dict)

// The model table's row as attributes of every device object; the bare
// device classes have a bare row.
void bindModelAttributes(py::class_<Device, std::shared_ptr<Device>>& dev) {
  auto row = [](Device& d) -> const ModelInfo& { return modelInfo(d.className()); };
#define ORV_PORT_MAP(name) \
  dev.def_property_readonly(#name, [row](Device& d) { return portMap(row(d).name); });
  ORV_PORT_MAPS(ORV_PORT_MAP)
#undef ORV_PORT_MAP
  dev.def_property_readonly("di_dict", [row](Device& d) { return digitalMap(row(d).di_dict); });
  dev.def_property_readonly("do_dict", [row](Device& d) { return digitalMap(row(d).do_dict); });
  dev.def_property_readonly("dio_num_pins_per_port",
                            [row](Device& d) { return row(d).dio_num_pins_per_port; });
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
#define ORV_PORT_MAP(name) d[#name] = portMap(r.name);
  ORV_PORT_MAPS(ORV_PORT_MAP)
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

py::dict exampleDict(const ExampleTable& table) {
  py::dict d;
  for (const auto& [category, names] : table) d[py::str(category)] = py::cast(names);
  return d;
}

// The catalogue's tables (models/catalogue.def) as module attributes.
void bindCatalogue(py::module_& m) {
  py::dict labels;
  for (const auto& [key, label] : labelEntries()) labels[py::str(key)] = label;
  m.attr("LABEL_DICT") = labels;
  py::dict handles;
  for (const auto& [group, names] : handleGroups()) handles[py::str(group)] = py::cast(names);
  m.attr("HANDLE_DICT") = handles;
  m.attr("PRODUCT_LIST") = py::cast(productList());
  m.attr("HANDLE_LIST") = py::cast(handleList());
  py::dict properties;
  for (const HandleProperties& hp : handleProperties()) {
    py::dict p;
    p["connect"] = hp.connect.empty() ? py::none() : py::object(py::str(hp.connect));
    py::list categories;
    for (const auto& [category, port] : hp.ports) {
      p[py::str(category)] = port ? py::object(py::int_(*port)) : py::none();
      categories.append(category);
    }
    p["cat_port"] = categories;
    properties[py::str(hp.handle)] = p;
  }
  m.attr("HANDLE_PROPERTIES") = properties;
  m.attr("CATEGORY_CONSOLE_DICT") = exampleDict(categoryHandles());
  py::list categories;
  for (const auto& [category, names] : consoleExamples()) categories.append(category);
  m.attr("CATEGORY_CONSOLE_LIST") = categories;
  m.attr("EXAMPLE_CONSOLE_DICT") = exampleDict(consoleExamples());
  m.attr("EXAMPLE_GUI_DICT") = exampleDict(guiExamples());
  for (const auto& [name, text] : banners()) m.attr(name.c_str()) = text;
  m.def("_modelTable", [] {
    py::dict t;
    for (const auto& row : modelTable()) t[py::str(row.class_name)] = rowDict(row);
    return t;
  });
}

// A model's docstring, from its row: label, device class, modules.
std::string modelDoc(const ModelInfo& row) {
  std::string doc = row.class_name + " (" + row.label + "): device class " +
                    deviceClassName(row.device) + "; modules ";
  for (size_t i = 0; i < row.modules.size(); ++i) doc += (i ? ", " : "") + row.modules[i];
  return doc + ".\n\n" + row.class_name +
         "(verbose=True): connect it, call its operations (each also as an awaitable "
         "name_async), close it; `with` closes it too.";
}

// A model class: its device class and its module classes as bases.
// A model whose DataLogger stands before the device class lists it first.
template <class Model, class... Modules>
void bindModel(py::module_& m, const char* name, TypeList<Modules...>) {
  const std::string doc = modelDoc(modelInfo(name));
  bindDeviceClass<Model, typename Model::DeviceType, Modules...>(m, name, doc.c_str());
}
template <class Model, class... Modules>
void bindModel(py::module_& m, const char* name, TypeList<DataLogger, Modules...>) {
  const std::string doc = modelDoc(modelInfo(name));
  if constexpr (kLoggerFirst<Model>)
    bindDeviceClass<Model, DataLogger, typename Model::DeviceType, Modules...>(m, name,
                                                                               doc.c_str());
  else
    bindDeviceClass<Model, typename Model::DeviceType, DataLogger, Modules...>(m, name,
                                                                               doc.c_str());
}

// The Python classes a row asks for as bases: its device class, then the
// class of each of its modules that is bound, in the row's order.
py::tuple expectedBases(py::module_& m, const ModelInfo& row) {
  py::list bases;
  if (row.data_logger && row.data_logger_first) bases.append(m.attr("DataLogger"));
  bases.append(m.attr(deviceClassName(row.device)));
  if (row.data_logger && !row.data_logger_first) bases.append(m.attr("DataLogger"));
  for (const std::string& module : row.modules)
    for (const Binding& b : registeredBindings())
      if (b.module && module == b.module) bases.append(m.attr(b.name));
  return py::tuple(bases);
}

std::string classNames(const py::tuple& classes) {
  std::string out = "(";
  for (size_t i = 0; i < classes.size(); ++i) {
    if (i) out += ", ";
    out += py::str(classes[i].attr("__name__")).cast<std::string>();
  }
  return out + ")";
}

// Each model class has the bases its row of the model table asks for, in
// that order, and each bound module is a module of the table: the import
// fails with a message that names the difference otherwise.
void checkModelClasses(py::module_& m) {
  for (const Binding& b : registeredBindings()) {
    if (!b.module) continue;
    bool used = false;
    for (const ModelInfo& row : modelTable()) used = used || row.has(b.module);
    if (!used)
      throw py::import_error(std::string("pyorv: the binding of ") + b.name + " names module \"" +
                             b.module + "\", which no model of models.def has");
  }
  for (const ModelInfo& row : modelTable()) {
    if (row.device == DeviceKind::None) continue;
    const py::tuple want = expectedBases(m, row);
    const py::tuple have = m.attr(row.class_name.c_str()).attr("__bases__");
    if (!have.equal(want))
      throw py::import_error("pyorv: model class " + row.class_name + " has the bases " +
                             classNames(have) + ", but its line in models.def asks for " +
                             classNames(want));
  }
}

}  // namespace

void bindModels(py::module_& m) {
  auto dev = py::reinterpret_borrow<py::class_<Device, std::shared_ptr<Device>>>(m.attr("Device"));
  bindModelAttributes(dev);

#define ORV_MODEL(Name, ...) bindModel<Name>(m, #Name, Name::ModuleTypes{});
#include "models/models.def"
#undef ORV_MODEL

  // TrellisLite: an empty class with no bases.
  py::dict ns;
  ns["__module__"] = m.attr("__name__");
  ns["__doc__"] = "Trellis-Lite: a class with no bases and no operations.";
  m.attr("TrellisLite") =
      py::reinterpret_borrow<py::object>((PyObject*)&PyType_Type)("TrellisLite", py::tuple(), ns);

  bindCatalogue(m);
  checkModelClasses(m);
  // The same check again, for tests that swap a class of the module.
  m.def("_checkModelClasses", [] {
    auto self = py::module_::import("pyorv._pyorv");
    checkModelClasses(self);
  });
}

}  // namespace orv::py_bind
