// The command exchange and device lifecycle against the simulator on
// loopback: replies, retries on the wire, timeouts, stale replies,
// cancellation, threads ending.
#include <dirent.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

#include "link/call.hpp"
#include "link/device.hpp"
#include "link/error.hpp"
#include "sim/device.hpp"
#include "sim/simulator.hpp"

using namespace orv;
using namespace std::chrono_literals;

namespace {

constexpr int kSilentCmd = 120;  // a command no handler answers

double secondsSince(Clock::time_point t) {
  return std::chrono::duration<double>(Clock::now() - t).count();
}

size_t countEntries(const char* dir) {
  size_t n = 0;
  if (DIR* d = opendir(dir)) {
    while (readdir(d)) ++n;
    closedir(d);
  }
  return n;
}

class Exchange : public ::testing::Test {
 protected:
  void SetUp() override {
    sim_dev_ = &sim_.addDevice({.model = "Trellis"});
    dev_ = std::make_unique<ETHDevice>(false);
    dev_->connect("127.0.0.1", sim_dev_->cmdPort(), false);
  }
  void TearDown() override {
    dev_->disconnect(false);
    dev_->close(false);
    sim_.stop();
  }
  size_t sent(int cmd) {
    size_t n = 0;
    for (const auto& p : sim_dev_->packets()) n += p.cmd == cmd;
    return n;
  }
  sim::Simulator sim_;
  sim::SimDevice* sim_dev_ = nullptr;
  std::unique_ptr<ETHDevice> dev_;
};

TEST_F(Exchange, DriverInfoRoundTripWithExactWireBytes) {
  const Bytes out{0};
  Bytes reply = dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
  EXPECT_EQ(std::string(reply.begin(), reply.end()), sim_dev_->config().driver_info);
  auto pk = sim_dev_->packets();
  ASSERT_EQ(pk.size(), 1u);
  EXPECT_EQ(pk[0].cmd, GET_DRIVER_INFO);
  EXPECT_EQ(pk[0].data, Bytes{0});
  EXPECT_EQ(preparePacket(GET_DRIVER_INFO, out), (Bytes{0x02, 0x00, 0x02, 0xF0, 0x00, 0x0D, 0x0A}));
}

TEST_F(Exchange, BlockingRetriesThreeTimesThenTimesOut) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  const Bytes out{1};
  auto start = Clock::now();
  try {
    dev_->echoPacketWithRetry(kSilentCmd, out, 0.6);
    FAIL() << "no timeout";
  } catch (const Error& e) {
    EXPECT_EQ(e.code(), errPacketTimeout);
  }
  double took = secondsSince(start);
  ASSERT_TRUE(sim_dev_->waitForPackets(3, 1s));
  EXPECT_EQ(sent(kSilentCmd), 3u);
  // Three attempts of 0.2 s, each reported a tenth later: 0.66 s.
  EXPECT_GE(took, 0.6);
  EXPECT_LT(took, 0.66 + 1.0);
}

TEST_F(Exchange, AReplyAfterADroppedOneIsTakenOnTheSecondAttempt) {
  sim_dev_->faults().drop_next = 1;
  const Bytes out{0};
  Bytes reply = dev_->echoPacketWithRetry(GET_DRIVER_INFO, out, 0.6);
  EXPECT_FALSE(reply.empty());
  EXPECT_EQ(sent(GET_DRIVER_INFO), 2u);
}

TEST_F(Exchange, StaleReplyInThePoolIsReturnedAtOnceAndTheNewOneStaysBehind) {
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

TEST_F(Exchange, AwaitableFlavourTimesOutWithItsOwnError) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  const Bytes out{1};
  auto start = Clock::now();
  EXPECT_THROW(dev_->echoPacketWithRetryAsync(kSilentCmd, out, 1, 1.3), AsyncTimeout);
  double took = secondsSince(start);
  EXPECT_GE(took, 1.3);
  EXPECT_LT(took, 2.5);
  EXPECT_EQ(sent(kSilentCmd), 1u);
  EXPECT_FALSE(dev_->echoPacketAsync(kSilentCmd, out, 0.05).has_value());
}

TEST_F(Exchange, CancelStopsAWaitingCallAndItsRetries) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  CancelToken tok;
  const Bytes out{1};
  auto fut = std::async(std::launch::async, [&] {
    return dev_->echoPacketWithRetryAsync(kSilentCmd, out, 3, 5, &tok);
  });
  ASSERT_TRUE(sim_dev_->waitForPackets(1, 2s));
  tok.cancel();
  ASSERT_EQ(fut.wait_for(2s), std::future_status::ready);
  EXPECT_THROW(fut.get(), Cancelled);
  std::this_thread::sleep_for(50ms);
  EXPECT_EQ(sent(kSilentCmd), 1u);  // no further attempt went out
}

TEST_F(Exchange, CloseFailsAPendingWait) {
  auto fut = std::async(std::launch::async, [&] { return dev_->getReplyFromPoolAsync(9999); });
  std::this_thread::sleep_for(20ms);
  dev_->close(false);
  ASSERT_EQ(fut.wait_for(2s), std::future_status::ready);
  try {
    fut.get();
    FAIL();
  } catch (const Error& e) {
    EXPECT_EQ(e.id(), ErrorId::DeviceClosedError);
  }
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
  size_t tasks = countEntries("/proc/self/task"), fds = countEntries("/proc/self/fd");
  for (int i = 0; i < 200; ++i) {
    ETHDevice d(false);
    d.connect("127.0.0.1", sd.cmdPort(), false);
    if (i % 20 == 0) d.echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
    d.disconnect(false);
    d.close(false);
    EXPECT_TRUE(d.aliveThreads().empty());
  }
  std::this_thread::sleep_for(100ms);  // the simulator notices the last hang-up
  EXPECT_EQ(countEntries("/proc/self/task"), tasks);
  EXPECT_EQ(countEntries("/proc/self/fd"), fds);
}

TEST(Lifecycle, WifiUsesBothLinksAndUsbGoesThroughTheVirtualBackend) {
  sim::Simulator sim;
  auto& wifi = sim.addDevice({.model = "HeronAin", .link = sim::Link::Wifi, .serial = "SIMW0001"});
  auto& usb = sim.addDevice({.model = "KestrelAin", .link = sim::Link::Usb, .serial = "SIMU0001"});
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

  USBDevice u(false);
  u.connect("SIMU0001", false);
  EXPECT_EQ(u.serialNum().value_or(""), "SIMU0001");
  Bytes reply = u.echoPacketWithRetry(GET_DRIVER_INFO, out, 3);
  EXPECT_EQ(std::string(reply.begin(), reply.end()), usb.config().driver_info);
  u.disconnect(false);
  u.close(false);
  EXPECT_TRUE(u.aliveThreads().empty());
  EXPECT_THROW(USBDevice(false).connect("NOSUCH", false), Error);
}

}  // namespace
