#!/usr/bin/env bash
# Builds the help book resources/help/GullymarkAL.chm from the pages beside it. Only who changes the help needs this;
# the book is kept in the repository.
#
#   tools/build_help.sh           the pictures of the figures, the book, and the record of what it was built from
#   tools/build_help.sh --book F  the book alone, from the pictures as they are, to the file F
#
# The pictures of the sheets and of the sections stand as they are: tools/draw_sheets.sh and tools/draw_sections.sh make them.
# Needs chmcmd (Debian package fp-utils-3.2.2), and for the pictures rsvg-convert (librsvg2-bin) and imagemagick.
set -euo pipefail
help=$(cd "$(dirname "${BASH_SOURCE[0]}")/../resources/help" && pwd)

# need TOOL PACKAGE
need() {
  if ! command -v "$1" >/dev/null; then
    echo "build_help: $1 is missing; install the package $2" >&2
    exit 1
  fi
}

# A viewer draws no SVG. Few colors and no date keep a picture small and the same.
draw_pictures() {
  need rsvg-convert librsvg2-bin
  need convert-im6.q16 imagemagick
  for figure in "$help"/figures/*.svg; do
    rsvg-convert "$figure" |
      convert-im6.q16 png:- -strip -background white -alpha remove +dither -colors 64 \
        -fuzz 1% -fill white -opaque white -define png:exclude-chunks=all "PNG8:${figure%.svg}.png"
  done
}

# The compiler writes the time of day into the head of the book and into its entry #SYSTEM; both become 0, so that the
# same pages give the same book. A binary index would hold chance bytes, which is why the project file has none.
clear_time_stamps() {
  perl -e '
    my ($path) = @ARGV;
    open(my $in, "<:raw", $path) or die "$path: $!\n";
    my $book = do { local $/; <$in> };
    $book =~ /^ITSF/ or die "$path is no help book\n";
    substr($book, 16, 4) = "\0\0\0\0";
    my $stamps = $book =~ s/(\x03\0\0\0\x0a\0\x04\0)..../$1\0\0\0\0/gs;
    $stamps == 1 or die "$path has $stamps time stamps in #SYSTEM\n";
    open(my $out, ">:raw", $path) or die "$path: $!\n";
    print $out $book;
    close($out) or die "$path: $!\n";' "$1"
}

# compile_book FILE. What the compiler answers says nothing: the book itself is looked at.
compile_book() {
  need chmcmd fp-utils-3.2.2
  local work
  work=$(mktemp -d)
  cp -r "$help/." "$work"
  rm -f "$work/GullymarkAL.chm"
  (cd "$work" && chmcmd GullymarkAL.hhp >messages 2>&1) || true
  if [ ! -s "$work/GullymarkAL.chm" ]; then
    cat "$work/messages" >&2
    rm -rf "$work"
    exit 1
  fi
  clear_time_stamps "$work/GullymarkAL.chm"
  mv "$work/GullymarkAL.chm" "$1"
  rm -rf "$work"
}

record_sources() {
  (cd "$help" && find . -type f ! -name GullymarkAL.sha256 | LC_ALL=C sort | xargs sha256sum >GullymarkAL.sha256)
}

if [ "${1:-}" = --book ]; then
  compile_book "$2"
else
  draw_pictures
  compile_book "$help/GullymarkAL.chm"
  record_sources
fi
