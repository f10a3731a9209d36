#include "analog/measurement.hpp"

#include <algorithm>
#include <cctype>

#include "link/error.hpp"

namespace orv {

// ---- exact decimals ------------------------------------------------------------------

namespace {

bool iequals(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

bool allDigits(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char ch) { return ch >= '0' && ch <= '9'; });
}

std::string stripZeros(std::string_view digits) {
  const size_t first = digits.find_first_not_of('0');
  return first == std::string_view::npos ? "0" : std::string(digits.substr(first));
}

}  // namespace

std::optional<ExactDecimal> ExactDecimal::parse(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
    text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
    text.remove_suffix(1);
  std::string s;
  for (char ch : text)
    if (ch != '_') s += ch;
  ExactDecimal d;
  std::string_view v(s);
  if (!v.empty() && (v.front() == '+' || v.front() == '-')) {
    d.neg = v.front() == '-';
    v.remove_prefix(1);
  }
  if (iequals(v, "inf") || iequals(v, "infinity")) {
    d.kind = Kind::Infinity;
    return d;
  }
  for (const auto& [name, kind] : {std::pair{std::string_view("snan"), Kind::SNaN},
                                   std::pair{std::string_view("nan"), Kind::NaN}}) {
    if (v.size() >= name.size() && iequals(v.substr(0, name.size()), name) &&
        allDigits(v.substr(name.size()))) {
      d.kind = kind;
      const std::string payload = stripZeros(v.substr(name.size()));
      d.coefficient = payload == "0" ? "" : payload;
      return d;
    }
  }
  const size_t e = v.find_first_of("eE");
  std::string_view mantissa = v.substr(0, e);
  int64_t exp = 0;
  if (e != std::string_view::npos) {
    std::string_view ex = v.substr(e + 1);
    bool exp_neg = false;
    if (!ex.empty() && (ex.front() == '+' || ex.front() == '-')) {
      exp_neg = ex.front() == '-';
      ex.remove_prefix(1);
    }
    if (ex.empty() || !allDigits(ex) || ex.size() > 18) return std::nullopt;
    exp = std::stoll(std::string(ex));
    if (exp_neg) exp = -exp;
  }
  const size_t dot = mantissa.find('.');
  std::string_view int_part = mantissa.substr(0, dot);
  std::string_view frac_part =
      dot == std::string_view::npos ? std::string_view() : mantissa.substr(dot + 1);
  if (int_part.empty() && frac_part.empty()) return std::nullopt;
  if (!allDigits(int_part) || !allDigits(frac_part)) return std::nullopt;
  d.coefficient = stripZeros(std::string(int_part) + std::string(frac_part));
  d.exponent = exp - static_cast<int64_t>(frac_part.size());
  return d;
}

ExactDecimal ExactDecimal::rotate(int64_t n) const {
  if (kind == Kind::SNaN) throw ValueError("[<class 'decimal.InvalidOperation'>]");
  if (kind != Kind::Finite) return *this;
  if (n < -kPrecision || n > kPrecision) throw ValueError("[<class 'decimal.InvalidOperation'>]");
  std::string digits = coefficient;
  if (digits.size() < kPrecision)
    digits.insert(0, kPrecision - digits.size(), '0');
  else
    digits = digits.substr(digits.size() - kPrecision);
  const size_t cut = static_cast<size_t>(n >= 0 ? n : kPrecision + n);
  ExactDecimal out = *this;
  out.coefficient = stripZeros(digits.substr(cut) + digits.substr(0, cut));
  return out;
}

std::string ExactDecimal::exactText() const {
  const std::string sign = neg ? "-" : "";
  switch (kind) {
    case Kind::Infinity:
      return sign + "Infinity";
    case Kind::NaN:
      return sign + "NaN" + coefficient;
    case Kind::SNaN:
      return sign + "sNaN" + coefficient;
    case Kind::Finite:
      break;
  }
  return sign + coefficient + "E" + (exponent >= 0 ? "+" : "") + std::to_string(exponent);
}

