#!/usr/bin/env bash
# The report templates are what their sources give. Built again and compared where the version of LibreOffice is at
# hand that built them.
cd "$1" || exit 2
if ! (cd resources/reports && grep -v '^#' SHA256SUMS | sha256sum --check --quiet --strict); then
  echo 'after a change of a source run tools/build_report_templates.sh'
  exit 1
fi

version=$(soffice --version 2>/dev/null | sed 's/ *$//' | head -n 1)
if [ "# $version" != "$(head -n 1 resources/reports/SHA256SUMS)" ]; then
  echo 'not built again: the templates come from another version of LibreOffice'
  exit 0
fi
again=$(mktemp -d)
trap 'rm -rf "$again"' EXIT
tools/build_report_templates.sh "$again" || exit 1
failed=0
for template in "$again"/*.xlr; do
  cmp "$template" "resources/reports/$(basename "$template")" || failed=1
done
exit $failed
