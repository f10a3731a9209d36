#include "analog/ai.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <set>
#include <string>

#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "link/report.hpp"
#include "link/thread_name.hpp"
#include "services/system.hpp"

namespace orv {

// ---------------------------------------------------------------------------
// Values.

namespace {
constexpr double kPow10[] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
}  // namespace

double roundHalfEven(double x, int digits) {
  if (!std::isfinite(x) || digits < 0 || digits > 9) return x;
  const double a = std::fabs(x);
  const double scale = kPow10[digits];
  const double y = a * scale;
  // y is within 2^-21 of the exact a * 10^digits below 2^32: away from a
  // half the integer below or above is the same for both, and k / 10^digits
  // is then the double nearest to the decimal.
  if (y < 4294967296.0) {
    const double k = std::floor(y);
    const double frac = y - k;
    if (std::fabs(frac - 0.5) > 1e-6) return std::copysign((frac > 0.5 ? k + 1 : k) / scale, x);
  }
  // Near a half: the exact decimal expansion decides (ties to even).
  char buf[64];
  const auto done = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::fixed, digits);
  double r = 0;
  std::from_chars(buf, done.ptr, r);
  return std::copysign(r, x);
}

const double* aiVoltsTable(double ratio) {
  static std::mutex m;
  static std::map<double, std::unique_ptr<double[]>> tables;
  std::lock_guard lk(m);
  std::unique_ptr<double[]>& t = tables[ratio];
  if (!t) {
    t = std::make_unique<double[]>(65536);
    for (int raw = 0; raw < 65536; ++raw)
      t[raw] = aiVolts(static_cast<int16_t>(static_cast<uint16_t>(raw)), ratio);
  }
  return t.get();
}

double ai24Value(uint32_t count, int re_port) {
  const double full = re_port == 0 ? 50.0 : 25.0;  // mA or V
  const double v = -full + static_cast<double>(count) * full / 8388608.0;
  return roundHalfEven(v, 3);
}

namespace {

// One queue's next `n` samples for `each`; the blocking twin waits for
// those another reader took meanwhile, the awaitable one goes without them.
// Returns how many it took.
template <class Each>
size_t takeSamples(const Call& c, SampleQueue& q, size_t n, Each&& each) {
  size_t got = q.take(n, each);
  while (got < n && !c.isAwaitable()) {
    c.waitQueue(q, 1, Clock::time_point::max());
    got += q.take(n - got, each);
  }
  return got;
}

int64_t portKey(const Value& port) { return port.asInt(); }

std::vector<uint32_t> words(const Bytes& data_in, size_t from, size_t count, int cmd) {
  needReplyBytes(data_in, from + 4 * count, cmd);
  std::vector<uint32_t> out;
  for (size_t i = 0; i < count; ++i)
    out.push_back(convert4U8ToU32(std::span(data_in).subspan(from + 4 * i, 4)));
  return out;
}

}  // namespace

// ---------------------------------------------------------------------------
// Life.

uint64_t Doorbell::seq() const {
  std::lock_guard lk(m_);
  return seq_;
}

void Doorbell::ring() {
  {
    std::lock_guard lk(m_);
    ++seq_;
  }
  cv_.notify_all();
}

void Doorbell::wait(uint64_t seen, const std::atomic<bool>& stop) {
  std::unique_lock lk(m_);
  cv_.wait(lk, [&] { return seq_ != seen || stop.load(); });
}

AIModule::AIModule() {
  ai_lock_.close();  // held from the start: the decoder stands still
  thread_ = std::thread([this] {
    nameThisThread("orv-ai-decode");
    decodeLoop();
  });
}

AIModule::~AIModule() { closeModule(); }

void AIModule::closeModule() noexcept {
  {
    std::lock_guard lk(decode_->m);  // waits out a record being decoded where it arrived
    decode_->dead = true;
  }
  killed_.store(true);
  putMarkers();
  ai_lock_.forceOpen();
  bell_->ring();
  std::call_once(join_once_, [this] {
    if (thread_.joinable() && thread_.get_id() != std::this_thread::get_id()) thread_.join();
  });
  closeDecoded();  // a read still waiting ends with DeviceClosedError
}

void AIModule::AI_free_() { closeModule(); }

