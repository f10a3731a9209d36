// CANModule: the device's CAN controller — open, bus speed, receive filters,
// start, write frames, read frames, stop, close — and CANFrame, one frame and
// its wire form.
//
// A frame travels as twelve bytes: the 32-bit identifier word, high byte
// first, then eight data bytes (no length: short data is padded with zeros).
//
//   standard  bits 31-21 id,           bit 20 remote, bits 19-0 zero
//   extended  bits 31-21 id bits 28-18, bit 20 remote, bit 19 one,
//             bit 18 zero, bits 17-0 id bits 17-0
//
// Received frames answer no command: the firmware streams them as records
// [x, x, frames...] under START_CAN, filed under START_CAN alone.  One thread
// cuts them into frames onto a queue of QUEUE_SIZE_MAX frames that CAN_read
// drains; a full queue drops the frame with a CANQueueOverflowWarning.  The
// thread is parked by its gate while the controller is closed.
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

// OPEN_CAN = 48, START_CAN = 49 (link/constants.hpp)
inline constexpr int WRITE_CAN = 50;
inline constexpr int STOP_CAN = 51;
inline constexpr int CLOSE_CAN = 52;
inline constexpr int SET_CAN_SPEED = 53;
inline constexpr int SET_CAN_ENABLED_ITR = 54;
inline constexpr int SET_CAN_TX_PRIORITY = 55;
inline constexpr int SET_CAN_RX_ROLLOVER = 56;
inline constexpr int SET_CAN_RX_FILTERING_ON = 57;
inline constexpr int SET_CAN_RX_FILTER_OR_MASK = 58;
inline constexpr int GET_CAN_INTERRUPTS = 59;
inline constexpr int GET_CAN_ERRORS = 60;
inline constexpr int GET_CAN_COUNTERS = 61;

inline constexpr size_t CAN_FRAME_BYTES = 12;

struct CANFrame {
  int64_t id = 0;
  bool extended_id = false;
  bool remote = false;
  std::vector<int64_t> data;           // always 8 entries after regularizeData
  std::vector<int64_t> id_in_list;     // the identifier word, high byte first
  std::vector<int64_t> frame_in_list;  // id_in_list then data

  CANFrame(int64_t id_, bool extended_id = false, bool remote = false,
           std::vector<int64_t> data = std::vector<int64_t>(8, 0));
  // A copy of data with eight zeros appended, cut to eight entries.
  static std::vector<int64_t> regularizeData(const std::vector<int64_t>& data);
  // id_in_list and frame_in_list from id, extended_id, remote and data.
  void setID();
  // A frame from its wire form (four identifier bytes, then the data).
  static CANFrame fromU8List(std::span<const int64_t> u8_list);
  static CANFrame fromU8List(std::span<const uint8_t> u8_list);
  // "CANFrame(id=291, extended_id=False, remote=False, data=[1, 2, 0, 0, 0, 0, 0, 0])"
  std::string repr() const;
  bool operator==(const CANFrame& o) const {
    return id == o.id && extended_id == o.extended_id && remote == o.remote && data == o.data;
  }
};

class CANModule : public ModuleBase {
 public:
  CANModule();
  ~CANModule() override;

  std::vector<int> CAN_getPort();
  int CAN_open(const Call& c, const Value& port);
  int CAN_close(const Call& c, const Value& port);
  int CAN_setSpeed(const Call& c, const Value& port, const Value& speed_mode);
  int CAN_setRXFilteringOn(const Call& c, const Value& port, const Value& on_off);
  int CAN_setRXFilterOrMask(const Call& c, const Value& port, const Value& index, const Value& id_,
                            const Value& remote, const Value& extended_id);
  int CAN_start(const Call& c, const Value& port);
  int CAN_stop(const Call& c, const Value& port);
  int CAN_write(const Call& c, const Value& port, const Value& id_, const Value& data,
                const Value& remote, const Value& extended_id);
  std::vector<CANFrame> CAN_read(const Call& c, const Value& port, const Value& num_frames,
                                 double delay);

  std::vector<int64_t> CAN_getErrors_(const Call& c, const Value& port);
  std::vector<int64_t> CAN_getCounters_(const Call& c, const Value& port);
  std::vector<int64_t> CAN_getInterrupts_(const Call& c, const Value& port);
  int CAN_setEnableInterrupt_(const Call& c, const Value& port, const Value& status);
  int CAN_setRXRollover_(const Call& c, const Value& port, const Value& status);
  int CAN_setTXPriority_(const Call& c, const Value& port, const Value& tx_mode,
                         const Value& priority_mode);
  void _checkCANPinState_(const Call& c, const Value& port, const Value& allow_state);
  std::vector<int64_t> CAN_getPinMapPort_(const Value& CAN_port);
  // Ends the stream thread (without joining it).
  void CAN_free_();
  // CAN_free_ and the join; for the model's close and the destructor.
  void closeModule() noexcept override;

  bool _checkCANPort(const Value& port);
  static bool _checkCANSpeed(const Value& speed);
  static bool _checkCANDataRangeAndLength(const Value& data);
  static bool _checkCANTXIndex(const Value& mode);
  static bool _checkCANTXPriority(const Value& mode);

  bool canOpenFlag() const { return open_flag_.load(); }
  bool canKilled() const { return killed_.load(); }
  bool canGateOpen() { return stream_.gate().isOpen(); }
  size_t canFrameQueueSize() const { return frames_.size(); }
  bool canThreadStarted();

 private:
  void startThread();
  int flagCommand(const Call& c, int cmd, const Value& port, const Value& on_off);

  BusStream stream_;
  StreamQueue frames_{QUEUE_SIZE_MAX};  // can_frame_queue: 12 bytes a frame
  std::atomic<bool> open_flag_{false};  // can_open_flag
  std::atomic<bool> killed_{false};     // can_killed
  std::mutex start_m_;
  PendingReads pending_;
};
ORV_MODULE_CLASS("CAN", CANModule);

}  // namespace orv
