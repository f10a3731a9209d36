// The simulated firmware's analog inputs (16-bit and 24-bit).
//
// Per AI port: mode (0 on demand, 1 N-samples, 2 continuous), sampling rate,
// number of samples, enabled channels (a count; Trellis: a chip-select mask
// with 8 channels per chip) and a running stream.  A stream sends records
// [port, cs, samples...] under START_AI_STREAMING (or _VARIABLE, whichever
// started it), each sample one big-endian signed 16-bit count per channel,
// paced in real time on the device's ticker: every 2 ms the samples due at
// the rate so far, in records of at most 64 samples.  Mode 1 ends after
// num_samples.  On Wi-Fi models the records go on the data link.
//
// Settings through the device's key/value state:
//   "ai.wave"       list, one waveform per channel (channel n takes item
//                   n mod length); a waveform is one of
//                     ["ramp", start, step]   counts start + step*k, 16-bit wrap
//                     ["count", c]            the count c
//                     ["const", volts]
//                     ["sine", amplitude, frequency, offset]   volts, Hz
//                     ["noise", amplitude, seed]   uniform in +-amplitude
//                     ["ao", channel, port]   what the channel of the same
//                                             device's AO port (default 0)
//                                             outputs at the sample's instant:
//                                             a value written on demand or a
//                                             running waveform (sim/ao_output.hpp)
//                   k is the sample's index since the stream started and
//                   t = k / rate; the sample's instant is the stream's start
//                   plus t.  Default: ["ramp", 1000*channel, 1].
//                   On-demand reads take k = 0, 1, 2... per port, and now as
//                   their instant.
//   "ai.flat_out"   true: records of 64 samples back to back, as fast as
//                   the link takes them (benchmarks), rate ignored
//   "ai.record_samples"  int: samples per record instead of 64
//   "ai24.counts"   list of 8 ints: the 24-bit offset-binary counts that
//                   READAI24BIT answers (default 2^23 + 1000*channel)
//
// START_AI_STREAMING with more than the port byte is the link tests' plain
// stream: port, cs, records per second (2 bytes), payload bytes; records of
// a running byte counter.
#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstring>
#include <map>
#include <memory>
#include <random>

#include "analog/ai.hpp"
#include "link/constants.hpp"
#include "models/model_info.hpp"
#include "sim/ao_output.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

using SteadyClock = std::chrono::steady_clock;
constexpr int kRecordSamples = 64;

struct AiPort {
  int mode = 2;
  double rate = 1000;
  uint32_t num_samples = 1000;
  int channels = 8;
  uint8_t cs_mask = 1;
  int task = 0;  // the running stream's periodic task
  uint64_t on_demand_k = 0;
  uint64_t samples_sent = 0, records_sent = 0;
};

struct AiSim {
  std::map<int, AiPort> ports;
};

const ModelInfo& infoOf(SimDevice& dev) { return modelInfo(dev.model()); }

double f32At(const Bytes& d, size_t at) {
  if (d.size() < at + 4) return 0;
  const uint32_t u = (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) |
                     (uint32_t{d[at + 2]} << 8) | d[at + 3];
  return std::bit_cast<float>(u);
}

void putU32(Bytes& out, uint32_t v) {
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<uint8_t>(v >> s));
}

void putF32(Bytes& out, float f) { putU32(out, std::bit_cast<uint32_t>(f)); }

double ratioOf(SimDevice& dev) {
  const double r = infoOf(dev).ai.ratio;
  return r > 0 ? r : 10.0 / 32768.0;
}

int16_t clampCount(double c) {
  if (!(c == c)) return 0;
  return static_cast<int16_t>(std::clamp(std::lround(c), -32768L, 32767L));
}

// One waveform of "ai.wave": the count of sample k of a stream at `rate`.
class Wave {
 public:
  Wave(const Value& form, int channel, double ratio) : ratio_(ratio) {
    kind_ = "ramp";
    a_ = 1000.0 * channel;
    b_ = 1;
    if (!form.isSequence() || form.size() == 0 || !form.asList()[0].isText()) return;
    const auto& l = form.asList();
    kind_ = l[0].asText();
    auto num = [&](size_t i, double dflt) {
      return i < l.size() && l[i].isNumber() ? l[i].asFloat() : dflt;
    };
    a_ = num(1, 0);
    b_ = num(2, 0);
    c_ = num(3, 0);
    if (kind_ == "noise") rng_.seed(static_cast<uint32_t>(b_));
  }

