#include "platform/jet.h"

#include <glib.h>  // ahead of mdbtools.h, which would include it with C linkage
#include <mdbtools.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/errores.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/texto.h"

namespace veldix {

namespace {

constexpr std::string_view kFirma("\0\1\0\0Standard Jet DB\0", 20);
constexpr guint32 kPaginaCatalogo = 2;                 // of MSysObjects, in every database
constexpr std::size_t kMayorTabla = 64 * 1024 * 1024;  // octets, of values and of the work for them
constexpr std::size_t kPorRanura = 256;                // counted for a slot, whatever it gives
constexpr unsigned kMayorColumnas = 255;
constexpr int kClases[] = {MDB_BYTE, MDB_INT, MDB_LONGINT, MDB_FLOAT, MDB_DOUBLE, MDB_TEXT};

// Marks of a row's slot, and the rest of it, which is the row's place on its page.
constexpr int kRemitida = 0x4000;      // what stands here is the page and slot of the row
constexpr int kSoloRemitida = 0x8000;  // reached from such a slot alone; with the other mark, deleted
constexpr int kLugar = 0x1FFF;

struct CierraTabla {
    void operator()(MdbTableDef* t) const { mdb_free_tabledef(t); }
};
using Definicion = std::unique_ptr<MdbTableDef, CierraTabla>;

[[noreturn]] void Danada()
{
    Lanza(error::kFormatoBaseDatos);
}

/// The octets of a database; what keeps them from being read is told in the numbers of databases.
std::string LeeBase(const std::string& ruta)
{
    const std::string carpeta = CarpetaDe(ruta);
    if (!carpeta.empty() && !ExisteCarpeta(carpeta)) Lanza(error::kRutaNoValida);
    try {
        return LeeOctetos(ruta);
    } catch (const ErrorEjecucion& e) {
        if (e.numero == error::kFicheroNoEncontrado) Lanza(error::kSinBaseDatos);
        if (e.numero == error::kSinMemoria) throw;
        Danada();
    }
}

/// The library would take code pages, search paths and options from the user's environment.
void LimpiaEntorno()
{
    for (const char* variable : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"})
        unsetenv(variable);
}

}  // namespace

/// An open file. The library has one page buffer a handle, so that a table is read whole before another; and
/// its own catalog reader, record fetching and bound buffers do not bear damaged files: pages and rows are
/// walked here.
class BaseJet::Lector {
public:
    explicit Lector(const std::string& ruta);

    struct Tabla {
        std::string nombre;
        guint32 pagina;
        bool delSistema;
    };
    std::vector<Tabla> Catalogo();
    Recordset Lee(guint32 pagina);

private:
    struct Cierra {
        void operator()(MdbHandle* h) const { mdb_close(h); }
    };
    /// What is being read of one table.
    struct Lectura {
        MdbTableDef* tabla;
        std::vector<MdbField> campos;            ///< of the row at hand, for each column
        std::vector<const MdbColumn*> columnas;  ///< those that are read
        std::vector<std::size_t> sitios;         ///< and their places among all
        std::vector<std::vector<ValorJet>> filas;
        std::size_t octetos = 0;  ///< that it costs

        void Cuenta(std::size_t n)
        {
            octetos += n;
            if (octetos > kMayorTabla) Lanza(error::kSinMemoria);
        }
    };

    Definicion Define(guint32 pagina);
    void LeePagina(Lectura& lectura);
    void LeeFila(Lectura& lectura, int ranura);
    void LeeRemitida(Lectura& lectura, int lugar);
    ValorJet Valor(Lectura& lectura, const MdbColumn& columna, const MdbField& campo);
    std::string Texto(Lectura& lectura, std::string_view octetos);

    int Tamano() const { return static_cast<int>(jet_->fmt->pg_size); }

