#!/bin/bash
# Draws a picture of an exported model. Usage: scripts/render/render.sh MODEL.glb PICTURE.png [OPTION...]; the options are
# told in render.mjs. Installs Chromium, pngquant and, under build/, three.js when they are missing.
set -euo pipefail

here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
root=$(dirname "$(dirname "$here")")
# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
mkdir -p "$root/build"
log=$root/build/render.log
: >"$log"

packages=("${BROWSER_PACKAGES[@]}" pngquant)
if ! command -v npm >/dev/null; then
    packages+=("${NODE_PACKAGES[@]}")
fi
require_packages "$log" "${packages[@]}"

modules=$root/build/render
require_modules "$log" "$modules" "$here/package.json" three.js
node "$here/render.mjs" "$modules" "$@"
# 256 colours are enough for a page, and a third of the size.
pngquant --speed 1 --strip --force --output "$2" 256 "$2"
