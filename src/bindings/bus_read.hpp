// The stream reads of the bus modules (UART_read, CAN_read): no timeout, a
// `delay` in both twins.  The blocking method waits (GIL released) for its
// count; the awaitable twin takes what is there and never suspends.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bindings/twin.hpp"
#include "bindings/twin_def.hpp"
#include "models/model_info.hpp"

namespace orv::py_bind {

// A function map as the host sees it: port -> [(digital port, pin), ...].
inline py::object portMapObject(const PortMap& map) {
  std::map<int, std::vector<std::pair<int, int>>> out;
  for (const auto& [port, pins] : map)
    for (const PinPair& p : pins) out[port].emplace_back(p.port, p.pin);
  return py::cast(out);
}

// `read(module, call, port, count, delay)` is the operation.
template <class Cls, class Read>
void defStreamRead(Cls& cls, const Op& row, Read read) {
  using Module = typename Cls::type;
  py::options opts;
  opts.disable_function_signatures();
  withRowArgs<3, 1>(row, [&](const auto&... args) {
    cls.def(
        row.name,
        [read](Module& self, const Value& port, const Value& count, double delay) {
          std::optional<decltype(read(self, std::declval<const Call&>(), port, count, delay))> r;
          {
            py::gil_scoped_release rel;
            r.emplace(read(self, Call(self.device(), Call::Flavour::Blocking), port, count, delay));
          }
          return py::cast(std::move(*r));
        },
        args..., py::doc(blockingDoc(row, false).c_str()));
    cls.def(
        asyncName(row).c_str(),
        [read](py::object self_obj, const Value& port, const Value& count, double delay) {
          Module& self = self_obj.cast<Module&>();
          return makeCoroutine(self_obj, [&self, read, port, count, delay](CancelToken* tok) {
            Call c(self.device(), Call::Flavour::Awaitable, PACKET_TIMEOUT, tok);
            auto r = std::make_shared<decltype(read(self, c, port, count, delay))>(
                read(self, c, port, count, delay));
            return std::function<py::object()>([r] { return py::cast(*r); });
          });
        },
        args..., py::doc(awaitableDoc(row).c_str()));
  });
}

}  // namespace orv::py_bind
