"""Rows of a Jet 4 database: their columns, their bytes and the pages that keep them."""

from __future__ import annotations

import struct
from collections.abc import Iterable, Sequence
from dataclasses import dataclass
from itertools import accumulate

PAGINA = 4096
PAGINAS_DE_UN_MAPA = 512  # so a file holds 2 MiB at most
CARACTERES_DE_UN_TEXTO = 255
FILAS_DE_UNA_PAGINA = 255  # an address keeps the row in one byte


class ErrorJet(ValueError):
    """Something that a database cannot hold, and where it is."""


# --- Columns and rows ----------------------------------------------------------------------------------


@dataclass(frozen=True)
class Tipo:
    """A kind of column; those with a `formato` of struct lie at the head of the row, even when null."""

    codigo: int
    formato: str = ""
    octetos_por_caracter: int = 0
    valor_largo: bool = False


ENTERO_16 = Tipo(3, "<h")
ENTERO_32 = Tipo(4, "<i")
FECHA = Tipo(8, "<d")
BINARIO = Tipo(9, octetos_por_caracter=2)
TEXTO = Tipo(10, octetos_por_caracter=2)
OLE = Tipo(11, valor_largo=True)
MEMO = Tipo(12, valor_largo=True)

Valor = int | float | str | None


@dataclass(frozen=True)
class Columna:
    nombre: str
    tipo: Tipo
    caracteres: int = CARACTERES_DE_UN_TEXTO
    comprimida: bool = True

    @property
    def fija(self) -> bool:
        return bool(self.tipo.formato)

    @property
    def largo(self) -> int:
        """In bytes, the most that a value takes."""
        if self.fija:
            return struct.calcsize(self.tipo.formato)
        return self.tipo.octetos_por_caracter * self.caracteres

    def codifica(self, valor: Valor) -> bytes:
        if valor is None:
            return bytes(self.largo) if self.fija else b""
        if self.tipo is TEXTO:
            return self._texto(valor)
        if not self.fija or isinstance(valor, bool) or not isinstance(valor, (int, float)):
            raise ErrorJet(f"{valor!r} is not a number")
        try:
            return struct.pack(self.tipo.formato, valor)
        except struct.error:
            raise ErrorJet(f"{valor!r} is not an integer of {8 * self.largo} bits") from None

    def _texto(self, valor: Valor) -> bytes:
        if not isinstance(valor, str):
            raise ErrorJet(f"{valor!r} is not a text")
        if len(valor) > self.caracteres:
            raise ErrorJet(f"{len(valor)} characters where {self.caracteres} fit: {valor!r}")
        # A leading U+FEFF would pass for the mark of a compressed text.
        if "\0" in valor or valor.startswith("\ufeff") or any(c > "\uffff" for c in valor):
            raise ErrorJet(f"characters that cannot be stored: {valor!r}")
        entero = valor.encode("utf-16-le")
        if not self.comprimida or any(c > "\xff" for c in valor):
            return entero
        return min(entero, b"\xff\xfe" + valor.encode("latin-1"), key=len)


def codifica_fila(columnas: Sequence[Columna], valores: Sequence[Valor]) -> bytes:
    """Number of columns, fixed values, variable ones, where these begin, a bit for each non-null value."""
    fijos, variables, presentes = [], [], 0
    for k, (columna, valor) in enumerate(zip(columnas, valores, strict=True)):
        try:
            (fijos if columna.fija else variables).append(columna.codifica(valor))
        except ErrorJet as error:
            raise ErrorJet(f"column '{columna.nombre}': {error}") from None
        presentes |= (valor is not None) << k
    octetos = struct.pack("<H", len(columnas)) + b"".join(fijos)
    if variables:
        cortes = [*accumulate(map(len, variables), initial=len(octetos))]
        octetos += b"".join(variables)
        octetos += struct.pack(f"<{len(cortes) + 1}H", *reversed(cortes), len(variables))
    return octetos + presentes.to_bytes(-(-len(columnas) // 8), "little")


# --- Pages of rows -------------------------------------------------------------------------------------

CABECERA_DE_DATOS = "<BBHIIH"
SITIO_PARA_FILAS = PAGINA - struct.calcsize(CABECERA_DE_DATOS)

# Marks on the offset of a row.
APUNTADOR = 0x4000  # the row is elsewhere and its address is here
DESPLAZADA = 0x8000  # a row that is reached only through its pointer
BORRADA = APUNTADOR | DESPLAZADA


def direccion(pagina: int, fila: int) -> int:
    return pagina << 8 | fila


class PaginaDeDatos:
    """Offsets of the rows from the top of the page, the rows themselves from the bottom."""

    def __init__(self) -> None:
        self._filas: list[tuple[int, bytes]] = []
        self._libre = SITIO_PARA_FILAS

    def cabe(self, octetos: bytes) -> bool:
        return len(octetos) + 2 <= self._libre and len(self._filas) < FILAS_DE_UNA_PAGINA

    def pon(self, octetos: bytes, marca: int = 0) -> int:
        """The number of the row in the page."""
        self._filas.append((marca, octetos))
        self._libre -= len(octetos) + 2
        return len(self._filas) - 1

    def cambia(self, fila: int, octetos: bytes) -> None:
        marca, anteriores = self._filas[fila]
        assert len(octetos) == len(anteriores)
        self._filas[fila] = marca, octetos

    def octetos(self, propietaria: int) -> bytes:
        inicios = [*accumulate((-len(fila) for _, fila in self._filas), initial=PAGINA)][1:]
        marcados = [inicio | marca for inicio, (marca, _) in zip(inicios, self._filas)]
        cabecera = struct.pack(CABECERA_DE_DATOS, 1, 1, self._libre, propietaria, 0, len(marcados))
        cabecera += struct.pack(f"<{len(marcados)}H", *marcados)
        return cabecera + bytes(self._libre) + b"".join(fila for _, fila in reversed(self._filas))


class Filas:
    """The pages of a table's rows, which will stand from page `primera` of the file on."""

    def __init__(self, primera: int) -> None:
        self._primera = primera
        self._paginas: list[PaginaDeDatos] = []

    def pon(self, octetos: bytes, marca: int = 0) -> int:
        """The row's address."""
        if not self._paginas or not self._paginas[-1].cabe(octetos):
            self._paginas.append(PaginaDeDatos())
        fila = self._paginas[-1].pon(octetos, marca)
        return direccion(self._primera + len(self._paginas) - 1, fila)

    def apunta(self, desde: int, hasta: int) -> None:
        """Makes the row at `desde` a pointer to the one at `hasta`."""
        self._paginas[(desde >> 8) - self._primera].cambia(desde & 0xFF, struct.pack("<I", hasta))

    def octetos(self, propietaria: int) -> list[bytes]:
        return [pagina.octetos(propietaria) for pagina in self._paginas]


def pagina_de_mapas(mapas: Iterable[Iterable[int]], propietaria: int) -> bytes:
    """Each map is a row with a bit for each page of the file."""
    pagina = PaginaDeDatos()
    for mapa in mapas:
        bits = sum(1 << n for n in mapa)
        pagina.pon(struct.pack("<BI", 0, 0) + bits.to_bytes(PAGINAS_DE_UN_MAPA // 8, "little"))
    return pagina.octetos(propietaria)
