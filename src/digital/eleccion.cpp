#include "digital/eleccion.h"

#include <utility>

#include "platform/avisos.h"
#include "platform/enteros.h"
#include "platform/numeros.h"
#include "platform/textos.h"

namespace veldix {

namespace {

constexpr int kFilasElegidos = 98;

/// Raises 9 for fewer than none: the groups behind it would show other channels than their own.
std::int16_t CuentaDe(const RecordStore& s, int g)
{
    const std::int16_t cuenta = Entero16Local(s.GruposDig(g).Cuenta);
    if (cuenta < 0) Lanza(error::kSubindice);
    return cuenta;
}

/// A fresh table whose first cell is the last row in use.
void PonElegidos(RecordStore& s, int ultima)
{
    s.DigElegidos = Tabla1<FilaCanalDig>(kFilasElegidos);
    s.DigElegidos(1).Numero = FormaDelimitada(ultima);
}

bool Cambia(const Tabla2<std::int16_t>& estados, int canal)
{
    const int penultima = estados.UBound(1) - 1;
    const std::int16_t* estado = &estados(1, canal);  // the one look that checks the channel
    const std::int16_t opuesto = *estado == 1 ? 0 : 1;
    for (int k = 2; k <= penultima; ++k) {
        estado += estados.Columnas();
        if (*estado == opuesto) return true;
    }
    return false;
}

}  // namespace

std::int16_t CambiaEstado(RecordStore& s, int canal, bool& avisado)
{
    try {
        return Cambia(s.MuestrasDig, canal) ? 1 : 0;
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kSubindice || !s.RegistroAbierto || !s.PlantillaAplicada) throw;
    }
    s.PlantillaNoValida = false;
    if (!std::exchange(avisado, true)) {
        PunteroNormal();
        Avisa(Textos(246), Icono::Critico);
    }
    return 0;
}

bool EligeGrupo(RecordStore& s, int g)
{
    PonElegidos(s, 0);
    if (g < 1 || g > EleccionManual::kGrupos) return false;
    int primera = 1;
    for (int k = 1; k < g; ++k)
        primera += CuentaDe(s, k);
    s.NumDigVista = CuentaDe(s, g);
    s.DigPrimera = Entero16(primera);
    s.DigUltima = Entero16(primera + s.NumDigVista - 1);
    s.NombreGrupoDig = s.GruposDig(g).Nombre;
    s.ModoDigital = 1;
    return true;
}

EleccionManual::EleccionManual(RecordStore& s) : s_(s)
{
    if (s_.NumGruposDig > kGrupos) return;
    int primera = 1;
    for (int k = 1; k <= s_.NumGruposDig; ++k)
        primera = LlenaGrupo(k, primera);
}

std::size_t EleccionManual::Sitio(int k)
{
    if (k < 1 || k > kGrupos) Lanza(error::kSubindice);
    return static_cast<std::size_t>(k - 1);
}

/// Takes the channels of a group from row `primera` of `CanalesDig` on; the row behind its last one.
int EleccionManual::LlenaGrupo(int k, int primera)
{
    GrupoElegible& g = grupos_[Sitio(k)];
    const int cuenta = CuentaDe(s_, k);
    g.existe = true;
    g.nombre = s_.GruposDig(k).Nombre;
    g.SelGrupo = Tabla1<std::int16_t>(0, cuenta + 1);
    g.SelGrupo(0) = Entero16(cuenta);
    if (cuenta > kCanales) Lanza(error::kSubindice);
    for (int r = primera; r < primera + cuenta; ++r) {
        const FilaCanalDig& c = s_.CanalesDig(r);
        g.nombres.push_back(c.Nombre);
        const bool cambia = CambiaEstado(s_, Entero16Local(c.Numero), avisado_) == 1;
        g.ColorEtiqueta.push_back(cambia ? Fondo::Cambia : Fondo::Ventana);
    }
    return primera + cuenta;
}

std::size_t EleccionManual::SitioCanal(int k, int j) const
{
    if (j < 1 || j > Cuenta(k)) Lanza(error::kSubindice);
    return static_cast<std::size_t>(j - 1);
}

const std::string& EleccionManual::Canal(int k, int j) const
{
    return grupos_[Sitio(k)].nombres[SitioCanal(k, j)];
}

EleccionManual::Fondo EleccionManual::FondoDe(int k, int j) const
{
    const std::size_t canal = SitioCanal(k, j);
    const GrupoElegible& g = grupos_[Sitio(k)];
    return g.SelGrupo(j) == 1 ? Fondo::Elegido : g.ColorEtiqueta[canal];
}

std::int16_t& EleccionManual::Elegido(int k, int j)
{
    static_cast<void>(SitioCanal(k, j));
    return grupos_[Sitio(k)].SelGrupo(j);
}

/// One that is chosen is released first, so that it can be chosen again beside eighteen others.
bool EleccionManual::Click(int k, int j)
{
    std::int16_t& elegido = Elegido(k, j);
    if (elegido == 1) DblClick(k, j);
    if (NumElegidos_ >= kMayor) return false;
    ++NumElegidos_;
    elegido = 1;
    return true;
}

bool EleccionManual::DblClick(int k, int j)
{
    std::int16_t& elegido = Elegido(k, j);
    if (elegido != 1) return false;
    elegido = 0;
    --NumElegidos_;
    return true;
}

void EleccionManual::Entrega() const
{
    s_.DigPrimera = s_.DigUltima = 0;
    PonElegidos(s_, NumElegidos_ + 1);
    int n = 2, base = 0;
    for (const GrupoElegible& g : grupos_) {
        for (int j = 1; j <= g.SelGrupo(0); ++j)
            if (g.SelGrupo(j) == 1) s_.DigElegidos(n++) = s_.CanalesDig(base + j);
        base += g.SelGrupo(0);
    }
    s_.ModoDigital = 2;
}

}  // namespace veldix
