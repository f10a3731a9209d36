#include "services/discovery.hpp"

#include <cstdio>
#include <set>

#include "link/convert.hpp"
#include "link/transport.hpp"

namespace orv {

namespace {

// The answers to one broadcast, gathered for PACKET_TIMEOUT.  The set is the
// pool's copy, so a straggling answer cannot change it while it is walked.
std::set<Bytes> broadcast(const Call& c, int cmd, const Bytes& data_out) {
  c.checkCancelled();
  return c.device().broadcastPacket(cmd, data_out, c.token());
}

void needBytes(const Bytes& data_in, size_t n, int cmd) {
  if (data_in.size() < n)
    raise(ErrorId::ReplyFormatError, "The answer to broadcast command " + std::to_string(cmd) +
                                         " holds " + std::to_string(data_in.size()) + " bytes, " +
                                         std::to_string(n) + " expected.");
}

std::string dotted(const uint8_t* b) {
  return std::to_string(b[0]) + "." + std::to_string(b[1]) + "." + std::to_string(b[2]) + "." +
         std::to_string(b[3]);
}

std::string macText(const uint8_t* b) {
  char text[18];
  std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", b[0], b[1], b[2], b[3], b[4],
                b[5]);
  return text;
}

// The parts of a MAC text as payload bytes; a part outside a byte fails as
// making the datagram would, before anything is sent.
void appendMac(Bytes& data_out, const Value& mac_addr) {
  for (int64_t part : convertMACAddrTo6U8(mac_addr.asText())) {
    if (part < 0 || part > 255) throw ValueError("bytes must be in range(0, 256)");
    data_out.push_back(static_cast<uint8_t>(part));
  }
}

void appendIp(Bytes& data_out, const Value& ip_addr) {
  const Bytes b = convertIPAddrTo4U8(ip_addr.asText());
  data_out.insert(data_out.end(), b.begin(), b.end());
}

// Byte 0 of each answer (s_to_c) is the firmware's own; byte 1 is the status.
std::vector<int> statusList(const std::set<Bytes>& answers, int cmd) {
  std::vector<int> status_list;
  for (const Bytes& data_in : answers) {
    needBytes(data_in, 2, cmd);
    status_list.push_back(data_in[1]);
  }
  return status_list;
}

}  // namespace

std::vector<std::vector<std::string>> BroadcastModule::Bcst_enumerateNetworkDevices(const Call& c) {
  const std::set<Bytes> data_in_set = broadcast(c, GET_DEVICE_INFO, Bytes{0});
  std::vector<std::vector<std::string>> dev_info_list;
  for (const Bytes& data_in : data_in_set) {
    needBytes(data_in, 14, GET_DEVICE_INFO);
    dev_info_list.push_back({dotted(&data_in[0]), dotted(&data_in[4]), macText(&data_in[8]),
                             replyText(GET_DEVICE_INFO, std::span(data_in).subspan(14))});
  }
  return dev_info_list;
}

std::vector<std::vector<std::string>> BroadcastModule::Bcst_enumerateUSBDevices() {
  std::vector<std::vector<std::string>> out;
  for (auto& [serial, product] : USBClient::getAllUSBDevices()) out.push_back({serial, product});
  return out;
}

std::vector<int> BroadcastModule::Bcst_checkMACAndReboot(const Call& c, const Value& mac_addr) {
  checkInputType(mac_addr, kTypeText);
  Bytes data_out{0};
  appendMac(data_out, mac_addr);
  return statusList(broadcast(c, CHECK_MAC_AND_REBOOT, data_out), CHECK_MAC_AND_REBOOT);
}

std::vector<int> BroadcastModule::Bcst_checkMACAndSetIP(const Call& c, const Value& ip_addr,
                                                        const Value& mac_addr,
                                                        const Value& subnet_mask) {
  for (const Value* a : {&ip_addr, &mac_addr, &subnet_mask}) checkInputType(*a, kTypeText);
  Bytes data_out{0};
  appendIp(data_out, ip_addr);
  appendIp(data_out, subnet_mask);
  appendMac(data_out, mac_addr);
  return statusList(broadcast(c, CHECK_MAC_AND_SET_IP, data_out), CHECK_MAC_AND_SET_IP);
}

}  // namespace orv
