// DataLogger as the host sees it: a base of nearly every model class and a
// class of its own.  Each value of a row is taken into the core's field kinds
// here, in the caller's thread (exact floats, ints, bools, None and text); any
// other object goes in as the text the CSV writer would make of it: repr() for
// a float subclass, str() for the rest.
#include <pybind11/stl.h>

#include <limits>

#include "analog/data_logger.hpp"
#include "bindings/bindings.hpp"

namespace orv::py_bind {

namespace {

CsvField field(const py::handle& v) {
  if (v.is_none()) return CsvNone{};
  if (PyBool_Check(v.ptr())) return v.ptr() == Py_True;
  if (PyFloat_CheckExact(v.ptr())) return PyFloat_AS_DOUBLE(v.ptr());
  if (PyLong_CheckExact(v.ptr())) {
    int overflow = 0;
    const long long i = PyLong_AsLongLongAndOverflow(v.ptr(), &overflow);
    if (!overflow) return static_cast<int64_t>(i);
  }
  if (PyUnicode_CheckExact(v.ptr())) return v.cast<std::string>();
  if (PyFloat_Check(v.ptr())) return py::repr(v).cast<std::string>();
  return py::str(v).cast<std::string>();
}

[[noreturn]] void csvError(const std::string& msg) {
  const py::object err = py::module_::import("csv").attr("Error");
  PyErr_SetString(err.ptr(), msg.c_str());
  throw py::error_already_set();
}

// A row is any iterable (a text gives one field per character).
CsvRow row(const py::handle& r) {
  if (!py::isinstance<py::iterable>(r))
    csvError("iterable expected, not " +
             py::type::handle_of(r).attr("__name__").cast<std::string>());
  CsvRow out;
  for (const py::handle item : py::iter(r)) out.push_back(field(item));
  return out;
}

std::vector<CsvRow> matrix(const py::handle& value_mat) {
  std::vector<CsvRow> out;
  for (const py::handle r : py::iter(value_mat)) out.push_back(row(r));
  return out;
}

void bindLogger(py::module_& m) {
  using L = DataLogger;
  py::class_<L, std::shared_ptr<L>> cls(
      m, "DataLogger",
      "Writes rows of values to a CSV file from a writer thread of its own "
      "(save_data_thread), in the default CSV dialect (CR LF line ends, quotes only where "
      "needed, UTF-8).\n\nDataLogger(): the writer starts, held until a file is open.");
  cls.def(py::init([] { return std::shared_ptr<L>(std::make_shared<PlainDataLogger>()); }));
  cls.def(
      "Logger_openFile",
      [](L& self, const py::object& filename, bool clear_old, bool verbose) {
        const std::string name = py::str(py::module_::import("os").attr("fspath")(filename));
        py::gil_scoped_release rel;
        return self.Logger_openFile(name, clear_old, verbose);
      },
      py::arg("filename"), py::arg("clear_old") = true, py::arg("verbose") = true,
      "Logger_openFile(self, filename: str, clear_old: bool = True, verbose: bool = True) -> "
      "int\n\n"
      "Opens the file (clear_old: truncated, else appended to) and lets the writer run; "
      "verbose prints \"Opened file name: (<filename>)\". Returns 0.\n\n"
      "Raises:\n    OSError: the file cannot be opened.");
  cls.def(
      "Logger_writeHeader",
      [](L& self, const py::object& header) { return self.Logger_writeList(row(header)); },
      py::arg("header"),
      "Logger_writeHeader(self, header: collections.abc.Sequence[str]) -> int\n\n"
      "Queues one row of column names. Returns 0.");
  cls.def(
      "Logger_writeList",
      [](L& self, const py::object& value_list) { return self.Logger_writeList(row(value_list)); },
      py::arg("value_list"),
      "Logger_writeList(self, value_list: collections.abc.Iterable[typing.Any]) -> int\n\n"
      "Queues one row; each value is written as the CSV writer formats it. Returns 0.");
  cls.def(
      "Logger_write2DList",
      [](L& self, const py::object& value_mat) {
        return self.Logger_write2DList(matrix(value_mat));
      },
      py::arg("value_mat"),
      "Logger_write2DList(self, value_mat: collections.abc.Iterable[collections.abc.Iterable["
      "typing.Any]]) -> int\n\nQueues rows, written together; an empty list writes nothing. "
      "Returns 0.");
  cls.def(
      "Logger_writeValue",
      [](L& self, const py::object& value) { return self.Logger_writeValue(field(value)); },
      py::arg("value"),
      "Logger_writeValue(self, value: typing.Any) -> int\n\nQueues a row of one value. Returns 0.");
  cls.def(
      "_Logger_close",
      [](L& self, bool verbose) {
        py::gil_scoped_release rel;
        return self.Logger_close_(verbose);
      },
      py::arg("verbose") = true,
      "_Logger_close(self, verbose: bool = True) -> int\n\n"
      "Closes the file and ends the writer; rows still queued are lost. Returns 0.");
  cls.def(
      "_Logger_flush",
      [](L& self, double timeout) {
        py::gil_scoped_release rel;
        return self.flush(timeout);
      },
      py::arg("timeout") = 5.0,
      "_Logger_flush(self, timeout: float = 5.0) -> bool\n\n"
      "Waits until the writer has written every row queued so far, at most timeout seconds; "
      "True when nothing is left queued.");
  cls.def_property_readonly(
      "filename", [](L& self) { return self.filename(); }, "The file name last opened.");
  cls.def_property_readonly(
      "_save_data_queue_size", [](L& self) { return self.queued(); },
      "Entries waiting in the queue.");
  cls.def_property_readonly(
      "_save_data_thread_id", [](L& self) { return self.threadId(); },
      "The native id of the writer thread; 0 once it has ended.");
  // One flag on the host: the device's close and the logger's both set it.
  cls.def_property_readonly(
      "killed",
      [](L& self) {
        const auto* dev = dynamic_cast<const Device*>(&self);
        return self.loggerKilled() || (dev && dev->killed());
      },
      "True once the logger (or the device it belongs to) is closed.");
  cls.attr("queue_timeout") = L::queue_timeout;
}

const BindingRegistrar kLogger{{.name = "DataLogger", .bind = &bindLogger, .order = kBindBases}};

}  // namespace

}  // namespace orv::py_bind
