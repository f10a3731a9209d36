// Socket transports and the shared receive-and-split step.
//
// A socket is used by one receive thread (recv) and any number of caller
// threads (send, setTimeout) while another caller may disconnect it.  Every
// use is counted under use_m_; disconnect shuts the socket down, which wakes
// a blocked recv, and closes the descriptor only once nobody is inside a call
// on it, so a descriptor number is never reused under a running call.
#include "link/transport.hpp"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

#include "link/constants.hpp"
#include "link/error.hpp"

namespace orv {

SteadyTime deadlineAfter(SteadyTime from, double seconds) {
  if (!(seconds > 0)) return from;
  // Half the room left on the clock is still centuries: past it the sum
  // would overflow (and a double rounds too coarsely to come closer).
  const double room = std::chrono::duration<double>(SteadyTime::max() - from).count();
  if (seconds >= room / 2) return SteadyTime::max();
  return from +
         std::chrono::duration_cast<SteadyTime::duration>(std::chrono::duration<double>(seconds));
}

std::vector<RawPacket> Client::recvAndSplitPacket(size_t length) {
  Bytes bytes = recvPacket(length);
  if (bytes.empty()) return {};
  return splitter_.feed(bytes);
}

// ---------------------------------------------------------------------------
// NetworkClient

// One counted use of the socket.  closing() is true while a disconnect is
// waiting for the users to leave: the socket is already shut down then.
class NetworkClient::Use {
 public:
  explicit Use(NetworkClient& c) : c_(c) {
    std::lock_guard lk(c_.use_m_);
    fd_ = c_.fd_.load();
    if (fd_ < 0) raise(ErrorId::LinkNotOpenError);
    timeout_ = c_.timeout_;
    closing_ = c_.closing_;
    if (!closing_) ++c_.readers_;
  }
  ~Use() {
    if (closing_) return;
    std::lock_guard lk(c_.use_m_);
    if (--c_.readers_ == 0) c_.use_cv_.notify_all();
  }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;
  int fd() const { return fd_; }
  bool closing() const { return closing_; }
  // The socket's own timeout (setTimeout) when the call began.
  const std::optional<double>& timeout() const { return timeout_; }

 private:
  NetworkClient& c_;
  int fd_ = -1;
  std::optional<double> timeout_;
  bool closing_ = false;
};

namespace {

using namespace std::chrono_literals;

// Why a socket step failed: an errno (or the resolver's code) and its text.
struct Cause {
  int err = 0;
  std::string text;
};

bool failed(Cause* why, int err) {
  if (why) *why = {err, std::strerror(err)};
  return false;
}

[[noreturn]] void raiseCaused(ErrorId id, const Cause& why) {
  throw Error(id).causedBy(why.err, why.text);
}

// Resolves an IPv4 address text or host name ("" is every interface).
bool resolveIPv4(const std::string& host, int port, int socktype, sockaddr_in* out,
                 Cause* why = nullptr) {
  if (port < 0 || port > 65535) return failed(why, EINVAL);
  *out = {};
  out->sin_family = AF_INET;
  out->sin_port = htons(static_cast<uint16_t>(port));
  if (host.empty()) {
    out->sin_addr.s_addr = htonl(INADDR_ANY);
    return true;
  }
  if (inet_aton(host.c_str(), &out->sin_addr) != 0) return true;
  // Digits and dots that are no address are no host name either: refuse them
  // without asking a name server.
  if (host.find_first_not_of("0123456789.") == std::string::npos) return failed(why, EINVAL);
  addrinfo hints{};
  hints.ai_family = AF_INET;
  hints.ai_socktype = socktype;
  addrinfo* res = nullptr;
  const int rc = getaddrinfo(host.c_str(), nullptr, &hints, &res);
  if (rc == EAI_SYSTEM) return failed(why, errno);
  if (rc != 0 || res == nullptr) {
    if (why) *why = {rc != 0 ? rc : EAI_NONAME, gai_strerror(rc != 0 ? rc : EAI_NONAME)};
    return false;
  }
  out->sin_addr = reinterpret_cast<const sockaddr_in*>(res->ai_addr)->sin_addr;
  freeaddrinfo(res);
  return true;
}

void setBlocking(int fd, bool blocking) {
  int flags = fcntl(fd, F_GETFL, 0);
  if (flags < 0) return;
  flags = blocking ? (flags & ~O_NONBLOCK) : (flags | O_NONBLOCK);
  fcntl(fd, F_SETFL, flags);
}

// Applies a timeout the way the host's sockets understand it: none blocks,
// zero makes the socket non-blocking, anything else bounds each call.
void applyTimeout(int fd, std::optional<double> timeout) {
  timeval tv{};
  // A timeout beyond what timeval holds (a year is plenty) blocks.
  if (timeout && *timeout > 0 && *timeout < 365.0 * 24 * 3600) {
    double whole = std::floor(*timeout);
    tv.tv_sec = static_cast<time_t>(whole);
    tv.tv_usec = static_cast<suseconds_t>(std::ceil((*timeout - whole) * 1e6));
    if (tv.tv_usec >= 1000000) {
      tv.tv_sec += 1;
      tv.tv_usec = 0;
    }
  }
  setBlocking(fd, !(timeout && *timeout == 0));
  if (setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv) != 0 ||
      setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv) != 0)
    throw OSError(errno, "setting the socket timeout failed");
}