  // `at`: the sample's instant (waveforms of other outputs).
  int16_t count(SimDevice& dev, uint64_t k, double rate, SteadyClock::time_point at) {
    const double t = rate > 0 ? static_cast<double>(k) / rate : 0;
    if (kind_ == "ramp")
      return static_cast<int16_t>(
          static_cast<uint16_t>(static_cast<int64_t>(a_) + static_cast<int64_t>(b_) * k));
    if (kind_ == "count") return clampCount(a_);
    if (kind_ == "const") return clampCount(a_ / ratio_);
    if (kind_ == "sine") return clampCount((a_ * std::sin(2 * M_PI * b_ * t) + c_) / ratio_);
    if (kind_ == "noise") {
      std::uniform_real_distribution<double> u(-a_, a_);
      return clampCount(u(rng_) / ratio_);
    }
    if (kind_ == "ao")
      return clampCount(aoOutput(dev, static_cast<int>(b_), static_cast<int>(a_), at) / ratio_);
    return 0;
  }

 private:
  std::string kind_;
  double a_ = 0, b_ = 0, c_ = 0;
  double ratio_;
  std::mt19937 rng_;
};

std::vector<Wave> wavesOf(SimDevice& dev, int channels) {
  const Value form = dev.state().get("ai.wave");
  std::vector<Wave> waves;
  for (int ch = 0; ch < channels; ++ch) {
    Value one;
    if (form.isSequence() && form.size() > 0)
      one = form.asList()[static_cast<size_t>(ch) % form.size()];
    waves.emplace_back(one, ch, ratioOf(dev));
  }
  return waves;
}

void putSample(SimDevice& dev, std::vector<Wave>& waves, uint64_t k, double rate,
               SteadyClock::time_point at, Bytes& out) {
  for (Wave& w : waves) {
    const auto c = static_cast<uint16_t>(w.count(dev, k, rate, at));
    out.push_back(static_cast<uint8_t>(c >> 8));
    out.push_back(static_cast<uint8_t>(c & 0xFF));
  }
}

std::vector<int> chipsOf(uint8_t mask) {
  std::vector<int> out;
  for (int cs = 0; cs < 3; ++cs)
    if ((mask >> cs) & 1) out.push_back(cs);
  return out;
}

void reply(Context& ctx, int port, uint8_t status = 0) {
  ctx.reply({static_cast<uint8_t>(port), status});
}

// Stops the port's stream, waiting for a tick in progress.
void stopStream(SimDevice& dev, int port) {
  int task = 0;
  {
    auto ai = dev.state().slot<AiSim>();
    task = std::exchange(ai->ports[port].task, 0);
  }
  if (task) dev.stopPeriodic(task);
}

// The plain stream of the link tests.
void plainStream(Context& ctx, const Request& req) {
  const int port = req.data[0];
  const uint8_t cs = req.data[1];
  int rate = req.data.size() > 3 ? (req.data[2] << 8) | req.data[3] : 1000;
  if (rate <= 0) rate = 1000;
  const size_t payload = req.data.size() > 4 ? req.data[4] : 16;
  SimDevice& dev = ctx.device();
  stopStream(dev, port);
  const Bytes prefix{static_cast<uint8_t>(port), cs};
  const int id =
      dev.startPeriodic(std::chrono::microseconds(1000000 / rate), [&dev, prefix, payload] {
        Bytes data = prefix;
        const Bytes counter = dev.counterBytes(payload);
        data.insert(data.end(), counter.begin(), counter.end());
        dev.writeStream(START_AI_STREAMING, data);
        return true;
      });
  dev.state().slot<AiSim>()->ports[port].task = id;
}

