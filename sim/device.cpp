// A simulated device: recording, dispatch, replies and faults.
#include "sim/device.hpp"

#include <cstdio>
#include <exception>

#include "link/constants.hpp"
#include "sim/firmware_peer.hpp"
#include "sim/links.hpp"
#include "sim/stopper.hpp"
#include "sim/ticker.hpp"

namespace orv::sim {

namespace {

bool isStreamingCmd(int cmd) {
  for (int c : STREAMING_CMD_LIST) {
    if (c == cmd) return true;
  }
  return false;
}

}  // namespace

// --- Context -----------------------------------------------------------------

void Context::reply(Bytes data) { reply(req_.cmd, std::move(data)); }

void Context::reply(int cmd, Bytes data) {
  ++replies_;
  dev_.writeReply(req_.channel, cmd, data);
}

void Context::stream(int cmd, Bytes data) { dev_.writeStream(cmd, data); }

DeviceState& Context::state() { return dev_.state(); }

// --- life --------------------------------------------------------------------

SimDevice::SimDevice(DeviceConfig cfg)
    : cfg_(normalized(std::move(cfg))),
      ip_addr_(cfg_.ip_addr),
      subnet_mask_(cfg_.subnet_mask),
      stopper_(std::make_unique<detail::Stopper>()),
      ticker_(std::make_unique<detail::Ticker>()) {
  auto on_packet = [this](Channel ch, RawPacket&& pkt) { onPacket(ch, std::move(pkt)); };
  switch (cfg_.link) {
    case Link::Ethernet:
      cmd_link_ = std::make_unique<detail::TcpLink>(Channel::Cmd, cfg_.host, cfg_.cmd_port,
                                                    *stopper_, on_packet);
      break;
    case Link::Wifi:
      cmd_link_ = std::make_unique<detail::TcpLink>(Channel::Cmd, cfg_.host, cfg_.cmd_port,
                                                    *stopper_, on_packet);
      data_link_ = std::make_unique<detail::TcpLink>(Channel::Data, cfg_.host, cfg_.data_port,
                                                     *stopper_, on_packet);
      break;
    case Link::Usb:
      usb_port_ = std::make_shared<detail::UsbPort>();
      usb_port_->serial = cfg_.serial;
      usb_port_->product = cfg_.model;
      cmd_link_ = std::make_unique<detail::UsbLink>(usb_port_, on_packet);
      break;
  }
  if (auto peer = parseLoopbackPeer(cfg_.firmware)) {
    peer_ = std::make_unique<detail::FirmwarePeer>(
        peer->first, peer->second, *stopper_,
        [this](RawPacket&& pkt) { send(pkt.cmd, std::move(pkt.data), Channel::Auto); });
  }
}

SimDevice::~SimDevice() { stop(); }

void SimDevice::start() {
  if (started_.exchange(true)) return;
  if (peer_) peer_->start();
  cmd_link_->start();
  if (data_link_) data_link_->start();
}

void SimDevice::stop() {
  if (stopped_.exchange(true)) return;
  stopper_->stop();
  if (peer_) peer_->join();
  ticker_->join();
  if (data_link_) data_link_->join();
  cmd_link_->join();
  stopper_->release();
  rec_cv_.notify_all();
}

bool SimDevice::running() const { return started_.load() && !stopped_.load(); }

// --- identity ----------------------------------------------------------------

DeviceConfig SimDevice::config() const {
  DeviceConfig c = cfg_;
  c.cmd_port = cmdPort();
  c.data_port = dataPort();
  std::lock_guard lk(net_m_);
  c.ip_addr = ip_addr_;
  c.subnet_mask = subnet_mask_;
  return c;
}

int SimDevice::cmdPort() const { return cmd_link_ ? cmd_link_->port() : 0; }
int SimDevice::dataPort() const { return data_link_ ? data_link_->port() : 0; }

std::string SimDevice::ipAddr() const {
  std::lock_guard lk(net_m_);
  return ip_addr_;
}

std::string SimDevice::subnetMask() const {
  std::lock_guard lk(net_m_);
  return subnet_mask_;
}

void SimDevice::setNetwork(const std::string& ip_addr, const std::string& subnet_mask) {
  std::lock_guard lk(net_m_);
  ip_addr_ = ip_addr;
  subnet_mask_ = subnet_mask;
}

// --- recording ---------------------------------------------------------------

void SimDevice::record(Channel ch, int cmd, const Bytes& data) {
  {
    std::lock_guard lk(rec_m_);
    recorded_.push_back(Recorded{cmd, data, ch, std::chrono::steady_clock::now()});
  }
  rec_cv_.notify_all();
}

std::vector<Recorded> SimDevice::packets() const {
  std::lock_guard lk(rec_m_);
  return recorded_;
}

size_t SimDevice::packetCount() const {
  std::lock_guard lk(rec_m_);
  return recorded_.size();
}

void SimDevice::clearPackets() {
  std::lock_guard lk(rec_m_);
  recorded_.clear();
}

bool SimDevice::waitForPackets(size_t n, std::chrono::milliseconds timeout) const {
  std::unique_lock lk(rec_m_);
  return rec_cv_.wait_for(lk, timeout, [&] { return recorded_.size() >= n || stopped_.load(); }) &&
         recorded_.size() >= n;
}

// --- dispatch ----------------------------------------------------------------

void SimDevice::setHandler(int cmd, Handler handler) {
  std::lock_guard lk(handlers_m_);
  if (handler) {
    overrides_[cmd] = std::move(handler);
  } else {
    overrides_.erase(cmd);
  }
}

void SimDevice::setFallbackHandler(Handler handler) {
  std::lock_guard lk(handlers_m_);
  fallback_ = std::move(handler);
}

void SimDevice::onPacket(Channel ch, RawPacket&& pkt) {
  record(ch, pkt.cmd, pkt.data);
  if (faults_.ignores(pkt.cmd)) return;
  if (peer_) {
    peer_->forward(pkt.cmd, pkt.data);
    return;
  }
  Handler h;
  {
    std::lock_guard lk(handlers_m_);
    auto it = overrides_.find(pkt.cmd);
    if (it != overrides_.end()) h = it->second;
  }
  if (!h) h = findHandler(pkt.cmd);
  if (!h) {
    std::lock_guard lk(handlers_m_);
    h = fallback_;
  }
  if (!h) return;
  const Request req{pkt.cmd, std::move(pkt.data), ch};
  Context ctx(*this, req);
  try {
    h(ctx, req);
  } catch (const std::exception& e) {
    ++handler_errors_;
    std::fprintf(stderr, "orv-sim %s: handler of command %d failed: %s\n", cfg_.serial.c_str(),
                 req.cmd, e.what());
  } catch (...) {
    ++handler_errors_;
    std::fprintf(stderr, "orv-sim %s: handler of command %d failed\n", cfg_.serial.c_str(),
                 req.cmd);
  }
}

// --- writing -----------------------------------------------------------------

Channel SimDevice::streamChannel() const {
  return cfg_.link == Link::Wifi ? Channel::Data : Channel::Cmd;
}

detail::LinkEnd* SimDevice::linkFor(Channel ch) const {
  switch (ch) {
    case Channel::Data:
      return data_link_ ? data_link_.get() : cmd_link_.get();
    case Channel::Cmd:
      return cmd_link_.get();
    case Channel::Auto:
    case Channel::Udp:
      break;
  }
  return nullptr;
}

bool SimDevice::writePacket(Channel ch, const Bytes& pkt) {
  detail::LinkEnd* link = linkFor(ch);
  if (!link || stopped_.load()) return false;
  const int split = faults_.split_bytes.load();
  const auto pause = std::chrono::microseconds(faults_.split_pause_us.load());
  const int junk = faults_.junk_bytes.load();
  if (junk <= 0) return link->write(pkt, split, pause);
  Bytes buf(static_cast<size_t>(junk), 0xEE);
  buf.insert(buf.end(), pkt.begin(), pkt.end());
  return link->write(buf, split, pause);
}

bool SimDevice::writeReply(Channel ch, int cmd, const Bytes& data) {
  if (Faults::take(faults_.drop_next)) return false;
  const int64_t delay = faults_.delay_us.load();
  if (delay > 0 && !stopper_->sleepFor(std::chrono::microseconds(delay))) return false;
  Bytes pkt = preparePacket(cmd, std::span<const uint8_t>(data));
  if (Faults::take(faults_.corrupt_next)) pkt[1] |= 0x80;
  return writePacket(ch, pkt);
}

bool SimDevice::writeStream(int cmd, const Bytes& data) {
  return writePacket(streamChannel(), preparePacket(cmd, std::span<const uint8_t>(data)));
}

bool SimDevice::send(int cmd, Bytes data, Channel ch) {
  if (ch == Channel::Auto) ch = isStreamingCmd(cmd) ? streamChannel() : Channel::Cmd;
  return writePacket(ch, preparePacket(cmd, std::span<const uint8_t>(data)));
}

Bytes SimDevice::counterBytes(size_t n) {
  Bytes out(n);
  std::lock_guard lk(counter_m_);
  for (auto& b : out) b = counter_++;
  return out;
}

size_t SimDevice::streamRecords(int cmd, Bytes prefix, size_t count, int64_t interval_us,
                                size_t payload_len) {
  const auto t0 = std::chrono::steady_clock::now();
  size_t sent = 0;
  for (size_t i = 0; i < count; ++i) {
    if (interval_us > 0 && i > 0 &&
        !stopper_->sleepUntil(t0 +
                              std::chrono::microseconds(interval_us * static_cast<int64_t>(i))))
      break;
    if (stopped_.load()) break;
    Bytes data = prefix;
    const Bytes payload = counterBytes(payload_len);
    data.insert(data.end(), payload.begin(), payload.end());
    if (writeStream(cmd, data)) ++sent;
  }
  return sent;
}

// --- periodic work -----------------------------------------------------------

int SimDevice::startPeriodic(std::chrono::microseconds interval, std::function<bool()> tick) {
  return ticker_->start(interval, std::move(tick));
}

void SimDevice::stopPeriodic(int id) { ticker_->stop(id); }
void SimDevice::stopAllPeriodic() { ticker_->stopAll(); }
size_t SimDevice::periodicCount() const { return ticker_->count(); }

// --- link control ------------------------------------------------------------

void SimDevice::closeLink() {
  cmd_link_->closeHost();
  if (data_link_) data_link_->closeHost();
}

bool SimDevice::hostConnected(Channel ch) const {
  detail::LinkEnd* link = linkFor(ch == Channel::Auto ? Channel::Cmd : ch);
  return link && link->hostConnected();
}

bool SimDevice::waitForHost(Channel ch, std::chrono::milliseconds timeout) {
  detail::LinkEnd* link = linkFor(ch == Channel::Auto ? Channel::Cmd : ch);
  return link && link->waitForHost(timeout);
}

void SimDevice::reboot() {
  ++reboots_;
  stopAllPeriodic();
  closeLink();
}

}  // namespace orv::sim
