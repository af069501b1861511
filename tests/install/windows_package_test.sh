#!/usr/bin/env bash
# windows_package_test.sh PACKAGE.zip: unpacks it into an empty folder and uses it there under Wine.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
wine=$(realpath "$here/../../cmake/mingw/wine")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

unzip -q "$1" -d "$work"
cd "$work"/vtlcmd-*
bin=$PWD/bin
/usr/bin/python3 "$here/../runner/run_session.py" --program "$wine" bin/vtlcmd.exe \
  --folder share/vtlcmd "$here/installed.session"

# From elsewhere: all checks in one process, which Wine is slow to start, and some in their own.
mkdir "$work/empty"
cd "$work/empty"
for options in --in-process "--only ^(entry|binary|foreign-module)-"; do
  "$wine" "$bin/vtlcmd-validate.exe" $options "$bin/VtlCmdTranslation.dll"
done
[[ -z $(ls -A) ]]
