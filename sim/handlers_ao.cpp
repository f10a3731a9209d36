// The simulated firmware's analog outputs.
//
// Per AO port: mode (0 on demand, 1 N-samples, 2 continuous), state (0 idle,
// 1 stand-by after OPEN_AO_STREAMING, 2 running after START_AO_STREAMING),
// rate, number of samples, span, enabled-channel mask, a form and its five
// parameters per channel, the eight output values, the pushed buffer and
// two counters (writes and pushes).  In mode 1 a running port falls back to
// stand-by once num_samples / rate seconds have passed; GET_AO_VALUES of a
// running port gives each enabled channel's form at that moment (the buffer's
// values, in turn at the rate, when a buffer was pushed).  aoOutput
// (sim/ao_output.hpp) gives the same at any instant to the analog inputs
// that read an output back.
//
// Key/value state written for tests:
//   "ao.values.<port>"   list of 8 floats: what the port's channels output on
//                        demand
#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <map>
#include <vector>

#include "analog/ao.hpp"
#include "link/constants.hpp"
#include "sim/ao_output.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

using SteadyClock = std::chrono::steady_clock;

struct AoChannel {
  int form = 3;
  float amplitude = 0, offset = 0, frequency = 0, phase = 0, duty = 0.5f;
};

struct AoPort {
  int mode = 0, state = 0, span = 3;
  float rate = 1000;
  uint32_t num_samples = 0;
  uint8_t enabled = 0xFF;
  AoChannel ch[8];
  float values[8] = {};
  std::vector<float> buffer;
  uint32_t writes = 0, pushes = 0;
  SteadyClock::time_point started;
};

struct AoSim {
  std::map<int, AoPort> ports;
};

float f32At(const Bytes& d, size_t at) {
  if (d.size() < at + 4) return 0;
  return std::bit_cast<float>((uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) |
                              (uint32_t{d[at + 2]} << 8) | d[at + 3]);
}
void putU32(Bytes& out, uint32_t v) {
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(v >> s));
}
void putF32(Bytes& out, float f) { putU32(out, std::bit_cast<uint32_t>(f)); }

void publish(Context& ctx, int port, const AoPort& p) {
  Value::List l;
  for (float v : p.values) l.emplace_back(static_cast<double>(v));
  ctx.state().set("ao.values." + std::to_string(port), Value::list(l));
}

// A running N-samples port ends its output after num_samples / rate.
void advance(AoPort& p) {
  if (p.state != 2 || p.mode != 1 || p.rate <= 0) return;
  const double secs = std::chrono::duration<double>(SteadyClock::now() - p.started).count();
  if (secs * p.rate >= p.num_samples) p.state = 1;
}

double formValue(const AoChannel& c, double t) {
  const double x = c.frequency * t + c.phase / 360.0;
  const double frac = x - std::floor(x);
  switch (c.form) {
    case 1:
      return c.offset + (frac < c.duty ? c.amplitude : -c.amplitude);
    case 2:
      return c.offset + c.amplitude * (frac < 0.5 ? 4 * frac - 1 : 3 - 4 * frac);
    case 3:
      return c.offset + c.amplitude * std::sin(2 * M_PI * x);
    default:
      return c.offset;
  }
}

// Channel i of the port at `at`: the form (or the buffer) of an enabled
// channel while the port runs, the value written on demand otherwise.
double outputAt(const AoPort& p, int i, SteadyClock::time_point at) {
  if (i < 0 || i > 7) return 0;
  const double on_demand = p.values[i];
  if (p.state != 2 || !((p.enabled >> i) & 1)) return on_demand;
  const double t = std::max(0.0, std::chrono::duration<double>(at - p.started).count());
  if (p.mode == 1 && p.rate > 0 && t * p.rate >= p.num_samples) return on_demand;
  if (!p.buffer.empty()) {
    const auto k = static_cast<size_t>(t * p.rate);
    return p.buffer[(k * 8 + static_cast<size_t>(i)) % p.buffer.size()];
  }
  return formValue(p.ch[i], t);
}

// fn(port state) under the state lock; replies [port, status] unless fn
// replied itself.
template <typename Fn>
void onPort(Context& ctx, const Request& req, size_t need, Fn fn) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  if (req.data.size() < need) return ctx.reply({static_cast<uint8_t>(port), 11});
  auto ao = ctx.state().slot<AoSim>();
  AoPort& p = ao->ports[port];
  advance(p);
  fn(p);
  if (ctx.replies() == 0) ctx.reply({static_cast<uint8_t>(port), 0});
}

void getValues(Context& ctx, const Request& req) {
  onPort(ctx, req, 1, [&](AoPort& p) {
    Bytes out{req.data[0], 0};
    const auto now = SteadyClock::now();
    for (int i = 0; i < 8; ++i) putF32(out, static_cast<float>(outputAt(p, i, now)));
    ctx.reply(out);
  });
}

