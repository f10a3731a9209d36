// One line binds an operation and its awaitable twin:
//
//   defTwin(cls, "Sys_setRTC", &SystemModule::Sys_setRTC, "year"_a, "month"_a, ...);
//
// gives   Sys_setRTC(year, ..., timeout=3)  blocking, the GIL released
//         Sys_setRTC_async(year, ...)       an asyncio future; same C++ body
//
// The operation is `R Module::op(const Call&, Args...)`; its Call carries the
// flavour (link/call.hpp).
#pragma once

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <string>
#include <type_traits>

#include "bindings/twin.hpp"
#include "bindings/value_caster.hpp"
#include "link/call.hpp"
#include "models/module.hpp"

namespace orv::py_bind {

struct TwinOptions {
  double timeout = 3;                // default of the blocking method's timeout
  const char* async_name = nullptr;  // when the twin's name is not name + "_async"
};

template <class Cls, class Module, class R, class... Args, class... Extra>
void defTwin(Cls& cls, const char* name, R (Module::*op)(const Call&, Args...), TwinOptions opt,
             const Extra&... extra) {
  cls.def(
      name,
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
      extra..., py::arg("timeout") = opt.timeout);

  const std::string async_name = opt.async_name ? opt.async_name : std::string(name) + "_async";
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
      extra...);
}

template <class Cls, class Module, class R, class... Args, class... Extra>
void defTwin(Cls& cls, const char* name, R (Module::*op)(const Call&, Args...),
             const Extra&... extra) {
  defTwin(cls, name, op, TwinOptions{}, extra...);
}

// A read-only attribute backed by an Attr<T> member.
template <class Cls, class Module, class T>
void defAttr(Cls& cls, const char* name, Attr<T> Module::*member) {
  cls.def_property_readonly(name, [member](Module& self) { return (self.*member).get(); });
}

}  // namespace orv::py_bind
