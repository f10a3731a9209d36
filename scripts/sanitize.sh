#!/usr/bin/env bash
# The C++ tests under AddressSanitizer + UndefinedBehaviorSanitizer, and the
# concurrency-heavy ones under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
for san in address,undefined thread; do
  dir=build/san-${san%%,*}
  echo "== C++ tests with -fsanitize=$san"
  cmake -S . -B "$dir" -G Ninja -DORV_PYTHON=OFF -DORV_TESTS=ON -DCMAKE_BUILD_TYPE=Debug \
    -DORV_SANITIZE="$san" >/dev/null
  cmake --build "$dir" -j2
  ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
    TSAN_OPTIONS=halt_on_error=1 ctest --test-dir "$dir" --output-on-failure -j2
done
