#include <string_view>

#include "platform/avisos.h"
#include "platform/codigos.h"
#include "platform/enteros.h"
#include "platform/ficheros.h"
#include "platform/lector_lineas_fichero.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "templates/plantilla.h"

namespace veldix {

namespace {

/// Fields of a line, each up to its separator. Where one is missing its field stays as it was and the search
/// for the next starts over at the first character.
class Campos {
public:
    explicit Campos(std::string_view linea) : linea_(linea) {}

    /// Whether there was a field; its text goes to `campo`.
    bool Hasta(char separador, std::string& campo)
    {
        const std::size_t k = linea_.find(separador, pos_);
        const std::size_t de = pos_;
        if (k == std::string_view::npos) {
            pos_ = 0;
            return false;
        }
        campo = linea_.substr(de, k - de);
        pos_ = k + 1;
        return true;
    }

private:
    std::string_view linea_;
    std::size_t pos_ = 0;
};

class LectorPlantilla {
public:
    explicit LectorPlantilla(RecordStore& s) : s_(s), lineas_(Abre(s.FicheroCnf), DesdePagina) {}

    void Lee()
    {
        Avanza(s_.VersionPlan);
        if (EsVersionVieja(s_.VersionPlan)) {
            PunteroNormal();
            Avisa(Textos(172), Icono::Critico);
            s_.PlantillaNoValida = false;
            return;
        }
        Avanza(s_.EstacionPlan);
        Avanza(linea_);
        s_.PlantillaNoValida = !(LeeAnalogicos() && LeeTrifasicos() && LeeDigitales());
    }

private:
    static std::string Abre(const std::string& ruta)
    {
        std::string texto;
        Intenta([&] { texto = LeeOctetos(ruta); });
        return texto;
    }

    /// The next line into `destino`, which keeps what it had behind the end of the file.
    void Avanza(std::string& destino)
    {
        if (!lineas_.Fin())
            destino = lineas_.Lee();
        else if (&destino == &linea_)
            Repite();
    }

    /// Rows behind the end of the file repeat the last line. A short file that declares thousands of rows and
    /// ends in a long line would so fill the memory: beyond a limit there is nothing to repeat.
    void Repite()
    {
        constexpr std::size_t kMayorRepetido = std::size_t{4} << 20;
        repetido_ += linea_.size();
        if (repetido_ > kMayorRepetido) linea_.clear();
    }

    /// The count on the current line; a text that is no number leaves it.
    void TomaCuenta(std::int16_t& cuenta)
    {
        Intenta([&] { cuenta = Entero16Local(linea_); });
    }

    bool CompruebaAjuste() const
    {
        return !s_.PlantillaModifica && s_.RegistroAbierto && s_.PlantillaAplicada;
    }

    /// The sections return false where the template does not fit the open record.
    bool LeeAnalogicos()
    {
        if (linea_ != "ANALOGICOS") {
            s_.NumCanalPlan = 0;
            return true;
        }
        Avanza(linea_);
        TomaCuenta(s_.NumCanalPlan);
        if (CompruebaAjuste() && s_.NumCanalPlan > s_.NumAnalog) return false;
        s_.CanalesPlan = {};
        Intenta([&] { s_.CanalesPlan = Tabla1<FilaCanal>(s_.NumCanalPlan); });
        for (int r = 1; r <= s_.NumCanalPlan; ++r) {
            Avanza(linea_);
            Campos campos(linea_);
            FilaCanal& fila = s_.CanalesPlan(r);
            campos.Hasta('%', fila.Numero);
            campos.Hasta('%', fila.Nombre);
            campos.Hasta('%', fila.Circuito);
            campos.Hasta('$', fila.Unidades);
        }
        Avanza(linea_);
        return true;
    }

