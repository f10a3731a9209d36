// Measurement as the host sees it: the C++ core decodes the frame and gives
// every decimal as exact text; here each becomes a decimal.Decimal (the
// overload marker a decimal.Overflow instance), and the fields go into the
// object's _data mapping, which the properties read.
#include <pybind11/stl.h>

#include "analog/measurement.hpp"
#include "bindings/bindings.hpp"

namespace orv::py_bind {

namespace {

struct MeasurementObject {
  py::dict data;
  std::string text;
};

py::object decimalObject(const DisplayDecimal& d) {
  py::module_ decimal = py::module_::import("decimal");
  switch (d.kind) {
    case DisplayDecimal::Kind::Overflow:
      return decimal.attr("Overflow")();
    case DisplayDecimal::Kind::Level:
      return py::int_(d.level);
    case DisplayDecimal::Kind::Decimal:
      break;
  }
  return decimal.attr("Decimal")(d.decimal.exactText());
}

py::object optionalText(const std::optional<std::string>& s) {
  return s ? py::object(py::str(*s)) : py::object(py::none());
}

MeasurementObject decode(const py::object& b) {
  const py::bytes raw = py::bytes(b);
  const std::string bytes = raw;
  std::optional<Measurement> m;
  try {
    m.emplace(std::span(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()));
  } catch (const FrameError& e) {
    switch (e.kind()) {
      case FrameError::Kind::Key:
        throw py::key_error(e.text());
      case FrameError::Kind::Attribute:
        throw py::attribute_error(e.text());
      case FrameError::Kind::Decimal:
        // The host's decimal constructor raises its own error for the text.
        py::module_::import("decimal").attr("Decimal")(e.text());
        throw py::value_error("not a decimal: " + e.text());
    }
  }
  MeasurementObject o;
  py::dict& d = o.data;
  d["binary"] = b;
  d["mode"] = m->mode;
  d["range"] = m->range;
  d["display"] = m->display;
  d["overload"] = m->overload;
  d["ncv"] = m->ncv;
  const py::object display_decimal = decimalObject(m->display_decimal);
  d["display_decimal"] = display_decimal;
  d["display_unit"] = optionalText(m->display_unit);
  d["unit"] = optionalText(m->unit);
  // Unrotated, the value is the displayed object itself.
  const bool rotated = m->unit != m->display_unit;
  d["decimal"] = rotated ? decimalObject(m->decimal) : display_decimal;
  d["progres"] = m->progres;
  d["max"] = m->max;
  d["min"] = m->min;
  d["hold"] = m->hold;
  d["rel"] = m->rel;
  d["auto"] = m->auto_;
  d["battery"] = m->battery;
  d["hvwarning"] = m->hvwarning;
  d["dc"] = m->dc;
  d["peak_max"] = m->peak_max;
  d["peak_min"] = m->peak_min;
  d["bar_pol"] = m->bar_pol;
  o.text = m->str();
  return o;
}

void bindMeasurement(py::module_& m) {
  py::class_<MeasurementObject> cls(
      m, "Measurement",
      "One frame of a digital multimeter decoded: mode, range, display text, the displayed "
      "number as a decimal.Decimal, unit and status flags.\n\n"
      "Measurement(b): b is the frame, 14 bytes.");
  cls.def(py::init(&decode), py::arg("b"));
  cls.def_readonly("_data", &MeasurementObject::data);
  cls.def("__str__", [](const MeasurementObject& o) { return o.text; });

  const auto field = [&cls](const char* name, const char* key, const char* type, const char* doc) {
    const std::string text = std::string("(self) -> ") + type + "\n\n" + doc;
    cls.def_property_readonly(
        name, [key = std::string(key)](const MeasurementObject& o) { return o.data[key.c_str()]; },
        text.c_str());
  };
  field("binary", "binary", "typing.Any", "The frame as given.");
  field("mode", "mode", "str", "The mode's name (\"DCV\", \"OHM\", ...).");
  field("range", "range", "str", "The range digit, one character.");
  field("display", "display", "str", "The display text without blanks.");
  field("overload", "overload", "bool", "True when the display shows an overload.");
  field("display_decimal", "display_decimal", "decimal.Decimal | decimal.Overflow | int",
        "The displayed number; decimal.Overflow() on overload; the level 0..5 (-1 unknown) in "
        "NCV mode.");
  field("display_unit", "display_unit", "str | None", "The unit shown, with its prefix.");
  field("unit", "display_unit", "str | None", "The unit shown, with its prefix (display_unit).");
  field("value", "decimal", "decimal.Decimal | decimal.Overflow | int",
        "The number with the prefix's digits rotated in (decimal rotate by its power of ten).");
  field("progress", "progres", "int", "The progress bar, 0..99.");
  field("isMax", "max", "bool", "Max hold.");
  field("isMin", "min", "bool", "Min hold.");
  field("isHold", "hold", "bool", "Display hold.");
  field("isRel", "rel", "bool", "Relative mode.");
  field("isAuto", "auto", "bool", "Auto range.");
  field("hasBatteryWarning", "battery", "bool", "Low battery.");
  field("hasHVWarning", "hvwarning", "bool", "High-voltage warning.");
  field("isDC", "dc", "bool", "DC.");
  field("isMaxPeak", "peak_max", "bool", "Max peak.");
  field("isMinPeak", "peak_min", "bool", "Min peak.");
  field("isBarPol", "bar_pol", "bool", "Bar polarity.");

  cls.attr("_MODE") = py::cast(Measurement::MODE());
  cls.attr("_OVERLOAD") = py::cast(Measurement::OVERLOAD());
  cls.attr("_NCV") = py::cast(Measurement::NCV());
  cls.attr("_EXPONENTS") = py::cast(Measurement::EXPONENTS());
  py::dict units;
  for (const auto& [mode, row] : Measurement::UNITS()) units[py::str(mode)] = py::cast(row);
  cls.attr("_UNITS") = units;
}

const BindingRegistrar kMeasurement{{.name = "Measurement", .bind = &bindMeasurement}};

}  // namespace

}  // namespace orv::py_bind
