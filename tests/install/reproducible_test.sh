#!/usr/bin/env bash
# reproducible_test.sh: builds the packages twice, in different folders and time zones, with one
# SOURCE_DATE_EPOCH, and compares them byte for byte. The builds install into another folder of
# libraries than usual, and the tree is used.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# build FOLDER ZONE: the sources as they are now, without their history.
build() {
  mkdir -p "$1"
  (cd "$here/../.." && git ls-files -z | tar -c --null -T -) | tar -x -C "$1"
  cd "$1"
  export TZ=$2 SOURCE_DATE_EPOCH=1700000000
  cmake --preset release -D BUILD_TESTING=OFF -D CMAKE_INSTALL_LIBDIR=lib
  cmake --build --preset release
  (umask 022 && cpack --config build/release/CPackConfig.cmake -B build/packages)
}
(build "$work/first" Pacific/Kiritimati)
(build "$work/a/folder/further/down" America/St_Johns)

cd "$work"
compared=0
for package in first/build/packages/*.{deb,tar.gz}; do
  cmp "$package" "a/folder/further/down/${package#first/}"
  compared=$((compared + 1))
done
((compared == 2))

cmake --install first/build/release --prefix "$work/installed"
bash "$here/check_use.sh" "$work/installed"
