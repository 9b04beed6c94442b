#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "digital/plot_digital.h"
#include "record/record_store.h"

namespace veldix {

/// 1 where a digital channel changes state between its first and its last sample but one, which is the last
/// that is looked at. A channel that the record lacks, while a record and a template are in force, counts as
/// 0 and is told, unless `avisado` tells that one was before; otherwise raises 9.
std::int16_t CambiaEstado(RecordStore& s, int canal, bool& avisado);

/// What `frm19` is to show of group `g`, from 1. Beyond group 16 fills nothing and answers false. Raises 9
/// for a group that the template lacks and for a negative count, 13 for one that is no number.
bool EligeGrupo(RecordStore& s, int g);

/// The digital channels of the template while they are chosen one by one. Groups count from 1 to 16, their
/// channels from 1 to their count; what asks for others raises 9.
class EleccionManual {
public:
    static constexpr int kGrupos = 16, kCanales = 19;  ///< that have labels
    static constexpr int kMayor = kFilasDigital;       ///< that can be chosen

    /// Background of a channel's label.
    enum class Fondo { Ventana, Cambia, Elegido };

    /// Takes the groups of the working set and looks for channels that change state. Over sixteen groups
    /// none is taken. Raises 9 for a group of over nineteen channels or fewer than none, 13 for a count or a
    /// channel that is no number. The store must outlive it.
    explicit EleccionManual(RecordStore& s);

    /// Whether the template has a group; its name, and its count of channels.
    bool Existe(int k) const { return grupos_[Sitio(k)].existe; }
    const std::string& Grupo(int k) const { return grupos_[Sitio(k)].nombre; }
    int Cuenta(int k) const { return grupos_[Sitio(k)].SelGrupo(0); }
    /// Name and background of a channel.
    const std::string& Canal(int k, int j) const;
    Fondo FondoDe(int k, int j) const;
    /// How many are chosen, never over kMayor.
    int NumElegidos() const { return NumElegidos_; }

    /// A click on a channel chooses it; one that is chosen stays so. False where nineteen are chosen.
    bool Click(int k, int j);
    /// A double click releases it. False where it was not chosen.
    bool DblClick(int k, int j);

    /// Hands the choice over to the view, in the order of the groups.
    void Entrega() const;

private:
    struct GrupoElegible {
        bool existe = false;
        std::string nombre;
        /// 0 to count + 1: element 0 the count, element j 1 where channel j is chosen; 0 to 0 for no group.
        Tabla1<std::int16_t> SelGrupo{0, 0};
        std::vector<std::string> nombres;
        std::vector<Fondo> ColorEtiqueta;  ///< what a channel, from 0, goes back to when it is released
    };
    static std::size_t Sitio(int k);
    std::size_t SitioCanal(int k, int j) const;
    std::int16_t& Elegido(int k, int j);
    int LlenaGrupo(int k, int primera);

    RecordStore& s_;
    std::array<GrupoElegible, kGrupos> grupos_;
    std::int16_t NumElegidos_ = 0;
    bool avisado_ = false;  ///< a channel that the record lacks was told
};

}  // namespace veldix
