#include "analog/sample_queue.hpp"

#include <algorithm>

namespace orv {

size_t SampleQueue::push(const double* values, size_t count, size_t width) {
  std::unique_lock lk(m_);
  const size_t fit = std::min(count, max_ - std::min(max_, count_));
  if (fit == 0) return 0;
  values_.insert(values_.end(), values, values + fit * width);
  if (!runs_.empty() && runs_.back().width == width)
    runs_.back().count += fit;
  else
    runs_.push_back({width, fit});
  count_ += fit;
  added(lk);
  return fit;
}

void SampleQueue::clear() {
  std::lock_guard lk(m_);
  values_.clear();
  runs_.clear();
  count_ = 0;
}

}  // namespace orv
