#!/usr/bin/env bash
# install_test.sh BUILD: installs what is built there, checks the tree, and checks it again after it
# was moved.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$1" --prefix "$work/first" >"$work/log"
bash "$here/check_files.sh" "$work/first"
bash "$here/check_use.sh" "$work/first"
mv "$work/first" "$work/second"
bash "$here/check_use.sh" "$work/second"
