// Packet building, reassembly and classification.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "link/constants.hpp"
#include "link/framing.hpp"
#include "reference_splitter.hpp"

namespace orv {
namespace {

using Packets = std::vector<RawPacket>;

Bytes cat(std::initializer_list<Bytes> parts) {
  Bytes out;
  for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
  return out;
}

Bytes pkt(int cmd, const Bytes& data = {}) { return preparePacket(cmd, std::span(data)); }

std::string hex(const Bytes& b) {
  std::string s;
  char buf[4];
  for (uint8_t v : b) {
    std::snprintf(buf, sizeof buf, "%02X ", v);
    s += buf;
  }
  return s;
}

std::string describe(const Packets& ps) {
  std::string s;
  for (const RawPacket& p : ps) s += "[" + std::to_string(p.cmd) + ": " + hex(p.data) + "] ";
  return s;
}

// ---------------------------------------------------------------- building

TEST(PreparePacket, BuildsWireBytes) {
  struct Case {
    int cmd;
    std::vector<int64_t> data;
    Bytes wire;
  };
  for (const Case& c : std::vector<Case>{
           {GET_DRIVER_INFO, {0}, {2, 0, 2, 0xF0, 0, 0x0D, 0x0A}},
           {AHRS_START, {}, {2, 0, 2, 0x24, 0x01, 0x0D, 0x0A}},  // two bytes, no data
           {200, {}, {2, 0, 1, 200, 0x0D, 0x0A}},
           {255, {7}, {2, 0, 2, 0xFF, 7, 0x0D, 0x0A}},             // the largest one-byte command
           {256, {7}, {2, 0, 3, 0x01, 0x00, 7, 0x0D, 0x0A}},       // the smallest two-byte one
           {OPEN_CAN, {1}, {2, 0, 2, 0x30, 1, 0x0D, 0x0A}},        // sent as one byte
           {183, {2, 13, 10}, {2, 0, 4, 183, 2, 13, 10, 13, 10}},  // framing bytes in the data
           {100, {256, -1, 511}, {2, 0, 4, 100, 0, 0xFF, 0xFF, 13, 10}},  // values modulo 256
       }) {
    SCOPED_TRACE("command " + std::to_string(c.cmd));
    EXPECT_EQ(hex(preparePacket(c.cmd, std::span<const int64_t>(c.data))), hex(c.wire));
    // The byte overload agrees whenever the values are bytes already.
    if (std::all_of(c.data.begin(), c.data.end(), [](int64_t v) { return v >= 0 && v < 256; })) {
      const Bytes as_bytes(c.data.begin(), c.data.end());
      EXPECT_EQ(hex(preparePacket(c.cmd, std::span(as_bytes))), hex(c.wire));
    }
  }
}

TEST(PreparePacket, LengthFieldIsBigEndianForLongData) {
  const Bytes data(300, 0xAB);
  EXPECT_EQ(pkt(129, data), cat({{2, 0x01, 0x2D, 129}, data, {0x0D, 0x0A}}));          // 301
  EXPECT_EQ(pkt(8265, data), cat({{2, 0x01, 0x2E, 0x20, 0x49}, data, {0x0D, 0x0A}}));  // 302
}

// ------------------------------------------------------------- reassembly

TEST(Splitter, DecodesWireBytes) {
  struct Case {
    const char* name;
    Bytes wire;
    Packets expected;
  };
  for (const Case& c : std::vector<Case>{
           {"EmptyDataLengthOne", {2, 0, 1, 0xF0, 0x0D, 0x0A}, {{0xF0, {}}}},
           {"AhrsStart", {2, 0, 4, 0x24, 0x01, 7, 8, 0x0D, 0x0A}, {{AHRS_START, {7, 8}}}},
           {"AhrsStartNoData", {2, 0, 2, 0x24, 0x01, 0x0D, 0x0A}, {{AHRS_START, {}}}},
           // 48 opens a two-byte command on receipt; 49 is a one-byte command.
           {"FirstByte48", {2, 0, 3, 0x30, 0x05, 7, 0x0D, 0x0A}, {{0x3005, {7}}}},
           {"OpenCanComesBackTwoByte", {2, 0, 2, 0x30, 1, 0x0D, 0x0A}, {{0x3001, {}}}},
           {"FirstByte49", {2, 0, 3, 0x31, 0x05, 7, 0x0D, 0x0A}, {{START_CAN, {5, 7}}}},
           // A length that leaves no room for the second command byte reads the CR.
           {"TwoByteLengthOne", {2, 0, 1, 0x05, 0x0D, 0x0A}, {{0x050D, {}}}},
           // A zero length reads the command on the end mark itself.
           {"LengthZero", {2, 0, 0, 0x0D, 0x0A}, {{0x0D0A, {}}}},
           {"JunkAheadIsDropped", {0, 2, 0x0D, 0x0A, 2, 0, 1, 0x60, 0x0D, 0x0A}, {{0x60, {}}}},
           {"NegativeLengthNeverMatches", {2, 0xFF, 0xFF, 0x0D, 0x0A}, {}},
           {"NoStartByte", {0, 0, 1, 0x60, 0x0D, 0x0A}, {}},
           {"EndMarkInsidePayload",
            pkt(GET_DRIVER_INFO, {1, 0x0D, 0x0A, 2}),
            {{GET_DRIVER_INFO, {1, 0x0D, 0x0A, 2}}}},
           {"TwoPacketsInOneRead",
            cat({pkt(240, {1, 2}), pkt(AHRS_START, {9})}),
            {{240, {1, 2}}, {AHRS_START, {9}}}},
           // A start byte in the payload agrees with the same end mark: the
           // packet's own, earlier, start byte wins ...
           {"EarliestStartByteWins", pkt(0x99, {2, 0, 1, 0x41}), {{0x99, {2, 0, 1, 0x41}}}},
           // ... and junk ahead with an agreeing start byte wins over the packet.
           {"AgreeingJunkWins", cat({{2, 0, 4}, pkt(0x60, {})}), {{0x0200, {1, 0x60}}}},
       }) {
    Splitter sp;
    EXPECT_EQ(sp.feed(c.wire), c.expected) << c.name;
  }
}

TEST(Splitter, LengthOf32768OrMoreNeverMatches) {
  const Bytes huge(32767, 0x55);  // length 32768: read back as -32768
  const Bytes big = pkt(0x60, huge);
  ASSERT_EQ(big[1], 0x80);
  ASSERT_EQ(big[2], 0x00);
  const Bytes largest(32766, 0x55);  // length 32767: the largest that can match
  Splitter sp;
  EXPECT_TRUE(sp.feed(big).empty());
  EXPECT_EQ(sp.feed(pkt(0x61, {1})), (Packets{{0x61, {1}}}));
  EXPECT_EQ(sp.feed(pkt(0x62, largest)), (Packets{{0x62, largest}}));
}

TEST(Splitter, ClearForgetsEverything) {
  Splitter sp;
  const Bytes wire = pkt(0x60, {1, 2, 3});
  EXPECT_TRUE(sp.feed(cat({{0x0D, 0x0A}, Bytes(wire.begin(), wire.begin() + 4)})).empty());
  EXPECT_EQ(sp.lastIndex(), 1u);
  sp.clear();
  EXPECT_EQ(sp.bufferedBytes(), 0u);
  EXPECT_EQ(sp.lastIndex(), 0u);
  EXPECT_EQ(sp.feed(wire), (Packets{{0x60, {1, 2, 3}}}));
}

// ------------------------------------------------------- differential test

// Builds streams of valid packets mixed with the kinds of damage a link sees.
class StreamMaker {
 public:
  explicit StreamMaker(uint64_t seed) : rng_(seed) {}

