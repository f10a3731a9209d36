// The global handler registry.
#include <map>
#include <mutex>

#include "sim/handler.hpp"

namespace orv::sim {

namespace {

struct Entry {
  Handler handler;
  int priority = 0;
};

struct Registry {
  std::mutex m;
  std::map<int, Entry> entries;
};

// Built on first use, so registrars in any translation unit may run first.
Registry& registry() {
  static Registry r;
  return r;
}

}  // namespace

void registerHandler(int cmd, Handler handler, int priority) {
  Registry& r = registry();
  std::lock_guard lk(r.m);
  auto it = r.entries.find(cmd);
  if (it != r.entries.end() && it->second.priority > priority) return;
  r.entries[cmd] = Entry{std::move(handler), priority};
}

Handler findHandler(int cmd) {
  Registry& r = registry();
  std::lock_guard lk(r.m);
  auto it = r.entries.find(cmd);
  return it == r.entries.end() ? Handler{} : it->second.handler;
}

std::vector<int> registeredCommands() {
  Registry& r = registry();
  std::lock_guard lk(r.m);
  std::vector<int> out;
  for (const auto& [cmd, e] : r.entries) {
    if (e.handler) out.push_back(cmd);
  }
  return out;
}

}  // namespace orv::sim
