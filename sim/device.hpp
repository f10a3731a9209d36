// One simulated device: its links, its recorder, its handlers, its state and
// its faults.  Made and owned by a Simulator.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "link/framing.hpp"
#include "link/value.hpp"
#include "sim/config.hpp"
#include "sim/faults.hpp"
#include "sim/handler.hpp"
#include "sim/state.hpp"

namespace orv::sim {

namespace detail {
class LinkEnd;
class Stopper;
class FirmwarePeer;
class Ticker;
struct UsbPort;
}  // namespace detail

// A packet the device received from the host.
struct Recorded {
  int cmd = 0;
  Bytes data;
  Channel channel = Channel::Cmd;  // Cmd, Data (Wi-Fi data link) or Udp (discovery)
  std::chrono::steady_clock::time_point time;
};

class SimDevice : public std::enable_shared_from_this<SimDevice> {
 public:
  ~SimDevice();
  SimDevice(const SimDevice&) = delete;
  SimDevice& operator=(const SimDevice&) = delete;

  // Identity.  config() reflects a network identity changed by discovery.
  DeviceConfig config() const;
  Link link() const { return cfg_.link; }
  const std::string& model() const { return cfg_.model; }
  const std::string& serial() const { return cfg_.serial; }
  const std::string& host() const { return cfg_.host; }
  int cmdPort() const;   // 0 for a USB device
  int dataPort() const;  // 0 unless Wi-Fi
  std::string ipAddr() const;
  std::string subnetMask() const;
  void setNetwork(const std::string& ip_addr, const std::string& subnet_mask);

  // Every packet received from the host, in order.
  std::vector<Recorded> packets() const;
  size_t packetCount() const;
  void clearPackets();
  // True once at least n packets are recorded; false on timeout.
  bool waitForPackets(size_t n, std::chrono::milliseconds timeout) const;

  // Pushes an unsolicited packet to the host.  Auto: a streaming command goes
  // on the Wi-Fi data link of a Wi-Fi device, anything else on the command
  // link.  False when no host is connected on that link.  Write faults apply.
  bool send(int cmd, Bytes data, Channel ch = Channel::Auto);
  // Sends count records cmd, data = prefix + payload_len bytes of a running
  // counter, on the streaming link, one every interval_us (0: back to back,
  // faster than any real device).  Blocks until done or the device stops;
  // returns how many were written.
  size_t streamRecords(int cmd, Bytes prefix, size_t count, int64_t interval_us,
                       size_t payload_len = 16);
  // The counter bytes that streamRecords and the built-in stream use.
  Bytes counterBytes(size_t n);

  // Periodic work on the device's ticker thread (see sim/ticker.hpp).
  int startPeriodic(std::chrono::microseconds interval, std::function<bool()> tick);
  void stopPeriodic(int id);
  void stopAllPeriodic();
  size_t periodicCount() const;

  DeviceState& state() { return state_; }
  Faults& faults() { return faults_; }

  // Per-device handlers: an override for one command (an empty handler
  // removes it), and a fallback for commands nobody handles (empty: silent).
  void setHandler(int cmd, Handler handler);
  void setFallbackHandler(Handler handler);
  // Handler calls that ended in an exception (reported on stderr).
  uint64_t handlerErrors() const { return handler_errors_.load(); }

  // Drops the host's connections now (TCP: the host sees the end of the
  // stream; USB: open handles fail with orv::usb::Failure).  The device takes
  // a new connection afterwards.
  void closeLink();
  bool hostConnected(Channel ch = Channel::Cmd) const;
  bool waitForHost(Channel ch, std::chrono::milliseconds timeout);

  // What CHECK_MAC_AND_REBOOT does: drop the links, end the periodic work.
  void reboot();
  int rebootCount() const { return reboots_.load(); }

  bool running() const;

  // For Context and the discovery responder.
  bool writeReply(Channel ch, int cmd, const Bytes& data);
  bool writeStream(int cmd, const Bytes& data);
  void record(Channel ch, int cmd, const Bytes& data);
  // The link that streaming records take: Data on Wi-Fi, Cmd otherwise.
  Channel streamChannel() const;

 private:
  friend class Simulator;
  explicit SimDevice(DeviceConfig cfg);
  void start();
  void stop();  // idempotent; joins every thread of the device
  const std::shared_ptr<detail::UsbPort>& usbPort() const { return usb_port_; }

  void onPacket(Channel ch, RawPacket&& pkt);
  bool writePacket(Channel ch, const Bytes& pkt);
  detail::LinkEnd* linkFor(Channel ch) const;

  const DeviceConfig cfg_;
  mutable std::mutex net_m_;
  std::string ip_addr_;
  std::string subnet_mask_;

  std::unique_ptr<detail::Stopper> stopper_;
  std::unique_ptr<detail::Ticker> ticker_;
  std::unique_ptr<detail::LinkEnd> cmd_link_;
  std::unique_ptr<detail::LinkEnd> data_link_;
  std::unique_ptr<detail::FirmwarePeer> peer_;  // set when a TCP peer serves the firmware
  std::shared_ptr<detail::UsbPort> usb_port_;
  std::atomic<bool> started_{false};
  std::atomic<bool> stopped_{false};

  mutable std::mutex rec_m_;
  mutable std::condition_variable rec_cv_;
  std::vector<Recorded> recorded_;

  std::mutex handlers_m_;
  std::map<int, Handler> overrides_;
  Handler fallback_;
  std::atomic<uint64_t> handler_errors_{0};

  std::mutex counter_m_;
  uint8_t counter_ = 0;

  DeviceState state_;
  Faults faults_;
  std::atomic<int> reboots_{0};
};

}  // namespace orv::sim
