// Blocking waits that Ctrl-C interrupts.
//
// The host runs its signal handlers on its main thread only, between two
// steps of its own code; a blocking call holds that thread in a wait here,
// without the host's lock.  So the wait itself must wake on the signal and
// let the host run its handlers:
//
//   SIGINT   a C handler, put in front of the host's, calls the host's handler
//            (which notes the signal for the host), sets `pending` and posts a
//            semaphore: all three are async-signal-safe
//   watcher  a thread waiting on the semaphore wakes the one wait the signal
//            thread (the host's main thread) has registered
//   the wait on waking, and on entering while `pending` is set (the signal
//            may come between two waits of a call), clears `pending` and calls
//            the host's hook: it runs the host's handlers and throws what one
//            raises, which ends the call; otherwise the wait goes on to its
//            deadline
//
// Nothing wakes a wait but the signal itself: there is no periodic check.
// Waits of other threads never see signals (the host would not run its
// handlers there).  The host may replace the handler (its own signal
// functions do): every wait of the signal thread checks with one sigaction
// call, and puts the C handler back in front of the new one; a default or
// ignored SIGINT is left alone.
#pragma once

#include <functional>

namespace orv::interrupt {

// Runs the host's pending signal handlers on the calling thread; throws what
// one of them raises.
using Hook = void (*)();

// Installs `hook` and the handler, starts the watcher; the calling thread
// becomes the signal thread.  Again: the hook and the signal thread change.
void install(Hook hook);
// Puts the previous handler back, stops and joins the watcher; waits no
// longer call the hook.
void uninstall();

// One wait: registered while it lasts when it runs on the signal thread.
// `wake` must wake the wait (it is called from the watcher).
class WaitScope {
 public:
  explicit WaitScope(std::function<void()> wake);
  ~WaitScope();
  WaitScope(const WaitScope&) = delete;
  WaitScope& operator=(const WaitScope&) = delete;

  // True when a signal came that this wait has not handed to the host yet.
  bool pending() const;
  // Hands the signal to the host's hook; throws what the hook throws.
  void runHandlers();

 private:
  bool registered_ = false;
  std::function<void()> wake_;
  std::function<void()>* outer_ = nullptr;
};

}  // namespace orv::interrupt
