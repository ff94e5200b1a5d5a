#include "vocabulary/windows/vcab_warning.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;

namespace {

// clang-format off
constexpr std::array Captions = {
    Caption{"VcabWarning",        {"Unsaved Changes", "Modifications non enregistrées", {}, "Nicht gespeicherte Änderungen", "Cambios sin guardar", "Mutationes non servatae"}},
    Caption{"VcabWarningText",    {"The word list has changes that are not saved.",
                                   "La liste de mots contient des modifications non enregistrées.", {},
                                   "Die Wortliste enthält Änderungen, die nicht gespeichert sind.",
                                   "La lista de palabras tiene cambios que no se han guardado.",
                                   "Index verborum mutatus est neque servatus."}},
    Caption{"VcabWarningSave",    {"&Save",    "&Enregistrer",     {}, "&Speichern",    "&Guardar", "&Serva"}},
    Caption{"VcabWarningDiscard", {"&Don't save", "&Ne pas enregistrer", {}, "&Nicht speichern", "&No guardar", "&Noli servare"}},
    Caption{"VcabWarningCancel",  {"&Cancel",     "&Annuler",            {}, "&Abbrechen",       "&Cancelar",   "&Reverte!"}},
};
// clang-format on

} // namespace

VcabWarning::VcabWarning() : Window("VcabWarning")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void VcabWarning::makeControls()
{
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    text_ = shell::makeLabel(this, "VcabWarningText");
    text_->setWordWrap(true);
    save_ = shell::makeButton(this, "VcabWarningSave");
    discard_ = shell::makeButton(this, "VcabWarningDiscard");
    cancel_ = shell::makeButton(this, "VcabWarningCancel");
}

void VcabWarning::layOut()
{
    constexpr QMargins margins{shell::WideSpace, shell::WideSpace, shell::WideSpace, shell::LargeSpace};
    shell::setContent(
        this, margins,
        shell::columnOf(shell::WideSpace, {text_, shell::buttonRow({}, {save_, discard_, cancel_})}));
}

void VcabWarning::connectControls()
{
    connect(save_, &QPushButton::clicked, this, &VcabWarning::saveRequested);
    connect(discard_, &QPushButton::clicked, this, &VcabWarning::discardRequested);
    connect(cancel_, &QPushButton::clicked, this, &VcabWarning::left);
}

void VcabWarning::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    adjustSize();
    show();
    raise();
    activateWindow();
    save_->setFocus();
}

} // namespace vocabulary
