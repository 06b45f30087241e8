#!/usr/bin/env bash
# Checks format, includes, spelling, that the measurements compile, and clang-tidy. lint.sh --fast leaves the last two out,
# for a hook before each push; lint.sh --all has clang-tidy look at tests and measurements too, which takes twice as long
# as all the rest.
set -euo pipefail
cd "$(dirname "$0")/.."

sources() { git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h'; }
failed=0

echo "clang-format"
sources | xargs clang-format --dry-run --Werror || failed=1

echo "includes"
# A path that leaves its folder bypasses the separation of layers.
if sources | xargs grep -nE '^#include "\.\./'; then
    echo "An include must not leave its folder; write it from Materials/ or Host/." >&2
    failed=1
fi

echo "spelling"
# The list holds the names and texts of the product that are misspelled on purpose.
git ls-files --cached --others --exclude-standard | grep -vE '\.(ts|svg|json|expected)$' |
    xargs codespell --ignore-words packaging/codespell-ignore.txt || failed=1

[ "${1:-}" = --fast ] && exit $failed

echo "clang-tidy"
# The measurements are compiled here, because no other check does it.
scripts/build.sh default all benchmarks
# clang-tidy does not read the precompiled headers of the other compiler.
commands=build/default/clang-tidy
mkdir -p "$commands"
sed -E 's/ -Winvalid-pch -include [^ ]+//' build/default/compile_commands.json >"$commands/compile_commands.json"
# clang-tidy says on standard error how many warnings it suppressed; the log keeps that for when it cannot run at all.
log=$commands/log
left_out='^(tests|bench|fuzz)/'
[ "${1:-}" = --all ] && left_out='^(tests/package|fuzz)/'
sources | grep '\.cpp$' | grep -vE "$left_out" |
    xargs -P "$(nproc)" -n 2 clang-tidy -p "$commands" --quiet 2>"$log" || { failed=1; grep -i error "$log" >&2 || true; }
exit $failed
