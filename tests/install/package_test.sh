#!/usr/bin/env bash
# package_test.sh PACKAGES: unpacks the archive of that folder and uses it, installs the Debian
# package on this machine, uses it and removes it again. Asks for root where it isn't.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
archive=$(realpath "$1"/vtlcmd-*.tar.gz)
package=$(realpath "$1"/vtlcmd_*.deb)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=()
((EUID == 0)) || root=(sudo)

fail() {
  echo "$1" >&2
  exit 1
}

status=$(dpkg-query -W -f '${db:Status-Status}' vtlcmd 2>/dev/null || true)
[[ -z $status || $status == not-installed ]] ||
  fail "vtlcmd is installed on this machine already; remove it first: apt-get purge vtlcmd"

check_contents() {
  local odd binary
  bash "$here/check_files.sh" "$1"
  odd=$(find "$1" -mindepth 1 ! -type l ! -perm 755 ! '(' -type f -perm 644 ')')
  [[ -z $odd ]] || fail "permissions of $odd"
  for binary in "$1"/bin/* "$1"/lib/lib*.so "$1"/lib/vtlcmd/*; do
    [[ $(readelf -SW "$binary") != *" .symtab "* ]] || fail "$binary isn't stripped"
  done
}

mkdir "$work/archive" "$work/package"
tar -xpzf "$archive" -C "$work/archive" --strip-components=1
check_contents "$work/archive"
bash "$here/check_use.sh" "$work/archive"

dpkg-deb -x "$package" "$work/package"
check_contents "$work/package/usr"
owners=$(dpkg-deb -c "$package" | awk '{print $2}' | sort -u)
[[ $owners == root/root ]] || fail "files of $owners in $package"

trap 'rm -rf "$work"; "${root[@]}" dpkg --purge vtlcmd' EXIT
"${root[@]}" apt-get install -y -qq "$package"
bash "$here/check_use.sh" /usr
