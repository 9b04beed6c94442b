#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "templates/conjunto_plantilla.h"
#include "templates/plantilla.h"

namespace veldix {

namespace {

/// Lines of a template, as far as they came: a row that is missing ends the text but not what stands.
class Redactor {
public:
    explicit Redactor(const RecordStore& s) : s_(s) {}

    void Redacta()
    {
        Linea("ver 1.1");
        Linea(s_.EstacionPlan);
        Analogicos();
        Trifasicos();
        Digitales();
        Linea("-----");
    }
    const std::string& Texto() const { return texto_; }

private:
    /// A text that was pasted with a line end in it would take the rows behind it out of their places.
    void Linea(const std::string& linea) { texto_ += SinFinesDeLinea(linea) + "\r\n"; }

    void Analogicos()
    {
        if (s_.NumCanalPlan <= 0) return;
        Linea("ANALOGICOS");
        Linea(FormaImpresa(s_.NumCanalPlan));
        for (int r = 1; r <= s_.NumCanalPlan; ++r) {
            const FilaCanal& f = s_.CanalesPlan(r);
            Linea(f.Numero + "%" + f.Nombre + "%" + f.Circuito + "%" + f.Unidades + "$");
        }
    }

    void Trifasicos()
    {
        if (s_.NumTrifasicPlan <= 0) return;
        Linea("TRIFASICOS");
        Linea(FormaImpresa(s_.NumTrifasicPlan));
        for (int r = 1; r <= s_.NumTrifasicPlan; ++r) {
            const FilaTrifasic& f = s_.TrifasicPlan(r);
            std::string linea;
            for (int p = 1; p <= 3; ++p)
                linea += FormaDelimitada(f.Fase(p)) + "%";
            Linea(linea + f.Nombre + "%" + f.Factor + "$");
        }
    }

    void Digitales()
    {
        if (s_.NumCanalDigPlan < 1) return;
        Linea("DIGITALES");
        Linea(FormaDelimitada(s_.NumCanalDigPlan));
        Linea(FormaImpresa(s_.NumGruposDigPlan));
        for (int i = 1; i <= s_.NumGruposDigPlan; ++i)
            Grupo(i);
    }

    void Grupo(int i)
    {
        const FilaGrupoEdit& grupo = s_.GruposEdit(i);
        Linea("***");
        Linea(grupo.Nombre);
        const auto* numero = std::get_if<std::int16_t>(&grupo.Cuenta);
        Linea(numero ? FormaImpresa(*numero) : std::get<std::string>(grupo.Cuenta));
        const std::int16_t cuenta = Miembros(grupo);
        for (int j = 1; j <= cuenta; ++j)
            Linea(FormaDelimitada(s_.GruposEditNum(i, kAntesDeMiembros + j)) + "%" +
                  grupo.Miembro(kAntesDeMiembros + j) + "$");
    }

    const RecordStore& s_;
    std::string texto_;
};

}  // namespace

void GrabarPlantilla(const RecordStore& s, const std::string& ruta)
{
    Redactor redactor(s);
    try {
        redactor.Redacta();
    } catch (const std::exception&) {
        EscribeFichero(ruta, APagina(redactor.Texto()));
        throw;
    }
    EscribeFichero(ruta, APagina(redactor.Texto()));
}

}  // namespace veldix
