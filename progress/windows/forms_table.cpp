#include "progress/windows/forms_table.h"

#include "progress/review.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/language_texts.h"
#include "shell/settings.h"

#include <QHeaderView>

#include <array>

namespace progress {

using shell::fromUtf8;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array Headings = {
    //            English            French               Italian German                    Spanish               Latin
    LanguageTexts{"Form",            "Forme",             {},     "Form",                   "Forma",              "Forma"},
    LanguageTexts{"Right",           "Juste",             {},     "Richtig",                "Bien",               "Recte"},
    LanguageTexts{"Answer",          "Réponse",           {},     "Antwort",                "Respuesta",          "Responsum"},
    LanguageTexts{"Written instead", "Écrit à la place",  {},     "Stattdessen geschrieben", "Escrito en su lugar", "Pro eo scriptum"},
};
// clang-format on

// The translation of a word may hold a colon of its own: it is what is expected, or what is asked.
QString unlessTranslation(const Form& form, std::string_view promptOfTranslation, const std::string& text)
{
    const bool ofList = form.name.exercise == shell::exercise::Vcabtester;
    const bool translation = ofList && shell::partsOfPlace(form.name.place)[1] == promptOfTranslation;
    return translation ? fromUtf8(text) : shell::latinText(text);
}

QString asked(const Form& form, const std::string& text)
{
    return unlessTranslation(form, shell::AskedWithTranslation, text);
}

QString answered(const Form& form, const std::string& text)
{
    return unlessTranslation(form, shell::AskedWithWord, text);
}

// Nothing that was written is a dash.
QString writtenInstead(const Form& form)
{
    QStringList texts;
    for (const std::string& written : form.wrongAnswers)
        texts << (written.empty() ? QStringLiteral("–") : answered(form, written));
    return texts.join(QStringLiteral(", "));
}

} // namespace

FormsTable::FormsTable(QWidget* parent) : QTableWidget(0, static_cast<int>(Headings.size()), parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    shell::keepMeasure(*this, "rows", [this](shell::Growth) { fitRows(); });
}

void FormsTable::showForms(std::vector<Form> forms)
{
    QStringList headings;
    for (const LanguageTexts& heading : Headings)
        headings << fromUtf8(heading);
    setHorizontalHeaderLabels(headings);
    sortWorstFirst(forms);
    setRowCount(static_cast<int>(forms.size()));
    for (std::size_t row = 0; row < forms.size(); ++row)
        showForm(static_cast<int>(row), forms[row]);
    fitRows();
    setCurrentCell(0, 0, QItemSelectionModel::NoUpdate);
}

void FormsTable::fitRows()
{
    resizeColumnsToContents();
    resizeRowsToContents();
}

void FormsTable::showForm(int row, const Form& form)
{
    const shell::AnswerRecord question = questionFor(form);
    const std::array texts = {asked(form, question.asked), fromUtf8(textOf(shareOf(form))),
                              answered(form, question.expected), writtenInstead(form)};
    int column = 0;
    for (const QString& text : texts)
        setItem(row, column++, new QTableWidgetItem(text));
}

} // namespace progress
