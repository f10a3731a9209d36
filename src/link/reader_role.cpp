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

void ReaderRole::armLocked(bool on) {
  armed_ = false;
  if (sock_fd_ < 0) return;
  epoll_event ev{};
  ev.events = EPOLLONESHOT | (on ? EPOLLIN : 0u);
  ev.data.u64 = kSocketTag;
  // A socket closed meanwhile has left the set by itself (ENOENT, EBADF):
  // the thread registers the next one when it comes back.
  if (::epoll_ctl(epfd_, EPOLL_CTL_MOD, sock_fd_, &ev) == 0) armed_ = on;
}

bool ReaderRole::threadWait(int fd, uint64_t socket_id) {
  {
    std::lock_guard lk(m_);
    const bool idle = callers_ == 0 && holder_ == Holder::None;
    if (fd != sock_fd_ || socket_id != sock_id_) {
      if (sock_fd_ >= 0) ::epoll_ctl(epfd_, EPOLL_CTL_DEL, sock_fd_, nullptr);
      epoll_event ev{};
      ev.events = EPOLLONESHOT | (idle ? EPOLLIN : 0u);
      ev.data.u64 = kSocketTag;
      int rc = ::epoll_ctl(epfd_, EPOLL_CTL_ADD, fd, &ev);
      if (rc != 0 && errno == EEXIST) rc = ::epoll_ctl(epfd_, EPOLL_CTL_MOD, fd, &ev);
      if (rc != 0) {
        sock_fd_ = -1;
        armed_ = false;
        return false;  // a socket closed under us: the caller pauses and looks again
      }
      sock_fd_ = fd;
      sock_id_ = socket_id;
      armed_ = idle;
    } else if (idle && !armed_) {
      armLocked(true);
    }
  }
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

void ReaderRole::threadDone() {
  bool followers = false;
  {
    std::lock_guard lk(m_);
    holder_ = Holder::None;
    free_.store(true, std::memory_order_release);
    if (callers_ == 0)
      armLocked(true);
    else
      followers = true;
  }
  if (followers && on_free_) on_free_();
}

void ReaderRole::wake() { signalFd(thread_wake_fd_); }

void ReaderRole::enter() {
  std::lock_guard lk(m_);
  if (++callers_ == 1 && armed_) armLocked(false);
}

void ReaderRole::leave() {
  std::lock_guard lk(m_);
  if (--callers_ == 0 && holder_ == Holder::None && !armed_) armLocked(true);
}

bool ReaderRole::tryLead() {
  std::lock_guard lk(m_);
  if (holder_ != Holder::None) return false;
  holder_ = Holder::Caller;
  free_.store(false, std::memory_order_release);
  return true;
}

void ReaderRole::endLead() {
  bool followers = false;
  {
    std::lock_guard lk(m_);
    holder_ = Holder::None;
    free_.store(true, std::memory_order_release);
    followers = callers_ > 1;
  }
  if (followers && on_free_) on_free_();
}

void ReaderRole::wakeLeader() { signalFd(leader_wake_fd_); }

}  // namespace orv
