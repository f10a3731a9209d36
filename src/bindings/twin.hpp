// The awaitable twin of an operation: the same C++ body runs on a fiber on the
// event loop's thread (link/fiber.hpp).  Its waits park the fiber and give the
// loop back; a reply, a deadline or a cancel resumes it through the loop's
// reactor, and its end completes the call's asyncio future.  No thread is
// taken by a pending call.  Cancelling the call (its task) cancels the call's
// token, which ends the wait it is in.
#pragma once

#include <pybind11/pybind11.h>

#include <functional>
#include <memory>

#include "bindings/bindings.hpp"
#include "link/pools.hpp"

namespace orv::py_bind {

// The body of an awaitable call: runs on the call's fiber and returns a
// callable that makes the Python result (run afterwards, on the loop's stack).
using AsyncBody = std::function<std::function<py::object()>(CancelToken* tok)>;

// The awaitable twin's result: a coroutine, so that it can be made outside a
// running loop (asyncio.run(dev.X_async())) like any `async def`.  When it is
// awaited it starts `body` and waits for its future.  `keep` is held until the
// call ends: the device object.
py::object makeCoroutine(py::object keep, AsyncBody body);

// Starts `body` on the running loop now and returns the asyncio future of its
// result.  With `token`, the caller is handed the call's cancel token and
// cancels it itself when the future is cancelled; without, a done-callback of
// the future does.
py::object startAwaitable(py::object keep, AsyncBody body,
                          std::shared_ptr<CancelToken>* token = nullptr);

// A coroutine that runs `f` when awaited, without suspending (for twins that
// never wait: fire-and-forget sends, stream reads that take what is there).
py::object immediateCoroutine(std::function<py::object()> f);

// The loop reactor's class (its reader callbacks).
void bindReactor(py::module_& m);

}  // namespace orv::py_bind
