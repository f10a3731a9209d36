// The three data pools of a device: latest reply per key, a FIFO per stream
// key, a set of answers per broadcast command.  Receive threads write them,
// callers read them; every single operation is indivisible.  A reply wakes
// its waiter at once; on the main thread a SIGINT wakes it too
// (link/interrupt.hpp).
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

#include "link/value.hpp"

namespace orv {

using Clock = std::chrono::steady_clock;

// Lets a waiter be stopped from another thread (a cancelled awaitable).
class CancelToken {
 public:
  bool cancelled() const { return cancelled_.load(std::memory_order_acquire); }
  // Sets the flag and wakes whatever wait the token is registered with.
  void cancel();
  // Called by a waiter before it sleeps; the waker must not outlive the wait.
  void setWaker(std::function<void()> waker);

 private:
  std::atomic<bool> cancelled_{false};
  std::mutex m_;
  std::function<void()> waker_;
};

// data_pool_echo: one slot per key, the latest reply.
class EchoPool {
 public:
  enum class WaitResult { Taken, TimedOut, Cancelled, Closed, Stopped };

  void put(int64_t key, Bytes data);
  std::optional<Bytes> pop(int64_t key);
  bool contains(int64_t key) const;
  size_t size() const;
  std::vector<std::pair<int64_t, Bytes>> snapshot() const;
  void clear();

  // Waits until a reply for key is there (taking it) or until `deadline`.
  // A reply already present is taken at once.  With `stop`, the wait also
  // ends (Stopped) once the flag is set and wakeAll() called.
  WaitResult waitPop(int64_t key, Clock::time_point deadline, Bytes& out, CancelToken* tok,
                     const std::atomic<bool>* stop = nullptr);
  // Sleeps until `deadline` unless cancelled or closed meanwhile.
  WaitResult sleepUntil(Clock::time_point deadline, CancelToken* tok);

  // The waiter of a call that must not block a thread (an awaitable on its
  // fiber): `handler` is handed the reply for `key` on the receive thread, in
  // place of storing it, or nullopt when the pool closes.  A reply already
  // there is taken at once instead (Taken, `out` set); a closed pool answers
  // Closed.  Otherwise the waiter's id is set and the answer is Pending.
  using ReplyHandler = std::function<void(std::optional<Bytes>)>;
  enum class AddResult { Pending, Taken, Closed };
  AddResult addWaiter(int64_t key, ReplyHandler handler, Bytes& out, uint64_t& id);
  // False when the waiter was handed its answer already (it is on its way).
  bool removeWaiter(uint64_t id);
  // A key no reply has: a waiter on it hears only the pool's close.
  static constexpr int64_t kNoReply = INT64_MIN;

  // Wakes every waiter; waiters see Closed while closed.
  void close();
  void reopen();
  bool closed() const;
  void wakeAll();

 private:
  mutable std::mutex m_;
  std::condition_variable cv_;
  std::unordered_map<int64_t, Bytes> slots_;
  struct Waiter {
    uint64_t id;
    int64_t key;
    ReplyHandler handler;
  };
  std::vector<Waiter> waiters_;  // oldest first
  uint64_t next_waiter_ = 1;
  bool closed_ = false;
};

// A stream key: an int, a pair (cmd, port) or a triple (cmd, port, cs).
struct StreamKey {
  int cmd = 0;
  int port = 0;
  int cs = 0;
  uint8_t arity = 1;  // 1, 2 or 3
  auto operator<=>(const StreamKey&) const = default;
  static StreamKey one(int c) { return {c, 0, 0, 1}; }
  static StreamKey pair(int c, int p) { return {c, p, 0, 2}; }
  static StreamKey triple(int c, int p, int s) { return {c, p, s, 3}; }
};

// What every queue a reader waits on has: its length, its close, a wait for
// a length and a watch for a waiter that is not a thread.  A queue keeps its
// items its own way and says how many it holds (countLocked); after adding
// items it calls added() so that waiters and watches see them.
class WaitableQueue {
 public:
  virtual ~WaitableQueue() = default;
  // How a wait for a number of items ended.
  enum class Wait { Ready, TimedOut, Cancelled, Closed };
  // Sleeps the calling thread until size() >= n (Ready), the deadline, a
  // cancel or the queue's close.  Items already there win over the rest.
  Wait waitSize(size_t n, Clock::time_point deadline, CancelToken* tok = nullptr);
  // Until size() >= n, without a deadline; false on cancel/close.
  bool waitSize(size_t n, CancelToken* tok = nullptr) {
    return waitSize(n, Clock::time_point::max(), tok) == Wait::Ready;
  }
  // For a waiter that is not a thread (a fiber on the event loop): `fn` runs
  // once, on the pushing or closing thread and without the queue's lock, as
  // soon as size() >= n or the queue is closed.  Returns 0 without keeping
  // `fn` when that holds already; otherwise an id for unwatch().
  uint64_t watch(size_t n, std::function<void()> fn);
  void unwatch(uint64_t id);
  size_t size() const;
  bool closed() const;
  void close();  // wakes waiters for good

 protected:
  virtual size_t countLocked() const = 0;
  // Items were added under `lk`: wakes the waiters and runs the watches now
  // due, after unlocking.
  void added(std::unique_lock<std::mutex>& lk);

  mutable std::mutex m_;
  std::condition_variable cv_;
  bool closed_ = false;

 private:
  struct Watch {
    uint64_t id;
    size_t n;
    std::function<void()> fn;
  };
  // The watches whose condition holds now, taken out; under m_.
  std::vector<std::function<void()>> takeDueWatches();

  std::vector<Watch> watches_;
  uint64_t next_watch_ = 1;
};

// An unbounded (or bounded) thread-safe FIFO of byte records.
class StreamQueue : public WaitableQueue {
 public:
  explicit StreamQueue(size_t max_size = 0) : max_(max_size) {}
  // False when the queue is bounded and full (the record is dropped).
  bool push(Bytes item);
  std::optional<Bytes> tryPop();
  // Waits for an item until deadline; nullopt on timeout, cancel or close.
  std::optional<Bytes> popWait(Clock::time_point deadline, CancelToken* tok = nullptr);
  void clear();
  // Runs `fn` after every push, on the pushing thread and without the
  // queue's lock: a consumer that takes records where they arrive, instead
  // of being woken for each.  An empty `fn` removes it.
  void setListener(std::function<void()> fn);

 private:
  size_t countLocked() const override { return q_.size(); }

  std::deque<Bytes> q_;
  size_t max_;
  std::shared_ptr<const std::function<void()>> listener_;
};

class StreamPool {
 public:
  // The queue of a key, made empty on first use.
  std::shared_ptr<StreamQueue> get(const StreamKey& key);
  std::vector<StreamKey> keys() const;
  void closeAll();

 private:
  mutable std::mutex m_;
  std::map<StreamKey, std::shared_ptr<StreamQueue>> queues_;
};

// data_pool_bcst: a set of answers per command.
class BroadcastPool {
 public:
  void add(int cmd, Bytes answer);
  void clear(int cmd);
  std::set<Bytes> get(int cmd);  // a copy; the entry is made on first use
  size_t size(int cmd) const;

 private:
  mutable std::mutex m_;
  std::map<int, std::set<Bytes>> sets_;
};

}  // namespace orv
