// The per-device state store that handlers keep their firmware state in.
//
// Two ways to use it, both under the one recursive mutex of the device:
//   - typed slots: a module declares its own struct and takes
//       auto dio = ctx.state().slot<DioState>();   // locked while `dio` lives
//       dio->word[port] = ...;
//     One object of each type per device, default-constructed on first use.
//   - a key/value store of orv::Value for small loose items
//       ctx.state().set("ai.rate", 1000.0);
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <typeindex>
#include <unordered_map>
#include <utility>

#include "link/value.hpp"

namespace orv::sim {

class DeviceState {
 public:
  // A slot held under the state lock.
  template <typename T>
  class Locked {
   public:
    Locked(std::unique_lock<std::recursive_mutex> lk, T& obj) : lk_(std::move(lk)), obj_(&obj) {}
    T* operator->() const { return obj_; }
    T& operator*() const { return *obj_; }
    T& get() const { return *obj_; }

   private:
    std::unique_lock<std::recursive_mutex> lk_;
    T* obj_;
  };

  template <typename T>
  Locked<T> slot() {
    std::unique_lock lk(m_);
    auto& p = slots_[std::type_index(typeid(T))];
    if (!p) p = std::make_shared<T>();
    return Locked<T>(std::move(lk), *static_cast<T*>(p.get()));
  }

  // Runs fn(T&) under the lock and returns its result.
  template <typename T, typename Fn>
  auto with(Fn&& fn) {
    auto s = slot<T>();
    return std::forward<Fn>(fn)(*s);
  }

  Value get(std::string_view key, Value fallback = {}) const {
    std::lock_guard lk(m_);
    auto it = kv_.find(key);
    return it == kv_.end() ? fallback : it->second;
  }
  void set(std::string key, Value v) {
    std::lock_guard lk(m_);
    kv_[std::move(key)] = std::move(v);
  }
  bool has(std::string_view key) const {
    std::lock_guard lk(m_);
    return kv_.find(key) != kv_.end();
  }
  void erase(std::string_view key) {
    std::lock_guard lk(m_);
    auto it = kv_.find(key);
    if (it != kv_.end()) kv_.erase(it);
  }
  std::map<std::string, Value, std::less<>> snapshot() const {
    std::lock_guard lk(m_);
    return kv_;
  }

  // Forgets everything (a rebooted device).
  void clear() {
    std::lock_guard lk(m_);
    kv_.clear();
    slots_.clear();
  }

  std::recursive_mutex& mutex() { return m_; }

 private:
  mutable std::recursive_mutex m_;
  std::map<std::string, Value, std::less<>> kv_;
  std::unordered_map<std::type_index, std::shared_ptr<void>> slots_;
};

}  // namespace orv::sim
