#!/usr/bin/env python3
"""Makes the demonstration record: an earth fault of phase A, its clearing and a successful reclosing.

The circuit and its equations are in circuito.py, the template in plantilla.py.
"""

from __future__ import annotations

import argparse
import cmath
import math
import struct
import sys
from dataclasses import dataclass, replace
from datetime import datetime, timedelta
from pathlib import Path

from circuito import (
    ARRANQUE_S,
    CIERRE_S,
    DISPARO_S,
    DURACION_S,
    FRECUENCIA_HZ,
    INCEPCION_S,
    LINEA_Z0_OHM_KM,
    LINEA_Z1_OHM_KM,
    LONGITUD_KM,
    SEPARACION_CONTACTOS_S,
    TENSION_NOMINAL_KV,
    TIEMPO_DE_CIERRE_S,
    Circuito,
)
from plantilla import cnf
from texto import en_lineas

# --- The relay -----------------------------------------------------------------------------------------

MUESTREO_HZ = 1600
MUESTRAS_POR_CICLO = round(MUESTREO_HZ / FRECUENCIA_HZ)
NUMERO_DE_MUESTRAS = round(DURACION_S * MUESTREO_HZ)
MAXIMO_BRUTO = 32767

# The day is the month too: it reads the same in the 1997 order (day, month) and in the 1991 one.
PRIMERA_MUESTRA = datetime(2023, 10, 10, 14, 27, 31, 250000)

SUBESTACION = "SE EJEMPLO"
EQUIPO = "PROT LINEA 1"

TT_PRIMARIO_KV, TT_SECUNDARIO_KV = 132.0, 0.11
TI_PRIMARIO_A, TI_SECUNDARIO_A = 800.0, 1.0

PASO_TENSION_KV = 0.005  # primary kV for each count
PASO_CORRIENTE_A = 0.0005  # secondary A for each count
DESFASE_CORRIENTES_US = 10.0  # the currents' converter samples after that of the voltages

ALCANCE_ZONA_1_KM = 0.80 * LONGITUD_KM
ALCANCE_ZONA_2_KM = 1.20 * LONGITUD_KM

FASES = ("A", "B", "C")


# --- The analog channels -------------------------------------------------------------------------------


@dataclass(frozen=True)
class CanalAnalogico:
    """A channel as it is declared: value = a * count + b, in primary or secondary as `ps` tells."""

    nombre: str
    fase: str
    circuito: str
    unidad: str
    a: float
    b: float
    desfase_us: float
    primario: float
    secundario: float
    ps: str

    def cuentas(self, valor: float) -> int:
        bruto = round((valor - self.b) / self.a)
        if abs(bruto) > MAXIMO_BRUTO:
            raise OverflowError(f"{self.nombre}: {valor} no cabe en 16 bits")
        return bruto

    def valor(self, bruto: int) -> float:
        return self.a * bruto + self.b

    def en_primario(self) -> CanalAnalogico:
        """The same counts with the factors that give primary values."""
        relacion = self.primario / self.secundario if self.ps == "S" else 1.0
        return replace(self, a=self.a * relacion, b=self.b * relacion, ps="P")


def canal_tension(fase: str, b: float) -> CanalAnalogico:
    return CanalAnalogico(
        "V" + fase, fase, "BARRAS", "kV", PASO_TENSION_KV, b, 0.0, TT_PRIMARIO_KV, TT_SECUNDARIO_KV, "P"
    )


def canal_corriente(fase: str) -> CanalAnalogico:
    return CanalAnalogico(
        "I" + fase, fase, "LINEA 1", "A", PASO_CORRIENTE_A, 0.0, DESFASE_CORRIENTES_US,
        TI_PRIMARIO_A, TI_SECUNDARIO_A, "S",
    )


# The offsets are whole counts, which leaves the residuals exact.
TENSIONES = (
    canal_tension("A", 2 * PASO_TENSION_KV),
    canal_tension("B", -3 * PASO_TENSION_KV),
    canal_tension("C", 0.0),
)
CORRIENTES = tuple(canal_corriente(fase) for fase in FASES)
TENSION_RESIDUAL = canal_tension("N", PASO_TENSION_KV)  # 3U0
CORRIENTE_RESIDUAL = canal_corriente("N")  # 3I0
ANALOGICOS = (*TENSIONES, TENSION_RESIDUAL, *CORRIENTES, CORRIENTE_RESIDUAL)


