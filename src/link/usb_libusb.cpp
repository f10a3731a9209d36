// libusb-1.0 through dlopen: no link-time dependency and no libusb headers.
#include "link/usb_libusb.hpp"

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "link/report.hpp"

namespace orv::usb {
namespace {

// The libusb ABI this backend uses.
struct libusb_context;
struct libusb_device;
struct libusb_device_handle;

struct DeviceDescriptor {
  uint8_t bLength;
  uint8_t bDescriptorType;
  uint16_t bcdUSB;
  uint8_t bDeviceClass;
  uint8_t bDeviceSubClass;
  uint8_t bDeviceProtocol;
  uint8_t bMaxPacketSize0;
  uint16_t idVendor;
  uint16_t idProduct;
  uint16_t bcdDevice;
  uint8_t iManufacturer;
  uint8_t iProduct;
  uint8_t iSerialNumber;
  uint8_t bNumConfigurations;
};
static_assert(sizeof(DeviceDescriptor) == 18);

constexpr int kErrNotFound = -5;
constexpr int kErrTimeout = -7;
constexpr int kErrNotSupported = -12;
constexpr unsigned kWriteTimeoutMs = 1000;  // the default of a bulk write
constexpr int kInterface = 0;

// One loaded copy of the library with its own context.
struct Lib {
  void* dl = nullptr;
  libusb_context* ctx = nullptr;
  int (*init)(libusb_context**) = nullptr;
  ssize_t (*get_device_list)(libusb_context*, libusb_device***) = nullptr;
  void (*free_device_list)(libusb_device**, int) = nullptr;
  libusb_device* (*ref_device)(libusb_device*) = nullptr;
  void (*unref_device)(libusb_device*) = nullptr;
  int (*get_device_descriptor)(libusb_device*, DeviceDescriptor*) = nullptr;
  int (*open)(libusb_device*, libusb_device_handle**) = nullptr;
  void (*close)(libusb_device_handle*) = nullptr;
  int (*get_string_descriptor_ascii)(libusb_device_handle*, uint8_t, unsigned char*, int) = nullptr;
  int (*kernel_driver_active)(libusb_device_handle*, int) = nullptr;
  int (*detach_kernel_driver)(libusb_device_handle*, int) = nullptr;
  int (*claim_interface)(libusb_device_handle*, int) = nullptr;
  int (*release_interface)(libusb_device_handle*, int) = nullptr;
  int (*bulk_transfer)(libusb_device_handle*, unsigned char, unsigned char*, int, int*,
                       unsigned) = nullptr;
  const char* (*error_name)(int) = nullptr;

