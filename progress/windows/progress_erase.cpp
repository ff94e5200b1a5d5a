#include "progress/windows/progress_erase.h"

#include "shell/kit/captions.h"

#include <QPushButton>

#include <array>

namespace progress {

using shell::Caption;

namespace {

// clang-format off
constexpr std::array Captions = {
    Caption{"ProgressErase",       {"Delete Answers", "Supprimer les réponses", {}, "Antworten löschen", "Borrar las respuestas", "Responsa dele!"}},
    Caption{"ProgressEraseText",   {"All answers that were kept will be deleted. They cannot be brought back.",
                                    "Toutes les réponses gardées seront supprimées. On ne peut pas les récupérer.", {},
                                    "Alle aufbewahrten Antworten werden gelöscht. Sie lassen sich nicht zurückholen.",
                                    "Se borrarán todas las respuestas guardadas. No se pueden recuperar.",
                                    "Omnia responsa servata delebuntur neque restitui poterunt."}},
    Caption{"ProgressEraseOK",     {"&Delete", "&Supprimer", {}, "&Löschen",   "&Borrar",   "&Dele!"}},
    Caption{"ProgressEraseCancel", {"&Cancel", "&Annuler",   {}, "&Abbruch",   "&Cancelar", "&Reverte!"}},
};
// clang-format on

} // namespace

ProgressErase::ProgressErase() : QuestionWindow("ProgressErase", "ProgressEraseText")
{
    connect(addAnswer("ProgressEraseOK"), &QPushButton::clicked, this, &ProgressErase::erasureAllowed);
    cancel_ = addAnswer("ProgressEraseCancel");
    connect(cancel_, &QPushButton::clicked, this, &ProgressErase::left);
}

void ProgressErase::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    askWith(*cancel_);
}

} // namespace progress
