#!/usr/bin/env bash
# The whole test suite: the C++ tests (GoogleTest through CTest), then the
# Python tests against the simulator on loopback.  Expects scripts/setup.sh
# to have run.
set -euo pipefail
cd "$(dirname "$0")/.."
PY=${PYTHON:-python3}
BUILD=${ORV_TEST_BUILD:-build/tests}

echo "== C++ tests"
cmake -S . -B "$BUILD" -G Ninja -DORV_PYTHON=OFF -DORV_TESTS=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$BUILD" -j2
ctest --test-dir "$BUILD" --output-on-failure -j2

echo "== Python tests"
# Run from outside the source tree so that the installed package is imported.
cd tests/python
$PY -m pytest -q -p no:cacheprovider --timeout=300 "$@"
