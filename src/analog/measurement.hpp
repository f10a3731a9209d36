// One frame of a digital multimeter decoded into its fields: mode, range,
// display text, the displayed number as an exact decimal, unit and flags.
// A plain value with no device behind it.
#pragma once

#include <cstdint>
#include <exception>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orv {

// A decimal number as the host's decimal type holds it: sign, coefficient
// digits and exponent (value = (-1)^neg * coefficient * 10^exponent), or a
// special value.  Arithmetic is exact; rotate works at 28 digits, the host's
// default precision.
struct ExactDecimal {
  enum class Kind { Finite, Infinity, NaN, SNaN };
  Kind kind = Kind::Finite;
  bool neg = false;
  std::string coefficient = "0";  // digits, no leading zeros (a NaN's payload may be empty)
  int64_t exponent = 0;

  static constexpr int kPrecision = 28;

  // The decimal of a text as the host's decimal constructor reads it
  // (surrounding blanks allowed, underscores between digits); nullopt when
  // the text is no number.
  static std::optional<ExactDecimal> parse(std::string_view text);
  // The digits rotated left by n places (right for negative n), the
  // coefficient padded on the left with zeros to 28 digits first; sign and
  // exponent stay.
  ExactDecimal rotate(int64_t n) const;
  // A text the host's decimal constructor reads back to this very value:
  // "[-]digitsE[+-]exp", or the special's name.
  std::string exactText() const;
  // The host's str() of the value (scientific notation rules).
  std::string str() const;
};

// The value of display_decimal: a decimal, the overflow marker (an overload
// on the display), or the level of the non-contact voltage mode.
struct DisplayDecimal {
  enum class Kind { Decimal, Overflow, Level };
  Kind kind = Kind::Decimal;
  ExactDecimal decimal;
  int64_t level = 0;
  std::string str() const;
};

class Measurement {
 public:
  // Throws IndexError for a frame too short, TypeError for a range digit
  // the mode lacks, FrameError for the rest.
  explicit Measurement(std::span<const uint8_t> b);

  static const std::vector<std::string>& MODE();
  static const std::vector<std::string>& OVERLOAD();
  static const std::vector<std::string>& NCV();
  static const std::map<std::string, int>& EXPONENTS();
  static const std::map<std::string, std::map<std::string, std::string>>& UNITS();

  std::vector<uint8_t> binary;
  std::string mode, range, display;
  bool overload = false, ncv = false;
  DisplayDecimal display_decimal;
  std::optional<std::string> display_unit;  // nullopt: no unit for the range digit
  std::optional<std::string> unit;          // display_unit without its prefix
  DisplayDecimal decimal;
  int64_t progres = 0;
  bool max = false, min = false, hold = false, rel = false, auto_ = false, battery = false,
       hvwarning = false, dc = false, peak_max = false, peak_min = false, bar_pol = false;

  // One line per field, as the host prints the object.
  std::string str() const;
};

// A frame the host's own lookups refuse: a mode without a unit table (a
// KeyError there), a display text that is no number (the decimal
// constructor's error), rotating the level of the NCV mode (an
// AttributeError).  The binding raises the host's error of that kind.
class FrameError : public std::exception {
 public:
  enum class Kind { Key, Decimal, Attribute };
  FrameError(Kind kind, std::string text) : kind_(kind), text_(std::move(text)) {}
  const char* what() const noexcept override { return text_.c_str(); }
  Kind kind() const { return kind_; }
  const std::string& text() const { return text_; }

 private:
  Kind kind_;
  std::string text_;
};

}  // namespace orv
