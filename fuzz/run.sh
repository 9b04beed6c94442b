#!/bin/sh
# Builds the fuzz preset and runs each target for a while, two at a time.
#   fuzz/run.sh [seconds [target...]]
# New inputs stay in build/fuzz/corpus; what breaks a target goes to fuzz/found/<target>.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -gt 0 ] && shift
targets=${*:-cfg dat_ascii dat_bin cnf ajustes textos perfil avi jet}

cmake --preset fuzz >/dev/null
cmake --build build/fuzz --target veldix_fuzz

# A fuzzer ends without cleaning up; its folder goes with this one.
TMPDIR=$(mktemp -d /dev/shm/veldix.XXXXXX)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

export ASAN_OPTIONS="quarantine_size_mb=32:${ASAN_OPTIONS:-}"

run_one() {
    t=$1
    max=4096
    case $t in textos) max=8192 ;; jet) max=65536 ;; esac
    dict=
    [ -f "fuzz/$t.dict" ] && dict="-dict=fuzz/$t.dict"
    mkdir -p "build/fuzz/corpus/$t" "fuzz/found/$t"
    "build/fuzz/fuzz/fuzz_$t" -max_total_time="$seconds" -max_len=$max -rss_limit_mb=4096 -timeout=25 \
        $dict -artifact_prefix="fuzz/found/$t/" -print_final_stats=1 \
        "build/fuzz/corpus/$t" "fuzz/seeds/$t" >"build/fuzz/$t.log" 2>&1 || true
    rmdir "fuzz/found/$t" 2>/dev/null && result=clean || result="FINDINGS in fuzz/found/$t"
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/$t.log")
    echo "$t: ${runs:-?} runs, $result (build/fuzz/$t.log)"
}

n=0
for t in $targets; do
    run_one "$t" &
    n=$((n + 1))
    [ $((n % 2)) -eq 0 ] && wait
done
wait
rmdir fuzz/found 2>/dev/null || true
