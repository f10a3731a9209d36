#include "services/system_analog.hpp"

#include <span>

#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

using services::needBytes;

std::vector<int64_t> SystemAnalogModule::Wifi_readAcceleration(const Call& c) {
  const Bytes data_in = c.exchange(READ_ACCELERATION, std::span<const uint8_t>());
  needBytes(data_in, 6, READ_ACCELERATION);
  std::vector<int64_t> accleration_three_axis;
  for (size_t i = 0; i < 3; ++i)
    accleration_three_axis.push_back(convert2U8ToU16(std::span(data_in).subspan(2 * i, 2)));
  return accleration_three_axis;
}

int64_t SystemAnalogModule::Wifi_readBattery(const Call& c) {
  const Bytes data_in = c.exchange(GET_BATTERY, std::span<const uint8_t>());
  needBytes(data_in, 2, GET_BATTERY);
  const int64_t v = convert2U8ToU16(std::span(data_in).first(2));
  battery.set(v);
  return v;
}

double SystemAnalogModule::Wifi_readThermo(const Call& c) {
  const Bytes data_in = c.exchange(GET_THERMOMETER, std::span<const uint8_t>());
  needBytes(data_in, 2, GET_THERMOMETER);
  const double v = convert2U8ToI16(std::span(data_in).first(2)) / 128.0;
  thermo.set(v);
  return v;
}

int SystemAnalogModule::Wifi_resetAIBuffer_(const Call& c) {
  const uint8_t data_out[] = {0};
  return c.exchangeStatus(AI_RESET_BUFFER, data_out, 0);
}

}  // namespace orv