AIModule::Streams& AIModule::streams() {
  std::call_once(streams_once_, [this] {
    StreamPool& pool = device().streamPool();
    const int cmd = aiStrmCmd();
    auto add = [&](int port, int cs) {
      const size_t index = streams_.raw.size();
      streams_.raw.push_back(pool.get(StreamKey::triple(cmd, port, cs)));
      streams_.raw.back()->setListener([st = decode_, bell = bell_, self = this, index] {
        std::unique_lock lk(st->m, std::try_to_lock);
        if (lk.owns_lock() && !st->dead && self->decodeWhereArrived(index)) return;
        bell->ring();  // the decoder thread's turn
      });
      streams_.decoded.push_back(std::make_shared<SampleQueue>(QUEUE_SIZE_MAX));
      streams_.dropped.emplace_back(0);
      streams_.dropped_counted.push_back(0);
    };
    if (model().ai.slots) {
      for (int port : {0, 1, 3})
        for (int cs : {0, 1, 2}) add(port, cs);
    } else {
      add(0, 0);
    }
    streams_made_.store(true);
  });
  return streams_;
}

void AIModule::putMarkers() {
  // Only once the queues exist: before that no record was taken from them.
  if (!streams_made_.load()) return;
  for (auto& q : streams_.raw) q->push(Bytes{});
}

void AIModule::closeDecoded() {
  if (!streams_made_.load()) return;
  for (auto& q : streams_.decoded) q->close();
}

// ai_stream_thread: through the gate, every record waiting on the raw queues
// decoded onto their decoded queues; then it sleeps until an arrival the
// receive thread left to it rings (or the module closes).
void AIModule::decodeLoop() {
  try {
    while (!killed_.load()) {
      ai_lock_.pass(killed_);
      if (killed_.load()) break;
      Streams& s = streams();
      const uint64_t seen = bell_->seq();
      {
        std::lock_guard lk(decode_->m);
        if (decode_->failure) std::rethrow_exception(decode_->failure);
        for (size_t i = 0; i < s.raw.size(); ++i) decodeWaiting(i);
      }
      warnOverflows();
      bell_->wait(seen, killed_);
    }
  } catch (const std::exception& e) {
    // A malformed record ends the decoder; readers find no more samples.
    warnOverflows();
    report::print("Exception in thread ai_stream_thread:");
    report::genericError(e);
  }
  decoder_alive_.store(false);
}

void AIModule::decodeWaiting(size_t index) {
  StreamQueue& raw = *streams_.raw[index];
  while (std::optional<Bytes> rec = raw.tryPop())
    if (!rec->empty()) decodeRecord(*rec, index);  // empty: a close marker
}

bool AIModule::decodeWhereArrived(size_t index) {
  if (killed_.load() || decode_->failure || !ai_lock_.isOpen()) return false;
  try {
    decodeWaiting(index);
  } catch (...) {
    decode_->failure = std::current_exception();
    return false;
  }
  return overflows_.load() == 0;
}

void AIModule::warnOverflows() {
  for (uint64_t n = overflows_.exchange(0); n > 0; --n)
    report::warning(ErrorId::AIQueueOverflowWarning);
}

void AIModule::decodeRecord(const Bytes& raw, size_t index) {
  SampleQueue& out = *streams_.decoded[index];
  const auto n = static_cast<size_t>(aiNumChannels());
  const size_t width = 2 * n;
  if (n == 0 || raw.size() % width != 0)
    throw IndexError("list index out of range: a stream record of " + std::to_string(raw.size()) +
                     " bytes is no whole number of samples of " + std::to_string(n) + " channels");
  const double* volts = aiVoltsTable(model().ai.ratio);
  const size_t values = raw.size() / 2;
  decode_buf_.resize(values);
  for (size_t i = 0; i < values; ++i) decode_buf_[i] = volts[(raw[2 * i] << 8) | raw[2 * i + 1]];
  const size_t samples = values / n;
  const size_t lost = samples - out.push(decode_buf_.data(), samples, n);
  if (lost > 0) {
    dropped_.fetch_add(lost);
    streams_.dropped[index].fetch_add(lost);
    overflows_.fetch_add(lost);
  }
}

// ---------------------------------------------------------------------------
// Attributes and checks.

