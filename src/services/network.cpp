#include "services/network.hpp"

#include <cstdio>
#include <span>

#include "link/convert.hpp"
#include "link/device.hpp"
#include "services/system.hpp"

namespace orv {

using services::needBytes;

namespace {

std::string dotted(const uint8_t* b) {
  char text[16];
  std::snprintf(text, sizeof text, "%d.%d.%d.%d", b[0], b[1], b[2], b[3]);
  return text;
}

// 4 bytes of an address given as text; checked for text first.
Bytes addressBytes(const Value& v) {
  checkInputType(v, kTypeText);
  return convertIPAddrTo4U8(v.asText());
}

}  // namespace

std::string NetworkModule::Net_getGateway(const Call& c) {
  const Bytes data_in = c.exchange(GET_GATEWAY, std::span<const uint8_t>());
  needBytes(data_in, 4, GET_GATEWAY);
  std::string s = dotted(data_in.data());
  gateway.set(s);
  return s;
}

std::vector<std::string> NetworkModule::Net_getIPAddrAndSubmask(const Call& c) {
  const Bytes data_in = c.exchange(GET_IP, std::span<const uint8_t>());
  needBytes(data_in, 8, GET_IP);
  std::vector<std::string> network_info{dotted(data_in.data()), dotted(data_in.data() + 4)};
  ip_addr.set(network_info[0]);
  subnet_mask.set(network_info[1]);
  if (auto* net = dynamic_cast<NetworkDevice*>(&device())) net->setIpAddr(network_info[0]);
  return network_info;
}

std::string NetworkModule::Net_getMACAddr(const Call& c) {
  const Bytes data_in = c.exchange(GET_MAC, std::span<const uint8_t>());
  needBytes(data_in, 6, GET_MAC);
  char text[32];
  std::snprintf(text, sizeof text, "%x:%x:%x:%x:%x:%x", data_in[0], data_in[1], data_in[2],
                data_in[3], data_in[4], data_in[5]);
  mac_addr.set(text);
  return text;
}

int NetworkModule::Net_setIPAddrAndSubmask(const Call& c, const Value& ip, const Value& mask) {
  checkInputType(ip, kTypeText);
  checkInputType(mask, kTypeText);
  Bytes data_out = convertIPAddrTo4U8(ip.asText());
  const Bytes u8_list2 = convertIPAddrTo4U8(mask.asText());
  data_out.insert(data_out.end(), u8_list2.begin(), u8_list2.end());
  return c.exchangeStatus(SET_IP, data_out, 0);
}

int NetworkModule::_setGateway(const Call& c, const Value& gw) {
  return c.exchangeStatus(SET_GATEWAY, addressBytes(gw), 0);
}

// The count of parts is not checked: the firmware judges the payload.
int NetworkModule::_setMACAddr(const Call& c, const Value& mac) {
  checkInputType(mac, kTypeText);
  Bytes data_out;
  for (int64_t part : convertMACAddrTo6U8(mac.asText()))
    data_out.push_back(services::byteArg(Value(part)));
  return c.exchangeStatus(SET_MAC, data_out, 0);
}

}  // namespace orv
