#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/avisos.h"
#include "platform/forms/BarraCursor.h"
#include "platform/forms/Lienzo.h"
#include "platform/forms/formulario.h"
#include "waves/historia_zoom.h"
#include "waves/lugares_onda.h"
#include "waves/pagina_ondas.h"

namespace veldix {

/// What the time-domain views have in common: a plot with the lines of two cursors, the bars that move them,
/// the buttons of the zoom and its history, the label of the reference.
class VistaOndas : public Vista {
    Q_OBJECT

public:
    Lienzo* Plot() const { return plot_; }

    void TrasError() override { Descarga(); }

protected:
    /// Names of a view, and the icons with which it refuses to leave the history.
    struct Papel {
        const char* nombre;
        int etiqueta;
        const char *plot, *linea1, *linea2, *tiempo;
        Icono ultimoNivel, primerNivel;
    };
    explicit VistaOndas(const Papel& papel);

    /// Layout and drawing of the whole record; the history is lost.
    virtual void Rehace() = 0;
    /// Draws the present zoom and puts the cursors on its first sample.
    virtual void Redibuja() = 0;
    /// Draws again what stands, whose picture was lost.
    virtual void Repinta() = 0;
    virtual HistoriaZoom& Historia() = 0;
    /// x of a cursor's line, twips of the plot.
    virtual double XCursor(float cursor) const = 0;
    /// The texts of a cursor that moved: 1 the yellow one, 2 the cyan one. Both cursors lie in the record.
    virtual void PonTextos(int cursor) = 0;
    virtual void cmdzoom_Click() = 0;
    /// The page of what stands, or nothing where its stretch is no step wide.
    virtual std::optional<HojaOndas> Hoja(Impresora& impresora) = 0;

    void Form_Resize() override;
    void Form_Minimiza() override;

    /// Ranges of both bars, their large step a cycle. Raises 9, 11.
    void PreparaBarras();
    /// Sets both bars without their handlers. A stretch that runs backwards holds them to its end.
    void PonBarras(int minimo, int valor, int maximo);
    void PonLinea(LineaSobre* linea, double x);
    void HScroll1_Change();
    void HScroll2_Change();

    /// What the fonts ask for within this height, twips: bars above labels, or beside them in one row.
    MedidasControles Medidas(double alto, bool unaFila = false) const;
    /// Height inside the frame of a window that leaves `bajo` twips below its plot.
    double AltoBajoPlot(double bajo) const;
    /// The label tells which side of a 1997 record is shown, if one was chosen.
    void PonReferencia(const Lugar& lugar);
    /// Without a drawing, which is left to the caller.
    void PonPlot(const Lugar& lugar);
    /// A zoom button too narrow for its picture shows its caption alone.
    void PonBotones(const LugaresBotones& l);

    Papel papel_;
    Lienzo* plot_;
    LineaSobre *linea1_, *linea2_;
    BarraCursor *HScroll1, *HScroll2;
    QLabel *lblms, *lbl_PS;
    QPushButton *cmdzoom, *cmdadel, *cmdatras, *pctimpresora;

    bool Activa = false;  ///< laid out: until then a change of size does nothing
    float Cursor1 = 1.0F, Cursor2 = 1.0F;
    std::int16_t ultima_ = 0;  ///< sample

private:
    void CreaBotones();
    void Conexiones();
    void CambiaCursor(int cual);
    void Plot_PideDibujo();
    void cmdadel_Click();
    void cmdatras_Click();
    void CambiaNivel(int paso);
    void pctimpresora_Click();

    double anchoZoom_ = 0.0;  ///< that the zoom button asks for with its picture, twips
};

}  // namespace veldix
