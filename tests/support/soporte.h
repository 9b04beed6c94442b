#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/avisos.h"
#include "platform/errores.h"
#include "platform/numeros.h"

namespace veldix::prueba {

/// A folder of its own that goes with the object.
class Carpeta {
public:
    Carpeta();
    ~Carpeta();
    Carpeta(const Carpeta&) = delete;
    Carpeta& operator=(const Carpeta&) = delete;

    std::string Ruta(std::string_view nombre = {}) const;
    /// Writes a file (octets as given) and returns its path.
    std::string Escribe(std::string_view nombre, std::string_view octetos) const;

private:
    std::filesystem::path ruta_;
};

std::string LeeTodo(const std::string& ruta);

/// The lines that stand between "|", each with its end.
std::string ConFinales(std::string_view lineas, std::string_view fin = "\r\n");

/// The number of the error that `f` raises, 0 where it raises none.
template <class F>
int NumeroDeError(F&& f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

/// Answers the message boxes of a test from a queue. A box that was not expected fails the
/// test, and so does one that never came.
class RespondeCajas {
public:
    RespondeCajas();
    ~RespondeCajas();
    RespondeCajas(const RespondeCajas&) = delete;
    RespondeCajas& operator=(const RespondeCajas&) = delete;

    /// The next box must have this text, icon and buttons; `aceptar` is the answer.
    void Espera(std::string texto, Icono icono, Botones botones = Botones::Aceptar, bool aceptar = true);
    std::size_t Pendientes() const { return esperadas_.size(); }

private:
    struct Esperada {
        Caja caja;
        bool aceptar;
    };
    std::deque<Esperada> esperadas_;
};

/// An ordinary user for the time of a test that root runs.
struct SinPrivilegios {
    SinPrivilegios() { EXPECT_EQ(setresuid(otro, otro, uid), 0); }
    ~SinPrivilegios() { EXPECT_EQ(setresuid(uid, uid, uid), 0); }
    const uid_t uid = geteuid(), otro = uid == 0 ? 65534 : uid;
};

/// Puts the separators of a locale for the time of a test.
class Separa {
public:
    Separa(std::string decimal, std::string grupo) { PonSeparadores(Separadores{decimal, grupo}); }
    ~Separa() { PonSeparadores(std::nullopt); }
    Separa(const Separa&) = delete;
    Separa& operator=(const Separa&) = delete;
};

}  // namespace veldix::prueba
