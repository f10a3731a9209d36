#include "motion/motion_axis.hpp"

#include "link/error.hpp"

namespace orv {

MotionSettings::MotionSettings()
    : entries_{{"Stepper Output", Value(0)},
               {"Inverse Motion Direction", Value(0)},
               {"Inverse Encoder Direction", Value(0)},
               {"Encoder A Polarity", Value(1)},
               {"Encoder B Polarity", Value(1)},
               {"Encoder Z Polarity", Value(0)},
               {"Home Enable", Value(0)},
               {"Forward Enable", Value(1)},
               {"Reverse Enable", Value(1)},
               {"Home Polarity", Value(0)},
               {"Forward Polarity", Value(1)},
               {"Reverse Polarity", Value(1)},
               {"Initial Search Direction", Value(1)},
               {"Final Approach Direction", Value(1)},
               {"Enable Reset Position", Value(0)},
               {"Approach Velocity Percent", Value(20.0)},
               {"Offset Position", Value(2000)},
               {"Servo On Polarity", Value(1)},
               {"Alarm Enable", Value(0)},
               {"Alarm Polarity", Value(0)},
               {"Inposition Enable", Value(0)},
               {"Inposition Polarity", Value(0)}} {}

const Value& MotionSettings::get(std::string_view label) const {
  for (const auto& [k, v] : entries_)
    if (k == label) return v;
  throw ValueError("no motion setting '" + std::string(label) + "'");
}

void MotionSettings::set(std::string_view label, Value v) {
  for (auto& [k, old] : entries_)
    if (k == label) {
      old = std::move(v);
      return;
    }
  throw ValueError("no motion setting '" + std::string(label) + "'");
}

}  // namespace orv