  size_t below(size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(rng_); }
  bool chance(int percent) { return below(100) < static_cast<size_t>(percent); }

  uint8_t nastyByte() {
    static constexpr uint8_t kNasty[] = {0x02, 0x0D, 0x0A, 0x00, 0x00,
                                         0x7F, 0xFF, 0x01, 0x05, 0x30};
    return chance(70) ? kNasty[below(sizeof kNasty)] : static_cast<uint8_t>(below(256));
  }

  Bytes data(size_t max_len) {
    Bytes d(below(max_len + 1));
    const bool nasty = chance(40);
    for (auto& v : d) v = nasty ? nastyByte() : static_cast<uint8_t>(below(256));
    return d;
  }

  int command() {
    const int kind = static_cast<int>(below(5));
    if (kind == 3) return AHRS_START;
    const size_t range[] = {207, 0x3100 - 256, 49, 0, 65536};
    const int base[] = {49, 256, 0, 0, 0};
    return base[kind] + static_cast<int>(below(range[kind]));
  }

  void piece(Bytes& s, size_t max_data) {
    switch (below(10)) {
      case 0:
      case 1:
      case 2: {  // a valid packet
        const Bytes p = pkt(command(), data(max_data));
        s.insert(s.end(), p.begin(), p.end());
        break;
      }
      case 3:  // junk rich in framing bytes
        for (size_t n = 1 + below(40); n > 0; --n) s.push_back(nastyByte());
        break;
      case 4: {  // a start byte with a plausible length
        const uint16_t len = chance(70) ? static_cast<uint16_t>(below(40))
                                        : static_cast<uint16_t>(32760 + below(16));
        s.insert(s.end(), {2, static_cast<uint8_t>(len >> 8), static_cast<uint8_t>(len)});
        break;
      }
      case 5:  // a lone end mark
        s.insert(s.end(), {0x0D, 0x0A});
        break;
      case 6: {  // a damaged packet
        Bytes p = pkt(command(), data(max_data));
        const size_t at = below(p.size());
        if (chance(50)) {
          p.erase(p.begin() + static_cast<std::ptrdiff_t>(at));
        } else {
          p[at] = static_cast<uint8_t>(below(256));
        }
        s.insert(s.end(), p.begin(), p.end());
        break;
      }
      case 7: {  // a truncated packet
        const Bytes p = pkt(command(), data(max_data));
        s.insert(s.end(), p.begin(), p.begin() + static_cast<std::ptrdiff_t>(below(p.size())));
        break;
      }
      case 8:  // USB zero padding to the next transfer
        s.resize((s.size() / USB_PKT_SIZE + 1) * USB_PKT_SIZE, 0);
        break;
      default:  // plain random bytes
        for (size_t n = 1 + below(30); n > 0; --n) s.push_back(static_cast<uint8_t>(below(256)));
        break;
    }
  }

