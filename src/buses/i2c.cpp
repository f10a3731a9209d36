#include "buses/i2c.hpp"

#include "digital/payload.hpp"
#include "link/convert.hpp"

namespace orv {

PinPairMap I2CModule::I2C_getPinMap() { return pinPairMap(model().I2C_dict); }

// ---------------------------------------------------------------------------
// Checks.

void I2CModule::_checkI2CPort(const Value& port) {
  checkBusPort(model().I2C_dict, port, ErrorId::I2CPortNotAvaliableError);
}

void I2CModule::_checkI2CClockRate(const Value& mode) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  if (m < 0 || m > 3) raise(ErrorId::I2CClockNotSupportError);
}

void I2CModule::_checkI2CAddressSize(const Value& mode) {
  checkInputType(mode, kTypeInt);
  const int64_t m = mode.asInt();
  if (m != 0 && m != 1) raise(ErrorId::I2CAddressSizeNotVaildError);
}

std::vector<int64_t> I2CModule::_I2C_getPinMapPort(const Value& I2C_port) {
  return busPinMapPorts(model().I2C_dict, I2C_port);
}

void I2CModule::_checkI2CPinState(const Call& c, const Value& port, const Value& allow_state) {
  checkBusPinState(*this, c, model().I2C_dict, port, allow_state,
                   ErrorId::I2CPortNotAvaliableError);
}

// ---------------------------------------------------------------------------
// Operations.

int I2CModule::portCommand(const Call& c, int cmd, const Value& port) {
  _checkI2CPort(port);
  const uint8_t out[] = {portByte(port)};
  return c.exchangeStatus(cmd, out, 1);
}

int I2CModule::I2C_open(const Call& c, const Value& port) {
  _checkI2CPort(port);
  _checkI2CPinState(c, port, idleOrDigitalModes());
  const uint8_t out[] = {portByte(port)};
  return c.exchangeStatus(OPEN_I2C, out, 1);
}

int I2CModule::I2C_close(const Call& c, const Value& port) {
  return portCommand(c, CLOSE_I2C, port);
}

int I2CModule::I2C_reset(const Call& c, const Value& port) {
  return portCommand(c, RESET_I2C, port);
}

int I2CModule::I2C_setClockRate(const Call& c, const Value& port, const Value& mode) {
  _checkI2CPort(port);
  _checkI2CClockRate(mode);
  Bytes out{portByte(port)};
  const Bytes freq = convertU32To4U8(Value(kI2CClockRates[mode.asInt()]));
  out.insert(out.end(), freq.begin(), freq.end());
  return c.exchangeStatus(SET_I2C_FREQUENCY, out, 1);
}

int I2CModule::I2C_setAddressSize(const Call& c, const Value& port, const Value& mode) {
  _checkI2CPort(port);
  _checkI2CAddressSize(mode);
  const uint8_t out[] = {portByte(port), portByte(mode)};
  return c.exchangeStatus(SET_I2C_ADDR_SIZE, out, 1);
}

int I2CModule::I2C_write(const Call& c, const Value& port, const Value& write_address,
                         const Value& write_data) {
  _checkI2CPort(port);
  checkInputType(write_address, kTypeInt);
  checkInputType(write_data, kTypeList);
  // Each item goes out as one byte; the length is one byte too, unchecked
  // here: a value that does not fit a byte is refused as the payload is made.
  Bytes out{portByte(port), portByte(write_address), portByte(Value(write_data.size()))};
  for (const Value& b : write_data.asList()) out.push_back(portByte(b));
  // The reply echoes the port, the address and the count ahead of the status.
  return c.exchangeStatus(WRITE_I2C, out, 3);
}

std::vector<int64_t> I2CModule::I2C_read(const Call& c, const Value& port,
                                         const Value& read_address, const Value& bytes_to_read) {
  _checkI2CPort(port);
  checkInputType(read_address, kTypeInt);
  checkInputType(bytes_to_read, kTypeInt);
  const uint8_t out[] = {portByte(port), portByte(read_address), portByte(bytes_to_read)};
  // No status: a failed read is a short or empty list.
  return replyTail(c.exchange(READ_I2C, out), 3);
}

}  // namespace orv
