// The simulated firmware's digital ports.
//
// Each port of the model (a key of di_dict or do_dict) holds three words,
// enabled, direction (1 = output) and state, plus the start-up words that
// SAVE_DIO_STARTUP stores and LOAD_DIO_STARTUP returns.  Commands that change
// enabled or direction set the touched pins' modes in the shared pin-mode
// store (sim/pin_modes.hpp): disabled pins Idle, enabled ones DI or DO.  A pin
// held by a bus or another function keeps its mode.
//
// Input levels, set from the host side through the device's key/value state:
//   "dio.loopback"      list of [out_port, out_pin, in_port, in_pin] wires: the
//                       input pin reads the state bit of the output pin
//   "dio.inputs.<port>" int word: the level of the port's unwired input pins
//
// On KestrelRelay the six relays hang on output port 0: every change of one of
// its pins 0..5 adds one to that relay's count in "relay.counters" (six ints),
// which RELAY_READ answers.
#include <map>
#include <optional>
#include <string>

#include "digital/dio.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusPinIndex = 11;  // the firmware's pin index error
constexpr int kModeIdle = 1, kModeDI = 2, kModeDO = 3;
constexpr int kRelays = 6;

struct DioWords {
  uint16_t enabled = 0, direction = 0, state = 0;
};

struct DioSim {
  std::map<int, DioWords> current;
  std::map<int, DioWords> startup;
};

const ModelInfo& infoOf(Context& ctx) { return modelInfo(ctx.device().model()); }

// The pins of a port as a word; nullopt for a port the model does not have.
std::optional<uint16_t> portPins(const ModelInfo& info, int port) {
  bool found = false;
  uint16_t pins = 0;
  for (const DigitalMap* m : {&info.di_dict, &info.do_dict}) {
    auto it = m->find(port);
    if (it == m->end()) continue;
    found = true;
    for (int p : it->second)
      if (p >= 0 && p < 16) pins = static_cast<uint16_t>(pins | (1u << p));
  }
  if (!found) return std::nullopt;
  return pins;
}

uint16_t word(const Bytes& d, size_t at) {
  return d.size() >= at + 2 ? static_cast<uint16_t>((d[at] << 8) | d[at + 1]) : 0;
}

void put(Bytes& out, uint16_t w) {
  out.push_back(static_cast<uint8_t>(w >> 8));
  out.push_back(static_cast<uint8_t>(w & 0xFF));
}

uint16_t merge(uint16_t old, uint16_t mask, uint16_t value) {
  return static_cast<uint16_t>((old & ~mask) | (value & mask));
}

void replyStatus(Context& ctx, int port, uint8_t status) {
  ctx.reply({static_cast<uint8_t>(port), status});
}

void replyWord(Context& ctx, int port, uint16_t w) {
  Bytes out{static_cast<uint8_t>(port)};
  put(out, w);
  ctx.reply(out);
}

// Counts relay switchings when output port 0 of a model with relays changes.
void countRelays(Context& ctx, int port, uint16_t before, uint16_t after) {
  if (port != 0 || !infoOf(ctx).has("Relay") || before == after) return;
  DeviceState& st = ctx.state();
  std::lock_guard lk(st.mutex());
  Value counters = st.get("relay.counters", Value::listOf(std::vector<int64_t>(kRelays, 0)));
  auto& items = counters.asList();
  items.resize(kRelays, Value(0));
  for (int r = 0; r < kRelays; ++r)
    if (((before ^ after) >> r) & 1)
      items[static_cast<size_t>(r)] = items[static_cast<size_t>(r)].asInt() + 1;
  st.set("relay.counters", counters);
}

// The modes of the port's DIO pins follow their enabled and direction bits.
void syncPinModes(Context& ctx, int port, uint16_t pins, const DioWords& w) {
  std::vector<PinMode> modes = pinModes(ctx.device(), port);
  for (size_t pin = 0; pin < modes.size() && pin < 16; ++pin) {
    if (!((pins >> pin) & 1)) continue;
    const PinMode m = modes[pin];
    if (m != PinMode::Idle && m != PinMode::DI && m != PinMode::DO) continue;
    modes[pin] = !((w.enabled >> pin) & 1)    ? PinMode::Idle
                 : ((w.direction >> pin) & 1) ? PinMode::DO
                                              : PinMode::DI;
  }
  setPinModes(ctx.device(), port, std::move(modes));
}

// The levels the port's input pins see.
uint16_t inputLevels(Context& ctx, int port) {
  DeviceState& st = ctx.state();
  std::lock_guard lk(st.mutex());
  const Value external = st.get("dio.inputs." + std::to_string(port), Value(0));
  uint16_t levels = external.isInt() ? static_cast<uint16_t>(external.asInt()) : 0;
  const Value wires = st.get("dio.loopback", Value::list({}));
  if (!wires.isSequence()) return levels;
  auto dio = st.slot<DioSim>();
  for (const Value& w : wires.asList()) {
    if (!w.isSequence() || w.size() < 4) continue;
    const auto& f = w.asList();
    const int out_port = static_cast<int>(f[0].asInt()), out_pin = static_cast<int>(f[1].asInt());
    const int in_port = static_cast<int>(f[2].asInt()), in_pin = static_cast<int>(f[3].asInt());
    if (in_port != port || in_pin < 0 || in_pin > 15 || out_pin < 0 || out_pin > 15) continue;
    const int bit = (dio->current[out_port].state >> out_pin) & 1;
    levels = static_cast<uint16_t>(bit ? levels | (1u << in_pin) : levels & ~(1u << in_pin));
  }
  return levels;
}

