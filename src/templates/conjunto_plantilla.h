#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// What the analog page starts from.
struct PaginaAnalogica {
    std::string Identificacion;
    std::int16_t Cuenta = 0;  ///< of channels
};

/// The start values of the analog page: of a modification the set as read; of a new template those of the
/// relay model or of the record, whose missing `NumAnalogPlan` and `EstacionPlan` are filled in; with
/// neither, nothing.
PaginaAnalogica AbreAnalogicos(RecordStore& s);

/// Whether channels have no source but the page itself: no record, no template, no relay model.
bool SinOrigen(const RecordStore& s);

/// How many rows, from the first, the page takes from `CanalesPlan` when it is given a new count. More
/// channels than the source counts bring back the record's alone.
int FilasDeOrigen(const RecordStore& s, std::int16_t cuenta);

/// The first row that has neither name nor circuit, or 0.
int FilaSinNombre(const Tabla1<FilaCanal>& filas);

/// Stores the channels of a page that is left: texts on one line without blanks at their ends, channels
/// numbered from 1. Rows of `TrifasicPlan` keep the numbers that they had, which from here on are numbers
/// of rows. Raises 9 for a table without bounds.
void GuardaCanales(RecordStore& s, const Tabla1<FilaCanal>& filas);

/// The digital channels on offer for groups, a channel's number being its place: those of the open record for
/// a new or modified template, else those of the relay model, whose flag is cleared, else those of a record
/// whose station, as a pattern, the template's identification fits. Raises 9 where the record has fewer than
/// `NumDigitalPlan`, and what LeeModeloDigital raises.
std::vector<std::string> CanalesDigitales(RecordStore& s);

/// Members of a group in the edit tables. Raises 13 for a text that is no number, 6.
std::int16_t Miembros(const FilaGrupoEdit& grupo);

/// Fills `GruposEdit` and `GruposEditNum` with the rows of `GruposDigPlan`, each count as the text it was
/// read as; a new template starts with no groups. Raises 9 for a group with over 19 members or with more than
/// `CanalesDigPlan` has left, 13 for a count or a member's number that is no number.
void AbreDigitales(RecordStore& s);

/// Makes `NumCanalDigPlan` the sum of the members of the groups, as far as the first that has none, whose
/// number is returned, or 0; without groups it stays. Raises 6, 13 for a count that is no number.
int SumaMiembros(RecordStore& s);

}  // namespace veldix
