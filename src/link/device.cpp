#include "link/device.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "link/error.hpp"
#include "link/fiber.hpp"
#include "link/interrupt.hpp"
#include "link/report.hpp"
#include "link/stream_route.hpp"
#include "link/thread_name.hpp"

namespace orv {

using namespace std::chrono_literals;

namespace {
// `s` seconds from now, saturated (see deadlineAfter): an infinite or huge
// timeout waits for its reply, a NaN one ends at once.
Clock::time_point fromNow(double s) { return deadlineAfter(Clock::now(), s); }

// Runs fn with the client's socket held open (a reader role may change its
// watch of it), or with nullptr when there is no socket to hold.
template <class F>
void withHeldSocket(NetworkClient* client, F&& fn) {
  if (!client || !client->holdSocket([&](int fd, uint64_t id) {
        const ReaderRole::SocketRef held{fd, id};
        fn(&held);
      }))
    fn(nullptr);
}
}  // namespace

// ---- Gate --------------------------------------------------------------------

void Gate::close() {
  {
    std::lock_guard lk(m_);
    open_ = false;
  }
  if (on_change_) on_change_();
}

void Gate::open() {
  {
    std::lock_guard lk(m_);
    if (open_) throw GateAlreadyOpen("release unlocked lock");
    open_ = true;
  }
  cv_.notify_all();
  if (on_change_) on_change_();
}

void Gate::forceOpen() {
  {
    std::lock_guard lk(m_);
    open_ = true;
  }
  cv_.notify_all();
  if (on_change_) on_change_();
}

bool Gate::isOpen() const {
  std::lock_guard lk(m_);
  return open_;
}

void Gate::pass(const std::atomic<bool>& stop) {
  std::unique_lock lk(m_);
  cv_.wait(lk, [&] { return open_ || stop.load(); });
}

// ---- Link --------------------------------------------------------------------

std::shared_ptr<Client> Link::client() const {
  std::lock_guard lk(m_);
  return client_;
}

void Link::setClient(std::shared_ptr<Client> c) {
  std::lock_guard lk(m_);
  client_ = std::move(c);
}

// ---- Device: pools and routing -------------------------------------------------

Device::Device(std::string class_name) : class_name_(std::move(class_name)) {}

Device::~Device() = default;

namespace {
std::atomic<DeviceNaming> g_naming{nullptr};
}  // namespace

void setDeviceNaming(DeviceNaming naming) { g_naming.store(naming); }

std::string Device::deviceName() const {
  const DeviceNaming naming = g_naming.load();
  return naming ? naming(class_name_) : class_name_;
}

CmdType Device::checkCommandType(int cmd, std::span<const uint8_t> data) {
  return orv::checkCommandType(cmd, data);
}

int64_t Device::echoKey(int cmd, std::span<const uint8_t> data) {
  if (cmd != MOTION) return cmd;
  if (data.size() < 3) throw IndexError("index out of range: a MOTION packet needs 3 data bytes");
  // [axis, connector, motion_cmd, MOTION] read as a signed big-endian word.
  const uint32_t u = (uint32_t{data[2]} << 24) | (uint32_t{data[0]} << 16) |
                     (uint32_t{data[1]} << 8) | uint32_t{MOTION};
  return static_cast<int32_t>(u);
}

void Device::putToDataPool(int cmd, const Bytes& data) {
  const CmdType type = checkCommandType(cmd, data);
  const int64_t key = echoKey(cmd, data);
  switch (type) {
    case CmdType::Streaming: {
      const StreamRoute* route = findStreamRoute(cmd);
      if (!route) {
        strm_.get(StreamKey::one(static_cast<int>(key)))->push(data);
        break;
      }
      const size_t at = std::min(route->payload_at, data.size());
      strm_.get(route->key(cmd, data))->push(Bytes(data.begin() + at, data.end()));
      break;
    }
    case CmdType::Echo:
      echo_.put(key, data);
      break;
    case CmdType::Broadcast:
      if (!data.empty() && data[0] == 1) bcst_.add(cmd, Bytes(data.begin() + 1, data.end()));
      break;
    case CmdType::Ignore:
      break;
  }
}

// ---- Device: threads -----------------------------------------------------------

void Device::announce(bool verbose, const std::string& text) const {
  if (verbose) report::print(text);
  report::log(report::LogLevel::Info, text);
}

namespace {
std::string commandText(int cmd) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "command 0x%02X (%d)", static_cast<unsigned>(cmd) & 0xFFu, cmd);
  return buf;
}
}  // namespace

