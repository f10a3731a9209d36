// The attitude sensor of HeronAinImu: a nine-axis inertial unit whose
// estimator runs on the device; the host sets its period and filter and asks
// for orientation and acceleration.
#pragma once

#include <cstdint>
#include <vector>

#include "link/call.hpp"
#include "link/constants.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int AHRS_OPEN = 9216;
// AHRS_START (9217) is a streaming command: link/constants.hpp.
inline constexpr int AHRS_STOP = 9218;
inline constexpr int AHRS_CLOSE = 9219;
inline constexpr int AHRS_RESET = 9232;
inline constexpr int AHRS_SET_GNRL = 9233;
inline constexpr int AHRS_VQF_SET_TAU = 9234;
inline constexpr int AHRS_VQF_SET_ENABLING = 9235;
inline constexpr int AHRS_VQF_SET_GYRO_BIAS = 9236;
inline constexpr int AHRS_VQF_SET_REST_DETECT = 9237;
inline constexpr int AHRS_VQF_SET_MAG_DETECT = 9238;
inline constexpr int AHRS_VQF_SET_MAG_REF = 9239;
inline constexpr int AHRS_VQF_SET_MAG_REJECT = 9240;
inline constexpr int AHRS_DEBUG = 9248;
inline constexpr int AHRS_GET_RAW_DATA = 9249;
inline constexpr int AHRS_GET_ESTIMATES = 9250;
inline constexpr int AHRS_GET_COUNTER = 9251;

class AHRSModule : public ModuleBase {
 public:
  int AHRS_open(const Call& c, const Value& port);
  int AHRS_start(const Call& c, const Value& port);
  int AHRS_stop(const Call& c, const Value& port);
  int AHRS_close(const Call& c, const Value& port);
  int AHRS_reset(const Call& c, const Value& port);
  int AHRS_setSamplingPeriod(const Call& c, const Value& port, const Value& sampling_period);
  // Mode 0: roll, pitch, yaw in degrees; 1: acceleration; 2: both, orientation first.
  std::vector<double> AHRS_getEstimate(const Call& c, const Value& port, const Value& mode);
  int AHRS_setGeneral_(const Call& c, const Value& port, const Value& gravity, const Value& dt,
                       const Value& z_offset);
  int AHRS_VQF_setTau_(const Call& c, const Value& port, const Value& accelerator_decay_time,
                       const Value& magnetometer_decay_time);

  bool _checkAHRSPort(const Value& port);
  static bool _checkAHRSMode(const Value& mode);
  static int _convertModeToMask(const Value& mode);

 private:
  int portOnly(const Call& c, int cmd, const Value& port);
};
ORV_MODULE_CLASS("AHRS", AHRSModule);

}  // namespace orv
