#!/usr/bin/env bash
# Regenerates the type stubs of the extension from the built module:
#   python/pyorv/_pyorv.pyi   the compiled core
#   python/pyorv/sim.pyi      the simulator (pyorv.sim re-exports pyorv._pyorv._sim)
# The stubs depend on the pybind11 that built the extension: scripts/setup.sh
# pins it.  Needs an importable pyorv (installed, or PYTHONPATH=build/dev/stage); installs
# the pybind11-stubgen the committed stubs were made with when it is missing.
set -euo pipefail
cd "$(dirname "$0")/.."
PY=${PYTHON:-python3}
STUBGEN_VERSION=3.0.0
if [ "$($PY -m pip show pybind11-stubgen 2>/dev/null | sed -n 's/^Version: //p')" != "$STUBGEN_VERSION" ]; then
  echo "== pip install pybind11-stubgen==$STUBGEN_VERSION"
  $PY -m pip install -q --disable-pip-version-check "pybind11-stubgen==$STUBGEN_VERSION"
fi
out=$(mktemp -d)
$PY -m pybind11_stubgen pyorv._pyorv -o "$out" --ignore-all-errors >/dev/null
cp "$out/pyorv/_pyorv/__init__.pyi" python/pyorv/_pyorv.pyi
sed 's/^import pyorv._pyorv$/import pyorv._pyorv as _pyorv_core/' "$out/pyorv/_pyorv/_sim.pyi" > python/pyorv/sim.pyi
rm -rf "$out"
echo "stubs written: python/pyorv/_pyorv.pyi python/pyorv/sim.pyi"
