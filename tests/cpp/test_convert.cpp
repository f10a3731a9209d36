// Value type, wire conversions and argument checks.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cerrno>
#include <cfloat>
#include <cmath>
#include <functional>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "link/convert.hpp"
#include "link/error.hpp"
#include "link/value.hpp"

namespace orv {
namespace {

using I = std::vector<int64_t>;

template <typename Fn>
void expectError(Fn&& fn, ErrorId id, const std::string& msg = "") {
  try {
    fn();
    ADD_FAILURE() << "no error raised";
  } catch (const Error& e) {
    EXPECT_EQ(e.id(), id);
    EXPECT_EQ(e.code(), errorInfo(id).code);
    EXPECT_EQ(e.msg(), msg.empty() ? std::string(errorInfo(id).message) : msg);
  }
}

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

struct ReprCase {
  Value v;
  std::string type;
  std::string repr;
};

class ValueReprTest : public ::testing::TestWithParam<ReprCase> {};

TEST_P(ValueReprTest, MatchesTheHost) {
  EXPECT_EQ(GetParam().v.typeName(), GetParam().type);
  EXPECT_EQ(GetParam().v.repr(), GetParam().repr);
}

INSTANTIATE_TEST_SUITE_P(
    ValueKinds, ValueReprTest,
    ::testing::Values(
        ReprCase{Value(), "NoneType", "None"}, ReprCase{Value(true), "bool", "True"},
        ReprCase{Value(false), "bool", "False"}, ReprCase{Value(-42), "int", "-42"},
        ReprCase{Value(int64_t{INT64_MIN}), "int", "-9223372036854775808"},
        ReprCase{Value(1.0), "float", "1.0"}, ReprCase{Value(0.1), "float", "0.1"},
        ReprCase{Value(-0.0), "float", "-0.0"}, ReprCase{Value(123.456), "float", "123.456"},
        ReprCase{Value(1e15), "float", "1000000000000000.0"},
        ReprCase{Value(1e16), "float", "1e+16"}, ReprCase{Value(1.5e300), "float", "1.5e+300"},
        ReprCase{Value(0.0001), "float", "0.0001"}, ReprCase{Value(1e-5), "float", "1e-05"},
        ReprCase{Value(std::numeric_limits<double>::infinity()), "float", "inf"},
        ReprCase{Value(std::nan("")), "float", "nan"}, ReprCase{Value("ab"), "str", "'ab'"},
        ReprCase{Value("it's"), "str", "\"it's\""}, ReprCase{Value("a'b\""), "str", "'a\\'b\"'"},
        ReprCase{Value("t\tn\n\\\x01"), "str", "'t\\tn\\n\\\\\\x01'"},
        ReprCase{Value("\xC3\xA9"), "str", "'\xC3\xA9'"},
        ReprCase{Value(Bytes{0, 'a', 0x7F, 0xFF, '\''}), "bytes", "b\"\\x00a\\x7f\\xff'\""},
        ReprCase{L({1, "x", L({})}), "list", "[1, 'x', []]"}, ReprCase{T({1}), "tuple", "(1,)"},
        ReprCase{T({}), "tuple", "()"}, ReprCase{T({1, 2.5, Value()}), "tuple", "(1, 2.5, None)"}));

// ---------------------------------------------------------------------------
// Bit helpers

TEST(ConvertBits, SetClearReadWrite) {
  EXPECT_EQ(clearBit(0b1111, 1), 0b1101);
  EXPECT_EQ(clearBit(0b1101, 1), 0b1101);
  EXPECT_EQ(fillBit(0b1000, 0), 0b1001);
  EXPECT_EQ(readBit(0b0100, 2), 1);
  EXPECT_EQ(readBit(0b0100, 1), 0);
  EXPECT_EQ(writeBit(0, 3, int64_t{1}), 8);
  EXPECT_EQ(writeBit(8, 3, int64_t{0}), 0);
  EXPECT_EQ(writeBit(8, 3, int64_t{2}), 0);  // anything but 1 clears
  EXPECT_EQ(writeBit(0, 3, Value(true)), 8);
  EXPECT_EQ(writeBit(0, 3, Value(1.0)), 8);
  EXPECT_EQ(writeBit(8, 3, Value("1")), 0);
  EXPECT_EQ(changeToTrellisPort(1), 0);
  EXPECT_EQ(changeToTrellisPort(Value(3)), Value(2));
  EXPECT_EQ(changeToTrellisPort(Value(2.0)), Value(1.0));
  EXPECT_THROW(changeToTrellisPort(Value("1")), TypeError);
}

TEST(ConvertBits, WideAndNegativeIndices) {
  EXPECT_EQ(messageOf<ValueError>([] { fillBit(0, -1); }), "negative shift count");
  EXPECT_THROW(clearBit(0, -1), ValueError);
  EXPECT_THROW(readBit(0, -1), ValueError);
  EXPECT_EQ(readBit(-1, 100), 1);  // beyond the width every bit is the sign
  EXPECT_EQ(readBit(1, 100), 0);
  EXPECT_EQ(readBit(INT64_MIN, 63), 1);
  EXPECT_EQ(fillBit(0, 62), int64_t{1} << 62);
  EXPECT_THROW(fillBit(0, 63), ValueError);
  EXPECT_EQ(fillBit(-5, 80), -5);
  EXPECT_EQ(clearBit(5, 80), 5);
  EXPECT_THROW(clearBit(-5, 80), ValueError);
  EXPECT_EQ(clearBit(-1, 0), -2);
}

// ---------------------------------------------------------------------------
// Bytes <-> numbers

TEST(ConvertBytes, EdgeValues) {
  EXPECT_EQ(convert2U8ToI16(Bytes{255, 255}), -1);
  EXPECT_EQ(convert2U8ToU16(Bytes{255, 255}), 65535);
  EXPECT_EQ(convert2U8ToU16(Bytes{0x12, 0x34}), 0x1234);
  EXPECT_EQ(convert4U8ToU32(Bytes{0xDE, 0xAD, 0xBE, 0xEF}), 0xDEADBEEFu);
  EXPECT_EQ(convert4U8ToI32(Bytes{0x80, 0, 0, 0}), INT32_MIN);
  EXPECT_EQ(convert8U8ToU64(Bytes(8, 0xFF)), UINT64_MAX);
  EXPECT_EQ(convert8U8ToI64(Bytes{0x80, 0, 0, 0, 0, 0, 0, 0}), INT64_MIN);
  EXPECT_EQ(convert8U8ToI64(Bytes{0, 0, 0, 0, 0, 0, 1, 2}), 258);
  EXPECT_FLOAT_EQ(convert4U8ToF32(Bytes{0x3F, 0xC0, 0, 0}), 1.5f);
  EXPECT_DOUBLE_EQ(convert8U8ToF64(Bytes{0xC0, 0x24, 0, 0, 0, 0, 0, 0}), -10.0);
  EXPECT_TRUE(std::isnan(convert4U8ToF32(Bytes{0x7F, 0xC0, 0, 0})));

  EXPECT_EQ(convertU16To2U8(1), (std::array<uint8_t, 2>{0, 1}));
  EXPECT_EQ(convertI16To2U8(-2), (std::array<uint8_t, 2>{0xFF, 0xFE}));
  EXPECT_EQ(convertU32To4U8(0x01020304), (std::array<uint8_t, 4>{1, 2, 3, 4}));
  EXPECT_EQ(convertI32To4U8(-1), (std::array<uint8_t, 4>{0xFF, 0xFF, 0xFF, 0xFF}));
  EXPECT_EQ(convertU64To8U8(0x0102030405060708ull),
            (std::array<uint8_t, 8>{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(convertI64To8U8(INT64_MIN), (std::array<uint8_t, 8>{0x80, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(convertF32To4U8(1.5f), (std::array<uint8_t, 4>{0x3F, 0xC0, 0, 0}));
  EXPECT_EQ(convertF64To8U8(-10.0), (std::array<uint8_t, 8>{0xC0, 0x24, 0, 0, 0, 0, 0, 0}));
}

TEST(ConvertBytes, TakesListsTuplesAndSpans) {
  EXPECT_EQ(convert2U8ToU16(L({1, 2})), 0x0102);
  EXPECT_EQ(convert2U8ToI16(T({0x80, 0})), INT16_MIN);
  const std::array<uint8_t, 6> reply{9, 9, 0, 0, 1, 0};
  EXPECT_EQ(convert4U8ToU32(std::span(reply).subspan(2)), 256u);
  EXPECT_THROW(convert2U8ToU16(L({1, 256})), ValueError);
  EXPECT_THROW(convert2U8ToU16(Value("ab")), TypeError);
}

struct CountCase {
  int width;
  std::function<void(const Bytes&)> fn;
};

class ConvertBytesCount : public ::testing::TestWithParam<CountCase> {};

TEST_P(ConvertBytesCount, WrongCountIsAnUnpackError) {
  const int n = GetParam().width;
  const std::string want = "unpack requires a buffer of " + std::to_string(n) + " bytes";
  for (int len : {0, n - 1, n + 1}) {
    const Bytes b(static_cast<size_t>(len), 1);
    EXPECT_EQ(messageOf<ValueError>([&] { GetParam().fn(b); }), want) << "length " << len;
  }
  EXPECT_NO_THROW(GetParam().fn(Bytes(static_cast<size_t>(n), 1)));
}

INSTANTIATE_TEST_SUITE_P(
    ConvertRows, ConvertBytesCount,
    ::testing::Values(CountCase{2, [](const Bytes& b) { (void)convert2U8ToU16(b); }},
                      CountCase{4, [](const Bytes& b) { (void)convert4U8ToU32(b); }},
                      CountCase{8, [](const Bytes& b) { (void)convert8U8ToU64(b); }},
                      CountCase{2, [](const Bytes& b) { (void)convert2U8ToI16(b); }},
                      CountCase{4, [](const Bytes& b) { (void)convert4U8ToI32(b); }},
                      CountCase{8, [](const Bytes& b) { (void)convert8U8ToI64(b); }},
                      CountCase{4, [](const Bytes& b) { (void)convert4U8ToF32(b); }},
                      CountCase{8, [](const Bytes& b) { (void)convert8U8ToF64(b); }}));

TEST(ConvertBytes, ValuesWrapLikeACast) {
  EXPECT_EQ(convertU16To2U8(Value(-1)), (Bytes{0xFF, 0xFF}));
  EXPECT_EQ(convertU16To2U8(Value(70000)), (Bytes{0x11, 0x70}));  // 70000 - 65536
  EXPECT_EQ(convertI16To2U8(Value(32768)), (Bytes{0x80, 0x00}));
  EXPECT_EQ(convertU32To4U8(Value(int64_t{1} << 32)), (Bytes{0, 0, 0, 0}));
  EXPECT_EQ(convertU64To8U8(Value(-2)), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE}));
  EXPECT_EQ(convertU16To2U8(Value(true)), (Bytes{0, 1}));
  // Floats are truncated toward zero before they wrap.
  EXPECT_EQ(convertU16To2U8(Value(2.9)), (Bytes{0, 2}));
  EXPECT_EQ(convertI16To2U8(Value(-2.9)), (Bytes{0xFF, 0xFE}));
  EXPECT_EQ(convertU16To2U8(Value(65537.5)), (Bytes{0, 1}));
  EXPECT_EQ(wrapToU64(Value(-1e19)), 8446744073709551616ull);  // 2^64 - 10^19
  EXPECT_EQ(wrapToU64(Value(1e19)), 10000000000000000000ull);
  EXPECT_EQ(wrapToU64(Value(-1.0)), UINT64_MAX);
  EXPECT_EQ(wrapToU64(Value(0x1p64 + 0x1p12)), 4096u);
  EXPECT_EQ(messageOf<ValueError>([] { convertU32To4U8(Value(std::nan(""))); }),
            "cannot convert float NaN to integer");
  EXPECT_THROW(convertI32To4U8(Value(INFINITY)), ValueError);
  EXPECT_EQ(messageOf<TypeError>([] { convertU16To2U8(Value("1")); }),
            "required argument is not an integer");
  EXPECT_THROW(convertI64To8U8(L({1})), TypeError);
  EXPECT_THROW(convertU16To2U8(Value()), TypeError);
}

TEST(ConvertBytes, FloatRows) {
  EXPECT_EQ(convertF32To4U8(Value(1)), (Bytes{0x3F, 0x80, 0, 0}));
  EXPECT_EQ(convertF64To8U8(Value(true)), (Bytes{0x3F, 0xF0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(convertF32To4U8(Value(0.1)), (Bytes{0x3D, 0xCC, 0xCC, 0xCD}));  // rounded to nearest
  EXPECT_EQ(convertF32To4U8(Value(1e40)), (Bytes{0x7F, 0x80, 0, 0}));
  EXPECT_EQ(convertF32To4U8(Value(-1e40)), (Bytes{0xFF, 0x80, 0, 0}));
  EXPECT_EQ(convertF32To4U8(Value(static_cast<double>(FLT_MAX) + 0x1p102)),
            (Bytes{0x7F, 0x7F, 0xFF, 0xFF}));
  EXPECT_EQ(messageOf<TypeError>([] { convertF64To8U8(Value("1.0")); }),
            "required argument is not a float");
}

TEST(ConvertBytes, RoundTrips) {
  for (int64_t v : {int64_t{0}, int64_t{1}, int64_t{-1}, int64_t{INT16_MIN}, int64_t{INT16_MAX}}) {
    const auto b = convertI16To2U8(static_cast<int16_t>(v));
    EXPECT_EQ(convert2U8ToI16(std::span(b)), v);
    EXPECT_EQ(convert2U8ToI16(convertI16To2U8(Value(v))), v);
  }
  for (int64_t v : {int64_t{0}, int64_t{INT32_MIN}, int64_t{INT32_MAX}, int64_t{-123456}}) {
    EXPECT_EQ(convert4U8ToI32(convertI32To4U8(Value(v))), v);
    EXPECT_EQ(convert4U8ToU32(convertU32To4U8(Value(v))), static_cast<uint32_t>(v));
  }
  for (int64_t v : {int64_t{0}, INT64_MIN, INT64_MAX, int64_t{-987654321012}}) {
    EXPECT_EQ(convert8U8ToI64(convertI64To8U8(Value(v))), v);
    EXPECT_EQ(convert8U8ToU64(convertU64To8U8(Value(v))), static_cast<uint64_t>(v));
  }
  for (double d : {0.0, -0.0, 1.0 / 3.0, -2.5e-300, 6.02e23, DBL_MAX}) {
    EXPECT_EQ(std::bit_cast<uint64_t>(convert8U8ToF64(convertF64To8U8(Value(d)))),
              std::bit_cast<uint64_t>(d));
  }
  for (float f : {0.0f, -1.25f, FLT_MIN, FLT_MAX, 3.14159f}) {
    EXPECT_EQ(convert4U8ToF32(convertF32To4U8(Value(static_cast<double>(f)))), f);
  }
}

// ---------------------------------------------------------------------------
// Text and addresses

TEST(ConvertText, U8ListToStrCutsAtTheFirstNul) {
  EXPECT_EQ(convertU8ListToStr(Bytes{0, 0, 0}), "");
  EXPECT_EQ(convertU8ListToStr(Bytes{}), "");
  EXPECT_EQ(convertU8ListToStr(Bytes{'a', 'b', 'c'}), "abc");
  EXPECT_EQ(convertU8ListToStr(Bytes{'a', 'b', 0, 'c', 'd'}), "ab");
  EXPECT_EQ(convertU8ListToStr(L({0x31, 0x2E, 0x30, 0x5F, 0xC3, 0xA9})), "1.0_\xC3\xA9");
  EXPECT_EQ(convertU8ListToStr(Bytes{0xE2, 0x82, 0xAC, 0, 0xF0, 0x9F, 0x98, 0x80}), "\xE2\x82\xAC");
}

struct Utf8Case {
  Bytes bytes;
  std::string message;
};

class ConvertUtf8Error : public ::testing::TestWithParam<Utf8Case> {};

TEST_P(ConvertUtf8Error, NamesTheBadBytes) {
  EXPECT_EQ(messageOf<ValueError>([] { convertU8ListToStr(GetParam().bytes); }),
            GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    ConvertDecoder, ConvertUtf8Error,
    ::testing::Values(
        Utf8Case{{'a', 'b', 'c', 0xFF},
                 "'utf-8' codec can't decode byte 0xff in position 3: invalid start byte"},
        // Decoding comes before the cut: bad bytes after a NUL still fail.
        Utf8Case{{'a', 0, 0x80},
                 "'utf-8' codec can't decode byte 0x80 in position 2: invalid start byte"},
        Utf8Case{{0xC0, 0x80},
                 "'utf-8' codec can't decode byte 0xc0 in position 0: invalid start byte"},
        Utf8Case{{'x', 0xE2, 0x82},
                 "'utf-8' codec can't decode bytes in position 1-2: unexpected end of data"},
        Utf8Case{{0xE2},
                 "'utf-8' codec can't decode byte 0xe2 in position 0: unexpected end of data"},
        Utf8Case{{0xE2, 0x28, 0xA1},
                 "'utf-8' codec can't decode byte 0xe2 in position 0: invalid continuation byte"},
        Utf8Case{{0xE2, 0x82, 0x28},
                 "'utf-8' codec can't decode bytes in position 0-1: invalid continuation byte"},
        Utf8Case{{0xED, 0xA0, 0x80},  // a surrogate
                 "'utf-8' codec can't decode byte 0xed in position 0: invalid continuation byte"},
        Utf8Case{{0xF4, 0x90, 0x80, 0x80},  // past U+10FFFF
                 "'utf-8' codec can't decode byte 0xf4 in position 0: invalid continuation byte"}));

TEST(ConvertText, StrToU8ListGivesCodePoints) {
  EXPECT_EQ(convertStrToU8List("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"),
            (I{65, 233, 8364, 128512}));
  EXPECT_EQ(convertStrToU8List(""), I{});
  EXPECT_EQ(convertStrToU8List(std::string("a\0b", 3)), (I{97, 0, 98}));
  EXPECT_THROW(convertStrToU8List("\xFF"), ValueError);
  // Round trip through the byte form for ASCII text.
  const I cps = convertStrToU8List("Trellis_1.2");
  EXPECT_EQ(convertU8ListToStr(Value::listOf(cps)), "Trellis_1.2");
}

struct IpCase {
  std::string text;
  Bytes bytes;
};

class ConvertIp : public ::testing::TestWithParam<IpCase> {};

TEST_P(ConvertIp, ParsesLikeInetAton) {
  EXPECT_EQ(convertIPAddrTo4U8(GetParam().text), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    ConvertForms, ConvertIp,
    ::testing::Values(IpCase{"192.168.1.110", {192, 168, 1, 110}},
                      IpCase{"255.255.255.0", {255, 255, 255, 0}}, IpCase{"0.0.0.0", {0, 0, 0, 0}},
                      IpCase{"127.1", {127, 0, 0, 1}}, IpCase{"10.1.258", {10, 1, 1, 2}},
                      IpCase{"0x7f.1", {127, 0, 0, 1}}, IpCase{"2130706433", {127, 0, 0, 1}},
                      IpCase{"010.0.0.1", {8, 0, 0, 1}}));

TEST(ConvertText, MalformedIpAddresses) {
  for (const char* bad : {"", "256.1.1.1", "1.2.3.4.5", "a.b.c.d", "1..2.3", "192.168.1.-1"}) {
    try {
      convertIPAddrTo4U8(bad);
      ADD_FAILURE() << "accepted " << bad;
    } catch (const OSError& e) {
      EXPECT_EQ(e.err(), EINVAL);
      EXPECT_NE(std::string(e.what()).find("illegal IP address string passed to inet_aton"),
                std::string::npos);
    }
  }
  EXPECT_EQ(messageOf<ValueError>([] { convertIPAddrTo4U8(std::string("1.2.3.4\0", 8)); }),
            "embedded null character");
}

TEST(ConvertText, MacAddresses) {
  EXPECT_EQ(convertMACAddrTo6U8("00:1A:2b:3C:4d:FF"), (I{0, 26, 43, 60, 77, 255}));
  EXPECT_EQ(convertMACAddrTo6U8("1:2:3"), (I{1, 2, 3}));  // the count is not checked
  EXPECT_EQ(convertMACAddrTo6U8("abc"), (I{0xABC}));
  EXPECT_EQ(convertMACAddrTo6U8(" a :0x1f:-1:+f:1_0:0x_f"), (I{10, 31, -1, 15, 16, 15}));
  EXPECT_EQ(messageOf<ValueError>([] { convertMACAddrTo6U8("00:zz:11"); }),
            "invalid literal for int() with base 16: 'zz'");
  EXPECT_EQ(messageOf<ValueError>([] { convertMACAddrTo6U8("00::11"); }),
            "invalid literal for int() with base 16: ''");
  for (const char* bad : {"", "0x", "_1", "1_", "1__0", "1 0", "0o1"})
    EXPECT_THROW(convertMACAddrTo6U8(bad), ValueError) << bad;
}

// ---------------------------------------------------------------------------
// Bit lists

struct BinCase {
  int64_t value;
  int64_t width;
  I bits;
};

class ConvertBinaryList : public ::testing::TestWithParam<BinCase> {};

TEST_P(ConvertBinaryList, PadsAndCuts) {
  EXPECT_EQ(convertIntToBinaryList(GetParam().value, GetParam().width), GetParam().bits);
}

INSTANTIATE_TEST_SUITE_P(ConvertWidths, ConvertBinaryList,
                         ::testing::Values(BinCase{5, 8, {1, 0, 1, 0, 0, 0, 0, 0}},
                                           BinCase{5, 2, {1, 0}}, BinCase{0, 0, {}},
                                           BinCase{0, 3, {0, 0, 0}}, BinCase{255, 4, {1, 1, 1, 1}},
                                           BinCase{5, -1, {1, 0}}, BinCase{5, -5, {}},
                                           BinCase{INT64_MAX, 64, [] {
                                                     I b(63, 1);
                                                     b.push_back(0);
                                                     return b;
                                                   }()}));

TEST(ConvertBitLists, NegativeValuesAreRefusedNotLoopedOn) {
  EXPECT_EQ(messageOf<ValueError>([] { convertIntToBinaryList(-1, 8); }),
            "value_int must not be negative");
  EXPECT_THROW(convertIntToIndexList(-8), ValueError);
}

TEST(ConvertBitLists, IndexAndBinaryLists) {
  EXPECT_EQ(convertIndexAndBinaryListsToInt(I{0, 1, 2}, I{1, 0, 1}), 5);
  EXPECT_EQ(convertIndexAndBinaryListsToInt(I{4, 5, 6, 7}, I{1, 1}), 0x30);  // shorter list wins
  EXPECT_EQ(convertIndexAndBinaryListsToInt(I{0, 1}, I{7, -3}), 1);          // coerced into 0..1
  EXPECT_EQ(convertIndexAndBinaryListsToInt(L({0, 1, 2}), L({true, false, 5})), 5);
  EXPECT_EQ(convertIndexAndBinaryListsToInt(T({3}), Value(Bytes{1})), 8);
  EXPECT_EQ(convertIndexAndBinaryListsToInt(L({0, 1}), L({})), 0);
  EXPECT_EQ(messageOf<TypeError>([] { convertIndexAndBinaryListsToInt(L({0}), L({1.0})); }),
            "unsupported operand type(s) for <<: 'float' and 'int'");
  EXPECT_THROW(convertIndexAndBinaryListsToInt(L({0}), L({"1"})), TypeError);
  EXPECT_THROW(convertIndexAndBinaryListsToInt(I{-1}, I{1}), ValueError);
  EXPECT_THROW(convertIndexAndBinaryListsToInt(I{63}, I{1}), ValueError);
  EXPECT_EQ(convertIndexAndBinaryListsToInt(I{63}, I{0}), 0);
}

TEST(ConvertBitLists, IndexListsAndMasks) {
  EXPECT_EQ(convertIndexListToInt(I{}), 0);
  EXPECT_EQ(convertIndexListToInt(I{0, 3}), 9);
  EXPECT_EQ(convertIndexListToInt(I{1, 1}), 2);
  EXPECT_EQ(convertIndexListToInt(L({true, 4})), 0x12);
  EXPECT_THROW(convertIndexListToInt(L({1.0})), TypeError);
  EXPECT_THROW(convertIndexListToInt(I{63}), ValueError);
  EXPECT_EQ(convertIntToIndexList(0), I{});
  EXPECT_EQ(convertIntToIndexList(0b1010), (I{1, 3}));
  EXPECT_EQ(convertIntToIndexList(INT64_MAX).size(), 63u);
  for (int64_t mask : {int64_t{1}, int64_t{0xFFFF}, int64_t{0x5A5A}, int64_t{1} << 62})
    EXPECT_EQ(convertIndexListToInt(convertIntToIndexList(mask)), mask);
  for (int64_t mask : {int64_t{0}, int64_t{0xA5}, int64_t{0xFFFF}}) {
    const I bits = convertIntToBinaryList(mask, 16);
    I idx(16);
    for (int i = 0; i < 16; ++i) idx[static_cast<size_t>(i)] = i;
    EXPECT_EQ(convertIndexAndBinaryListsToInt(idx, bits), mask);
  }
}

// ---------------------------------------------------------------------------
// List shaping

TEST(ConvertShaping, Coerce) {
  EXPECT_EQ(coerce(L({5, -1})), L({1, 0}));
  EXPECT_EQ(coerce(T({true, false, 0})), L({1, 0, 0}));    // bools count as ints
  EXPECT_EQ(coerce(L({5, 0.5, -1})), L({1.0, 0.5, 0.0}));  // one float makes all floats
  EXPECT_EQ(coerce(L({5, -1}), Value(0.5), Value(1)), L({1.0, 0.5}));
  EXPECT_EQ(coerce(L({1, 2, 3}), Value(2), Value(1)), L({1, 1, 1}));  // upper wins
  EXPECT_EQ(coerce(Value(Bytes{0, 9})), L({0, 1}));
  EXPECT_EQ(coerce(L({})), L({}));
  const Value nan = coerce(L({std::nan("")}));
  EXPECT_TRUE(std::isnan(nan.asList()[0].asFloat()));
  EXPECT_THROW(coerce(L({"a"})), TypeError);
  EXPECT_THROW(coerce(Value(3)), TypeError);
  EXPECT_EQ(coerce(std::vector<int64_t>{5, -1, 0}), (I{1, 0, 0}));
  EXPECT_EQ(coerce(std::vector<double>{5.5, -1.0}, -2.0, 2.0), (std::vector<double>{2.0, -1.0}));
}

TEST(ConvertShaping, AdjustDataList) {
  EXPECT_EQ(adjustDataList(L({1, 2, 3}), 8, Value(7)), L({1, 2, 3, 7, 7, 7, 7, 7}));
  EXPECT_EQ(adjustDataList(L({0, 1, 2, 3, 4, 5, 6, 7, 8, 9})), L({0, 1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(adjustDataList(L({1.5})), L({1.5, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(adjustDataList(T({1, 2}), 2), L({1, 2}));  // always a list
  EXPECT_EQ(adjustDataList(Value(Bytes{1, 2, 3}), 2), L({1, 2}));
  EXPECT_EQ(adjustDataList(L({1, 2, 3}), -1), L({1, 2}));  // slicing rules
  EXPECT_EQ(adjustDataList(L({1, 2, 3}), 0), L({}));
  EXPECT_THROW(adjustDataList(Value(5)), TypeError);
  EXPECT_EQ(adjustDataList(std::vector<double>{0.5, 1.5}, 4),
            (std::vector<double>{0.5, 1.5, 0.0, 0.0}));
  EXPECT_EQ(adjustDataList(I{1, 2, 3}, 2), (I{1, 2}));
}

// ---------------------------------------------------------------------------
// Argument checks

struct TypeCase {
  Value data;
  TypeMask mask;
  bool ok;
};

class ConvertCheckType : public ::testing::TestWithParam<TypeCase> {};

TEST_P(ConvertCheckType, AdmitsOrRaises) {
  if (GetParam().ok) {
    EXPECT_NO_THROW(checkInputType(GetParam().data, GetParam().mask)) << GetParam().data.repr();
  } else {
    expectError([] { checkInputType(GetParam().data, GetParam().mask); },
                ErrorId::InputTypeNotCorrectError);
  }
}

constexpr TypeMask kDefault = kTypeInt | kTypeList;

INSTANTIATE_TEST_SUITE_P(
    ConvertMasks, ConvertCheckType,
    ::testing::Values(TypeCase{Value(3), kDefault, true}, TypeCase{Value(true), kDefault, true},
                      TypeCase{L({1}), kDefault, true}, TypeCase{Value("3"), kDefault, false},
                      TypeCase{Value(3.0), kDefault, false}, TypeCase{T({1}), kDefault, false},
                      TypeCase{Value(), kDefault, false},
                      TypeCase{Value(Bytes{1}), kDefault, false},
                      TypeCase{Value(1), kTypeBool, false}, TypeCase{Value(false), kTypeBool, true},
                      TypeCase{Value(1.5), kTypeInt | kTypeFloat, true},
                      TypeCase{Value(), kTypeNone, true}, TypeCase{T({}), kTypeAny, true},
                      TypeCase{Value("x"), kTypeText, true}, TypeCase{Value("x"), 0, false}));

TEST(ConvertChecks, TypeConsistency) {
  EXPECT_NO_THROW(checkInputTypeConsistent(Value(1), Value(2)));
  EXPECT_NO_THROW(checkInputTypeConsistent(L({1}), L({"a", 2})));
  EXPECT_NO_THROW(checkInputTypeConsistent(Value(), Value()));
  const auto refused = [](const Value& a, const Value& b) {
    expectError([&] { checkInputTypeConsistent(a, b); }, ErrorId::InputTypeNotConsistentError);
  };
  refused(Value(true), Value(1));
  refused(L({1}), T({1}));
  refused(Value(1), Value(1.0));
  refused(Value("1"), Value(Bytes{1}));
}

TEST(ConvertChecks, EachItemInRange) {
  EXPECT_NO_THROW(checkEachItemInRange(L({})));
  EXPECT_NO_THROW(checkEachItemInRange(Value("")));
  EXPECT_NO_THROW(checkEachItemInRange(L({0, 255, true})));
  EXPECT_NO_THROW(checkEachItemInRange(Value(Bytes{0, 255})));
  EXPECT_NO_THROW(checkEachItemInRange(L({-10.0, 0.5, 10}), Value(-10), Value(10.0)));
  expectError([] { checkEachItemInRange(L({0, 256})); }, ErrorId::InputDataNotInRangeError);
  expectError([] { checkEachItemInRange(L({-1}), Value(0), Value(255), "pin out of range"); },
              ErrorId::InputDataNotInRangeError, "pin out of range");
  expectError([] { checkEachItemInRange(L({10.5}), Value(0), Value(10)); },
              ErrorId::InputDataNotInRangeError);
  expectError([] { checkEachItemInRange(L({std::nan("")}), Value(-1.0), Value(1.0)); },
              ErrorId::InputDataNotInRangeError);
  // Exact comparison between ints and floats.
  expectError(
      [] { checkEachItemInRange(L({INT64_MAX}), Value(0), Value(9223372036854775807.0 - 1024)); },
      ErrorId::InputDataNotInRangeError);
  EXPECT_NO_THROW(checkEachItemInRange(L({INT64_MAX}), Value(0), Value(0x1p63)));
  // The first failing item decides; items after it are not looked at.
  expectError([] { checkEachItemInRange(L({300, "x"})); }, ErrorId::InputDataNotInRangeError);
  EXPECT_THROW(checkEachItemInRange(L({1, "x"})), TypeError);
  EXPECT_THROW(checkEachItemInRange(Value("ab")), TypeError);
  EXPECT_THROW(checkEachItemInRange(Value(5)), TypeError);
  EXPECT_NO_THROW(checkEachItemInRange(std::vector<double>{-5.0, 5.0}, -5.0, 5.0));
  expectError(
      [] {
        checkEachItemInRange(I{1, 2, 3}, 0, 2, "too big");
      },
      ErrorId::InputDataNotInRangeError, "too big");
}

TEST(ConvertChecks, PinMaps) {
  const Value pinmap = L({"Idle", "UART", "Idle", "GPIO"});
  const Value allow = L({"Idle", "UART"});
  EXPECT_TRUE(checkFuncPinMap(T({0, 1}), pinmap, allow));
  EXPECT_FALSE(checkFuncPinMap(L({0, 3}), pinmap, allow));
  EXPECT_FALSE(checkFuncPinMap(L({0, -1}), pinmap, allow));       // counts from the end
  EXPECT_TRUE(checkFuncPinMap(L({0, 1}), L({0, 1}), L({true})));  // host equality
  EXPECT_THROW(checkFuncPinMap(L({0, 4}), pinmap, allow), IndexError);
  EXPECT_THROW(checkFuncPinMap(L({0}), pinmap, allow), IndexError);
  EXPECT_THROW(checkFuncPinMap(Value(1), pinmap, allow), TypeError);
  EXPECT_TRUE(checkPinMap(L({T({0, 0}), T({0, 1}), T({0, 2})}), pinmap, allow));
  EXPECT_FALSE(checkPinMap(L({T({0, 0}), T({0, 3}), T({0, 99})}), pinmap, allow));  // stops early
  EXPECT_TRUE(checkPinMap(L({}), pinmap, allow));

  const std::vector<std::string> map{"Idle", "SPI"};
  const std::vector<std::string> ok{"Idle"};
  EXPECT_TRUE(checkFuncPinMap({1, 0}, map, ok));
  EXPECT_FALSE(checkFuncPinMap({1, 1}, map, ok));
  EXPECT_THROW(checkFuncPinMap({1, 2}, map, ok), IndexError);
  EXPECT_FALSE(checkPinMap<std::string>({{1, 0}, {1, 1}}, map, ok));
}

TEST(ConvertChecks, LooseEqualityAndOrdering) {
  EXPECT_TRUE(looseEquals(Value(1), Value(true)));
  EXPECT_TRUE(looseEquals(Value(1), Value(1.0)));
  EXPECT_TRUE(looseEquals(L({1, L({2.0})}), L({true, L({2})})));
  EXPECT_FALSE(looseEquals(L({1}), T({1})));
  EXPECT_FALSE(looseEquals(Value("1"), Value(1)));
  EXPECT_FALSE(looseEquals(Value(INT64_MAX), Value(0x1p63)));
  EXPECT_EQ(compareNumbers(Value(2), Value(2.5)), -1);
  EXPECT_EQ(compareNumbers(Value(-2.5), Value(-3)), 1);
  EXPECT_EQ(compareNumbers(Value(std::nan("")), Value(1)), std::nullopt);
  EXPECT_THROW(compareNumbers(Value("a"), Value(1)), TypeError);
}

}  // namespace
}  // namespace orv
