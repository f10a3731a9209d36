// Value conversions and argument checks.
#include "link/convert.hpp"

#include <arpa/inet.h>

#include <bit>
#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

namespace orv {
namespace {

constexpr int64_t kMaxShift = 62;  // bit 63 does not fit a non-negative int64

void checkShift(int64_t index) {
  if (index < 0) throw ValueError("negative shift count");
}

[[noreturn]] void tooWide() { throw ValueError("bit index out of range for a 64-bit value"); }

template <size_t N>
uint64_t readBE(std::span<const uint8_t> b) {
  if (b.size() != N)
    throw ValueError("unpack requires a buffer of " + std::to_string(N) + " bytes");
  uint64_t v = 0;
  for (size_t i = 0; i < N; ++i) v = (v << 8) | b[i];
  return v;
}

template <size_t N>
std::array<uint8_t, N> writeBE(uint64_t v) {
  std::array<uint8_t, N> out{};
  for (size_t i = 0; i < N; ++i) out[N - 1 - i] = static_cast<uint8_t>(v >> (8 * i));
  return out;
}

template <size_t N>
Bytes toVec(const std::array<uint8_t, N>& a) {
  return Bytes(a.begin(), a.end());
}

}  // namespace

// ---------------------------------------------------------------------------
// Bit helpers.

int64_t clearBit(int64_t number, int64_t index) {
  checkShift(index);
  if (index > kMaxShift) {
    if (number >= 0) return number;  // the bit is already clear
    tooWide();
  }
  return number & ~(int64_t{1} << index);
}

int64_t readBit(int64_t number, int64_t index) {
  checkShift(index);
  if (index > 63) index = 63;  // beyond the width every bit is the sign
  return (number >> index) & 1;
}

int64_t fillBit(int64_t number, int64_t index) {
  checkShift(index);
  if (index > kMaxShift) {
    if (number < 0) return number;  // the bit is already set
    tooWide();
  }
  return number | (int64_t{1} << index);
}

int64_t writeBit(int64_t number, int64_t index, int64_t value) {
  return value == 1 ? fillBit(number, index) : clearBit(number, index);
}

int64_t writeBit(int64_t number, int64_t index, const Value& value) {
  return looseEquals(value, Value(1)) ? fillBit(number, index) : clearBit(number, index);
}

Value changeToTrellisPort(const Value& slot) {
  if (slot.isFloat()) return Value(slot.asFloat() - 1.0);
  if (slot.isInt()) return Value(slot.asInt() - 1);
  throw TypeError("unsupported operand type(s) for -: '" + std::string(slot.typeName()) +
                  "' and 'int'");
}

// ---------------------------------------------------------------------------
// Bytes to number.

uint16_t convert2U8ToU16(std::span<const uint8_t> b) { return static_cast<uint16_t>(readBE<2>(b)); }
uint32_t convert4U8ToU32(std::span<const uint8_t> b) { return static_cast<uint32_t>(readBE<4>(b)); }
uint64_t convert8U8ToU64(std::span<const uint8_t> b) { return readBE<8>(b); }
int16_t convert2U8ToI16(std::span<const uint8_t> b) {
  return static_cast<int16_t>(static_cast<uint16_t>(readBE<2>(b)));
}
int32_t convert4U8ToI32(std::span<const uint8_t> b) {
  return static_cast<int32_t>(static_cast<uint32_t>(readBE<4>(b)));
}
int64_t convert8U8ToI64(std::span<const uint8_t> b) { return static_cast<int64_t>(readBE<8>(b)); }
float convert4U8ToF32(std::span<const uint8_t> b) {
  return std::bit_cast<float>(static_cast<uint32_t>(readBE<4>(b)));
}
double convert8U8ToF64(std::span<const uint8_t> b) { return std::bit_cast<double>(readBE<8>(b)); }

uint16_t convert2U8ToU16(const Value& v) { return convert2U8ToU16(v.toBytes()); }
uint32_t convert4U8ToU32(const Value& v) { return convert4U8ToU32(v.toBytes()); }
uint64_t convert8U8ToU64(const Value& v) { return convert8U8ToU64(v.toBytes()); }
int16_t convert2U8ToI16(const Value& v) { return convert2U8ToI16(v.toBytes()); }
int32_t convert4U8ToI32(const Value& v) { return convert4U8ToI32(v.toBytes()); }
int64_t convert8U8ToI64(const Value& v) { return convert8U8ToI64(v.toBytes()); }
float convert4U8ToF32(const Value& v) { return convert4U8ToF32(v.toBytes()); }
double convert8U8ToF64(const Value& v) { return convert8U8ToF64(v.toBytes()); }

// ---------------------------------------------------------------------------
// Number to bytes.

std::array<uint8_t, 2> convertU16To2U8(uint16_t v) { return writeBE<2>(v); }
std::array<uint8_t, 4> convertU32To4U8(uint32_t v) { return writeBE<4>(v); }
std::array<uint8_t, 8> convertU64To8U8(uint64_t v) { return writeBE<8>(v); }
std::array<uint8_t, 2> convertI16To2U8(int16_t v) { return writeBE<2>(static_cast<uint16_t>(v)); }
std::array<uint8_t, 4> convertI32To4U8(int32_t v) { return writeBE<4>(static_cast<uint32_t>(v)); }
std::array<uint8_t, 8> convertI64To8U8(int64_t v) { return writeBE<8>(static_cast<uint64_t>(v)); }
std::array<uint8_t, 4> convertF32To4U8(float v) { return writeBE<4>(std::bit_cast<uint32_t>(v)); }
std::array<uint8_t, 8> convertF64To8U8(double v) { return writeBE<8>(std::bit_cast<uint64_t>(v)); }

uint64_t wrapToU64(const Value& value) {
  if (value.isInt()) return static_cast<uint64_t>(value.asInt());
  if (!value.isFloat()) throw TypeError("required argument is not an integer");
  const double d = value.asFloat();
  if (std::isnan(d)) throw ValueError("cannot convert float NaN to integer");
  if (std::isinf(d)) throw ValueError("cannot convert float infinity to integer");
  // Exact: fmod of an integral double is integral and below 2^64 in size.
  const double r = std::fmod(std::trunc(d), 18446744073709551616.0);
  if (r >= 0) return static_cast<uint64_t>(r);
  return uint64_t{0} - static_cast<uint64_t>(-r);
}

double toDouble(const Value& value) {
  if (!value.isNumber()) throw TypeError("required argument is not a float");
  return value.asFloat();
}

float toFloat32(double d) {
  // Half an ulp of FLT_MAX above it still rounds down to FLT_MAX; from there
  // on (ties go to the even infinity) the float overflows.
  constexpr double kLimit = static_cast<double>(FLT_MAX) + 0x1p103;
  if (std::isfinite(d) && std::fabs(d) >= kLimit)
    return d > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
  if (std::isfinite(d) && std::fabs(d) > FLT_MAX) return d > 0 ? FLT_MAX : -FLT_MAX;
  return static_cast<float>(d);
}

Bytes convertU16To2U8(const Value& v) {
  return toVec(convertU16To2U8(static_cast<uint16_t>(wrapToU64(v))));
}
Bytes convertU32To4U8(const Value& v) {
  return toVec(convertU32To4U8(static_cast<uint32_t>(wrapToU64(v))));
}
Bytes convertU64To8U8(const Value& v) { return toVec(convertU64To8U8(wrapToU64(v))); }
Bytes convertI16To2U8(const Value& v) {
  return toVec(writeBE<2>(static_cast<uint16_t>(wrapToU64(v))));
}
Bytes convertI32To4U8(const Value& v) {
  return toVec(writeBE<4>(static_cast<uint32_t>(wrapToU64(v))));
}
Bytes convertI64To8U8(const Value& v) { return toVec(writeBE<8>(wrapToU64(v))); }
Bytes convertF32To4U8(const Value& v) { return toVec(convertF32To4U8(toFloat32(toDouble(v)))); }
Bytes convertF64To8U8(const Value& v) { return toVec(convertF64To8U8(toDouble(v))); }

// ---------------------------------------------------------------------------
// UTF-8.

std::string Utf8Error::message(std::string_view data) const {
  char buf[160];
  if (end - start <= 1) {
    std::snprintf(buf, sizeof buf, "'utf-8' codec can't decode byte 0x%02x in position %zu: %s",
                  static_cast<unsigned>(static_cast<uint8_t>(data[start])), start, reason);
  } else {
    std::snprintf(buf, sizeof buf, "'utf-8' codec can't decode bytes in position %zu-%zu: %s",
                  start, end - 1, reason);
  }
  return buf;
}

bool decodeUtf8(std::string_view data, std::u32string* out, Utf8Error* err) {
  const size_t n = data.size();
  auto byte = [&](size_t i) { return static_cast<uint8_t>(data[i]); };
  auto fail = [&](size_t s, size_t e, const char* why) {
    if (err) *err = Utf8Error{s, e, why};
    return false;
  };
  size_t i = 0;
  while (i < n) {
    const uint8_t c = byte(i);
    if (c < 0x80) {
      out->push_back(c);
      ++i;
      continue;
    }
    size_t len;
    uint8_t lo = 0x80, hi = 0xBF;  // allowed range of the second byte
    char32_t cp;
    if (c >= 0xC2 && c <= 0xDF) {
      len = 2;
      cp = c & 0x1F;
    } else if (c >= 0xE0 && c <= 0xEF) {
      len = 3;
      cp = c & 0x0F;
      if (c == 0xE0) lo = 0xA0;  // overlong
      if (c == 0xED) hi = 0x9F;  // surrogates
    } else if (c >= 0xF0 && c <= 0xF4) {
      len = 4;
      cp = c & 0x07;
      if (c == 0xF0) lo = 0x90;  // overlong
      if (c == 0xF4) hi = 0x8F;  // past U+10FFFF
    } else {
      return fail(i, i + 1, "invalid start byte");
    }
    for (size_t k = 1; k < len; ++k) {
      if (i + k >= n) return fail(i, n, "unexpected end of data");
      const uint8_t cc = byte(i + k);
      const uint8_t l = k == 1 ? lo : 0x80, h = k == 1 ? hi : 0xBF;
      if (cc < l || cc > h) return fail(i, i + k, "invalid continuation byte");
      cp = (cp << 6) | (cc & 0x3F);
    }
    out->push_back(cp);
    i += len;
  }
  return true;
}

std::u32string decodeUtf8(std::string_view data) {
  std::u32string out;
  Utf8Error err;
  if (!decodeUtf8(data, &out, &err)) throw ValueError(err.message(data));
  return out;
}

std::string encodeUtf8(std::u32string_view text) {
  std::string out;
  for (char32_t c : text) {
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (c >> 18));
      out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

// ---------------------------------------------------------------------------
// Text and addresses.

std::string convertU8ListToStr(std::span<const uint8_t> int_list) {
  const std::string_view raw(reinterpret_cast<const char*>(int_list.data()), int_list.size());
  std::u32string tmp;
  Utf8Error err;
  if (!decodeUtf8(raw, &tmp, &err)) throw ValueError(err.message(raw));
  // Valid UTF-8 never holds a 0 byte inside a sequence, so the first NUL
  // character is the first 0 byte.
  const size_t nul = raw.find('\0');
  return std::string(nul == std::string_view::npos ? raw : raw.substr(0, nul));
}

std::string convertU8ListToStr(const Value& int_list) {
  return convertU8ListToStr(int_list.toBytes());
}

std::string replyText(int cmd, std::span<const uint8_t> data_in) {
  try {
    return convertU8ListToStr(data_in);
  } catch (const ValueError& e) {
    raise(ErrorId::ReplyFormatError,
          "The reply of command " + std::to_string(cmd) + " is no UTF-8 text: " + e.what());
  }
}

std::vector<int64_t> convertStrToU8List(std::string_view str_) {
  const std::u32string cps = decodeUtf8(str_);
  return std::vector<int64_t>(cps.begin(), cps.end());
}

Bytes convertIPAddrTo4U8(std::string_view value) {
  if (value.find('\0') != std::string_view::npos) throw ValueError("embedded null character");
  const std::string text(value);
  in_addr addr{};
  if (inet_aton(text.c_str(), &addr) == 0)
    throw OSError(EINVAL, "illegal IP address string passed to inet_aton");
  const uint32_t value_u32 = ntohl(addr.s_addr);
  return toVec(convertU32To4U8(value_u32));
}

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

// int(text, 16) of the host: blanks around, a sign, an optional 0x prefix,
// hex digits with single underscores between them (and after the prefix).
std::optional<int64_t> parseHex(std::string_view t) {
  while (!t.empty() && isBlank(t.front())) t.remove_prefix(1);
  while (!t.empty() && isBlank(t.back())) t.remove_suffix(1);
  bool neg = false;
  if (!t.empty() && (t[0] == '+' || t[0] == '-')) {
    neg = t[0] == '-';
    t.remove_prefix(1);
  }
  bool prefixed = false;
  if (t.size() >= 2 && t[0] == '0' && (t[1] == 'x' || t[1] == 'X')) {
    t.remove_prefix(2);
    prefixed = true;
  }
  if (t.empty()) return std::nullopt;
  uint64_t v = 0;
  bool lastUnderscore = false, any = false;
  for (size_t i = 0; i < t.size(); ++i) {
    const char c = t[i];
    if (c == '_') {
      if (lastUnderscore || (i == 0 && !prefixed)) return std::nullopt;
      lastUnderscore = true;
      continue;
    }
    int d;
    if (c >= '0' && c <= '9')
      d = c - '0';
    else if (c >= 'a' && c <= 'f')
      d = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
      d = c - 'A' + 10;
    else
      return std::nullopt;
    if (v > (uint64_t{1} << 59)) throw ValueError("hex value too large for the device");
    v = v * 16 + static_cast<uint64_t>(d);
    lastUnderscore = false;
    any = true;
  }
  if (!any || lastUnderscore) return std::nullopt;
  if (v > static_cast<uint64_t>(std::numeric_limits<int64_t>::max()))
    throw ValueError("hex value too large for the device");
  const auto s = static_cast<int64_t>(v);
  return neg ? -s : s;
}

}  // namespace

std::vector<int64_t> convertMACAddrTo6U8(std::string_view str_) {
  std::vector<int64_t> out;
  size_t start = 0;
  while (true) {
    const size_t colon = str_.find(':', start);
    const std::string_view part = str_.substr(
        start, colon == std::string_view::npos ? std::string_view::npos : colon - start);
    const auto v = parseHex(part);
    if (!v)
      throw ValueError("invalid literal for int() with base 16: " +
                       Value(std::string(part)).repr());
    out.push_back(*v);
    if (colon == std::string_view::npos) break;
    start = colon + 1;
  }
  return out;
}

namespace {

const Value::List& itemsOf(const Value& v, Value::List* scratch) {
  if (v.isSequence()) return v.asList();
  if (v.isBytes()) {
    for (uint8_t b : v.asBytes()) scratch->emplace_back(static_cast<int64_t>(b));
    return *scratch;
  }
  throw TypeError("'" + std::string(v.typeName()) + "' object is not iterable");
}

}  // namespace

// ---------------------------------------------------------------------------
// Bit lists.

std::vector<int64_t> convertIntToBinaryList(int64_t value_int, int64_t width) {
  if (value_int < 0) throw ValueError("value_int must not be negative");
  std::vector<int64_t> binary_list;
  int64_t i = 0;
  while (value_int != 0 || i < width) {
    binary_list.push_back(value_int & 1);
    value_int >>= 1;
    ++i;
  }
  const auto n = static_cast<int64_t>(binary_list.size());
  const int64_t keep = width >= 0 ? std::min(width, n) : std::max<int64_t>(0, n + width);
  binary_list.resize(static_cast<size_t>(keep));
  return binary_list;
}

int64_t convertIndexAndBinaryListsToInt(std::span<const int64_t> index_list,
                                        std::span<const int64_t> binary_list) {
  int64_t value_int = 0;
  const size_t n = std::min(index_list.size(), binary_list.size());
  for (size_t k = 0; k < n; ++k) {
    const int64_t i = index_list[k];
    const int64_t v = std::clamp<int64_t>(binary_list[k], 0, 1);
    checkShift(i);
    if (v == 0) continue;
    if (i > kMaxShift) tooWide();
    value_int |= v << i;
  }
  return value_int;
}

int64_t convertIndexAndBinaryListsToInt(const Value& index_list, const Value& binary_list) {
  const Value coerced = coerce(binary_list);
  const auto& bits = coerced.asList();
  Value::List scratch;
  const Value::List& indices = itemsOf(index_list, &scratch);
  int64_t value_int = 0;
  const size_t n = std::min(indices.size(), bits.size());
  for (size_t k = 0; k < n; ++k) {
    if (bits[k].isFloat())
      throw TypeError("unsupported operand type(s) for <<: 'float' and '" +
                      std::string(indices[k].typeName()) + "'");
    const int64_t i = indices[k].asInt();
    const int64_t one[] = {bits[k].asInt()};
    const int64_t at[] = {i};
    value_int |= convertIndexAndBinaryListsToInt(std::span(at), std::span(one));
  }
  return value_int;
}

int64_t convertIndexListToInt(std::span<const int64_t> index_list) {
  int64_t value_int = 0;
  for (int64_t i : index_list) value_int = fillBit(value_int, i);
  return value_int;
}

int64_t convertIndexListToInt(const Value& index_list) {
  return convertIndexListToInt(index_list.toIntList());
}

std::vector<int64_t> convertIntToIndexList(int64_t value_int) {
  if (value_int < 0) throw ValueError("value_int must not be negative");
  std::vector<int64_t> index_list;
  for (int64_t pos = 0; value_int != 0; ++pos, value_int >>= 1)
    if (value_int & 1) index_list.push_back(pos);
  return index_list;
}

// ---------------------------------------------------------------------------
// List shaping.

Value coerce(const Value& list_, const Value& lower, const Value& upper) {
  Value::List scratch;
  const Value::List& items = itemsOf(list_, &scratch);
  bool anyFloat = lower.isFloat() || upper.isFloat();
  for (const Value& x : items) {
    if (!x.isNumber())
      throw TypeError("'" + std::string(x.typeName()) + "' element cannot be clipped");
    anyFloat = anyFloat || x.isFloat();
  }
  if (!lower.isNumber() || !upper.isNumber()) throw TypeError("clip bounds must be numbers");
  Value::List out;
  out.reserve(items.size());
  if (anyFloat) {
    const double lo = lower.asFloat(), hi = upper.asFloat();
    for (const Value& x : items) {
      double d = x.asFloat();
      if (!std::isnan(d)) {
        if (d < lo) d = lo;
        if (d > hi) d = hi;
      }
      out.emplace_back(d);
    }
  } else {
    const int64_t lo = lower.asInt(), hi = upper.asInt();
    for (const Value& x : items) {
      int64_t i = x.asInt();
      if (i < lo) i = lo;
      if (i > hi) i = hi;
      out.emplace_back(i);
    }
  }
  return Value::list(std::move(out));
}

Value adjustDataList(const Value& data_list, int64_t list_length, const Value& padding_num) {
  Value::List scratch;
  const Value::List& items = itemsOf(data_list, &scratch);
  return Value::list(adjustDataList(Value::List(items), list_length, padding_num));
}

// ---------------------------------------------------------------------------
// Argument checks.

bool isInstance(const Value& data, TypeMask correct_type) {
  if (correct_type & typeBit(data.kind())) return true;
  return data.isBool() && (correct_type & kTypeInt);
}

void checkInputType(const Value& data, TypeMask correct_type) {
  if (!isInstance(data, correct_type)) raise(ErrorId::InputTypeNotCorrectError);
}

void checkInputTypeConsistent(const Value& data, const Value& data2) {
  if (data.kind() != data2.kind()) raise(ErrorId::InputTypeNotConsistentError);
}

namespace {

int sgn(int64_t a, int64_t b) { return a < b ? -1 : (a > b ? 1 : 0); }

// Exact comparison of an int with a double (the double not NaN).
int compareIntDouble(int64_t i, double d) {
  if (d >= 9223372036854775808.0) return -1;
  if (d < -9223372036854775808.0) return 1;
  const double t = std::trunc(d);
  const auto ti = static_cast<int64_t>(t);
  if (i != ti) return sgn(i, ti);
  const double frac = d - t;
  return frac > 0 ? -1 : (frac < 0 ? 1 : 0);
}

}  // namespace

std::optional<int> compareNumbers(const Value& a, const Value& b) {
  if (!a.isNumber() || !b.isNumber())
    throw TypeError("'<=' not supported between instances of '" + std::string(a.typeName()) +
                    "' and '" + std::string(b.typeName()) + "'");
  if (a.isInt() && b.isInt()) return sgn(a.asInt(), b.asInt());
  if (a.isFloat() && b.isFloat()) {
    const double x = a.asFloat(), y = b.asFloat();
    if (std::isnan(x) || std::isnan(y)) return std::nullopt;
    return x < y ? -1 : (x > y ? 1 : 0);
  }
  if (a.isInt()) {
    const double y = b.asFloat();
    if (std::isnan(y)) return std::nullopt;
    return compareIntDouble(a.asInt(), y);
  }
  const double x = a.asFloat();
  if (std::isnan(x)) return std::nullopt;
  return -compareIntDouble(b.asInt(), x);
}

bool looseEquals(const Value& a, const Value& b) {
  if (a.isNumber() && b.isNumber()) {
    const auto c = compareNumbers(a, b);
    return c && *c == 0;
  }
  if (a.kind() != b.kind()) return false;
  if (a.isSequence()) {
    const auto& x = a.asList();
    const auto& y = b.asList();
    if (x.size() != y.size()) return false;
    for (size_t i = 0; i < x.size(); ++i)
      if (!looseEquals(x[i], y[i])) return false;
    return true;
  }
  return a == b;
}

void checkEachItemInRange(const Value& int_list, const Value& low, const Value& high,
                          std::optional<std::string> msg) {
  Value::List scratch;
  if (int_list.isText()) {
    // Iterating a text gives one-character texts, which no number compares with.
    if (int_list.asText().empty()) return;
    throw TypeError("'<=' not supported between instances of '" + std::string(low.typeName()) +
                    "' and 'str'");
  }
  for (const Value& s_ : itemsOf(int_list, &scratch)) {
    const auto lo = compareNumbers(low, s_);
    bool ok = lo && *lo <= 0;
    if (ok) {
      const auto hi = compareNumbers(s_, high);
      ok = hi && *hi <= 0;
    }
    if (!ok) {
      if (msg) raise(ErrorId::InputDataNotInRangeError, *msg);
      raise(ErrorId::InputDataNotInRangeError);
    }
  }
}

bool checkFuncPinMap(const Value& cell, const Value& pinmap_list, const Value& allow_state_list) {
  if (!cell.isSequence())
    throw TypeError("'" + std::string(cell.typeName()) + "' object is not subscriptable");
  const auto& c = cell.asList();
  if (c.size() < 2) throw IndexError(std::string(cell.typeName()) + " index out of range");
  int64_t pin = c[1].asInt();
  Value::List scratch;
  const Value::List& map = itemsOf(pinmap_list, &scratch);
  const auto n = static_cast<int64_t>(map.size());
  if (pin < 0) pin += n;
  if (pin < 0 || pin >= n)
    throw IndexError(std::string(pinmap_list.typeName()) + " index out of range");
  const Value& state = map[static_cast<size_t>(pin)];
  Value::List scratch2;
  for (const Value& allowed : itemsOf(allow_state_list, &scratch2))
    if (looseEquals(allowed, state)) return true;
  return false;
}

bool checkPinMap(const Value& cell_list, const Value& pinmap_list, const Value& allow_state_list) {
  for (const Value& cell : cell_list.asList())
    if (!checkFuncPinMap(cell, pinmap_list, allow_state_list)) return false;
  return true;
}

}  // namespace orv
