#!/usr/bin/env bash
# check_use.sh PREFIX: runs the program that is installed there, in an environment without
# variables. Then builds the host beside this script with nothing but what is installed there, by
# the CMake package and by the command of docs/installing.md, and compares what it prints.
set -euo pipefail
tests=$(cd "$(dirname "$0")/.." && pwd)
prefix=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset LD_LIBRARY_PATH

env -i /usr/bin/python3 "$tests/runner/run_session.py" --program "$prefix/bin/vtlcmd" \
  --folder "$prefix/share/vtlcmd" "$tests/install/installed.session"

cp -r "$tests/install/host" "$work"
cd "$work/host"
package=$(find "$prefix/" -type d -path "*/cmake/vtlcmd" | sed s,//,/,)
cmake -G Ninja -S . -B build -DCMAKE_PREFIX_PATH="$prefix"
grep -q "^vtlcmd_DIR:PATH=$package$" build/CMakeCache.txt || {
  echo "CMake found another vtlcmd than that in $prefix" >&2
  exit 1
}
cmake --build build
build/host | diff expected.txt -

export PKG_CONFIG_LIBDIR=${package%/cmake/vtlcmd}/pkgconfig
command=$(sed -n '/^\$ g++ /,/[^\\]$/{s/^\$ //;p}' "$tests/../docs/installing.md")
echo "$command"
eval "$command"
./host | diff expected.txt -