  // Reads of the stream: whole, byte by byte, USB transfers, short or long
  // reads, or (max_read given) up to max_read bytes each.
  std::vector<size_t> chunks(size_t total, size_t max_read = 0) {
    std::vector<size_t> sizes;
    const size_t mode = max_read ? 5 : below(5);
    for (size_t done = 0; done < total;) {
      const size_t most[] = {total, 1, USB_PKT_SIZE, 200, TCP_PKT_LENGTH_MAX * 2, max_read};
      const size_t n = std::min(mode < 3 ? most[mode] : 1 + below(most[mode]), total - done);
      sizes.push_back(n);
      done += n;
    }
    return sizes;
  }

 private:
  std::mt19937_64 rng_;
};

// Feeds the stream to both and compares every result, and the state while it
// is not subject to trimming.
void runDifferential(const Bytes& s, const std::vector<size_t>& chunks) {
  ref::ReferenceSplitter model;
  Splitter sp;
  size_t off = 0;
  for (size_t n : chunks) {
    const std::span<const uint8_t> chunk(s.data() + off, n);
    off += n;
    const Packets want = model.feed(chunk);
    Packets got;
    sp.feed(chunk, got);
    ASSERT_EQ(got, want) << "after byte " << off << "\n got: " << describe(got)
                         << "\nwant: " << describe(want);
    const Bytes st = sp.stream();
    ASSERT_EQ(sp.bufferedBytes(), st.size());
    if (model.stream.size() <= Splitter::kTrimThreshold) {
      ASSERT_EQ(st, model.stream) << "after byte " << off;
      ASSERT_EQ(sp.lastIndex(), model.last_index) << "after byte " << off;
    } else {
      ASSERT_LE(st.size(), model.stream.size());
      const size_t cut = model.stream.size() - st.size();
      ASSERT_TRUE(std::equal(st.begin(), st.end(), model.stream.begin() + cut));
      ASSERT_EQ(sp.lastIndex(), model.last_index > cut ? model.last_index - cut : 0);
    }
  }
}

TEST(SplitterDifferential, RandomAndAdversarialStreams) {
  for (uint64_t seed = 1; seed <= 4000; ++seed) {
    StreamMaker mk(seed);
    Bytes s;
    const size_t pieces = 1 + mk.below(mk.chance(10) ? 400 : 40);
    const size_t max_data = mk.chance(20) ? 300 : 24;
    for (size_t i = 0; i < pieces; ++i) mk.piece(s, max_data);
    SCOPED_TRACE("seed " + std::to_string(seed));
    runDifferential(s, mk.chunks(s.size()));
    if (HasFatalFailure()) return;
  }
}

// Streams beyond the trimming threshold: long runs without an accepted
// packet, packets of nearly the largest length, start bytes that reach far.
TEST(SplitterDifferential, LongStreamsAcrossTrimming) {
  for (uint64_t seed = 1; seed <= 12; ++seed) {
    StreamMaker mk(seed * 7919);
    Bytes s;
    while (s.size() < 3 * Splitter::kTrimThreshold) {
      switch (mk.below(4)) {
        case 0: {  // random bytes: sparse framing bytes
          for (size_t n = mk.below(40000); n > 0; --n)
            s.push_back(static_cast<uint8_t>(mk.below(256)));
          break;
        }
        case 1: {  // a packet of a length near the limit
          const size_t len = 32766 - mk.below(mk.chance(50) ? 4 : 3000);
          const Bytes p = pkt(0x60 + static_cast<int>(mk.below(100)), Bytes(len, 0x11));
          s.insert(s.end(), p.begin(), p.end());
          break;
        }
        case 2: {  // far-reaching start bytes and end marks
          for (size_t n = mk.below(30); n > 0; --n) {
            const uint16_t len = static_cast<uint16_t>(32700 + mk.below(80));
            s.insert(s.end(), {2, static_cast<uint8_t>(len >> 8), static_cast<uint8_t>(len)});
            s.resize(s.size() + mk.below(2000), 0x44);
            s.insert(s.end(), {0x0D, 0x0A});
          }
          break;
        }
        default:
          for (int i = 0; i < 20; ++i) mk.piece(s, 40);
          break;
      }
    }
    SCOPED_TRACE("seed " + std::to_string(seed));
    runDifferential(s, mk.chunks(s.size(), 3000));
    if (HasFatalFailure()) return;
  }
}

// The farthest start byte that can still agree sits exactly 32770 bytes
// before its end mark, and the stream is trimmed while the end mark is
// half received.
TEST(Splitter, LongestPacketSurvivesTrimming) {
  Bytes s(Splitter::kTrimThreshold + 5000, 0x44);
  const Bytes data(32766, 0x33);
  const Bytes p = pkt(0x70, data);
  ASSERT_EQ(p.size(), 32772u);
  s.insert(s.end(), p.begin(), p.end());
  Splitter sp;
  EXPECT_TRUE(sp.feed(std::span(s).first(s.size() - 1)).empty());
  EXPECT_LT(sp.bufferedBytes(), 2 * Splitter::kTrimThreshold);
  EXPECT_EQ(sp.feed(std::span(s).last(1)), (Packets{{0x70, data}}));
  EXPECT_EQ(sp.bufferedBytes(), 0u);
}

// None of these patterns ever forms an agreeing packet, so nothing comes out;
// the buffer stays bounded; a packet after it is found.
TEST(Splitter, EndlessJunkKeepsMemoryBounded) {
  for (const Bytes& pattern : std::vector<Bytes>{{2, 0x7F, 0xFF, 0x0D, 0x0A, 2, 0, 5},
                                                 {2, 0x7F, 0xFF, 2, 0, 5},  // starts only
                                                 {0x0D, 0x0A, 0x0D}}) {     // end marks only
    SCOPED_TRACE(hex(pattern));
    Bytes block;
    while (block.size() < 4096) block.insert(block.end(), pattern.begin(), pattern.end());
    Splitter sp;
    Packets got;
    size_t most = 0;
    for (size_t total = 0; total < (10u << 20); total += block.size()) {
      sp.feed(block, got);
      most = std::max(most, sp.bufferedBytes());
    }
    EXPECT_TRUE(got.empty());
    EXPECT_LT(most, 4 * Splitter::kTrimThreshold);
    // Out of reach of every junk start byte, a packet comes out whole.
    sp.feed(Bytes(40000, 0), got);
    sp.feed(pkt(0x99, {2, 0x0D, 0x0A}), got);
    EXPECT_EQ(got, (Packets{{0x99, {2, 0x0D, 0x0A}}}));
  }
}

// ---------------------------------------------------------- classification
// (The routing tests of test_pools.cpp classify every stream command, the
// broadcast answers by their first byte and the echo replies; these are the
// edges, one per kind.)

TEST(CheckCommandType, Classifies) {
  EXPECT_EQ(checkCommandType(AHRS_START, Bytes{5}), CmdType::Streaming);
  EXPECT_EQ(checkCommandType(CHECK_MAC_AND_REBOOT, Bytes{1, 0}), CmdType::Broadcast);  // answer
  EXPECT_EQ(checkCommandType(CHECK_MAC_AND_SET_IP, Bytes{}), CmdType::Ignore);
  EXPECT_EQ(checkCommandType(AHRS_START - 1, Bytes{1}), CmdType::Echo);
  EXPECT_STREQ(cmdTypeWord(CmdType::Streaming), "streaming");
  EXPECT_STREQ(cmdTypeWord(CmdType::Broadcast), "broadcast");
  EXPECT_STREQ(cmdTypeWord(CmdType::Ignore), "ignore");
  EXPECT_STREQ(cmdTypeWord(CmdType::Echo), "echo");
}

}  // namespace
}  // namespace orv
