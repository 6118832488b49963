#!/usr/bin/env bash
# Draws the help's pictures of the inlets that it works out, resources/help/sections/*.png, as the program draws them. Only
# who changes the picture or an example needs this; afterwards run tools/build_help.sh.
#
#   tools/draw_sections.sh BIN       BIN: the folder of draw_sections
#
# Needs imagemagick.
set -euo pipefail
bin=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# draw PAGE LINE: the inlet in that line of the table of the help's examples.
draw() {
  convert-im6.q16 "$work/solves_help_$2.png" -strip +dither -colors 64 -bordercolor '#9fb2c4' -border 1 \
    -define png:exclude-chunks=all "PNG8:resources/help/sections/$1.png"
}

"$bin/draw_sections" --size=640x320 "$work" tests/cases/solves_help.tsv
mkdir -p resources/help/sections
draw curb_grade 2
draw curb_sump 4
draw grate_grade 8
draw grate_sump 9
draw combo_grade 10
draw combo_sump 11
draw slotted_grade 12
draw slotted_sump 13
draw ditch_grade 14
draw ditch_sump 15
