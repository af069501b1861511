#!/usr/bin/env bash
# windows_package_test.sh PACKAGE.zip: unpacks it into an empty folder and uses it there under Wine.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source_folder=$here/../..
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

unzip -q "$1" -d "$work"
cd "$work"/vtlcmd-*
/usr/bin/python3 "$here/../runner/run_session.py" \
  --program "$source_folder/cmake/mingw/wine" bin/vtlcmd.exe \
  --folder share/vtlcmd "$here/installed.session"
