#include "link/fiber.hpp"

#include <sys/epoll.h>
#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <mutex>
#include <new>
#include <system_error>
#include <vector>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORV_ASAN 1
#endif
#if __has_feature(thread_sanitizer)
#define ORV_TSAN 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define ORV_ASAN 1
#endif
#if defined(__SANITIZE_THREAD__)
#define ORV_TSAN 1
#endif
#ifdef ORV_ASAN
#include <sanitizer/asan_interface.h>
#endif
#ifdef ORV_TSAN
#include <sanitizer/tsan_interface.h>
#endif

namespace orv {

namespace {

// A body runs the exchange, conversions and checks: a few kilobytes deep.
// The stack's pages are committed only as they are touched.
constexpr size_t kStackSize = 256 * 1024;
constexpr size_t kKeptStacks = 64;

// Stacks are kept for reuse: mapping and unmapping one per call would cost
// more than the call.  The lowest page is a guard.
class StackPool {
 public:
  void* take() {
    {
      std::lock_guard lk(m_);
      if (!free_.empty()) {
        void* s = free_.back();
        free_.pop_back();
        return s;
      }
    }
    void* p = mmap(nullptr, kStackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    mprotect(p, static_cast<size_t>(sysconf(_SC_PAGESIZE)), PROT_NONE);
    return p;
  }
  void give(void* s) {
    {
      std::lock_guard lk(m_);
      if (free_.size() < kKeptStacks) {
        free_.push_back(s);
        return;
      }
    }
    munmap(s, kStackSize);
  }

 private:
  std::mutex m_;
  std::vector<void*> free_;
};

StackPool& stacks() {
  static auto* pool = new StackPool();  // outlives every fiber, never destroyed
  return *pool;
}

thread_local Fiber* t_current = nullptr;

}  // namespace

struct Fiber::Context {
  ucontext_t self{};
  ucontext_t caller{};
  void* stack = nullptr;
#ifdef ORV_TSAN
  void* tsan_fiber = nullptr;
  void* tsan_caller = nullptr;
#endif
#ifdef ORV_ASAN
  void* asan_fake = nullptr;
  const void* caller_bottom = nullptr;
  size_t caller_size = 0;
#endif
};

Fiber::Fiber(std::shared_ptr<Reactor> reactor, std::function<void()> body,
             std::function<void()> on_done)
    : reactor_(std::move(reactor)),
      body_(std::move(body)),
      on_done_(std::move(on_done)),
      ctx_(std::make_unique<Context>()) {
  ctx_->stack = stacks().take();
  getcontext(&ctx_->self);
  ctx_->self.uc_stack.ss_sp = ctx_->stack;
  ctx_->self.uc_stack.ss_size = kStackSize;
  ctx_->self.uc_link = nullptr;
  const auto self = reinterpret_cast<uintptr_t>(this);
  makecontext(&ctx_->self, reinterpret_cast<void (*)()>(&Fiber::entry), 2,
              static_cast<unsigned>(self & 0xFFFFFFFFu), static_cast<unsigned>(self >> 32));
#ifdef ORV_TSAN
  ctx_->tsan_fiber = __tsan_create_fiber(0);
#endif
}

Fiber::~Fiber() {
#ifdef ORV_TSAN
  __tsan_destroy_fiber(ctx_->tsan_fiber);
#endif
  stacks().give(ctx_->stack);
}

Fiber* Fiber::current() { return t_current; }

void Fiber::entry(unsigned lo, unsigned hi) {
  auto* f =
      reinterpret_cast<Fiber*>(static_cast<uintptr_t>(lo) | (static_cast<uintptr_t>(hi) << 32));
#ifdef ORV_ASAN
  __sanitizer_finish_switch_fiber(nullptr, &f->ctx_->caller_bottom, &f->ctx_->caller_size);
#endif
  f->body_();
  f->done_ = true;
  // Back to the last resumer for good; the stack is freed by the destructor.
#ifdef ORV_ASAN
  __sanitizer_start_switch_fiber(nullptr, f->ctx_->caller_bottom, f->ctx_->caller_size);
#endif
#ifdef ORV_TSAN
  __tsan_switch_to_fiber(f->ctx_->tsan_caller, 0);
#endif
  setcontext(&f->ctx_->caller);
}

void Fiber::resume() {
  if (done_ || t_current) std::abort();  // a finished fiber, or a resume from inside a fiber
  t_current = this;
#ifdef ORV_TSAN
  ctx_->tsan_caller = __tsan_get_current_fiber();
  __tsan_switch_to_fiber(ctx_->tsan_fiber, 0);
#endif
#ifdef ORV_ASAN
  __sanitizer_start_switch_fiber(&ctx_->asan_fake, ctx_->stack, kStackSize);
#endif
  swapcontext(&ctx_->caller, &ctx_->self);
#ifdef ORV_ASAN
  __sanitizer_finish_switch_fiber(ctx_->asan_fake, nullptr, nullptr);
#endif
  t_current = nullptr;
  if (done_) {
    auto done = std::move(on_done_);
    done();  // may delete this
  }
}

void Fiber::suspend() {
  Fiber* f = t_current;
  if (!f) std::abort();
#ifdef ORV_ASAN
  void* fake = nullptr;
  __sanitizer_start_switch_fiber(&fake, f->ctx_->caller_bottom, f->ctx_->caller_size);
#endif
#ifdef ORV_TSAN
  __tsan_switch_to_fiber(f->ctx_->tsan_caller, 0);
#endif
  swapcontext(&f->ctx_->self, &f->ctx_->caller);
#ifdef ORV_ASAN
  __sanitizer_finish_switch_fiber(fake, &f->ctx_->caller_bottom, &f->ctx_->caller_size);
#endif
}

// ---- sockets the loop reads ------------------------------------------------------

InputWatches::InputWatches() {
  epfd_ = ::epoll_create1(EPOLL_CLOEXEC);
  if (epfd_ < 0) throw std::system_error(errno, std::generic_category(), "pyorv: socket watch");
}

InputWatches::~InputWatches() { ::close(epfd_); }

void InputWatches::arm(const void* key, Watch& w, bool on) {
  if (w.fd < 0) return;
  epoll_event ev{};
  ev.events = EPOLLONESHOT | (on ? EPOLLIN : 0u);
  ev.data.ptr = const_cast<void*>(key);
  // A socket closed since left the set by itself: nothing to arm.
  w.armed = ::epoll_ctl(epfd_, EPOLL_CTL_MOD, w.fd, &ev) == 0 && on;
}

bool InputWatches::hold(const void* key, int fd, std::function<bool()> on_input) {
  auto it = watches_.find(key);
  if (it != watches_.end() && it->second.fd == fd) {
    Watch& w = it->second;
    if (w.holds++ > 0) return true;  // watched for another waiter already
    w.on_input = std::move(on_input);
    arm(key, w, true);  // kept from an earlier call: one system call
    if (w.armed) return true;
    --w.holds;  // the socket left the set (closed, its number reused): anew
  }
  // A number held under another key belonged to a socket closed since.
  for (auto& [k, other] : watches_)
    if (k != key && other.fd == fd) {
      other.fd = -1;
      other.armed = false;
    }
  epoll_event ev{};
  ev.events = EPOLLONESHOT | EPOLLIN;
  ev.data.ptr = const_cast<void*>(key);
  int rc = ::epoll_ctl(epfd_, EPOLL_CTL_ADD, fd, &ev);
  if (rc != 0 && errno == EEXIST) rc = ::epoll_ctl(epfd_, EPOLL_CTL_MOD, fd, &ev);
  if (rc != 0) return false;
  Watch& w = watches_[key];
  w.fd = fd;
  w.armed = true;
  w.on_input = std::move(on_input);
  ++w.holds;
  return true;
}

void InputWatches::release(const void* key) {
  auto it = watches_.find(key);
  if (it == watches_.end() || it->second.holds == 0) return;
  Watch& w = it->second;
  if (--w.holds > 0) return;
  w.on_input = nullptr;  // it refers to the link's owner, which may go now
  if (w.armed) arm(key, w, false);
}

void InputWatches::rearm(const void* key) {
  auto it = watches_.find(key);
  if (it != watches_.end() && it->second.holds > 0 && !it->second.armed) arm(key, it->second, true);
}

void InputWatches::runReady() {
  epoll_event evs[64];
  const int n = ::epoll_wait(epfd_, evs, 64, 0);
  for (int i = 0; i < n; ++i) {
    auto it = watches_.find(evs[i].data.ptr);
    if (it == watches_.end()) continue;
    Watch& w = it->second;
    w.armed = false;
    if (w.holds == 0 || w.fd < 0 || !w.on_input) continue;
    // on_input reads and dispatches: replies are posted to their fibers,
    // which run after this round, so the table does not change under it.
    if (w.on_input()) again_.push_back(evs[i].data.ptr);
  }
}

void InputWatches::finishRound() {
  for (const void* key : again_) rearm(key);
  again_.clear();
}

// ---- waits on a fiber ------------------------------------------------------------
//
// A wait ends once, for the first of: the reply (handed over by the receive
// thread and posted to the loop), the deadline (a loop timer), a cancel (the
// token's waker posts it) or the pool's close.  Every ending runs on the loop's
// thread.  A timer or cancel that finds the waiter already handed its reply
// lets the reply win: the reply's post is on its way, and a reply is never
// lost.

namespace {

struct FiberWait {
  bool done = false;
  EchoPool::WaitResult result = EchoPool::WaitResult::TimedOut;
  Bytes data;
  Fiber* fiber = nullptr;

