// The simulated firmware's relay counters (KestrelRelay) and digital
// potentiometer (KestrelRes).
//
// Relay counters live in the key/value state as "relay.counters", six ints,
// counted by the digital port handlers when output port 0 switches a relay
// (and settable from the host side).  RELAY_READ with index 255 answers all
// six, with 0..5 one of them, each as four bytes from reply byte 2.
//
// The potentiometer has one port, 0, with four channels.  POT_WRITE_ALL_CS
// stores four 32-bit floats and answers [port, 4, status]; POT_READ answers the stored float's 32
// bits from reply byte 2.  The ratios are mirrored in "dpot.ratios" (four floats).
#include <array>
#include <bit>
#include <vector>

#include "digital/dpot.hpp"
#include "digital/relay.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusPinIndex = 11;
constexpr uint8_t kStatusRelay = 51;
constexpr size_t kRelays = 6;

void put32(Bytes& out, uint32_t v) {
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(v >> s));
}

void relayRead(Context& ctx, const Request& req) {
  if (req.data.size() < 2) return ctx.reply({0, kStatusRelay});
  const int index = req.data[1];
  const Value counters =
      ctx.state().get("relay.counters", Value::listOf(std::vector<int64_t>(kRelays, 0)));
  std::vector<int64_t> all = counters.isSequence() ? counters.toIntList() : std::vector<int64_t>{};
  all.resize(kRelays, 0);
  Bytes out{0, 0};
  if (index == 255) {
    for (int64_t v : all) put32(out, static_cast<uint32_t>(v));
  } else if (index < static_cast<int>(kRelays)) {
    put32(out, static_cast<uint32_t>(all[static_cast<size_t>(index)]));
  } else {
    return ctx.reply({0, kStatusRelay});
  }
  ctx.reply(out);
}

struct DpotSim {
  std::array<float, 4> ratio{};
};

void potWriteAll(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const uint8_t port = req.data[0];
  if (port != 0 || req.data.size() < 17) return ctx.reply({port, 4, kStatusPinIndex});
  Value::List mirrored;
  {
    auto s = ctx.state().slot<DpotSim>();
    for (size_t i = 0; i < 4; ++i) {
      const size_t at = 1 + 4 * i;
      const uint32_t u = (uint32_t{req.data[at]} << 24) | (uint32_t{req.data[at + 1]} << 16) |
                         (uint32_t{req.data[at + 2]} << 8) | req.data[at + 3];
      s->ratio[i] = std::bit_cast<float>(u);
      mirrored.emplace_back(static_cast<double>(s->ratio[i]));
    }
  }
  ctx.state().set("dpot.ratios", Value::list(std::move(mirrored)));
  ctx.reply({port, 4, 0});
}

void potRead(Context& ctx, const Request& req) {
  if (req.data.size() < 2) return;
  const uint8_t port = req.data[0], channel = req.data[1];
  if (port != 0 || channel > 3) return ctx.reply({port, kStatusPinIndex});
  const float r = ctx.state().slot<DpotSim>()->ratio[channel];
  Bytes out{port, 0};
  put32(out, std::bit_cast<uint32_t>(r));
  ctx.reply(out);
}

const Registrar relayAndDpot{{
    {RELAY_READ, relayRead},
    {POT_WRITE_ALL_CS, potWriteAll},
    {POT_READ, potRead},
}};

}  // namespace

}  // namespace orv::sim
