#pragma once

#include <QAbstractButton>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

#include <concepts>
#include <utility>

#include "platform/avisos.h"
#include "platform/errores.h"

namespace veldix {

/// A window of the program. Constructing it is its load, Descarga its unload; it unloads itself when it is
/// closed, and then goes when the queue is next served, so that it may unload inside its own handler.
/// Key-downs of the form, of its frame and of its controls reach the common exit-key handler before anything
/// else; those of boxes and of dropped menus do not.
class Formulario : public QWidget {
    Q_OBJECT

public:
    explicit Formulario(QWidget* padre, Qt::WindowFlags banderas = {});

    /// Runs Form_Unload once and lets the form go. Does nothing the second time.
    void Descarga();
    bool Descargado() const { return descargado_; }

    /// The buttons that Enter and Escape press, where the control with the focus does not take the key.
    void PonBotones(QAbstractButton* porDefecto, QAbstractButton* cancela);

    /// What follows the form's unload by its window's own button: a page that leaves others hidden behind it
    /// brings one back.
    virtual void TrasCierre() {}

    /// What follows a run-time error of a handler, after the common box. A form that is told to unload or
    /// to bring the menu back does it here.
    virtual void TrasError() {}

    /// The form was shown, or the user came to it from another form of the program; not from a message box
    /// or from another program.
    virtual void Form_Activate() {}

protected:
    /// The form's own closing steps.
    virtual void Form_Unload() {}
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    /// The window that is to go with the form.
    virtual QWidget* Marco() { return this; }

private:
    bool descargado_ = false;
    QPointer<QAbstractButton> porDefecto_, cancela_;
};

/// What a view is, as the close button of the strip tells views apart.
namespace etiqueta {
inline constexpr int kFases = 1, kSecuencias = 2, kTodoanalog = 3, kVerCmpang = 4, kVerOndas = 5, k19 = 6,
                     kAjustes = 7, kMenu = 8, kGrid = 9;
}  // namespace etiqueta

/// A child of the main window's MDI area, with the number that tells what it is.
class Vista : public Formulario {
    Q_OBJECT

public:
    explicit Vista(int etiqueta);

    int Etiqueta() const { return etiqueta_; }
    /// The frame around the view; sizes and places of views are the frame's, in twips.
    QMdiSubWindow& Ventana() { return *ventana_; }
    void Coloca(double izquierda, double arriba, double ancho, double alto);
    /// Shows the view, which was loaded hidden, in place of the menu: beside that maximised window its own
    /// would be maximised too. `foco` takes the keys.
    void Presenta(QWidget* foco);
    double AnchoVentana() const;
    double AltoVentana() const;
    /// Size inside the frame, pixels; reckoned from the frame's while that has never been shown.
    QSize Interior() const;

protected:
    QWidget* Marco() override;
    /// The frame has a new size, also by its restoring; not the one that Coloca gave it.
    virtual void Form_Resize() {}
    virtual void Form_Minimiza() {}
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    int etiqueta_;
    QMdiSubWindow* ventana_;  ///< owns the view
    QSize tamano_;            ///< that the view knows of
    bool minimizada_ = false;
};

/// Runs a handler's body: a failure puts the pointers back, shows the common box and then runs the form's
/// TrasError, if it still stands. Returns whether the body ran to its end.
template <class Cuerpo>
bool Atrapa(Formulario* form, Cuerpo&& cuerpo)
{
    const QPointer<Formulario> vivo(form);
    try {
        std::forward<Cuerpo>(cuerpo)();
        return true;
    } catch (const std::exception&) {
        const ErrorEjecucion e = ErrorEnVuelo();
        PunteroNormal();
        AvisaError(e);
    }
    if (vivo && !vivo->Descargado()) vivo->TrasError();
    return false;
}

/// Connects an event to a form's handler, which runs trapped. The handler takes the signal's arguments or
/// none.
template <class Emisor, class Senal, class Form, class Manejador>
requires std::derived_from<Form, Formulario>
void Conecta(Emisor* emisor, Senal senal, Form* form, Manejador manejador)
{
    QObject::connect(emisor, senal, form, [form, manejador](auto&&... args) {
        if (form->Descargado()) return;
        Atrapa(form, [&] {
            if constexpr (std::invocable<Manejador, Form*, decltype(args)...>)
                std::invoke(manejador, form, args...);
            else
                std::invoke(manejador, form);
        });
    });
}

/// The single instance of a form, where there is one.
template <class Form>
class Portador {
public:
    /// The loaded form, or null.
    Form* Cargado() const { return form_ && !form_->Descargado() ? form_.data() : nullptr; }
    void Descarga()
    {
        if (Form* f = Cargado()) f->Descarga();
    }
    /// Unloads the earlier instance and loads a new one, hidden.
    template <class... Args>
    Form& CargaNueva(Args&&... args)
    {
        Descarga();
        form_ = new Form(std::forward<Args>(args)...);
        return *form_;
    }
    /// The same, and shows it unless it unloaded itself.
    template <class... Args>
    void Muestra(Args&&... args)
    {
        CargaNueva(std::forward<Args>(args)...);
        if (Form* f = Cargado()) f->show();
    }

private:
    QPointer<Form> form_;
};

/// The form that a widget, or the frame of a view, belongs to, without leaving its window; or null.
Formulario* FormularioDe(QWidget* widget);

}  // namespace veldix
