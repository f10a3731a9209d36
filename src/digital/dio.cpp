#include "digital/dio.hpp"

#include <algorithm>
#include <string>

#include "digital/payload.hpp"
#include "link/convert.hpp"
#include "services/system.hpp"

namespace orv {

namespace {

constexpr int64_t kWholePort = 0xFFFF;

const std::vector<int>* portPins(const DigitalMap& map, const Value& port) {
  const int64_t p = port.asInt();
  auto it = map.find(static_cast<int>(p));
  if (it == map.end() || it->first != p) return nullptr;
  return &it->second;
}

// The port must be an int and a key of the map.
bool checkPort(const DigitalMap& map, const Value& port, ErrorId not_there) {
  checkInputType(port, kTypeInt);
  if (!portPins(map, port)) raise(not_there);
  return true;
}

// set(pin_list) <= set(map[port]): an int is not iterable, a list in the list
// is not hashable; items compare by value (1.0 is pin 1).
bool checkPortAndPin(const DigitalMap& map, const Value& port, const Value& pin_list,
                     ErrorId not_there) {
  checkInputType(port, kTypeInt);
  checkInputType(pin_list, kTypeInt | kTypeList);
  const std::vector<int>* pins = portPins(map, port);
  if (!pins) raise(not_there);
  if (!pin_list.isList())
    throw TypeError("'" + std::string(pin_list.typeName()) + "' object is not iterable");
  bool subset = true;
  for (const Value& item : pin_list.asList()) {
    if (item.isList()) throw TypeError("unhashable type: 'list'");
    const bool found =
        std::any_of(pins->begin(), pins->end(), [&](int p) { return looseEquals(item, Value(p)); });
    subset = subset && found;
  }
  if (!subset) raise(ErrorId::PinsNotExistError);
  return true;
}

const char* kIdle = "Idle";

}  // namespace

DigitalMap DIOModule::DO_getPinMap() { return model().do_dict; }
DigitalMap DIOModule::DI_getPinMap() { return model().di_dict; }

bool DIOModule::fixedDirection() const { return model().dio_fixed_direction; }

// ---------------------------------------------------------------------------
// Checks and pin forms.

bool DIOModule::_checkDIPort(const Value& port) {
  return checkPort(model().di_dict, port, ErrorId::DIPortNotAvaliableError);
}
bool DIOModule::_checkDOPort(const Value& port) {
  return checkPort(model().do_dict, port, ErrorId::DOPortNotAvaliableError);
}
bool DIOModule::_checkDIPortAndPin(const Value& port, const Value& pin_list) {
  return checkPortAndPin(model().di_dict, port, pin_list, ErrorId::DIPortNotAvaliableError);
}
bool DIOModule::_checkDOPortAndPin(const Value& port, const Value& pin_list) {
  return checkPortAndPin(model().do_dict, port, pin_list, ErrorId::DOPortNotAvaliableError);
}

Value DIOModule::_getPinIndexInInt(const Value& pin) {
  if (pin.isStrictInt()) return pin;
  return Value(convertIndexListToInt(pin));
}

Value DIOModule::_getPinIndexInList(const Value& pin) {
  if (pin.isList()) return pin;
  if (!pin.isInt())
    throw TypeError("unsupported operand type(s) for &: '" + std::string(pin.typeName()) +
                    "' and 'int'");
  return Value::listOf(convertIntToIndexList(pin.asInt()));
}

// ---------------------------------------------------------------------------
// Replies.

PinStates DIOModule::stateReply(const Call& c, int cmd, const Bytes& data_out) {
  const Bytes data_in = c.exchange(cmd, data_out);
  needReplyBytes(data_in, 3, cmd);
  const uint16_t word = convert2U8ToU16(std::span(data_in).subspan(1, 2));
  return convertIntToBinaryList(word, model().dio_num_pins_per_port);
}

DioWords DIOModule::wordsReply(const Call& c, int cmd, const Bytes& data_out) {
  const Bytes data_in = c.exchange(cmd, data_out);
  needReplyBytes(data_in, 7, cmd);
  const auto width = model().dio_num_pins_per_port;
  auto list = [&](size_t at) {
    return convertIntToBinaryList(convert2U8ToU16(std::span(data_in).subspan(at, 2)), width);
  };
  return {list(1), list(3), list(5)};
}

// Sys_getPinModeInPort of the model: every model with digital ports has the
// system module, and its side-effect attributes follow the read.
std::vector<std::string> DIOModule::pinModes(const Call& c, const Value& port) {
  auto* sys = sibling<SystemModule>();
  if (!sys) raise(ErrorId::APINotSupportError);
  return sys->Sys_getPinModeInPort(c, port);
}

// ---------------------------------------------------------------------------
// Commands.

int DIOModule::_setDIOCurrent(const Call& c, const Value& port, const Value& mask,
                              const Value& enabled, const Value& direction, const Value& state) {
  Bytes out{portByte(port)};
  for (const Value* w : {&mask, &enabled, &direction, &state}) appendWord(out, *w);
  return c.exchangeStatus(SET_DIO_CURRENT, out, 1);
}

int DIOModule::_closeDIOInPins(const Call& c, const Value& port, const Value& pin) {
  return _setDIOCurrent(c, port, pin, Value(0), Value(0), Value(0));
}

int DIOModule::_closeDIOInPort(const Call& c, const Value& port) {
  return _setDIOCurrent(c, port, Value(kWholePort), Value(0), Value(0), Value(0));
}

DioWords DIOModule::_getDIOCurrent(const Call& c, const Value& port, const Value& mask) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  out.insert(out.end(), 6, 1);
  return wordsReply(c, GET_DIO_CURRENT, out);
}

