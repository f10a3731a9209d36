// The link classes as the host sees them: transports, device classes and the
// exchange operations every device offers (blocking and awaitable).
#include <pybind11/functional.h>
#include <pybind11/stl.h>

#include <mutex>
#include <vector>

#include "bindings/bindings.hpp"
#include "bindings/devices.hpp"
#include "bindings/twin.hpp"
#include "bindings/value_caster.hpp"
#include "link/call.hpp"
#include "link/device.hpp"

namespace orv::py_bind {

namespace {

py::bytes toPy(const Bytes& b) {
  return py::bytes(reinterpret_cast<const char*>(b.data()), b.size());
}

py::object streamKeyToPy(const StreamKey& k) {
  if (k.arity == 1) return py::int_(k.cmd);
  if (k.arity == 2) return py::make_tuple(k.cmd, k.port);
  return py::make_tuple(k.cmd, k.port, k.cs);
}

StreamKey streamKeyFromPy(py::handle h) {
  if (py::isinstance<py::int_>(h)) return StreamKey::one(h.cast<int>());
  auto t = h.cast<py::tuple>();
  if (t.size() == 2) return StreamKey::pair(t[0].cast<int>(), t[1].cast<int>());
  if (t.size() == 3) return StreamKey::triple(t[0].cast<int>(), t[1].cast<int>(), t[2].cast<int>());
  throw py::key_error("a stream key is an int, (cmd, port) or (cmd, port, cs)");
}

py::list flatList(const Bytes& b) {
  py::list out(b.size());
  for (size_t i = 0; i < b.size(); ++i) out[i] = py::int_(b[i]);
  return out;
}

// Runs a blocking part of the core without the GIL and returns its result.
template <class F>
auto noGil(F&& f) {
  py::gil_scoped_release r;
  return f();
}

py::set toPySet(const std::set<Bytes>& s) {
  py::set out;
  for (const auto& b : s) out.add(toPy(b));
  return out;
}

}  // namespace

// ---- live devices: closed at interpreter exit ------------------------------------

namespace {
std::mutex g_live_m;
std::vector<std::weak_ptr<Device>>& live() {
  static auto* v = new std::vector<std::weak_ptr<Device>>();
  return *v;
}
}  // namespace

void trackDevice(const std::shared_ptr<Device>& d) {
  std::lock_guard lk(g_live_m);
  auto& v = live();
  std::erase_if(v, [](const std::weak_ptr<Device>& w) { return w.expired(); });
  v.push_back(d);
}

void closeAllDevices() {
  std::vector<std::shared_ptr<Device>> open;
  {
    std::lock_guard lk(g_live_m);
    for (auto& w : live())
      if (auto d = w.lock()) open.push_back(d);
    live().clear();
  }
  py::gil_scoped_release r;
  for (auto& d : open) {
    try {
      d->disconnect(false);
      d->close(false);
    } catch (const std::exception&) {
      // A link that fails to shut down cleanly is torn down by the destructor.
    }
  }
}

void warnUnclosed(const Device& d) {
  std::string where;
  if (auto* net = dynamic_cast<const NetworkDevice*>(&d)) {
    if (auto ip = net->ipAddr()) where = " at " + *ip;
  } else if (auto* usb = dynamic_cast<const USBDevice*>(&d)) {
    if (auto serial = usb->serialNum()) where = " serial " + *serial;
  } else if (auto* bcst = dynamic_cast<const BroadcastDevice*>(&d)) {
    if (bcst->connectStatusUdp()) where = " on UDP port " + std::to_string(UDP_RECV_PORT);
  }
  const std::string text = "unclosed device " + d.deviceName() + where +
                           ": it was garbage-collected while open and is closed now; call "
                           "close() or use it in a with block";
  // Called from a deleter, possibly while an exception is on its way.
  py::error_scope keep_pending;
  if (PyErr_WarnEx(PyExc_ResourceWarning, text.c_str(), 1) != 0) PyErr_WriteUnraisable(nullptr);
}

// ---- binding -----------------------------------------------------------------

constexpr const char* kDisconnectDoc = "Closes the links; the object can connect again.";
constexpr const char* kCloseDoc =
    "Closes the links and ends the receive threads; calls pending on the device end with "
    "DeviceClosedError.";

// `with Model() as dev:` gives the model's own type to a type checker.
const char* enterDoc() {
  return "__enter__(self) -> typing.Self\n\nThe device itself; the block's end closes it.";
}

void bindLink(py::module_& m) {
  // Transports.
  py::class_<Client, std::shared_ptr<Client>>(
      m, "Client", "A transport: bytes to and from one device link, split into packets.")
      .def_property_readonly("stream", [](Client& c) { return toPy(c.splitter().stream()); })
      .def_property_readonly("last_index", [](Client& c) { return c.splitter().lastIndex(); })
      .def(
          "_splitPacket",
          [](Client& c, const Value& more) {
            // Appends bytes to the stream and splits it (the receive thread's step).
            py::list out;
            for (auto& p : c.splitter().feed(more.toBytes()))
              out.append(py::make_tuple(p.cmd, toPy(p.data)));
            return out;
          },
          py::arg("data") = Bytes{})
      .def(
          "recvAndSplitPacket",
          [](Client& c, size_t length) {
            std::vector<RawPacket> pk;
            {
              py::gil_scoped_release r;
              pk = c.recvAndSplitPacket(length);
            }
            py::list out;
            for (auto& p : pk) {
              py::list pair;
              pair.append(p.cmd);
              pair.append(toPy(p.data));
              out.append(pair);
            }
            return out;
          },
          "Receives up to length bytes and returns the complete packets, [cmd, data] each.")
      .def(
          "recvPacket",
          [](Client& c, size_t length) {
            Bytes b;
            {
              py::gil_scoped_release r;
              b = c.recvPacket(length);
            }
            return toPy(b);
          },
          "Receives up to length bytes as they come.")
      .def(
          "sendPacket",
          [](Client& c, const Value& packet) {
            Bytes b = packet.toBytes();
            py::gil_scoped_release r;
            c.sendPacket(b);
          },
          "Sends the bytes of a whole packet.");
  py::class_<NetworkClient, Client, std::shared_ptr<NetworkClient>>(m, "NetworkClient",
                                                                    "A socket transport.")
      .def_property_readonly("socket", [](NetworkClient& c) { return c.hasSocket() ? c.fd() : 0; })
      .def("disconnect", &NetworkClient::disconnect, py::call_guard<py::gil_scoped_release>(),
           "Closes the socket.")
      .def("setTimeout", &NetworkClient::setTimeout, py::arg("timeout") = py::none(),
           "Sets the socket's receive timeout in seconds; None waits without end.");
  py::class_<TCPClient, NetworkClient, std::shared_ptr<TCPClient>>(m, "TCPClient",
                                                                   "A TCP transport.")
      .def(py::init<>())
      .def("connect", &TCPClient::connect, py::arg("ip_addr"), py::arg("port"),
           py::call_guard<py::gil_scoped_release>(), "Connects to a device's TCP port.");
  py::class_<UDPClient, NetworkClient, std::shared_ptr<UDPClient>>(m, "UDPClient",
                                                                   "A UDP transport for discovery.")
      .def(py::init<>())
      .def("bind", &UDPClient::bind, py::arg("ip_addr"), py::arg("port"),
           py::call_guard<py::gil_scoped_release>(),
           "Binds the receiving socket (an empty ip_addr: every interface).")
      .def(
          "sendBcstPacket",
          [](UDPClient& c, const Value& packet) {
            Bytes b = packet.toBytes();
            py::gil_scoped_release r;
            c.sendBcstPacket(b);
          },
          "Broadcasts a packet to the broadcast target from each local IPv4 address.")
      .def("setBroadcastTarget", &UDPClient::setBroadcastTarget, py::arg("host"),
           py::arg("port") = UDP_SEND_PORT,
           "Points the broadcasts at host:port (a loopback host sends from 127.0.0.1 only).")
      .def_property_readonly("broadcast_target", &UDPClient::broadcastTarget);
  py::class_<USBClient, Client, std::shared_ptr<USBClient>>(m, "USBClient", "A USB transport.")
      .def(py::init<const std::string&>(), py::arg("serial_num") = "default",
           py::call_guard<py::gil_scoped_release>())
      .def("takeSerialNumber", &USBClient::takeSerialNumber, "The device's serial number.")
      .def("takeProductName", &USBClient::takeProductName, "The device's product name.");

  // A stream queue of data_pool_strm.
  py::class_<StreamQueue, std::shared_ptr<StreamQueue>>(m, "StreamQueue",
                                                        "The records of one stream, oldest first.")
      .def("qsize", &StreamQueue::size, "How many records wait.")
      .def(
          "empty", [](StreamQueue& q) { return q.size() == 0; }, "Whether no record waits.")
      .def(
          "put", [](StreamQueue& q, const Value& item) { q.push(item.toBytes()); },
          "Adds a record.")
      .def(
          "get_nowait",
          [](StreamQueue& q) {
            auto item = q.tryPop();
            if (!item) throw py::index_error("the stream queue is empty");
            return toPy(*item);
          },
          "Takes the oldest record; IndexError when none waits.");

  // Devices.
  auto dev = py::class_<Device, std::shared_ptr<Device>>(
      m, "Device",
      "One device: its links, receive threads and reply pools. A `with` block closes it.");
  dev.def_property_readonly("killed", &Device::killed)
      .def("_getDeviceName", &Device::deviceName)
      .def_property_readonly("data_pool_echo",
                             [](Device& d) {
                               py::dict out;
                               for (auto& [k, v] : d.echoPool().snapshot())
                                 out[py::int_(k)] = toPy(v);
                               return out;
                             })
      .def_property_readonly("data_pool_strm",
                             [](Device& d) {
                               py::dict out;
                               for (auto& k : d.streamPool().keys())
                                 out[streamKeyToPy(k)] = d.streamPool().get(k);
                               return out;
                             })
      .def(
          "_streamQueue",
          [](Device& d, py::handle key) { return d.streamPool().get(streamKeyFromPy(key)); },
          py::arg("key"))
      .def(
          "_broadcastAnswers", [](Device& d, int cmd) { return toPySet(d.bcstPool().get(cmd)); },
          py::arg("cmd"))
      .def(
          "_checkCommandType",
          [](Device&, int cmd, const Value& data) {
            Bytes b = data.toBytes();
            return cmdTypeWord(Device::checkCommandType(cmd, b));
          },
          py::arg("cmd"), py::arg("data"))
      .def(
          "_putToDataPool",
          [](Device& d, int cmd, const Value& data) { d.putToDataPool(cmd, data.toBytes()); },
          py::arg("cmd"), py::arg("data"))
      .def(
          "_preparePacket",
          [](Device&, int cmd, const Value& data_out) {
            auto ints = data_out.toIntList();
            return flatList(preparePacket(cmd, ints));
          },
          py::arg("cmd"), py::arg("data_out") = Value::list({}))
      .def("_aliveThreads", &Device::aliveThreads)
      .def("__exit__",
           [](Device& d, py::args) {
             py::gil_scoped_release r;
             d.close();
           })
      // The exchange, blocking.
      .def(
          "_sendPacketWithoutReply",
          [](Device& d, int cmd, const Value& data_out) {
            Bytes b = data_out.toBytes();
            py::gil_scoped_release r;
            d.sendPacketWithoutReply(cmd, b);
          },
          py::arg("cmd"), py::arg("data_out"))
      .def(
          "_echoPacket",
          [](Device& d, int cmd, const Value& data_out, double timeout) {
            Bytes b = data_out.toBytes();
            return toPy(noGil([&] { return d.echoPacket(cmd, b, timeout); }));
          },
          py::arg("cmd"), py::arg("data_out"), py::arg("timeout"))
      .def(
          "_echoPacketWithRetry",
          [](Device& d, int cmd, const Value& data_out, double timeout) {
            Bytes b = data_out.toBytes();
            return toPy(noGil([&] { return d.echoPacketWithRetry(cmd, b, timeout); }));
          },
          py::arg("cmd"), py::arg("data_out"), py::arg("timeout") = PACKET_TIMEOUT)
      .def(
          "_getReplyFromPool",
          [](Device& d, int64_t cmd, double timeout) {
            return toPy(noGil([&] { return d.getReplyFromPool(cmd, timeout); }));
          },
          py::arg("cmd"), py::arg("timeout"))
      .def(
          "_broadcastPacket",
          [](Device& d, int cmd, const Value& data_out) {
            Bytes b = data_out.toBytes();
            return toPySet(noGil([&] { return d.broadcastPacket(cmd, b); }));
          },
          py::arg("cmd"), py::arg("data_out"))
      .def(
          "_getStreamingFromPool",
          [](Device& d, StreamQueue& q, int64_t num_samples, double delay) {
            return flatList(noGil([&] { return d.getStreamingFromPool(q, num_samples, delay); }));
          },
          py::arg("queue_"), py::arg("num_samples"), py::arg("delay"))
      // The exchange, awaitable.
      .def(
          "_sendPacketWithoutReply_async",
          [](py::object self, int cmd, const Value& data_out) {
            Bytes b = data_out.toBytes();
            return immediateCoroutine([self, cmd, b]() -> py::object {
              Device& d = self.cast<Device&>();
              {
                py::gil_scoped_release r;
                d.sendPacketWithoutReply(cmd, b);
              }
              return py::none();
            });
          },
          py::arg("cmd"), py::arg("data_out"))
      .def(
          "_echoPacket_async",
          [](py::object self, int cmd, const Value& data_out, double timeout) {
            Device& d = self.cast<Device&>();
            return makeCoroutine(
                self, [&d, cmd, b = data_out.toBytes(), timeout](CancelToken* tok) {
                  auto out = d.echoPacketAsync(cmd, b, timeout, tok);
                  return std::function<py::object()>(
                      [out] { return out ? py::object(toPy(*out)) : py::object(py::none()); });
                });
          },
          py::arg("cmd"), py::arg("data_out"), py::arg("timeout") = PACKET_TIMEOUT)
      .def(
          "_echoPacketWithRetry_async",
          [](py::object self, int cmd, const Value& data_out, int num_retries, double timeout) {
            Device& d = self.cast<Device&>();
            return makeCoroutine(
                self, [&d, cmd, b = data_out.toBytes(), num_retries, timeout](CancelToken* tok) {
                  auto out = d.echoPacketWithRetryAsync(cmd, b, num_retries, timeout, tok);
                  return std::function<py::object()>([out] { return py::object(toPy(out)); });
                });
          },
          py::arg("cmd"), py::arg("data_out"), py::arg("num_retries") = NUM_RETRIES,
          py::arg("timeout") = PACKET_TIMEOUT)
      .def(
          "_getReplyFromPool_async",
          [](py::object self, int64_t cmd) {
            Device& d = self.cast<Device&>();
            return makeCoroutine(self, [&d, cmd](CancelToken* tok) {
              auto out = d.getReplyFromPoolAsync(cmd, tok);
              return std::function<py::object()>([out] { return py::object(toPy(out)); });
            });
          },
          py::arg("cmd"))
      .def(
          "_broadcastPacket_async",
          [](py::object self, int cmd, const Value& data_out) {
            Device& d = self.cast<Device&>();
            return makeCoroutine(self, [&d, cmd, b = data_out.toBytes()](CancelToken* tok) {
              auto out = d.broadcastPacket(cmd, b, tok);
              return std::function<py::object()>([out] { return py::object(toPySet(out)); });
            });
          },
          py::arg("cmd"), py::arg("data_out"))
      .def(
          "_getStreamingFromPool_async",
          [](py::object self, std::shared_ptr<StreamQueue> q, int64_t num_samples,
             double /*delay*/) {
            return immediateCoroutine([self, q, num_samples]() -> py::object {
              return flatList(self.cast<Device&>().getStreamingFromPoolAsync(*q, num_samples));
            });
          },
          py::arg("queue_"), py::arg("num_samples"), py::arg("delay"));

  {
    py::options opts;  // the signature line comes from the docstring
    opts.disable_function_signatures();
    dev.def(
        "__enter__", [](py::object self) { return self; }, enterDoc());
  }

  bindDeviceClass<USBDevice, Device>(m, "USBDevice", "A device on USB.")
      .def("connect", &USBDevice::connect, py::arg("serial_num") = "default",
           py::arg("verbose") = true, py::call_guard<py::gil_scoped_release>(),
           "Opens the device with this serial number (\"default\": the first one found).")
      .def("disconnect", &USBDevice::disconnect, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kDisconnectDoc)
      .def("close", &USBDevice::close, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kCloseDoc)
      .def_property_readonly("connect_status_cmd", &USBDevice::connectStatusCmd)
      .def_property_readonly("serial_num", &USBDevice::serialNum)
      .def_property_readonly("client_cmd", &USBDevice::clientCmd);

  bindDeviceClass<NetworkDevice, Device>(m, "NetworkDevice", "A device on a TCP command link.")
      .def("connect", &NetworkDevice::connect, py::arg("ip_addr") = "192.168.1.110",
           py::arg("port") = TCP_CMD_PORT, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(),
           "Connects the command link to ip_addr:port and starts its receive thread.")
      .def("disconnect", &NetworkDevice::disconnect, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kDisconnectDoc)
      .def("close", &NetworkDevice::close, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kCloseDoc)
      .def_property_readonly("connect_status_cmd", &NetworkDevice::connectStatusCmd)
      .def_property_readonly("ip_addr", &NetworkDevice::ipAddr)
      .def_property_readonly("client_cmd", &NetworkDevice::clientCmd);

  bindDeviceClass<ETHDevice, NetworkDevice>(m, "ETHDevice", "A device on Ethernet.");

  bindDeviceClass<WifiDevice, NetworkDevice>(m, "WifiDevice",
                                             "A device on Wi-Fi: a data link and a command link.")
      .def("connect", &WifiDevice::connect, py::arg("ip") = "192.168.5.79",
           py::arg("port1") = TCP_DATA_PORT, py::arg("port2") = TCP_CMD_PORT,
           py::arg("verbose") = true, py::call_guard<py::gil_scoped_release>(),
           "Connects the data link to ip:port1 and the command link to ip:port2.")
      .def("disconnect", &WifiDevice::disconnect, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kDisconnectDoc)
      .def("close", &WifiDevice::close, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kCloseDoc)
      .def_property_readonly("connect_status_data", &WifiDevice::connectStatusData)
      .def_property_readonly("client_data", &WifiDevice::clientData);

  bindDeviceClass<BroadcastDevice, Device>(
      m, "BroadcastDevice",
      "The discovery side: a UDP socket for broadcasts and their answers. "
      "BroadcastDevice(verbose=True, broadcast_addr=None): broadcast_addr \"host\" or "
      "\"host:port\" points the broadcasts elsewhere (e.g. at loopback).")
      .def("connect", &BroadcastDevice::connect, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(),
           "Binds the UDP socket that receives the answers and starts its receive thread.")
      .def("disconnect", &BroadcastDevice::disconnect, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kDisconnectDoc)
      .def("close", &BroadcastDevice::close, py::arg("verbose") = true,
           py::call_guard<py::gil_scoped_release>(), kCloseDoc)
      .def_property_readonly("connect_status_udp", &BroadcastDevice::connectStatusUdp)
      .def_property_readonly("broadcast_window", &BroadcastDevice::broadcastWindow,
                             "seconds a broadcast collects answers: PACKET_TIMEOUT, or "
                             "PYORV_BROADCAST_WINDOW when set")
      .def_property_readonly("client_udp", &BroadcastDevice::clientUdp);
}

}  // namespace orv::py_bind
