// What a simulated AO channel outputs at an instant, for the analog inputs
// that read it back (the AI waveform ["ao", channel, port]): the running
// form or pushed buffer of an enabled channel, else the value written on
// demand.  0 for a port nothing was written to.
#pragma once

#include <chrono>

namespace orv::sim {

class SimDevice;

double aoOutput(SimDevice& dev, int port, int channel, std::chrono::steady_clock::time_point at);

}  // namespace orv::sim
