#include "vocabulary/windows/vcab_divide.h"

#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/text.h"
#include "vocabulary/list_division.h"
#include "vocabulary/vocabulary_tester.h"

#include <QLabel>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array Captions = {
    //                          English            French                Italian  German            Spanish               Latin
    Caption{"VcabDivide",       {"Divide a File", "Diviser un fichier",  {},     "Datei aufteilen", "Dividir un archivo", "Fasciculum divide!"}},
    Caption{"VcabDivideOK",     {"&Divide",       "&Diviser",            {},     "Auf&teilen",      "&Dividir",           "&Divide!"}},
    Caption{"VcabDivideCancel", {"&Cancel",       "&Annuler",            {},     "&Abbruch",        "&Cancelar",          "&Reverte!"}},
};

// The name of the file stands in the place of %1, then the number of its words, the most that a list holds, the
// number of the new lists, and the most words of each.
constexpr LanguageTexts Question{
    "The file %1 holds %2 words, a list %3 at the most.\n"
    "Divide it into %4 lists of up to %5 words beside it, and open the first?",
    "Le fichier %1 contient %2 mots, une liste %3 au plus.\n"
    "Le diviser en %4 listes de %5 mots au plus, à côté de lui, et ouvrir la première ?", {},
    "Die Datei %1 enthält %2 Wörter, eine Liste höchstens %3.\n"
    "In %4 Listen zu höchstens %5 Wörtern im selben Ordner aufteilen und die erste öffnen?",
    "El archivo %1 contiene %2 palabras; una lista, %3 como máximo.\n"
    "¿Dividirlo en %4 listas de %5 palabras como máximo, a su lado, y abrir la primera?",
    "Fasciculus %1 verba %2 continet, index summum %3.\n"
    "Visne eum iuxta in indices %4 verborum summum %5 dividi primumque aperiri?"};
// clang-format on

} // namespace

VcabDivide::VcabDivide() : QuestionWindow("VcabDivide", "VcabDivideText"), divide_(addAnswer("VcabDivideOK"))
{
    connect(divide_, &QPushButton::clicked, this, &VcabDivide::divide);
    connect(addAnswer("VcabDivideCancel"), &QPushButton::clicked, this, &VcabDivide::left);
}

void VcabDivide::open(const std::filesystem::path& file, const LoadFault& fault)
{
    file_ = file;
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    const int lists = listsFor(fault.words);
    text().setText(shell::fromUtf8(Question).arg(shell::fromUtf8(file.filename().string()),
                                                 QString::number(fault.words), QString::number(MostWords),
                                                 QString::number(lists), QString::number(LastCountedWord)));
    askWith(*divide_);
}

// What was lost is told last, above the window that shows the list then.
void VcabDivide::divide()
{
    Q_EMIT left();
    const Division division = divideList(file_);
    if (division.fault) {
        platform::current().showMessage("The file was not divided. " + division.fault->message());
        return;
    }
    Q_EMIT divided(division.lists.front());
    if (division.loss)
        platform::current().showMessage(division.loss->message());
}

} // namespace vocabulary
