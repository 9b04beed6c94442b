#!/usr/bin/env python3
"""Makes the demonstration record: an earth fault of phase A, its clearing and a successful reclosing.

The circuit and its equations are in circuito.py, the relay in rele.py, its report in informe.py, the template
in plantilla.py.
"""

from __future__ import annotations

import argparse
import struct
import sys
from datetime import timedelta
from pathlib import Path

from circuito import ARRANQUE_S, FRECUENCIA_HZ, Circuito
from informe import hdr
from plantilla import cnf
from rele import (
    ANALOGICOS,
    EQUIPO,
    MAXIMO_BRUTO,
    MUESTREO_HZ,
    NUMERO_DE_MUESTRAS,
    PRIMERA_MUESTRA,
    SUBESTACION,
    CanalAnalogico,
    CanalDigital,
    Muestra,
    canales_digitales,
    cronologia,
    muestras,
)
from texto import en_lineas

# --- The samples' file ---------------------------------------------------------------------------------


def dat_texto(registro: list[Muestra]) -> bytes:
    lineas = (
        ",".join(map(str, (m.numero, m.tiempo_us, *m.analogicos, *m.digitales))) for m in registro
    )
    return en_lineas(lineas)


def dat_binario(registro: list[Muestra]) -> bytes:
    return b"".join(
        struct.pack(f"<II{len(m.analogicos)}h", m.numero, m.tiempo_us, *m.analogicos)
        + palabras(m.digitales)
        for m in registro
    )


def palabras(estados: list[int]) -> bytes:
    """Words of sixteen states, the first state in the lowest bit."""
    numero = -(-len(estados) // 16)
    bits = sum(estado << k for k, estado in enumerate(estados))
    return bits.to_bytes(2 * numero, "little")


# --- The configuration ---------------------------------------------------------------------------------


def cfg_1997(digitales: list[CanalDigital], tipo: str) -> bytes:
    lineas = [f"{SUBESTACION},{EQUIPO},1997"]
    lineas += lineas_canales(map(campos_1997, ANALOGICOS), digitales, ",,")  # phase and component, empty
    lineas += [*lineas_tasa(), *fechas("%d/%m/%Y,%H:%M:%S.%f"), tipo, "1"]
    return en_lineas(lineas)


def cfg_1991(digitales: list[CanalDigital]) -> bytes:
    primarios = [canal.en_primario() for canal in ANALOGICOS]
    lineas = [f"{SUBESTACION},{EQUIPO}"]
    lineas += lineas_canales(map(campos_1991, primarios), digitales, "")
    lineas += [*lineas_tasa(), *fechas("%m/%d/%y,%H:%M:%S.%f"), "ASCII"]
    return en_lineas(lineas)


def lineas_canales(campos_analogicos, digitales: list[CanalDigital], de_1997: str) -> list[str]:
    """The counts and the channels; `de_1997` stands between name and normal state of a digital one."""
    na, nd = len(ANALOGICOS), len(digitales)
    analogicas = [f"{n},{','.join(campos)}" for n, campos in enumerate(campos_analogicos, 1)]
    estados = [f"{n},{canal.nombre}{de_1997},{canal.normal}" for n, canal in enumerate(digitales, 1)]
    return [f"{na + nd},{na}A,{nd}D", *analogicas, *estados]


def campos_1991(c: CanalAnalogico) -> list[str]:
    factores = [numero(x) for x in (c.a, c.b, c.desfase_us)]
    return [c.nombre, c.fase, c.circuito, c.unidad, *factores, str(-MAXIMO_BRUTO), str(MAXIMO_BRUTO)]


def campos_1997(c: CanalAnalogico) -> list[str]:
    return [*campos_1991(c), numero(c.primario), numero(c.secundario), c.ps]


def lineas_tasa() -> list[str]:
    return [numero(FRECUENCIA_HZ), "1", f"{MUESTREO_HZ},{NUMERO_DE_MUESTRAS}"]


def fechas(formato: str) -> list[str]:
    """The first sample's and the trigger's."""
    disparo = PRIMERA_MUESTRA + timedelta(seconds=ARRANQUE_S)
    return [PRIMERA_MUESTRA.strftime(formato), disparo.strftime(formato)]


def numero(x: float) -> str:
    return f"{x:.7g}"


# --- The program ---------------------------------------------------------------------------------------


def ficheros() -> dict[str, bytes]:
    """Every file by its name."""
    circuito = Circuito()
    sucesos = cronologia(circuito)
    digitales = canales_digitales(sucesos)
    registro = muestras(circuito, digitales)
    informe = hdr(sucesos, registro)
    return {
        "falta_1997.cfg": cfg_1997(digitales, "ASCII"),
        "falta_1997.dat": dat_texto(registro),
        "falta_1997.hdr": informe,
        "falta_1997b.cfg": cfg_1997(digitales, "BINARY"),
        "falta_1997b.dat": dat_binario(registro),
        "falta_1997b.hdr": informe,
        "falta_1991.cfg": cfg_1991(digitales),
        "falta_1991.dat": dat_texto(registro),
        "falta_1991.hdr": informe,
        "falta.cnf": cnf(ANALOGICOS),
    }


def argumentos(lista: list[str] | None) -> argparse.Namespace:
    analizador = argparse.ArgumentParser(
        description="Writes the demonstration record (three forms) and its template.",
        epilog="The same version of the program always writes the same bytes.",
    )
    analizador.add_argument(
        "--carpeta",
        type=Path,
        default=Path(__file__).resolve().parent,
        help="folder for the files (by default, the program's own)",
    )
    analizador.add_argument(
        "--comprobar",
        action="store_true",
        help="write nothing; end with 1 if a file of the folder is missing or differs",
    )
    return analizador.parse_args(lista)


def difieren(carpeta: Path, contenidos: dict[str, bytes]) -> list[str]:
    def igual(ruta: Path, octetos: bytes) -> bool:
        return ruta.is_file() and ruta.read_bytes() == octetos

    return [nombre for nombre, octetos in contenidos.items() if not igual(carpeta / nombre, octetos)]


def main(lista: list[str] | None = None) -> int:
    opciones = argumentos(lista)
    contenidos = ficheros()
    if opciones.comprobar:
        distintos = difieren(opciones.carpeta, contenidos)
        for nombre in distintos:
            print(f"{nombre}: differs", file=sys.stderr)
        return 1 if distintos else 0
    opciones.carpeta.mkdir(parents=True, exist_ok=True)
    for nombre, octetos in contenidos.items():
        (opciones.carpeta / nombre).write_bytes(octetos)
    return 0


if __name__ == "__main__":
    sys.exit(main())
