// The simulated firmware's temperature inputs (KestrelTherm, PloverTc,
// PloverRtd).
//
// Key/value state a test sets:
//   "thermal.temperature"   one float per channel, degrees Celsius (default 25.0)
//   "thermal.junction"      one float per channel, the cold junction (default 21.5)
//   "thermal.open_circuit"  the channels whose sensor is open-circuit: their
//                           status has bit 0 set and they read NaN
// The handlers keep per port and channel the type, filter, over-sampling,
// offset and saved offset, and mirror the last setting of each channel in
// "thermal.<port>.<channel>" as [type, filter, over-sampling, junction on].
// A port must be opened (OPEN_THERMAL) before a channel answers; a port or
// channel the model lacks answers the thermal firmware error (56).
#include <bit>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "analog/thermal.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/state.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusThermal = 56;

struct Channel {
  int type = 3, filter = 0, sampling = 0, junction_on = 1;
  float offset = 0, saved_offset = 0, junction = NAN;
};

struct ThermalSim {
  std::map<int, bool> open;
  std::map<std::pair<int, int>, Channel> ch;
};

const ModelInfo& row(Context& ctx) { return modelInfo(ctx.device().model()); }

bool validChannel(Context& ctx, const Request& req) {
  if (req.data.size() < 2) return false;
  const ModelInfo& m = row(ctx);
  return m.thermal_dict.contains(req.data[0]) && req.data[1] < m.thermal_channels &&
         ctx.state().slot<ThermalSim>()->open[req.data[0]];
}

double perChannel(Context& ctx, const char* key, int channel, double fallback) {
  const Value v = ctx.state().get(key);
  if (!v.isSequence() || static_cast<size_t>(channel) >= v.size()) return fallback;
  const Value& item = v.asList()[static_cast<size_t>(channel)];
  return item.isNumber() ? item.asFloat() : fallback;
}

bool openCircuit(Context& ctx, int channel) {
  const Value v = ctx.state().get("thermal.open_circuit");
  if (!v.isSequence()) return false;
  for (const Value& item : v.asList())
    if (item.isInt() && item.asInt() == channel) return true;
  return false;
}

void status(Context& ctx, const Request& req, bool ok) {
  ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0], ok ? uint8_t{0} : kStatusThermal});
}

void replyFloat(Context& ctx, const Request& req, double value) {
  const uint32_t u = std::bit_cast<uint32_t>(static_cast<float>(value));
  ctx.reply({req.data[0], 0, static_cast<uint8_t>(u >> 24), static_cast<uint8_t>(u >> 16),
             static_cast<uint8_t>(u >> 8), static_cast<uint8_t>(u)});
}

float payloadFloat(const Request& req) {
  const uint32_t u = (uint32_t{req.data[2]} << 24) | (uint32_t{req.data[3]} << 16) |
                     (uint32_t{req.data[4]} << 8) | req.data[5];
  return std::bit_cast<float>(u);
}

void mirror(Context& ctx, int port, int channel) {
  const Channel c = ctx.state().slot<ThermalSim>()->ch[{port, channel}];
  ctx.state().set("thermal." + std::to_string(port) + "." + std::to_string(channel),
                  Value::listOf(std::vector<int64_t>{c.type, c.filter, c.sampling, c.junction_on}));
}

// Runs fn on the channel of a valid request, then answers its status.
template <class Fn>
void setting(Context& ctx, const Request& req, size_t need, Fn fn) {
  if (req.data.size() < need || !validChannel(ctx, req)) return status(ctx, req, false);
  const int port = req.data[0], channel = req.data[1];
  bool ok = true;
  {
    auto s = ctx.state().slot<ThermalSim>();
    ok = fn(s->ch[{port, channel}]);
  }
  mirror(ctx, port, channel);
  status(ctx, req, ok);
}

void openThermal(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const bool ok = row(ctx).thermal_dict.contains(req.data[0]);
  if (ok) ctx.state().slot<ThermalSim>()->open[req.data[0]] = true;
  status(ctx, req, ok);
}

void closeThermal(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const bool ok = row(ctx).thermal_dict.contains(req.data[0]);
  if (ok) ctx.state().slot<ThermalSim>()->open[req.data[0]] = false;
  status(ctx, req, ok);
}

void readCouple(Context& ctx, const Request& req) {
  if (!validChannel(ctx, req)) return status(ctx, req, false);
  const int channel = req.data[1];
  const float offset = ctx.state().slot<ThermalSim>()->ch[{req.data[0], channel}].offset;
  replyFloat(ctx, req,
             openCircuit(ctx, channel)
                 ? NAN
                 : perChannel(ctx, "thermal.temperature", channel, 25.0) + offset);
}

void readJunction(Context& ctx, const Request& req) {
  if (!validChannel(ctx, req)) return status(ctx, req, false);
  const int channel = req.data[1];
  const float written = ctx.state().slot<ThermalSim>()->ch[{req.data[0], channel}].junction;
  replyFloat(ctx, req,
             std::isnan(written) ? perChannel(ctx, "thermal.junction", channel, 21.5) : written);
}

void getStatus(Context& ctx, const Request& req) {
  if (req.data.size() < 3 || !validChannel(ctx, req)) return status(ctx, req, false);
  // Mode 2 (Plover-Tc) adds a bit the host masks away.
  const uint8_t bits = (openCircuit(ctx, req.data[1]) ? 1 : 0) | (req.data[2] == 2 ? 0x80 : 0);
  ctx.reply({req.data[0], 0, bits});
}

void readOffset(Context& ctx, const Request& req, bool saved) {
  if (!validChannel(ctx, req)) return status(ctx, req, false);
  const Channel c = ctx.state().slot<ThermalSim>()->ch[{req.data[0], req.data[1]}];
  replyFloat(ctx, req, saved ? c.saved_offset : c.offset);
}

const Registrar thermal{{
    {OPEN_THERMAL, openThermal},
    {CLOSE_THERMAL, closeThermal},
    {READ_THERMAL_COUPLE, readCouple},
    {READ_THERMAL_JUNCTION, readJunction},
    {GET_THERMAL_STATUS, getStatus},
    {READ_THERMAL_OFFSET, [](Context& ctx, const Request& req) { readOffset(ctx, req, false); }},
    {LOAD_THERMAL_OFFSET, [](Context& ctx, const Request& req) { readOffset(ctx, req, true); }},
    {SET_THERMAL_NOISE_FILTER,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 3, [&](Channel& c) { return c.filter = req.data[2], req.data[2] <= 1; });
     }},
    {SET_THERMAL_OVER_SAMPLING,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 3, [&](Channel& c) { return c.sampling = req.data[2], req.data[2] <= 4; });
     }},
    {SET_THERMAL_TYPE,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 3, [&](Channel& c) { return c.type = req.data[2], req.data[2] <= 7; });
     }},
    {SET_THERMAL_JUNCTION_ON,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 3, [&](Channel& c) { return c.junction_on = req.data[2], true; });
     }},
    {WRITE_THERMAL_OFFSET,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 6, [&](Channel& c) { return c.offset = payloadFloat(req), true; });
     }},
    {SAVE_THERMAL_OFFSET,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 6, [&](Channel& c) { return c.saved_offset = payloadFloat(req), true; });
     }},
    {WRITE_THERMAL_JUNCTION,
     [](Context& ctx, const Request& req) {
       setting(ctx, req, 6, [&](Channel& c) { return c.junction = payloadFloat(req), true; });
     }},
}};

}  // namespace

}  // namespace orv::sim
