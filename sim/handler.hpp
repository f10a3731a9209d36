// Command handlers of the simulated firmware and their registry.
//
// A module's handlers live in a file of their own (sim/handlers_<module>.cpp)
// that registers them with a static registrar:
//
//   namespace {
//   void getDriverInfo(orv::sim::Context& ctx, const orv::sim::Request&) {
//     ctx.reply(orv::sim::textBytes(ctx.device().config().driver_info));
//   }
//   const orv::sim::Registrar reg{{{GET_DRIVER_INFO, getDriverInfo}, ...}};
//   }  // namespace
//
// A handler runs on the thread that received the command (the connection
// thread of its link), and what it replies is written at once by that
// thread.  A command with no handler is recorded and not answered, like the
// real firmware (a device may install a fallback handler to change that).
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

#include "link/value.hpp"
#include "sim/config.hpp"

namespace orv::sim {

class SimDevice;
class DeviceState;

// One command received from the host.
struct Request {
  int cmd = 0;
  Bytes data;
  Channel channel = Channel::Cmd;  // the link it came on: Cmd, Data or Udp
};

// What a handler may do.
class Context {
 public:
  Context(SimDevice& dev, const Request& req) : dev_(dev), req_(req) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  // Answers on the link the command came on, under the request's command
  // (first form) or another one.  The reply faults apply.
  void reply(Bytes data);
  void reply(int cmd, Bytes data);
  void reply(std::initializer_list<uint8_t> data) { reply(Bytes(data)); }
  // Sends a streaming record: on the data link of a Wi-Fi device, on the
  // only link otherwise.  Reply faults do not apply.
  void stream(int cmd, Bytes data);

  SimDevice& device() { return dev_; }
  DeviceState& state();
  const Request& request() const { return req_; }
  int replies() const { return replies_; }

 private:
  SimDevice& dev_;
  const Request& req_;
  int replies_ = 0;
};

using Handler = std::function<void(Context&, const Request&)>;

// Registration priorities: the core's generic handlers stand back for a
// module's own handler of the same command, whatever the order in which the
// files' registrars run.
inline constexpr int kCorePriority = 0;
inline constexpr int kModulePriority = 100;

// The global registry, keyed by command.  The higher priority wins; at equal
// priority the later registration replaces the earlier one.
void registerHandler(int cmd, Handler handler, int priority = kModulePriority);
// The handler for a command, or an empty function.
Handler findHandler(int cmd);
// Commands that have a handler, in ascending order.
std::vector<int> registeredCommands();

// Registers its handlers when constructed; meant for a namespace-scope
// static object in a module's handler file.
class Registrar {
 public:
  Registrar(int cmd, Handler handler, int priority = kModulePriority) {
    registerHandler(cmd, std::move(handler), priority);
  }
  Registrar(std::initializer_list<std::pair<int, Handler>> handlers,
            int priority = kModulePriority) {
    for (const auto& [cmd, h] : handlers) registerHandler(cmd, h, priority);
  }
};

// Helpers for payloads.
inline Bytes textBytes(std::string_view s) { return Bytes(s.begin(), s.end()); }

// A status reply that echoes the first `echo` bytes of the request (a write's
// port, then its address or length) ahead of the status byte.
inline void echoStatus(Context& ctx, const Request& req, size_t echo, uint8_t status) {
  Bytes out(echo + 1, 0);
  std::copy_n(req.data.begin(), std::min(echo, req.data.size()), out.begin());
  out[echo] = status;
  ctx.reply(out);
}

}  // namespace orv::sim
