#!/usr/bin/env bash
# Installs what the driver needs on a fresh Debian machine, then builds and
# installs the package.  Safe to run again: it only adds what is missing.
set -euo pipefail
cd "$(dirname "$0")/.."

PY=${PYTHON:-python3}
SUDO=""
if [ "$(id -u)" != 0 ] && command -v sudo >/dev/null; then SUDO=sudo; fi

need_apt=()
dpkg -s libusb-1.0-0 >/dev/null 2>&1 || need_apt+=(libusb-1.0-0)
dpkg -s libgtest-dev >/dev/null 2>&1 || need_apt+=(libgtest-dev)
dpkg -s ccache >/dev/null 2>&1 || need_apt+=(ccache)
command -v g++ >/dev/null || need_apt+=(g++)
if [ ${#need_apt[@]} -gt 0 ]; then
  echo "== apt-get install ${need_apt[*]}"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${need_apt[@]}" >/dev/null
fi

echo "== pip: build and test requirements"
$PY -m pip install -q --disable-pip-version-check \
  "scikit-build-core>=0.10" "pybind11==3.1.0" "cmake>=3.20" ninja pytest pytest-timeout numpy \
  "mypy==2.4.1" "python-can==4.6.1"

echo "== pip install . (C++ core, simulator and extension)"
$PY -m pip install -q --disable-pip-version-check --no-build-isolation .
echo "== installed pyorv $($PY -c 'import pyorv; print(pyorv.__version__)')"
