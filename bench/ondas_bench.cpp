// Redraws of the time-domain views on the longest record, a step of a cursor in each, and the curves beside
// Qt's own polyline. Best times of several rounds; the ratios are what counts.

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPolygonF>

#include <cstdio>

#include "medir.h"
#include "platform/forms/ImpresoraQt.h"
#include "platform/vista.h"
#include "registro.h"
#include "ventana.h"
#include "waves/forms/frmTodoanalog.h"
#include "waves/forms/frmVerOndas.h"
#include "waves/lugares_onda.h"

namespace {

using namespace veldix;

constexpr int kCanales = 8, kMuestras = 32767, kRondas = 25, kPasos = 500;

void Pinta()
{
    QCoreApplication::processEvents();
}

/// The curve that a window draws, as it drew it last.
OperacionLienzo Curva(Lienzo& plot)
{
    std::vector<OperacionLienzo> ops;
    plot.PonGrabadora(&ops);
    Q_EMIT plot.PideDibujo();
    plot.PonGrabadora(nullptr);
    return ops.back();
}

/// The curves alone, from points that are there: this program's, Qt's, and a line a segment. False where the
/// pixels of the first and the last differ.
bool MideCurvas(const std::vector<frmVerOndas*>& ventanas)
{
    std::vector<OperacionLienzo> curvas;
    std::vector<QPolygonF> poligonos;
    for (frmVerOndas* v : ventanas) {
        curvas.push_back(Curva(*v->Plot()));
        QPolygonF p;
        for (std::size_t i = 0; i < curvas.back().xs.size(); ++i)
            p << QPointF(curvas.back().xs[i] / 15.0, curvas.back().ys[i] / 15.0);
        poligonos.push_back(p);
    }
    Lienzo una, otra;
    QImage imagen(ventanas[0]->Plot()->size(), QImage::Format_RGB32);
    for (Lienzo* l : {&una, &otra}) {
        l->resize(imagen.size());
        l->Limpia(0x808080);
    }
    const std::vector<double> t = Mejores({[&] {
                                               for (const auto& c : curvas)
                                                   una.Poligonal(c.xs, c.ys, c.color);
                                           },
                                           [&] {
                                               QPainter p(&imagen);
                                               for (std::size_t k = 0; k < curvas.size(); ++k) {
                                                   p.setPen(QColor(curvas[k].color));
                                                   p.drawPolyline(poligonos[k]);
                                               }
                                           }},
                                          kRondas);
    for (const auto& c : curvas)
        for (std::size_t i = 0; i + 1 < c.xs.size(); ++i)
            otra.Linea(c.xs[i], c.ys[i], c.xs[i + 1], c.ys[i + 1], c.color);
    const bool iguales = una.Imagen() == otra.Imagen();
    std::printf("eight curves %.2f ms, Qt's polylines %.2f ms, ratio %.2f, pixels %s\n", t[0], t[1],
                t[0] / t[1], iguales ? "equal" : "DIFFER");
    return iguales;
}

/// Redraw at 1:1 by a change of size, and a step of the yellow cursor with what it writes.
template <class Vista>
void MideRedibujo(const char* nombre, const std::vector<Vista*>& vistas)
{
    int ancho = 0, paso = 1;
    auto* barra = vistas[0]->template findChild<QScrollBar*>("HScroll1");
    auto* linea = vistas[0]->template findChild<LineaSobre*>();
    double x = 300.0;
    const std::vector<double> redibujo = Mejores(
        {[&] {
            ancho = ancho == 0 ? -1 : 0;
            for (Vista* v : vistas)
                v->Ventana().resize(v->Ventana().width() + (ancho == 0 ? 1 : -1), v->Ventana().height());
            Pinta();
        }},
        kRondas);
    const std::vector<double> cursor = Mejores({[&] {
                                                    barra->setValue(paso += 37);
                                                    Pinta();
                                                },
                                                [&] {
                                                    x += 15.0;
                                                    linea->Pon(x, 0.0, x, vistas[0]->Plot()->Alto());
                                                    Pinta();
                                                }},
                                               kPasos);
    std::printf("%s: redraw %.2f ms; cursor step %.3f ms, ratio %.4f; its line alone %.3f ms, ratio %.4f\n",
                nombre, redibujo[0], cursor[0], cursor[0] / redibujo[0], cursor[1], cursor[1] / redibujo[0]);
}

/// A page of eight bands of the longest record, into a PDF in memory.
void MidePagina()
{
    std::vector<int> canales;
    for (int r = 1; r <= kCanales; ++r)
        canales.push_back(r);
    ZoomCursores zoom(kMargenesBandas);
    const FilaZoom fila = zoom.Reinicia(17700.0F, kMuestras);
    const Bandas bandas = ColocaBandas(store, canales, 9500.0F);
    qsizetype octetos = 0;
    std::optional<HojaOndas> hoja;
    const auto impresora = [&octetos](const std::function<void(Impresora&)>& usa) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter escritor(&pdf);
        ImpresoraQt imp(escritor, ModoColor::Color);
        imp.PonSentido(Orientacion::Horizontal);
        usa(imp);
        imp.Termina();
        octetos = pdf.size();
    };
    const std::vector<double> t =
        Mejores({[&] {
                     impresora([&](Impresora& imp) {
                         hoja = HojaDeTodo(store, imp, bandas, fila, 9500.0F, {"", 1.0F, 900.0F, "", "", ""});
                     });
                 },
                 [&] { impresora([&](Impresora& imp) { ImprimeHoja(imp, *hoja); }); }},
                5);
    std::printf("page of eight bands: composed in %.1f ms, drawn into a PDF of %.2f MB in %.1f ms\n", t[0],
                static_cast<double>(octetos) / 1e6, t[1]);
}

bool MideTodo()
{
    const TamanoVista vista = veldix::MideVista(Pantalla{store.AnchoPantalla, store.AltoPantalla});
    store.VentanaOnda = Tabla1<frmVerOndas*>(kCanales);
    store.NumVentanasOnda = kCanales;
    std::vector<frmVerOndas*> ventanas;
    const auto lugares = RejillaVentanas(kCanales, vista);
    for (int r = 1; r <= kCanales; ++r) {
        ventanas.push_back(store.VentanaOnda(r) = new frmVerOndas(r));
        const Lugar& l = lugares[static_cast<std::size_t>(r - 1)];
        ventanas.back()->Form_activo(l.alto, l.ancho, l.arriba, l.izquierda);
        ventanas.back()->Ventana().showNormal();
    }
    Pinta();
    const bool iguales = MideCurvas(ventanas);
    MideRedibujo("eight windows", ventanas);
    for (frmVerOndas* v : ventanas)
        v->Descarga();
    store.OndaCanal = Tabla1<std::int16_t>(kCanales);
    for (int r = 1; r <= kCanales; ++r)
        store.OndaCanal(r) = 1;
    frmTodoanalog& todo = frmTodoanalog::unica.CargaNueva();
    todo.Ventana().showNormal();
    Pinta();
    MideRedibujo("all channels", std::vector<frmTodoanalog*>{&todo});
    todo.Descarga();
    MidePagina();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return iguales;
}

}  // namespace

int main(int argc, char** argv)
{
    const VentanaBanco ventana(argc, argv);
    PonRegistroLargo(kCanales);
    const bool iguales = MideTodo();
    return iguales ? 0 : 1;
}
