// The simulated firmware's SPI masters and the slave on their buses.
//
// Each command is one transfer with the select line held for its length (a
// script drives the real select line itself).  The slave on every port is
// chosen by the key "spi.slave":
//   "loopback"   (default) MISO is wired to MOSI: each byte read is the byte
//                written in the same clock.
//   "registers"  a register file of 128 bytes: the first byte of a transfer
//                is the command, bit 7 set for a read, bits 0..6 the first
//                register; a write stores the bytes after it in consecutive
//                registers, a read clocks consecutive registers out on the
//                bytes after it (the command byte itself reads 0).  The
//                register number wraps at 128.
// READ_SPI clocks out zeros on MOSI, so a loopback read gives zeros and a
// register read needs READ_AND_WRITE_SPI.
//
// Replies: status commands answer [port, status]; READ_SPI and
// READ_AND_WRITE_SPI answer [port, status, bytes...].  Status 22 (the
// firmware's SPI error) answers a port that is not open or that the model
// lacks; a failed transfer carries no bytes.  OPEN_SPI moves the port's pins
// to the SPI mode (refused with 22 while a pin is in a mode other than Idle,
// DI or DO), CLOSE_SPI gives them back as Idle.
//
// Keys of the device's key/value store:
//   "spi.slave"          "loopback" or "registers" (above)
//   "spi.registers"      list of 128 ints, the register file (read and
//                        written by the firmware; zeros when unset)
//   "spi.mode.<port>"    int 0..3, from the last SET_SPI_CPOL and SET_SPI_CPHA
//   "spi.prescaler.<port>", "spi.data_size.<port>", "spi.first_bit.<port>"
//                        ints, the last values set
#include <algorithm>
#include <map>
#include <string>

#include "buses/spi.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusSPI = 22;
constexpr size_t kRegisters = 128;

struct SpiPort {
  bool open = false;
  int cpol = 0, cpha = 0;
};

struct SpiSim {
  std::map<int, SpiPort> ports;
};

const std::vector<PinPair>* portPins(Context& ctx, int port) {
  const auto& map = modelInfo(ctx.device().model()).SPI_dict;
  auto it = map.find(port);
  return it == map.end() ? nullptr : &it->second;
}

void status(Context& ctx, int port, uint8_t s) { ctx.reply({static_cast<uint8_t>(port), s}); }

// One transfer with the slave; returns the bytes on MISO.
Bytes transfer(Context& ctx, std::span<const uint8_t> mosi) {
  DeviceState& st = ctx.state();
  std::lock_guard lk(st.mutex());
  const Value slave = st.get("spi.slave", Value("loopback"));
  if (!slave.isText() || slave.asText() != "registers") return Bytes(mosi.begin(), mosi.end());
  Value regs = st.get("spi.registers", Value::listOf(std::vector<int64_t>(kRegisters, 0)));
  auto& r = regs.asList();
  r.resize(kRegisters, Value(0));
  Bytes miso;
  if (mosi.empty()) return miso;
  const bool read = mosi[0] & 0x80;
  size_t reg = mosi[0] & 0x7F;
  miso.push_back(0);
  for (size_t i = 1; i < mosi.size(); ++i, reg = (reg + 1) % kRegisters) {
    if (read) {
      miso.push_back(static_cast<uint8_t>(r[reg].isInt() ? r[reg].asInt() : 0));
    } else {
      miso.push_back(0);
      r[reg] = Value(int{mosi[i]});
    }
  }
  if (!read) st.set("spi.registers", regs);
  return miso;
}

void openSPI(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto* pins = portPins(ctx, port);
  if (!pins) return status(ctx, port, kStatusSPI);
  for (const PinPair& p : *pins) {
    const auto modes = pinModes(ctx.device(), p.port);
    if (p.pin >= static_cast<int>(modes.size())) return status(ctx, port, kStatusSPI);
    const PinMode m = modes[static_cast<size_t>(p.pin)];
    if (m != PinMode::Idle && m != PinMode::DI && m != PinMode::DO && m != PinMode::SPI)
      return status(ctx, port, kStatusSPI);
  }
  setPinModes(ctx.device(), *pins, PinMode::SPI);
  ctx.state().slot<SpiSim>()->ports[port].open = true;
  status(ctx, port, 0);
}

