// The Simulator: owns the devices, the discovery responder and the virtual
// USB backend.
#include "sim/simulator.hpp"

#include <algorithm>
#include <cstdio>

#include "link/usb_backend.hpp"
#include "sim/discovery.hpp"
#include "sim/links.hpp"

namespace orv::sim {

Simulator::Simulator() : usb_backend_(std::make_shared<detail::VirtualUsbBackend>()) {}

SimDevice& Simulator::addDevice(DeviceConfig cfg) {
  std::shared_ptr<SimDevice> dev(new SimDevice(std::move(cfg)));
  dev->start();
  std::lock_guard lk(m_);
  if (dev->link() == Link::Usb) {
    usb_backend_->add(dev->usbPort());
    if (!usb_registered_) {
      usb::addBackend(usb_backend_);
      usb_registered_ = true;
    }
  }
  devices_.push_back(dev);
  return *dev;
}

void Simulator::removeDevice(SimDevice& dev) {
  std::shared_ptr<SimDevice> keep;
  {
    std::lock_guard lk(m_);
    auto it = std::find_if(devices_.begin(), devices_.end(),
                           [&](const auto& d) { return d.get() == &dev; });
    if (it == devices_.end()) return;
    keep = *it;
    devices_.erase(it);
    if (keep->usbPort()) usb_backend_->remove(keep->usbPort().get());
  }
  keep->stop();
}

int Simulator::startDiscovery(const std::string& host, int port, int reply_port) {
  stopDiscovery();
  auto d =
      std::make_unique<detail::Discovery>(host, port, reply_port, [this] { return devices(); });
  const int bound = d->port();
  std::lock_guard lk(m_);
  discovery_ = std::move(d);
  return bound;
}

void Simulator::stopDiscovery() {
  std::unique_ptr<detail::Discovery> d;
  {
    std::lock_guard lk(m_);
    d = std::move(discovery_);
  }
  d.reset();  // joins its thread
}

int Simulator::discoveryPort() const {
  std::lock_guard lk(m_);
  return discovery_ ? discovery_->port() : 0;
}

Simulator::~Simulator() {
  stop();
  std::lock_guard lk(m_);
  devices_.clear();
}

void Simulator::stop() {
  stopDiscovery();
  std::vector<std::shared_ptr<SimDevice>> devs;
  {
    std::lock_guard lk(m_);
    devs = devices_;
    for (const auto& d : devs) {
      if (d->usbPort()) usb_backend_->remove(d->usbPort().get());
    }
    if (usb_registered_) {
      usb::removeBackend(usb_backend_.get());
      usb_registered_ = false;
    }
  }
  for (const auto& d : devs) d->stop();
}

std::vector<std::shared_ptr<SimDevice>> Simulator::devices() const {
  std::lock_guard lk(m_);
  return devices_;
}

std::shared_ptr<SimDevice> Simulator::findDevice(std::string_view serial) const {
  std::lock_guard lk(m_);
  for (const auto& d : devices_) {
    if (d->serial() == serial) return d;
  }
  return nullptr;
}

DeviceConfig numberedConfig(const std::string& model, Link link, int index) {
  DeviceConfig cfg;
  cfg.model = model;
  cfg.link = link;
  char buf[32];
  std::snprintf(buf, sizeof buf, "SIM%05d", index);
  cfg.serial = buf;
  std::snprintf(buf, sizeof buf, "02:4F:52:56:%02X:%02X", (index >> 8) & 0xFF, index & 0xFF);
  cfg.mac = buf;
  return cfg;
}

void populate(Simulator& sim, const std::vector<std::string>& models, Link link, bool discovery,
              const std::string& host) {
  int index = 1;
  for (const auto& m : models) {
    DeviceConfig cfg = numberedConfig(m, link, index++);
    cfg.host = host;
    sim.addDevice(std::move(cfg));
  }
  if (discovery) sim.startDiscovery(host);
}

std::shared_ptr<Simulator> startSimulator(const std::vector<std::string>& models, Link link,
                                          bool discovery, const std::string& host) {
  auto sim = std::make_shared<Simulator>();
  populate(*sim, models, link, discovery, host);
  return sim;
}

}  // namespace orv::sim
