#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ranuras.h"
#include "record/record_store.h"

namespace veldix {

/// The digital groups while their page edits them: the edit tables of the store, the list of names, and the
/// nineteen rows of the one group that is on the page. Groups and rows count from 1.
class GruposDigitales {
public:
    static constexpr int kMayorGrupos = 16;
    static constexpr int kFilas = 19;

    explicit GruposDigitales(RecordStore& s) : s_(s) {}

    /// Starts from the groups read, with the first on the page and row 1 marked; a new template has none.
    /// Raises what AbreDigitales raises.
    void Abre();

    const std::vector<std::string>& Lista() const { return lista_; }
    int GrupoActual() const { return GrupoActual_; }
    Ranuras& Filas() { return filas_; }
    /// The stored name of the group on the page, empty where there is none.
    std::string NombreActual() const;

    enum class Alta { Hecha, Llena, SinNombre, Repetida };
    /// Stores the page and puts a new group of that name on it. A name that one of the list fits as a pattern
    /// is refused.
    Alta Anade(const std::string& nombre);

    /// Stores the page under `nombre` and puts another group on it, its first empty row marked.
    void Elige(int grupo, const std::string& nombre);

    /// Stores all groups, the page's under `nombre`, and deletes one; the group that takes its place, else
    /// the last, comes on the page.
    void Elimina(int grupo, const std::string& nombre);

    /// Stores the page under `nombre`, its gaps closed; what cannot be stored stays as it was.
    void Guarda(const std::string& nombre);

    /// Stores the page likewise and the counts of groups and members. The first group that has no members, or
    /// 0. Raises what SumaMiembros raises.
    int Cierra(const std::string& nombre);

private:
    /// Sets the count of groups and gives the edit tables as many rows, up to sixteen, their contents kept.
    void PonNumGrupos(int grupos);
    void LimpiaGrupo() { filas_.Limpia(); }
    void CompactaFilas();
    /// Stores the rows in the edit tables, 0 for a number that is none; without a name the group keeps its
    /// own.
    void GuardaGrupo(int grupo, const std::optional<std::string>& nombre);
    /// Puts a group's rows on the page.
    void MuestraGrupo(int grupo);

    RecordStore& s_;
    std::vector<std::string> lista_;
    int GrupoActual_ = 1;
    Ranuras filas_{kFilas, Ranuras::Repetida::AntesPorNumero, 0, Ranuras::Tras::Sigue};
};

}  // namespace veldix
