// The pin modes of a simulated device's digital ports, shared by the handler
// files: GET_PIN_MODE_OF_SLOT reports them; the handlers that take pins (a
// bus opened, a DIO port set to DI or DO) or give them back change them.
//
// Which ports a model has and how many pins each holds come from its row of
// the model table (models/table.cpp): a port exists when a digital map or a
// function map names it, and holds dio_num_pins_per_port pins.  Every pin of
// a port starts Idle, as after power-up; a pin outside the pins the model
// wires can be set Disabled by a handler.
//
//   setPinModes(dev, model.I2C_dict.at(port), PinMode::I2C);   // I2C_open
//   setPinModes(dev, model.I2C_dict.at(port), PinMode::Idle);  // I2C_close
//   auto modes = pinModes(dev, 1);
//
// The state lives in the device's state store, so it is per device and
// thread-safe; resetPinModes forgets every change (a reboot).
#pragma once

#include <cstdint>
#include <vector>

#include "models/model_info.hpp"
#include "sim/handler.hpp"

namespace orv::sim {

class SimDevice;

// The firmware's mode codes, as GET_PIN_MODE_OF_SLOT sends them (4 bits).
enum class PinMode : uint8_t {
  Disabled = 0,
  Idle = 1,
  DI = 2,
  DO = 3,
  UART = 4,
  I2C = 5,
  SPI = 6,
  CAN = 7,
  PWM = 8,
  ADC = 9,
};

// Pins of a digital port on a model: 0 when the model has no such port.
int pinCount(const ModelInfo& model, int port);
// The modes after power-up.
std::vector<PinMode> defaultPinModes(const ModelInfo& model, int port);

// The current modes of a port of the device (empty for a port it lacks).
std::vector<PinMode> pinModes(SimDevice& dev, int port);
// Replaces the modes of a port; the list is kept as given.
void setPinModes(SimDevice& dev, int port, std::vector<PinMode> modes);
// One pin; false (and nothing changed) when the port has no such pin.
bool setPinMode(SimDevice& dev, int port, int pin, PinMode mode);
// Every (port, pin) of a function map entry; pins the device lacks are skipped.
void setPinModes(SimDevice& dev, const std::vector<PinPair>& pins, PinMode mode);
// Back to the modes after power-up on every port.
void resetPinModes(SimDevice& dev);

// The GET_PIN_MODE_OF_SLOT reply for a port: pin count, the port, then two
// modes a byte, low half first (the high half of an odd last byte is 0).
Bytes pinModeReply(SimDevice& dev, int port);

// The Wi-Fi boards' own digital ports, reached through READ_AND_GET_DI (233)
// and SET_AND_WRITE_DO (234): output port 0 drives the red, green and blue
// LEDs (pins 0, 1, 2), input port 1 reads power good (pin 0) and charging
// (pin 1).  Answers and returns true on a Wi-Fi model; returns false (and
// does nothing) on any other, whose DIO handlers serve those commands.  A
// handler registered for 233 or 234 on behalf of the DIO ports must call this
// first, so that the Wi-Fi models keep their board.
bool serveWifiBoardIO(Context& ctx, const Request& req);

// READ_AND_GET_DI on a drive with a TMC5240: its limit and home inputs
// (sim/handlers_tmc5240.cpp).  Returns false on any other model.
bool serveTmc5240Inputs(Context& ctx, const Request& req);

// True for the Wi-Fi models (by the model table, else by the link).
bool isWifiModel(const SimDevice& dev);

}  // namespace orv::sim
