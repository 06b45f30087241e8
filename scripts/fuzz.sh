#!/usr/bin/env bash
# Builds the fuzzers and runs each for a number of seconds, two at a time, starting with the inputs of fuzz/corpus and of
# the tests: fuzz.sh [SECONDS [FUZZER...]]. Prints the number of executions of each. Fails if one finds a fault; the
# input that shows the fault is then in build/fuzz/findings. New inputs are collected in build/fuzz/corpus;
# fuzz.sh --keep adds the useful ones among them to fuzz/corpus, which is committed.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD # fuzzers change their folder

# The seconds for each fuzzer if none are given, as in .ci/run: all nineteen take five minutes.
default_seconds=30
# Longer inputs are not kept, so that the corpus stays small.
longest_kept=2000

mode=run
[ "${1:-}" = --keep ] && mode=keep && shift
seconds=$default_seconds
[[ "${1:-}" =~ ^[0-9]+$ ]] && seconds=$1 && shift

scripts/build.sh fuzz fuzzers
mkdir -p build/fuzz/findings build/fuzz/logs
fuzzers=("$@")
if [ ${#fuzzers[@]} -eq 0 ]; then
    for program in build/sanitize/bin/*_fuzzer; do fuzzers+=("$(basename "$program")"); done
fi

# Documents, projects, decks and measured curves of the tests, for the fuzzers that read them.
seeds_of() {
    case $1 in
        document_fuzzer | import_fuzzer) echo "$root/tests/data/documents" ;;
        project_file_fuzzer | recovery_fuzzer) echo "$root/tests/data/projects" ;;
        test_data_fuzzer) echo "$root/tests/data/rubber" ;;
        keyword_deck_fuzzer) echo "$root/tests/Materials/vxDecks/corpus/calculix" ;;
        bulk_data_fuzzer) echo "$root/tests/Materials/vxDecks/corpus/nastran" ;;
        matml_fuzzer) echo "$root/tests/Materials/vxDecks/corpus/matml" ;;
    esac
}

# Words of the format, for the fuzzers that have such a list.
dictionary_of() {
    case $1 in
        import_fuzzer | materials_file_fuzzer) echo "-dict=$root/fuzz/dictionaries/document_fuzzer.dict" ;;
        recovery_fuzzer) echo "-dict=$root/fuzz/dictionaries/project_file_fuzzer.dict" ;;
        *) [ ! -f "$root/fuzz/dictionaries/$1.dict" ] || echo "-dict=$root/fuzz/dictionaries/$1.dict" ;;
    esac
}

# run FUZZER: runs a fuzzer and prints one line. Its output, and that of the programs that it runs, is in its log.
run() {
    local fuzzer=$1 found=$root/build/fuzz/corpus/$1 kept=$root/fuzz/corpus/$1 log=build/fuzz/logs/$1.log status=0
    mkdir -p "$found" "$kept"
    # Leaks are looked for at the end, because that takes longer than most inputs.
    # shellcheck disable=SC2046 # one word or none
    "$root/build/sanitize/bin/$fuzzer" $(dictionary_of "$fuzzer") -max_total_time="$seconds" -timeout=20 -rss_limit_mb=3072 \
        -detect_leaks=0 -print_final_stats=1 -close_fd_mask=3 \
        -artifact_prefix="$root/build/fuzz/findings/$fuzzer-" \
        "$found" "$kept" $(seeds_of "$fuzzer") >"$log" 2>&1 || status=$?
    local executions
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    if [ $status -eq 0 ]; then
        echo "$fuzzer: $executions executions in $seconds s"
    else
        echo "$fuzzer FAILED:"
        tail -n 60 "$log"
    fi
    return $status
}

# keep FUZZER: adds inputs to the committed ones if these do not reach what they reach.
keep() {
    mkdir -p "fuzz/corpus/$1" "build/fuzz/corpus/$1"
    "$root/build/sanitize/bin/$1" -set_cover_merge=1 -use_counters=0 -max_len=$longest_kept -close_fd_mask=3 \
        "$root/fuzz/corpus/$1" "$root/build/fuzz/corpus/$1" >"build/fuzz/logs/$1-keep.log" 2>&1
    echo "$1: $(find "fuzz/corpus/$1" -type f | wc -l) inputs"
}

export root seconds longest_kept
export -f run keep seeds_of dictionary_of
# The programs have no display and no leaks of their own; see the file for those of other libraries.
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/support/leaks-of-others.txt:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
printf '%s\n' "${fuzzers[@]}" | xargs -P 2 -I '{}' bash -euo pipefail -c "$mode {}"
