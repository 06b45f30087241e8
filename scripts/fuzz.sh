#!/usr/bin/env bash
# Builds the fuzzers and runs each for SECONDS (default: 60), starting with the documents of the tests:
# fuzz.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
scripts/build.sh fuzz
for fuzzer in number_text_fuzzer document_fuzzer project_file_fuzzer; do
    mkdir -p "build/fuzz/corpus/$fuzzer"
    "build/fuzz/bin/$fuzzer" -max_total_time="$seconds" -rss_limit_mb=4096 -artifact_prefix=build/fuzz/ \
        "build/fuzz/corpus/$fuzzer" tests/data/documents tests/data/projects
done
