#!/usr/bin/env bash
# check_symbols.sh PLUG_IN IMPORTS CLOSED_LIBRARY...
# The plug-in exports one symbol, needs nothing but the standard library, a sanitizer's if there is
# one, and the closed libraries, and imports from those exactly what the file IMPORTS lists. It isn't
# stripped.
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

own=$(printf '%s\n' "$@" | sed 's,.*/,,' | sort)
needed=$(readelf -d "$plug_in" | sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' |
  grep -vE '^(libstdc\+\+|libm|libgcc_s|libc|ld-linux[^/]*|lib(a|ub)san)\.so' |
  sed 's/\.so.*/.so/' | sort)
[[ $needed == "$own" ]] || fail "needed libraries: $needed"

list() { nm -D "$@" | awk '{print $NF}' | sed 's/@.*//' | sort -u; }
used=$(comm -12 <(list --undefined-only "$plug_in") <(list --defined-only "$@") | c++filt | sort -u)
diff <(echo "$used") "$imports" || fail "imports differ from $imports"
echo "$(echo "$used" | wc -l) imports, one export"
