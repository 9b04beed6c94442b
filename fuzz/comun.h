#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/tabla.h"

namespace veldix::fuzz {

using Octetos = std::span<const std::uint8_t>;

/// Something that must hold for every input did not.
class Rota : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

inline void Exige(bool cumple, const char* que)
{
    if (!cumple) throw Rota(que);
}

inline std::string_view Texto(Octetos o)
{
    return {reinterpret_cast<const char*>(o.data()), o.size()};
}

/// A file without a folder, gone with the object.
class FicheroMemoria {
public:
    explicit FicheroMemoria(std::string_view octetos = {});
    ~FicheroMemoria();
    FicheroMemoria(const FicheroMemoria&) = delete;
    FicheroMemoria& operator=(const FicheroMemoria&) = delete;

    std::string Ruta() const;

private:
    int fd_;
};

/// A folder in memory for the length of the process.
const std::string& CarpetaMemoria();

/// Message boxes are answered with OK, unseen, while it lives.
class CajasMudas {
public:
    CajasMudas();
    ~CajasMudas();
    CajasMudas(const CajasMudas&) = delete;
    CajasMudas& operator=(const CajasMudas&) = delete;
};

/// Runs `accion`; 0, or the number of the run-time error it raised.
template <class Accion>
int NumeroDeError(Accion&& accion)
{
    try {
        accion();
        return 0;
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
}

/// How many rows a table sized by a declared count has.
inline int Filas(int declaradas)
{
    return declaradas > 0 ? declaradas : 0;
}

bool Finitas(const float* de, int n);

/// Whether a table sized by `filas` and `columnas` would be within the largest one.
bool Cabe(int filas, int columnas, std::size_t octetos);

/// Exact bounds of a table, or none at all.
template <class T>
void ExigeTamano(const Tabla2<T>& t, bool hay, int filas, int columnas, const char* que)
{
    hay = hay && filas > 0 && columnas > 0 && Cabe(filas, columnas, sizeof(T));
    Exige(t.Vacia() != hay, que);
    Exige(!hay || (t.UBound(1) == filas && t.UBound(2) == columnas), que);
}

}  // namespace veldix::fuzz
