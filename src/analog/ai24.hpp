// AI24BitModule: the 24-bit inputs of KestrelCin (port 0, current) and
// KestrelCvin (port 0 current, port 1 voltage).  One read on request; these
// models have no stream, no gate and no open or close.
#pragma once

#include <vector>

#include "analog/ai.hpp"
#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

class AI24BitModule : public ModuleBase {
 public:
  // Eight values: mA when the device answers for port 0, volts otherwise.
  std::vector<double> AI_readOnDemand(const Call& c, const Value& port);
  bool _checkAI24BitPort(const Value& port);
};
ORV_MODULE_CLASS("AI24Bit", AI24BitModule);

}  // namespace orv
