#!/usr/bin/env python3
"""Makes the databases of the relay models, and the list of them, from their descriptions.

The descriptions are read in descripciones.py; the format of the databases is in jet.py and jet_filas.py.
"""

from __future__ import annotations

import argparse
import os
import sys
from collections.abc import Callable, Iterable
from pathlib import Path
from typing import TypeVar

from descripciones import (
    EXTENSION,
    MAESTRA,
    ErrorDeDescripcion,
    Modelo,
    lee_modelo,
    lee_tablas,
    tabla_maestra,
)
from jet import Tabla, base_de_datos
from jet_filas import ErrorJet

T = TypeVar("T")


class Fallo(Exception):
    """A message for the user that names the file."""


def de(ruta: Path, lee: Callable[[], T]) -> T:
    """What `lee` gives, its errors under the name of the file."""
    try:
        return lee()
    except (ErrorDeDescripcion, ErrorJet) as error:
        raise Fallo(f"{ruta}: {error}") from None


def base(ruta: Path, tablas: Iterable[Tabla]) -> bytes:
    return de(ruta, lambda: base_de_datos(tablas))


def bases_de_modelos(carpeta: Path, descripciones: list[Path]) -> dict[Path, bytes]:
    modelos: list[Modelo] = [de(ruta, lambda: lee_modelo(ruta)) for ruta in descripciones]
    contenidos = {
        carpeta / modelo.base: base(ruta, modelo.tablas) for ruta, modelo in zip(descripciones, modelos)
    }
    maestra = carpeta / (MAESTRA + EXTENSION)
    contenidos[maestra] = base(maestra, [de(maestra, lambda: tabla_maestra(modelos))])
    return contenidos


def base_de_tablas(descripcion: Path, destino: Path) -> dict[Path, bytes]:
    return {destino: base(descripcion, de(descripcion, lambda: lee_tablas(descripcion)))}


def escribe(contenidos: dict[Path, bytes]) -> None:
    """Every file whole beside its place, and only then each in its place."""
    nuevos = {ruta: ruta.with_name(f".{ruta.name}.{os.getpid()}") for ruta in contenidos}
    try:
        for ruta, nuevo in nuevos.items():
            ruta.parent.mkdir(parents=True, exist_ok=True)
            nuevo.write_bytes(contenidos[ruta])
        for ruta, nuevo in nuevos.items():
            nuevo.replace(ruta)
    finally:
        for nuevo in nuevos.values():
            nuevo.unlink(missing_ok=True)


def argumentos(lista: list[str] | None) -> argparse.Namespace:
    analizador = argparse.ArgumentParser(
        usage="%(prog)s CARPETA MODELO.toml...\n       %(prog)s --tablas BASE.toml BASE.mdb",
        description="Writes a database for each model, and Modelos.mdb with all of them in that order.",
        epilog="The same input always gives the same bytes.",
    )
    analizador.add_argument(
        "--tablas", action="store_true", help="write the tables of a general description in one database"
    )
    analizador.add_argument("rutas", nargs="+", type=Path, help=argparse.SUPPRESS)
    opciones = analizador.parse_args(lista)
    if len(opciones.rutas) < 2 or (opciones.tablas and len(opciones.rutas) > 2):
        analizador.error("wrong number of files")
    return opciones


def main(lista: list[str] | None = None) -> int:
    opciones = argumentos(lista)
    primera, *demas = opciones.rutas
    try:
        escribe(base_de_tablas(primera, *demas) if opciones.tablas else bases_de_modelos(primera, demas))
    except (Fallo, OSError) as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
