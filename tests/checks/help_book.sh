#!/usr/bin/env bash
# The help book belongs to its sources, holds all of its pages, and no link in them leads nowhere.
cd "$1/resources/help" || exit 2
made=$2/help_book
mkdir -p "$made"
failed=0

# complain TEXT: prints it and fails the check in the end.
complain() {
  printf '%s\n' "$1"
  failed=1
}

# complain_of TEXT LINES: the same for a list of things, unless it is empty.
complain_of() {
  if [ -n "$2" ]; then
    complain "$1"$'\n'"$2"
  fi
}

# The record of what the book was built from.
if ! sha256sum --check --quiet GullymarkAL.sha256; then
  complain "resources/help has changed since GullymarkAL.chm was built: run tools/build_help.sh"
fi
recorded=$(sed 's/^[0-9a-f]* [ *]//' GullymarkAL.sha256)
there=$(find . -type f ! -name GullymarkAL.sha256 | LC_ALL=C sort)
complain_of "not what GullymarkAL.chm was built from:" "$(diff <(echo "$recorded") <(echo "$there") | grep '^[<>]')"

# The project file names every page and picture, the contents and the links only what is there.
parts=$(sed -n '/^\[FILES\]/,$p' GullymarkAL.hhp | tail -n +2 | LC_ALL=C sort)
files=$(ls ./*.html ./*.css figures/*.png sheets/*.png sections/*.png | sed 's|^\./||' | LC_ALL=C sort)
complain_of "[FILES] of GullymarkAL.hhp differs from the folder:" "$(diff <(echo "$parts") <(echo "$files") | grep '^[<>]')"
complain_of "figures without a picture or a source:" \
  "$(diff <(basename -s .svg figures/*.svg) <(basename -s .png figures/*.png) | grep '^[<>]')"
links=$(grep -hoE '(href|src|name="Local" value)="[^"]+"' ./*.html GullymarkAL.hhc GullymarkAL.hhk |
  sed -E 's/^.*="([^"#]+).*$/\1/' | LC_ALL=C sort -u)
complain_of "links to nothing:" "$(comm -23 <(echo "$links") <(echo "$files"))"
complain_of "pages that the contents do not name:" \
  "$(comm -13 <(grep -oE '[a-z0-9_]+\.html' GullymarkAL.hhc | LC_ALL=C sort -u) <(ls ./*.html | sed 's|^\./||' | LC_ALL=C sort))"
complain_of "letters that are no ASCII, which a viewer may misread; write them as entities:" \
  "$(LC_ALL=C grep -nP '[^\x00-\x7F]' ./*.html GullymarkAL.hh?)"

# The compiler and the lister come with a package that only who rebuilds the help has.
if command -v chmcmd >/dev/null; then
  "$1/tools/build_help.sh" --book "$made/GullymarkAL.chm" || failed=1
  cmp GullymarkAL.chm "$made/GullymarkAL.chm" || complain "GullymarkAL.chm is not what its sources make: run tools/build_help.sh"
fi
if command -v chmls >/dev/null; then
  listed=$(chmls --no-page --name-only list GullymarkAL.chm 2>/dev/null | sed -n 's|^ */||p' | LC_ALL=C sort)
  complain_of "not in GullymarkAL.chm:" "$(comm -23 <(echo "$parts") <(echo "$listed"))"
fi
exit $failed
