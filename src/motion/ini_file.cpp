#include "motion/ini_file.hpp"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "link/error.hpp"

namespace orv {

namespace {

std::string_view strip(std::string_view s) {
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.front()))) s.remove_prefix(1);
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.back()))) s.remove_suffix(1);
  return s;
}

}  // namespace

// ---- IniConfig --------------------------------------------------------------------

std::string IniConfig::foldKey(std::string_view key) {
  std::string k(key);
  for (char& ch : k) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
  return k;
}

IniConfig::Section* IniConfig::find(const std::string& section) {
  for (auto& [name, s] : sections_)
    if (name == section) return &s;
  return nullptr;
}
const IniConfig::Section* IniConfig::find(const std::string& section) const {
  return const_cast<IniConfig*>(this)->find(section);
}

bool IniConfig::hasSection(const std::string& section) const { return find(section) != nullptr; }

void IniConfig::clearSection(const std::string& section) {
  if (Section* s = find(section)) {
    s->clear();
    return;
  }
  sections_.emplace_back(section, Section{});
}

void IniConfig::set(const std::string& section, std::string_view key, std::string value) {
  Section* s = find(section);
  if (!s) throw KeyError("No section: '" + section + "'");
  const std::string k = foldKey(key);
  for (auto& [name, v] : *s)
    if (name == k) {
      v = std::move(value);
      return;
    }
  s->emplace_back(k, std::move(value));
}

const std::string& IniConfig::get(const std::string& section, std::string_view key) const {
  const Section* s = find(section);
  if (!s) throw KeyError("No section: '" + section + "'");
  const std::string k = foldKey(key);
  for (const auto& [name, v] : *s)
    if (name == k) return v;
  throw KeyError("No option '" + k + "' in section: '" + section + "'");
}

void IniConfig::read(const std::string& filename) {
  std::ifstream in(filename);
  if (!in) return;
  std::string line;
  Section* cur = nullptr;
  std::string* last_value = nullptr;
  size_t lineno = 0;
  auto fail = [&](const std::string& what) {
    throw ValueError("File contains parsing errors: " + filename + "\n\t[line " +
                     std::to_string(lineno) + "]: " + what);
  };
  while (std::getline(in, line)) {
    ++lineno;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string_view t = strip(line);
    if (t.empty() || t.front() == '#' || t.front() == ';') {
      last_value = nullptr;
      continue;
    }
    // An indented line continues the value above it.
    if (last_value && std::isspace(static_cast<unsigned char>(line.front()))) {
      *last_value += "\n" + std::string(t);
      continue;
    }
    if (t.front() == '[') {
      const size_t close = t.find(']');
      if (close == std::string_view::npos) fail(line);
      const std::string name(t.substr(1, close - 1));
      if (!find(name)) sections_.emplace_back(name, Section{});
      cur = find(name);
      last_value = nullptr;
      continue;
    }
    if (!cur)
      throw ValueError("File contains no section headers.\nfile: '" + filename +
                       "', line: " + std::to_string(lineno) + "\n" + line);
    const size_t sep = t.find_first_of("=:");
    if (sep == std::string_view::npos || sep == 0) fail(line);
    const std::string key = foldKey(strip(t.substr(0, sep)));
    std::string value(strip(t.substr(sep + 1)));
    auto it = cur->begin();
    for (; it != cur->end(); ++it)
      if (it->first == key) break;
    if (it == cur->end()) {
      cur->emplace_back(key, std::move(value));
      last_value = &cur->back().second;
    } else {
      it->second = std::move(value);
      last_value = &it->second;
    }
  }
}

std::string IniConfig::text() const {
  std::string out;
  for (const auto& [name, s] : sections_) {
    out += "[" + name + "]\n";
    for (const auto& [k, v] : s) {
      std::string value = v;
      for (size_t p = 0; (p = value.find('\n', p)) != std::string::npos; p += 2)
        value.insert(p + 1, "\t");
      out += k + " = " + value + "\n";
    }
    out += "\n";
  }
  return out;
}

void IniConfig::write(const std::string& filename, std::string_view mode) const {
  std::ofstream out(filename, mode == "a" ? std::ios::app : std::ios::trunc);
  if (!out) throw OSError(errno, "cannot open '" + filename + "' for writing");
  out << text();
  out.close();
  if (!out) throw OSError(errno, "cannot write '" + filename + "'");
}

