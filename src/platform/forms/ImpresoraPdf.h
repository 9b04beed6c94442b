#pragma once

#include <QBuffer>
#include <QPdfWriter>

#include <memory>
#include <string>

#include "platform/forms/ImpresoraQt.h"

namespace veldix {

/// Where a PDF grows until it is whole.
struct PdfEnMemoria {
    PdfEnMemoria();
    QBuffer octetos;
    QPdfWriter escritor{&octetos};
};

/// Pages into a PDF file of A4 paper, without a display. Its end replaces a file of that name as a whole.
class ImpresoraPdf : private PdfEnMemoria, public ImpresoraQt {
public:
    ImpresoraPdf(std::string ruta, ModoColor color);

    /// Raises 57 where the pages cannot be made, and what a file that cannot be replaced raises.
    void Termina() override;

private:
    std::string ruta_;
};

/// One of them, with the toolkit that letters need brought up where it is not yet.
std::unique_ptr<Impresora> CreaImpresoraPdf(const std::string& ruta, ModoColor color);

}  // namespace veldix
