// The command exchange and device lifecycle against the simulator on
// loopback: replies, retries on the wire, timeouts, stale replies,
// cancellation, threads ending.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <latch>
#include <limits>
#include <thread>

#include "link/call.hpp"
#include "link/device.hpp"
#include "link/error.hpp"
#include "sim/device.hpp"
#include "sim/simulator.hpp"
#include "test_util.hpp"

using namespace orv;
using namespace std::chrono_literals;
using namespace testutil;

namespace {

constexpr int kSilentCmd = 120;  // a command no handler answers

double secondsSince(Clock::time_point t) {
  return std::chrono::duration<double>(Clock::now() - t).count();
}

using Exchange = testutil::OnSimulatedDevice;

TEST_F(Exchange, BlockingRetriesThreeTimesThenTimesOut) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  const Bytes out{1};
  auto start = Clock::now();
  EXPECT_EQ(errorCode([&] { dev_->echoPacketWithRetry(kSilentCmd, out, 0.6); }), errPacketTimeout);
  double took = secondsSince(start);
  ASSERT_TRUE(sim_dev_->waitForPackets(3, 1s));
  EXPECT_EQ(sent(kSilentCmd), 3u);
  // Three attempts of 0.2 s, each reported a tenth later: 0.66 s.
  EXPECT_GE(took, 0.6);
  EXPECT_LT(took, 0.66 + 1.0);
  EXPECT_FALSE(dev_->echoPacketAsync(kSilentCmd, out, 0.05).has_value());
}

TEST_F(Exchange, AReplyAfterADroppedOneIsTakenOnTheSecondAttempt) {
  sim_dev_->faults().drop_next = 1;
  const Bytes out{0};
  Bytes reply = dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, 0.6);
  EXPECT_FALSE(reply.empty());
  EXPECT_EQ(sent(GET_DRIVER_INFO), 2u);
}

TEST_F(Exchange, StaleReplyInThePoolIsReturnedAtOnceAndTheNewOneStaysBehind) {
  sim_dev_->faults().delay_us = 200000;  // the fresh reply cannot overtake the stale one
  dev_->echoPool().put(GET_DRIVER_INFO, {'o', 'l', 'd'});
  const Bytes out{0};
  Bytes first = dev_->echoPacket(GET_DRIVER_INFO, out, 1);
  EXPECT_EQ(first, (Bytes{'o', 'l', 'd'}));
  // The fresh reply arrives afterwards and waits for the next call.
  for (int i = 0; i < 200 && !dev_->echoPool().contains(GET_DRIVER_INFO); ++i)
    std::this_thread::sleep_for(5ms);
  EXPECT_TRUE(dev_->echoPool().contains(GET_DRIVER_INFO));
}

TEST_F(Exchange, ReplyWakesTheWaiterBeforeThePollingPeriod) {
  // A timeout of 10 s used to mean a 1 s polling period per reply.
  const Bytes out{0};
  auto start = Clock::now();
  for (int i = 0; i < 20; ++i) dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, 10);
  EXPECT_LT(secondsSince(start), 5.0);  // 20 replies well inside one old period each
}

TEST_F(Exchange, HugeOrInfiniteTimeoutsWaitForTheReplyAndNaNIsRefusedUnsent) {
  const Bytes out{0};
  for (double t : {std::numeric_limits<double>::infinity(), 1e11, 1e300}) {
    sim_dev_->clearPackets();
    EXPECT_FALSE(dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, t).empty()) << t;
    EXPECT_FALSE(dev_->echoPacket(GET_DRIVER_INFO, out, t).empty()) << t;
    EXPECT_TRUE(dev_->echoPacketAsync(GET_DRIVER_INFO, out, t).has_value()) << t;
    EXPECT_FALSE(dev_->echoPacketWithRetryAsync(GET_DRIVER_INFO, out, 3, t).empty()) << t;
    ASSERT_TRUE(sim_dev_->waitForPackets(4, 2s));
    EXPECT_EQ(sent(GET_DRIVER_INFO), 4u) << t;  // one packet a call: no attempt failed
    EXPECT_FALSE(dev_->echoPool().contains(GET_DRIVER_INFO)) << t;  // no reply left over
  }
  sim_dev_->clearPackets();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  // With retries a timeout of 0 has run out before the first attempt.
  EXPECT_EQ(errorCode([&] { dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, nan); }),
            errInputDataNotInRange);
  EXPECT_EQ(errorCode([&] { dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, 0); }),
            errPacketTimeout);
  for (double t : {nan, 0.0, -1.0})
    EXPECT_EQ(errorCode([&] { dev_->echoPacket(GET_DRIVER_INFO, out, t); }), errInputDataNotInRange)
        << t;
  std::this_thread::sleep_for(50ms);
  EXPECT_EQ(sim_dev_->packetCount(), 0u);
}

