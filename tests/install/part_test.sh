#!/usr/bin/env bash
# part_test.sh: builds a host whose project has vtlcmd as a part, and compares what it prints. The
# part brings neither programs nor tests nor packages along.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake -G Ninja -S "$here/part" -B "$work" -DCMAKE_BUILD_TYPE=Release
cmake --build "$work"
"$work/host" | diff "$here/host/expected.txt" -

rest=$(cd "$work" && find . -maxdepth 2 '(' -name bin -o -name 'CPack*' -o -name 'CTest*' ')')
[[ -z $rest ]] || {
  echo "more than a part: $rest" >&2
  exit 1
}
echo "its host says what it should"
