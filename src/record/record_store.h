#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>

#include "platform/tabla.h"

namespace veldix {

class frmVerCmpang;
class frmVerOndas;

/// A row of `Canales` and `CanalesPlan`; the column of the format behind each field.
struct FilaCanal {
    std::string Numero;    ///< 1, channel number of the record, a text
    std::string Nombre;    ///< 2
    std::string Circuito;  ///< 3, circuit component
    std::string Unidades;  ///< 4
};

/// A row of `Relacion`, revision 1997 only.
struct FilaRelacion {
    float Primario = 0.0F;    ///< 1
    float Secundario = 0.0F;  ///< 2
    std::string Lado;         ///< 3, "P" or "S" as the file has it
};

/// A row of `Trifasic` and `TrifasicPlan`.
struct FilaTrifasic {
    std::array<std::int16_t, 3> fases{};  ///< 1 to 3, analog channel numbers of the phases
    std::string Nombre;                   ///< 4
    std::string Factor;                   ///< 5, a text

    /// Phase 1 to 3. Raises 9.
    std::int16_t& Fase(int p) { return fases[Sitio(p)]; }
    std::int16_t Fase(int p) const { return fases[Sitio(p)]; }

private:
    static std::size_t Sitio(int p)
    {
        if (p < 1 || p > 3) Lanza(error::kSubindice);
        return static_cast<std::size_t>(p - 1);
    }
};

/// A row of `CanalesDig` and `CanalesDigPlan`.
struct FilaCanalDig {
    std::string Numero;  ///< 1, digital channel number of the record, a text
    std::string Nombre;  ///< 2
};

/// A row of `GruposDig` and `GruposDigPlan`.
struct FilaGrupoDig {
    std::string Nombre;  ///< 1
    std::string Cuenta;  ///< 2, members of the group, a text
};

/// Columns of the edit tables of digital groups: name, count, then up to nineteen members.
inline constexpr int kColumnasEdit = 21;
inline constexpr int kAntesDeMiembros = 2;

/// A row of `GruposEdit`: a digital group while it is edited. Its members' numbers are columns 3 to 21 of
/// the same row of `GruposEditNum`.
struct FilaGrupoEdit {
    std::string Nombre;                              ///< 1
    std::variant<std::string, std::int16_t> Cuenta;  ///< 2, a text as read or a number as stored
    std::array<std::string, 19> nombres;             ///< 3 to 21

