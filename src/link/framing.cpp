// Packet building, stream reassembly and command classification.
//
// Reassembly.  The plain algorithm takes the first CR LF at or after
// last_index and tries every start byte before it, from the front, until one
// whose signed 16-bit length field equals the distance to that end mark; on
// failure last_index moves past the end mark, on success everything up to the
// end mark is cut off.  Done literally that costs a rescan of the whole
// buffer per end mark.  Here the same decisions are made in linear time:
//
// * A start byte at s with length L can only ever agree with an end mark at
//   exactly target(s) = s + 3 + L, and only if L >= 0 (a negative length
//   would need the start byte in the last two bytes before the end mark,
//   whose length field then reads CR or LF).  So each start byte is looked
//   at once, and the earliest start byte per target position is kept in a
//   ring indexed by target.  Each end mark is then a single lookup.
// * Start bytes are registered lazily, just before the end mark that follows
//   them is examined, and only if their target is not already behind it.
//   All live targets then lie within [crlf, crlf + 32767], one ring span,
//   so a slot never holds two live entries; stale entries are recognised by
//   position and never need clearing.
// * After a packet is accepted every registered start byte lies before the
//   new stream start and is thereby stale.
// * A start byte more than 32770 bytes before the end-mark search position
//   is dead.  Once the stream exceeds kTrimThreshold, bytes before that
//   point are discarded, which bounds memory under endless junk.
// * Clean traffic takes a shortcut (acceptAtHead) that decides a packet at
//   the stream head from its own length field and one pass over it.
#include "link/framing.hpp"

#include <algorithm>
#include <cstring>

#include "link/constants.hpp"