[[noreturn]] void throwIoError(int err, const char* what) {
  if (err == EAGAIN || err == EWOULDBLOCK) throw OSError(ETIMEDOUT, "timed out");
  throw OSError(err, what);
}

// Waits until the socket takes more bytes (or is shut down, which a send
// then reports) or until `deadline`; false when the deadline passed.
bool waitWritable(int fd, SteadyTime deadline) {
  for (;;) {
    int wait_ms = -1;
    if (deadline != SteadyTime::max()) {
      const auto left = deadline - std::chrono::steady_clock::now();
      if (left <= SteadyTime::duration::zero()) return false;
      // Rounded up, so that the wait never ends just short of the deadline.
      const auto ms = std::chrono::ceil<std::chrono::milliseconds>(left).count();
      wait_ms = static_cast<int>(std::min<int64_t>(ms, 24 * 3600 * 1000));
    }
    pollfd p{fd, POLLOUT, 0};
    const int rc = ::poll(&p, 1, wait_ms);
    if (rc > 0) return true;
    if (rc < 0 && errno != EINTR) throw OSError(errno, "poll failed");
  }
}

// Connects a fresh socket, waiting at most `seconds`.
bool connectWithin(int fd, const sockaddr_in& addr, double seconds, Cause* why) {
  setBlocking(fd, false);
  int rc = ::connect(fd, reinterpret_cast<const sockaddr*>(&addr), sizeof addr);
  if (rc == 0) return true;
  if (errno != EINPROGRESS && errno != EINTR) return failed(why, errno);
  const auto deadline = deadlineAfter(std::chrono::steady_clock::now(), seconds);
  for (;;) {
    auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return failed(why, ETIMEDOUT);
    pollfd p{fd, POLLOUT, 0};
    rc = poll(&p, 1, static_cast<int>(left.count()));
    if (rc < 0 && errno == EINTR) continue;
    if (rc < 0) return failed(why, errno);
    if (rc == 0) return failed(why, ETIMEDOUT);
    int err = 0;
    socklen_t len = sizeof err;
    if (getsockopt(fd, SOL_SOCKET, SO_ERROR, &err, &len) != 0) return failed(why, errno);
    return err == 0 || failed(why, err);
  }
}

}  // namespace

NetworkClient::~NetworkClient() {
  std::unique_lock lk(use_m_);
  use_cv_.wait(lk, [&] { return !closing_; });
  if (fd_.load() >= 0) retireLocked(lk);
}

void NetworkClient::retireLocked(std::unique_lock<std::mutex>& lk) {
  const int fd = fd_.load();
  closing_ = true;
  ::shutdown(fd, SHUT_RDWR);
  // The shutdown ends a blocked recv or send at once; it is repeated in case
  // a call slipped in between, so that this wait cannot hang.
  while (readers_ > 0)
    if (!use_cv_.wait_for(lk, 50ms, [&] { return readers_ == 0; })) ::shutdown(fd, SHUT_RDWR);
  // close() releases the descriptor even when it reports an error.
  ::close(fd);
  fd_ = -1;
  closing_ = false;
  use_cv_.notify_all();
}

void NetworkClient::adopt(int fd) {
  std::unique_lock lk(use_m_);
  use_cv_.wait(lk, [&] { return !closing_; });
  if (fd_.load() >= 0) retireLocked(lk);
  fd_ = fd;
  ++socket_id_;
}

void NetworkClient::disconnect() {
  std::unique_lock lk(use_m_);
  use_cv_.wait(lk, [&] { return !closing_; });
  const int fd = fd_.load();
  if (fd < 0) raise(ErrorId::NetworkConnectionLostError);
  // A socket that never connected, or whose connection the peer already
  // reset, has nothing to shut down; closing it is all there is to do.
  if (::shutdown(fd, SHUT_RDWR) != 0 && errno != ENOTCONN)
    raise(ErrorId::NetworkConnectionLostError);
  retireLocked(lk);
}

void NetworkClient::setTimeout(std::optional<double> timeout) {
  if (timeout && !(*timeout >= 0)) throw ValueError("Timeout value out of range");
  std::lock_guard lk(use_m_);
  timeout_ = timeout;
  const int fd = fd_.load();
  if (fd < 0 || closing_) return;
  applyTimeout(fd, timeout);
}