void Device::tracePacket(char direction, int cmd, std::span<const uint8_t> bytes) const {
  std::string where = address();
  report::log(report::LogLevel::Debug, deviceName() + (where.empty() ? "" : " " + where) + " " +
                                           direction + " " + commandText(cmd) + ", " +
                                           std::to_string(bytes.size()) +
                                           " bytes: " + report::hexdump(bytes));
}

void Device::logMissedReply(int cmd, double waited, int attempt, int attempts) const {
  if (!report::logOn(report::LogLevel::Warning)) return;
  char secs[32];
  std::snprintf(secs, sizeof secs, "%g", waited);
  std::string where = address();
  report::log(report::LogLevel::Warning, deviceName() + (where.empty() ? "" : " " + where) +
                                             ": no reply to " + commandText(cmd) + " within " +
                                             secs + " s (attempt " + std::to_string(attempt) +
                                             " of " + std::to_string(attempts) + ")");
}

bool Device::closeBase() {
  if (killed_.exchange(true)) return false;
  return true;
}

void Device::startThread(Link& link) {
  link.alive = true;
  link.thread = std::thread([this, &link] {
    nameThisThread("orv-receive");
    recvLoop(link);
  });
}

void Device::dispatch(Link& link, Client& client, const Bytes& raw) {
  thread_local std::vector<RawPacket> packets;
  packets.clear();
  client.splitter().feed(raw, packets);
  const bool trace = report::logOn(report::LogLevel::Debug);
  for (const auto& p : packets) {
    if (trace) tracePacket('<', p.cmd, p.data);
    try {
      putToDataPool(p.cmd, p.data);
    } catch (const std::exception& e) {
      if (link.failures == Link::Failures::Print) report::genericError(e);
    }
  }
}

void Device::recvLoop(Link& link) {
  Bytes raw;
  while (!killed_.load()) {
    link.gate.pass(killed_);
    if (killed_.load()) break;
    std::shared_ptr<Client> client = link.client();
    bool pause = false;
    try {
      if (!client) {
        // The transport is gone: the link was dropped under the thread.
        if (link.failures == Link::Failures::Print && !killed_.load())
          report::print("AttributeError: the USB link has no client");
        pause = true;
      } else if (auto* net = dynamic_cast<NetworkClient*>(client.get())) {
        bool registered = false;
        // A socket: read it while no caller does (link/reader_role.hpp).
        const bool watched = net->holdSocket([&](int fd, uint64_t id) {
          registered = link.role.threadRegister({fd, id});
        });
        if (!watched || !registered) {
          pause = true;
        } else if (link.role.threadWait()) {
          struct Done {
            ReaderRole& r;
            NetworkClient& c;
            ~Done() {
              withHeldSocket(&c, [this](const ReaderRole::SocketRef* held) { r.threadDone(held); });
            }
          } done{link.role, *net};
          const auto got = net->recvWithin(link.read_size, Clock::time_point::min(), -1, raw);
          if (got == NetworkClient::Recv::Data)
            dispatch(link, *net, raw);
          else if (got == NetworkClient::Recv::Closed)
            pause = true;  // a closed peer answers every read at once
        }
      } else {
        raw = client->recvPacket(link.read_size);
        if (raw.empty())
          pause = true;  // a closed peer answers every read at once
        else
          dispatch(link, *client, raw);
      }
    } catch (const usb::Timeout&) {
      // An idle USB link: the ordinary state, once per millisecond.
    } catch (const std::exception& e) {
      if (link.failures == Link::Failures::Print && !killed_.load()) report::genericError(e);
      pause = true;
    }
    // A dead link must not spin a core; the pause never delays a live one.
    if (pause && !killed_.load()) std::this_thread::sleep_for(1ms);
  }
  link.alive = false;
}

