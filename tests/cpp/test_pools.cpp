// Pools and routing: what the receive threads store and how waiters wake.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "analog/sample_queue.hpp"
#include "link/device.hpp"
#include "link/error.hpp"
#include "link/interrupt.hpp"
#include "test_util.hpp"

using namespace orv;
using namespace std::chrono_literals;

namespace {

// A device with no link: only its pools and routing are used.
class PoolDevice : public Device {
 public:
  PoolDevice() : Device("PoolDevice") {}
  void close(bool) override {}
  void disconnect(bool) override {}
};

TEST(EchoPool, WaiterWakesAtOnceWhenTheReplyArrives) {
  EchoPool pool;
  std::thread t([&] {
    std::this_thread::sleep_for(20ms);
    pool.put(240, {1, 2});
  });
  Bytes out;
  auto start = Clock::now();
  auto r = pool.waitPop(240, Clock::now() + 5s, out, nullptr);
  auto took = Clock::now() - start;
  t.join();
  EXPECT_EQ(r, EchoPool::WaitResult::Taken);
  EXPECT_EQ(out, (Bytes{1, 2}));
  EXPECT_LT(took, 2s);  // far below the 5 s limit: woken, not timed out
  EXPECT_FALSE(pool.contains(240));
}

TEST(EchoPool, PresentReplyIsTakenWithoutWaitingAndLatestWins) {
  EchoPool pool;
  pool.put(7, {1});
  pool.put(7, {2});
  Bytes out;
  EXPECT_EQ(pool.waitPop(7, Clock::now(), out, nullptr), EchoPool::WaitResult::Taken);
  EXPECT_EQ(out, Bytes{2});
  EXPECT_EQ(pool.waitPop(7, Clock::now() + 10ms, out, nullptr), EchoPool::WaitResult::TimedOut);
}

TEST(EchoPool, CancelAndCloseWakeWaiters) {
  EchoPool pool;
  CancelToken tok;
  Bytes out;
  std::thread t([&] {
    std::this_thread::sleep_for(20ms);
    tok.cancel();
  });
  EXPECT_EQ(pool.waitPop(1, Clock::time_point::max(), out, &tok), EchoPool::WaitResult::Cancelled);
  t.join();
  std::thread t2([&] {
    std::this_thread::sleep_for(20ms);
    pool.close();
  });
  EXPECT_EQ(pool.waitPop(1, Clock::time_point::max(), out, nullptr), EchoPool::WaitResult::Closed);
  t2.join();
}

// SIGINT and the waits of the signal thread (link/interrupt.hpp): the host's
// handler still runs, the hook runs when the signal comes; a hook that does
// not throw lets the wait go on, a signal between two waits reaches the next.
std::atomic<int> g_host_runs{0}, g_hook_runs{0};
std::atomic<bool> g_hook_throws{false};
struct Interrupted {};
void hostHandler(int) { ++g_host_runs; }
void hook() {
  ++g_hook_runs;
  if (g_hook_throws) throw Interrupted{};
}

TEST(Interrupt, SignalWakesTheWaitAndTheHookDecides) {
  struct sigaction host {
  }, saved{}, after{};
  host.sa_handler = &hostHandler;
  ASSERT_EQ(sigaction(SIGINT, &host, &saved), 0);
  interrupt::install(&hook);
  auto ctrlC = [] {
    return std::thread([] {
      std::this_thread::sleep_for(50ms);
      kill(getpid(), SIGINT);
    });
  };
  EchoPool pool;
  Bytes out;
  auto t = ctrlC();
  const auto start = Clock::now();
  EXPECT_EQ(pool.waitPop(1, start + 300ms, out, nullptr), EchoPool::WaitResult::TimedOut);
  EXPECT_GE(Clock::now() - start, 300ms);
  t.join();
  EXPECT_EQ(g_host_runs, 1);
  EXPECT_EQ(g_hook_runs, 1);

  g_hook_throws = true;
  kill(getpid(), SIGINT);  // between two waits
  EXPECT_THROW(pool.sleepUntil(Clock::time_point::max(), nullptr), Interrupted);
  StreamQueue q;
  t = ctrlC();
  EXPECT_THROW(q.waitSize(1), Interrupted);
  t.join();
  EXPECT_EQ(g_host_runs, 3);
  EXPECT_EQ(g_hook_runs, 3);

  interrupt::uninstall();
  sigaction(SIGINT, &saved, &after);
  EXPECT_EQ(after.sa_handler, &hostHandler);  // the host's handler is back
}

TEST(StreamQueue, WaitSizeAndBound) {
  StreamQueue q(2);
  EXPECT_TRUE(q.push({1}));
  EXPECT_TRUE(q.push({2}));
  EXPECT_FALSE(q.push({3}));  // full: dropped, never blocks
  EXPECT_TRUE(q.waitSize(2));
  EXPECT_EQ(*q.tryPop(), Bytes{1});
  std::thread t([&] { q.push({4}); });
  EXPECT_TRUE(q.waitSize(2));
  t.join();
  q.close();
  EXPECT_FALSE(q.waitSize(10));
}

// Decoded samples: flat values in runs of one width, bounded in samples, and
// a watch that fires once a push brings the count it waits for.
TEST(SampleQueue, RunsOfWidthsBoundAndWatch) {
  SampleQueue q(4);
  const double eight[24] = {0,  1,  2,  3,  4,  5,  6,  7,  10, 11, 12, 13,
                            14, 15, 16, 17, 20, 21, 22, 23, 24, 25, 26, 27};
  const double four[8] = {30, 31, 32, 33, 40, 41, 42, 43};
  bool fired = false;
  EXPECT_NE(q.watch(4, [&] { fired = true; }), 0u);
  EXPECT_EQ(q.push(eight, 3, 8), 3u);
  EXPECT_FALSE(fired);
  EXPECT_EQ(q.push(four, 2, 4), 1u);  // one fits the bound, one is left out
  EXPECT_TRUE(fired);
  EXPECT_EQ(q.size(), 4u);

  std::vector<std::vector<double>> got;
  auto each = [&](auto b, auto e) { got.emplace_back(b, e); };
  EXPECT_EQ(q.take(2, each), 2u);
  EXPECT_EQ(q.take(10, each), 2u);  // across the change of width
  ASSERT_EQ(got.size(), 4u);
  EXPECT_EQ(got[1], std::vector<double>(eight + 8, eight + 16));
  EXPECT_EQ(got[2], std::vector<double>(eight + 16, eight + 24));
  EXPECT_EQ(got[3], std::vector<double>(four, four + 4));
  EXPECT_EQ(q.size(), 0u);
  EXPECT_EQ(q.take(1, each), 0u);

  EXPECT_EQ(q.push(four + 4, 1, 4), 1u);  // the queue works on after draining
  q.take(1, each);
  EXPECT_EQ(got.back(), std::vector<double>(four + 4, four + 8));
  q.close();
  EXPECT_EQ(q.waitSize(1, Clock::now() + 1s), WaitableQueue::Wait::Closed);
}

TEST(Routing, StreamRecordsGoToTheirKeyWithoutTheKeyBytes) {
  struct Case {
    int cmd;
    Bytes data;
    StreamKey key;
    Bytes stored;
  };
  for (const Case& c : std::vector<Case>{
           {START_AI_STREAMING, {3, 1, 9, 8}, StreamKey::triple(183, 3, 1), {9, 8}},
           {START_AI_STREAMING_VARIABLE, {3, 1, 9}, StreamKey::triple(190, 0, 0), {9}},
           {START_CAN, {1, 0, 5, 6}, StreamKey::one(49), {5, 6}},
           {AHRS_START, {1, 5, 6}, StreamKey::one(9217), {5, 6}},
           {START_UART_READING, {2, 0, 65}, StreamKey::pair(129, 2), {65}},
           {START_AO_STREAMING, {1, 2}, StreamKey::one(8265), {1, 2}},
           {START_MOTION_MONITORING, {4}, StreamKey::one(7216), {4}},
       }) {
    SCOPED_TRACE("command " + std::to_string(c.cmd));
    PoolDevice d;
    d.putToDataPool(c.cmd, c.data);
    auto keys = d.streamPool().keys();
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0], c.key);
    EXPECT_EQ(*d.streamPool().get(c.key)->tryPop(), c.stored);
    EXPECT_EQ(d.echoPool().size(), 0u);
  }
}