std::string ExactDecimal::str() const {
  if (kind != Kind::Finite) return exactText();
  const std::string sign = neg ? "-" : "";
  const auto n = static_cast<int64_t>(coefficient.size());
  const int64_t leftdigits = exponent + n;
  const int64_t dotplace = (exponent <= 0 && leftdigits > -6) ? leftdigits : 1;
  std::string intpart, fracpart;
  if (dotplace <= 0) {
    intpart = "0";
    fracpart = "." + std::string(static_cast<size_t>(-dotplace), '0') + coefficient;
  } else if (dotplace >= n) {
    intpart = coefficient + std::string(static_cast<size_t>(dotplace - n), '0');
  } else {
    intpart = coefficient.substr(0, static_cast<size_t>(dotplace));
    fracpart = "." + coefficient.substr(static_cast<size_t>(dotplace));
  }
  std::string exp;
  if (leftdigits != dotplace) {
    const int64_t e = leftdigits - dotplace;
    exp = std::string("E") + (e >= 0 ? "+" : "") + std::to_string(e);
  }
  return sign + intpart + fracpart + exp;
}

// The overflow marker prints as an exception without arguments: empty.
std::string DisplayDecimal::str() const {
  switch (kind) {
    case Kind::Overflow:
      return "";
    case Kind::Level:
      return std::to_string(level);
    case Kind::Decimal:
      break;
  }
  return decimal.str();
}

// ---- the frame -------------------------------------------------------------------------

const std::vector<std::string>& Measurement::MODE() {
  static const std::vector<std::string> t = {
      "ACV", "ACmV", "DCV",  "DCmV",  "Hz",   "%",     "OHM", "CONT",   "DIDOE", "CAP", "°C",
      "°F",  "DCuA", "ACuA", "DCmA",  "ACmA", "DCA",   "ACA", "HFE",    "Live",  "NCV", "LozV",
      "ACA", "DCA",  "LPF",  "AC/DC", "LPF",  "AC+DC", "LPF", "AC+DC2", "INRUSH"};
  return t;
}

const std::vector<std::string>& Measurement::OVERLOAD() {
  static const std::vector<std::string> t = {"O.L", "OL.", "OL", "-.OL", "-O.L", "-OL.", "-OL"};
  return t;
}

const std::vector<std::string>& Measurement::NCV() {
  static const std::vector<std::string> t = {"EF", "-", "--", "---", "----", "-----"};
  return t;
}

const std::map<std::string, int>& Measurement::EXPONENTS() {
  static const std::map<std::string, int> t = {{"M", 6}, {"k", 3}, {"m", -3}, {"u", -6}, {"n", -9}};
  return t;
}

const std::map<std::string, std::map<std::string, std::string>>& Measurement::UNITS() {
  using Row = std::map<std::string, std::string>;
  static const Row amps = {{"1", "A"}};
  static const Row volts = {{"0", "V"}, {"1", "V"}, {"2", "V"}, {"3", "V"}};
  static const Row milliamps = {{"0", "mA"}, {"1", "mA"}};
  static const Row microamps = {{"0", "uA"}, {"1", "uA"}};
  static const std::map<std::string, Row> t = {
      {"%", {{"0", "%"}}},
      {"AC+DC", amps},
      {"AC+DC2", amps},
      {"ACA", amps},
      {"DCA", amps},
      {"AC/DC", volts},
      {"ACV", volts},
      {"DCV", volts},
      {"LPF", volts},
      {"LozV", volts},
      {"ACmA", milliamps},
      {"DCmA", milliamps},
      {"ACmV", {{"0", "mV"}}},
      {"DCmV", {{"0", "mV"}}},
      {"ACuA", microamps},
      {"DCuA", microamps},
      {"CAP",
       {{"0", "nF"},
        {"1", "nF"},
        {"2", "uF"},
        {"3", "uF"},
        {"4", "uF"},
        {"5", "mF"},
        {"6", "mF"},
        {"7", "mF"}}},
      {"CONT", {{"0", "Ω"}}},
      {"DIDOE", {{"0", "V"}}},
      {"Hz",
       {{"0", "Hz"},
        {"1", "Hz"},
        {"2", "kHz"},
        {"3", "kHz"},
        {"4", "kHz"},
        {"5", "MHz"},
        {"6", "MHz"},
        {"7", "MHz"}}},
      {"OHM",
       {{"0", "Ω"}, {"1", "kΩ"}, {"2", "kΩ"}, {"3", "kΩ"}, {"4", "MΩ"}, {"5", "MΩ"}, {"6", "MΩ"}}},
      {"°C", {{"0", "°C"}, {"1", "°C"}}},
      {"°F", {{"0", "°F"}, {"1", "°F"}}},
      {"HFE", {{"0", "B"}}},
      {"NCV", {{"0", "NCV"}}},
  };
  return t;
}