def cuentas_tensiones(circuito: Circuito, t: float) -> list[int]:
    return [c.cuentas(circuito.tension(k, t + 1e-6 * c.desfase_us)) for k, c in enumerate(TENSIONES)]


def cuentas_corrientes(circuito: Circuito, t: float) -> list[int]:
    relacion = TI_PRIMARIO_A / TI_SECUNDARIO_A
    return [
        c.cuentas(circuito.corriente(k, t + 1e-6 * c.desfase_us) / relacion)
        for k, c in enumerate(CORRIENTES)
    ]


def con_residual(canales: tuple, residual: CanalAnalogico, brutos: list[int]) -> list[int]:
    """Three channels and their sum, taken from the stored values so that it is exact."""
    suma = sum(canal.valor(bruto) for canal, bruto in zip(canales, brutos))
    return [*brutos, residual.cuentas(suma)]


def muestra_analogica(circuito: Circuito, t: float) -> list[int]:
    return [
        *con_residual(TENSIONES, TENSION_RESIDUAL, cuentas_tensiones(circuito, t)),
        *con_residual(CORRIENTES, CORRIENTE_RESIDUAL, cuentas_corrientes(circuito, t)),
    ]


# --- The digital channels ------------------------------------------------------------------------------


@dataclass(frozen=True)
class Cronologia:
    """The instants of the story, in seconds from the first sample."""

    incepcion: float
    arranque: float
    disparo: float
    separacion: float
    aperturas: tuple[float, float, float]
    orden_cierre: float
    cierre: float

    @property
    def extincion(self) -> float:
        """The last pole's interruption."""
        return max(self.aperturas)


def cronologia(circuito: Circuito) -> Cronologia:
    return Cronologia(
        incepcion=INCEPCION_S,
        arranque=ARRANQUE_S,
        disparo=DISPARO_S,
        separacion=SEPARACION_CONTACTOS_S,
        aperturas=circuito.apertura,
        orden_cierre=CIERRE_S - TIEMPO_DE_CIERRE_S,
        cierre=CIERRE_S,
    )


@dataclass(frozen=True)
class CanalDigital:
    """A channel, its normal state and the only interval, if any, that it spends in the other one."""

    nombre: str
    normal: int = 0
    desde: float = math.inf
    hasta: float = math.inf

    def estado(self, t: float) -> int:
        # Half a microsecond absorbs the rounding of the sums of times.
        activo = self.desde - 5e-7 <= t < self.hasta - 5e-7
        return 1 - self.normal if activo else self.normal


def canales_digitales(c: Cronologia) -> list[CanalDigital]:
    return [*canales_arranque(c), *canales_disparo(c), *canales_posicion(c), *canales_reenganche(c)]


def canales_arranque(c: Cronologia) -> list[CanalDigital]:
    reposicion = c.aperturas[0] + 0.015
    return [
        CanalDigital("ARRANQUE A", 0, c.arranque, reposicion),
        CanalDigital("ARRANQUE B"),
        CanalDigital("ARRANQUE C"),
        CanalDigital("ARRANQUE N", 0, c.arranque + 0.00125, reposicion + 0.00250),
        CanalDigital("ZONA 1", 0, c.disparo - 0.00250, reposicion - 0.00375),
        CanalDigital("ZONA 2", 0, c.disparo - 0.00375, reposicion - 0.00250),
        CanalDigital("DIREC ADELANTE", 0, c.arranque + 0.00500, reposicion),
    ]


def canales_disparo(c: Cronologia) -> list[CanalDigital]:
    reposicion = c.extincion + 0.025
    polos = [CanalDigital(f"DISPARO {fase}", 0, c.disparo, reposicion) for fase in FASES]
    return [
        *polos,
        CanalDigital("DISPARO GENERAL", 0, c.disparo, reposicion + 0.00250),
        CanalDigital("ENVIO PORTADORA", 0, c.disparo, reposicion + 0.05000),
        CanalDigital("RECEP PORTADORA", 0, c.disparo + 0.01250, reposicion + 0.06250),
    ]