  std::string errorText(int code) const {
    const char* name = error_name ? error_name(code) : nullptr;
    return name ? name : "libusb error " + std::to_string(code);
  }
};

// The errno closest to a libusb error code (LIBUSB_ERROR_IO, _INVALID_PARAM,
// _ACCESS, _NO_DEVICE, _NOT_FOUND, _BUSY, _TIMEOUT, _PIPE, _NO_MEM,
// _NOT_SUPPORTED); EIO for the others.
int errnoOf(int code) {
  static constexpr std::pair<int, int> kErrnos[] = {
      {-1, EIO},   {-2, EINVAL},    {-3, EACCES}, {-4, ENODEV},  {-5, ENOENT},
      {-6, EBUSY}, {-7, ETIMEDOUT}, {-9, EPIPE},  {-11, ENOMEM}, {-12, ENOSYS}};
  for (const auto& [libusb, err] : kErrnos)
    if (libusb == code) return err;
  return EIO;
}

template <typename F>
bool bind(void* dl, const char* name, F*& fn) {
  fn = reinterpret_cast<F*>(dlsym(dl, name));
  return fn != nullptr;
}

// Loads and initialises the library at `path`; nullptr when that fails.
std::shared_ptr<Lib> load(const std::string& path) {
  void* dl = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (dl == nullptr) return nullptr;
  auto lib = std::make_shared<Lib>();
  lib->dl = dl;
  bool ok = bind(dl, "libusb_init", lib->init) &&
            bind(dl, "libusb_get_device_list", lib->get_device_list) &&
            bind(dl, "libusb_free_device_list", lib->free_device_list) &&
            bind(dl, "libusb_ref_device", lib->ref_device) &&
            bind(dl, "libusb_unref_device", lib->unref_device) &&
            bind(dl, "libusb_get_device_descriptor", lib->get_device_descriptor) &&
            bind(dl, "libusb_open", lib->open) && bind(dl, "libusb_close", lib->close) &&
            bind(dl, "libusb_get_string_descriptor_ascii", lib->get_string_descriptor_ascii) &&
            bind(dl, "libusb_kernel_driver_active", lib->kernel_driver_active) &&
            bind(dl, "libusb_detach_kernel_driver", lib->detach_kernel_driver) &&
            bind(dl, "libusb_claim_interface", lib->claim_interface) &&
            bind(dl, "libusb_release_interface", lib->release_interface) &&
            bind(dl, "libusb_bulk_transfer", lib->bulk_transfer);
  bind(dl, "libusb_error_name", lib->error_name);  // optional, for messages
  if (!ok || lib->init(&lib->ctx) != 0) {
    dlclose(dl);
    return nullptr;
  }
  return lib;
}

// Libraries that loaded, by the name they were loaded by.  They stay loaded
// for the life of the process: handles of opened devices may be in use on
// receive threads until the very end.
std::shared_ptr<Lib> loadCached(const std::string& path) {
  static std::mutex m;
  static auto* loaded = new std::map<std::string, std::shared_ptr<Lib>>;
  // A file that is gone no longer counts, even if its library is still loaded.
  if (path.find('/') != std::string::npos && access(path.c_str(), R_OK) != 0) return nullptr;
  std::lock_guard lk(m);
  if (auto it = loaded->find(path); it != loaded->end()) return it->second;
  auto lib = load(path);
  if (lib) (*loaded)[path] = lib;
  return lib;
}

std::string readString(const Lib& lib, libusb_device_handle* h, uint8_t index) {
  if (index == 0) return "";
  unsigned char buf[256];
  int n = lib.get_string_descriptor_ascii(h, index, buf, sizeof buf);
  if (n < 0) throw Failure("reading a USB string descriptor failed: " + lib.errorText(n));
  return std::string(reinterpret_cast<const char*>(buf), static_cast<size_t>(n));
}

class LibusbHandle : public Handle {
 public:
  LibusbHandle(std::shared_ptr<Lib> lib, libusb_device_handle* h, const DeviceDescriptor& desc)
      : lib_(std::move(lib)), h_(h), desc_(desc) {}
  ~LibusbHandle() override {
    if (claimed_) lib_->release_interface(h_, kInterface);
    lib_->close(h_);
  }

  int bulkRead(uint8_t endpoint, uint8_t* buf, int length, unsigned timeout_ms) override {
    int got = 0;
    int rc = lib_->bulk_transfer(h_, endpoint, buf, length, &got, timeout_ms);
    if (rc == kErrTimeout && got == 0) throw Timeout();
    if (rc != 0 && rc != kErrTimeout) throw Failure("USB read failed: " + lib_->errorText(rc));
    return got;
  }

  void bulkWrite(uint8_t endpoint, const uint8_t* buf, int length) override {
    int sent = 0;
    // libusb takes a non-const buffer but does not write to an OUT buffer.
    int rc = lib_->bulk_transfer(h_, endpoint, const_cast<uint8_t*>(buf), length, &sent,
                                 kWriteTimeoutMs);
    if (rc == kErrTimeout) throw Timeout();
    if (rc != 0) throw Failure("USB write failed: " + lib_->errorText(rc));
  }

  // Interface 0 carries the endpoints; it is claimed once, at open.
  void claim() {
    int rc = lib_->claim_interface(h_, kInterface);
    if (rc != 0) throw Failure("claiming the USB interface failed: " + lib_->errorText(rc));
    claimed_ = true;
  }

  std::string serialNumber() override { return readString(*lib_, h_, desc_.iSerialNumber); }
  std::string productName() override { return readString(*lib_, h_, desc_.iProduct); }

  bool kernelDriverActive(int interface_number) override {
    int rc = lib_->kernel_driver_active(h_, interface_number);
    if (rc == 0 || rc == 1) return rc == 1;
    if (rc == kErrNotSupported) return false;
    throw Failure("USB kernel driver query failed: " + lib_->errorText(rc));
  }

  void detachKernelDriver(int interface_number) override {
    int rc = lib_->detach_kernel_driver(h_, interface_number);
    if (rc != 0 && rc != kErrNotFound)
      throw Failure("USB kernel driver detach failed: " + lib_->errorText(rc));
  }

