# Completion of network-setting for bash. The program itself says what a line can go on with.

_network_setting() {
  local words=() word last='' glued='' i offer
  # bash takes "--template=FILE" and "usb://..." apart at "=" and ":".
  for ((i = 1; i <= COMP_CWORD; i++)); do
    word=${COMP_WORDS[i]}
    if [ ${#words[@]} -gt 0 ] && [[ $word == [=:]* || ${COMP_WORDS[i - 1]} == *[=:] ]]; then
      words[-1]+=$word
    else
      words+=("$word")
    fi
  done
  last=${words[-1]}
  # What bash does not replace, since it stands before a "=" or ":".
  [[ $last != *[=:]* ]] || glued=${last%"${last##*[=:]}"}
  mapfile -t offer < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
  COMPREPLY=()
  if [ "${offer[0]-}" = files ]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "${offer[1]-}")
    return
  fi
  for word in "${offer[@]:1}"; do
    word=${word#"$glued"}
    [[ $word != *= ]] || compopt -o nospace 2>/dev/null
    COMPREPLY+=("$(printf '%q' "$word")")
  done
}

complete -F _network_setting network-setting