    /// Name in column 3 to 21. Raises 9.
    std::string& Miembro(int columna) { return nombres[Sitio(columna)]; }
    const std::string& Miembro(int columna) const { return nombres[Sitio(columna)]; }

private:
    static std::size_t Sitio(int columna)
    {
        if (columna < 3 || columna > 21) Lanza(error::kSubindice);
        return static_cast<std::size_t>(columna - 3);
    }
};

/// Paths, screen and settings. A close keeps all of them.
struct GrupoEntorno {
    std::string FicheroCfg, FicheroDat, FicheroHdr;  ///< paths of the record, empty where a file is missing
    std::string FicheroCnf;                          ///< path of the current template
    std::string RutaPrograma;  ///< folder of the program, without a separator at its end
    std::string DirIni;        ///< settings folder
    std::string FicheroIdioma;
    std::int16_t Idioma = 0;                         ///< 1 Spanish, 0 English
    std::string DirDatos, DirPlantillas, DirAplic;   ///< default folders
    std::string FicheroTraducido;                    ///< command of the external converter
    double AltoPantalla = 0.0, AnchoPantalla = 0.0;  ///< screen, in twips
};

/// Identity and counts, written by LeerCfg.
struct GrupoIdentidad {
    std::string NombreEstacion;   ///< a template replaces it
    std::string RevisionCfg;      ///< "1991" or "1997"
    std::string AnioCfg;          ///< raw third field of line 1
    bool AnioMal = false;         ///< third field present and not 1997
    std::int16_t NumCanales = 0;  ///< total as declared
    std::int16_t NumAnalog = 0;
    std::int16_t NumDigital = 0;
    std::int16_t FrecLinea = 0;          ///< Hz
    std::int16_t NumFrecuencias = 0;     ///< rate sections declared, 0 allowed
    Tabla1<std::int16_t> FrecMuestras;   ///< Hz, 1 to max(1, NumFrecuencias)
    Tabla1<std::int16_t> UltimaMuestra;  ///< last sample of each section
    std::string FechaInicio;             ///< date lines, verbatim
    std::string FechaDisparo;
    std::string FormatoDat;                          ///< "ASCII" or "BINARY"
    std::int16_t TimeMult = 0;                       ///< 0 when absent
    bool DecimalPunto = false, DecimalComa = false;  ///< of the separator probe
};

/// Channel tables of the record.
struct GrupoCanales {
    Tabla1<float> FactorA, FactorB, Skew;  ///< 1 to NumAnalog; the skew in µs
    Tabla1<FilaRelacion> Relacion;         ///< 1 to NumAnalog, 1997 only
    Tabla1<std::string> NombreDig;         ///< 1 to NumDigital
};

/// Samples. The upper bound of `Muestras` is the record's count of samples.
struct GrupoMuestras {
    Tabla1<float> Tiempos;                              ///< microseconds
    std::int16_t FrecMuestreo = 0;                      ///< Hz, from the time stamps
    Tabla2<float> Muestras, MuestrasPrim, MuestrasSec;  ///< (sample, analog channel); the last two 1997 only
    Tabla2<std::int16_t> MuestrasDig;                   ///< (sample, digital channel), 0 or 1
};

/// What the views read of names and groups.
struct GrupoTrabajo {
    std::string VersionPlantilla;
    std::int16_t NumCanalAnalog = 0;
    Tabla1<FilaCanal> Canales;
    std::int16_t NumTrifasic = 0;
    Tabla1<FilaTrifasic> Trifasic;
    std::int16_t NumCanalDig = 0;
    Tabla1<FilaCanalDig> CanalesDig;
    std::int16_t NumGruposDig = 0;
    Tabla1<FilaGrupoDig> GruposDig;
};

/// The same on the template's side, with the tables that the set-up pages edit.
struct GrupoPlantilla {
    std::string EstacionPlan, VersionPlan;
    std::int16_t NumAnalogPlan = 0, NumDigitalPlan = 0;
    std::int16_t NumCanalPlan = 0;
    Tabla1<FilaCanal> CanalesPlan;
    std::int16_t NumTrifasicPlan = 0;
    Tabla1<FilaTrifasic> TrifasicPlan;
    std::int16_t NumCanalDigPlan = 0;
    Tabla1<FilaCanalDig> CanalesDigPlan;
    std::int16_t NumGruposDigPlan = 0;
    Tabla1<FilaGrupoDig> GruposDigPlan;
    Tabla1<std::string> NombreDigPlan;   ///< digital signals of the relay model read last
    Tabla1<FilaGrupoEdit> GruposEdit;    ///< 1 to NumGruposDigPlan
    Tabla2<std::int16_t> GruposEditNum;  ///< (1..NumGruposDigPlan, 1..21)
};

struct GrupoBanderas {
    bool RegistroAbierto = false;
    bool PlantillaAplicada = false;
    bool PlantillaNoValida = false;  ///< the template read does not fit the record
    bool PlantillaModifica = false;
    bool PlantillaNueva = false;
    bool ModeloCargado = false;    ///< `CanalesPlan` came from a relay model
    std::string EstacionAnterior;  ///< station when a template was taken for a modification
    bool VuelveAnalog = false;     ///< the analog page was left backwards
    bool VueltaDigital = false;    ///< rows of the digital page were moved since its tables were sized
    bool HechoTrifasic = false;    ///< the three-phase page was left backwards once
    bool EnPrimario = false, EnSecundario = false;  ///< what `Muestras` now holds; never both
    bool DFTHecha = false;
    bool ErrorFormato = false;
    bool CancelaImpresion = false;
    bool ConvierteYSale = false;  ///< the copy in ASCII is made instead of going on with this record
    std::string FicheroAscii;     ///< path of that copy, without extension
    bool NuevoTool = false;       ///< a tool is to be added, else one is to be removed
};

/// Running phasors of the record and what the analysis views plot of them.
struct GrupoFasores {
    std::int16_t NumMuestrasDFT = 0;  ///< samples of the record
    std::int16_t NumFilasDFT = 0;     ///< five cycles of padding and the samples
    std::uint8_t NumCanalesDFT = 0;
    Tabla2<float> FasoresDFT;  ///< (row, 2c - 1) sine sum and (row, 2c) cosine sum of channel c, RMS
    Tabla2<float> Secuencias;  ///< rows of FasoresDFT, six columns a ticked group

