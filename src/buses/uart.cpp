#include "buses/uart.hpp"

#include "buses/bus_pins.hpp"
#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "link/report.hpp"

namespace orv {

namespace {

// The one-character string of a byte, as UTF-8.
std::string charOf(uint8_t b) { return encodeUtf8(std::u32string(1, static_cast<char32_t>(b))); }

// ord(item): the code of a one-character string.
int64_t ordOf(const Value& item) {
  if (!item.isText())
    throw TypeError("ord() expected string of length 1, but " + std::string(item.typeName()) +
                    " found");
  const std::vector<int64_t> codes = convertStrToU8List(item.asText());
  if (codes.size() != 1)
    throw TypeError("ord() expected a character, but string of length " +
                    std::to_string(codes.size()) + " found");
  return codes[0];
}

bool inModes(const Value& mode, int64_t last) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  return m >= 0 && m <= last;
}

}  // namespace

UARTModule::UARTModule() = default;

UARTModule::~UARTModule() { closeModule(); }

PortMap UARTModule::UART_getPinMap() { return model().uart_dict; }

// ---------------------------------------------------------------------------
// Checks.

bool UARTModule::_checkUARTPort(const Value& port) {
  checkInputType(port, kTypeInt);
  if (!model().uart_dict.count(static_cast<int>(port.asInt())))
    raise(ErrorId::UARTPortNotAvaliableError);
  return true;
}

bool UARTModule::_checkUARTBaudRate(const Value& baud_rate) {
  checkInputType(baud_rate, kTypeInt);
  if (baud_rate.asInt() > UART_MAX_BAUD_RATE) raise(ErrorId::UARTBaudRateNotSupportError);
  return true;
}

bool UARTModule::_checkUARTDataBit(const Value& mode) {
  if (!inModes(mode, 1)) raise(ErrorId::UARTDataBitNotSupportError);
  return true;
}

bool UARTModule::_checkUARTParityMode(const Value& mode) {
  if (!inModes(mode, 3)) raise(ErrorId::UARTParityNotSupportError);
  return true;
}

bool UARTModule::_checkUARTNumStopBitMode(const Value& mode) {
  if (!inModes(mode, 3)) raise(ErrorId::UARTStopBitNotSupportError);
  return true;
}

bool UARTModule::_checkUARTDataLength(const Value& data) {
  checkInputType(data, kTypeText | kTypeList);
  if (data.size() > UART_MAX_WRITE) raise(ErrorId::UARTExceedMaxLengthError);
  return true;
}

// uart_dict[port]: a port that is no key raises KeyError.
std::vector<int64_t> UARTModule::UART_getPinMapPort_(const Value& UART_port) {
  return busPinMapPorts(model().uart_dict, UART_port);
}

void UARTModule::_checkUARTPinState(const Call& c, const Value& port, const Value& allow_state) {
  checkBusPinState(*this, c, model().uart_dict, port, allow_state,
                   ErrorId::UARTPortNotAvaliableError);
}

// ---------------------------------------------------------------------------
// Threads.

bool UARTModule::uartThreadsStarted() {
  std::lock_guard lk(start_m_);
  return ports_[0].stream.started();
}

void UARTModule::startThreads() {
  std::lock_guard lk(start_m_);
  if (killed_.load() || ports_[0].stream.started()) return;
  for (int port : {1, 2}) {
    Port& p = portOf(port);
    auto data = device().streamPool().get(StreamKey::pair(START_UART_READING, port));
    p.stream.start(std::move(data), killed_, [&signal = p.signal](const Bytes& record) {
      for (uint8_t b : record)
        if (!signal.push(Bytes{b})) report::warning(ErrorId::UARTQueueOverflowWarning);
    });
  }
}

void UARTModule::UART_free_() {
  std::lock_guard lk(start_m_);
  killed_.store(true);
  for (Port& p : ports_) p.stream.gate().forceOpen();
  for (Port& p : ports_) p.stream.pushMarker();
}

void UARTModule::closeModule() noexcept {
  UART_free_();
  for (Port& p : ports_) {
    p.stream.join();
    p.signal.close();  // a read still waiting ends with DeviceClosedError
  }
}

// ---------------------------------------------------------------------------
// Commands.

int UARTModule::modeCommand(const Call& c, int cmd, const Value& port, const Value& mode) {
  return c.exchangeStatus(cmd, Bytes{portByte(port), portByte(mode)}, 1);
}

