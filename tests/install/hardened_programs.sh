#!/usr/bin/env bash
# The programs as users get them resist an attack on their memory: addresses by chance, tables that cannot be written to
# after the start, guarded stacks, checked copies.
#
#   hardened_programs.sh BUILD_FOLDER
set -uo pipefail
build=$1
failed=0
complain() {
  echo "hardened_programs: $1"
  failed=1
}

# has PROGRAM WHAT PATTERN READELF_OPTION
has() {
  readelf -W "$4" "$1" 2>/dev/null | grep -E "$3" >/dev/null || complain "$(basename "$1") has no $2"
}

programs=("$build/bin/GullymarkAL" "$build/bin/gullymark-review")
[ ! -e "$build/bin/gullymark-office" ] || programs+=("$build/bin/gullymark-office")
for program in "${programs[@]}"; do
  has "$program" "position that chance chooses" 'FLAGS_1.* PIE( |$)' --dynamic
  has "$program" "addresses bound at the start" 'FLAGS_1.* NOW( |$)' --dynamic
  has "$program" "tables that become read-only" '^ *GNU_RELRO ' --program-headers
  has "$program" "stack without code" '^ *GNU_STACK .* RW ' --program-headers
  has "$program" "guard behind its buffers" '__stack_chk_fail' --dyn-syms
done

# Where nothing can overflow no checked copy is left, and a stack that grows step by step leaves no mark: the calls tell.
# What tests compile once more for themselves goes to nobody.
calls=$(grep -E '^ *"command": .* -c [^ ]*/src/[^ ]*\.cpp"' "$build/compile_commands.json" | grep -v -- ' -o tests/')
[ "$(wc -l <<<"$calls")" -gt 50 ] || complain "too few calls of the compiler are known"
for option in -O2 -fstack-protector-strong -fstack-clash-protection -D_FORTIFY_SOURCE=2; do
  without=$(grep -vF -- " $option " <<<"$calls" | sed 's/.* -c //')
  [ -z "$without" ] || complain "compiled without $option: $without"
done
exit $failed
