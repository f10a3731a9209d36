// The simulated firmware's two PWM outputs and two pulse counters.
//
// A PWM channel keeps its frequency and duty cycle (as the host sent them,
// 32-bit floats) and whether it is open and running.  Counter n counts the
// pulses of PWM channel n: while both run, it gains frequency x elapsed time.
// The count is read as 16 bits and wraps.  Start needs open; a channel above
// 1 or a start on a closed channel answers the PWM or pulse firmware status.
// The key/value state mirrors "pwm.<n>.frequency", "pwm.<n>.duty_cycle" and
// "pwm.<n>.running" for the host side.
#include <bit>
#include <chrono>
#include <cmath>
#include <string>

#include "digital/counter.hpp"
#include "digital/pwm.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

using Clock = std::chrono::steady_clock;
constexpr uint8_t kStatusPwm = 25;
constexpr uint8_t kStatusPulse = 26;

struct PwmChannel {
  bool open = false, running = false;
  float frequency = 0, duty_cycle = 0;
};
struct CounterChannel {
  bool open = false, running = false;
  double pulses = 0;
};
struct PwmSim {
  PwmChannel pwm[2];
  CounterChannel counter[2];
  Clock::time_point last = Clock::now();

  // Adds the pulses since the last event to the running counters.
  void advance() {
    const auto now = Clock::now();
    const double dt = std::chrono::duration<double>(now - last).count();
    for (int i = 0; i < 2; ++i)
      if (counter[i].running && pwm[i].running && pwm[i].frequency > 0)
        counter[i].pulses += pwm[i].frequency * dt;
    last = now;
  }
};

void mirror(Context& ctx, int ch, const PwmChannel& p) {
  const std::string k = "pwm." + std::to_string(ch) + ".";
  ctx.state().set(k + "frequency", static_cast<double>(p.frequency));
  ctx.state().set(k + "duty_cycle", static_cast<double>(p.duty_cycle));
  ctx.state().set(k + "running", p.running);
}

float f32At(const Bytes& d, size_t at) {
  const uint32_t u = (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) |
                     (uint32_t{d[at + 2]} << 8) | d[at + 3];
  return std::bit_cast<float>(u);
}

// fn(channel state) returns the status.
template <typename Fn>
void onPwm(Context& ctx, const Request& req, size_t need, Fn fn) {
  if (req.data.empty()) return;
  const int ch = req.data[0];
  uint8_t status = kStatusPwm;
  if (ch < 2 && req.data.size() >= need) {
    auto s = ctx.state().slot<PwmSim>();
    s->advance();
    status = fn(s->pwm[ch]);
    mirror(ctx, ch, s->pwm[ch]);
  }
  ctx.reply({static_cast<uint8_t>(ch), status});
}

template <typename Fn>
void onCounter(Context& ctx, const Request& req, Fn fn) {
  if (req.data.empty()) return;
  const int ch = req.data[0];
  uint8_t status = kStatusPulse;
  if (ch < 2) {
    auto s = ctx.state().slot<PwmSim>();
    s->advance();
    status = fn(s->counter[ch]);
  }
  ctx.reply({static_cast<uint8_t>(ch), status});
}

void counterRead(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int ch = req.data[0];
  if (ch >= 2) return ctx.reply({static_cast<uint8_t>(ch), kStatusPulse});
  uint16_t count = 0;
  {
    auto s = ctx.state().slot<PwmSim>();
    s->advance();
    count = static_cast<uint16_t>(static_cast<uint64_t>(std::floor(s->counter[ch].pulses)));
  }
  ctx.reply({static_cast<uint8_t>(ch), 0, 0, 0, 0, static_cast<uint8_t>(count >> 8),
             static_cast<uint8_t>(count & 0xFF)});
}

const Registrar pwm{{
    {OPEN_PWM,
     [](Context& c, const Request& r) {
       onPwm(c, r, 1, [](PwmChannel& p) {
         p.open = true;
         return uint8_t{0};
       });
     }},
    {START_PWM,
     [](Context& c, const Request& r) {
       onPwm(c, r, 1, [](PwmChannel& p) {
         if (!p.open) return kStatusPwm;
         p.running = true;
         return uint8_t{0};
       });
     }},
    {STOP_PWM,
     [](Context& c, const Request& r) {
       onPwm(c, r, 1, [](PwmChannel& p) {
         p.running = false;
         return uint8_t{0};
       });
     }},
    {CLOSE_PWM,
     [](Context& c, const Request& r) {
       onPwm(c, r, 1, [](PwmChannel& p) {
         p = PwmChannel{.frequency = p.frequency, .duty_cycle = p.duty_cycle};
         return uint8_t{0};
       });
     }},
    {SET_PWM_FREQUENCY,
     [](Context& c, const Request& r) {
       onPwm(c, r, 5, [&](PwmChannel& p) {
         const float f = f32At(r.data, 1);
         if (!(f > 0)) return kStatusPwm;
         p.frequency = f;
         return uint8_t{0};
       });
     }},
    {SET_PWM_DUTY_CYCLE,
     [](Context& c, const Request& r) {
       onPwm(c, r, 5, [&](PwmChannel& p) {
         p.duty_cycle = f32At(r.data, 1);
         return uint8_t{0};
       });
     }},
    {PULSE_OPEN,
     [](Context& c, const Request& r) {
       onCounter(c, r, [](CounterChannel& k) {
         k.open = true;
         k.pulses = 0;
         return uint8_t{0};
       });
     }},
    {PULSE_START,
     [](Context& c, const Request& r) {
       onCounter(c, r, [](CounterChannel& k) {
         if (!k.open) return kStatusPulse;
         k.running = true;
         return uint8_t{0};
       });
     }},
    {PULSE_READ, counterRead},
    {PULSE_STOP,
     [](Context& c, const Request& r) {
       onCounter(c, r, [](CounterChannel& k) {
         k.running = false;
         return uint8_t{0};
       });
     }},
    {PULSE_CLOSE,
     [](Context& c, const Request& r) {
       onCounter(c, r, [](CounterChannel& k) {
         k = CounterChannel{};
         return uint8_t{0};
       });
     }},
}};

}  // namespace

}  // namespace orv::sim
