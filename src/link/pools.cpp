#include "link/pools.hpp"

#include <algorithm>

#include "link/interrupt.hpp"
#include "link/stream_route.hpp"

namespace orv {

// ---- CancelToken -------------------------------------------------------------

void CancelToken::cancel() {
  cancelled_.store(true, std::memory_order_release);
  std::function<void()> w;
  {
    std::lock_guard lk(m_);
    w = waker_;
  }
  if (w) w();
}

void CancelToken::setWaker(std::function<void()> waker) {
  std::lock_guard lk(m_);
  waker_ = std::move(waker);
}

namespace {
// One wait: the token's waker is registered while it lasts, and on the signal
// thread the wait is woken by a signal too (link/interrupt.hpp).
class WakerScope {
 public:
  WakerScope(CancelToken* tok, const std::function<void()>& w) : tok_(tok), signals_(w) {
    if (tok_) tok_->setWaker(w);
  }
  ~WakerScope() {
    if (tok_) tok_->setWaker(nullptr);
  }
  WakerScope(const WakerScope&) = delete;
  WakerScope& operator=(const WakerScope&) = delete;

  // When a signal came: runs the host's handlers with `lk` released and
  // returns true (the wait checks again); throws what a handler raised.
  bool signalled(std::unique_lock<std::mutex>& lk) {
    if (!signals_.pending()) return false;
    lk.unlock();
    signals_.runHandlers();
    lk.lock();
    return true;
  }

