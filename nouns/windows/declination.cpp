#include "nouns/windows/declination.h"

#include "nouns/case_order.h"
#include "nouns/declension_drill.h"
#include "nouns/noun_tables.h"
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
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace nouns {

using shell::AnswerBox;
using shell::Caption;

namespace {

constexpr QSize LargestBlock{92, 36};

// Places of the window: its frames, and the rows in a frame.
constexpr int TwipsOfPixel = 15;
constexpr int FrameTop = 1890 / TwipsOfPixel;
constexpr int FirstRowTop = 360 / TwipsOfPixel;
constexpr int RowHeight = 600 / TwipsOfPixel;

constexpr int LabelColumn = 0;
constexpr int BoxColumn = 1;

constexpr std::array CaseLabels = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};

// The French title "Nomes" and the Latin "Auxilium=F1" are meant.
// clang-format off
constexpr std::array Captions = {
    //                         English        French         Italian        German          Spanish        Latin
    Caption{"HelpLabel",      {"Help = F1",   "Aide = F1",   "Help = F1",   "Hilfe = F1",   "Ayuda = F1",  "Auxilium=F1"}},
    Caption{"Continue",       {"&OK",         "&OK",         "&OK",         "&OK",          "&Si",         "&Ita"}},
    Caption{"DeclQuitButton", {"&Quit",       "&Cancel",     "&Quit",       "&Abbruch",     "&Cancelar",   "&Reverte!"}},
    Caption{"Declination",    {"Nouns",       "Nomes",       "Nouns",       "Substantive",  "Nombres",     "Nomina"}},
    Caption{"Frame1",         {"Singular",    "Singulier",   "Singular",    "Einzahl",      "Singular",    "numerus singularis"}},
    Caption{"Frame2",         {"Plural",      "Pluriel",     "Plural",      "Mehrzahl",     "Plural",      "numerus pluralis"}},
};
// clang-format on

QGroupBox* makeFrame(QWidget* parent, const char* name)
{
    auto* const frame = new QGroupBox(parent);
    frame->setObjectName(QLatin1String(name));
    return frame;
}

} // namespace

Declination::Declination() : Window("Declination", "declination")
{
    setWindowModality(Qt::ApplicationModal);
    makeControls();
    makeBoxes();
    layOut();
    connectControls();
    shell::applyDesignedCaptions(*this, Captions);
    shell::registerDrill(shell::exercise::Declination, *this);
}

Declination::~Declination()
{
    shell::unregisterDrill(shell::exercise::Declination);
}

void Declination::makeControls()
{
    heading_ = shell::makeLabel(this, "HeadingLabel");
    noun_ = shell::makeLabel(this, "NounLabel");
    score_ = shell::makeLabel(this, "ScoreLabel");
    shell::setType(*heading_, shell::FormType);
    shell::setBoldType(*noun_, shell::HeadingType);
    shell::setBoldType(*score_, shell::HeadingType);
    noun_->setWordWrap(true);
    noun_->setMinimumSize(1, noun_->fontMetrics().lineSpacing());
    singular_ = makeFrame(this, "Frame1");
    plural_ = makeFrame(this, "Frame2");
    continue_ = shell::makeButton(this, "Continue");
    question_ = shell::makeButton(this, "DeclQuestion");
    quit_ = shell::makeButton(this, "DeclQuitButton");
    question_->setText(QStringLiteral("?"));
    question_->setAccessibleName(QStringLiteral("Show the answer"));
    dummy_ = new QWidget(this);
    dummy_->setObjectName(QStringLiteral("DDummy"));
    dummy_->resize(1, 1);
}

void Declination::makeBoxes()
{
    for (int i = 0; i < CaseCount; ++i) {
        auto* const box = new AnswerBox(i < CasesOfNumber ? singular_ : plural_);
        box->setObjectName(QStringLiteral("DeclText%1").arg(i));
        boxes_.at(static_cast<std::size_t>(i)) = box;
    }
    for (std::size_t i = 0; i < cases_.size(); ++i) {
        cases_.at(i) = shell::makeLabel(singular_, CaseLabels.at(i));
        cases_.at(i)->setText(QLatin1String(CaseNames.at(i)));
        cases_.at(i)->setBuddy(boxes_.at(i));
        cases_.at(i)->setMinimumHeight(boxes_.at(i)->sizeHint().height());
    }
}

void Declination::layOut()
{
    auto* const rows = new QGridLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setVerticalSpacing(shell::MediumSpace);
    rows->addLayout(headingRow(), 0, 0);
    rows->addLayout(frameRow(), 1, 0);
    rows->setRowStretch(2, 1);
    rows->addLayout(buttonRow(), 3, 0);
}

QBoxLayout* Declination::headingRow()
{
    auto* const names = new QVBoxLayout;
    names->setSpacing(shell::HairSpace);
    names->addWidget(heading_);
    names->addWidget(noun_, 1, Qt::AlignTop);
    auto* const row = new QHBoxLayout;
    row->addLayout(names, 1);
    row->addWidget(score_, 0, Qt::AlignRight | Qt::AlignTop);
    // Gives way on a small screen, where the buttons matter more than the frames' place.
    row->addSpacerItem(new QSpacerItem(0, FrameTop - shell::LargeSpace - shell::MediumSpace,
                                       QSizePolicy::Fixed, QSizePolicy::Maximum));
    return row;
}

