#include "shell/kit/record_form.h"

#include "shell/kit/controls.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"

#include <QLabel>
#include <QLineEdit>

namespace shell {

RecordForm::RecordForm()
{
    keepMeasure(*this, "space", [this](Growth growth) {
        setHorizontalSpacing(qRound(MediumSpace * growth));
        setVerticalSpacing(qRound(SmallSpace * growth));
    });
}

void RecordForm::addBoxes(QWidget* parent, std::span<const FieldNames> fields)
{
    for (const FieldNames& field : fields) {
        boxes_.push_back(makeControl<QLineEdit>(parent, field.box));
        connect(boxes_.back(), &QLineEdit::textEdited, this, &RecordForm::edited);
        addControl(boxes_.back(), field.caption, field.label);
    }
}

void RecordForm::addControl(QWidget* control, std::string_view caption, std::string_view label)
{
    QLabel* const made = makeLabelOf(control, label);
    made->setText(fromUtf8(caption));
    // Letters stand closer in a text that is measured than in one with a letter underlined.
    made->setContentsMargins(0, 0, HairSpace, 0);
    addWidget(made, lines_, 0);
    addWidget(control, lines_++, 1);
}

// Of a long text the beginning is seen.
void RecordForm::show(std::span<const std::string_view> texts)
{
    for (std::size_t i = 0; i < texts.size(); ++i) {
        box(i)->setText(fromUtf8(texts[i]));
        box(i)->setCursorPosition(0);
    }
}

void RecordForm::goOnIn(std::size_t number) const
{
    box(number)->setFocus();
    box(number)->end(false);
}

std::vector<std::string> RecordForm::take() const
{
    std::vector<std::string> texts;
    for (const QLineEdit* const box : boxes_)
        texts.push_back(box->text().toStdString());
    return texts;
}

} // namespace shell
