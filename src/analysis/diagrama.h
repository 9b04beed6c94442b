#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/vista.h"
#include "record/record_store.h"

namespace veldix {

/// The six lines of the diagram on the screen, first group's phases and second group's, 0xRRGGBB.
inline constexpr std::array<std::uint32_t, 6> kColoresFasor = {0x00FFFF, 0xFFFF00, 0xFF00FF,
                                                               0x0000FF, 0x00FF00, 0xFF0000};
inline constexpr std::uint32_t kFondoDiagrama = 0x000000;
inline constexpr std::uint32_t kEjesDiagrama = 0xFFFFFF;

/// How far from the diagram's corner a line may end, either way: 32767 pixels, in twips.
inline constexpr double kLimiteDiagrama = 491505.0;

/// What a view plots, in units of a diagram of a given size. `fasores` are the phasors behind it, columns
/// 2c - 1 and 2c of phasor c, in the caller's keeping.
class Diagrama {
public:
    /// Computes magnitudes and angles of all rows and leaves their range in `MinCanal`, `MaxCanal`. `ciclo`
    /// is the samples a cycle. Raises 9 with no phasors, 6.
    Diagrama(RecordStore& s, const Tabla2<float>& fasores, std::int16_t ciclo);

    /// Scale for a diagram of this size, twips: half of its lesser side is `MaxModulo`. Raises 6.
    void Ajusta(double ancho, double alto);
    /// Steps the zoom by `paso` levels of 1.25, without limit but that of float32. Raises 6.
    void CambiaZoom(int paso);

    /// Rows of the bar: the first, the last row but one, and a step of a cycle.
    int PrimeraFila() const { return 5 * MuestrasCiclo; }
    int UltimaFila() const { return fasores_->UBound(1) - 1; }

    Tabla2<float> Cartesianas, Modulos, Angulos;
    float Escala = 0.0F;  ///< twips a unit of the channel at zoom 1
    float Zoom = 1.0F;
    std::int16_t NivelZoom = 0;
    float MaxModulo = 0.0F;  ///< greatest magnitude that the scale is based on, 0 until the view sets it
    float CentroX = 0.0F, CentroY = 0.0F;  ///< twips
    std::int16_t MuestrasCiclo;

private:
    const Tabla2<float>* fasores_;
};

/// A line of the diagram and its text: which phasor, whose factor, and what it is called after.
struct Trazo {
    int fasor;           ///< column of Modulos; its parts are columns 2 fasor - 1 and 2 fasor
    int grupo;           ///< row of Trifasic, for the factor
    std::int16_t canal;  ///< channel number that names it
    const char* digito;  ///< behind the name
};

/// The complete table of what a view shows at a row.
struct CuadroDiagrama {
    struct Linea {
        bool visible = false;
        double x2 = 0.0, y2 = 0.0;  ///< its end, twips; it starts at the centre
    };
    std::array<Linea, 6> lineas;
    std::array<std::string, 6> textos;
    std::string numero;
};

/// Phases of the ticked groups, in the groups' order; sequences likewise. Three traces a group, none where
/// the count of groups is neither 1 nor 2. Raise 9.
std::vector<Trazo> TrazosFases(const RecordStore& s);
std::vector<Trazo> TrazosSecuencias(const RecordStore& s);

/// The greatest magnitude for the scale: of the chosen channels and of channel 1 in any case; or of all
/// columns. Raise 9.
float MaxModuloFases(const RecordStore& s);
float MaxModuloSecuencias(const RecordStore& s);

/// The factor that lengthens the lines of a group. Raises 13, 9, 6.
float FactorDeGrupo(const RecordStore& s, int grupo);

/// What a line is called: the channel's label and the digit. Raises 9.
std::string NombreTrazo(const RecordStore& s, const Trazo& t);
/// Its text at `fila`, with `arroba` between magnitude and angle. Raises 9.
std::string TextoTrazo(const RecordStore& s, const Diagrama& d, const Trazo& t, int fila, const char* arroba);
/// The number of the sample that the bar's `fila` stands for, behind its caption.
std::string TextoNumero(const Diagrama& d, int fila);

/// What to show at `fila`. Raises 13 for a factor that is no number, 9 for a channel that the record or its
/// names lack, 6 for a line that ends beyond kLimiteDiagrama.
CuadroDiagrama PintaFases(const RecordStore& s, const Diagrama& d, int fila);
CuadroDiagrama PintaSecuencias(const RecordStore& s, const Diagrama& d, int fila);

/// Last row of `Canales` whose number is `canal` as a text. Raises 9 where there is none.
int FilaDeCanal(const RecordStore& s, int canal);

/// Places of a view's controls, in twips from the corner of its inside.
struct LugaresDiagrama {
    Lugar Picture1;
    Lugar HScroll1, lblNumero;
    Lugar cmdmas, cmdmenos, lblzoom, pctimpresora;
    std::array<Lugar, 6> marcas, textos;  ///< Label1 to Label6 and the text behind each
};
LugaresDiagrama ColocaDiagrama(double ancho, double alto);

}  // namespace veldix
