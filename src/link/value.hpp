// The dynamic value that crosses the edge of the core.
//
// Many operations check or branch on the dynamic type of an argument (an int
// or a list of pins, a bool that passes as an int, a float that must be
// refused, the text "true").  Such arguments are taken as a Value; the
// bindings convert Python objects to it with one generic converter.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orv {

using Bytes = std::vector<uint8_t>;

class Value {
 public:
  // Tuple shares the storage of List; it exists because some checks accept
  // a list and refuse a tuple.
  enum class Kind : uint8_t { None, Bool, Int, Float, Text, Bytes, List, Tuple };
  using List = std::vector<Value>;

  Value() = default;
  Value(std::nullptr_t) {}
  Value(bool b) : kind_(Kind::Bool), v_(b) {}
  Value(int i) : kind_(Kind::Int), v_(int64_t{i}) {}
  Value(long i) : kind_(Kind::Int), v_(int64_t{i}) {}
  Value(long long i) : kind_(Kind::Int), v_(int64_t{i}) {}
  Value(unsigned i) : kind_(Kind::Int), v_(int64_t{i}) {}
  Value(unsigned long i) : kind_(Kind::Int), v_(static_cast<int64_t>(i)) {}
  Value(unsigned long long i) : kind_(Kind::Int), v_(static_cast<int64_t>(i)) {}
  Value(double d) : kind_(Kind::Float), v_(d) {}
  Value(std::string s) : kind_(Kind::Text), v_(std::move(s)) {}
  Value(const char* s) : kind_(Kind::Text), v_(std::string(s)) {}
  Value(orv::Bytes b) : kind_(Kind::Bytes), v_(std::move(b)) {}
  Value(List l, bool tuple = false) : kind_(tuple ? Kind::Tuple : Kind::List), v_(std::move(l)) {}
  Value(std::initializer_list<Value> l) : kind_(Kind::List), v_(List(l)) {}

  static Value list(List l) { return Value(std::move(l), false); }
  static Value tuple(List l) { return Value(std::move(l), true); }
  template <typename T>
  static Value listOf(const std::vector<T>& xs) {
    List l;
    l.reserve(xs.size());
    for (const auto& x : xs) l.emplace_back(x);
    return Value(std::move(l));
  }

  Kind kind() const { return kind_; }
  bool isNone() const { return kind_ == Kind::None; }
  bool isBool() const { return kind_ == Kind::Bool; }
  // True for int and for bool, as an isinstance(x, int) test would be.
  bool isInt() const { return kind_ == Kind::Int || kind_ == Kind::Bool; }
  bool isStrictInt() const { return kind_ == Kind::Int; }
  bool isFloat() const { return kind_ == Kind::Float; }
  bool isNumber() const { return isInt() || isFloat(); }
  bool isText() const { return kind_ == Kind::Text; }
  bool isBytes() const { return kind_ == Kind::Bytes; }
  bool isList() const { return kind_ == Kind::List; }
  bool isTuple() const { return kind_ == Kind::Tuple; }
  bool isSequence() const { return isList() || isTuple(); }

  // Accessors throw std::bad_variant_access-free orv::Error (TypeError kind)
  // on a wrong kind; see value.cpp.
  bool asBool() const;
  int64_t asInt() const;   // bool gives 0 or 1; float is refused
  double asFloat() const;  // int and bool are widened
  const std::string& asText() const;
  const orv::Bytes& asBytes() const;
  const List& asList() const;  // list or tuple
  List& asList();

  // A byte sequence from bytes, or from a list/tuple of ints in 0..255.
  orv::Bytes toBytes() const;
  // Ints of a list/tuple/bytes value.
  std::vector<int64_t> toIntList() const;

  size_t size() const;  // items of a sequence, bytes, or characters of text

  // Name of the kind as the host calls it ("int", "list", ...), for messages.
  std::string_view typeName() const;
  std::string repr() const;

  bool operator==(const Value& o) const;

 private:
  Kind kind_ = Kind::None;
  std::variant<std::monostate, bool, int64_t, double, std::string, orv::Bytes, List> v_;
};

}  // namespace orv
