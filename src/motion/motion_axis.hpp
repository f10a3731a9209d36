// The host-side mirror of one motion axis: what the last configuration
// calls left, read again by the start operations, and the labelled settings
// that the motion ini file persists.  Shared by both motion chips' modules.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "link/value.hpp"

namespace orv {

// Label -> setting, in the file's order.  Every value is an int except
// "Approach Velocity Percent", a float.
class MotionSettings {
 public:
  using Entries = std::vector<std::pair<std::string, Value>>;

  MotionSettings();
  const Entries& entries() const { return entries_; }
  // The setting of a label; a label not in the list raises KeyError-like
  // ValueError naming it.
  const Value& get(std::string_view label) const;
  int64_t getInt(std::string_view label) const { return get(label).asInt(); }
  void set(std::string_view label, Value v);

 private:
  Entries entries_;
};

struct MotionAxis {
  int64_t acceleration = 100000;
  int64_t deceleration = 100000;
  int64_t target_position = 0;
  int64_t encoder_position = 0;
  int64_t velocity = 10000;
  int64_t velocity_move_direction = 0;
  int64_t jerk = 1;
  int64_t search_velocity = 10000;
  int64_t search_accerleration = 100000;
  int64_t acceleration_mode = 0;
  int64_t operation_mode = 0;
  int64_t stop_decl = 0;
  int64_t stop = 0;
  int64_t search_type = 0;
  int64_t destinate_position = 0;
  int64_t capture_type = 0;
  int64_t capture_mode = 0;
  int64_t breakpoint_mode = 0;
  int64_t breakpoint_polarity = 1;
  int64_t breakpoint_start_position = 0;
  int64_t breakpoint_pulse_width = 0;
  int64_t breakpoint_pulse_period = 0;
  int64_t breakpoint_pulse_number = 0;
  MotionSettings motion_dict;
};

}  // namespace orv
