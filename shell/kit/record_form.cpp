#include "shell/kit/record_form.h"

#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"

#include <QLabel>
#include <QLineEdit>

namespace shell {

RecordForm::RecordForm()
{
    setHorizontalSpacing(MediumSpace);
    setVerticalSpacing(SmallSpace);
}

void RecordForm::addBoxes(QWidget* parent, std::span<const FieldNames> fields)
{
    for (const FieldNames& field : fields) {
        boxes_.push_back(makeControl<QLineEdit>(parent, field.box));
        connect(boxes_.back(), &QLineEdit::textEdited, this, &RecordForm::edited);
        addControl(field, boxes_.back());
    }
}

void RecordForm::addControl(const FieldNames& field, QWidget* control)
{
    QLabel* const label = makeLabelOf(control, field.label);
    label->setText(QLatin1String(field.caption));
    addWidget(label, lines_, 0);
    addWidget(control, lines_++, 1);
}

void RecordForm::show(std::span<std::string* const> texts)
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        box(i)->setText(fromUtf8(*texts[i]));
}

void RecordForm::take(std::span<std::string* const> texts) const
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        *texts[i] = box(i)->text().toStdString();
}

} // namespace shell
