// A device object: the links to one physical device, one receive thread per
// link parked by a gate while the link is down, and the three data pools.
//
//   Device            pools, routing (_putToDataPool), the exchange operations
//   USBDevice         one USB link            (client_cmd, recv_cmd_thread)
//   NetworkDevice     one TCP command link    (client_cmd, recv_cmd_thread)
//     ETHDevice
//     WifiDevice      + a TCP data link       (client_data, recv_data_thread)
//   BroadcastDevice   one UDP receive link    (client_udp, recv_udp_thread)
//
// connect/disconnect open and shut a gate; close ends and joins the threads.
#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "link/constants.hpp"
#include "link/framing.hpp"
#include "link/pools.hpp"
#include "link/reader_role.hpp"
#include "link/transport.hpp"

namespace orv {

class Reactor;

// A gate parks a receive thread while its link is down.  It stands for a lock
// that one thread acquires (closing the gate) and another releases (opening
// it); opening an open gate is the failure of releasing an unlocked lock.
class Gate {
 public:
  Gate() = default;
  void close();  // acquire: the gate is closed afterwards
  void open();   // release: throws GateAlreadyOpen if already open (the host sees RuntimeError)
  void forceOpen();
  bool isOpen() const;
  // Called after every open and close (the link's reader looks again).
  void onChange(std::function<void()> fn) { on_change_ = std::move(fn); }
  // Waits while the gate is closed; returns at once once `stop` is set.
  void pass(const std::atomic<bool>& stop);

 private:
  mutable std::mutex m_;
  std::condition_variable cv_;
  bool open_ = false;
  std::function<void()> on_change_;
};

class GateAlreadyOpen : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// One sender at a time on a link, and a sender waits for its turn no longer
// than its own deadline.  (A mutex and a flag rather than std::timed_mutex,
// whose timed lock the thread checker cannot follow.)
class SendLock {
 public:
  bool lockUntil(Clock::time_point deadline) {
    std::unique_lock lk(m_);
    if (!cv_.wait_until(lk, deadline, [&] { return !busy_; })) return false;
    busy_ = true;
    return true;
  }
  void unlock() {
    {
      std::lock_guard lk(m_);
      busy_ = false;
    }
    cv_.notify_one();
  }

 private:
  std::mutex m_;
  std::condition_variable cv_;
  bool busy_ = false;
};

// One link of a device: transport, status, gate and receive thread.
struct Link {
  enum class Failures { Print, Quiet };  // a USB link prints its read failures
  std::string thread_name;               // recv_cmd_thread, recv_data_thread, recv_udp_thread
  size_t read_size = 0;
  Failures failures = Failures::Quiet;

  std::shared_ptr<Client> client() const;
  void setClient(std::shared_ptr<Client> c);

  std::atomic<bool> status{false};  // connect_status_*
  Gate gate;
  ReaderRole role;  // who reads a socket link (link/reader_role.hpp)
  std::thread thread;
  std::atomic<bool> alive{false};
  SendLock send_lock;  // one packet on the wire at a time

 private:
  mutable std::mutex m_;
  std::shared_ptr<Client> client_;
};

class Device {
 public:
  // class_name is the host class of the object; its label names it in messages.
  explicit Device(std::string class_name);
  virtual ~Device();
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  const std::string& className() const { return class_name_; }
  std::string deviceName() const;  // _getDeviceName
  // Where the device is (address, serial number), for the log; may be empty.
  virtual std::string address() const { return {}; }
  bool killed() const { return killed_.load(); }

  // Pools.
  EchoPool& echoPool() { return echo_; }
  StreamPool& streamPool() { return strm_; }
  BroadcastPool& bcstPool() { return bcst_; }
  static CmdType checkCommandType(int cmd, std::span<const uint8_t> data);
  // Routes one received packet; throws orv::IndexError on a packet too short
  // for its key bytes (the receive thread handles it).
  void putToDataPool(int cmd, const Bytes& data);
  // The echo key of a request: the command, or for MOTION the signed
  // big-endian value of [axis, connector, motion_cmd, MOTION].
  static int64_t echoKey(int cmd, std::span<const uint8_t> data);

  // close as the device class defines it; every class ends by joining the
  // threads it ended.
  virtual void close(bool verbose = true) = 0;
  virtual void disconnect(bool verbose = true) = 0;

