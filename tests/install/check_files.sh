#!/usr/bin/env bash
# check_files.sh PREFIX: the rules for the files of an installed tree.
set -euo pipefail
source_folder=$(cd "$(dirname "$0")/../.." && pwd)
cd "$1"

fail() {
  echo "$PWD: $1" >&2
  exit 1
}

# Libraries are looked for relative to whoever needs them, so that the tree can be moved.
check_runpath() {
  local found
  found=$(readelf -d "$1" | sed -n 's/.*(R[A-Z]*PATH).*\[\(.*\)\]/\1/p')
  [[ $found == "$2" ]] || fail "$1 looks for libraries in '$found', not in '$2'"
}
libraries=$(dirname "$(find lib* -name libVtlCmdTranslation.so)")
check_runpath bin/vtlcmd "\$ORIGIN/../$libraries"
check_runpath "$libraries/libOrvelCore.so" ""
for library in "$libraries"/lib{OrvelSDK,Vantrel*,VtlCmdTranslation}.so; do
  check_runpath "$library" "\$ORIGIN"
done

# Who looks for a closed library in the folder of all libraries doesn't find a stand-in.
[[ $(basename "$libraries") == vtlcmd && -z $(find "${libraries%/*}" -maxdepth 1 -name '*.so*') ]] ||
  fail "a shared library is in the folder of all libraries"

for command in $(bin/vtlcmd complete '' | cut -f1); do
  [[ -s $(echo share/man/man1/vtlcmd-"$command".1*) ]] || fail "there is no manual page of $command"
done
[[ -s $(echo share/man/man5/vtlcmd-graph.5*) ]] || fail "there is no manual page of graph files"
for file in bash-completion/completions/vtlcmd zsh/vendor-completions/_vtlcmd \
  fish/vendor_completions.d/vtlcmd.fish doc/vtlcmd/copyright; do
  [[ -s share/$file ]] || fail "there is no share/$file"
done

with_path=$(printf '%s\n' "$source_folder"/{build,src,closed,runner}/ | grep -rlF -f - . || true)
[[ -z $with_path ]] || fail "a path of the build is in $with_path"

# What a header includes is installed too.
(cd include && find vtlcmd -name '*.h' -printf '#include "%p"\n') |
  g++ -std=c++20 -Wall -Wextra -Werror -fsyntax-only -I include -x c++ - ||
  fail "the headers don't compile"
