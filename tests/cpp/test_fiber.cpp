// Awaitable exchanges on fibers: many calls pending on one thread, each ended
// by its reply, its deadline, a cancel or the device's close.
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <condition_variable>
#include <deque>
#include <map>
#include <thread>

#include "link/device.hpp"
#include "link/error.hpp"
#include "link/fiber.hpp"
#include "sim/device.hpp"
#include "sim/simulator.hpp"
#include "test_util.hpp"

using namespace orv;
using namespace std::chrono_literals;

namespace {

constexpr int kSilentCmd = 120;  // a command no handler answers
constexpr int kSerialCmd = 122;  // the serial number: another key than the driver info

// A loop on the test's thread: posted work, timers and, unless told not to,
// the sockets it reads for its awaitables.
class TestLoop : public Reactor {
 public:
  explicit TestLoop(bool reads_sockets = true) : reads_(reads_sockets) {}
  ~TestLoop() override { ::close(efd_); }
  void post(std::function<void()> fn) override {
    {
      std::lock_guard lk(m_);
      posted_.push_back(std::move(fn));
    }
    const uint64_t one = 1;
    EXPECT_EQ(::write(efd_, &one, sizeof one), 8);
  }
  uint64_t callAt(Clock::time_point when, std::function<void()> fn) override {
    timers_[{when, ++next_}] = std::move(fn);
    return next_;
  }
  void cancelTimer(uint64_t id) override {
    std::erase_if(timers_, [id](const auto& t) { return t.first.second == id; });
  }
  InputWatches* inputWatches() override { return reads_ ? &watches_ : nullptr; }
  // Runs until `done` holds or `limit` seconds pass; false on the limit.
  bool runUntil(const std::function<bool()>& done, double limit) {
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                        std::chrono::duration<double>(limit));
    while (!done()) {
      const auto now = Clock::now();
      if (now >= end) return false;
      const auto until = timers_.empty() ? end : std::min(end, timers_.begin()->first.first);
      const auto ms = std::chrono::ceil<std::chrono::milliseconds>(until - now).count();
      pollfd p[2] = {{efd_, POLLIN, 0}, {watches_.fd(), POLLIN, 0}};
      ::poll(p, 2, static_cast<int>(ms));
      uint64_t n;
      [[maybe_unused]] const auto r = ::read(efd_, &n, sizeof n);
      std::deque<std::function<void()>> work;
      {
        std::lock_guard lk(m_);
        work.swap(posted_);
      }
      for (auto& fn : work) fn();
      if (p[1].revents) watches_.runReady();
      while (!timers_.empty() && timers_.begin()->first.first <= Clock::now()) {
        auto fn = std::move(timers_.begin()->second);
        timers_.erase(timers_.begin());
        fn();
      }
      watches_.finishRound();
    }
    return true;
  }

 private:
  bool reads_;
  int efd_ = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
  InputWatches watches_;
  std::mutex m_;
  std::deque<std::function<void()>> posted_;
  std::map<std::pair<Clock::time_point, uint64_t>, std::function<void()>> timers_;
  uint64_t next_ = 0;
};

// One awaitable call: its body on a fiber, its outcome kept.
struct Call {
  std::unique_ptr<Fiber> fiber;
  bool done = false;
  Bytes reply;
  std::exception_ptr error;
};

class Fibers : public testutil::OnSimulatedDevice {
 protected:
  // Starts `body` on a fiber of the loop; what it returns is the reply.
  std::unique_ptr<Call> startBody(std::function<Bytes()> body) {
    auto c = std::make_unique<Call>();
    Call* raw = c.get();
    c->fiber = std::make_unique<Fiber>(
        loop_,
        [raw, body = std::move(body)] {
          try {
            raw->reply = body();
          } catch (...) {
            raw->error = std::current_exception();
          }
        },
        [raw] { raw->done = true; });
    c->fiber->resume();
    return c;
  }
  // Starts echoPacketWithRetryAsync on a fiber of the loop.
  std::unique_ptr<Call> start(int cmd, Bytes out, int retries, double timeout,
                              CancelToken* tok = nullptr) {
    return startBody([this, cmd, out, retries, timeout, tok] {
      return dev_->echoPacketWithRetryAsync(cmd, out, retries, timeout, tok);
    });
  }
  template <class E>
  static void expectError(const Call& c) {
    ASSERT_TRUE(c.error);
    EXPECT_THROW(std::rethrow_exception(c.error), E);
  }

  std::shared_ptr<TestLoop> loop_ = std::make_shared<TestLoop>();
};

