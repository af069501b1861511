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

# The plug-in without the stand-ins, for whoever has the closed libraries themselves.
for component in plug-in stand-ins; do
  cmake --install "$1" --prefix "$work/$component" --component "$component" >"$work/log"
  (cd "$work/$component" && find . -type f -printf "%f\n" | sort) >"$work/$component.files"
done
diff - "$work/plug-in.files" <<<libVtlCmdTranslation.so
printf 'lib%s.so.1.0.0\n' OrvelCore OrvelSDK VantrelBoardExecutor VantrelGeometry \
  VantrelObject | diff - "$work/stand-ins.files"
