// Conversion between Python objects and orv::Value.
//
// Loaded: None, bool, int, float, str, bytes, bytearray, list and tuple (their
// items recursively), numpy integer and bool scalars, numpy floating scalars,
// numpy arrays (through tolist()), and any other object with __index__ (as an
// int).  An int beyond the 64-bit range raises OverflowError("int too large
// for the device").  Anything else (dict, set, arbitrary objects) does not
// load, and pybind11 reports a TypeError.
//
// Cast back: None, bool, int, float, str, bytes, list and tuple.
//
// Every binding file includes this header, so it also brings in the STL
// casters: all translation units then agree on how std::vector and friends
// convert.
#pragma once

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <cstring>
#include <optional>
#include <string_view>

#include "link/value.hpp"

namespace orv::pyvalue {

namespace py = pybind11;

inline bool isNumpyType(PyObject* o) { return std::strncmp(Py_TYPE(o)->tp_name, "numpy.", 6) == 0; }

inline bool isNumpyBool(PyObject* o) {
  const std::string_view name = Py_TYPE(o)->tp_name;
  return name == "numpy.bool" || name == "numpy.bool_";
}

inline bool isNumpyArray(PyObject* o) {
  return std::string_view(Py_TYPE(o)->tp_name) == "numpy.ndarray";
}

// The kind a Python object loads as, found without converting it (items of a
// sequence are not looked at).  nullopt for objects that do not load.
inline std::optional<Value::Kind> kindOf(py::handle h) {
  PyObject* o = h.ptr();
  if (o == Py_None) return Value::Kind::None;
  if (PyBool_Check(o) || isNumpyBool(o)) return Value::Kind::Bool;
  if (PyLong_Check(o)) return Value::Kind::Int;
  if (PyFloat_Check(o)) return Value::Kind::Float;
  if (PyUnicode_Check(o)) return Value::Kind::Text;
  if (PyBytes_Check(o) || PyByteArray_Check(o)) return Value::Kind::Bytes;
  if (PyList_Check(o)) return Value::Kind::List;
  if (PyTuple_Check(o)) return Value::Kind::Tuple;
  if (isNumpyArray(o)) return std::nullopt;
  if (PyIndex_Check(o)) return Value::Kind::Int;
  if (isNumpyType(o) && Py_TYPE(o)->tp_as_number && Py_TYPE(o)->tp_as_number->nb_float)
    return Value::Kind::Float;
  return std::nullopt;
}

[[noreturn]] inline void throwOverflow() {
  PyErr_SetString(PyExc_OverflowError, "int too large for the device");
  throw py::error_already_set();
}

// An int object (exactly, or a subclass) to a Value.
inline Value intFrom(PyObject* o) {
  int overflow = 0;
  const long long v = PyLong_AsLongLongAndOverflow(o, &overflow);
  if (overflow) throwOverflow();
  if (v == -1 && PyErr_Occurred()) throw py::error_already_set();
  return Value(static_cast<int64_t>(v));
}

// Loads a Python object; false when its type does not convert.  Raises
// (error_already_set) for an int too large and for text that is not
// encodable, and RecursionError for a list that contains itself.
inline bool load(py::handle h, Value& out) {
  PyObject* o = h.ptr();
  if (o == Py_None) {
    out = Value();
    return true;
  }
  if (PyBool_Check(o)) {
    out = Value(o == Py_True);
    return true;
  }
  if (PyLong_Check(o)) {
    out = intFrom(o);
    return true;
  }
  if (PyFloat_Check(o)) {
    out = Value(PyFloat_AS_DOUBLE(o));
    return true;
  }
  if (PyUnicode_Check(o)) {
    Py_ssize_t n = 0;
    const char* s = PyUnicode_AsUTF8AndSize(o, &n);
    if (!s) throw py::error_already_set();
    out = Value(std::string(s, static_cast<size_t>(n)));
    return true;
  }
  if (PyBytes_Check(o)) {
    const auto* p = reinterpret_cast<const uint8_t*>(PyBytes_AS_STRING(o));
    out = Value(Bytes(p, p + PyBytes_GET_SIZE(o)));
    return true;
  }
  if (PyByteArray_Check(o)) {
    const auto* p = reinterpret_cast<const uint8_t*>(PyByteArray_AS_STRING(o));
    out = Value(Bytes(p, p + PyByteArray_GET_SIZE(o)));
    return true;
  }
  if (PyList_Check(o) || PyTuple_Check(o)) {
    const bool tuple = PyTuple_Check(o);
    // Hold a reference: the items are read through borrowed pointers.
    const py::object seq = py::reinterpret_borrow<py::object>(o);
    const Py_ssize_t n = tuple ? PyTuple_GET_SIZE(o) : PyList_GET_SIZE(o);
    Value::List items;
    items.reserve(static_cast<size_t>(n));
    if (Py_EnterRecursiveCall(" while converting a list for the device")) {
      throw py::error_already_set();
    }
    struct Leave {
      ~Leave() { Py_LeaveRecursiveCall(); }
    } leave;
    for (Py_ssize_t i = 0; i < n; ++i) {
      // A list may change size while its items are converted; re-check.
      if (!tuple && i >= PyList_GET_SIZE(o)) break;
      py::object item = py::reinterpret_borrow<py::object>(tuple ? PyTuple_GET_ITEM(o, i)
                                                                 : PyList_GET_ITEM(o, i));
      Value v;
      if (!load(item, v)) return false;
      items.push_back(std::move(v));
    }
    out = Value(std::move(items), tuple);
    return true;
  }
  if (isNumpyBool(o)) {
    const int t = PyObject_IsTrue(o);
    if (t < 0) throw py::error_already_set();
    out = Value(t == 1);
    return true;
  }
  if (isNumpyArray(o)) {
    py::object list = py::reinterpret_borrow<py::object>(o).attr("tolist")();
    return load(list, out);
  }
  if (PyIndex_Check(o)) {
    py::object i = py::reinterpret_steal<py::object>(PyNumber_Index(o));
    if (!i) throw py::error_already_set();
    out = intFrom(i.ptr());
    return true;
  }
  if (isNumpyType(o) && Py_TYPE(o)->tp_as_number && Py_TYPE(o)->tp_as_number->nb_float) {
    const double d = PyFloat_AsDouble(o);
    if (d == -1.0 && PyErr_Occurred()) throw py::error_already_set();
    out = Value(d);
    return true;
  }
  return false;
}

// A Value as a new Python object.
inline py::object toPython(const Value& v) {
  switch (v.kind()) {
    case Value::Kind::None:
      return py::none();
    case Value::Kind::Bool:
      return py::bool_(v.asBool());
    case Value::Kind::Int: {
      auto r = py::reinterpret_steal<py::object>(PyLong_FromLongLong(v.asInt()));
      if (!r) throw py::error_already_set();
      return r;
    }
    case Value::Kind::Float:
      return py::float_(v.asFloat());
    case Value::Kind::Text: {
      const std::string& s = v.asText();
      auto r = py::reinterpret_steal<py::object>(
          PyUnicode_DecodeUTF8(s.data(), static_cast<Py_ssize_t>(s.size()), "strict"));
      if (!r) throw py::error_already_set();
      return r;
    }
    case Value::Kind::Bytes: {
      const Bytes& b = v.asBytes();
      return py::bytes(reinterpret_cast<const char*>(b.data()), b.size());
    }
    case Value::Kind::List:
    case Value::Kind::Tuple: {
      const auto& items = v.asList();
      const auto n = static_cast<Py_ssize_t>(items.size());
      const bool tuple = v.isTuple();
      auto r = py::reinterpret_steal<py::object>(tuple ? PyTuple_New(n) : PyList_New(n));
      if (!r) throw py::error_already_set();
      for (Py_ssize_t i = 0; i < n; ++i) {
        PyObject* item = toPython(items[static_cast<size_t>(i)]).release().ptr();
        if (tuple)
          PyTuple_SET_ITEM(r.ptr(), i, item);
        else
          PyList_SET_ITEM(r.ptr(), i, item);
      }
      return r;
    }
  }
  return py::none();
}

}  // namespace orv::pyvalue

namespace pybind11::detail {

template <>
struct type_caster<orv::Value> {
  PYBIND11_TYPE_CASTER(orv::Value, const_name("object"));

  bool load(handle src, bool /*convert*/) { return orv::pyvalue::load(src, value); }

  static handle cast(const orv::Value& v, return_value_policy /*policy*/, handle /*parent*/) {
    return orv::pyvalue::toPython(v).release();
  }
};

}  // namespace pybind11::detail
