// UARTModule: the device's two UARTs.  Open a port, set its baud rate, data
// size, parity and stop bits, write up to 50 bytes a command, read what the
// device received.
//
// Received bytes answer no command: the firmware streams them as records
// [port, x, bytes...] under START_UART_READING, filed per port in the
// device's stream pool.  One thread per port moves them byte by byte onto a
// signal queue of QUEUE_SIZE_MAX entries that UART_read drains; a full queue
// drops the byte with a UARTQueueOverflowWarning.  Each thread is parked by
// its gate while the UARTs are closed.  One open flag stands for both ports:
// the first open after a close starts the stream of that port and opens both
// gates; the other port opened meanwhile streams only if the firmware sends.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

#include "buses/bus_stream.hpp"
#include "link/call.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_UART = 128;
// START_UART_READING = 129 (link/constants.hpp: the link files its records)
inline constexpr int WRITE_UART = 130;
inline constexpr int STOP_UART_READING = 131;
inline constexpr int CLOSE_UART = 132;
inline constexpr int RESET_UART = 133;
inline constexpr int SET_UART_BAUD_RATE = 134;
inline constexpr int SET_UART_DATA_SIZE = 135;
inline constexpr int SET_UART_PARITY = 136;
inline constexpr int SET_UART_NUM_STOP_BITS = 139;

inline constexpr int64_t UART_MAX_BAUD_RATE = 400000;
inline constexpr size_t UART_MAX_WRITE = 50;

class UARTModule : public ModuleBase {
 public:
  UARTModule();
  ~UARTModule() override;

  PortMap UART_getPinMap();
  int UART_open(const Call& c, const Value& port);
  int UART_close(const Call& c, const Value& port);
  int UART_reset(const Call& c, const Value& port);
  int UART_setBaudRate(const Call& c, const Value& port, const Value& baud_rate);
  int UART_setDataBit(const Call& c, const Value& port, const Value& mode);
  int UART_setParity(const Call& c, const Value& port, const Value& mode);
  int UART_setNumStopBit(const Call& c, const Value& port, const Value& mode);
  int UART_stopReading(const Call& c, const Value& port);
  int UART_write(const Call& c, const Value& port, const Value& write_data);
  // One one-character string per byte (the character of code 0..255).
  std::vector<std::string> UART_read(const Call& c, const Value& port, const Value& bytes_to_read,
                                     double delay);

  int UART_startReading_(const Call& c, const Value& port);
  void _checkUARTPinState(const Call& c, const Value& port, const Value& allow_state);
  std::vector<int64_t> UART_getPinMapPort_(const Value& UART_port);
  // Ends both stream threads (without joining them).
  void UART_free_();
  // UART_free_ and the joins; for the model's close and the destructor.
  void closeModule() noexcept override;

  // Checks: true, or the error of the row.
  bool _checkUARTPort(const Value& port);
  static bool _checkUARTBaudRate(const Value& baud_rate);
  static bool _checkUARTDataBit(const Value& mode);
  static bool _checkUARTParityMode(const Value& mode);
  static bool _checkUARTNumStopBitMode(const Value& mode);
  static bool _checkUARTDataLength(const Value& data);

  bool uartOpenFlag() const { return open_flag_.load(); }
  bool uartKilled() const { return killed_.load(); }
  bool uartGateOpen(int port) { return portOf(port).stream.gate().isOpen(); }
  size_t uartSignalSize(int port) { return portOf(port).signal.size(); }
  bool uartThreadsStarted();

 private:
  struct Port {
    BusStream stream;
    StreamQueue signal{QUEUE_SIZE_MAX};
  };
  Port& portOf(int64_t port) { return port == 1 ? ports_[0] : ports_[1]; }
  // The stream threads start with the first operation that needs them (the
  // device is complete by then); never after UART_free_.
  void startThreads();
  int modeCommand(const Call& c, int cmd, const Value& port, const Value& mode);

  std::array<Port, 2> ports_;
  std::atomic<bool> open_flag_{false};  // uart_open_flag
  std::atomic<bool> killed_{false};     // uart_killed
  std::mutex start_m_;
  PendingReads pending_;
};
ORV_MODULE_CLASS("UART", UARTModule);

}  // namespace orv