    /// Ticked groups, 0 to NumTrifasic: element 0 counts them, element g is 1 where g is ticked.
    Tabla1<std::int16_t> GruposFases, GruposSecuencias;
    std::int16_t ModoFasecuencia = 0;                        ///< 1 one analysis view was opened, 2 both
    bool FasesCerrando = false, SecuenciasCerrando = false;  ///< of both, the one that has gone
};

/// What a chooser of digital channels hands over to their view.
struct GrupoDigitales {
    std::int16_t CanalRef = 0;     ///< row of `Canales` and column of `Muestras` of the analog reference
    std::int16_t NumDigVista = 0;  ///< digital channels to show
    std::int16_t ModoDigital = 0;  ///< 1 a group, 2 by hand
    /// Rows of `CanalesDig` of the group to show; both 0 by hand.
    std::int16_t DigPrimera = 0, DigUltima = 0;
    std::string NombreGrupoDig;
    /// 1 to 98: column 1 of row 1 is the last row in use by hand, 0 for a group; channels stand from row 2
    /// on.
    Tabla1<FilaCanalDig> DigElegidos;
};

/// Bookkeeping of the views.
struct GrupoVistas {
    Tabla1<frmVerOndas*> VentanaOnda;  ///< the open window of each slot, or null; its unload clears it
    Tabla1<std::int16_t> OndaCanal;    ///< 1 where a slot is to be shown
    std::int16_t NumVentanasOnda = 0;
    Tabla1<frmVerCmpang*> VentanaComp;  ///< 1 to 3, the open window of each row of `MatrizComp`, or null
    Tabla2<std::uint8_t> MatrizComp;    ///< (1 to 3, channel row), 1 where the window has the channel
    std::int16_t NumVentanasComp = 0;
    bool CompAbierta = false;                ///< composition windows were shown
    std::array<std::uint8_t, 15> Colores{};  ///< colour order of curves, from 0
    Tabla1<float> MinCanal, MaxCanal;        ///< last result of TablaMinMax
    float FactorZoomY = 0.0F;                ///< shared by all individual wave windows
};

/// The one set of variables that holds the open record.
struct RecordStore : GrupoEntorno,
                     GrupoIdentidad,
                     GrupoCanales,
                     GrupoMuestras,
                     GrupoTrabajo,
                     GrupoPlantilla,
                     GrupoBanderas,
                     GrupoFasores,
                     GrupoDigitales,
                     GrupoVistas {};

/// The program's single instance. Readers fill the store that they are given.
extern RecordStore store;

/// What each open does: the DFT is to be run anew, the record counts as open, `Colores` is loaded.
void ReiniciaRegistro(RecordStore& s);

/// The close command: everything but GrupoEntorno back to the state at start, texts that receive a number as
/// "0".
void CierraRegistro(RecordStore& s);

/// Copies the template set over the working set, statement by statement under ignored errors.
void AplicaPlantilla(RecordStore& s);

/// The label that views print for row `ch` of `Canales`: the circuit if it is not empty, else the name; the
/// name after all where it is longer, in characters. Raises 9.
std::string EtiquetaCanal(const RecordStore& s, int ch);

/// The name of row `ch`, or its circuit where the name is empty. Raises 9.
std::string NombreCanal(const RecordStore& s, int ch);
std::string NombreCanalPlan(const RecordStore& s, int ch);

/// Fills `MinCanal` and `MaxCanal` with the range of each column, zero always inside it. Raises 9 where the
/// table has no bounds.
void TablaMinMax(RecordStore& s, const Tabla2<float>& tabla);

/// `FrecMuestras(1)`, or `FrecMuestreo` when that is 0. Raises 9 with no record.
std::int16_t MuestrasPorSegundo(const RecordStore& s);

enum class Lado { Primario, Secundario };

/// The reference choice of a 1997 record: copies the side's samples over `Muestras` and sets its flag alone.
/// Does nothing for another revision. Raises 9 with no samples.
void AplicaReferencia(RecordStore& s, Lado lado);

}  // namespace veldix
