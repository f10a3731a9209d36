// AHRSModule as the host sees it: one row per operation.
#include "analog/ahrs.hpp"
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"

namespace orv::py_bind {

namespace {

void bindAHRS(py::module_& m) {
  using A = AHRSModule;
  py::class_<A, std::shared_ptr<A>> cls(
      m, "AHRSModule",
      "The attitude sensor of HeronAinImu: orientation and acceleration estimated on the device.");
  const Arg port{"port", kInt, "0, the key of ahrs_dict"};
  constexpr const char* port_refused =
      "InputTypeNotCorrectError: port is not an int.\n"
      "AHRSPortNotAvaliableError: port is not a key of ahrs_dict.";
  constexpr const char* numbers_refused =
      "InputTypeNotCorrectError: port is not an int, or a value not a number.\n"
      "AHRSPortNotAvaliableError: port is not a key of ahrs_dict.";
  defTwin(cls, &A::AHRS_open,
          {"AHRS_open", "Opens the inertial unit.", {port}, {kInt, kStatusText}, port_refused});
  defTwin(cls, &A::AHRS_start,
          {"AHRS_start",
           "Starts the estimator (both estimates); sent without waiting for a reply.",
           {port},
           {kInt, "0"},
           port_refused});
  defTwin(cls, &A::AHRS_stop,
          {"AHRS_stop", "Stops the estimator.", {port}, {kInt, kStatusText}, port_refused});
  defTwin(cls, &A::AHRS_close,
          {"AHRS_close", "Closes the inertial unit.", {port}, {kInt, kStatusText}, port_refused});
  defTwin(cls, &A::AHRS_reset,
          {"AHRS_reset", "Resets the estimator.", {port}, {kInt, kStatusText}, port_refused});
  defTwin(cls, &A::AHRS_setSamplingPeriod,
          {"AHRS_setSamplingPeriod",
           "Sets the estimator's period; gravity 9.81 and z offset 0.001 go with it.",
           {port, {"sampling_period", kFloat, "seconds, sent as a 32-bit float"}},
           {kInt, kStatusText},
           numbers_refused});
  defTwin(cls, &A::AHRS_getEstimate,
          {"AHRS_getEstimate",
           "Reads the current estimate.",
           {port, {"mode", kInt, "0: orientation, 1: acceleration, 2: both"}},
           {"list[float]",
            "mode 0: roll, pitch, yaw in degrees; 1: three accelerations as the device gives "
            "them; 2: the three angles, then the three accelerations; 4 decimal places"},
           "InputTypeNotCorrectError: port or mode is not an int.\n"
           "AHRSPortNotAvaliableError: port is not a key of ahrs_dict, or mode is not 0..2."});
  defTwin(cls, &A::AHRS_setGeneral_,
          {"_AHRS_setGeneral",
           "Sets gravity, the period and the z offset of the estimator.",
           {port,
            {"gravity", kFloat, "m/s^2"},
            {"dt", kFloat, "seconds"},
            {"z_offset", kFloat, "z offset"}},
           {kInt, kStatusText},
           numbers_refused});
  // The twin has the blocking method's own name: the blocking one is found.
  defTwin(cls, &A::AHRS_VQF_setTau_,
          {"_AHRS_VQF_setTau",
           "Sets the filter's decay times.",
           {port,
            {"accelerator_decay_time", kFloat, "seconds"},
            {"magnetometer_decay_time", kFloat, "seconds"}},
           {kInt, kStatusText},
           numbers_refused,
           "_AHRS_VQF_setTau"});
  cls.def(
      "_checkAHRSPort", [](A& self, const Value& p) { return self._checkAHRSPort(p); },
      py::arg("port"));
  cls.def(
      "_checkAHRSMode", [](A&, const Value& mode) { return A::_checkAHRSMode(mode); },
      py::arg("mode"));
  cls.def(
      "_convertModeToMask", [](A&, const Value& mode) { return A::_convertModeToMask(mode); },
      py::arg("mode"));
}

const BindingRegistrar kAHRS{{.name = "AHRSModule", .module = "AHRS", .bind = &bindAHRS}};

}  // namespace

}  // namespace orv::py_bind
