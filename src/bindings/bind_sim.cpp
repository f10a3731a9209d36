// pyorv._pyorv._sim: the device simulator for tests and demos.
//
// Every call that can wait (stop, the waits, stream bursts) runs without the
// GIL.  Handlers written in Python run on the simulator's threads and take
// the GIL for their call only; a Context is valid during that call only.
#include <pybind11/functional.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "bindings/bindings.hpp"
#include "bindings/value_caster.hpp"
#include "link/constants.hpp"
#include "sim/simulator.hpp"

namespace py = pybind11;

namespace {

using namespace orv::sim;
using orv::Bytes;
using release_gil = py::call_guard<py::gil_scoped_release>;

py::bytes toPy(const Bytes& b) {
  return py::bytes(reinterpret_cast<const char*>(b.data()), b.size());
}

Bytes toBytes(const orv::Value& v) { return v.toBytes(); }

std::chrono::milliseconds toMs(double seconds) {
  // Saturated at a year: an infinite wait is as good as that, and the cast
  // of an infinite or NaN value is undefined.
  constexpr double kYearMs = 365.0 * 24 * 3600 * 1000;
  const double ms = seconds * 1000.0;
  if (!(ms > 0)) return std::chrono::milliseconds(0);
  return std::chrono::milliseconds(static_cast<int64_t>(std::min(ms, kYearMs)));
}

Link toLink(const py::object& o) {
  if (py::isinstance<py::str>(o)) {
    const auto l = parseLink(o.cast<std::string>());
    if (!l) throw py::value_error("link must be 'eth', 'wifi' or 'usb'");
    return *l;
  }
  return o.cast<Link>();
}

// Simulators made from Python, stopped at interpreter exit.
std::mutex g_sims_m;
std::vector<std::weak_ptr<Simulator>> g_sims;

std::shared_ptr<Simulator> makeSimulator() {
  std::shared_ptr<Simulator> s(new Simulator, [](Simulator* p) {
    if (Py_IsInitialized() && PyGILState_Check()) {
      py::gil_scoped_release r;
      delete p;
    } else {
      delete p;
    }
  });
  std::lock_guard lk(g_sims_m);
  std::erase_if(g_sims, [](const auto& w) { return w.expired(); });
  g_sims.push_back(s);
  return s;
}

void stopAll() {
  std::vector<std::shared_ptr<Simulator>> live;
  {
    std::lock_guard lk(g_sims_m);
    for (const auto& w : g_sims) {
      if (auto s = w.lock()) live.push_back(std::move(s));
    }
  }
  py::gil_scoped_release r;
  for (const auto& s : live) s->stop();
}

// A Python callable kept by C++: dropped with the GIL, or leaked once the
// interpreter is gone.
std::shared_ptr<py::object> keep(py::object fn) {
  return std::shared_ptr<py::object>(new py::object(std::move(fn)), [](py::object* o) {
    if (Py_IsInitialized() && orv::py_bind::pythonAlive()) {
      py::gil_scoped_acquire g;
      delete o;
    } else {
      o->release();
      delete o;
    }
  });
}

Handler pyHandler(const py::object& fn) {
  if (fn.is_none()) return Handler{};
  auto held = keep(fn);
  return [held](Context& ctx, const Request& req) {
    if (!orv::py_bind::pythonAlive()) return;
    py::gil_scoped_acquire g;
    try {
      (*held)(py::cast(&ctx, py::return_value_policy::reference),
              py::cast(&req, py::return_value_policy::reference));
    } catch (py::error_already_set& e) {
      throw std::runtime_error(e.what());
    }
  };
}

double seconds(std::chrono::steady_clock::time_point t) {
  return std::chrono::duration<double>(t.time_since_epoch()).count();
}

std::shared_ptr<SimDevice> share(SimDevice& d) { return d.shared_from_this(); }

DeviceConfig makeConfig(const std::string& model, const py::object& link, const std::string& serial,
                        const std::string& host, int cmd_port, int data_port,
                        const std::string& driver_info, const std::string& mac,
                        const std::string& ip_addr, const std::string& subnet_mask,
                        const std::string& gateway, const std::string& firmware) {
  DeviceConfig c;
  c.model = model;
  c.link = link.is_none() ? linkOfModel(model) : toLink(link);
  c.serial = serial;
  c.host = host;
  c.cmd_port = cmd_port;
  c.data_port = data_port;
  c.driver_info = driver_info;
  c.mac = mac;
  c.ip_addr = ip_addr;
  c.subnet_mask = subnet_mask;
  c.gateway = gateway;
  c.firmware = firmware;
  return c;
}

std::string configRepr(const DeviceConfig& c) {
  std::string s = "DeviceConfig(model='" + c.model + "', link='" + linkName(c.link) +
                  "', serial='" + c.serial + "', host='" + c.host +
                  "', cmd_port=" + std::to_string(c.cmd_port);
  if (c.link == Link::Wifi) s += ", data_port=" + std::to_string(c.data_port);
  return s + ", mac='" + c.mac + "')";
}

template <typename Field, typename T>
void atomicProperty(py::class_<Faults>& cls, const char* name, Field field, const char* doc) {
  cls.def_property(
      name, [field](const Faults& f) { return static_cast<T>((f.*field).load()); },
      [field](Faults& f, T v) { (f.*field).store(v); }, doc);
}

}  // namespace