    std::string octetos_;  // the library reads them where they are
    guint32 paginas_ = 0;
    std::unique_ptr<MdbHandle, Cierra> jet_;
    MdbCatalogEntry entrada_{};  // of the table that is read; its definition points here
};

BaseJet::Lector::Lector(const std::string& ruta) : octetos_(LeeBase(ruta))
{
    LimpiaEntorno();
    constexpr std::size_t kVersion = 0x14;
    if (octetos_.size() <= kVersion || !octetos_.starts_with(kFirma)) Danada();
    const char version = octetos_[kVersion];
    if (version != 0 && version != 1) Danada();
    const std::size_t tamano = version == 0 ? 2048 : 4096;
    paginas_ = static_cast<guint32>(octetos_.size() / tamano);
    if (paginas_ <= kPaginaCatalogo) Danada();
    jet_.reset(mdb_open_buffer(octetos_.data(), octetos_.size(), MDB_NOFLAGS));
    if (!jet_) Danada();
}

std::vector<BaseJet::Lector::Tabla> BaseJet::Lector::Catalogo()
{
    constexpr std::int64_t kClase = 0x7F, kNumero = 0xFFFFFF, kDelSistema = 0x80000002;
    const auto entero = [](const Recordset& r, const char* campo) {
        const double valor = Val(r.Texto(campo));
        return std::abs(valor) <= 0xFFFFFFFF ? static_cast<std::int64_t>(valor) : 0;
    };
    std::vector<Tabla> tablas;
    for (Recordset r = Lee(kPaginaCatalogo); !r.Eof(); r.MoveNext())
        if ((entero(r, "Type") & kClase) == MDB_TABLE)
            tablas.push_back({r.Texto("Name"), static_cast<guint32>(entero(r, "Id") & kNumero),
                              (entero(r, "Flags") & kDelSistema) != 0});
    return tablas;
}

/// A table's definition with its columns, refused where the library would follow it out of bounds.
Definicion BaseJet::Lector::Define(guint32 pagina)
{
    if (pagina == 0 || pagina >= paginas_) Danada();
    entrada_ = {};
    entrada_.mdb = jet_.get();
    entrada_.object_type = MDB_TABLE;
    entrada_.table_pg = pagina;
    Definicion tabla(mdb_read_table(&entrada_));
    if (!tabla || tabla->map_sz < 1) Danada();
    if (tabla->num_cols == 0 || tabla->num_cols > kMayorColumnas || tabla->num_real_idxs > kMayorColumnas)
        Danada();
    // At once: it goes on where the definition's reader stopped.
    const GPtrArray* columnas = mdb_read_columns(tabla.get());
    if (!columnas || columnas->len != tabla->num_cols) Danada();
    return tabla;
}

Recordset BaseJet::Lector::Lee(guint32 pagina)
{
    const Definicion tabla = Define(pagina);
    Lectura lectura{tabla.get(), std::vector<MdbField>(tabla->num_cols), {}, {}, {}};
    std::vector<std::string> nombres;
    for (guint i = 0; i < tabla->num_cols; ++i) {
        const auto* columna = static_cast<const MdbColumn*>(g_ptr_array_index(tabla->columns, i));
        if (std::find(std::begin(kClases), std::end(kClases), columna->col_type) == std::end(kClases))
            continue;
        lectura.columnas.push_back(columna);
        lectura.sitios.push_back(i);
        nombres.emplace_back(columna->name);
    }
    mdb_rewind_table(tabla.get());
    while (mdb_read_next_dpg(tabla.get()))
        LeePagina(lectura);
    return {std::move(nombres), std::move(lectura.filas)};
}

/// The rows whose slots are on the page that is in the buffer.
void BaseJet::Lector::LeePagina(Lectura& lectura)
{
    const guint32 pagina = jet_->cur_pg;
    const int cuenta = jet_->fmt->row_count_offset;
    const int caben = (Tamano() - cuenta - 2) / 2;
    const int ranuras = std::min(mdb_get_int16(jet_->pg_buf, cuenta), caben);
    for (int r = 0; r < ranuras; ++r) {
        lectura.Cuenta(kPorRanura);
        const int ranura = mdb_get_int16(jet_->pg_buf, cuenta + 2 + 2 * r);
        if ((ranura & kSoloRemitida) != 0) continue;
        if ((ranura & kRemitida) == 0) {
            LeeFila(lectura, r);
            continue;
        }
        lectura.Cuenta(static_cast<std::size_t>(Tamano()));
        LeeRemitida(lectura, ranura & kLugar);
        if (!mdb_read_pg(jet_.get(), pagina)) Danada();
    }
}

/// A row that outgrew its page: at its place stands a slot's number and, above it, its page's.
void BaseJet::Lector::LeeRemitida(Lectura& lectura, int lugar)
{
    if (lugar + 4 > Tamano()) return;
    const auto sitio = static_cast<guint32>(mdb_get_int32(jet_->pg_buf, lugar));
    const guint32 pagina = sitio >> 8;
    if (pagina == 0 || pagina >= paginas_ || !mdb_read_pg(jet_.get(), pagina)) return;
    if (jet_->pg_buf[0] == MDB_PAGE_DATA) LeeFila(lectura, static_cast<int>(sitio & 0xFF));
}

void BaseJet::Lector::LeeFila(Lectura& lectura, int ranura)
{
    int inicio = 0;
    std::size_t tamano = 0;
    if (mdb_find_row(jet_.get(), ranura, &inicio, &tamano) != 0 || tamano == 0) return;
    if (mdb_crack_row(lectura.tabla, inicio & kLugar, tamano, lectura.campos.data()) < 0) return;
    std::vector<ValorJet> fila;
    fila.reserve(lectura.columnas.size());
    lectura.Cuenta(sizeof(fila) + lectura.columnas.size() * sizeof(ValorJet));
    for (std::size_t i = 0; i < lectura.columnas.size(); ++i)
        fila.push_back(Valor(lectura, *lectura.columnas[i], lectura.campos[lectura.sitios[i]]));
    lectura.filas.push_back(std::move(fila));
}

ValorJet BaseJet::Lector::Valor(Lectura& lectura, const MdbColumn& columna, const MdbField& campo)
{
    const int inicio = static_cast<int>(campo.start), tamano = campo.siz;
    if (campo.is_null || inicio < 0 || tamano < 0 || tamano > Tamano() - inicio) return {};
    unsigned char* en = jet_->pg_buf + inicio;
    const std::string_view octetos(reinterpret_cast<const char*>(en), static_cast<std::size_t>(tamano));
    const auto numero = [tamano](int hacenFalta, auto&& lee) -> ValorJet {
        if (tamano < hacenFalta) return {};
        return static_cast<double>(lee());
    };
    switch (columna.col_type) {
        case MDB_BYTE:
            return numero(1, [&] { return *en; });
        case MDB_INT:
            return numero(2, [&] { return static_cast<std::int16_t>(mdb_get_int16(en, 0)); });
        case MDB_LONGINT:
            return numero(4, [&] { return static_cast<std::int32_t>(mdb_get_int32(en, 0)); });
        case MDB_FLOAT:
            return numero(4, [&] { return mdb_get_single(en, 0); });
        case MDB_DOUBLE:
            return numero(8, [&] { return mdb_get_double(en, 0); });
        case MDB_TEXT:
            return Texto(lectura, octetos);
        default:
            return {};
    }
}

/// UTF-8 of a text as it is stored: UTF-16, compressed or not, or the code page of Jet 3.
std::string BaseJet::Lector::Texto(Lectura& lectura, std::string_view octetos)
{
    constexpr std::size_t kPorOcteto = 4, kMargen = 8;
    std::string texto(octetos.size() * kPorOcteto + kMargen, '\0');
    errno = 0;  // the library reads an earlier failure as one of its own
    const int largo =
        mdb_unicode2ascii(jet_.get(), octetos.data(), octetos.size(), texto.data(), texto.size());
    texto.resize(static_cast<std::size_t>(std::max(0, largo)));
    lectura.Cuenta(texto.size());
    return texto;
}

BaseJet::BaseJet(const std::string& ruta) : lector_(std::make_unique<Lector>(ruta)) {}
BaseJet::~BaseJet() = default;
BaseJet::BaseJet(BaseJet&&) noexcept = default;
BaseJet& BaseJet::operator=(BaseJet&&) noexcept = default;

std::vector<std::string> BaseJet::Tablas() const
{
    std::vector<std::string> nombres;
    for (Lector::Tabla& t : lector_->Catalogo())
        if (!t.delSistema) nombres.push_back(std::move(t.nombre));
    return nombres;
}

Recordset BaseJet::AbreTabla(std::string_view nombre) const
{
    for (const Lector::Tabla& t : lector_->Catalogo())
        if (IgualSinCaja(t.nombre, nombre)) return lector_->Lee(t.pagina);
    Lanza(error::kSinElemento);
}

void Recordset::MoveFirst()
{
    if (filas_.empty()) Lanza(error::kSinRegistro);
    actual_ = 0;
}

void Recordset::MoveLast()
{
    if (filas_.empty()) Lanza(error::kSinRegistro);
    actual_ = filas_.size() - 1;
}

void Recordset::MoveNext()
{
    if (Eof()) Lanza(error::kSinRegistro);
    ++actual_;
}

const ValorJet& Recordset::Campo(std::string_view campo) const
{
    const auto igual = [campo](const std::string& nombre) { return IgualSinCaja(nombre, campo); };
    const auto columna = std::find_if(campos_.begin(), campos_.end(), igual);
    if (columna == campos_.end()) Lanza(error::kSinElemento);
    if (Eof()) Lanza(error::kSinRegistro);
    return filas_[actual_][static_cast<std::size_t>(columna - campos_.begin())];
}

std::string Recordset::Texto(std::string_view campo) const
{
    const ValorJet& valor = Campo(campo);
    if (const auto* texto = std::get_if<std::string>(&valor)) return *texto;
    if (const auto* numero = std::get_if<double>(&valor)) return TextoDouble(*numero);
    return {};
}

double Recordset::Numero(std::string_view campo) const
{
    const ValorJet& valor = Campo(campo);
    if (const auto* numero = std::get_if<double>(&valor)) return *numero;
    return NumeroLocal(Texto(campo));
}

}  // namespace veldix
