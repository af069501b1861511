#!/usr/bin/env bash
# package_test.sh PACKAGES: unpacks the archive of that folder and uses it; installs the Debian
# package in a root of its own, uses it there and removes it again. This machine stays as it is.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
archive=$(realpath "$1"/vtlcmd-*.tar.gz)
package=$(realpath "$1"/vtlcmd_*.deb)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "$1" >&2
  exit 1
}

check_contents() {
  local odd binary
  bash "$here/check_files.sh" "$1"
  odd=$(find "$1" -mindepth 1 ! -type l ! -perm 755 ! '(' -type f -perm 644 ')')
  [[ -z $odd ]] || fail "permissions of $odd"
  for binary in "$1"/bin/* $(find "$1"/lib -name "*.so"); do
    [[ $(readelf -SW "$binary") != *" .symtab "* ]] || fail "$binary isn't stripped"
  done
}

mkdir "$work/archive"
tar -xpzf "$archive" -C "$work/archive" --strip-components=1
check_contents "$work/archive"
[[ -s $work/archive/share/doc/vtlcmd/LICENSE ]] || fail "there is no licence in $archive"
bash "$here/check_use.sh" "$work/archive"

owners=$(dpkg-deb -c "$package" | awk '{print $2}' | sort -u)
[[ $owners == root/root ]] || fail "files of $owners in $package"
lintian --allow-root --fail-on error,warning "$package"

# The other root knows the packages of this machine, so that what the package depends on counts, and
# files that another package has.
root=$work/root
mkdir -p "$root"/var/lib/dpkg/{info,updates}
cp /var/lib/dpkg/status "$root/var/lib/dpkg"
cp /var/lib/dpkg/info/*.list "$root/var/lib/dpkg/info"
in_root() {
  fakeroot dpkg --root="$root" --log=/dev/null --force-not-root --force-script-chrootless "$@"
}
in_root --install "$package"
[[ $(dpkg-query --root="$root" -W -f '${db:Status-Status}' vtlcmd) == installed ]] ||
  fail "$package isn't installed"
check_contents "$root/usr"
bash "$here/check_use.sh" "$root/usr"
in_root --purge vtlcmd
[[ -z $(find "$root" -path "$root/var/lib/dpkg" -prune -o ! -type d -print) ]] ||
  fail "$package leaves something behind"
echo "installed, used, and nothing left behind"