    bool LeeTrifasicos()
    {
        if (linea_ != "TRIFASICOS") {
            s_.NumTrifasicPlan = 0;
            return true;
        }
        Avanza(linea_);
        TomaCuenta(s_.NumTrifasicPlan);
        Intenta([&] { s_.TrifasicPlan = Tabla1<FilaTrifasic>(s_.NumTrifasicPlan); });
        for (int r = 1; r <= s_.NumTrifasicPlan; ++r) {
            Avanza(linea_);
            Campos campos(linea_);
            FilaTrifasic& fila = s_.TrifasicPlan(r);
            for (int p = 1; p <= 3; ++p) {
                std::string numero;
                if (campos.Hasta('%', numero)) Intenta([&] { fila.Fase(p) = Entero16Local(numero); });
            }
            campos.Hasta('%', fila.Nombre);
            campos.Hasta('$', fila.Factor);
        }
        Avanza(linea_);
        return true;
    }

    bool LeeDigitales()
    {
        if (linea_ != "DIGITALES") {
            s_.NumCanalDigPlan = 0;
            s_.NumGruposDigPlan = 0;
            return true;
        }
        for (std::int16_t* cuenta : {&s_.NumCanalDigPlan, &s_.NumGruposDigPlan}) {
            Avanza(linea_);
            if (linea_.empty()) {
                *cuenta = 0;
                return true;
            }
            TomaCuenta(*cuenta);
        }
        if (s_.NumGruposDigPlan == 0) return true;
        Avanza(linea_);  // the first "***", whatever it says
        s_.GruposDigPlan = {};
        s_.CanalesDigPlan = {};
        Intenta([&] { s_.GruposDigPlan = Tabla1<FilaGrupoDig>(s_.NumGruposDigPlan); });
        Intenta([&] { s_.CanalesDigPlan = Tabla1<FilaCanalDig>(s_.NumCanalDigPlan); });
        return LeeGrupos();
    }

    bool LeeGrupos()
    {
        int r = 1;
        for (int i = 1; i <= s_.NumGruposDigPlan; ++i) {
            FilaGrupoDig& grupo = s_.GruposDigPlan(i);
            Avanza(grupo.Nombre);
            Avanza(grupo.Cuenta);
            std::int16_t miembros = 0;
            Intenta([&] { miembros = Entero16Local(grupo.Cuenta); });
            for (int k = 0; k < miembros; ++k, ++r) {
                // Behind both the table and the file nothing can change any more.
                if (r > s_.CanalesDigPlan.Cuantos() && lineas_.Fin()) break;
                Avanza(linea_);
                if (!LeeMiembro(r)) return false;
            }
            Avanza(linea_);
        }
        return true;
    }

    /// Row `r`, dropped where the table ends before it.
    bool LeeMiembro(int r)
    {
        if (r > s_.CanalesDigPlan.Cuantos()) return true;
        FilaCanalDig& fila = s_.CanalesDigPlan(r);
        Campos campos(linea_);
        campos.Hasta('%', fila.Numero);
        bool cabe = true;
        if (CompruebaAjuste()) Intenta([&] { cabe = NumeroLocal(fila.Numero) <= s_.NumDigital; });
        if (!cabe) return false;
        campos.Hasta('$', fila.Nombre);
        return true;
    }

    RecordStore& s_;
    LectorLineas lineas_;
    std::string linea_;
    std::size_t repetido_ = 0;  ///< octets repeated behind the end of the file
};

}  // namespace

void LeerPlantilla(RecordStore& s)
{
    LectorPlantilla(s).Lee();
}

std::string LeerVersionPlantilla(RecordStore& s)
{
    // Each opening of a menu comes here, so that no more than a chunk of the file is read.
    const auto linea = LectorLineasFichero(s.FicheroCnf).Primera();
    if (!linea) Lanza(error::kFinDeFichero);
    s.VersionPlantilla = DesdePagina(*linea);
    return s.VersionPlantilla;
}

bool EsExtensionPlantilla(std::string_view ruta)
{
    const std::string_view extension = Derecha(ruta, 3);
    return extension == "CNF" || extension == "cnf";
}

}  // namespace veldix
