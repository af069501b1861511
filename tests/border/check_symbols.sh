#!/usr/bin/env bash
# check_symbols.sh PLUG_IN IMPORTS CLOSED_LIBRARY...
# The plug-in exports one symbol, needs nothing but the standard library and the closed libraries (a
# build with sanitizers, which the environment's SANITIZERS tells, theirs too), and imports from the
# closed ones exactly what the file IMPORTS lists. It isn't stripped.
set -euo pipefail
export LC_ALL=C
plug_in=$1 imports=$2
shift 2

fail() {
  echo "$1" >&2
  exit 1
}

exported=$(nm -D --defined-only "$plug_in" | awk '{print $2, $3}')
[[ $exported == "T createVantrelTypeTranslation" ]] || fail "exports: $exported"

# What the banner did stays in the binary for whoever looks at the process.
flag=vtlcmd::build_identity::versionInfoDumped
nm -C "$plug_in" | grep -E " [bB] $flag$" >/dev/null || fail "no bool $flag"

system='libstdc\+\+|libm|libgcc_s|libc|ld-linux[^/]*'
[[ -z ${SANITIZERS-} ]] || system+='|lib(a|ub)san'
own=$(printf '%s\n' "$@" | sed 's,.*/,,' | sort)
needed=$(readelf -d "$plug_in" | sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' |
  grep -vE "^($system)\.so" |
  sed 's/\.so.*/.so/' | sort)
[[ $needed == "$own" ]] || fail "needed libraries: $needed"

list() { nm -D "$@" | awk '{print $NF}' | sed 's/@.*//' | sort -u; }
used=$(comm -12 <(list --undefined-only "$plug_in") <(list --defined-only "$@") | c++filt | sort -u)
diff <(echo "$used") "$imports" || fail "imports differ from $imports"
echo "$(echo "$used" | wc -l) imports, one export"
