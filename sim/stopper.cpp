#include "sim/stopper.hpp"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "link/error.hpp"

namespace orv::sim::detail {

Stopper::Stopper() : fd_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (fd_ < 0) throw OSError(errno, "simulator: eventfd");
}

Stopper::~Stopper() {
  if (fd_ >= 0) ::close(fd_);
}

void Stopper::stop() {
  {
    std::lock_guard lk(m_);
    if (stopped_.exchange(true)) return;
  }
  cv_.notify_all();
  std::lock_guard lk(m_);
  if (fd_ < 0) return;
  const uint64_t one = 1;
  ssize_t n;
  do {
    n = ::write(fd_, &one, sizeof one);
  } while (n < 0 && errno == EINTR);
}

void Stopper::release() {
  std::lock_guard lk(m_);
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

bool Stopper::sleepFor(std::chrono::microseconds d) {
  return sleepUntil(std::chrono::steady_clock::now() + d);
}

bool Stopper::sleepUntil(std::chrono::steady_clock::time_point t) {
  std::unique_lock lk(m_);
  return !cv_.wait_until(lk, t, [&] { return stopped_.load(); });
}

}  // namespace orv::sim::detail
