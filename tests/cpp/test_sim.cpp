// The device simulator seen from outside: plain sockets and the USB seam.
// (Discovery and the built-in answers a driver sees are checked end to end
// from Python: test_discovery.py, test_system.py and the other module tests.)
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "gtest/gtest.h"
#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/framing.hpp"
#include "link/transport.hpp"
#include "link/usb_backend.hpp"
#include "sim/simulator.hpp"
#include "test_util.hpp"

namespace {

using namespace std::chrono_literals;
using orv::Bytes;
using orv::RawPacket;
using Packets = std::vector<RawPacket>;
using orv::sim::Channel;
using orv::sim::Link;
using orv::sim::Simulator;
using Clock = std::chrono::steady_clock;

constexpr int GET_SERIAL_NUMBER = 122;
constexpr int CLOSE_AI_STREAMING = 184;

Bytes frame(int cmd, const Bytes& data) {
  return orv::preparePacket(cmd, std::span<const uint8_t>(data));
}

Bytes text(std::string_view s) { return Bytes(s.begin(), s.end()); }

// A host on the TCP link: the driver's own client, without the device layer.
class TcpHost {
 public:
  explicit TcpHost(int port) {
    try {
      ok_ = client_.connect("127.0.0.1", port);
    } catch (const std::exception&) {
    }
  }
  bool ok() const { return ok_; }
  void send(const Bytes& b) { client_.sendPacket(b); }

  // One read, waiting at most `timeout`; nullopt on timeout, empty on EOF.
  std::optional<Bytes> recvOnce(std::chrono::milliseconds timeout) {
    client_.setTimeout(static_cast<double>(std::max<long>(timeout.count(), 1)) / 1000);
    try {
      return client_.recvPacket(65536);
    } catch (const orv::OSError& e) {
      if (e.err() == ETIMEDOUT) return std::nullopt;
      return Bytes{};  // a reset link ends the stream too
    }
  }

  // The next n bytes, or fewer when the time runs out or the peer closes.
  Bytes readBytes(size_t n, std::chrono::milliseconds timeout = 2000ms) {
    readUntil([&] { return bytes_.size() >= n; }, timeout);
    return take(bytes_, n);
  }

  // Packets, cut by the splitter, until `count` arrived or the time ran out.
  Packets readPackets(size_t count, std::chrono::milliseconds timeout = 2000ms) {
    auto enough = [&] {
      client_.splitter().feed(bytes_, packets_);
      bytes_.clear();
      return packets_.size() >= count;
    };
    readUntil(enough, timeout);
    return take(packets_, count);
  }

  // True when the peer ended the stream within the time.
  bool seesEof(std::chrono::milliseconds timeout = 2000ms) {
    return readUntil([] { return false; }, timeout);
  }

 private:
  // Reads until done(); false when the time ran out first, true at the end of the stream.
  template <class Done>
  bool readUntil(Done done, std::chrono::milliseconds timeout) {
    const auto end = Clock::now() + timeout;
    while (!done() && Clock::now() < end) {
      auto b = recvOnce(std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()));
      if (b && b->empty()) return true;
      if (b) bytes_.insert(bytes_.end(), b->begin(), b->end());
    }
    return false;
  }
  template <class V>
  static V take(V& from, size_t n) {
    const auto cut = from.begin() + static_cast<long>(std::min(n, from.size()));
    V out(from.begin(), cut);
    from.erase(from.begin(), cut);
    return out;
  }

  orv::TCPClient client_;
  bool ok_ = false;
  Bytes bytes_;
  Packets packets_;
};

// --- one request -------------------------------------------------------------

TEST(SimTcp, OverrideAndFallbackHandlers) {
  Simulator sim;
  auto& dev = sim.addDevice({.driver_info = "Trellis_SIM_1.2.3"});
  TcpHost c(dev.cmdPort());
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
  auto& dev = sim.addDevice({});
  TcpHost first(dev.cmdPort());
  ASSERT_TRUE(first.ok());
  first.send(frame(GET_SERIAL_NUMBER, {}));
  ASSERT_EQ(first.readPackets(1).size(), 1u);
  TcpHost second(dev.cmdPort());
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
  auto& a = sim.addDevice({});
  auto& b = sim.addDevice({.serial = "SIM00002"});
  TcpHost ca(a.cmdPort()), cbc(b.cmdPort());
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
    dev_ = &sim_.addDevice({});
    client_ = std::make_unique<TcpHost>(dev_->cmdPort());
    ASSERT_TRUE(client_->ok());
  }
  Bytes ask() {
    client_->send(frame(GET_SERIAL_NUMBER, {}));
    return client_->readBytes(reply_.size(), 2s);
  }
  Simulator sim_;
  orv::sim::SimDevice* dev_ = nullptr;
  std::unique_ptr<TcpHost> client_;
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
  auto& dev = sim.addDevice({.link = Link::Wifi, .driver_info = "HeronAinImu_SIM"});
  ASSERT_NE(dev.cmdPort(), dev.dataPort());
  TcpHost data(dev.dataPort()), cmd(dev.cmdPort());
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
  sim.addDevice({.model = "KestrelAio",
                 .link = Link::Usb,
                 .serial = "USB00042",
                 .driver_info = std::string(100, 'x')});  // a reply of 2 transfers
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
  auto& dev = sim.addDevice({.link = Link::Usb, .serial = "USB00007"});
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

