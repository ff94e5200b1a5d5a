#include "tables/windows/readings_panel.h"

#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/language_texts.h"
#include "shell/macrons.h"
#include "tables/windows/search_field.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace tables {

using shell::LanguageTexts;
using shell::ListOfItsRows;
using shell::macronsWhereShown;

namespace {

constexpr int MostReadingsShown = 5;
constexpr int PartOfLowWindow = 4;

// clang-format off
//                                English     French      Italian    German          Spanish     Latin
constexpr LanguageTexts Readings {"Readings", "Analyses", "Analisi", "Bestimmungen", "Análisis", "Explicationes"};
// clang-format on

QString rowOf(const Reading& reading)
{
    ReadingTexts texts = textsOf(reading);
    texts.form = macronsWhereShown(texts.form);
    texts.word = macronsWhereShown(texts.word);
    return shell::fromUtf8(inWords(texts));
}

} // namespace

ReadingsPanel::ReadingsPanel(QWidget* parent) : QWidget(parent)
{
    makeControls();
    layOut();
    connectControls();
}

void ReadingsPanel::makeControls()
{
    form_ = shell::makeControl<QLineEdit>(this, "TablesForm");
    label_ = shell::makeLabelOf(form_, "TablesFormLabel");
    state_ = shell::makeLabel(this, "TablesState");
    readings_ = shell::makeControl<ListOfItsRows>(this, "TablesReadings");

    shell::setType(*form_, shell::SentenceType);
    form_->setClearButtonEnabled(true);
    readings_->setUniformItemSizes(true);
    shell::keepMeasure(*readings_, "height", [this](shell::Growth) { fitHeight(); });
    readings_->hide();
}

void ReadingsPanel::layOut()
{
    shell::setContent(
        this, {},
        shell::columnOf(shell::MediumSpace,
                        {shell::rowOf(shell::SmallSpace, {label_, {form_, 1}, state_}), readings_}));
}

void ReadingsPanel::connectControls()
{
    connect(form_, &QLineEdit::textChanged, this, &ReadingsPanel::findReadings);
    connect(form_, &QLineEdit::returnPressed, this, &ReadingsPanel::takeFirstReading);
    connectDown(*form_, [this] { goToReadings(); });
    connect(readings_, &ListOfItsRows::rowChosen, this, &ReadingsPanel::choose);
    connect(readings_, &ListOfItsRows::rowActivated, this, &ReadingsPanel::take);
    connect(readings_, &QListWidget::itemClicked, this, [this] { take(readings_->chosenRow()); });
}

void ReadingsPanel::refresh()
{
    readings_->setAccessibleName(shell::fromUtf8(Readings));
    const int row = readings_->chosenRow();
    findReadings();
    const QSignalBlocker quiet(readings_);
    if (row < readings_->count())
        readings_->setCurrentRow(row);
}

void ReadingsPanel::findReadings()
{
    found_ = listed_.index().find(form_->text().toStdString());
    QStringList rows;
    for (const Reading& reading : found_)
        rows << rowOf(reading);
    if (rows != rows_ || form_->text().isEmpty()) {
        rows_ = rows;
        showReadings();
    }
    const bool isMissing = found_.empty() && !form_->text().trimmed().isEmpty();
    tellThatNoneIsListed(*state_, isMissing);
}

void ReadingsPanel::clear()
{
    form_->clear();
}

void ReadingsPanel::unmark()
{
    const QSignalBlocker quiet(readings_);
    readings_->setCurrentRow(-1);
}

void ReadingsPanel::beginLookUp()
{
    form_->setFocus();
    form_->selectAll();
}

// While a form is typed the room of one reading stays where there are none: the table below moves less often
// for it.
void ReadingsPanel::showReadings()
{
    const bool roomStays = !readings_->isHidden() && !form_->text().isEmpty();
    const QSignalBlocker quiet(readings_);
    readings_->clear();
    readings_->addItems(rows_);
    readings_->setFrameShape(rows_.isEmpty() ? QFrame::NoFrame : QFrame::StyledPanel);
    fitHeight();
    for (QWidget* const ground : {static_cast<QWidget*>(readings_), readings_->viewport()})
        ground->setAutoFillBackground(!rows_.isEmpty());
    readings_->setVisible(roomStays || !rows_.isEmpty());
}

void ReadingsPanel::fitHeight()
{
    if (rows_.isEmpty()) {
        readings_->setFixedHeight(heightOfOne_);
        return;
    }
    const int row = readings_->sizeHintForRow(0);
    heightOfOne_ = row + 2 * readings_->frameWidth();
    const int most = std::min(MostReadingsShown, window()->height() / PartOfLowWindow / row);
    const int rows = std::clamp(static_cast<int>(rows_.size()), 1, std::max(1, most));
    readings_->setFixedHeight(rows * row + 2 * readings_->frameWidth());
}

void ReadingsPanel::goToReadings()
{
    if (found_.empty())
        return;
    readings_->setCurrentRow(0);
    readings_->setFocus();
}

void ReadingsPanel::takeFirstReading()
{
    take(found_.empty() ? -1 : 0);
}

void ReadingsPanel::choose(int row)
{
    if (row >= 0)
        Q_EMIT readingChosen(found_.at(static_cast<std::size_t>(row)));
}

void ReadingsPanel::take(int row)
{
    choose(row);
    if (row >= 0)
        form_->selectAll();
}

} // namespace tables