namespace orv {

namespace {

constexpr uint8_t kStx = CMD_STX_2;
constexpr uint8_t kCr = CMD_CR_2;
constexpr uint8_t kLf = CMD_LF_2;

template <typename T>
Bytes buildPacket(int cmd, std::span<const T> data_out) {
  const size_t n = data_out.size();
  const size_t length = n + (cmd < 256 ? 1 : 2);
  Bytes pkt;
  pkt.reserve(n + 7);
  pkt.push_back(static_cast<uint8_t>(CMD_STX));
  pkt.push_back(static_cast<uint8_t>((length >> 8) & 0xFF));
  pkt.push_back(static_cast<uint8_t>(length & 0xFF));
  if (cmd < 256) {
    pkt.push_back(static_cast<uint8_t>(cmd & 0xFF));
  } else {
    pkt.push_back(static_cast<uint8_t>((cmd >> 8) & 0xFF));
    pkt.push_back(static_cast<uint8_t>(cmd & 0xFF));
  }
  for (const T v : data_out) pkt.push_back(static_cast<uint8_t>(v & 0xFF));
  pkt.push_back(static_cast<uint8_t>(CMD_CR));
  pkt.push_back(static_cast<uint8_t>(CMD_LF));
  return pkt;
}

}  // namespace

Bytes preparePacket(int cmd, std::span<const uint8_t> data_out) {
  return buildPacket(cmd, data_out);
}

Bytes preparePacket(int cmd, std::span<const int64_t> data_out) {
  return buildPacket(cmd, data_out);
}

// Registers every start byte in [stx_scan_, crlf - 3] whose target is at or
// after crlf.  A start byte at crlf - 2 or later cannot match (see above).
void Splitter::registerStarts(uint64_t crlf) {
  if (by_target_.empty()) by_target_.assign(kRing, 0);
  if (crlf < stx_scan_ + 3) return;
  const uint64_t stop = crlf - 2;  // one past the last candidate
  const uint8_t* const first = at(stx_scan_);
  const uint8_t* p = first;
  const uint8_t* const limit = at(stop);
  uint64_t* const ring = by_target_.data();
  while (p < limit) {
    const void* hit = std::memchr(p, kStx, static_cast<size_t>(limit - p));
    if (hit == nullptr) break;
    const uint8_t* q = static_cast<const uint8_t*>(hit);
    const int16_t length = static_cast<int16_t>((q[1] << 8) | q[2]);
    if (length >= 0) {
      const uint64_t s = stx_scan_ + static_cast<uint64_t>(q - first);
      const uint64_t target = s + 3 + static_cast<uint64_t>(length);
      if (target >= crlf) {
        uint64_t& slot = ring[target & (kRing - 1)];
        // Keep an earlier start byte that is live for this very target.
        const bool taken = slot != 0 && slot - 1 >= base_ && slot - 1 + kReach >= target;
        if (!taken) slot = s + 1;
      }
    }
    p = q + 1;
  }
  stx_scan_ = stop;
}

void Splitter::acceptPacket(uint64_t stx, uint64_t crlf, std::vector<RawPacket>& out) {
  const uint64_t cmd_index = stx + CMD_INDEX_2;
  const uint8_t* const c = at(cmd_index);
  const uint8_t* const end = at(crlf);
  RawPacket& pkt = out.emplace_back();
  if (c[0] > 48) {
    pkt.cmd = c[0];
    pkt.data.assign(c + 1, end);
  } else {
    // A zero length puts the command on the end mark itself (c[1] is then
    // the LF); the data is empty whenever it would start past the end mark.
    pkt.cmd = (c[0] << 8) | c[1];
    if (c + 2 < end) pkt.data.assign(c + 2, end);
  }
  base_ = crlf + 2;
  last_ = base_;
  scan_ = base_;
  stx_scan_ = base_;
}

// The common case, tried while nothing after the stream head has been
// examined: the head is a start byte whose packet has fully arrived and no
// end mark comes before the packet's own.  That end mark is then the first
// one the search meets and the head is the earliest start byte, so the packet
// is accepted without going through the ring.
bool Splitter::acceptAtHead(uint64_t end, std::vector<RawPacket>& out) {
  if (end - base_ < 5) return false;
  const uint8_t* const head = at(base_);
  if (head[0] != kStx) return false;
  const int16_t length = static_cast<int16_t>((head[1] << 8) | head[2]);
  if (length < 0) return false;
  const uint64_t crlf = base_ + 3 + static_cast<uint64_t>(length);
  if (crlf + 1 >= end) return false;
  const uint8_t* const mark = at(crlf);
  if (mark[0] != kCr || mark[1] != kLf) return false;
  for (const uint8_t* p = head;;) {
    const void* cr = std::memchr(p, kCr, static_cast<size_t>(mark - p));
    if (cr == nullptr) break;
    p = static_cast<const uint8_t*>(cr) + 1;
    if (*p == kLf) return false;  // an earlier end mark is examined first
  }
  acceptPacket(base_, crlf, out);
  return true;
}

void Splitter::feed(std::span<const uint8_t> bytes, std::vector<RawPacket>& out) {
  if (bytes.empty()) return;
  buf_.insert(buf_.end(), bytes.begin(), bytes.end());
  const uint64_t end = origin_ + buf_.size();
  while (scan_ + 1 < end) {
    if (scan_ == base_ && acceptAtHead(end, out)) continue;
    // Candidate end marks are the CRs in [scan_, end - 2].
    const uint8_t* const p = at(scan_);
    const void* hit = std::memchr(p, kCr, static_cast<size_t>(end - 1 - scan_));
    if (hit == nullptr) {
      scan_ = end - 1;
      break;
    }
    const uint64_t crlf = scan_ + static_cast<uint64_t>(static_cast<const uint8_t*>(hit) - p);
    if (*at(crlf + 1) != kLf) {
      scan_ = crlf + 1;
      continue;
    }
    registerStarts(crlf);
    const uint64_t slot = by_target_[crlf & (kRing - 1)];
    if (slot != 0 && slot - 1 >= base_ && slot - 1 + kReach >= crlf) {
      acceptPacket(slot - 1, crlf, out);
    } else {
      // Payload of a packet still incomplete, or stray bytes.
      last_ = crlf + 1;
      scan_ = crlf + 1;
    }
  }
  trimAndCompact();
}

void Splitter::trimAndCompact() {
  const uint64_t end = origin_ + buf_.size();
  if (end - base_ > kTrimThreshold && scan_ > kReach) {
    // No end mark before scan_ is left to examine, and a start byte can
    // reach at most kReach bytes ahead.
    const uint64_t floor = scan_ - kReach;
    if (floor > base_) {
      base_ = floor;
      stx_scan_ = std::max(stx_scan_, base_);
    }
  }
  const size_t head = static_cast<size_t>(base_ - origin_);
  if (head != 0 && head >= buf_.size() / 2) {
    buf_.erase(buf_.begin(), buf_.begin() + static_cast<std::ptrdiff_t>(head));
    origin_ = base_;
  }
}

std::vector<RawPacket> Splitter::feed(std::span<const uint8_t> bytes) {
  std::vector<RawPacket> out;
  feed(bytes, out);
  return out;
}

Bytes Splitter::stream() const { return Bytes(at(base_), buf_.data() + buf_.size()); }

size_t Splitter::lastIndex() const {
  return last_ > base_ ? static_cast<size_t>(last_ - base_) : 0;
}

size_t Splitter::bufferedBytes() const {
  return static_cast<size_t>(origin_ + buf_.size() - base_);
}

void Splitter::clear() {
  const uint64_t end = origin_ + buf_.size();
  buf_.clear();
  origin_ = end;
  base_ = end;
  last_ = end;
  scan_ = end;
  stx_scan_ = end;
}

CmdType checkCommandType(int cmd, std::span<const uint8_t> data) {
  const auto in = [cmd](const auto& list) {
    return std::find(list.begin(), list.end(), cmd) != list.end();
  };
  if (in(STREAMING_CMD_LIST)) return CmdType::Streaming;
  if (in(BROADCAST_CMD_LIST)) {
    return (!data.empty() && data[0] == 1) ? CmdType::Broadcast : CmdType::Ignore;
  }
  return CmdType::Echo;
}

const char* cmdTypeWord(CmdType t) {
  switch (t) {
    case CmdType::Streaming:
      return "streaming";
    case CmdType::Broadcast:
      return "broadcast";
    case CmdType::Ignore:
      return "ignore";
    case CmdType::Echo:
      break;
  }
  return "echo";
}

}  // namespace orv