void Device::finishClose(std::initializer_list<Link*> links) {
  echo_.close();
  strm_.closeAll();
  for (Link* l : links) {
    l->role.wakeLeader();
    // A socket left open without a connection (a bind or connect that failed
    // half way) may hold the thread in a read: shut it to wake the thread.
    if (auto c = std::dynamic_pointer_cast<NetworkClient>(l->client()); c && c->hasSocket()) {
      try {
        c->disconnect();
      } catch (const std::exception&) {
      }
    }
    l->gate.forceOpen();
    if (l->thread.joinable()) {
      if (l->thread.get_id() == std::this_thread::get_id())
        l->thread.detach();
      else
        l->thread.join();
    }
  }
}

std::vector<std::string> Device::aliveThreads() const {
  std::vector<std::string> out;
  for (const Link* l : links_)
    if (l->alive.load()) out.push_back(l->thread_name);
  return out;
}

void Device::registerLink(Link& link) {
  link.role.setOnFree([this] { echo_.wakeAll(); });
  link.gate.onChange([&link] { link.role.wake(); });
  links_.push_back(&link);
}

void Device::stopLinks(std::initializer_list<Link*> links) {
  killed_.store(true);
  for (Link* l : links) {
    if (auto c = std::dynamic_pointer_cast<NetworkClient>(l->client()); c && c->hasSocket()) {
      try {
        c->disconnect();
      } catch (const std::exception&) {
      }
    }
  }
  finishClose(links);
}

void Device::throwIfClosed() const {
  if (killed_.load() || closing_.load()) raise(ErrorId::DeviceClosedError);
}

// ---- Device: the exchange ------------------------------------------------------

void Device::sendPacketWithoutReply(int cmd, std::span<const uint8_t> data_out) {
  try {
    sendBefore(cmd, data_out, fromNow(PACKET_TIMEOUT));
  } catch (const SendTimeout&) {
    raise(ErrorId::ReceivePacketTimeoutError, "The device took no packet in time.");
  }
}

void Device::sendBefore(int cmd, std::span<const uint8_t> data_out, Clock::time_point deadline) {
  throwIfClosed();
  Link* link = commandLink();
  std::shared_ptr<Client> client = link ? link->client() : nullptr;
  if (!client) {
    throwIfClosed();  // a close took the link away meanwhile
    raise(ErrorId::LinkNotOpenError);
  }
  const Bytes packet = preparePacket(cmd, data_out);
  if (report::logOn(report::LogLevel::Debug)) tracePacket('>', cmd, packet);
  try {
    // One packet on the wire at a time; a sender stuck behind a device that
    // stopped reading holds the others no longer than their own deadlines.
    if (!link->send_lock.lockUntil(deadline)) throw SendTimeout();
    struct Unlock {
      SendLock& l;
      ~Unlock() { l.unlock(); }
    } unlock{link->send_lock};
    client->sendPacket(packet, deadline);
  } catch (...) {
    // A close shuts the socket (broken pipe) or drops the client under the
    // send: the caller sees the close, not its traces.
    throwIfClosed();
    throw;
  }
}