// What one running stream needs on the ticker thread.
struct Stream {
  int cmd = 0, port = 0;
  std::vector<int> chips;
  double rate = 0;
  uint64_t limit = 0;  // mode 1: samples to send; 0: no end
  bool flat_out = false;
  size_t per_record = kRecordSamples;
  std::vector<std::vector<Wave>> waves;  // per chip
  SteadyClock::time_point t0;
  uint64_t sent = 0;
  SteadyClock::time_point instant(uint64_t k) const {
    if (!(rate > 0)) return t0;
    return t0 + std::chrono::duration_cast<SteadyClock::duration>(
                    std::chrono::duration<double>(static_cast<double>(k) / rate));
  }
};

void startStream(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  if (req.cmd == START_AI_STREAMING && req.data.size() > 1) return plainStream(ctx, req);
  SimDevice& dev = ctx.device();
  const int port = req.data[0];
  stopStream(dev, port);
  const bool slots = infoOf(dev).ai.slots;
  auto st = std::make_shared<Stream>();
  {
    auto ai = dev.state().slot<AiSim>();
    AiPort& p = ai->ports[port];
    st->cmd = req.cmd;
    st->port = port;
    st->chips = slots ? chipsOf(p.cs_mask) : std::vector<int>{0};
    st->rate = p.rate;
    st->limit = p.mode == 1 ? p.num_samples : 0;
    const int channels = slots ? 8 : p.channels;
    for (size_t i = 0; i < st->chips.size(); ++i) st->waves.push_back(wavesOf(dev, channels));
  }
  const Value flat = dev.state().get("ai.flat_out", Value(false));
  st->flat_out = flat.isInt() && flat.asInt() != 0;
  const Value per = dev.state().get("ai.record_samples");
  if (per.isInt() && per.asInt() > 0) st->per_record = static_cast<size_t>(per.asInt());
  st->t0 = SteadyClock::now();
  auto interval = std::chrono::microseconds(st->flat_out ? 0 : 2000);
  const int id = dev.startPeriodic(interval, [&dev, st] {
    uint64_t due = 0;
    if (st->flat_out) {
      due = st->sent + st->per_record;
    } else {
      const double secs = std::chrono::duration<double>(SteadyClock::now() - st->t0).count();
      due = static_cast<uint64_t>(secs * st->rate);
    }
    if (st->limit) due = std::min(due, st->limit);
    while (st->sent < due) {
      const uint64_t n = std::min<uint64_t>(due - st->sent, st->per_record);
      for (size_t i = 0; i < st->chips.size(); ++i) {
        Bytes rec{static_cast<uint8_t>(st->port), static_cast<uint8_t>(st->chips[i])};
        for (uint64_t k = st->sent; k < st->sent + n; ++k)
          putSample(dev, st->waves[i], k, st->rate, st->instant(k), rec);
        if (!dev.writeStream(st->cmd, rec)) return false;
      }
      st->sent += n;
      auto ai = dev.state().slot<AiSim>();
      ai->ports[st->port].samples_sent += n;
      ai->ports[st->port].records_sent += st->chips.size();
    }
    return !(st->limit && st->sent >= st->limit);
  });
  dev.state().slot<AiSim>()->ports[port].task = id;
}

void closeStream(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  stopStream(ctx.device(), req.data[0]);
  reply(ctx, req.data[0]);
}

// Status commands: fn changes the port's settings.
template <typename Fn>
void onPort(Context& ctx, const Request& req, Fn fn) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  {
    auto ai = ctx.state().slot<AiSim>();
    fn(ai->ports[port]);
  }
  reply(ctx, port);
}

void readOnDemand(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  SimDevice& dev = ctx.device();
  const int port = req.data[0];
  const bool slots = infoOf(dev).ai.slots;
  int channels = 8;
  uint64_t k = 0;
  double rate = 0;
  {
    auto ai = ctx.state().slot<AiSim>();
    AiPort& p = ai->ports[port];
    channels = slots ? 8 : p.channels;
    k = p.on_demand_k++;
    rate = p.rate;
  }
  auto waves = wavesOf(dev, channels);
  Bytes out{static_cast<uint8_t>(port), 0};
  putSample(dev, waves, k, rate, SteadyClock::now(), out);
  ctx.reply(out);
}

