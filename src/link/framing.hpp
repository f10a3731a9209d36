// The wire packet: STX, 16-bit length, 1- or 2-byte command, data, CR LF.
//
// preparePacket builds one; Splitter cuts a received byte stream back into
// [cmd, data] records with exactly the results of the plain reassembly
// (first agreeing start byte wins, end marks inside payloads are stepped
// over, junk and USB padding are dropped with the next accepted packet), in
// linear time per byte and bounded memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "link/value.hpp"

namespace orv {

struct RawPacket {
  int cmd = 0;
  Bytes data;
  bool operator==(const RawPacket&) const = default;
};

// _preparePacket: no range checks; values are taken modulo 256.
Bytes preparePacket(int cmd, std::span<const uint8_t> data_out);
Bytes preparePacket(int cmd, std::span<const int64_t> data_out);

// The reassembly state of one link (Client.stream / Client.last_index).
class Splitter {
 public:
  // Appends received bytes and returns every packet that is now complete, in
  // order (recvAndSplitPacket after a non-empty read).
  std::vector<RawPacket> feed(std::span<const uint8_t> bytes);
  void feed(std::span<const uint8_t> bytes, std::vector<RawPacket>& out);

  // The bytes not yet consumed and the position where the next end-mark
  // search resumes, exactly as the plain quadratic reassembly
  // (tests/cpp/reference_splitter.hpp) holds them, as long as the stream has
  // not grown beyond kTrimThreshold since the last accepted packet.  Beyond
  // that, bytes that can no longer belong to any packet (more than the
  // longest packet back from the end-mark search position) are discarded:
  // stream() is then the retained tail of that stream, and lastIndex() its
  // last index counted from the tail (0 if it pointed into the discarded
  // part).  The packets returned are never affected.
  Bytes stream() const;
  size_t lastIndex() const;
  size_t bufferedBytes() const;  // size of stream()
  void clear();

  // Stream size beyond which bytes that can no longer belong to a packet
  // are discarded (checked at the end of each feed).
  static constexpr size_t kTrimThreshold = 1 << 17;

 private:
  // All positions are absolute byte counts since the splitter was made, so
  // they survive compaction of buf_ and never need rebasing.
  static constexpr uint64_t kMaxLength = 32767;       // largest signed length
  static constexpr uint64_t kReach = 3 + kMaxLength;  // farthest end mark from a start byte
  static constexpr size_t kRing = 32768;              // live targets span kReach - 2 positions

  const uint8_t* at(uint64_t abs) const { return buf_.data() + (abs - origin_); }
  bool acceptAtHead(uint64_t end, std::vector<RawPacket>& out);
  void registerStarts(uint64_t crlf);
  void acceptPacket(uint64_t stx, uint64_t crlf, std::vector<RawPacket>& out);
  void trimAndCompact();

  Bytes buf_;  // buf_[0] is at absolute position origin_
  uint64_t origin_ = 0;
  uint64_t base_ = 0;      // stream()[0]
  uint64_t last_ = 0;      // last_index of the plain reassembly, absolute
  uint64_t scan_ = 0;      // next position that may hold an end mark
  uint64_t stx_scan_ = 0;  // next position not yet looked at as a start byte
  // Slot t % kRing holds 1 + the earliest live start byte whose end mark
  // would be at t (0: none).  Live targets always lie within one ring span.
  std::vector<uint64_t> by_target_;
};

// _checkCommandType
enum class CmdType { Streaming, Broadcast, Ignore, Echo };
CmdType checkCommandType(int cmd, std::span<const uint8_t> data);
const char* cmdTypeWord(CmdType t);  // "streaming", "broadcast", "ignore", "echo"

}  // namespace orv
