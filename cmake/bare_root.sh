#!/usr/bin/env bash
# Does what the README says in a new Debian root (debootstrap, minbase) with a copy of the committed tree: its
# commands in their order, its program, the desktop program on a screen, and the packages. So nothing works only
# because it happens to be installed here.
# Needs root, Xvfb, about 4 GB in TMPDIR, and the package sources of this machine. The root is removed at the end.
set -euo pipefail
cd "$(dirname "$0")/.."

refuse() {
    echo "bare: $*" >&2
    exit 2
}

[ "$(id -u)" -eq 0 ] || refuse "run as root"
git rev-parse -q --verify HEAD >/dev/null || refuse "what is committed is tried, and this is no git repository"
# Where this machine has the base system of its own release from.
read -r suite mirror < <(. /etc/os-release && apt-get indextargets --format '$(CODENAME) $(REPO_URI)' 'Created-By: Packages' |
    awk -v suite="${VERSION_CODENAME:-}" '$1 == suite { print; exit }') ||
    refuse "apt knows no packages of this machine's release; try apt-get update"

work=$(mktemp -d -t orvan-bare.XXXXXX)
root=$work/root
child= screen=
clean_up() {
    for process in $child $screen; do
        { kill -KILL "$process" && wait "$process"; } 2>/dev/null || true
    done
    rm -rf --one-file-system "$work"
}
trap clean_up EXIT
trap 'exit 1' HUP INT TERM

# apart COMMAND...: with mounts and processes of its own, which end with it, also when this script is stopped.
apart() {
    unshare --mount --pid --fork --kill-child --mount-proc "$@" &
    child=$!
    local status=0
    wait "$child" || status=$?
    child=
    return "$status"
}

echo "== a bare $suite in $root"
apart debootstrap --variant=minbase "$suite" "$root" "$mirror" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
rm -r "$root/etc/apt"
cp -a /etc/apt "$root/etc/"
cp -a /usr/share/keyrings/. "$root/usr/share/keyrings/"
cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
tree=$root/root/tree
mkdir "$tree"
git archive HEAD | tar -x -C "$tree"

# The README's indented lines are commands, its block of C++ is wall.cpp.
sed -n '/^```cpp/,/^```/p' README.md | sed '/^```/d' >"$tree/wall.cpp"
{
    echo 'set -eo pipefail'
    sed '/^```/,/^```/d' README.md | grep '^    ' | while read -r command; do
        printf 'echo %q\n%s\n' "== $command" "$command"
    done
    cat <<'COMMANDS'
# stays COMMAND...: it still runs after 30 s, so it has found what it needs.
stays() {
    local status=0
    timeout 30 "$@" || status=$?
    [ $status -eq 124 ]
}
echo '== ./dev designer'
./dev build release >/dev/null
stays ./dev designer
echo '== apt-get install build/package/*.deb'
apt-get install -y -qq --no-install-recommends ./build/package/*.deb >/dev/null
cd /
orvan --version
stays orvan-designer
COMMANDS
} >"$tree/readme.sh"

# A screen of this machine, which the root shares: what draws on it has to come from the root itself.
exec {number}< <(exec Xvfb -displayfd 1 -ac -nolisten tcp 2>/dev/null)
screen=$!
read -r -t 30 -u "$number" display || refuse "Xvfb does not start"

proxies=()
for name in http_proxy https_proxy no_proxy; do
    [ -z "${!name:-}" ] || proxies+=("$name=${!name}")
done
apart --root="$root" --wd=/root/tree \
    env -i DISPLAY=":$display" HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    "${proxies[@]}" \
    bash readme.sh </dev/null
echo "bare: every command of the README and the desktop program worked, in $SECONDS s"