// ---- MotionInifile --------------------------------------------------------------

namespace {
constexpr const char* kPercent = "Approach Velocity Percent";
constexpr const char* kOffset = "Offset Position";
}  // namespace

MotionInifile::MotionInifile() {
  const std::pair<const char*, const char*> kBool{"FALSE", "TRUE"};
  const std::pair<const char*, const char*> kLevel{"Active Low", "Active High"};
  const std::pair<const char*, const char*> kDir{"Forward", "Reverse"};
  const std::pair<const char*, std::pair<const char*, const char*>> rows[] = {
      {"Stepper Output", {"Step/Dir(One Pulse)", "CW/CCW(Two Pulse)"}},
      {"Inverse Motion Direction", kBool},
      {"Inverse Encoder Direction", kBool},
      {"Encoder A Polarity", kLevel},
      {"Encoder B Polarity", kLevel},
      {"Encoder Z Polarity", kLevel},
      {"Home Enable", kBool},
      {"Forward Enable", kBool},
      {"Reverse Enable", kBool},
      {"Home Polarity", kLevel},
      {"Forward Polarity", kLevel},
      {"Reverse Polarity", kLevel},
      {"Initial Search Direction", kDir},
      {"Final Approach Direction", kDir},
      {"Enable Reset Position", kBool},
      {"Servo On Polarity", kLevel},
      {"Alarm Enable", kBool},
      {"Alarm Polarity", kLevel},
      {"Inposition Enable", kBool},
      {"Inposition Polarity", kLevel},
  };
  for (const auto& [label, words] : rows) {
    out_[label] = {{0, words.first}, {1, words.second}};
    in_[label] = {{words.first, 0}, {words.second, 1}};
  }
}

std::string MotionInifile::textOf(const Value& v) {
  if (v.isText()) return v.asText();
  if (v.isBool()) return v.asBool() ? "True" : "False";
  return v.repr();
}

Value MotionInifile::_Motion_INI_convertIntToString(std::string_view key,
                                                    const Value& value) const {
  if (key == kPercent || key == kOffset) return value;
  auto row = out_.find(std::string(key));
  if (row == out_.end()) throw KeyError("'" + std::string(key) + "'");
  if (!value.isNumber()) throw KeyError(value.repr());
  const double d = value.asFloat();
  auto word = row->second.find(static_cast<int64_t>(d));
  if (word == row->second.end() || static_cast<double>(word->first) != d)
    throw KeyError(value.repr());
  return Value(word->second);
}

Value MotionInifile::_Motion_INI_convertStringToInt(std::string_view key,
                                                    std::string_view label) const {
  const std::string text(strip(label));
  if (key == kPercent) {
    char* end = nullptr;
    errno = 0;
    const double d = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0')
      throw ValueError("could not convert string to float: '" + std::string(label) + "'");
    return Value(d);
  }
  if (key == kOffset) {
    std::string digits;
    for (char ch : text)
      if (ch != '_') digits += ch;
    char* end = nullptr;
    errno = 0;
    const long long i = std::strtoll(digits.c_str(), &end, 10);
    if (digits.empty() || *end != '\0' || errno == ERANGE || digits.find('.') != std::string::npos)
      throw ValueError("invalid literal for int() with base 10: '" + std::string(label) + "'");
    return Value(static_cast<int64_t>(i));
  }
  auto row = in_.find(std::string(key));
  if (row == in_.end()) throw KeyError("'" + std::string(key) + "'");
  auto it = row->second.find(std::string(label));
  if (it == row->second.end()) throw KeyError("'" + std::string(label) + "'");
  return Value(it->second);
}

const std::string& checkedIniPath(const Value& filename) {
  if (!filename.isText())
    throw TypeError("stat: path should be string, not " + std::string(filename.typeName()));
  const std::string& name = filename.asText();
  std::error_code ec;
  if (!std::filesystem::exists(name, ec)) raise(ErrorId::IniFileNotFoundError);
  if (name.size() < 4 || name.compare(name.size() - 4, 4, ".ini") != 0)
    raise(ErrorId::IniFileExtensionNameError);
  return name;
}

}  // namespace orv
