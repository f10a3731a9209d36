// Helpers shared by the C++ tests: counting threads and descriptors, the
// error a call raises, a call on a thread of its own, loopback sockets.
#pragma once

#include <arpa/inet.h>
#include <dirent.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "link/device.hpp"
#include "link/error.hpp"
#include "sim/device.hpp"
#include "sim/simulator.hpp"

namespace testutil {

// The entries of a /proc directory but "." and ".." (in /proc/self/fd, one is
// the directory stream's own descriptor).
inline size_t entries(const char* dir) {
  size_t n = 0;
  if (DIR* d = ::opendir(dir)) {
    while (dirent* e = ::readdir(d)) n += e->d_name[0] != '.';
    ::closedir(d);
  }
  return n;
}
inline size_t threadCount() { return entries("/proc/self/task"); }
inline size_t fdCount() { return entries("/proc/self/fd"); }

// The code of the orv::Error that f raises, 0 when it returns.
template <typename F>
int errorCode(F&& f) {
  try {
    f();
  } catch (const orv::Error& e) {
    return e.code();
  }
  return 0;
}

// Runs fn on a thread of its own; the future holds "" when fn returned, the
// name of what it threw otherwise.  A call that hangs leaves its thread
// behind, holding what it captured, and the test fails on the future.
inline std::future<std::string> runDetached(std::function<void()> fn) {
  auto done = std::make_shared<std::promise<std::string>>();
  auto fut = done->get_future();
  std::thread([fn = std::move(fn), done] {
    try {
      fn();
      done->set_value("");
    } catch (const orv::Error& e) {
      done->set_value(std::string(orv::errorInfo(e.id()).name));
    } catch (const orv::AsyncTimeout&) {
      done->set_value("AsyncTimeout");
    } catch (const std::exception& e) {
      done->set_value(std::string("std::exception: ") + e.what());
    }
  }).detach();
  return fut;
}

inline std::string resultWithin(std::future<std::string>& f, std::chrono::seconds bound) {
  if (f.wait_for(bound) != std::future_status::ready) return "still running";
  return f.get();
}

// A socket descriptor, closed with its owner.
class Fd {
 public:
  explicit Fd(int fd = -1) : fd_(fd) {}
  ~Fd() { reset(); }
  Fd(Fd&& o) noexcept : fd_(std::exchange(o.fd_, -1)) {}
  Fd& operator=(Fd&& o) noexcept {
    reset();
    fd_ = std::exchange(o.fd_, -1);
    return *this;
  }
  int get() const { return fd_; }
  void reset() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
  }

 private:
  int fd_;
};

inline sockaddr_in loopback(int port) {
  sockaddr_in a{};
  a.sin_family = AF_INET;
  a.sin_port = htons(static_cast<uint16_t>(port));
  a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return a;
}

inline int boundPort(int fd) {
  sockaddr_in a{};
  socklen_t len = sizeof a;
  getsockname(fd, reinterpret_cast<sockaddr*>(&a), &len);
  return ntohs(a.sin_port);
}

// A socket of `type` bound to 127.0.0.1 on a free port.
inline Fd boundSocket(int type) {
  Fd fd(::socket(AF_INET, type, 0));
  sockaddr_in a = loopback(0);
  EXPECT_EQ(::bind(fd.get(), reinterpret_cast<sockaddr*>(&a), sizeof a), 0);
  return fd;
}

inline bool readable(int fd, std::chrono::milliseconds wait) {
  pollfd p{fd, POLLIN, 0};
  return poll(&p, 1, static_cast<int>(wait.count())) == 1;
}

// A listening loopback socket; the kernel completes the handshake, so the
// client's connect returns before accept is called.
class Listener {
 public:
  Listener() : fd_(boundSocket(SOCK_STREAM)) {
    EXPECT_EQ(::listen(fd_.get(), 8), 0);
    port_ = boundPort(fd_.get());
  }
  int port() const { return port_; }
  Fd accept() {
    if (!readable(fd_.get(), std::chrono::seconds(5))) return Fd();
    return Fd(::accept(fd_.get(), nullptr, nullptr));
  }

 private:
  Fd fd_;
  int port_ = 0;
};

// A simulated Trellis on loopback with a connected ETHDevice.
class OnSimulatedDevice : public ::testing::Test {
 protected:
  void SetUp() override {
    sim_dev_ = &sim_.addDevice({.model = "Trellis"});
    dev_ = std::make_unique<orv::ETHDevice>(false);
    dev_->connect("127.0.0.1", sim_dev_->cmdPort(), false);
  }
  void TearDown() override {
    dev_->close(false);
    sim_.stop();
  }
  // Packets of `cmd` the device received.
  size_t sent(int cmd) {
    size_t n = 0;
    for (const auto& p : sim_dev_->packets()) n += p.cmd == cmd;
    return n;
  }
  orv::sim::Simulator sim_;
  orv::sim::SimDevice* sim_dev_ = nullptr;
  std::unique_ptr<orv::ETHDevice> dev_;
};

}  // namespace testutil
