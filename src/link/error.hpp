// Errors and warnings of the driver, made from the table in errors.def.
//
// In C++ every row is one orv::Error carrying its ErrorId; the bindings turn
// it into the host class of the same name.  Rows whose kind is Warning are
// ORVWarning classes on the host side (the motion family among them).
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orv {

enum class ErrorId : uint16_t {
#define ORV_ERR(kind, cls, constant, code, status, msg) cls,
#define ORV_ERR_NC(kind, cls, code, msg) cls,
#include "link/errors.def"
#undef ORV_ERR
#undef ORV_ERR_NC
  Count_
};

enum class ErrorKind : uint8_t { Error, Warning };

struct ErrorInfo {
  ErrorId id;
  ErrorKind kind;
  std::string_view name;      // host class name
  std::string_view constant;  // module constant, empty when the class has none
  int code;
  int firmware_status;  // 0 none, -1 "any other"
  std::string_view message;
};

// Module constants: errAPINotSupport, warnAIOverflow, ...
#define ORV_ERR(kind, cls, constant, code, status, msg) inline constexpr int constant = code;
#define ORV_ERR_NC(kind, cls, code, msg)
#include "link/errors.def"
#undef ORV_ERR
#undef ORV_ERR_NC

const ErrorInfo& errorInfo(ErrorId id);
// All rows, in table order.
const ErrorInfo* errorTable(size_t* count);

// An error of the driver: a row of the table with its message.
class Error : public std::runtime_error {
 public:
  explicit Error(ErrorId id);
  Error(ErrorId id, std::string msg);
  ErrorId id() const { return id_; }
  int code() const { return errorInfo(id_).code; }
  const std::string& msg() const { return msg_; }
  bool isWarning() const { return errorInfo(id_).kind == ErrorKind::Warning; }
  // The operating system's failure behind the error (a refused connect, a
  // device that is not there): its errno and text; errno 0 when there is none.
  int osErrno() const { return os_errno_; }
  const std::string& osText() const { return os_text_; }
  Error& causedBy(int err, std::string text) {
    os_errno_ = err;
    os_text_ = std::move(text);
    return *this;
  }

 private:
  ErrorId id_;
  std::string msg_;
  int os_errno_ = 0;
  std::string os_text_;
};

// Errors of the host's own kinds, for the places where the device interface
// uses them (a wrong argument type, an operating-system failure, the awaitable
// path's timeout).
class TypeError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
class ValueError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
class IndexError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
// A key that a map of the model does not hold; what() is the key's repr.
class KeyError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
class OSError : public std::runtime_error {
 public:
  OSError(int err, const std::string& what);
  int err() const { return err_; }

 private:
  int err_;
};
// The awaitable exchange ran out of time (the event loop's timeout error).
class AsyncTimeout : public std::runtime_error {
 public:
  AsyncTimeout() : std::runtime_error("the device did not answer in time") {}
  // "no reply to command 0xF0 (240) within 3 s"
  AsyncTimeout(int cmd, double seconds);
};
// The awaitable call was cancelled by its caller.
class Cancelled : public std::runtime_error {
 public:
  Cancelled() : std::runtime_error("the call was cancelled") {}
};

[[noreturn]] void raise(ErrorId id);
[[noreturn]] void raise(ErrorId id, std::string msg);
// The row's error, caused by the operating system's errno `err`.
[[noreturn]] void raiseOs(ErrorId id, int err);

// Maps a firmware status byte to its error: returns 0 for 0, otherwise throws.
int checkFirmwareError(int64_t status);
// Row that checkFirmwareError raises for a status (FirmwareOtherError for
// anything unknown).
ErrorId firmwareErrorFor(int64_t status);

}  // namespace orv
