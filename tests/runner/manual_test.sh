#!/usr/bin/env bash
# manual_test.sh PROGRAM FOLDER: the folder has a manual page of each command, of the program and of
# graph files, which a formatter reads without complaint, and which names every option of the help.
set -euo pipefail
program=$1
folder=$2

fail() {
  echo "$1" >&2
  exit 1
}

check_form() {
  local complaints
  [[ -s $1 ]] || fail "there is no $1"
  complaints=$(groff -man -Tutf8 -ww "$1" 2>&1 >/dev/null)
  [[ -z $complaints ]] || fail "$1: $complaints"
  groff -man -Tascii -P-cbou "$1"
}

check_page() {
  local page=$1 option text
  shift
  text=$(check_form "$page")
  for option in $("$program" "$@" --help | grep -oE -- '^  .*' | grep -oE -- '--[a-z-]+' | sort -u); do
    [[ $text == *"$option"* ]] || fail "$page doesn't tell of $option"
  done
  [[ $text == *EXAMPLES* && $text == *'SEE ALSO'* ]] || fail "$page has no examples or no references"
}

check_page "$folder/man1/vtlcmd.1"
commands=$("$program" complete '' | cut -f1)
[[ $commands == *run* ]] || fail "the program names no commands"
for command in $commands; do
  check_page "$folder/man1/vtlcmd-$command.1" "$command"
done

text=$(check_form "$folder/man5/vtlcmd-graph.5")
while IFS= read -r line; do
  line=${line#"${line%%[! ]*}"}
  [[ $line == *: || $text == *"$line"* ]] || fail "the page of graph files doesn't tell: $line"
done < <("$program" help graph)
