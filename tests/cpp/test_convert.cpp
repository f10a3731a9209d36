// The Value type and the typed overloads of the conversions that only C++
// code calls.  The host-facing conversions are checked from Python against
// independent references (struct, socket, numpy).
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include "link/convert.hpp"
#include "link/error.hpp"
#include "link/value.hpp"

namespace orv {
namespace {

using I = std::vector<int64_t>;

template <typename Ex, typename Fn>
std::string messageOf(Fn&& fn) {
  try {
    fn();
  } catch (const Ex& e) {
    return e.what();
  }
  return "<no exception>";
}

Value L(std::initializer_list<Value> xs) { return Value::list(Value::List(xs)); }
Value T(std::initializer_list<Value> xs) { return Value::tuple(Value::List(xs)); }

// ---------------------------------------------------------------------------
// Value

TEST(ValueTest, AccessorsFollowTheHostRules) {
  EXPECT_EQ(Value(7).asInt(), 7);
  EXPECT_EQ(Value(true).asInt(), 1);
  EXPECT_EQ(Value(false).asInt(), 0);
  EXPECT_EQ(messageOf<TypeError>([] { (void)Value(1.5).asInt(); }),
            "'float' object cannot be interpreted as an integer");
  EXPECT_THROW((void)Value("1").asInt(), TypeError);
  EXPECT_DOUBLE_EQ(Value(3).asFloat(), 3.0);
  EXPECT_DOUBLE_EQ(Value(true).asFloat(), 1.0);
  EXPECT_THROW((void)Value("x").asFloat(), TypeError);
  EXPECT_TRUE(Value(true).asBool());
  EXPECT_TRUE(Value(2).asBool());
  EXPECT_THROW((void)Value(1.0).asBool(), TypeError);
  EXPECT_EQ(Value("abc").asText(), "abc");
  EXPECT_EQ(messageOf<TypeError>([] { (void)Value(1).asText(); }), "expected str, got int");
  EXPECT_THROW((void)Value(Bytes{1}).asList(), TypeError);
  EXPECT_EQ(T({1, 2}).asList().size(), 2u);
  EXPECT_THROW((void)Value(L({})).asBytes(), TypeError);
}

TEST(ValueTest, ToBytesAcceptsBytesAndByteLists) {
  EXPECT_EQ(Value(Bytes{0, 255}).toBytes(), (Bytes{0, 255}));
  EXPECT_EQ(L({0, 128, 255}).toBytes(), (Bytes{0, 128, 255}));
  EXPECT_EQ(T({true, 2}).toBytes(), (Bytes{1, 2}));
  EXPECT_EQ(messageOf<ValueError>([] { (void)L({256}).toBytes(); }),
            "bytes must be in range(0, 256)");
  EXPECT_THROW((void)L({-1}).toBytes(), ValueError);
  EXPECT_THROW((void)L({1.0}).toBytes(), TypeError);
  EXPECT_THROW((void)Value("ab").toBytes(), TypeError);
  EXPECT_THROW((void)Value(3).toBytes(), TypeError);
  EXPECT_EQ(Value(Bytes{1, 2}).toIntList(), (I{1, 2}));
  EXPECT_THROW((void)Value(3).toIntList(), TypeError);
}

TEST(ValueTest, SizeCountsItemsBytesAndCharacters) {
  EXPECT_EQ(L({1, 2, 3}).size(), 3u);
  EXPECT_EQ(Value(Bytes{1, 2}).size(), 2u);
  EXPECT_EQ(Value("h\xC3\xA9\xE2\x82\xAC").size(), 3u);  // h, e-acute, euro sign
  EXPECT_THROW((void)Value(1).size(), TypeError);
}

TEST(ValueTest, EqualityIsDeepAndStrictOnKinds) {
  EXPECT_EQ(L({1, L({2, "x"})}), L({1, L({2, "x"})}));
  EXPECT_NE(L({1, L({2, "x"})}), L({1, L({2, "y"})}));
  EXPECT_NE(Value(1), Value(true));
  EXPECT_NE(Value(1), Value(1.0));
  EXPECT_NE(L({1}), T({1}));
  EXPECT_EQ(Value(), Value(nullptr));
  EXPECT_NE(Value(std::nan("")), Value(std::nan("")));
}

// Only texts are shown in messages (a MAC part the parser refuses).
TEST(ValueTest, TypeNameAndReprMatchTheHost) {
  for (const auto& [v, type, repr] : std::vector<std::tuple<Value, std::string, std::string>>{
           {Value(), "NoneType", "None"},
           {Value(-42), "int", "-42"},
           {Value("ab"), "str", "'ab'"},
           {Value("it's"), "str", "\"it's\""},
           {Value("a'b\""), "str", "'a\\'b\"'"},
           {Value("t\tn\n\\\x01"), "str", "'t\\tn\\n\\\\\\x01'"},
           {Value("\xC3\xA9"), "str", "'\xC3\xA9'"},
       }) {
    EXPECT_EQ(v.typeName(), type) << repr;
    EXPECT_EQ(v.repr(), repr);
  }
}

// ---------------------------------------------------------------------------
// Typed overloads used by the modules

// The typed coerce is the modules' own; the other shaping helpers back the
// host-facing ones that the Python tests check.
TEST(ConvertTyped, ShapingAndRounding) {
  EXPECT_EQ(coerce(std::vector<int64_t>{5, -1, 0}), (I{1, 0, 0}));
  EXPECT_EQ(coerce(std::vector<double>{5.5, -1.0}, -2.0, 2.0), (std::vector<double>{2.0, -1.0}));
  EXPECT_EQ(adjustDataList(I{1, 2, 3}, -1), (I{1, 2}));                   // slicing rules
  EXPECT_EQ(toFloat32(static_cast<double>(FLT_MAX) + 0x1p102), FLT_MAX);  // rounds down
  EXPECT_EQ(toFloat32(static_cast<double>(FLT_MAX) + 0x1p103), INFINITY);
}

TEST(ConvertTyped, Checks) {
  EXPECT_NO_THROW(checkEachItemInRange(std::vector<double>{-5.0, 5.0}, -5.0, 5.0));
  EXPECT_EQ(messageOf<Error>([] {
              checkEachItemInRange(I{1, 2, 3}, 0, 2, "too big");
            }),
            Error(ErrorId::InputDataNotInRangeError, "too big").what());
  const std::vector<std::string> map{"Idle", "SPI"};
  const std::vector<std::string> ok{"Idle"};
  EXPECT_TRUE(checkFuncPinMap({1, 0}, map, ok));
  EXPECT_FALSE(checkFuncPinMap({1, -1}, map, ok));  // counts from the end
  EXPECT_THROW(checkFuncPinMap({1, 2}, map, ok), IndexError);
  EXPECT_FALSE(checkPinMap<std::string>({{1, 0}, {1, 1}}, map, ok));
  EXPECT_TRUE(looseEquals(L({1, L({2.0})}), L({true, L({2})})));
  EXPECT_FALSE(looseEquals(Value(INT64_MAX), Value(0x1p63)));
  EXPECT_EQ(compareNumbers(Value(-2.5), Value(-3)), 1);
  EXPECT_EQ(compareNumbers(Value(std::nan("")), Value(1)), std::nullopt);
}

}  // namespace
}  // namespace orv
