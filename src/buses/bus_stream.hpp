// The decoder thread of a bus stream (UART port, CAN controller) and the pin
// check the buses share.
//
// A BusStream thread passes its gate, takes one record of the device's stream
// queue and hands it to its sink; an empty record is the marker that sends it
// back to the gate (a close, or the module's end).  The thread waits on the
// queue and on the gate, never on a timer.  A record that the sink refuses
// (an exception) is reported and dropped; the thread lives on.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "link/call.hpp"
#include "link/device.hpp"
#include "link/error.hpp"
#include "link/pools.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

class BusStream {
 public:
  using Sink = std::function<void(const Bytes& record)>;
  BusStream() = default;
  ~BusStream() { join(); }
  BusStream(const BusStream&) = delete;
  BusStream& operator=(const BusStream&) = delete;

  // Starts the thread on `data` (the device's stream queue); it ends once
  // `killed` is set and it is woken (gate open, marker or queue closed).
  void start(std::shared_ptr<StreamQueue> data, const std::atomic<bool>& killed, Sink sink);
  bool started() const { return thread_.joinable(); }
  Gate& gate() { return gate_; }
  // The empty marker on the data queue (nothing before start).
  void pushMarker();
  void join();

 private:
  void run(const std::atomic<bool>& killed);

  Gate gate_;
  std::shared_ptr<StreamQueue> data_;
  Sink sink_;
  std::thread thread_;
};

// The blocking reads waiting on a bus's queues: the bus's close wakes them,
// and they return what is there.
class PendingReads {
 public:
  void add(CancelToken* tok);
  void remove(CancelToken* tok);
  void wakeAll();

 private:
  std::mutex m_;
  std::vector<CancelToken*> toks_;
};

// Up to n items of a bus's queue, flattened (n -1: all there are).  The
// blocking twin first waits until n are there while `stream_open()` holds,
// or until the bus's close wakes it through `pending`; the awaitable twin
// takes what is there.
Bytes takeFromQueue(const Call& c, StreamQueue& q, int64_t n,
                    const std::function<bool()>& stream_open, PendingReads& pending);

// The pin check of a bus: reads the modes of each digital port the bus's pins
// lie on (Sys_getPinModeInPort) and tests every pin of the bus against each
// port's modes in turn, whichever port the pin lies on; a pin whose mode is
// not in allow_state raises `busy`.
void checkBusPinState(const Call& c, ModuleBase& module, const std::vector<PinPair>& pins,
                      const Value& allow_state, ErrorId busy);
// The digital ports of a bus's pins, each once, rising.
std::vector<int64_t> busPinPorts(const std::vector<PinPair>& pins);

}  // namespace orv
