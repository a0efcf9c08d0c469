#!/usr/bin/env bash
# A Debian changelog of what CHANGELOG.md says about a version: changelog.sh VERSION MAINTAINER CHANGELOG.md
set -euo pipefail
version=$1 maintainer=$2 changes=$3
heading=$(grep -E "^## ${version//./\\.}(,|$)" "$changes")
distribution=unstable
[[ $heading != *'not yet released'* ]] || distribution=UNRELEASED
when=(-r "$changes")
[ -z "${SOURCE_DATE_EPOCH:-}" ] || when=(-d "@$SOURCE_DATE_EPOCH")

printf 'orvandata (%s) %s; urgency=medium\n\n' "$version" "$distribution"
awk -v heading="$heading" '
    function put() { if (line != "") print line }
    /^## / { here = $0 == heading; next }
    !here || !NF { next }
    /^- / { put(); line = "  *"; open = 1; sub(/^- /, "") }
    open { for (i = 1; i <= NF; ++i) {
        if (length(line $i) >= 78) { print line; line = "   " }
        line = line " " $i
    } }
    END { put() }' "$changes"
printf '\n -- %s  %s\n' "$maintainer" "$(LC_ALL=C date -u -R "${when[@]}")"
