#!/usr/bin/env bash
# Holds what completes orvan in bash and zsh, and its manual, against the help of each command:
#   try_completions.sh ORVAN SOURCE_DIR
set -euo pipefail
export LC_ALL=C
orvan=$1 completions=$2/tools/orvan/completions manual=$2/docs/orvan.1 status=0
# shellcheck source=/dev/null
. "$completions/orvan.bash"

zsh=$(<"$completions/_orvan")
between() { # BEGIN END: what stands there in the completion for zsh
    local text=${zsh#*"$1"}
    echo "${text%%"$2"*}"
}

for command in $("$orvan" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p'); do
    options=$("$orvan" "$command" --help | sed -nE 's/^  (-., )?(--[a-z-]+).*/\2/p' | sort -u)
    COMP_WORDS=(orvan "$command" --) COMP_CWORD=2
    _orvan
    diff <(echo "$options") <(printf '%s\n' "${COMPREPLY[@]}" | sort) || { echo "$command in bash"; status=1; }
    words=$(between $'\n        '"$command)" ';;' && between 'common=(' $'\n    )')
    [[ $words != *\$capacity* ]] || words+=$(between 'capacity=(' $'\n    )')
    diff <(echo "$options") <(grep -oE -- '--[a-z-]+[[}]' <<<"$words" | tr -d '[}' | sort -u) ||
        { echo "$command in zsh"; status=1; }
    for option in $options; do
        grep -qF -- "${option//-/\\-}" "$manual" || { echo "$option of $command is not in the manual"; status=1; }
    done
done

kinds=$({ "$orvan" check wall.prj --ignore any 2>&1 || true; } | sed 's/.*only //; s/;.*//; s/, /\n/g' | sort)
COMP_WORDS=(orvan check --ignore "") COMP_CWORD=3
_orvan
for told in "$(printf '%s\n' "${COMPREPLY[@]}")" "$(between 'kinds=(' $'\n    )' | xargs -n 1)" \
    "$(sed -n '/^.SH FAULTS/,/^.SH EXIT/s/^.B //p' "$manual")"; do
    diff <(echo "$kinds") <(sort <<<"$told") || { echo "kinds of faults in bash, zsh or the manual"; status=1; }
done
exit $status
