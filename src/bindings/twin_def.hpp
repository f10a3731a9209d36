// One line binds an operation and its awaitable twin, from one row of the
// module's table:
//
//   defTwin(cls, &SystemModule::Sys_setRTC,
//           {"Sys_setRTC", "Sets the device's real-time clock.",
//            {{"year", kInt, "1900.., or 0..99 for 1900..1999"}, ...},
//            {kInt, "0, or a negative firmware error code"},
//            "InputTypeNotCorrectError: an argument that is not an int."});
//
// gives   Sys_setRTC(year, ..., timeout=3)  blocking, the GIL released
//         Sys_setRTC_async(year, ...)       a coroutine; same C++ body
//
// The operation is `R Module::op(const Call&, Args...)`; its Call carries the
// flavour (link/call.hpp).
//
// Why the row sits next to its defTwin line, and why it carries Python types:
// the core takes most arguments as a dynamic Value, so the C++ signature says
// nothing a user can act on (`object` in, `object` out).  The row is the one
// place that says what an argument is as a Python user writes it (`int`,
// `int | collections.abc.Sequence[int]`, ...), what the result is, and what
// is refused before anything is sent.  defTwin builds from it the docstring
// and the signature line of *both* twins, with pybind11's own signature
// turned off for them, so the blocking method and its `_async` twin cannot
// disagree and pybind11-stubgen reads the precise types from the first
// docstring line.  Keeping the row beside the binding (rather than in a
// separate file) keeps the argument names, which the row also supplies to
// pybind11, in the one place a reader of the binding looks.
//
// A trailing argument with a default value carries it in its row as a
// Python literal, and the binding says how many there are:
// defTwin<1>(relay, &RelayModule::Relay_read, {... {"index", kInt, "...", "-1"} ...}).
// A row that does not fit its operation (argument count, defaults) fails the
// import with a message naming the operation.
#pragma once

#include <pybind11/eval.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "bindings/twin.hpp"
#include "bindings/value_caster.hpp"
#include "link/call.hpp"
#include "models/module.hpp"