int AIModule::aiNumChannels() const {
  const int n = num_channels_.load();
  return n >= 0 ? n : model().ai.num_channels;
}
int AIModule::aiEchoCmd() const {
  return model().ai.variable ? READ_AI_ON_DEMAND_VARIABLE : READ_AI_ON_DEMAND;
}
int AIModule::aiStrmCmd() const {
  return model().ai.variable ? START_AI_STREAMING_VARIABLE : START_AI_STREAMING;
}

std::vector<int64_t>& AIModule::chipSelectRef(int64_t port) {
  if (port == 0) return cs_p0_;
  if (port == 1) return cs_p1_;
  if (port == 3) return cs_p3_;
  throw IndexError("no chip selects for port " + std::to_string(port));
}

std::vector<int64_t> AIModule::chipSelect(int port) const {
  std::lock_guard lk(cs_m_);
  return const_cast<AIModule*>(this)->chipSelectRef(port);
}

size_t AIModule::decodedSize(size_t index) {
  Streams& s = streams();
  if (index >= s.decoded.size()) throw IndexError("list index out of range");
  return s.decoded[index]->size();
}

uint64_t AIModule::droppedAt(size_t index) {
  Streams& s = streams();
  if (index >= s.dropped.size()) throw IndexError("list index out of range");
  return s.dropped[index].load();
}

Value AIModule::slotPort(const Value& port) const {
  return model().ai.slots ? changeToTrellisPort(port) : port;
}

bool AIModule::_checkAIPort(const Value& port) {
  checkInputType(port, kTypeInt);
  const int64_t p = portKey(port);
  if (p < 0 || p > 255 || !model().ai_dict.count(static_cast<int>(p)))
    raise(ErrorId::AIPortNotAvaliableError);
  return true;
}

bool AIModule::_checkAIMode(const Value& mode) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  if (m < 0 || m > 2) raise(ErrorId::AIModeNotAvaliableError);
  return true;
}

bool AIModule::_checkAIChannel(const Value& channel) {
  checkInputType(channel, kTypeInt);
  const int64_t ch = channel.asInt();
  if (ch < 1 || ch > 8) raise(ErrorId::AIChannelNotAvaliableError);
  return true;
}

bool AIModule::_checkAIChipSelect(const Value& cs) {
  checkInputType(cs, kTypeInt);
  const int64_t c = cs.asInt();
  if (c < 0 || c > 2) raise(ErrorId::AICSNotAvaliableError);
  return true;
}

bool AIModule::_ckeckAISamplingRate(const Value& port, const Value& sampling_rate) {
  checkInputType(sampling_rate, kTypeInt | kTypeFloat);
  const AiParams& ai = model().ai;
  int64_t limit = -1;
  switch (ai.rate_rule) {
    case AiRateRule::None:
      return true;
    case AiRateRule::Fixed:
      limit = ai.rate_limit;
      break;
    case AiRateRule::ByChannels: {
      static constexpr int64_t kByChannels[] = {16000, 8000, 6300, 4000, 3200, 2600, 2200, 2000};
      const int n = aiNumChannels();
      if (n < 1 || n > 8) throw IndexError("no rate limit for " + std::to_string(n) + " channels");
      limit = kByChannels[n - 1];
      break;
    }
    case AiRateRule::ByChipSelects: {
      static constexpr int64_t kByChips[] = {12000, 6000, 4000};
      const size_t n = chipSelect(static_cast<int>(portKey(port))).size();
      if (n < 1 || n > 3)
        throw IndexError("no rate limit for " + std::to_string(n) + " chip selects");
      limit = kByChips[n - 1];
      break;
    }
  }
  if (compareNumbers(sampling_rate, Value(limit)) == 1) raise(ErrorId::AIRateNotVaildError);
  return true;
}

int64_t AIModule::AI_changePortToIndex_(int64_t port, int64_t cs) {
  if (port == 0 || port == 3) return port * 2 + cs;
  if (port == 1) return port * 3 + cs;
  throw IndexError("no stream index for port " + std::to_string(port));
}

