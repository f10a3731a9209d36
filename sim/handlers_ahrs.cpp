// The simulated inertial unit of HeronAinImu.
//
// Key/value state a test sets:
//   "ahrs.attitude"      roll, pitch, yaw in degrees (default 0, 0, 0)
//   "ahrs.acceleration"  x, y, z as the device reports them (default 0, 0, 9.81)
// AHRS_GET_ESTIMATES answers, after the port and a status, the orientation in
// radians (mask bit 0) and then the acceleration (mask bit 4), each value a
// 32-bit float.  The settings are mirrored: "ahrs.general" [gravity, dt,
// z_offset], "ahrs.tau" [accelerator, magnetometer], "ahrs.state" one of
// "closed", "open", "running".  Every command but AHRS_START answers a status;
// a port other than 0 or a unit not opened answers the core error status (42).
#include <bit>
#include <numbers>
#include <string>
#include <vector>

#include "analog/ahrs.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/state.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusBad = 42;  // the firmware core error

void putFloat(Bytes& out, double v) {
  const uint32_t u = std::bit_cast<uint32_t>(static_cast<float>(v));
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(u >> s));
}

double floatAt(const Bytes& d, size_t at) {
  const uint32_t u = (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) |
                     (uint32_t{d[at + 2]} << 8) | d[at + 3];
  return std::bit_cast<float>(u);
}

std::vector<double> triple(Context& ctx, const char* key, std::vector<double> fallback) {
  const Value v = ctx.state().get(key);
  if (!v.isSequence() || v.size() < 3) return fallback;
  std::vector<double> out;
  for (size_t i = 0; i < 3; ++i) out.push_back(v.asList()[i].asFloat());
  return out;
}

std::string unitState(Context& ctx) {
  const Value v = ctx.state().get("ahrs.state", Value(std::string("closed")));
  return v.isText() ? v.asText() : "closed";
}

void setState(Context& ctx, const char* s) { ctx.state().set("ahrs.state", Value(std::string(s))); }

bool ok(Context& ctx, const Request& req, size_t need, bool must_be_open = true) {
  const bool good =
      req.data.size() >= need && req.data[0] == 0 && (!must_be_open || unitState(ctx) != "closed");
  if (!good && !req.data.empty()) ctx.reply({req.data[0], kStatusBad});
  return good;
}

void floats(Context& ctx, const Request& req, const char* key, size_t n) {
  if (!ok(ctx, req, 1 + 4 * n)) return;
  Value::List l;
  for (size_t i = 0; i < n; ++i) l.emplace_back(floatAt(req.data, 1 + 4 * i));
  ctx.state().set(key, Value::list(std::move(l)));
  ctx.reply({0, 0});
}

void estimates(Context& ctx, const Request& req) {
  if (!ok(ctx, req, 2)) return;
  Bytes out{0, 0};
  if (req.data[1] & 1)
    for (double deg : triple(ctx, "ahrs.attitude", {0, 0, 0}))
      putFloat(out, deg * std::numbers::pi / 180);
  if (req.data[1] & 16)
    for (double a : triple(ctx, "ahrs.acceleration", {0, 0, 9.81})) putFloat(out, a);
  ctx.reply(out);
}

const Registrar ahrs{{
    {AHRS_OPEN,
     [](Context& ctx, const Request& req) {
       if (!ok(ctx, req, 1, false)) return;
       setState(ctx, "open");
       ctx.reply({0, 0});
     }},
    {AHRS_START,
     [](Context& ctx, const Request& req) {
       if (req.data.size() >= 2 && req.data[0] == 0 && unitState(ctx) != "closed")
         setState(ctx, "running");
     }},
    {AHRS_STOP,
     [](Context& ctx, const Request& req) {
       if (!ok(ctx, req, 1)) return;
       setState(ctx, "open");
       ctx.reply({0, 0});
     }},
    {AHRS_CLOSE,
     [](Context& ctx, const Request& req) {
       if (!ok(ctx, req, 1)) return;
       setState(ctx, "closed");
       ctx.reply({0, 0});
     }},
    {AHRS_RESET,
     [](Context& ctx, const Request& req) {
       if (ok(ctx, req, 1)) ctx.reply({0, 0});
     }},
    {AHRS_SET_GNRL, [](Context& ctx, const Request& req) { floats(ctx, req, "ahrs.general", 3); }},
    {AHRS_VQF_SET_TAU, [](Context& ctx, const Request& req) { floats(ctx, req, "ahrs.tau", 2); }},
    {AHRS_GET_ESTIMATES, estimates},
}};

}  // namespace

}  // namespace orv::sim
