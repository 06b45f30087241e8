#!/usr/bin/env bash
# Builds and does the main job. Without arguments: library materials become a document and cards for the solver, and
# then the desktop application opens; where there is no display it runs examples/tour.batch instead. All files go to
# out/. With arguments: runs the command-line tool with them, where the caller stands.
set -euo pipefail
here=$PWD
cd "$(dirname "$0")"

scripts/install-packages.sh
scripts/build.sh default vxmat kelta
bin=$PWD/build/default/bin

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
echo "Wrote $document: ${#materials[@]} materials for the solver, checked without findings."
echo "Wrote out/notes.txt: what of them such a document does not carry."
echo "Wrote $cards: the cards of the plastic, creep and visco-elastic examples, printed above."

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "Opening the desktop application."
    exec "$bin/kelta"
fi
"$bin/kelta" --batch examples/tour.batch >out/tour.txt 2>out/tour-notes.txt || { cat out/tour-notes.txt >&2; exit 1; }
echo
echo "No display: examples/tour.batch made a material project, added and checked two materials, and wrote"
echo "out/tour.vxmat: the project, which build/default/bin/kelta opens; out/tour.json: the same as the solver"
echo "gets it; out/tour.png: the main window; out/tour.txt: cards and record."
echo "\"./run.sh --help\" shows what else there is."
