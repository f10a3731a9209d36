// SampleQueue: the decoded samples of one analog stream, kept flat.  The
// values of every sample lie one after the other in one deque of doubles;
// beside them, runs of samples of one width (a run ends where the channel
// count changed between two records).  A record's samples go in with one
// lock and no allocation per sample, and a read takes its samples out in one
// pass, so the cost per value is a copy.
#pragma once

#include <cstddef>
#include <deque>
#include <mutex>

#include "link/pools.hpp"

namespace orv {

class SampleQueue : public WaitableQueue {
 public:
  explicit SampleQueue(size_t max_samples) : max_(max_samples) {}
  // Appends `count` samples of `width` values from `values`; those beyond the
  // bound are left out.  Returns how many went in.
  size_t push(const double* values, size_t count, size_t width);
  // Takes up to `n` samples from the front, handing each to
  // `each(first, last)`, an iterator range over its values, in order, under
  // the queue's lock.  Returns how many were taken.
  template <class Each>
  size_t take(size_t n, Each&& each);
  void clear();

 private:
  struct Run {
    size_t width;
    size_t count;
  };
  size_t countLocked() const override { return count_; }

  std::deque<double> values_;
  std::deque<Run> runs_;
  size_t count_ = 0;
  size_t max_;
};

template <class Each>
size_t SampleQueue::take(size_t n, Each&& each) {
  std::lock_guard lk(m_);
  size_t taken = 0;
  auto at = values_.cbegin();
  while (taken < n && !runs_.empty()) {
    Run& run = runs_.front();
    const size_t k = std::min(n - taken, run.count);
    const auto w = static_cast<std::ptrdiff_t>(run.width);
    for (size_t i = 0; i < k; ++i, at += w) each(at, at + w);
    taken += k;
    run.count -= k;
    if (run.count == 0) runs_.pop_front();
  }
  values_.erase(values_.cbegin(), at);
  count_ -= taken;
  return taken;
}

}  // namespace orv