void openStreaming(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  Bytes out{static_cast<uint8_t>(port), 0};
  auto ai = ctx.state().slot<AiSim>();
  const AiPort& p = ai->ports[port];
  putU32(out, p.num_samples);
  putF32(out, static_cast<float>(p.rate));
  out.push_back(static_cast<uint8_t>(p.mode));
  ctx.reply(out);
}

void bufferStatus(Context& ctx, const Request& req, int values) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  Bytes out{static_cast<uint8_t>(port)};
  auto ai = ctx.state().slot<AiSim>();
  const AiPort& p = ai->ports[port];
  const uint32_t first[] = {static_cast<uint32_t>(p.samples_sent),
                            static_cast<uint32_t>(p.records_sent)};
  for (int i = 0; i < values; ++i) putU32(out, i < 2 ? first[i] : 0);
  ctx.reply(out);
}

void read24(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const Value counts = ctx.state().get("ai24.counts");
  Bytes out{req.data[0], 0};
  for (size_t ch = 0; ch < 8; ++ch) {
    uint32_t n = (1u << 23) + 1000u * static_cast<uint32_t>(ch);
    if (counts.isSequence() && ch < counts.size() && counts.asList()[ch].isInt())
      n = static_cast<uint32_t>(counts.asList()[ch].asInt()) & 0xFFFFFF;
    out.push_back(static_cast<uint8_t>(n >> 16));
    out.push_back(static_cast<uint8_t>(n >> 8));
    out.push_back(static_cast<uint8_t>(n));
  }
  ctx.reply(out);
}

const Registrar reg{{
    {OPEN_AI, [](Context& c, const Request& r) { onPort(c, r, [](AiPort&) {}); }},
    {CLOSE_AI,
     [](Context& c, const Request& r) {
       if (!r.data.empty()) stopStream(c.device(), r.data[0]);
       onPort(c, r, [](AiPort&) {});
     }},
    {SET_AI_MODE,
     [](Context& c, const Request& r) {
       onPort(c, r, [&](AiPort& p) { p.mode = r.data.size() > 1 ? r.data[1] : p.mode; });
     }},
    {SET_AI_SAMPLING_RATE,
     [](Context& c, const Request& r) {
       onPort(c, r, [&](AiPort& p) { p.rate = f32At(r.data, 1); });
     }},
    {SET_AI_NUM_SAMPLES,
     [](Context& c, const Request& r) {
       onPort(c, r, [&](AiPort& p) {
         if (r.data.size() >= 5)
           p.num_samples = (uint32_t{r.data[1]} << 24) | (uint32_t{r.data[2]} << 16) |
                           (uint32_t{r.data[3]} << 8) | r.data[4];
       });
     }},
    {SET_AI_ENABLED_CS,
     [](Context& c, const Request& r) {
       const bool slots = infoOf(c.device()).ai.slots;
       onPort(c, r, [&](AiPort& p) {
         if (r.data.size() < 2) return;
         if (slots)
           p.cs_mask = r.data[1];
         else
           p.channels = std::clamp<int>(r.data[1], 1, 8);
       });
     }},
    {READ_AI_ON_DEMAND, readOnDemand},
    {READ_AI_ON_DEMAND_VARIABLE, readOnDemand},
    {OPEN_AI_STREAMING, openStreaming},
    {START_AI_STREAMING, startStream},
    {START_AI_STREAMING_VARIABLE, startStream},
    {CLOSE_AI_STREAMING, closeStream},
    {CLEAR_DATA,
     [](Context& c, const Request& r) {
       onPort(c, r, [](AiPort& p) { p.samples_sent = p.records_sent = 0; });
     }},
    {CHECK_BUFFER_STATUS, [](Context& c, const Request& r) { bufferStatus(c, r, 4); }},
    {GET_AI_COUNTERS, [](Context& c, const Request& r) { bufferStatus(c, r, 9); }},
    {READAI24BIT, read24},
}};

}  // namespace

}  // namespace orv::sim
