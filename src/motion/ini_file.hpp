// The motion ini file: a sectioned text file of `key = value` entries, read
// and written the way the host's standard configuration parser does it
// (bracketed section heads, keys folded to lower case, " = " between key and
// value on output, a blank line after each section), and MotionInifile, the
// translation between the settings' integers and the words the file shows.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "link/value.hpp"

namespace orv {

class IniConfig {
 public:
  using Section = std::vector<std::pair<std::string, std::string>>;

  // Adds the sections and entries of a file to what is held; a file that
  // cannot be opened adds nothing.  A line that is no section head, entry,
  // comment or continuation raises ValueError naming the file and line.
  void read(const std::string& filename);
  // The whole text, sections in the order they were first made.
  std::string text() const;
  // Writes text() to the file (mode "w"); failure raises OSError.
  void write(const std::string& filename, std::string_view mode = "w") const;

  // Makes the section empty (creating it at the end when new).
  void clearSection(const std::string& section);
  // Sets an entry; the key is folded to lower case.
  void set(const std::string& section, std::string_view key, std::string value);
  // The text of an entry: KeyError for a missing section or key, with the
  // parser's message ("No section: 'Axis_1'", "No option 'x' in section: 'Axis_1'").
  const std::string& get(const std::string& section, std::string_view key) const;
  bool hasSection(const std::string& section) const;

  static std::string foldKey(std::string_view key);

 private:
  Section* find(const std::string& section);
  const Section* find(const std::string& section) const;
  std::vector<std::pair<std::string, Section>> sections_;
};

// The path Motion_openCfgFile takes: a text naming a file that exists and
// ends in ".ini"; raises as opening it would (TypeError,
// IniFileNotFoundError, IniFileExtensionNameError).
const std::string& checkedIniPath(const Value& filename);

// Settings <-> words of the motion ini file.
class MotionInifile {
 public:
  MotionInifile();
  // label -> (value -> word), and the reverse.  The two numeric labels have
  // no words.
  const std::map<std::string, std::map<int64_t, std::string>>& ini_out_dict() const { return out_; }
  const std::map<std::string, std::map<std::string, int64_t>>& ini_in_dict() const { return in_; }

  // The word of a setting; for "Approach Velocity Percent" and "Offset
  // Position" the value unchanged.  A value without a word raises KeyError.
  Value _Motion_INI_convertIntToString(std::string_view key, const Value& value) const;
  // The setting of a word: float(text) for "Approach Velocity Percent",
  // int(text) for "Offset Position", else the table (KeyError when absent).
  Value _Motion_INI_convertStringToInt(std::string_view key, std::string_view label) const;

  // The text the file shows for a value (the host's str()).
  static std::string textOf(const Value& v);

 private:
  std::map<std::string, std::map<int64_t, std::string>> out_;
  std::map<std::string, std::map<std::string, int64_t>> in_;
};

}  // namespace orv
