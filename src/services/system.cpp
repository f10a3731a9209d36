#include "services/system.hpp"

#include <cstdio>

#include "link/convert.hpp"

namespace orv {

namespace {

std::vector<std::string> splitAt(const std::string& s, char sep) {
  std::vector<std::string> parts;
  size_t start = 0;
  for (;;) {
    size_t pos = s.find(sep, start);
    parts.push_back(s.substr(start, pos == std::string::npos ? std::string::npos : pos - start));
    if (pos == std::string::npos) return parts;
    start = pos + 1;
  }
}

// One payload byte from an int argument; out of 0..255 fails like bytes().
uint8_t byteOf(int64_t v) {
  if (v < 0 || v > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(v);
}

void needBytes(const Bytes& data_in, size_t n, int cmd) {
  if (data_in.size() < n)
    raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) + " holds " +
                                         std::to_string(data_in.size()) + " bytes, " +
                                         std::to_string(n) + " expected.");
}

}  // namespace

std::vector<std::string> SystemModule::Sys_getDriverInfo(const Call& c) {
  const Bytes data_in = c.exchange(GET_DRIVER_INFO, {0});
  auto parts = splitAt(convertU8ListToStr(data_in), '_');
  driver_info.set(parts);
  return parts;
}

std::string SystemModule::Sys_getSerialNumber(const Call& c) {
  const Bytes data_in = c.exchange(GET_SERIAL_NUMBER, std::span<const uint8_t>());
  const size_t n = std::min<size_t>(8, data_in.size());
  std::string s = convertU8ListToStr(std::span<const uint8_t>(data_in.data(), n));
  serial_number.set(s);
  return s;
}

std::string SystemModule::Sys_getRTC(const Call& c) {
  const Bytes data_in = c.exchange(GET_DATE_TIME, {0});
  needBytes(data_in, 6, GET_DATE_TIME);
  // Heron models count the year from 2000, the others from 1900.
  const int base = device().deviceName().find("Heron") != std::string::npos ? 2000 : 1900;
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d, %02d:%02d:%02d", base + data_in[0], data_in[1],
                data_in[2], data_in[3], data_in[4], data_in[5]);
  rtc_time.set(text);
  return text;
}

int SystemModule::Sys_setRTC(const Call& c, const Value& year_in, const Value& month,
                             const Value& day, const Value& hour, const Value& minute,
                             const Value& second) {
  Value year = year_in;
  if (!year.isNumber())
    throw TypeError("'<' not supported between instances of '" + std::string(year.typeName()) +
                    "' and 'int'");
  if (year.isInt() ? year.asInt() < 100 : year.asFloat() < 100)
    year = year.isInt() ? Value(year.asInt() + 1900) : Value(year.asFloat() + 1900);
  for (const Value* a : std::initializer_list<const Value*>{&year, &month, &day, &hour, &minute, &second})
    checkInputType(*a, kTypeInt);
  // The year goes out from 1900 on every model.
  const Bytes data_out{byteOf(year.asInt() - 1900), byteOf(month.asInt()), byteOf(day.asInt()),
                       byteOf(hour.asInt()),        byteOf(minute.asInt()), byteOf(second.asInt())};
  return c.statusTail(SET_DATE_TIME, data_out, 0);
}

}  // namespace orv
