#!/usr/bin/env bash
# Builds the programs and runs them. Without arguments: exports library materials as a document and as cards for the
# solver, then opens the desktop application, or runs examples/tour.batch if there is no display. Writes all files to
# out/. With arguments: runs the command-line tool with them in the caller's folder.
set -euo pipefail
here=$PWD
cd "$(dirname "$0")"

scripts/install-packages.sh build
scripts/build.sh release vxmat kelta
bin=$PWD/build/release/bin

if [ $# -gt 0 ]; then
    cd "$here"
    exec "$bin/vxmat" "$@"
fi

document=out/materials.json
cards=out/cards.txt
examples=("Plastic Example 1" "Plastic Example 2" "Creep Example" "Viscoelastic Example")
materials=("Structural Steel" "Nonlinear Structural Steel" "Aluminum Alloy" "Concrete" "Neoprene Rubber" "Air" "Water"
    "${examples[@]}")
mkdir -p out
"$bin/vxmat" export "${materials[@]}" -o "$document" 2>out/notes.txt
"$bin/vxmat" check "$document" 2>>out/notes.txt || { cat out/notes.txt >&2; exit 1; }
"$bin/vxmat" cards "${examples[@]}" | tee "$cards"

echo
echo "Wrote $document: ${#materials[@]} materials for the solver; the check found no errors."
echo "Wrote out/notes.txt: the data that such a document cannot carry."
echo "Wrote $cards: the solver cards printed above."

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "Opening the desktop application."
    exec "$bin/kelta"
fi
rm -f out/tour.vxmat
"$bin/kelta" --batch examples/tour.batch >out/tour.txt 2>out/tour-notes.txt || { cat out/tour-notes.txt >&2; exit 1; }
echo
echo "No display: examples/tour.batch made a material project, added and checked two materials, and wrote"
echo "out/tour.vxmat: the project, for build/release/bin/kelta; out/tour.json: the document for the solver;"
echo "out/tour.png: a picture of the main window; out/tour.txt: the cards and the database record."
echo "\"./run.sh --help\" lists the subcommands of the command-line tool."