const Registrar reg{{
    {OPEN_AO, [](Context& c, const Request& r) { onPort(c, r, 1, [](AoPort&) {}); }},
    {CLOSE_AO,
     [](Context& c, const Request& r) { onPort(c, r, 1, [](AoPort& p) { p.state = 0; }); }},
    {OPEN_AO_STREAMING,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) {
         p.state = 1;
         Bytes out{r.data[0], static_cast<uint8_t>(p.mode)};
         putF32(out, p.rate);
         c.reply(out);
       });
     }},
    {START_AO_STREAMING,
     [](Context& c, const Request& r) {
       if (r.data.empty()) return;
       auto ao = c.state().slot<AoSim>();
       AoPort& p = ao->ports[r.data[0]];
       p.state = 2;
       p.started = SteadyClock::now();
     }},
    {STOP_AO_STREAMING,
     [](Context& c, const Request& r) { onPort(c, r, 1, [](AoPort& p) { p.state = 1; }); }},
    {CLOSE_AO_STREAMING,
     [](Context& c, const Request& r) { onPort(c, r, 1, [](AoPort& p) { p.state = 0; }); }},
    {SET_AO_SPAN,
     [](Context& c, const Request& r) { onPort(c, r, 2, [&](AoPort& p) { p.span = r.data[1]; }); }},
    {SET_AO_MODE,
     [](Context& c, const Request& r) { onPort(c, r, 2, [&](AoPort& p) { p.mode = r.data[1]; }); }},
    {SET_AO_SAMPLING_RATE,
     [](Context& c, const Request& r) {
       onPort(c, r, 5, [&](AoPort& p) { p.rate = f32At(r.data, 1); });
     }},
    {SET_AO_NUM_SAMPLES,
     [](Context& c, const Request& r) {
       onPort(c, r, 5, [&](AoPort& p) {
         p.num_samples = (uint32_t{r.data[1]} << 24) | (uint32_t{r.data[2]} << 16) |
                         (uint32_t{r.data[3]} << 8) | r.data[4];
       });
     }},
    {SET_AO_ENABLED_CHANNELS,
     [](Context& c, const Request& r) {
       onPort(c, r, 3, [&](AoPort& p) { p.enabled = r.data[2]; });
     }},
    // Form and parameters answer [port, cs, channel, status].
    {SET_AO_FORM,
     [](Context& c, const Request& r) {
       onPort(c, r, 4, [&](AoPort& p) {
         p.ch[r.data[2] & 7].form = r.data[3];
         c.reply({r.data[0], r.data[1], r.data[2], 0});
       });
     }},
    {SET_AO_FORM_PARAM,
     [](Context& c, const Request& r) {
       onPort(c, r, 23, [&](AoPort& p) {
         AoChannel& ch = p.ch[r.data[2] & 7];
         ch.amplitude = f32At(r.data, 3);
         ch.offset = f32At(r.data, 7);
         ch.frequency = f32At(r.data, 11);
         ch.phase = f32At(r.data, 15);
         ch.duty = f32At(r.data, 19);
         c.reply({r.data[0], r.data[1], r.data[2], 0});
       });
     }},
    {SET_AO_PUSH_TO_BUFFER,
     [](Context& c, const Request& r) {
       onPort(c, r, 3, [&](AoPort& p) {
         for (size_t at = 3; at + 4 <= r.data.size(); at += 4)
           p.buffer.push_back(f32At(r.data, at));
         ++p.pushes;
       });
     }},
    {INIT_AO_BUFFER,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) {
         Bytes out{r.data[0]};
         putU32(out, static_cast<uint32_t>(p.buffer.size()));
         out.push_back(p.enabled);
         p.buffer.clear();
         c.reply(out);
       });
     }},
    {GET_AO_COUNTERS,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) {
         Bytes out{r.data[0]};
         putU32(out, p.writes);
         putU32(out, p.pushes);
         c.reply(out);
       });
     }},
    {WRITE_AO_BY_CHANNEL,
     [](Context& c, const Request& r) {
       onPort(c, r, 6, [&](AoPort& p) {
         p.values[r.data[1] & 7] = f32At(r.data, 2);
         ++p.writes;
         publish(c, r.data[0], p);
       });
     }},
    {WRITE_AO_SYNCHRONIZED,
     [](Context& c, const Request& r) {
       onPort(c, r, 33, [&](AoPort& p) {
         for (size_t i = 0; i < 8; ++i) p.values[i] = f32At(r.data, 1 + 4 * i);
         ++p.writes;
         publish(c, r.data[0], p);
       });
     }},
    {GET_AO_VALUES, getValues},
    {GET_AO_MODE,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) { c.reply({r.data[0], static_cast<uint8_t>(p.mode)}); });
     }},
    {GET_AO_STATE,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) { c.reply({r.data[0], static_cast<uint8_t>(p.state)}); });
     }},
    {GET_AO_ENABLED_CHANNELS,
     [](Context& c, const Request& r) {
       onPort(c, r, 1, [&](AoPort& p) { c.reply({r.data[0], 0, p.enabled}); });
     }},
}};

}  // namespace

double aoOutput(SimDevice& dev, int port, int channel, SteadyClock::time_point at) {
  auto ao = dev.state().slot<AoSim>();
  auto it = ao->ports.find(port);
  return it == ao->ports.end() ? 0 : outputAt(it->second, channel, at);
}

}  // namespace orv::sim
