// The awaitable twin of an operation: the same C++ body runs on a worker of
// the extension's executor while the event loop goes on; the result completes
// an asyncio future through loop.call_soon_threadsafe.  Cancelling the future
// cancels the call's token, which stops it at its next exchange or wait.
#pragma once

#include <pybind11/pybind11.h>

#include <functional>
#include <memory>

#include "bindings/bindings.hpp"
#include "link/pools.hpp"

namespace orv::py_bind {

// Runs tasks on a small pool of threads that grows on demand.
class Executor {
 public:
  static Executor& instance();
  void submit(std::function<void()> task);
  // Runs what is queued, then joins every worker.  Called at interpreter exit
  // with the GIL released.
  void shutdown();
  size_t workers() const;

 private:
  Executor() = default;
  void run();
  struct State;
  std::shared_ptr<State> s_ = make();
  static std::shared_ptr<State> make();
};

// The body of an awaitable call: runs without the GIL and returns a callable
// that makes the Python result (run with the GIL held).
using AsyncBody = std::function<std::function<py::object()>(CancelToken* tok)>;

// Starts `body` on the executor and returns the asyncio future of its result.
// `keep` is held (a strong reference) until the call ends: the device object.
py::object startAwaitable(py::object keep, AsyncBody body);

// A future already completed with `value` (for twins that do not suspend).
py::object doneFuture(py::object value);

}  // namespace orv::py_bind
