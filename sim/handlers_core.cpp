// Handlers every simulated device has from the start: identity and a simple
// analog-input stream.  They register at core priority, so a module's own
// handler file may take any of these commands over.
#include <algorithm>
#include <map>

#include "link/constants.hpp"
#include "sim/device.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

namespace {

constexpr int GET_SERIAL_NUMBER = 122;
constexpr int CLOSE_AI_STREAMING = 184;

// Defaults of the built-in stream: records per second and payload bytes.
constexpr int kDefaultRecordRate = 1000;
constexpr int kDefaultPayload = 16;

void getDriverInfo(Context& ctx, const Request&) {
  ctx.reply(textBytes(ctx.device().config().driver_info));
}

// Eight bytes of serial text, padded with spaces when shorter.
void getSerialNumber(Context& ctx, const Request&) {
  std::string s = ctx.device().serial().substr(0, 8);
  s.resize(8, ' ');
  ctx.reply(textBytes(s));
}

struct AiStreams {
  std::map<int, int> task_by_port;  // port -> periodic task id
};

void stopStream(SimDevice& dev, int port) {
  int id = 0;
  {
    auto streams = dev.state().slot<AiStreams>();
    auto it = streams->task_by_port.find(port);
    if (it == streams->task_by_port.end()) return;
    id = it->second;
    streams->task_by_port.erase(it);
  }
  dev.stopPeriodic(id);
}

// data: port, then optionally chip select, records per second (2 bytes, big
// endian) and payload bytes per record.  Records: port, cs, then the payload
// of a running byte counter, every 1/rate seconds until CLOSE_AI_STREAMING.
void startAiStreaming(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  const int port = req.data[0];
  const uint8_t cs = req.data.size() > 1 ? req.data[1] : 0;
  int rate = req.data.size() > 3 ? (req.data[2] << 8) | req.data[3] : kDefaultRecordRate;
  if (rate <= 0) rate = kDefaultRecordRate;
  const size_t payload = req.data.size() > 4 ? req.data[4] : kDefaultPayload;
  SimDevice& dev = ctx.device();
  stopStream(dev, port);
  const Bytes prefix{static_cast<uint8_t>(port), cs};
  const int id =
      dev.startPeriodic(std::chrono::microseconds(1000000 / rate), [&dev, prefix, payload] {
        Bytes data = prefix;
        const Bytes counter = dev.counterBytes(payload);
        data.insert(data.end(), counter.begin(), counter.end());
        dev.writeStream(START_AI_STREAMING, data);
        return true;
      });
  dev.state().slot<AiStreams>()->task_by_port[port] = id;
}

void closeAiStreaming(Context& ctx, const Request& req) {
  if (req.data.empty()) return;
  stopStream(ctx.device(), req.data[0]);
  ctx.reply({req.data[0], 0});
}

const Registrar core{{{GET_DRIVER_INFO, getDriverInfo},
                      {GET_SERIAL_NUMBER, getSerialNumber},
                      {START_AI_STREAMING, startAiStreaming},
                      {CLOSE_AI_STREAMING, closeAiStreaming}},
                     kCorePriority};

}  // namespace

}  // namespace orv::sim
