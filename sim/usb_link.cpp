// The virtual USB device.
//
// The host's bulk writes land in the port's input buffer and a thread of the
// device parses them.  What the device sends is cut into 64-byte transfers,
// the last one padded with zeros, and handed out one per bulk read.
#include <algorithm>
#include <cstring>

#include "link/constants.hpp"
#include "link/thread_name.hpp"
#include "sim/links.hpp"

namespace orv::sim::detail {

namespace {

// Transfers kept for a host that does not read, at most (4 MiB).
constexpr size_t kMaxQueuedTransfers = 65536;

class VirtualHandle : public usb::Handle {
 public:
  VirtualHandle(std::shared_ptr<UsbPort> port, uint64_t generation)
      : port_(std::move(port)), generation_(generation) {}

  ~VirtualHandle() override {
    std::lock_guard lk(port_->m);
    if (port_->generation == generation_ && port_->open_handles > 0) --port_->open_handles;
  }

  int bulkRead(uint8_t endpoint, uint8_t* buf, int length, unsigned timeout_ms) override {
    if (endpoint != USB_EP_IN)
      throw usb::Failure("virtual USB: no IN endpoint " + std::to_string(endpoint));
    std::unique_lock lk(port_->m);
    auto ready = [&] { return !port_->out.empty() || dead(); };
    if (timeout_ms == 0) {
      port_->out_cv.wait(lk, ready);
    } else {
      port_->out_cv.wait_for(lk, std::chrono::milliseconds(timeout_ms), ready);
    }
    if (dead()) throw usb::Failure("virtual USB: device disconnected");
    if (port_->out.empty()) throw usb::Timeout();
    const UsbPort::Transfer t = port_->out.front();
    port_->out.pop_front();
    const int n = std::clamp(length, 0, static_cast<int>(t.size()));
    std::memcpy(buf, t.data(), static_cast<size_t>(n));
    return n;
  }

  void bulkWrite(uint8_t endpoint, const uint8_t* buf, int length) override {
    if (endpoint != USB_EP_OUT)
      throw usb::Failure("virtual USB: no OUT endpoint " + std::to_string(endpoint));
    {
      std::lock_guard lk(port_->m);
      if (dead()) throw usb::Failure("virtual USB: device disconnected");
      port_->in.insert(port_->in.end(), buf, buf + std::max(length, 0));
    }
    port_->in_cv.notify_one();
  }

  std::string serialNumber() override { return port_->serial; }
  std::string productName() override { return port_->product; }
  bool kernelDriverActive(int) override { return false; }
  void detachKernelDriver(int) override {}

 private:
  bool dead() const { return !port_->alive || port_->generation != generation_; }
  std::shared_ptr<UsbPort> port_;
  uint64_t generation_;
};

class VirtualCandidate : public usb::Candidate {
 public:
  explicit VirtualCandidate(std::shared_ptr<UsbPort> port) : port_(std::move(port)) {}
  uint16_t idVendor() const override { return USB_VID; }
  uint16_t idProduct() const override { return USB_PID; }
  std::string serialNumber() override { return port_->serial; }
  std::string productName() override { return port_->product; }
  std::unique_ptr<usb::Handle> open() override {
    std::lock_guard lk(port_->m);
    if (!port_->alive) throw usb::Failure("virtual USB: device disconnected");
    // A host that opens the device starts from an empty pipe.
    if (port_->open_handles == 0) port_->out.clear();
    ++port_->open_handles;
    port_->host_cv.notify_all();
    return std::make_unique<VirtualHandle>(port_, port_->generation);
  }

 private:
  std::shared_ptr<UsbPort> port_;
};

}  // namespace

UsbLink::UsbLink(std::shared_ptr<UsbPort> port, OnPacket on_packet)
    : port_(std::move(port)), on_packet_(std::move(on_packet)) {}

UsbLink::~UsbLink() { join(); }

void UsbLink::start() {
  thread_ = std::thread([this] {
    nameThisThread("sim-usb");
    run();
  });
}

void UsbLink::run() {
  Bytes chunk;
  std::vector<RawPacket> packets;
  uint64_t generation = 0;
  for (;;) {
    {
      std::unique_lock lk(port_->m);
      port_->in_cv.wait(lk, [&] { return !port_->in.empty() || !port_->alive; });
      if (!port_->alive) return;
      chunk.swap(port_->in);
      if (port_->generation != generation) {
        generation = port_->generation;
        splitter_.clear();
      }
    }
    packets.clear();
    splitter_.feed(chunk, packets);
    chunk.clear();
    for (auto& pkt : packets) on_packet_(Channel::Cmd, std::move(pkt));
  }
}

bool UsbLink::write(std::span<const uint8_t> bytes, int, std::chrono::microseconds) {
  {
    std::lock_guard lk(port_->m);
    if (!port_->alive || port_->open_handles == 0) return false;
    const size_t n = (bytes.size() + USB_PKT_SIZE - 1) / USB_PKT_SIZE;
    if (port_->out.size() + n > kMaxQueuedTransfers) return false;
    for (size_t off = 0; off < bytes.size(); off += USB_PKT_SIZE) {
      UsbPort::Transfer t{};
      const size_t k = std::min<size_t>(USB_PKT_SIZE, bytes.size() - off);
      std::memcpy(t.data(), bytes.data() + off, k);
      port_->out.push_back(t);
    }
  }
  port_->out_cv.notify_all();
  return true;
}

void UsbLink::closeHost() {
  {
    std::lock_guard lk(port_->m);
    ++port_->generation;
    port_->open_handles = 0;
    port_->out.clear();
    port_->in.clear();
  }
  port_->out_cv.notify_all();
  port_->in_cv.notify_all();
}

bool UsbLink::hostConnected() const {
  std::lock_guard lk(port_->m);
  return port_->alive && port_->open_handles > 0;
}

bool UsbLink::waitForHost(std::chrono::milliseconds timeout) {
  std::unique_lock lk(port_->m);
  return port_->host_cv.wait_for(lk, timeout, [&] {
    return port_->open_handles > 0 || !port_->alive;
  }) && port_->alive;
}

void UsbLink::join() {
  {
    std::lock_guard lk(port_->m);
    port_->alive = false;
  }
  port_->out_cv.notify_all();
  port_->in_cv.notify_all();
  port_->host_cv.notify_all();
  if (thread_.joinable()) thread_.join();
}

std::vector<std::unique_ptr<usb::Candidate>> VirtualUsbBackend::enumerate() {
  std::vector<std::unique_ptr<usb::Candidate>> out;
  std::lock_guard lk(m_);
  for (const auto& p : ports_) {
    bool alive;
    {
      std::lock_guard plk(p->m);
      alive = p->alive;
    }
    if (alive) out.push_back(std::make_unique<VirtualCandidate>(p));
  }
  return out;
}

void VirtualUsbBackend::add(std::shared_ptr<UsbPort> port) {
  std::lock_guard lk(m_);
  ports_.push_back(std::move(port));
}

void VirtualUsbBackend::remove(const UsbPort* port) {
  std::lock_guard lk(m_);
  std::erase_if(ports_, [&](const auto& p) { return p.get() == port; });
}

bool VirtualUsbBackend::empty() const {
  std::lock_guard lk(m_);
  return ports_.empty();
}

}  // namespace orv::sim::detail
