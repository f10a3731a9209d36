// The seam between USBClient and whatever moves USB transfers.
//
// The real backend is libusb-1.0, loaded at run time with the driver's
// two-step library search.  The simulator registers a virtual backend whose
// devices are found and opened by the same USBClient code.
#pragma once

#include <cerrno>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace orv::usb {

// A bulk read that saw nothing within its timeout.  An idle link raises this
// once per millisecond; the receive thread ignores it.
class Timeout : public std::runtime_error {
 public:
  Timeout() : std::runtime_error("USB read timed out") {}
};
// Any other USB failure (device gone, pipe error, ...), with the errno
// closest to it.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& what, int err = EIO) : std::runtime_error(what), err_(err) {}
  int err() const { return err_; }

 private:
  int err_;
};

// An opened device.
class Handle {
 public:
  virtual ~Handle() = default;
  // One bulk IN transfer of at most `length` bytes into buf; returns the
  // count.  Throws Timeout when nothing arrived within timeout_ms.
  virtual int bulkRead(uint8_t endpoint, uint8_t* buf, int length, unsigned timeout_ms) = 0;
  // One bulk OUT transfer of exactly `length` bytes.
  virtual void bulkWrite(uint8_t endpoint, const uint8_t* buf, int length) = 0;
  virtual std::string serialNumber() = 0;
  virtual std::string productName() = 0;
  // Kernel driver query/detach (Linux); a backend without kernel drivers
  // answers false.
  virtual bool kernelDriverActive(int interface_number) = 0;
  virtual void detachKernelDriver(int interface_number) = 0;
};

// A device seen during enumeration.
class Candidate {
 public:
  virtual ~Candidate() = default;
  virtual uint16_t idVendor() const = 0;
  virtual uint16_t idProduct() const = 0;
  // String descriptors; reading them may need a short open.
  virtual std::string serialNumber() = 0;
  virtual std::string productName() = 0;
  virtual std::unique_ptr<Handle> open() = 0;
};

class Backend {
 public:
  virtual ~Backend() = default;
  virtual const char* name() const = 0;
  virtual std::vector<std::unique_ptr<Candidate>> enumerate() = 0;
};

// Backends besides libusb (the simulator's virtual devices).  Enumeration
// lists libusb's devices first, then these, in registration order.
void addBackend(std::shared_ptr<Backend> backend);
void removeBackend(const Backend* backend);
std::vector<std::shared_ptr<Backend>> extraBackends();

}  // namespace orv::usb
