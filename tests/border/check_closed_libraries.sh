#!/usr/bin/env bash
# check_closed_libraries.sh LIBRARIES
# Builds the plug-in alone against closed libraries from elsewhere: link libraries with nothing in
# them but the names in imports.txt, each in the library that has it in the folder LIBRARIES.
set -euo pipefail
export LC_ALL=C
border=$(dirname "$(realpath "$0")")
libraries=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

link_libraries=()
for name in OrvelCore OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry; do
  symbols=$(nm -D --defined-only "$libraries/lib$name.so" | awk '{print $NF}' | sort -u)
  paste -d '\t' <(c++filt <<<"$symbols") - <<<"$symbols" |
    awk -F '\t' 'NR == FNR { listed[$0]; next }
      $1 in listed { print ".globl", $2, "\n.type", $2 ", @function\n.size", $2 ", 8\n" $2 ": .quad 0" }' \
      "$border/imports.txt" - >"$work/$name.s"
  link_libraries+=("$work/lib$name.so")
  cc -shared -nostdlib -Wl,-soname,"lib$name.so.1" -Wl,-z,noexecstack -o "${link_libraries[-1]}" \
    -x assembler <(echo .data && cat "$work/$name.s")
done

cmake -S "$border/../.." -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DVTLCMD_CLOSED_LIBRARIES="$work"
cmake --build "$work/build"
built=$(ls "$work/build/lib" "$work/build/bin" 2>/dev/null | grep -E '^(lib|vtlcmd)' || true)
[[ $built == libVtlCmdTranslation.so ]] || {
  echo "more than the plug-in was built: $built" >&2
  exit 1
}
bash "$border/check_symbols.sh" "$work/build/lib/libVtlCmdTranslation.so" "$border/imports.txt" \
  "${link_libraries[@]}"

cmake --install "$work/build" --prefix "$work/installed"
installed=$(cd "$work/installed" && find . -type f)
[[ $installed == ./lib*/vtlcmd/libVtlCmdTranslation.so ]] || {
  echo "more than the plug-in was installed: $installed" >&2
  exit 1
}
# The process that loads it has the libraries already, or finds them as it finds its own.
if readelf -d "$work/installed/$installed" | grep -E 'RPATH|RUNPATH'; then exit 1; fi
echo "$(wc -l <"$border/imports.txt") imports, no other"
