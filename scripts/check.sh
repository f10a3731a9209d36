#!/usr/bin/env bash
# The checks CI runs after the tests:
#   stubs   python/pyorv/*.pyi are what scripts/stubs.sh makes of the built
#           extension (a stale stub fails)
#   format  the C++ files follow .clang-format (clang-format in check mode)
#   layers  the includes follow the dependency picture of README.md (Layout)
# Usage: scripts/check.sh [stubs|format|layers]...   (all three by default)
#   ORV_FORMAT_BASE=REV  checks the format of the C++ files changed since REV only
# The stubs need an importable pyorv: installed by scripts/setup.sh, or
# PYTHONPATH=build/dev/stage.  A missing clang-format is installed first;
# scripts/stubs.sh installs its pybind11-stubgen.
set -euo pipefail
cd "$(dirname "$0")/.."
PY=${PYTHON:-python3}
checks=("$@")
[ ${#checks[@]} -gt 0 ] || checks=(stubs format layers)
failed=()

need_tools() {
  if [[ " ${checks[*]} " == *" format "* ]] && ! command -v clang-format >/dev/null; then
    echo "== apt-get install clang-format"
    local sudo=""
    if [ "$(id -u)" != 0 ] && command -v sudo >/dev/null; then sudo=sudo; fi
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq clang-format >/dev/null
  fi
}

check_stubs() {
  echo "== stubs: regenerate and compare with the committed ones"
  PYTHON=$PY bash scripts/stubs.sh
  if ! git diff --exit-code --stat -- python/pyorv/*.pyi; then
    echo "stale stubs: run scripts/stubs.sh against a fresh build and commit python/pyorv/*.pyi"
    return 1
  fi
}

cpp_files() {
  if [ -n "${ORV_FORMAT_BASE:-}" ]; then
    git diff --name-only --diff-filter=d "$ORV_FORMAT_BASE" -- '*.cpp' '*.hpp'
  else
    git ls-files -- '*.cpp' '*.hpp'
  fi
}

check_format() {
  echo "== format: clang-format $(clang-format --version | grep -o '[0-9][0-9.]*' | head -1)"
  local files bad=()
  mapfile -t files < <(cpp_files)
  for f in "${files[@]}"; do
    clang-format --dry-run -Werror "$f" >/dev/null 2>&1 || bad+=("$f")
  done
  if [ ${#bad[@]} -gt 0 ]; then
    echo "not formatted (clang-format -i FILE):"
    printf '  %s\n' "${bad[@]}"
    return 1
  fi
  echo "${#files[@]} files formatted"
}

# Lines "#include "<folder>/..." in the files of $1 that name a folder of $2
# (an extended regular expression of folder names).
includes_of() {
  grep -rnE "^#include \"($2)/" $1 2>/dev/null || true
}

check_layers() {
  echo "== layers: includes follow the dependency picture"
  local modules="services|buses|digital|analog|motion" out=""
  # link knows no model and no module.
  out+=$(includes_of src/link "models|bindings|sim|$modules")$'\n'
  # The model rows stand alone.
  out+=$(grep -nE '^#include "' src/models/model_info.hpp | sed 's|^|src/models/model_info.hpp:|' || true)$'\n'
  # Modules see the link, the model rows, the module base and each other; not
  # the model classes, the bindings or the simulator.
  out+=$(includes_of "src/services src/buses src/digital src/analog src/motion" "bindings|sim")$'\n'
  out+=$(grep -rnE '^#include "models/' src/services src/buses src/digital src/analog src/motion 2>/dev/null |
    grep -vE '"models/(model_info|module)\.hpp"' || true)$'\n'
  # The models compose modules; nothing but the bindings sees the bindings.
  out+=$(includes_of src/models "bindings|sim")$'\n'
  out+=$(includes_of "sim tests bench fuzz" "bindings")$'\n'
  # The simulator sees the link, the model rows and the modules' command codes.
  out+=$(grep -rnE '^#include "models/' sim 2>/dev/null | grep -v '"models/model_info\.hpp"' || true)$'\n'
  if [ -n "${out//[$'\n']/}" ]; then
    echo "includes against the layers:"
    echo "$out" | grep -v '^$'
    return 1
  fi
  echo "layers kept"
}

need_tools
for c in "${checks[@]}"; do
  case $c in
    stubs | format | layers) "check_$c" || failed+=("$c") ;;
    *) echo "unknown check: $c" >&2; exit 2 ;;
  esac
done
if [ ${#failed[@]} -gt 0 ]; then
  echo "checks failed: ${failed[*]}"
  exit 1
fi
echo "checks passed: ${checks[*]}"
