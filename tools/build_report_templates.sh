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

# A conversion takes over nothing of how a sheet is viewed: the sheet's lines are switched off in the workbook itself, by
# the flag of its one WINDOW2 record (type 0x023E, 18 bytes long, the flags first). A FORMULA record of TODAY keeps the day of
# the conversion, until the sheet is opened: that becomes 1 May 2010, the same on every day.
finish_workbook() {
  perl -e '
    my ($path) = @ARGV;
    open(my $in, "<:raw", $path) or die "$path: $!\n";
    my $book = do { local $/; <$in> };
    my $views = $book =~ s/(\x3e\x02\x12\x00)(.)/$1 . chr(ord($2) & ~0x02)/ges;
    $views == 1 or die "$path has $views views\n";
    my $day = pack("d<", 40299);
    $book =~ s/(\x06\x00\x1d\x00.{6}).{8}(.{6}\x07\x00\x19\x01..\x41\xdd\x00)/$1$day$2/gs;
    open(my $out, ">:raw", $path) or die "$path: $!\n";
    print $out $book;
    close($out) or die "$path: $!\n";' "$1"
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TZ=UTC LC_ALL=C.UTF-8
for source in "$sources"/*.fods; do
  timeout 120 soffice "-env:UserInstallation=file://$work/profile" --headless --convert-to xls --outdir "$work" "$source" >/dev/null 2>&1
  finish_workbook "$work/$(basename "$source" .fods).xls"
  mv "$work/$(basename "$source" .fods).xls" "$target/$(basename "$source" .fods).xlr"
done

if [ "$target" = "$sources" ]; then
  cd "$sources"
  {
    echo "# $(soffice --version | sed 's/ *$//' | head -n 1)"
    sha256sum ./*.fods ./*.xlr
  } >SHA256SUMS
fi