void closeSPI(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto* pins = portPins(ctx, port);
  if (!pins) return status(ctx, port, kStatusSPI);
  {
    auto sim = ctx.state().slot<SpiSim>();
    if (sim->ports[port].open) setPinModes(ctx.device(), *pins, PinMode::Idle);
    sim->ports[port].open = false;
  }
  status(ctx, port, 0);
}

// A command on an open port: fn(port state) answers the status.
template <typename Fn>
void onOpenPort(Context& ctx, const Request& req, size_t need, Fn fn, size_t echo = 1) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  if (!portPins(ctx, port) || req.data.size() < need) return echoStatus(ctx, req, echo, kStatusSPI);
  uint8_t s = kStatusSPI;
  {
    auto sim = ctx.state().slot<SpiSim>();
    SpiPort& p = sim->ports[port];
    if (p.open) s = fn(p);
  }
  echoStatus(ctx, req, echo, s);
}

// A setting of one byte, 0..max, kept under "spi.<name>.<port>".
Handler setting(const char* name, int max) {
  return [name, max](Context& ctx, const Request& req) {
    onOpenPort(ctx, req, 2, [&](SpiPort&) {
      if (req.data[1] > max) return kStatusSPI;
      ctx.state().set(std::string("spi.") + name + "." + std::to_string(req.data[0]),
                      Value(int{req.data[1]}));
      return uint8_t{0};
    });
  };
}

// CPOL and CPHA: each sets its half of the mode.
Handler clockSetting(bool polarity) {
  return [polarity](Context& ctx, const Request& req) {
    onOpenPort(ctx, req, 2, [&](SpiPort& p) {
      if (req.data[1] > 1) return kStatusSPI;
      (polarity ? p.cpol : p.cpha) = req.data[1];
      ctx.state().set("spi.mode." + std::to_string(req.data[0]), Value(p.cpol * 2 + p.cpha));
      return uint8_t{0};
    });
  };
}

void setPrescaler(Context& ctx, const Request& req) {
  onOpenPort(ctx, req, 3, [&](SpiPort&) {
    const int v = (req.data[1] << 8) | req.data[2];
    if (v < 2 || v > 256 || (v & (v - 1)) != 0) return kStatusSPI;
    ctx.state().set("spi.prescaler." + std::to_string(req.data[0]), Value(v));
    return uint8_t{0};
  });
}

void resetSPI(Context& ctx, const Request& req) {
  onOpenPort(ctx, req, 1, [](SpiPort&) { return uint8_t{0}; });
}

// port, count, bytes -> port, count, status
void writeSPI(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onOpenPort(
      ctx, req, 2,
      [&](SpiPort&) {
        transfer(ctx, std::span(d).subspan(2, std::min<size_t>(d[1], d.size() - 2)));
        return uint8_t{0};
      },
      2);
}

// A transfer whose MISO bytes are the reply: MOSI from the payload or zeros.
void transferReply(Context& ctx, const Request& req, bool zeros) {
  const Bytes& d = req.data;
  if (d.empty()) return;
  const int port = d[0];
  Bytes out{static_cast<uint8_t>(port), kStatusSPI};
  bool open = false;
  if (portPins(ctx, port) && d.size() >= 2) {
    auto sim = ctx.state().slot<SpiSim>();
    open = sim->ports[port].open;
  }
  if (open) {
    const Bytes mosi =
        zeros ? Bytes(d[1], 0)
              : Bytes(d.begin() + 2,
                      d.begin() + 2 +
                          static_cast<std::ptrdiff_t>(std::min<size_t>(d[1], d.size() - 2)));
    const Bytes miso = transfer(ctx, mosi);
    out[1] = 0;
    out.insert(out.end(), miso.begin(), miso.end());
  }
  ctx.reply(out);
}

const Registrar kSPI{{
    {OPEN_SPI, openSPI},
    {READ_SPI, [](Context& ctx, const Request& req) { transferReply(ctx, req, true); }},
    {WRITE_SPI, writeSPI},
    {READ_AND_WRITE_SPI, [](Context& ctx, const Request& req) { transferReply(ctx, req, false); }},
    {CLOSE_SPI, closeSPI},
    {RESET_SPI, resetSPI},
    {SET_SPI_DATA_SIZE, setting("data_size", 1)},
    {SET_SPI_FIRST_BIT, setting("first_bit", 1)},
    {SET_SPI_PRESCALER, setPrescaler},
    {SET_SPI_CPOL, clockSetting(true)},
    {SET_SPI_CPHA, clockSetting(false)},
}};

}  // namespace

}  // namespace orv::sim
