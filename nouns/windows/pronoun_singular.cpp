#include "nouns/windows/pronoun_singular.h"

#include "nouns/case_order.h"
#include "nouns/windows/case_names.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "shell/windows/answer_box.h"
#include "shell/windows/captions.h"
#include "shell/windows/controls.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace nouns {

using shell::AnswerBox;
using shell::Caption;
using shell::LanguageTexts;

namespace {

constexpr QSize LargestBlock{100, 34};

// The Spanish heading of is-ea-id is meant to keep the English "(this/that)". French and Italian keep the
// texts that the window is designed with.
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
    LanguageTexts{"Demonstratives: is-ea-id (this/that)",   {},     {},      "Demonstrative Pronomen: is-ea-id (dieser/jener)", "Pronombres demostrativos: is-ea-id (this/that)",      "Pronomina Demonstrativa: is-ea-id"},
    LanguageTexts{"Demonstratives: hic-haec-hoc (this)",    {},     {},      "Demonstrative Pronomen: hic-haec-hoc (dieser)",   "Pronombres demostrativos: hic-haec-hoc (este)",       "Pronomina Demonstrativa: hic-haec-hoc"},
    LanguageTexts{"Demonstratives: ille-illa-illud (that)", {},     {},      "Demonstrative Pronomen: ille-illa-illud (jener)", "Pronombres demostrativos: ille-illa-illud (aquél)",   "Pronomina Demonstrativa: ille-illa-illud"},
    LanguageTexts{"Relatives: qui-quae-quod (who/which)",   {},     {},      "Relative Pronomen: qui-quae-quod (derjeniger)",   "Pronombres relativos: qui-quae-quod (quien/el cual)", "Pronomina Relativa: qui-quae-quod"},
}};

using ColumnTexts = std::array<const char*, ColumnsOfGroup>;
constexpr ColumnTexts SingularPersons = {"1 Pers. Sing.", "2 Pers. Sing.", "3 Pers. Sing."};
constexpr ColumnTexts PluralPersons   = {"1 Pers. Plur.", "2 Pers. Plur.", "3 Pers. Plur."};
constexpr ColumnTexts SingularGenders = {"Masc. Sing.",   "Fem. Sing.",    "Neut. Sing."};
constexpr ColumnTexts PluralGenders   = {"Masc. Plur.",   "Fem. Plur.",    "Neut. Plur."};
// clang-format on

constexpr std::array ColumnLabels = {"ColumnLabel1", "ColumnLabel2", "ColumnLabel3"};
constexpr std::array CaseLabels = {"NominativeLabel", "GenitiveLabel", "DativeLabel", "AccusativeLabel",
                                   "AblativeLabel"};

constexpr int PersonalGroup = 0;

const ColumnTexts& columnTexts()
{
    const bool singular = pronounDrill.FirstCase == NominativeSingular;
    if (pronounDrill.Group == PersonalGroup)
        return singular ? SingularPersons : PluralPersons;
    return singular ? SingularGenders : PluralGenders;
}

} // namespace

PronounSingular::PronounSingular() : Window("PronounSingular", "pronoun")
{
    makeControls();
    makeBoxes();
    layOut();
    connectControls();
    shell::applyDesignedCaptions(*this, Captions);
    shell::registerDrill(shell::exercise::Pronouns, *this);
}

PronounSingular::~PronounSingular()
{
    shell::unregisterDrill(shell::exercise::Pronouns);
}

void PronounSingular::makeControls()
{
    heading_ = shell::makeLabel(this, "HeadingLabel");
    score_ = shell::makeLabel(this, "ScoreLabel");
    shell::setBoldType(*heading_, shell::HeadingType);
    shell::setBoldType(*score_, shell::HeadingType);
    heading_->setWordWrap(true);
    heading_->setMinimumSize(1, heading_->fontMetrics().lineSpacing());
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_.at(i) = shell::makeLabel(this, ColumnLabels.at(i));
    ok_ = shell::makeButton(this, "PronounOK");
    cancel_ = shell::makeButton(this, "PronounCancel");
}

void PronounSingular::makeBoxes()
{
    for (int cell = 1; cell <= CellCount; ++cell) {
        auto* const box = new AnswerBox(this);
        box->setObjectName(QStringLiteral("Pronoun%1").arg(cell));
        boxes_.at(static_cast<std::size_t>(cell - 1)) = box;
    }
    for (std::size_t i = 0; i < cases_.size(); ++i) {
        cases_.at(i) = shell::makeLabel(this, CaseLabels.at(i));
        cases_.at(i)->setText(QLatin1String(CaseNames.at(i)));
        cases_.at(i)->setBuddy(boxes_.at(i));
    }
}

void PronounSingular::layOut()
{
    auto* const rows = new QVBoxLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setSpacing(shell::MediumSpace);
    rows->addLayout(headingRow());
    rows->addSpacing(shell::SmallSpace);
    rows_ = new QGridLayout;
    rows_->setHorizontalSpacing(shell::LargeSpace);
    rows_->setVerticalSpacing(shell::SmallSpace);
    for (int column = 0; column < ColumnsOfGroup; ++column) {
        rows_->addWidget(columns_.at(static_cast<std::size_t>(column)), 0, column + 1);
        rows_->setColumnStretch(column + 1, 1);
    }
    rows->addLayout(rows_);
    rows->addStretch();
    rows->addLayout(buttonRow());
}

