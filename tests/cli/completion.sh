#!/usr/bin/env bash
# completion.sh FILE PROGRAM: whether the completion in FILE offers what can be typed.
set -u
# shellcheck disable=SC1090
source "$1"
program=$2
export ZMLIB_PRINTERS=demo
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" && touch office.json table.csv

failed=0
# expect WANTED WORD...: what is offered for the last word.
expect() {
  local wanted=$1
  shift
  COMP_WORDS=("$program" "$@") COMP_CWORD=$# COMPREPLY=()
  _network_setting
  local offered
  offered=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd' ')
  if [ "$offered" != "$wanted" ]; then
    echo "$*: '$offered', not '$wanted'"
    failed=1
  fi
}
expect 'provision' p
expect '--help --json --settings' show --
expect 'Packing-Desk' show packing
expect 'Goods\ in\ \(first\ floor\)' networks G
expect 'office.json' check o
expect 'office.json' apply Desk-1 --yes o
expect '--dry-run' apply Desk-1 --d
expect 'office.json table.csv' provision --template ''
expect 'table.csv' provision --template = office.json t
expect 'office.json' apply Desk-1 --password-file = o
expect 'apply' help a
expect 'device.timeout=' set Packing-Desk device.t
expect 'fixed' set Packing-Desk wired.address.mode = f
expect 'device\,names.bonjour' apply Packing-Desk office.json --only device,names.b
expect '' paint ''
exit "$failed"
