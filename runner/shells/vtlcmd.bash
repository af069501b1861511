# Completion of vtlcmd in bash. The program itself knows how a word may go on.

_vtlcmd() {
  local line=${COMP_LINE:0:COMP_POINT} words=() current typed word meaning
  # The shell splits words at '=' too, so they are read from the line.
  read -a words <<<"$line"
  [[ $line == *[[:space:]] ]] && words+=('')
  current=${words[-1]}
  # What the shell has of the word already, and doesn't replace.
  typed=
  [[ $COMP_WORDBREAKS == *=* && $current == *=* ]] && typed=${current%=*}=
  COMPREPLY=()
  while IFS= read -r line; do
    if [[ $line == $'\t'* ]]; then
      compopt -o filenames
      mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(
        compgen -P "${line:1}" -f -- "${current#"${line:1}"}")
    else
      COMPREPLY+=("${line%%$'\t'*}")
    fi
  done < <("${COMP_WORDS[0]}" complete "${words[@]:1}" 2>/dev/null)
  COMPREPLY=("${COMPREPLY[@]#"$typed"}")
  [[ ${#COMPREPLY[@]} == 1 && ${COMPREPLY[0]} == *= ]] && compopt -o nospace
  return 0
}

complete -F _vtlcmd vtlcmd
