#include "analog/ai24.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool AI24BitModule::_checkAI24BitPort(const Value& port) {
  checkInputType(port, kTypeInt);
  const int ports = model().ai.ai24_ports;
  const int64_t p = port.asInt();
  if (ports > 0 && (p < 0 || p >= ports)) raise(ErrorId::AIPortNotAvaliableError);
  return true;
}

std::vector<double> AI24BitModule::AI_readOnDemand(const Call& c, const Value& port) {
  _checkAI24BitPort(port);
  const Bytes data_in = c.exchange(READAI24BIT, Bytes{portByte(port), 255});
  needReplyBytes(data_in, 2 + 24, READAI24BIT);
  const int re_port = data_in[0];
  std::vector<double> out;
  for (size_t i = 0; i < 8; ++i) {
    const uint8_t* d = data_in.data() + 2 + 3 * i;
    const uint32_t n = (uint32_t{d[0]} << 16) | (uint32_t{d[1]} << 8) | d[2];
    out.push_back(ai24Value(n, re_port));
  }
  return out;
}

}  // namespace orv
