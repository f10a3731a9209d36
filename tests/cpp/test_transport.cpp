// Socket transports against loopback peers made in the test.  (That
// disconnect wakes a reader blocked in the kernel is what lets a device's
// receive threads end: test_exchange.cpp's lifecycle tests for TCP, and the
// finder of test_discovery.py for UDP.)
#include <arpa/inet.h>
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
#include "test_util.hpp"

namespace orv {
namespace {

using namespace std::chrono_literals;
using namespace testutil;

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

TEST(TcpClient, FailedConnectRaisesNetworkConnectionErrorAndKeepsTheSocket) {
  Fd closed_port = boundSocket(SOCK_STREAM);  // bound, not listening: refused
  const int refused = boundPort(closed_port.get());
  for (auto [host, port] : std::vector<std::pair<std::string, int>>{{"127.0.0.1", refused},
                                                                    {"127.0.0.1", 70000},
                                                                    {"127.0.0.1", -1},
                                                                    {"127.0.0.1.5", refused}}) {
    SCOPED_TRACE(host + ":" + std::to_string(port));
    TCPClient client;
    EXPECT_EQ(errorCode([&] { client.connect(host, port); }), errNetConnection);
    EXPECT_TRUE(client.hasSocket());
    // The unconnected socket is closed by disconnect like any other.
    client.disconnect();
    EXPECT_FALSE(client.hasSocket());
  }
}

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
  const size_t before = fdCount();
  auto cycles = testutil::runDetached([&] {
    for (int i = 0; i < 100; ++i) {
      client->connect("127.0.0.1", server.port());
      Fd peer = server.accept();
      sendAll(peer.get(), {static_cast<uint8_t>(i)});
      client->disconnect();
    }
  });
  const std::string result = testutil::resultWithin(cycles, 60s);
  stop = true;
  ASSERT_EQ(result, "");
  reader.join();
  EXPECT_EQ(bad_errno.load(), 0);
  EXPECT_EQ(fdCount(), before);
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
  const size_t before = fdCount();
  for (int i = 0; i < 50; ++i) client.sendBcstPacket(Bytes{1, 2, 3});
  EXPECT_EQ(fdCount(), before);
}

}  // namespace
}  // namespace orv
