// DIOModule: digital input and output ports.  Opening whole ports or single
// pins as inputs or outputs, reading inputs, writing and toggling outputs,
// handing a port to the idle/DI/DO slot mode, and the start-up words that the
// firmware restores at power-on.  The host does port and pin bookkeeping and
// 16-bit mask arithmetic only; the firmware owns the pins.
//
// Words (mask, enabled, direction, state) hold bit n for pin n; a direction
// bit of 1 is an output.  A whole port is always the mask 0xFFFF.  Pin-state
// lists have dio_num_pins_per_port entries, least significant bit first.
#pragma once

#include <cstdint>
#include <tuple>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int LOAD_DIO_STARTUP = 224;
inline constexpr int SAVE_DIO_STARTUP = 225;
inline constexpr int GET_DIO_CURRENT = 226;
inline constexpr int SET_DIO_CURRENT = 227;
inline constexpr int TOGGLE_DIO_DIR = 228;
inline constexpr int GET_DIO_STATE = 229;
inline constexpr int SET_DIO_STATE = 230;
inline constexpr int READ_DI = 231;
inline constexpr int WRITE_DO = 232;
inline constexpr int READ_AND_GET_DI = 233;
inline constexpr int SET_AND_WRITE_DO = 234;
inline constexpr int SET_SLOT_DI = 235;
inline constexpr int SET_SLOT_DO = 236;
inline constexpr int SET_SLOT_IDLE = 237;
inline constexpr int TOGGLE_AND_WRITE_DO = 238;

using PinStates = std::vector<int64_t>;
// enabled, direction, state
using DioWords = std::tuple<PinStates, PinStates, PinStates>;

class DIOModule : public ModuleBase {
 public:
  DigitalMap DO_getPinMap();
  DigitalMap DI_getPinMap();

  int DI_openPort(const Call& c, const Value& port);
  int DI_openPins(const Call& c, const Value& port, const Value& pin);
  int DI_closePort(const Call& c, const Value& port);
  int DI_closePins(const Call& c, const Value& port, const Value& pin);
  PinStates DI_readPort(const Call& c, const Value& port);
  PinStates DI_readPins(const Call& c, const Value& port, const Value& pin);

  int DO_openPort(const Call& c, const Value& port);
  int DO_openPins(const Call& c, const Value& port, const Value& pin);
  int DO_closePort(const Call& c, const Value& port);
  int DO_closePins(const Call& c, const Value& port, const Value& pin);
  int DO_writePort(const Call& c, const Value& port, const Value& value);
  int DO_writePins(const Call& c, const Value& port, const Value& pin, const Value& value);
  PinStates DO_togglePort(const Call& c, const Value& port);
  PinStates DO_togglePins(const Call& c, const Value& port, const Value& pin);

  DioWords DIO_loadStartup(const Call& c, const Value& port);
  int DIO_saveStartup(const Call& c, const Value& port, const Value& enabled,
                      const Value& direction, const Value& state);
  int DIO_setPortIdle(const Call& c, const Value& port);
  int DIO_setPortDI(const Call& c, const Value& port);
  int DIO_setPortDO(const Call& c, const Value& port);

  // One command each.
  int _closeDIOInPins(const Call& c, const Value& port, const Value& pin);
  int _closeDIOInPort(const Call& c, const Value& port);
  DioWords _getDIOCurrent(const Call& c, const Value& port, const Value& mask);
  PinStates _getDIOState(const Call& c, const Value& port, const Value& mask);
  PinStates _readAndGetDI(const Call& c, const Value& port, const Value& mask);
  int _readDI(const Call& c, const Value& port);
  PinStates _setAndWriteDO(const Call& c, const Value& port, const Value& mask, const Value& state);
  int _setDIOCurrent(const Call& c, const Value& port, const Value& mask, const Value& enabled,
                     const Value& direction, const Value& state);
  int _setDIOState(const Call& c, const Value& port, const Value& mask, const Value& state);
  PinStates _toggleAndWriteDO(const Call& c, const Value& port, const Value& mask);
  int _toggleDIODirection(const Call& c, const Value& port, const Value& mask, const Value& state);
  int _writeDO(const Call& c, const Value& port);

  // Checks (true on success) and the two pin forms.
  bool _checkDIPort(const Value& port);
  bool _checkDOPort(const Value& port);
  bool _checkDIPortAndPin(const Value& port, const Value& pin_list);
  bool _checkDOPortAndPin(const Value& port, const Value& pin_list);
  static Value _getPinIndexInInt(const Value& pin);
  static Value _getPinIndexInList(const Value& pin);

 private:
  // KestrelRelay, KestrelDio, PloverSink and Trellis: pins wired as inputs or
  // outputs, nothing to open or close.
  bool fixedDirection() const;
  // The firmware's name of the mode of each pin of the port.
  std::vector<std::string> pinModes(const Call& c, const Value& port);
  PinStates stateReply(const Call& c, int cmd, const Bytes& data_out);
  DioWords wordsReply(const Call& c, int cmd, const Bytes& data_out);
};
ORV_MODULE_CLASS("DIO", DIOModule);

}  // namespace orv
