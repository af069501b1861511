#!/usr/bin/env bash
# surface.sh check|renew LIBRARIES
# Describes the exported surface of the shared libraries in a folder, with the types that it
# reaches, and compares that with baseline/, or makes it the baseline.
set -euo pipefail
shopt -s failglob
here=$(dirname "$(realpath "$0")")
mode=$1 libraries=$2
suppressions=$here/surface.abignore

# A description names no place of the machine that it is made on.
describe() {
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-parameter-names \
    --drop-undefined-syms --exported-interfaces-only --type-id-style hash \
    --suppressions "$suppressions" "$1" | sed "s,path='[^']*/closed/,path='closed/,"
}

new=$(mktemp -d)
trap 'rm -rf "$new"' EXIT
for library in "$libraries"/*.so; do
  description=$new/$(basename "$library" .so).abi
  describe "$library" >"$description"
  # Without debug information only symbols are left, and those alone would compare equal.
  grep -q '<abi-instr' "$description" || {
    echo "$library: no debug information"
    exit 1
  }
done

if [[ $mode == renew ]]; then
  rm -f "$here"/baseline/*
  cp "$new"/* "$here/baseline"
  exit
fi

diff <(ls "$here/baseline") <(ls "$new") || {
  echo "other libraries than in the baseline"
  exit 1
}
changed=0
for description in "$new"/*; do
  name=$(basename "$description")
  report=$(abidiff --harmless --no-show-locs --suppressions "$suppressions" \
    "$here/baseline/$name" "$description") || {
    printf '%s: not as in the baseline; ./dev abi-baseline renews it\n%s\n' "$name" "$report"
    changed=$((changed + 1))
  }
done
echo "$(ls "$new" | wc -l) libraries, $changed changed"
((changed == 0))
