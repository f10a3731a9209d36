// The system services of the simulated firmware: a running real-time clock,
// EEPROM pages, the serial number, factory reset, reboot, the thread list,
// pin modes of the digital ports, Trellis slot modes, and the board sensors
// of the Wi-Fi analog models (acceleration, battery, thermometer).
//
// Status bytes are the firmware's: 0 success, 11 a bad pin or slot index,
// 20 an RTC error, 40 an EEPROM error, 80 a payload the parser refuses.
#include <array>
#include <chrono>
#include <map>
#include <string>

#include "link/constants.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

using namespace std::chrono;

constexpr int RESET_FACTORY = 121;
constexpr int GET_SERIAL_NUMBER = 122;
constexpr int SET_SERIAL_NUMBER = 123;
constexpr int GET_THREADS = 126;
constexpr int GET_PIN_MODE_OF_SLOT = 127;
constexpr int GET_DATE_TIME = 241;
constexpr int SET_DATE_TIME = 242;
constexpr int GET_EEPROM_PAGE = 247;
constexpr int SET_EEPROM_PAGE = 248;
constexpr int GET_EEPROM_DEVICE = 249;
constexpr int REBOOT = 250;
constexpr int REBOOT_ON_BOOTLOADER = 251;
constexpr int SET_EEPROM_BYTE = 255;
constexpr int GET_SLOT_MODE = 2054;
constexpr int SET_SLOT_MODE = 2055;
constexpr int READ_ACCELERATION = 111;
constexpr int GET_BATTERY = 114;
constexpr int GET_THERMOMETER = 115;
constexpr int AI_RESET_BUFFER = 8213;

constexpr uint8_t kOk = 0;
constexpr uint8_t kBadIndex = 11;
constexpr uint8_t kRtcError = 20;
constexpr uint8_t kEepromError = 40;
constexpr uint8_t kParserError = 80;

// ---- real-time clock ------------------------------------------------------------
//
// The clock runs from the host's UTC time at first use.  Its year byte counts
// from 2000 on the Heron models and from 1900 on the others, both ways: a
// SET_DATE_TIME year byte is read from the same base.

struct RtcState {
  bool set = false;
  sys_seconds base;  // the clock's time at `at`
  steady_clock::time_point at;
};

int yearBase(const SimDevice& dev) { return modelInfo(dev.model()).rtc_base_year; }

sys_seconds rtcNow(SimDevice& dev) {
  auto s = dev.state().slot<RtcState>();
  if (!s->set) {
    s->base = floor<seconds>(system_clock::now());
    s->at = steady_clock::now();
    s->set = true;
  }
  return s->base + duration_cast<seconds>(steady_clock::now() - s->at);
}

void getDateTime(Context& ctx, const Request&) {
  SimDevice& dev = ctx.device();
  const sys_seconds now = rtcNow(dev);
  const sys_days today = floor<days>(now);
  const year_month_day ymd(today);
  const hh_mm_ss<seconds> hms(now - today);
  const int year_byte = static_cast<int>(ymd.year()) - yearBase(dev);
  ctx.reply({static_cast<uint8_t>(year_byte), static_cast<uint8_t>(unsigned(ymd.month())),
             static_cast<uint8_t>(unsigned(ymd.day())), static_cast<uint8_t>(hms.hours().count()),
             static_cast<uint8_t>(hms.minutes().count()),
             static_cast<uint8_t>(hms.seconds().count())});
}

void setDateTime(Context& ctx, const Request& req) {
  if (req.data.size() != 6) return ctx.reply({kParserError});
  SimDevice& dev = ctx.device();
  const auto& d = req.data;
  const year_month_day ymd{year(yearBase(dev) + d[0]), month(d[1]), day(d[2])};
  if (!ymd.ok() || d[3] > 23 || d[4] > 59 || d[5] > 59) return ctx.reply({kRtcError});
  {
    auto s = dev.state().slot<RtcState>();
    s->base = sys_days(ymd) + hours(d[3]) + minutes(d[4]) + seconds(d[5]);
    s->at = steady_clock::now();
    s->set = true;
  }
  ctx.reply({kOk});
}

// ---- EEPROM ---------------------------------------------------------------------
//
// One EEPROM (device 0) of 256 pages of 32 bytes, erased to 0xFF.
// GET_EEPROM_DEVICE answers: device number, page count (2 bytes), page size.

