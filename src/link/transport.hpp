// Transports: move raw bytes between the host and one device link, and own
// that link's reassembly state.
//
//   Client            the splitter (stream, last_index) and recvAndSplitPacket
//   NetworkClient     a socket (TCPClient: stream socket, UDPClient: receive
//                     socket plus the broadcast sender)
//   USBClient         bulk endpoints through a usb::Backend (usb_client.cpp)
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "link/framing.hpp"
#include "link/usb_backend.hpp"

namespace orv {

using SteadyTime = std::chrono::steady_clock::time_point;

// The moment `seconds` after `from`, saturated: a wait too long for the clock
// (or infinite) ends at SteadyTime::max(), a NaN, zero or negative one at
// `from`.
SteadyTime deadlineAfter(SteadyTime from, double seconds);

// A send that put no byte of its packet on the wire before its deadline (a
// device that stopped reading); the link is still framed.
class SendTimeout : public std::runtime_error {
 public:
  SendTimeout() : std::runtime_error("the packet could not be sent in time") {}
};

class Client {
 public:
  virtual ~Client() = default;
  // One read of at most `length` bytes; empty when the peer closed (sockets).
  virtual Bytes recvPacket(size_t length) = 0;
  // Writes one whole packet before `deadline`: SendTimeout when none of it
  // went out.  A packet cut short would leave the device reading the next
  // one as its rest, so a socket then shuts the link down (the receive
  // thread sees its end) and raises NetworkConnectionLostError.
  virtual void sendPacket(std::span<const uint8_t> packet, SteadyTime deadline) = 0;
  void sendPacket(std::span<const uint8_t> packet) { sendPacket(packet, SteadyTime::max()); }
  // recvPacket, then the splitter; an empty read yields nothing.
  std::vector<RawPacket> recvAndSplitPacket(size_t length);
  Splitter& splitter() { return splitter_; }

 protected:
  Splitter splitter_;
};

class NetworkClient : public Client {
 public:
  ~NetworkClient() override;
  // Shuts the socket down both ways (waking a blocked reader), waits for the
  // reader to leave, closes it.  NetworkConnectionLostError when there is no
  // socket or the system refuses.
  void disconnect();
  // Seconds, or nullopt for blocking; nothing happens without a socket.
  void setTimeout(std::optional<double> timeout);
  bool hasSocket() const { return fd_.load() >= 0; }
  int fd() const { return fd_.load(); }
  // Changes whenever the client takes a new socket (the number may repeat).
  uint64_t socketId() const { return socket_id_.load(); }
  // Runs fn(fd, socketId) while the socket cannot be closed; false, without
  // running it, when there is no socket or it is being shut.
  bool holdSocket(const std::function<void(int fd, uint64_t id)>& fn);
  Bytes recvPacket(size_t length) override;
  // One read of at most `length` bytes that waits for the socket no longer
  // than `deadline` (a past deadline only tries), and ends early when
  // `wake_fd` (an eventfd, or -1) is signalled or a signal interrupts the
  // wait; the wake is drained.  Closed: the peer closed, the link failed or
  // is being shut.
  enum class Recv { Data, Closed, TimedOut, Woken };
  Recv recvWithin(size_t length, SteadyTime deadline, int wake_fd, Bytes& out);
  using Client::sendPacket;
  void sendPacket(std::span<const uint8_t> packet, SteadyTime deadline) override;

 protected:
  void adopt(int fd);  // takes a new socket (the old one, if any, is closed)
  std::atomic<int> fd_{-1};
  std::atomic<uint64_t> socket_id_{0};
  std::mutex use_m_;
  std::condition_variable use_cv_;
  int readers_ = 0;  // threads inside recv/send on fd_
  std::optional<double> timeout_;

 private:
  class Use;
  // With use_m_ held: shuts fd_ down, waits until no thread uses it, closes it.
  void retireLocked(std::unique_lock<std::mutex>& lk);
  bool closing_ = false;  // retireLocked is waiting for the users to leave
};

class TCPClient : public NetworkClient {
 public:
  // NetworkConnectionError on failure or after CONNECTION_TIMEOUT.
  bool connect(const std::string& ip_addr, int port);
};

class UDPClient : public NetworkClient {
 public:
  // ip_addr "" binds every local interface.  NetworkConnectionError on failure.
  bool bind(const std::string& ip_addr, int port);
  // Sends the packet once per local IPv4 address, each from a fresh socket
  // bound to that address, to the broadcast target.
  void sendBcstPacket(std::span<const uint8_t> packet);

  // The broadcast target: "255.255.255.255" and UDP_SEND_PORT unless
  // overridden (constructor keyword, or the PYORV_BROADCAST_ADDR environment
  // variable as "host" or "host:port").  A loopback target is sent from
  // 127.0.0.1 only.
  void setBroadcastTarget(const std::string& host, int port);
  std::pair<std::string, int> broadcastTarget() const;

 private:
  std::optional<std::pair<std::string, int>> target_;
};

class USBClient : public Client {
 public:
  // Opens the first device of the family ("default") or the one with this
  // serial number.  USBConnectionError when none matches.
  explicit USBClient(const std::string& serial_num);
  ~USBClient() override;
  std::string takeSerialNumber();
  std::string takeProductName();
  // One bulk read from USB_EP_IN with a 1 ms timeout; usb::Timeout when idle.
  Bytes recvPacket(size_t length) override;
  // Pads to USB_PKT_SIZE with zeros and writes in one transfer, which the
  // backend bounds (libusb: 1 s); a transfer that times out before the
  // deadline is SendTimeout too.
  using Client::sendPacket;
  void sendPacket(std::span<const uint8_t> packet, SteadyTime deadline) override;

  // _getAllUSBDevices: [serial, product] of every attached device of the family.
  static std::vector<std::pair<std::string, std::string>> getAllUSBDevices();

 private:
  std::unique_ptr<usb::Handle> handle_;
};

}  // namespace orv
