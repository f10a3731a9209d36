// pyorv._pyorv: the extension entry.
#include <pybind11/gil_safe_call_once.h>
#include <pybind11/stl.h>

#include <atomic>
#include <iostream>

#include "bindings/bindings.hpp"
#include "bindings/devices.hpp"
#include "bindings/twin.hpp"
#include "link/constants.hpp"
#include "link/fiber.hpp"
#include "link/interrupt.hpp"
#include "link/report.hpp"

namespace orv::py_bind {

namespace {
std::atomic<bool> g_alive{false};

// Host code never runs on a fiber's stack (the interpreter may check that its
// stack is the thread's): a report made by an awaitable's body is posted to
// the loop and made there.
bool deferredFromFiber(std::function<void()> report) {
  Fiber* f = Fiber::current();
  if (!f) return false;
  f->reactor()->post(std::move(report));
  return true;
}

void pyPrint(const std::string& line) {
  if (deferredFromFiber([line] { pyPrint(line); })) return;
  if (!g_alive.load()) {
    std::cout << line << std::endl;
    return;
  }
  py::gil_scoped_acquire gil;
  try {
    py::print(line, py::arg("flush") = true);
  } catch (py::error_already_set& e) {
    e.discard_as_unraisable("pyorv print");
  }
}

void pyWarning(ErrorId id, const std::string& msg) {
  if (deferredFromFiber([id, msg] { pyWarning(id, msg); })) return;
  if (!g_alive.load()) {
    std::cerr << "Warning " << errorInfo(id).code << ": " << msg << std::endl;
    return;
  }
  py::gil_scoped_acquire gil;
  try {
    errorClass(id)(msg);  // the host class reports itself when made
  } catch (py::error_already_set& e) {
    e.discard_as_unraisable("pyorv warning");
  }
}
// The "pyorv" logger, looked up once.
py::object& pyorvLogger() {
  static py::gil_safe_call_once_and_store<py::object> store;
  return store
      .call_once_and_store_result(
          [] { return py::module_::import("logging").attr("getLogger")("pyorv"); })
      .get_stored();
}

void pyLog(int level, const std::string& msg) {
  if (deferredFromFiber([level, msg] { pyLog(level, msg); })) return;
  if (!g_alive.load()) return;
  py::gil_scoped_acquire gil;
  try {
    pyorvLogger().attr("log")(level, "%s", msg);
  } catch (py::error_already_set& e) {
    e.discard_as_unraisable("pyorv log");
  }
}

// The core asks the logger nothing per message: it keeps the lowest level the
// logger lets through, refreshed whenever the host's logging levels change
// (every setLevel and logging.disable clear the manager's cache).
void refreshLogThreshold() {
  py::object logger = pyorvLogger();
  int threshold = 1000;
  for (int level : {10, 20, 30})
    if (logger.attr("isEnabledFor")(level).cast<bool>()) {
      threshold = level;
      break;
    }
  report::setLogThreshold(threshold);
}

void installLogging() {
  py::module_ logging = py::module_::import("logging");
  py::object logger = pyorvLogger();
  logger.attr("addHandler")(logging.attr("NullHandler")());
  py::object manager = logging.attr("Logger").attr("manager");
  py::object clear = manager.attr("_clear_cache");
  manager.attr("_clear_cache") = py::cpp_function([clear] {
    clear();
    refreshLogThreshold();
  });
  refreshLogThreshold();
}

// The hook of link/interrupt.hpp: a blocking call of the main thread woken by
// SIGINT runs the handlers here and ends with what they raise.
void runSignalHandlers() {
  if (!g_alive.load()) return;
  py::gil_scoped_acquire gil;
  if (PyErr_CheckSignals() != 0) throw py::error_already_set();
}
}  // namespace

bool pythonAlive() { return g_alive.load(); }
void setPythonAlive(bool alive) { g_alive.store(alive); }

void installHooks(py::module_& m) {
  report::setHooks({&pyPrint, &pyWarning, &pyLog});
  installLogging();
  setPythonAlive(true);
  // Signals reach the handlers of the main thread only: imported elsewhere,
  // blocking calls are not woken by them.
  auto threading = py::module_::import("threading");
  if (threading.attr("current_thread")().is(threading.attr("main_thread")()))
    interrupt::install(&runSignalHandlers);
  // At exit: close what is still open, end the signal watcher, then stop
  // entering the interpreter from other threads.
  m.def("_shutdown", [] {
    closeAllDevices();
    {
      py::gil_scoped_release r;
      interrupt::uninstall();
    }
    setPythonAlive(false);
    report::setHooks({});
  });
  py::module_::import("atexit").attr("register")(m.attr("_shutdown"));
}

void bindConstants(py::module_& m) {
#define ORV_CONST(name) m.attr(#name) = name
  ORV_CONST(CMD_STX);
  ORV_CONST(CMD_CR);
  ORV_CONST(CMD_LF);
  ORV_CONST(CMD_INDEX);
  ORV_CONST(CMD_STX_2);
  ORV_CONST(CMD_CR_2);
  ORV_CONST(CMD_LF_2);
  ORV_CONST(CMD_INDEX_2);
  ORV_CONST(USB_VID);
  ORV_CONST(USB_PID);
  ORV_CONST(USB_EP_IN);
  ORV_CONST(USB_EP_OUT);
  ORV_CONST(USB_PKT_SIZE);
  ORV_CONST(USB_61E_RECEIVE_BYTE);
  ORV_CONST(USB_61E_RECEIVE_TIMEOUT);
  ORV_CONST(USB_61E_RECEIVE_TOTAL_BYTES);
  ORV_CONST(USB_61E_PLUS_VID);
  ORV_CONST(USB_61E_PLUS_PID);
  ORV_CONST(TCP_CMD_PORT);
  ORV_CONST(TCP_DATA_PORT);
  ORV_CONST(TCP_PKT_LENGTH_MAX);
  ORV_CONST(TCP_DATA_LENGTH_MAX);
  ORV_CONST(UDP_SEND_PORT);
  ORV_CONST(UDP_RECV_PORT);
  ORV_CONST(UDP_PKT_LENGTH_MAX);
  ORV_CONST(NUM_RETRIES);
  ORV_CONST(NUM_BCST_RETRIES);
  ORV_CONST(QUEUE_SIZE_MAX);
  ORV_CONST(QUEUE_TIMEOUT);
  ORV_CONST(GET_DRIVER_INFO);
  ORV_CONST(MOTION);
  ORV_CONST(OPEN_CAN);
  ORV_CONST(START_CAN);
  ORV_CONST(START_UART_READING);
  ORV_CONST(START_AI_STREAMING);
  ORV_CONST(START_AI_STREAMING_VARIABLE);
  ORV_CONST(START_AO_STREAMING);
  ORV_CONST(START_MOTION_MONITORING);
  ORV_CONST(AHRS_START);
  ORV_CONST(GET_DEVICE_INFO);
  ORV_CONST(CHECK_MAC_AND_SET_IP);
  ORV_CONST(CHECK_MAC_AND_REBOOT);
#undef ORV_CONST
  // Times that the host sees as seconds: whole numbers stay ints.
  auto seconds = [](double s) -> py::object {
    if (s == static_cast<double>(static_cast<int64_t>(s))) return py::int_(static_cast<int64_t>(s));
    return py::float_(s);
  };
  m.attr("CONNECTION_TIMEOUT") = seconds(CONNECTION_TIMEOUT);
  m.attr("ECHO_DELAY") = seconds(ECHO_DELAY);
  m.attr("PACKET_TIMEOUT") = seconds(PACKET_TIMEOUT);
  m.attr("RETRY_TIMEOUT") = seconds(RETRY_TIMEOUT);
  m.attr("STREAMING_CMD_LIST") =
      py::cast(std::vector<int>(STREAMING_CMD_LIST.begin(), STREAMING_CMD_LIST.end()));
  m.attr("BROADCAST_CMD_LIST") =
      py::cast(std::vector<int>(BROADCAST_CMD_LIST.begin(), BROADCAST_CMD_LIST.end()));
}

}  // namespace orv::py_bind

PYBIND11_MODULE(_pyorv, m) {
  using namespace orv::py_bind;
  m.doc() = "ORV Python driver: the compiled core";
  m.attr("__version__") = ORV_VERSION;
  bindConstants(m);
  bindErrors(m);
  bindConvert(m);
  bindLink(m);
  bindReactor(m);
  bindRegistered(m);  // the modules and DeviceFinder
  bindModels(m);
  bindSim(m);
  installHooks(m);
  loadSelfWithoutConversion(m);
}
