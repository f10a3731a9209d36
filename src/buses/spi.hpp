// SPIModule: the device as an SPI master.  Open a port, set the clock mode
// (polarity and phase, two commands), data size, bit order and prescaler, and
// read, write or exchange bytes.  There is no chip-select here: a script
// drives a select line as a digital output.  The module owns no thread.
//
// A port's pins are pairs (digital port, pin) of the model's SPI_dict; a port
// opens only while each of its pins is Idle, DI or DO on the device.
#pragma once

#include <cstdint>
#include <vector>

#include "buses/bus_pins.hpp"
#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_SPI = 160;
inline constexpr int READ_SPI = 161;
inline constexpr int WRITE_SPI = 162;
inline constexpr int READ_AND_WRITE_SPI = 163;
inline constexpr int CLOSE_SPI = 164;
inline constexpr int RESET_SPI = 165;
inline constexpr int SET_SPI_DATA_SIZE = 166;
inline constexpr int SET_SPI_FIRST_BIT = 167;
inline constexpr int SET_SPI_PRESCALER = 168;
inline constexpr int SET_SPI_CPOL = 169;
inline constexpr int SET_SPI_CPHA = 170;

class SPIModule : public ModuleBase {
 public:
  PinPairMap SPI_getPinMap();

  int SPI_open(const Call& c, const Value& port);
  int SPI_close(const Call& c, const Value& port);
  int SPI_reset(const Call& c, const Value& port);
  // CPOL then CPHA; the two statuses or'ed bit by bit.
  int SPI_setMode(const Call& c, const Value& port, const Value& mode);
  int SPI_setDataSize(const Call& c, const Value& port, const Value& mode);
  int SPI_setFirstBit(const Call& c, const Value& port, const Value& mode);
  int SPI_setPrescaler(const Call& c, const Value& port, const Value& prescaler);
  int SPI_write(const Call& c, const Value& port, const Value& write_data);
  std::vector<int64_t> SPI_read(const Call& c, const Value& port, const Value& bytes_to_read);
  std::vector<int64_t> SPI_readAndWrite(const Call& c, const Value& port, const Value& write_data);

  // One command each, nothing checked.
  int _SPI_setCPOL(const Call& c, const Value& port, const Value& polarity);
  int _SPI_setCPHA(const Call& c, const Value& port, const Value& phase);

  void _checkSPIPinState(const Call& c, const Value& port, const Value& allow_state);
  std::vector<int64_t> _SPI_getPinMapPort(const Value& SPI_port);

  void _checkSPIPort(const Value& port);
  static void _checkSPIDataSize(const Value& mode);
  static void _checkSPIFirstBit(const Value& mode);
  static void _checkSPIMode(const Value& mode);
  static void _checkSPIPrescaler(const Value& mode);

 private:
  int portCommand(const Call& c, int cmd, const Value& port);
  int portAndByte(const Call& c, int cmd, const Value& port, const Value& b);
  Bytes dataPayload(const Value& port, const Value& write_data);
};
ORV_MODULE_CLASS("SPI", SPIModule);

}  // namespace orv