TEST_F(Exchange, StatusTailReturnsNegativeCodesAndCallFlavoursShareTheBody) {
  sim_dev_->setHandler(kSilentCmd, [](sim::Context& ctx, const sim::Request& req) {
    ctx.reply(Bytes{req.data[0], req.data[1]});  // echoes the port, then the status
  });
  auto body = [](const Call& c, uint8_t status) {
    const Bytes out{1, status};
    return c.exchangeStatus(kSilentCmd, out, 1);
  };
  Call blocking(*dev_, Call::Flavour::Blocking, 3);
  Call awaitable(*dev_, Call::Flavour::Awaitable);
  EXPECT_EQ(body(blocking, 0), 0);
  EXPECT_EQ(body(blocking, 13), errFirmwareORVIndex);
  EXPECT_EQ(body(awaitable, 80), errFirmwareParser);
  EXPECT_EQ(body(awaitable, 99), errFirmwareOther);
  EXPECT_THROW(Call(*dev_, Call::Flavour::Blocking).exchangeStatus(kSilentCmd, Bytes{1, 0}, 5),
               Error);
}

TEST_F(Exchange, StreamRecordsReachTheirQueueAndBlockingReadWaitsForCount) {
  auto q = dev_->streamPool().get(StreamKey::triple(START_AI_STREAMING, 1, 0));
  std::thread t([&] {
    std::this_thread::sleep_for(30ms);
    sim_dev_->streamRecords(START_AI_STREAMING, {1, 0}, 3, 1000, 4);
  });
  Bytes flat = dev_->getStreamingFromPool(*q, 3, 0.005);
  t.join();
  EXPECT_EQ(flat.size(), 12u);
  EXPECT_TRUE(dev_->getStreamingFromPoolAsync(*q, 5).empty());
}

TEST(Lifecycle, ConnectCloseCyclesLeakNoThreadAndNoDescriptor) {
  sim::Simulator sim;
  auto& sd = sim.addDevice({.model = "Trellis"});
  const Bytes out{0};
  {  // warm up whatever the process keeps (first connection, resolver, ...)
    ETHDevice d(false);
    d.connect("127.0.0.1", sd.cmdPort(), false);
    d.echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
    d.close(false);
  }
  std::this_thread::sleep_for(100ms);  // the simulator notices the warm-up's hang-up
  size_t tasks = threadCount(), fds = fdCount();
  for (int i = 0; i < 200; ++i) {
    ETHDevice d(false);
    d.connect("127.0.0.1", sd.cmdPort(), false);
    if (i % 20 == 0) d.echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
    d.disconnect(false);
    d.close(false);
    EXPECT_TRUE(d.aliveThreads().empty());
  }
  std::this_thread::sleep_for(100ms);  // the simulator notices the last hang-up
  EXPECT_EQ(threadCount(), tasks);
  EXPECT_EQ(fdCount(), fds);
}

// Close fails a blocking call that waits for its reply at once, not at the
// end of its attempt.  (On a fiber: test_fiber.cpp.)
TEST(Lifecycle, CloseFailsAWaitingBlockingCall) {
  sim::Simulator sim;
  auto& sd = sim.addDevice({.model = "Trellis"});
  sd.faults().neverAnswer(kSilentCmd);
  auto dev = std::make_shared<ETHDevice>(false);
  dev->connect("127.0.0.1", sd.cmdPort(), false);
  auto call = runDetached([dev] { dev->echoPacketWithRetry(kSilentCmd, Bytes{1}, 30); });
  ASSERT_TRUE(sd.waitForPackets(1, 2s));
  dev->close(false);
  EXPECT_EQ(resultWithin(call, 2s), "DeviceClosedError");
}

// (USB through the virtual backend: CloseRace below and test_link.py.)
TEST(Lifecycle, WifiUsesBothLinks) {
  sim::Simulator sim;
  auto& wifi = sim.addDevice({.model = "HeronAin", .link = sim::Link::Wifi, .serial = "SIMW0001"});
  const Bytes out{0};

  WifiDevice w(false);
  EXPECT_TRUE(w.connect("127.0.0.1", wifi.dataPort(), wifi.cmdPort(), false));
  EXPECT_FALSE(w.echoPacketWithRetry(GET_DRIVER_INFO, out, 3).empty());
  auto q = w.streamPool().get(StreamKey::one(START_AO_STREAMING));
  ASSERT_TRUE(wifi.waitForHost(sim::Channel::Data, 2s));
  wifi.streamRecords(START_AO_STREAMING, {}, 5, 0, 8);
  EXPECT_EQ(w.getStreamingFromPool(*q, 5, 0.005).size(), 40u);
  for (const auto& p : wifi.packets()) EXPECT_EQ(p.channel, sim::Channel::Cmd);
  w.disconnect(false);
  w.close(false);
  EXPECT_TRUE(w.aliveThreads().empty());
}

// ---- a careless caller and a hostile device ---------------------------------------

// One device class, connected to its simulated device where it has one.
struct DeviceKind {
  const char* name;
  const char* model;
  sim::Link link;
  bool commands = true;  // has a command link to exchange on
};

