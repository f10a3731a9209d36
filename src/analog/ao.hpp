// AOModule: the analog outputs.  One voltage at once (on-demand mode), a
// waveform the firmware generates from a form and its parameters, or values
// pushed into the device's buffer for N-samples or continuous output.  The
// host computes no waveform and keeps no state: mode, channels, forms and the
// buffer live on the device.
//
// Enumerations as the device knows them: mode 0 on demand, 1 N-samples,
// 2 continuous; state 0 idle, 1 stand-by, 2 running; form 0 DC, 1
// rectangular, 2 triangular, 3 sine; span 0: 0..5 V, 1: 0..10 V, 2: +-5 V,
// 3: +-10 V (default), 4: +-2.5 V.
//
// On a slotted model (Trellis) the streaming, getting and setting operations
// return at once with no value (None); only the writes send, their port a
// slot number less one.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "link/call.hpp"
#include "link/value.hpp"
#include "models/model_info.hpp"
#include "models/module.hpp"

namespace orv {

inline constexpr int OPEN_AO = 192;
inline constexpr int WRITE_AO_BY_CHANNEL = 197;
inline constexpr int INIT_AO_BUFFER = 202;
inline constexpr int PUSH_TO_AO_BUFFER = 203;
inline constexpr int GET_AO_COUNTERS = 204;
inline constexpr int WRITE_AO_SYNCHRONIZED = 205;
inline constexpr int GET_AO_VALUES = 206;
inline constexpr int CLOSE_AO = 207;
inline constexpr int OPEN_AO_STREAMING = 8264;
inline constexpr int STOP_AO_STREAMING = 8266;
inline constexpr int CLOSE_AO_STREAMING = 8267;
inline constexpr int SET_AO_SPAN = 8272;
inline constexpr int SET_AO_MODE = 8273;
inline constexpr int SET_AO_SAMPLING_RATE = 8274;
inline constexpr int SET_AO_NUM_SAMPLES = 8275;
inline constexpr int SET_AO_ENABLED_CHANNELS = 8276;
inline constexpr int SET_AO_FORM = 8277;
inline constexpr int SET_AO_FORM_PARAM = 8278;
inline constexpr int SET_AO_PUSH_TO_BUFFER = 8280;
inline constexpr int GET_AO_MODE = 8290;
inline constexpr int GET_AO_STATE = 8291;
inline constexpr int GET_AO_ENABLED_CHANNELS = 8292;

class AOModule : public ModuleBase {
 public:
  using MaybeInt = std::optional<int64_t>;

  std::vector<int> AO_getPort();
  int AO_open(const Call& c, const Value& port);
  int AO_close(const Call& c, const Value& port);
  // [mode, sampling_rate]
  std::optional<Value> AO_openStreaming(const Call& c, const Value& port);
  MaybeInt AO_startStreaming(const Call& c, const Value& port);
  MaybeInt AO_stopStreaming_(const Call& c, const Value& port);
  MaybeInt AO_closeStreaming(const Call& c, const Value& port);
  MaybeInt AO_getMode(const Call& c, const Value& port);
  MaybeInt AO_getState(const Call& c, const Value& port);
  MaybeInt AO_getEnableChannels(const Call& c, const Value& port);
  std::optional<std::vector<double>> AO_getValues(const Call& c, const Value& port);
  MaybeInt AO_setEnableChannels(const Call& c, const Value& port, const Value& channel_list);
  MaybeInt AO_setForm(const Call& c, const Value& port, const Value& channel, const Value& form);
  MaybeInt AO_setFormParam(const Call& c, const Value& port, const Value& channel,
                           const Value& amplitude, const Value& offset, const Value& frequency,
                           const Value& phase, const Value& duty_cycle);
  MaybeInt AO_setMode(const Call& c, const Value& port, const Value& mode);
  MaybeInt AO_setNumSamples(const Call& c, const Value& port, const Value& num_samples);
  MaybeInt AO_setSamplingRate(const Call& c, const Value& port, const Value& sampling_rate);
  MaybeInt AO_setSpan_(const Call& c, const Value& port, const Value& span);
  // interrupt counter, SPI counter
  std::optional<std::vector<uint32_t>> AO_getCounters_(const Call& c, const Value& port);
  // num_of_samples, channel_mask
  std::optional<std::vector<uint32_t>> AO_initialBuffer_(const Call& c, const Value& port);
  int AO_writeOneChannel(const Call& c, const Value& port, const Value& channel,
                         const Value& value);
  int AO_writeAllChannels(const Call& c, const Value& port, const Value& value_list);
  int AO_pushToBuffer_(const Call& c, const Value& port, const Value& num_of_val,
                       const Value& value_list);

  std::vector<int> AO_getPinMapPort_(const Value& ao_port);
  bool _checkAOPinState(const Call& c, const Value& port, const Value& allow_state);

  // Checks (true on success).
  bool _checkAOPort(const Value& port);
  static bool _checkAOChannel(const Value& channel);
  static bool _checkAOForm(const Value& form);
  static bool _checkAOMode(const Value& mode);
  static bool _checkAOSpan(const Value& span);
  bool _ckeckAOSamplingRate(const Value& rate);
  // At most 13 values fit a push; the verdict is advice only.
  static bool _checkAONumOfValues(const Value& value);

 private:
  bool slots() const { return model().ao.slots; }
  Value slotPort(const Value& port) const;
  int status(const Call& c, int cmd, const Bytes& out, size_t offset = 1);
};
ORV_MODULE_CLASS("AO", AOModule);

}  // namespace orv
