#pragma once

#include <cstdint>
#include <string>

#include "record/record_store.h"

namespace veldix {

/// What the analog page shows of the template set and hands on.
struct PaginaAnalogica {
    std::string Identificacion;
    std::int16_t Cuenta = 0;    ///< of channels
    Tabla1<FilaCanal> Filas{};  ///< 1 to Cuenta, no bounds where that is below 1; the numbers are not shown
};

/// The start values of the analog page: of a modification the set as read; of a new template those of the
/// record, whose missing `NumAnalogPlan` and `EstacionPlan` are filled in; with no record open, nothing.
/// Rows that `CanalesPlan` lacks are empty.
PaginaAnalogica AbreAnalogicos(RecordStore& s);

/// Stores a page that is left forward: texts without blanks at their ends, the identification on one line,
/// channels numbered 1 to Cuenta; without channels `CanalesPlan` stays. Rows of `TrifasicPlan` keep the
/// numbers that they had, which from here on are numbers of rows. Raises 9 for a negative count.
void CierraAnalogicos(RecordStore& s, const PaginaAnalogica& pagina);

/// Fills `GruposEdit` and `GruposEditNum` with the groups read, each count as the text it was read as; a new
/// template starts with no groups. Raises 9 for a group with over 19 members or with more than
/// `CanalesDigPlan` has left, 13 for a count or a member's number that is no number.
void AbreDigitales(RecordStore& s);

/// Makes `NumCanalDigPlan` the sum of the members of the groups; without groups it stays. The first group
/// that has none, or 0. Raises 6, 13 for a count that is no number.
int SumaMiembros(RecordStore& s);

}  // namespace veldix
