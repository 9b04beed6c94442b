#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/errores.h"
#include "platform/memoria.h"

namespace veldix {

namespace detalle {

/// Contiguous elements, zeroed or default-made: plain numbers in a BloqueCeros, others in a vector.
/// Raises 7 where their storage alone would pass kMaximoTabla.
template <class T, bool = std::is_arithmetic_v<T>>
class Elementos {
public:
    Elementos() = default;
    explicit Elementos(std::size_t n) : bloque_(Octetos(n)) {}
    T* datos() const { return static_cast<T*>(bloque_.datos()); }

private:
    static std::size_t Octetos(std::size_t n)
    {
        if (n > kMaximoTabla / sizeof(T)) Lanza(error::kSinMemoria);
        return n * sizeof(T);
    }
    BloqueCeros bloque_;
};

template <class T>
class Elementos<T, false> {
public:
    Elementos() = default;
    explicit Elementos(std::size_t n) : v_(Limita(n)) {}
    T* datos() const { return const_cast<T*>(v_.data()); }

private:
    static std::size_t Limita(std::size_t n)
    {
        if (n > kMaximoTabla / sizeof(T)) Lanza(error::kSinMemoria);
        return n;
    }
    std::vector<T> v_;
};

}  // namespace detalle

/// A one-dimensional table of indices 1 to `UBound()`, from another bound where said. A table that was never
/// sized, or was erased, has no bounds: asking for one, or for an element outside them, raises 9.
template <class T>
class Tabla1 {
public:
    Tabla1() = default;
    explicit Tabla1(int superior) : Tabla1(1, superior) {}
    /// Zeroed or empty elements. Raises 9 where `superior` is below `inferior`, 7 where memory is short.
    Tabla1(int inferior, int superior)
        : elementos_(Cuenta(inferior, superior)), inferior_(inferior), superior_(superior), vale_(true)
    {
    }

    Tabla1(const Tabla1&) = default;
    Tabla1(Tabla1&& otra) noexcept { Intercambia(otra); }
    Tabla1& operator=(Tabla1 otra) noexcept
    {
        Intercambia(otra);
        return *this;
    }
    ~Tabla1() = default;

    bool Vacia() const { return !vale_; }
    int UBound() const { return vale_ ? superior_ : (Lanza(error::kSubindice), 0); }
    /// Number of elements, 0 for a table without bounds.
    int Cuantos() const { return vale_ ? superior_ - inferior_ + 1 : 0; }

    T& operator()(int i) { return elementos_.datos()[Sitio(i)]; }
    const T& operator()(int i) const { return elementos_.datos()[Sitio(i)]; }

    /// The elements in order, from the lower bound on; for hot loops.
    T* datos() { return elementos_.datos(); }
    const T* datos() const { return elementos_.datos(); }
    T* begin() { return datos(); }
    T* end() { return datos() + Cuantos(); }
    const T* begin() const { return datos(); }
    const T* end() const { return datos() + Cuantos(); }

private:
    void Intercambia(Tabla1& otra) noexcept
    {
        std::swap(elementos_, otra.elementos_);
        std::swap(inferior_, otra.inferior_);
        std::swap(superior_, otra.superior_);
        std::swap(vale_, otra.vale_);
    }
    static std::size_t Cuenta(int inferior, int superior)
    {
        if (superior < inferior) Lanza(error::kSubindice);
        return static_cast<std::size_t>(static_cast<long long>(superior) - inferior + 1);
    }
    std::size_t Sitio(int i) const
    {
        if (!vale_ || i < inferior_ || i > superior_) Lanza(error::kSubindice);
        return static_cast<std::size_t>(i - inferior_);
    }

    detalle::Elementos<T> elementos_;
    int inferior_ = 1;
    int superior_ = 0;
    bool vale_ = false;
};

/// A two-dimensional table, row (sample or channel) first, 1-based in both dimensions unless said, stored
/// as one row-major block. Bounds and errors as in Tabla1.
template <class T>
class Tabla2 {
public:
    Tabla2() = default;
    Tabla2(int filas, int columnas) : Tabla2(1, filas, 1, columnas) {}
    Tabla2(int fila1, int filaN, int col1, int colN)
        : elementos_(Cuenta(fila1, filaN) * Cuenta(col1, colN)),
          fila1_(fila1),
          filaN_(filaN),
          col1_(col1),
          colN_(colN),
          vale_(true)
    {
    }

    Tabla2(const Tabla2&) = default;
    Tabla2(Tabla2&& otra) noexcept { Intercambia(otra); }
    Tabla2& operator=(Tabla2 otra) noexcept
    {
        Intercambia(otra);
        return *this;
    }
    ~Tabla2() = default;

    bool Vacia() const { return !vale_; }
    /// Upper bound of dimension 1 (rows) or 2 (columns).
    int UBound(int dimension) const
    {
        if (!vale_ || dimension < 1 || dimension > 2) Lanza(error::kSubindice);
        return dimension == 1 ? filaN_ : colN_;
    }
    int Filas() const { return vale_ ? filaN_ - fila1_ + 1 : 0; }
    int Columnas() const { return vale_ ? colN_ - col1_ + 1 : 0; }

    T& operator()(int f, int c) { return elementos_.datos()[Sitio(f, c)]; }
    const T& operator()(int f, int c) const { return elementos_.datos()[Sitio(f, c)]; }

    /// The first element of row `f`; element 0 of the pointer is its lowest column. Raises 9.
    T* fila(int f) { return elementos_.datos() + Sitio(f, col1_); }
    const T* fila(int f) const { return elementos_.datos() + Sitio(f, col1_); }

private:
    void Intercambia(Tabla2& otra) noexcept
    {
        std::swap(elementos_, otra.elementos_);
        std::swap(fila1_, otra.fila1_);
        std::swap(filaN_, otra.filaN_);
        std::swap(col1_, otra.col1_);
        std::swap(colN_, otra.colN_);
        std::swap(vale_, otra.vale_);
    }
    static std::size_t Cuenta(int inferior, int superior)
    {
        if (superior < inferior) Lanza(error::kSubindice);
        return static_cast<std::size_t>(static_cast<long long>(superior) - inferior + 1);
    }
    std::size_t Sitio(int f, int c) const
    {
        if (!vale_ || f < fila1_ || f > filaN_ || c < col1_ || c > colN_) Lanza(error::kSubindice);
        const auto ancho = static_cast<std::size_t>(colN_ - col1_ + 1);
        return static_cast<std::size_t>(f - fila1_) * ancho + static_cast<std::size_t>(c - col1_);
    }

    detalle::Elementos<T> elementos_;
    int fila1_ = 1, filaN_ = 0, col1_ = 1, colN_ = 0;
    bool vale_ = false;
};

}  // namespace veldix
