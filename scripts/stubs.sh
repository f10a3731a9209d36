#!/usr/bin/env bash
# Regenerates the type stubs of the extension from the built module:
#   python/pyorv/_pyorv.pyi   the compiled core
#   python/pyorv/sim.pyi      the simulator (pyorv.sim re-exports pyorv._pyorv._sim)
# Needs pybind11-stubgen and an importable pyorv (installed, or PYTHONPATH=build/py/stage).
set -euo pipefail
cd "$(dirname "$0")/.."
out=$(mktemp -d)
"${PYTHON:-python3}" -m pybind11_stubgen pyorv._pyorv -o "$out" --ignore-all-errors >/dev/null
cp "$out/pyorv/_pyorv/__init__.pyi" python/pyorv/_pyorv.pyi
sed 's/^import pyorv._pyorv$/import pyorv._pyorv as _pyorv_core/' "$out/pyorv/_pyorv/_sim.pyi" > python/pyorv/sim.pyi
rm -rf "$out"
echo "stubs written: python/pyorv/_pyorv.pyi python/pyorv/sim.pyi"
