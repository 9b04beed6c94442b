#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test without a display, under both locales.
#   ./test.sh            the release build
#   ./test.sh asan       the same suite under the address and undefined-behaviour sanitizers
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. runtime/paquetes.sh
preset=${1:-release}

if command -v apt-get > /dev/null; then
  instala_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_EJECUTAR[@]}" "${PAQUETES_PROBAR[@]}"
fi
if ! locale -a | grep -qi '^es_ES.utf-\?8$'; then
  como=""
  [ "$(id -u)" -eq 0 ] || como=sudo
  $como localedef -i es_ES -f UTF-8 es_ES.UTF-8
fi

extra=(-DVELDIX_TESTS=ON)
[ "$preset" = release ] && extra+=(-DVELDIX_BENCH=ON)
cmake --preset "$preset" "${extra[@]}" > /dev/null
cmake --build --preset "$preset"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0 UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
env -u DISPLAY -u WAYLAND_DISPLAY ctest --preset "$preset" -j"$(nproc)"