QBoxLayout* Declination::frameRow()
{
    singularRows_ = new QGridLayout(singular_);
    pluralRows_ = new QGridLayout(plural_);
    for (QGridLayout* const rows : {singularRows_, pluralRows_}) {
        rows->setHorizontalSpacing(shell::MediumSpace);
        rows->setVerticalSpacing(0);
        rows->setColumnStretch(BoxColumn, 1);
        for (int row = 0; row < CasesOfNumber; ++row)
            rows->setRowMinimumHeight(row, RowHeight);
    }
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::LargeSpace);
    row->addWidget(singular_, 4);
    row->addWidget(plural_, 3);
    return row;
}

QBoxLayout* Declination::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(shell::makeLabel(this, "HelpLabel"));
    row->addStretch();
    row->addWidget(continue_);
    row->addWidget(question_);
    row->addWidget(quit_);
    return row;
}

void Declination::placeRows()
{
    int row = 0;
    for (const int inCase : casesInOrder()) {
        const auto singular = static_cast<std::size_t>(inCase);
        singularRows_->addWidget(cases_.at(singular), row, LabelColumn, Qt::AlignTop);
        singularRows_->addWidget(boxes_.at(singular), row, BoxColumn, Qt::AlignTop);
        pluralRows_->addWidget(boxes_.at(singular + CasesOfNumber), row, BoxColumn, Qt::AlignTop);
        ++row;
    }
    const int belowTitle = std::max(shell::HairSpace, FirstRowTop - singular_->contentsMargins().top());
    for (QGridLayout* const rows : {singularRows_, pluralRows_})
        rows->setContentsMargins(shell::MediumSpace, belowTitle, shell::MediumSpace, shell::SmallSpace);
}

void Declination::connectControls()
{
    for (int i = 0; i < CaseCount; ++i) {
        const AnswerBox* const box = boxes_.at(static_cast<std::size_t>(i));
        connect(box, &AnswerBox::focusReceived, this, [this, i] { boxReceivedFocus(i); });
        connect(box, &AnswerBox::hintRequested, this, &Declination::hint);
        connect(box, &AnswerBox::returnPressed, this, &Declination::check);
    }
    connect(continue_, &QPushButton::clicked, this, &Declination::check);
    connect(question_, &QPushButton::clicked, this, &Declination::hint);
    connect(quit_, &QPushButton::clicked, this, &Declination::quit);
}

void Declination::open()
{
    shell::applyDesignedCaptions(*this, Captions);
    shell::applyCaptions(*this, Captions);
    placeRows();
    drawDeclension();
    showNoun();
    score_->clear();
    showInMainWindowState();
    focusQuestion();
}

void Declination::showNoun()
{
    const int paradigm = declensionDrill.DrillParadigm;
    heading_->setText(shell::fromUtf8(nounTables.DeclensionHeading[paradigm]));
    noun_->setText(shell::fromUtf8(nounName(paradigm)));
    emptyBoxes();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QGroupBox* const frame = i < CasesOfNumber ? singular_ : plural_;
        boxes_.at(i)->setAccessibleName(cases_.at(i % CasesOfNumber)->text() + QLatin1Char(' ') +
                                        frame->title());
    }
}

AnswerBox& Declination::askedBox()
{
    return *boxes_.at(static_cast<std::size_t>(declensionDrill.CurrentCaseIndex));
}

void Declination::showQuestion()
{
    setDeclensionQuestion();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const bool asked = boxes_.at(i) == &askedBox();
        if (!asked && !answered_.at(i))
            boxes_.at(i)->lookIdle();
        boxes_.at(i)->setAsked(asked && !shell::pausing());
    }
}

// Only the box that is asked may hold the focus.
void Declination::boxReceivedFocus(int box)
{
    returnToQuestion();
    if (box != declensionDrill.CurrentCaseIndex)
        QMetaObject::invokeMethod(this, &Declination::focusQuestion, Qt::QueuedConnection);
}

void Declination::check()
{
    if (shell::pausing() || !isVisible())
        return;
    const Judgement judgement = judgeDeclension(askedBox().text().toStdString());
    if (judgement == Judgement::NotAgain)
        return;
    holdBoxes();
    Q_EMIT answerJudged(judgement == Judgement::Right);
}

void Declination::hint()
{
    if (shell::pausing() || !isVisible())
        return;
    const int session = shell::drillSession();
    holdBoxes();
    askedBox().lookRevealed();
    askedBox().setText(shell::fromUtf8(declensionDrill.ExpectedAnswer));
    askedBox().repaint();
    dummy_->setFocus();
    shell::Pause();
    if (session != shell::drillSession())
        return;
    askedBox().lookBlack();
    askAgain();
}

void Declination::quit()
{
    emptyBoxes();
    leaveDeclension();
    Q_EMIT left();
}

void Declination::closeBoxPressed()
{
    quit();
}

void Declination::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        quit();
    else
        Window::keyPressEvent(event);
}

void Declination::showScore(const std::string& text)
{
    score_->setText(shell::fromUtf8(text));
}

void Declination::greyAnsweredBox()
{
    askedBox().lookAnswered();
    answered_.at(static_cast<std::size_t>(declensionDrill.CurrentCaseIndex)) = true;
}

void Declination::moveOn()
{
    if (advanceDeclension() == DeclensionAdvance::NextRound)
        showNoun();
}

void Declination::focusQuestion()
{
    returnToQuestion();
    showQuestion();
    askedBox().setFocus();
}

void Declination::askAgain()
{
    askedBox().clear();
    focusQuestion();
}

void Declination::emptyBoxes()
{
    answered_.fill(false);
    for (AnswerBox* const box : boxes_) {
        box->clear();
        box->lookIdle();
    }
}

// What is typed while an answer is judged or shown belongs to no box.
void Declination::holdBoxes()
{
    for (AnswerBox* const box : boxes_)
        box->setReadOnly(true);
}

} // namespace nouns
