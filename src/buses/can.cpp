#include "buses/can.hpp"

#include <algorithm>

#include "buses/bus_pins.hpp"
#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "link/report.hpp"

namespace orv {

// ---------------------------------------------------------------------------
// CANFrame.

CANFrame::CANFrame(int64_t id_, bool extended, bool rtr, std::vector<int64_t> d)
    : id(id_), extended_id(extended), remote(rtr), data(regularizeData(d)) {
  setID();
}

std::vector<int64_t> CANFrame::regularizeData(const std::vector<int64_t>& d) {
  std::vector<int64_t> out(d);
  out.insert(out.end(), 8, 0);
  out.resize(8);
  return out;
}

void CANFrame::setID() {
  int64_t new_id = 0;
  if (extended_id) {
    const int64_t high_part = id & 0x1FFC0000;
    const int64_t low_part = id & 0x3FFFF;
    new_id = (high_part << 3) | low_part | 0x80000;
  } else {
    new_id = id << 21;
  }
  if (remote) new_id |= 0x100000;
  const Bytes word = convertU32To4U8(Value(new_id));
  id_in_list.assign(word.begin(), word.end());
  frame_in_list = id_in_list;
  frame_in_list.insert(frame_in_list.end(), data.begin(), data.end());
}

CANFrame CANFrame::fromU8List(std::span<const uint8_t> u8_list) {
  if (u8_list.size() < 4) throw IndexError("list index out of range");
  const std::span<const uint8_t> id_in_list = u8_list.first(4);
  const bool extended = (id_in_list[1] >> 3) & 1;
  const bool remote = (id_in_list[1] >> 4) & 1;
  int64_t id_ = 0;
  if (extended) {
    const uint32_t id_u32 = convert4U8ToU32(id_in_list);
    id_ = ((id_u32 & 0xFFE00000u) >> 3) | (id_u32 & 0x3FFFFu);
  } else {
    id_ = convert2U8ToU16(id_in_list.first(2)) >> 5;
  }
  if (u8_list.size() > 4) {
    const auto end = std::min<size_t>(u8_list.size(), CAN_FRAME_BYTES);
    return CANFrame(id_, extended, remote,
                    std::vector<int64_t>(u8_list.begin() + 4, u8_list.begin() + end));
  }
  return CANFrame(id_, extended, remote);
}

CANFrame CANFrame::fromU8List(std::span<const int64_t> u8_list) {
  Bytes b;
  b.reserve(u8_list.size());
  for (int64_t v : u8_list) b.push_back(portByte(Value(v)));
  return fromU8List(std::span<const uint8_t>(b));
}

std::string CANFrame::repr() const {
  auto flag = [](bool b) { return b ? "True" : "False"; };
  std::string s = "CANFrame(id=" + std::to_string(id) + ", extended_id=" + flag(extended_id) +
                  ", remote=" + flag(remote) + ", data=[";
  for (size_t i = 0; i < data.size(); ++i) s += (i ? ", " : "") + std::to_string(data[i]);
  return s + "])";
}

// ---------------------------------------------------------------------------
// Checks.

CANModule::CANModule() = default;

CANModule::~CANModule() { closeModule(); }

std::vector<int> CANModule::CAN_getPort() {
  std::vector<int> ports;
  for (const auto& [port, pins] : model().can_dict) ports.push_back(port);
  return ports;
}

bool CANModule::_checkCANPort(const Value& port) {
  checkInputType(port, kTypeInt);
  if (!model().can_dict.count(static_cast<int>(port.asInt())))
    raise(ErrorId::CANPortNotAvaliableError);
  return true;
}

namespace {
bool oneOf(const Value& mode, int64_t last) {
  checkInputType(mode, kTypeInt);
  return mode.asInt() >= 0 && mode.asInt() <= last;
}
}  // namespace

bool CANModule::_checkCANSpeed(const Value& speed) {
  if (!oneOf(speed, 3)) raise(ErrorId::CANSpeedNotVaildError);
  return true;
}

bool CANModule::_checkCANDataRangeAndLength(const Value& data) {
  if (data.size() > 8) raise(ErrorId::CANDataLengthNotVaildError);
  checkEachItemInRange(data, Value(0), Value(255),
                       std::string("The specified CAN data elements not in range"));
  return true;
}

bool CANModule::_checkCANTXIndex(const Value& mode) {
  if (!oneOf(mode, 2)) raise(ErrorId::CANTXNotVaildError);
  return true;
}

bool CANModule::_checkCANTXPriority(const Value& mode) {
  if (!oneOf(mode, 3)) raise(ErrorId::CANTXPriorityNotVaildError);
  return true;
}

// can_dict[port]: a port that is no key raises KeyError.
std::vector<int64_t> CANModule::CAN_getPinMapPort_(const Value& CAN_port) {
  return busPinMapPorts(model().can_dict, CAN_port);
}

void CANModule::_checkCANPinState_(const Call& c, const Value& port, const Value& allow_state) {
  checkBusPinState(*this, c, model().can_dict, port, allow_state,
                   ErrorId::CANPortNotAvaliableError);
}

// ---------------------------------------------------------------------------
// The stream thread.

bool CANModule::canThreadStarted() {
  std::lock_guard lk(start_m_);
  return stream_.started();
}

void CANModule::startThread() {
  std::lock_guard lk(start_m_);
  if (killed_.load() || stream_.started()) return;
  stream_.start(device().streamPool().get(StreamKey::one(START_CAN)), killed_,
                [this](const Bytes& record) {
                  if (record.size() % CAN_FRAME_BYTES != 0)
                    throw ValueError("a CAN record of " + std::to_string(record.size()) +
                                     " bytes is no whole number of 12-byte frames");
                  for (size_t at = 0; at < record.size(); at += CAN_FRAME_BYTES) {
                    Bytes row(record.begin() + static_cast<ptrdiff_t>(at),
                              record.begin() + static_cast<ptrdiff_t>(at + CAN_FRAME_BYTES));
                    if (!frames_.push(std::move(row)))
                      report::warning(ErrorId::CANQueueOverflowWarning);
                  }
                });
}

void CANModule::CAN_free_() {
  std::lock_guard lk(start_m_);
  killed_.store(true);
  stream_.pushMarker();
  stream_.gate().forceOpen();
}

void CANModule::closeModule() noexcept {
  CAN_free_();
  stream_.join();
  frames_.close();  // a read still waiting ends with DeviceClosedError
}

// ---------------------------------------------------------------------------
// Commands.

int CANModule::CAN_open(const Call& c, const Value& port) {
  _checkCANPort(port);
  _checkCANPinState_(c, port, Value::listOf(std::vector<std::string>{"Idle", "DI", "DO"}));
  startThread();
  const Bytes data_in = c.exchange(OPEN_CAN, Bytes{portByte(port)});
  needReplyBytes(data_in, 2, OPEN_CAN);
  const uint8_t status = data_in[1];
  if (!open_flag_.load()) {
    open_flag_.store(true);
    if (status == 0) stream_.gate().open();
  }
  try {
    return checkFirmwareError(status);
  } catch (const Error& e) {
    return e.code();
  }
}

int CANModule::CAN_stop(const Call& c, const Value& port) {
  _checkCANPort(port);
  return c.exchangeStatus(STOP_CAN, Bytes{portByte(port)}, 1);
}

int CANModule::CAN_close(const Call& c, const Value& port) {
  _checkCANPort(port);
  const int stopped = CAN_stop(c, port);
  try {
    checkFirmwareError(stopped);
  } catch (const Error& e) {
    return e.code();  // the close is not sent
  }
  const Bytes data_in = c.exchange(CLOSE_CAN, Bytes{portByte(port)});
  needReplyBytes(data_in, 2, CLOSE_CAN);
  const uint8_t status = data_in[1];
  if (open_flag_.load()) {
    open_flag_.store(false);
    if (status == 0) {
      stream_.gate().close();
      stream_.pushMarker();
    }
  }
  try {
    return checkFirmwareError(status);
  } catch (const Error& e) {
    return e.code();
  }
}

int CANModule::CAN_start(const Call& c, const Value& port) {
  _checkCANPort(port);
  // The blocking twin waits for an echo of START_CAN; the awaitable one only sends.
  if (c.isAwaitable())
    c.send(START_CAN, Bytes{portByte(port)});
  else
    c.exchange(START_CAN, Bytes{portByte(port)});
  return 0;
}

int CANModule::CAN_setSpeed(const Call& c, const Value& port, const Value& speed_mode) {
  _checkCANPort(port);
  _checkCANSpeed(speed_mode);
  return c.exchangeStatus(SET_CAN_SPEED, Bytes{portByte(port), portByte(speed_mode)}, 1);
}

int CANModule::flagCommand(const Call& c, int cmd, const Value& port, const Value& on_off) {
  _checkCANPort(port);
  checkInputType(on_off, kTypeBool);
  return c.exchangeStatus(cmd, Bytes{portByte(port), static_cast<uint8_t>(on_off.asBool())}, 1);
}

int CANModule::CAN_setRXFilteringOn(const Call& c, const Value& port, const Value& on_off) {
  return flagCommand(c, SET_CAN_RX_FILTERING_ON, port, on_off);
}
int CANModule::CAN_setEnableInterrupt_(const Call& c, const Value& port, const Value& status) {
  return flagCommand(c, SET_CAN_ENABLED_ITR, port, status);
}
int CANModule::CAN_setRXRollover_(const Call& c, const Value& port, const Value& status) {
  return flagCommand(c, SET_CAN_RX_ROLLOVER, port, status);
}

namespace {
void checkIdAndFlags(const Value& id_, const Value& remote, const Value& extended_id) {
  checkInputType(id_, kTypeInt);
  checkInputType(remote, kTypeBool);
  checkInputType(extended_id, kTypeBool);
}
void appendFrame(Bytes& out, const CANFrame& frame) {
  for (int64_t b : frame.frame_in_list) out.push_back(portByte(Value(b)));
}
}  // namespace

int CANModule::CAN_setRXFilterOrMask(const Call& c, const Value& port, const Value& index,
                                     const Value& id_, const Value& remote,
                                     const Value& extended_id) {
  _checkCANPort(port);
  checkIdAndFlags(id_, remote, extended_id);
  const CANFrame frame(id_.asInt(), extended_id.asBool(), remote.asBool());
  Bytes out{portByte(port), portByte(index)};
  appendFrame(out, frame);
  return c.exchangeStatus(SET_CAN_RX_FILTER_OR_MASK, out, 1);
}

int CANModule::CAN_write(const Call& c, const Value& port, const Value& id_, const Value& data,
                         const Value& remote, const Value& extended_id) {
  _checkCANPort(port);
  checkIdAndFlags(id_, remote, extended_id);
  std::vector<int64_t> bytes(8, 0);  // a remote frame carries zeros, whatever was given
  if (!remote.asBool()) {
    checkInputType(data, kTypeList);
    _checkCANDataRangeAndLength(data);
    bytes = data.toIntList();
  }
  const CANFrame frame(id_.asInt(), extended_id.asBool(), remote.asBool(), bytes);
  const uint8_t tx_index = 0;
  Bytes out{portByte(port), tx_index};
  appendFrame(out, frame);
  return c.exchangeStatus(WRITE_CAN, out, 1);
}

std::vector<CANFrame> CANModule::CAN_read(const Call& c, const Value& port, const Value& num_frames,
                                          double delay) {
  _checkCANPort(port);
  checkInputType(num_frames, kTypeInt);
  // The blocking twin waits for its frames whether the port is open or not;
  // the awaitable one takes what is there.
  const Bytes flat = c.streaming(frames_, num_frames.asInt(), delay);
  std::vector<CANFrame> out;
  out.reserve(flat.size() / CAN_FRAME_BYTES);
  for (size_t at = 0; at + CAN_FRAME_BYTES <= flat.size(); at += CAN_FRAME_BYTES)
    out.push_back(CANFrame::fromU8List(std::span(flat).subspan(at, CAN_FRAME_BYTES)));
  return out;
}

// ---------------------------------------------------------------------------
// Service operations.

std::vector<int64_t> CANModule::CAN_getErrors_(const Call& c, const Value& port) {
  _checkCANPort(port);
  const Bytes data_in = c.exchange(GET_CAN_ERRORS, Bytes{portByte(port)});
  needReplyBytes(data_in, 3, GET_CAN_ERRORS);
  return {data_in[1], data_in[2]};
}

std::vector<int64_t> CANModule::CAN_getInterrupts_(const Call& c, const Value& port) {
  _checkCANPort(port);
  const Bytes data_in = c.exchange(GET_CAN_INTERRUPTS, Bytes{portByte(port)});
  needReplyBytes(data_in, 4, GET_CAN_INTERRUPTS);
  return {data_in[1], data_in[2], data_in[3]};
}

std::vector<int64_t> CANModule::CAN_getCounters_(const Call& c, const Value& port) {
  _checkCANPort(port);
  const Bytes data_in = c.exchange(GET_CAN_COUNTERS, Bytes{portByte(port)});
  needReplyBytes(data_in, 1 + 6 * 4, GET_CAN_COUNTERS);
  std::vector<int64_t> out;
  for (size_t i = 0; i < 6; ++i)
    out.push_back(convert4U8ToU32(std::span(data_in).subspan(1 + 4 * i, 4)));
  return out;
}

int CANModule::CAN_setTXPriority_(const Call& c, const Value& port, const Value& tx_mode,
                                  const Value& priority_mode) {
  _checkCANPort(port);
  // The two mode checks take the mode alone and are reached through the
  // object, so the host hands them the object as well: the call fails with the
  // host's argument-count TypeError and the command never goes out.
  throw TypeError("CANBased._checkCANTXIndex() takes 1 positional argument but 2 were given");
  _checkCANTXIndex(tx_mode);
  _checkCANTXPriority(priority_mode);
  return c.exchangeStatus(SET_CAN_TX_PRIORITY,
                          Bytes{portByte(port), portByte(tx_mode), portByte(priority_mode)}, 1);
}

}  // namespace orv
