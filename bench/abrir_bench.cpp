#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "record/abrir_registro.h"
#include "record/leer_dat.h"

namespace {

using veldix::RecordStore;

constexpr int kMuestras = 32767, kAnalogicos = 64, kDigitales = 64;
constexpr std::size_t kTrozo = 256 * 1024;
constexpr std::size_t kLargoFila = 8 + 2 * kAnalogicos + 2 * ((kDigitales + 15) / 16);
constexpr double kMiB = 1024.0 * 1024.0;

struct Caso {
    const char* nombre;
    bool ascii, es1997;
};
constexpr std::array<Caso, 4> kCasos = {{{"ascii 1997", true, true},
                                         {"ascii 1991", true, false},
                                         {"binary 1997", false, true},
                                         {"binary 1991", false, false}}};

// ---- the records ----

std::int16_t Analogico(int i, int c)
{
    return static_cast<std::int16_t>(std::lround(20000.0 * std::sin(i * 0.196 + c) + (i * 37 + c) % 500));
}

int Digital(int i, int k)
{
    return (i / (50 + k)) % 2;
}

void EscribeCfg(const std::string& ruta, const Caso& caso)
{
    std::ofstream f(ruta);
    f << "BENCH,1" << (caso.es1997 ? ",1997" : "") << "\r\n"
      << kAnalogicos + kDigitales << ',' << kAnalogicos << "A," << kDigitales << "D\r\n";
    for (int c = 1; c <= kAnalogicos; ++c)
        f << c << ",CH" << c << ",A,LINE,kV,0.005,0.01,0,-32767,32767"
          << (caso.es1997 ? c % 2 == 1 ? ",132,0.11,P" : ",800,5,S" : "") << "\r\n";
    for (int k = 1; k <= kDigitales; ++k)
        f << k << ",D" << k << ",0\r\n";
    f << "50\r\n1\r\n1600," << kMuestras << "\r\n01/01/2001,00:00:00\r\n01/01/2001,00:00:01\r\n"
      << (caso.ascii ? "ASCII" : "BINARY") << "\r\n"
      << (caso.es1997 ? "1\r\n" : "");
}

std::string FilaAscii(int i)
{
    std::string fila = std::to_string(i) + ',' + std::to_string((i - 1) * 625);
    for (int c = 0; c < kAnalogicos; ++c)
        fila += ',' + std::to_string(Analogico(i, c));
    for (int k = 0; k < kDigitales; ++k)
        fila += Digital(i, k) == 1 ? ",1" : ",0";
    return fila + "\r\n";
}

std::string FilaBinaria(int i)
{
    std::string fila(kLargoFila, '\0');
    const std::int32_t cabeza[2] = {i, (i - 1) * 625};
    std::memcpy(fila.data(), cabeza, sizeof cabeza);
    for (int c = 0; c < kAnalogicos; ++c) {
        const std::int16_t x = Analogico(i, c);
        std::memcpy(fila.data() + 8 + 2 * c, &x, sizeof x);
    }
    for (int k = 0; k < kDigitales; ++k)
        if (Digital(i, k) == 1)
            fila[static_cast<std::size_t>(8 + 2 * kAnalogicos + k / 8)] |= static_cast<char>(1U << (k % 8));
    return fila;
}

/// A folder with a record for each case, gone at the end.
class Registros {
public:
    Registros()
    {
        carpeta_ = (std::filesystem::temp_directory_path() / "veldix_bench.XXXXXX").string();
        if (mkdtemp(carpeta_.data()) == nullptr) std::abort();
        for (const bool ascii : {true, false}) {
            std::ofstream f(Dat(ascii), std::ios::binary);
            for (int i = 1; i <= kMuestras; ++i)
                f << (ascii ? FilaAscii(i) : FilaBinaria(i));
        }
        for (const Caso& caso : kCasos)
            EscribeCfg(Cfg(caso), caso);
    }
    ~Registros() { std::filesystem::remove_all(carpeta_); }
    Registros(const Registros&) = delete;
    Registros& operator=(const Registros&) = delete;

    std::string Dat(bool ascii) const { return carpeta_ + (ascii ? "/ascii.dat" : "/binary.dat"); }
    std::string Cfg(const Caso& caso) const { return carpeta_ + '/' + caso.nombre + ".cfg"; }

