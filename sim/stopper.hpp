// The stop signal shared by the threads of one simulated device (or of the
// discovery responder): an eventfd that every poll() watches, plus a
// condition variable for the threads that sleep instead of polling.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace orv::sim::detail {

class Stopper {
 public:
  Stopper();
  ~Stopper();
  Stopper(const Stopper&) = delete;
  Stopper& operator=(const Stopper&) = delete;

  // Readable for good once stop() was called (never drained).
  int fd() const { return fd_; }
  bool stopped() const { return stopped_.load(std::memory_order_acquire); }
  void stop();
  // Closes the eventfd once every thread that polls it has been joined.
  void release();

  // Sleeps; false when the stop came first.
  bool sleepFor(std::chrono::microseconds d);
  bool sleepUntil(std::chrono::steady_clock::time_point t);

 private:
  int fd_ = -1;
  std::atomic<bool> stopped_{false};
  std::mutex m_;
  std::condition_variable cv_;
};

}  // namespace orv::sim::detail