std::vector<int> AIModule::AI_getPinMapPort_(const Value& ai_port) {
  checkInputType(ai_port, kTypeInt);
  auto it = model().ai_dict.find(static_cast<int>(portKey(ai_port)));
  if (it == model().ai_dict.end()) throw KeyError(ai_port.repr());
  std::vector<int> out;
  for (const PinPair& p : it->second)
    if (std::find(out.begin(), out.end(), p.port) == out.end()) out.push_back(p.port);
  return out;
}

bool AIModule::_checkAIPinState(const Call& c, const Value& port, const Value& allow_state) {
  auto* sys = sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  const auto& pairs = model().ai_dict.at(static_cast<int>(portKey(port)));
  for (int i : AI_getPinMapPort_(port)) {
    const auto modes = sys->Sys_getPinModeInPort(c, Value(i));
    Value pin_map = Value::listOf(modes);
    for (const PinPair& p : pairs) {
      if (p.port != i) continue;
      if (!checkFuncPinMap(Value{p.port, p.pin}, pin_map, allow_state))
        raise(ErrorId::AIPortNotAvaliableError);
    }
  }
  return true;
}

std::vector<int> AIModule::AI_getPort() {
  std::vector<int> out;
  for (const auto& [port, pins] : model().ai_dict) out.push_back(port);
  return out;
}

// ---------------------------------------------------------------------------
// Opening and closing: the gate.

int AIModule::AI_open(const Call& c, const Value& port) {
  if (model().ai.open_silent) {
    if (!open_flag_.exchange(true)) ai_lock_.open();
    return 0;
  }
  _checkAIPort(port);
  const int status = c.exchangeStatus(OPEN_AI, Bytes{portByte(port)}, 1);
  if (!open_flag_.exchange(true) && status == 0) ai_lock_.open();
  return status;
}

int AIModule::AI_close(const Call& c, const Value& port) {
  if (model().ai.open_silent) {
    if (open_flag_.exchange(false)) {
      ai_lock_.close();
      streams();
      putMarkers();
    }
    return 0;
  }
  _checkAIPort(port);
  const int status = c.exchangeStatus(CLOSE_AI, Bytes{portByte(port)}, 1);
  if (open_flag_.exchange(false) && status == 0) {
    ai_lock_.close();
    streams();
    putMarkers();
  }
  return status;
}

// ---------------------------------------------------------------------------
// Settings.

int AIModule::AI_setMode(const Call& c, const Value& port_in, const Value& mode) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  _checkAIMode(mode);
  return c.exchangeStatus(SET_AI_MODE, Bytes{portByte(port), portByte(mode)}, 1);
}

int AIModule::AI_setNumSamples(const Call& c, const Value& port_in, const Value& num_samples) {
  const Value port = slotPort(port_in);
  checkInputType(num_samples, kTypeInt);
  _checkAIPort(port);
  Bytes out{portByte(port)};
  const Bytes n = convertU32To4U8(num_samples);
  out.insert(out.end(), n.begin(), n.end());
  return c.exchangeStatus(SET_AI_NUM_SAMPLES, out, 1);
}

int AIModule::AI_setSamplingRate(const Call& c, const Value& port_in, const Value& sampling_rate) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  _ckeckAISamplingRate(port, sampling_rate);
  Bytes out{portByte(port)};
  appendF32(out, sampling_rate);
  return c.exchangeStatus(SET_AI_SAMPLING_RATE, out, 1);
}

int AIModule::AI_enableChannel(const Call& c, const Value& port, const Value& channel) {
  if (model().ai.channels_fixed) raise(ErrorId::APINotSupportError);
  _checkAIPort(port);
  _checkAIChannel(channel);
  num_channels_.store(static_cast<int>(channel.asInt()));  // changed even if the command fails
  return c.exchangeStatus(SET_AI_ENABLED_CS, Bytes{portByte(port), portByte(channel)}, 1);
}

int AIModule::AI_enableCS(const Call& c, const Value& slot, const Value& chip_select) {
  if (!model().ai.slots) raise(ErrorId::APINotSupportError);
  const Value port = changeToTrellisPort(slot);
  _checkAIPort(port);
  if (!chip_select.isSequence())
    throw TypeError("'" + std::string(chip_select.typeName()) + "' object is not iterable");
  std::vector<int64_t> chips;
  for (const Value& cs : chip_select.asList()) {
    _checkAIChipSelect(cs);
    chips.push_back(cs.asInt());
  }
  int64_t mask = 0;
  for (int64_t cs : chips) mask = writeBit(mask, cs, 1);
  {
    std::lock_guard lk(cs_m_);
    chipSelectRef(portKey(port)) = chips;
  }
  return c.exchangeStatus(SET_AI_ENABLED_CS,
                          Bytes{portByte(port), static_cast<uint8_t>(mask & 0xFF)}, 1);
}

