// Throughput of the packet splitter: clean traffic, junk-heavy traffic,
// growth with pure junk, and the plain quadratic reassembly for contrast.
#include <time.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <random>
#include <span>
#include <vector>

#include "../tests/cpp/reference_splitter.hpp"
#include "link/constants.hpp"
#include "link/framing.hpp"

namespace {

using orv::Bytes;
using Clock = std::chrono::steady_clock;

constexpr size_t kMB = 1 << 20;

uint8_t junkByte(std::mt19937_64& rng) {
  static constexpr uint8_t kRich[] = {0x02, 0x0D, 0x0A, 0x00, 0x7F, 0xFF, 0x05};
  const uint64_t r = rng();
  return (r & 3) != 0 ? kRich[(r >> 8) % sizeof kRich] : static_cast<uint8_t>(r >> 16);
}

// Packets of 20..200 bytes on the wire with random payloads; junk_share of
// the bytes (0..1) is framing-rich junk put between them.
Bytes makeStream(size_t bytes, double junk_share, uint64_t seed, size_t* packets) {
  std::mt19937_64 rng(seed);
  Bytes s;
  s.reserve(bytes + 256);
  size_t n = 0;
  double junk_debt = 0;
  while (s.size() < bytes) {
    const size_t wire = 20 + rng() % 181;
    Bytes data(wire - 6);
    for (auto& v : data) v = static_cast<uint8_t>(rng());
    const Bytes p = orv::preparePacket(static_cast<int>(49 + rng() % 200), std::span(data));
    s.insert(s.end(), p.begin(), p.end());
    ++n;
    if (junk_share > 0) {
      junk_debt += static_cast<double>(p.size()) * junk_share / (1 - junk_share);
      for (; junk_debt >= 1; junk_debt -= 1) s.push_back(junkByte(rng));
    }
  }
  *packets = n;
  return s;
}

double threadSeconds() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

// Adversarial junk that never forms an agreeing packet: a start byte every
// few bytes reaching as far as a length can, and an end mark every 8 bytes.
Bytes patternJunk(size_t bytes) {
  static constexpr uint8_t kPattern[] = {2, 0x7F, 0xFF, 0x0D, 0x0A, 2, 0, 5};
  Bytes s(bytes);
  for (size_t i = 0; i < bytes; ++i) s[i] = kPattern[i % sizeof kPattern];
  return s;
}

Bytes randomJunk(size_t bytes) {
  std::mt19937_64 rng(3);
  Bytes s(bytes);
  for (auto& v : s) v = junkByte(rng);
  return s;
}

// Times are thread CPU time: the machine is shared, wall time is printed
// alongside.
struct Result {
  double seconds;
  double wall;
  size_t packets;
  size_t most_buffered;
};

template <typename Split>
Result run(const Bytes& s, size_t chunk, Split& split) {
  std::vector<orv::RawPacket> out;
  size_t packets = 0;
  size_t most = 0;
  const auto t0 = Clock::now();
  const double c0 = threadSeconds();
  for (size_t off = 0; off < s.size(); off += chunk) {
    const size_t n = std::min(chunk, s.size() - off);
    out.clear();
    split(std::span(s.data() + off, n), out);
    packets += out.size();
    if constexpr (requires { split.buffered(); }) most = std::max(most, split.buffered());
  }
  const double cpu = threadSeconds() - c0;
  const double wall = std::chrono::duration<double>(Clock::now() - t0).count();
  return {cpu, wall, packets, most};
}

struct FastSplit {
  orv::Splitter sp;
  void operator()(std::span<const uint8_t> b, std::vector<orv::RawPacket>& out) { sp.feed(b, out); }
  size_t buffered() const { return sp.bufferedBytes(); }
};

struct ModelSplit {
  orv::ref::ReferenceSplitter model;
  void operator()(std::span<const uint8_t> b, std::vector<orv::RawPacket>& out) {
    out = model.feed(b);
  }
};

double mbps(size_t bytes, double sec) { return static_cast<double>(bytes) / kMB / sec; }

}  // namespace

int main() {
  const size_t chunk = orv::TCP_PKT_LENGTH_MAX;
  std::printf("splitter, reads of %zu bytes; MB/s by thread CPU time (wall in brackets)\n\n",
              chunk);
  {
    size_t made = 0;
    const Bytes s = makeStream(64 * kMB, 0, 1, &made);
    FastSplit f;
    const Result r = run(s, chunk, f);
    std::printf(
        "clean 64 MB, 20..200-byte packets: %7.1f MB/s (%6.1f)  %5.2f Mpackets/s  %zu/%zu out\n",
        mbps(s.size(), r.seconds), mbps(s.size(), r.wall), r.packets / r.seconds / 1e6, r.packets,
        made);
  }
  {
    size_t made = 0;
    const Bytes s = makeStream(32 * kMB, 0.5, 2, &made);
    FastSplit f;
    const Result r = run(s, chunk, f);
    std::printf(
        "32 MB, half framing-rich junk:     %7.1f MB/s (%6.1f)  %zu packets out, %zu sent\n",
        mbps(s.size(), r.seconds), mbps(s.size(), r.wall), r.packets, made);
  }
  for (const bool pattern : {true, false}) {
    std::printf("\npure junk, %s:\n",
                pattern ? "never-matching pattern 02 7F FF 0D 0A 02 00 05" : "random framing-rich");
    for (size_t mb : {1, 4, 16}) {
      const Bytes s = pattern ? patternJunk(mb * kMB) : randomJunk(mb * kMB);
      FastSplit f;
      const Result r = run(s, chunk, f);
      std::printf("  %2zu MB: %6.2f ms/MB  %7.1f MB/s (%6.1f)  largest stream kept %zu bytes\n", mb,
                  r.seconds * 1e3 / static_cast<double>(mb), mbps(s.size(), r.seconds),
                  mbps(s.size(), r.wall), r.most_buffered);
    }
  }
  std::printf("\nplain quadratic reassembly vs splitter, never-matching junk:\n");
  for (size_t kb : {16, 32, 64}) {
    const Bytes s = patternJunk(kb * 1024);
    ModelSplit m;
    const Result r = run(s, chunk, m);
    FastSplit f;
    const Result rf = run(s, chunk, f);
    std::printf("  %2zu KB: %9.1f ms/MB  (splitter %.2f ms/MB)\n", kb,
                r.seconds * 1e3 * 1024 / static_cast<double>(kb),
                rf.seconds * 1e3 * 1024 / static_cast<double>(kb));
  }
  return 0;
}
