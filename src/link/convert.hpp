// Value conversions and argument checks shared by every module.
//
// All multi-byte values on the wire are big-endian and pass through the
// convert* helpers below.  Each helper comes in two flavours:
//   - a typed overload (fixed-width integers, spans of bytes) for modules;
//   - a Value overload for the bindings and for arguments whose dynamic type
//     matters (a float that must be refused, a bool that passes as an int).
// Nothing here holds state.
//
// Failures use the host's own error kinds where the device interface does:
// orv::TypeError for a wrong kind, orv::ValueError for a bad value (a byte
// count that does not match, undecodable UTF-8, a bad hex literal),
// orv::IndexError for a pin outside a pin map, orv::OSError for a malformed
// IPv4 address.  The argument checks raise orv::Error rows.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "link/error.hpp"
#include "link/value.hpp"

namespace orv {

// ---------------------------------------------------------------------------
// Bit helpers.  A negative index raises ValueError("negative shift count").
// Indices past bit 62 are exact as long as the result fits an int64 (reading
// any bit works; setting bit 63 of a non-negative number does not fit and
// raises ValueError).

int64_t clearBit(int64_t number, int64_t index);
int64_t readBit(int64_t number, int64_t index);
int64_t fillBit(int64_t number, int64_t index);
int64_t writeBit(int64_t number, int64_t index, int64_t value);
// `value` selects fillBit when it equals 1 (1, 1.0 and true all do).
int64_t writeBit(int64_t number, int64_t index, const Value& value);
inline int64_t changeToTrellisPort(int64_t slot) { return slot - 1; }
// Keeps the numeric kind: a float slot gives a float port.
Value changeToTrellisPort(const Value& slot);

// ---------------------------------------------------------------------------
// Bytes to number, most significant byte first.  The input must hold exactly
// the row's byte count, else ValueError("unpack requires a buffer of N bytes").
// The Value overloads take bytes or a list/tuple of ints 0..255.

uint16_t convert2U8ToU16(std::span<const uint8_t> int_list);
uint32_t convert4U8ToU32(std::span<const uint8_t> int_list);
uint64_t convert8U8ToU64(std::span<const uint8_t> int_list);
int16_t convert2U8ToI16(std::span<const uint8_t> int_list);
int32_t convert4U8ToI32(std::span<const uint8_t> int_list);
int64_t convert8U8ToI64(std::span<const uint8_t> int_list);
float convert4U8ToF32(std::span<const uint8_t> int_list);
double convert8U8ToF64(std::span<const uint8_t> int_list);

inline uint16_t convert2U8ToU16(const Bytes& b) { return convert2U8ToU16(std::span(b)); }
inline uint32_t convert4U8ToU32(const Bytes& b) { return convert4U8ToU32(std::span(b)); }
inline uint64_t convert8U8ToU64(const Bytes& b) { return convert8U8ToU64(std::span(b)); }
inline int16_t convert2U8ToI16(const Bytes& b) { return convert2U8ToI16(std::span(b)); }
inline int32_t convert4U8ToI32(const Bytes& b) { return convert4U8ToI32(std::span(b)); }
inline int64_t convert8U8ToI64(const Bytes& b) { return convert8U8ToI64(std::span(b)); }
inline float convert4U8ToF32(const Bytes& b) { return convert4U8ToF32(std::span(b)); }
inline double convert8U8ToF64(const Bytes& b) { return convert8U8ToF64(std::span(b)); }

uint16_t convert2U8ToU16(const Value& int_list);
uint32_t convert4U8ToU32(const Value& int_list);
uint64_t convert8U8ToU64(const Value& int_list);
int16_t convert2U8ToI16(const Value& int_list);
int32_t convert4U8ToI32(const Value& int_list);
int64_t convert8U8ToI64(const Value& int_list);
float convert4U8ToF32(const Value& int_list);
double convert8U8ToF64(const Value& int_list);

// ---------------------------------------------------------------------------
// Number to bytes, most significant byte first.
//
// The value is first brought to the fixed-width type of the row the way a C
// cast does it: integers out of range wrap modulo 2^width (so -1 packs as all
// ones in an unsigned row), floats are truncated toward zero before wrapping,
// NaN and infinities are refused (ValueError) in the integer rows.  In the
// single-precision row a double is rounded to the nearest float, and one
// beyond the float range becomes an infinity of its sign.  The Value
// overloads refuse text, bytes, lists and None with TypeError.

std::array<uint8_t, 2> convertU16To2U8(uint16_t value);
std::array<uint8_t, 4> convertU32To4U8(uint32_t value);
std::array<uint8_t, 8> convertU64To8U8(uint64_t value);
std::array<uint8_t, 2> convertI16To2U8(int16_t value);
std::array<uint8_t, 4> convertI32To4U8(int32_t value);
std::array<uint8_t, 8> convertI64To8U8(int64_t value);
std::array<uint8_t, 4> convertF32To4U8(float value);
std::array<uint8_t, 8> convertF64To8U8(double value);

Bytes convertU16To2U8(const Value& value);
Bytes convertU32To4U8(const Value& value);
Bytes convertU64To8U8(const Value& value);
Bytes convertI16To2U8(const Value& value);
Bytes convertI32To4U8(const Value& value);
Bytes convertI64To8U8(const Value& value);
Bytes convertF32To4U8(const Value& value);
Bytes convertF64To8U8(const Value& value);

// The low 64 bits of a number in two's complement, as the integer rows use
// it: ints as they are, floats truncated toward zero and wrapped.
uint64_t wrapToU64(const Value& value);
// A number as a float row sees it (ints widened).
double toDouble(const Value& value);
// A double as the single-precision row stores it (see above).
float toFloat32(double value);

// Appends bytes to a payload being built.
template <size_t N>
void appendBytes(std::vector<uint8_t>& out, const std::array<uint8_t, N>& bytes) {
  out.insert(out.end(), bytes.begin(), bytes.end());
}

// ---------------------------------------------------------------------------
// Text and addresses.

// Strict UTF-8 decoding into code points.  Overlong forms, surrogates and
// code points past U+10FFFF are refused like the host's decoder refuses them.
struct Utf8Error {
  size_t start = 0;  // first offending byte
  size_t end = 0;    // one past the last offending byte
  const char* reason = "";
  std::string message(std::string_view data) const;
};
bool decodeUtf8(std::string_view data, std::u32string* out, Utf8Error* err);
// Throwing form: ValueError with a UnicodeDecodeError-like message, e.g.
// "'utf-8' codec can't decode byte 0xff in position 3: invalid start byte".
std::u32string decodeUtf8(std::string_view data);
std::string encodeUtf8(std::u32string_view text);

// Decodes the bytes as UTF-8 (the whole input, before anything is cut) and
// keeps what comes before the first NUL character.
std::string convertU8ListToStr(std::span<const uint8_t> int_list);
inline std::string convertU8ListToStr(const Bytes& b) { return convertU8ListToStr(std::span(b)); }
std::string convertU8ListToStr(const Value& int_list);
// convertU8ListToStr on the text of a reply to `cmd`: bytes that are no UTF-8
// make a malformed reply (ReplyFormatError naming the command and the byte).
std::string replyText(int cmd, std::span<const uint8_t> data_in);

// The code point of every character of a UTF-8 text, no range check.
std::vector<int64_t> convertStrToU8List(std::string_view str_);

// Parses like inet_aton (so "127.1" and "0x7f.1" are accepted); a malformed
// address raises OSError(EINVAL, "illegal IP address string passed to
// inet_aton"), an embedded NUL ValueError.  Octets in address order.
Bytes convertIPAddrTo4U8(std::string_view value);

// Splits at ':' and reads every part as a base-16 integer, with the host's
// int(part, 16) rules (surrounding blanks, a sign, a 0x prefix and single
// underscores between digits are accepted).  The count of parts is not
// checked.  A bad part raises ValueError("invalid literal for int() with
// base 16: '<part>'").
std::vector<int64_t> convertMACAddrTo6U8(std::string_view str_);

// ---------------------------------------------------------------------------
// Bit lists.  Least significant bit first.

// The bits of value_int, padded with zeros or cut to `width` items.  A
// negative width drops that many items from the end of the natural bit list,
// as slicing does.  A negative value_int raises ValueError("value_int must not
// be negative"): its bits never run out.
std::vector<int64_t> convertIntToBinaryList(int64_t value_int, int64_t width);

// ORs each coerced bit into its index, walking both lists up to the shorter.
// Indices must be 0..62 (ValueError otherwise).
int64_t convertIndexAndBinaryListsToInt(std::span<const int64_t> index_list,
                                        std::span<const int64_t> binary_list);
// binary_list is coerced into 0..1; a float in it is refused with TypeError,
// as shifting a float is.
int64_t convertIndexAndBinaryListsToInt(const Value& index_list, const Value& binary_list);

// Sets bit i for every i of the list (0..62, ValueError otherwise).
int64_t convertIndexListToInt(std::span<const int64_t> index_list);
int64_t convertIndexListToInt(const Value& index_list);

// Positions of the set bits, rising.  Negative values raise
// ValueError("value_int must not be negative").
std::vector<int64_t> convertIntToIndexList(int64_t value_int);

// ---------------------------------------------------------------------------
// List shaping.

// Each element clipped into lower..upper (upper wins when lower > upper).
template <typename T>
std::vector<T> coerce(const std::vector<T>& list_, std::type_identity_t<T> lower = 0,
                      std::type_identity_t<T> upper = 1) {
  static_assert(std::is_arithmetic_v<T>);
  std::vector<T> out;
  out.reserve(list_.size());
  for (T x : list_) {
    if (x < lower) x = lower;
    if (x > upper) x = upper;
    out.push_back(x);
  }
  return out;
}
// Like an array of the list: all ints (bools count as ints) stay ints; if any
// element or bound is a float every element becomes a float.  NaN stays NaN.
// A non-numeric element raises TypeError.  The result is always a list.
Value coerce(const Value& list_, const Value& lower = Value(0), const Value& upper = Value(1));

// Exactly list_length items: the first list_length, or the list padded on the
// right with padding_num.  A negative list_length cuts that many items from
// the end, as slicing does.
template <typename T>
std::vector<T> adjustDataList(std::vector<T> data_list, int64_t list_length = 8,
                              std::type_identity_t<T> padding_num = T{}) {
  const auto n = static_cast<int64_t>(data_list.size());
  if (n > list_length) {
    int64_t keep = list_length >= 0 ? list_length : std::max<int64_t>(0, n + list_length);
    data_list.resize(static_cast<size_t>(keep));
  } else {
    data_list.resize(static_cast<size_t>(list_length), padding_num);
  }
  return data_list;
}
// Takes a list, tuple or bytes; returns a new list.
Value adjustDataList(const Value& data_list, int64_t list_length = 8,
                     const Value& padding_num = Value(0));

// ---------------------------------------------------------------------------
// Argument checks.

// A set of Value kinds.  An Int bit admits bools as well, as isinstance(x, int)
// does.
using TypeMask = uint32_t;
constexpr TypeMask typeBit(Value::Kind k) { return TypeMask{1} << static_cast<unsigned>(k); }
inline constexpr TypeMask kTypeNone = typeBit(Value::Kind::None);
inline constexpr TypeMask kTypeBool = typeBit(Value::Kind::Bool);
inline constexpr TypeMask kTypeInt = typeBit(Value::Kind::Int);
inline constexpr TypeMask kTypeFloat = typeBit(Value::Kind::Float);
inline constexpr TypeMask kTypeText = typeBit(Value::Kind::Text);
inline constexpr TypeMask kTypeBytes = typeBit(Value::Kind::Bytes);
inline constexpr TypeMask kTypeList = typeBit(Value::Kind::List);
inline constexpr TypeMask kTypeTuple = typeBit(Value::Kind::Tuple);
inline constexpr TypeMask kTypeAny = 0xFFFFFFFFu;

bool isInstance(const Value& data, TypeMask correct_type);
// Raises InputTypeNotCorrectError unless data is of one of the kinds.
void checkInputType(const Value& data, TypeMask correct_type = kTypeInt | kTypeList);
// Raises InputTypeNotConsistentError unless both have exactly the same kind
// (bool and int differ, list and tuple differ).
void checkInputTypeConsistent(const Value& data, const Value& data2);

// Host-like comparison of numbers: exact between int and float, NaN unordered.
// Returns -1, 0 or 1, or nullopt when unordered.  Non-numbers raise TypeError.
std::optional<int> compareNumbers(const Value& a, const Value& b);
// Host-like equality: numbers by value across int, bool and float; lists and
// tuples element by element (a list never equals a tuple); others by content.
bool looseEquals(const Value& a, const Value& b);

// Raises InputDataNotInRangeError (with msg, or the default text) at the first
// item outside low..high, in list order.  An empty list passes.
template <typename T>
void checkEachItemInRange(const std::vector<T>& int_list, std::type_identity_t<T> low = 0,
                          std::type_identity_t<T> high = 255,
                          std::optional<std::string> msg = std::nullopt) {
  for (const T& s_ : int_list) {
    if (!(low <= s_ && s_ <= high)) {
      if (msg) raise(ErrorId::InputDataNotInRangeError, *msg);
      raise(ErrorId::InputDataNotInRangeError);
    }
  }
}
// Items may be ints, bools or floats (bytes give ints); low and high too.
// Items that cannot be compared raise TypeError.
void checkEachItemInRange(const Value& int_list, const Value& low = Value(0),
                          const Value& high = Value(255),
                          std::optional<std::string> msg = std::nullopt);

// cell is (port, pin); true when pinmap_list[pin] is among allow_state_list.
// A negative pin counts from the end; a pin outside the list raises
// IndexError.
template <typename T>
bool checkFuncPinMap(const std::pair<int64_t, int64_t>& cell, const std::vector<T>& pinmap_list,
                     const std::vector<T>& allow_state_list) {
  int64_t pin = cell.second;
  const auto n = static_cast<int64_t>(pinmap_list.size());
  if (pin < 0) pin += n;
  if (pin < 0 || pin >= n) throw IndexError("list index out of range");
  for (const T& s : allow_state_list)
    if (s == pinmap_list[static_cast<size_t>(pin)]) return true;
  return false;
}
template <typename T>
bool checkPinMap(const std::vector<std::pair<int64_t, int64_t>>& cell_list,
                 const std::vector<T>& pinmap_list, const std::vector<T>& allow_state_list) {
  for (const auto& cell : cell_list)
    if (!checkFuncPinMap(cell, pinmap_list, allow_state_list)) return false;
  return true;
}
// Value forms: cell is a list or tuple of at least two items, pinmap_list a
// list, tuple or bytes, allow_state_list anything iterable; membership uses
// looseEquals.
bool checkFuncPinMap(const Value& cell, const Value& pinmap_list, const Value& allow_state_list);
bool checkPinMap(const Value& cell_list, const Value& pinmap_list, const Value& allow_state_list);

}  // namespace orv
