// The device ends of the links: a TCP listener that serves one host at a
// time, and a virtual USB device.  Internal to the simulator.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>

#include "link/framing.hpp"
#include "link/usb_backend.hpp"
#include "sim/config.hpp"
#include "sim/stopper.hpp"

namespace orv::sim::detail {

// Called on the link's own thread for every packet the host sent, in order.
using OnPacket = std::function<void(Channel, RawPacket&&)>;

class LinkEnd {
 public:
  virtual ~LinkEnd() = default;
  virtual void start() = 0;
  // Writes one packet (already framed) to the host.  False when no host is
  // connected or the host went away.  split_bytes > 0 writes it in pieces.
  virtual bool write(std::span<const uint8_t> bytes, int split_bytes,
                     std::chrono::microseconds split_pause) = 0;
  // Drops the host's connection now.
  virtual void closeHost() = 0;
  virtual bool hostConnected() const = 0;
  virtual bool waitForHost(std::chrono::milliseconds timeout) = 0;
  // Ends and joins the link's threads, closes its sockets.  Idempotent.  The
  // owner's Stopper must have been stopped first.
  virtual void join() = 0;
  virtual int port() const { return 0; }
};

class TcpLink : public LinkEnd {
 public:
  // Binds and listens at once (orv::OSError when the port is taken).
  TcpLink(Channel ch, const std::string& host, int port, Stopper& stopper, OnPacket on_packet);
  ~TcpLink() override;
  void start() override;
  bool write(std::span<const uint8_t> bytes, int split_bytes,
             std::chrono::microseconds split_pause) override;
  void closeHost() override;
  bool hostConnected() const override;
  bool waitForHost(std::chrono::milliseconds timeout) override;
  void join() override;
  int port() const override { return port_; }

 private:
  void run();
  bool sendAll(int fd, const uint8_t* p, size_t n);
  void dropConnection();

  Channel ch_;
  Stopper& stopper_;
  OnPacket on_packet_;
  int listen_fd_ = -1;
  int kick_fd_ = -1;   // wakes a writer blocked on a full socket
  std::mutex kick_m_;  // closeHost's kick against join closing kick_fd_
  int port_ = 0;
  std::thread thread_;
  Splitter splitter_;  // used by the link thread only

  std::mutex write_m_;  // one writer at a time; held while conn_fd_ changes
  std::atomic<int> conn_fd_{-1};
  std::atomic<bool> closing_{false};
  std::mutex conn_m_;
  std::condition_variable conn_cv_;
};

// Shared between the device and the handles the USB client opened.
struct UsbPort {
  using Transfer = std::array<uint8_t, 64>;
  std::string serial;
  std::string product;

  std::mutex m;
  std::condition_variable out_cv;   // a transfer for the host, or a state change
  std::condition_variable in_cv;    // bytes from the host, or a state change
  std::condition_variable host_cv;  // a handle was opened, or a state change
  std::deque<Transfer> out;
  Bytes in;
  bool alive = true;        // false once the device is removed or stopped
  uint64_t generation = 0;  // a closed link invalidates every open handle
  int open_handles = 0;     // of the current generation
};

// The virtual USB device: handles move 64-byte transfers; a thread of the
// device parses what the host wrote.
class UsbLink : public LinkEnd {
 public:
  UsbLink(std::shared_ptr<UsbPort> port, OnPacket on_packet);
  ~UsbLink() override;
  void start() override;
  bool write(std::span<const uint8_t> bytes, int split_bytes,
             std::chrono::microseconds split_pause) override;
  void closeHost() override;
  bool hostConnected() const override;
  bool waitForHost(std::chrono::milliseconds timeout) override;
  void join() override;
  const std::shared_ptr<UsbPort>& usbPort() const { return port_; }

 private:
  void run();
  std::shared_ptr<UsbPort> port_;
  OnPacket on_packet_;
  std::thread thread_;
  Splitter splitter_;
};

// Lists the UsbPorts of one Simulator to orv::usb.
class VirtualUsbBackend : public usb::Backend {
 public:
  const char* name() const override { return "orv-sim"; }
  std::vector<std::unique_ptr<usb::Candidate>> enumerate() override;
  void add(std::shared_ptr<UsbPort> port);
  void remove(const UsbPort* port);
  bool empty() const;

 private:
  mutable std::mutex m_;
  std::vector<std::shared_ptr<UsbPort>> ports_;
};

}  // namespace orv::sim::detail
