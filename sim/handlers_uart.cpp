// The simulated firmware's two UARTs.
//
// OPEN_UART takes the port's pins (pin mode UART), CLOSE_UART gives them back
// (Idle) and stops the reading.  START_UART_READING makes the port stream what
// it receives, as records [port, 0, bytes...] under START_UART_READING;
// STOP_UART_READING ends that.  Settings are kept and answered with status 0.
// Every command answers [port, status]; a port the model lacks gets the
// firmware's UART error.
//
// Wiring and peers, set from the host side through the key/value state:
//   "uart.loopback"    list of [tx_port, rx_port] wires: bytes written to
//                      tx_port are received on rx_port ([[1, 1]]: a port
//                      wired to itself, [[1, 2]]: port 1 to port 2)
//   "uart.peer.<port>" list of [request, answer] pairs (bytes): a write of
//                      exactly `request` on that port is answered by the peer
//                      with `answer`, received on the same port
//   "uart.flood.<port>" int n: once the port starts reading, it receives n
//                      bytes of the device's running counter back to back,
//                      in records of up to 1024 bytes (faster than any line)
// A port receives only while it is reading; what arrives otherwise is lost,
// as on the device.
#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "buses/uart.hpp"
#include "link/constants.hpp"
#include "link/error.hpp"
#include "models/model_info.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"
#include "sim/pin_modes.hpp"

namespace orv::sim {

namespace {

constexpr uint8_t kStatusUART = 23;  // the firmware's UART error
constexpr size_t kFloodChunk = 1024;

struct UartPortSim {
  bool open = false;
  bool reading = false;
  uint32_t baud = 115200;
  uint8_t data_size = 0, parity = 0, stop_bits = 0;
  int flood = 0;  // the ticker task of a flood, 0 when none
};

struct UartSim {
  std::array<UartPortSim, 3> ports;  // ports 1 and 2
};

const PortMap& uartMap(Context& ctx) { return modelInfo(ctx.device().model()).uart_dict; }

// The port of a request, or -1 when the model has no such UART.
int portOf(Context& ctx, const Request& req) {
  if (req.data.empty()) return -1;
  const int port = req.data[0];
  return uartMap(ctx).count(port) && port >= 1 && port <= 2 ? port : -1;
}

void status(Context& ctx, const Request& req, uint8_t s) {
  ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0], s});
}

// Hands bytes to a port's receiver: a record when the port is reading.
void receive(SimDevice& dev, int port, const Bytes& bytes) {
  if (bytes.empty() || port < 1 || port > 2) return;
  if (!dev.state().slot<UartSim>()->ports[static_cast<size_t>(port)].reading) return;
  Bytes record{static_cast<uint8_t>(port), 0};
  record.insert(record.end(), bytes.begin(), bytes.end());
  dev.writeStream(START_UART_READING, record);
}

// Ends a port's reading and its flood (outside the state lock: a flood's tick
// takes it).
void stopReading(SimDevice& dev, int port) {
  int id = 0;
  {
    auto sim = dev.state().slot<UartSim>();
    UartPortSim& p = sim->ports[static_cast<size_t>(port)];
    p.reading = false;
    id = std::exchange(p.flood, 0);
  }
  if (id) dev.stopPeriodic(id);
}

// A handler for a command whose whole work is the port check and a status.
template <class F>
Handler onPort(F work) {
  return [work](Context& ctx, const Request& req) {
    const int port = portOf(ctx, req);
    if (port < 0) return status(ctx, req, kStatusUART);
    work(ctx, req, ctx.state().slot<UartSim>()->ports[static_cast<size_t>(port)], port);
    status(ctx, req, 0);
  };
}

