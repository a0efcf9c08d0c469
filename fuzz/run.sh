#!/usr/bin/env bash
# Usage: fuzz/run.sh [SECONDS] [FUZZER...]    every fuzzer, or those named, for SECONDS each (60), two at a time
# They do not look for leaks, which would be done after every input. The
# replay of the corpora under the asan preset looks for them. What they find, and the corpora that grow, are kept in
# build/fuzz/found and build/fuzz/corpus.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -eq 0 ] || shift
fuzzers=("$@")
[ ${#fuzzers[@]} -gt 0 ] || fuzzers=(archive document iplist layout params products settings)

launcher=()
! command -v ccache >/dev/null || launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake --preset fuzz "${launcher[@]}" >/dev/null
cmake --build --preset fuzz

# Every input writes files, so into memory; what a fuzzer that fails leaves goes with this folder.
TMPDIR=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

run_one() {
    local name=$1 seconds=$2 dictionary=()
    mkdir -p "build/fuzz/corpus/$name" "build/fuzz/found"
    [ ! -f "fuzz/$name.dict" ] || dictionary=(-dict="fuzz/$name.dict")
    local log=build/fuzz/found/$name.log
    if "build/fuzz/bin/fuzz_$name" "build/fuzz/corpus/$name" "fuzz/corpus/$name" "${dictionary[@]}" \
        -detect_leaks=0 -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/found/$name-" >"$log" 2>&1; then
        echo "fuzz_$name: nothing found in $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs"
    else
        echo "fuzz_$name: a finding, see $log"
        return 1
    fi
}
export -f run_one
printf '%s\n' "${fuzzers[@]}" | xargs -P 2 -I{} bash -c 'run_one {} '"$seconds"