constexpr size_t kPageSize = 32;
constexpr int kPageCount = 256;

struct EepromState {
  std::map<int, Bytes> pages;
  Bytes& page(int p) {
    auto it = pages.find(p);
    if (it == pages.end()) it = pages.emplace(p, Bytes(kPageSize, 0xFF)).first;
    return it->second;
  }
};

void getEepromPage(Context& ctx, const Request& req) {
  if (req.data.empty()) return ctx.reply(Bytes{});
  ctx.reply(ctx.state().slot<EepromState>()->page(req.data[0]));
}

void setEepromPage(Context& ctx, const Request& req) {
  if (req.data.size() < 2) return ctx.reply({kParserError});
  if (req.data.size() - 1 > kPageSize) return ctx.reply({kEepromError});
  {
    auto e = ctx.state().slot<EepromState>();
    Bytes& page = e->page(req.data[0]);
    std::copy(req.data.begin() + 1, req.data.end(), page.begin());
  }
  ctx.reply({kOk});
}

void setEepromByte(Context& ctx, const Request& req) {
  if (req.data.size() != 3) return ctx.reply({kParserError});
  if (req.data[1] >= kPageSize) return ctx.reply({kEepromError});
  ctx.state().slot<EepromState>()->page(req.data[0])[req.data[1]] = req.data[2];
  ctx.reply({kOk});
}

void getEepromDevice(Context& ctx, const Request& req) {
  const uint8_t dev = req.data.empty() ? 0 : req.data[0];
  if (dev != 0) return ctx.reply({dev, 0, 0, 0});
  ctx.reply({0, kPageCount >> 8, kPageCount & 0xFF, static_cast<uint8_t>(kPageSize)});
}

// ---- identity and factory services ----------------------------------------------

std::string serialOf(Context& ctx) {
  return ctx.state().get("serial", Value(ctx.device().serial())).asText();
}

// Eight bytes of serial text, padded with spaces when shorter.
void getSerialNumber(Context& ctx, const Request&) {
  std::string s = serialOf(ctx).substr(0, 8);
  s.resize(8, ' ');
  ctx.reply(textBytes(s));
}

void setSerialNumber(Context& ctx, const Request& req) {
  if (req.data.empty()) return ctx.reply({kParserError});
  if (req.data.size() > 8) return ctx.reply({kEepromError});
  ctx.state().set("serial", std::string(req.data.begin(), req.data.end()));
  ctx.reply({kOk});
}

struct SlotState {
  std::array<uint8_t, 4> mode{};  // by slot port 0..3
};

// Settings back to the factory's: EEPROM erased, slots idle, pins idle,
// gateway and MAC as built, Wi-Fi settings cleared.  The serial number, the
// clock and the address the link runs on stay.
void resetFactory(Context& ctx, const Request&) {
  DeviceState& st = ctx.state();
  st.slot<EepromState>()->pages.clear();
  st.slot<SlotState>()->mode = {};
  resetPinModes(ctx.device());
  for (const char* key : {"net.gateway", "net.mac", "wifi.bandwidth", "wifi.retry_wifi_times",
                          "wifi.ap_time", "wifi.ap_mode", "wifi.leds"})
    st.erase(key);
  ctx.reply({kOk});
}

// Reboots a moment after the answer has gone out: the links drop and the
// pin modes return to their power-up state.
void reboot(Context& ctx, const Request& req) {
  if (req.data.size() != 1 || req.data[0] != req.cmd) return ctx.reply({kParserError});
  SimDevice& dev = ctx.device();
  ctx.reply({kOk});
  resetPinModes(dev);
  dev.startPeriodic(milliseconds(20), [&dev] {
    dev.reboot();
    return false;
  });
}

// The firmware's task list: name, state, priority, free stack words, number.
void getThreads(Context& ctx, const Request&) {
  SimDevice& dev = ctx.device();
  const bool streaming = dev.periodicCount() > 0;
  std::string text = "Name\tState\tPrio\tStack\tNum\r\n";
  text += "cmd_task\tR\t3\t412\t1\r\n";
  text += dev.link() == Link::Usb ? "usb_task\tB\t4\t196\t2\r\n" : "net_task\tB\t4\t188\t2\r\n";
  text += std::string("stream_task\t") + (streaming ? "R" : "B") + "\t3\t256\t3\r\n";
  text += "IDLE\tR\t0\t108\t4\r\n";
  ctx.reply(textBytes(text));
}

