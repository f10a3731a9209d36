// Module-level conversion and check helpers.
#include <pybind11/pybind11.h>

#include <optional>
#include <string>

#include "bindings/value_caster.hpp"
#include "link/convert.hpp"

namespace py = pybind11;

namespace {

using orv::Value;

template <size_t N>
py::bytes toBytes(const std::array<uint8_t, N>& a) {
  return py::bytes(reinterpret_cast<const char*>(a.data()), N);
}

py::bytes toBytes(const orv::Bytes& b) {
  return py::bytes(reinterpret_cast<const char*>(b.data()), b.size());
}

Value loadValue(py::handle h) { return h.cast<Value>(); }

// The low 64 bits of an integer argument, for the fixed-width integer rows.
// Python ints of any size wrap here, beyond what a Value can hold.
uint64_t intBits(py::handle h) {
  PyObject* o = h.ptr();
  if (!PyBool_Check(o) && !PyFloat_Check(o) && !orv::pyvalue::isNumpyBool(o) && PyIndex_Check(o)) {
    py::object i = py::reinterpret_steal<py::object>(PyNumber_Index(o));
    if (!i) throw py::error_already_set();
    const unsigned long long u = PyLong_AsUnsignedLongLongMask(i.ptr());
    if (u == static_cast<unsigned long long>(-1) && PyErr_Occurred()) throw py::error_already_set();
    return u;
  }
  return orv::wrapToU64(loadValue(h));
}

double floatArg(py::handle h) {
  PyObject* o = h.ptr();
  if (PyLong_Check(o) && !PyBool_Check(o)) {
    const double d = PyLong_AsDouble(o);
    if (d == -1.0 && PyErr_Occurred()) throw py::error_already_set();
    return d;
  }
  return orv::toDouble(loadValue(h));
}

// The kinds named by isinstance's second argument: a type, a tuple of them
// (nested tuples too) or a union.
orv::TypeMask maskOf(py::handle t) {
  PyObject* o = t.ptr();
  if (PyTuple_Check(o)) {
    orv::TypeMask m = 0;
    for (py::handle item : py::reinterpret_borrow<py::tuple>(t)) m |= maskOf(item);
    return m;
  }
  if (PyType_Check(o)) {
    if (o == reinterpret_cast<PyObject*>(&PyLong_Type)) return orv::kTypeInt | orv::kTypeBool;
    if (o == reinterpret_cast<PyObject*>(&PyBool_Type)) return orv::kTypeBool;
    if (o == reinterpret_cast<PyObject*>(&PyFloat_Type)) return orv::kTypeFloat;
    if (o == reinterpret_cast<PyObject*>(&PyUnicode_Type)) return orv::kTypeText;
    if (o == reinterpret_cast<PyObject*>(&PyBytes_Type)) return orv::kTypeBytes;
    if (o == reinterpret_cast<PyObject*>(&PyList_Type)) return orv::kTypeList;
    if (o == reinterpret_cast<PyObject*>(&PyTuple_Type)) return orv::kTypeTuple;
    if (o == reinterpret_cast<PyObject*>(Py_TYPE(Py_None))) return orv::kTypeNone;
    if (o == reinterpret_cast<PyObject*>(&PyBaseObject_Type)) return orv::kTypeAny;
    throw py::type_error("checkInputType does not support the type " +
                         py::str(t).cast<std::string>());
  }
  const std::string tname = py::str(py::type::handle_of(t).attr("__name__"));
  if ((tname == "UnionType" || tname == "Union" || tname == "_UnionGenericAlias") &&
      py::hasattr(t, "__args__"))
    return maskOf(t.attr("__args__"));
  throw py::type_error("isinstance() arg 2 must be a type, a tuple of types, or a union");
}

// A stand-in of the kind a Python object loads as: the type checks look at
// the kind only, so big lists and out-of-range ints need no conversion.
std::optional<Value> kindSample(py::handle h) {
  const auto kind = orv::pyvalue::kindOf(h);
  if (!kind) return std::nullopt;
  switch (*kind) {
    case Value::Kind::None:
      return Value();
    case Value::Kind::Bool:
      return Value(false);
    case Value::Kind::Int:
      return Value(0);
    case Value::Kind::Float:
      return Value(0.0);
    case Value::Kind::Text:
      return Value("");
    case Value::Kind::Bytes:
      return Value(orv::Bytes{});
    case Value::Kind::List:
      return Value::list({});
    case Value::Kind::Tuple:
      return Value::tuple({});
  }
  return std::nullopt;
}

py::object intType() {
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(&PyLong_Type));
}
py::object listType() {
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(&PyList_Type));
}

}  // namespace

