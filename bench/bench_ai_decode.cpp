// Cost of scaling raw analog counts to volts: the decoder's exact rounding
// (round(count * ratio, 4) as the host rounds) against the naive
// nearbyint(x * 1e4) / 1e4, which differs from it on some values.
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "analog/ai.hpp"

int main() {
  using Clock = std::chrono::steady_clock;
  constexpr int kRounds = 200;
  const double ratios[] = {5.0 / 32768.0, 10.0 / 32768.0};
  for (double ratio : ratios) {
    volatile double sink = 0;
    auto t0 = Clock::now();
    for (int r = 0; r < kRounds; ++r)
      for (int c = -32768; c < 32768; ++c)
        sink = sink + orv::aiVolts(static_cast<int16_t>(c), ratio);
    const double exact = std::chrono::duration<double, std::nano>(Clock::now() - t0).count();
    t0 = Clock::now();
    for (int r = 0; r < kRounds; ++r)
      for (int c = -32768; c < 32768; ++c) sink = sink + std::nearbyint(c * ratio * 1e4) / 1e4;
    const double naive = std::chrono::duration<double, std::nano>(Clock::now() - t0).count();
    int differ = 0;
    for (int c = -32768; c < 32768; ++c)
      differ +=
          orv::aiVolts(static_cast<int16_t>(c), ratio) != std::nearbyint(c * ratio * 1e4) / 1e4;
    const double n = 65536.0 * kRounds;
    std::printf(
        "ratio %.15g: exact %.2f ns/value, naive %.2f ns/value (x%.2f), naive differs on %d of "
        "65536 counts\n",
        ratio, exact / n, naive / n, exact / naive, differ);
  }
  return 0;
}
