// Binding a device class: its constructor makes the object with a holder
// whose deleter drops the GIL (the destructor joins the receive threads), and
// registers it to be closed at interpreter exit.  A device collected while
// still open says so with a ResourceWarning before its destructor closes it.
#pragma once

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>
#include <optional>
#include <string>

#include "bindings/bindings.hpp"
#include "link/device.hpp"

namespace orv::py_bind {

void trackDevice(const std::shared_ptr<Device>& d);
void closeAllDevices();
// Emits the ResourceWarning of a device dropped without close (GIL held).
void warnUnclosed(const Device& d);

template <class T>
std::shared_ptr<T> makeDevice(bool verbose, const char* class_name) {
  std::shared_ptr<T> p(new T(verbose, class_name), [](T* t) {
    if (Py_IsInitialized() && PyGILState_Check()) {
      if (!t->killed()) warnUnclosed(*t);
      py::gil_scoped_release r;
      delete t;
    } else {
      delete t;
    }
  });
  trackDevice(p);
  return p;
}

// A device class whose constructor is T(verbose=True).  A BroadcastDevice's
// constructor also takes broadcast_addr ("host" or "host:port") for the
// discovery target.
template <class T, class... Bases>
py::class_<T, Bases..., std::shared_ptr<T>> bindDeviceClass(py::module_& m, const char* name,
                                                            const char* doc = nullptr) {
  py::class_<T, Bases..., std::shared_ptr<T>> cls(m, name, doc);
  std::string cname = name;
  if constexpr (std::is_base_of_v<BroadcastDevice, T>) {
    cls.def(py::init([cname](bool verbose, std::optional<std::string> target) {
              auto d = makeDevice<T>(verbose, cname.c_str());
              if (target) {
                auto colon = target->rfind(':');
                if (colon == std::string::npos)
                  d->clientUdp()->setBroadcastTarget(*target, UDP_SEND_PORT);
                else
                  d->clientUdp()->setBroadcastTarget(target->substr(0, colon),
                                                     std::stoi(target->substr(colon + 1)));
              }
              return d;
            }),
            py::arg("verbose") = true, py::arg("broadcast_addr") = py::none());
  } else {
    cls.def(py::init([cname](bool verbose) { return makeDevice<T>(verbose, cname.c_str()); }),
            py::arg("verbose") = true);
  }
  return cls;
}

}  // namespace orv::py_bind
