// What one simulated device is: its model, its link and its identity.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace orv::sim {

// The physical link of a device.  Ethernet: one TCP command listener.
// Wifi: a command listener and a data listener.  Usb: a virtual USB device.
enum class Link { Ethernet, Wifi, Usb };

// Which way a packet travels.  Auto (sending only) picks the data link of a
// Wi-Fi device for streaming commands and the command link for the rest;
// Udp marks discovery traffic.
enum class Channel { Auto, Cmd, Data, Udp };

struct DeviceConfig {
  std::string model = "Trellis";
  Link link = Link::Ethernet;
  std::string serial = "SIM00001";
  std::string host = "127.0.0.1";
  int cmd_port = 0;   // 0: an ephemeral port
  int data_port = 0;  // Wi-Fi only; 0: an ephemeral port
  // Answer to GET_DRIVER_INFO; empty: defaultDriverInfo(*this).
  std::string driver_info;
  std::string mac = "02:4F:52:56:00:01";
  // Address reported by discovery; empty: host.
  std::string ip_addr;
  std::string subnet_mask = "255.255.255.0";
  std::string gateway = "127.0.0.1";
  // "host:port" of a TCP peer on loopback that serves the device's firmware
  // (sim/firmware_peer.hpp); empty: the built-in handlers.
  std::string firmware;
};

// "eth", "wifi", "usb" (also accepted by parseLink, with "ethernet").
const char* linkName(Link link);
std::optional<Link> parseLink(std::string_view text);
// The link of a model's devices, from its device class in the model table:
// Usb, Ethernet or Wifi; Ethernet for a name outside the table.
Link linkOfModel(std::string_view model);
// "auto", "cmd", "data", "udp".
const char* channelName(Channel ch);

// model + "_SIM_3.0.19_" + link name + "_" + serial.
std::string defaultDriverInfo(const DeviceConfig& cfg);

// Fills driver_info and ip_addr when empty; checks the addresses
// (orv::ValueError on a malformed MAC or IPv4 text).
DeviceConfig normalized(DeviceConfig cfg);

// Text address helpers used by discovery ("a.b.c.d", "aa:bb:cc:dd:ee:ff").
bool parseIPv4(std::string_view text, unsigned char out[4]);
bool parseMac(std::string_view text, unsigned char out[6]);
std::string formatIPv4(const unsigned char in[4]);
std::string formatMac(const unsigned char in[6]);
bool isLoopbackHost(std::string_view host);
// "host:port" with a loopback IPv4 host (or "localhost") and a port 1..65535;
// nullopt otherwise.
std::optional<std::pair<std::string, int>> parseLoopbackPeer(std::string_view text);

// A non-blocking IPv4 socket of `type` (SOCK_STREAM or SOCK_DGRAM) bound to
// host:port (port 0: an ephemeral one); the bound port goes to *bound_port.
// orv::ValueError on a malformed host, orv::OSError when the system refuses.
int bindSocket(int type, const std::string& host, int port, int* bound_port);

}  // namespace orv::sim
