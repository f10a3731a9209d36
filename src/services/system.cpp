#include "services/system.hpp"

#include <algorithm>
#include <cstdio>
#include <initializer_list>

#include "link/convert.hpp"

namespace orv {

namespace services {

uint8_t byteArg(const Value& v) {
  if (!v.isInt())
    throw TypeError("'" + std::string(v.typeName()) +
                    "' object cannot be interpreted as an integer");
  const int64_t i = v.asInt();
  if (i < 0 || i > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(i);
}

void needBytes(const Bytes& data_in, size_t n, int cmd) {
  if (data_in.size() < n)
    raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) + " holds " +
                                         std::to_string(data_in.size()) + " bytes, " +
                                         std::to_string(n) + " expected.");
}

std::vector<int64_t> intList(const Bytes& data) { return {data.begin(), data.end()}; }

}  // namespace services

using services::byteArg;
using services::needBytes;

namespace {

const std::span<const uint8_t> kNoData;

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

// A mode code the tables do not know: the reply does not fit the firmware's
// vocabulary.
[[noreturn]] void unknownMode(int cmd, int code) {
  raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) +
                                       " holds the unknown mode " + std::to_string(code) + ".");
}

}  // namespace

// ---- SystemBased ----------------------------------------------------------------

void SystemBased::_checkTrellisSlot(const Value& slot) {
  checkInputType(slot, kTypeInt);
  const int64_t s = slot.asInt();
  if (s != 1 && s != 2 && s != 4) raise(ErrorId::TrellisPortNotAvaliableError);
}

// ---- identity -------------------------------------------------------------------

std::vector<std::string> SystemModule::Sys_getDriverInfo(const Call& c) {
  const Bytes data_in = c.exchange(GET_DRIVER_INFO, {0});
  auto parts = splitAt(replyText(GET_DRIVER_INFO, data_in), '_');
  driver_info.set(Value::listOf(parts));
  return parts;
}

// Answered by the driver itself; nothing goes to the device.
std::string SystemModule::Sys_getPythonVersion(const Call& c) {
  c.checkCancelled();
  return std::string(kDriverVersion);
}

std::string SystemModule::Sys_getSerialNumber(const Call& c) {
  const Bytes data_in = c.exchange(GET_SERIAL_NUMBER, kNoData);
  const size_t n = std::min<size_t>(8, data_in.size());
  std::string s = replyText(GET_SERIAL_NUMBER, std::span<const uint8_t>(data_in.data(), n));
  serial_number.set(s);
  return s;
}

std::string SystemModule::_getDriverInfo_dev(const Call& c, const Value& mode) {
  const uint8_t data_out[] = {byteArg(mode)};
  const Bytes data_in = c.exchange(GET_DRIVER_INFO, data_out);
  std::string s = replyText(GET_DRIVER_INFO, data_in);
  driver_info.set(Value(s));
  return s;
}

int SystemModule::_setSerialNumber(const Call& c, const Value& serial_num) {
  if (!serial_num.isText())
    throw TypeError("'" + std::string(serial_num.typeName()) + "' object is not iterable");
  Bytes data_out;
  for (int64_t cp : convertStrToU8List(serial_num.asText())) data_out.push_back(byteOf(cp));
  return c.exchangeStatus(SET_SERIAL_NUMBER, data_out, 0);
}

// ---- real-time clock ------------------------------------------------------------

std::string SystemModule::Sys_getRTC(const Call& c) {
  const Bytes data_in = c.exchange(GET_DATE_TIME, {0});
  needBytes(data_in, 6, GET_DATE_TIME);
  // Heron models count the year from 2000, the others from 1900.
  const int base = model().rtc_base_year;
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
  // A two-digit year is one of this century: 24 and 2024 both go out as 124.
  if (year.isInt() ? year.asInt() < 100 : year.asFloat() < 100)
    year = year.isInt() ? Value(year.asInt() + 2000) : Value(year.asFloat() + 2000);
  for (const Value* a :
       std::initializer_list<const Value*>{&year, &month, &day, &hour, &minute, &second})
    checkInputType(*a, kTypeInt);
  // The year goes out from 1900 on every model.
  const Bytes data_out{byteOf(year.asInt() - 1900), byteOf(month.asInt()),  byteOf(day.asInt()),
                       byteOf(hour.asInt()),        byteOf(minute.asInt()), byteOf(second.asInt())};
  return c.exchangeStatus(SET_DATE_TIME, data_out, 0);
}

// ---- pin and slot modes ---------------------------------------------------------

