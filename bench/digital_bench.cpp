// The view of digital channels on the longest record: nineteen rows as runs beside one box a sample, a redraw
// of the whole view, a step of a cursor, and the search for channels that change state. Best times of several
// rounds; the ratios are what counts.

#include <array>
#include <cmath>
#include <cstdio>

#include "digital/eleccion.h"
#include "digital/forms/frm19.h"
#include "medir.h"
#include "ventana.h"
#include "waves/colores.h"

namespace {

using namespace veldix;

constexpr int kMuestras = 32767, kDigitales = 64, kRondas = 25, kPasos = 500;

/// Channel c changes state every `periodo` samples, from c on; a period of 0 leaves it in state 1.
void Estados(int periodo)
{
    for (int i = 1; i <= kMuestras; ++i)
        for (int c = 1; c <= kDigitales; ++c)
            store.MuestrasDig(i, c) = periodo == 0 || ((i + c) / periodo) % 2 == 1 ? 1 : 0;
}

void Registro()
{
    store.RevisionCfg = "1991";
    store.FrecLinea = 50;
    store.FrecMuestras = Tabla1<std::int16_t>(1);
    store.FrecMuestras(1) = 1600;
    store.NumAnalog = store.NumCanalAnalog = 1;
    store.Canales = Tabla1<FilaCanal>(1);
    store.Canales(1) = {"1", "Canal", "", "A"};
    store.Muestras = Tabla2<float>(kMuestras, 1);
    for (int i = 1; i <= kMuestras; ++i)
        store.Muestras(i, 1) = static_cast<float>(100.0 * std::sin(i * 0.19635));
    store.MuestrasDig = Tabla2<std::int16_t>(kMuestras, kDigitales);
    store.NumGruposDig = 4;
    store.GruposDig = Tabla1<FilaGrupoDig>(4);
    store.CanalesDig = Tabla1<FilaCanalDig>(4 * kFilasDigital);
    for (int g = 1; g <= 4; ++g)
        store.GruposDig(g) = {"Grupo", "19"};
    for (int r = 1; r <= 4 * kFilasDigital; ++r)
        store.CanalesDig(r) = {std::to_string((r - 1) % kDigitales + 1), "Canal " + std::to_string(r)};
    ReiniciaRegistro(store);
    store.AnchoPantalla = 19200.0, store.AltoPantalla = 12000.0;
}

/// The rows alone: a box a run, and one box a sample. False where a pixel differs.
bool MideFilas(const char* nombre)
{
    Lienzo junta, suelta;
    for (Lienzo* l : {&junta, &suelta}) {
        l->resize(1250, 660);
        l->Limpia(kFondoPlot);
    }
    const TramoDigital t{0, kMuestras, static_cast<float>((junta.Ancho() - kMargenesDigital) / kMuestras)};
    const auto filas = FilasDigitales(store);
    const double alto = AltoFila(junta.Alto());
    const QRgb color = ColorPaleta(kColorEstado);
    std::size_t tramos = 0;
    const std::vector<double> ms =
        Mejores({[&] {
                     int n = 0;
                     tramos = 0;
                     for (const auto& fila : EstadosDigitales(store.MuestrasDig, filas, t)) {
                         const double base = BaseFila(++n, alto);
                         junta.Cajas(BordesEstado(fila, t), base, base - kAltoEstado, color);
                         tramos += fila.size();
                     }
                 },
                 [&] {
                     for (std::size_t n = 0; n < filas.size(); ++n) {
                         const double base = BaseFila(static_cast<int>(n) + 1, alto);
                         double x0 = kMargenDigital;
                         for (int k = 1; k <= kMuestras; ++k) {
                             const double x = t.X(k);
                             if (store.MuestrasDig(k, filas[n].canal) == 1)
                                 suelta.Cajas(std::array{x0, x}, base, base - kAltoEstado, color);
                             x0 = x;
                         }
                     }
                 }},
                kRondas);
    const bool iguales = junta.Imagen() == suelta.Imagen();
    std::printf("%s: %zu runs of nineteen rows %.2f ms, a box a sample %.2f ms, ratio %.3f, pixels %s\n",
                nombre, tramos, ms[0], ms[1], ms[0] / ms[1], iguales ? "equal" : "DIFFER");
    return iguales;
}

/// Redraw at 1:1 by a change of size, and a step of the yellow cursor with what it writes.
void MideVista(const char* nombre)
{
    frm19& vista = frm19::unica.CargaNueva();
    vista.Ventana().showNormal();
    QCoreApplication::processEvents();
    auto* barra = vista.findChild<QScrollBar*>("HScroll1");
    int ancho = 0, paso = 1;
    const double redibujo = Mejores(
        {[&] {
            ancho = ancho == 0 ? -1 : 0;
            vista.Ventana().resize(vista.Ventana().width() + (ancho == 0 ? 1 : -1), vista.Ventana().height());
            QCoreApplication::processEvents();
        }},
        kRondas)[0];
    const double cursor = Mejores({[&] {
                                      barra->setValue(paso += 37);
                                      QCoreApplication::processEvents();
                                  }},
                                  kPasos)[0];
    std::printf("%s: redraw of the view %.2f ms; cursor step %.3f ms, ratio %.4f\n", nombre, redibujo, cursor,
                cursor / redibujo);
    vista.Descarga();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv)
{
    const VentanaBanco ventana(argc, argv);
    Registro();
    store.CanalRef = 1;
    EligeGrupo(store, 1);
    bool iguales = true;
    for (const auto& [nombre, periodo] :
         {std::pair{"always 1", 0}, {"a change every 700", 700}, {"every sample", 1}}) {
        Estados(periodo);
        iguales = MideFilas(nombre) && iguales;
        MideVista(nombre);
    }
    Estados(0);
    const double busca = Mejores({[] { const EleccionManual e(store); }}, 5)[0];
    std::printf("76 channels that never change looked through in %.1f ms\n", busca);
    return iguales ? 0 : 1;
}