    void Nombra(RecordStore& s, const Caso& caso) const
    {
        s.FicheroCfg = Cfg(caso);
        s.FicheroDat = Dat(caso.ascii);
    }

private:
    std::string carpeta_;
};

// ---- the baselines ----

/// The field up to the next comma or the end of the line.
std::string_view Campo(const char*& p, const char* fin)
{
    const auto* coma = static_cast<const char*>(std::memchr(p, ',', static_cast<std::size_t>(fin - p)));
    const char* hasta = coma ? coma : fin;
    const std::string_view campo(p, static_cast<std::size_t>(hasta - p));
    p = coma ? coma + 1 : fin;
    return campo;
}

double SumaLinea(const char* p, const char* fin, const veldix::Separadores& separadores)
{
    Campo(p, fin);
    double suma = *veldix::CampoSingle(Campo(p, fin), separadores);
    for (int c = 0; c < kAnalogicos; ++c)
        suma += *veldix::CampoSingle(Campo(p, fin), separadores);
    int estados = 0;
    for (; p < fin; p += 2)
        estados += *p - '0';
    return suma + estados;
}

/// Reads and converts every field, keeps nothing but a sum.
double BaseAscii(const std::string& ruta)
{
    const veldix::Separadores separadores;
    veldix::LectorTrozos fichero(ruta);
    std::vector<char> buf(2 * kTrozo);
    double suma = 0.0;
    std::size_t resto = 0;
    for (std::size_t n = kTrozo; n == kTrozo;) {
        n = fichero.Lee({buf.data() + resto, kTrozo});
        const char* p = buf.data();
        const char* const hasta = p + resto + n;
        while (const auto* lf =
                   static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(hasta - p)))) {
            suma += SumaLinea(p, lf - 1, separadores);
            p = lf + 1;
        }
        resto = static_cast<std::size_t>(hasta - p);
        std::memmove(buf.data(), p, resto);
    }
    return suma;
}

using Octeto = std::array<std::int16_t, 8>;

std::array<Octeto, 256> TablaEstados()
{
    std::array<Octeto, 256> t{};
    for (unsigned v = 0; v < 256; ++v)
        for (unsigned k = 0; k < 8; ++k)
            t[v][k] = static_cast<std::int16_t>(v >> k & 1U);
    return t;
}

/// States one bit at a time, with a mask that doubles.
void EstadosPorMascara(const unsigned char* bits, std::int16_t* dig)
{
    for (std::size_t k = 0; k < kDigitales / 8; ++k)
        for (unsigned mascara = 1; mascara < 256; mascara *= 2)
            *dig++ = static_cast<std::int16_t>((bits[k] & mascara) / mascara);
}

/// Unpacks every sample into one row that the next one overwrites; `guarda` is shown each row. States by the
/// mask, or by a table.
template <bool kPorTabla, class Guarda>
float DesempaquetaTodo(const std::string& ruta, Guarda&& guarda)
{
    static const std::array<Octeto, 256> estados = TablaEstados();
    veldix::LectorTrozos fichero(ruta);
    std::vector<char> buf(kTrozo / kLargoFila * kLargoFila);
    std::array<float, kAnalogicos> fila{}, a{}, b{};
    std::array<std::int16_t, kAnalogicos> crudos{};
    std::array<std::int16_t, kDigitales> dig{};
    a.fill(0.005F);
    b.fill(0.01F);
    float tiempos = 0.0F;
    for (std::size_t n = buf.size(); n == buf.size();) {
        n = fichero.Lee(buf);
        for (std::size_t q = 0; q + kLargoFila <= n; q += kLargoFila) {
            const char* p = buf.data() + q;
            std::int32_t t = 0;
            std::memcpy(&t, p + 4, sizeof t);
            tiempos += static_cast<float>(t);
            std::memcpy(crudos.data(), p + 8, sizeof crudos);
            for (std::size_t c = 0; c < kAnalogicos; ++c)
                fila[c] = static_cast<float>(crudos[c]) * a[c] + b[c];
            const auto* bits = reinterpret_cast<const unsigned char*>(p + 8 + 2 * kAnalogicos);
            for (std::size_t k = 0; kPorTabla && k < kDigitales / 8; ++k)
                std::memcpy(&dig[8 * k], estados[bits[k]].data(), sizeof(Octeto));
            if (!kPorTabla) EstadosPorMascara(bits, dig.data());
            benchmark::DoNotOptimize(fila);
            benchmark::DoNotOptimize(dig);
            guarda(fila, dig);
        }
    }
    return tiempos;
}

