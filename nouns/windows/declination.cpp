#include "nouns/windows/declination.h"

#include "nouns/case_order.h"
#include "nouns/declension_drill.h"
#include "nouns/noun_records.h"
#include "nouns/noun_tables.h"
#include "nouns/windows/case_names.h"
#include "shell/kit/answer_box.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/settings.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace nouns {

using shell::Caption;
using shell::Part;
using shell::settings;

namespace {

constexpr QSize LargestBlock{92, shell::AsItsLines};

// Places in twips: of the frames and the names of the cases in the window, of the boxes in their frame. The
// last row ends where a sixth would begin.
using RowTops = std::array<int, CasesOfNumber + 1>;
constexpr int TwipsOfPixel = 15;
constexpr int FrameTop = 1890;
constexpr RowTops BoxTops = {360, 960, 1560, 2160, 2760, 3360};
constexpr RowTops NameTops = {2250, 2850, 3450, 4050, 4650, 5250};
constexpr RowTops NameTopsWithAccusativeSecond = {2250, 2850, 3465, 4050, 4650, 5250}; // sic

int pixels(int twips, shell::Growth growth)
{
    return qRound(twips * growth / TwipsOfPixel);
}

// Boxes in larger type move apart.
void placeTops(QGridLayout& rows, const RowTops& tops, const QWidget& box)
{
    shell::keepMeasure(rows, "tops", [&rows, &tops, &box](shell::Growth growth) {
        const int least = box.sizeHint().height() + shell::HairSpace;
        for (std::size_t row = 0; row + 1 < tops.size(); ++row)
            rows.setRowMinimumHeight(static_cast<int>(row),
                                     std::max(least, pixels(tops.at(row + 1) - tops.at(row), growth)));
    });
}

QGridLayout* makeRows(const QWidget& box)
{
    QGridLayout* const rows = shell::gridOf(0, 0);
    placeTops(*rows, BoxTops, box);
    rows->setRowStretch(CasesOfNumber, 1);
    return rows;
}

constexpr std::array CaseLabels = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};

// clang-format off
constexpr std::array Captions = {
    //                         English        French         Italian        German          Spanish        Latin
    Caption{"HelpLabel",      {"Help = F1",   "Aide = F1",   "Help = F1",   "Hilfe = F1",   "Ayuda = F1",  "Auxilium=F1"}}, // sic: Latin
    Caption{"Continue",       {"&OK",         "&OK",         "&OK",         "&OK",          "&Si",         "&Ita"}},
    Caption{"DeclQuitButton", {"&Quit",       "&Cancel",     "&Quit",       "&Abbruch",     "&Cancelar",   "&Reverte!"}},
    Caption{"Declination",    {"Nouns",       "Nomes",       "Nouns",       "Substantive",  "Nombres",     "Nomina"}},      // sic: French
    Caption{"Frame1",         SingularTexts},
    Caption{"Frame2",         PluralTexts},
};
// clang-format on

} // namespace

Declination::Declination() : BoxDrill("Declination", "declination", shell::exercise::Declination)
{
    setWindowModality(Qt::ApplicationModal);
    makeControls();
    makeBoxes();
    layOut();
}

void Declination::makeControls()
{
    heading_ = shell::makeLabel(this, "HeadingLabel", shell::FormType);
    noun_ = shell::makeLongHeading(this, "NounLabel", shell::QuestionType);
    singular_ = shell::makeControl<QGroupBox>(this, "Frame1");
    plural_ = shell::makeControl<QGroupBox>(this, "Frame2");
    dummy_ = shell::makeControl<QWidget>(this, "DDummy");
    dummy_->resize(1, 1);
}

void Declination::makeBoxes()
{
    for (int i = 0; i < CaseCount; ++i)
        addBox(i < CasesOfNumber ? singular_ : plural_, QStringLiteral("DeclText%1").arg(i));
    for (std::size_t i = 0; i < cases_.size(); ++i) {
        cases_.at(i) = shell::makeLabelOf(boxes().at(i), CaseLabels.at(i));
        cases_.at(i)->setText(shell::fromUtf8(CaseNames.at(i)));
        shell::keepMeasure(*cases_.at(i), "height", [this, i](shell::Growth) {
            cases_.at(i)->setMinimumHeight(boxes().at(i)->sizeHint().height());
        });
    }
}

