// Fault injection of one simulated device.
//
// Reply faults act on the answers to the host's commands (Context::reply):
// drop_next, delay_us, corrupt_next and the never-answer set.  Write faults
// act on every packet the device writes on TCP, replies and streaming
// records alike: split_bytes and junk_bytes.  Closing the link is
// SimDevice::closeLink().  All fields can be changed at any time from any
// thread.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <set>

namespace orv::sim {

class Faults {
 public:
  // Swallow the next N replies (each one decrements the count).
  std::atomic<int> drop_next{0};
  // Wait this many microseconds before writing each reply.
  std::atomic<int64_t> delay_us{0};
  // Break the length field of the next N replies (its top bit is set, so no
  // receiver can accept it as a packet).
  std::atomic<int> corrupt_next{0};
  // Write each packet in pieces of this many bytes, pausing split_pause_us
  // between them; 0 writes each packet in one piece.  TCP only: USB already
  // moves 64-byte transfers.
  std::atomic<int> split_bytes{0};
  std::atomic<int64_t> split_pause_us{200};
  // Write this many junk bytes (0xEE) ahead of each packet.
  std::atomic<int> junk_bytes{0};

  // Commands the device ignores: they are recorded, no handler runs, nothing
  // is answered.
  void neverAnswer(int cmd) {
    std::lock_guard lk(m_);
    never_.insert(cmd);
  }
  void answerAgain(int cmd) {
    std::lock_guard lk(m_);
    never_.erase(cmd);
  }
  bool ignores(int cmd) const {
    std::lock_guard lk(m_);
    return never_.count(cmd) != 0;
  }
  std::set<int> neverAnswered() const {
    std::lock_guard lk(m_);
    return never_;
  }
  void setNeverAnswered(std::set<int> cmds) {
    std::lock_guard lk(m_);
    never_ = std::move(cmds);
  }

  // Back to a healthy device.
  void clear() {
    drop_next = 0;
    delay_us = 0;
    corrupt_next = 0;
    split_bytes = 0;
    split_pause_us = 200;
    junk_bytes = 0;
    std::lock_guard lk(m_);
    never_.clear();
  }

  // Takes one unit from a countdown field; true when one was there.
  static bool take(std::atomic<int>& counter) {
    int n = counter.load();
    while (n > 0 && !counter.compare_exchange_weak(n, n - 1)) {
    }
    return n > 0;
  }

 private:
  mutable std::mutex m_;
  std::set<int> never_;
};

}  // namespace orv::sim
