#include "buses/bus_stream.hpp"

#include <algorithm>
#include <chrono>
#include <set>
#include <string>

#include "link/convert.hpp"
#include "link/report.hpp"
#include "link/thread_name.hpp"
#include "services/system.hpp"

namespace orv {

void BusStream::start(std::shared_ptr<StreamQueue> data, const std::atomic<bool>& killed,
                      Sink sink) {
  data_ = std::move(data);
  sink_ = std::move(sink);
  thread_ = std::thread([this, &killed] {
    nameThisThread("orv-bus-stream");
    run(killed);
  });
}

void BusStream::pushMarker() {
  if (data_) data_->push(Bytes{});
}

void BusStream::join() {
  if (thread_.joinable() && thread_.get_id() != std::this_thread::get_id()) thread_.join();
}

void BusStream::run(const std::atomic<bool>& killed) {
  while (!killed.load()) {
    gate_.pass(killed);  // parked here while the port is closed
    if (killed.load()) break;
    const auto deadline = Clock::now() + std::chrono::seconds(QUEUE_TIMEOUT);
    std::optional<Bytes> data = data_->popWait(deadline);
    if (!data) {
      if (Clock::now() < deadline) break;  // the device closed its pools
      continue;
    }
    if (data->empty()) continue;  // the marker: back to the gate
    try {
      sink_(*data);
    } catch (const std::exception& e) {
      report::genericError(e);
    }
  }
}

void PendingReads::add(CancelToken* tok) {
  std::lock_guard lk(m_);
  toks_.push_back(tok);
}

void PendingReads::remove(CancelToken* tok) {
  std::lock_guard lk(m_);
  toks_.erase(std::remove(toks_.begin(), toks_.end(), tok), toks_.end());
}

void PendingReads::wakeAll() {
  std::lock_guard lk(m_);
  for (CancelToken* tok : toks_) tok->cancel();
}

Bytes takeFromQueue(const Call& c, StreamQueue& q, int64_t n,
                    const std::function<bool()>& stream_open, PendingReads& pending) {
  if (!c.isAwaitable() && n > 0) {
    // Registered before the look at the stream: a close after the look
    // still finds this read.
    CancelToken closed;
    pending.add(&closed);
    try {
      if (stream_open())
        Device::waitQueue(q, static_cast<size_t>(n), Clock::time_point::max(), &closed);
    } catch (const Cancelled&) {
      if (!closed.cancelled()) {
        pending.remove(&closed);
        throw;
      }
    } catch (...) {
      pending.remove(&closed);
      throw;
    }
    pending.remove(&closed);
  }
  return c.device().getStreamingFromPoolAsync(q, n);
}

std::vector<int64_t> busPinPorts(const std::vector<PinPair>& pins) {
  std::set<int64_t> ports;
  for (const PinPair& p : pins) ports.insert(p.port);
  return {ports.begin(), ports.end()};
}

void checkBusPinState(const Call& c, ModuleBase& module, const std::vector<PinPair>& pins,
                      const Value& allow_state, ErrorId busy) {
  auto* sys = module.sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  for (int64_t i : busPinPorts(pins)) {
    const std::vector<std::string> modes = sys->Sys_getPinModeInPort(c, Value(i));
    const Value pin_map = Value::listOf(modes);
    // Every pin of the bus against this port's modes: a bus over two ports
    // has each pin index tested in both.
    for (const PinPair& entry : pins) {
      const Value cell = Value::listOf(std::vector<int64_t>{entry.port, entry.pin});
      if (!checkFuncPinMap(cell, pin_map, allow_state)) raise(busy);
    }
  }
}

}  // namespace orv