def canales_posicion(c: Cronologia) -> list[CanalDigital]:
    """The auxiliary contacts: 52a copies each pole, 52b denies it, and neither is made in between."""
    dispersion = (0.0, 0.00125, 0.000625)
    contactos_a = [
        CanalDigital(f"52A POLO {fase}", 1, c.separacion + 0.00250 + d, c.cierre + 0.00250 + d)
        for fase, d in zip(FASES, dispersion)
    ]
    contactos_b = [
        CanalDigital(f"52B POLO {fase}", 0, c.separacion + 0.01250 + d, c.cierre - 0.00750 + d)
        for fase, d in zip(FASES, dispersion)
    ]
    return [*contactos_a, *contactos_b]


def canales_reenganche(c: Cronologia) -> list[CanalDigital]:
    return [
        CanalDigital("REENG EN CURSO", 0, c.disparo + 0.00500, c.orden_cierre + 0.12000),
        CanalDigital("ORDEN REENGANCHE", 0, c.orden_cierre, c.orden_cierre + 0.12000),
        CanalDigital("TIEMPO SEGURIDAD", 0, c.orden_cierre, math.inf),
        CanalDigital("FALLO FUSIBLE TT"),
        CanalDigital("ARRANQUE OSCILO", 0, c.arranque, c.arranque + 0.10000),
    ]


# --- The samples ---------------------------------------------------------------------------------------


@dataclass(frozen=True)
class Muestra:
    numero: int
    tiempo_us: int
    analogicos: list[int]
    digitales: list[int]


def muestras(circuito: Circuito, digitales: list[CanalDigital]) -> list[Muestra]:
    resultado = []
    for k in range(NUMERO_DE_MUESTRAS):
        t = k / MUESTREO_HZ
        estados = [canal.estado(t) for canal in digitales]
        resultado.append(Muestra(k + 1, round(1e6 * t), muestra_analogica(circuito, t), estados))
    return resultado


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


# --- The relay's report --------------------------------------------------------------------------------


def fasor_medido(registro: list[Muestra], canal: int, primera: int) -> complex:
    """The r.m.s. phasor of an analog channel over one cycle, in the channel's unit."""
    suma = sum(
        ANALOGICOS[canal].valor(registro[primera + k].analogicos[canal])
        * cmath.exp(-2j * math.pi * k / MUESTRAS_POR_CICLO)
        for k in range(MUESTRAS_POR_CICLO)
    )
    return math.sqrt(2.0) * suma / MUESTRAS_POR_CICLO


def medidas_en_falta(registro: list[Muestra]) -> list[complex]:
    """Primary phasors, kV and A, over the last cycle before the contacts part."""
    primera = round(SEPARACION_CONTACTOS_S * MUESTREO_HZ) - MUESTRAS_POR_CICLO
    relacion = TI_PRIMARIO_A / TI_SECUNDARIO_A
    tensiones = [fasor_medido(registro, k, primera) for k in range(4)]
    return [*tensiones, *(relacion * fasor_medido(registro, k, primera) for k in range(4, 8))]


def impedancia_medida(medidas: list[complex]) -> complex:
    """The earth loop of phase A, Va / (Ia + k0 In), in primary ohms."""
    k0 = (LINEA_Z0_OHM_KM - LINEA_Z1_OHM_KM) / (3.0 * LINEA_Z1_OHM_KM)
    return 1000.0 * medidas[0] / (medidas[4] + k0 * medidas[7])


def hdr(c: Cronologia, registro: list[Muestra]) -> bytes:
    medidas = medidas_en_falta(registro)
    return en_lineas(
        linea
        for apartado in (informe_cabecera(), informe_sucesos(c), informe_medidas(medidas), informe_ajustes())
        for linea in (*apartado, "")
    )


def coma(x: float, decimales: int) -> str:
    return f"{x:.{decimales}f}".replace(".", ",")


def informe_cabecera() -> list[str]:
    return [
        "INFORME DE FALTA",
        "================",
        f"Subestación:        {SUBESTACION}",
        f"Equipo:             {EQUIPO}",
        f"Posición:           Línea 1, {coma(TENSION_NOMINAL_KV, 0)} kV, {coma(LONGITUD_KM, 1)} km",
        f"Fecha del registro: {PRIMERA_MUESTRA:%d/%m/%Y %H:%M:%S.%f}",
        "Suceso:             Falta monofásica A-tierra, disparo tripolar por zona 1,",
        "                    reenganche con éxito",
    ]


