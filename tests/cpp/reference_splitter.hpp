// The plain reassembly, step by step as the link layer defines it, used as
// the oracle for orv::Splitter by the unit tests and the fuzzer.  It is
// deliberately naive (every end mark rescans every start byte from the
// front) and must stay an obviously faithful transcription.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "link/framing.hpp"

namespace orv::ref {

struct ReferenceSplitter {
  Bytes stream;
  size_t last_index = 0;

  // Appends a received block and splits, as the receive path does after
  // every non-empty read.
  std::vector<RawPacket> feed(std::span<const uint8_t> bytes) {
    stream.insert(stream.end(), bytes.begin(), bytes.end());
    return split();
  }

  std::vector<RawPacket> split() {
    std::vector<RawPacket> out;
    // 1. Nothing to do on an empty stream.
    if (stream.empty()) return out;
    for (;;) {
      // a. First CR LF at or after last_index.
      long crlf_index = -1;
      for (size_t i = last_index; i + 1 < stream.size(); ++i) {
        const void* cr = std::memchr(stream.data() + i, 0x0D, stream.size() - 1 - i);
        if (cr == nullptr) break;
        i = static_cast<size_t>(static_cast<const uint8_t*>(cr) - stream.data());
        if (stream[i + 1] == 0x0A) {
          crlf_index = static_cast<long>(i);
          break;
        }
      }
      if (crlf_index < 0) return out;
      // b. stream_front is stream[:crlf_index].
      const long front_size = crlf_index;
      // c. The first start byte whose length field agrees with the distance.
      long stx_index = 0;
      for (;;) {
        const void* stx = stx_index < front_size
                              ? std::memchr(stream.data() + stx_index, 0x02,
                                            static_cast<size_t>(front_size - stx_index))
                              : nullptr;
        stx_index = stx == nullptr ? -1 : static_cast<const uint8_t*>(stx) - stream.data();
        if (stx_index < 0) break;
        const long from_index = crlf_index - stx_index - 3;
        const long nominal = static_cast<int16_t>(
            static_cast<uint16_t>((stream[static_cast<size_t>(stx_index) + 1] << 8) |
                                  stream[static_cast<size_t>(stx_index) + 2]));
        if (from_index == nominal) break;
        stx_index += 1;
      }
      // d. No start byte agrees: step over this end mark.
      if (stx_index < 0) {
        last_index = static_cast<size_t>(crlf_index) + 1;
        continue;
      }
      // e. One-byte command above 48, else two bytes big-endian.  Python
      // slices past the end are empty, hence the clamp.
      const size_t cmd_index = static_cast<size_t>(stx_index) + 3;
      const size_t end = static_cast<size_t>(crlf_index);
      RawPacket pkt;
      size_t data_from;
      if (stream[cmd_index] > 48) {
        pkt.cmd = stream[cmd_index];
        data_from = cmd_index + 1;
      } else {
        pkt.cmd = (stream[cmd_index] << 8) | stream[cmd_index + 1];
        data_from = cmd_index + 2;
      }
      if (data_from < end) pkt.data.assign(stream.begin() + data_from, stream.begin() + end);
      // f. Hand it up, cut the stream after the end mark, restart.
      out.push_back(std::move(pkt));
      stream.erase(stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(end + 2));
      last_index = 0;
    }
  }
};

}  // namespace orv::ref
