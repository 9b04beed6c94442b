"""Lines of the files that are written: how they end and in which code page."""

FIN_DE_LINEA = "\r\n"
PAGINA_DE_CODIGOS = "cp1252"


def en_lineas(lineas) -> bytes:
    return "".join(linea + FIN_DE_LINEA for linea in lineas).encode(PAGINA_DE_CODIGOS)
