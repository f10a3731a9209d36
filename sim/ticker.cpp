#include "sim/ticker.hpp"

#include "link/thread_name.hpp"

namespace orv::sim::detail {

int Ticker::start(std::chrono::microseconds interval, std::function<bool()> tick) {
  std::unique_lock lk(m_);
  if (quit_) return 0;
  const int id = next_id_++;
  tasks_[id] = Task{interval, Clock::now() + interval, std::move(tick)};
  if (!thread_.joinable())
    thread_ = std::thread([this] {
      nameThisThread("sim-ticker");
      run();
    });
  lk.unlock();
  cv_.notify_all();
  return id;
}

void Ticker::waitIdle(std::unique_lock<std::mutex>& lk, int id) {
  if (thread_.joinable() && std::this_thread::get_id() == thread_.get_id()) return;
  cv_.wait(lk, [&] { return id == 0 ? running_ == 0 : running_ != id; });
}

void Ticker::stop(int id) {
  std::unique_lock lk(m_);
  tasks_.erase(id);
  waitIdle(lk, id);
  lk.unlock();
  cv_.notify_all();
}

void Ticker::stopAll() {
  std::unique_lock lk(m_);
  tasks_.clear();
  waitIdle(lk, 0);
  lk.unlock();
  cv_.notify_all();
}

size_t Ticker::count() const {
  std::lock_guard lk(m_);
  return tasks_.size();
}

void Ticker::join() {
  {
    std::lock_guard lk(m_);
    quit_ = true;
  }
  cv_.notify_all();
  if (thread_.joinable() && std::this_thread::get_id() != thread_.get_id()) thread_.join();
  std::lock_guard lk(m_);
  tasks_.clear();
}

void Ticker::run() {
  std::unique_lock lk(m_);
  while (!quit_) {
    if (tasks_.empty()) {
      cv_.wait(lk, [&] { return quit_ || !tasks_.empty(); });
      continue;
    }
    auto next = tasks_.begin();
    for (auto it = tasks_.begin(); it != tasks_.end(); ++it) {
      if (it->second.due < next->second.due) next = it;
    }
    const auto due = next->second.due;
    if (due > Clock::now()) {
      cv_.wait_until(lk, due);
      continue;  // the task list may have changed meanwhile
    }
    const int id = next->first;
    auto tick = next->second.tick;
    running_ = id;
    lk.unlock();
    bool more = false;
    try {
      more = tick();
    } catch (...) {
      more = false;
    }
    lk.lock();
    running_ = 0;
    cv_.notify_all();
    auto it = tasks_.find(id);
    if (it == tasks_.end()) continue;
    if (!more) {
      tasks_.erase(it);
      continue;
    }
    it->second.due += it->second.interval;
    // After a long stall, carry on from now instead of bursting to catch up.
    const auto now = Clock::now();
    if (now - it->second.due > std::chrono::seconds(1)) it->second.due = now;
  }
}

}  // namespace orv::sim::detail
