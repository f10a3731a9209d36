#include "buses/spi.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

namespace {

void checkIntIn(const Value& mode, std::initializer_list<int64_t> allowed, ErrorId refused) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  for (int64_t a : allowed)
    if (m == a) return;
  raise(refused);
}

}  // namespace

PinPairMap SPIModule::SPI_getPinMap() { return pinPairMap(model().SPI_dict); }

// ---------------------------------------------------------------------------
// Checks.

void SPIModule::_checkSPIPort(const Value& port) {
  checkBusPort(model().SPI_dict, port, ErrorId::SPIPortNotAvaliableError);
}
void SPIModule::_checkSPIDataSize(const Value& mode) {
  checkIntIn(mode, {0, 1}, ErrorId::SPIDataSizeNotVaildError);
}
void SPIModule::_checkSPIFirstBit(const Value& mode) {
  checkIntIn(mode, {0, 1}, ErrorId::SPIFirstBitNotVaildError);
}
void SPIModule::_checkSPIMode(const Value& mode) {
  checkIntIn(mode, {0, 1, 2, 3}, ErrorId::SPIModeNotVaildError);
}
void SPIModule::_checkSPIPrescaler(const Value& mode) {
  checkIntIn(mode, {2, 4, 8, 16, 32, 64, 128, 256}, ErrorId::SPIPrescalerNotVaildError);
}

std::vector<int64_t> SPIModule::_SPI_getPinMapPort(const Value& SPI_port) {
  return busPinMapPorts(model().SPI_dict, SPI_port);
}

void SPIModule::_checkSPIPinState(const Call& c, const Value& port, const Value& allow_state) {
  checkBusPinState(*this, c, model().SPI_dict, port, allow_state,
                   ErrorId::SPIPortNotAvaliableError);
}

// ---------------------------------------------------------------------------
// Operations.

int SPIModule::portCommand(const Call& c, int cmd, const Value& port) {
  _checkSPIPort(port);
  const uint8_t out[] = {portByte(port)};
  return c.exchangeStatus(cmd, out, 1);
}

int SPIModule::portAndByte(const Call& c, int cmd, const Value& port, const Value& b) {
  const uint8_t out[] = {portByte(port), portByte(b)};
  return c.exchangeStatus(cmd, out, 1);
}

// port, the length, the bytes; the length is one byte, unchecked here.
Bytes SPIModule::dataPayload(const Value& port, const Value& write_data) {
  Bytes out{portByte(port), portByte(Value(write_data.size()))};
  for (const Value& b : write_data.asList()) out.push_back(portByte(b));
  return out;
}

int SPIModule::SPI_open(const Call& c, const Value& port) {
  _checkSPIPort(port);
  _checkSPIPinState(c, port, idleOrDigitalModes());
  const uint8_t out[] = {portByte(port)};
  return c.exchangeStatus(OPEN_SPI, out, 1);
}

int SPIModule::SPI_close(const Call& c, const Value& port) {
  return portCommand(c, CLOSE_SPI, port);
}

int SPIModule::SPI_reset(const Call& c, const Value& port) {
  return portCommand(c, RESET_SPI, port);
}

int SPIModule::SPI_setMode(const Call& c, const Value& port, const Value& mode) {
  _checkSPIPort(port);
  _checkSPIMode(mode);
  const int64_t m = mode.asInt();
  const int status = _SPI_setCPOL(c, port, Value(m >> 1));
  const int status2 = _SPI_setCPHA(c, port, Value(m & 1));
  return status | status2;
}

int SPIModule::SPI_setDataSize(const Call& c, const Value& port, const Value& mode) {
  _checkSPIPort(port);
  _checkSPIDataSize(mode);
  return portAndByte(c, SET_SPI_DATA_SIZE, port, mode);
}

int SPIModule::SPI_setFirstBit(const Call& c, const Value& port, const Value& mode) {
  _checkSPIPort(port);
  _checkSPIFirstBit(mode);
  return portAndByte(c, SET_SPI_FIRST_BIT, port, mode);
}

int SPIModule::SPI_setPrescaler(const Call& c, const Value& port, const Value& prescaler) {
  _checkSPIPort(port);
  _checkSPIPrescaler(prescaler);
  Bytes out{portByte(port)};
  const Bytes u8_arr = convertI16To2U8(prescaler);
  out.insert(out.end(), u8_arr.begin(), u8_arr.end());
  return c.exchangeStatus(SET_SPI_PRESCALER, out, 1);
}

int SPIModule::SPI_write(const Call& c, const Value& port, const Value& write_data) {
  _checkSPIPort(port);
  checkInputType(write_data, kTypeList);
  // The reply echoes the port and the count ahead of the status.
  return c.exchangeStatus(WRITE_SPI, dataPayload(port, write_data), 2);
}

std::vector<int64_t> SPIModule::SPI_readAndWrite(const Call& c, const Value& port,
                                                 const Value& write_data) {
  _checkSPIPort(port);
  checkInputType(write_data, kTypeList);
  return replyTail(c.exchange(READ_AND_WRITE_SPI, dataPayload(port, write_data)), 2);
}

std::vector<int64_t> SPIModule::SPI_read(const Call& c, const Value& port,
                                         const Value& bytes_to_read) {
  _checkSPIPort(port);
  checkInputType(bytes_to_read, kTypeInt);
  const uint8_t out[] = {portByte(port), portByte(bytes_to_read)};
  return replyTail(c.exchange(READ_SPI, out), 2);
}

int SPIModule::_SPI_setCPOL(const Call& c, const Value& port, const Value& polarity) {
  return portAndByte(c, SET_SPI_CPOL, port, polarity);
}

int SPIModule::_SPI_setCPHA(const Call& c, const Value& port, const Value& phase) {
  return portAndByte(c, SET_SPI_CPHA, port, phase);
}

}  // namespace orv
