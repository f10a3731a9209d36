// Rows of values as CSV text, in the host's default CSV dialect: comma
// separated, a field quoted only when it holds a comma, a quote, CR or LF
// (quotes doubled inside), CR LF after each row, a row of one empty field
// written as "".  Numbers read as the host prints them: floats in their
// shortest round-trip form (repr), ints in decimal, bools True and False,
// None as an empty field.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace orv {

struct CsvNone {
  bool operator==(const CsvNone&) const = default;
};
// A field: None, a bool, an int, a float, or text already in its final form.
using CsvField = std::variant<CsvNone, bool, int64_t, double, std::string>;
using CsvRow = std::vector<CsvField>;

// repr() of a float: "0.1", "1e-05", "1e+16", "-0.0", "inf", "nan".
std::string floatRepr(double x);
// One field as the CSV writer turns it into text.
std::string fieldText(const CsvField& f);
// One row with its line end.
std::string csvRow(const CsvRow& row);

}  // namespace orv
