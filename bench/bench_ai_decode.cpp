// The analog input path inside the core, without Python and without a link:
//
//   scaling   one raw count to volts: the exact rounding (round(count *
//             ratio, 4) as the host rounds) against the naive
//             nearbyint(x * 1e4) / 1e4, and on how many counts the two
//             differ; and the decoder's way, a look-up in the table of the
//             exact values
//   decoder   raw stream records (64 samples x 8 channels) put on a KestrelAin
//             object's raw queue, decoded by ai_stream_thread onto the decoded
//             queue: wall time until the last sample is there, and the CPU
//             time of the process meanwhile (the decoder's, the main thread
//             waits)
//   read      the decoded samples taken by AI_readStreaming into per-sample
//             vectors (what becomes the list of lists) and by
//             AI_readStreamingInto into flat rows (what fills a numpy array),
//             in reads of 1000 samples: the reading thread's CPU time
//   path      decoder and row read together: the CPU per value from raw
//             records to a filled array, and the rate on one core
//
//   bench_ai_decode [samples]     (default 400000; run it under taskset -c 0)
#include <time.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "analog/ai.hpp"
#include "link/constants.hpp"
#include "models/models.hpp"

namespace {

using Clock = std::chrono::steady_clock;

double cpuSeconds(clockid_t which) {
  timespec ts{};
  clock_gettime(which, &ts);
  return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

double since(Clock::time_point t0) {
  return std::chrono::duration<double>(Clock::now() - t0).count();
}

void scaling() {
  constexpr int kRounds = 200;
  const double ratios[] = {5.0 / 32768.0, 10.0 / 32768.0};
  for (double ratio : ratios) {
    volatile double sink = 0;
    auto t0 = Clock::now();
    // Each round sums into a local, so a value costs its conversion and one
    // add, not a trip through memory.
    for (int r = 0; r < kRounds; ++r) {
      double acc = 0;
      for (int c = -32768; c < 32768; ++c) acc += orv::aiVolts(static_cast<int16_t>(c), ratio);
      sink = sink + acc;
    }
    const double exact = since(t0) * 1e9;
    t0 = Clock::now();
    for (int r = 0; r < kRounds; ++r) {
      double acc = 0;
      for (int c = -32768; c < 32768; ++c) acc += std::nearbyint(c * ratio * 1e4) / 1e4;
      sink = sink + acc;
    }
    const double naive = since(t0) * 1e9;
    const double* table = orv::aiVoltsTable(ratio);
    t0 = Clock::now();
    for (int r = 0; r < kRounds; ++r) {
      double acc = 0;
      for (int c = 0; c < 65536; ++c) acc += table[(c * 40503) & 0xFFFF];
      sink = sink + acc;
    }
    const double lookup = since(t0) * 1e9;
    int differ = 0;
    for (int c = -32768; c < 32768; ++c)
      differ +=
          orv::aiVolts(static_cast<int16_t>(c), ratio) != std::nearbyint(c * ratio * 1e4) / 1e4;
    const double n = 65536.0 * kRounds;
    std::printf(
        "scaling  ratio %.15g: exact %.2f ns/value, naive %.2f ns/value (x%.2f), naive differs "
        "on %d of 65536 counts; table look-up %.2f ns/value\n",
        ratio, exact / n, naive / n, exact / naive, differ, lookup / n);
  }
}

// Raw records of the default ramp: channel c counts 1000*c + k.
std::vector<orv::Bytes> records(size_t samples, size_t per_record) {
  std::vector<orv::Bytes> out;
  for (size_t k0 = 0; k0 < samples; k0 += per_record) {
    orv::Bytes rec;
    for (size_t k = k0; k < std::min(samples, k0 + per_record); ++k)
      for (int c = 0; c < 8; ++c) {
        const auto count = static_cast<uint16_t>(1000 * c + k);
        rec.push_back(static_cast<uint8_t>(count >> 8));
        rec.push_back(static_cast<uint8_t>(count & 0xFF));
      }
    out.push_back(std::move(rec));
  }
  return out;
}

void decodeAndRead(size_t samples) {
  using orv::Call;
  orv::KestrelAin dev(false);
  const Call call(dev, Call::Flavour::Blocking, 3);
  const orv::Value port(int64_t{0});
  dev.AI_open(call, port);  // KestrelAin sends nothing: the gate opens
  auto raw = dev.streamPool().get(orv::StreamKey::triple(orv::START_AI_STREAMING, 0, 0));
  const double values = static_cast<double>(samples) * 8;

  for (int pass = 0; pass < 2; ++pass) {
    const auto recs = records(samples, 64);
    double cpu0 = cpuSeconds(CLOCK_PROCESS_CPUTIME_ID);
    auto t0 = Clock::now();
    double decode_cpu = 0;
    for (const auto& r : recs) raw->push(r);
    while (dev.decodedSize(0) < samples) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const double wall = since(t0), cpu = cpuSeconds(CLOCK_PROCESS_CPUTIME_ID) - cpu0;
    decode_cpu = cpu;
    const bool lists = pass == 0;
    std::printf(
        "decoder  %zu samples x 8: %.1f ns/value wall, %.1f ns/value CPU, %.1f M values/s\n",
        samples, wall * 1e9 / values, cpu * 1e9 / values, values / wall / 1e6);

    constexpr size_t kChunk = 1000;
    size_t got = 0;
    bool ok = true;
    cpu0 = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
    t0 = Clock::now();
    if (lists) {
      while (got < samples) {
        const orv::AiSamples part =
            dev.AI_readStreaming(call, port, static_cast<int64_t>(kChunk), 1.0);
        if (part.empty()) break;
        ok = ok && part.front().size() == 8;
        got += part.size();
      }
    } else {
      std::vector<double> rows(kChunk * 8);
      while (got < samples) {
        const size_t n = dev.AI_readStreamingInto(call, port, rows.data(), kChunk, 8, 1.0);
        if (n == 0) break;
        ok = ok && rows[1] == orv::aiVolts(static_cast<int16_t>(1000 + got), 10.0 / 32768.0);
        got += n;
      }
    }
    const double rwall = since(t0), rcpu = cpuSeconds(CLOCK_THREAD_CPUTIME_ID) - cpu0;
    std::printf("read     %-29s %.1f ns/value wall, %.1f ns/value CPU, %.1f M values/s%s\n",
                lists ? "AI_readStreaming (vectors):" : "AI_readStreamingInto (rows):",
                rwall * 1e9 / values, rcpu * 1e9 / values, values / rwall / 1e6,
                got == samples && ok ? "" : "  (WRONG: samples missing or misplaced)");
    if (!lists)
      std::printf(
          "path     raw records to filled rows: %.1f ns/value CPU, %.1f M values/s on one core\n",
          (decode_cpu + rcpu) * 1e9 / values, values / (decode_cpu + rcpu) / 1e6);
  }
  dev.close(false);
}

}  // namespace

int main(int argc, char** argv) {
  const size_t samples = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 400000;
  scaling();
  decodeAndRead(samples);
  return 0;
}