TEST(Routing, MotionRepliesAreKeyedByConnectorCommandAndAxis) {
  PoolDevice d;
  d.putToDataPool(MOTION, {1, 0x20, 0, 0xAA});
  d.putToDataPool(MOTION, {1, 0x20, 1, 0xBB});
  EXPECT_EQ(d.echoPool().size(), 2u);
  const Bytes req0{1, 0x20, 0}, req1{1, 0x20, 1};
  EXPECT_NE(Device::echoKey(MOTION, req0), Device::echoKey(MOTION, req1));
  // [axis, connector, motion_cmd, 208] as a signed big-endian word
  EXPECT_EQ(Device::echoKey(MOTION, req1), (1 << 24) | (1 << 16) | (0x20 << 8) | 208);
  EXPECT_EQ(Device::echoKey(MOTION, Bytes{0x80, 0, 0}), static_cast<int32_t>(0x008000D0));
  EXPECT_EQ(Device::echoKey(MOTION, Bytes{0, 0, 0x80}), static_cast<int32_t>(0x800000D0));
  // The stored reply keeps its three leading bytes.
  EXPECT_EQ(*d.echoPool().pop(Device::echoKey(MOTION, req1)), (Bytes{1, 0x20, 1, 0xBB}));
  EXPECT_THROW(d.putToDataPool(MOTION, {1, 2}), IndexError);
}

