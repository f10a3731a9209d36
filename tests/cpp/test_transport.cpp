// Socket transports against loopback peers made in the test.  (That
// disconnect wakes a reader blocked in the kernel is what lets a device's
// receive threads end: test_exchange.cpp's lifecycle tests for TCP, and the
// finder of test_discovery.py for UDP.)
#include <arpa/inet.h>
#include <dirent.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/framing.hpp"
#include "link/transport.hpp"

namespace orv {
namespace {

using namespace std::chrono_literals;

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

sockaddr_in loopback(int port) {
  sockaddr_in a{};
  a.sin_family = AF_INET;
  a.sin_port = htons(static_cast<uint16_t>(port));
  a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return a;
}

int boundPort(int fd) {
  sockaddr_in a{};
  socklen_t len = sizeof a;
  getsockname(fd, reinterpret_cast<sockaddr*>(&a), &len);
  return ntohs(a.sin_port);
}

// A socket of `type` bound to 127.0.0.1 on a free port.
Fd boundSocket(int type) {
  Fd fd(::socket(AF_INET, type, 0));
  sockaddr_in a = loopback(0);
  EXPECT_EQ(::bind(fd.get(), reinterpret_cast<sockaddr*>(&a), sizeof a), 0);
  return fd;
}

bool readable(int fd, std::chrono::milliseconds wait) {
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
    if (!readable(fd_.get(), 5s)) return Fd();
    return Fd(::accept(fd_.get(), nullptr, nullptr));
  }

 private:
  Fd fd_;
  int port_ = 0;
};

void sendAll(int fd, const Bytes& bytes) {
  ASSERT_EQ(::send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL),
            static_cast<ssize_t>(bytes.size()));
}

Bytes recvSome(int fd, size_t max = 4096) {
  if (!readable(fd, 5s)) return {};
  Bytes buf(max);
  ssize_t n = ::recv(fd, buf.data(), buf.size(), 0);
  buf.resize(n > 0 ? static_cast<size_t>(n) : 0);
  return buf;
}

int openFdCount() {
  int n = 0;
  DIR* d = opendir("/proc/self/fd");
  while (dirent* e = readdir(d))
    if (e->d_name[0] != '.') ++n;
  closedir(d);
  return n - 1;  // the directory stream's own descriptor
}

// Runs fn on its own thread; false if it has not finished within the bound
// (the thread is then left behind, holding what it captured).
bool finishesWithin(std::function<void()> fn, std::chrono::seconds bound) {
  auto done = std::make_shared<std::promise<void>>();
  auto fut = done->get_future();
  std::thread([fn = std::move(fn), done] {
    fn();
    done->set_value();
  }).detach();
  return fut.wait_for(bound) == std::future_status::ready;
}

template <typename F>
int errorCode(F&& f) {
  try {
    f();
  } catch (const Error& e) {
    return e.code();
  }
  return 0;
}

// ---------------------------------------------------------------------------
// TCP

TEST(TcpClient, ExchangesBytesAndSeesThePeerClose) {
  Listener server;
  TCPClient client;
  EXPECT_FALSE(client.hasSocket());
  client.setTimeout(0.05);  // before connect: stored only, connect clears it
  ASSERT_TRUE(client.connect("localhost", server.port()));
  Fd peer = server.accept();
  ASSERT_GE(peer.get(), 0);
  int on = 0;  // Nagle off, and a blocking socket
  socklen_t len = sizeof on;
  ASSERT_EQ(getsockopt(client.fd(), IPPROTO_TCP, TCP_NODELAY, &on, &len), 0);
  EXPECT_NE(on, 0);
  timeval tv{1, 1};
  len = sizeof tv;
  ASSERT_EQ(getsockopt(client.fd(), SOL_SOCKET, SO_RCVTIMEO, &tv, &len), 0);
  EXPECT_EQ(tv.tv_sec + tv.tv_usec, 0);

  const Bytes request = {0x02, 0x00, 0x02, 0xF0, 0x00, 0x0D, 0x0A};
  client.sendPacket(request);
  EXPECT_EQ(recvSome(peer.get()), request);

  sendAll(peer.get(), {1, 2, 3, 4, 5});
  EXPECT_EQ(client.recvPacket(3), (Bytes{1, 2, 3}));  // at most `length`
  EXPECT_EQ(client.recvPacket(1536), (Bytes{4, 5}));

  peer.reset();
  EXPECT_TRUE(client.recvPacket(1536).empty());
  EXPECT_TRUE(client.recvAndSplitPacket(1536).empty());
  client.disconnect();
  EXPECT_FALSE(client.hasSocket());
  EXPECT_EQ(errorCode([&] { client.disconnect(); }), errNetConnectionLost);
}

