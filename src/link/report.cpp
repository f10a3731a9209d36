#include "link/report.hpp"

#include <cxxabi.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <iostream>
#include <mutex>
#include <typeinfo>

namespace orv::report {
namespace {

std::mutex g_m;
Hooks g_hooks;
std::atomic<int> g_log_threshold{1000};  // nothing until the host says

Hooks hooks() {
  std::lock_guard lk(g_m);
  return g_hooks;
}

}  // namespace

void setHooks(const Hooks& h) {
  std::lock_guard lk(g_m);
  g_hooks = h;
}

void print(const std::string& line) {
  if (auto h = hooks(); h.print) return h.print(line);
  std::cout << line << std::endl;
}

void warning(ErrorId id) { warning(id, std::string(errorInfo(id).message)); }

void warning(ErrorId id, const std::string& msg) {
  if (auto h = hooks(); h.warning) return h.warning(id, msg);
  std::cerr << "Warning " << errorInfo(id).code << ": " << msg << std::endl;
}

bool logOn(LogLevel level) {
  return static_cast<int>(level) >= g_log_threshold.load(std::memory_order_relaxed);
}

void log(LogLevel level, const std::string& msg) {
  if (!logOn(level)) return;
  if (auto h = hooks(); h.log) h.log(static_cast<int>(level), msg);
}

void setLogThreshold(int level) { g_log_threshold.store(level, std::memory_order_relaxed); }

std::string hexdump(std::span<const uint8_t> bytes) {
  constexpr size_t kShown = 256;
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  const size_t n = std::min(bytes.size(), kShown);
  out.reserve(n * 3 + 24);
  for (size_t i = 0; i < n; ++i) {
    if (i) out += ' ';
    out += kHex[bytes[i] >> 4];
    out += kHex[bytes[i] & 15];
  }
  if (bytes.size() > kShown) out += " ... (" + std::to_string(bytes.size() - kShown) + " more)";
  return out;
}

std::string className(const std::exception& e) {
  if (auto* err = dynamic_cast<const Error*>(&e)) return std::string(errorInfo(err->id()).name);
  if (dynamic_cast<const TypeError*>(&e)) return "TypeError";
  if (dynamic_cast<const ValueError*>(&e)) return "ValueError";
  if (dynamic_cast<const IndexError*>(&e)) return "IndexError";
  if (dynamic_cast<const KeyError*>(&e)) return "KeyError";
  if (dynamic_cast<const OSError*>(&e)) return "OSError";
  int status = 0;
  const char* mangled = typeid(e).name();
  char* dem = abi::__cxa_demangle(mangled, nullptr, nullptr, &status);
  std::string out = (status == 0 && dem) ? dem : mangled;
  std::free(dem);
  return out;
}

void genericError(const std::exception& e) { print(className(e) + ": " + e.what()); }

}  // namespace orv::report
