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

// Runs each task at once: on a worker that waits with nothing to do, or on a
// new one.  A task never queues behind another (an awaitable stuck on a
// silent device holds its worker, not the others').  Idle workers beyond a
// few end after a while.
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
  struct Worker;
  void run(Worker& w);
  struct State;
  std::shared_ptr<State> s_ = make();
  static std::shared_ptr<State> make();
};

// The body of an awaitable call: runs without the GIL and returns a callable
// that makes the Python result (run with the GIL held).
using AsyncBody = std::function<std::function<py::object()>(CancelToken* tok)>;

// The awaitable twin's result: a coroutine, so that it can be made outside a
// running loop (asyncio.run(dev.X_async())) like any `async def`.  When it is
// awaited it starts `body` on the executor and waits for its future.  `keep`
// is held until the call ends: the device object.
py::object makeCoroutine(py::object keep, AsyncBody body);

// Starts `body` on the executor now and returns the asyncio future of its
// result (needs a running loop).
py::object startAwaitable(py::object keep, AsyncBody body);

// A coroutine that runs `f` when awaited, without suspending (for twins that
// never wait: fire-and-forget sends, stream reads that take what is there).
py::object immediateCoroutine(std::function<py::object()> f);

}  // namespace orv::py_bind
