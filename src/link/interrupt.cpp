#include "link/interrupt.hpp"

#include <pthread.h>
#include <semaphore.h>
#include <signal.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>

#include "link/thread_name.hpp"

namespace orv::interrupt {

namespace {

using Action = void (*)(int, siginfo_t*, void*);
using Handler = void (*)(int);

// Written by the handler: lock-free atomics and a semaphore only.
std::atomic<bool> g_pending{false};
std::atomic<Action> g_prev_action{nullptr};
std::atomic<Handler> g_prev_handler{nullptr};
sem_t g_sem;  // made once, never destroyed: a late signal may still post it

std::atomic<Hook> g_hook{nullptr};
std::atomic<bool> g_installed{false};
std::atomic<pthread_t> g_signal_thread{};

std::mutex g_m;                              // guards what follows
std::function<void()>* g_waiting = nullptr;  // the wait the signal thread is in
std::thread g_watcher;
bool g_stop = false;

void onSignal(int sig, siginfo_t* info, void* context) {
  const int saved = errno;
  if (Action a = g_prev_action.load())
    a(sig, info, context);
  else if (Handler h = g_prev_handler.load())
    h(sig);
  g_pending.store(true);
  sem_post(&g_sem);
  errno = saved;
}

bool ours(const struct sigaction& sa) {
  return (sa.sa_flags & SA_SIGINFO) && sa.sa_sigaction == &onSignal;
}

// Puts onSignal in front of the current handler unless it is there already,
// or SIGINT is default or ignored.
void assertHandler() {
  struct sigaction cur {};
  if (sigaction(SIGINT, nullptr, &cur) != 0 || ours(cur)) return;
  if (cur.sa_flags & SA_SIGINFO) {
    g_prev_action.store(cur.sa_sigaction);  // set before the other is cleared: never
    g_prev_handler.store(nullptr);          // a moment without a handler to chain to
  } else {
    if (cur.sa_handler == SIG_DFL || cur.sa_handler == SIG_IGN) return;
    g_prev_handler.store(cur.sa_handler);
    g_prev_action.store(nullptr);
  }
  struct sigaction next {};
  next.sa_sigaction = &onSignal;
  next.sa_mask = cur.sa_mask;
  next.sa_flags = (cur.sa_flags | SA_SIGINFO) & ~SA_RESETHAND;
  sigaction(SIGINT, &next, nullptr);
}

void restoreHandler() {
  struct sigaction cur {};
  if (sigaction(SIGINT, nullptr, &cur) != 0 || !ours(cur)) return;
  struct sigaction prev {};
  prev.sa_mask = cur.sa_mask;
  if (Action a = g_prev_action.load()) {
    prev.sa_sigaction = a;
    prev.sa_flags = cur.sa_flags;
  } else {
    Handler h = g_prev_handler.load();
    prev.sa_handler = h ? h : SIG_DFL;
    prev.sa_flags = cur.sa_flags & ~SA_SIGINFO;
  }
  sigaction(SIGINT, &prev, nullptr);
}

void watch() {
  for (;;) {
    while (sem_wait(&g_sem) != 0 && errno == EINTR) {
    }
    std::lock_guard lk(g_m);
    if (g_stop) return;
    if (g_waiting) (*g_waiting)();
  }
}

}  // namespace

void install(Hook hook) {
  static std::once_flag made;
  std::call_once(made, [] { sem_init(&g_sem, 0, 0); });
  g_hook.store(hook);
  g_signal_thread.store(pthread_self());
  assertHandler();
  {
    std::lock_guard lk(g_m);
    if (!g_watcher.joinable()) {
      g_stop = false;
      g_watcher = std::thread([] {
        nameThisThread("orv-sigint");
        watch();
      });
    }
  }
  g_installed.store(true);
}

void uninstall() {
  g_installed.store(false);
  restoreHandler();
  std::thread t;
  {
    std::lock_guard lk(g_m);
    g_stop = true;
    t = std::move(g_watcher);
  }
  if (!t.joinable()) return;
  sem_post(&g_sem);
  t.join();
}

WaitScope::WaitScope(std::function<void()> wake) {
  if (!g_installed.load() || !pthread_equal(pthread_self(), g_signal_thread.load())) return;
  assertHandler();  // the host may have put its own handler back meanwhile
  wake_ = std::move(wake);
  std::lock_guard lk(g_m);
  outer_ = g_waiting;  // a handler run by the hook may make a blocking call
  g_waiting = &wake_;
  registered_ = true;
}

WaitScope::~WaitScope() {
  if (!registered_) return;
  std::lock_guard lk(g_m);
  g_waiting = outer_;
}

bool WaitScope::pending() const { return registered_ && g_pending.load(); }

void WaitScope::runHandlers() {
  g_pending.store(false);
  if (Hook h = g_hook.load()) h();
}

}  // namespace orv::interrupt
