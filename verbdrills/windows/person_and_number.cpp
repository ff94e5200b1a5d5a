#include "verbdrills/windows/person_and_number.h"

#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "verbdrills/verb_question.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QGridLayout>
#include <QRadioButton>

#include <array>

namespace verbdrills {

namespace {

constexpr std::array PersonButtons = {"QuizFirst", "QuizSecond", "QuizThird"};
constexpr std::array NumberButtons = {"QuizSing", "QuizPlural"};

// Numbers of the options in their groups.
constexpr int FirstPerson = 1;
constexpr int Singular = 0;
constexpr int Plural = 1;

// A letter that other controls have as well brings the focus to an option and does not choose it. From there
// Tab and the arrow keys lead back to the one that is chosen.
class Option : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QRadioButton::focusInEvent(event);
        const bool byStep =
            event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        if (byStep && !isChecked())
            group()->checkedButton()->setFocus(event->reason());
    }
};

// Tab comes to the option that is chosen. Qt sees to that only where the learner chooses.
void chooseOption(const QButtonGroup& group, int chosen)
{
    group.button(chosen)->setChecked(true);
    for (QAbstractButton* const option : group.buttons())
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

PersonAndNumber::PersonAndNumber(QWidget* parent)
    : QWidget(parent), grid_(shell::gridOf(shell::LargeSpace, shell::HairSpace)),
      persons_(new QButtonGroup(this)), numbers_(new QButtonGroup(this))
{
    shell::setContent(this, {}, grid_);
    grid_->setColumnStretch(1, 1);
    addOptions(persons_, PersonButtons, FirstPerson, 0);
    addOptions(numbers_, NumberButtons, Singular, 1);
}

void PersonAndNumber::addOptions(QButtonGroup* group, std::span<const char* const> names, int first,
                                 int column)
{
    for (int row = 0; const char* const name : names) {
        auto* const option = shell::makeControl<Option>(this, name);
        group->addButton(option, first + row);
        grid_->addWidget(option, row++, column);
    }
    connect(group, &QButtonGroup::idClicked, this, &PersonAndNumber::chosen);
}

int PersonAndNumber::person() const
{
    return persons_->checkedId();
}

std::string_view PersonAndNumber::number() const
{
    return numbers_->checkedId() == Plural ? quiz_number::Plural : quiz_number::Sing;
}

void PersonAndNumber::reset()
{
    chooseOption(*persons_, FirstPerson);
    chooseOption(*numbers_, Singular);
}

} // namespace verbdrills
