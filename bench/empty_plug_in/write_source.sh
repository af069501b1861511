#!/usr/bin/env bash
# write_source.sh NM PLUG_IN SOURCE: the source of a library that refers to each symbol that the
# plug-in imports, and does nothing.
set -euo pipefail
nm=$1 plug_in=$2 source=$3
{
  echo 'extern "C" void* createVantrelTypeTranslation() { return nullptr; }'
  echo 'asm(".pushsection .data.rel.ro, \"aw\"\n"'
  "$nm" -D --undefined-only "$plug_in" | awk '$1 == "U" { sub("@.*", "", $2); print $2 }' |
    sort -u | sed 's/.*/    ".quad &\\n"/'
  echo '    ".popsection");'
} >"$source"
