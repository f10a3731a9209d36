// A row of the model table: what a model is and which ports its modules have.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orv {

// A pin of the pin map: (digital port, pin index).
struct PinPair {
  int port = 0;
  int pin = 0;
  bool operator==(const PinPair&) const = default;
};

// Function maps (ai_dict, uart_dict, ...): port -> the pins it occupies.
using PortMap = std::map<int, std::vector<PinPair>>;
// Digital maps (di_dict, do_dict): port -> its pin numbers.
using DigitalMap = std::map<int, std::vector<int>>;

enum class DeviceKind { None, Usb, Ethernet, Wifi };

struct ModelInfo {
  std::string class_name;
  std::string label;
  DeviceKind device = DeviceKind::None;
  bool data_logger = false;
  // Names of the modules the model has, in their order ("System", "DIO", ...).
  std::vector<std::string> modules;

  PortMap ai_dict, ao_dict, thermal_dict, ahrs_dict, uart_dict, I2C_dict, SPI_dict, can_dict,
      motion_dict, mrdr_dict;
  DigitalMap di_dict, do_dict;
  int dio_num_pins_per_port = 8;

  // Module parameters that are plain numbers or texts, by name.
  std::map<std::string, double, std::less<>> params;

  bool has(std::string_view module) const {
    for (const auto& m : modules)
      if (m == module) return true;
    return false;
  }
  bool isWifi() const { return device == DeviceKind::Wifi; }
};

// The row of a class name; a row with only the name for classes outside the
// table (the bare device classes).
const ModelInfo& modelInfo(std::string_view class_name);
// Every model row, in the table's order.
const std::vector<ModelInfo>& modelTable();

}  // namespace orv