TEST(Routing, BroadcastAnswersAreASetAndOtherFirstBytesAreIgnored) {
  PoolDevice d;
  for (int i = 0; i < 3; ++i) d.putToDataPool(GET_DEVICE_INFO, {1, 127, 0, 0, 1});
  d.putToDataPool(GET_DEVICE_INFO, {0, 9});
  d.putToDataPool(CHECK_MAC_AND_REBOOT, {2, 0, 0});
  EXPECT_EQ(d.bcstPool().get(GET_DEVICE_INFO), (std::set<Bytes>{{127, 0, 0, 1}}));
  EXPECT_EQ(d.bcstPool().size(CHECK_MAC_AND_REBOOT), 0u);
  EXPECT_EQ(d.echoPool().size(), 0u);
}

TEST(Routing, EchoKeepsTheLatestReplyPerCommand) {
  PoolDevice d;
  d.putToDataPool(240, {1});
  d.putToDataPool(240, {2});
  d.putToDataPool(122, {});
  EXPECT_EQ(d.echoPool().size(), 2u);
  EXPECT_EQ(*d.echoPool().pop(240), Bytes{2});
  EXPECT_EQ(*d.echoPool().pop(122), Bytes{});
}

TEST(Errors, TableCodesMessagesAndFirmwareMap) {
  EXPECT_EQ(Error(ErrorId::ReceivePacketTimeoutError).what(),
            std::string("Error -8004: Receive packet timeout."));
  EXPECT_EQ(Error(ErrorId::NetworkConnectionLostError, "gone").code(), -8003);
  EXPECT_EQ(Error(ErrorId::MRDRPortNotAvaliable).code(), -8900);
  EXPECT_EQ(checkFirmwareError(0), 0);
  struct {
    int status;
    int code;
  } cases[] = {{10, -7000}, {13, -7003}, {27, -7011}, {40, -7012},  {57, -7022},
               {73, -7026}, {80, -7027}, {1, -7028},  {255, -7028}, {14, -7028}};
  for (auto c : cases)
    EXPECT_EQ(testutil::errorCode([&] { checkFirmwareError(c.status); }), c.code) << c.status;
  EXPECT_EQ(Error(firmwareErrorFor(13)).msg(), "The HAL error in the firmware.");
}

}  // namespace