 private:
  std::shared_ptr<Lib> lib_;
  libusb_device_handle* h_;
  DeviceDescriptor desc_;
  bool claimed_ = false;
};

class LibusbCandidate : public Candidate {
 public:
  LibusbCandidate(std::shared_ptr<Lib> lib, libusb_device* dev, const DeviceDescriptor& desc)
      : lib_(std::move(lib)), dev_(lib_->ref_device(dev)), desc_(desc) {}
  ~LibusbCandidate() override { lib_->unref_device(dev_); }

  uint16_t idVendor() const override { return desc_.idVendor; }
  uint16_t idProduct() const override { return desc_.idProduct; }

  // A device that cannot be opened for its strings (no permission, gone)
  // reads as having none.
  std::string serialNumber() override {
    if (!serial_) serial_ = readBriefly(desc_.iSerialNumber);
    return *serial_;
  }
  std::string productName() override {
    if (!product_) product_ = readBriefly(desc_.iProduct);
    return *product_;
  }

  std::unique_ptr<Handle> open() override {
    libusb_device_handle* h = nullptr;
    int rc = lib_->open(dev_, &h);
    if (rc != 0)
      throw Failure("opening the USB device failed: " + lib_->errorText(rc), errnoOf(rc));
    auto handle = std::make_unique<LibusbHandle>(lib_, h, desc_);
    // The interface cannot be claimed while a kernel driver holds it.
#ifdef __linux__
    if (handle->kernelDriverActive(kInterface)) handle->detachKernelDriver(kInterface);
#endif
    handle->claim();
    return handle;
  }

 private:
  std::string readBriefly(uint8_t index) {
    if (index == 0) return "";
    libusb_device_handle* h = nullptr;
    if (lib_->open(dev_, &h) != 0) return "";
    std::string out;
    try {
      out = readString(*lib_, h, index);
    } catch (const Failure&) {
    }
    lib_->close(h);
    return out;
  }

  std::shared_ptr<Lib> lib_;
  libusb_device* dev_;
  DeviceDescriptor desc_;
  std::optional<std::string> serial_, product_;
};

class LibusbBackend : public Backend {
 public:
  explicit LibusbBackend(std::shared_ptr<Lib> lib) : lib_(std::move(lib)) {}
  const char* name() const override { return "libusb"; }

  std::vector<std::unique_ptr<Candidate>> enumerate() override {
    std::vector<std::unique_ptr<Candidate>> out;
    libusb_device** list = nullptr;
    ssize_t n = lib_->get_device_list(lib_->ctx, &list);
    if (n < 0 || list == nullptr) return out;
    for (ssize_t i = 0; i < n; ++i) {
      DeviceDescriptor desc{};
      if (lib_->get_device_descriptor(list[i], &desc) != 0) continue;
      out.push_back(std::make_unique<LibusbCandidate>(lib_, list[i], desc));
    }
    lib_->free_device_list(list, 1);
    return out;
  }

 private:
  std::shared_ptr<Lib> lib_;
};

std::mutex g_dir_m;
std::optional<std::string> g_dir_override;

}  // namespace

std::string moduleDir() {
  {
    std::lock_guard lk(g_dir_m);
    if (g_dir_override) return *g_dir_override;
  }
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&moduleDir), &info) == 0 || info.dli_fname == nullptr)
    return ".";
  std::string file(info.dli_fname);
  const auto slash = file.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : file.substr(0, slash);
}

void setModuleDirForTest(std::optional<std::string> dir) {
  std::lock_guard lk(g_dir_m);
  g_dir_override = std::move(dir);
}

LibUSB1 getLibUSB1() {
  // The library's Windows name maps to the two names it has here.
  const char* const kNames[] = {"libusb-1.0.so", "libusb-1.0.so.0"};
  auto tryFolder = [&](const std::string& folder) -> LibUSB1 {
    for (const char* name : kNames) {
      std::string path = folder + "/" + name;
      if (auto lib = loadCached(path)) return {std::make_shared<LibusbBackend>(lib), path};
    }
    return {};
  };
  const std::string dir = moduleDir();
  if (auto found = tryFolder(dir); found.backend) return found;
  if (auto found = tryFolder(dir + "/../ext_lib"); found.backend) return found;
  report::warning(ErrorId::ExtLibNotFoundWarning);
  for (const char* name : {"libusb-1.0.so.0", "libusb-1.0.so"})
    if (auto lib = loadCached(name)) return {std::make_shared<LibusbBackend>(lib), name};
  return {};
}

}  // namespace orv::usb
