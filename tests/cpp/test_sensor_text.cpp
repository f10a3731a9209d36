// The text forms of the sensor family: float repr and CSV rows of the data
// logger, exact decimals of Measurement.  Python's own csv and decimal are the
// reference in the Python tests; these pin the edge cases without Python.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "analog/csv_text.hpp"
#include "analog/measurement.hpp"

namespace orv {
namespace {

TEST(FloatRepr, ShortestFormAndTheSwitchToExponents) {
  EXPECT_EQ(floatRepr(0.1), "0.1");
  EXPECT_EQ(floatRepr(100.0), "100.0");
  EXPECT_EQ(floatRepr(-0.0), "-0.0");
  EXPECT_EQ(floatRepr(0.0001), "0.0001");
  EXPECT_EQ(floatRepr(1e-05), "1e-05");
  EXPECT_EQ(floatRepr(1234567890123456.0), "1234567890123456.0");
  EXPECT_EQ(floatRepr(1e16), "1e+16");
  EXPECT_EQ(floatRepr(1.5e300), "1.5e+300");
  EXPECT_EQ(floatRepr(5e-324), "5e-324");
  EXPECT_EQ(floatRepr(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(floatRepr(-std::numeric_limits<double>::infinity()), "-inf");
  EXPECT_EQ(floatRepr(std::nan("")), "nan");
}

TEST(CsvRow, QuotesOnlyWhereNeeded) {
  EXPECT_EQ(csvRow({int64_t{1}, 2.5, true, CsvNone{}, std::string("a")}), "1,2.5,True,,a\r\n");
  EXPECT_EQ(csvRow({std::string("a,b"), std::string("q\"q"), std::string("l\nf")}),
            "\"a,b\",\"q\"\"q\",\"l\nf\"\r\n");
  EXPECT_EQ(csvRow({std::string()}), "\"\"\r\n");
  EXPECT_EQ(csvRow({CsvNone{}, CsvNone{}}), ",\r\n");
  EXPECT_EQ(csvRow({}), "\r\n");
}

TEST(ExactDecimal, ParseRotateAndPrint) {
  const auto d = ExactDecimal::parse("1.234");
  ASSERT_TRUE(d);
  EXPECT_EQ(d->exactText(), "1234E-3");
  EXPECT_EQ(d->rotate(3).str(), "1234.000");
  EXPECT_EQ(ExactDecimal::parse("123.4")->rotate(-3).str(), "234000000000000000000000000.1");
  EXPECT_EQ(ExactDecimal::parse("-0.0012")->str(), "-0.0012");
  EXPECT_EQ(ExactDecimal::parse("0.0000001")->str(), "1E-7");
  EXPECT_EQ(ExactDecimal::parse("1E+3")->str(), "1E+3");
  EXPECT_EQ(ExactDecimal::parse("-inf")->str(), "-Infinity");
  EXPECT_FALSE(ExactDecimal::parse("1.2.3"));
  EXPECT_FALSE(ExactDecimal::parse("-"));
}

}  // namespace
}  // namespace orv