Bytes NetworkClient::recvPacket(size_t length) {
  Use use(*this);
  if (use.closing()) return {};
  Bytes buf(length);
  ssize_t n;
  do {
    n = ::recv(use.fd(), buf.data(), length, 0);
  } while (n < 0 && errno == EINTR);
  if (n < 0) throwIoError(errno, "recv failed");
  buf.resize(static_cast<size_t>(n));
  return buf;
}

bool NetworkClient::holdSocket(const std::function<void(int fd, uint64_t id)>& fn) {
  std::unique_lock lk(use_m_);
  const int fd = fd_.load();
  if (fd < 0 || closing_) return false;
  const uint64_t id = socket_id_.load();
  ++readers_;
  lk.unlock();
  struct Release {
    NetworkClient& c;
    ~Release() {
      std::lock_guard lk(c.use_m_);
      if (--c.readers_ == 0) c.use_cv_.notify_all();
    }
  } release{*this};
  fn(fd, id);
  return true;
}

NetworkClient::Recv NetworkClient::recvWithin(size_t length, SteadyTime deadline, int wake_fd,
                                              Bytes& out) {
  Use use(*this);
  if (use.closing()) return Recv::Closed;
  out.resize(length);
  for (;;) {
    const ssize_t n = ::recv(use.fd(), out.data(), length, MSG_DONTWAIT);
    if (n > 0) {
      out.resize(static_cast<size_t>(n));
      return Recv::Data;
    }
    if (n < 0 && errno == EINTR) continue;
    if (n == 0 || (errno != EAGAIN && errno != EWOULDBLOCK)) {
      out.clear();
      return Recv::Closed;
    }
    out.clear();
    const auto now = std::chrono::steady_clock::now();
    if (now >= deadline) return Recv::TimedOut;
    timespec ts{};
    timespec* tsp = nullptr;
    if (deadline != SteadyTime::max()) {
      const auto left = std::chrono::duration_cast<std::chrono::nanoseconds>(deadline - now);
      ts.tv_sec = static_cast<time_t>(left.count() / 1000000000);
      ts.tv_nsec = static_cast<long>(left.count() % 1000000000);
      tsp = &ts;
    }
    pollfd p[2] = {{use.fd(), POLLIN, 0}, {wake_fd, POLLIN, 0}};
    const int rc = ::ppoll(p, wake_fd >= 0 ? 2 : 1, tsp, nullptr);
    if (rc < 0) {
      if (errno == EINTR) return Recv::Woken;
      throw OSError(errno, "poll failed");
    }
    if (rc == 0) return Recv::TimedOut;
    if (wake_fd >= 0 && (p[1].revents & POLLIN)) {
      uint64_t v;
      [[maybe_unused]] const ssize_t r = ::read(wake_fd, &v, sizeof v);
      return Recv::Woken;
    }
    out.resize(length);
  }
}

