#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Renders icons/*.svg into image/NAME.png (16 px) and image/NAME@2x.png (32 px).
# Needs rsvg-convert (Debian package librsvg2-bin). Run it after changing a drawing and commit both.
set -eu
cd "$(dirname "$0")"
mkdir -p image
for drawing in icons/*.svg; do
    name=$(basename "$drawing" .svg)
    rsvg-convert -w 16 -h 16 -o "image/$name.png" "$drawing"
    rsvg-convert -w 32 -h 32 -o "image/$name@2x.png" "$drawing"
done
