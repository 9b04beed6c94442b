#include "platform/ranuras.h"

#include "platform/errores.h"
#include "platform/numeros.h"

namespace veldix {

const Ranuras::Ranura& Ranuras::operator()(int k) const
{
    if (k < 1 || k > Cuantas()) Lanza(error::kSubindice);
    return ranuras_[static_cast<std::size_t>(k - 1)];
}

Ranuras::Ranura& Ranuras::Sitio(int k)
{
    return const_cast<Ranura&>((*this)(k));
}

Ranuras::Puesta Ranuras::Pon(const std::string& texto, int numero)
{
    if (activa_ > Cuantas()) return Puesta::Llena;
    for (int k = 1; k < activa_; ++k)
        if (const Ranura& r = (*this)(k); r.texto == texto && Val(r.numero) == numero)
            return Puesta::Repetida;
    Sitio(activa_) = {texto, FormaDelimitada(numero)};
    if (activa_ < Cuantas()) ++activa_;
    return Puesta::Hecha;
}

void Ranuras::Marca(int k)
{
    static_cast<void>(Sitio(k));
    activa_ = k;
}

void Ranuras::Vacia(int k)
{
    Sitio(k) = {};
    activa_ = k;
}

}  // namespace veldix
