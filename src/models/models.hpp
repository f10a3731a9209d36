// The model classes, made from models/models.def.
#pragma once

#include "link/device.hpp"
#include "digital/counter.hpp"
#include "digital/dio.hpp"
#include "digital/dpot.hpp"
#include "digital/pwm.hpp"
#include "digital/relay.hpp"
#include "services/network.hpp"
#include "services/system.hpp"
#include "services/system_analog.hpp"
#include "services/wifi.hpp"

namespace orv {

// A device class with its modules, all sharing that one device.
template <class DeviceClass, class... Modules>
class ModelOf : public DeviceClass, public Modules... {
 public:
  ModelOf(bool verbose, const char* class_name) : DeviceClass(verbose, class_name) {}
  Device& device() override { return *this; }
};

#define ORV_MODEL(Name, DeviceClass, ...)                                    \
  class Name final : public ModelOf<DeviceClass, __VA_ARGS__> {             \
   public:                                                                   \
    explicit Name(bool verbose = true, const char* class_name = #Name)       \
        : ModelOf<DeviceClass, __VA_ARGS__>(verbose, class_name) {}          \
  };
#include "models/models.def"
#undef ORV_MODEL

}  // namespace orv
