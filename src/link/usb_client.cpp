// USBClient: the family's bulk endpoints through whichever backend holds the
// device, and the registry of backends besides libusb.
#include <algorithm>
#include <cerrno>
#include <climits>
#include <mutex>

#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/transport.hpp"
#include "link/usb_libusb.hpp"

namespace orv {
namespace usb {
namespace {

std::mutex g_backends_m;
std::vector<std::shared_ptr<Backend>> g_backends;

}  // namespace

void addBackend(std::shared_ptr<Backend> backend) {
  if (!backend) return;
  std::lock_guard lk(g_backends_m);
  g_backends.push_back(std::move(backend));
}

void removeBackend(const Backend* backend) {
  std::lock_guard lk(g_backends_m);
  std::erase_if(g_backends, [&](const auto& b) { return b.get() == backend; });
}

std::vector<std::shared_ptr<Backend>> extraBackends() {
  std::lock_guard lk(g_backends_m);
  return g_backends;
}

}  // namespace usb

namespace {

// libusb first (after its library search), then the registered backends.
std::vector<std::shared_ptr<usb::Backend>> allBackends() {
  std::vector<std::shared_ptr<usb::Backend>> out;
  if (auto lib = usb::getLibUSB1(); lib.backend) out.push_back(std::move(lib.backend));
  for (auto& b : usb::extraBackends()) out.push_back(std::move(b));
  return out;
}

bool isFamily(const usb::Candidate& c) {
  return c.idVendor() == USB_VID && c.idProduct() == USB_PID;
}

}  // namespace

USBClient::USBClient(const std::string& serial_num) {
  for (const auto& backend : allBackends()) {
    for (const auto& candidate : backend->enumerate()) {
      if (!isFamily(*candidate)) continue;
      if (serial_num != "default" && candidate->serialNumber() != serial_num) continue;
      try {
        handle_ = candidate->open();
#ifdef __linux__
        if (handle_->kernelDriverActive(0)) handle_->detachKernelDriver(0);
#endif
      } catch (const usb::Failure& f) {
        // Found but not ours to use (no permission, busy): the system's reason
        // goes with the connection error.
        raiseOs(ErrorId::USBConnectionError, f.err());
      }
      return;
    }
  }
  raiseOs(ErrorId::USBConnectionError, ENODEV);
}

USBClient::~USBClient() = default;

std::string USBClient::takeSerialNumber() { return handle_->serialNumber(); }

std::string USBClient::takeProductName() { return handle_->productName(); }

Bytes USBClient::recvPacket(size_t length) {
  Bytes buf(std::min<size_t>(length, INT_MAX));
  const int n = handle_->bulkRead(static_cast<uint8_t>(USB_EP_IN), buf.data(),
                                  static_cast<int>(buf.size()), 1);
  buf.resize(static_cast<size_t>(std::clamp(n, 0, static_cast<int>(buf.size()))));
  return buf;
}

void USBClient::sendPacket(std::span<const uint8_t> packet, SteadyTime deadline) {
  // One transfer, bounded by the backend's own timeout (libusb: 1 s) rather
  // than by the deadline; a transfer that timed out moved nothing, so the
  // link stays framed.
  (void)deadline;
  constexpr size_t kPkt = USB_PKT_SIZE;
  uint8_t padded[kPkt] = {};
  const bool whole = packet.size() >= kPkt;
  if (!whole) std::copy(packet.begin(), packet.end(), padded);
  try {
    handle_->bulkWrite(static_cast<uint8_t>(USB_EP_OUT), whole ? packet.data() : padded,
                       static_cast<int>(whole ? packet.size() : kPkt));
  } catch (const usb::Timeout&) {
    throw SendTimeout();
  }
}

std::vector<std::pair<std::string, std::string>> USBClient::getAllUSBDevices() {
  std::vector<std::pair<std::string, std::string>> out;
  for (const auto& backend : allBackends())
    for (const auto& candidate : backend->enumerate())
      if (isFamily(*candidate))
        out.emplace_back(candidate->serialNumber(), candidate->productName());
  return out;
}

}  // namespace orv
