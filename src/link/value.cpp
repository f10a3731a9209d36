// The dynamic value: accessors, conversions and the host-like text forms.
//
// Accessor failures use orv::TypeError with the host's wording, so that a
// wrong argument kind reads the same as it would in a script.  asBool takes a
// bool or an int (non-zero is true); asInt takes an int or a bool and refuses
// a float; asFloat widens ints and bools.  Equality is deep and strict on
// kinds: 1, 1.0 and true are three different values, and a list never
// equals a tuple (see looseEquals in convert.hpp for the host's own rules).
#include "link/value.hpp"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "link/convert.hpp"
#include "link/error.hpp"

namespace orv {
namespace {

std::string kindError(const char* expected, const Value& v) {
  return std::string("expected ") + expected + ", got " + std::string(v.typeName());
}

std::string hexByte(uint32_t b) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "\\x%02x", static_cast<unsigned>(b & 0xFF));
  return buf;
}

// Python's repr of a float: the shortest text that reads back the same,
// fixed notation for decimal exponents from -4 to 15, scientific otherwise.
std::string floatRepr(double d) {
  if (std::isnan(d)) return "nan";
  if (std::isinf(d)) return d > 0 ? "inf" : "-inf";
  char buf[64];
  auto res = std::to_chars(buf, buf + sizeof buf, d, std::chars_format::scientific);
  std::string s(buf, res.ptr);
  std::string sign;
  if (s[0] == '-') {
    sign = "-";
    s.erase(0, 1);
  }
  const size_t epos = s.find('e');
  const int exp = std::stoi(s.substr(epos + 1));
  std::string digits = s.substr(0, epos);
  if (digits.size() > 1) digits.erase(1, 1);  // the '.'
  const int decpt = exp + 1;
  std::string out;
  if (decpt > 16 || decpt <= -4) {
    out = digits.substr(0, 1);
    if (digits.size() > 1) out += "." + digits.substr(1);
    char e[16];
    std::snprintf(e, sizeof e, "e%c%02d", exp < 0 ? '-' : '+', std::abs(exp));
    out += e;
  } else if (decpt <= 0) {
    out = "0." + std::string(static_cast<size_t>(-decpt), '0') + digits;
  } else if (static_cast<size_t>(decpt) >= digits.size()) {
    out = digits + std::string(static_cast<size_t>(decpt) - digits.size(), '0') + ".0";
  } else {
    out = digits.substr(0, static_cast<size_t>(decpt)) + "." +
          digits.substr(static_cast<size_t>(decpt));
  }
  return sign + out;
}

char pickQuote(std::string_view s) {
  const bool single = s.find('\'') != std::string_view::npos;
  const bool dbl = s.find('"') != std::string_view::npos;
  return single && !dbl ? '"' : '\'';
}

// Code points the host shows escaped in a text's repr (control characters,
// separators other than the blank, format characters, private use and
// unassigned ranges that matter in practice).
bool unprintable(char32_t c) {
  if (c < 0x20 || c == 0x7F) return true;
  if (c >= 0x80 && c <= 0xA0) return true;
  if (c == 0xAD || c == 0x1680 || (c >= 0x2000 && c <= 0x200F) || c == 0x2028 || c == 0x2029 ||
      c == 0x202F || (c >= 0x2060 && c <= 0x2064) || c == 0x205F || c == 0x3000 || c == 0xFEFF)
    return true;
  if (c >= 0xD800 && c <= 0xF8FF) return true;  // surrogates and private use
  if ((c & 0xFFFE) == 0xFFFE || c > 0x10FFFF) return true;
  return false;
}

std::string textRepr(const std::string& s) {
  const char q = pickQuote(s);
  std::string out(1, q);
  std::u32string cps;
  Utf8Error err;
  if (!decodeUtf8(s, &cps, &err)) {
    // Not valid UTF-8 (never made by the bindings): show the raw bytes.
    for (unsigned char c : s)
      out += c < 0x80 && c >= 0x20 && c != 0x7F ? std::string(1, c) : hexByte(c);
    return out + q;
  }
  for (char32_t c : cps) {
    if (c == '\\') {
      out += "\\\\";
    } else if (c == static_cast<char32_t>(q)) {
      out += '\\';
      out += q;
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (unprintable(c)) {
      char buf[16];
      if (c < 0x100)
        std::snprintf(buf, sizeof buf, "\\x%02x", static_cast<unsigned>(c));
      else if (c < 0x10000)
        std::snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned>(c));
      else
        std::snprintf(buf, sizeof buf, "\\U%08x", static_cast<unsigned>(c));
      out += buf;
    } else {
      out += encodeUtf8(std::u32string_view(&c, 1));
    }
  }
  return out + q;
}

