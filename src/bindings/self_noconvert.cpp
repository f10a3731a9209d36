// Methods load `self` without conversion.
//
// The model classes derive from a device class and their module classes in
// C++ (multiple inheritance), so pybind11 cannot take the plain path from a
// model object to a base like Device or DIOModule: it tries the registered
// derived classes one by one.  With conversion allowed, each one that does not
// match first looks for foreign and cross-module classes (attribute lookups
// that raise and swallow an AttributeError): microseconds on every call of a
// single-overload method.  `self` is always an instance of its class and never
// needs converting, so every method of the module is told so once, here.
#include <cstring>

#include "bindings/bindings.hpp"

namespace orv::py_bind {

namespace {

void noConvertSelf(py::handle fn) {
  py::handle f = py::detail::get_function(fn);
  if (!f || !PyCFunction_Check(f.ptr())) return;
  py::handle self = PyCFunction_GET_SELF(f.ptr());
  if (!self) return;
  auto* rec = py::detail::function_record_ptr_from_PyObject(self.ptr());
  for (; rec != nullptr; rec = rec->next) {
    if (!rec->is_method || rec->is_constructor || rec->is_new_style_constructor) continue;
    // A method bound without argument names has no record for `self` yet.
    if (rec->args.empty())
      rec->args.emplace_back(strdup("self"), nullptr, py::handle(), /*convert=*/false,
                             /*none=*/false);
    else
      rec->args[0].convert = false;
  }
}

void noConvertSelfOfClass(py::handle cls) {
  py::dict members = cls.attr("__dict__");
  for (auto item : members) {
    py::handle v = item.second;
    if (py::isinstance(v, py::module_::import("builtins").attr("property"))) {
      noConvertSelf(v.attr("fget"));
      noConvertSelf(v.attr("fset"));
    } else {
      noConvertSelf(v);
    }
  }
}

}  // namespace

void loadSelfWithoutConversion(py::handle m) {
  for (auto item : m.attr("__dict__").cast<py::dict>()) {
    py::handle v = item.second;
    if (PyType_Check(v.ptr()) && py::hasattr(v, "_pybind11_conduit_v1_"))
      noConvertSelfOfClass(v);
    else if (py::isinstance<py::module_>(v) && v.ptr() != m.ptr())
      loadSelfWithoutConversion(v);
  }
}

}  // namespace orv::py_bind