std::vector<std::string> SystemModule::Sys_getPinModeInPort(const Call& c, const Value& port) {
  checkInputType(port, kTypeInt);
  const uint8_t data_out[] = {byteArg(port)};
  const Bytes data_in = c.exchange(GET_PIN_MODE_OF_SLOT, data_out);
  needBytes(data_in, 1, GET_PIN_MODE_OF_SLOT);
  const int64_t pins = data_in[0];
  const int64_t pairs = (pins + 1) / 2;
  needBytes(data_in, static_cast<size_t>(2 + pairs), GET_PIN_MODE_OF_SLOT);
  // Two modes a byte, low half first; byte 1 is not read.  An odd pin count
  // still takes both halves of the last byte.
  std::vector<int64_t> modes;
  for (int64_t i = 0; i < pairs; ++i) {
    const uint8_t b = data_in[static_cast<size_t>(2 + i)];
    modes.push_back(b & 0x0F);
    modes.push_back(b >> 4);
  }
  num_of_pins.set(pins);
  pin_mode_list.set(modes);
  std::vector<std::string> names;
  for (int64_t m : modes) {
    if (m >= static_cast<int64_t>(std::size(kPinModeNames)))
      unknownMode(GET_PIN_MODE_OF_SLOT, static_cast<int>(m));
    names.emplace_back(kPinModeNames[m]);
  }
  return names;
}

std::vector<std::string> SystemModule::Sys_getMode(const Call& c, const Value& slot) {
  _checkTrellisSlot(slot);
  const uint8_t data_out[] = {byteOf(changeToTrellisPort(slot.asInt()))};
  const Bytes data_in = c.exchange(GET_SLOT_MODE, data_out);
  needBytes(data_in, 1, GET_SLOT_MODE);
  const size_t num_port = data_in[0];
  needBytes(data_in, 1 + num_port, GET_SLOT_MODE);
  std::vector<std::string> mode_list;
  for (size_t i = 0; i < num_port; ++i) {
    const int state = data_in[1 + i] & 15;
    if (state >= static_cast<int>(std::size(kSlotModeNames))) unknownMode(GET_SLOT_MODE, state);
    mode_list.emplace_back(kSlotModeNames[state]);
  }
  return mode_list;
}

int SystemModule::Sys_setSlotMode_(const Call& c, const Value& slot, const Value& mode) {
  _checkTrellisSlot(slot);
  const int64_t port = changeToTrellisPort(slot.asInt());
  const uint8_t data_out[] = {byteOf(2 * port), byteArg(mode)};
  const Bytes data_in = c.exchange(SET_SLOT_MODE, data_out);
  needBytes(data_in, 1, SET_SLOT_MODE);
  return data_in[0];
}

int SystemModule::Sys_setIdleMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 0);
}
int SystemModule::Sys_setDIMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 1);
}
int SystemModule::Sys_setDOMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 2);
}
int SystemModule::Sys_setDIOMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 3);
}
int SystemModule::Sys_setMotionMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 4);
}
int SystemModule::Sys_setAIOMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 5);
}
int SystemModule::Sys_setSwitchMode(const Call& c, const Value& slot) {
  return Sys_setSlotMode_(c, slot, 6);
}

// ---- reboot ---------------------------------------------------------------------

// The payload is the command's own value.
int SystemModule::Sys_reboot(const Call& c) {
  const uint8_t data_out[] = {REBOOT};
  return c.exchangeStatus(REBOOT, data_out, 0);
}

int SystemModule::Sys_rebootOnBootloader(const Call& c) {
  const uint8_t data_out[] = {REBOOT_ON_BOOTLOADER};
  return c.exchangeStatus(REBOOT_ON_BOOTLOADER, data_out, 0);
}

// ---- EEPROM and factory services ------------------------------------------------

std::vector<int64_t> SystemModule::_getEEPROMPage(const Call& c, const Value& page_number) {
  const uint8_t data_out[] = {byteArg(page_number)};
  return services::intList(c.exchange(GET_EEPROM_PAGE, data_out));
}

std::vector<int64_t> SystemModule::_getEEPROMDevice(const Call& c, const Value& device_number) {
  const uint8_t data_out[] = {byteArg(device_number)};
  return services::intList(c.exchange(GET_EEPROM_DEVICE, data_out));
}

int SystemModule::_setEEPROMPage(const Call& c, const Value& page_number, const Value& int_list) {
  Bytes data_out{byteArg(page_number)};
  if (!int_list.isSequence() && !int_list.isBytes())
    throw TypeError("'" + std::string(int_list.typeName()) + "' object is not iterable");
  if (int_list.isBytes()) {
    const Bytes& b = int_list.asBytes();
    data_out.insert(data_out.end(), b.begin(), b.end());
  } else {
    for (const Value& v : int_list.asList()) data_out.push_back(byteArg(v));
  }
  return c.exchangeStatus(SET_EEPROM_PAGE, data_out, 0);
}

int SystemModule::_setEEPROMByte(const Call& c, const Value& page_number, const Value& byte_index,
                                 const Value& value) {
  const uint8_t data_out[] = {byteArg(page_number), byteArg(byte_index), byteArg(value)};
  return c.exchangeStatus(SET_EEPROM_BYTE, data_out, 0);
}

int SystemModule::_resetFactory(const Call& c) {
  return c.exchangeStatus(RESET_FACTORY, kNoData, 0);
}

std::string SystemModule::_getThreads(const Call& c) {
  std::string s = replyText(GET_THREADS, c.exchange(GET_THREADS, kNoData));
  thread_info.set(s);
  return s;
}

}  // namespace orv
