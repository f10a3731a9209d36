#include "link/reader_role.hpp"

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>

#include "link/error.hpp"

namespace orv {

namespace {
constexpr uint64_t kWakeTag = 0;
constexpr uint64_t kSocketTag = 1;

void signalFd(int fd) {
  const uint64_t one = 1;
  [[maybe_unused]] const ssize_t r = ::write(fd, &one, sizeof one);
}

void drainFd(int fd) {
  uint64_t v;
  [[maybe_unused]] const ssize_t r = ::read(fd, &v, sizeof v);
}
}  // namespace

ReaderRole::ReaderRole() {
  epfd_ = ::epoll_create1(EPOLL_CLOEXEC);
  thread_wake_fd_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  leader_wake_fd_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  if (epfd_ < 0 || thread_wake_fd_ < 0 || leader_wake_fd_ < 0) {
    const int err = errno;
    for (int fd : {epfd_, thread_wake_fd_, leader_wake_fd_})
      if (fd >= 0) ::close(fd);
    throw OSError(err, "cannot make the link's reader descriptors");
  }
  epoll_event ev{};
  ev.events = EPOLLIN;
  ev.data.u64 = kWakeTag;
  ::epoll_ctl(epfd_, EPOLL_CTL_ADD, thread_wake_fd_, &ev);
}

ReaderRole::~ReaderRole() {
  ::close(epfd_);
  ::close(thread_wake_fd_);
  ::close(leader_wake_fd_);
}

void ReaderRole::armLocked(bool on, const SocketRef* held) {
  // Only a socket the caller holds open is touched: its number cannot be
  // closed and reused meanwhile.  One that is not held is going away; the
  // thread registers the next socket when it comes.
  if (!held || held->fd != sock_fd_ || held->id != sock_id_) {
    if (!on) armed_ = false;
    return;
  }
  armed_ = false;
  epoll_event ev{};
  ev.events = EPOLLONESHOT | (on ? EPOLLIN : 0u);
  ev.data.u64 = kSocketTag;
  if (::epoll_ctl(epfd_, EPOLL_CTL_MOD, sock_fd_, &ev) == 0) armed_ = on;
}

bool ReaderRole::threadRegister(const SocketRef& held) {
  std::lock_guard lk(m_);
  const bool idle = callers_ == 0 && holder_ == Holder::None;
  if (held.fd == sock_fd_ && held.id == sock_id_) {
    if (idle && !armed_) armLocked(true, &held);
    return true;
  }
  // A socket replaced by another was closed first and so left the set.
  epoll_event ev{};
  ev.events = EPOLLONESHOT | (idle ? EPOLLIN : 0u);
  ev.data.u64 = kSocketTag;
  int rc = ::epoll_ctl(epfd_, EPOLL_CTL_ADD, held.fd, &ev);
  if (rc != 0 && errno == EEXIST) rc = ::epoll_ctl(epfd_, EPOLL_CTL_MOD, held.fd, &ev);
  if (rc != 0) {
    sock_fd_ = -1;
    armed_ = false;
    return false;
  }
  sock_fd_ = held.fd;
  sock_id_ = held.id;
  armed_ = idle;
  return true;
}

bool ReaderRole::threadWait() {
  epoll_event evs[2];
  const int n = ::epoll_wait(epfd_, evs, 2, -1);
  bool input = false;
  for (int i = 0; i < n; ++i) {
    if (evs[i].data.u64 == kWakeTag)
      drainFd(thread_wake_fd_);
    else
      input = true;
  }
  if (!input) return false;
  std::lock_guard lk(m_);
  armed_ = false;
  if (callers_ != 0 || holder_ != Holder::None) return false;  // a caller reads it
  holder_ = Holder::Thread;
  free_.store(false, std::memory_order_release);
  return true;
}

void ReaderRole::threadDone(const SocketRef* held) {
  bool followers = false;
  std::vector<std::function<void()>> loops;
  {
    std::lock_guard lk(m_);
    holder_ = Holder::None;
    free_.store(true, std::memory_order_release);
    if (callers_ == 0)
      armLocked(true, held);
    else
      followers = true;
    if (!when_free_.empty()) loops.swap(when_free_);
  }
  if (followers && on_free_) on_free_();
  for (auto& fn : loops) fn();
}

void ReaderRole::wake() { signalFd(thread_wake_fd_); }

void ReaderRole::enter(const SocketRef* held) {
  std::lock_guard lk(m_);
  if (++callers_ == 1 && armed_) armLocked(false, held);
}

void ReaderRole::leave(const SocketRef* held) {
  std::lock_guard lk(m_);
  if (--callers_ == 0 && holder_ == Holder::None && !armed_) armLocked(true, held);
}

bool ReaderRole::tryLead() {
  std::lock_guard lk(m_);
  if (holder_ != Holder::None) return false;
  holder_ = Holder::Caller;
  free_.store(false, std::memory_order_release);
  return true;
}

bool ReaderRole::tryLead(std::function<void()> when_free) {
  std::lock_guard lk(m_);
  if (holder_ != Holder::None) {
    when_free_.push_back(std::move(when_free));
    return false;
  }
  holder_ = Holder::Caller;
  free_.store(false, std::memory_order_release);
  return true;
}

void ReaderRole::endLead() {
  bool followers = false;
  std::vector<std::function<void()>> loops;
  {
    std::lock_guard lk(m_);
    holder_ = Holder::None;
    free_.store(true, std::memory_order_release);
    followers = callers_ > 1;
    if (!when_free_.empty()) loops.swap(when_free_);
  }
  if (followers && on_free_) on_free_();
  for (auto& fn : loops) fn();
}

void ReaderRole::wakeLeader() { signalFd(leader_wake_fd_); }

}  // namespace orv