PinStates DIOModule::_getDIOState(const Call& c, const Value& port, const Value& mask) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  return stateReply(c, GET_DIO_STATE, out);
}

PinStates DIOModule::_readAndGetDI(const Call& c, const Value& port, const Value& mask) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  return stateReply(c, READ_AND_GET_DI, out);
}

int DIOModule::_readDI(const Call& c, const Value& port) {
  return c.exchangeStatus(READ_DI, Bytes{portByte(port), 0}, 1);
}

PinStates DIOModule::_setAndWriteDO(const Call& c, const Value& port, const Value& mask,
                                    const Value& state) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  appendWord(out, state);
  return stateReply(c, SET_AND_WRITE_DO, out);
}

int DIOModule::_setDIOState(const Call& c, const Value& port, const Value& mask,
                            const Value& state) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  appendWord(out, state);
  return c.exchangeStatus(SET_DIO_STATE, out, 1);
}

PinStates DIOModule::_toggleAndWriteDO(const Call& c, const Value& port, const Value& mask) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  return stateReply(c, TOGGLE_AND_WRITE_DO, out);
}

int DIOModule::_toggleDIODirection(const Call& c, const Value& port, const Value& mask,
                                   const Value& state) {
  Bytes out{portByte(port)};
  appendWord(out, mask);
  appendWord(out, state);
  return c.exchangeStatus(TOGGLE_DIO_DIR, out, 1);
}

int DIOModule::_writeDO(const Call& c, const Value& port) {
  return c.exchangeStatus(WRITE_DO, Bytes{portByte(port), 0}, 1);
}

// ---------------------------------------------------------------------------
// Opening and closing.

int DIOModule::DI_openPort(const Call& c, const Value& port) {
  if (fixedDirection()) return 0;
  _checkDIPort(port);
  const auto pin_map = pinModes(c, port);
  for (int i : *portPins(model().di_dict, port)) {
    const std::string& mode = pin_map.at(static_cast<size_t>(i));
    if (mode != kIdle && mode != "DI") raise(ErrorId::DIPortNotAvaliableError);
  }
  return _setDIOCurrent(c, port, Value(kWholePort), Value(kWholePort), Value(0), Value(0));
}

int DIOModule::DO_openPort(const Call& c, const Value& port) {
  if (fixedDirection()) return 0;
  _checkDOPort(port);
  const auto pin_map = pinModes(c, port);
  for (int i : *portPins(model().do_dict, port)) {
    const std::string& mode = pin_map.at(static_cast<size_t>(i));
    if (mode != kIdle && mode != "DO") raise(ErrorId::DOPortNotAvaliableError);
  }
  return _setDIOCurrent(c, port, Value(kWholePort), Value(kWholePort), Value(kWholePort), Value(0));
}

namespace {
// pin_map[i] for a pin index of the user's list (negative counts from the end).
const std::string& modeOf(const std::vector<std::string>& pin_map, int64_t i) {
  const auto n = static_cast<int64_t>(pin_map.size());
  if (i < 0) i += n;
  if (i < 0 || i >= n) throw IndexError("list index out of range");
  return pin_map[static_cast<size_t>(i)];
}
}  // namespace

int DIOModule::DI_openPins(const Call& c, const Value& port, const Value& pin) {
  if (fixedDirection()) return 0;
  _checkDIPortAndPin(port, pin);  // the raw pin: an int fails in the set test
  const Value pin_list = _getPinIndexInList(pin);
  const auto pin_map = pinModes(c, port);
  for (const Value& i : pin_list.asList()) {
    const std::string& mode = modeOf(pin_map, i.asInt());
    if (mode != kIdle && mode != "DI") raise(ErrorId::DIPortNotAvaliableError);
  }
  return _setDIOCurrent(c, port, _getPinIndexInInt(pin), Value(kWholePort), Value(0), Value(0));
}

int DIOModule::DO_openPins(const Call& c, const Value& port, const Value& pin) {
  if (fixedDirection()) return 0;
  const Value pin_list = _getPinIndexInList(pin);  // a mask is taken as well
  _checkDOPortAndPin(port, pin_list);
  const auto pin_map = pinModes(c, port);
  for (const Value& i : pin_list.asList()) {
    const std::string& mode = modeOf(pin_map, i.asInt());
    if (mode != kIdle && mode != "DO") raise(ErrorId::DOPortNotAvaliableError);
  }
  return _setDIOCurrent(c, port, _getPinIndexInInt(pin), Value(kWholePort), Value(kWholePort),
                        Value(0));
}