 private:
  CancelToken* tok_;
  interrupt::WaitScope signals_;
};
}  // namespace

// ---- EchoPool ----------------------------------------------------------------

void EchoPool::put(int64_t key, Bytes data) {
  ReplyHandler handler;
  {
    std::lock_guard lk(m_);
    auto it = std::find_if(waiters_.begin(), waiters_.end(),
                           [key](const Waiter& w) { return w.key == key; });
    if (it != waiters_.end()) {
      handler = std::move(it->handler);
      waiters_.erase(it);
    } else {
      slots_[key] = std::move(data);
    }
  }
  if (handler)
    handler(std::move(data));
  else
    cv_.notify_all();
}

EchoPool::AddResult EchoPool::addWaiter(int64_t key, ReplyHandler handler, Bytes& out,
                                        uint64_t& id) {
  std::lock_guard lk(m_);
  if (auto it = slots_.find(key); it != slots_.end()) {
    out = std::move(it->second);
    slots_.erase(it);
    return AddResult::Taken;
  }
  if (closed_) return AddResult::Closed;
  id = next_waiter_++;
  waiters_.push_back({id, key, std::move(handler)});
  return AddResult::Pending;
}

bool EchoPool::removeWaiter(uint64_t id) {
  std::lock_guard lk(m_);
  auto it =
      std::find_if(waiters_.begin(), waiters_.end(), [id](const Waiter& w) { return w.id == id; });
  if (it == waiters_.end()) return false;
  waiters_.erase(it);
  return true;
}

std::optional<Bytes> EchoPool::pop(int64_t key) {
  std::lock_guard lk(m_);
  auto it = slots_.find(key);
  if (it == slots_.end()) return std::nullopt;
  Bytes out = std::move(it->second);
  slots_.erase(it);
  return out;
}

bool EchoPool::contains(int64_t key) const {
  std::lock_guard lk(m_);
  return slots_.count(key) != 0;
}

size_t EchoPool::size() const {
  std::lock_guard lk(m_);
  return slots_.size();
}

std::vector<std::pair<int64_t, Bytes>> EchoPool::snapshot() const {
  std::lock_guard lk(m_);
  return {slots_.begin(), slots_.end()};
}

void EchoPool::clear() {
  std::lock_guard lk(m_);
  slots_.clear();
}

EchoPool::WaitResult EchoPool::waitPop(int64_t key, Clock::time_point deadline, Bytes& out,
                                       CancelToken* tok, const std::atomic<bool>* stop) {
  WakerScope ws(tok, [this] { wakeAll(); });
  std::unique_lock lk(m_);
  for (;;) {
    auto it = slots_.find(key);
    if (it != slots_.end()) {
      out = std::move(it->second);
      slots_.erase(it);
      return WaitResult::Taken;
    }
    if (ws.signalled(lk)) continue;
    if (tok && tok->cancelled()) return WaitResult::Cancelled;
    if (closed_) return WaitResult::Closed;
    if (stop && stop->load(std::memory_order_acquire)) return WaitResult::Stopped;
    if (Clock::now() >= deadline) return WaitResult::TimedOut;
    cv_.wait_until(lk, deadline);
  }
}

EchoPool::WaitResult EchoPool::sleepUntil(Clock::time_point deadline, CancelToken* tok) {
  WakerScope ws(tok, [this] { wakeAll(); });
  std::unique_lock lk(m_);
  for (;;) {
    if (ws.signalled(lk)) continue;
    if (tok && tok->cancelled()) return WaitResult::Cancelled;
    if (closed_) return WaitResult::Closed;
    if (Clock::now() >= deadline) return WaitResult::TimedOut;
    cv_.wait_until(lk, deadline);
  }
}

void EchoPool::close() {
  std::vector<Waiter> waiters;
  {
    std::lock_guard lk(m_);
    closed_ = true;
    waiters.swap(waiters_);
  }
  cv_.notify_all();
  for (auto& w : waiters) w.handler(std::nullopt);
}

void EchoPool::reopen() {
  std::lock_guard lk(m_);
  closed_ = false;
}

bool EchoPool::closed() const {
  std::lock_guard lk(m_);
  return closed_;
}

void EchoPool::wakeAll() {
  // Taking the lock orders the wake after a waiter's predicate check.
  { std::lock_guard lk(m_); }
  cv_.notify_all();
}

// ---- WaitableQueue -----------------------------------------------------------

void WaitableQueue::added(std::unique_lock<std::mutex>& lk) {
  std::vector<std::function<void()>> due;
  if (!watches_.empty()) due = takeDueWatches();
  lk.unlock();
  cv_.notify_all();
  for (auto& fn : due) fn();
}

std::vector<std::function<void()>> WaitableQueue::takeDueWatches() {
  std::vector<std::function<void()>> due;
  const size_t count = countLocked();
  for (auto it = watches_.begin(); it != watches_.end();) {
    if (closed_ || count >= it->n) {
      due.push_back(std::move(it->fn));
      it = watches_.erase(it);
    } else {
      ++it;
    }
  }
  return due;
}

uint64_t WaitableQueue::watch(size_t n, std::function<void()> fn) {
  std::lock_guard lk(m_);
  if (closed_ || countLocked() >= n) return 0;
  const uint64_t id = next_watch_++;
  watches_.push_back({id, n, std::move(fn)});
  return id;
}

void WaitableQueue::unwatch(uint64_t id) {
  std::lock_guard lk(m_);
  std::erase_if(watches_, [id](const Watch& w) { return w.id == id; });
}

bool WaitableQueue::closed() const {
  std::lock_guard lk(m_);
  return closed_;
}

size_t WaitableQueue::size() const {
  std::lock_guard lk(m_);
  return countLocked();
}

WaitableQueue::Wait WaitableQueue::waitSize(size_t n, Clock::time_point deadline,
                                            CancelToken* tok) {
  WakerScope ws(tok, [this] {
    { std::lock_guard lk(m_); }
    cv_.notify_all();
  });
  std::unique_lock lk(m_);
  for (;;) {
    if (countLocked() >= n) return Wait::Ready;
    if (ws.signalled(lk)) continue;
    if (tok && tok->cancelled()) return Wait::Cancelled;
    if (closed_) return Wait::Closed;
    if (deadline == Clock::time_point::max()) {
      cv_.wait(lk);
      continue;
    }
    if (Clock::now() >= deadline) return Wait::TimedOut;
    cv_.wait_until(lk, deadline);
  }
}

void WaitableQueue::close() {
  std::vector<std::function<void()>> due;
  {
    std::lock_guard lk(m_);
    closed_ = true;
    due = takeDueWatches();
  }
  cv_.notify_all();
  for (auto& fn : due) fn();
}

// ---- StreamQueue -------------------------------------------------------------

bool StreamQueue::push(Bytes item) {
  std::unique_lock lk(m_);
  if (max_ != 0 && q_.size() >= max_) return false;
  q_.push_back(std::move(item));
  const auto listener = listener_;
  added(lk);
  if (listener) (*listener)();
  return true;
}

void StreamQueue::setListener(std::function<void()> fn) {
  std::lock_guard lk(m_);
  listener_ = fn ? std::make_shared<const std::function<void()>>(std::move(fn)) : nullptr;
}

std::optional<Bytes> StreamQueue::tryPop() {
  std::lock_guard lk(m_);
  if (q_.empty()) return std::nullopt;
  Bytes out = std::move(q_.front());
  q_.pop_front();
  return out;
}

std::optional<Bytes> StreamQueue::popWait(Clock::time_point deadline, CancelToken* tok) {
  WakerScope ws(tok, [this] {
    { std::lock_guard lk(m_); }
    cv_.notify_all();
  });
  std::unique_lock lk(m_);
  for (;;) {
    if (!q_.empty()) {
      Bytes out = std::move(q_.front());
      q_.pop_front();
      return out;
    }
    if (ws.signalled(lk)) continue;
    if ((tok && tok->cancelled()) || closed_ || Clock::now() >= deadline) return std::nullopt;
    cv_.wait_until(lk, deadline);
  }
}

void StreamQueue::clear() {
  std::lock_guard lk(m_);
  q_.clear();
}

// ---- StreamPool --------------------------------------------------------------

std::shared_ptr<StreamQueue> StreamPool::get(const StreamKey& key) {
  std::lock_guard lk(m_);
  auto& q = queues_[key];
  if (!q) q = std::make_shared<StreamQueue>();
  return q;
}

std::vector<StreamKey> StreamPool::keys() const {
  std::lock_guard lk(m_);
  std::vector<StreamKey> out;
  out.reserve(queues_.size());
  for (const auto& [k, q] : queues_) out.push_back(k);
  return out;
}

void StreamPool::closeAll() {
  std::lock_guard lk(m_);
  for (auto& [k, q] : queues_) q->close();
}

// ---- BroadcastPool -----------------------------------------------------------

void BroadcastPool::add(int cmd, Bytes answer) {
  std::lock_guard lk(m_);
  sets_[cmd].insert(std::move(answer));
}

void BroadcastPool::clear(int cmd) {
  std::lock_guard lk(m_);
  sets_[cmd].clear();
}

std::set<Bytes> BroadcastPool::get(int cmd) {
  std::lock_guard lk(m_);
  return sets_[cmd];
}

size_t BroadcastPool::size(int cmd) const {
  std::lock_guard lk(m_);
  auto it = sets_.find(cmd);
  return it == sets_.end() ? 0 : it->second.size();
}

// ---- stream routes ---------------------------------------------------------------

namespace {
// A handful of entries, written before any receive thread starts.
std::vector<std::pair<int, StreamRoute>>& streamRoutes() {
  static std::vector<std::pair<int, StreamRoute>> routes;
  return routes;
}
}  // namespace

void registerStreamRoute(int cmd, StreamRoute route) {
  for (auto& [c, r] : streamRoutes())
    if (c == cmd) {
      r = route;
      return;
    }
  streamRoutes().emplace_back(cmd, route);
}

const StreamRoute* findStreamRoute(int cmd) {
  for (const auto& [c, r] : streamRoutes())
    if (c == cmd) return &r;
  return nullptr;
}

}  // namespace orv
