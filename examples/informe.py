"""The report that the relay writes of the event, the record's .hdr file."""

from __future__ import annotations

import cmath
import math

from circuito import (
    ARRANQUE_S,
    DURACION_S,
    FRECUENCIA_HZ,
    LINEA_Z0_OHM_KM,
    LINEA_Z1_OHM_KM,
    LONGITUD_KM,
    SEPARACION_CONTACTOS_S,
    TENSION_NOMINAL_KV,
)
from rele import (
    ALCANCE_ZONA_1_KM,
    ALCANCE_ZONA_2_KM,
    ANALOGICOS,
    EQUIPO,
    FASES,
    MUESTRAS_POR_CICLO,
    MUESTREO_HZ,
    PRIMERA_MUESTRA,
    SUBESTACION,
    TI_PRIMARIO_A,
    TI_SECUNDARIO_A,
    TT_PRIMARIO_KV,
    TT_SECUNDARIO_KV,
    Cronologia,
    Muestra,
)
from texto import en_lineas


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
