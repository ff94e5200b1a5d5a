#include "vocabulary/windows/vcab_replace.h"

#include "shell/kit/captions.h"
#include "shell/kit/text.h"
#include "vocabulary/vocabulary_file.h"

#include <QLabel>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array Captions = {
    //                          English           French                 Italian  German            Spanish                 Latin
    Caption{"VcabReplace",       {"Replace a File", "Remplacer un fichier", {},     "Datei ersetzen", "Reemplazar un archivo", "Fasciculum muta!"}},
    Caption{"VcabReplaceOK",     {"&Replace",       "&Remplacer",           {},     "&Ersetzen",      "&Reemplazar",           "&Muta!"}},
    Caption{"VcabReplaceCancel", {"&Cancel",        "&Annuler",             {},     "&Abbruch",       "&Cancelar",             "&Reverte!"}},
};

// The name of the file, and the number of its words, stand in the place of %1.
constexpr LanguageTexts Exists{"The file %1 exists already.", "Le fichier %1 existe déjà.", {}, "Die Datei %1 gibt es schon.", "El archivo %1 ya existe.", "Fasciculus %1 iam exstat."};
constexpr LanguageTexts Words{"Words in it: %1",              "Nombre de mots : %1",        {}, "Wörter darin: %1",            "Palabras en él: %1",       "Verba in eo: %1"};
// clang-format on

// Of a file that is no list the words cannot be counted.
QString contentsOf(const std::filesystem::path& path)
{
    const VocabularyFile file = readVocabularyFile(path);
    const bool tooLong = file.fault && file.fault->kind == LoadFault::Kind::TooLong;
    if (file.fault && file.fault->refused() && !tooLong)
        return {};
    const QString words =
        tooLong ? QStringLiteral("> %1").arg(MostWords) : QString::number(file.records.size());
    return QLatin1Char('\n') + shell::fromUtf8(Words).arg(words);
}

} // namespace

VcabReplace::VcabReplace() : QuestionWindow("VcabReplace", "VcabReplaceText")
{
    connect(addAnswer("VcabReplaceOK"), &QPushButton::clicked, this, &VcabReplace::replacementAllowed);
    cancel_ = addAnswer("VcabReplaceCancel");
    connect(cancel_, &QPushButton::clicked, this, &VcabReplace::left);
}

void VcabReplace::open(const std::filesystem::path& file)
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    const QString name = shell::fromUtf8(file.filename().string());
    text().setText(shell::fromUtf8(Exists).arg(name) + contentsOf(file));
    askWith(*cancel_);
}

} // namespace vocabulary
