#pragma once

#include <string>
#include <vector>

namespace veldix {

/// Slots that channels are put into one after another, with a marker on the one that takes the next. Slots
/// count from 1.
class Ranuras {
public:
    struct Ranura {
        std::string texto;   ///< the channel's name
        std::string numero;  ///< its number, a text
    };

    /// Where a channel counts as standing already.
    enum class Repetida {
        AntesPorNumero,  ///< same text and number in a slot before the marker
        HastaPorTexto,   ///< same text in a slot before the marker or in its own
        AntesPorTexto,   ///< same text in a slot before the marker
    };
    /// Where the marker goes from the last slot.
    enum class Tras { Queda, Sigue };

    /// Slots stand in groups of `grupo`, 0 for a single one; a channel may stand in several of them.
    explicit Ranuras(int cuantas, Repetida regla = Repetida::AntesPorNumero, int grupo = 0,
                     Tras tras = Tras::Queda)
        : ranuras_(static_cast<std::size_t>(cuantas)),
          regla_(regla),
          grupo_(grupo > 0 ? grupo : cuantas),
          ultima_(tras == Tras::Sigue ? cuantas + 1 : cuantas)
    {
    }

    int Cuantas() const { return static_cast<int>(ranuras_.size()); }
    /// The marked slot; one behind the last where the marker went on from there.
    int Activa() const { return activa_; }
    /// Raises 9.
    const Ranura& operator()(int k) const;

    enum class Puesta { Hecha, Repetida, Llena };
    /// Puts a channel into the active slot, which may overwrite it, and moves the marker on. A channel that
    /// stands already is ignored, and so is one that comes behind the last slot.
    Puesta Pon(const std::string& texto, int numero);

    /// Fills slot `k` and leaves the marker. Raises 9.
    void Llena(int k, const std::string& texto, int numero);

    /// A name or a number as it was typed. Raise 9.
    void EscribeTexto(int k, const std::string& texto) { Sitio(k).texto = texto; }
    void EscribeNumero(int k, const std::string& numero) { Sitio(k).numero = numero; }

    /// Empties all slots and marks the first.
    void Limpia();
    /// Moves slots up over those that have neither name nor number; the marker stays.
    void Compacta();
    /// Marks the first slot that has neither.
    void MarcaPrimeraVacia();

    /// Moves the marker. Raises 9.
    void Marca(int k);
    /// Empties a slot and moves the marker there. Raises 9.
    void Vacia(int k);

private:
    Ranura& Sitio(int k);
    bool Esta(const std::string& texto, int numero) const;

    std::vector<Ranura> ranuras_;
    Repetida regla_;
    int grupo_;
    int ultima_;  ///< the marker's last place
    int activa_ = 1;
};

}  // namespace veldix