// ---------------------------------------------------------------------------
// Streaming.

void AIModule::AI_openStreaming_(const Call& c, const Value& port) {
  _checkAIPort(port);
  const Bytes data_in = c.exchange(OPEN_AI_STREAMING, Bytes{portByte(port)});
  // The blocking twin reads num_of_samples, sampling_rate and mode, and uses
  // none of them; a reply too short for them fails it.
  if (!c.isAwaitable()) needReplyBytes(data_in, 11, OPEN_AI_STREAMING);
}

int AIModule::AI_startStreaming_(const Call& c, const Value& port) {
  _checkAIPort(port);
  const Bytes out{portByte(port)};
  c.send(aiStrmCmd(), out);
  return 0;
}

int AIModule::AI_start(const Call& c, const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  if (model().ai.open_streaming) AI_openStreaming_(c, port);
  AI_startStreaming_(c, port);
  return 0;
}

int AIModule::AI_stop(const Call& c, const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  return c.exchangeStatus(CLOSE_AI_STREAMING, Bytes{portByte(port)}, 1);
}

int AIModule::AI_clearBufferStatus_(const Call& c, const Value& port) {
  _checkAIPort(port);
  return c.exchangeStatus(CLEAR_DATA, Bytes{portByte(port)}, 1);
}

std::vector<uint32_t> AIModule::AI_readBufferStatus_(const Call& c, const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  return words(c.exchange(CHECK_BUFFER_STATUS, Bytes{portByte(port)}), 1, 4, CHECK_BUFFER_STATUS);
}

std::vector<uint32_t> AIModule::AI_getCounter_(const Call& c, const Value& port_in) {
  const Value port = slotPort(port_in);
  return words(c.exchange(GET_AI_COUNTERS, Bytes{portByte(port)}), 1, 9, GET_AI_COUNTERS);
}

// ---------------------------------------------------------------------------
// Reading.

AiSample AIModule::AI_readOnDemand(const Call& c, const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  const auto chips = chipSelect(static_cast<int>(portKey(port)));
  const int cmd = aiEchoCmd();
  const auto n = static_cast<size_t>(aiNumChannels());
  const double ratio = model().ai.ratio;
  AiSample out;
  for (int64_t cs : chips) {
    Bytes payload{portByte(port)};
    if (cmd == READ_AI_ON_DEMAND) payload.push_back(static_cast<uint8_t>(cs));
    const Bytes data_in = c.exchange(cmd, payload);
    needReplyBytes(data_in, 2 + 2 * n, cmd);
    for (size_t i = 0; i < n; ++i) {
      const auto count = static_cast<int16_t>((data_in[2 + 2 * i] << 8) | data_in[3 + 2 * i]);
      out.push_back(aiVolts(count, ratio));
    }
  }
  return out;
}

AIModule::ReadPlan AIModule::planRead(const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  ReadPlan plan;
  plan.port = portKey(port);
  Streams& s = streams();
  for (int64_t cs : chipSelect(static_cast<int>(plan.port))) {
    const auto index = static_cast<size_t>(AI_changePortToIndex_(plan.port, cs));
    plan.indices.push_back(index);
    plan.queues.push_back(s.decoded.at(index).get());
  }
  return plan;
}

// Until every enabled chip select has num_samples, or delay has passed; the
// count is the smallest over them.
int64_t AIModule::samplesToTake(const Call& c, const ReadPlan& plan, int64_t num_samples,
                                double delay) {
  int64_t samp_count = 0;
  if (delay > 0 && num_samples > 0) {
    const auto deadline = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                             std::chrono::duration<double>(std::min(delay, 1e9)));
    for (SampleQueue* q : plan.queues) c.waitQueue(*q, static_cast<size_t>(num_samples), deadline);
    int64_t n_min = 2147483648;
    for (SampleQueue* q : plan.queues) n_min = std::min(n_min, static_cast<int64_t>(q->size()));
    samp_count = n_min;
  }
  return std::min(num_samples, samp_count);
}

