// Device configuration helpers.
#include "sim/config.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "link/error.hpp"
#include "models/model_info.hpp"

namespace orv::sim {

const char* linkName(Link link) {
  switch (link) {
    case Link::Ethernet:
      return "eth";
    case Link::Wifi:
      return "wifi";
    case Link::Usb:
      return "usb";
  }
  return "eth";
}

std::optional<Link> parseLink(std::string_view text) {
  if (text == "eth" || text == "ethernet" || text == "Ethernet") return Link::Ethernet;
  if (text == "wifi" || text == "Wifi") return Link::Wifi;
  if (text == "usb" || text == "Usb") return Link::Usb;
  return std::nullopt;
}

Link linkOfModel(std::string_view model) {
  switch (modelInfo(model).device) {
    case DeviceKind::Usb:
      return Link::Usb;
    case DeviceKind::Wifi:
      return Link::Wifi;
    case DeviceKind::Ethernet:
    case DeviceKind::None:
      break;
  }
  return Link::Ethernet;
}

const char* channelName(Channel ch) {
  switch (ch) {
    case Channel::Auto:
      return "auto";
    case Channel::Cmd:
      return "cmd";
    case Channel::Data:
      return "data";
    case Channel::Udp:
      return "udp";
  }
  return "auto";
}

std::string defaultDriverInfo(const DeviceConfig& cfg) {
  return cfg.model + "_SIM_3.0.19_" + linkName(cfg.link) + "_" + cfg.serial;
}

namespace {

// Parses up to `n` fields of a number in `base` separated by `sep`, each at
// most `max`.
bool parseFields(std::string_view text, char sep, int base, int n, unsigned max,
                 unsigned char* out) {
  size_t pos = 0;
  for (int i = 0; i < n; ++i) {
    if (pos >= text.size()) return false;
    unsigned v = 0;
    size_t digits = 0;
    while (pos < text.size() && text[pos] != sep) {
      const char c = text[pos];
      int d;
      if (c >= '0' && c <= '9') {
        d = c - '0';
      } else if (base == 16 && c >= 'a' && c <= 'f') {
        d = c - 'a' + 10;
      } else if (base == 16 && c >= 'A' && c <= 'F') {
        d = c - 'A' + 10;
      } else {
        return false;
      }
      v = v * static_cast<unsigned>(base) + static_cast<unsigned>(d);
      if (v > max || ++digits > 3) return false;
      ++pos;
    }
    if (digits == 0) return false;
    out[i] = static_cast<unsigned char>(v);
    if (i + 1 < n) {
      if (pos >= text.size() || text[pos] != sep) return false;
      ++pos;
    }
  }
  return pos == text.size();
}

}  // namespace

bool parseIPv4(std::string_view text, unsigned char out[4]) {
  return parseFields(text, '.', 10, 4, 255, out);
}

bool parseMac(std::string_view text, unsigned char out[6]) {
  return parseFields(text, ':', 16, 6, 255, out);
}

std::string formatIPv4(const unsigned char in[4]) {
  char buf[20];
  std::snprintf(buf, sizeof buf, "%u.%u.%u.%u", in[0], in[1], in[2], in[3]);
  return buf;
}

std::string formatMac(const unsigned char in[6]) {
  char buf[20];
  std::snprintf(buf, sizeof buf, "%02x:%02x:%02x:%02x:%02x:%02x", in[0], in[1], in[2], in[3], in[4],
                in[5]);
  return buf;
}

bool isLoopbackHost(std::string_view host) {
  unsigned char a[4];
  return host == "localhost" || (parseIPv4(host, a) && a[0] == 127);
}

std::optional<std::pair<std::string, int>> parseLoopbackPeer(std::string_view text) {
  const size_t colon = text.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view host = text.substr(0, colon), digits = text.substr(colon + 1);
  if (!isLoopbackHost(host) || digits.empty() || digits.size() > 5) return std::nullopt;
  int port = 0;
  for (char ch : digits) {
    if (ch < '0' || ch > '9') return std::nullopt;
    port = port * 10 + (ch - '0');
  }
  if (port < 1 || port > 65535) return std::nullopt;
  return std::make_pair(std::string(host), port);
}

DeviceConfig normalized(DeviceConfig cfg) {
  if (cfg.driver_info.empty()) cfg.driver_info = defaultDriverInfo(cfg);
  if (cfg.ip_addr.empty()) cfg.ip_addr = cfg.host == "localhost" ? "127.0.0.1" : cfg.host;
  unsigned char b[6];
  if (!parseMac(cfg.mac, b))
    throw ValueError("simulated device: bad MAC address '" + cfg.mac + "'");
  for (const std::string* ip : {&cfg.ip_addr, &cfg.subnet_mask, &cfg.gateway}) {
    if (!parseIPv4(*ip, b)) throw ValueError("simulated device: bad IPv4 address '" + *ip + "'");
  }
  if (cfg.link != Link::Usb && cfg.host != "localhost" && !parseIPv4(cfg.host, b)) {
    throw ValueError("simulated device: host must be an IPv4 address, not '" + cfg.host + "'");
  }
  if (!cfg.firmware.empty() && !parseLoopbackPeer(cfg.firmware)) {
    throw ValueError(
        "simulated device: firmware must be a peer on loopback, \"127.x.y.z:port\", not '" +
        cfg.firmware + "'");
  }
  return cfg;
}

int bindSocket(int type, const std::string& host, int port, int* bound_port) {
  sockaddr_in addr{};
  addr.sin_family = AF_INET;
  addr.sin_port = htons(static_cast<uint16_t>(port));
  const std::string h = host == "localhost" ? "127.0.0.1" : host;
  if (::inet_pton(AF_INET, h.c_str(), &addr.sin_addr) != 1)
    throw ValueError("simulator: not an IPv4 address: '" + host + "'");
  const int fd = ::socket(AF_INET, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (fd < 0) throw OSError(errno, "simulator: socket");
  const int one = 1;
  ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
  if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0 ||
      (type == SOCK_STREAM && ::listen(fd, 4) != 0)) {
    const int err = errno;
    ::close(fd);
    throw OSError(err, std::string("simulator: cannot ") +
                           (type == SOCK_STREAM ? "listen on " : "bind UDP ") + h + ":" +
                           std::to_string(port));
  }
  socklen_t len = sizeof addr;
  ::getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len);
  *bound_port = ntohs(addr.sin_port);
  return fd;
}

}  // namespace orv::sim
