#!/bin/sh
# A thousand records with veldix-cli: bench/muchos_registros.sh VELDIX_CLI RECORD.dat [COUNT]
# Copies a record COUNT times into a temporary folder, damages some of the copies, and has each opened by a process
# of its own, one at a time and on every core. Prints seconds, records in a second, the memory of one process, and
# how many failed. Needs xargs and GNU time; GNU parallel where it is installed.
set -eu
cli=$(readlink -f "$1")
registro=$(readlink -f "$2")
cuantos=${3:-1000}
carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
base=${registro%.*}
nombre=$(basename "$base")

i=0
while [ "$i" -lt "$cuantos" ]; do
    i=$((i + 1))
    for final in cfg dat hdr; do
        [ ! -e "$base.$final" ] || cp "$base.$final" "$carpeta/$nombre.$i.$final"
    done
done
echo broken >"$carpeta/$nombre.1.cfg"
rm "$carpeta/$nombre.2.cfg"
cd "$carpeta"
mkdir out

mide() { # what, command
    rm -f out/*
    inicio=$(date +%s.%N)
    sh -c "$2" 2>"$carpeta/errors" || true
    fin=$(date +%s.%N)
    bien=$(find out -type f -size +0c | wc -l)
    echo "$inicio $fin $cuantos $bien $1" |
        awk '{s = $2 - $1; n = $3; b = $4; $1 = $2 = $3 = $4 = ""
              printf "%s: %.2f s, %.0f records a second, %d read, %d failed\n", $0, s, n / s, b, n - b}'
}
export cli
una='"$cli" info "$0" > "out/$0.json"'
mide "one after another" "ls *.dat | xargs -n 1 sh -c '$una'"
mide "xargs on $(nproc) cores" "ls *.dat | xargs -P $(nproc) -n 1 sh -c '$una'"
if command -v parallel >/dev/null; then
    mide "parallel on $(nproc) cores" "ls *.dat | parallel '\"\$cli\" info {} > out/{}.json'"
    mide "parallel, phasors" "ls *.dat | parallel '\"\$cli\" phasors {} > out/{}.csv'"
fi
/usr/bin/time -f "peak of one process: %M KiB" "$cli" info "$nombre.3.dat" >/dev/null
