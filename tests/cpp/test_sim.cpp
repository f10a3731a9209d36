// The device simulator seen from outside: plain sockets and the USB seam.
// (Discovery and the built-in answers a driver sees are checked end to end
// from Python: test_discovery.py, test_system.py and the other module tests.)
#include <arpa/inet.h>
#include <dirent.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "gtest/gtest.h"
#include "link/constants.hpp"
#include "link/framing.hpp"
#include "link/usb_backend.hpp"
#include "sim/simulator.hpp"

namespace {

using namespace std::chrono_literals;
using orv::Bytes;
using orv::RawPacket;
using Packets = std::vector<RawPacket>;
using orv::sim::Channel;
using orv::sim::DeviceConfig;
using orv::sim::Link;
using orv::sim::Simulator;
using Clock = std::chrono::steady_clock;

constexpr int GET_SERIAL_NUMBER = 122;
constexpr int CLOSE_AI_STREAMING = 184;

Bytes frame(int cmd, const Bytes& data) {
  return orv::preparePacket(cmd, std::span<const uint8_t>(data));
}

Bytes text(std::string_view s) { return Bytes(s.begin(), s.end()); }

// A TCP client made of plain sockets.
class RawTcp {
 public:
  explicit RawTcp(int port) {
    fd_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(static_cast<uint16_t>(port));
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd_, reinterpret_cast<sockaddr*>(&a), sizeof a) != 0) {
      ::close(fd_);
      fd_ = -1;
    }
  }
  ~RawTcp() {
    if (fd_ >= 0) ::close(fd_);
  }
  bool ok() const { return fd_ >= 0; }

  void send(const Bytes& b) const {
    ASSERT_EQ(::send(fd_, b.data(), b.size(), MSG_NOSIGNAL), static_cast<ssize_t>(b.size()));
  }

  // One recv, waiting at most `timeout`; nullopt on timeout, empty on EOF.
  std::optional<Bytes> recvOnce(std::chrono::milliseconds timeout) const {
    pollfd p{fd_, POLLIN, 0};
    if (::poll(&p, 1, static_cast<int>(timeout.count())) <= 0) return std::nullopt;
    Bytes b(65536);
    const ssize_t n = ::recv(fd_, b.data(), b.size(), 0);
    b.resize(n > 0 ? static_cast<size_t>(n) : 0);
    return b;
  }

  // Exactly n bytes, or fewer when the time runs out or the peer closes.
  Bytes readBytes(size_t n, std::chrono::milliseconds timeout = 2000ms) const {
    Bytes out;
    const auto end = Clock::now() + timeout;
    while (out.size() < n) {
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
      if (left.count() <= 0) break;
      pollfd p{fd_, POLLIN, 0};
      if (::poll(&p, 1, static_cast<int>(left.count())) <= 0) break;
      uint8_t buf[4096];
      const ssize_t r = ::recv(fd_, buf, std::min(sizeof buf, n - out.size()), 0);
      if (r <= 0) break;
      out.insert(out.end(), buf, buf + r);
    }
    return out;
  }

  // Packets, cut by the splitter, until `count` arrived or the time ran out.
  std::vector<RawPacket> readPackets(size_t count, std::chrono::milliseconds timeout = 2000ms) {
    const auto end = Clock::now() + timeout;
    while (pending_.size() < count) {
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
      if (left.count() <= 0) break;
      auto b = recvOnce(left);
      if (!b || b->empty()) break;
      splitter_.feed(*b, pending_);
    }
    std::vector<RawPacket> out;
    const size_t n = std::min(count, pending_.size());
    out.assign(pending_.begin(), pending_.begin() + static_cast<long>(n));
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<long>(n));
    return out;
  }

  // True when the peer ended the stream within the time.
  bool seesEof(std::chrono::milliseconds timeout = 2000ms) const {
    const auto end = Clock::now() + timeout;
    while (Clock::now() < end) {
      auto b = recvOnce(std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()));
      if (b && b->empty()) return true;
    }
    return false;
  }

 private:
  int fd_ = -1;
  orv::Splitter splitter_;
  std::vector<RawPacket> pending_;
};

// A UDP socket on 127.0.0.1 and an ephemeral port.
class RawUdp {
 public:
  RawUdp() {
    fd_ = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(fd_, reinterpret_cast<sockaddr*>(&a), sizeof a);
    socklen_t len = sizeof a;
    ::getsockname(fd_, reinterpret_cast<sockaddr*>(&a), &len);
    port_ = ntohs(a.sin_port);
  }
  ~RawUdp() { ::close(fd_); }
  int port() const { return port_; }
  void sendTo(int port, const Bytes& b) const {
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(static_cast<uint16_t>(port));
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::sendto(fd_, b.data(), b.size(), 0, reinterpret_cast<sockaddr*>(&a), sizeof a);
  }

