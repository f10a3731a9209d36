// Names the calling thread (at most 15 characters), so that top -H, gdb and
// py-spy show which of the driver's threads is which.
#pragma once

#include <pthread.h>

namespace orv {

inline void nameThisThread(const char* name) { pthread_setname_np(pthread_self(), name); }

}  // namespace orv