std::ostream& operator<<(std::ostream& os, const DeviceKind& k) { return os << k.name; }

std::shared_ptr<Device> open(const DeviceKind& kind, sim::SimDevice& sd) {
  // The broadcast device is left unbound: the receive port is fixed and other runs may hold it.
  if (!kind.commands) return std::make_shared<BroadcastDevice>(false);
  if (kind.link == sim::Link::Usb) {
    auto d = std::make_shared<USBDevice>(false);
    d->connect(sd.serial(), false);
    return d;
  }
  if (kind.link == sim::Link::Wifi) {
    auto d = std::make_shared<WifiDevice>(false);
    d->connect("127.0.0.1", sd.dataPort(), sd.cmdPort(), false);
    return d;
  }
  auto d = std::make_shared<ETHDevice>(false);
  d->connect("127.0.0.1", sd.cmdPort(), false);
  return d;
}

class CloseRace : public ::testing::TestWithParam<DeviceKind> {};

// Two threads close one device while two others exchange on it: each close
// returns without error, the messages come once, every exchange ends in
// DeviceClosedError.
TEST_P(CloseRace, ConcurrentClosesReturnAndRacingCallsSeeTheDeviceClosed) {
  const DeviceKind& kind = GetParam();
  sim::Simulator sim;
  auto& sd = sim.addDevice({.model = kind.model, .link = kind.link, .serial = "SIMR0001"});
  constexpr int kRounds = 12;
  testing::internal::CaptureStdout();
  for (int round = 0; round < kRounds; ++round) {
    std::shared_ptr<Device> dev = open(kind, sd);
    const int n_callers = kind.commands ? 2 : 0;
    std::latch running(n_callers + 1), go(1);
    std::vector<std::future<std::string>> callers, closers;
    for (int i = 0; i < n_callers; ++i)
      callers.push_back(runDetached([dev, &running] {
        const Bytes out{0};
        dev->echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
        running.count_down();
        for (;;) dev->echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
      }));
    running.arrive_and_wait();
    for (int i = 0; i < 2; ++i)
      closers.push_back(runDetached([dev, &go] {
        go.wait();
        dev->close(true);
      }));
    go.count_down();
    for (auto& f : closers) EXPECT_EQ(resultWithin(f, 10s), "") << "round " << round;
    for (auto& f : callers)
      EXPECT_EQ(resultWithin(f, 10s), "DeviceClosedError") << "round " << round;
    EXPECT_TRUE(dev->aliveThreads().empty());
  }
  const std::string printed = testing::internal::GetCapturedStdout();
  size_t closed = 0;
  for (size_t at = 0; (at = printed.find("Closed handle (", at)) != std::string::npos; ++at)
    ++closed;
  EXPECT_EQ(closed, size_t{kRounds});
}

INSTANTIATE_TEST_SUITE_P(EveryClass, CloseRace,
                         ::testing::Values(DeviceKind{"ETHDevice", "Trellis", sim::Link::Ethernet},
                                           DeviceKind{"WifiDevice", "HeronAin", sim::Link::Wifi},
                                           DeviceKind{"USBDevice", "KestrelAin", sim::Link::Usb},
                                           DeviceKind{"BroadcastDevice", "Trellis",
                                                      sim::Link::Ethernet, false}),
                         [](const auto& info) { return std::string(info.param.name); });

// A device that takes the connection and never reads: once the socket
// buffers are full, a call gives up within its own time.
TEST(StalledDevice, SendsGiveUpWithTheCallsTime) {
  Listener listener;  // the handshake completes; nobody accepts
  auto dev = std::make_shared<ETHDevice>(false);
  dev->connect("127.0.0.1", listener.port(), false);
  const Bytes junk(65536, 0);
  size_t backlog = 0;
  for (ssize_t n; (n = ::send(dev->clientCmd()->fd(), junk.data(), junk.size(),
                              MSG_DONTWAIT | MSG_NOSIGNAL)) > 0;)
    backlog += static_cast<size_t>(n);
  EXPECT_GT(backlog, junk.size());

  const Bytes out{1};
  auto start = Clock::now();
  auto blocking = runDetached([dev, out] { dev->echoPacketWithRetry(kSilentCmd, out, 0.6); });
  EXPECT_EQ(resultWithin(blocking, 10s), "ReceivePacketTimeoutError");
  double took = secondsSince(start);
  EXPECT_GE(took, 0.55);
  EXPECT_LT(took, 0.6 + 2.0);

  start = Clock::now();
  auto awaitable =
      runDetached([dev, out] { dev->echoPacketWithRetryAsync(kSilentCmd, out, 2, 2.5); });
  EXPECT_EQ(resultWithin(awaitable, 10s), "AsyncTimeout");
  took = secondsSince(start);
  EXPECT_GE(took, 2.45);
  EXPECT_LT(took, 2.5 + 2.0);

  auto close = runDetached([dev] { dev->close(false); });
  EXPECT_EQ(resultWithin(close, 10s), "");
}

}  // namespace
