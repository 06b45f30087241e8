#!/usr/bin/env bash
# Builds and runs all tests. Arguments go to ctest: ./test.sh -R Cards
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh
scripts/build.sh default
ctest --preset default "$@"