namespace {
thread_local ReaderRole* t_expecting = nullptr;

// A caller counts as waiting on its link's reader from before its send: a
// reply that comes back before the caller starts to wait is left in the
// socket for it, instead of waking the receive thread.  A blocking caller
// then reads the socket itself (leadOrFollow); an awaitable's event loop
// watches it and reads it on the loop's thread (Device::loopRead) while the
// awaitable is parked.  A nested wait of the same call is counted once.
class ExpectReply {
 public:
  ExpectReply(Device& dev, Link* link) {
    if (!link) return;
    Fiber* fiber = Fiber::current();
    if (fiber) {
      if (fiber->loopReads() || !(watches_ = fiber->reactor()->inputWatches())) return;
    } else if (t_expecting) {
      return;
    }
    client_ = std::dynamic_pointer_cast<NetworkClient>(link->client());
    if (fiber && !client_) return;  // a USB link: its receive thread reads
    withHeldSocket(client_.get(), [&](const ReaderRole::SocketRef* held) {
      if (fiber) {
        std::weak_ptr<Reactor> loop = fiber->reactor();
        if (!held || !watches_->hold(link, held->fd,
                                     [&dev, link, loop] { return dev.loopRead(*link, loop); }))
          return;
      }
      role_ = &link->role;
      role_->enter(held);
    });
    if (!role_) return;
    if (fiber) {
      fiber_ = fiber;
      link_ = link;
      fiber->setLoopReads(link);
    } else {
      t_expecting = role_;
    }
  }
  ~ExpectReply() {
    if (!role_) return;
    if (fiber_) {
      fiber_->setLoopReads(nullptr);
      watches_->release(link_);
    } else {
      t_expecting = nullptr;
    }
    withHeldSocket(client_.get(),
                   [this](const ReaderRole::SocketRef* held) { role_->leave(held); });
  }
  ExpectReply(const ExpectReply&) = delete;
  ExpectReply& operator=(const ExpectReply&) = delete;

 private:
  ReaderRole* role_ = nullptr;
  std::shared_ptr<NetworkClient> client_;
  Fiber* fiber_ = nullptr;
  InputWatches* watches_ = nullptr;
  const Link* link_ = nullptr;
};

// A wait sleeps the calling thread, or on a fiber (an awaitable call) parks
// the fiber and gives the loop back.
EchoPool::WaitResult poolSleep(EchoPool& pool, Clock::time_point deadline, CancelToken* tok) {
  if (Fiber::current()) return fiberSleepUntil(pool, deadline, tok);
  return pool.sleepUntil(deadline, tok);
}

[[noreturn]] void waitFailed(EchoPool::WaitResult r) {
  if (r == EchoPool::WaitResult::Cancelled) throw Cancelled();
  raise(ErrorId::DeviceClosedError);
}
}  // namespace

void Device::pauseUntil(Clock::time_point deadline, CancelToken* tok) {
  const auto r = poolSleep(echo_, deadline, tok);
  if (r != EchoPool::WaitResult::TimedOut) waitFailed(r);
}

bool Device::waitQueue(WaitableQueue& q, size_t n, Clock::time_point deadline, CancelToken* tok) {
  const auto r =
      Fiber::current() ? fiberWaitQueue(q, n, deadline, tok) : q.waitSize(n, deadline, tok);
  switch (r) {
    case WaitableQueue::Wait::Ready:
      return true;
    case WaitableQueue::Wait::TimedOut:
      return false;
    case WaitableQueue::Wait::Cancelled:
      throw Cancelled();
    case WaitableQueue::Wait::Closed:
      break;
  }
  raise(ErrorId::DeviceClosedError);
}

Bytes Device::getReplyFromPool(int64_t key, double timeout, CancelToken* tok) {
  if (!(timeout > 0))
    raise(ErrorId::InputDataNotInRangeError, "The reply timeout must be greater than 0 seconds.");
  return waitReply(key, Clock::now(), timeout, tok);
}

EchoPool::WaitResult Device::replyWait(int64_t key, Clock::time_point deadline, Bytes& out,
                                       CancelToken* tok) {
  if (Fiber::current()) {
    ExpectReply expecting(*this, commandLink());
    return fiberWaitPop(echo_, key, deadline, out, tok);
  }
  Link* link = commandLink();
  std::shared_ptr<Client> client = link ? link->client() : nullptr;
  if (auto* net = dynamic_cast<NetworkClient*>(client.get()); net && net->hasSocket())
    return leadOrFollow(*link, *net, key, deadline, out, tok);
  return echo_.waitPop(key, deadline, out, tok);
}

