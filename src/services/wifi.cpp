#include "services/wifi.hpp"

#include <span>

#include "digital/dio.hpp"
#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

using services::needBytes;

namespace {

const std::span<const uint8_t> kNoData;

// True when value is above 0 (numbers only, as a comparison takes them).
bool above0(const Value& value) {
  const auto cmp = compareNumbers(value, Value(0));
  return cmp && *cmp > 0;
}

}  // namespace

// ---- power lines ----------------------------------------------------------------

int64_t WifiModule::readPowerBit(const Call& c, int bit) {
  const uint16_t mask = static_cast<uint16_t>(1u << bit);
  Bytes data_out{1};
  appendBytes(data_out, convertU16To2U8(mask));
  const Bytes data_in = c.exchange(READ_AND_GET_DI, data_out);
  needBytes(data_in, 3, READ_AND_GET_DI);
  const int64_t data = convert2U8ToU16(std::span(data_in).subspan(1));
  return readBit(data, bit);
}

int64_t WifiModule::Wifi_getPowerGoodStatus(const Call& c) { return readPowerBit(c, 0); }
int64_t WifiModule::Wifi_getChargeStatus(const Call& c) { return readPowerBit(c, 1); }

// ---- LEDs -----------------------------------------------------------------------

int WifiModule::writeLED(const Call& c, uint16_t mask, uint16_t state) {
  Bytes data_out{0};
  appendBytes(data_out, convertU16To2U8(mask));
  appendBytes(data_out, convertU16To2U8(state));
  c.exchange(SET_AND_WRITE_DO, data_out);
  return 0;
}

int WifiModule::Wifi_resetLED(const Call& c) { return writeLED(c, 7, 0); }
int WifiModule::Wifi_setRedLED(const Call& c, const Value& value) {
  return writeLED(c, 1, above0(value) ? 1 : 0);
}
int WifiModule::Wifi_setGreenLED(const Call& c, const Value& value) {
  return writeLED(c, 2, above0(value) ? 2 : 0);
}
int WifiModule::Wifi_setBlueLED(const Call& c, const Value& value) {
  return writeLED(c, 4, above0(value) ? 4 : 0);
}

// ---- radio ----------------------------------------------------------------------

int64_t WifiModule::Wifi_getWifiBandWidth(const Call& c) {
  const Bytes data_in = c.exchange(GET_WIFI_BANDWIDTH, kNoData);
  needBytes(data_in, 1, GET_WIFI_BANDWIDTH);
  bandwidth.set(data_in[0]);
  return data_in[0];
}

std::vector<int64_t> WifiModule::Wifi_getWifiConfiguration(const Call& c) {
  const Bytes data_in = c.exchange(GET_WIFI_CONFIGURATION, kNoData);
  needBytes(data_in, 4, GET_WIFI_CONFIGURATION);
  std::vector<int64_t> wifi_configuration;
  for (size_t i = 0; i < 2; ++i)
    wifi_configuration.push_back(convert2U8ToU16(std::span(data_in).subspan(2 * i, 2)));
  return wifi_configuration;
}

int64_t WifiModule::Wifi_readRSSI(const Call& c) {
  const Bytes data_in = c.exchange(GET_RSSI, kNoData);
  needBytes(data_in, 1, GET_RSSI);
  const int64_t v = int64_t{data_in[0]} - 256;
  rssi.set(v);
  return v;
}

int WifiModule::Wifi_setAP(const Call& c) { return c.exchangeStatus(SET_AP, kNoData, 0); }

int WifiModule::Wifi_setBandwidth(const Call& c, const Value& bw) {
  checkInputType(bw, kTypeInt);
  const int64_t limited = std::min<int64_t>(bw.asInt(), 1);
  const uint8_t data_out[] = {services::byteArg(Value(limited))};
  return c.exchangeStatus(SET_WIFI_BANDWIDTH, data_out, 0);
}

int WifiModule::_setWifiConfiguration(const Call& c, const Value& retry_wifi_times,
                                      const Value& ap_time) {
  checkInputType(retry_wifi_times, kTypeInt);
  checkInputType(ap_time, kTypeInt);
  Bytes data_out = convertU16To2U8(retry_wifi_times);
  const Bytes b = convertU16To2U8(ap_time);
  data_out.insert(data_out.end(), b.begin(), b.end());
  return c.exchangeStatus(SET_WIFI_CONFIGURATION, data_out, 0);
}

}  // namespace orv
