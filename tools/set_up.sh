#!/usr/bin/env bash
# Installs what is missing of the Debian packages that GullymarkAL needs, and says what it does.
#
#   tools/set_up.sh build       to build and run the program
#   tools/set_up.sh build test  to run the tests and checks as well
#   tools/set_up.sh build deb   to make the Debian package; with release, to check it as well
#   tools/set_up.sh build bench, build fuzz   to build the benchmarks, the fuzz targets
set -euo pipefail

build_packages=(
  g++ cmake ninja-build
  qt6-base-dev qt6-svg-dev
  libsqlite3-dev sqlite3
  libreoffice-calc libreoffice-dev
)
run_packages=(
  libqt6svg6 fonts-dejavu-core fonts-liberation2 xdg-utils xchm
)
test_packages=(
  libgtest-dev libgmock-dev
  clang-format-14 clang-tidy-14
  xvfb xauth openbox xdotool
  desktop-file-utils appstream shared-mime-info libglib2.0-bin
)
deb_packages=(dpkg-dev file)
release_packages=(lintian faketime)
bench_packages=(libbenchmark-dev)
fuzz_packages=(clang-14 libclang-rt-14-dev)

wanted=()
for group in "$@"; do
  case "$group" in
    build) wanted+=("${build_packages[@]}" "${run_packages[@]}") ;;
    test) wanted+=("${test_packages[@]}") ;;
    deb) wanted+=("${deb_packages[@]}") ;;
    release) wanted+=("${release_packages[@]}") ;;
    bench) wanted+=("${bench_packages[@]}") ;;
    fuzz) wanted+=("${fuzz_packages[@]}") ;;
    *) echo "set_up: no group '$group': build, test, deb, release, bench, fuzz" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${wanted[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$'; then
    missing+=("$package")
  fi
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

if ! command -v apt-get >/dev/null; then
  echo "set_up: this is no Debian system; install by hand what stands for: ${missing[*]}" >&2
  exit 1
fi
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  as_root=(sudo)
fi
echo "set_up: installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
echo "set_up: done"
