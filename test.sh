#!/usr/bin/env bash
# Builds the programs and the tests, and runs the tests. Passes its arguments to ctest: ./test.sh -R Cards
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build test measure
scripts/build.sh default
ctest --preset default "$@"
