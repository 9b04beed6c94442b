#include "analysis/forms/frmSecuencias.h"

#include "analysis/fasores.h"
#include "analysis/forms/frmFases.h"

namespace veldix {

Portador<frmSecuencias> frmSecuencias::unica;

frmSecuencias::frmSecuencias()
    : VistaFasores({
          .nombre = "frmSecuencias",
          .etiqueta = etiqueta::kSecuencias,
          .titulo = 70,
          .defecto = "Secuencias",
          .derecha = true,
          .lineas = {"lnCor1", "lnCor2", "lnCor0", "lnTens1", "lnTens2", "lnTens0"},
          .textos = {"lblCorSecPos", "lblCorSecNeg", "lblCorSecHom", "lblTenSecPos", "lblTenSecNeg",
                     "lblTenSecHom"},
          .fasores = []() -> const Tabla2<float>& {
              CalculaSecuencias(store);
              return store.Secuencias;
          },
          .maximo = MaxModuloSecuencias,
          .trazos = TrazosSecuencias,
          .pinta = PintaSecuencias,
          .cerrando = &RecordStore::SecuenciasCerrando,
          .otraCerrando = &RecordStore::FasesCerrando,
          .otra = []() -> VistaFasores* { return frmFases::unica.Cargado(); },
      })
{
}

}  // namespace veldix
