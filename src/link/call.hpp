// The per-call context of an operation.  A module operation is written once
// against a Call; the blocking method and its awaitable twin differ only in
// the Call they pass:
//
//   blocking:   exchange = _echoPacketWithRetry(cmd, data, timeout): three
//               attempts of timeout/3, ReceivePacketTimeoutError
//   awaitable:  exchange = _echoPacketWithRetry_async(cmd, data): attempts of
//               RETRY_TIMEOUT, then the remaining wait, AsyncTimeout (the
//               event loop's timeout error); stream reads do not wait
//
// isAwaitable() answers for the few places where the twins differ on purpose.
#pragma once

#include <initializer_list>
#include <span>

#include "link/constants.hpp"
#include "link/device.hpp"
#include "link/error.hpp"
#include "link/pools.hpp"

namespace orv {

class Call {
 public:
  enum class Flavour { Blocking, Awaitable };

  Call(Device& dev, Flavour flavour, double timeout = 3, CancelToken* tok = nullptr)
      : dev_(dev), flavour_(flavour), timeout_(timeout), tok_(tok) {}

  Device& device() const { return dev_; }
  bool isAwaitable() const { return flavour_ == Flavour::Awaitable; }
  double timeout() const { return timeout_; }
  CancelToken* token() const { return tok_; }

  // A cancelled awaitable stops at its next exchange.
  void checkCancelled() const {
    if (tok_ && tok_->cancelled()) throw Cancelled();
  }

  // A command and its reply's data bytes.
  Bytes exchange(int cmd, std::span<const uint8_t> data_out) const {
    checkCancelled();
    if (isAwaitable())
      return dev_.echoPacketWithRetryAsync(cmd, data_out, NUM_RETRIES, PACKET_TIMEOUT, tok_);
    return dev_.echoPacketWithRetry(cmd, data_out, timeout_, tok_);
  }
  Bytes exchange(int cmd, std::initializer_list<uint8_t> data_out) const {
    return exchange(cmd, std::span<const uint8_t>(data_out.begin(), data_out.size()));
  }

  // The status tail: the status byte at `offset` of the reply, 0 on success,
  // the negative code of the firmware error otherwise.  A reply too short to
  // hold the status is a ReplyFormatError.
  int exchangeStatus(int cmd, std::span<const uint8_t> data_out, size_t offset) const {
    const Bytes data_in = exchange(cmd, data_out);
    if (data_in.size() <= offset)
      raise(ErrorId::ReplyFormatError, "The reply of command " + std::to_string(cmd) +
                                           " holds no status byte at offset " +
                                           std::to_string(offset) + ".");
    try {
      return checkFirmwareError(data_in[offset]);
    } catch (const Error& e) {
      return e.code();
    }
  }

  // A command that starts a flow of records or must not wait.
  void send(int cmd, std::span<const uint8_t> data_out) const {
    checkCancelled();
    dev_.sendPacketWithoutReply(cmd, data_out);
  }

  // Until q holds n items (true) or the deadline passes (false); the
  // awaitable parks its fiber meanwhile.  Cancelled on Ctrl-C or a cancelled
  // task, DeviceClosedError when the queue closes with the device.
  bool waitQueue(WaitableQueue& q, size_t n, Clock::time_point deadline) const {
    return Device::waitQueue(q, n, deadline, tok_);
  }

  // A pause between steps of an operation, for both twins alike.
  void sleep(double seconds) const {
    checkCancelled();
    if (!(seconds > 0)) return;
    dev_.pauseUntil(deadlineAfter(Clock::now(), seconds), tok_);
  }

  // Stream records, flattened; the awaitable twin returns at once what is there.
  Bytes streaming(StreamQueue& q, int64_t num_samples, double delay) const {
    if (isAwaitable()) return dev_.getStreamingFromPoolAsync(q, num_samples);
    return dev_.getStreamingFromPool(q, num_samples, delay, tok_);
  }

 private:
  Device& dev_;
  Flavour flavour_;
  double timeout_;
  CancelToken* tok_;
};

}  // namespace orv
