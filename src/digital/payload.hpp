// Payload pieces shared by the digital modules.
#pragma once

#include <cstdint>
#include <string>

#include "link/convert.hpp"
#include "link/error.hpp"
#include "link/value.hpp"

namespace orv {

// One payload byte from an argument: an int (bools count) in 0..255, as a
// byte list accepts it.
inline uint8_t portByte(const Value& v) {
  if (!v.isInt())
    throw TypeError("'" + std::string(v.typeName()) +
                    "' object cannot be interpreted as an integer");
  const int64_t i = v.asInt();
  if (i < 0 || i > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(i);
}

// A 16-bit word, high byte first, wrapped as the U16 packing does.
inline void appendWord(Bytes& out, const Value& word) {
  const Bytes b = convertU16To2U8(word);
  out.insert(out.end(), b.begin(), b.end());
}

inline void appendF32(Bytes& out, const Value& v) {
  const Bytes b = convertF32To4U8(v);
  out.insert(out.end(), b.begin(), b.end());
}

// A reply too short for its fields.
inline void needReplyBytes(const Bytes& data_in, size_t n, int cmd) {
  if (data_in.size() < n)
    raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) + " holds " +
                                         std::to_string(data_in.size()) + " bytes, " +
                                         std::to_string(n) + " expected.");
}

}  // namespace orv