 private:
  int fd_ = -1;
  int port_ = 0;
};

DeviceConfig ethConfig(std::string driver_info = "Trellis_SIM_1.2.3") {
  DeviceConfig c;
  c.driver_info = std::move(driver_info);
  return c;
}

// --- one request -------------------------------------------------------------

TEST(SimTcp, OverrideAndFallbackHandlers) {
  Simulator sim;
  auto& dev = sim.addDevice(ethConfig());
  RawTcp c(dev.cmdPort());
  ASSERT_TRUE(c.ok());
  dev.setHandler(orv::GET_DRIVER_INFO, [](orv::sim::Context& ctx, const orv::sim::Request& req) {
    ctx.reply(Bytes{0xAB, static_cast<uint8_t>(req.data.size())});
  });
  dev.setFallbackHandler([](orv::sim::Context& ctx, const orv::sim::Request& req) {
    ctx.reply(req.cmd + 1, req.data);
  });
  c.send(frame(orv::GET_DRIVER_INFO, {0}));
  EXPECT_EQ(c.readBytes(8), frame(orv::GET_DRIVER_INFO, {0xAB, 1}));
  c.send(frame(300, {5, 6}));
  EXPECT_EQ(c.readBytes(9), frame(301, {5, 6}));
  // Removing the override brings the built-in answer back.
  dev.setHandler(orv::GET_DRIVER_INFO, nullptr);
  c.send(frame(orv::GET_DRIVER_INFO, {0}));
  EXPECT_EQ(c.readBytes(23), frame(orv::GET_DRIVER_INFO, text("Trellis_SIM_1.2.3")));
}

TEST(SimTcp, NewConnectionReplacesTheOldOne) {
  Simulator sim;
  auto& dev = sim.addDevice(ethConfig());
  RawTcp first(dev.cmdPort());
  ASSERT_TRUE(first.ok());
  first.send(frame(GET_SERIAL_NUMBER, {}));
  ASSERT_EQ(first.readPackets(1).size(), 1u);
  RawTcp second(dev.cmdPort());
  ASSERT_TRUE(second.ok());
  EXPECT_TRUE(first.seesEof());
  second.send(frame(GET_SERIAL_NUMBER, {}));
  EXPECT_EQ(second.readPackets(1), (Packets{{GET_SERIAL_NUMBER, text("SIM00001")}}));
}

// --- handler registry --------------------------------------------------------

constexpr int kTestCmd = 4001;

struct Tally {
  int calls = 0;
};

// A module file registers its handlers like this.
const orv::sim::Registrar test_module{kTestCmd,
                                      [](orv::sim::Context& ctx, const orv::sim::Request&) {
                                        const int n = ++ctx.state().slot<Tally>()->calls;
                                        ctx.reply(Bytes{static_cast<uint8_t>(n)});
                                      }};

TEST(SimRegistry, ModuleHandlersServeEveryDeviceKeepPerDeviceStateAndWinOverCore) {
  constexpr int kFirst = 4002, kSecond = 4003;  // a module and a core handler, in both orders
  auto tag = [](uint8_t t) {
    return [t](orv::sim::Context& ctx, const orv::sim::Request&) { ctx.reply(Bytes{t}); };
  };
  orv::sim::registerHandler(kFirst, tag(1), orv::sim::kModulePriority);
  orv::sim::registerHandler(kFirst, tag(2), orv::sim::kCorePriority);
  orv::sim::registerHandler(kSecond, tag(2), orv::sim::kCorePriority);
  orv::sim::registerHandler(kSecond, tag(1), orv::sim::kModulePriority);

  Simulator sim;
  auto& a = sim.addDevice(ethConfig());
  DeviceConfig cb = ethConfig();
  cb.serial = "SIM00002";
  auto& b = sim.addDevice(cb);
  RawTcp ca(a.cmdPort()), cbc(b.cmdPort());
  ASSERT_TRUE(ca.ok() && cbc.ok());
  for (int cmd : {kTestCmd, kTestCmd, kFirst, kSecond}) ca.send(frame(cmd, {}));
  cbc.send(frame(kTestCmd, {}));
  EXPECT_EQ(ca.readPackets(4),
            (Packets{{kTestCmd, {1}}, {kTestCmd, {2}}, {kFirst, {1}}, {kSecond, {1}}}));
  EXPECT_EQ(cbc.readPackets(1), (Packets{{kTestCmd, {1}}}));
  EXPECT_EQ(a.state().slot<Tally>()->calls, 2);
}