QBoxLayout* PronounSingular::headingRow()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(heading_, 1);
    row->addWidget(score_, 0, Qt::AlignRight | Qt::AlignTop);
    return row;
}

QBoxLayout* PronounSingular::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(shell::makeLabel(this, "HelpLabel"));
    row->addStretch();
    row->addWidget(ok_);
    row->addWidget(cancel_);
    return row;
}

void PronounSingular::placeRows()
{
    int row = 1;
    for (const int inCase : casesInOrder()) {
        rows_->addWidget(cases_.at(static_cast<std::size_t>(inCase)), row, 0);
        for (int column = 0; column < ColumnsOfGroup; ++column)
            rows_->addWidget(&boxOf(column * CasesOfNumber + inCase + 1), row, column + 1);
        ++row;
    }
}

void PronounSingular::connectControls()
{
    for (int cell = 1; cell <= CellCount; ++cell) {
        const AnswerBox* const box = &boxOf(cell);
        connect(box, &AnswerBox::focusReceived, this, [this, cell] { boxReceivedFocus(cell); });
        connect(box, &AnswerBox::hintRequested, this, &PronounSingular::hint);
        connect(box, &AnswerBox::returnPressed, this, &PronounSingular::check);
    }
    connect(ok_, &QPushButton::clicked, this, &PronounSingular::check);
    connect(cancel_, &QPushButton::clicked, this, &PronounSingular::quit);
}

void PronounSingular::open()
{
    shell::applyDesignedCaptions(*this, Captions);
    shell::applyCaptions(*this, Captions);
    placeRows();
    beginPronouns();
    heading_->setText(
        shell::fromUtf8(Headings.at(static_cast<std::size_t>(pronounDrill.Group)).designedOrCurrent()));
    showNumber();
    score_->clear();
    showInMainWindowState();
    focusQuestion();
}

void PronounSingular::showNumber()
{
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_.at(i)->setText(QLatin1String(columnTexts().at(i)));
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_.at(i)->setEnabled(!pronounFormAt(static_cast<int>(i) + 1).empty());
        boxes_.at(i)->setAccessibleName(cases_.at(i % CasesOfNumber)->text() + QLatin1Char(' ') +
                                        columns_.at(i / CasesOfNumber)->text());
    }
    emptyBoxes();
}

AnswerBox& PronounSingular::boxOf(int cell)
{
    return *boxes_.at(static_cast<std::size_t>(cell - 1));
}

AnswerBox& PronounSingular::askedBox()
{
    return boxOf(pronounDrill.CurrentCell);
}

void PronounSingular::showQuestion()
{
    setPronounQuestion();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const bool asked = boxes_.at(i) == &askedBox();
        if (!asked && !answered_.at(i))
            boxes_.at(i)->lookIdle();
        boxes_.at(i)->setAsked(asked && !shell::pausing());
    }
}

// Only the box that is asked may hold the focus.
void PronounSingular::boxReceivedFocus(int cell)
{
    if (cell != pronounDrill.CurrentCell)
        QMetaObject::invokeMethod(this, &PronounSingular::focusQuestion, Qt::QueuedConnection);
}

void PronounSingular::check()
{
    if (shell::pausing() || !isVisible())
        return;
    const bool right = isRightPronoun(askedBox().text().toStdString());
    holdBoxes();
    Q_EMIT answerJudged(right);
}

void PronounSingular::hint()
{
    if (shell::pausing() || !isVisible())
        return;
    const int session = shell::drillSession();
    holdBoxes();
    askedBox().lookRevealed();
    askedBox().setText(shell::fromUtf8(pronounDrill.ExpectedAnswer));
    askedBox().repaint();
    shell::Pause();
    if (session != shell::drillSession())
        return;
    askedBox().lookBlack();
    askAgain();
}

void PronounSingular::quit()
{
    emptyBoxes();
    Q_EMIT left();
}

void PronounSingular::closeBoxPressed()
{
    quit();
}

void PronounSingular::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        quit();
    else
        Window::keyPressEvent(event);
}

void PronounSingular::showScore(const std::string& text)
{
    score_->setText(shell::fromUtf8(text));
}

void PronounSingular::greyAnsweredBox()
{
    askedBox().lookAnswered();
    answered_.at(static_cast<std::size_t>(pronounDrill.CurrentCell - 1)) = true;
}

void PronounSingular::moveOn()
{
    if (advancePronouns() == PronounAdvance::NextNumber)
        showNumber();
}

void PronounSingular::focusQuestion()
{
    showQuestion();
    askedBox().setFocus();
}

void PronounSingular::askAgain()
{
    askedBox().clear();
    focusQuestion();
}

void PronounSingular::emptyBoxes()
{
    answered_.fill(false);
    for (AnswerBox* const box : boxes_) {
        box->clear();
        box->lookIdle();
    }
}

// What is typed while an answer is judged or shown belongs to no box.
void PronounSingular::holdBoxes()
{
    for (AnswerBox* const box : boxes_)
        box->setReadOnly(true);
}

} // namespace nouns
