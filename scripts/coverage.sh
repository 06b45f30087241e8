#!/usr/bin/env bash
# Runs all tests and prints the line coverage of the libraries. Fails if a coverage is below its limit.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh coverage
find build/coverage -name '*.gcda' -delete
ctest --preset coverage >build/coverage/tests.log || { cat build/coverage/tests.log; exit 1; }

# report NAME LIMIT FOLDER...
report() {
    local name=$1 limit=$2 filters=()
    shift 2
    for folder in "$@"; do filters+=(--filter "$folder/"); done
    echo "Line coverage of $name (at least $limit %):"
    gcovr --root . "${filters[@]}" --exclude-throw-branches --fail-under-line "$limit" build/coverage
}
report "model and exchange" 97 Materials/vxMaterial/model Materials/vxMaterial/exchange
report "project layer and host" 95 Materials/vxMaterial/project Host
