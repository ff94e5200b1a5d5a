#include "nouns/windows/pronoun_singular.h"

#include "nouns/case_order.h"
#include "nouns/noun_records.h"
#include "nouns/pronoun_columns.h"
#include "nouns/windows/case_names.h"
#include "shell/kit/answer_box.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/settings.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace nouns {

using shell::Caption;
using shell::LanguageTexts;
using shell::Part;

namespace {

constexpr QSize LargestBlock{100, shell::AsItsLines};

// French and Italian keep the texts that the window is designed with.
// clang-format off
constexpr std::array Captions = {
    //                          English      French  Italian  German        Spanish       Latin
    Caption{"PronounSingular", {"Pronouns",  {},     {},      "Pronomen",   "Pronombres", "Pronomina"}},
    Caption{"HelpLabel",       {"Help = F1", {},     {},      "Hilfe = F1", "Ayuda = F1", "Auxilium=F1"}},
    Caption{"PronounOK",       {"&OK",       {},     {},      "&OK",        "&Si",        "&Ita"}},
    Caption{"PronounCancel",   {"&Cancel",   {},     {},      "&Abbruch",   "&Cancelar",  "&Reverte!"}},
};

constexpr std::array<LanguageTexts, PronounGroupCount> Headings = {{
    //            English                                   French  Italian  German                                             Spanish                                                Latin
    LanguageTexts{"Personal Pronouns: ego, tu, ***",        {},     {},      "Persönliche Pronomen: ego, tu, ***",              "Pronombres personales: ego, tu, ***",                 "Pronomina Personalia: ego, tu, ***"},
    LanguageTexts{"Demonstratives: is-ea-id (this/that)",   {},     {},      "Demonstrative Pronomen: is-ea-id (dieser/jener)", "Pronombres demostrativos: is-ea-id (this/that)",      "Pronomina Demonstrativa: is-ea-id"}, // sic: Spanish
    LanguageTexts{"Demonstratives: hic-haec-hoc (this)",    {},     {},      "Demonstrative Pronomen: hic-haec-hoc (dieser)",   "Pronombres demostrativos: hic-haec-hoc (este)",       "Pronomina Demonstrativa: hic-haec-hoc"},
    LanguageTexts{"Demonstratives: ille-illa-illud (that)", {},     {},      "Demonstrative Pronomen: ille-illa-illud (jener)", "Pronombres demostrativos: ille-illa-illud (aquél)",   "Pronomina Demonstrativa: ille-illa-illud"},
    LanguageTexts{"Relatives: qui-quae-quod (who/which)",   {},     {},      "Relative Pronomen: qui-quae-quod (derjeniger)",   "Pronombres relativos: qui-quae-quod (quien/el cual)", "Pronomina Relativa: qui-quae-quod"},
}};
// clang-format on

constexpr std::array ColumnLabels = {"ColumnLabel1", "ColumnLabel2", "ColumnLabel3"};
constexpr std::array CaseLabels = {"NominativeLabel", "GenitiveLabel", "DativeLabel", "AccusativeLabel",
                                   "AblativeLabel"};

} // namespace

PronounSingular::PronounSingular() : BoxDrill("PronounSingular", "pronoun", shell::exercise::Pronouns)
{
    makeControls();
    makeBoxes();
    layOut();
}

void PronounSingular::makeControls()
{
    heading_ = shell::makeLongHeading(this, "HeadingLabel", shell::QuestionType);
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_.at(i) = shell::makeLabel(this, ColumnLabels.at(i));
}

void PronounSingular::makeBoxes()
{
    for (int cell = 1; cell <= CellCount; ++cell)
        addBox(this, QStringLiteral("Pronoun%1").arg(cell));
    for (std::size_t i = 0; i < cases_.size(); ++i) {
        cases_.at(i) = shell::makeLabelOf(boxes().at(i), CaseLabels.at(i));
        cases_.at(i)->setText(shell::fromUtf8(CaseNames.at(i)));
    }
}

void PronounSingular::layOut()
{
    rows_ = shell::gridOf(shell::LargeSpace, shell::SmallSpace);
    for (int column = 0; column < ColumnsOfGroup; ++column) {
        rows_->addWidget(columns_.at(static_cast<std::size_t>(column)), 0, column + 1);
        rows_->setColumnStretch(column + 1, 1);
    }
    headingRow_ = withScore({heading_, 1});
    layOutLines(LargestBlock, shell::DrillMargins,
                {headingRow_, Part::space(shell::SmallSpace), rows_, whyLabel(),
                 helpAndButtons({makeCheckButton("PronounOK"), makeQuestionButton("PronounQuestion"),
                                 makeQuitButton("PronounCancel")})});
}

void PronounSingular::placeRows()
{
    int row = 1;
    for (const int inCase : casesInOrder()) {
        rows_->addWidget(cases_.at(static_cast<std::size_t>(inCase)), row, 0);
        for (int column = 0; column < ColumnsOfGroup; ++column)
            rows_->addWidget(&box(column * CasesOfNumber + inCase), row, column + 1);
        ++row;
    }
}

void PronounSingular::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    placeRows();
    beginPronouns();
    heading_->setText(
        shell::fromUtf8(Headings.at(static_cast<std::size_t>(pronounDrill.Group)).currentOrDesigned()));
    showNumber();
    scoreLabel()->clear();
    showPlace(FormOf, placeOfCell());
    widenFor(*headingRow_);
    showInMainWindowState();
    focusQuestion();
}

void PronounSingular::showNumber()
{
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_.at(i)->setText(
            shell::fromUtf8(columnTexts(pronounDrill.Group, pronounDrill.FirstCase).at(i)));
    for (std::size_t i = 0; i < boxes().size(); ++i) {
        boxes().at(i)->setEnabled(!pronounFormAt(static_cast<int>(i) + 1).empty());
        boxes().at(i)->setAccessibleName(cases_.at(i % CasesOfNumber)->text() + QLatin1Char(' ') +
                                         columns_.at(i / CasesOfNumber)->text());
    }
    emptyBoxes();
}

int PronounSingular::askedBoxNumber() const
{
    return pronounDrill.CurrentCell - 1;
}

void PronounSingular::setQuestion()
{
    setPronounQuestion();
    showPlace(FormOf, placeOfCell());
}

std::optional<bool> PronounSingular::judge(const std::string& typed)
{
    const bool right = isRightPronoun(typed);
    shell::tellAnswer(recordOfPronoun(typed, right));
    return right;
}

std::string PronounSingular::answer() const
{
    return pronounDrill.ExpectedAnswer;
}

std::optional<shell::LanguageTexts> PronounSingular::answersAnother(const std::string& typed) const
{
    return answersAnotherCell(typed) ? std::optional(OtherForm) : std::nullopt;
}

void PronounSingular::quit()
{
    emptyBoxes();
    Q_EMIT left();
}

void PronounSingular::moveOn()
{
    if (advancePronouns() == PronounAdvance::NextNumber)
        showNumber();
}

} // namespace nouns
