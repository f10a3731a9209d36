// UDP discovery: GET_DEVICE_INFO, CHECK_MAC_AND_SET_IP, CHECK_MAC_AND_REBOOT.
//
// Every network device of the Simulator hears each datagram (and records
// it); the answers go back to the sender's address at the reply port.  Only
// a device whose MAC matches acts on the two MAC commands, and only it
// answers them.
#include "sim/discovery.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/framing.hpp"
#include "link/thread_name.hpp"

namespace orv::sim::detail {

Bytes deviceInfoAnswer(const SimDevice& dev) {
  Bytes out{1};
  unsigned char b[6];
  parseIPv4(dev.ipAddr(), b) ? out.insert(out.end(), b, b + 4) : out.insert(out.end(), 4, 0);
  parseIPv4(dev.subnetMask(), b) ? out.insert(out.end(), b, b + 4) : out.insert(out.end(), 4, 0);
  parseMac(dev.config().mac, b) ? out.insert(out.end(), b, b + 6) : out.insert(out.end(), 6, 0);
  out.insert(out.end(), dev.model().begin(), dev.model().end());
  return out;
}

Discovery::Discovery(const std::string& host, int port, int reply_port, DeviceList devices)
    : devices_(std::move(devices)), reply_port_(reply_port) {
  fd_ = bindSocket(SOCK_DGRAM, host, port, &port_);
  thread_ = std::thread([this] {
    nameThisThread("sim-discovery");
    run();
  });
}

Discovery::~Discovery() {
  stop();
  if (fd_ >= 0) ::close(fd_);
}

void Discovery::stop() {
  stopper_.stop();
  if (thread_.joinable()) thread_.join();
}

void Discovery::answer(SimDevice& dev, int cmd, const Bytes& data, std::vector<Bytes>& out) {
  if (!dev.running()) return;
  dev.record(Channel::Udp, cmd, data);
  if (dev.faults().ignores(cmd)) return;
  unsigned char mac[6];
  if (!parseMac(dev.config().mac, mac)) return;
  const Bytes ok{1, 0, 0};
  switch (cmd) {
    case GET_DEVICE_INFO:
      out.push_back(preparePacket(cmd, deviceInfoAnswer(dev)));
      break;
    case CHECK_MAC_AND_REBOOT:
      if (data.size() >= 7 && std::equal(mac, mac + 6, data.begin() + 1)) {
        out.push_back(preparePacket(cmd, ok));
        dev.reboot();
      }
      break;
    case CHECK_MAC_AND_SET_IP:
      if (data.size() >= 15 && std::equal(mac, mac + 6, data.begin() + 9)) {
        dev.setNetwork(formatIPv4(&data[1]), formatIPv4(&data[5]));
        out.push_back(preparePacket(cmd, ok));
      }
      break;
    default:
      break;
  }
}

void Discovery::run() {
  std::vector<uint8_t> buf(65536);
  std::vector<Bytes> answers;
  while (!stopper_.stopped()) {
    pollfd p[2] = {{stopper_.fd(), POLLIN, 0}, {fd_, POLLIN, 0}};
    if (::poll(p, 2, -1) < 0) {
      if (errno == EINTR) continue;
      break;
    }
    if (p[0].revents) break;
    if (!(p[1].revents & POLLIN)) continue;
    sockaddr_in from{};
    socklen_t from_len = sizeof from;
    const ssize_t r =
        ::recvfrom(fd_, buf.data(), buf.size(), 0, reinterpret_cast<sockaddr*>(&from), &from_len);
    if (r <= 0) continue;
    // Each datagram stands alone.
    Splitter splitter;
    const auto packets =
        splitter.feed(std::span<const uint8_t>(buf.data(), static_cast<size_t>(r)));
    answers.clear();
    const auto devs = devices_();
    for (const auto& pkt : packets) {
      for (const auto& dev : devs) {
        if (dev->link() != Link::Usb) answer(*dev, pkt.cmd, pkt.data, answers);
      }
    }
    sockaddr_in to = from;
    if (reply_port_ != 0) to.sin_port = htons(static_cast<uint16_t>(reply_port_));
    for (const auto& a : answers) {
      ::sendto(fd_, a.data(), a.size(), 0, reinterpret_cast<sockaddr*>(&to), sizeof to);
    }
  }
}

}  // namespace orv::sim::detail
