#!/usr/bin/env bash
# run.sh BUILD SECONDS TARGET: lets a target look for inputs that break a promise; prints what it
# said only then. What it finds to be worth keeping stays in BUILD/corpus for the next time.
set -euo pipefail
build=$1 seconds=$2 target=$3
here=$(dirname "$0")
mkdir -p "$build/corpus/$target" "$build/findings"
options=(-max_total_time="$seconds" -max_len=400 -timeout=20 -rss_limit_mb=3000
  -artifact_prefix="$build/findings/$target-")
[[ -e $here/dictionaries/$target.dict ]] && options+=(-dict="$here/dictionaries/$target.dict")
log=$build/findings/$target.log
if ! "$build/bin/${target}_fuzz" "${options[@]}" "$build/corpus/$target" "$here/seeds/$target" \
  >"$log" 2>&1; then
  tail -40 "$log"
  echo "$target: see $build/findings"
  exit 1
fi
echo "$target: $(tail -1 "$log")"
