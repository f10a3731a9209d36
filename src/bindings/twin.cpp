#include "bindings/twin.hpp"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace orv::py_bind {

struct Executor::State {
  mutable std::mutex m;
  std::condition_variable cv;
  std::deque<std::function<void()>> queue;
  std::vector<std::thread> threads;
  size_t idle = 0;
  bool stopping = false;
};

// Enough workers for many overlapping exchanges; more calls queue up.
static constexpr size_t kMaxWorkers = 64;

std::shared_ptr<Executor::State> Executor::make() { return std::make_shared<State>(); }

Executor& Executor::instance() {
  static auto* e = new Executor();  // never destroyed: shutdown() joins the workers
  return *e;
}

void Executor::submit(std::function<void()> task) {
  std::lock_guard lk(s_->m);
  if (s_->stopping) throw std::runtime_error("the driver is shutting down");
  s_->queue.push_back(std::move(task));
  if (s_->idle == 0 && s_->threads.size() < kMaxWorkers)
    s_->threads.emplace_back([this] { run(); });
  else
    s_->cv.notify_one();
}

void Executor::run() {
  std::unique_lock lk(s_->m);
  for (;;) {
    ++s_->idle;
    s_->cv.wait(lk, [&] { return s_->stopping || !s_->queue.empty(); });
    --s_->idle;
    if (s_->queue.empty()) return;  // stopping
    auto task = std::move(s_->queue.front());
    s_->queue.pop_front();
    lk.unlock();
    task();
    lk.lock();
  }
}

void Executor::shutdown() {
  std::vector<std::thread> threads;
  {
    std::lock_guard lk(s_->m);
    s_->stopping = true;
    threads.swap(s_->threads);
  }
  s_->cv.notify_all();
  for (auto& t : threads) t.join();
}

size_t Executor::workers() const {
  std::lock_guard lk(s_->m);
  return s_->threads.size();
}

namespace {

// Python objects of one pending call; created and destroyed with the GIL.
struct Pending {
  py::object keep, loop, future;
  std::shared_ptr<CancelToken> token;
};

py::object& setResult() {
  static auto* f = new py::object(py::cpp_function([](py::object fut, py::object value) {
    if (!fut.attr("done")().cast<bool>()) fut.attr("set_result")(value);
  }));
  return *f;
}

py::object& setException() {
  static auto* f = new py::object(py::cpp_function([](py::object fut, py::object exc) {
    if (!fut.attr("done")().cast<bool>()) fut.attr("set_exception")(exc);
  }));
  return *f;
}

}  // namespace

py::object startAwaitable(py::object keep, AsyncBody body) {
  py::object loop = py::module_::import("asyncio").attr("get_running_loop")();
  py::object future = loop.attr("create_future")();
  auto token = std::make_shared<CancelToken>();
  future.attr("add_done_callback")(py::cpp_function([token](py::object fut) {
    if (fut.attr("cancelled")().cast<bool>()) token->cancel();
  }));
  auto* pending = new Pending{std::move(keep), loop, future, token};

  auto task = [pending, body = std::move(body)] {
    std::function<py::object()> make_result;
    std::exception_ptr error;
    try {
      make_result = body(pending->token.get());
    } catch (...) {
      error = std::current_exception();
    }
    if (!pythonAlive()) return;  // the interpreter is going away; nothing to complete
    py::gil_scoped_acquire gil;
    try {
      if (!pending->future.attr("done")().cast<bool>()) {
        if (error) {
          py::object exc = exceptionObject(error);
          if (exc.is_none()) {
            try {
              std::rethrow_exception(error);
            } catch (const std::exception& e) {
              exc = py::module_::import("builtins").attr("RuntimeError")(e.what());
            } catch (...) {
              exc = py::module_::import("builtins").attr("RuntimeError")("unknown failure");
            }
          }
          pending->loop.attr("call_soon_threadsafe")(setException(), pending->future, exc);
        } else {
          pending->loop.attr("call_soon_threadsafe")(setResult(), pending->future, make_result());
        }
      }
    } catch (py::error_already_set&) {
      // The loop was closed meanwhile: nobody waits for this result.
    }
    delete pending;
  };
  try {
    Executor::instance().submit(std::move(task));
  } catch (...) {
    delete pending;
    throw;
  }
  return future;
}

py::object doneFuture(py::object value) {
  py::object loop = py::module_::import("asyncio").attr("get_running_loop")();
  py::object future = loop.attr("create_future")();
  future.attr("set_result")(value);
  return future;
}

}  // namespace orv::py_bind