  void finish(EchoPool::WaitResult r) {
    done = true;
    result = r;
    fiber->resume();
  }
};

EchoPool::WaitResult fiberWait(EchoPool& pool, int64_t key, Clock::time_point deadline, Bytes& out,
                               CancelToken* tok) {
  Fiber* f = Fiber::current();
  if (tok && tok->cancelled()) return EchoPool::WaitResult::Cancelled;
  auto w = std::make_shared<FiberWait>();
  w->fiber = f;
  std::shared_ptr<Reactor> reactor = f->reactor();
  uint64_t id = 0;
  const auto added = pool.addWaiter(
      key,
      [w, reactor](std::optional<Bytes> reply) {
        reactor->post([w, reply = std::move(reply)]() mutable {
          if (w->done) return;
          if (reply) w->data = std::move(*reply);
          w->finish(reply ? EchoPool::WaitResult::Taken : EchoPool::WaitResult::Closed);
        });
      },
      out, id);
  if (added == EchoPool::AddResult::Taken) return EchoPool::WaitResult::Taken;
  if (added == EchoPool::AddResult::Closed) return EchoPool::WaitResult::Closed;

  auto give_up = [w, &pool, id](EchoPool::WaitResult r) {
    if (w->done || !pool.removeWaiter(id)) return;
    w->finish(r);
  };
  const uint64_t timer =
      deadline == Clock::time_point::max()
          ? 0
          : reactor->callAt(deadline, [give_up] { give_up(EchoPool::WaitResult::TimedOut); });
  if (tok)
    tok->setWaker([reactor, give_up] {
      reactor->post([give_up] { give_up(EchoPool::WaitResult::Cancelled); });
    });
  // A cancel that came before the waker was set has no post of its own.
  if (tok && tok->cancelled())
    reactor->post([give_up] { give_up(EchoPool::WaitResult::Cancelled); });

  Fiber::suspend();

  if (tok) tok->setWaker(nullptr);
  if (timer) reactor->cancelTimer(timer);
  out = std::move(w->data);
  return w->result;
}

// A stream queue's wait: the fiber parks until the queue holds n items, is
// closed, the deadline comes or the call is cancelled, whichever is first, and
// then looks at the queue itself, so items that came meanwhile always win.
WaitableQueue::Wait waitQueueOnce(WaitableQueue& q, size_t n, Clock::time_point deadline,
                                  CancelToken* tok) {
  Fiber* f = Fiber::current();
  auto w = std::make_shared<FiberWait>();
  w->fiber = f;
  std::shared_ptr<Reactor> reactor = f->reactor();
  auto wake = [w] {
    if (!w->done) w->finish(EchoPool::WaitResult::Taken);
  };
  const uint64_t watch = q.watch(n, [reactor, wake] { reactor->post(wake); });
  if (watch == 0)
    return q.closed() && q.size() < n ? WaitableQueue::Wait::Closed : WaitableQueue::Wait::Ready;
  const uint64_t timer = deadline == Clock::time_point::max() ? 0 : reactor->callAt(deadline, wake);
  if (tok) tok->setWaker([reactor, wake] { reactor->post(wake); });
  if (tok && tok->cancelled()) reactor->post(wake);

  Fiber::suspend();

  if (tok) tok->setWaker(nullptr);
  if (timer) reactor->cancelTimer(timer);
  q.unwatch(watch);
  if (q.size() >= n) return WaitableQueue::Wait::Ready;
  if (tok && tok->cancelled()) return WaitableQueue::Wait::Cancelled;
  if (q.closed()) return WaitableQueue::Wait::Closed;
  return Clock::now() >= deadline ? WaitableQueue::Wait::TimedOut : WaitableQueue::Wait::Ready;
}

}  // namespace

WaitableQueue::Wait fiberWaitQueue(WaitableQueue& q, size_t n, Clock::time_point deadline,
                                   CancelToken* tok) {
  for (;;) {
    if (q.size() >= n) return WaitableQueue::Wait::Ready;
    if (tok && tok->cancelled()) return WaitableQueue::Wait::Cancelled;
    if (q.closed()) return WaitableQueue::Wait::Closed;
    if (Clock::now() >= deadline) return WaitableQueue::Wait::TimedOut;
    const auto r = waitQueueOnce(q, n, deadline, tok);
    // A wake that finds fewer items (another reader took them) waits again.
    if (r != WaitableQueue::Wait::Ready || q.size() >= n) return r;
  }
}

EchoPool::WaitResult fiberWaitPop(EchoPool& pool, int64_t key, Clock::time_point deadline,
                                  Bytes& out, CancelToken* tok) {
  return fiberWait(pool, key, deadline, out, tok);
}

EchoPool::WaitResult fiberSleepUntil(EchoPool& pool, Clock::time_point deadline, CancelToken* tok) {
  Bytes none;
  return fiberWait(pool, EchoPool::kNoReply, deadline, none, tok);
}

}  // namespace orv
