#include "analysis/forms/frmFases.h"

#include "analysis/forms/frmSecuencias.h"

namespace veldix {

Portador<frmFases> frmFases::unica;

frmFases::frmFases()
    : VistaFasores({
          .nombre = "frmFases",
          .etiqueta = etiqueta::kFases,
          .titulo = 69,
          .defecto = "Fases",
          .derecha = false,
          .lineas = {"Line1", "Line2", "Line3", "Line4", "Line5", "Line6"},
          .textos = {"LblCorrienteA", "LblCorrienteB", "LblCorrienteC", "LblTensionA", "LblTensionB",
                     "LblTensionC"},
          .fasores = []() -> const Tabla2<float>& { return store.FasoresDFT; },
          .maximo = MaxModuloFases,
          .trazos = TrazosFases,
          .pinta = PintaFases,
          .cerrando = &RecordStore::FasesCerrando,
          .otraCerrando = &RecordStore::SecuenciasCerrando,
          .otra = []() -> VistaFasores* { return frmSecuencias::unica.Cargado(); },
      })
{
}

}  // namespace veldix
