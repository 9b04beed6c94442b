#include "templates/grupos_digitales.h"

#include <algorithm>

#include "platform/numeros.h"
#include "platform/texto.h"
#include "templates/conjunto_plantilla.h"

namespace veldix {

namespace {

void CopiaNumeros(const Tabla2<std::int16_t>& de, int filaDe, Tabla2<std::int16_t>& a, int filaA)
{
    std::copy_n(de.fila(filaDe), kColumnasEdit, a.fila(filaA));
}

}  // namespace

void GruposDigitales::Abre()
{
    AbreDigitales(s_);
    lista_.clear();
    GrupoActual_ = 1;
    LimpiaGrupo();
    for (int g = 1; g <= s_.NumGruposDigPlan; ++g)
        lista_.push_back(s_.GruposEdit(g).Nombre);
    if (!lista_.empty()) MuestraGrupo(GrupoActual_);
    filas_.Marca(1);
}

std::string GruposDigitales::NombreActual() const
{
    return lista_.empty() ? std::string() : s_.GruposEdit(GrupoActual_).Nombre;
}

void GruposDigitales::PonNumGrupos(int grupos)
{
    s_.NumGruposDigPlan = static_cast<std::int16_t>(grupos);
    if (grupos < 1 || grupos > kMayorGrupos) return;
    Tabla1<FilaGrupoEdit> edit(grupos);
    Tabla2<std::int16_t> numeros(grupos, kColumnasEdit);
    const int quedan = std::min({grupos, s_.GruposEdit.Cuantos(), s_.GruposEditNum.Filas()});
    for (int g = 1; g <= quedan; ++g) {
        edit(g) = s_.GruposEdit(g);
        CopiaNumeros(s_.GruposEditNum, g, numeros, g);
    }
    s_.GruposEdit = std::move(edit);
    s_.GruposEditNum = std::move(numeros);
    s_.VueltaDigital = false;
}

void GruposDigitales::CompactaFilas()
{
    filas_.Compacta();
    s_.VueltaDigital = true;
}

void GruposDigitales::GuardaGrupo(int grupo, const std::optional<std::string>& nombre)
{
    std::int16_t miembros = 0;
    for (int i = 1; i <= kFilas; ++i)
        miembros += filas_(i).texto.empty() ? 0 : 1;
    if (nombre) Intenta([&] { s_.GruposEdit(grupo).Nombre = UnaLinea(*nombre); });
    Intenta([&] { s_.GruposEdit(grupo).Cuenta = miembros; });
    for (int i = 1; i <= miembros; ++i) {
        const Ranuras::Ranura& fila = filas_(i);
        Intenta([&] { s_.GruposEdit(grupo).Miembro(kAntesDeMiembros + i) = fila.texto; });
        std::int16_t numero = 0;  // where none, or no number, was typed; never that of another channel
        Intenta([&] { numero = Entero16Local(fila.numero); });
        Intenta([&] { s_.GruposEditNum(grupo, kAntesDeMiembros + i) = numero; });
    }
}

void GruposDigitales::MuestraGrupo(int grupo)
{
    LimpiaGrupo();
    const FilaGrupoEdit& edit = s_.GruposEdit(grupo);
    const int miembros = Miembros(edit);
    for (int i = 1; i <= miembros; ++i)
        filas_.Llena(i, edit.Miembro(kAntesDeMiembros + i), s_.GruposEditNum(grupo, kAntesDeMiembros + i));
}

GruposDigitales::Alta GruposDigitales::Anade(const std::string& escrito)
{
    const std::string nombre = UnaLinea(escrito);
    const int cuantos = static_cast<int>(lista_.size());
    if (cuantos >= kMayorGrupos) return Alta::Llena;
    if (nombre.empty()) return Alta::SinNombre;
    if (!lista_.empty()) {
        CompactaFilas();
        GuardaGrupo(GrupoActual_, {});
    }
    const auto coincide = [&](const std::string& otro) { return Coincide(nombre, otro); };
    if (std::any_of(lista_.begin(), lista_.end(), coincide)) return Alta::Repetida;
    PonNumGrupos(cuantos + 1);
    lista_.push_back(nombre);
    GrupoActual_ = cuantos + 1;
    s_.GruposEdit(GrupoActual_).Nombre = nombre;
    s_.GruposEdit(GrupoActual_).Cuenta = std::int16_t{0};
    LimpiaGrupo();
    return Alta::Hecha;
}

void GruposDigitales::Guarda(const std::string& nombre)
{
    if (lista_.empty()) return;
    CompactaFilas();
    GuardaGrupo(GrupoActual_, nombre);
}

int GruposDigitales::Cierra(const std::string& nombre)
{
    PonNumGrupos(static_cast<int>(lista_.size()));
    Guarda(nombre);
    return SumaMiembros(s_);
}

void GruposDigitales::Elige(int grupo, const std::string& nombre)
{
    Guarda(nombre);
    GrupoActual_ = grupo;
    MuestraGrupo(grupo);
    filas_.MarcaPrimeraVacia();
}

/// Each group passes over the page, so that all are stored alike, without gaps.
void GruposDigitales::Elimina(int grupo, const std::string& nombre)
{
    Guarda(nombre);
    const int cuantos = static_cast<int>(lista_.size());
    for (int g = 1; g <= cuantos; ++g) {
        if (!Intenta([&] { MuestraGrupo(g); })) continue;
        CompactaFilas();
        GuardaGrupo(g, {});
    }
    for (int g = grupo; g < cuantos; ++g) {
        Intenta([&] { s_.GruposEdit(g) = s_.GruposEdit(g + 1); });
        Intenta([&] { CopiaNumeros(s_.GruposEditNum, g + 1, s_.GruposEditNum, g); });
    }
    lista_.erase(lista_.begin() + (grupo - 1));
    PonNumGrupos(cuantos - 1);
    LimpiaGrupo();
    GrupoActual_ = std::clamp(grupo, 1, std::max(1, cuantos - 1));
    if (lista_.empty()) return;
    MuestraGrupo(GrupoActual_);
    filas_.MarcaPrimeraVacia();
}

}  // namespace veldix
