// The libusb-1.0 backend, loaded at run time.
//
// The library is looked for beside the loaded driver module first, then in
// ../ext_lib next to it; when neither loads, ExtLibNotFoundWarning is
// reported and the system's default search is used.  The search runs in full
// on every call (each USBClient and each device listing); only the loaded
// libraries themselves are kept.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "link/usb_backend.hpp"

namespace orv::usb {

struct LibUSB1 {
  // nullptr when libusb cannot be loaded at all (the libusb side then lists
  // no devices).
  std::shared_ptr<Backend> backend;
  // The file name the library was loaded by, "" when none.
  std::string path;
};

// getLibUSB1: runs the library search and returns its result.
LibUSB1 getLibUSB1();

// The folder of the module file that holds the driver (the Python extension,
// or the executable it is linked into).
std::string moduleDir();
// Replaces moduleDir() for the library search; nullopt restores it.
void setModuleDirForTest(std::optional<std::string> dir);

}  // namespace orv::usb