namespace {

uint8_t at(std::span<const uint8_t> b, size_t i) {
  if (i >= b.size()) throw IndexError("index out of range");
  return b[i];
}

std::string slice(std::span<const uint8_t> b, size_t from, size_t to) {
  std::string s;
  for (size_t i = from; i < std::min(to, b.size()); ++i) s += static_cast<char>(b[i]);
  return s;
}

bool contains(const std::vector<std::string>& list, const std::string& s) {
  return std::find(list.begin(), list.end(), s) != list.end();
}

bool bit(uint8_t byte, int n) { return (byte >> n) & 1; }

}  // namespace

Measurement::Measurement(std::span<const uint8_t> b) : binary(b.begin(), b.end()) {
  const size_t mode_index = at(b, 0);
  if (mode_index >= MODE().size()) throw IndexError("list index out of range");
  mode = MODE()[mode_index];
  range = slice(b, 1, 2);
  for (char ch : slice(b, 2, 9))
    if (ch != ' ') display += ch;

  overload = contains(OVERLOAD(), display);
  ncv = contains(NCV(), display);
  if (overload) {
    display_decimal.kind = DisplayDecimal::Kind::Overflow;
  } else if (ncv) {
    display_decimal.kind = DisplayDecimal::Kind::Level;
    const auto& levels = NCV();
    const auto it = std::find(levels.begin(), levels.end(), display);
    display_decimal.level = it == levels.end() ? -1 : it - levels.begin();
  } else {
    const auto d = ExactDecimal::parse(display);
    if (!d) throw FrameError(FrameError::Kind::Decimal, display);
    display_decimal.decimal = *d;
  }

  const auto units = UNITS().find(mode);
  if (units == UNITS().end()) throw FrameError(FrameError::Kind::Key, mode);
  const auto u = units->second.find(range);
  if (u != units->second.end()) display_unit = u->second;
  unit = display_unit;
  decimal = display_decimal;

  if (!unit) throw TypeError("'NoneType' object is not subscriptable");
  if (unit->empty()) throw IndexError("string index out of range");
  const auto prefix = EXPONENTS().find(unit->substr(0, 1));
  if (prefix != EXPONENTS().end() && !overload) {
    if (decimal.kind != DisplayDecimal::Kind::Decimal)
      throw FrameError(FrameError::Kind::Attribute, "'int' object has no attribute 'rotate'");
    decimal.decimal = decimal.decimal.rotate(prefix->second);
    unit = unit->substr(1);
  }

  progres = at(b, 9) * 10 + at(b, 10);
  const uint8_t f11 = at(b, 11), f12 = at(b, 12), f13 = at(b, 13);
  max = bit(f11, 3);
  min = bit(f11, 2);
  hold = bit(f11, 1);
  rel = bit(f11, 0);
  auto_ = !bit(f12, 2);
  battery = bit(f12, 1);
  hvwarning = bit(f12, 0);
  dc = bit(f13, 3);
  peak_max = bit(f13, 2);
  peak_min = bit(f13, 1);
  bar_pol = bit(f13, 0);
}

std::string Measurement::str() const {
  const auto b = [](bool v) { return std::string(v ? "True" : "False"); };
  const std::string du = display_unit ? *display_unit : "None";
  return "mode=" + mode + "\nrange=" + range + "\ndisplay=" + display +
         "\ndisplay_decimal=" + display_decimal.str() + "\ndisplay_unit=" + du +
         "\noverload=" + b(overload) + "\nvalue=" + decimal.str() + "\nunit=" + du +
         "\nisMax=" + b(max) + "\nismin=" + b(min) + "\nisHold=" + b(hold) + "\nisRel=" + b(rel) +
         "\nisAuto=" + b(auto_) + "\nhasBatteryWarning=" + b(battery) +
         "\nhashasHVWarning=" + b(hvwarning) + "\nisDC=" + b(dc) + "\nisMaxPeak=" + b(peak_max) +
         "\nisMinPeak=" + b(peak_min);
}

}  // namespace orv