EchoPool::WaitResult Device::leadOrFollow(Link& link, NetworkClient& client, int64_t key,
                                          Clock::time_point deadline, Bytes& out,
                                          CancelToken* tok) {
  ReaderRole& role = link.role;
  ExpectReply expecting(*this, &link);
  struct Leader {
    ReaderRole& role;
    bool leads = false;
    ~Leader() {
      if (leads) role.endLead();
    }
  } me{role};
  // A reply already on its way needs no wait: take what the socket holds,
  // without blocking, before arranging to be woken (and before asking the
  // system about the signal handler).
  Bytes raw;
  if (auto reply = echo_.pop(key)) {
    out = std::move(*reply);
    return EchoPool::WaitResult::Taken;
  }
  if (!(tok && tok->cancelled()) && (me.leads = role.tryLead())) {
    NetworkClient::Recv got = NetworkClient::Recv::Closed;
    try {
      got = client.recvWithin(link.read_size, Clock::time_point::min(), -1, raw);
    } catch (const std::exception&) {
    }
    if (got == NetworkClient::Recv::Data) dispatch(link, client, raw);
    if (auto reply = echo_.pop(key)) {
      out = std::move(*reply);
      return EchoPool::WaitResult::Taken;
    }
  }
  auto wake = [&role, this] {
    role.wakeLeader();
    echo_.wakeAll();
  };
  if (tok) tok->setWaker(wake);
  struct ClearWaker {
    CancelToken* tok;
    ~ClearWaker() {
      if (tok) tok->setWaker(nullptr);
    }
  } clear_waker{tok};
  interrupt::WaitScope signals(wake);
  for (;;) {
    if (auto reply = echo_.pop(key)) {
      out = std::move(*reply);
      return EchoPool::WaitResult::Taken;
    }
    if (signals.pending()) {
      signals.runHandlers();  // throws what the host's handler raised
      continue;
    }
    if (tok && tok->cancelled()) return EchoPool::WaitResult::Cancelled;
    if (echo_.closed()) return EchoPool::WaitResult::Closed;
    if (Clock::now() >= deadline) return EchoPool::WaitResult::TimedOut;
    if (!me.leads) me.leads = role.tryLead();
    if (!me.leads) {
      // Somebody else reads: its dispatch wakes us, or it gives the role back.
      auto r = echo_.waitPop(key, deadline, out, tok, &role.freeFlag());
      if (r != EchoPool::WaitResult::Stopped) return r;
      continue;
    }
    NetworkClient::Recv got;
    try {
      got = client.recvWithin(link.read_size, deadline, role.leaderWakeFd(), raw);
    } catch (const std::exception&) {
      got = NetworkClient::Recv::Closed;  // the socket went away under the read
    }
    switch (got) {
      case NetworkClient::Recv::Data:
        dispatch(link, client, raw);
        break;
      case NetworkClient::Recv::Closed: {
        // The link is down: nothing more will come through it.  Give the
        // role back and wait for the deadline, a close or a signal.
        role.endLead();
        me.leads = false;
        auto r = echo_.waitPop(key, deadline, out, tok);
        return r;
      }
      case NetworkClient::Recv::TimedOut:
      case NetworkClient::Recv::Woken:
        break;
    }
  }
}

