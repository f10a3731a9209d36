#include "digital/dpot.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool DPOTModule::_checkDPOTPort(const Value& port) {
  checkInputType(port, kTypeInt);
  if (port.asInt() != 0) raise(ErrorId::DPOTPortNotAvaliableError);
  return true;
}

bool DPOTModule::_checkDPOTChannelAmount(const Value& channel) {
  checkInputType(channel, kTypeList);
  if (channel.size() != 4) raise(ErrorId::DPOTChannelNotAvaliableError);
  return true;
}

int DPOTModule::DPOT_open(const Call&, const Value& port) {
  _checkDPOTPort(port);
  return 0;
}

int DPOTModule::DPOT_close(const Call&, const Value& port) {
  _checkDPOTPort(port);
  return 0;
}

// The value from byte 2 on, exactly four bytes; the channel is not checked
// and there is no status.
int64_t DPOTModule::DPOT_readByChannel(const Call& c, const Value& port, const Value& channel) {
  _checkDPOTPort(port);
  const Bytes data_in = c.exchange(POT_READ, Bytes{portByte(port), portByte(channel)});
  const size_t from = std::min<size_t>(2, data_in.size());
  return convert4U8ToU32(std::span(data_in).subspan(from));
}

int DPOTModule::DPOT_writeAllChannel(const Call& c, const Value& port,
                                     const Value& resistance_ratio) {
  _checkDPOTPort(port);
  _checkDPOTChannelAmount(resistance_ratio);
  Bytes out{portByte(port)};
  for (const Value& r : resistance_ratio.asList()) appendF32(out, r);
  // The status follows the port and one more byte of the reply.
  return c.exchangeStatus(POT_WRITE_ALL_CS, out, 2);
}

}  // namespace orv
