// Differential fuzzing of the splitter against the plain quadratic
// reassembly.  Input byte 0 picks how the rest is read (raw stream bytes, or
// a little program that builds packets, junk, padding and long runs), byte 1
// picks the read sizes.  Any difference in packets or state aborts.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <vector>

#include "../tests/cpp/reference_splitter.hpp"
#include "link/framing.hpp"

namespace {

using orv::Bytes;
using orv::RawPacket;

// The model rescans the whole stream per end mark; keep it affordable.
constexpr size_t kMaxStream = 200000;

class Reader {
 public:
  explicit Reader(std::span<const uint8_t> in) : in_(in) {}
  bool done() const { return pos_ >= in_.size(); }
  uint8_t byte() { return done() ? 0 : in_[pos_++]; }
  uint16_t word() { return static_cast<uint16_t>((byte() << 8) | byte()); }
  std::span<const uint8_t> take(size_t n) {
    n = std::min(n, in_.size() - pos_);
    const auto out = in_.subspan(pos_, n);
    pos_ += n;
    return out;
  }

 private:
  std::span<const uint8_t> in_;
  size_t pos_ = 0;
};

Bytes buildStream(Reader& r) {
  Bytes s;
  while (!r.done() && s.size() < kMaxStream) {
    const uint8_t op = r.byte();
    switch (op % 8) {
      case 0:
      case 6: {  // a packet, whole or cut short
        const int cmd = r.word();
        const auto data = r.take(r.byte());
        Bytes p = orv::preparePacket(cmd, data);
        if (op % 8 == 6) p.resize(p.size() - std::min<size_t>(p.size(), 1 + r.byte() % 8));
        s.insert(s.end(), p.begin(), p.end());
        break;
      }
      case 1: {  // raw bytes
        const auto raw = r.take(r.byte());
        s.insert(s.end(), raw.begin(), raw.end());
        break;
      }
      case 2: {  // a long run of one byte
        const size_t n = r.word();
        s.resize(s.size() + n, r.byte());
        break;
      }
      case 3: {  // a start byte with any length
        const uint16_t len = r.word();
        s.insert(s.end(), {2, static_cast<uint8_t>(len >> 8), static_cast<uint8_t>(len)});
        break;
      }
      case 4:
        s.insert(s.end(), {0x0D, 0x0A});
        break;
      case 5:  // USB zero padding
        s.resize((s.size() / 64 + 1) * 64, 0);
        break;
      default: {  // repeat an earlier stretch
        if (s.empty()) break;
        const size_t from = r.word() % s.size();
        const size_t n = std::min<size_t>(r.word(), s.size() - from);
        s.insert(s.end(), s.begin() + static_cast<std::ptrdiff_t>(from),
                 s.begin() + static_cast<std::ptrdiff_t>(from + n));
        break;
      }
    }
  }
  if (s.size() > kMaxStream) s.resize(kMaxStream);
  return s;
}

[[noreturn]] void fail(const char* what, size_t off) {
  std::fprintf(stderr, "splitter mismatch: %s after byte %zu\n", what, off);
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const uint8_t mode = data[0];
  const uint8_t split = data[1];
  Reader r(std::span(data + 2, size - 2));
  Bytes s;
  if (mode & 1) {
    s = buildStream(r);
  } else {
    const auto raw = r.take(size - 2);
    s.assign(raw.begin(), raw.end());
  }

  // The model costs about (end marks) x (start bytes + length / 64) steps.
  const size_t crlfs = static_cast<size_t>(std::count(s.begin(), s.end(), 0x0D));
  const size_t stxs = static_cast<size_t>(std::count(s.begin(), s.end(), 0x02));
  if (crlfs * (stxs + s.size() / 64) > 30'000'000) return 0;

  static constexpr size_t kMaxChunk[] = {1, 2, 7, 64, 200, 1536, 9606, SIZE_MAX};
  const size_t max_chunk = kMaxChunk[split & 7];
  const bool fixed = split & 8;
  uint32_t rng = 0x9E3779B9u ^ (static_cast<uint32_t>(split) * 0x01000193u) ^ mode;

  // On long streams a read is at least 1/256 of it, so the model's rescans
  // and the stream copies stay affordable.
  const size_t min_chunk = std::max<size_t>(1, s.size() / 256);

  orv::ref::ReferenceSplitter model;
  orv::Splitter sp;
  std::vector<RawPacket> got;
  size_t reads = 0;
  for (size_t off = 0; off < s.size();) {
    rng ^= rng << 13;
    rng ^= rng >> 17;
    rng ^= rng << 5;
    size_t n = fixed || max_chunk == SIZE_MAX ? max_chunk : 1 + rng % max_chunk;
    n = std::min(std::max(n, min_chunk), s.size() - off);
    const std::span<const uint8_t> chunk(s.data() + off, n);
    off += n;
    ++reads;
    const std::vector<RawPacket> want = model.feed(chunk);
    got.clear();
    sp.feed(chunk, got);
    if (got != want) fail("packets", off);
    const size_t have = sp.bufferedBytes();
    const bool exact = model.stream.size() <= orv::Splitter::kTrimThreshold;
    const size_t cut = exact ? 0 : model.stream.size() - std::min(have, model.stream.size());
    if (exact ? have != model.stream.size() : have > model.stream.size()) {
      fail("bufferedBytes", off);
    }
    if (sp.lastIndex() != (model.last_index > cut ? model.last_index - cut : 0)) {
      fail("lastIndex", off);
    }
    if (have <= 4096 || reads % 64 == 0 || off == s.size()) {
      const Bytes st = sp.stream();
      if (st.size() != have) fail("stream size", off);
      if (!std::equal(st.begin(), st.end(),
                      model.stream.begin() + static_cast<std::ptrdiff_t>(cut))) {
        fail("stream", off);
      }
    }
  }
  return 0;
}
