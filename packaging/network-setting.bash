# Completion of network-setting for bash: commands, their options, and names of files.

_network_setting() {
  local words=() options='' files=0 given=0 i
  # bash takes "--template=FILE" apart at the "=".
  for ((i = 0; i <= COMP_CWORD; i++)); do
    [ "${COMP_WORDS[i]}" = = ] || words+=("${COMP_WORDS[i]}")
  done
  [ "${COMP_WORDS[COMP_CWORD]}" != = ] || words+=('')
  local last=$((${#words[@]} - 1)) command=${words[1]-}
  local word=${words[last]}
  COMPREPLY=()
  if [ "$last" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W 'list show check apply provision networks --help --version' -- "$word")
    return
  fi
  # "files" is the argument, counted from 1, that names a file.
  case $command in
    list | show | networks) options='--json --help' ;;
    check) options='--json --help' files=1 ;;
    apply) options='--password-file --dry-run --yes --help' files=2 ;;
    provision) options='--template --password-file --result --again --help' files=1 ;;
    *) return ;;
  esac
  case ${words[last - 1]} in
    --password-file | --template | --result)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    return
  fi
  for ((i = 2; i <= last; i++)); do
    case ${words[i - 1]} in --password-file | --template | --result) continue ;; esac
    [[ ${words[i]} == -* ]] || given=$((given + 1))
  done
  if [ "$given" -eq "$files" ]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}

complete -o filenames -F _network_setting network-setting
