#!/usr/bin/env bash
# Updates translations/*.ts with the texts in the sources. With --check, changes nothing and fails if a text has no
# translation or a translation has no text.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# lupdate uses the enclosing class as the context of a text. In a source file that defines its own tr(), the context is
# the one in that function. The copies of such files name this context in every call, where lupdate finds it.
own_tr='^(inline )?QString tr\(const char'
context_of() { grep -A4 -E "$own_tr" "$1" | grep -oE 'translate\("[^"]*"' | head -1 | cut -d'"' -f2 || true; }
git ls-files --cached --others --exclude-standard -- Host Apps Materials |
    grep -E '\.(cpp|h|ui)$' | while read -r file; do
    [ -f "$file" ] || continue
    mkdir -p "$work/$(dirname "$file")"
    context=
    if grep -qE "$own_tr" "$file"; then
        context=$(context_of "$file")
    elif grep -q '^#include "Messages.h"' "$file"; then
        context=$(context_of "$(dirname "$file")/Messages.cpp")
    fi
    if [ -n "$context" ]; then
        sed -E "/$own_tr/! s/(^|[^A-Za-z_:.])tr\(/\1QCoreApplication::translate(\"$context\", /g" "$file" >"$work/$file"
    else
        cp "$file" "$work/$file"
    fi
done

# Includes name the library of a header, but not the folder in the library.
for library in Host/Gui Host/Obj Host/Kelta Host/vxMsg; do
    name=$(basename "$library")
    mkdir -p "$work/include/$name"
    find "$work/$library" -name '*.h' -exec cp {} "$work/include/$name/" \;
done
include_paths=(-I "$work/include" -I "$work/Materials" -I "$work/Host" -I "$work/Apps")

cp translations/table-texts.txt "$work/table-texts.cpp"
for ts in translations/*.ts; do
    target=$ts
    [ "${1:-}" = --check ] && target=$work/$(basename "$ts") && cp "$ts" "$target"
    lupdate -silent -no-obsolete -locations none "${include_paths[@]}" "$work/Host" "$work/Apps" "$work/Materials" \
        "$work/table-texts.cpp" \
        -ts "$target"
done

[ "${1:-}" = --check ] || exit 0
failed=0
for ts in translations/*.ts; do
    updated=$work/$(basename "$ts")
    if grep -B4 'type="unfinished"' "$updated" | grep '<source>' >"$work/missing"; then
        echo "$ts has no translation of:" >&2
        cat "$work/missing" >&2
        failed=1
    fi
    if ! diff <(grep -c '<message' "$ts") <(grep -c '<message' "$updated") >/dev/null; then
        echo "$ts does not have the texts of the sources; run scripts/translations.sh" >&2
        failed=1
    fi
done
exit $failed