void startReading(Context& ctx, const Request& req) {
  const int port = portOf(ctx, req);
  if (port < 0) return;  // no reply: the host does not wait for one
  SimDevice& dev = ctx.device();
  auto sim = ctx.state().slot<UartSim>();
  UartPortSim& p = sim->ports[static_cast<size_t>(port)];
  p.reading = true;
  const int64_t n = ctx.state().get("uart.flood." + std::to_string(port), Value(0)).asInt();
  if (n <= 0 || p.flood) return;
  auto left = std::make_shared<int64_t>(n);
  p.flood = dev.startPeriodic(std::chrono::microseconds(0), [&dev, port, left] {
    const size_t chunk = static_cast<size_t>(std::min<int64_t>(*left, kFloodChunk));
    receive(dev, port, dev.counterBytes(chunk));
    *left -= static_cast<int64_t>(chunk);
    if (*left > 0) return true;
    dev.state().slot<UartSim>()->ports[static_cast<size_t>(port)].flood = 0;
    return false;
  });
}

Handler stopOrClose(bool close) {
  return [close](Context& ctx, const Request& req) {
    const int port = portOf(ctx, req);
    if (port < 0) return status(ctx, req, kStatusUART);
    stopReading(ctx.device(), port);
    if (close) {
      ctx.state().slot<UartSim>()->ports[static_cast<size_t>(port)].open = false;
      setPinModes(ctx.device(), uartMap(ctx).at(port), PinMode::Idle);
    }
    status(ctx, req, 0);
  };
}

void write(Context& ctx, const Request& req) {
  const int port = portOf(ctx, req);
  // The reply echoes the port and the length ahead of the status.
  const uint8_t length = req.data.size() >= 2 ? req.data[1] : uint8_t{0};
  if (port < 0 || req.data.size() < 2)
    return ctx.reply({req.data.empty() ? uint8_t{0} : req.data[0], length, kStatusUART});
  const Bytes bytes(req.data.begin() + 2, req.data.end());
  ctx.reply({req.data[0], length, 0});
  SimDevice& dev = ctx.device();
  const Value wires = ctx.state().get("uart.loopback", Value::list({}));
  if (wires.isSequence())
    for (const Value& w : wires.asList())
      if (w.isSequence() && w.size() == 2 && w.asList()[0].asInt() == port)
        receive(dev, static_cast<int>(w.asList()[1].asInt()), bytes);
  const Value peer = ctx.state().get("uart.peer." + std::to_string(port), Value::list({}));
  if (peer.isSequence())
    for (const Value& pair : peer.asList())
      if (pair.isSequence() && pair.size() == 2 && pair.asList()[0].toBytes() == bytes)
        receive(dev, port, pair.asList()[1].toBytes());
}

const Registrar kUart{{
    {OPEN_UART, onPort([](Context& ctx, const Request&, UartPortSim& p, int port) {
       p.open = true;
       setPinModes(ctx.device(), uartMap(ctx).at(port), PinMode::UART);
     })},
    {START_UART_READING, startReading},
    {WRITE_UART, write},
    {STOP_UART_READING, stopOrClose(false)},
    {CLOSE_UART, stopOrClose(true)},
    {RESET_UART, onPort([](Context&, const Request&, UartPortSim& p, int) {
       p.baud = 115200;
       p.data_size = p.parity = p.stop_bits = 0;
     })},
    {SET_UART_BAUD_RATE, onPort([](Context&, const Request& req, UartPortSim& p, int) {
       if (req.data.size() >= 5)
         p.baud = (uint32_t{req.data[1]} << 24) | (uint32_t{req.data[2]} << 16) |
                  (uint32_t{req.data[3]} << 8) | req.data[4];
     })},
    {SET_UART_DATA_SIZE, onPort([](Context&, const Request& req, UartPortSim& p, int) {
       if (req.data.size() >= 2) p.data_size = req.data[1];
     })},
    {SET_UART_PARITY, onPort([](Context&, const Request& req, UartPortSim& p, int) {
       if (req.data.size() >= 2) p.parity = req.data[1];
     })},
    {SET_UART_NUM_STOP_BITS, onPort([](Context&, const Request& req, UartPortSim& p, int) {
       if (req.data.size() >= 2) p.stop_bits = req.data[1];
     })},
}};

}  // namespace

}  // namespace orv::sim