// --- faults ------------------------------------------------------------------
// (drop_next, delay_us and never-answer are exercised by the exchange tests;
// a device that closes its link and takes a new connection, by the reboot
// test of test_system.py.)

class SimFaults : public ::testing::Test {
 protected:
  void SetUp() override {
    dev_ = &sim_.addDevice(ethConfig());
    client_ = std::make_unique<RawTcp>(dev_->cmdPort());
    ASSERT_TRUE(client_->ok());
  }
  Bytes ask() {
    client_->send(frame(GET_SERIAL_NUMBER, {}));
    return client_->readBytes(reply_.size(), 2s);
  }
  Simulator sim_;
  orv::sim::SimDevice* dev_ = nullptr;
  std::unique_ptr<RawTcp> client_;
  const Bytes reply_ = frame(GET_SERIAL_NUMBER, text("SIM00001"));
};

TEST_F(SimFaults, CorruptBreaksTheLengthOfTheNextReplyOnly) {
  dev_->faults().corrupt_next = 1;
  Bytes bad = ask();
  ASSERT_EQ(bad.size(), reply_.size());
  EXPECT_EQ(bad[1], reply_[1] | 0x80);
  bad[1] = reply_[1];
  EXPECT_EQ(bad, reply_);
  EXPECT_EQ(ask(), reply_);
}

TEST_F(SimFaults, SplitWritesPiecesWithPauses) {
  dev_->faults().split_pause_us = 20000;
  dev_->faults().split_bytes = 4;  // 13 bytes: 4 pieces, 3 pauses
  const auto t0 = Clock::now();
  EXPECT_EQ(ask(), reply_);
  EXPECT_GE(Clock::now() - t0, 60ms);
}

TEST_F(SimFaults, JunkGoesAheadOfEachReply) {
  dev_->faults().junk_bytes = 5;
  Bytes want(5, 0xEE);
  want.insert(want.end(), reply_.begin(), reply_.end());
  client_->send(frame(GET_SERIAL_NUMBER, {}));
  EXPECT_EQ(client_->readBytes(want.size()), want);
  client_->send(frame(GET_SERIAL_NUMBER, {}));
  EXPECT_EQ(client_->readBytes(want.size()), want);
}

// --- Wi-Fi: two links --------------------------------------------------------

TEST(SimWifi, StreamsOnTheDataLinkWhileCommandsAnswerOnTheCommandLink) {
  Simulator sim;
  DeviceConfig cfg = ethConfig("HeronAinImu_SIM");
  cfg.link = Link::Wifi;
  auto& dev = sim.addDevice(cfg);
  ASSERT_NE(dev.cmdPort(), dev.dataPort());
  RawTcp data(dev.dataPort()), cmd(dev.cmdPort());
  ASSERT_TRUE(data.ok() && cmd.ok());
  ASSERT_TRUE(dev.waitForHost(Channel::Data, 2s));

  // port 1, cs 2, 2000 records/s, 8 payload bytes
  cmd.send(frame(orv::START_AI_STREAMING, {1, 2, 0x07, 0xD0, 8}));
  const auto recs = data.readPackets(20, 5s);
  ASSERT_EQ(recs.size(), 20u);
  uint8_t next = recs[0].data[2];
  for (const auto& r : recs) {
    EXPECT_EQ(r.cmd, orv::START_AI_STREAMING);
    ASSERT_EQ(r.data.size(), 10u);
    EXPECT_EQ(r.data[0], 1);
    EXPECT_EQ(r.data[1], 2);
    for (size_t i = 2; i < r.data.size(); ++i) EXPECT_EQ(r.data[i], next++);
  }
  cmd.send(frame(CLOSE_AI_STREAMING, {1}));
  const auto closed = cmd.readPackets(1);
  ASSERT_EQ(closed.size(), 1u);
  EXPECT_EQ(closed[0].cmd, CLOSE_AI_STREAMING);
  EXPECT_EQ(closed[0].data, (Bytes{1, 0}));
  EXPECT_EQ(dev.periodicCount(), 0u);
  // What was written before the stop drains; nothing follows it.
  while (!data.readPackets(1000, 100ms).empty()) {
  }
  EXPECT_FALSE(data.recvOnce(100ms).has_value());
  EXPECT_EQ(dev.packets().size(), 2u);  // the start and the close
}

