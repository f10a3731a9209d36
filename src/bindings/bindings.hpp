// Shared pieces of the extension module.
#pragma once

#include <pybind11/pybind11.h>

#include <exception>
#include <vector>

#include "link/error.hpp"

namespace orv::py_bind {

namespace py = pybind11;

void bindErrors(py::module_& m);
void bindConstants(py::module_& m);
void bindLink(py::module_& m);
void bindModels(py::module_& m);
void installHooks(py::module_& m);
// After everything is bound: methods take `self` without conversion.
void loadSelfWithoutConversion(py::handle m);

// A binding file registers what it binds with a static BindingRegistrar; the
// extension runs the registered bindings after the link classes and before
// the model classes, by `order`, then by name.
//
//   const BindingRegistrar kDIO{{.name = "DIOModule", .module = "DIO", .bind = &bindDIO}};
//
// A module class names its module in the model table (`module`): the model
// classes' bases are checked against the table by those names.
enum BindingOrder : int {
  kBindBases = 0,      // classes that other bindings name as bases
  kBindModules = 100,  // the module classes
  kBindDevices = 200,  // ready-made device classes (DeviceFinder)
};
struct Binding {
  const char* name = "";         // the Python class it makes ("DIOModule")
  const char* module = nullptr;  // its module in the model table ("DIO"), if one
  void (*bind)(py::module_&) = nullptr;
  int order = kBindModules;
};
struct BindingRegistrar {
  explicit BindingRegistrar(const Binding& b);
};
// Every registered binding, in the order they run.
std::vector<Binding> registeredBindings();
void bindRegistered(py::module_& m);

// The host class made for a row of the error table.
py::object errorClass(ErrorId id);
// The host exception object for a C++ exception (known kinds), or None.
py::object exceptionObject(std::exception_ptr p);

// True while the interpreter may be entered from any thread.
bool pythonAlive();
void setPythonAlive(bool alive);

}  // namespace orv::py_bind

// Provided by their own files.
void bindConvert(pybind11::module_& m);
void bindSim(pybind11::module_& m);