struct BadTarget {
  const char* name;
  std::string host;
  int port;  // 0: a loopback port where nothing listens
};

class TcpConnectFailure : public ::testing::TestWithParam<BadTarget> {};

TEST_P(TcpConnectFailure, RaisesNetworkConnectionErrorAndKeepsTheSocket) {
  Fd closed_port = boundSocket(SOCK_STREAM);  // bound, not listening: refused
  int port = GetParam().port != 0 ? GetParam().port : boundPort(closed_port.get());
  TCPClient client;
  EXPECT_EQ(errorCode([&] { client.connect(GetParam().host, port); }), errNetConnection);
  EXPECT_TRUE(client.hasSocket());
  // The unconnected socket is closed by disconnect like any other.
  client.disconnect();
  EXPECT_FALSE(client.hasSocket());
}

INSTANTIATE_TEST_SUITE_P(Targets, TcpConnectFailure,
                         ::testing::Values(BadTarget{"Refused", "127.0.0.1", 0},
                                           BadTarget{"PortTooLarge", "127.0.0.1", 70000},
                                           BadTarget{"NegativePort", "127.0.0.1", -1},
                                           BadTarget{"BadAddressText", "127.0.0.1.5", 0}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(TcpClient, WithoutSocketEveryCallRefuses) {
  TCPClient client;
  client.setTimeout(0.5);  // nothing to apply it to: no effect, no error
  client.setTimeout(std::nullopt);
  EXPECT_EQ(errorCode([&] { client.recvPacket(10); }), errLinkNotOpen);
  EXPECT_EQ(errorCode([&] { client.sendPacket(Bytes{1}); }), errLinkNotOpen);
  EXPECT_EQ(errorCode([&] { client.disconnect(); }), errNetConnectionLost);
}

TEST(TcpClient, TimeoutAfterConnectIsDistinctFromPeerClose) {
  Listener server;
  TCPClient client;
  client.connect("127.0.0.1", server.port());
  Fd peer = server.accept();
  client.setTimeout(0.05);
  try {
    client.recvPacket(16);
    FAIL() << "read returned without data";
  } catch (const OSError& e) {
    EXPECT_EQ(e.err(), ETIMEDOUT);
  }
  sendAll(peer.get(), {9});
  EXPECT_EQ(client.recvPacket(16), Bytes{9});
  EXPECT_THROW(client.setTimeout(-1), ValueError);
}

TEST(TcpClient, ReconnectGetsANewSocketAndKeepsThePartialStream) {
  Listener server;
  TCPClient client;
  const Bytes packet = preparePacket(GET_DRIVER_INFO, Bytes{'a', 'b', 'c'});

  client.connect("127.0.0.1", server.port());
  Fd peer1 = server.accept();
  const int first_fd = client.fd();
  sendAll(peer1.get(), Bytes(packet.begin(), packet.begin() + 4));
  EXPECT_TRUE(client.recvAndSplitPacket(1536).empty());
  client.disconnect();

  Fd keep_number_busy = boundSocket(SOCK_DGRAM);  // the old number may be taken now
  client.connect("127.0.0.1", server.port());
  Fd peer2 = server.accept();
  EXPECT_NE(client.fd(), first_fd);
  sendAll(peer2.get(), Bytes(packet.begin() + 4, packet.end()));
  auto packets = client.recvAndSplitPacket(1536);
  ASSERT_EQ(packets.size(), 1u);
  EXPECT_EQ(packets[0], (RawPacket{GET_DRIVER_INFO, Bytes{'a', 'b', 'c'}}));
}

TEST(TcpClient, SendToAClosedPeerFailsWithoutSignal) {
  Listener server;
  TCPClient client;
  client.connect("127.0.0.1", server.port());
  server.accept().reset();  // accepted and closed at once
  bool failed = false;
  for (int i = 0; i < 200 && !failed; ++i) {
    try {
      client.sendPacket(Bytes(100, 0x55));
    } catch (const OSError& e) {
      EXPECT_TRUE(e.err() == EPIPE || e.err() == ECONNRESET) << e.what();
      failed = true;
    }
    std::this_thread::sleep_for(1ms);
  }
  EXPECT_TRUE(failed);
}

// A reader that loops like a receive thread while the link is cycled: it
// must only ever see data, a closed link or an empty read, never a
// descriptor that was closed under it.
TEST(TcpClient, ReaderSurvivesConnectDisconnectCycles) {
  Listener server;
  auto client = std::make_shared<TCPClient>();
  std::atomic<bool> stop{false};
  std::atomic<int> bad_errno{0};
  std::thread reader([&] {
    while (!stop) {
      try {
        client->recvPacket(64);
      } catch (const Error& e) {
        if (e.id() != ErrorId::LinkNotOpenError) bad_errno = -1;
        std::this_thread::yield();
      } catch (const OSError& e) {
        if (e.err() != ENOTCONN && e.err() != ECONNRESET) bad_errno = e.err();
      }
    }
  });
  const int before = openFdCount();
  bool finished = finishesWithin(
      [&] {
        for (int i = 0; i < 100; ++i) {
          client->connect("127.0.0.1", server.port());
          Fd peer = server.accept();
          sendAll(peer.get(), {static_cast<uint8_t>(i)});
          client->disconnect();
        }
      },
      60s);
  stop = true;
  ASSERT_TRUE(finished);
  reader.join();
  EXPECT_EQ(bad_errno.load(), 0);
  EXPECT_EQ(openFdCount(), before);
}

// ---------------------------------------------------------------------------
// UDP

TEST(UdpClient, BindOnATakenPortFails) {
  Fd taken = boundSocket(SOCK_DGRAM);
  UDPClient client;
  EXPECT_EQ(errorCode([&] { client.bind("127.0.0.1", boundPort(taken.get())); }), errNetConnection);
  EXPECT_EQ(errorCode([&] { client.bind("999.1.1.1", 0); }), errNetConnection);
}

TEST(UdpClient, BroadcastTargetFollowsOverrides) {
  using Target = std::pair<std::string, int>;
  constexpr const char* kVar = "PYORV_BROADCAST_ADDR";  // no other C++ test reads it
  unsetenv(kVar);
  UDPClient client;
  EXPECT_EQ(client.broadcastTarget(), (Target{"255.255.255.255", 61557}));
  setenv(kVar, "127.0.0.1", 1);
  EXPECT_EQ(client.broadcastTarget(), (Target{"127.0.0.1", UDP_SEND_PORT}));
  setenv(kVar, "localhost:4000", 1);
  EXPECT_EQ(client.broadcastTarget(), (Target{"localhost", 4000}));
  client.setBroadcastTarget("127.0.0.2", 5000);
  EXPECT_EQ(client.broadcastTarget(), (Target{"127.0.0.2", 5000}));
  for (const char* bad : {"127.0.0.1:port", "127.0.0.1:65536", "127.0.0.1:-1"}) {
    setenv(kVar, bad, 1);
    EXPECT_THROW(UDPClient().broadcastTarget(), ValueError) << bad;
  }
  unsetenv(kVar);
}

// A broadcast to the simulator on loopback is checked end to end from Python
// (test_discovery.py: every device hears each of the three sends once).
TEST(UdpClient, BroadcastLeaksNoDescriptor) {
  Fd receiver = boundSocket(SOCK_DGRAM);
  UDPClient client;
  client.setBroadcastTarget("127.0.0.1", boundPort(receiver.get()));
  const int before = openFdCount();
  for (int i = 0; i < 50; ++i) client.sendBcstPacket(Bytes{1, 2, 3});
  EXPECT_EQ(openFdCount(), before);
}

}  // namespace
}  // namespace orv