// --- virtual USB -------------------------------------------------------------

std::unique_ptr<orv::usb::Candidate> findUsb(const std::string& serial) {
  for (const auto& b : orv::usb::extraBackends()) {
    for (auto& c : b->enumerate()) {
      if (c->serialNumber() == serial) return std::move(c);
    }
  }
  return nullptr;
}

Bytes readTransfer(orv::usb::Handle& h) {
  uint8_t buf[64];
  const int n = h.bulkRead(orv::USB_EP_IN, buf, 64, 1000);
  return Bytes(buf, buf + n);
}

TEST(SimUsb, AnswersIn64ByteZeroPaddedTransfers) {
  Simulator sim;
  DeviceConfig cfg = ethConfig(std::string(100, 'x'));  // a reply of 2 transfers
  cfg.link = Link::Usb;
  cfg.model = "KestrelAio";
  cfg.serial = "USB00042";
  sim.addDevice(cfg);
  auto cand = findUsb("USB00042");
  ASSERT_NE(cand, nullptr);
  auto h = cand->open();
  EXPECT_THROW(h->bulkRead(orv::USB_EP_IN, nullptr, 64, 5), orv::usb::Timeout);

  Bytes out = frame(orv::GET_DRIVER_INFO, {0});
  out.resize(64, 0);
  h->bulkWrite(orv::USB_EP_OUT, out.data(), 64);
  Bytes want = frame(orv::GET_DRIVER_INFO, text(std::string(100, 'x')));  // 106 bytes
  want.resize(128, 0);
  Bytes got = readTransfer(*h);
  const Bytes second = readTransfer(*h);
  got.insert(got.end(), second.begin(), second.end());
  EXPECT_EQ(got, want);
  EXPECT_THROW(h->bulkRead(orv::USB_EP_IN, got.data(), 64, 5), orv::usb::Timeout);

  // A command split over two transfers and one with padding in between.
  Bytes serial_cmd = frame(GET_SERIAL_NUMBER, {});
  h->bulkWrite(orv::USB_EP_OUT, serial_cmd.data(), 3);
  h->bulkWrite(orv::USB_EP_OUT, serial_cmd.data() + 3, 3);
  Bytes reply = readTransfer(*h);
  Bytes want2 = frame(GET_SERIAL_NUMBER, text("USB00042"));
  want2.resize(64, 0);
  EXPECT_EQ(reply, want2);
}

TEST(SimUsb, ClosedLinkRemovalAndStopMakeTransfersFail) {
  const size_t backends = orv::usb::extraBackends().size();
  Simulator sim;
  DeviceConfig cfg;
  cfg.link = Link::Usb;
  cfg.serial = "USB00007";
  auto& dev = sim.addDevice(cfg);
  auto h = findUsb("USB00007")->open();
  EXPECT_TRUE(dev.hostConnected());
  EXPECT_TRUE(dev.send(150, {1, 2}));
  Bytes want = frame(150, {1, 2});
  want.resize(64, 0);
  EXPECT_EQ(readTransfer(*h), want);

  dev.closeLink();
  uint8_t buf[64] = {};
  EXPECT_THROW(h->bulkRead(orv::USB_EP_IN, buf, 64, 5), orv::usb::Failure);
  EXPECT_THROW(h->bulkWrite(orv::USB_EP_OUT, buf, 64), orv::usb::Failure);
  EXPECT_FALSE(dev.hostConnected());

  auto h2 = findUsb("USB00007")->open();  // plugged in again
  Bytes cmd = frame(GET_SERIAL_NUMBER, {});
  h2->bulkWrite(orv::USB_EP_OUT, cmd.data(), static_cast<int>(cmd.size()));
  EXPECT_EQ(readTransfer(*h2).size(), 64u);

  sim.removeDevice(dev);
  EXPECT_EQ(findUsb("USB00007"), nullptr);
  EXPECT_THROW(h2->bulkRead(orv::USB_EP_IN, buf, 64, 5), orv::usb::Failure);
  EXPECT_THROW(h2->bulkWrite(orv::USB_EP_OUT, buf, 64), orv::usb::Failure);
  // The virtual USB backend is registered only while the simulator runs.
  EXPECT_EQ(orv::usb::extraBackends().size(), backends + 1);
  sim.stop();
  EXPECT_EQ(orv::usb::extraBackends().size(), backends);
}