std::string bytesRepr(const Bytes& b) {
  const char q = pickQuote(std::string_view(reinterpret_cast<const char*>(b.data()), b.size()));
  std::string out = "b";
  out += q;
  for (uint8_t c : b) {
    if (c == '\\') {
      out += "\\\\";
    } else if (c == static_cast<uint8_t>(q)) {
      out += '\\';
      out += q;
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c < 0x20 || c >= 0x7F) {
      out += hexByte(c);
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + q;
}

}  // namespace

bool Value::asBool() const {
  if (kind_ == Kind::Bool) return std::get<bool>(v_);
  if (kind_ == Kind::Int) return std::get<int64_t>(v_) != 0;
  throw TypeError(kindError("bool", *this));
}

int64_t Value::asInt() const {
  if (kind_ == Kind::Int) return std::get<int64_t>(v_);
  if (kind_ == Kind::Bool) return std::get<bool>(v_) ? 1 : 0;
  throw TypeError("'" + std::string(typeName()) + "' object cannot be interpreted as an integer");
}

double Value::asFloat() const {
  if (kind_ == Kind::Float) return std::get<double>(v_);
  if (kind_ == Kind::Int) return static_cast<double>(std::get<int64_t>(v_));
  if (kind_ == Kind::Bool) return std::get<bool>(v_) ? 1.0 : 0.0;
  throw TypeError("must be real number, not " + std::string(typeName()));
}

const std::string& Value::asText() const {
  if (kind_ != Kind::Text) throw TypeError(kindError("str", *this));
  return std::get<std::string>(v_);
}

const orv::Bytes& Value::asBytes() const {
  if (kind_ != Kind::Bytes) throw TypeError(kindError("bytes", *this));
  return std::get<orv::Bytes>(v_);
}

const Value::List& Value::asList() const {
  if (!isSequence()) throw TypeError(kindError("a list or tuple", *this));
  return std::get<List>(v_);
}

Value::List& Value::asList() {
  if (!isSequence()) throw TypeError(kindError("a list or tuple", *this));
  return std::get<List>(v_);
}

orv::Bytes Value::toBytes() const {
  if (kind_ == Kind::Bytes) return std::get<orv::Bytes>(v_);
  if (kind_ == Kind::Text) throw TypeError("string argument without an encoding");
  if (!isSequence())
    throw TypeError("cannot convert '" + std::string(typeName()) + "' object to bytes");
  const List& items = std::get<List>(v_);
  orv::Bytes out;
  out.reserve(items.size());
  for (const Value& item : items) {
    const int64_t x = item.asInt();
    if (x < 0 || x > 255) throw ValueError("bytes must be in range(0, 256)");
    out.push_back(static_cast<uint8_t>(x));
  }
  return out;
}

std::vector<int64_t> Value::toIntList() const {
  if (kind_ == Kind::Bytes) {
    const auto& b = std::get<orv::Bytes>(v_);
    return std::vector<int64_t>(b.begin(), b.end());
  }
  if (!isSequence()) throw TypeError("'" + std::string(typeName()) + "' object is not iterable");
  const List& items = std::get<List>(v_);
  std::vector<int64_t> out;
  out.reserve(items.size());
  for (const Value& item : items) out.push_back(item.asInt());
  return out;
}

size_t Value::size() const {
  switch (kind_) {
    case Kind::List:
    case Kind::Tuple:
      return std::get<List>(v_).size();
    case Kind::Bytes:
      return std::get<orv::Bytes>(v_).size();
    case Kind::Text: {
      size_t n = 0;
      for (unsigned char c : std::get<std::string>(v_))
        if ((c & 0xC0) != 0x80) ++n;
      return n;
    }
    default:
      throw TypeError("object of type '" + std::string(typeName()) + "' has no len()");
  }
}

std::string_view Value::typeName() const {
  switch (kind_) {
    case Kind::None:
      return "NoneType";
    case Kind::Bool:
      return "bool";
    case Kind::Int:
      return "int";
    case Kind::Float:
      return "float";
    case Kind::Text:
      return "str";
    case Kind::Bytes:
      return "bytes";
    case Kind::List:
      return "list";
    case Kind::Tuple:
      return "tuple";
  }
  return "object";
}

std::string Value::repr() const {
  switch (kind_) {
    case Kind::None:
      return "None";
    case Kind::Bool:
      return std::get<bool>(v_) ? "True" : "False";
    case Kind::Int:
      return std::to_string(std::get<int64_t>(v_));
    case Kind::Float:
      return floatRepr(std::get<double>(v_));
    case Kind::Text:
      return textRepr(std::get<std::string>(v_));
    case Kind::Bytes:
      return bytesRepr(std::get<orv::Bytes>(v_));
    case Kind::List:
    case Kind::Tuple: {
      const List& items = std::get<List>(v_);
      std::string out = kind_ == Kind::List ? "[" : "(";
      for (size_t i = 0; i < items.size(); ++i) {
        if (i) out += ", ";
        out += items[i].repr();
      }
      if (kind_ == Kind::Tuple && items.size() == 1) out += ",";
      return out + (kind_ == Kind::List ? "]" : ")");
    }
  }
  return "<?>";
}

bool Value::operator==(const Value& o) const { return kind_ == o.kind_ && v_ == o.v_; }

}  // namespace orv
