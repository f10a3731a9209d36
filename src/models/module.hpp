// What every module class of a model shares: the device core it talks
// through, the model's table row, the other modules of the same model, and
// attributes that hold the last result of a read.
//
// A module class (SystemModule, DIOModule, ...) derives from ModuleBase and
// writes each operation once against a Call (link/call.hpp).  A model class
// (models/models.hpp) derives from one device class and its module classes,
// answers device() with itself, model() with its row of the model table, and
// sibling<M>() with its own M base.
//
// A module header names its class for the model table with
//   ORV_MODULE_CLASS("DIO", DIOModule)
// so that a row's module name ("DIO") stands for the class when the model
// classes are composed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <string_view>
#include <typeinfo>
#include <utility>

#include "link/device.hpp"
#include "models/model_info.hpp"

namespace orv {

class ModuleBase {
 public:
  virtual ~ModuleBase() = default;
  virtual Device& device() = 0;
  // The model's row of the model table (port maps, parameters, label).
  virtual const ModelInfo& model() const = 0;
  // Ends and joins the threads the module owns (decoders, stream readers,
  // writers).  The model's close runs it for each module, in the model's
  // order, after the device's own close; the model's destructor runs it too,
  // then possibly with the device still open, so a module wakes its own
  // threads here rather than counting on the links going down.  Runs more
  // than once; never throws.
  virtual void closeModule() noexcept {}
  // Another module of the same model; nullptr when the model has none.
  template <class M>
  M* sibling() {
    return static_cast<M*>(siblingOf(typeid(M)));
  }

 protected:
  // The model's base of this type, or nullptr.
  virtual void* siblingOf(const std::type_info& type) = 0;
};

// A module name of the model table as a template argument ("DIO").
template <size_t N>
struct ModuleName {
  constexpr ModuleName(const char (&s)[N]) { std::copy_n(s, N, text); }
  constexpr std::string_view view() const { return {text, N - 1}; }
  char text[N];
};

// The class of a module name; void for a module not written yet.
template <ModuleName Name>
struct ModuleClass {
  using type = void;
};

#define ORV_MODULE_CLASS(name, Class) \
  template <>                         \
  struct ModuleClass<name> {          \
    using type = Class;               \
  }

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
