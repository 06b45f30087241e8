#!/usr/bin/env bash
# Format, includes, spelling and clang-tidy. lint.sh --fast leaves clang-tidy out, for a hook before each push;
# lint.sh --all has it look at tests and measurements too, which takes twice as long as all the rest.
set -euo pipefail
cd "$(dirname "$0")/.."

sources() { git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h'; }
failed=0

echo "clang-format"
sources | xargs clang-format --dry-run --Werror || failed=1

echo "includes"
# A path that climbs out of its folder would get around the separation of layers.
if sources | xargs grep -nE '^#include "\.\./'; then
    echo "An include must not climb out of its folder; write it from Materials/ or Host/." >&2
    failed=1
fi

echo "spelling"
# Names and texts of the product that are misspelled on purpose stand in the list of words to pass over.
git ls-files --cached --others --exclude-standard | grep -vE '\.(ts|svg|json|expected)$' |
    xargs codespell --ignore-words packaging/codespell-ignore.txt || failed=1

[ "${1:-}" = --fast ] && exit $failed

echo "clang-tidy"
scripts/build.sh default
# Says on standard error how many warnings of others it suppressed; that is kept for when it cannot run at all.
log=build/default/clang-tidy.log
left_out='^(tests|bench|fuzz)/'
[ "${1:-}" = --all ] && left_out='^(tests/package|fuzz)/'
sources | grep '\.cpp$' | grep -vE "$left_out" |
    xargs -P "$(nproc)" -n 2 clang-tidy -p build/default --quiet 2>"$log" || { failed=1; grep -i error "$log" >&2 || true; }
exit $failed