// ---- pin and slot modes ---------------------------------------------------------

void getPinModeOfSlot(Context& ctx, const Request& req) {
  if (req.data.empty()) return ctx.reply({0, 0});
  ctx.reply(pinModeReply(ctx.device(), req.data[0]));
}

// Trellis slots sit on ports 0, 1 and 3 (slots 1, 2 and 4).  GET_SLOT_MODE
// answers the count of entries and the mode of the slot asked for; other
// models have no slots and answer no entry.
bool isTrellisSlotPort(int port) { return port == 0 || port == 1 || port == 3; }

void getSlotMode(Context& ctx, const Request& req) {
  const int port = req.data.empty() ? -1 : req.data[0];
  if (ctx.device().model() != "Trellis" || !isTrellisSlotPort(port)) return ctx.reply({0});
  ctx.reply({1, ctx.state().slot<SlotState>()->mode[static_cast<size_t>(port)]});
}

// data: 2 x port, mode.
void setSlotMode(Context& ctx, const Request& req) {
  if (req.data.size() != 2 || req.data[1] > 6) return ctx.reply({kParserError});
  const int twice = req.data[0];
  if (ctx.device().model() != "Trellis" || twice % 2 != 0 || !isTrellisSlotPort(twice / 2))
    return ctx.reply({kBadIndex});
  ctx.state().slot<SlotState>()->mode[static_cast<size_t>(twice / 2)] = req.data[1];
  ctx.reply({kOk});
}

// ---- board sensors of the Wi-Fi analog models -----------------------------------
//
// Readings come from the key/value store, so tests can set them:
// "wifi.accel" (three signed counts), "wifi.battery" (the raw word),
// "wifi.thermo_raw" (signed, 128 counts a degree).  Other models do not
// know these commands and leave them unanswered.

void putWord(Bytes& out, int64_t v) {
  const auto w = static_cast<uint16_t>(v);
  out.push_back(static_cast<uint8_t>(w >> 8));
  out.push_back(static_cast<uint8_t>(w & 0xFF));
}

void readAcceleration(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  const Value v = ctx.state().get("wifi.accel", Value{-20, 5, 16384});
  Bytes out;
  for (int64_t a : v.toIntList()) putWord(out, a);
  ctx.reply(out);
}

void getBattery(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  Bytes out;
  putWord(out, ctx.state().get("wifi.battery", 4012).asInt());
  ctx.reply(out);
}

void getThermometer(Context& ctx, const Request&) {
  if (!isWifiModel(ctx.device())) return;
  Bytes out;
  putWord(out, ctx.state().get("wifi.thermo_raw", 3264).asInt());  // 25.5 degrees
  ctx.reply(out);
}

void aiResetBuffer(Context& ctx, const Request& req) {
  if (!isWifiModel(ctx.device())) return;
  if (req.data.size() != 1 || req.data[0] != 0) return ctx.reply({kParserError});
  ctx.reply({kOk});
}

const Registrar reg{{
    {GET_DATE_TIME, getDateTime},
    {SET_DATE_TIME, setDateTime},
    {GET_EEPROM_PAGE, getEepromPage},
    {SET_EEPROM_PAGE, setEepromPage},
    {SET_EEPROM_BYTE, setEepromByte},
    {GET_EEPROM_DEVICE, getEepromDevice},
    {GET_SERIAL_NUMBER, getSerialNumber},
    {SET_SERIAL_NUMBER, setSerialNumber},
    {RESET_FACTORY, resetFactory},
    {REBOOT, reboot},
    {REBOOT_ON_BOOTLOADER, reboot},
    {GET_THREADS, getThreads},
    {GET_PIN_MODE_OF_SLOT, getPinModeOfSlot},
    {GET_SLOT_MODE, getSlotMode},
    {SET_SLOT_MODE, setSlotMode},
    {READ_ACCELERATION, readAcceleration},
    {GET_BATTERY, getBattery},
    {GET_THERMOMETER, getThermometer},
    {AI_RESET_BUFFER, aiResetBuffer},
}};

}  // namespace

}  // namespace orv::sim