  // ---- the exchange (blocking) ----
  // A send waits at most PACKET_TIMEOUT for a device that stopped reading
  // (ReceivePacketTimeoutError); the exchanges below bound it by their own
  // timeout.  A call on a device that is being closed, or is closed, fails
  // with DeviceClosedError wherever it was.
  void sendPacketWithoutReply(int cmd, std::span<const uint8_t> data_out);
  Bytes echoPacket(int cmd, std::span<const uint8_t> data_out, double timeout,
                   CancelToken* tok = nullptr);
  Bytes getReplyFromPool(int64_t key, double timeout, CancelToken* tok = nullptr);
  Bytes echoPacketWithRetry(int cmd, std::span<const uint8_t> data_out,
                            double timeout = PACKET_TIMEOUT, CancelToken* tok = nullptr);
  std::set<Bytes> broadcastPacket(int cmd, std::span<const uint8_t> data_out,
                                  CancelToken* tok = nullptr);
  // A pause inside an operation: the calling thread sleeps, an awaitable's
  // fiber parks.  A cancel throws Cancelled, the device's close
  // DeviceClosedError.
  void pauseUntil(Clock::time_point deadline, CancelToken* tok = nullptr);
  // Until q holds n items (true) or the deadline (false), for a thread or an
  // awaitable's fiber alike.  A cancel throws Cancelled, the queue's close
  // DeviceClosedError.
  static bool waitQueue(WaitableQueue& q, size_t n, Clock::time_point deadline,
                        CancelToken* tok = nullptr);
  // Items of a stream queue, flattened; num_samples -1 takes what is there.
  Bytes getStreamingFromPool(StreamQueue& q, int64_t num_samples, double delay,
                             CancelToken* tok = nullptr);

  // ---- the exchange (awaitable flavour, run on a worker thread) ----
  // nullopt when the time ran out.
  std::optional<Bytes> echoPacketAsync(int cmd, std::span<const uint8_t> data_out,
                                       double timeout = PACKET_TIMEOUT, CancelToken* tok = nullptr);
  Bytes getReplyFromPoolAsync(int64_t key, CancelToken* tok = nullptr);
  // Throws AsyncTimeout when the last wait runs out.
  Bytes echoPacketWithRetryAsync(int cmd, std::span<const uint8_t> data_out,
                                 int num_retries = NUM_RETRIES, double timeout = PACKET_TIMEOUT,
                                 CancelToken* tok = nullptr);
  Bytes getStreamingFromPoolAsync(StreamQueue& q, int64_t num_samples);

  // Names of receive threads still running (for lifecycle checks).
  std::vector<std::string> aliveThreads() const;

  // The event loop's read of a socket link for its awaitables (run by the
  // loop's InputWatches): what the socket holds, read and dispatched without
  // blocking.  False when the loop should stop watching for now (another
  // reader holds the link, or the link is down).
  bool loopRead(Link& link, const std::weak_ptr<Reactor>& loop);

 protected:
  // The link commands go out on; LinkNotOpenError when there is none.
  virtual Link* commandLink() { return nullptr; }
  virtual UDPClient* broadcastClient() { return nullptr; }

  // Held by close for its whole run: a second close waits for the first and
  // then finds the device killed.  Recursive, as WifiDevice::close runs
  // NetworkDevice::close.
  std::unique_lock<std::recursive_mutex> lockClose() {
    return std::unique_lock<std::recursive_mutex>(close_m_);
  }
  // Marks the device as being closed, before close takes its links down, so
  // that a call failing on a link going down reports DeviceClosedError.
  void beginClose() { closing_.store(true); }
  // Device.close at the base: sets killed, prints nothing itself.
  bool closeBase();
  void startThread(Link& link);
  // Wakes every waiter and joins every receive thread (after killed is set
  // and the gates are open).
  void finishClose(std::initializer_list<Link*> links);
  // For destructors: ends and joins the links whatever their state.
  void stopLinks(std::initializer_list<Link*> links);
  void registerLink(Link& link);
  void announce(bool verbose, const std::string& text) const;
  // The log's debug line of one packet sent ('>') or received ('<').
  void tracePacket(char direction, int cmd, std::span<const uint8_t> bytes) const;
  // The log's warning of an attempt that got no reply.
  void logMissedReply(int cmd, double waited, int attempt, int attempts) const;

  // How long broadcastPacket collects answers, in seconds.
  double bcst_window_ = PACKET_TIMEOUT;