void NetworkClient::sendPacket(std::span<const uint8_t> packet, SteadyTime deadline) {
  Use use(*this);
  if (use.closing()) throw OSError(EPIPE, "send failed");
  // The socket's own timeout (setTimeout) still bounds the call as a socket
  // timeout; the caller's deadline as a SendTimeout.
  SteadyTime socket_deadline = SteadyTime::max();
  if (use.timeout() && *use.timeout() >= 0)
    socket_deadline = deadlineAfter(std::chrono::steady_clock::now(), *use.timeout());
  const SteadyTime until = std::min(deadline, socket_deadline);
  size_t done = 0;
  while (done < packet.size()) {
    const ssize_t n =
        ::send(use.fd(), packet.data() + done, packet.size() - done, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (n >= 0) {
      done += static_cast<size_t>(n);
      continue;
    }
    if (errno == EINTR) continue;
    if (errno != EAGAIN && errno != EWOULDBLOCK) throwIoError(errno, "send failed");
    if (waitWritable(use.fd(), until)) continue;
    if (done > 0) {
      // The device would take the next packet as the rest of this one: the
      // link is no use any more.  Shut it; the receive thread sees its end.
      ::shutdown(use.fd(), SHUT_RDWR);
      raise(ErrorId::NetworkConnectionLostError,
            "The device stopped reading in the middle of a packet; the link is shut.");
    }
    if (deadline <= socket_deadline) throw SendTimeout();
    throw OSError(ETIMEDOUT, "timed out");
  }
}

// ---------------------------------------------------------------------------
// TCPClient

bool TCPClient::connect(const std::string& ip_addr, int port) {
  const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
  if (fd < 0) raiseOs(ErrorId::NetworkConnectionError, errno);
  // Commands are small and answered at once: no Nagle delay.
  const int one = 1;
  setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
  sockaddr_in addr;
  Cause why;
  const bool ok = resolveIPv4(ip_addr, port, SOCK_STREAM, &addr, &why) &&
                  connectWithin(fd, addr, CONNECTION_TIMEOUT, &why);
  setBlocking(fd, true);
  // The socket is kept even when the connect failed.
  adopt(fd);
  if (!ok) {
    setTimeout(CONNECTION_TIMEOUT);
    raiseCaused(ErrorId::NetworkConnectionError, why);
  }
  setTimeout(std::nullopt);
  return true;
}

// ---------------------------------------------------------------------------
// UDPClient

bool UDPClient::bind(const std::string& ip_addr, int port) {
  const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (fd < 0) raiseOs(ErrorId::NetworkConnectionError, errno);
  sockaddr_in addr;
  Cause why;
  const bool ok = resolveIPv4(ip_addr, port, SOCK_DGRAM, &addr, &why) &&
                  (::bind(fd, reinterpret_cast<const sockaddr*>(&addr), sizeof addr) == 0 ||
                   failed(&why, errno));
  adopt(fd);
  setTimeout(std::nullopt);
  if (!ok) raiseCaused(ErrorId::NetworkConnectionError, why);
  return true;
}

void UDPClient::setBroadcastTarget(const std::string& host, int port) {
  target_ = std::make_pair(host, port);
}

std::pair<std::string, int> UDPClient::broadcastTarget() const {
  if (target_) return *target_;
  const char* env = std::getenv("PYORV_BROADCAST_ADDR");
  if (env == nullptr || *env == '\0') return {"255.255.255.255", UDP_SEND_PORT};
  std::string text(env);
  const auto colon = text.rfind(':');
  if (colon == std::string::npos) return {text, UDP_SEND_PORT};
  const std::string port_text = text.substr(colon + 1);
  char* end = nullptr;
  const long port = std::strtol(port_text.c_str(), &end, 10);
  if (port_text.empty() || *end != '\0' || port < 0 || port > 65535)
    throw ValueError("PYORV_BROADCAST_ADDR: bad port in \"" + text + "\"");
  return {text.substr(0, colon), static_cast<int>(port)};
}

namespace {

// The local IPv4 addresses to send a broadcast from, in lookup order.
std::vector<in_addr> broadcastSources(const sockaddr_in& target) {
  if ((ntohl(target.sin_addr.s_addr) >> 24) == 127) {
    in_addr lo{};
    lo.s_addr = htonl(INADDR_LOOPBACK);
    return {lo};
  }
  char name[256] = {};
  if (gethostname(name, sizeof name - 1) != 0) throw OSError(errno, "gethostname failed");
  addrinfo hints{};
  hints.ai_family = AF_INET;
  hints.ai_socktype = SOCK_DGRAM;  // one entry per address, not one per socket type
  addrinfo* res = nullptr;
  if (int rc = getaddrinfo(name, nullptr, &hints, &res); rc != 0)
    throw OSError(EHOSTUNREACH,
                  std::string("cannot look up ") + name + " (" + gai_strerror(rc) + ")");
  std::vector<in_addr> out;
  for (addrinfo* ai = res; ai != nullptr; ai = ai->ai_next)
    out.push_back(reinterpret_cast<const sockaddr_in*>(ai->ai_addr)->sin_addr);
  freeaddrinfo(res);
  return out;
}

class FdGuard {
 public:
  explicit FdGuard(int fd) : fd_(fd) {}
  ~FdGuard() { ::close(fd_); }
  FdGuard(const FdGuard&) = delete;
  FdGuard& operator=(const FdGuard&) = delete;

 private:
  int fd_;
};

}  // namespace

void UDPClient::sendBcstPacket(std::span<const uint8_t> packet) {
  const auto [host, port] = broadcastTarget();
  sockaddr_in target;
  if (!resolveIPv4(host, port, SOCK_DGRAM, &target))
    throw OSError(EHOSTUNREACH, "cannot resolve broadcast target " + host);
  for (const in_addr& src : broadcastSources(target)) {
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0) throw OSError(errno, "socket failed");
    FdGuard guard(fd);
    const int one = 1;
    if (setsockopt(fd, SOL_SOCKET, SO_BROADCAST, &one, sizeof one) != 0)
      throw OSError(errno, "setting SO_BROADCAST failed");
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_addr = src;
    if (::bind(fd, reinterpret_cast<const sockaddr*>(&local), sizeof local) != 0)
      throw OSError(errno, "bind failed");
    ssize_t n;
    do {
      n = ::sendto(fd, packet.data(), packet.size(), MSG_NOSIGNAL,
                   reinterpret_cast<const sockaddr*>(&target), sizeof target);
    } while (n < 0 && errno == EINTR);
    if (n < 0) throw OSError(errno, "sendto failed");
  }
}

}  // namespace orv
