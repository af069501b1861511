#!/usr/bin/env bash
# manual_test.sh PROGRAM FOLDER: the folder has a manual page of each command and of the program,
# which a formatter reads without complaint, and which names every option of the help.
set -euo pipefail
program=$1
folder=$2

fail() {
  echo "$1" >&2
  exit 1
}

check_page() {
  local page=$1 option text complaints
  shift
  [[ -s $page ]] || fail "there is no $page"
  complaints=$(groff -man -Tutf8 -ww "$page" 2>&1 >/dev/null)
  [[ -z $complaints ]] || fail "$page: $complaints"
  text=$(groff -man -Tascii -P-cbou "$page")
  for option in $("$program" "$@" --help | grep -oE -- '^  .*' | grep -oE -- '--[a-z-]+' | sort -u); do
    [[ $text == *"$option"* ]] || fail "$page doesn't tell of $option"
  done
  [[ $text == *EXAMPLES* && $text == *'SEE ALSO'* ]] || fail "$page has no examples or no references"
}

check_page "$folder/vtlcmd.1"
commands=$("$program" complete '' | cut -f1)
[[ $commands == *run* ]] || fail "the program names no commands"
for command in $commands; do
  check_page "$folder/vtlcmd-$command.1" "$command"
done
