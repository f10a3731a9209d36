#include "bindings/twin.hpp"

#include <pybind11/eval.h>
#include <pybind11/gil_safe_call_once.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <cerrno>
#include <deque>
#include <map>
#include <mutex>
#include <system_error>
#include <unordered_map>

#include "link/fiber.hpp"

namespace orv::py_bind {

namespace {

// The reactor of an asyncio loop: an eventfd the loop watches for work posted
// from other threads (a reply handed over by a receive thread, a cancel), a
// timerfd for the deadlines of the waits, and the epoll descriptor of the
// sockets the loop reads itself for its awaitables (InputWatches).  Work
// posted on the loop's own thread while one of these runs (a reply the loop
// just read, for the fiber waiting for it) runs at the end of that same
// callback: no write to the eventfd, no extra turn of the loop.  Holds no
// Python object, so that the last owner may drop it on any thread.
class LoopReactor : public Reactor {
 public:
  LoopReactor() {
    efd_ = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    tfd_ = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (efd_ < 0 || tfd_ < 0) {
      const int err = errno;
      closeFds();
      throw std::system_error(err, std::generic_category(), "pyorv: event loop wake-up");
    }
  }
  ~LoopReactor() override { closeFds(); }

  int postFd() const { return efd_; }
  int timerFd() const { return tfd_; }

  int inputFd() const { return watches_.fd(); }
  InputWatches* inputWatches() override { return &watches_; }

  // Marks the loop's thread as running this reactor's work; the outermost
  // one runs what was posted meanwhile and arms the socket watches again.
  class Running {
   public:
    explicit Running(LoopReactor& r) : r_(r), outer_(t_running != &r) { t_running = &r; }
    ~Running() {
      if (!outer_) return;
      while (!r_.local_.empty()) {
        auto fn = std::move(r_.local_.front());
        r_.local_.pop_front();
        fn();
      }
      r_.watches_.finishRound();
      t_running = nullptr;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    LoopReactor& r_;
    bool outer_;
  };

  void post(std::function<void()> fn) override {
    if (t_running == this) {
      local_.push_back(std::move(fn));
      return;
    }
    bool was_empty;
    {
      std::lock_guard lk(m_);
      was_empty = posted_.empty();
      posted_.push_back(std::move(fn));
    }
    if (was_empty) {
      const uint64_t one = 1;
      [[maybe_unused]] auto n = write(efd_, &one, sizeof one);
    }
  }

  uint64_t callAt(Clock::time_point when, std::function<void()> fn) override {
    const uint64_t id = next_timer_++;
    timers_.emplace(std::make_pair(when, id), std::move(fn));
    deadlines_.emplace(id, when);
    if (when < armed_) arm(when);
    return id;
  }

  void cancelTimer(uint64_t id) override {
    // The timerfd stays armed: its wake finds nothing due and re-arms.
    auto it = deadlines_.find(id);
    if (it == deadlines_.end()) return;
    timers_.erase(std::make_pair(it->second, id));
    deadlines_.erase(it);
  }

  // The loop's reader callbacks.
  void runInput() {
    Running running(*this);
    watches_.runReady();
  }

  void runPosted() {
    Running running(*this);
    uint64_t n;
    [[maybe_unused]] auto r = read(efd_, &n, sizeof n);
    std::deque<std::function<void()>> work;
    {
      std::lock_guard lk(m_);
      work.swap(posted_);
    }
    for (auto& fn : work) fn();
  }

  void runTimers() {
    Running running(*this);
    uint64_t n;
    [[maybe_unused]] auto r = read(tfd_, &n, sizeof n);
    armed_ = Clock::time_point::max();
    const auto now = Clock::now();
    while (!timers_.empty() && timers_.begin()->first.first <= now) {
      auto node = timers_.extract(timers_.begin());
      deadlines_.erase(node.key().second);
      node.mapped()();
    }
    if (!timers_.empty()) arm(timers_.begin()->first.first);
  }

