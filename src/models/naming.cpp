// The link names a device in its messages by the model's label
// ("Opened handle (Kestrel-Dio)"); the model table gives it the labels.
#include "link/device.hpp"
#include "models/model_info.hpp"

namespace orv {
namespace {
const bool kNamingInstalled = (setDeviceNaming(&labelFor), true);
}  // namespace
}  // namespace orv
