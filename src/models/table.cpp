// The model table: every product of the family, its device class, label,
// modules, port maps and parameters.  The catalogue tables built from it
// (LABEL_DICT, HANDLE_DICT, ...) are in models/catalogue.cpp.
#include <algorithm>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>

#include "models/model_info.hpp"

namespace orv {

namespace {

// Pins first..last.
std::vector<int> pins(int first, int last) {
  std::vector<int> out;
  for (int p = first; p <= last; ++p) out.push_back(p);
  return out;
}

// A map of the three Trellis analog and motion slots (slots 1, 2, 4).
PortMap trellisSlots() { return {{0, {{1, 5}}}, {1, {{1, 5}}}, {3, {{1, 5}}}}; }

DigitalMap trellisDigital() {
  DigitalMap m;
  for (int port = 0; port <= 7; ++port) m[port] = pins(0, 11);
  return m;
}

// Maps of the USB family.
const PortMap kPloverUart = {{1, {{2, 6}, {2, 7}}}, {2, {{3, 0}, {3, 1}}}};
const PortMap kPloverI2C = {{1, {{0, 3}, {0, 4}}}, {2, {{1, 2}, {1, 3}}}};
const PortMap kPloverSpiPort2 = {{2, {{3, 3}, {3, 4}, {3, 5}}}};
const PortMap kPloverThermal = {{1, {{1, 5}, {2, 0}, {2, 1}, {2, 2}, {2, 3}}},
                                {2, {{1, 5}, {2, 0}, {3, 3}, {3, 4}, {3, 5}}}};

// Analog input parameters.
constexpr double kRatio5V = 5.0 / 32768.0;    // 0.000152587890625
constexpr double kRatio10V = 10.0 / 32768.0;  // 0.00030517578125
constexpr AiParams kAiHeronImu{
    .max_rate = 10000, .ratio = kRatio5V, .num_channels = 8, .variable = true};
constexpr AiParams kAiHeron{.max_rate = 10000,
                            .ratio = kRatio5V,
                            .num_channels = 8,
                            .variable = true,
                            .open_streaming = false,
                            .channels_fixed = true,
                            .rate_rule = AiRateRule::Fixed,
                            .rate_limit = 10000};
constexpr AiParams kAiHeronPlus{.max_rate = 20000,
                                .ratio = kRatio5V,
                                .num_channels = 8,
                                .variable = true,
                                .open_streaming = false,
                                .channels_fixed = true,
                                .rate_rule = AiRateRule::Fixed,
                                .rate_limit = 20000};
constexpr AiParams kAiKestrel{.max_rate = 20000,
                              .ratio = kRatio10V,
                              .num_channels = 8,
                              .variable = false,
                              .open_silent = true,
                              .channels_fixed = true,
                              .rate_rule = AiRateRule::Fixed,
                              .rate_limit = 20000};
constexpr AiParams kAiPlover{.max_rate = 16000,
                             .ratio = kRatio10V,
                             .num_channels = 8,
                             .variable = true,
                             .rate_rule = AiRateRule::ByChannels};
constexpr AiParams kAiTrellis{.max_rate = 12000,
                              .ratio = kRatio10V,
                              .num_channels = 8,
                              .variable = false,
                              .slots = true,
                              .open_silent = true,
                              .channels_fixed = true,
                              .rate_rule = AiRateRule::ByChipSelects};
// The 24-bit inputs: port 0 (current) on KestrelCin, 0 and 1 on KestrelCvin.
constexpr AiParams kAi24Cin{.ai24_ports = 1};
constexpr AiParams kAi24Cvin{.ai24_ports = 2};

// Analog output parameters.
constexpr AoParams kAo10V{
    .volt_min = -10, .volt_max = 10, .channel = 8, .rate = 15000, .open_silent = true};
constexpr AoParams kAoTrellis{.volt_min = -10,
                              .volt_max = 10,
                              .channel = 8,
                              .rate = 15000,
                              .slots = true,
                              .open_silent = true};
constexpr AoParams kAoPlover{.volt_min = 0, .volt_max = 5, .channel = 8, .rate = 16000};

// The device class and the module list of each model, from models/models.def.
struct ModelDef {
  const char* class_name;
  const char* device_class;
  const char* modules;  // "System, Network, DIO"
};
constexpr ModelDef kModelDefs[] = {
#define ORV_MODEL(Name, DeviceClass, ...) {#Name, #DeviceClass, #__VA_ARGS__},
#include "models/models.def"
#undef ORV_MODEL
};
// Models whose DataLogger base stands before the device class.
#define ORV_MODEL(...)
#define ORV_LOGGER_FIRST(Name) #Name,
constexpr const char* kLoggerFirst[] = {
#include "models/models.def"
};
#undef ORV_LOGGER_FIRST
#undef ORV_MODEL

std::vector<std::string> splitNames(std::string_view list) {
  std::vector<std::string> out;
  while (!list.empty()) {
    const size_t comma = std::min(list.find(','), list.size());
    std::string_view name = list.substr(0, comma);
    while (!name.empty() && name.front() == ' ') name.remove_prefix(1);
    while (!name.empty() && name.back() == ' ') name.remove_suffix(1);
    out.emplace_back(name);
    list.remove_prefix(std::min(comma + 1, list.size()));
  }
  return out;
}

DeviceKind deviceKindOf(std::string_view device_class) {
  for (DeviceKind k : {DeviceKind::Usb, DeviceKind::Ethernet, DeviceKind::Wifi})
    if (device_class == deviceClassName(k)) return k;
  throw std::logic_error("models.def: unknown device class " + std::string(device_class));
}

// Gives each row its device class and modules; every row of a device class
// has its line in models.def and every line its row.
void applyModelDefs(std::vector<ModelInfo>& table) {
  for (const ModelDef& def : kModelDefs) {
    auto row = std::find_if(table.begin(), table.end(),
                            [&](const ModelInfo& r) { return r.class_name == def.class_name; });
    if (row == table.end())
      throw std::logic_error(std::string("models.def: no row for ") + def.class_name);
    row->device = deviceKindOf(def.device_class);
    row->modules = splitNames(def.modules);
    // DataLogger is a base of the model, not one of its I/O modules.
    const auto logger = std::find(row->modules.begin(), row->modules.end(), "DataLogger");
    if ((logger != row->modules.end()) != row->data_logger)
      throw std::logic_error(std::string("models.def: DataLogger in the line of ") +
                             def.class_name + " disagrees with its row");
    if (logger != row->modules.end()) row->modules.erase(logger);
    row->data_logger_first = std::find(std::begin(kLoggerFirst), std::end(kLoggerFirst),
                                       std::string_view(def.class_name)) != std::end(kLoggerFirst);
  }
  for (const ModelInfo& row : table)
    if (row.device == DeviceKind::None && row.class_name != "TrellisLite")
      throw std::logic_error("models.def: no line for " + row.class_name);
}

std::vector<ModelInfo> makeTable() {
  std::vector<ModelInfo> t;
  const PortMap heron_ai = {{0, {{1, 5}}}};

  // ---- Wi-Fi ----
  t.push_back({.class_name = "HeronAinImu",
               .label = "Heron-Ain-Imu",
               .data_logger = true,
               .ai_dict = heron_ai,
               .ahrs_dict = {{0, {{1, 5}}}},
               .ai = kAiHeronImu,
               .rtc_base_year = 2000});
  t.push_back({.class_name = "HeronAin",
               .label = "Heron-Ain",
               .data_logger = true,
               .ai_dict = heron_ai,
               .ai = kAiHeron,
               .rtc_base_year = 2000});
  t.push_back({.class_name = "HeronAinPlus",
               .label = "Heron-Ain-Plus",
               .data_logger = true,
               .ai_dict = heron_ai,
               .ai = kAiHeronPlus,
               .rtc_base_year = 2000});

  // ---- Ethernet ----
  t.push_back({.class_name = "Trellis",
               .label = "Trellis",
               .data_logger = true,
               .ai_dict = trellisSlots(),
               .ao_dict = trellisSlots(),
               .motion_dict = trellisSlots(),
               .di_dict = trellisDigital(),
               .do_dict = trellisDigital(),
               .dio_num_pins_per_port = 12,
               .ai = kAiTrellis,
               .ao = kAoTrellis,
               .dio_fixed_direction = true,
               .slot_ports = true});
  // An empty class: no device, no module.
  t.push_back({.class_name = "TrellisLite", .label = "Trellis-Lite"});
  t.push_back({.class_name = "MerlinDrive",
               .label = "Merlin-Drive",
               .data_logger = false,
               .mrdr_dict = {{0, {{1, 5}}}}});
  t.push_back({.class_name = "MerlinAxis",
               .label = "Merlin-Axis",
               .data_logger = true,
               .motion_dict = {{0, {{1, 5}}}}});
  t.push_back({.class_name = "KestrelAin",
               .label = "Kestrel-Ain",
               .data_logger = true,
               .ai_dict = {{0, {{1, 11}}}},
               .ai = kAiKestrel});
  t.push_back({.class_name = "KestrelDio",
               .label = "Kestrel-Dio",
               .data_logger = true,
               .di_dict = {{1, pins(0, 7)}},
               .do_dict = {{0, pins(0, 5)}},
               .dio_fixed_direction = true});
  t.push_back({.class_name = "KestrelDioX",
               .label = "Kestrel-Dio_X",
               .data_logger = true,
               .di_dict = {{2, pins(0, 7)}, {3, pins(0, 7)}},
               .do_dict = {{0, pins(0, 7)}, {1, pins(0, 7)}}});
  t.push_back(
      {.class_name = "KestrelCin", .label = "Kestrel-Cin", .data_logger = true, .ai = kAi24Cin});
  t.push_back(
      {.class_name = "KestrelCvin", .label = "Kestrel-Cvin", .data_logger = true, .ai = kAi24Cvin});
  t.push_back({.class_name = "KestrelRelay",
               .label = "Kestrel-Relay",
               .data_logger = true,
               .di_dict = {{1, pins(0, 5)}},
               .do_dict = {{0, pins(0, 5)}},
               .dio_fixed_direction = true});
  t.push_back({.class_name = "KestrelAout",
               .label = "Kestrel-Aout",
               .data_logger = true,
               .ao_dict = {{0, {{3, 11}}}},
               .ao = kAo10V});
  t.push_back({.class_name = "KestrelRes", .label = "Kestrel-Res", .data_logger = true});
  t.push_back({.class_name = "KestrelTherm",
               .label = "Kestrel-Therm",
               .data_logger = true,
               .thermal_dict = {{1, {{3, 11}}}},
               .thermal_channels = 7,
               .thermal_board = true});

  // ---- USB ----
  const DigitalMap ain_can_dio = {{0, pins(0, 7)}, {1, pins(0, 3)}, {2, {6, 7}}, {3, pins(0, 5)}};
  const DigitalMap tc_rtd_dio = {{0, pins(0, 7)}, {1, pins(0, 4)}, {2, {6, 7}}, {3, pins(0, 5)}};
  const DigitalMap dio_dio = {
      {0, pins(0, 7)}, {1, pins(0, 5)}, {2, {0, 1, 2, 3, 6, 7}}, {3, pins(0, 5)}};
  const DigitalMap aio_dio = {{0, pins(0, 7)}, {1, pins(0, 3)}, {2, {6, 7}}, {3, {0, 1}}};

  t.push_back({.class_name = "PloverDio",
               .label = "Plover-Dio",
               .data_logger = true,
               .uart_dict = kPloverUart,
               .I2C_dict = kPloverI2C,
               .SPI_dict = {{1, {{2, 1}, {2, 2}, {2, 3}}}, {2, {{3, 3}, {3, 4}, {3, 5}}}},
               .di_dict = dio_dio,
               .do_dict = dio_dio});
  t.push_back({.class_name = "PloverAin",
               .label = "Plover-Ain",
               .data_logger = true,
               .ai_dict = {{0, {{1, 5}}}},
               .uart_dict = kPloverUart,
               .I2C_dict = kPloverI2C,
               .SPI_dict = kPloverSpiPort2,
               .di_dict = ain_can_dio,
               .do_dict = ain_can_dio,
               .ai = kAiPlover});
  // PloverTc and PloverRtd differ in the sensors of their thermal module only.
  auto thermal_plover = [&](const char* class_name, const char* label) {
    return ModelInfo{.class_name = class_name,
                     .label = label,
                     .data_logger = true,
                     .thermal_dict = kPloverThermal,
                     .uart_dict = kPloverUart,
                     .I2C_dict = kPloverI2C,
                     .SPI_dict = kPloverSpiPort2,
                     .di_dict = tc_rtd_dio,
                     .do_dict = tc_rtd_dio};
  };
  t.push_back(thermal_plover("PloverTc", "Plover-Tc"));
  t.push_back({.class_name = "PloverCan",
               .label = "Plover-Can",
               .data_logger = true,
               .uart_dict = kPloverUart,
               .I2C_dict = kPloverI2C,
               .SPI_dict = kPloverSpiPort2,
               .can_dict = {{1, {{1, 4}, {1, 5}, {2, 0}, {2, 1}, {2, 2}, {2, 3}}}},
               .di_dict = ain_can_dio,
               .do_dict = ain_can_dio});
  t.push_back({.class_name = "PloverSink",
               .label = "Plover-Sink",
               .data_logger = true,
               .di_dict = {{0, pins(0, 7)}, {1, pins(0, 5)}},
               .do_dict = {{2, pins(0, 7)}, {3, pins(0, 3)}},
               .dio_fixed_direction = true});
  t.push_back({.class_name = "PloverAio",
               .label = "Plover-Aio",
               .data_logger = true,
               .ai_dict = {{0, {{1, 5}}}},
               .ao_dict = {{0, {{1, 4}}}},
               .uart_dict = kPloverUart,
               .I2C_dict = kPloverI2C,
               .di_dict = aio_dio,
               .do_dict = aio_dio,
               .ai = kAiPlover,
               .ao = kAoPlover});
  t.push_back(thermal_plover("PloverRtd", "Plover-Rtd"));
  applyModelDefs(t);
  return t;
}

}  // namespace

const char* deviceClassName(DeviceKind kind) {
  switch (kind) {
    case DeviceKind::Usb:
      return "USBDevice";
    case DeviceKind::Ethernet:
      return "ETHDevice";
    case DeviceKind::Wifi:
      return "WifiDevice";
    case DeviceKind::None:
      break;
  }
  return "";
}

const std::vector<ModelInfo>& modelTable() {
  static const std::vector<ModelInfo> table = makeTable();
  return table;
}

bool isModel(std::string_view class_name) {
  for (const auto& row : modelTable())
    if (row.class_name == class_name) return true;
  return false;
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

}  // namespace orv
