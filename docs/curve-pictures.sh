#!/usr/bin/env bash
# Makes the pictures of curves in models.md and tutorial-rubber.md: docs/images/curve-*.svg.
#
#   docs/curve-pictures.sh             builds vxmat and makes the pictures
#   VXMAT=PATH docs/curve-pictures.sh  makes them with a built vxmat
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -z "${VXMAT:-}" ]; then
    scripts/build.sh default vxmat vxPlotPictures
    VXMAT=$PWD/build/default/bin/vxmat
fi
data=tests/data/rubber
project=$(mktemp -d)/rubber.vxmat
trap 'rm -r "$(dirname "$project")"' EXIT

# fit MODEL LABEL
fit() {
    "$VXMAT" fit uniaxial=$data/treloar-uniaxial.csv equibiaxial=$data/treloar-equibiaxial.csv \
        planar=$data/treloar-planar.csv --model "$1" --into "$project" --as "$2" >/dev/null
}

# draw NAME ARGUMENTS...
draw() {
    local picture=docs/images/curve-$1.svg
    shift
    "$VXMAT" curve "$@" --units mm-t-s --force -o "$picture"
}

"$VXMAT" new --empty "Natural rubber" -o "$project"
fit arruda-boyce "Natural rubber"
draw natural-rubber "$project" --mode uniaxial --from 1 --to 7.5

"$VXMAT" new --empty "Arruda-Boyce" -o "$project" --force
for model in Arruda-Boyce Mooney-Rivlin Neo-Hooke; do
    fit "$(tr '[:upper:]' '[:lower:]' <<<"$model")" "$model"
done
draw rubber-models "$project" --mode uniaxial --from 0.5 --to 7.5

draw metals "Nonlinear Structural Steel" "Nonlinear Stainless Steel" "Nonlinear Aluminum Alloy" "Nonlinear Copper Alloy" \
    --mode tensile --from 0 --to 0.05 --points 201
draw moduli "Viscoelastic Example" --mode dynamic --from 0.001 --to 100 --log
