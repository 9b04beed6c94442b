#include "waves/zoom_cursores.h"

#include <algorithm>

#include "platform/enteros.h"

namespace veldix {

FilaZoom& ZoomCursores::Fila(int fila)
{
    return const_cast<FilaZoom&>(static_cast<const ZoomCursores&>(*this).Fila(fila));
}

const FilaZoom& ZoomCursores::Fila(int fila) const
{
    if (fila < -1 || fila > 30) Lanza(error::kSubindice);
    return filas_[static_cast<std::size_t>(fila + 1)];
}

FilaZoom ZoomCursores::Reinicia(float ancho, std::int16_t ultima)
{
    Vuelve();
    ZoomPendiente = false;
    const float escala = Single(Divide(double{ancho} - margenes_, ultima));
    return Fila(0) = {1.0F, static_cast<float>(ultima), 1.0F, ancho, escala};
}

std::optional<FilaZoom> ZoomCursores::Calcula(float cursor1, float cursor2, float ancho) const
{
    if (!ZoomPendiente) return Fila(NivelZoom);
    if (cursor1 == cursor2) return std::nullopt;
    const auto [s, e] = std::minmax(cursor1, cursor2);
    return FilaZoom{s, e, s, ancho, Single((double{ancho} - margenes_) / (double{e} - s))};
}

void ZoomCursores::Guarda(const FilaZoom& fila)
{
    if (!ZoomPendiente) return;
    Fila(NumNiveles) = fila;
    Avanza();
}

}  // namespace veldix
