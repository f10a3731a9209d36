// The host's error and warning classes, made from the error table, and the
// translation of C++ exceptions into them.
#include <pybind11/stl.h>

#include <iostream>
#include <vector>

#include "bindings/bindings.hpp"
#include "link/device.hpp"
#include "link/usb_backend.hpp"

namespace orv::py_bind {
namespace {

std::vector<py::object>& classes() {
  static auto* v = new std::vector<py::object>();  // lives as long as the process
  return *v;
}

py::object g_error_base;
py::object g_warning_base;

// Error(code, msg, *args, **kwargs)
void errorInit(py::object self, py::object code, py::object msg, py::args args, py::kwargs) {
  py::module_::import("builtins").attr("Exception").attr("__init__")(self, code, msg, *args);
  self.attr("code") = code;
  self.attr("msg") = msg;
}

std::string errorStr(py::object self) {
  return py::str("Error {:d}: {}")
      .attr("format")(self.attr("code"), self.attr("msg"))
      .cast<std::string>();
}

// ORVWarning(code, msg, *args, **kwargs): reports itself unless silent.
void warningInit(py::object self, py::object code, py::object msg, py::args args,
                 py::kwargs kwargs) {
  py::module_::import("builtins").attr("UserWarning").attr("__init__")(self, code, msg, *args);
  self.attr("code") = code;
  self.attr("msg") = msg;
  bool silent = kwargs.contains("silent") && py::bool_(kwargs["silent"]);
  if (silent) return;
  // The constructor has no frame of its own here, so the whole stack is the
  // caller's.
  py::list stack = py::module_::import("traceback").attr("format_stack")();
  py::print(py::str("\n").attr("join")(stack));
  // Warned as the instance itself, whose text is "Warning {code}: {msg}"; a
  // category class would be instantiated again by the warnings machinery.
  py::module_::import("warnings").attr("warn")(self, py::none(), 2);
}

std::string warningStr(py::object self) {
  return py::str("Warning {:d}: {}")
      .attr("format")(self.attr("code"), self.attr("msg"))
      .cast<std::string>();
}

py::object makeClass(const char* name, py::tuple bases, py::module_& m, const std::string& doc) {
  py::dict ns;
  ns["__module__"] = m.attr("__name__");
  ns["__doc__"] = doc;
  return py::reinterpret_borrow<py::object>((PyObject*)&PyType_Type)(name, bases, ns);
}

py::object makeClass(const char* name, py::object base, py::module_& m, const std::string& doc) {
  return makeClass(name, py::make_tuple(base), m, doc);
}

// The rows' second bases: builtin exception classes of the host.
struct AlsoBase {
  ErrorId id;
  const char* builtin;
};
constexpr AlsoBase kAlsoBases[] = {
#define ORV_ERR(kind, cls, constant, code, status, msg)
#define ORV_ERR_NC(kind, cls, code, msg)
#define ORV_ERR_ALSO(cls, builtin) {ErrorId::cls, #builtin},
#include "link/errors.def"
#undef ORV_ERR
#undef ORV_ERR_NC
#undef ORV_ERR_ALSO
};

py::tuple basesOf(const ErrorInfo& row, py::object base) {
  py::list out;
  out.append(base);
  for (const AlsoBase& also : kAlsoBases)
    if (also.id == row.id) out.append(py::module_::import("builtins").attr(also.builtin));
  return py::tuple(out);
}

}  // namespace

py::object errorClass(ErrorId id) { return classes().at(static_cast<size_t>(id)); }

void bindErrors(py::module_& m) {
  py::object exc = py::module_::import("builtins").attr("Exception");
  py::object uw = py::module_::import("builtins").attr("UserWarning");

  g_error_base =
      makeClass("Error", exc, m,
                "The driver's errors: each class has its fixed code and default message.\n\n"
                "Error(code, msg): str(err) is \"Error {code}: {msg}\".");
  g_error_base.attr("__init__") =
      py::cpp_function(errorInit, py::is_method(g_error_base), py::arg("code"), py::arg("msg"));
  g_error_base.attr("__str__") = py::cpp_function(errorStr, py::is_method(g_error_base));
  m.attr("Error") = g_error_base;

  g_warning_base = makeClass(
      "ORVWarning", uw, m,
      "The driver's warnings (the motion family, queue overflows): each class has its fixed "
      "code and default message.\n\n"
      "ORVWarning(code, msg, silent=False): reports itself with the stack unless silent; "
      "str(w) is \"Warning {code}: {msg}\".");
  g_warning_base.attr("__init__") =
      py::cpp_function(warningInit, py::is_method(g_warning_base), py::arg("code"), py::arg("msg"));
  g_warning_base.attr("__str__") = py::cpp_function(warningStr, py::is_method(g_warning_base));
  m.attr("ORVWarning") = g_warning_base;

  size_t n = 0;
  const ErrorInfo* table = errorTable(&n);
  classes().reserve(n);
  for (size_t i = 0; i < n; ++i) {
    const ErrorInfo& row = table[i];
    py::object base = row.kind == ErrorKind::Warning ? g_warning_base : g_error_base;
    std::string name(row.name);
    std::string doc = name + ": " + (row.kind == ErrorKind::Warning ? "warning" : "error") +
                      " code " + std::to_string(row.code);
    if (!row.constant.empty()) doc += " (pyorv." + std::string(row.constant) + ")";
    doc += ".\n\nDefault message: \"" + std::string(row.message) + "\"";
    py::object cls = makeClass(name.c_str(), basesOf(row, base), m, doc);
    const int code = row.code;
    const std::string message(row.message);
    // Name(msg=None, *args, **kwargs): the class's own code, its message by default.
    cls.attr("__init__") = py::cpp_function(
        [base, code, message](py::object self, py::object msg, py::args args, py::kwargs kwargs) {
          if (msg.is_none()) msg = py::str(message);
          base.attr("__init__")(self, code, msg, *args, **kwargs);
        },
        py::is_method(cls), py::arg("msg") = py::none());
    cls.attr("code") = code;
    cls.attr("default_message") = message;
    m.attr(name.c_str()) = cls;
    if (!row.constant.empty()) m.attr(std::string(row.constant).c_str()) = code;
    classes().push_back(cls);
  }

  // printGenericError(err): "<ClassName>: <text>"
  m.def(
      "printGenericError",
      [](py::object err) {
        py::print(py::str(py::type::handle_of(err).attr("__name__")) + py::str(":"), err);
      },
      "Prints \"<ClassName>: <text>\" of an error.");
  m.def(
      "checkFirmwareError",
      [](py::object status) -> int {
        // A status that is not an integer matches no row.
        if (!py::isinstance<py::int_>(status)) throw Error(ErrorId::FirmwareOtherError);
        return checkFirmwareError(status.cast<int64_t>());
      },
      "Raises the error of a firmware status byte; 0 for status 0.");

  py::register_exception_translator([](std::exception_ptr p) {
    if (!p) return;
    py::object inst = exceptionObject(p);
    if (inst.is_none()) std::rethrow_exception(p);
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(inst.ptr())), inst.ptr());
  });
}

