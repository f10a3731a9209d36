// A row of the model table: what a model is and which ports its modules have.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
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

// "USBDevice", "ETHDevice", "WifiDevice"; "" for None.
const char* deviceClassName(DeviceKind kind);

// How a model bounds the analog input sampling rate.
enum class AiRateRule {
  None,           // no limit
  Fixed,          // AiParams::rate_limit
  ByChannels,     // by the number of enabled channels (Plover)
  ByChipSelects,  // by the chip selects enabled on the port (slotted)
};

// What a model gives its analog input module.
struct AiParams {
  int max_rate = 0;       // top rate in Hz
  double ratio = 0.0;     // volts per count of a signed 16-bit value
  int num_channels = 0;   // channels per sample at start
  bool variable = false;  // the _VARIABLE commands for on-demand reads and streaming
  // Slotted (Trellis): the user's port is a slot number, one less is the
  // port; chip selects per port, one stream per (port, chip select).
  bool slots = false;
  bool open_silent = false;     // AI_open and AI_close send nothing
  bool open_streaming = true;   // AI_start sends OPEN_AI_STREAMING first
  bool channels_fixed = false;  // AI_enableChannel is refused
  AiRateRule rate_rule = AiRateRule::None;
  int rate_limit = 0;  // for AiRateRule::Fixed
  // 24-bit inputs: how many ports (0..ai24_ports-1) the model has; 0 means
  // the port is not checked.
  int ai24_ports = 0;
};

// What a model gives its analog output module.
struct AoParams {
  int volt_min = 0;  // bounds of a written value, volts
  int volt_max = 0;
  int channel = 0;  // channel count
  int rate = 0;     // top sampling rate, Hz
  // Slotted (Trellis): the user's port is a slot number; the streaming and
  // setting operations do nothing and return no value.
  bool slots = false;
  bool open_silent = false;  // AO_open and AO_close send nothing
};

struct ModelInfo {
  std::string class_name;
  std::string label;
  DeviceKind device = DeviceKind::None;
  bool data_logger = false;
  // DataLogger stands before the device class among the host class's bases.
  bool data_logger_first = false;
  // Names of the modules the model has, in their order ("System", "DIO", ...),
  // and its device class: from models/models.def.
  std::vector<std::string> modules;

  PortMap ai_dict, ao_dict, thermal_dict, ahrs_dict, uart_dict, I2C_dict, SPI_dict, can_dict,
      motion_dict, mrdr_dict;
  DigitalMap di_dict, do_dict;
  int dio_num_pins_per_port = 8;

  // Meaningful where the model has "AI" and "AO".
  AiParams ai;
  AoParams ao;

  // The hardware fixes the direction of every digital pin: direction changes
  // of DIOModule do nothing and return 0.
  bool dio_fixed_direction = false;
  // Channels of each thermal port (thermocouple chips on KestrelTherm).
  int thermal_channels = 2;
  // KestrelTherm: the thermal port has pins of its own; opening it checks no
  // pin modes and closing it sends nothing.
  bool thermal_board = false;
  // Ports of the public operations are slot numbers from 1: the operation
  // first takes changeToTrellisPort of the port (Trellis).
  bool slot_ports = false;
  // The year the real-time clock counts from.
  int rtc_base_year = 1900;

  bool has(std::string_view module) const {
    for (const auto& m : modules)
      if (m == module) return true;
    return false;
  }
  bool isWifi() const { return device == DeviceKind::Wifi; }
  bool isUsb() const { return device == DeviceKind::Usb; }
  bool isEthernet() const { return device == DeviceKind::Ethernet; }
};

using LabelEntries = std::vector<std::pair<std::string, std::string>>;
using HandleGroups = std::vector<std::pair<std::string, std::vector<std::string>>>;

// The row of a class name; a row with only the name for classes outside the
// table (the bare device classes).
const ModelInfo& modelInfo(std::string_view class_name);
// Every model row, in the table's order.
const std::vector<ModelInfo>& modelTable();
// True for a class name of the table.
bool isModel(std::string_view class_name);

// LABEL_DICT lookup of a class name; the class name itself when unknown.
std::string labelFor(const std::string& class_name);

// LABEL_DICT in its order: the groups, the utility handles, every model, then
// the example categories and examples (models/catalogue.cpp).
const LabelEntries& labelEntries();
// HANDLE_DICT in its order: "utilities", "wireless", "ethernet", "USB".
const HandleGroups& handleGroups();
// PRODUCT_LIST (wireless, ethernet and USB handles) and HANDLE_LIST (all).
std::vector<std::string> productList();
std::vector<std::string> handleList();

}  // namespace orv
