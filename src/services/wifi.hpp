// WifiModule: the Wi-Fi models' own board — LEDs, power state, radio
// settings.  The LEDs and the power lines are pins of the board's own digital
// ports: outputs on port 0, inputs on port 1, reached through the digital
// port commands READ_AND_GET_DI and SET_AND_WRITE_DO (digital/dio.hpp).
#pragma once

#include <cstdint>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int SET_AP = 112;
inline constexpr int GET_RSSI = 113;
inline constexpr int SET_WIFI_CONFIGURATION = 116;
inline constexpr int GET_WIFI_CONFIGURATION = 117;
inline constexpr int SET_WIFI_BANDWIDTH = 118;
inline constexpr int GET_WIFI_BANDWIDTH = 119;

class WifiModule : public ModuleBase {
 public:
  // Bit 0 (power good) and bit 1 (charging) of input port 1: 0 or 1.
  int64_t Wifi_getPowerGoodStatus(const Call& c);
  int64_t Wifi_getChargeStatus(const Call& c);

  // Red pin 0, green pin 1, blue pin 2 of output port 0; each returns 0
  // without looking at the reply.
  int Wifi_resetLED(const Call& c);
  int Wifi_setRedLED(const Call& c, const Value& value);
  int Wifi_setGreenLED(const Call& c, const Value& value);
  int Wifi_setBlueLED(const Call& c, const Value& value);

  int64_t Wifi_getWifiBandWidth(const Call& c);
  // [retry_wifi_times, ap_time]
  std::vector<int64_t> Wifi_getWifiConfiguration(const Call& c);
  // dBm: the reply byte less 256.
  int64_t Wifi_readRSSI(const Call& c);
  int Wifi_setAP(const Call& c);
  // Bandwidths above 1 are sent as 1.
  int Wifi_setBandwidth(const Call& c, const Value& bandwidth);
  int _setWifiConfiguration(const Call& c, const Value& retry_wifi_times, const Value& ap_time);

  // Attributes holding the last result of a read.
  Attr<int64_t> bandwidth;
  Attr<int64_t> rssi;

 private:
  int64_t readPowerBit(const Call& c, int bit);
  int writeLED(const Call& c, uint16_t mask, uint16_t state);
};
ORV_MODULE_CLASS("Wifi", WifiModule);

}  // namespace orv
