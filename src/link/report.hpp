// Where the driver's printed messages and warning reports go.  Standalone
// they go to stdout/stderr; the Python extension routes them to the
// interpreter's sys.stdout and warnings module.
#pragma once

#include <exception>
#include <string>

#include "link/error.hpp"

namespace orv::report {

struct Hooks {
  // Prints one line (a newline is added).
  void (*print)(const std::string& line) = nullptr;
  // Reports an ORVWarning row at construction: the call stack, then the
  // warning "Warning {code}: {msg}".
  void (*warning)(ErrorId id, const std::string& msg) = nullptr;
};

void setHooks(const Hooks& hooks);
void print(const std::string& line);
void warning(ErrorId id);
void warning(ErrorId id, const std::string& msg);
// printGenericError: "<ClassName>: <text>".
void genericError(const std::exception& e);
std::string className(const std::exception& e);

}  // namespace orv::report