int UARTModule::UART_open(const Call& c, const Value& port) {
  _checkUARTPort(port);
  _checkUARTPinState(c, port, Value::listOf(std::vector<std::string>{"Idle", "DI", "DO"}));
  startThreads();
  const Bytes data_in = c.exchange(OPEN_UART, Bytes{portByte(port)});
  needReplyBytes(data_in, 2, OPEN_UART);
  const uint8_t status = data_in[1];
  if (!open_flag_.load()) {
    open_flag_.store(true);
    if (status == 0) {
      UART_startReading_(c, port);
      ports_[0].stream.gate().open();
      ports_[1].stream.gate().open();
    }
  }
  try {
    return checkFirmwareError(status);
  } catch (const Error& e) {
    return e.code();
  }
}

int UARTModule::UART_close(const Call& c, const Value& port) {
  _checkUARTPort(port);
  UART_stopReading(c, port);
  const Bytes data_in = c.exchange(CLOSE_UART, Bytes{portByte(port)});
  needReplyBytes(data_in, 2, CLOSE_UART);
  const uint8_t status = data_in[1];
  if (open_flag_.load()) {
    open_flag_.store(false);
    if (status == 0) {
      for (Port& p : ports_) p.stream.gate().close();
      for (Port& p : ports_) p.stream.pushMarker();
    }
  }
  try {
    return checkFirmwareError(status);
  } catch (const Error& e) {
    return e.code();
  }
}

int UARTModule::UART_reset(const Call& c, const Value& port) {
  _checkUARTPort(port);
  return c.exchangeStatus(RESET_UART, Bytes{portByte(port)}, 1);
}

int UARTModule::UART_stopReading(const Call& c, const Value& port) {
  _checkUARTPort(port);
  return c.exchangeStatus(STOP_UART_READING, Bytes{portByte(port)}, 1);
}

int UARTModule::UART_startReading_(const Call& c, const Value& port) {
  _checkUARTPort(port);
  c.send(START_UART_READING, Bytes{portByte(port)});
  return 0;
}

int UARTModule::UART_setBaudRate(const Call& c, const Value& port, const Value& baud_rate) {
  _checkUARTPort(port);
  _checkUARTBaudRate(baud_rate);
  Bytes out{portByte(port)};
  const Bytes rate = convertU32To4U8(baud_rate);
  out.insert(out.end(), rate.begin(), rate.end());
  return c.exchangeStatus(SET_UART_BAUD_RATE, out, 1);
}

int UARTModule::UART_setDataBit(const Call& c, const Value& port, const Value& mode) {
  _checkUARTPort(port);
  _checkUARTDataBit(mode);
  return modeCommand(c, SET_UART_DATA_SIZE, port, mode);
}

int UARTModule::UART_setParity(const Call& c, const Value& port, const Value& mode) {
  _checkUARTPort(port);
  _checkUARTParityMode(mode);
  return modeCommand(c, SET_UART_PARITY, port, mode);
}

int UARTModule::UART_setNumStopBit(const Call& c, const Value& port, const Value& mode) {
  _checkUARTPort(port);
  _checkUARTNumStopBitMode(mode);
  return modeCommand(c, SET_UART_NUM_STOP_BITS, port, mode);
}

int UARTModule::UART_write(const Call& c, const Value& port, const Value& write_data) {
  _checkUARTPort(port);
  _checkUARTDataLength(write_data);
  // The length byte counts the items given, not the bytes they make.
  Bytes out{portByte(port), portByte(Value(static_cast<int64_t>(write_data.size())))};
  if (write_data.isText()) {
    for (int64_t code : convertStrToU8List(write_data.asText()))
      out.push_back(portByte(Value(code)));
  } else {
    for (const Value& item : write_data.asList()) out.push_back(portByte(Value(ordOf(item))));
  }
  // The reply echoes the port and the length ahead of the status.
  return c.exchangeStatus(WRITE_UART, out, 2);
}

std::vector<std::string> UARTModule::UART_read(const Call& c, const Value& port,
                                               const Value& bytes_to_read, double delay) {
  _checkUARTPort(port);
  checkInputType(bytes_to_read, kTypeInt);
  // The blocking twin waits for its bytes whether the port is open or not;
  // the awaitable one takes what is there.
  const Bytes bytes = c.streaming(portOf(port.asInt()).signal, bytes_to_read.asInt(), delay);
  std::vector<std::string> out;
  out.reserve(bytes.size());
  for (uint8_t b : bytes) out.push_back(charOf(b));
  return out;
}

}  // namespace orv
