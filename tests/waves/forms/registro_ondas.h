#pragma once

#include <QListWidget>

#include <algorithm>

#include "support/escenario.h"
#include "waves/forms/VistaCursores.h"

namespace veldix::prueba {

inline int Valor(int i, int c)
{
    return c * ((i * 7) % 41 - 20);
}

/// The scene with a gauge that tells its steps and a made-up record of channels I1, I2, ...
class RegistroOndas : public Escenario {
protected:
    RegistroOndas()
    {
        escena.muestraGasolinoOndas = [this](const QString& t) { avance += "[" + U(t); };
        escena.ponGasolinoOndas = [this](int v) { avance += " " + std::to_string(v); };
        escena.descargaGasolinoOndas = [this] { avance += "]"; };
        Registro(960);
    }
    ~RegistroOndas() override { Descarga(); }

    /// Nine channels; rows 2 and 3 of the table are columns 3 and 2.
    static void Registro(int ultima)
    {
        constexpr int kCanales = 9;
        store.NumCanales = store.NumAnalog = store.NumCanalAnalog = kCanales;
        store.RevisionCfg = "1991";
        store.FrecLinea = 50;
        store.FrecMuestras = store.UltimaMuestra = Tabla1<std::int16_t>(1);
        store.FrecMuestras(1) = 1000;
        store.UltimaMuestra(1) = static_cast<std::int16_t>(ultima);
        store.Canales = Tabla1<FilaCanal>(kCanales);
        store.Muestras = store.MuestrasSec = store.MuestrasPrim = Tabla2<float>(ultima, kCanales);
        for (int c = 1; c <= kCanales; ++c) {
            const int columna = c == 2 || c == 3 ? 5 - c : c;
            store.Canales(c) = {std::to_string(columna), "I" + std::to_string(c), "", "A"};
            for (int i = 1; i <= ultima; ++i) {
                store.Muestras(i, c) = store.MuestrasSec(i, c) = static_cast<float>(Valor(i, c));
                store.MuestrasPrim(i, c) = static_cast<float>(2 * Valor(i, c));
            }
        }
        ReiniciaRegistro(store);
    }

    /// Double-clicks rows of a chooser's list.
    static void Elige(QWidget* elector, std::initializer_list<int> filas)
    {
        auto* lista = Da<QListWidget>("List1", elector);
        for (const int r : filas) {
            lista->scrollToItem(lista->item(r - 1));
            const QPoint p = lista->visualItemRect(lista->item(r - 1)).center();
            QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, p);
            QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, p);
        }
    }
    auto Abiertas() const { return std::ranges::count_if(area->subWindowList(), &QWidget::isVisible); }
    static void Arrastra(VistaOndas* v, QPoint a, QPoint b)
    {
        QTest::mousePress(v->Plot(), Qt::LeftButton, {}, a);
        QTest::mouseMove(v->Plot(), b);
        QTest::mouseRelease(v->Plot(), Qt::LeftButton, {}, b);
        Asienta();
    }
    void EsperaAmpliar(bool si = true)
    {
        cajas.Espera("¿Desea ampliar la zona marcada?", Icono::Pregunta, Botones::AceptarCancelar, si);
    }
    void Amplia(VistaOndas* v, QPoint a, QPoint b)
    {
        Pulsa("cmdzoom", v);
        EsperaAmpliar();
        Arrastra(v, a, b);
    }
    /// Two resizes, back to the size that it has.
    static void Estira(VistaOndas* v)
    {
        for (const int pixeles : {-1, 1}) {
            v->Ventana().resize(v->Ventana().width() + pixeles, v->Ventana().height());
            Asienta();
        }
    }
    static void Cursores(VistaOndas* v, int c1, int c2)
    {
        Da<QScrollBar>("HScroll1", v)->setValue(c1);
        Da<QScrollBar>("HScroll2", v)->setValue(c2);
    }
    /// Range of the bars, both cursors, level and levels.
    template <class UnaVista>
    static std::vector<int> Estado(UnaVista* v)
    {
        const auto *una = Da<QScrollBar>("HScroll1", v), *otra = Da<QScrollBar>("HScroll2", v);
        return {una->minimum(),  una->value(),        otra->value(),
                otra->maximum(), v->Zoom().NivelZoom, v->Zoom().NumNiveles};
    }
    /// A fresh view of the whole record refuses a zoom of nothing, and both ways through its history.
    void SinZoom(VistaCursores* v, Icono ultimo, Icono primero)
    {
        cajas.Espera("Los dos cursores están en la misma muestra. Sepárelos para ampliar.",
                     Icono::Informacion);
        Pulsa("cmdzoom", v);
        cajas.Espera("Este es el último nivel de zoom.", ultimo);
        Pulsa("cmdadel", v);
        cajas.Espera("Este es el primer nivel de zoom.", primero);
        Pulsa("cmdatras", v);
    }
    static double LineaX(const char* nombre, VistaOndas* v) { return 15.0 * Da<LineaSobre>(nombre, v)->x(); }

    /// What a view draws when it is asked to.
    static std::vector<OperacionLienzo> Graba(VistaOndas* v)
    {
        std::vector<OperacionLienzo> ops;
        v->Plot()->PonGrabadora(&ops);
        Q_EMIT v->Plot()->PideDibujo();
        v->Plot()->PonGrabadora(nullptr);
        return ops;
    }
    using Tipo = OperacionLienzo::Tipo;
    static std::vector<OperacionLienzo> De(const std::vector<OperacionLienzo>& ops, Tipo tipo)
    {
        std::vector<OperacionLienzo> suyas;
        std::ranges::copy_if(ops, std::back_inserter(suyas), [&](const auto& o) { return o.tipo == tipo; });
        return suyas;
    }

    Separa separa{",", "."};
    std::string avance;
};

}  // namespace veldix::prueba