 private:
  void arm(Clock::time_point when) {
    armed_ = when;
    const auto ns = std::chrono::duration_cast<std::chrono::nanoseconds>(when.time_since_epoch());
    itimerspec setting{};
    setting.it_value.tv_sec = static_cast<time_t>(ns.count() / 1000000000);
    setting.it_value.tv_nsec = static_cast<long>(ns.count() % 1000000000);
    if (setting.it_value.tv_sec == 0 && setting.it_value.tv_nsec == 0) setting.it_value.tv_nsec = 1;
    timerfd_settime(tfd_, TFD_TIMER_ABSTIME, &setting, nullptr);
  }
  void closeFds() {
    if (efd_ >= 0) ::close(efd_);
    if (tfd_ >= 0) ::close(tfd_);
    efd_ = tfd_ = -1;
  }

  static thread_local LoopReactor* t_running;

  int efd_ = -1, tfd_ = -1;
  InputWatches watches_;
  std::deque<std::function<void()>> local_;  // posted on the loop's thread
  std::mutex m_;
  std::deque<std::function<void()>> posted_;
  // Loop thread only.
  std::map<std::pair<Clock::time_point, uint64_t>, std::function<void()>> timers_;
  std::unordered_map<uint64_t, Clock::time_point> deadlines_;
  uint64_t next_timer_ = 1;
  Clock::time_point armed_ = Clock::time_point::max();
};

thread_local LoopReactor* LoopReactor::t_running = nullptr;

// One pending awaitable call; made, completed and freed on the loop's thread
// with the GIL held.
struct Pending {
  py::object keep, future;
  std::shared_ptr<CancelToken> token;
  std::unique_ptr<Fiber> fiber;
  std::function<py::object()> make_result;
  std::exception_ptr error;
};

// Python objects made once, on first use, and never released.
template <class Make>
py::object& once(py::gil_safe_call_once_and_store<py::object>& store, Make make) {
  return store.call_once_and_store_result(make).get_stored();
}

// Attribute names of the per-call path, made once: a name made from a C
// string on every call would be built and hashed again each time.
struct Names {
  py::str cancelled{"cancelled"}, done{"done"}, set_result{"set_result"},
      set_exception{"set_exception"}, create_future{"create_future"},
      add_done_callback{"add_done_callback"}, reactor{"_pyorv_reactor"};
};

const Names& names() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<Names> store;
  return store.call_once_and_store_result([] { return Names(); }).get_stored();
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
      if (fut.attr(names().cancelled)().cast<bool>())
        (*static_cast<std::shared_ptr<CancelToken>*>(tok.get_pointer()))->cancel();
    });
  });
  return once(partial, [] { return py::module_::import("functools").attr("partial"); })(fn, cap);
}

// The reactor of `loop`, made and hooked into the loop on first use.  It is
// kept as an attribute of the loop (a weak mapping for loops that take none).
std::shared_ptr<LoopReactor> reactorFor(const py::object& loop) {
  const Names& n = names();
  if (PyObject* found = PyObject_GetAttr(loop.ptr(), n.reactor.ptr()))
    return py::reinterpret_steal<py::object>(found).cast<std::shared_ptr<LoopReactor>>();
  PyErr_Clear();
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<py::object> store;
  py::object& reactors =
      once(store, [] { return py::module_::import("weakref").attr("WeakKeyDictionary")(); });
  py::object found = reactors.attr("get")(loop);
  if (!found.is_none()) return found.cast<std::shared_ptr<LoopReactor>>();
  auto reactor = std::make_shared<LoopReactor>();
  py::object obj = py::cast(reactor);
  loop.attr("add_reader")(reactor->postFd(), obj.attr("_run_posted"));
  loop.attr("add_reader")(reactor->timerFd(), obj.attr("_run_timers"));
  loop.attr("add_reader")(reactor->inputFd(), obj.attr("_run_input"));
  if (PyObject_SetAttr(loop.ptr(), n.reactor.ptr(), obj.ptr()) != 0) {
    PyErr_Clear();
    reactors[loop] = obj;
  }
  return reactor;
}

