// AIModule: the 16-bit analog inputs.  Three ways to acquire: one sample on
// request (mode 0), a fixed number of samples (mode 1) and an endless stream
// (mode 2).  In the two streaming modes the firmware pushes raw records; the
// decoder thread ai_stream_thread turns them into samples (one list of volts
// per instant, one value per channel) on bounded queues that
// AI_readStreaming empties.
//
// Where a record is decoded: on the thread that receives it, as it arrives,
// while the gate is open and nothing else decodes; otherwise by the decoder
// thread, which the arrival wakes.  Either way under one lock, in the order
// the records came.
//
// Streams: one (raw queue, decoded queue) pair, or on a slotted model
// (Trellis) nine, for port 0, 1, 3 and chip select 0, 1, 2, at the index
// _AI_changePortToIndex gives.  The raw queues are the device's stream
// queues of the key (ai_strm_cmd, port, cs).
//
// The gate ai_lock parks the decoder while the module is closed: held from
// construction, released by a successful AI_open, taken again by a
// successful AI_close.  Failed statuses leave the open flag changed and the
// gate as it was (a failed AI_open keeps the decoder parked until close).
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "analog/sample_queue.hpp"
#include "link/call.hpp"
#include "link/device.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_AI = 176;
inline constexpr int SET_AI_SAMPLING_RATE = 177;
inline constexpr int SET_AI_MODE = 178;
inline constexpr int SET_AI_NUM_SAMPLES = 179;
inline constexpr int SET_AI_ENABLED_CS = 180;
inline constexpr int READ_AI_ON_DEMAND = 181;
inline constexpr int OPEN_AI_STREAMING = 182;
inline constexpr int CLOSE_AI_STREAMING = 184;
inline constexpr int CLEAR_DATA = 186;
inline constexpr int CHECK_BUFFER_STATUS = 187;
inline constexpr int GET_AI_COUNTERS = 188;
inline constexpr int READ_AI_ON_DEMAND_VARIABLE = 189;
inline constexpr int CLOSE_AI = 191;
inline constexpr int READAI24BIT = 8196;
// AI_RESET_BUFFER (8213) stands in services/system_analog.hpp; no AI operation sends it.

// Python's round(x, digits) for a double: the decimal nearest to the exact
// binary value, ties to even, read back as the nearest double.
double roundHalfEven(double x, int digits);
// One raw signed 16-bit count in volts: round(count * ratio, 4).
inline double aiVolts(int16_t count, double ratio) { return roundHalfEven(count * ratio, 4); }
// aiVolts of every count, made once per ratio (512 KiB), indexed by the
// count's 16 bits as sent: the decoder looks each value up.
const double* aiVoltsTable(double ratio);
// A 24-bit offset-binary count (2^23 is zero) of the given port: current in
// mA on port 0, volts otherwise, round(..., 3).
double ai24Value(uint32_t count, int re_port);

// Wakes the decoder when a record reaches one of its raw queues: each queue
// watched rings it (StreamQueue::watch).  The decoder notes seq() before it
// looks into its queues and waits for a change after finding them empty, so
// a record that comes in between is never missed.
class Doorbell {
 public:
  uint64_t seq() const;
  void ring();
  // Until seq() differs from `seen` or `stop` is set (ring after setting it).
  void wait(uint64_t seen, const std::atomic<bool>& stop);

 private:
  mutable std::mutex m_;
  std::condition_variable cv_;
  uint64_t seq_ = 0;
};

using AiSample = std::vector<double>;
using AiSamples = std::vector<AiSample>;

// Samples of a stream read laid out flat, row by row: `samples` rows of
// `width` values (the host makes a (samples, width) array of it).
struct AiBlock {
  std::vector<double> values;
  size_t samples = 0;
  size_t width = 0;
};

class AIModule : public ModuleBase {
 public:
  AIModule();
  ~AIModule() override;
  AIModule(const AIModule&) = delete;
  AIModule& operator=(const AIModule&) = delete;

  int AI_open(const Call& c, const Value& port);
  int AI_close(const Call& c, const Value& port);
  std::vector<int> AI_getPort();
  int AI_setMode(const Call& c, const Value& port, const Value& mode);
  int AI_setNumSamples(const Call& c, const Value& port, const Value& num_samples);
  int AI_setSamplingRate(const Call& c, const Value& port, const Value& sampling_rate);
  int AI_enableChannel(const Call& c, const Value& port, const Value& channel);
  int AI_enableCS(const Call& c, const Value& slot, const Value& chip_select);
  int AI_start(const Call& c, const Value& port);
  int AI_stop(const Call& c, const Value& port);
  AiSample AI_readOnDemand(const Call& c, const Value& port);
  AiSamples AI_readStreaming(const Call& c, const Value& port, int64_t num_samples, double delay);
  // The same read into flat rows of the port's sample width (see
  // AI_sampleWidth): into a new block, or into `out`, which has room for
  // `rows` samples (rows * width values); returns the samples written.  A
  // sample of another width (decoded before the channel count changed) does
  // not fit a row: it is taken from its queue and left out.
  AiBlock AI_readStreamingBlock(const Call& c, const Value& port, int64_t num_samples,
                                double delay);
  size_t AI_readStreamingInto(const Call& c, const Value& port, double* out, size_t rows,
                              size_t width, double delay);
  // Values per sample of the port now: channels times enabled chip selects.
  size_t AI_sampleWidth(const Value& port);
  // Samples of the port dropped because its decoded queue was full, counted
  // between the port's previous read and its latest one (on Trellis the most
  // that any enabled chip select lost); 0 before the first read.
  uint64_t AI_getReadDropped(const Value& port);

