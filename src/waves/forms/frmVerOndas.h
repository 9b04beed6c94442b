#pragma once

#include <QLabel>
#include <QPushButton>

#include <optional>

#include "platform/forms/BarraCursor.h"
#include "platform/forms/Lienzo.h"
#include "platform/forms/formulario.h"
#include "waves/caja_zoom.h"
#include "waves/lugares_onda.h"
#include "waves/plot.h"

namespace veldix {

/// One analog channel in a window of its own: plot, two cursors, box zoom with its history.
class frmVerOndas : public Vista {
    Q_OBJECT

public:
    explicit frmVerOndas(int canal);

    /// Lays the window out and draws it, hidden. Twips.
    void Form_activo(double alto, double ancho, double arriba, double izquierda);

    int Canal() const { return Canal_; }
    const ZoomCaja& Zoom() const { return zoom_; }
    Lienzo* Plot() const { return picbox; }
    /// Texts of the difference and time labels as a page prints them.
    const QString& TextoDif() const { return textoDif_; }
    const QString& TextoMs() const { return textoMs_; }

    void TrasError() override { Descarga(); }

protected:
    void Form_Unload() override;
    void Form_Resize() override;
    void Form_Minimiza() override;

private:
    void CreaControles();
    void CreaBotones();
    void ConectaControles();
    void ColocaControles();
    void ColocaBarras(const LugaresOnda& l);
    void ColocaEtiquetas(const LugaresOnda& l);
    void ColocaBotones(const LugaresOnda& l);
    MedidasOnda Medidas() const;
    void ColocaReferencia(const LugaresOnda& l);
    void PintaEjes();
    void PintaOndas();
    void RedibujaZoom();
    void Curva(int s, int e);
    void LineaCero();
    void picbox_PideDibujo();
    void PonBarras(int minimo, int valor, int maximo);

    void HScroll1_Change();
    void HScroll2_Change();
    void CambiaCursor(LineaSobre* linea, float& cursor);
    void cmdzoom_Click();
    void cmdadel_Click();
    void cmdatras_Click();
    void CambiaNivel(int paso);
    void picbox_MouseDown(double x, double y);
    void picbox_MouseMove(double x, double y);
    void picbox_MouseUp(double x, double y);
    void MuestraCaja(bool visible);
    void PonCaja(double x, double y);

    Lienzo* picbox;
    LineaSobre *Lineizq, *Lineder;
    LineaSobre *Line2, *Line3, *Line4, *Line5;  ///< top, left, bottom and right edge of the zoom box
    BarraCursor *HScroll1, *HScroll2;
    QLabel *lblizq, *lblder, *lblamar, *lblcian, *lblms, *lblDif, *lbl_PS;
    QPushButton *cmdzoom, *cmdadel, *cmdatras, *pctimpresora;

    int Canal_;
    int columna_ = 0;  ///< of `Muestras`
    std::int16_t ultima_ = 0;
    std::optional<Tramo> tramo_;  ///< that a zoom shows, none at 1:1
    float factor_ = 1.0F;         ///< vertical factor of what is drawn
    bool Activa = false;
    float Cursor1 = 1.0F, Cursor2 = 1.0F;
    float MargenX = 0.0F, EscalaY = 0.0F;
    bool punteroPropio_ = false;        ///< the plot's pointer is that of an armed zoom
    double cajaX_ = 0.0, cajaY_ = 0.0;  ///< where the mouse went down, as the event had it
    ZoomCaja zoom_;
    double anchoZoom_ = 0.0;  ///< that the zoom button asks for with its picture, twips
    QString textoDif_, textoMs_;
};

}  // namespace veldix
