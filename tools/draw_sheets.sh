#!/usr/bin/env bash
# Draws the help's pictures of both sheets anew, resources/help/sheets/*.png: an Inlet Report, and the left part of an
# Inlet Design Form, filled by a real office with the inlets that the help works out. Only who changes a template needs
# this; afterwards run tools/build_help.sh.
#
#   tools/draw_sheets.sh BIN       BIN: the folder of fill_sheets
#
# Needs LibreOffice Calc, pdftoppm (Debian package poppler-utils) and imagemagick.
set -euo pipefail
bin=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# draw SHEET PICTURE RESOLUTION LEFT TOP WIDTH HEIGHT: a part of the first page, in points.
draw() {
  local pixels=()
  for points in "${@:4}"; do
    pixels+=($((points * $3 / 72)))
  done
  soffice "-env:UserInstallation=file://$work/profile" --headless --convert-to pdf --outdir "$work" "$work/$1.xls" >/dev/null 2>&1
  pdftoppm -f 1 -l 1 -r "$3" -x "${pixels[0]}" -y "${pixels[1]}" -W "${pixels[2]}" -H "${pixels[3]}" "$work/$1.pdf" |
    convert-im6.q16 ppm:- -strip -colors 32 -bordercolor '#9fb2c4' -border 1 -define png:exclude-chunks=all \
      "PNG8:resources/help/sheets/$2.png"
}

mkdir -p resources/help/sheets
"$bin/fill_sheets" "$bin" tests/cases/solves_help.tsv "$work"
draw report_english_sump_curb_inlet report_inlet 96 34 30 546 670
draw form report_form 108 36 28 596 300