TEST(SimLifetime, StopJoinsEveryThreadAcrossManyCycles) {
  const testutil::Fd host = testutil::boundSocket(SOCK_DGRAM);  // where the answers go
  const Bytes ask = frame(orv::GET_DEVICE_INFO, {0});
  auto cycle = [&](int i) {
    Simulator sim;
    auto& eth = sim.addDevice(orv::sim::numberedConfig("Trellis", Link::Ethernet, 1));
    auto& wifi = sim.addDevice(orv::sim::numberedConfig("HeronAinImu", Link::Wifi, 2));
    auto& usb = sim.addDevice(orv::sim::numberedConfig("KestrelAio", Link::Usb, 3));
    const int port = sim.startDiscovery("127.0.0.1", 0, testutil::boundPort(host.get()));
    TcpHost c1(eth.cmdPort()), c2(wifi.dataPort()), c3(wifi.cmdPort());
    ASSERT_TRUE(c1.ok() && c2.ok() && c3.ok());
    c3.send(frame(orv::START_AI_STREAMING, {0}));  // a stream left running
    c1.send(frame(orv::GET_DRIVER_INFO, {0}));
    ASSERT_EQ(c1.readPackets(1).size(), 1u);
    auto h = findUsb(usb.serial())->open();
    const sockaddr_in to = testutil::loopback(port);
    ::sendto(host.get(), ask.data(), ask.size(), 0, reinterpret_cast<const sockaddr*>(&to),
             sizeof to);
    if (i % 2) {
      sim.stop();  // explicitly, and once more by the destructor
    }
  };
  // A first cycle lets the process make whatever threads it keeps for good
  // (a sanitizer's background thread, for one).
  cycle(0);
  std::this_thread::sleep_for(100ms);
  const size_t before = testutil::threadCount();
  ASSERT_GT(before, 0u);
  for (int i = 1; i <= 50; ++i) cycle(i);
  EXPECT_EQ(testutil::threadCount(), before);
}

// References to stopped or removed devices live on; their listeners and
// descriptors do not.
TEST(SimLifetime, StopAndRemoveCloseEveryListenerAtOnce) {
  Simulator sim;
  const size_t fds = testutil::fdCount();
  auto& eth = sim.addDevice(orv::sim::numberedConfig("Trellis", Link::Ethernet, 1));
  auto& wifi = sim.addDevice(orv::sim::numberedConfig("HeronAin", Link::Wifi, 2));
  auto& usb = sim.addDevice(orv::sim::numberedConfig("KestrelAio", Link::Usb, 3));
  sim.startDiscovery("127.0.0.1", 0, 0);
  TcpHost host(eth.cmdPort());
  ASSERT_TRUE(host.ok());
  ASSERT_TRUE(eth.waitForHost(Channel::Cmd, 2s));
  const auto kept = sim.findDevice(eth.serial());
  sim.removeDevice(eth);
  EXPECT_TRUE(host.seesEof());
  EXPECT_FALSE(TcpHost(kept->cmdPort()).ok());
  EXPECT_TRUE(TcpHost(wifi.cmdPort()).ok());  // the others still serve
  sim.stop();
  for (int port : {wifi.cmdPort(), wifi.dataPort()}) EXPECT_FALSE(TcpHost(port).ok()) << port;
  EXPECT_EQ(findUsb(usb.serial()), nullptr);
  EXPECT_EQ(testutil::fdCount(), fds + 1);  // the host's own socket
}

TEST(SimLifetime, StopWakesAWriterBlockedOnAHostThatDoesNotRead) {
  Simulator sim;
  auto& dev = sim.addDevice({.link = Link::Wifi});
  TcpHost data(dev.dataPort());
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
