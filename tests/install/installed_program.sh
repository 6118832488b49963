#!/usr/bin/env bash
# Installs into a folder of its own and looks at what lies there: every file and no other, the files for the desktop valid,
# a project known by its name and by its content, and the program, started from the link among the commands, makes a
# project. A validator that is not installed is told and left out.
#
#   installed_program.sh CMAKE BUILD_FOLDER SOURCE_FOLDER
set -uo pipefail

. "$(dirname "$0")/../shell/typing.sh"
cmake=$1
build=$2
source=$3
touch "$work/log"
program=$work/usr/bin/GullymarkAL
share=$work/usr/share
export XDG_DATA_HOME=$work/none XDG_DATA_DIRS=$share:/usr/share

install_everything() {
  DESTDIR=$work "$cmake" --install "$build" --prefix /usr >"$work/log" 2>&1 || fail "cmake --install failed"
}

expected_files() {
  cat <<END
bin/GullymarkAL
bin/gullymark-review
lib/gullymarkal/GullymarkAL
lib/gullymarkal/GullymarkAL.chm
lib/gullymarkal/GullymarkAL10.rdb
lib/gullymarkal/INLETDESIGNFORMAL.xlr
lib/gullymarkal/INLET_REPORTAL.xlr
lib/gullymarkal/gullymark-review
share/applications/gullymark-review.desktop
share/applications/gullymarkal.desktop
share/doc/gullymarkal/copyright
share/doc/gullymarkal/examples/checking_road.gmk
share/icons/hicolor/scalable/apps/gullymark-review.svg
share/icons/hicolor/scalable/apps/gullymarkal.svg
share/icons/hicolor/scalable/mimetypes/application-x-gullymarkal.svg
share/man/man1/GullymarkAL.1
share/man/man1/gullymark-review.1
share/metainfo/io.github.gullymarkal.GullymarkAL.metainfo.xml
share/metainfo/io.github.gullymarkal.Review.metainfo.xml
share/mime/packages/gullymarkal.xml
END
  [ ! -e "$build/bin/gullymark-office" ] || echo lib/gullymarkal/gullymark-office
}

look_at_files() {
  diff <(expected_files | LC_ALL=C sort) <(cd "$work/usr" && find . ! -type d -printf '%P\n' | LC_ALL=C sort) >"$work/log" ||
    fail "other files (>) than expected (<)"
  for name in GullymarkAL gullymark-review; do
    [ "$(readlink "$work/usr/bin/$name")" = "../lib/gullymarkal/$name" ] || fail "the link leads to $(readlink "$work/usr/bin/$name")"
  done
}

# valid COMMAND ARGUMENT...
valid() {
  if ! command -v "$1" >/dev/null; then
    echo "installed_program: $1 is not installed, left out"
    return
  fi
  "$@" >"$work/log" 2>&1 || fail "$1 finds a fault"
  # The update reports a fault in a package and goes on.
  [ "$1" != update-mime-database ] || [ ! -s "$work/log" ] || fail "$1 finds a fault"
}

# known FILE TYPE
known() {
  local type
  type=$(gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p')
  [ "$type" = "$2" ] || fail "$(basename "$1") is taken for $type, not for $2"
}

look_at_file_type() {
  command -v gio >/dev/null && [ -e "$share/mime/mime.cache" ] || return
  local files=$source/tests/files
  cp "$files/metric.gmk" "$work/unnamed"
  cp "$files/other_program.gmk" "$work/foreign"
  known "$files/metric.gmk" application/x-gullymarkal
  known "$work/unnamed" application/x-gullymarkal
  known "$work/foreign" application/vnd.sqlite3
}

# A double click opens a project for the reviewer, and never for the designer: that program takes no file.
look_at_double_click() {
  command -v gio >/dev/null && [ -e "$share/mime/mime.cache" ] && [ -e "$share/applications/mimeinfo.cache" ] || return
  local -x HOME=$work XDG_CONFIG_HOME=$work/none PATH=$work/usr/bin:$PATH
  gio mime application/x-gullymarkal >"$work/log" 2>&1
  grep -q '^Default application .*: gullymark-review\.desktop$' "$work/log" || fail "a project is not opened by gullymark-review"
  ! grep -q 'gullymarkal\.desktop' "$work/log" || fail "a project is offered to the program for the designer"
  if command -v xdg-mime >/dev/null; then
    xdg-mime query default application/x-gullymarkal >"$work/log" 2>/dev/null
    [ "$(cat "$work/log")" = gullymark-review.desktop ] || fail "xdg-mime does not name gullymark-review"
  fi
  [ -x "$work/usr/bin/$(sed -n 's/^Exec=\([^ ]*\) %f$/\1/p' "$share/applications/gullymark-review.desktop")" ] ||
    fail "what a double click runs is not installed"
}

check_project() {
  "$work/usr/bin/gullymark-review" --check "$source/tests/files/metric.gmk" >"$work/log" 2>&1
  [ $? -le 1 ] || fail "gullymark-review cannot read a project"
}

make_project() {
  press alt+f c
  await "Enter New Project Database File Name"
  type_text "$work/road"
  press Return
  await "Tarnel Brook"
  cmp "$work/road.gmk" "$work/usr/lib/gullymarkal/GullymarkAL10.rdb" || fail "the new project is no copy of the template"
}

install_everything
look_at_files
valid desktop-file-validate "$share"/applications/*.desktop
valid appstreamcli validate --no-net "$share"/metainfo/*.xml
valid update-desktop-database "$share/applications"
valid update-mime-database "$share/mime"
look_at_file_type
look_at_double_click
check_project
start_display
start_program
make_project
echo "installed_program: installed, valid, started"
