// The simulated firmware's I2C masters and the slaves on their buses.
//
// Every I2C port of the model (a key of I2C_dict) is a bus of its own with
// two slaves:
//   0x50  a 24C02-style EEPROM: 256 bytes, 8-byte pages.  A write's first
//         byte sets the word address, the bytes after it are stored from
//         there and wrap within their page, as the chip's page buffer does;
//         the address then points past the last byte written.  A read
//         returns bytes from the word address on and advances it, wrapping
//         at 256 (a one-byte write followed by a read is a random read).
//   0x48  an LM75-style temperature sensor: a write's first byte selects
//         the register (0 temperature, 1 configuration, 2 hysteresis,
//         3 over-temperature), further bytes write it (not the
//         temperature); a read returns the selected register, high byte
//         first, repeated for longer reads.  Temperatures are 9-bit two's
//         complement in half degrees, left-aligned in 16 bits.
// Addresses are 7-bit; any other address is not acknowledged.
//
// Replies: status commands answer [port, status]; READ_I2C answers [port,
// status, count, bytes...].  Status 21 (the firmware's I2C error) answers a
// NACK, a port that is not open, or a port the model lacks; a failed read
// carries no bytes.  OPEN_I2C moves the port's pins to the I2C mode
// (refused with 21 while a pin is in a mode other than Idle, DI or DO),
// CLOSE_I2C gives them back as Idle.
//
// Keys of the device's key/value store:
//   "i2c.lm75.temp"       float, the temperature the sensor measures in
//                         degrees Celsius (25.0 when unset)
//   "i2c.rate.<port>"     int, the last rate SET_I2C_FREQUENCY set, in Hz
//                         (written by the firmware; 100000 after open)
//   "i2c.addr_size.<port>" int, the last mode SET_I2C_ADDR_SIZE set
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

#include "buses/i2c.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusI2C = 21;
constexpr int kEepromAddr = 0x50;
constexpr int kSensorAddr = 0x48;
constexpr int kPage = 8;

struct I2CBus {
  bool open = false;
  std::array<uint8_t, 256> eeprom{};
  uint8_t eeprom_ptr = 0;
  uint8_t sensor_ptr = 0;
  std::array<uint16_t, 4> sensor_regs{0, 0, 75 << 8, 80 << 8};  // temperature comes from the store
};

struct I2CSim {
  std::map<int, I2CBus> buses;
};

const std::vector<PinPair>* portPins(Context& ctx, int port) {
  const auto& map = modelInfo(ctx.device().model()).I2C_dict;
  auto it = map.find(port);
  return it == map.end() ? nullptr : &it->second;
}

void status(Context& ctx, int port, uint8_t s) { ctx.reply({static_cast<uint8_t>(port), s}); }

uint16_t sensorTemperature(Context& ctx) {
  const Value t = ctx.state().get("i2c.lm75.temp", Value(25.0));
  const double c = t.isNumber() ? t.asFloat() : 25.0;
  const auto halves = static_cast<int>(std::lround(std::clamp(c, -55.0, 125.0) * 2));
  return static_cast<uint16_t>(static_cast<int16_t>(halves * 128));
}

// A write transfer to a slave; false for an address nobody answers.
bool slaveWrite(I2CBus& bus, int addr, std::span<const uint8_t> bytes) {
  if (addr == kEepromAddr) {
    if (bytes.empty()) return true;
    uint8_t a = bytes[0];
    const uint8_t page = a & static_cast<uint8_t>(~(kPage - 1));
    for (size_t i = 1; i < bytes.size(); ++i) {
      bus.eeprom[a] = bytes[i];
      a = static_cast<uint8_t>(page | ((a + 1) & (kPage - 1)));
    }
    bus.eeprom_ptr = a;
    return true;
  }
  if (addr == kSensorAddr) {
    if (bytes.empty()) return true;
    bus.sensor_ptr = bytes[0] & 3;
    if (bytes.size() >= 2 && bus.sensor_ptr != 0) {
      const uint16_t hi = bytes[1];
      const uint16_t lo = bytes.size() >= 3 ? bytes[2] : 0;
      bus.sensor_regs[bus.sensor_ptr] =
          bus.sensor_ptr == 1 ? hi : static_cast<uint16_t>(((hi << 8) | lo) & 0xFF80);
    }
    return true;
  }
  return false;
}