void complete(Pending& p) {
  if (p.future.attr(names().done)().cast<bool>()) return;
  if (!p.error) {
    p.future.attr(names().set_result)(p.make_result());
    return;
  }
  py::object exc = exceptionObject(p.error);
  if (exc.is_none()) {
    try {
      std::rethrow_exception(p.error);
    } catch (const std::exception& e) {
      exc = py::module_::import("builtins").attr("RuntimeError")(e.what());
    } catch (...) {
      exc = py::module_::import("builtins").attr("RuntimeError")("unknown failure");
    }
  }
  p.future.attr(names().set_exception)(exc);
}

}  // namespace

void bindReactor(py::module_& m) {
  py::class_<LoopReactor, std::shared_ptr<LoopReactor>>(m, "_LoopReactor")
      .def("_run_posted", &LoopReactor::runPosted)
      .def("_run_timers", &LoopReactor::runTimers)
      .def("_run_input", &LoopReactor::runInput);
}

py::object startAwaitable(py::object keep, AsyncBody body, std::shared_ptr<CancelToken>* token) {
  py::object loop = runningLoop();
  auto reactor = reactorFor(loop);
  auto* p = new Pending{std::move(keep),
                        loop.attr(names().create_future)(),
                        std::make_shared<CancelToken>(),
                        nullptr,
                        {},
                        {}};
  py::object future = p->future;
  if (token)
    *token = p->token;
  else
    future.attr(names().add_done_callback)(cancelOnDone(p->token));
  p->fiber = std::make_unique<Fiber>(
      reactor,
      [p, body = std::move(body)] {
        try {
          p->make_result = body(p->token.get());
        } catch (...) {
          p->error = std::current_exception();
        }
      },
      [p] {
        try {
          complete(*p);
        } catch (py::error_already_set& e) {
          e.discard_as_unraisable("pyorv awaitable");
        }
        delete p;  // frees the fiber last: its stack is no longer in use
      });
  {
    LoopReactor::Running running(*reactor);
    p->fiber->resume();
  }
  return future;
}

namespace {

// What an awaitable call needs when its coroutine starts.
struct PendingStart {
  py::object keep;
  AsyncBody body;
  std::shared_ptr<CancelToken> token;  // set when the call starts
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
  py::object await_call, run_now, start, cancel, run;
};

Coroutines& coroutines() {
  PYBIND11_CONSTINIT static py::gil_safe_call_once_and_store<Coroutines> store;
  return store
      .call_once_and_store_result([] {
        py::dict scope;
        scope["__builtins__"] = py::module_::import("builtins");
        scope["_CancelledError"] = py::module_::import("asyncio").attr("CancelledError");
        // A cancelled task raises CancelledError at its await: the call's
        // token is cancelled there, with no callback on the future.
        py::exec(R"(
async def _await_call(start, cancel, call):
    future = start(call)
    try:
        return await future
    except _CancelledError:
        cancel(call)
        raise

async def _run_now(run, call):
    return run(call)
)",
                 scope);
        Coroutines c;
        c.await_call = scope["_await_call"];
        c.run_now = scope["_run_now"];
        c.start = py::cpp_function([](const py::capsule& call) {
          auto* p = call.get_pointer<PendingStart>();
          return startAwaitable(p->keep, p->body, &p->token);
        });
        c.cancel = py::cpp_function([](const py::capsule& call) {
          if (auto& token = call.get_pointer<PendingStart>()->token) token->cancel();
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
  return c.await_call(c.start, c.cancel,
                      owned(new PendingStart{std::move(keep), std::move(body), nullptr}));
}

py::object immediateCoroutine(std::function<py::object()> f) {
  auto& c = coroutines();
  return c.run_now(c.run, owned(new std::function<py::object()>(std::move(f))));
}

}  // namespace orv::py_bind
