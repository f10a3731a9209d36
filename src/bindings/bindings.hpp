// Shared pieces of the extension module.
#pragma once

#include <pybind11/pybind11.h>

#include <exception>

#include "link/error.hpp"

namespace orv::py_bind {

namespace py = pybind11;

void bindErrors(py::module_& m);
void bindConstants(py::module_& m);
void bindLink(py::module_& m);
void bindSystem(py::module_& m);
void bindSystemAnalog(py::module_& m);
void bindNetwork(py::module_& m);
void bindWifi(py::module_& m);
void bindDiscovery(py::module_& m);
void bindDigital(py::module_& m);
void bindModels(py::module_& m);
void installHooks(py::module_& m);

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