float BaseBinaria(const std::string& ruta)
{
    return DesempaquetaTodo<false>(ruta, [](const auto&, const auto&) {});
}

/// The quickest unpack known here, which still keeps nothing.
float BaseTabla(const std::string& ruta)
{
    return DesempaquetaTodo<true>(ruta, [](const auto&, const auto&) {});
}

/// A bare unpack as one would first write it: states by the mask, one array of each kind in plain vectors.
float BaseVectores(const std::string& ruta)
{
    std::vector<float> valores(std::size_t{kMuestras} * kAnalogicos);
    std::vector<std::int16_t> estados(std::size_t{kMuestras} * kDigitales);
    float* v = valores.data();
    std::int16_t* d = estados.data();
    return DesempaquetaTodo<false>(ruta, [&](const auto& fila, const auto& dig) {
        std::memcpy(v, fila.data(), sizeof fila);
        std::memcpy(d, dig.data(), sizeof dig);
        v += fila.size();
        d += dig.size();
    });
}

/// The table's unpack, each row copied into fresh tables: what storing alone adds.
float BaseGuardada(const std::string& ruta, bool es1997)
{
    veldix::Tabla2<float> prim(kMuestras, kAnalogicos), sec;
    veldix::Tabla2<std::int16_t> estados(kMuestras, kDigitales);
    if (es1997) sec = veldix::Tabla2<float>(kMuestras, kAnalogicos);
    int i = 0;
    return DesempaquetaTodo<true>(ruta, [&](const auto& fila, const auto& dig) {
        std::memcpy(prim.fila(++i), fila.data(), sizeof fila);
        if (es1997) std::memcpy(sec.fila(i), fila.data(), sizeof fila);
        std::memcpy(estados.fila(i), dig.data(), sizeof dig);
    });
}

// ---- time ----

void Abre(benchmark::State& estado, const Registros& registros, const Caso& caso, bool liberaDentro)
{
    RecordStore s;
    registros.Nombra(s, caso);
    for (auto _ : estado) {
        if (!liberaDentro) {
            estado.PauseTiming();
            veldix::BorraMuestras(s);
            estado.ResumeTiming();
        }
        if (veldix::AbrirRegistro(s) != 0 || s.Tiempos(kMuestras) == 0.0F)
            estado.SkipWithError("record not read");
    }
}

void Base(benchmark::State& estado, const std::string& ruta, bool ascii)
{
    for (auto _ : estado)
        benchmark::DoNotOptimize(ascii ? BaseAscii(ruta) : double{BaseBinaria(ruta)});
}

/// Keeps the best real time of each benchmark.
class Colector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& tandas) override
    {
        for (const Run& r : tandas) {
            if (r.error_occurred) std::printf("%s: %s\n", r.run_name.function_name.c_str(), "failed");
            if (r.error_occurred || r.run_type != Run::RT_Iteration) continue;
            double& mejor = mejores_.try_emplace(r.run_name.function_name, HUGE_VAL).first->second;
            mejor = std::min(mejor, r.GetAdjustedRealTime());
        }
    }
    /// NaN where the benchmark was left out.
    double Mejor(const std::string& nombre) const
    {
        const auto sitio = mejores_.find(nombre);
        return sitio == mejores_.end() ? std::nan("") : sitio->second;
    }

private:
    std::map<std::string, double> mejores_;
};

std::string NombreBase(bool ascii)
{
    return ascii ? "baseline ascii" : "baseline binary";
}

constexpr const char* kNombreTabla = "baseline table binary";
constexpr const char* kNombreVectores = "baseline vectors binary";

std::string NombreGuardada(bool es1997)
{
    return std::string("baseline stored binary ") + (es1997 ? "1997" : "1991");
}

