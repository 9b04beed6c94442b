#include "comun.h"
#include "dat_comun.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "pruebas.h"
#include "record/leer_dat.h"

namespace veldix::fuzz {

int Prueba_dat_ascii(Octetos entrada)
{
    const CasoDat caso(entrada);
    const FicheroMemoria dat(Texto(caso.fichero));
    PonSeparadores(caso.comaDecimal ? Separadores{",", "."} : Separadores{".", ","});
    RecordStore s;
    caso.Prepara(s);
    s.FicheroDat = dat.Ruta();
    Exige(LeerDatAscii(s) == 0, "result");
    // Lines are counted by the reader of short files, which ends them by the same rules.
    CompruebaMuestras(s, static_cast<int>(Lineas(Texto(caso.fichero)).size()));
    PonSeparadores(std::nullopt);
    return 0;
}

}  // namespace veldix::fuzz
