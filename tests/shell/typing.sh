# For tests of the built program on a virtual display, driven by typed keys; sourced with the program's path as $1.
# Everything lies in the folder $work, which is the user's home too, and goes at the end.

program=$1
work=$(mktemp -d)
started=()
finish() {
  for process in "${started[@]}"; do kill "$process" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "$(basename "$0"): $1" >&2
  xdotool search --onlyvisible --name '.' getwindowname %@ 2>/dev/null | grep . >&2
  cat "$work/log" >&2
  exit 1
}

# comes TENTHS COMMAND ARGUMENT...: the command is tried until it succeeds, or fails when that many tenths of a second are over
comes() {
  for _ in $(seq "$1"); do
    "${@:2}" >/dev/null 2>&1 && return
    sleep 0.1
  done
  return 1
}

# A window of that title with the focus, waited for.
await() {
  comes 300 in_front "$1" || fail "no window '$1'"
  sleep 0.3
}
in_front() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; }
press() { for key in "$@"; do xdotool key --delay 40 "$key"; sleep 0.2; done; }
type_text() { xdotool type --delay 20 "$1"; sleep 0.2; }

start_display() {
  exec {display_number}<> <(:)
  # Without -noreset the server starts anew when its only client leaves, and throws out the window manager that comes then.
  Xvfb -noreset -displayfd "$display_number" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
  started+=($!)
  read -r -t 30 -u "$display_number" number || fail "no virtual display"
  export DISPLAY=:$number HOME=$work XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
  chmod 700 "$work"
  openbox --sm-disable >/dev/null 2>&1 &
  started+=($!)
  # A window that comes before the window manager never gets the focus.
  comes 600 xdotool get_num_desktops || fail "no window manager"
}

start_program() {
  "$program" >>"$work/log" 2>&1 &
  running=$!
  started+=("$running")
  # On a busy machine the window manager can be late: the first window is told to take the focus.
  comes 300 xdotool search --onlyvisible --name '^Gullymark$' windowactivate
  await Gullymark
}

# A new project $work/road.gmk, from the main window to the workspace: type_details fills its details.
create_project() {
  press alt+f c
  await "Enter New Project Database File Name"
  type_text "$work/road"
  press Return
  await "Tarnel Brook" # New Project Database has been created.  Please Add Project Details
  press Return
  await Project
  type_details
  press ctrl+s
  await GullymarkAL # Project Details are Saved!
  press Return
  sleep 1
  await GullymarkAL # the workspace
}

# The project $work/road.gmk, from the main window to the workspace.
open_project() {
  press ctrl+o
  await Open
  type_text "$work/road.gmk"
  press Return
  await "Tarnel Brook" # Project Name
  press Return
  await GullymarkAL
}

# Both reports from the workspace: print_sheet NAME TEMPLATE takes over in the dialog for the file.
print_both_sheets() {
  press ctrl+p
  await "Enter New File Name for Inlet Report"
  print_sheet report INLET_REPORTAL.xlr
  press alt+f Up Up Return
  await "Enter New File Name for Inlet Design Form"
  print_sheet form INLETDESIGNFORMAL.xlr
}

leave_program() {
  press ctrl+q
  await Gullymark
  press ctrl+q
  comes 100 has_ended || fail "the program does not end"
}
has_ended() { ! kill -0 "$running"; }