int DIOModule::DI_closePort(const Call& c, const Value& port) {
  if (fixedDirection()) return 0;
  _checkDIPort(port);
  return _closeDIOInPort(c, port);
}

int DIOModule::DO_closePort(const Call& c, const Value& port) {
  if (fixedDirection()) return 0;
  _checkDOPort(port);
  return _closeDIOInPort(c, port);
}

int DIOModule::DI_closePins(const Call& c, const Value& port, const Value& pin) {
  if (fixedDirection()) return 0;
  _checkDIPortAndPin(port, pin);
  return _closeDIOInPins(c, port, _getPinIndexInInt(pin));
}

int DIOModule::DO_closePins(const Call& c, const Value& port, const Value& pin) {
  if (fixedDirection()) return 0;
  const Value pin_list = _getPinIndexInList(pin);
  _checkDOPortAndPin(port, pin_list);
  return _closeDIOInPins(c, port, _getPinIndexInInt(pin));
}

// ---------------------------------------------------------------------------
// Reading, writing, toggling.

PinStates DIOModule::DI_readPort(const Call& c, const Value& port) {
  _checkDIPort(port);
  return _readAndGetDI(c, port, Value(kWholePort));
}

PinStates DIOModule::DI_readPins(const Call& c, const Value& port, const Value& pin) {
  _checkDIPortAndPin(port, pin);
  const Value pin_list = _getPinIndexInList(pin);
  const Value mask = _getPinIndexInInt(pin);
  const PinStates state_list = _readAndGetDI(c, port, mask);
  PinStates out;
  const auto n = static_cast<int64_t>(state_list.size());
  for (const Value& v : pin_list.asList()) {
    int64_t i = v.asInt();
    if (i < 0) i += n;
    if (i < 0 || i >= n) throw IndexError("list index out of range");
    out.push_back(state_list[static_cast<size_t>(i)]);
  }
  return out;
}

int DIOModule::DO_writePort(const Call& c, const Value& port, const Value& value) {
  _checkDOPort(port);
  checkInputType(value, kTypeInt | kTypeList);
  Value state = value;
  if (value.isList()) {
    std::vector<int64_t> index_list(value.size());
    for (size_t i = 0; i < index_list.size(); ++i) index_list[i] = static_cast<int64_t>(i);
    state = Value(convertIndexAndBinaryListsToInt(Value::listOf(index_list), value));
  }
  _setAndWriteDO(c, port, Value(kWholePort), state);
  return 0;
}

int DIOModule::DO_writePins(const Call& c, const Value& port, const Value& pin,
                            const Value& value) {
  const Value pin_list = _getPinIndexInList(pin);
  _checkDOPortAndPin(port, pin_list);
  checkInputType(value, kTypeInt | kTypeList);
  checkInputTypeConsistent(pin, value);
  Value state = value;  // a mask of pins takes the value bits at the pin positions
  if (pin.isList()) {
    if (pin.size() > value.size()) raise(ErrorId::PinsValueNotDefineError);
    state = Value(convertIndexAndBinaryListsToInt(pin, value));
  }
  _setAndWriteDO(c, port, _getPinIndexInInt(pin), state);
  return 0;
}

PinStates DIOModule::DO_togglePort(const Call& c, const Value& port) {
  _checkDOPort(port);
  return _toggleAndWriteDO(c, port, Value(kWholePort));
}

PinStates DIOModule::DO_togglePins(const Call& c, const Value& port, const Value& pin) {
  _checkDOPort(port);  // the pins are the firmware's to refuse
  return _toggleAndWriteDO(c, port, _getPinIndexInInt(pin));
}

// ---------------------------------------------------------------------------
// Start-up words and slot modes.

DioWords DIOModule::DIO_loadStartup(const Call& c, const Value& port) {
  Bytes out{portByte(port)};
  out.insert(out.end(), 6, 1);
  return wordsReply(c, LOAD_DIO_STARTUP, out);
}

int DIOModule::DIO_saveStartup(const Call& c, const Value& port, const Value& enabled,
                               const Value& direction, const Value& state) {
  Bytes out{portByte(port)};
  for (const Value* w : {&enabled, &direction, &state}) appendWord(out, *w);
  return c.exchangeStatus(SAVE_DIO_STARTUP, out, 1);
}

int DIOModule::DIO_setPortIdle(const Call& c, const Value& port) {
  _checkDOPort(port);  // a port that is only an input can't be set idle
  return c.exchangeStatus(SET_SLOT_IDLE, Bytes{portByte(port), 0}, 1);
}

int DIOModule::DIO_setPortDI(const Call& c, const Value& port) {
  _checkDIPort(port);
  return c.exchangeStatus(SET_SLOT_DI, Bytes{portByte(port), 0}, 1);
}

int DIOModule::DIO_setPortDO(const Call& c, const Value& port) {
  _checkDOPort(port);
  return c.exchangeStatus(SET_SLOT_DO, Bytes{portByte(port), 0}, 1);
}

}  // namespace orv
