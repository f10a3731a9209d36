// NetworkModule: a network device's own addressing — IP address and subnet
// mask, gateway, MAC address.  The Sys_ names are older names of the Net_
// operations.
#pragma once

#include <string>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int GET_GATEWAY = 124;
inline constexpr int SET_GATEWAY = 125;
inline constexpr int GET_IP = 243;
inline constexpr int SET_IP = 244;
inline constexpr int GET_MAC = 245;
inline constexpr int SET_MAC = 246;

class NetworkModule : public ModuleBase {
 public:
  std::string Net_getGateway(const Call& c);
  // [ip_addr, subnet_mask]
  std::vector<std::string> Net_getIPAddrAndSubmask(const Call& c);
  // Hex parts without leading zeros ("2:4f:52:56:0:a").
  std::string Net_getMACAddr(const Call& c);
  int Net_setIPAddrAndSubmask(const Call& c, const Value& ip_addr, const Value& subnet_mask);
  int _setGateway(const Call& c, const Value& gateway);
  int _setMACAddr(const Call& c, const Value& mac_addr);

  std::string Sys_getGateway(const Call& c) { return Net_getGateway(c); }
  std::vector<std::string> Sys_getIPAddrAndSubmask(const Call& c) {
    return Net_getIPAddrAndSubmask(c);
  }
  std::string Sys_getMACAddr(const Call& c) { return Net_getMACAddr(c); }
  int Sys_setIPAddrAndSubmask(const Call& c, const Value& ip_addr, const Value& subnet_mask) {
    return Net_setIPAddrAndSubmask(c, ip_addr, subnet_mask);
  }

  // Attributes holding the last result of a read.  On a network device the
  // address read is also the device's ip_addr: the two are one attribute.
  Attr<std::string> gateway;
  Attr<std::string> ip_addr;
  Attr<std::string> subnet_mask;
  Attr<std::string> mac_addr;
};
ORV_MODULE_CLASS("Network", NetworkModule);

}  // namespace orv
