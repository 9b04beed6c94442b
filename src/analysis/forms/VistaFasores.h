#pragma once

#include <QLabel>
#include <QPushButton>

#include <array>
#include <memory>

#include "analysis/diagrama.h"
#include "platform/forms/BarraCursor.h"
#include "platform/forms/Lienzo.h"
#include "platform/forms/LineaLibre.h"
#include "platform/forms/formulario.h"
#include "platform/forms/impresion.h"

namespace veldix {

/// What the two analysis views have in common, which is all but what they plot: the diagram with its six
/// lines, their texts, the bar that walks through the record, the zoom.
class VistaFasores : public Vista {
    Q_OBJECT

public:
    /// Names and table of a view.
    struct Papel {
        const char* nombre;
        int etiqueta;
        int titulo;  ///< language line, and the caption until that is loaded
        const char* defecto;
        bool derecha;  ///< the half of the screen that it takes beside the other view
        std::array<const char*, 6> lineas, textos;
        const Tabla2<float>& (*fasores)();  ///< computed first where they are not there yet
        float (*maximo)(const RecordStore&);
        std::vector<Trazo> (*trazos)(const RecordStore&);
        CuadroDiagrama (*pinta)(const RecordStore&, const Diagrama&, int fila);
        bool RecordStore::*cerrando;      ///< flag of its own closing, while two views were opened
        bool RecordStore::*otraCerrando;  ///< that of the other view
        VistaFasores* (*otra)();          ///< the other view where it is loaded, or null
    };

    BarraCursor* Barra() const { return HScroll1; }

    void TrasError() override { Descarga(); }

protected:
    explicit VistaFasores(const Papel& papel);

    void Form_Unload() override;
    void Form_Minimiza() override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void CreaControles();
    void CreaBotones();
    void CreaTrazos();
    void ConectaControles();
    void Form_Load();
    void PreparaBarra();
    void ColocaControles();
    void Recoloca();

    void PintaEjes();
    void Pinta();
    void Muestra(const CuadroDiagrama& cuadro);

    void HScroll1_Change();
    void cmdmas_Click();
    void cmdmenos_Click();
    void CambiaZoom(int paso);
    void Picture1_PideDibujo();
    void pctimpresora_Click();
    void Imprime(const PeticionImpresion& p);

    Papel papel_;
    Lienzo* Picture1;
    std::array<LineaLibre*, 6> lineas_;
    std::array<QLabel*, 6> marcas_;  ///< Label1 to Label6, the colour of each line
    std::array<QLabel*, 6> textos_;
    BarraCursor* HScroll1;
    QLabel *lblNumero, *lblzoom;
    QPushButton *cmdmas, *cmdmenos, *pctimpresora;

    std::unique_ptr<Diagrama> diagrama_;
    QSize colocada_;       ///< inside that the controls are laid out for
    bool Cargada = false;  ///< until it is, the bar and the size change nothing
};

}  // namespace veldix