namespace orv::py_bind {

// Python annotations the rows share.
inline constexpr const char* kInt = "int";
inline constexpr const char* kFloat = "float";
inline constexpr const char* kStr = "str";
inline constexpr const char* kInts = "list[int]";
inline constexpr const char* kStrs = "list[str]";
inline constexpr const char* kFloats = "collections.abc.Sequence[float]";
// A pin list or a bit mask (bit n for pin n).
inline constexpr const char* kPins = "int | collections.abc.Sequence[int]";
inline constexpr const char* kStatusText = "0, or a negative firmware error code";

// One argument of an operation.
struct Arg {
  const char* name;
  const char* type;                     // the Python annotation
  const char* about;                    // meaning, range, unit
  const char* default_value = nullptr;  // a Python literal, for a trailing argument that has one
};

// What the operation returns.
struct Result {
  const char* type;  // the Python annotation
  const char* about;
};

// One row of a module's table: an operation as the host sees it.
struct Op {
  const char* name;
  const char* summary;  // one line
  std::vector<Arg> args;
  Result result;
  const char* raises = nullptr;      // what is refused before anything is sent, one line per error
  const char* async_name = nullptr;  // when the twin's name is not name + "_async"
  double timeout = 3;                // default of the blocking method's timeout
};

// The twin's name.
inline std::string asyncName(const Op& row) {
  return row.async_name ? row.async_name : std::string(row.name) + "_async";
}

// The annotation of an awaitable's result.
inline std::string coroutineOf(const char* type) {
  return std::string("collections.abc.Coroutine[typing.Any, typing.Any, ") + type + "]";
}

inline std::string timeoutText(double t) {
  std::string s = py::str(py::float_(t)).cast<std::string>();
  if (s.size() > 2 && s.compare(s.size() - 2, 2, ".0") == 0) s.resize(s.size() - 2);
  return s;
}

// "name(self, a: T, ..., timeout: float = 3) -> R": the line pybind11-stubgen
// reads the stub from.
inline std::string signatureLine(const std::string& name, const Op& row, bool with_timeout,
                                 const std::string& result) {
  std::string s = name + "(self";
  for (const Arg& a : row.args) {
    s += std::string(", ") + a.name + ": " + a.type;
    if (a.default_value) s += std::string(" = ") + a.default_value;
  }
  if (with_timeout) s += ", timeout: float = " + timeoutText(row.timeout);
  return s + ") -> " + result;
}

inline void indentLines(std::string& out, const char* text) {
  std::string t(text);
  size_t start = 0;
  while (start <= t.size()) {
    size_t end = t.find('\n', start);
    if (end == std::string::npos) end = t.size();
    out += "    " + t.substr(start, end - start) + "\n";
    start = end + 1;
  }
}

// The body shared by both twins' docstrings: arguments, result, refusals.
inline std::string docBody(const Op& row, bool with_timeout) {
  std::string d;
  if (!row.args.empty() || with_timeout) {
    d += "\nArgs:\n";
    for (const Arg& a : row.args) {
      std::string line = std::string(a.name) + " (" + a.type + ")";
      if (*a.about) line += std::string(": ") + a.about;
      if (a.default_value) line += std::string(" (default ") + a.default_value + ")";
      indentLines(d, line.c_str());
    }
    if (with_timeout)
      indentLines(d, ("timeout (float): seconds to wait for each reply, above 0 (default " +
                      timeoutText(row.timeout) + ")")
                         .c_str());
  }
  d += "\nReturns:\n";
  indentLines(d, (std::string(row.result.type) + ": " + row.result.about).c_str());
  if (row.raises || with_timeout) {
    d += "\nRaises, before anything is sent:\n";
    if (row.raises) indentLines(d, row.raises);
    if (with_timeout)
      indentLines(d,
                  "InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a "
                  "packet to send.");
  }
  return d;
}

// The blocking method's docstring; with_timeout when it takes one.
inline std::string blockingDoc(const Op& row, bool with_timeout = true) {
  return signatureLine(row.name, row, with_timeout, row.result.type) + "\n\n" + row.summary + "\n" +
         docBody(row, with_timeout);
}

// The awaitable twin's docstring, derived from the blocking method's row.
inline std::string awaitableDoc(const Op& row) {
  return signatureLine(asyncName(row), row, false, coroutineOf(row.result.type)) + "\n\n" +
         "Awaitable " + row.name + ", without timeout: " + row.summary + "\n" + docBody(row, false);
}

// The row's arguments for pybind11, the last `Defaults` with their default
// values.  A row that does not fit the C++ operation fails the import.
template <bool WithDefault>
auto pyArg(const Arg& a) {
  if constexpr (WithDefault)
    return py::arg_v(a.name, py::eval(a.default_value), a.default_value);
  else
    return py::arg(a.name);
}

template <size_t N, size_t Defaults, class F>
void withRowArgs(const Op& row, F&& def) {
  static_assert(Defaults <= N);
  if (row.args.size() != N)
    throw std::logic_error(std::string("pyorv: the row of ") + row.name + " has " +
                           std::to_string(row.args.size()) + " arguments, the operation " +
                           std::to_string(N));
  for (size_t i = 0; i < N; ++i)
    if ((row.args[i].default_value != nullptr) != (i >= N - Defaults))
      throw std::logic_error(std::string("pyorv: the row of ") + row.name +
                             " has defaults other than its binding's last " +
                             std::to_string(Defaults) + " arguments");
  [&]<size_t... I>(std::index_sequence<I...>) { def(pyArg<(I >= N - Defaults)>(row.args[I])...); }
  (std::make_index_sequence<N>{});
}

// An operation and its twin from one row.  `Defaults`: how many trailing
// arguments of the row have a default value.
template <size_t Defaults = 0, class Cls, class Module, class R, class... Args>
void defTwin(Cls& cls, R (Module::*op)(const Call&, Args...), const Op& row) {
  py::options opts;
  opts.disable_function_signatures();
  const std::string doc = blockingDoc(row);
  const std::string async_doc = awaitableDoc(row);
  const std::string async_name = asyncName(row);
  withRowArgs<sizeof...(Args), Defaults>(row, [&](const auto&... args) {
    cls.def(
        row.name,
        [op](Module& self, Args... args, double timeout) -> py::object {
          if constexpr (std::is_void_v<R>) {
            {
              py::gil_scoped_release rel;
              (self.*op)(Call(self.device(), Call::Flavour::Blocking, timeout), args...);
            }
            return py::none();
          } else {
            std::optional<R> r;
            {
              py::gil_scoped_release rel;
              r.emplace((self.*op)(Call(self.device(), Call::Flavour::Blocking, timeout), args...));
            }
            return py::cast(std::move(*r));
          }
        },
        args..., py::arg("timeout") = row.timeout, py::doc(doc.c_str()));

    cls.def(
        async_name.c_str(),
        [op](py::object self_obj, Args... args) {
          Module& self = self_obj.cast<Module&>();
          return makeCoroutine(self_obj, [&self, op, args...](CancelToken* tok) {
            Call c(self.device(), Call::Flavour::Awaitable, PACKET_TIMEOUT, tok);
            if constexpr (std::is_void_v<R>) {
              (self.*op)(c, args...);
              return std::function<py::object()>([] { return py::object(py::none()); });
            } else {
              auto r = std::make_shared<R>((self.*op)(c, args...));
              return std::function<py::object()>([r] { return py::cast(*r); });
            }
          });
        },
        args..., py::doc(async_doc.c_str()));
  });
}

// A method that takes no argument, bound as it is, with the docstring and
// signature of its row (no timeout): `twin` makes it the awaitable form.
template <class Cls, class F>
void defPlain(Cls& cls, const Op& row, F&& f, bool twin = false) {
  py::options opts;
  opts.disable_function_signatures();
  withRowArgs<0, 0>(row, [](auto&&...) {});
  if (twin)
    cls.def(asyncName(row).c_str(), std::forward<F>(f), py::doc(awaitableDoc(row).c_str()));
  else
    cls.def(row.name, std::forward<F>(f), py::doc(blockingDoc(row, false).c_str()));
}

// A read-only attribute backed by an Attr<T> member.
template <class Cls, class Module, class T>
void defAttr(Cls& cls, const char* name, Attr<T> Module::*member) {
  cls.def_property_readonly(name, [member](Module& self) { return (self.*member).get(); });
}

}  // namespace orv::py_bind
