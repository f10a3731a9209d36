// Where the driver's printed messages and warning reports go.  Standalone
// they go to stdout/stderr; the Python extension routes them to the
// interpreter's sys.stdout and warnings module.
#pragma once

#include <cstdint>
#include <exception>
#include <span>
#include <string>

#include "link/error.hpp"

namespace orv::report {

struct Hooks {
  // Prints one line (a newline is added).
  void (*print)(const std::string& line) = nullptr;
  // Reports an ORVWarning row at construction: the call stack, then the
  // warning "Warning {code}: {msg}".
  void (*warning)(ErrorId id, const std::string& msg) = nullptr;
  // Hands one message to the host's log (the "pyorv" logger).
  void (*log)(int level, const std::string& msg) = nullptr;
};

// The driver's log, levels numbered as the host's logging module numbers
// them: connections at Info, retries and timeouts at Warning, every packet
// at Debug.  logOn is one relaxed load: a disabled level costs nothing more.
enum class LogLevel : int { Debug = 10, Info = 20, Warning = 30 };
bool logOn(LogLevel level);
void log(LogLevel level, const std::string& msg);
// The lowest level kept; the host sets it whenever its logging levels change.
void setLogThreshold(int level);
// "02 00 02 F0 00 0D 0A": the bytes of a packet for the trace (long ones cut).
std::string hexdump(std::span<const uint8_t> bytes);

void setHooks(const Hooks& hooks);
void print(const std::string& line);
void warning(ErrorId id);
void warning(ErrorId id, const std::string& msg);
// printGenericError: "<ClassName>: <text>".
void genericError(const std::exception& e);
std::string className(const std::exception& e);

}  // namespace orv::report
