#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>

#include <array>
#include <optional>

#include "platform/forms/FilasRanura.h"
#include "platform/forms/formulario.h"
#include "platform/ranuras.h"
#include "record/record_store.h"
#include "templates/forms/BotonesPagina.h"

namespace veldix {

/// The set-up page of up to four three-phase groups: three analog channels each, a name and a factor.
class frmTrifasic : public Formulario {
    Q_OBJECT

public:
    frmTrifasic();
    static Portador<frmTrifasic> unica;

    /// The page before this one is hidden: it comes back, or no page would be in sight.
    void TrasCierre() override;
    void TrasError() override;

private:
    /// One group: its frame and what stands in it. The active slot is the phase that is filled next.
    struct Grupo {
        QGroupBox* fmetrif = nullptr;
        QLineEdit *nbTrif = nullptr, *txtFactor = nullptr;
        QListWidget* ListTrif = nullptr;
        FilasRanura* filas = nullptr;
        Ranuras ranuras{3, Ranuras::Repetida::HastaPorTexto};
    };

    void CreaControles();
    void CreaGrupo(int g);
    void DisponeGrupo(Grupo& grupo, int g);
    void Dispone();
    void ConectaGrupo(int g);
    void Form_Load();
    void MuestraGrupos();

    void txtnumTrif_Change();
    void ListTrif_DblClick(int g);
    void grp_Click(int g, int p);
    void grp_DblClick(int g, int p);
    void grp_Change(int g, int p);
    void nbTrif_Change(int g);
    void txtFactor_Change(int g);
    void cmdOK_Click();
    void cmdvolver_Click();
    void cmdcancel_Click();

    Grupo& ElGrupo(int g);
    void ActivaGrupos(int cuantos);
    bool GuardaGrupos();
    bool GuardaFases(int g);

    QLineEdit* txtnumTrif;
    std::array<Grupo, 4> grupos_;
    std::optional<BotonesPagina> botones_;
};

}  // namespace veldix
