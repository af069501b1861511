#!/usr/bin/env bash
# check_dll_symbols.sh OBJDUMP PLUG_IN IMPORTS CLOSED_LIBRARY...
# What check_symbols.sh checks, of a DLL: one export, by its plain name; no other libraries than the
# language's and the system's run time and the closed ones; from these exactly the IMPORTS.
set -euo pipefail
export LC_ALL=C
objdump=$1 plug_in=$2 imports=$3
shift 3

fail() {
  echo "$1" >&2
  exit 1
}

tables=$("$objdump" -p "$plug_in")

exported=$(sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[.*\] //p' <<<"$tables")
[[ $exported == createVantrelTypeTranslation ]] || fail "exports: $exported"

own=$(printf '%s\n' "$@" | sed 's,.*/,,' | sort)
needed=$(sed -n 's/.*DLL Name: //p' <<<"$tables" |
  grep -vE '^(libstdc\+\+-6|libgcc_s_seh-1|libwinpthread-1|msvcrt|KERNEL32)\.dll$' | sort)
[[ $needed == "$own" ]] || fail "needed libraries: $needed"

# Types are known by their names here: each module has a type's information for itself.
listed=$(grep -v '^typeinfo for ' "$imports")
used=$(awk '/DLL Name: /{own = $3 ~ /^(Orvel|Vantrel)/} own && /^\t[0-9a-f]+\t/{print $3}' \
  <<<"$tables" | c++filt | sed 's/unsigned long long/unsigned long/g' | sort -u)
diff <(echo "$used") <(echo "$listed") || fail "imports differ from $imports"
echo "$(echo "$used" | wc -l) imports, one export"