  // Internal operations.
  std::vector<uint32_t> AI_getCounter_(const Call& c, const Value& port);
  std::vector<uint32_t> AI_readBufferStatus_(const Call& c, const Value& port);
  int AI_clearBufferStatus_(const Call& c, const Value& port);
  void AI_openStreaming_(const Call& c, const Value& port);
  int AI_startStreaming_(const Call& c, const Value& port);
  void AI_free_();
  bool _checkAIPinState(const Call& c, const Value& port, const Value& allow_state);
  std::vector<int> AI_getPinMapPort_(const Value& ai_port);
  static int64_t AI_changePortToIndex_(int64_t port, int64_t cs);

  // Checks (true on success).
  bool _checkAIPort(const Value& port);
  static bool _checkAIMode(const Value& mode);
  static bool _checkAIChannel(const Value& channel);
  static bool _checkAIChipSelect(const Value& cs);
  bool _ckeckAISamplingRate(const Value& port, const Value& sampling_rate);

  // Attributes the host reads.
  int aiNumChannels() const;
  bool aiOpenFlag() const { return open_flag_.load(); }
  bool aiKilled() const { return killed_.load(); }
  std::vector<int64_t> chipSelect(int port) const;
  int aiEchoCmd() const;
  int aiStrmCmd() const;
  // How many queue pairs, and the size of the decoded queue at an index.
  size_t decodedSize(size_t index);
  // Samples dropped because a decoded queue was full, since the start.
  uint64_t droppedSamples() const { return dropped_.load(); }
  // The same for the stream at one index of the queue lists.
  uint64_t droppedAt(size_t index);
  bool decoderAlive() const { return decoder_alive_.load(); }
  // Ends and joins the decoder (the model's close and the destructor).
  void closeModule() noexcept override;

 private:
  struct Streams {
    std::vector<std::shared_ptr<StreamQueue>> raw;
    std::vector<std::shared_ptr<SampleQueue>> decoded;
    // Per index: samples its decoded queue dropped, and how many of them a
    // read of its port has counted (under read_m_).
    std::deque<std::atomic<uint64_t>> dropped;
    std::vector<uint64_t> dropped_counted;
  };
  // What a stream read of one port works with.
  struct ReadPlan {
    int64_t port = 0;
    std::vector<size_t> indices;
    std::vector<SampleQueue*> queues;
  };
  ReadPlan planRead(const Value& port_in);
  // Waits as AI_readStreaming does and returns how many samples to take.
  int64_t samplesToTake(const Call& c, const ReadPlan& plan, int64_t num_samples, double delay);
  size_t fillRows(const Call& c, const ReadPlan& plan, int64_t take, double* out, size_t width);
  // Counts the drops of the plan's streams up to now as the port's latest read's.
  void countReadDrops(const ReadPlan& plan);
  // Made on first use: the model's row is not there while modules construct.
  Streams& streams();
  void decodeLoop();
  // Every record waiting on the raw queue at `index`, decoded; under decode_->m.
  void decodeWaiting(size_t index);
  // The receive thread's turn at a record that just arrived, under
  // decode_->m; false when it is the decoder thread's (gate closed, module
  // closing, a failure to report).
  bool decodeWhereArrived(size_t index);
  // One raw record into samples on its decoded queue; samples that do not
  // fit are counted in overflows_ for the decoder thread to warn of.
  void decodeRecord(const Bytes& raw, size_t index);
  void warnOverflows();
  std::vector<int64_t>& chipSelectRef(int64_t port);
  void putMarkers();
  void closeDecoded();
  Value slotPort(const Value& port) const;

  std::atomic<int> num_channels_{-1};  // -1: the model's value
  std::atomic<bool> open_flag_{false};
  std::atomic<bool> killed_{false};
  std::atomic<bool> decoder_alive_{true};
  std::atomic<uint64_t> dropped_{0};
  std::mutex read_m_;
  std::map<int64_t, uint64_t> read_dropped_;  // by port, under read_m_
  mutable std::mutex cs_m_;
  std::vector<int64_t> cs_p0_{0}, cs_p1_{0}, cs_p3_{0};
  Gate ai_lock_;  // closed: the decoder stands still
  std::shared_ptr<Doorbell> bell_ = std::make_shared<Doorbell>();
  std::once_flag streams_once_;
  std::atomic<bool> streams_made_{false};
  Streams streams_;
  std::once_flag join_once_;
  // Held by whichever thread decodes; shared with the raw queues' listeners,
  // which check `dead` before they touch the module.
  struct DecodeState {
    std::mutex m;
    bool dead = false;
    std::exception_ptr failure;  // a record the receive thread could not decode
  };
  std::shared_ptr<DecodeState> decode_ = std::make_shared<DecodeState>();
  std::vector<double> decode_buf_;  // one record's values, under decode_->m
  std::atomic<uint64_t> overflows_{0};
  std::thread thread_;
};
ORV_MODULE_CLASS("AI", AIModule);

}  // namespace orv
