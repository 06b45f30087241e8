#!/usr/bin/env bash
# Pictures of the material editor: both tabs, light and dark, English, German and Chinese, at 100 % and 200 %.
# editor-screenshots.sh [FOLDER], by default build/default/screenshots. Chinese needs a font that has it, such as
# Debian's fonts-wqy-zenhei.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=${1:-build/default/screenshots}
scripts/build.sh default editor_screenshots vx_translations
mkdir -p "$folder"
export QT_QPA_PLATFORM=offscreen
for language in en de zh_CN; do
    for colours in light dark; do
        for scale in 1 2; do
            QT_SCALE_FACTOR=$scale build/default/bin/editor_screenshots \
                "$folder" "$language" "$colours" "$language-$colours-${scale}00" 2>&1 |
                { grep -v 'propagateSizeHints\|XDG_RUNTIME_DIR' || true; }
        done
    done
done
ls "$folder"
