#include "digital/relay.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

bool RelayModule::_checkRelayindex(const Value& index) {
  checkInputType(index, kTypeInt);
  const int64_t i = index.asInt();
  if (i < -1 || i > 5) raise(ErrorId::RelayCounterIndexError);
  return true;
}

int RelayModule::Relay_open(const Call&) { return model().has("Relay") ? 0 : -1; }

int RelayModule::Relay_close(const Call&) { return model().has("Relay") ? 0 : -1; }

// Counters from byte 2, four bytes each, high byte first; a partial group at
// the end is dropped.  No status.
std::vector<int64_t> RelayModule::Relay_read(const Call& c, const Value& index) {
  _checkRelayindex(index);
  const int64_t i = index.asInt();
  const uint8_t sent = i == -1 ? 255 : static_cast<uint8_t>(i);
  const Bytes data_in = c.exchange(RELAY_READ, Bytes{0, sent});
  std::vector<int64_t> newdata;
  if (data_in.size() <= 2) return newdata;
  const auto relay_counter = std::span(data_in).subspan(2);
  for (size_t k = 0; k + 4 <= relay_counter.size(); k += 4)
    newdata.push_back(convert4U8ToU32(relay_counter.subspan(k, 4)));
  return newdata;
}

}  // namespace orv
