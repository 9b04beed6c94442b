#pragma once

#include <memory>

#include "platform/forms/impresion.h"
#include "support/grabadora.h"

namespace veldix::prueba {

/// While it lives the print dialog answers with `copias` on a printer that logs, which it empties and turns
/// upright first; 0 is Cancel.
struct Imprime {
    explicit Imprime(int copias_, std::shared_ptr<Grabadora> impresora_ = std::make_shared<Grabadora>())
        : copias(copias_), impresora(std::move(impresora_))
    {
        PonDialogoImpresion([this]() -> std::optional<PeticionImpresion> {
            impresora->ops.clear();
            impresora->sentido = Orientacion::Vertical;
            if (copias == 0) return std::nullopt;
            return PeticionImpresion{impresora, copias, fichero};
        });
    }
    ~Imprime() { PonDialogoImpresion({}); }
    Imprime(const Imprime&) = delete;
    Imprime& operator=(const Imprime&) = delete;

    int copias;
    bool fichero = false;
    std::shared_ptr<Grabadora> impresora;
};

}  // namespace veldix::prueba
