#!/usr/bin/env bash
# Checks format, includes, spelling, translations and translated guides, compiles the measurements, and runs clang-tidy.
# lint.sh --fast omits the last two, for a hook before each push. lint.sh --all runs clang-tidy also on tests and
# measurements, which takes twice as long as everything else.
set -euo pipefail
cd "$(dirname "$0")/.."

sources() { git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h'; }
failed=0

echo "clang-format"
sources | xargs clang-format --dry-run --Werror || failed=1

echo "includes"
# An include with a path to another folder bypasses the separation of layers.
if sources | xargs grep -nE '^#include "\.\./'; then
    echo "An include must not begin with ../; write the path from Materials/ or Host/." >&2
    failed=1
fi

echo "spelling"
# The list has the names and texts of the product that are misspelled on purpose. The translated guides are not English.
git ls-files --cached --others --exclude-standard | grep -vE '^fuzz/corpus/|^docs/(de|zh_CN)/|\.(ts|svg|json|expected|inp)$' |
    xargs codespell --ignore-words packaging/codespell-ignore.txt || failed=1

echo "translations"
scripts/translations.sh --check || failed=1

echo "guides"
scripts/check-guides.py || failed=1

[ "${1:-}" = --fast ] && exit $failed

echo "clang-tidy"
# No other check compiles the measurements.
scripts/build.sh default all benchmarks
# The commands of each source, also if sources were compiled in groups; generated headers are those of the build. clang-tidy
# cannot read the precompiled headers of GCC.
commands=build/default/clang-tidy
cmake -S . -B "$commands" -G Ninja -DVX_UNITY_BUILD=OFF >/dev/null
sed -i -E "s/ -Winvalid-pch -include [^ ]+//; s:$PWD/$commands:$PWD/build/default:g" "$commands/compile_commands.json"
# Without this extension, most of the time is spent on the declarations of Qt and of the standard library, in each source.
extension=$commands/OwnDeclarations.so
clang++ -std=c++17 -O1 -fPIC -shared -fno-rtti -isystem "$(llvm-config --includedir)" scripts/lint/OwnDeclarations.cpp \
    -o "$extension"
# The analyzer follows at most this many states of a function. Its default, 225,000, doubles the time and has found no more here.
states=(--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=max-nodes=20000)
# clang-tidy writes the number of suppressed warnings, and its own errors, to standard error.
log=$commands/log
left_out='^(tests|bench|fuzz|scripts)/'
[ "${1:-}" = --all ] && left_out='^(tests/package|fuzz|scripts)/'
sources | grep '\.cpp$' | grep -vE "$left_out" |
    xargs -P "$(nproc)" -n 2 clang-tidy --load="$extension" -p "$commands" --quiet "${states[@]}" 2>"$log" || { failed=1; grep -i error "$log" >&2 || true; }
exit $failed
