#include "platform/forms/escena.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include "platform/avisos.h"
#include "platform/forms/Lienzo.h"
#include "platform/forms/disposicion.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"

namespace veldix {

Escena escena;

namespace {

QMessageBox::Icon IconoQt(Icono icono)
{
    switch (icono) {
        case Icono::Informacion:
            return QMessageBox::Information;
        case Icono::Exclamacion:
            return QMessageBox::Warning;
        case Icono::Critico:
            return QMessageBox::Critical;
        case Icono::Pregunta:
            return QMessageBox::Question;
        case Icono::Ninguno:
            break;
    }
    return QMessageBox::NoIcon;
}

/// The box may go with its owner while it is answered, which counts as a cancel.
bool MuestraCajaQt(const Caja& caja)
{
    QWidget* activa = QApplication::activeWindow();
    const QPointer<QMessageBox> box =
        new QMessageBox(IconoQt(caja.icono), QStringLiteral("VELDIX"), Q(caja.texto), QMessageBox::Ok,
                        activa ? activa : escena.principal);
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText(Q(Rotulo(24, "Aceptar")));
    if (caja.botones == Botones::AceptarCancelar) {
        box->addButton(QMessageBox::Cancel)->setText(Q(Rotulo(25, "Cancelar")));
        box->setEscapeButton(QMessageBox::Cancel);
    }
    const bool acepta = box->exec() == QMessageBox::Ok;
    delete box;
    return acepta;
}

/// Key-downs of every form and of its controls.
class FiltroTeclas : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* receptor, QEvent* evento) override
    {
        if (evento->type() != QEvent::KeyPress || QApplication::activeModalWidget()) return false;
        auto* widget = qobject_cast<QWidget*>(receptor);
        Formulario* form = widget ? FormularioDe(widget) : nullptr;
        if (!form) return false;
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        bool tomada = false;
        const bool sano = Atrapa(form, [&] { tomada = escena.teclaSalir(tecla->key(), tecla->modifiers()); });
        return tomada || !sano;
    }
};

/// Tells forms that the user came to them from elsewhere in the program.
class FiltroActivacion : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* receptor, QEvent* evento) override
    {
        if (evento->type() != QEvent::WindowActivate) return false;
        auto* ventana = qobject_cast<QWidget*>(receptor);
        auto* form = qobject_cast<Formulario*>(receptor);
        if (!ventana || !ventana->isWindow() || (!form && ventana != escena.principal)) return false;
        if (ventana == ultima_) return false;
        ultima_ = ventana;
        if (form && !form->Descargado()) Atrapa(nullptr, [form] { form->Form_Activate(); });
        return false;
    }

private:
    QPointer<QWidget> ultima_;
};

void TodosNormales()
{
    const auto ventanas = QApplication::topLevelWidgets();
    for (QWidget* ventana : ventanas) {
        ventana->unsetCursor();
        const auto formularios = ventana->findChildren<Formulario*>();
        for (Formulario* form : formularios)
            form->unsetCursor();
    }
}

}  // namespace

void PonPuntero(QWidget* widget, Puntero puntero)
{
    if (!widget) return;
    const bool plot = qobject_cast<Lienzo*>(widget) != nullptr;
    switch (puntero) {
        case Puntero::Normal:
            widget->unsetCursor();
            break;
        case Puntero::Espera:
            widget->setCursor(Qt::WaitCursor);
            break;
        case Puntero::Propio:
            widget->setCursor(plot ? Qt::CrossCursor : Qt::BusyCursor);
            break;
    }
}

void PonPunteros(QWidget* form, Puntero puntero)
{
    PonPuntero(escena.principal, puntero);
    PonPuntero(form, puntero);
}

PunteroEspera::PunteroEspera(QWidget& widget) : widget_(&widget)
{
    PonPuntero(&widget, Puntero::Espera);
}
PunteroEspera::~PunteroEspera()
{
    PonPuntero(widget_, Puntero::Normal);
}

void InstalaEscena()
{
    qApp->installEventFilter(new FiltroTeclas(qApp));
    qApp->installEventFilter(new FiltroActivacion(qApp));
    PonCajas(MuestraCajaQt);
    PonPunteroNormal(TodosNormales);
}

void PasaCola()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Centra(QWidget& ventana)
{
    const QScreen* pantalla = ventana.screen();
    if (!pantalla) return;
    if (!CabeEnPantalla(ventana)) ventana.adjustSize();
    const QRect libre = pantalla->availableGeometry();
    ventana.move(libre.center() - QPoint(ventana.width() / 2, ventana.height() / 2));
}

void CentraSobre(QWidget& ventana, const QWidget& otra)
{
    if (!CabeEnPantalla(ventana)) ventana.adjustSize();
    const QPoint sitio = otra.mapToGlobal(QPoint(0, 0));
    ventana.move(sitio.x() + (otra.width() - ventana.width()) / 2,
                 sitio.y() + (otra.height() - ventana.height()) / 2);
}

QString SinAcelerador(QString texto)
{
    for (qsizetype i = texto.indexOf(QLatin1Char('&')); i >= 0; i = texto.indexOf(QLatin1Char('&'), i + 1))
        texto.remove(i, 1);  // of "&&" the second one stays
    return texto;
}

}  // namespace veldix
