#include "sim/firmware_peer.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "link/error.hpp"
#include "link/thread_name.hpp"

namespace orv::sim::detail {

FirmwarePeer::FirmwarePeer(const std::string& host, int port, Stopper& stopper, OnReply on_reply)
    : stopper_(stopper), on_reply_(std::move(on_reply)) {
  sockaddr_in addr{};
  addr.sin_family = AF_INET;
  addr.sin_port = htons(static_cast<uint16_t>(port));
  const std::string h = host == "localhost" ? "127.0.0.1" : host;
  if (::inet_pton(AF_INET, h.c_str(), &addr.sin_addr) != 1 ||
      (ntohl(addr.sin_addr.s_addr) >> 24) != 127)
    throw ValueError("simulator: the firmware peer must be on loopback, not '" + host + "'");
  fd_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd_ < 0) throw OSError(errno, "simulator: socket");
  if (::connect(fd_, reinterpret_cast<const sockaddr*>(&addr), sizeof addr) != 0) {
    const int err = errno;
    ::close(fd_);
    fd_ = -1;
    throw OSError(err, "simulator: no firmware peer at " + h + ":" + std::to_string(port));
  }
  const int one = 1;
  ::setsockopt(fd_, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
}

FirmwarePeer::~FirmwarePeer() { join(); }

void FirmwarePeer::start() {
  thread_ = std::thread([this] {
    nameThisThread("sim-peer");
    run();
  });
}

void FirmwarePeer::run() {
  std::vector<uint8_t> buf(64 * 1024);
  std::vector<RawPacket> packets;
  Splitter splitter;
  for (;;) {
    pollfd p[2] = {{stopper_.fd(), POLLIN, 0}, {fd_, POLLIN, 0}};
    if (::poll(p, 2, -1) < 0) {
      if (errno == EINTR) continue;
      return;
    }
    if (p[0].revents) return;
    const ssize_t r = ::recv(fd_, buf.data(), buf.size(), 0);
    if (r == 0) return;  // the peer hung up: the device goes silent
    if (r < 0) {
      if (errno == EINTR || errno == EAGAIN) continue;
      return;
    }
    packets.clear();
    splitter.feed(std::span<const uint8_t>(buf.data(), static_cast<size_t>(r)), packets);
    for (auto& pkt : packets) on_reply_(std::move(pkt));
  }
}

bool FirmwarePeer::forward(int cmd, const Bytes& data) {
  const Bytes pkt = preparePacket(cmd, std::span<const uint8_t>(data));
  std::lock_guard lk(write_m_);
  const uint8_t* p = pkt.data();
  size_t n = pkt.size();
  while (n > 0 && fd_ >= 0) {
    const ssize_t w = ::send(fd_, p, n, MSG_NOSIGNAL);
    if (w < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    p += w;
    n -= static_cast<size_t>(w);
  }
  return n == 0;
}

void FirmwarePeer::join() {
  // shutdown wakes a writer blocked on a peer that does not read; the reader
  // ends on the device's stop (or the peer's end of stream).
  if (fd_ >= 0) ::shutdown(fd_, SHUT_RDWR);
  if (thread_.joinable()) thread_.join();
  std::lock_guard lk(write_m_);
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

}  // namespace orv::sim::detail
