// The device classes: how each kind of link connects, disconnects and closes.
#include <chrono>
#include <cmath>
#include <cstdlib>

#include "link/device.hpp"
#include "link/error.hpp"
#include "link/report.hpp"

namespace orv {

namespace {
void setupLink(Link& link, const char* thread_name, size_t read_size, Link::Failures failures) {
  link.thread_name = thread_name;
  link.read_size = read_size;
  link.failures = failures;
}
}  // namespace

// ---- USBDevice -------------------------------------------------------------------

USBDevice::USBDevice(bool verbose, std::string class_name) : Device(std::move(class_name)) {
  setupLink(cmd_, "recv_cmd_thread", USB_PKT_SIZE, Link::Failures::Print);
  registerLink(cmd_);
  startThread(cmd_);
  announce(verbose, "Opened handle (" + deviceName() + ")");
}

USBDevice::~USBDevice() { stopLinks({&cmd_}); }

std::optional<std::string> USBDevice::serialNum() const {
  std::lock_guard lk(m_);
  return serial_num_;
}

std::shared_ptr<USBClient> USBDevice::clientCmd() const {
  return std::static_pointer_cast<USBClient>(cmd_.client());
}

void USBDevice::connect(const std::string& serial_num, bool verbose) {
  // A closed device is dead for good: refused before the link is touched.
  if (killed()) raise(ErrorId::DeviceClosedError);
  if (cmd_.status) return;
  auto client = std::make_shared<USBClient>(serial_num);
  std::string serial = client->takeSerialNumber();
  cmd_.setClient(client);
  cmd_.status = true;
  {
    std::lock_guard lk(m_);
    serial_num_ = serial;
  }
  cmd_.gate.open();
  announce(verbose, "Connected to " + serial + " (" + deviceName() + ")");
}

void USBDevice::disconnect(bool verbose) {
  if (!cmd_.status) return;
  cmd_.gate.close();
  // The thread finishes its current 1 ms read on its own reference to the
  // client and then parks at the gate.
  cmd_.setClient(nullptr);
  cmd_.status = false;
  announce(verbose, "Disconnected from " + serialNum().value_or("") + " (" + deviceName() + ")");
}

void USBDevice::close(bool verbose) {
  auto lk = lockClose();
  if (killed()) return;
  beginClose();
  if (cmd_.status) disconnect();
  closeBase();
  finishClose({&cmd_});
  announce(verbose, "Closed handle (" + deviceName() + ")");
}

// ---- NetworkDevice ---------------------------------------------------------------

NetworkDevice::NetworkDevice(bool verbose, std::string class_name) : Device(std::move(class_name)) {
  setupLink(cmd_, "recv_cmd_thread", TCP_PKT_LENGTH_MAX, Link::Failures::Quiet);
  cmd_.setClient(std::make_shared<TCPClient>());
  registerLink(cmd_);
  startThread(cmd_);
  announce(verbose, "Opened handle (" + deviceName() + ")");
}

NetworkDevice::~NetworkDevice() { stopLinks({&cmd_}); }

std::optional<std::string> NetworkDevice::ipAddr() const {
  std::lock_guard lk(m_);
  return ip_addr_;
}

std::shared_ptr<TCPClient> NetworkDevice::clientCmd() const {
  return std::static_pointer_cast<TCPClient>(cmd_.client());
}

void NetworkDevice::connect(const std::string& ip_addr, int port, bool verbose) {
  if (killed()) raise(ErrorId::DeviceClosedError);
  if (cmd_.status) return;
  auto client = clientCmd();
  if (!client) raise(ErrorId::DeviceClosedError);
  cmd_.status = client->connect(ip_addr, port);
  {
    std::lock_guard lk(m_);
    ip_addr_ = ip_addr;
  }
  cmd_.gate.open();
  announce(verbose, "Connected to " + ip_addr + " (" + deviceName() + ")");
}

void NetworkDevice::disconnect(bool verbose) {
  if (!cmd_.status) return;
  cmd_.gate.close();
  // The shutdown wakes the thread's read; it comes back and parks.
  clientCmd()->disconnect();
  cmd_.status = false;
  announce(verbose, "Disconnected from " + ipAddr().value_or("") + " (" + deviceName() + ")");
}

void NetworkDevice::close(bool verbose) {
  auto lk = lockClose();
  if (killed()) return;
  beginClose();
  if (cmd_.status) NetworkDevice::disconnect();
  closeBase();
  finishClose({&cmd_});
  announce(verbose, "Closed handle (" + deviceName() + ")");
}

// ---- WifiDevice ------------------------------------------------------------------

WifiDevice::WifiDevice(bool verbose, std::string class_name)
    : NetworkDevice(false, std::move(class_name)) {
  setupLink(data_, "recv_data_thread", TCP_DATA_LENGTH_MAX, Link::Failures::Quiet);
  data_.setClient(std::make_shared<TCPClient>());
  registerLink(data_);
  startThread(data_);
  announce(verbose, "Opened handle (" + deviceName() + ")");
}

WifiDevice::~WifiDevice() { stopLinks({&data_, &cmd_}); }

std::shared_ptr<TCPClient> WifiDevice::clientData() const {
  return std::static_pointer_cast<TCPClient>(data_.client());
}

bool WifiDevice::connect(const std::string& ip, int port1, int port2, bool verbose) {
  if (killed()) raise(ErrorId::DeviceClosedError);
  NetworkDevice::connect(ip, port2, false);
  auto client = clientData();
  if (!client) raise(ErrorId::DeviceClosedError);
  data_.status = client->connect(ip, port1);
  data_.gate.open();
  announce(verbose, "Connected to " + ip + " (" + deviceName() + ")");
  return data_.status;
}

void WifiDevice::disconnect(bool verbose) {
  NetworkDevice::disconnect(false);
  if (!data_.status) return;
  data_.gate.close();
  clientData()->disconnect();
  data_.status = false;
  announce(verbose, "Disconnected from " + ipAddr().value_or("") + " (" + deviceName() + ")");
}

void WifiDevice::close(bool verbose) {
  auto lk = lockClose();
  if (killed()) return;
  beginClose();
  if (cmd_.status || data_.status) disconnect();
  NetworkDevice::close(false);
  finishClose({&data_});
  announce(verbose, "Closed handle (" + deviceName() + ")");
}

// ---- BroadcastDevice -------------------------------------------------------------

BroadcastDevice::BroadcastDevice(bool verbose, std::string class_name)
    : Device(std::move(class_name)), udp_client_(std::make_shared<UDPClient>()) {
  setupLink(udp_, "recv_udp_thread", UDP_PKT_LENGTH_MAX, Link::Failures::Quiet);
  // A shorter answer window, e.g. for tests against a simulator on loopback.
  if (const char* w = std::getenv("PYORV_BROADCAST_WINDOW")) {
    char* end = nullptr;
    const double s = std::strtod(w, &end);
    if (end != w && *end == '\0' && s > 0 && std::isfinite(s)) bcst_window_ = s;
  }
  udp_.setClient(udp_client_);
  registerLink(udp_);
  startThread(udp_);
  announce(verbose, "Opened handle (" + deviceName() + ")");
}

BroadcastDevice::~BroadcastDevice() { stopLinks({&udp_}); }

std::shared_ptr<UDPClient> BroadcastDevice::clientUdp() const { return udp_client_; }

UDPClient* BroadcastDevice::broadcastClient() { return udp_client_.get(); }

void BroadcastDevice::connect(bool verbose) {
  if (killed()) raise(ErrorId::DeviceClosedError);
  if (udp_.status) return;
  udp_.status = udp_client_->bind("", UDP_RECV_PORT);
  udp_.gate.open();
  announce(verbose, "Binded " + deviceName());
}

void BroadcastDevice::disconnect(bool verbose) {
  if (!udp_.status) return;
  udp_.gate.close();
  udp_client_->disconnect();
  udp_.status = false;
  announce(verbose, "Disconnected " + deviceName());
}

void BroadcastDevice::close(bool verbose) {
  auto lk = lockClose();
  if (killed()) return;
  beginClose();
  if (udp_.status) disconnect();
  closeBase();
  finishClose({&udp_});
  announce(verbose, "Closed handle (" + deviceName() + ")");
}

}  // namespace orv
