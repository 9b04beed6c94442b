#include "shell/forms/Mensaje.h"

#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

#include "platform/forms/escena.h"
#include "platform/textos.h"

namespace veldix {

Portador<Mensaje> Mensaje::unica;

namespace {

constexpr const char* kTexto =
    "Elija la unidad y el directorio de destino, escriba el nombre del nuevo registro sin extensión y pulse "
    "Aceptar. Se escribe el fichero .DAT en formato ASCII, junto con sus ficheros .cfg y .hdr.";

}  // namespace

Mensaje::Mensaje(std::function<void()> renueva)
    : Formulario(escena.principal, Qt::Dialog),
      renueva_(std::move(renueva)),
      Label1(new QLabel(Q(Rotulo(159, kTexto)), this)),
      OK(new QPushButton(Q(Rotulo(24, "Aceptar")), this))
{
    setObjectName(QStringLiteral("Mensaje"));
    setWindowTitle(Q(Rotulo(158, "Ayuda de la conversión")));
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setTextFormat(Qt::PlainText);
    Label1->setWordWrap(true);
    Label1->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    OK->setObjectName(QStringLiteral("OK"));
    auto* todo = new QVBoxLayout(this);
    todo->setSpacing(12);
    todo->addWidget(Label1, 1);
    todo->addWidget(OK, 0, Qt::AlignRight);
    PonBotones(OK, nullptr);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, [this] { close(); });
    Centra(*this);
    Conecta(OK, &QPushButton::clicked, this, &Mensaje::OK_Click);
}

void Mensaje::OK_Click()
{
    if (renueva_) renueva_();
    Descarga();
}

}  // namespace veldix
