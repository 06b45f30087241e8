#!/usr/bin/env bash
# Configures and builds a preset (default: default): build.sh [PRESET [TARGET...]]. Writes only to standard error, and
# only if there is something to build.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-default}
shift || true
log=build/$preset/configure.log
mkdir -p "build/$preset"
if ! cmake --preset "$preset" >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
cmake --build --preset "$preset" ${1:+--target "$@"} | { grep -v '^ninja: no work to do' || true; } >&2
