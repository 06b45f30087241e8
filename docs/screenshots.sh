#!/usr/bin/env bash
# Makes pictures of the main window, of both tabs of the material editor, light and dark, and of two tabs of the
# inspector in all languages.
#
#   docs/screenshots.sh             replaces the pictures of the documentation, docs/images and docs/LANGUAGE/images
#   docs/screenshots.sh all FOLDER  makes pictures of editor and inspector in all languages, at 100 % and 200 %, for a review by
#                                   eye. Chinese needs a font with its characters, such as Debian's fonts-wqy-zenhei.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh default editor_screenshots inspector_screenshots kelta KeltaMaterials vxMaterial vx_translations
export QT_QPA_PLATFORM=offscreen
bin=$PWD/build/default/bin

# shoot PROGRAM FOLDER LANGUAGE light|dark SCALE SUFFIX
shoot() {
    QT_SCALE_FACTOR=$5 "$bin/$1" "$2" "$3" "$4" "$6" 2>&1 |
        { grep -v 'propagateSizeHints\|raise()\|XDG_RUNTIME_DIR' || true; }
}

if [ "${1:-}" = all ]; then
    folder=${2:-build/default/screenshots}
    mkdir -p "$folder"
    for language in en de zh_CN; do
        for colours in light dark; do
            for scale in 1 2; do
                for program in editor_screenshots inspector_screenshots; do
                    shoot "$program" "$folder" "$language" "$colours" "$scale" "$language-$colours-${scale}00"
                done
            done
        done
    done
    exit
fi

mkdir -p docs/images
for colours in light dark; do
    shoot editor_screenshots docs/images en "$colours" 1 "$colours"
done
rm docs/images/disabled-*.png

# An empty home folder keeps the user's settings and projects out of the pictures.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
for language in en de zh_CN; do
    guide=docs/$language
    [ "$language" = en ] && guide=docs
    mkdir -p "$guide/images"
    shoot inspector_screenshots "$home" "$language" light 1 "$language"
    for tab in curves-tab fit-tab; do
        mv "$home/$tab-$language.png" "$guide/images/$tab.png"
    done
done
pictures=$PWD/docs/images
# The first window on the offscreen screen, which is small, hides the inspector; on the screens of users it is shown.
cd "$home"
HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home LC_ALL=C.UTF-8 \
    "$bin/kelta" --batch - 2>/dev/null <<END
Dock_Inspector
screenshot $pictures/start.png
Mat_NewDoc
Mat_AddMaterial
label Frame
use "Nonlinear Structural Steel"
Mat_AddMaterial
label Resin
clear
set Density 1180
set "Young's modulus" 3.2e9
set "Poisson's ratio" 0.37
Mat_AddMaterial
label Spare
Std_Suppress
Mat_AddMaterial
label "To be measured"
clear
select Frame
Mat_Edit
select Resin
Mat_Edit
Mat_Export beams.json
screenshot $pictures/window.png
END
