#include "link/error.hpp"

#include <cstdio>
#include <cstring>

#include "link/report.hpp"

namespace orv {
namespace {

constexpr ErrorInfo kTable[] = {
#define ORV_ERR(kind, cls, constant, code, status, msg) \
  {ErrorId::cls, ErrorKind::kind, #cls, #constant, code, status, msg},
#define ORV_ERR_NC(kind, cls, code, msg) {ErrorId::cls, ErrorKind::kind, #cls, "", code, 0, msg},
#include "link/errors.def"
#undef ORV_ERR
#undef ORV_ERR_NC
};
static_assert(std::size(kTable) == static_cast<size_t>(ErrorId::Count_));

}  // namespace

const ErrorInfo& errorInfo(ErrorId id) { return kTable[static_cast<size_t>(id)]; }

const ErrorInfo* errorTable(size_t* count) {
  *count = std::size(kTable);
  return kTable;
}

Error::Error(ErrorId id) : Error(id, std::string(errorInfo(id).message)) {}

Error::Error(ErrorId id, std::string msg)
    : std::runtime_error("Error " + std::to_string(errorInfo(id).code) + ": " + msg),
      id_(id),
      msg_(std::move(msg)) {
  // A warning reports itself when it is made, raised or not.
  if (errorInfo(id_).kind == ErrorKind::Warning) report::warning(id_, msg_);
}

OSError::OSError(int err, const std::string& what)
    : std::runtime_error(what + ": " + std::strerror(err)), err_(err) {}

AsyncTimeout::AsyncTimeout(int cmd, double seconds)
    : std::runtime_error([&] {
        char text[96];
        std::snprintf(text, sizeof text, "no reply to command 0x%02X (%d) within %g s", cmd, cmd,
                      seconds);
        return std::string(text);
      }()) {}

void raise(ErrorId id) { throw Error(id); }
void raiseOs(ErrorId id, int err) { throw Error(id).causedBy(err, std::strerror(err)); }
void raise(ErrorId id, std::string msg) { throw Error(id, std::move(msg)); }

ErrorId firmwareErrorFor(int64_t status) {
  for (const auto& row : kTable)
    if (row.firmware_status > 0 && row.firmware_status == status) return row.id;
  return ErrorId::FirmwareOtherError;
}

int checkFirmwareError(int64_t status) {
  if (status == 0) return 0;
  raise(firmwareErrorFor(status));
}

}  // namespace orv
