// USBClient over a fake backend, and the libusb library search.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "link/constants.hpp"
#include "link/error.hpp"
#include "link/framing.hpp"
#include "link/report.hpp"
#include "link/transport.hpp"
#include "link/usb_backend.hpp"
#include "link/usb_libusb.hpp"
#include "test_util.hpp"

namespace orv {
namespace {

namespace fs = std::filesystem;

// ---------------------------------------------------------------------------
// Warning capture

std::mutex g_warn_m;
std::vector<ErrorId> g_warnings;

void captureWarning(ErrorId id, const std::string&) {
  std::lock_guard lk(g_warn_m);
  g_warnings.push_back(id);
}

std::vector<ErrorId> takeWarnings() {
  std::lock_guard lk(g_warn_m);
  return std::exchange(g_warnings, {});
}

class CaptureWarnings {
 public:
  CaptureWarnings() {
    report::Hooks h;
    h.warning = captureWarning;
    report::setHooks(h);
    takeWarnings();
  }
  ~CaptureWarnings() { report::setHooks(report::Hooks{}); }
};

// ---------------------------------------------------------------------------
// Fake devices

struct Transfer {
  uint8_t endpoint;
  Bytes bytes;
};

struct FakeDevice {
  uint16_t vid = USB_VID;
  uint16_t pid = USB_PID;
  std::string serial;
  std::string product;
  bool kernel_driver = false;
  // What the test looks at.
  std::mutex m;
  std::deque<Bytes> to_host;
  std::vector<Transfer> writes;
  std::vector<std::pair<int, unsigned>> reads;  // (length, timeout_ms)
  int opens = 0;
  int detaches = 0;
};

class FakeHandle : public usb::Handle {
 public:
  explicit FakeHandle(std::shared_ptr<FakeDevice> d) : d_(std::move(d)) {}
  int bulkRead(uint8_t endpoint, uint8_t* buf, int length, unsigned timeout_ms) override {
    std::lock_guard lk(d_->m);
    EXPECT_EQ(endpoint, USB_EP_IN);
    d_->reads.emplace_back(length, timeout_ms);
    if (d_->to_host.empty()) throw usb::Timeout();
    Bytes next = std::move(d_->to_host.front());
    d_->to_host.pop_front();
    int n = std::min<int>(length, static_cast<int>(next.size()));
    std::copy(next.begin(), next.begin() + n, buf);
    return n;
  }
  void bulkWrite(uint8_t endpoint, const uint8_t* buf, int length) override {
    std::lock_guard lk(d_->m);
    d_->writes.push_back({endpoint, Bytes(buf, buf + length)});
  }
  std::string serialNumber() override { return d_->serial; }
  std::string productName() override { return d_->product; }
  bool kernelDriverActive(int interface_number) override {
    EXPECT_EQ(interface_number, 0);
    return d_->kernel_driver;
  }
  void detachKernelDriver(int interface_number) override {
    EXPECT_EQ(interface_number, 0);
    d_->kernel_driver = false;
    ++d_->detaches;
  }

 private:
  std::shared_ptr<FakeDevice> d_;
};

class FakeCandidate : public usb::Candidate {
 public:
  explicit FakeCandidate(std::shared_ptr<FakeDevice> d) : d_(std::move(d)) {}
  uint16_t idVendor() const override { return d_->vid; }
  uint16_t idProduct() const override { return d_->pid; }
  std::string serialNumber() override { return d_->serial; }
  std::string productName() override { return d_->product; }
  std::unique_ptr<usb::Handle> open() override {
    ++d_->opens;
    return std::make_unique<FakeHandle>(d_);
  }

 private:
  std::shared_ptr<FakeDevice> d_;
};

class FakeBackend : public usb::Backend {
 public:
  const char* name() const override { return "fake"; }
  std::vector<std::unique_ptr<usb::Candidate>> enumerate() override {
    std::vector<std::unique_ptr<usb::Candidate>> out;
    for (auto& d : devices) out.push_back(std::make_unique<FakeCandidate>(d));
    return out;
  }
  std::shared_ptr<FakeDevice> add(std::string serial, std::string product, uint16_t vid = USB_VID) {
    auto d = std::make_shared<FakeDevice>();
    d->serial = std::move(serial);
    d->product = std::move(product);
    d->vid = vid;
    devices.push_back(d);
    return d;
  }
  std::vector<std::shared_ptr<FakeDevice>> devices;
};

class UsbClientTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!USBClient::getAllUSBDevices().empty())
      GTEST_SKIP() << "a real device of the family is attached";
    backend_ = std::make_shared<FakeBackend>();
    usb::addBackend(backend_);
  }
  void TearDown() override {
    if (backend_) usb::removeBackend(backend_.get());
  }
  CaptureWarnings quiet_;  // the library search may warn on each open
  std::shared_ptr<FakeBackend> backend_;
};