// A read transfer; false for an address nobody answers.
bool slaveRead(Context& ctx, I2CBus& bus, int addr, size_t n, Bytes& out) {
  if (addr == kEepromAddr) {
    for (size_t i = 0; i < n; ++i) out.push_back(bus.eeprom[bus.eeprom_ptr++]);
    return true;
  }
  if (addr == kSensorAddr) {
    const uint16_t reg =
        bus.sensor_ptr == 0 ? sensorTemperature(ctx) : bus.sensor_regs[bus.sensor_ptr];
    const bool one_byte = bus.sensor_ptr == 1;
    for (size_t i = 0; i < n; ++i)
      out.push_back(one_byte ? static_cast<uint8_t>(reg)
                             : static_cast<uint8_t>(i % 2 == 0 ? reg >> 8 : reg & 0xFF));
    return true;
  }
  return false;
}

void openI2C(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto* pins = portPins(ctx, port);
  if (!pins) return status(ctx, port, kStatusI2C);
  for (const PinPair& p : *pins) {
    const auto modes = pinModes(ctx.device(), p.port);
    if (p.pin >= static_cast<int>(modes.size())) return status(ctx, port, kStatusI2C);
    const PinMode m = modes[static_cast<size_t>(p.pin)];
    if (m != PinMode::Idle && m != PinMode::DI && m != PinMode::DO && m != PinMode::I2C)
      return status(ctx, port, kStatusI2C);
  }
  setPinModes(ctx.device(), *pins, PinMode::I2C);
  ctx.state().slot<I2CSim>()->buses[port].open = true;
  ctx.state().set("i2c.rate." + std::to_string(port), Value(100000));
  status(ctx, port, 0);
}

void closeI2C(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto* pins = portPins(ctx, port);
  if (!pins) return status(ctx, port, kStatusI2C);
  {
    auto sim = ctx.state().slot<I2CSim>();
    if (sim->buses[port].open) setPinModes(ctx.device(), *pins, PinMode::Idle);
    sim->buses[port].open = false;
  }
  status(ctx, port, 0);
}

// A command on an open port: fn(bus) answers the status.
template <typename Fn>
void onOpenPort(Context& ctx, const Request& req, size_t need, Fn fn, size_t echo = 1) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  if (!portPins(ctx, port) || req.data.size() < need) return echoStatus(ctx, req, echo, kStatusI2C);
  uint8_t s = kStatusI2C;
  {
    auto sim = ctx.state().slot<I2CSim>();
    I2CBus& bus = sim->buses[port];
    if (bus.open) s = fn(bus);
  }
  echoStatus(ctx, req, echo, s);
}

void resetI2C(Context& ctx, const Request& req) {
  onOpenPort(ctx, req, 1, [](I2CBus& bus) {
    bus.sensor_ptr = 0;
    return uint8_t{0};
  });
}

void setFrequency(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onOpenPort(ctx, req, 5, [&](I2CBus&) {
    const int64_t hz = (int64_t{d[1]} << 24) | (d[2] << 16) | (d[3] << 8) | d[4];
    ctx.state().set("i2c.rate." + std::to_string(d[0]), Value(hz));
    return uint8_t{0};
  });
}

void setAddrSize(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onOpenPort(ctx, req, 2, [&](I2CBus&) {
    if (d[1] > 1) return kStatusI2C;
    ctx.state().set("i2c.addr_size." + std::to_string(d[0]), Value(int{d[1]}));
    return uint8_t{0};
  });
}

// port, address, count, bytes -> port, address, count, status
void writeI2C(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onOpenPort(
      ctx, req, 3,
      [&](I2CBus& bus) {
        const size_t n = std::min<size_t>(d[2], d.size() - 3);
        return slaveWrite(bus, d[1], std::span(d).subspan(3, n)) ? uint8_t{0} : kStatusI2C;
      },
      3);
}

// port, address, count -> port, status, count, bytes
void readI2C(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  if (d.empty()) return;
  const int port = d[0];
  Bytes out{static_cast<uint8_t>(port), kStatusI2C, 0};
  if (portPins(ctx, port) && d.size() >= 3) {
    auto sim = ctx.state().slot<I2CSim>();
    I2CBus& bus = sim->buses[port];
    if (bus.open && slaveRead(ctx, bus, d[1], d[2], out)) {
      out[1] = 0;
      out[2] = d[2];
    }
  }
  ctx.reply(out);
}

const Registrar kI2C{{
    {OPEN_I2C, openI2C},
    {READ_I2C, readI2C},
    {WRITE_I2C, writeI2C},
    {CLOSE_I2C, closeI2C},
    {RESET_I2C, resetI2C},
    {SET_I2C_FREQUENCY, setFrequency},
    {SET_I2C_ADDR_SIZE, setAddrSize},
}};

}  // namespace

}  // namespace orv::sim
