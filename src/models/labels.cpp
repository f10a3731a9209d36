// LABEL_DICT: display labels of the handle classes.
#include <map>
#include <string>

#include "link/device.hpp"

namespace orv {

std::string labelFor(const std::string& class_name) {
  static const std::map<std::string, std::string, std::less<>> kLabels = {
      {"utilities", "Utilities"},
      {"wireless", "Wifi devices"},
      {"ethernet", "Ethernet devices"},
      {"USB", "USB devices"},
      {"product_list", "Products Usage"},
      {"DeviceFinder", "Device finder"},
      {"DataLogger", "Data logger"},
  };
  auto it = kLabels.find(class_name);
  return it == kLabels.end() ? class_name : it->second;
}

}  // namespace orv
