#include "bindings/twin.hpp"

#include <pybind11/eval.h>
#include <pybind11/gil_safe_call_once.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

namespace orv::py_bind {

struct Executor::Worker {
  std::condition_variable cv;
  std::function<void()> task;  // handed over while the worker is idle
  std::thread thread;
};

struct Executor::State {
  mutable std::mutex m;
  std::list<Worker> workers;  // stable addresses: each thread holds its own
  // Workers that wait with no task handed to them; the last one in takes the
  // next task, so that the ones at the front stay idle and may end.
  std::vector<Worker*> idle;
  std::deque<std::function<void()>> backlog;  // only when no thread could be made
  std::vector<std::thread> ended;             // workers that ended idle, to be joined
  bool stopping = false;
};

// Idle workers kept for the next calls; more than these end once idle this long.
static constexpr size_t kKeptIdle = 8;
static constexpr auto kIdleEnd = std::chrono::seconds(3);

namespace {

// A worker enters the interpreter once per completed call.  Making a thread
// state each time costs a fresh frame stack (an mmap and munmap, and so a TLB
// shootdown across cores) per call; a worker makes one on its first entry
// and keeps it until it ends.
thread_local bool t_keeps_state = false;

void keepThreadState(py::gil_scoped_acquire& gil) {
  if (t_keeps_state) return;
  gil.inc_ref();  // one reference more than the scope's: the state outlives it
  t_keeps_state = true;
}

void dropThreadState() {
  if (!t_keeps_state || !pythonAlive()) return;
  t_keeps_state = false;
  py::gil_scoped_acquire gil;
  gil.dec_ref();  // the scope's own release then deletes the state
}

}  // namespace

std::shared_ptr<Executor::State> Executor::make() { return std::make_shared<State>(); }

Executor& Executor::instance() {
  static auto* e = new Executor();  // never destroyed: shutdown() joins the workers
  return *e;
}

void Executor::submit(std::function<void()> task) {
  std::vector<std::thread> ended;
  {
    std::lock_guard lk(s_->m);
    if (s_->stopping) throw std::runtime_error("the driver is shutting down");
    ended.swap(s_->ended);
    if (!s_->idle.empty()) {
      Worker* w = s_->idle.back();
      s_->idle.pop_back();
      w->task = std::move(task);
      w->cv.notify_one();
    } else {
      Worker& w = s_->workers.emplace_back();
      w.task = std::move(task);
      try {
        w.thread = std::thread([this, &w] { run(w); });
      } catch (const std::system_error&) {
        // No thread to be had: the task waits for a running worker to end its own.
        task = std::move(w.task);
        s_->workers.pop_back();
        if (s_->workers.empty()) throw;
        s_->backlog.push_back(std::move(task));
      }
    }
  }
  for (auto& t : ended) t.join();  // they have left the interpreter already
}

void Executor::run(Worker& w) {
  std::unique_lock lk(s_->m);
  for (;;) {
    if (!w.task && !s_->backlog.empty()) {
      w.task = std::move(s_->backlog.front());
      s_->backlog.pop_front();
    }
    if (w.task) {
      auto task = std::move(w.task);
      w.task = nullptr;
      lk.unlock();
      task();
      task = nullptr;  // what the task holds goes before the worker counts as idle
      lk.lock();
      continue;
    }
    if (s_->stopping) break;
    s_->idle.push_back(&w);
    auto handed = [&] { return w.task || s_->stopping; };
    if (!w.cv.wait_for(lk, kIdleEnd, handed) && s_->idle.size() <= kKeptIdle) w.cv.wait(lk, handed);
    if (w.task) continue;  // the submitter took it off the idle list
    s_->idle.erase(std::find(s_->idle.begin(), s_->idle.end(), &w));
    if (s_->stopping) continue;
    // Idle too long: no task can reach this worker any more.
    lk.unlock();
    dropThreadState();
    lk.lock();
    s_->ended.push_back(std::move(w.thread));  // empty if shutdown took it meanwhile
    s_->workers.remove_if([&](const Worker& x) { return &x == &w; });
    return;
  }
  lk.unlock();
  dropThreadState();
}

void Executor::shutdown() {
  std::vector<std::thread> threads;
  {
    std::lock_guard lk(s_->m);
    s_->stopping = true;
    for (Worker* w : s_->idle) w->cv.notify_one();
    for (Worker& w : s_->workers)
      if (w.thread.joinable()) threads.push_back(std::move(w.thread));
    for (auto& t : s_->ended) threads.push_back(std::move(t));
    s_->ended.clear();
  }
  for (auto& t : threads) t.join();
}

size_t Executor::workers() const {
  std::lock_guard lk(s_->m);
  return s_->workers.size();
}

namespace {

// Python objects of one pending call; created and destroyed with the GIL.
struct Pending {
  py::object keep, loop, future;
  std::shared_ptr<CancelToken> token;
};

// Python objects made once, on first use, and never released: a worker may
// use them up to interpreter exit.
template <class Make>
py::object& once(py::gil_safe_call_once_and_store<py::object>& store, Make make) {
  return store.call_once_and_store_result(make).get_stored();
}

py::object& setResult() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<py::object> store;
  return once(store, [] {
    return py::cpp_function([](py::object fut, py::object value) {
      if (!fut.attr("done")().cast<bool>()) fut.attr("set_result")(value);
    });
  });
}

py::object& setException() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<py::object> store;
  return once(store, [] {
    return py::cpp_function([](py::object fut, py::object exc) {
      if (!fut.attr("done")().cast<bool>()) fut.attr("set_exception")(exc);
    });
  });
}

