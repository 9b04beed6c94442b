#include "record/avance.h"

#include "platform/enteros.h"

namespace veldix {

GanchosRegistro ganchosRegistro;

PasoGasolino::PasoGasolino(int muestras) : paso_(Entero16(muestras / 90.0)) {}

}  // namespace veldix