void bindSim(pybind11::module_& parent) {
  py::module_ m = parent.def_submodule("_sim", "Simulated devices on loopback and virtual USB");

  py::enum_<Link>(m, "Link", "How a simulated device is reached.")
      .value("Ethernet", Link::Ethernet)
      .value("Wifi", Link::Wifi)
      .value("Usb", Link::Usb);
  py::enum_<Channel>(m, "Channel", "A link of a simulated device.")
      .value("Auto", Channel::Auto)
      .value("Cmd", Channel::Cmd)
      .value("Data", Channel::Data)
      .value("Udp", Channel::Udp);

  py::class_<DeviceConfig>(
      m, "DeviceConfig",
      "What a simulated device is: model, link, serial, addresses (port 0: a free port).")
      .def(py::init(&makeConfig), py::kw_only(), py::arg("model") = "Trellis",
           py::arg("link") = py::none(), py::arg("serial") = "SIM00001",
           py::arg("host") = "127.0.0.1", py::arg("cmd_port") = 0, py::arg("data_port") = 0,
           py::arg("driver_info") = "", py::arg("mac") = "02:4F:52:56:00:01",
           py::arg("ip_addr") = "", py::arg("subnet_mask") = "255.255.255.0",
           py::arg("gateway") = "127.0.0.1", py::arg("firmware") = "")
      .def_readwrite("model", &DeviceConfig::model)
      .def_property(
          "link", [](const DeviceConfig& c) { return c.link; },
          [](DeviceConfig& c, const py::object& l) { c.link = toLink(l); })
      .def_readwrite("serial", &DeviceConfig::serial)
      .def_readwrite("host", &DeviceConfig::host)
      .def_readwrite("cmd_port", &DeviceConfig::cmd_port)
      .def_readwrite("data_port", &DeviceConfig::data_port)
      .def_readwrite("driver_info", &DeviceConfig::driver_info)
      .def_readwrite("mac", &DeviceConfig::mac)
      .def_readwrite("ip_addr", &DeviceConfig::ip_addr)
      .def_readwrite("subnet_mask", &DeviceConfig::subnet_mask)
      .def_readwrite("gateway", &DeviceConfig::gateway)
      .def_readwrite("firmware", &DeviceConfig::firmware,
                     "\"127.0.0.1:PORT\": a TCP peer on loopback serves the firmware; "
                     "empty: the built-in handlers")
      .def("__repr__", &configRepr);

  py::class_<Faults> faults(m, "Faults", "Faults a simulated device injects into its answers.");
  atomicProperty<decltype(&Faults::drop_next), int>(faults, "drop_next", &Faults::drop_next,
                                                    "swallow the next N replies");
  atomicProperty<decltype(&Faults::delay_us), int64_t>(faults, "delay_us", &Faults::delay_us,
                                                       "delay every reply by this many us");
  atomicProperty<decltype(&Faults::corrupt_next), int>(
      faults, "corrupt_next", &Faults::corrupt_next,
      "break the length field of the next N replies");
  atomicProperty<decltype(&Faults::split_bytes), int>(
      faults, "split_bytes", &Faults::split_bytes, "write each packet in pieces of N bytes (TCP)");
  atomicProperty<decltype(&Faults::split_pause_us), int64_t>(
      faults, "split_pause_us", &Faults::split_pause_us, "pause between split pieces, in us");
  atomicProperty<decltype(&Faults::junk_bytes), int>(faults, "junk_bytes", &Faults::junk_bytes,
                                                     "junk bytes written ahead of each packet");
  faults
      .def_property(
          "never_answer", [](const Faults& f) { return f.neverAnswered(); },
          [](Faults& f, std::set<int> cmds) { f.setNeverAnswered(std::move(cmds)); },
          "commands the device ignores (recorded, never answered)")
      .def("clear", &Faults::clear, "back to a healthy device");

  py::class_<Recorded>(m, "Packet", "A packet the simulated device received from the host.")
      .def_readonly("cmd", &Recorded::cmd)
      .def_property_readonly("data", [](const Recorded& r) { return toPy(r.data); })
      .def_property_readonly("link", [](const Recorded& r) { return channelName(r.channel); })
      .def_readonly("channel", &Recorded::channel)
      .def_property_readonly(
          "time", [](const Recorded& r) { return seconds(r.time); },
          "seconds on the clock of time.monotonic()")
      .def("__repr__", [](const Recorded& r) {
        return "Packet(cmd=" + std::to_string(r.cmd) +
               ", data=" + py::repr(toPy(r.data)).cast<std::string>() + ", link='" +
               channelName(r.channel) + "')";
      });

  py::class_<Request>(m, "Request", "The command a handler answers.")
      .def_readonly("cmd", &Request::cmd)
      .def_property_readonly("data", [](const Request& r) { return toPy(r.data); })
      .def_readonly("channel", &Request::channel);

  py::class_<SimDevice, std::shared_ptr<SimDevice>>(
      m, "SimDevice", "A running simulated device: its addresses, faults and packet record.")
      .def_property_readonly("model", &SimDevice::model)
      .def_property_readonly("serial", &SimDevice::serial)
      .def_property_readonly("link", &SimDevice::link)
      .def_property_readonly("host", &SimDevice::host)
      .def_property_readonly("cmd_port", &SimDevice::cmdPort)
      .def_property_readonly("data_port", &SimDevice::dataPort)
      .def_property_readonly("ip_addr", &SimDevice::ipAddr)
      .def_property_readonly("subnet_mask", &SimDevice::subnetMask)
      .def_property_readonly("config", &SimDevice::config)
      .def_property_readonly("faults", &SimDevice::faults,
                             py::return_value_policy::reference_internal)
      .def_property_readonly("running", &SimDevice::running)
      .def_property_readonly("handler_errors", &SimDevice::handlerErrors)
      .def_property_readonly("reboot_count", &SimDevice::rebootCount)
      .def_property_readonly("periodic_count", &SimDevice::periodicCount)
      .def("packets", &SimDevice::packets, "every packet received from the host, in order")
      .def("packet_count", &SimDevice::packetCount, "how many packets were received")
      .def("clear_packets", &SimDevice::clearPackets, "forgets the packets received so far")
      .def(
          "wait_for_packets",
          [](const SimDevice& d, size_t n, double timeout) {
            return d.waitForPackets(n, toMs(timeout));
          },
          py::arg("n"), py::arg("timeout") = 5.0, release_gil(),
          "waits until n packets were received or timeout seconds passed; whether they were")
      .def(
          "send",
          [](SimDevice& d, int cmd, const orv::Value& data, Channel ch) {
            Bytes b = toBytes(data);
            py::gil_scoped_release r;
            return d.send(cmd, std::move(b), ch);
          },
          py::arg("cmd"), py::arg("data") = py::bytes(),
          py::arg_v("channel", Channel::Auto, "Channel.Auto"),
          "sends an unasked packet to the host")
      .def(
          "stream_records",
          [](SimDevice& d, int cmd, const orv::Value& prefix, size_t count, int64_t interval_us,
             size_t payload_len) {
            Bytes p = toBytes(prefix);
            py::gil_scoped_release r;
            return d.streamRecords(cmd, std::move(p), count, interval_us, payload_len);
          },
          py::arg("cmd"), py::arg("prefix") = py::bytes(), py::arg("count") = 1,
          py::arg("interval_us") = 0, py::arg("payload_len") = 16,
          "send count records (prefix + counter bytes) on the streaming link; blocks until done")
      .def("stop_streams", &SimDevice::stopAllPeriodic, release_gil(), "stops every stream")
      .def("close_link", &SimDevice::closeLink, release_gil(),
           "drops the host's connection, as a device that goes away")
      .def("host_connected", &SimDevice::hostConnected,
           py::arg_v("channel", Channel::Cmd, "Channel.Cmd"),
           "whether a host is connected on the channel")
      .def(
          "wait_for_host",
          [](SimDevice& d, Channel ch, double timeout) { return d.waitForHost(ch, toMs(timeout)); },
          py::arg_v("channel", Channel::Cmd, "Channel.Cmd"), py::arg("timeout") = 5.0,
          release_gil(),
          "waits until a host connects on the channel or timeout seconds passed; whether it did")
      .def(
          "set_handler",
          [](SimDevice& d, int cmd, const py::object& fn) { d.setHandler(cmd, pyHandler(fn)); },
          py::arg("cmd"), py::arg("handler"),
          "handler(ctx, req) for one command of this device; None removes it")
      .def(
          "set_fallback_handler",
          [](SimDevice& d, const py::object& fn) { d.setFallbackHandler(pyHandler(fn)); },
          py::arg("handler"), "handler(ctx, req) for commands nobody handles; None: silent")
      .def(
          "state_get",
          [](SimDevice& d, const std::string& key, const orv::Value& fallback) {
            return d.state().get(key, fallback);
          },
          py::arg("key"), py::arg("default") = py::none(),
          "a value of the device's key/value store (see the handler files)")
      .def(
          "state_set",
          [](SimDevice& d, const std::string& key, const orv::Value& v) { d.state().set(key, v); },
          py::arg("key"), py::arg("value"), "sets a value of the device's key/value store")
      .def("__repr__", [](const SimDevice& d) {
        std::string s = "<SimDevice " + d.model() + " " + linkName(d.link());
        if (d.link() != Link::Usb) s += " " + d.host() + ":" + std::to_string(d.cmdPort());
        if (d.link() == Link::Wifi) s += " data:" + std::to_string(d.dataPort());
        return s + " serial=" + d.serial() + ">";
      });

  py::class_<Context>(m, "Context", "What a handler answers through.")
      .def(
          "reply", [](Context& c, const orv::Value& data) { c.reply(toBytes(data)); },
          py::arg("data"), "Answers the request with these payload bytes.")
      .def(
          "reply", [](Context& c, int cmd, const orv::Value& data) { c.reply(cmd, toBytes(data)); },
          py::arg("cmd"), py::arg("data"), "Answers with another command code.")
      .def(
          "stream",
          [](Context& c, int cmd, const orv::Value& data) { c.stream(cmd, toBytes(data)); },
          py::arg("cmd"), py::arg("data"), "Sends a record on the streaming link.")
      .def_property_readonly("device", [](Context& c) { return share(c.device()); });

  py::class_<Simulator, std::shared_ptr<Simulator>>(
      m, "Simulator", "Simulated devices on loopback; a `with` block stops them.")
      .def(py::init(&makeSimulator))
      .def(
          "add_device",
          [](Simulator& s, std::optional<DeviceConfig> cfg, const py::kwargs& kw) {
            DeviceConfig c = cfg ? *cfg : DeviceConfig{};
            if (cfg && !kw.empty())
              throw py::type_error("give a DeviceConfig or keywords, not both");
            if (!kw.empty()) {
              py::object made = py::type::of<DeviceConfig>()(**kw);
              c = made.cast<DeviceConfig>();
            }
            py::gil_scoped_release r;
            return share(s.addDevice(std::move(c)));
          },
          py::arg("config") = py::none(),
          "Adds and starts a device: add_device(DeviceConfig) or add_device(model=..., ...).")
      .def("remove_device", &Simulator::removeDevice, py::arg("device"), release_gil(),
           "stops a device and removes it")
      .def("start_discovery", &Simulator::startDiscovery, py::arg("host") = "127.0.0.1",
           py::arg("port") = orv::UDP_SEND_PORT, py::arg("reply_port") = orv::UDP_RECV_PORT,
           release_gil(), "answers discovery broadcasts on host:port, to reply_port")
      .def("stop_discovery", &Simulator::stopDiscovery, release_gil(), "stops answering broadcasts")
      .def_property_readonly("discovery_port", &Simulator::discoveryPort)
      .def("stop", &Simulator::stop, release_gil(), "stops every device and discovery")
      .def("devices", &Simulator::devices, "the devices, in the order they were added")
      .def(
          "find_device",
          [](const Simulator& s, const std::string& serial) { return s.findDevice(serial); },
          py::arg("serial"), "the device with this serial, or None")
      .def("__enter__", [](const std::shared_ptr<Simulator>& s) { return s; })
      .def("__exit__",
           [](Simulator& s, const py::args&) {
             py::gil_scoped_release r;
             s.stop();
             return false;
           })
      .def("__len__", [](const Simulator& s) { return s.devices().size(); });

  m.def(
      "start",
      [](const py::object& models, const py::object& link, bool discovery,
         const std::string& host) {
        std::vector<std::string> names;
        if (py::isinstance<py::str>(models)) {
          names.push_back(models.cast<std::string>());
        } else {
          names = models.cast<std::vector<std::string>>();
        }
        const Link l = toLink(link);
        auto sim = makeSimulator();
        py::gil_scoped_release r;
        populate(*sim, names, l, discovery, host);
        return sim;
      },
      py::arg("models") = "Trellis", py::arg("link") = "eth", py::arg("discovery") = false,
      py::arg("host") = "127.0.0.1",
      "a started Simulator with one device per model (serials SIM00001, ...)");
  m.def("numbered_config", &numberedConfig, py::arg("model"), py::arg("link"), py::arg("index"),
        "the DeviceConfig of the index-th device (from 1) of a numbered set: serial SIM%05d, a MAC "
        "from the index");
  m.def("registered_commands", &registeredCommands,
        "the command codes the simulated firmware answers");
  m.def("_stop_all", &stopAll);
  py::module_::import("atexit").attr("register")(m.attr("_stop_all"));
  // Importable by its dotted name (from pyorv._pyorv._sim import ...).
  py::dict modules = py::module_::import("sys").attr("modules");
  modules[py::str(parent.attr("__name__").cast<std::string>() + "._sim")] = m;
}