def informe_sucesos(c: Cronologia) -> list[str]:
    sucesos = [
        (c.incepcion, "Comienzo de la falta"),
        (c.arranque, "Arranque fase A, comienzo de la oscilografía"),
        (c.disparo, "Disparo tripolar por zona 1, envío de portadora"),
        (c.separacion, "Separación de los contactos del interruptor"),
        *((t, f"Apertura del polo {fase} en su paso por cero") for fase, t in zip(FASES, c.aperturas)),
        (c.orden_cierre, "Orden de reenganche"),
        (c.cierre, "Cierre de los tres polos, vuelve la carga"),
    ]
    titulo = ["SUCESOS (ms desde la primera muestra y desde el comienzo de la falta)"]
    return titulo + [
        f"  {coma(1e3 * t, 1):>7}  {coma(1e3 * (t - c.incepcion), 1):>7}  {texto}"
        for t, texto in sorted(sucesos)
    ]


def informe_medidas(medidas: list[complex]) -> list[str]:
    lazo = impedancia_medida(medidas)
    distancia = lazo.imag / LINEA_Z1_OHM_KM.imag
    canales = [f"  {c.nombre}  {coma(abs(m), 1):>8} {c.unidad}" for c, m in zip(ANALOGICOS, medidas)]
    return [
        "MEDIDAS DURANTE LA FALTA (valores eficaces en primario, último ciclo antes de la apertura)",
        *canales,
        f"  Impedancia del lazo A-N:  {coma(lazo.real, 2)} + j{coma(lazo.imag, 2)} ohm",
        f"  Distancia a la falta:     {coma(distancia, 1)} km ({coma(100 * distancia / LONGITUD_KM, 1)} %)",
    ]


def informe_ajustes() -> list[str]:
    x1 = LINEA_Z1_OHM_KM.imag
    k0 = (LINEA_Z0_OHM_KM - LINEA_Z1_OHM_KM) / (3.0 * LINEA_Z1_OHM_KM)
    ajustes = [
        ("Frecuencia nominal", f"{coma(FRECUENCIA_HZ, 0)} Hz"),
        ("Relación de los TI", f"{coma(TI_PRIMARIO_A, 0)}/{coma(TI_SECUNDARIO_A, 0)} A"),
        ("Relación de los TT", f"{coma(TT_PRIMARIO_KV, 0)}/{coma(TT_SECUNDARIO_KV, 2)} kV"),
        ("Situación de los TT", "barras"),
        ("Longitud de la línea", f"{coma(LONGITUD_KM, 1)} km"),
        ("Resistencia directa", f"{coma(LINEA_Z1_OHM_KM.real, 3)} ohm/km"),
        ("Reactancia directa", f"{coma(x1, 3)} ohm/km"),
        ("Resistencia homopolar", f"{coma(LINEA_Z0_OHM_KM.real, 3)} ohm/km"),
        ("Reactancia homopolar", f"{coma(LINEA_Z0_OHM_KM.imag, 3)} ohm/km"),
        ("Compensación k0, módulo", coma(abs(k0), 2)),
        ("Compensación k0, ángulo", f"{coma(math.degrees(cmath.phase(k0)), 1)} grados"),
        ("Zona 1, reactancia", f"{coma(ALCANCE_ZONA_1_KM * x1, 2)} ohm"),
        ("Zona 1, resistencia a tierra", "20,00 ohm"),
        ("Zona 1, tiempo", "0,00 s"),
        ("Zona 2, reactancia", f"{coma(ALCANCE_ZONA_2_KM * x1, 2)} ohm"),
        ("Zona 2, resistencia a tierra", "25,00 ohm"),
        ("Zona 2, tiempo", "0,40 s"),
        ("Arranque de fase", "1,20 A secundarios"),
        ("Arranque de tierra", "0,20 A secundarios"),
        ("Esquema de teleprotección", "permisivo por subalcance"),
        ("Modo de disparo", "tripolar"),
        ("Reenganche", "un intento"),
        ("Tiempo de aislamiento", "0,40 s"),
        ("Orden de cierre", "0,12 s"),
        ("Tiempo de seguridad", "10,00 s"),
        ("Vigilancia de fusible de TT", "activa"),
        ("Frecuencia de muestreo", f"{MUESTREO_HZ} Hz"),
        ("Duración del registro", f"{coma(DURACION_S, 2)} s"),
        ("Tiempo previo al arranque", f"{coma(ARRANQUE_S, 2)} s"),
        ("Señal de arranque", "ARRANQUE A o ARRANQUE N"),
    ]
    return ["AJUSTES"] + [f"  {nombre:.<32} {valor}" for nombre, valor in ajustes]


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
