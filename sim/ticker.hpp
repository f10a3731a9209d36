// Periodic work of one simulated device (streaming records at a rate).
// One thread, started on first use, runs every task when it falls due.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace orv::sim::detail {

class Ticker {
 public:
  using Clock = std::chrono::steady_clock;
  Ticker() = default;
  ~Ticker() { join(); }
  Ticker(const Ticker&) = delete;
  Ticker& operator=(const Ticker&) = delete;

  // Runs tick() every interval (0: back to back) until it returns false or
  // stop(id).  The first run is due one interval from now.  Returns the id,
  // or 0 once the ticker was joined.
  int start(std::chrono::microseconds interval, std::function<bool()> tick);
  // Removes a task; when its tick is running on the ticker thread, waits for
  // it to end (unless called from that tick).
  void stop(int id);
  void stopAll();
  size_t count() const;
  // Ends the thread (for good).
  void join();

 private:
  struct Task {
    std::chrono::microseconds interval;
    Clock::time_point due;
    std::function<bool()> tick;
  };
  void run();
  void waitIdle(std::unique_lock<std::mutex>& lk, int id);

  mutable std::mutex m_;
  std::condition_variable cv_;
  std::map<int, Task> tasks_;
  int next_id_ = 1;
  int running_ = 0;
  bool quit_ = false;
  std::thread thread_;
};

}  // namespace orv::sim::detail
