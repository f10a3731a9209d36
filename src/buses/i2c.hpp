// I2CModule: the device as an I2C master.  Open a port, pick one of four
// clock rates and an address size, read and write bytes at an address.  Each
// operation is one command and one reply; the module owns no thread.
//
// A port's pins are pairs (digital port, pin) of the model's I2C_dict; a port
// opens only while each of its pins is Idle, DI or DO on the device.
#pragma once

#include <cstdint>
#include <vector>

#include "buses/bus_pins.hpp"
#include "link/call.hpp"
#include "link/value.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_I2C = 144;
inline constexpr int READ_I2C = 145;
inline constexpr int WRITE_I2C = 146;
inline constexpr int CLOSE_I2C = 148;
inline constexpr int RESET_I2C = 149;
inline constexpr int SET_I2C_FREQUENCY = 150;
inline constexpr int SET_I2C_ADDR_SIZE = 151;

// Clock rates in Hz by mode 0..3.
inline constexpr uint32_t kI2CClockRates[] = {100000, 400000, 1000000, 3400000};

class I2CModule : public ModuleBase {
 public:
  PinPairMap I2C_getPinMap();

  int I2C_open(const Call& c, const Value& port);
  int I2C_close(const Call& c, const Value& port);
  int I2C_reset(const Call& c, const Value& port);
  int I2C_setClockRate(const Call& c, const Value& port, const Value& mode);
  int I2C_setAddressSize(const Call& c, const Value& port, const Value& mode);
  int I2C_write(const Call& c, const Value& port, const Value& write_address,
                const Value& write_data);
  std::vector<int64_t> I2C_read(const Call& c, const Value& port, const Value& read_address,
                                const Value& bytes_to_read);

  // Raises I2CPortNotAvaliableError when a pin of the port is in a mode
  // outside allow_state (the mode names of Sys_getPinModeInPort).
  void _checkI2CPinState(const Call& c, const Value& port, const Value& allow_state);
  std::vector<int64_t> _I2C_getPinMapPort(const Value& I2C_port);

  void _checkI2CPort(const Value& port);
  static void _checkI2CClockRate(const Value& mode);
  static void _checkI2CAddressSize(const Value& mode);

 private:
  int portCommand(const Call& c, int cmd, const Value& port);
};
ORV_MODULE_CLASS("I2C", I2CModule);

}  // namespace orv