py::object exceptionObject(std::exception_ptr p) {
  auto builtin = [](const char* name) { return py::module_::import("builtins").attr(name); };
  try {
    std::rethrow_exception(p);
  } catch (const Error& e) {
    py::object cls = errorClass(e.id());
    if (e.isWarning()) {
      py::dict kw;
      kw["silent"] = true;  // its report was made when the C++ side made it
      return cls(e.msg(), **kw);
    }
    py::object inst = cls(e.msg());
    // The operating system's failure behind it, as `raise ... from OSError(...)`.
    if (e.osErrno() != 0) inst.attr("__cause__") = builtin("OSError")(e.osErrno(), e.osText());
    return inst;
  } catch (const py::error_already_set& e) {
    return e.value();
  } catch (const TypeError& e) {
    return builtin("TypeError")(e.what());
  } catch (const ValueError& e) {
    return builtin("ValueError")(e.what());
  } catch (const IndexError& e) {
    return builtin("IndexError")(e.what());
  } catch (const KeyError& e) {
    return builtin("KeyError")(e.what());
  } catch (const OSError& e) {
    return builtin("OSError")(e.err(), e.what());
  } catch (const GateAlreadyOpen& e) {
    return builtin("RuntimeError")(e.what());
  } catch (const AsyncTimeout& e) {
    return py::module_::import("asyncio").attr("TimeoutError")(e.what());
  } catch (const Cancelled&) {
    return py::module_::import("asyncio").attr("CancelledError")();
  } catch (const usb::Timeout& e) {
    return builtin("TimeoutError")(e.what());
  } catch (const SendTimeout& e) {
    return builtin("TimeoutError")(e.what());
  } catch (const usb::Failure& e) {
    return builtin("OSError")(e.what());
  } catch (...) {
    return py::none();
  }
}

}  // namespace orv::py_bind
