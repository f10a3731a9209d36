// What every module class of a model shares: the device core it talks
// through, the model's table row, and attributes that hold the last result
// of a read.
//
// A module class (SystemModule, DIOModule, ...) derives from ModuleBase and
// writes each operation once against a Call (link/call.hpp).  A model class
// derives from one device class and its module classes (models/models.hpp)
// and answers device() with itself.
#pragma once

#include <mutex>
#include <utility>

#include "link/device.hpp"

namespace orv {

struct ModelInfo;

class ModuleBase {
 public:
  virtual ~ModuleBase() = default;
  virtual Device& device() = 0;
  // The model's row of the model table (port maps, parameters, label).
  const ModelInfo& model() { return device().modelInfo(); }
};

// An attribute set as a side effect of an operation (serial_number,
// rtc_time, ...): written by whichever thread ran the call, read by the host.
template <class T>
class Attr {
 public:
  Attr() = default;
  explicit Attr(T v) : v_(std::move(v)) {}
  T get() const {
    std::lock_guard lk(m_);
    return v_;
  }
  void set(T v) {
    std::lock_guard lk(m_);
    v_ = std::move(v);
  }

 private:
  mutable std::mutex m_;
  T v_{};
};

}  // namespace orv
