#pragma once

#include <optional>

#include "platform/forms/EtiquetasCorridas.h"
#include "waves/bandas.h"
#include "waves/forms/VistaCursores.h"
#include "waves/lugares_todo.h"

namespace veldix {

/// All chosen channels in one plot, a band each, over one time axis. Its zoom is made between the cursors.
class frmTodoanalog : public VistaCursores {
    Q_OBJECT

public:
    /// Loads it for the channels of `OndaCanal`, hidden. A failure unloads it.
    frmTodoanalog();
    static Portador<frmTodoanalog> unica;

protected:
    void Form_Unload() override;
    void Rehace() override;
    void PonNivel(const FilaZoom& nivel) override;
    void Repinta() override;
    double XCursor(float cursor) const override;
    void PonTextos(int cursor) override;
    std::optional<HojaOndas> Hoja(Impresora& impresora) override;

private:
    void CreaControles();
    void Form_Load();
    void ColocaControles();
    void ColocaEtiquetas(const LugaresTodo& l);
    void PintaMarco();
    void PonValores(int cursor);
    void Curvas(int s, int e, float escala);

    EtiquetasCorridas* lblet;
    BarraCursor* HScroll_Nombres;
    QLabel *lblam, *lblci;

    std::vector<int> canales_;  ///< rows of `Canales`, a band each
    Bandas bandas_;
    std::optional<FilaZoom> tramo_;  ///< that a zoom shows, none at 1:1
    float EscalaX = 0.0F;            ///< twips a sample of the cursor lines
    float EscalaCurva = 0.0F;        ///< of the curves, which differs after a zoom
    float MuestraInicial = 1.0F;
};

}  // namespace veldix