 private:
  void recvLoop(Link& link);
  // Splits what `link` read and files every record.
  void dispatch(Link& link, Client& client, const Bytes& raw);
  // A blocking caller's wait for its reply on a socket link: it reads the
  // link itself while it holds the reader role, or waits for the reader.
  EchoPool::WaitResult leadOrFollow(Link& link, NetworkClient& client, int64_t key,
                                    Clock::time_point deadline, Bytes& out, CancelToken* tok);
  // The reply wait of the calling thread or fiber.
  EchoPool::WaitResult replyWait(int64_t key, Clock::time_point deadline, Bytes& out,
                                 CancelToken* tok);
  void throwIfClosed() const;
  // Sends one packet on the command link, giving up at `deadline`
  // (SendTimeout).
  void sendBefore(int cmd, std::span<const uint8_t> data_out, Clock::time_point deadline);
  // The reply for key, looked for until `timeout` seconds after `start`.
  Bytes waitReply(int64_t key, Clock::time_point start, double timeout, CancelToken* tok);
  // The end of a reply wait that gave `r`: the reply, or the error.
  Bytes endWait(EchoPool::WaitResult r, Bytes out, Clock::time_point start, double timeout,
                CancelToken* tok);

  std::string class_name_;
  std::recursive_mutex close_m_;
  std::atomic<bool> closing_{false};
  std::atomic<bool> killed_{false};
  std::vector<Link*> links_;
  EchoPool echo_;
  StreamPool strm_;
  BroadcastPool bcst_;
};

class USBDevice : public Device {
 public:
  explicit USBDevice(bool verbose = true, std::string class_name = "USBDevice");
  ~USBDevice() override;
  void connect(const std::string& serial_num = "default", bool verbose = true);
  void disconnect(bool verbose = true) override;
  void close(bool verbose = true) override;

  bool connectStatusCmd() const { return cmd_.status; }
  std::optional<std::string> serialNum() const;
  std::string address() const override { return serialNum().value_or(""); }
  std::shared_ptr<USBClient> clientCmd() const;

 protected:
  Link* commandLink() override { return &cmd_; }
  Link cmd_;

 private:
  mutable std::mutex m_;
  std::optional<std::string> serial_num_;
};

class NetworkDevice : public Device {
 public:
  explicit NetworkDevice(bool verbose = true, std::string class_name = "NetworkDevice");
  ~NetworkDevice() override;
  void connect(const std::string& ip_addr = "192.168.1.110", int port = TCP_CMD_PORT,
               bool verbose = true);
  void disconnect(bool verbose = true) override;
  void close(bool verbose = true) override;

  bool connectStatusCmd() const { return cmd_.status; }
  std::optional<std::string> ipAddr() const;
  std::string address() const override { return ipAddr().value_or(""); }
  // The address as the device reports it (NetworkModule shares ip_addr).
  void setIpAddr(std::string ip_addr) {
    std::lock_guard lk(m_);
    ip_addr_ = std::move(ip_addr);
  }
  std::shared_ptr<TCPClient> clientCmd() const;

 protected:
  Link* commandLink() override { return &cmd_; }
  Link cmd_;

 private:
  mutable std::mutex m_;
  std::optional<std::string> ip_addr_;
};

class ETHDevice : public NetworkDevice {
 public:
  explicit ETHDevice(bool verbose = true, std::string class_name = "ETHDevice")
      : NetworkDevice(verbose, std::move(class_name)) {}
};

class WifiDevice : public NetworkDevice {
 public:
  explicit WifiDevice(bool verbose = true, std::string class_name = "WifiDevice");
  ~WifiDevice() override;
  bool connect(const std::string& ip = "192.168.5.79", int port1 = TCP_DATA_PORT,
               int port2 = TCP_CMD_PORT, bool verbose = true);
  void disconnect(bool verbose = true) override;
  void close(bool verbose = true) override;

  bool connectStatusData() const { return data_.status; }
  std::shared_ptr<TCPClient> clientData() const;

 private:
  Link data_;
};

class BroadcastDevice : public Device {
 public:
  explicit BroadcastDevice(bool verbose = true, std::string class_name = "BroadcastDevice");
  ~BroadcastDevice() override;
  void connect(bool verbose = true);
  void disconnect(bool verbose = true) override;
  void close(bool verbose = true) override;

  bool connectStatusUdp() const { return udp_.status; }
  std::shared_ptr<UDPClient> clientUdp() const;
  // How long a broadcast collects answers, in seconds.
  double broadcastWindow() const { return bcst_window_; }

 protected:
  UDPClient* broadcastClient() override;

 private:
  Link udp_;
  std::shared_ptr<UDPClient> udp_client_;
};

// How a class name reads in messages ("Opened handle (Kestrel-Dio)"): the
// model table installs its label lookup when the program starts; the class
// name itself until then.
using DeviceNaming = std::string (*)(const std::string& class_name);
void setDeviceNaming(DeviceNaming naming);

}  // namespace orv
