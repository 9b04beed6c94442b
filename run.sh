#!/usr/bin/env bash
# Builds, stages and starts VELDIX.
#   ./run.sh                      on the demonstration record and its template
#   ./run.sh REC.dat [TEMPLATE.cnf]
#   ./run.sh --build              builds and stages only
set -euo pipefail
aqui=$(pwd)
cd "$(dirname "${BASH_SOURCE[0]}")"
raiz=$(pwd)
. runtime/paquetes.sh

[ "$(command -v apt-get)" ] && instala_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_EJECUTAR[@]}"
if [ ! -f build/release/build.ninja ]; then
  cmake --preset release -DVELDIX_TESTS=OFF -DVELDIX_BENCH=OFF > /dev/null
fi
cmake --build --preset release --target veldix veldix-cli
cmake --install build/release --prefix "$raiz/build/stage" > /dev/null
[ "${1:-}" = --build ] && { echo "Staged in build/stage"; exit 0; }

if [ $# -gt 0 ]; then
  fichero() { case "$1" in /*) echo "$1" ;; *) echo "$aqui/$1" ;; esac; }
  registro=$(fichero "$1")
  plantilla=${2:+$(fichero "$2")}
else
  registro=$raiz/build/stage/Registros/falta_1997.dat
  plantilla=$raiz/build/stage/Plantillas/falta.cnf
fi

cd build/stage/VELDIX/EXE
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: the record is read by veldix-cli instead."
  ./veldix-cli info "$registro" ${plantilla:+"$plantilla"}
  ./veldix-cli samples "$registro"
  exit 0
fi
exec ./veldix "$registro" ${plantilla:+"$plantilla"}
