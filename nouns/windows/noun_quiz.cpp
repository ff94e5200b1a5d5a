#include "nouns/windows/noun_quiz.h"

#include "nouns/noun_question.h"
#include "nouns/noun_records.h"
#include "nouns/windows/case_names.h"
#include "shell/drill.h"
#include "shell/feedback.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/pause.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPalette>
#include <QPushButton>

namespace nouns {

using shell::Caption;
using shell::makeButton;
using shell::makeHeading;
using shell::makeLabel;
using shell::makeScore;
using shell::Part;
using shell::rowOf;

namespace {

constexpr QSize LargestBlock{88, shell::AsItsLines};
constexpr int LinesOfAnswer = 2;

// clang-format off
constexpr std::array Captions = {
    //                       English        French                 Italian        German            Spanish              Latin
    Caption{"NounQuiz",     {"Noun Quiz",   "Quiz de substantifs", "Noun Quiz",   "Substantivquiz", "Prueba de nombres", "Probatio nominum"}},
    Caption{"NQOK",         {"&OK",         "&OK",                 "&OK",         "&OK",            "&Si",               "&Ita"}},
    Caption{"NQSkip",       {"S&kip",       "P&asser",             "S&kip",       "Aus&lassen",     "S&altar",           "&Transgredire!"}},
    Caption{"NQCancel",     {"&Cancel",     "&Cancel",             "&Cancel",     "&Abbruch",       "&Cancelar",         "&Reverte!"}},
    Caption{"NQOptions",    {"O&ptions...", "O&ptions...",         "O&ptions...", "O&ptionen...",   "&Opciones...",      "O&ptiones..."}},
    Caption{"QuizSingular", {"Singular",    "Singulier",           "Singular",    "Einzahl",        "Singular",          "numerus singularis"}},
    Caption{"QuizPlural",   {"Plural",      "Pluriel",             "Plural",      "Mehrzahl",       "Plural",            "numerus pluralis"}},
};

constexpr std::array CheckNames = {
    "NominativeSingCheck",   "GenitiveSingCheck",   "DativeSingCheck",   "AccusativeSingCheck",   "AblativeSingCheck",
    "NominativePluralCheck", "GenitivePluralCheck", "DativePluralCheck", "AccusativePluralCheck", "AblativePluralCheck"};

constexpr std::array<std::string_view, NamedDeclensionCount> Declensions = {
    "First Declension", "Second Declension", "Third Declension", "Third i-stem Declension", "Fourth Declension", "Fifth Declension"}; // sic: no noun of the third i-stem is asked
// clang-format on

// The colours of a verdict on a light window and on a dark one. Red is the darker one of each pair, so that
// who sees both hues alike tells them apart; each stands out from the window.
struct VerdictColours {
    QRgb onLight;
    QRgb onDark;
};

constexpr VerdictColours Green = {0xFF2A772E, 0xFF8BE08F};
constexpr VerdictColours Red = {0xFF8B0000, 0xFFFF7B72};

QRgb colourOn(const QPalette& palette, const VerdictColours& colours)
{
    const bool dark =
        palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return dark ? colours.onDark : colours.onLight;
}

// The declension that a paradigm belongs to, by the index of the paradigm.
constexpr std::array DeclensionOf = {0, 1, 1, 1, 4, 4, 5, 2, 2};

} // namespace

NounQuiz::NounQuiz() : Window("NounQuiz")
{
    makeControls();
    makeChecks();
    makeButtons();
    layOut();
    connectControls();
    closeOnEscape();
    shell::applyDesignedCaptions(*this, Captions);
}

void NounQuiz::makeControls()
{
    form_ = makeHeading(this, "NounQuizForm", shell::TitleType);
    info_ = makeLabel(this, "NounQuizInfo", shell::FormType);
    indices_ = makeLabel(this, "NounQuizIndices", shell::NoteType);
    score_ = makeScore(this, "NounQuizScore");
    verdict_ = makeHeading(this, "NounVerdict", shell::HeadingType);
    answer_ = makeLabel(this, "NounRightAnswer", shell::FormType);
    answer_->setAlignment(Qt::AlignTop);
    shell::wrapText(*info_, 1);
    shell::wrapText(*answer_, LinesOfAnswer);
    for (std::size_t i = 0; i < declensions_.size(); ++i) {
        declensions_.at(i) = makeLabel(this, QStringLiteral("NounQuizDeclension%1").arg(i));
        declensions_.at(i)->setText(shell::fromUtf8(Declensions.at(i)));
    }
}

void NounQuiz::makeChecks()
{
    singular_ = shell::makeControl<QGroupBox>(this, "QuizSingular");
    plural_ = shell::makeControl<QGroupBox>(this, "QuizPlural");
    for (std::size_t i = 0; i < checks_.size(); ++i) {
        QGroupBox* const frame = i < CasesOfNumber ? singular_ : plural_;
        checks_.at(i) = shell::makeControl<QCheckBox>(frame, CheckNames.at(i));
        checks_.at(i)->setText(shell::fromUtf8(CaseNames.at(i % CasesOfNumber)));
    }
}

void NounQuiz::makeButtons()
{
    options_ = makeButton(this, "NQOptions");
    ok_ = makeButton(this, "NQOK");
    skip_ = makeButton(this, "NQSkip");
    cancel_ = makeButton(this, "NQCancel");
}

void NounQuiz::layOut()
{
    layOutLines(LargestBlock, shell::DrillMargins,
                {rowOf(shell::MediumSpace, {{form_, 1}, {score_, 0, Qt::AlignTop}}),
                 rowOf(shell::MediumSpace, {{info_, 1}, {indices_, 0, Qt::AlignRight | Qt::AlignTop}}),
                 checkRow(), rowOf(shell::LargeSpace, {{verdict_, 0, Qt::AlignTop}, {answer_, 1}}),
                 shell::buttonRow({options_}, {ok_, skip_, cancel_})});
}

QBoxLayout* NounQuiz::checkRow()
{
    for (QGroupBox* const frame : {singular_, plural_}) {
        QBoxLayout* const column = shell::columnOf(shell::SmallSpace, {});
        for (QCheckBox* const box : frame->findChildren<QCheckBox*>())
            column->addWidget(box, 0, Qt::AlignLeft);
        frame->setLayout(column);
    }
    QBoxLayout* const declensions = shell::columnOf(shell::LargeSpace, {Part::gap()});
    for (QLabel* const label : declensions_)
        declensions->addWidget(label);
    return rowOf(shell::LargeSpace, {{singular_, 1}, {plural_, 1}, declensions});
}

void NounQuiz::connectControls()
{
    for (int i = 0; i < CaseCount; ++i)
        connect(checks_.at(static_cast<std::size_t>(i)), &QCheckBox::toggled, this,
                [this, i](bool ticked) { tick(i, ticked); });
    for (QCheckBox* const box : checks_)
        shell::onEnter(*box, [this] { check(); });
    connect(ok_, &QPushButton::clicked, this, &NounQuiz::check);
    connect(skip_, &QPushButton::clicked, this, &NounQuiz::skip);
    connect(options_, &QPushButton::clicked, this, &NounQuiz::optionsRequested);
    connect(cancel_, &QPushButton::clicked, this, &NounQuiz::left);
}

void NounQuiz::open()
{
    shell::applyCaptions(*this, Captions);
    beginNounQuiz();
    score_->clear();
    ask();
    showInMainWindowState();
    shell::setFocusInSight(*checks_.front());
}

bool NounQuiz::verdictStands() const
{
    return !verdict_->text().isEmpty();
}

void NounQuiz::ask()
{
    verdict_->clear();
    answer_->clear();
    for (QCheckBox* const box : checks_)
        box->setChecked(false);
    drawNounQuestion();
    form_->setText(shell::latinText(askedForm()));
    info_->setText(shell::latinText(askedNoun()));
    indices_->setText(shell::fromUtf8(drawnIndexes()));
    const int drawn = DeclensionOf.at(static_cast<std::size_t>(nounQuestion.QuizParadigmIndex));
    for (int i = 0; i < NamedDeclensionCount; ++i) {
        QLabel& label = *declensions_.at(static_cast<std::size_t>(i));
        i == drawn ? shell::setBoldType(label, 1) : shell::setType(label, 1);
    }
    checks_.front()->setFocus();
}

void NounQuiz::tick(int caseIndex, bool ticked)
{
    nounQuestion.QuizTickedCases[caseIndex] = platform::flagOf(ticked);
}

void NounQuiz::check()
{
    if (shell::pausing() || !isVisible())
        return;
    const bool right = judgeTicks();
    shell::tellAnswer(recordOfTicks(right));
    const shell::LanguageTexts& verdict = right ? shell::RightTexts : shell::WrongTexts;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colourOn(colours, right ? Green : Red));
    verdict_->setPalette(colours);
    verdict_->setText(shell::fromUtf8(verdict));
    score_->setText(shell::fromUtf8(nounQuizScore()));
    answer_->setText(shell::fromUtf8(rightCasesInWords()));
    if (shell::pauseWithDrill())
        ask();
}

// A judged answer that is still shown gives way at once.
void NounQuiz::skip()
{
    shell::endPause();
    ask();
}

} // namespace nouns
