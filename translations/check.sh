#!/usr/bin/env bash
# check.sh SOURCE_DIR: every message of the sources stands translated in every translation, and nothing else does.
set -euo pipefail
source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$source"/{src,krxcontrol,designer,translations} "$work"
"$source/translations/update.sh" "$work"
status=0
for file in "$source"/translations/*.ts; do
    copy=$work/translations/${file##*/}
    if grep -q 'type="unfinished"' "$copy" || ! diff <(grep '<source>' "$file") <(grep '<source>' "$copy"); then
        echo "${file##*/} is not up to date: ./dev texts, and translate what is unfinished" >&2
        status=1
    fi
done
exit $status
