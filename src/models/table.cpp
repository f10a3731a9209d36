// The model table: every product of the family, its device class, label,
// modules, port maps and parameters; and LABEL_DICT.
#include <map>
#include <mutex>
#include <string>

#include "link/device.hpp"
#include "models/model_info.hpp"

namespace orv {

namespace {

std::vector<ModelInfo> makeTable() {
  std::vector<ModelInfo> t;
  // clang-format off
  t.push_back({.class_name = "Trellis", .label = "Trellis", .device = DeviceKind::Ethernet,
               .data_logger = true, .modules = {"System", "Network"},
               .dio_num_pins_per_port = 12});
  t.push_back({.class_name = "HeronAin", .label = "Heron-Ain", .device = DeviceKind::Wifi,
               .data_logger = true, .modules = {"System", "SystemAnalog", "Network", "Wifi"}});
  // clang-format on
  return t;
}

// LABEL_DICT entries that are not model classes.
const std::map<std::string, std::string, std::less<>> kOtherLabels = {
    {"utilities", "Utilities"},       {"wireless", "Wifi devices"},
    {"ethernet", "Ethernet devices"}, {"USB", "USB devices"},
    {"product_list", "Products Usage"}, {"DeviceFinder", "Device finder"},
    {"DataLogger", "Data logger"},
};

}  // namespace

const std::vector<ModelInfo>& modelTable() {
  static const std::vector<ModelInfo> table = makeTable();
  return table;
}

const ModelInfo& modelInfo(std::string_view class_name) {
  for (const auto& row : modelTable())
    if (row.class_name == class_name) return row;
  // Classes outside the table get a bare row of their own, made once.
  static std::mutex m;
  static std::map<std::string, ModelInfo, std::less<>> bare;
  std::lock_guard lk(m);
  auto it = bare.find(class_name);
  if (it == bare.end()) {
    ModelInfo row;
    row.class_name = std::string(class_name);
    row.label = row.class_name;
    it = bare.emplace(row.class_name, row).first;
  }
  return it->second;
}

std::map<std::string, std::string> labelDict() {
  std::map<std::string, std::string> out(kOtherLabels.begin(), kOtherLabels.end());
  for (const auto& row : modelTable()) out[row.class_name] = row.label;
  return out;
}

// _getDeviceName: LABEL_DICT of the class name; the class name itself for the
// bare device classes.
std::string labelFor(const std::string& class_name) {
  if (auto it = kOtherLabels.find(class_name); it != kOtherLabels.end()) return it->second;
  return modelInfo(class_name).label;
}

}  // namespace orv