int usbErrorCode(const std::string& serial) {
  return testutil::errorCode([&] { USBClient client(serial); });
}

TEST_F(UsbClientTest, ListsAndOpensTheFamilyInBackendOrder) {
  EXPECT_TRUE(USBClient::getAllUSBDevices().empty());
  EXPECT_EQ(usbErrorCode("default"), errUSBConnection);
  backend_->add("FOREIGN", "Other", 0x1234);
  auto first = backend_->add("SN-A", "Trellis");
  auto second = backend_->add("SN-B", "Kestrel");
  auto later = std::make_shared<FakeBackend>();
  later->add("SN-L", "Later");
  usb::addBackend(later);
  using Pairs = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(USBClient::getAllUSBDevices(),
            (Pairs{{"SN-A", "Trellis"}, {"SN-B", "Kestrel"}, {"SN-L", "Later"}}));
  EXPECT_EQ(first->opens, 0);  // listing opens nothing
  {
    USBClient client("default");
    EXPECT_EQ(client.takeSerialNumber(), "SN-A");
    EXPECT_EQ(client.takeProductName(), "Trellis");
  }
  EXPECT_EQ(USBClient("SN-B").takeSerialNumber(), "SN-B");
  EXPECT_EQ(USBClient("SN-L").takeSerialNumber(), "SN-L");
  EXPECT_EQ((std::pair{first->opens, second->opens}), (std::pair{1, 1}));
  EXPECT_EQ(usbErrorCode("FOREIGN"), errUSBConnection);  // right serial, wrong family
  EXPECT_EQ(usbErrorCode("SN-X"), -8001);
  usb::removeBackend(later.get());
}

TEST_F(UsbClientTest, OpeningDetachesAnActiveKernelDriver) {
  auto dev = backend_->add("SN-A", "Trellis");
  dev->kernel_driver = true;
  USBClient client("SN-A");
#ifdef __linux__
  EXPECT_EQ(dev->detaches, 1);
  EXPECT_FALSE(dev->kernel_driver);
#else
  EXPECT_EQ(dev->detaches, 0);
#endif
}

TEST_F(UsbClientTest, WritesOneTransferPaddedToSixtyFour) {
  auto dev = backend_->add("SN-A", "Trellis");
  USBClient client("default");
  for (auto [length, written] : std::vector<std::pair<size_t, size_t>>{
           {7, 64}, {0, 64}, {63, 64}, {64, 64}, {70, 70}, {300, 300}}) {
    SCOPED_TRACE("length " + std::to_string(length));
    Bytes packet(length);
    for (size_t i = 0; i < packet.size(); ++i) packet[i] = static_cast<uint8_t>(0xA0 + i);
    client.sendPacket(packet);
    ASSERT_EQ(dev->writes.size(), 1u);
    const Transfer t = std::exchange(dev->writes, {})[0];
    EXPECT_EQ(t.endpoint, USB_EP_OUT);
    ASSERT_EQ(t.bytes.size(), written);
    EXPECT_TRUE(std::equal(packet.begin(), packet.end(), t.bytes.begin()));
    EXPECT_TRUE(std::all_of(t.bytes.begin() + packet.size(), t.bytes.end(),
                            [](uint8_t b) { return b == 0; }));
  }
}

TEST_F(UsbClientTest, ReadsOneTransferWithAOneMillisecondTimeoutAndSplitsIt) {
  auto dev = backend_->add("SN-A", "Trellis");
  USBClient client("default");
  EXPECT_THROW(client.recvAndSplitPacket(USB_PKT_SIZE), usb::Timeout);  // an idle link
  Bytes transfer = preparePacket(GET_DRIVER_INFO, Bytes{0});
  transfer.resize(USB_PKT_SIZE, 0);
  dev->to_host.push_back(transfer);
  EXPECT_EQ(client.recvAndSplitPacket(USB_PKT_SIZE),
            (std::vector<RawPacket>{{GET_DRIVER_INFO, Bytes{0}}}));
  dev->to_host.push_back(Bytes{1, 2, 3});
  EXPECT_EQ(client.recvPacket(USB_PKT_SIZE), (Bytes{1, 2, 3}));
  ASSERT_EQ(dev->reads.size(), 3u);
  for (auto [length, timeout] : dev->reads) {
    EXPECT_EQ(length, USB_PKT_SIZE);
    EXPECT_EQ(timeout, 1u);
  }
}

