// The running DFT of the largest record and the steps of the view on top of it, each beside a plain baseline
// of the same run. Best times of several rounds; the ratios are what counts.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "analysis/forms/frmFases.h"
#include "analysis/grupos.h"
#include "analysis/modDFT.h"
#include "medir.h"
#include "platform/forms/etiquetas.h"
#include "platform/numeros.h"
#include "ventana.h"

namespace {

using namespace veldix;

constexpr int kCiclo = 32, kCanales = 64, kFilas = 32767;
constexpr int kMuestras = kFilas - 5 * kCiclo;
constexpr int kRondas = 25;
constexpr std::size_t kOctetos = sizeof(float) * kFilas * 2 * kCanales;

void Registro()
{
    store.FrecLinea = 50;
    store.FrecMuestras = Tabla1<std::int16_t>(1);
    store.FrecMuestras(1) = 50 * kCiclo;
    store.Skew = Tabla1<float>(kCanales);
    store.Canales = Tabla1<FilaCanal>(kCanales);
    store.Muestras = Tabla2<float>(kMuestras, kCanales);
    unsigned azar = 1;
    for (int c = 1; c <= kCanales; ++c) {
        store.Skew(c) = static_cast<float>(3 * c);
        store.Canales(c) = {std::to_string(c), "Canal " + std::to_string(c), "", "A"};
    }
    for (int i = 1; i <= kMuestras; ++i)
        for (int c = 1; c <= kCanales; ++c) {
            azar = azar * 1664525U + 1013904223U;
            const double ruido = static_cast<double>(azar >> 16U) / 65536.0;
            store.Muestras(i, c) = static_cast<float>(100.0 * std::sin(i * 0.19635 + c) + ruido);
        }
    store.NumTrifasic = 2;
    store.Trifasic = Tabla1<FilaTrifasic>(2);
    store.Trifasic(1) = {{1, 2, 3}, "Uno", "1"};
    store.Trifasic(2) = {{4, 5, 6}, "Dos", "1"};
    store.GruposFases = CuentaMarcas({true, true});
    store.ModoFasecuencia = 1;
}

/// The padded copy of the samples and the coefficients, a table of each, as the definition tells them.
struct Llano {
    Tabla2<float> extendida{kFilas, kCanales}, seno{kCiclo, kCanales}, coseno{kCiclo, kCanales};

    Llano()
    {
        for (int i = kCiclo + 1; i <= kFilas; ++i) {
            const int muestra = i > 5 * kCiclo ? i - 5 * kCiclo : (i - 1) % kCiclo + 1;
            std::copy_n(store.Muestras.fila(muestra), kCanales, extendida.fila(i));
        }
        for (int k = 1; k <= kCiclo; ++k)
            for (int c = 1; c <= kCanales; ++c) {
                const double skew = store.Skew(c);
                const auto grados = static_cast<float>((skew + skew) * static_cast<float>(store.FrecLinea) *
                                                           0.000001 * 180.0 +
                                                       360.0 / kCiclo * k);
                const double x = double{grados} * 3.14159 / 180.0;
                seno(k, c) = static_cast<float>(std::sqrt(2.0) * std::sin(x) / kCiclo);
                coseno(k, c) = static_cast<float>(std::sqrt(2.0) * std::cos(x) / kCiclo);
            }
    }

