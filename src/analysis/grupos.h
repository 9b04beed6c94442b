#pragma once

#include <vector>

#include "record/record_store.h"

namespace veldix {

/// What the chooser's boxes say: for each group, from 1, whether it is ticked. Its size is `NumTrifasic`.
using Marcas = std::vector<bool>;

/// Group `grupo` alone of `cuantos`. Raises 9 for one that is not 1 to `cuantos`.
Marcas MarcaUno(int grupo, int cuantos);

/// `GruposFases` or `GruposSecuencias` of a column of boxes.
Tabla1<std::int16_t> CuentaMarcas(const Marcas& marcas);

/// The ticked groups of such a table in rising order, where there are one or two; none for another count.
/// Raises 9 for a table without bounds.
std::vector<int> GruposMarcados(const Tabla1<std::int16_t>& grupos);

}  // namespace veldix
