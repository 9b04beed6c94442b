// The plot of all channels beside Qt Charts showing the same eight curves of 32767 samples in a window of the
// same size. Best times of several rounds; the ratios are what counts.

#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <cstdio>

#include "medir.h"
#include "platform/vista.h"
#include "registro.h"
#include "ventana.h"
#include "waves/forms/frmTodoanalog.h"

namespace {

using namespace veldix;

constexpr int kCanales = 8, kRondas = 15;

void Pinta()
{
    QCoreApplication::processEvents();
}

/// A band a channel over one time axis, and a line of two points for a cursor, as its documentation has it.
class Grafico {
public:
    explicit Grafico(QSize lado)
    {
        chart_->legend()->hide();
        const int n = store.Muestras.UBound(1);
        x_->setRange(1, n);
        y_->setRange(-0.6, kCanales - 0.4);
        for (int c = 1; c <= kCanales; ++c) {
            QList<QPointF> puntos;
            for (int i = 1; i <= n; ++i)
                puntos << QPointF(i, store.Muestras(i, c) * 0.45 + c - 1);
            Anade(new QLineSeries)->replace(puntos);
        }
        cursor_ = Anade(new QLineSeries);
        PonCursor(1);
        vista_.resize(lado);
        vista_.show();
    }
    void PonCursor(int muestra)
    {
        cursor_->replace({QPointF(muestra, -0.6), QPointF(muestra, kCanales - 0.4)});
    }
    QChartView& Vista() { return vista_; }

private:
    QLineSeries* Anade(QLineSeries* serie)
    {
        if (chart_->axes().isEmpty()) {
            chart_->addAxis(x_, Qt::AlignBottom);
            chart_->addAxis(y_, Qt::AlignLeft);
        }
        chart_->addSeries(serie);
        serie->attachAxis(x_);
        serie->attachAxis(y_);
        return serie;
    }
    QChart* chart_ = new QChart;
    QValueAxis *x_ = new QValueAxis, *y_ = new QValueAxis;
    QLineSeries* cursor_ = nullptr;
    QChartView vista_{chart_};
};

frmTodoanalog& Abre()
{
    frmTodoanalog& todo = frmTodoanalog::unica.CargaNueva();
    todo.Ventana().showNormal();
    Pinta();
    return todo;
}

void Compara()
{
    store.OndaCanal = Tabla1<std::int16_t>(kCanales);
    for (int r = 1; r <= kCanales; ++r)
        store.OndaCanal(r) = 1;
    const QSize lado = Abre().Ventana().size();
    const std::vector<double> abre = Mejores({[] { Abre(); },
                                              [&] {
                                                  const Grafico g(lado);
                                                  Pinta();
                                              }},
                                             kRondas);
    frmTodoanalog& todo = Abre();
    Grafico grafico(lado);
    Pinta();
    auto* barra = todo.findChild<QScrollBar*>("HScroll1");
    int mas = 0, paso = 1, muestra = 1;
    const std::vector<double> t = Mejores({[&] {
                                               mas = 1 - mas;
                                               todo.Ventana().resize(lado.width() - mas, lado.height());
                                               Pinta();
                                           },
                                           [&] {
                                               grafico.Vista().resize(lado.width() - mas, lado.height());
                                               Pinta();
                                           },
                                           [&] {
                                               barra->setValue(paso += 37);
                                               Pinta();
                                           },
                                           [&] {
                                               grafico.PonCursor(muestra += 37);
                                               Pinta();
                                           }},
                                          kRondas);
    std::printf("open: %.1f ms, Qt Charts %.1f ms, ratio %.3f\n", abre[0], abre[1], abre[0] / abre[1]);
    std::printf("redraw: %.2f ms, Qt Charts %.2f ms, ratio %.3f\n", t[0], t[1], t[0] / t[1]);
    std::printf("cursor step: %.3f ms, Qt Charts %.2f ms, ratio %.4f\n", t[2], t[3], t[2] / t[3]);
    todo.Descarga();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv)
{
    const VentanaBanco ventana(argc, argv);
    PonRegistroLargo(kCanales);
    Compara();
    return 0;
}
