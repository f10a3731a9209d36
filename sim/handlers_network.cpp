// The network and Wi-Fi settings of the simulated firmware.
//
// Network (Ethernet and Wi-Fi devices): address and mask, gateway, MAC.  A
// new address is the device's network identity at once, so the next
// discovery answer shows it.  The gateway and MAC start from the device's
// configuration.
//
// Wi-Fi (Wi-Fi models only; others leave these commands unanswered): radio
// bandwidth, the two configuration words, RSSI, access-point mode, and the
// board's own LEDs and power lines (sim/pin_modes.hpp).
//
// Settings live in the key/value store of the device, so tests can read and
// preset them: "net.gateway", "net.mac" (text), "wifi.bandwidth",
// "wifi.retry_wifi_times", "wifi.ap_time", "wifi.ap_mode", "wifi.rssi" (dBm).
#include <string>

#include "sim/config.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr int SET_AP = 112;
constexpr int GET_RSSI = 113;
constexpr int SET_WIFI_CONFIGURATION = 116;
constexpr int GET_WIFI_CONFIGURATION = 117;
constexpr int SET_WIFI_BANDWIDTH = 118;
constexpr int GET_WIFI_BANDWIDTH = 119;
constexpr int GET_GATEWAY = 124;
constexpr int SET_GATEWAY = 125;
constexpr int READ_AND_GET_DI = 233;
constexpr int SET_AND_WRITE_DO = 234;
constexpr int GET_IP = 243;
constexpr int SET_IP = 244;
constexpr int GET_MAC = 245;
constexpr int SET_MAC = 246;

constexpr uint8_t kOk = 0;
constexpr uint8_t kParserError = 80;

// Defaults of the radio settings.
constexpr int kRetryWifiTimes = 5;
constexpr int kApTime = 60;
constexpr int kRssi = -56;

bool isNetworkDevice(const SimDevice& dev) { return dev.link() != Link::Usb; }

void putAddress(Bytes& out, const std::string& text) {
  unsigned char b[4] = {0, 0, 0, 0};
  parseIPv4(text, b);
  out.insert(out.end(), b, b + 4);
}

std::string gatewayOf(Context& ctx) {
  return ctx.state().get("net.gateway", Value(ctx.device().config().gateway)).asText();
}

std::string macOf(Context& ctx) {
  return ctx.state().get("net.mac", Value(ctx.device().config().mac)).asText();
}

// ---- network --------------------------------------------------------------------

void getGateway(Context& ctx, const Request&) {
  if (!isNetworkDevice(ctx.device())) return;
  Bytes out;
  putAddress(out, gatewayOf(ctx));
  ctx.reply(out);
}

void setGateway(Context& ctx, const Request& req) {
  if (!isNetworkDevice(ctx.device())) return;
  if (req.data.size() != 4) return ctx.reply({kParserError});
  ctx.state().set("net.gateway", formatIPv4(req.data.data()));
  ctx.reply({kOk});
}

void getIp(Context& ctx, const Request&) {
  SimDevice& dev = ctx.device();
  if (!isNetworkDevice(dev)) return;
  Bytes out;
  putAddress(out, dev.ipAddr());
  putAddress(out, dev.subnetMask());
  ctx.reply(out);
}

void setIp(Context& ctx, const Request& req) {
  SimDevice& dev = ctx.device();
  if (!isNetworkDevice(dev)) return;
  if (req.data.size() != 8) return ctx.reply({kParserError});
  dev.setNetwork(formatIPv4(req.data.data()), formatIPv4(req.data.data() + 4));
  ctx.reply({kOk});
}

void getMac(Context& ctx, const Request&) {
  if (!isNetworkDevice(ctx.device())) return;
  unsigned char b[6] = {0, 0, 0, 0, 0, 0};
  parseMac(macOf(ctx), b);
  ctx.reply(Bytes(b, b + 6));
}

// The discovery identity keeps the built-in MAC; GET_MAC answers the new one.
void setMac(Context& ctx, const Request& req) {
  if (!isNetworkDevice(ctx.device())) return;
  if (req.data.size() != 6) return ctx.reply({kParserError});
  ctx.state().set("net.mac", formatMac(req.data.data()));
  ctx.reply({kOk});
}

// ---- Wi-Fi ----------------------------------------------------------------------

void getWifiBandwidth(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  ctx.reply({static_cast<uint8_t>(ctx.state().get("wifi.bandwidth", 0).asInt())});
}

// Bandwidth 0 or 1.
void setWifiBandwidth(Context& ctx, const Request& req) {
  if (!isWifiModel(ctx.device())) return;
  if (req.data.size() != 1 || req.data[0] > 1) return ctx.reply({kParserError});
  ctx.state().set("wifi.bandwidth", int64_t{req.data[0]});
  ctx.reply({kOk});
}

void getWifiConfiguration(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  const int64_t retry = ctx.state().get("wifi.retry_wifi_times", kRetryWifiTimes).asInt();
  const int64_t ap = ctx.state().get("wifi.ap_time", kApTime).asInt();
  ctx.reply({static_cast<uint8_t>(retry >> 8), static_cast<uint8_t>(retry & 0xFF),
             static_cast<uint8_t>(ap >> 8), static_cast<uint8_t>(ap & 0xFF)});
}

// data: retry_wifi_times (2), ap_time (2).
void setWifiConfiguration(Context& ctx, const Request& req) {
  if (!isWifiModel(ctx.device())) return;
  if (req.data.size() != 4) return ctx.reply({kParserError});
  ctx.state().set("wifi.retry_wifi_times", int64_t{(req.data[0] << 8) | req.data[1]});
  ctx.state().set("wifi.ap_time", int64_t{(req.data[2] << 8) | req.data[3]});
  ctx.reply({kOk});
}

// One byte: the RSSI in dBm plus 256.
void getRssi(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  const int64_t dbm = ctx.state().get("wifi.rssi", kRssi).asInt();
  ctx.reply({static_cast<uint8_t>(dbm + 256)});
}

void setAp(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  ctx.state().set("wifi.ap_mode", true);
  ctx.reply({kOk});
}

// The board's own ports on Wi-Fi models.  Registered below the module
// priority: a DIO handler for these commands takes over and calls
// serveWifiBoardIO itself.
void boardIO(Context& ctx, const Request& req) { serveWifiBoardIO(ctx, req); }

const Registrar reg{{
    {GET_GATEWAY, getGateway},
    {SET_GATEWAY, setGateway},
    {GET_IP, getIp},
    {SET_IP, setIp},
    {GET_MAC, getMac},
    {SET_MAC, setMac},
    {GET_WIFI_BANDWIDTH, getWifiBandwidth},
    {SET_WIFI_BANDWIDTH, setWifiBandwidth},
    {GET_WIFI_CONFIGURATION, getWifiConfiguration},
    {SET_WIFI_CONFIGURATION, setWifiConfiguration},
    {GET_RSSI, getRssi},
    {SET_AP, setAp},
}};

const Registrar board{{{READ_AND_GET_DI, boardIO}, {SET_AND_WRITE_DO, boardIO}},
                      kModulePriority - 1};

}  // namespace

}  // namespace orv::sim