void bindConvert(py::module_& m) {
  // Each docstring starts with the signature the stubs are made from: the
  // arguments are dynamic Values in C++.
  py::options opts;
  opts.disable_function_signatures();
  // Bit helpers.
  m.def(
      "clearBit",
      [](const Value& number, const Value& index) {
        return orv::clearBit(number.asInt(), index.asInt());
      },
      py::arg("number"), py::arg("index"),
      "clearBit(number: int, index: int) -> int\n\n"
      "The number with bit index set to 0.");
  m.def(
      "readBit",
      [](const Value& number, const Value& index) {
        return orv::readBit(number.asInt(), index.asInt());
      },
      py::arg("number"), py::arg("index"),
      "readBit(number: int, index: int) -> int\n\n"
      "Bit index of number, 0 or 1.");
  m.def(
      "fillBit",
      [](const Value& number, const Value& index) {
        return orv::fillBit(number.asInt(), index.asInt());
      },
      py::arg("number"), py::arg("index"),
      "fillBit(number: int, index: int) -> int\n\n"
      "The number with bit index set to 1.");
  m.def(
      "writeBit",
      [](const Value& number, const Value& index, const Value& value) {
        return orv::writeBit(number.asInt(), index.asInt(), value);
      },
      py::arg("number"), py::arg("index"), py::arg("value"),
      "writeBit(number: int, index: int, value: int) -> int\n\n"
      "The number with bit index set to value (0 or 1).");
  m.def(
      "changeToTrellisPort", [](const Value& slot) { return orv::changeToTrellisPort(slot); },
      py::arg("slot"),
      "changeToTrellisPort(slot: int) -> int\n\n"
      "The firmware's port of a Trellis slot.");

  // Bytes to number.
#define ORV_FROM_BYTES(name, result)                                                         \
  m.def(                                                                                     \
      #name, [](const Value& int_list) { return orv::name(int_list); }, py::arg("int_list"), \
      #name                                                                                  \
      "(int_list: collections.abc.Sequence[int]) -> " result                                 \
      "\n\nThe number in the bytes of int_list, high byte first (the name gives width and kind).")
  ORV_FROM_BYTES(convert2U8ToU16, "int");
  ORV_FROM_BYTES(convert4U8ToU32, "int");
  ORV_FROM_BYTES(convert8U8ToU64, "int");
  ORV_FROM_BYTES(convert2U8ToI16, "int");
  ORV_FROM_BYTES(convert4U8ToI32, "int");
  ORV_FROM_BYTES(convert8U8ToI64, "int");
  ORV_FROM_BYTES(convert4U8ToF32, "float");
  ORV_FROM_BYTES(convert8U8ToF64, "float");
#undef ORV_FROM_BYTES

  // Number to bytes.
#define ORV_INT_TO_BYTES(name, type)                                                          \
  m.def(                                                                                      \
      #name,                                                                                  \
      [](py::handle value) { return toBytes(orv::name(static_cast<type>(intBits(value)))); }, \
      py::arg("value"),                                                                       \
      #name                                                                                   \
      "(value: int) -> bytes\n\nThe value as bytes, high byte first (the name gives width "   \
      "and kind).")
  ORV_INT_TO_BYTES(convertU16To2U8, uint16_t);
  ORV_INT_TO_BYTES(convertU32To4U8, uint32_t);
  ORV_INT_TO_BYTES(convertU64To8U8, uint64_t);
  ORV_INT_TO_BYTES(convertI16To2U8, int16_t);
  ORV_INT_TO_BYTES(convertI32To4U8, int32_t);
  ORV_INT_TO_BYTES(convertI64To8U8, int64_t);
#undef ORV_INT_TO_BYTES
  m.def(
      "convertF32To4U8",
      [](py::handle value) {
        return toBytes(orv::convertF32To4U8(orv::toFloat32(floatArg(value))));
      },
      py::arg("value"),
      "convertF32To4U8(value: float) -> bytes\n\n"
      "A number as a 32-bit float, 4 bytes, high byte first.");
  m.def(
      "convertF64To8U8",
      [](py::handle value) { return toBytes(orv::convertF64To8U8(floatArg(value))); },
      py::arg("value"),
      "convertF64To8U8(value: float) -> bytes\n\n"
      "A number as a 64-bit float, 8 bytes, high byte first.");

  // Text and addresses.
  m.def(
      "convertU8ListToStr", [](const Value& int_list) { return orv::convertU8ListToStr(int_list); },
      py::arg("int_list"),
      "convertU8ListToStr(int_list: collections.abc.Sequence[int]) -> str\n\n"
      "Bytes (or a list of them) as text.");
  m.def(
      "convertStrToU8List",
      [](const Value& str_) { return orv::convertStrToU8List(str_.asText()); }, py::arg("str_"),
      "convertStrToU8List(str_: str) -> list[int]\n\n"
      "Text as a list of its bytes.");
  m.def(
      "convertIPAddrTo4U8",
      [](const Value& value) { return toBytes(orv::convertIPAddrTo4U8(value.asText())); },
      py::arg("value"),
      "convertIPAddrTo4U8(value: str) -> bytes\n\n"
      "A dotted IPv4 address as 4 bytes.");
  m.def(
      "convertMACAddrTo6U8",
      [](const Value& str_) { return orv::convertMACAddrTo6U8(str_.asText()); }, py::arg("str_"),
      "convertMACAddrTo6U8(str_: str) -> list[int]\n\n"
      "\"aa:bb:cc:dd:ee:ff\" as a list of 6 bytes.");

  // Bit lists.
  m.def(
      "convertIntToBinaryList",
      [](const Value& value_int, const Value& width) {
        return orv::convertIntToBinaryList(value_int.asInt(), width.asInt());
      },
      py::arg("value_int"), py::arg("width"),
      "convertIntToBinaryList(value_int: int, width: int) -> list[int]\n\n"
      "The low width bits of value_int as a list of 0 and 1, bit 0 first.");
  m.def(
      "convertIndexAndBinaryListsToInt",
      [](const Value& index_list, const Value& binary_list) {
        return orv::convertIndexAndBinaryListsToInt(index_list, binary_list);
      },
      py::arg("index_list"), py::arg("binary_list"),
      "convertIndexAndBinaryListsToInt(index_list: collections.abc.Sequence[int], binary_list: "
      "collections.abc.Sequence[int]) -> int\n\n"
      "The word with binary_list[i] at bit index_list[i].");
  m.def(
      "convertIndexListToInt",
      [](const Value& index_list) { return orv::convertIndexListToInt(index_list); },
      py::arg("index_list"),
      "convertIndexListToInt(index_list: collections.abc.Sequence[int]) -> int\n\n"
      "The mask with a bit set for each index.");
  m.def(
      "convertIntToIndexList",
      [](const Value& value_int) { return orv::convertIntToIndexList(value_int.asInt()); },
      py::arg("value_int"),
      "convertIntToIndexList(value_int: int) -> list[int]\n\n"
      "The indices of the set bits of value_int, lowest first.");

  // List shaping.
  m.def(
      "coerce",
      [](const Value& list_, const Value& lower, const Value& upper) {
        return orv::coerce(list_, lower, upper);
      },
      py::arg("list_"), py::arg("lower") = 0, py::arg("upper") = 1,
      "coerce(list_: collections.abc.Sequence[float], lower: float = 0, upper: float = 1) -> "
      "list[typing.Any]\n\n"
      "Each element clipped into lower..upper.");
  m.def(
      "adjustDataList",
      [](const Value& data_list, const Value& list_length, const Value& padding_num) {
        return orv::adjustDataList(data_list, list_length.asInt(), padding_num);
      },
      py::arg("data_list"), py::arg("list_length") = 8, py::arg("padding_num") = 0,
      "adjustDataList(data_list: collections.abc.Sequence[typing.Any], list_length: int = 8, "
      "padding_num: typing.Any = 0) -> list[typing.Any]\n\n"
      "Exactly list_length items: cut, or padded on the right with padding_num.");

  // Argument checks.
  m.def(
      "checkInputType",
      [](py::handle data, py::handle correct_type) {
        const orv::TypeMask mask = maskOf(correct_type);
        const auto sample = kindSample(data);
        if (!sample) {
          // Only `object` admits a type the device has no kind for.
          if (mask != orv::kTypeAny) orv::raise(orv::ErrorId::InputTypeNotCorrectError);
          return;
        }
        orv::checkInputType(*sample, mask);
      },
      py::arg("data"),
      py::arg_v("correct_type", py::make_tuple(intType(), listType()), "(int, list)"),
      "checkInputType(data: object, correct_type: type | tuple[type, ...] = (int, list)) -> "
      "None\n\n"
      "Raises InputTypeNotCorrectError unless data is of correct_type (a type or a tuple of "
      "them).");
  m.def(
      "checkInputTypeConsistent",
      [](py::handle data, py::handle data2) {
        const auto a = kindSample(data);
        const auto b = kindSample(data2);
        if (a && b) return orv::checkInputTypeConsistent(*a, *b);
        // Types the device has no kind for are consistent only with themselves.
        if (a || b || Py_TYPE(data.ptr()) != Py_TYPE(data2.ptr()))
          orv::raise(orv::ErrorId::InputTypeNotConsistentError);
      },
      py::arg("data"), py::arg("data2"),
      "checkInputTypeConsistent(data: object, data2: object) -> None\n\n"
      "Raises InputTypeNotConsistentError unless data and data2 have the same type.");
  m.def(
      "checkEachItemInRange",
      [](const Value& int_list, const Value& low, const Value& high, py::object msg) {
        std::optional<std::string> text;
        if (!msg.is_none()) text = py::str(msg).cast<std::string>();
        orv::checkEachItemInRange(int_list, low, high, std::move(text));
      },
      py::arg("int_list"), py::arg("low") = 0, py::arg("high") = 255, py::arg("msg") = py::none(),
      "checkEachItemInRange(int_list: collections.abc.Sequence[float], low: float = 0, high: float "
      "= 255, msg: str | None = None) -> None\n\n"
      "Raises InputDataNotInRangeError (with msg) at the first item outside low..high.");
  m.def(
      "checkFuncPinMap",
      [](const Value& cell, const Value& pinmap_list, const Value& allow_state_list) {
        return orv::checkFuncPinMap(cell, pinmap_list, allow_state_list);
      },
      py::arg("cell"), py::arg("pinmap_list"), py::arg("allow_state_list"),
      "checkFuncPinMap(cell: collections.abc.Sequence[int], pinmap_list: "
      "collections.abc.Sequence[typing.Any], allow_state_list: "
      "collections.abc.Sequence[typing.Any]) -> bool\n\n"
      "Whether pinmap_list[pin] of cell (port, pin) is among allow_state_list.");
  m.def(
      "checkPinMap",
      [](const Value& cell_list, const Value& pinmap_list, const Value& allow_state_list) {
        return orv::checkPinMap(cell_list, pinmap_list, allow_state_list);
      },
      py::arg("cell_list"), py::arg("pinmap_list"), py::arg("allow_state_list"),
      "checkPinMap(cell_list: collections.abc.Sequence[collections.abc.Sequence[int]], "
      "pinmap_list: collections.abc.Sequence[typing.Any], allow_state_list: "
      "collections.abc.Sequence[typing.Any]) -> bool\n\n"
      "Whether every cell passes checkFuncPinMap.");
}
