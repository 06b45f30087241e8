#!/usr/bin/env bash
# Builds all measurements of bench/, runs each several times (default: 5), in turns, and prints one table with the
# median of each figure and its spread: bench.sh [RUNS [MEASUREMENT...]], for example bench.sh 5 gui_bench. Use a machine
# on which nothing else runs. Fails if a measurement fails or is over its limit in most runs.
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${1:-5}
shift || true
scripts/install-packages.sh build measure
scripts/build.sh bench benchmarks
programs=("$@")
if [ ${#programs[@]} -eq 0 ]; then
    for program in build/bench/bin/*_bench; do programs+=("$(basename "$program")"); done
fi

logs=build/bench/logs
rm -rf "$logs"
mkdir -p "$logs"
for ((run = 1; run <= runs; ++run)); do
    for program in "${programs[@]}"; do
        echo "run $run of $runs: $program" >&2
        # The status is that of the table: a single run may be over a limit.
        "build/bench/bin/$program" >"$logs/$program.$run.txt" 2>"$logs/$program.$run.errors" || true
    done
done
python3 scripts/bench-table.py "$logs"/*.txt
