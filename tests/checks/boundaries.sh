#!/usr/bin/env bash
# No include reaches from a lower layer into a higher one, Qt stays in the shell, SQLite and the office in the platform; the
# rooms of the shell keep their order.
cd "$1" || exit 2
failed=0

# forbid FOLDER PATTERN: no include in src/FOLDER may match.
forbid() {
  local hits
  hits=$(grep -rnE "^#include [<\"]($2)" "src/$1" 2>/dev/null)
  if [ -n "$hits" ]; then
    printf 'src/%s may not include this:\n%s\n' "$1" "$hits"
    failed=1
  fi
}

qt='Q[A-Za-z]|Qt[A-Z]|ui_'
forbid platform  "engine/|section/|calculation/|catalogue/|store/|editor/|reports/|review/|shell/|$qt"
forbid engine    "section/|calculation/|catalogue/|store/|editor/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid section   "calculation/|catalogue/|store/|editor/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid calculation "section/|catalogue/|store/|editor/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid catalogue "section/|calculation/|store/|editor/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid store     "engine/|section/|calculation/|catalogue/|editor/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid editor    "section/|calculation/|reports/|review/|shell/|sqlite|com/sun/star|$qt"
forbid reports   "section/|calculation/|editor/|review/|shell/|sqlite|com/sun/star|$qt"
forbid review    "store/|editor/|reports/|shell/|sqlite|com/sun/star|$qt"
forbid shell     "sqlite|com/sun/star"

# The rooms of the shell: the windows stand on what serves every one of them, and know nothing of the start.
forbid shell/binding "review/|shell/(windows/|review/|[a-z_]+\.h)"
forbid shell/windows "review/|shell/(review/|[a-z_]+\.h)"
# The windows of the designer's program and those of the reviewer's know nothing of each other's start, and the reviewer's know
# no form.
forbid shell/review "editor/|reports/|catalogue/|shell/start\.h"
hits=$(grep -nE '^#include "(shell/)?review/' src/shell/*.cpp src/shell/*.h)
if [ -n "$hits" ]; then
  printf 'the program for the designer knows the reviewer:\n%s\n' "$hits"
  failed=1
fi

# The link line says the same.
hits=$(grep -lE 'Qt6::' src/*/CMakeLists.txt | grep -v '^src/shell/'; grep -lE 'SQLite|LibreOffice' src/*/CMakeLists.txt | grep -v '^src/platform/')
if [ -n "$hits" ]; then
  printf 'links what it may not know:\n%s\n' "$hits"
  failed=1
fi
exit $failed
