#!/usr/bin/env bash
# completion.sh FILE: whether the completion in FILE offers what can be typed.
set -u
# shellcheck disable=SC1090
source "$1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" && touch office.json table.csv

failed=0
# expect WANTED WORD...: what is offered for the last word.
expect() {
  local wanted=$1
  shift
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
  _network_setting
  local offered
  offered=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd' ')
  if [ "$offered" != "$wanted" ]; then
    echo "$*: '$offered', not '$wanted'"
    failed=1
  fi
}
expect 'provision' network-setting p
expect '--help --json' network-setting show --
expect '' network-setting show ''
expect 'office.json' network-setting check o
expect '' network-setting apply ''
expect 'office.json' network-setting apply Desk-1 --yes o
expect '--dry-run' network-setting apply Desk-1 --d
expect 'office.json table.csv' network-setting provision --template ''
expect 'table.csv' network-setting provision --template = office.json t
expect 'office.json table.csv' network-setting apply Desk-1 --password-file =
expect '' network-setting paint ''
exit "$failed"