py::object runningLoop() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<py::object> store;
  return once(store, [] { return py::module_::import("asyncio").attr("get_running_loop"); })();
}

// The done-callback of a call's future: a cancelled future cancels the
// call's token.  One function serves every call, bound to the call's token by
// functools.partial: much cheaper than a new function object per call.
py::object cancelOnDone(const std::shared_ptr<CancelToken>& token) {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<py::object> partial, callback;
  py::capsule cap(new std::shared_ptr<CancelToken>(token),
                  [](void* p) { delete static_cast<std::shared_ptr<CancelToken>*>(p); });
  auto& fn = once(callback, [] {
    return py::cpp_function([](py::capsule tok, py::object fut) {
      if (fut.attr("cancelled")().cast<bool>())
        (*static_cast<std::shared_ptr<CancelToken>*>(tok.get_pointer()))->cancel();
    });
  });
  return once(partial, [] { return py::module_::import("functools").attr("partial"); })(fn, cap);
}

}  // namespace

py::object startAwaitable(py::object keep, AsyncBody body) {
  py::object loop = runningLoop();
  py::object future = loop.attr("create_future")();
  auto token = std::make_shared<CancelToken>();
  future.attr("add_done_callback")(cancelOnDone(token));
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
    keepThreadState(gil);
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

namespace {

// What an awaitable call needs when its coroutine starts.
struct PendingStart {
  py::object keep;
  AsyncBody body;
};

// A capsule that owns `p`: freed with the coroutine that holds it.
template <class T>
py::capsule owned(T* p) {
  return py::capsule(p, [](void* q) { delete static_cast<T*>(q); });
}

// Made once: the two coroutine functions (an `async def` is the only way to
// hand the host a real coroutine object) and the C++ steps they call.  A
// function object made per call would cost more than the rest of the call's
// setup together.
struct Coroutines {
  py::object await_call, run_now, start, run;
};

Coroutines& coroutines() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<Coroutines> store;
  return store
      .call_once_and_store_result([] {
        py::dict scope;
        scope["__builtins__"] = py::module_::import("builtins");
        py::exec(R"(
async def _await_call(start, call):
    return await start(call)

async def _run_now(run, call):
    return run(call)
)",
                 scope);
        Coroutines c;
        c.await_call = scope["_await_call"];
        c.run_now = scope["_run_now"];
        c.start = py::cpp_function([](const py::capsule& call) {
          auto* p = call.get_pointer<PendingStart>();
          return startAwaitable(p->keep, p->body);
        });
        c.run = py::cpp_function([](const py::capsule& call) {
          return (*call.get_pointer<std::function<py::object()>>())();
        });
        return c;
      })
      .get_stored();
}

}  // namespace

py::object makeCoroutine(py::object keep, AsyncBody body) {
  auto& c = coroutines();
  return c.await_call(c.start, owned(new PendingStart{std::move(keep), std::move(body)}));
}

py::object immediateCoroutine(std::function<py::object()> f) {
  auto& c = coroutines();
  return c.run_now(c.run, owned(new std::function<py::object()>(std::move(f))));
}

}  // namespace orv::py_bind
