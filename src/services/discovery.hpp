// Discovery on the local network: finding devices by broadcast, and changing a
// device's address or rebooting it by MAC while it cannot be reached by TCP.
//
// BroadcastModule holds the operations, each written once against a Call;
// DeviceFinder is the ready-made class: a BroadcastDevice (the UDP receive
// link) with the module, talking through itself.  Every network operation
// takes PACKET_TIMEOUT for the collection of answers, in both twins.
#pragma once

#include <string>
#include <vector>

#include "link/call.hpp"
#include "link/device.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

// GET_DEVICE_INFO, CHECK_MAC_AND_SET_IP and CHECK_MAC_AND_REBOOT are in
// link/constants.hpp (BROADCAST_CMD_LIST): the receive thread needs them.

class BroadcastModule : public ModuleBase {
 public:
  // [ip_addr, submask, mac_addr, firmware_model] of every device that
  // answered, all text; empty when none did.
  std::vector<std::vector<std::string>> Bcst_enumerateNetworkDevices(const Call& c);
  // [serial_number, product] of every attached USB device of the family.
  // Blocking in both worlds; needs no connect.
  std::vector<std::vector<std::string>> Bcst_enumerateUSBDevices();
  // The status byte of each distinct answer; only the device with this MAC
  // answers and reboots.
  std::vector<int> Bcst_checkMACAndReboot(const Call& c, const Value& mac_addr);
  // The status byte of each distinct answer; only the device with this MAC
  // takes the new address and mask.
  std::vector<int> Bcst_checkMACAndSetIP(const Call& c, const Value& ip_addr, const Value& mac_addr,
                                         const Value& subnet_mask);
};

class DeviceFinder : public BroadcastDevice, public BroadcastModule {
 public:
  explicit DeviceFinder(bool verbose = true, std::string class_name = "DeviceFinder")
      : BroadcastDevice(verbose, std::move(class_name)) {}
  Device& device() override { return *this; }
  // A bare row: the finder has no ports.
  const ModelInfo& model() const override { return modelInfo("DeviceFinder"); }

 protected:
  void* siblingOf(const std::type_info&) override { return nullptr; }
};

}  // namespace orv