bool Device::loopRead(Link& link, const std::weak_ptr<Reactor>& loop) {
  auto client = std::dynamic_pointer_cast<NetworkClient>(link.client());
  if (!client) return false;
  const void* key = &link;
  // A blocking caller (or the thread) reading now dispatches what comes; when
  // it gives the role back, the loop's watch is armed again.
  const bool leads = link.role.tryLead([loop, key] {
    if (auto reactor = loop.lock())
      reactor->post([loop, key] {
        if (auto r = loop.lock())
          if (InputWatches* w = r->inputWatches()) w->rearm(key);
      });
  });
  if (!leads) return false;
  struct EndLead {
    ReaderRole& role;
    ~EndLead() { role.endLead(); }
  } end{link.role};
  thread_local Bytes raw;
  // What the socket holds, without blocking; a flood is left to the next
  // round, so that the loop's other work goes on.
  for (int reads = 0; reads < 16; ++reads) {
    NetworkClient::Recv got;
    try {
      got = client->recvWithin(link.read_size, Clock::time_point::min(), -1, raw);
    } catch (const std::exception&) {
      return false;
    }
    // A link that is down answers every read at once: its waits end by
    // their deadline or the device's close.
    if (got == NetworkClient::Recv::Closed) return false;
    if (got != NetworkClient::Recv::Data) return true;
    dispatch(link, *client, raw);
    if (raw.size() < link.read_size) return true;  // a short read took all there was
  }
  return true;
}

Bytes Device::waitReply(int64_t key, Clock::time_point start, double timeout, CancelToken* tok) {
  Bytes out;
  const auto r = replyWait(key, deadlineAfter(start, timeout), out, tok);
  return endWait(r, std::move(out), start, timeout, tok);
}

Bytes Device::endWait(EchoPool::WaitResult r, Bytes out, Clock::time_point start, double timeout,
                      CancelToken* tok) {
  // A reply is taken until `timeout`; a missing one is reported one polling
  // period (a tenth of the timeout) later, as the polling loop always did.
  if (r == EchoPool::WaitResult::Taken) return out;
  if (r != EchoPool::WaitResult::TimedOut) waitFailed(r);
  r = poolSleep(echo_, deadlineAfter(start, timeout * 1.1), tok);
  if (r != EchoPool::WaitResult::TimedOut) waitFailed(r);
  throwIfClosed();
  raise(ErrorId::ReceivePacketTimeoutError);
}

Bytes Device::echoPacket(int cmd, std::span<const uint8_t> data_out, double timeout,
                         CancelToken* tok) {
  const int64_t key = echoKey(cmd, data_out);
  if (!(timeout > 0))
    raise(ErrorId::InputDataNotInRangeError, "The reply timeout must be greater than 0 seconds.");
  // The attempt's time runs from before the send: a device that takes no
  // packet fails the attempt like one that sends no reply.
  const auto start = Clock::now();
  Bytes out;
  EchoPool::WaitResult r;
  {
    ExpectReply expecting(*this, commandLink());
    try {
      sendBefore(cmd, data_out, deadlineAfter(start, timeout));
    } catch (const SendTimeout&) {
      raise(ErrorId::ReceivePacketTimeoutError, "The device took no packet in time.");
    }
    r = replyWait(key, deadlineAfter(start, timeout), out, tok);
  }
  return endWait(r, std::move(out), start, timeout, tok);
}

Bytes Device::echoPacketWithRetry(int cmd, std::span<const uint8_t> data_out, double timeout,
                                  CancelToken* tok) {
  std::optional<Bytes> value;
  int count = 0;
  double timer = 0;
  const double echo_timeout = timeout / NUM_RETRIES;
  while (!value && count < NUM_RETRIES && timer < timeout) {
    if (tok && tok->cancelled()) throw Cancelled();
    try {
      value = echoPacket(cmd, data_out, echo_timeout, tok);
    } catch (const Error& e) {
      if (e.id() != ErrorId::ReceivePacketTimeoutError) throw;
      count += 1;
      timer += echo_timeout;
      logMissedReply(cmd, echo_timeout, count, NUM_RETRIES);
    }
  }
  if (timer >= timeout) raise(ErrorId::ReceivePacketTimeoutError);
  if (!value) value = getReplyFromPool(echoKey(cmd, data_out), timeout - timer, tok);
  return std::move(*value);
}

