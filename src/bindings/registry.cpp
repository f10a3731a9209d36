// The registered bindings: each binding file adds itself when the extension
// is loaded; they run in their order.
#include <algorithm>
#include <cstring>
#include <tuple>

#include "bindings/bindings.hpp"

namespace orv::py_bind {

namespace {
std::vector<Binding>& registry() {
  static std::vector<Binding> all;
  return all;
}
}  // namespace

BindingRegistrar::BindingRegistrar(const Binding& b) { registry().push_back(b); }

std::vector<Binding> registeredBindings() {
  std::vector<Binding> out = registry();
  std::sort(out.begin(), out.end(), [](const Binding& a, const Binding& b) {
    return a.order != b.order ? a.order < b.order : std::strcmp(a.name, b.name) < 0;
  });
  return out;
}

void bindRegistered(py::module_& m) {
  for (const Binding& b : registeredBindings()) b.bind(m);
}

}  // namespace orv::py_bind