    /// The sums alone, one channel after the other, without vectors.
    __attribute__((optimize("no-tree-vectorize", "no-tree-slp-vectorize"))) void Suma(
        Tabla2<float>& fasores) const
    {
        fasores = Tabla2<float>(kFilas, 2 * kCanales);
        for (int i = kCiclo + 1; i <= kFilas; ++i) {
            const int k = (i - 1) % kCiclo + 1;
            const float *entra = extendida.fila(i), *sale = extendida.fila(i - kCiclo);
            const float *s = seno.fila(k), *co = coseno.fila(k), *previa = fasores.fila(i - 1);
            float* fila = fasores.fila(i);
            for (int c = 0; c < kCanales; ++c) {
                const float d = entra[c] - sale[c];
                fila[2 * c] = previa[2 * c] + d * s[c];
                fila[2 * c + 1] = previa[2 * c + 1] + d * co[c];
            }
        }
    }
};

bool Transformada()
{
    const Llano llano;
    Tabla2<float> escalar, sumas, copia;
    const std::vector<double> t = Mejores({
                                              [] { CalculaDFT(store); },
                                              [&] { Llano().Suma(escalar); },
                                              [&] { llano.Suma(sumas); },
                                              [&] {
                                                  copia = Tabla2<float>(kFilas, 2 * kCanales);
                                                  std::memcpy(copia.fila(1), escalar.fila(1), kOctetos);
                                              },
                                          },
                                          kRondas);
    const bool iguales = std::memcmp(escalar.fila(1), store.FasoresDFT.fila(1), kOctetos) == 0;
    std::printf("CalculaDFT %.2f ms, scalar definition %.2f ms, its sums alone %.2f ms, copy %.2f ms\n", t[0],
                t[1], t[2], t[3]);
    std::printf("  CalculaDFT / definition %.2f, / sums alone %.2f, / copy %.2f, bits %s\n", t[0] / t[1],
                t[0] / t[2], t[0] / t[3], iguales ? "equal" : "DIFFER");
    return iguales;
}

/// Six texts and six lines of the kind that a view has, and nothing behind them.
class Pelada : public QWidget {
public:
    explicit Pelada(QWidget* padre) : QWidget(padre)
    {
        resize(1270, 700);
        auto* lienzo = new Lienzo(this);
        lienzo->setGeometry(0, 0, 1270, 448);
        lienzo->Limpia(0);
        for (std::size_t i = 0; i < 6; ++i) {
            lineas_[i] = new LineaLibre(kColoresFasor[i], "linea", lienzo);
            lineas_[i]->setVisible(true);
            textos_[i] = CreaEtiqueta(this, "texto");
            textos_[i]->setGeometry(450, 450 + 33 * static_cast<int>(i), 800, 33);
        }
        numero_ = CreaEtiqueta(this, "numero");
        numero_->setGeometry(0, 483, 420, 33);
        barra_ = new BarraCursor("barra", "barra", this);
        barra_->setGeometry(0, 450, 420, 33);
        barra_->setRange(5 * kCiclo, kFilas - 1);
    }
    void Paso(int fila)
    {
        barra_->setValue(fila);
        for (std::size_t i = 0; i < 6; ++i) {
            const int canal = static_cast<int>(i) + 1;
            const float x = store.FasoresDFT(fila, 2 * canal - 1), y = store.FasoresDFT(fila, 2 * canal);
            lineas_[i]->Pon(9525.0, 3360.0, 9525.0 + 40.0 * x, 3360.0 - 40.0 * y);
            textos_[i]->setText(Q("Canal " + std::to_string(canal) + ": " + Mascara(x, "#.###") + " @ " +
                                  Mascara(y, "#.##") + "A"));
        }
        numero_->setText(QString::number(fila));
    }

private:
    std::array<LineaLibre*, 6> lineas_;
    std::array<QLabel*, 6> textos_;
    QLabel* numero_;
    BarraCursor* barra_;
};

void MideVista()
{
    store.AnchoPantalla = 19200.0, store.AltoPantalla = 12000.0;
    const auto pinta = [] { QCoreApplication::processEvents(); };
    const double apertura = Mejores({[&] {
                                        frmFases::unica.CargaNueva().Ventana().showNormal();
                                        pinta();
                                    }},
                                    5)[0];
    frmFases& vista = *frmFases::unica.Cargado();
    QWidget solo;
    solo.resize(1270, 700);
    auto* pelada = new Pelada(&solo);
    solo.show();
    pinta();
    int fila = 5 * kCiclo;
    const std::vector<double> pasos = Mejores({[&] {
                                                   vista.Barra()->setValue(fila += 5);
                                                   pinta();
                                               },
                                               [&] {
                                                   pelada->Paso(fila);
                                                   pinta();
                                               }},
                                              2000);
    auto* mas = vista.findChild<QPushButton*>("cmdmas");
    auto* menos = vista.findChild<QPushButton*>("cmdmenos");
    bool dentro = false;
    int ancho = 1200;
    const std::vector<double> otros = Mejores({[&] {
                                                   ((dentro = !dentro) ? mas : menos)->click();
                                                   pinta();
                                               },
                                               [&] {
                                                   vista.Ventana().resize(ancho = 2400 - ancho + 1, 700);
                                                   pinta();
                                               }},
                                              kRondas);
    std::printf("frmFases: open %.1f ms, zoom step %.2f ms, resize %.2f ms\n", apertura, otros[0], otros[1]);
    std::printf("  bar step %.3f ms, six texts and six lines alone %.3f ms, ratio %.2f\n", pasos[0], pasos[1],
                pasos[0] / pasos[1]);
    frmFases::unica.Descarga();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv)
{
    const VentanaBanco ventana(argc, argv);
    Registro();
    if (!Transformada()) return 1;
    MideVista();
    return 0;
}
