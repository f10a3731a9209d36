#include "sim/pin_modes.hpp"

#include <map>
#include <set>

#include "sim/device.hpp"

namespace orv::sim {

namespace {

// The changed ports of one device; a port not here has its power-up modes.
struct PinModeState {
  std::map<int, std::vector<PinMode>> ports;
};

std::set<int> portsOf(const ModelInfo& m) {
  std::set<int> ports;
  for (const DigitalMap* dm : {&m.di_dict, &m.do_dict})
    for (const auto& [port, pins] : *dm) ports.insert(port);
  for (const PortMap* pm : {&m.ai_dict, &m.ao_dict, &m.thermal_dict, &m.ahrs_dict, &m.uart_dict,
                            &m.I2C_dict, &m.SPI_dict, &m.can_dict, &m.motion_dict, &m.mrdr_dict})
    for (const auto& [port, pairs] : *pm)
      for (const PinPair& p : pairs) ports.insert(p.port);
  return ports;
}

constexpr int kDiPort = 1;  // Wi-Fi board inputs
constexpr int kDoPort = 0;  // Wi-Fi board outputs (LEDs)

uint16_t word(const Bytes& d, size_t at) { return static_cast<uint16_t>((d[at] << 8) | d[at + 1]); }

Bytes portWordReply(uint8_t port, uint16_t w) {
  return {port, static_cast<uint8_t>(w >> 8), static_cast<uint8_t>(w & 0xFF)};
}

}  // namespace

int pinCount(const ModelInfo& model, int port) {
  return portsOf(model).count(port) ? model.dio_num_pins_per_port : 0;
}

std::vector<PinMode> defaultPinModes(const ModelInfo& model, int port) {
  return std::vector<PinMode>(static_cast<size_t>(pinCount(model, port)), PinMode::Idle);
}

std::vector<PinMode> pinModes(SimDevice& dev, int port) {
  auto s = dev.state().slot<PinModeState>();
  auto it = s->ports.find(port);
  if (it != s->ports.end()) return it->second;
  return defaultPinModes(modelInfo(dev.model()), port);
}

void setPinModes(SimDevice& dev, int port, std::vector<PinMode> modes) {
  dev.state().slot<PinModeState>()->ports[port] = std::move(modes);
}

bool setPinMode(SimDevice& dev, int port, int pin, PinMode mode) {
  auto s = dev.state().slot<PinModeState>();  // held across the read and the write
  std::vector<PinMode> modes = pinModes(dev, port);
  if (pin < 0 || pin >= static_cast<int>(modes.size())) return false;
  modes[static_cast<size_t>(pin)] = mode;
  s->ports[port] = std::move(modes);
  return true;
}

void setPinModes(SimDevice& dev, const std::vector<PinPair>& pins, PinMode mode) {
  auto s = dev.state().slot<PinModeState>();
  for (const PinPair& p : pins) setPinMode(dev, p.port, p.pin, mode);
}

void resetPinModes(SimDevice& dev) { dev.state().slot<PinModeState>()->ports.clear(); }

Bytes pinModeReply(SimDevice& dev, int port) {
  const std::vector<PinMode> modes = pinModes(dev, port);
  Bytes out{static_cast<uint8_t>(modes.size()), static_cast<uint8_t>(port)};
  for (size_t i = 0; i < modes.size(); i += 2) {
    const uint8_t lo = static_cast<uint8_t>(modes[i]) & 0x0F;
    const uint8_t hi = i + 1 < modes.size() ? static_cast<uint8_t>(modes[i + 1]) & 0x0F : 0;
    out.push_back(static_cast<uint8_t>(lo | (hi << 4)));
  }
  return out;
}

bool isWifiModel(const SimDevice& dev) {
  const ModelInfo& m = modelInfo(dev.model());
  if (m.device != DeviceKind::None) return m.isWifi();
  return dev.link() == Link::Wifi;
}

// Board words live in the key/value store, so tests can set the power lines:
// "wifi.power_good" and "wifi.charging" (0 or 1), "wifi.leds" (the latch).
bool serveWifiBoardIO(Context& ctx, const Request& req) {
  if (!isWifiModel(ctx.device())) return false;
  DeviceState& st = ctx.state();
  const uint8_t port = req.data.empty() ? 0 : req.data[0];
  std::lock_guard lk(st.mutex());
  if (req.cmd == 233) {  // READ_AND_GET_DI: port, mask
    const uint16_t mask = req.data.size() >= 3 ? word(req.data, 1) : 0;
    uint16_t levels = 0;
    if (port == kDiPort) {
      levels = static_cast<uint16_t>((st.get("wifi.power_good", 1).asInt() ? 1 : 0) |
                                     (st.get("wifi.charging", 0).asInt() ? 2 : 0));
    } else if (port == kDoPort) {
      levels = static_cast<uint16_t>(st.get("wifi.leds", 0).asInt());
    }
    ctx.reply(portWordReply(port, levels & mask));
    return true;
  }
  // SET_AND_WRITE_DO: port, mask, state; answers the latch after the write.
  uint16_t latch = 0;
  if (port == kDoPort) {
    latch = static_cast<uint16_t>(st.get("wifi.leds", 0).asInt());
    if (req.data.size() >= 5) {
      const uint16_t mask = word(req.data, 1);
      latch = static_cast<uint16_t>(((latch & ~mask) | (word(req.data, 3) & mask)) & 0x7);
      st.set("wifi.leds", static_cast<int64_t>(latch));
    }
  }
  ctx.reply(portWordReply(port, latch));
  return true;
}

}  // namespace orv::sim