std::optional<Bytes> Device::echoPacketAsync(int cmd, std::span<const uint8_t> data_out,
                                             double timeout, CancelToken* tok) {
  const int64_t key = echoKey(cmd, data_out);
  const auto deadline = fromNow(timeout);
  ExpectReply expecting(*this, commandLink());
  try {
    sendBefore(cmd, data_out, deadline);
  } catch (const SendTimeout&) {
    return std::nullopt;  // the attempt's time ran out before the packet went
  }
  Bytes out;
  auto r = replyWait(key, deadline, out, tok);
  if (r == EchoPool::WaitResult::Taken) return out;
  if (r == EchoPool::WaitResult::TimedOut) {
    throwIfClosed();
    return std::nullopt;
  }
  waitFailed(r);
}

Bytes Device::getReplyFromPoolAsync(int64_t key, CancelToken* tok) {
  throwIfClosed();
  Bytes out;
  auto r = replyWait(key, Clock::time_point::max(), out, tok);
  if (r == EchoPool::WaitResult::Taken) return out;
  waitFailed(r);
}

Bytes Device::echoPacketWithRetryAsync(int cmd, std::span<const uint8_t> data_out, int num_retries,
                                       double timeout, CancelToken* tok) {
  std::optional<Bytes> value;
  int count = 0;
  while (!value && count < num_retries) {
    if (tok && tok->cancelled()) throw Cancelled();
    value = echoPacketAsync(cmd, data_out, RETRY_TIMEOUT, tok);
    count += 1;
    if (!value) logMissedReply(cmd, RETRY_TIMEOUT, count, num_retries);
  }
  if (value) return std::move(*value);
  const double remaining = timeout - RETRY_TIMEOUT * count;
  Bytes out;
  auto r = replyWait(echoKey(cmd, data_out), fromNow(remaining), out, tok);
  if (r == EchoPool::WaitResult::Taken) return out;
  if (r == EchoPool::WaitResult::TimedOut) {
    throwIfClosed();
    throw AsyncTimeout(cmd, timeout);
  }
  waitFailed(r);
}

std::set<Bytes> Device::broadcastPacket(int cmd, std::span<const uint8_t> data_out,
                                        CancelToken* tok) {
  throwIfClosed();
  UDPClient* udp = broadcastClient();
  if (!udp) raise(ErrorId::LinkNotOpenError);
  bcst_.clear(cmd);
  const Bytes packet = preparePacket(cmd, data_out);
  for (int i = 0; i < NUM_BCST_RETRIES; ++i) udp->sendBcstPacket(packet);
  // Answers are collected by the UDP thread for the whole window.
  auto r = poolSleep(echo_, fromNow(bcst_window_), tok);
  if (r != EchoPool::WaitResult::TimedOut) waitFailed(r);
  return bcst_.get(cmd);
}

Bytes Device::getStreamingFromPool(StreamQueue& q, int64_t num_samples, double delay,
                                   CancelToken* tok) {
  (void)delay;  // a record wakes the reader at once; no polling period is needed
  if (num_samples > -1 && !q.waitSize(static_cast<size_t>(num_samples), tok)) {
    if (tok && tok->cancelled()) throw Cancelled();
    raise(ErrorId::DeviceClosedError);
  }
  return getStreamingFromPoolAsync(q, num_samples);
}

Bytes Device::getStreamingFromPoolAsync(StreamQueue& q, int64_t num_samples) {
  const size_t size = q.size();
  if (size == 0) return {};
  const size_t loop_times =
      (num_samples > -1 && static_cast<size_t>(num_samples) < size) ? num_samples : size;
  Bytes flat;
  for (size_t i = 0; i < loop_times; ++i) {
    auto item = q.tryPop();
    if (!item) break;
    flat.insert(flat.end(), item->begin(), item->end());
  }
  return flat;
}

}  // namespace orv
