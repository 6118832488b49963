#!/usr/bin/env bash
# Builds the report templates from their readable sources with LibreOffice.
#
#   tools/build_report_templates.sh          into resources/reports, with the record of what belongs together
#   tools/build_report_templates.sh FOLDER   into FOLDER, for a look or to compare; no record
#
# A template is a workbook of the older Excel format under the extension .xlr. Built again by the same version of
# LibreOffice it is the same byte for byte.
set -euo pipefail
cd "$(dirname "$0")/.."
sources=$PWD/resources/reports
target=$(realpath "${1:-$sources}")

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TZ=UTC LC_ALL=C.UTF-8
for source in "$sources"/*.fods; do
  timeout 120 soffice "-env:UserInstallation=file://$work/profile" --headless --convert-to xls --outdir "$work" "$source" >/dev/null 2>&1
  mv "$work/$(basename "$source" .fods).xls" "$target/$(basename "$source" .fods).xlr"
done

if [ "$target" = "$sources" ]; then
  cd "$sources"
  {
    echo "# $(soffice --version | sed 's/ *$//' | head -n 1)"
    sha256sum ./*.fods ./*.xlr
  } >SHA256SUMS
fi
