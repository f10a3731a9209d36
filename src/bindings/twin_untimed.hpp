// Twins whose blocking method takes no timeout (stream reads, sends that wait
// for nothing), and single methods of a row: an awaitable without a blocking
// twin, or a blocking method without an awaitable one.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "bindings/twin_def.hpp"

namespace orv::py_bind {

enum class Twins { Both, BlockingOnly, AwaitableOnly };

// `op` bound from `row` without the timeout argument.  The awaitable form
// takes the row's name when it is the only one (AwaitableOnly), else the
// row's twin name.
template <size_t Defaults = 0, class Cls, class Module, class R, class... Args>
void defUntimed(Cls& cls, R (Module::*op)(const Call&, Args...), const Op& row,
                Twins which = Twins::Both) {
  py::options opts;
  opts.disable_function_signatures();
  const std::string doc = blockingDoc(row, false);
  Op async_row = row;
  std::string async_name = asyncName(row);
  if (which == Twins::AwaitableOnly) async_name = row.name;
  async_row.async_name = async_name.c_str();
  const std::string async_doc = awaitableDoc(async_row);
  withRowArgs<sizeof...(Args), Defaults>(row, [&](const auto&... args) {
    if (which != Twins::AwaitableOnly)
      cls.def(
          row.name,
          [op](Module& self, Args... args) -> py::object {
            if constexpr (std::is_void_v<R>) {
              {
                py::gil_scoped_release rel;
                (self.*op)(Call(self.device(), Call::Flavour::Blocking), args...);
              }
              return py::none();
            } else {
              std::optional<R> r;
              {
                py::gil_scoped_release rel;
                r.emplace((self.*op)(Call(self.device(), Call::Flavour::Blocking), args...));
              }
              return py::cast(std::move(*r));
            }
          },
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

}  // namespace orv::py_bind