void Inscribe(const Registros& registros)
{
    const auto pon = [](const std::string& nombre, auto&& mide) {
        benchmark::RegisterBenchmark(nombre.c_str(), mide)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MinTime(0.3)
            ->Repetitions(7);
    };
    for (const bool ascii : {true, false})
        pon(NombreBase(ascii),
            [&registros, ascii](benchmark::State& e) { Base(e, registros.Dat(ascii), ascii); });
    pon(kNombreTabla, [&registros](benchmark::State& e) {
        for (auto _ : e)
            benchmark::DoNotOptimize(BaseTabla(registros.Dat(false)));
    });
    pon(kNombreVectores, [&registros](benchmark::State& e) {
        for (auto _ : e)
            benchmark::DoNotOptimize(BaseVectores(registros.Dat(false)));
    });
    for (const bool es1997 : {true, false})
        pon(NombreGuardada(es1997), [&registros, es1997](benchmark::State& e) {
            for (auto _ : e)
                benchmark::DoNotOptimize(BaseGuardada(registros.Dat(false), es1997));
        });
    for (const Caso& caso : kCasos) {
        const std::string nombre = std::string("abrir ") + caso.nombre;
        pon(nombre, [&registros, &caso](benchmark::State& e) { Abre(e, registros, caso, false); });
        pon(nombre + " freeing",
            [&registros, &caso](benchmark::State& e) { Abre(e, registros, caso, true); });
    }
}

void MideTiempos(const Registros& registros)
{
    Inscribe(registros);
    Colector c;
    benchmark::RunSpecifiedBenchmarks(&c);
    const auto escribe = [&c](const std::string& nombre, bool ascii) {
        const double t = c.Mejor(nombre), base = c.Mejor(NombreBase(ascii));
        if (!std::isnan(t)) std::printf("%s / baseline = %.2f   (%.2f ms)\n", nombre.c_str(), t / base, t);
    };
    escribe(kNombreTabla, false);
    escribe(kNombreVectores, false);
    for (const bool es1997 : {true, false})
        escribe(NombreGuardada(es1997), false);
    for (const Caso& caso : kCasos)
        for (const char* fin : {"", " freeing"})
            escribe(std::string("abrir ") + caso.nombre + fin, caso.ascii);
    for (const bool ascii : {true, false})
        escribe(NombreBase(ascii), ascii);
}

// ---- memory ----

/// Peak resident memory, in octets, of a child that opens the record, or does nothing.
double Pico(const Registros& registros, const Caso* caso)
{
    const pid_t hijo = fork();
    if (hijo == 0) {
        RecordStore s;
        if (caso) {
            registros.Nombra(s, *caso);
            if (veldix::AbrirRegistro(s) != 0 || s.Tiempos(kMuestras) == 0.0F) _exit(1);
        }
        _exit(0);
    }
    int estado = 0;
    rusage uso{};
    if (hijo < 0 || wait4(hijo, &estado, 0, &uso) != hijo || estado != 0) {
        std::fprintf(stderr, "record not read\n");
        std::exit(2);
    }
    return static_cast<double>(uso.ru_maxrss) * 1024.0;
}

/// Prints peak against the arrays; false where a case takes more than 16 MiB above them.
bool MideMemoria(const Registros& registros)
{
    const double nada = Pico(registros, nullptr);
    bool bien = true;
    for (const Caso& caso : kCasos) {
        const double porMuestra = kAnalogicos * sizeof(float) * (caso.es1997 ? 3.0 : 1.0) +
                                  kDigitales * sizeof(std::int16_t) + sizeof(float);
        const double tablas = kMuestras * porMuestra, pico = Pico(registros, &caso) - nada;
        const bool cabe = pico <= tablas + 16.0 * kMiB;
        bien = bien && cabe;
        std::printf("abrir %-12s peak %6.1f MiB, arrays %6.1f MiB, difference %+6.1f MiB %s\n", caso.nombre,
                    pico / kMiB, tablas / kMiB, (pico - tablas) / kMiB, cabe ? "" : "TOO MUCH");
    }
    return bien;
}

}  // namespace

int main(int argc, char** argv)
{
    const Registros registros;
    if (argc > 1 && std::string_view(argv[1]) == "--memoria") return MideMemoria(registros) ? 0 : 1;
    std::vector<char*> args(argv, argv + argc);
    // What slows the machine for a while then falls on all of them.
    std::string turnos = "--benchmark_enable_random_interleaving=true";
    args.push_back(turnos.data());
    auto n = static_cast<int>(args.size());
    benchmark::Initialize(&n, args.data());
    if (benchmark::ReportUnrecognizedArguments(n, args.data())) return 1;
    MideTiempos(registros);
    benchmark::Shutdown();
    return 0;
}
