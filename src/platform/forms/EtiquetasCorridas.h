#pragma once

#include <QLabel>
#include <QScrollBar>

#include <string>
#include <vector>

namespace veldix {

class Formulario;

/// Labels whose texts are longer than they, read sideways with a bar: all run with it, one that is clicked
/// shows its whole text again. They belong to a form, whose events these are, trapped as Conecta does.
/// Labels count from 1.
class EtiquetasCorridas : public QObject {
public:
    EtiquetasCorridas(std::vector<QLabel*> etiquetas, QScrollBar* barra, Formulario* form);

    /// Shows a whole text; a label in lines shows its end, where the value is. Raises 9.
    void Pon(int k, const std::string& texto);
    /// The same, and keeps it as the label's full text; the bar's range only grows. Raises 9.
    void PonEntero(int k, const std::string& texto);
    /// Keeps the texts that labels 1 to `hasta` now show as their full ones. The bar's range becomes the
    /// longest, in characters, or where it only grows, the longest so far. Raises 9.
    void Recoge(int hasta, bool soloCrece);

    /// The full text that is kept of a label. Raises 9.
    const std::string& Nombre(int k) const;
    int Cuantas() const { return static_cast<int>(etiquetas_.size()); }
    /// Raises 9.
    QLabel* Etiqueta(int k) const;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    /// All labels from the bar's value on; one label from its first character on. Raise 9.
    void Corre();
    void Restaura(int k);
    /// Labels in lines (EtiquetaLineas) show the beginning of a text, or the end with the value.
    void MuestraPrincipio(int k, bool principio);
    std::size_t Sitio(int k) const;
    void Guarda(int k);

    std::vector<QLabel*> etiquetas_;
    std::vector<std::string> nombres_;
    QScrollBar* barra_;
    Formulario* form_;
};

}  // namespace veldix
