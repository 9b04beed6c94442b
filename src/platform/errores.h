#pragma once

#include <exception>
#include <string>
#include <utility>

namespace veldix {

/// Numbers of the run-time errors that the program raises or tells apart.
namespace error {
inline constexpr int kArgumento = 5;
inline constexpr int kDesbordamiento = 6;
inline constexpr int kSinMemoria = 7;
inline constexpr int kSubindice = 9;
inline constexpr int kDivisionPorCero = 11;
inline constexpr int kTipos = 13;
inline constexpr int kNombreFichero = 52;
inline constexpr int kFicheroNoEncontrado = 53;
inline constexpr int kFicheroAbierto = 55;
inline constexpr int kEntradaSalida = 57;
inline constexpr int kDiscoLleno = 61;
inline constexpr int kFinDeFichero = 62;
inline constexpr int kDispositivo = 68;
inline constexpr int kPermiso = 70;
inline constexpr int kAccesoRuta = 75;
inline constexpr int kRutaNoEncontrada = 76;
inline constexpr int kSinRegistro = 3021;
inline constexpr int kSinBaseDatos = 3024;
inline constexpr int kRutaNoValida = 3044;
inline constexpr int kSinElemento = 3265;
inline constexpr int kFormatoBaseDatos = 3343;
}  // namespace error

/// The description of an error number, "Application-defined error" for one that is not in the table.
const char* DescripcionError(int numero);

/// A run-time error of the program: a number and its description, as the common error box shows them.
class ErrorEjecucion : public std::exception {
public:
    explicit ErrorEjecucion(int numero_) : ErrorEjecucion(numero_, DescripcionError(numero_)) {}
    ErrorEjecucion(int numero_, std::string descripcion_)
        : numero(numero_), descripcion(std::move(descripcion_))
    {
    }
    const char* what() const noexcept override { return descripcion.c_str(); }

    int numero;
    std::string descripcion;
};

/// The exception in flight as a run-time error: an exhausted memory or a length beyond it is 7, anything
/// else that the library throws is 5. To be called inside a catch block.
ErrorEjecucion ErrorEnVuelo();

/// Raises `numero`. Out of line, so that checks in hot loops stay small.
[[noreturn]] void Lanza(int numero);

/// The text of the common error box: "Error ", the number, ": " and the description.
std::string TextoError(const ErrorEjecucion& e);

/// Runs one statement under ignored errors: a failure leaves its target as it was. Returns whether it ran
/// to its end.
template <class Sentencia>
bool Intenta(Sentencia&& sentencia)
{
    try {
        std::forward<Sentencia>(sentencia)();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace veldix
