// One reader at a time on a socket link.
//
// Whoever holds the role reads the socket and dispatches what it read, with
// the link's one splitter, in arrival order; nobody else touches the socket's
// input.  The role goes to
//
//   a blocking caller waiting for its reply (leader/follower): the first one
//       takes the role and reads until its own reply is there; the others
//       wait in the pool and take the role in turn when it is given back.
//       The reply so reaches its caller with no thread in between.
//   an event loop, for its awaitables waiting for a reply (link/fiber.hpp):
//       the loop watches the socket and reads what is there on its own
//       thread, without blocking, whenever it has input; awaitables count as
//       callers, so the thread stands aside meanwhile.
//   the receive thread, while no caller waits: it sleeps in epoll on the
//       socket (armed one-shot) and on a wake descriptor, and reads one
//       buffer per wake-up.
//
// The first caller to arrive disarms the thread's watch of the socket and the
// last one to leave arms it again (two epoll_ctl calls per call, no thread
// woken): the receive thread sleeps through a run of calls instead of waking
// for every reply.  Records that arrive meanwhile (streams, replies for
// awaitables) are read and dispatched by the leading caller.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <vector>

namespace orv {

class ReaderRole {
 public:
  ReaderRole();
  ~ReaderRole();
  ReaderRole(const ReaderRole&) = delete;
  ReaderRole& operator=(const ReaderRole&) = delete;

  // Called with the pool's followers to wake when the role is given back
  // while callers still wait.
  void setOnFree(std::function<void()> on_free) { on_free_ = std::move(on_free); }

  // A socket held open by its client while the role's watch of it changes
  // (NetworkClient::holdSocket): a number that is not held may be closed and
  // reused under us.  The role changes the watch only through a held socket.
  struct SocketRef {
    int fd = -1;
    uint64_t id = 0;  // the client's socketId: tells a reused number apart
  };

  // ---- the receive thread
  // Watches `held` (registering it when it is new); false when it cannot.
  bool threadRegister(const SocketRef& held);
  // Sleeps until the watched socket has input and no caller waits, or until
  // wake().  True: the thread holds the role and reads once, then calls
  // threadDone() (with the socket held, when it still is).
  bool threadWait();
  void threadDone(const SocketRef* held);
  // Ends a threadWait (close, stop, a link brought up or down).
  void wake();

  // ---- callers waiting for a reply
  void enter(const SocketRef* held);
  void leave(const SocketRef* held);
  // Takes the role when nobody holds it.
  bool tryLead();
  // The same for an event loop reading for its awaitables: when the role is
  // held, `when_free` runs once it is given back (on the giving thread).
  bool tryLead(std::function<void()> when_free);
  void endLead();
  // Nobody holds the role (a waiting follower may take it).
  bool free() const { return free_.load(std::memory_order_acquire); }
  const std::atomic<bool>& freeFlag() const { return free_; }
  // Readable while the leader should stop reading and look again (cancel,
  // close, a signal).
  int leaderWakeFd() const { return leader_wake_fd_; }
  void wakeLeader();

 private:
  void armLocked(bool on, const SocketRef* held);

  std::mutex m_;
  enum class Holder { None, Thread, Caller } holder_ = Holder::None;
  std::atomic<bool> free_{true};
  int callers_ = 0;
  int epfd_ = -1;
  int thread_wake_fd_ = -1;
  int leader_wake_fd_ = -1;
  int sock_fd_ = -1;  // the socket registered in epfd_
  uint64_t sock_id_ = 0;
  bool armed_ = false;
  std::function<void()> on_free_;
  std::vector<std::function<void()>> when_free_;
};

}  // namespace orv
