// Awaitable calls without a thread each.
//
// An operation body is one plain function for both twins (link/call.hpp).  The
// blocking twin runs it in the caller's thread, which sleeps in each wait.
// The awaitable twin runs the same body on a fiber: a small stack of its own,
// switched to on the event loop's thread.  When the body waits for a reply it
// hands the reply's arrival, its deadline and its cancellation to the loop's
// Reactor and switches back to the loop; the loop switches to the fiber again
// when one of them happens.  A pending awaitable so costs a parked stack, not
// a thread, and a multi-step body needs no rewriting to suspend between steps.
//
// Everything a fiber does runs on the loop's thread: resume() is called only
// from there (by the reactor's callbacks or when the call starts), so the
// body's state needs no lock.  A fiber never runs host-language code on its
// own stack: results are turned into host objects after it switched back.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "link/pools.hpp"

namespace orv {

// The sockets an event loop reads itself.  The loop waits on one descriptor
// (fd()) for all of them; a link is watched while at least one awaitable of
// the loop waits for a reply through it, and its `on_input` (which reads and
// dispatches what the socket holds) then runs on the loop's thread as soon as
// input is there: no other thread is woken on a reply's way to its awaitable.
// A watch is one-shot: after on_input it is armed again if on_input returned
// true and the link is still held; a false answer (somebody else reads the
// link now, or it is down) leaves it idle until rearm().  Loop thread only.
class InputWatches {
 public:
  InputWatches();
  ~InputWatches();
  InputWatches(const InputWatches&) = delete;
  InputWatches& operator=(const InputWatches&) = delete;

  int fd() const { return epfd_; }
  // One more waiter needs `key`'s socket `fd` read; the first hold's
  // `on_input` serves them all.  False when the socket cannot be watched.
  bool hold(const void* key, int fd, std::function<bool()> on_input);
  void release(const void* key);
  // Arms an idle watch again (the link's reader came free).
  void rearm(const void* key);
  // Runs on_input of the watches that have input.
  void runReady();
  // After runReady and the work it posted: arms again the watches whose
  // on_input asked for it and that are still held (a waiter that got its
  // reply meanwhile has released its hold: no system call for it).
  void finishRound();

 private:
  struct Watch {
    int fd = -1;  // -1: the socket was closed (its number now serves another)
    int holds = 0;
    bool armed = false;
    std::function<bool()> on_input;
  };
  void arm(const void* key, Watch& w, bool on);

  int epfd_ = -1;
  // Kept when released, disarmed: the next hold of the link re-arms it with
  // one system call.
  std::unordered_map<const void*, Watch> watches_;
  std::vector<const void*> again_;  // read this round, to arm again
};

// The event loop an awaitable call runs on.
class Reactor {
 public:
  virtual ~Reactor() = default;
  // Runs `fn` on the loop's thread soon.  Any thread may post.
  virtual void post(std::function<void()> fn) = 0;
  // Runs `fn` on the loop's thread once `when` has come, unless cancelled
  // first.  Called on the loop's thread only; ids are never 0.
  virtual uint64_t callAt(Clock::time_point when, std::function<void()> fn) = 0;
  virtual void cancelTimer(uint64_t id) = 0;
  // The loop's socket watches, or nullptr for a loop that cannot watch a
  // descriptor (the link's receive thread then reads for its awaitables).
  virtual InputWatches* inputWatches() { return nullptr; }
};

class Fiber {
 public:
  // `body` runs on the fiber's stack and must not throw; `on_done` runs on
  // the stack of whoever resumed the fiber last, after the body returned, and
  // may delete the fiber.
  Fiber(std::shared_ptr<Reactor> reactor, std::function<void()> body,
        std::function<void()> on_done);
  ~Fiber();
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  // Runs the fiber until it suspends or ends.  Loop thread only.
  void resume();
  // The fiber running now on this thread, or nullptr.
  static Fiber* current();
  // Switches from the current fiber back to whoever resumed it.
  static void suspend();

  const std::shared_ptr<Reactor>& reactor() const { return reactor_; }
  // The link whose socket the loop reads for this fiber's call (a nested
  // wait of the same call finds it watched already).
  const void* loopReads() const { return loop_reads_; }
  void setLoopReads(const void* link) { loop_reads_ = link; }

 private:
  struct Context;
  static void entry(unsigned lo, unsigned hi);

  std::shared_ptr<Reactor> reactor_;
  std::function<void()> body_;
  std::function<void()> on_done_;
  std::unique_ptr<Context> ctx_;
  bool done_ = false;
  const void* loop_reads_ = nullptr;
};

// The waits of a body running on a fiber, with the results of their thread
// counterparts in EchoPool.
EchoPool::WaitResult fiberWaitPop(EchoPool& pool, int64_t key, Clock::time_point deadline,
                                  Bytes& out, CancelToken* tok);
EchoPool::WaitResult fiberSleepUntil(EchoPool& pool, Clock::time_point deadline, CancelToken* tok);
WaitableQueue::Wait fiberWaitQueue(WaitableQueue& q, size_t n, Clock::time_point deadline,
                                   CancelToken* tok);

}  // namespace orv
