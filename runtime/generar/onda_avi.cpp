// Draws the film of the animation control, a fault travelling along a line, as a Motion-JPEG AVI:
//     veldix_generar_onda FILE
#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QLinearGradient>
#include <QList>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace {

// Twice the size it is shown at, for dense screens.
constexpr int kAncho = 320, kAlto = 96;
constexpr int kCuadros = 24, kCuadrosPorSegundo = 12;
constexpr quint32 kConIndice = 0x10, kCuadroClave = 0x10;

// Height in [-1, 1] of a phase at x in [0, 1] and time t in [0, 1). It depends only on the distance u
// behind the front, which wraps, so the film loops without a seam.
double Onda(double x, double t, int fase)
{
    constexpr double kFrentes = 0.8, kCiclos = 4;
    constexpr double kPico[] = {0.62, 0.38, 0.12};
    const double u = t - kFrentes * x - std::floor(t - kFrentes * x);
    const double seno = std::sin(2 * std::numbers::pi * (kCiclos * u - fase / 3.0));
    const double rizo = std::sin(2 * std::numbers::pi * 18 * u);
    const double golpe = (1 - std::exp(-60 * u)) * std::exp(-4.5 * u) * seno;
    return 0.24 * seno + kPico[fase] * (1.15 * golpe + 0.28 * std::exp(-14 * u) * rizo);
}

void Traza(QPainter& p, const QColor& color, double t, int fase)
{
    QPolygonF linea;
    for (int i = -4; i <= 4 * (kAncho + 2); ++i) {
        const double px = i / 4.0;
        linea << QPointF(px, kAlto / 2.0 - Onda(px / kAncho, t, fase) * (kAlto / 2.0 - 5));
    }
    QColor brillo = color;
    brillo.setAlpha(40);
    p.setPen(QPen(brillo, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(linea);
    p.setPen(QPen(color, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(linea);
}

QImage Dibuja(double t)
{
    QImage imagen(kAncho, kAlto, QImage::Format_RGB32);
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fondo(0, 0, 0, kAlto);
    fondo.setColorAt(0, QColor(0x16, 0x2a, 0x38));
    fondo.setColorAt(1, QColor(0x0c, 0x18, 0x22));
    p.fillRect(imagen.rect(), fondo);
    p.setPen(QPen(QColor(120, 170, 190, 40), 1));
    for (int x = 32; x < kAncho; x += 32)
        p.drawLine(QPointF(x + 0.5, 0), QPointF(x + 0.5, kAlto));
    for (int y = 24; y < kAlto; y += 24)
        p.drawLine(QPointF(0, y + 0.5), QPointF(kAncho, y + 0.5));
    Traza(p, QColor(0x5a, 0xa8, 0xff), t, 2);
    Traza(p, QColor(0x58, 0xd6, 0x8d), t, 1);
    Traza(p, QColor(0xff, 0x6b, 0x5c), t, 0);
    return imagen;
}

// Empty if Qt has no JPEG writer.
QByteArray Codifica(const QImage& imagen)
{
    QBuffer buffer;
    QImageWriter escritor(&buffer, "jpeg");
    escritor.setQuality(70);
    escritor.setOptimizedWrite(false);
    return escritor.write(imagen) ? buffer.data() : QByteArray();
}

template <class... Enteros>
QByteArray Palabras(Enteros... valores)
{
    QByteArray bytes;
    for (const quint32 v : {static_cast<quint32>(valores)...}) {
        for (int i = 0; i < 4; ++i)
            bytes.append(static_cast<char>(v >> 8 * i & 0xff));
    }
    return bytes;
}

QByteArray Trozo(const char* sigla, const QByteArray& datos)
{
    return sigla + Palabras(datos.size()) + datos + QByteArray(datos.size() % 2, '\0');
}

QByteArray Lista(const char* sigla, const char* tipo, const QByteArray& datos)
{
    return Trozo(sigla, tipo + datos);
}

QByteArray Cabecera(quint32 cuadroMayor)
{
    const QByteArray avih = Palabras(std::lround(1e6 / kCuadrosPorSegundo), cuadroMayor * kCuadrosPorSegundo,
                                     0, kConIndice, kCuadros, 0, 1, cuadroMayor, kAncho, kAlto, 0, 0, 0, 0);
    const QByteArray strh = QByteArray("vidsMJPG") + Palabras(0, 0, 0, 1, kCuadrosPorSegundo, 0, kCuadros,
                                                              cuadroMayor, -1, 0, 0, kAncho | kAlto << 16);
    const QByteArray strf =
        Palabras(40, kAncho, kAlto, 1 | 24 << 16) + "MJPG" + Palabras(kAncho * kAlto * 3, 0, 0, 0, 0);
    return Lista("LIST", "hdrl",
                 Trozo("avih", avih) + Lista("LIST", "strl", Trozo("strh", strh) + Trozo("strf", strf)));
}

// Empty if a frame cannot be encoded.
QByteArray Pelicula()
{
    QByteArray cuadros, indice;
    qsizetype mayor = 0;
    for (int i = 0; i < kCuadros; ++i) {
        const QByteArray jpeg = Codifica(Dibuja(static_cast<double>(i) / kCuadros));
        if (jpeg.isEmpty()) return {};
        mayor = std::max(mayor, jpeg.size());
        // Offsets count from the word "movi".
        indice += "00dc" + Palabras(kCuadroClave, 4 + cuadros.size(), jpeg.size());
        cuadros += Trozo("00dc", jpeg);
    }
    return Lista(
        "RIFF", "AVI ",
        Cabecera(static_cast<quint32>(mayor)) + Lista("LIST", "movi", cuadros) + Trozo("idx1", indice));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication programa(argc, argv);
    if (argc != 2) {
        std::fputs("usage: veldix_generar_onda FILE\n", stderr);
        return 2;
    }
    const QByteArray pelicula = Pelicula();
    QFile archivo(QFile::decodeName(argv[1]));
    if (pelicula.isEmpty() || !archivo.open(QIODevice::WriteOnly) ||
        archivo.write(pelicula) != pelicula.size() || !archivo.flush()) {
        std::fprintf(stderr, "%s: cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