// The loop reads the socket for its awaitables, or (a loop that watches no
// descriptor) the link's receive thread does; blocking callers on other
// threads share the link meanwhile, each side reading while the other waits.
TEST_F(Fibers, ManyPendingCallsOnOneThreadEachGetAReply) {
  const std::string info = sim_dev_->config().driver_info;
  size_t sent = 0;
  for (bool loop_reads : {true, false}) {
    loop_ = std::make_shared<TestLoop>(loop_reads);
    const size_t threads = testutil::threadCount();
    std::vector<std::unique_ptr<Call>> calls;
    for (int i = 0; i < 300; ++i) calls.push_back(start(GET_DRIVER_INFO, {0}, 3, 3));
    EXPECT_EQ(testutil::threadCount(), threads);  // a pending call holds no thread
    std::atomic<int> blocking_ok{0};
    std::thread blocking([&] {
      for (int i = 0; i < 100; ++i)
        if (dev_->echoPacketWithRetry(kSerialCmd, Bytes{0}, 3).size() > 0) ++blocking_ok;
    });
    const bool ended = loop_->runUntil(
        [&] { return std::all_of(calls.begin(), calls.end(), [](auto& c) { return c->done; }); },
        20);
    blocking.join();
    ASSERT_TRUE(ended);
    for (auto& c : calls) {
      ASSERT_FALSE(c->error);
      EXPECT_EQ(std::string(c->reply.begin(), c->reply.end()), info);
    }
    EXPECT_EQ(blocking_ok.load(), 100);
    sent += 400;
    EXPECT_EQ(sim_dev_->packets().size(), sent);
  }
}

TEST_F(Fibers, SilentDeviceEndsByTheDeadlineAfterEachAttempt) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  auto start_t = Clock::now();
  auto c = start(kSilentCmd, {1}, 1, RETRY_TIMEOUT + 0.2);
  ASSERT_TRUE(loop_->runUntil([&] { return c->done; }, 10));
  const double took = std::chrono::duration<double>(Clock::now() - start_t).count();
  expectError<AsyncTimeout>(*c);
  EXPECT_GE(took, RETRY_TIMEOUT + 0.2);
  EXPECT_LT(took, RETRY_TIMEOUT + 3);
  EXPECT_EQ(sim_dev_->packets().size(), 1u);
}

TEST_F(Fibers, CancelAndCloseEndPendingCallsAtOnce) {
  sim_dev_->faults().neverAnswer(kSilentCmd);
  CancelToken tok;
  auto cancelled = start(kSilentCmd, {1}, 3, 30, &tok);
  auto closed = start(kSilentCmd, {2}, 3, 30);
  std::thread other([&] {
    std::this_thread::sleep_for(50ms);
    tok.cancel();
    std::this_thread::sleep_for(50ms);
    dev_->close(false);
  });
  const bool ended = loop_->runUntil([&] { return cancelled->done && closed->done; }, 5);
  other.join();
  ASSERT_TRUE(ended);
  expectError<Cancelled>(*cancelled);
  ASSERT_TRUE(closed->error);
  try {
    std::rethrow_exception(closed->error);
  } catch (const Error& e) {
    EXPECT_EQ(e.id(), ErrorId::DeviceClosedError);
  }
}

// Stream reads on fibers: each wait ends for its count, its deadline, its
// cancel or the queue's close, and none holds the loop meanwhile.
TEST_F(Fibers, QueueWaitsEndByCountDeadlineCancelOrClose) {
  StreamQueue q, closing;
  CancelToken tok;
  auto wait = [](StreamQueue& queue, size_t n, double s, CancelToken* t = nullptr) {
    return [&queue, n, s, t] {
      const bool got = Device::waitQueue(queue, n, deadlineAfter(Clock::now(), s), t);
      return Bytes{static_cast<uint8_t>(got), static_cast<uint8_t>(queue.size())};
    };
  };
  auto three = startBody(wait(q, 3, 30));
  auto timed = startBody(wait(q, 5, 0.1));
  auto cancelled = startBody(wait(q, 5, 30, &tok));
  auto closed = startBody(wait(closing, 1, 30));
  std::thread other([&] {
    for (uint8_t i = 0; i < 3; ++i) {
      std::this_thread::sleep_for(20ms);
      q.push({i});
    }
    tok.cancel();
    closing.close();
  });
  const bool ended = loop_->runUntil(
      [&] { return three->done && timed->done && cancelled->done && closed->done; }, 5);
  other.join();
  ASSERT_TRUE(ended);
  ASSERT_FALSE(three->error);
  EXPECT_EQ(three->reply, (Bytes{1, 3}));
  ASSERT_FALSE(timed->error);
  EXPECT_EQ(timed->reply[0], 0);
  expectError<Cancelled>(*cancelled);
  ASSERT_TRUE(closed->error);
  EXPECT_THROW(std::rethrow_exception(closed->error), Error);
  // The thread flavour of the same wait.
  EXPECT_TRUE(Device::waitQueue(q, 3, Clock::now()));
  EXPECT_FALSE(Device::waitQueue(q, 4, Clock::now() + 10ms));
}

}  // namespace