// Status commands on a port: fn(words, payload) changes the words.
template <typename Fn>
void onPort(Context& ctx, const Request& req, size_t need, Fn fn) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto pins = portPins(infoOf(ctx), port);
  if (!pins || req.data.size() < need) return replyStatus(ctx, port, kStatusPinIndex);
  uint16_t before = 0, after = 0;
  DioWords now;
  {
    auto dio = ctx.state().slot<DioSim>();
    DioWords& w = dio->current[port];
    before = w.state;
    fn(w, *pins);
    after = w.state;
    now = w;
  }
  syncPinModes(ctx, port, *pins, now);
  countRelays(ctx, port, before, after);
  replyStatus(ctx, port, 0);
}

void setDioCurrent(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onPort(ctx, req, 9, [&](DioWords& w, uint16_t pins) {
    const uint16_t mask = word(d, 1) & pins;
    w.enabled = merge(w.enabled, mask, word(d, 3));
    w.direction = merge(w.direction, mask, word(d, 5));
    w.state = merge(w.state, mask, word(d, 7));
  });
}

void setDioState(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onPort(ctx, req, 5, [&](DioWords& w, uint16_t pins) {
    w.state = merge(w.state, word(d, 1) & pins, word(d, 3));
  });
}

// The direction bits under the mask take the bits of the given word.
void toggleDioDir(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  onPort(ctx, req, 5, [&](DioWords& w, uint16_t pins) {
    w.direction = merge(w.direction, word(d, 1) & pins, word(d, 3));
  });
}

void latchOnly(Context& ctx, const Request& req) {
  onPort(ctx, req, 1, [](DioWords&, uint16_t) {});
}

void setSlot(Context& ctx, const Request& req, int mode) {
  onPort(ctx, req, 1, [&](DioWords& w, uint16_t pins) {
    w.enabled = mode == kModeIdle ? 0 : pins;
    w.direction = mode == kModeDO ? pins : 0;
  });
}

// State replies: the word of the whole port after the command.
template <typename Fn>
void statePort(Context& ctx, const Request& req, size_t need, Fn fn) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto pins = portPins(infoOf(ctx), port);
  if (!pins || req.data.size() < need) return replyWord(ctx, port, 0);
  uint16_t before = 0, after = 0, answer = 0;
  {
    auto dio = ctx.state().slot<DioSim>();
    DioWords& w = dio->current[port];
    before = w.state;
    answer = fn(w, *pins);
    after = w.state;
  }
  countRelays(ctx, port, before, after);
  replyWord(ctx, port, answer);
}

void setAndWriteDo(Context& ctx, const Request& req) {
  if (serveWifiBoardIO(ctx, req)) return;
  const Bytes& d = req.data;
  statePort(ctx, req, 5, [&](DioWords& w, uint16_t pins) {
    w.state = merge(w.state, word(d, 1) & pins, word(d, 3));
    return w.state;
  });
}

void toggleAndWriteDo(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  statePort(ctx, req, 3, [&](DioWords& w, uint16_t pins) {
    w.state = static_cast<uint16_t>(w.state ^ (word(d, 1) & pins));
    return w.state;
  });
}

void getDioState(Context& ctx, const Request& req) {
  const Bytes& d = req.data;
  statePort(ctx, req, 3,
            [&](DioWords& w, uint16_t) { return static_cast<uint16_t>(w.state & word(d, 1)); });
}

void readAndGetDi(Context& ctx, const Request& req) {
  if (serveWifiBoardIO(ctx, req) || serveTmc5240Inputs(ctx, req)) return;
  if (req.data.empty()) return;
  const int port = req.data[0];
  const auto pins = portPins(infoOf(ctx), port);
  if (!pins || req.data.size() < 3) return replyWord(ctx, port, 0);
  replyWord(ctx, port, static_cast<uint16_t>(inputLevels(ctx, port) & word(req.data, 1) & *pins));
}

void replyWords(Context& ctx, int port, const DioWords& w, uint16_t mask) {
  Bytes out{static_cast<uint8_t>(port)};
  put(out, w.enabled & mask);
  put(out, w.direction & mask);
  put(out, w.state & mask);
  ctx.reply(out);
}

void getDioCurrent(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const DioWords w = ctx.state().slot<DioSim>()->current[port];
  replyWords(ctx, port, w, word(req.data, 1));
}

void loadStartup(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const DioWords w = ctx.state().slot<DioSim>()->startup[port];
  replyWords(ctx, port, w, 0xFFFF);
}

void saveStartup(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  if (!portPins(infoOf(ctx), port) || req.data.size() < 7)
    return replyStatus(ctx, port, kStatusPinIndex);
  ctx.state().slot<DioSim>()->startup[port] =
      DioWords{word(req.data, 1), word(req.data, 3), word(req.data, 5)};
  replyStatus(ctx, port, 0);
}

const Registrar dio{{
    {LOAD_DIO_STARTUP, loadStartup},
    {SAVE_DIO_STARTUP, saveStartup},
    {GET_DIO_CURRENT, getDioCurrent},
    {SET_DIO_CURRENT, setDioCurrent},
    {TOGGLE_DIO_DIR, toggleDioDir},
    {GET_DIO_STATE, getDioState},
    {SET_DIO_STATE, setDioState},
    {READ_DI, latchOnly},
    {WRITE_DO, latchOnly},
    {READ_AND_GET_DI, readAndGetDi},
    {SET_AND_WRITE_DO, setAndWriteDo},
    {SET_SLOT_DI, [](Context& c, const Request& r) { setSlot(c, r, kModeDI); }},
    {SET_SLOT_DO, [](Context& c, const Request& r) { setSlot(c, r, kModeDO); }},
    {SET_SLOT_IDLE, [](Context& c, const Request& r) { setSlot(c, r, kModeIdle); }},
    {TOGGLE_AND_WRITE_DO, toggleAndWriteDo},
}};

}  // namespace

}  // namespace orv::sim
