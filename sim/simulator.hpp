// The device simulator: a firmware model of the family's devices.
//
//   orv::sim::Simulator sim;
//   auto& dev = sim.addDevice({.model = "Trellis", .link = orv::sim::Link::Wifi});
//   // connect a host to 127.0.0.1:dev.cmdPort() (and dev.dataPort())
//   sim.startDiscovery("127.0.0.1", 0, reply_port);
//   ...
//   sim.stop();  // closes every socket and joins every thread
//
// Network devices listen on loopback TCP; USB devices are visible to the
// driver's USB client through a backend the Simulator registers with
// orv::usb::addBackend while it has USB devices.
#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "link/constants.hpp"
#include "sim/config.hpp"
#include "sim/device.hpp"
#include "sim/faults.hpp"
#include "sim/handler.hpp"
#include "sim/state.hpp"

namespace orv::sim {

namespace detail {
class Discovery;
class VirtualUsbBackend;
}  // namespace detail

class Simulator {
 public:
  Simulator();
  ~Simulator();
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  // Makes a device and starts its listeners.  orv::OSError when a port is
  // taken, orv::ValueError on a malformed address in the configuration.
  SimDevice& addDevice(DeviceConfig cfg);
  // Stops a device and forgets it (a USB device is unplugged: open handles
  // fail).  The object lives on while someone shares it.
  void removeDevice(SimDevice& dev);

  // One UDP responder at host:port for every network device of this
  // Simulator; each answer goes to the sender's address at reply_port (0:
  // the sender's own port).  port 0 takes an ephemeral port.  Returns the
  // bound port.  A second call restarts the responder.
  int startDiscovery(const std::string& host = "127.0.0.1", int port = UDP_SEND_PORT,
                     int reply_port = UDP_RECV_PORT);
  void stopDiscovery();
  int discoveryPort() const;  // 0 when not running

  // Stops every device and the responder, unregisters the USB backend,
  // joins every thread.  Idempotent.  The stopped devices stay listed (and
  // references to them valid) until the Simulator is destroyed; devices
  // added afterwards start anew.
  void stop();

  // Every device added and not removed, in order (stopped ones included).
  std::vector<std::shared_ptr<SimDevice>> devices() const;
  std::shared_ptr<SimDevice> findDevice(std::string_view serial) const;

 private:
  mutable std::mutex m_;
  std::vector<std::shared_ptr<SimDevice>> devices_;
  std::shared_ptr<detail::VirtualUsbBackend> usb_backend_;
  bool usb_registered_ = false;
  std::unique_ptr<detail::Discovery> discovery_;
};

// The configuration of the index-th device (from 1) of a numbered set:
// serial "SIM%05d", MAC 02:4F:52:56:xx:yy from the index.
DeviceConfig numberedConfig(const std::string& model, Link link, int index);

// Adds one device per model (numbered from 1) at host, and starts discovery
// on its default ports when asked.
void populate(Simulator& sim, const std::vector<std::string>& models, Link link, bool discovery,
              const std::string& host = "127.0.0.1");
// A new Simulator so populated.
std::shared_ptr<Simulator> startSimulator(const std::vector<std::string>& models, Link link,
                                          bool discovery = false,
                                          const std::string& host = "127.0.0.1");

}  // namespace orv::sim