// ---------------------------------------------------------------------------
// Library search

// The file the system's libusb-1.0 is loaded from, "" when there is none.
std::string systemLibusb() {
  void* dl = dlopen("libusb-1.0.so.0", RTLD_NOW | RTLD_LOCAL);
  if (dl == nullptr) return "";
  Dl_info info{};
  void* sym = dlsym(dl, "libusb_init");
  std::string path = sym && dladdr(sym, &info) && info.dli_fname ? info.dli_fname : "";
  dlclose(dl);
  return path;
}

struct SearchCase {
  const char* name;
  std::vector<std::string> links;  // to the real library, under the temporary folder
  std::string expected;            // relative to the module folder, or a bare name
  int warnings;
  bool junk = false;  // a file that is no library in the module folder
};

class LibrarySearch : public ::testing::TestWithParam<SearchCase> {
 protected:
  void SetUp() override {
    real_ = systemLibusb();
    if (real_.empty()) GTEST_SKIP() << "libusb-1.0 is not installed";
    char tmpl[] = "/tmp/orv_usb_XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    root_ = tmpl;
    module_ = root_ + "/pkg";
    fs::create_directories(module_);
    fs::create_directories(root_ + "/ext_lib");
    usb::setModuleDirForTest(module_);
  }
  void TearDown() override {
    usb::setModuleDirForTest(std::nullopt);
    if (!root_.empty()) fs::remove_all(root_);
  }
  std::string real_, root_, module_;
  CaptureWarnings capture_;
};

TEST_P(LibrarySearch, FollowsTheTwoStepOrder) {
  for (const std::string& link : GetParam().links) fs::create_symlink(real_, root_ + link);
  if (GetParam().junk) std::ofstream(module_ + "/libusb-1.0.so") << "not a shared object";
  const std::string& expected = GetParam().expected;
  const std::string want = expected.find('/') == 0 ? module_ + expected : expected;
  // Each search decides afresh and warns afresh.
  for (int round = 0; round < 2; ++round) {
    usb::LibUSB1 found = usb::getLibUSB1();
    EXPECT_EQ(found.path, want);
    EXPECT_NE(found.backend, nullptr);
    auto warnings = takeWarnings();
    ASSERT_EQ(static_cast<int>(warnings.size()), GetParam().warnings);
    for (ErrorId id : warnings) EXPECT_EQ(id, ErrorId::ExtLibNotFoundWarning);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, LibrarySearch,
    ::testing::Values(
        SearchCase{
            "ModuleDir", {"/pkg/libusb-1.0.so", "/ext_lib/libusb-1.0.so"}, "/libusb-1.0.so", 0},
        SearchCase{"ModuleDirSo0", {"/pkg/libusb-1.0.so.0"}, "/libusb-1.0.so.0", 0},
        SearchCase{"ExtLib", {"/ext_lib/libusb-1.0.so"}, "/../ext_lib/libusb-1.0.so", 0},
        SearchCase{"Nowhere", {}, "libusb-1.0.so.0", 1},
        SearchCase{"NotALibrary", {}, "libusb-1.0.so.0", 1, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(UsbClientTest, EveryOpenAndListingRunsTheSearchOnce) {
  char tmpl[] = "/tmp/orv_usb_XXXXXX";
  ASSERT_NE(mkdtemp(tmpl), nullptr);
  usb::setModuleDirForTest(std::string(tmpl));  // no libusb there
  backend_->add("SN-A", "Trellis");
  takeWarnings();
  { USBClient client("default"); }
  EXPECT_EQ(takeWarnings(), std::vector<ErrorId>{ErrorId::ExtLibNotFoundWarning});
  EXPECT_EQ(usbErrorCode("SN-X"), errUSBConnection);
  EXPECT_EQ(takeWarnings(), std::vector<ErrorId>{ErrorId::ExtLibNotFoundWarning});
  EXPECT_EQ(USBClient::getAllUSBDevices().size(), 1u);
  EXPECT_EQ(takeWarnings(), std::vector<ErrorId>{ErrorId::ExtLibNotFoundWarning});
  usb::setModuleDirForTest(std::nullopt);
  fs::remove_all(tmpl);
}

}  // namespace
}  // namespace orv
