#include "platform/ranuras.h"

#include <algorithm>

#include "platform/errores.h"
#include "platform/numeros.h"

namespace veldix {

namespace {

bool EsHueco(const Ranuras::Ranura& r)
{
    return r.texto.empty() && r.numero.empty();
}

}  // namespace

const Ranuras::Ranura& Ranuras::operator()(int k) const
{
    if (k < 1 || k > Cuantas()) Lanza(error::kSubindice);
    return ranuras_[static_cast<std::size_t>(k - 1)];
}

Ranuras::Ranura& Ranuras::Sitio(int k)
{
    return const_cast<Ranura&>((*this)(k));
}

bool Ranuras::Esta(const std::string& texto, int numero) const
{
    const bool porTexto = regla_ != Repetida::AntesPorNumero;
    const int primera = (activa_ - 1) / grupo_ * grupo_ + 1;
    const int ultima = regla_ == Repetida::HastaPorTexto ? activa_ : activa_ - 1;
    for (int k = primera; k <= ultima; ++k)
        if (const Ranura& r = (*this)(k);
            r.texto == texto && (porTexto || r.numero == FormaDelimitada(numero)))
            return true;
    return false;
}

void Ranuras::Llena(int k, const std::string& texto, int numero)
{
    Sitio(k) = {texto, FormaDelimitada(numero)};
}

Ranuras::Puesta Ranuras::Pon(const std::string& texto, int numero)
{
    if (activa_ > Cuantas()) return Puesta::Llena;
    if (Esta(texto, numero)) return Puesta::Repetida;
    Llena(activa_, texto, numero);
    activa_ = std::min(activa_ + 1, ultima_);
    return Puesta::Hecha;
}

void Ranuras::Limpia()
{
    std::fill(ranuras_.begin(), ranuras_.end(), Ranura{});
    activa_ = 1;
}

void Ranuras::Compacta()
{
    std::fill(std::remove_if(ranuras_.begin(), ranuras_.end(), EsHueco), ranuras_.end(), Ranura{});
}

void Ranuras::MarcaPrimeraVacia()
{
    const auto hueco = std::find_if(ranuras_.begin(), ranuras_.end(), EsHueco);
    activa_ = std::min(static_cast<int>(hueco - ranuras_.begin()) + 1, ultima_);
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
