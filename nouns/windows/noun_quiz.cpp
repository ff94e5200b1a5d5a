#include "nouns/windows/noun_quiz.h"

#include "nouns/noun_question.h"
#include "nouns/windows/case_names.h"
#include "shell/drill.h"
#include "shell/feedback.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/pause.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace nouns {

using shell::Caption;

namespace {

constexpr QSize LargestBlock{88, 38};
constexpr int LinesOfAnswer = 2;

// clang-format off
constexpr std::array Captions = {
    //                       English      French        Italian      German      Spanish      Latin
    Caption{"NQOK",         {"&OK",       "&OK",       "&OK",       "&OK",      "&Si",       "&Ita"}},
    Caption{"NQCancel",     {"&Cancel",   "&Cancel",   "&Cancel",   "&Abbruch", "&Cancelar", "&Reverte!"}},
    Caption{"QuizSingular", {"Singular",  "Singulier", "Singular",  "Einzahl",  "Singular",  "numerus singularis"}},
    Caption{"QuizPlural",   {"Plural",    "Pluriel",   "Plural",    "Mehrzahl", "Plural",    "numerus pluralis"}},
};

constexpr std::array CheckNames = {
    "NominativeSingCheck",   "GenitiveSingCheck",   "DativeSingCheck",   "AccusativeSingCheck",   "AblativeSingCheck",
    "NominativePluralCheck", "GenitivePluralCheck", "DativePluralCheck", "AccusativePluralCheck", "AblativePluralCheck"};

constexpr std::array<const char*, NamedDeclensionCount> Declensions = {
    "First Declension", "Second Declension", "Third Declension", "Third i-stem Declension", "Fourth Declension", "Fifth Declension"};
// clang-format on

// The declension that a paradigm belongs to, by the index of the paradigm.
constexpr std::array DeclensionOf = {0, 1, 1, 1, 4, 4, 5, 2, 2};

} // namespace

NounQuiz::NounQuiz() : Window("NounQuiz")
{
    setWindowTitle(QStringLiteral("Noun Quiz"));
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
    form_ = shell::makeLabel(this, "NounQuizForm");
    info_ = shell::makeLabel(this, "NounQuizInfo");
    indices_ = shell::makeLabel(this, "NounQuizIndices");
    verdict_ = shell::makeLabel(this, "NounQuizVerdict");
    answer_ = shell::makeLabel(this, "NounRightAnswer");
    shell::setBoldType(*form_, shell::TitleType);
    shell::setType(*info_, shell::FormType);
    shell::setType(*indices_, shell::NoteType);
    shell::setBoldType(*verdict_, shell::HeadingType);
    shell::setType(*answer_, shell::FormType);
    answer_->setAlignment(Qt::AlignTop);
    info_->setWordWrap(true);
    info_->setMinimumSize(1, info_->fontMetrics().lineSpacing());
    answer_->setWordWrap(true);
    answer_->setMinimumSize(1, LinesOfAnswer * answer_->fontMetrics().lineSpacing());
    verdict_->setMinimumHeight(verdict_->fontMetrics().lineSpacing());
    for (std::size_t i = 0; i < declensions_.size(); ++i) {
        declensions_.at(i) = new QLabel(QLatin1String(Declensions.at(i)));
        declensions_.at(i)->setObjectName(QStringLiteral("NounQuizDeclension%1").arg(i));
    }
}

void NounQuiz::makeChecks()
{
    singular_ = shell::makeControl<QGroupBox>(this, "QuizSingular");
    plural_ = shell::makeControl<QGroupBox>(this, "QuizPlural");
    for (std::size_t i = 0; i < checks_.size(); ++i) {
        QGroupBox* const frame = i < CasesOfNumber ? singular_ : plural_;
        checks_.at(i) = new QCheckBox(QLatin1String(CaseNames.at(i % CasesOfNumber)), frame);
        checks_.at(i)->setObjectName(QLatin1String(CheckNames.at(i)));
    }
}

void NounQuiz::makeButtons()
{
    options_ = shell::makeButton(this, "NQOptions");
    ok_ = shell::makeButton(this, "NQOK");
    skip_ = shell::makeButton(this, "NQSkip");
    cancel_ = shell::makeButton(this, "NQCancel");
    skip_->setText(QStringLiteral("S&kip"));
    options_->setText(QStringLiteral("O&ptions..."));
}

void NounQuiz::layOut()
{
    auto* const noun = new QHBoxLayout;
    noun->addWidget(info_, 1);
    noun->addWidget(indices_, 0, Qt::AlignRight | Qt::AlignTop);

    auto* const judgement = new QHBoxLayout;
    judgement->setSpacing(shell::LargeSpace);
    judgement->addWidget(verdict_, 0, Qt::AlignTop);
    judgement->addWidget(answer_, 1);

    auto* const rows = new QVBoxLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setSpacing(shell::MediumSpace);
    rows->addWidget(form_);
    rows->addLayout(noun);
    rows->addLayout(checkRow());
    rows->addLayout(judgement);
    rows->addStretch();
    rows->addLayout(buttonRow());
}

QBoxLayout* NounQuiz::checkRow()
{
    for (QGroupBox* const frame : {singular_, plural_}) {
        auto* const column = new QVBoxLayout(frame);
        column->setSpacing(shell::SmallSpace);
        for (QCheckBox* const box : frame->findChildren<QCheckBox*>())
            column->addWidget(box, 0, Qt::AlignLeft);
    }
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::LargeSpace);
    row->addWidget(singular_, 1);
    row->addWidget(plural_, 1);
    auto* const declensions = new QVBoxLayout;
    declensions->addStretch();
    for (QLabel* const label : declensions_)
        declensions->addWidget(label);
    row->addLayout(declensions);
    return row;
}

QBoxLayout* NounQuiz::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(options_);
    row->addStretch();
    row->addWidget(ok_);
    row->addWidget(skip_);
    row->addWidget(cancel_);
    return row;
}

void NounQuiz::connectControls()
{
    for (int i = 0; i < CaseCount; ++i)
        connect(checks_.at(static_cast<std::size_t>(i)), &QCheckBox::toggled, this,
                [this, i](bool ticked) { tick(i, ticked); });
    connect(ok_, &QPushButton::clicked, this, &NounQuiz::check);
    connect(skip_, &QPushButton::clicked, this, &NounQuiz::skip);
    connect(options_, &QPushButton::clicked, this, &NounQuiz::optionsRequested);
    connect(cancel_, &QPushButton::clicked, this, &NounQuiz::left);
}

void NounQuiz::open()
{
    shell::applyCaptions(*this, Captions);
    ask();
    showInMainWindowState();
}

void NounQuiz::ask()
{
    verdict_->clear();
    answer_->clear();
    for (QCheckBox* const box : checks_)
        box->setChecked(false);
    drawNounQuestion();
    form_->setText(shell::fromUtf8(askedForm()));
    info_->setText(shell::fromUtf8(askedNoun()));
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
    const shell::LanguageTexts& verdict = ticksAreRight() ? shell::RightTexts : shell::WrongTexts;
    verdict_->setText(shell::fromUtf8(verdict.currentOrDesigned()));
    answer_->setText(shell::fromUtf8(rightCasesInWords()));
    if (shell::pauseWithDrill())
        ask();
}

// A judged answer that is still shown gives way at once: leaving ends its pause.
void NounQuiz::skip()
{
    shell::leaveDrill();
    ask();
}

} // namespace nouns
