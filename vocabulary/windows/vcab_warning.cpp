#include "vocabulary/windows/vcab_warning.h"

#include "shell/kit/captions.h"

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
    Caption{"VcabWarningCancel",  {"&Cancel",     "&Annuler",            {}, "&Abbruch",         "&Cancelar",   "&Reverte!"}},
};
// clang-format on

} // namespace

VcabWarning::VcabWarning()
    : QuestionWindow("VcabWarning", "VcabWarningText"), save_(addAnswer("VcabWarningSave"))
{
    connect(save_, &QPushButton::clicked, this, &VcabWarning::saveRequested);
    connect(addAnswer("VcabWarningDiscard"), &QPushButton::clicked, this, &VcabWarning::discardRequested);
    connect(addAnswer("VcabWarningCancel"), &QPushButton::clicked, this, &VcabWarning::left);
}

void VcabWarning::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    askWith(*save_);
}

} // namespace vocabulary