void AIModule::countReadDrops(const ReadPlan& plan) {
  std::lock_guard lk(read_m_);
  uint64_t most = 0;
  for (size_t index : plan.indices) {
    const uint64_t now = streams_.dropped[index].load();
    most = std::max(most, now - streams_.dropped_counted[index]);
    streams_.dropped_counted[index] = now;
  }
  read_dropped_[plan.port] = most;
}

uint64_t AIModule::AI_getReadDropped(const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  std::lock_guard lk(read_m_);
  auto it = read_dropped_.find(portKey(port));
  return it == read_dropped_.end() ? 0 : it->second;
}

size_t AIModule::AI_sampleWidth(const Value& port_in) {
  const Value port = slotPort(port_in);
  _checkAIPort(port);
  return static_cast<size_t>(aiNumChannels()) * chipSelect(static_cast<int>(portKey(port))).size();
}

AiSamples AIModule::AI_readStreaming(const Call& c, const Value& port, int64_t num_samples,
                                     double delay) {
  const ReadPlan plan = planRead(port);
  const auto take =
      static_cast<size_t>(std::max<int64_t>(samplesToTake(c, plan, num_samples, delay), 0));
  AiSamples out;
  out.reserve(take);
  if (plan.queues.size() == 1) {
    takeSamples(c, *plan.queues[0], take, [&](auto b, auto e) { out.emplace_back(b, e); });
    out.resize(take);  // the awaitable twin's samples another reader took: empty
  } else {
    for (size_t i = 0; i < take; ++i) {
      AiSample& sample = out.emplace_back();
      for (SampleQueue* q : plan.queues)
        takeSamples(c, *q, 1, [&](auto b, auto e) { sample.insert(sample.end(), b, e); });
    }
  }
  countReadDrops(plan);
  return out;
}

// `take` samples of the plan's queues into rows of `width` values at `out`.
// A sample of another width (decoded under an earlier channel count) does not
// fit a row: it is taken and left out.
size_t AIModule::fillRows(const Call& c, const ReadPlan& plan, int64_t take, double* out,
                          size_t width) {
  size_t written = 0;
  if (take <= 0) return 0;
  if (plan.queues.size() == 1) {
    takeSamples(c, *plan.queues[0], static_cast<size_t>(take), [&](auto b, auto e) {
      if (static_cast<size_t>(e - b) != width) return;
      std::copy(b, e, out + written * width);
      ++written;
    });
    return written;
  }
  for (int64_t i = 0; i < take; ++i) {
    double* row = out + written * width;
    size_t filled = 0;
    bool fits = true;
    for (SampleQueue* q : plan.queues)
      takeSamples(c, *q, 1, [&](auto b, auto e) {
        const auto n = static_cast<size_t>(e - b);
        if (!fits || filled + n > width) {
          fits = false;
          return;
        }
        std::copy(b, e, row + filled);
        filled += n;
      });
    if (fits && filled == width) ++written;
  }
  return written;
}

size_t AIModule::AI_readStreamingInto(const Call& c, const Value& port, double* out, size_t rows,
                                      size_t width, double delay) {
  const ReadPlan plan = planRead(port);
  const auto wanted = static_cast<int64_t>(std::min<size_t>(rows, INT64_MAX));
  const size_t written = fillRows(c, plan, samplesToTake(c, plan, wanted, delay), out, width);
  countReadDrops(plan);
  return written;
}

AiBlock AIModule::AI_readStreamingBlock(const Call& c, const Value& port, int64_t num_samples,
                                        double delay) {
  AiBlock block;
  block.width = AI_sampleWidth(port);
  const ReadPlan plan = planRead(port);
  const int64_t take = std::max<int64_t>(samplesToTake(c, plan, num_samples, delay), 0);
  block.values.resize(static_cast<size_t>(take) * block.width);
  block.samples = fillRows(c, plan, take, block.values.data(), block.width);
  block.values.resize(block.samples * block.width);
  countReadDrops(plan);
  return block;
}

}  // namespace orv
