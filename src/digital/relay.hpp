// RelayModule: the switching counters of the six relays of KestrelRelay.  The
// relays themselves are driven through digital output port 0 (DIOModule).
#pragma once

#include <cstdint>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int RELAY_READ = 6912;
inline constexpr int RELAY_SAVE = 6928;

class RelayModule : public ModuleBase {
 public:
  // Nothing to set up on the device: 0 on KestrelRelay, -1 elsewhere.
  int Relay_open(const Call& c);
  int Relay_close(const Call& c);
  // index -1 reads every counter; 0..5 one of them.
  std::vector<int64_t> Relay_read(const Call& c, const Value& index);

  static bool _checkRelayindex(const Value& index);
};
ORV_MODULE_CLASS("Relay", RelayModule);

}  // namespace orv
