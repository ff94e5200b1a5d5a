#include "shell/kit/controls.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace shell {

QLabel* makeLabel(QWidget* parent, const char* name)
{
    auto* const label = makeControl<QLabel>(parent, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void addField(QGridLayout& grid, int row, const char* caption, QWidget* control)
{
    auto* const label = new QLabel(QLatin1String(caption));
    label->setBuddy(control);
    grid.addWidget(label, row, 0);
    grid.addWidget(control, row, 1);
}

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = makeControl<QPushButton>(parent, name);
    button->setAutoDefault(true);
    return button;
}

} // namespace shell
