#include "analog/csv_text.hpp"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace orv {

std::string floatRepr(double x) {
  if (std::isnan(x)) return "nan";
  if (std::isinf(x)) return x < 0 ? "-inf" : "inf";
  // The shortest digits that read back to x, in scientific form: d[.ddd]e±XX.
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific);
  std::string_view sci(buf, static_cast<size_t>(res.ptr - buf));
  std::string sign;
  if (sci.front() == '-') {
    sign = "-";
    sci.remove_prefix(1);
  }
  const size_t e = sci.find('e');
  std::string digits;
  for (char ch : sci.substr(0, e))
    if (ch != '.') digits += ch;
  const int exp10 = std::atoi(std::string(sci.substr(e + 1)).c_str());
  // decpt: where the point stands relative to the digits (x = 0.digits * 10^decpt).
  const int decpt = exp10 + 1;
  const auto n = static_cast<int>(digits.size());
  if (decpt > -4 && decpt <= 16) {
    if (decpt <= 0) return sign + "0." + std::string(static_cast<size_t>(-decpt), '0') + digits;
    if (decpt >= n) return sign + digits + std::string(static_cast<size_t>(decpt - n), '0') + ".0";
    return sign + digits.substr(0, static_cast<size_t>(decpt)) + "." +
           digits.substr(static_cast<size_t>(decpt));
  }
  std::string mantissa = digits.substr(0, 1);
  if (n > 1) mantissa += "." + digits.substr(1);
  const int shown = decpt - 1;
  std::string ex = std::to_string(std::abs(shown));
  if (ex.size() < 2) ex.insert(0, "0");
  return sign + mantissa + "e" + (shown < 0 ? "-" : "+") + ex;
}

std::string fieldText(const CsvField& f) {
  struct Visit {
    std::string operator()(const CsvNone&) const { return ""; }
    std::string operator()(bool b) const { return b ? "True" : "False"; }
    std::string operator()(int64_t i) const { return std::to_string(i); }
    std::string operator()(double d) const { return floatRepr(d); }
    std::string operator()(const std::string& s) const { return s; }
  };
  return std::visit(Visit{}, f);
}

std::string csvRow(const CsvRow& row) {
  std::string out;
  for (size_t i = 0; i < row.size(); ++i) {
    if (i) out += ',';
    const std::string text = fieldText(row[i]);
    const bool quote =
        text.find_first_of(",\"\r\n") != std::string::npos || (row.size() == 1 && text.empty());
    if (!quote) {
      out += text;
      continue;
    }
    out += '"';
    for (char ch : text) {
      if (ch == '"') out += '"';
      out += ch;
    }
    out += '"';
  }
  return out + "\r\n";
}

}  // namespace orv
