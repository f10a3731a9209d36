// Twins whose blocking method takes no timeout (stream reads, sends that wait
// for nothing), and single methods of a row: an awaitable without a blocking
// twin (its name without _async), or a blocking method whose awaitable
// namesake would be hidden by it anyway.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "bindings/twin_def.hpp"

namespace orv::py_bind {

enum class Twins { Both, BlockingOnly, AwaitableOnly };

// `op` bound from `row`, the blocking method with a timeout argument or
// without.  The awaitable form takes the row's name when it is the only one
// (AwaitableOnly), else the row's twin name.
template <size_t Defaults = 0, class Cls, class Module, class R, class... Args>
void defTwins(Cls& cls, R (Module::*op)(const Call&, Args...), const Op& row, Twins which,
              bool with_timeout) {
  if (which == Twins::Both && with_timeout) return defTwin<Defaults>(cls, op, row);
  py::options opts;
  opts.disable_function_signatures();
  const std::string doc = blockingDoc(row, with_timeout);
  Op async_row = row;
  std::string async_name = asyncName(row);
  if (which == Twins::AwaitableOnly) async_name = row.name;
  async_row.async_name = async_name.c_str();
  const std::string async_doc = awaitableDoc(async_row);
  withRowArgs<sizeof...(Args), Defaults>(row, [&](const auto&... args) {
    auto blocking = [op](Module& self, Args... args, double timeout) -> py::object {
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
    };
    if (which != Twins::AwaitableOnly && with_timeout)
      cls.def(row.name, blocking, args..., py::arg("timeout") = row.timeout, py::doc(doc.c_str()));
    if (which != Twins::AwaitableOnly && !with_timeout)
      cls.def(
          row.name, [blocking](Module& self, Args... args) { return blocking(self, args..., 3.0); },
          args..., py::doc(doc.c_str()));
    if (which != Twins::BlockingOnly)
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

// Both twins, the blocking one without a timeout.
template <size_t Defaults = 0, class Cls, class Module, class R, class... Args>
void defUntimed(Cls& cls, R (Module::*op)(const Call&, Args...), const Op& row) {
  defTwins<Defaults>(cls, op, row, Twins::Both, false);
}

}  // namespace orv::py_bind
