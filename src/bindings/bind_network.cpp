// NetworkModule as the host sees it: one row per operation.
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"
#include "services/network.hpp"

namespace orv::py_bind {

namespace {

// The older Sys_ names call the Net_ operation of the same meaning.
Op olderName(Op row, const char* name, const char* summary) {
  row.name = name;
  row.summary = summary;
  return row;
}

void bindNetwork(py::module_& m) {
  using S = NetworkModule;
  py::class_<S, std::shared_ptr<S>> cls(
      m, "NetworkModule", "A network device's own addressing: IP address, mask, gateway, MAC.");
  const Op gateway{"Net_getGateway",
                   "Reads the device's gateway address.",
                   {},
                   {kStr, "\"a.b.c.d\"; also kept in gateway"}};
  const Op ip{
      "Net_getIPAddrAndSubmask",
      "Reads the device's IP address and subnet mask.",
      {},
      {kStrs, "[ip_addr, subnet_mask], each \"a.b.c.d\"; also kept in ip_addr, subnet_mask"}};
  const Op mac{
      "Net_getMACAddr",
      "Reads the device's MAC address.",
      {},
      {kStr, "six hex numbers without leading zeros, \"a:b:c:d:e:f\"; also kept in mac_addr"}};
  const Op set_ip{"Net_setIPAddrAndSubmask",
                  "Sets the device's IP address and subnet mask.",
                  {{"ip_addr", kStr, "dotted IPv4 address, \"a.b.c.d\""},
                   {"subnet_mask", kStr, "dotted IPv4 mask, \"a.b.c.d\""}},
                  {kInt, kStatusText},
                  "InputTypeNotCorrectError: an address that is not a str.\n"
                  "OSError: an address that is not dotted IPv4."};
  defTwin(cls, &S::Net_getGateway, gateway);
  defTwin(cls, &S::Net_getIPAddrAndSubmask, ip);
  defTwin(cls, &S::Net_getMACAddr, mac);
  defTwin(cls, &S::Net_setIPAddrAndSubmask, set_ip);
  defTwin(cls, &S::_setGateway,
          {"_setGateway",
           "Sets the device's gateway address.",
           {{"gateway", kStr, "\"a.b.c.d\""}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: gateway is not a str."});
  defTwin(cls, &S::_setMACAddr,
          {"_setMACAddr",
           "Sets the device's MAC address.",
           {{"mac_addr", kStr, "six hex numbers, \"aa:bb:cc:dd:ee:ff\""}},
           {kInt, kStatusText},
           "InputTypeNotCorrectError: mac_addr is not a str."});
  defTwin(cls, &S::Sys_getGateway,
          olderName(gateway, "Sys_getGateway", "The older name of Net_getGateway."));
  defTwin(cls, &S::Sys_getIPAddrAndSubmask,
          olderName(ip, "Sys_getIPAddrAndSubmask", "The older name of Net_getIPAddrAndSubmask."));
  defTwin(cls, &S::Sys_getMACAddr,
          olderName(mac, "Sys_getMACAddr", "The older name of Net_getMACAddr."));
  defTwin(
      cls, &S::Sys_setIPAddrAndSubmask,
      olderName(set_ip, "Sys_setIPAddrAndSubmask", "The older name of Net_setIPAddrAndSubmask."));
  defAttr(cls, "gateway", &S::gateway);
  defAttr(cls, "ip_addr", &S::ip_addr);  // the device class's ip_addr stands first on a model
  defAttr(cls, "subnet_mask", &S::subnet_mask);
  defAttr(cls, "mac_addr", &S::mac_addr);
}

const BindingRegistrar kNetwork{
    {.name = "NetworkModule", .module = "Network", .bind = &bindNetwork}};

}  // namespace

}  // namespace orv::py_bind