// --- lifetime ----------------------------------------------------------------

size_t threadCount() {
  size_t n = 0;
  DIR* d = ::opendir("/proc/self/task");
  if (!d) return 0;
  while (dirent* e = ::readdir(d)) {
    if (e->d_name[0] != '.') ++n;
  }
  ::closedir(d);
  return n;
}

TEST(SimLifetime, StopJoinsEveryThreadAcrossManyCycles) {
  RawUdp host;
  auto cycle = [&](int i) {
    Simulator sim;
    auto& eth = sim.addDevice(orv::sim::numberedConfig("Trellis", Link::Ethernet, 1));
    auto& wifi = sim.addDevice(orv::sim::numberedConfig("HeronAinImu", Link::Wifi, 2));
    auto& usb = sim.addDevice(orv::sim::numberedConfig("KestrelAio", Link::Usb, 3));
    const int port = sim.startDiscovery("127.0.0.1", 0, host.port());
    RawTcp c1(eth.cmdPort()), c2(wifi.dataPort()), c3(wifi.cmdPort());
    ASSERT_TRUE(c1.ok() && c2.ok() && c3.ok());
    c3.send(frame(orv::START_AI_STREAMING, {0}));  // a stream left running
    c1.send(frame(orv::GET_DRIVER_INFO, {0}));
    ASSERT_EQ(c1.readPackets(1).size(), 1u);
    auto h = findUsb(usb.serial())->open();
    host.sendTo(port, frame(orv::GET_DEVICE_INFO, {0}));
    if (i % 2) {
      sim.stop();  // explicitly, and once more by the destructor
    }
  };
  // A first cycle lets the process make whatever threads it keeps for good
  // (a sanitizer's background thread, for one).
  cycle(0);
  std::this_thread::sleep_for(100ms);
  const size_t before = threadCount();
  ASSERT_GT(before, 0u);
  for (int i = 1; i <= 50; ++i) cycle(i);
  EXPECT_EQ(threadCount(), before);
}

size_t fdCount() {
  size_t n = 0;
  DIR* d = ::opendir("/proc/self/fd");
  while (dirent* e = ::readdir(d)) n += e->d_name[0] != '.';
  ::closedir(d);
  return n - 1;  // the directory stream's own descriptor
}

// References to stopped or removed devices live on; their listeners and
// descriptors do not.
TEST(SimLifetime, StopAndRemoveCloseEveryListenerAtOnce) {
  Simulator sim;
  const size_t fds = fdCount();
  auto& eth = sim.addDevice(orv::sim::numberedConfig("Trellis", Link::Ethernet, 1));
  auto& wifi = sim.addDevice(orv::sim::numberedConfig("HeronAin", Link::Wifi, 2));
  auto& usb = sim.addDevice(orv::sim::numberedConfig("KestrelAio", Link::Usb, 3));
  sim.startDiscovery("127.0.0.1", 0, 0);
  RawTcp host(eth.cmdPort());
  ASSERT_TRUE(host.ok());
  ASSERT_TRUE(eth.waitForHost(Channel::Cmd, 2s));
  const auto kept = sim.findDevice(eth.serial());
  sim.removeDevice(eth);
  EXPECT_TRUE(host.seesEof());
  EXPECT_FALSE(RawTcp(kept->cmdPort()).ok());
  EXPECT_TRUE(RawTcp(wifi.cmdPort()).ok());  // the others still serve
  sim.stop();
  for (int port : {wifi.cmdPort(), wifi.dataPort()}) EXPECT_FALSE(RawTcp(port).ok()) << port;
  EXPECT_EQ(findUsb(usb.serial()), nullptr);
  EXPECT_EQ(fdCount(), fds + 1);  // the host's own socket
}

TEST(SimLifetime, StopWakesAWriterBlockedOnAHostThatDoesNotRead) {
  Simulator sim;
  DeviceConfig cfg;
  cfg.link = Link::Wifi;
  auto& dev = sim.addDevice(cfg);
  RawTcp data(dev.dataPort());
  ASSERT_TRUE(data.ok());
  ASSERT_TRUE(dev.waitForHost(Channel::Data, 2s));
  // Far more than the socket buffers hold; nobody reads.
  std::thread pusher([&] { dev.streamRecords(orv::START_AI_STREAMING, {0, 0}, 1000000, 0, 1000); });
  std::this_thread::sleep_for(100ms);
  sim.stop();
  pusher.join();
  EXPECT_FALSE(dev.running());
}

}  // namespace
