// Bring-your-own firmware: a simulated device whose answers come from a TCP
// peer on loopback instead of the built-in handlers.
//
// Every packet the host sends the device is recorded as usual and then
// written to the peer, framed as on the wire (STX, length, command, data,
// CR LF).  The peer writes framed packets back; each complete one is sent to
// the host on the device's own link, as a reply or, for a streaming
// command, as stream data (the Wi-Fi data link on a Wi-Fi device), so the
// host's USB or TCP client reads it exactly as from a real device.  Bytes
// that make no packet are dropped, as the host's own splitter would.
//
// The device connects to the peer when it is made; a peer that hangs up
// leaves the device silent.  Internal to the simulator.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include "link/framing.hpp"
#include "sim/stopper.hpp"

namespace orv::sim::detail {

class FirmwarePeer {
 public:
  using OnReply = std::function<void(RawPacket&&)>;
  // Connects to host:port (a loopback address) now; orv::OSError when the
  // peer refuses.
  FirmwarePeer(const std::string& host, int port, Stopper& stopper, OnReply on_reply);
  ~FirmwarePeer();
  FirmwarePeer(const FirmwarePeer&) = delete;
  FirmwarePeer& operator=(const FirmwarePeer&) = delete;

  void start();
  // Writes one packet of the host to the peer; false when the peer is gone.
  bool forward(int cmd, const Bytes& data);
  // Ends the connection and joins the reader.  Idempotent.
  void join();

 private:
  void run();

  Stopper& stopper_;
  OnReply on_reply_;
  std::mutex write_m_;  // one writer at a time; held while fd_ closes
  int fd_ = -1;
  std::thread thread_;
};

}  // namespace orv::sim::detail
