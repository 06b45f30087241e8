#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer and runs all tests with leak detection.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh sanitize
ctest --preset sanitize "$@"
