// The UDP discovery responder of a Simulator.  Internal.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "sim/device.hpp"
#include "sim/stopper.hpp"

namespace orv::sim::detail {

class Discovery {
 public:
  using DeviceList = std::function<std::vector<std::shared_ptr<SimDevice>>()>;
  // Binds at once (orv::OSError when the port is taken).
  Discovery(const std::string& host, int port, int reply_port, DeviceList devices);
  ~Discovery();
  int port() const { return port_; }
  void stop();

 private:
  void run();
  void answer(SimDevice& dev, int cmd, const Bytes& data, std::vector<Bytes>& out);

  DeviceList devices_;
  int reply_port_;
  int fd_ = -1;
  int port_ = 0;
  Stopper stopper_;
  std::thread thread_;
};

// The answer a device gives to GET_DEVICE_INFO: first byte 1, IP, mask, MAC,
// model text.
Bytes deviceInfoAnswer(const SimDevice& dev);

}  // namespace orv::sim::detail
