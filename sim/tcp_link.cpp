// The TCP end of a simulated device: one listener, one host at a time.
//
// One thread per listener polls the stop eventfd, the listening socket and
// the host's connection; it reads, splits, records and dispatches, and the
// handlers' replies are written from that same thread at once.  A new
// connection replaces the old one.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

#include "link/error.hpp"
#include "link/thread_name.hpp"
#include "sim/links.hpp"

namespace orv::sim::detail {

namespace {

void drain(int fd) {
  uint64_t v;
  while (::read(fd, &v, sizeof v) > 0) {
  }
}

}  // namespace

TcpLink::TcpLink(Channel ch, const std::string& host, int port, Stopper& stopper,
                 OnPacket on_packet)
    : ch_(ch), stopper_(stopper), on_packet_(std::move(on_packet)) {
  listen_fd_ = bindSocket(SOCK_STREAM, host, port, &port_);
  kick_fd_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  if (kick_fd_ < 0) {
    const int err = errno;
    ::close(listen_fd_);
    throw OSError(err, "simulator: eventfd");
  }
}

TcpLink::~TcpLink() { join(); }

void TcpLink::start() {
  thread_ = std::thread([this] {
    nameThisThread("sim-tcp");
    run();
  });
}

void TcpLink::join() {
  if (thread_.joinable()) thread_.join();
  // A stopped device refuses new hosts at once and holds no descriptor.
  std::scoped_lock lk(write_m_, kick_m_);
  const int fd = conn_fd_.exchange(-1);
  if (fd >= 0) ::close(fd);
  if (listen_fd_ >= 0) ::close(listen_fd_);
  if (kick_fd_ >= 0) ::close(kick_fd_);
  listen_fd_ = kick_fd_ = -1;
}

void TcpLink::run() {
  std::vector<uint8_t> buf(64 * 1024);
  std::vector<RawPacket> packets;
  while (!stopper_.stopped()) {
    const int cfd = conn_fd_.load();
    pollfd p[3] = {{stopper_.fd(), POLLIN, 0}, {listen_fd_, POLLIN, 0}, {cfd, POLLIN, 0}};
    const nfds_t n = cfd >= 0 ? 3 : 2;
    if (::poll(p, n, -1) < 0) {
      if (errno == EINTR) continue;
      break;
    }
    if (p[0].revents) break;
    if (n == 3 && p[2].revents) {
      const ssize_t r = ::recv(cfd, buf.data(), buf.size(), 0);
      if (r > 0) {
        packets.clear();
        splitter_.feed(std::span<const uint8_t>(buf.data(), static_cast<size_t>(r)), packets);
        for (auto& pkt : packets) on_packet_(ch_, std::move(pkt));
      } else if (r == 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR)) {
        dropConnection();
      }
    }
    if (p[1].revents & POLLIN) {
      const int nfd = ::accept4(listen_fd_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      if (nfd >= 0) {
        const int one = 1;
        ::setsockopt(nfd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
        // Wake a writer stuck on the old connection, then take over.
        closing_ = true;
        const uint64_t kick = 1;
        [[maybe_unused]] ssize_t w = ::write(kick_fd_, &kick, sizeof kick);
        {
          std::lock_guard lk(write_m_);
          const int old = conn_fd_.exchange(nfd);
          if (old >= 0) ::close(old);
          drain(kick_fd_);
          closing_ = false;
        }
        splitter_.clear();
        { std::lock_guard lk(conn_m_); }
        conn_cv_.notify_all();
      }
    }
  }
}

void TcpLink::dropConnection() {
  std::lock_guard lk(write_m_);
  const int fd = conn_fd_.exchange(-1);
  if (fd >= 0) ::close(fd);
}

bool TcpLink::sendAll(int fd, const uint8_t* p, size_t n) {
  while (n > 0) {
    if (closing_.load()) return false;
    const ssize_t w = ::send(fd, p, n, MSG_NOSIGNAL);
    if (w > 0) {
      p += w;
      n -= static_cast<size_t>(w);
      continue;
    }
    if (w < 0 && errno == EINTR) continue;
    if (w < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
      pollfd q[3] = {{fd, POLLOUT, 0}, {stopper_.fd(), POLLIN, 0}, {kick_fd_, POLLIN, 0}};
      if (::poll(q, 3, -1) < 0 && errno != EINTR) return false;
      if (q[1].revents || q[2].revents) return false;
      continue;
    }
    return false;
  }
  return true;
}

bool TcpLink::write(std::span<const uint8_t> bytes, int split_bytes,
                    std::chrono::microseconds split_pause) {
  std::lock_guard lk(write_m_);
  const int fd = conn_fd_.load();
  if (fd < 0 || closing_.load()) return false;
  if (split_bytes <= 0 || static_cast<size_t>(split_bytes) >= bytes.size()) {
    return sendAll(fd, bytes.data(), bytes.size());
  }
  const size_t k = static_cast<size_t>(split_bytes);
  for (size_t off = 0; off < bytes.size(); off += k) {
    if (off > 0 && !stopper_.sleepFor(split_pause)) return false;
    if (!sendAll(fd, bytes.data() + off, std::min(k, bytes.size() - off))) return false;
  }
  return true;
}

void TcpLink::closeHost() {
  closing_ = true;
  {
    std::lock_guard kl(kick_m_);
    const uint64_t kick = 1;
    if (kick_fd_ >= 0) {
      [[maybe_unused]] ssize_t w = ::write(kick_fd_, &kick, sizeof kick);
    }
  }
  std::lock_guard lk(write_m_);
  const int fd = conn_fd_.load();
  // The link thread sees the end of the stream and closes the socket; the
  // host sees its connection end now.
  if (fd >= 0) ::shutdown(fd, SHUT_RDWR);
}

bool TcpLink::hostConnected() const { return conn_fd_.load() >= 0 && !closing_.load(); }

bool TcpLink::waitForHost(std::chrono::milliseconds timeout) {
  std::unique_lock lk(conn_m_);
  return conn_cv_.wait_for(lk, timeout, [&] { return hostConnected() || stopper_.stopped(); }) &&
         hostConnected();
}

}  // namespace orv::sim::detail