void Declination::layOut()
{
    headingRow_ = withScore({shell::columnOf(shell::HairSpace, {heading_, {noun_, 1, Qt::AlignTop}}), 1});
    nameRows_ = makeRows(box(0));
    singularRows_ = makeRows(box(0));
    pluralRows_ = makeRows(box(0));
    singular_->setLayout(singularRows_);
    plural_->setLayout(pluralRows_);
    layOutLines(LargestBlock, shell::DrillMargins,
                {headingRow_, shell::rowOf(shell::LargeSpace, {nameRows_, {singular_, 1}, {plural_, 1}}),
                 whyLabel(),
                 helpAndButtons({makeCheckButton("Continue"), makeQuestionButton("DeclQuestion"),
                                 makeQuitButton("DeclQuitButton")})});
    // Gives way on a small screen, where the buttons matter more than the frames' place.
    constexpr int above = shell::EdgeMargins.top() + shell::DrillMargins.top() + shell::MediumSpace;
    auto* const space = new QSpacerItem(0, 0);
    headingRow_->addSpacerItem(space);
    shell::keepMeasure(*headingRow_, "frames", [=, this](shell::Growth growth) {
        space->changeSize(0, pixels(FrameTop, growth) - qRound(above * growth), QSizePolicy::Fixed,
                          QSizePolicy::Maximum);
        headingRow_->invalidate();
    });
}

void Declination::placeRows()
{
    int row = 0;
    for (const int inCase : casesInOrder()) {
        nameRows_->addWidget(cases_.at(static_cast<std::size_t>(inCase)), row, 0, Qt::AlignTop);
        singularRows_->addWidget(&box(inCase), row, 0, Qt::AlignTop);
        pluralRows_->addWidget(&box(inCase + CasesOfNumber), row, 0, Qt::AlignTop);
        ++row;
    }
    const bool accusativeSecond = settings.CaseOrder == shell::case_order::NAGDAb;
    placeTops(*nameRows_, accusativeSecond ? NameTopsWithAccusativeSecond : NameTops, box(0));
    shell::keepMeasure(*singular_, "firstBox", [this](shell::Growth growth) {
        const int title = singular_->contentsMargins().top();
        const int foot = singular_->contentsMargins().bottom();
        const int belowTitle = std::max(shell::HairSpace, pixels(BoxTops.front(), growth) - title);
        for (const QGroupBox* const frame : {singular_, plural_})
            frame->layout()->setContentsMargins(shell::MediumSpace, belowTitle, shell::MediumSpace,
                                                shell::SmallSpace);
        nameRows_->setContentsMargins(0, title + belowTitle, 0, shell::SmallSpace + foot);
    });
}

void Declination::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    placeRows();
    drawDeclension();
    scoreLabel()->clear();
    showPlace(FormOf, placeOfCase());
    showNoun();
    showInMainWindowState();
    focusQuestion();
}

void Declination::showNoun()
{
    const int paradigm = declensionDrill.DrillParadigm;
    heading_->setText(shell::fromUtf8(nounTables.DeclensionHeading[paradigm]));
    noun_->setText(shell::latinText(nounName(paradigm)));
    emptyBoxes();
    for (std::size_t i = 0; i < boxes().size(); ++i) {
        const QGroupBox* const frame = i < CasesOfNumber ? singular_ : plural_;
        boxes().at(i)->setAccessibleName(cases_.at(i % CasesOfNumber)->text() + QLatin1Char(' ') +
                                         frame->title());
    }
    widenFor(*headingRow_);
}

int Declination::askedBoxNumber() const
{
    return declensionDrill.CurrentCaseIndex;
}

void Declination::setQuestion()
{
    setDeclensionQuestion();
    showPlace(FormOf, placeOfCase());
}

void Declination::boxEntered(int /*number*/)
{
    returnToQuestion();
}

std::optional<bool> Declination::judge(const std::string& typed)
{
    const Judgement judgement = judgeDeclension(typed);
    if (judgement == Judgement::NotAgain)
        return std::nullopt;
    const bool right = judgement == Judgement::Right;
    shell::tellAnswer(recordOfDeclension(typed, right));
    return right;
}

std::string Declination::answer() const
{
    return declensionDrill.ExpectedAnswer;
}

std::optional<shell::LanguageTexts> Declination::answersAnother(const std::string& typed) const
{
    if (answersAnotherCase(typed))
        return OtherForm;
    return answersWithStem(typed) ? std::optional(EndingAlone) : std::nullopt;
}

void Declination::answerShown()
{
    dummy_->setFocus();
}

void Declination::quit()
{
    emptyBoxes();
    leaveDeclension();
    Q_EMIT left();
}

void Declination::moveOn()
{
    if (advanceDeclension() == DeclensionAdvance::NextRound)
        showNoun();
}

} // namespace nouns
