#!/usr/bin/env bash
# check.sh SOURCE_DIR: every message of the sources stands translated in every translation, and nothing else does.
set -euo pipefail
source=$1
tools=/usr/lib/qt5/bin
[ -x "$tools/lupdate" ] || tools=$(dirname "$(command -v lupdate)")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/translations"
cp -r "$source/src" "$source/krxcontrol" "$work"
status=0
for file in "$source"/translations/orvandata_*.ts; do
    copy=$work/translations/${file##*/}
    cp "$file" "$copy"
    (cd "$work" && "$tools/lupdate" -silent -locations none -no-obsolete src krxcontrol -ts "$copy" 2>/dev/null)
    if grep -q 'type="unfinished"' "$copy" || ! diff <(grep '<source>' "$file") <(grep '<source>' "$copy"); then
        echo "${file##*/} is not up to date" >&2
        status=1
    fi
done
exit $status
