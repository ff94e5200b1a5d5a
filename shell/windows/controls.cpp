#include "shell/windows/controls.h"

#include <QLabel>
#include <QPushButton>

namespace shell {

QLabel* makeLabel(QWidget* parent, const char* name)
{
    auto* const label = makeControl<QLabel>(parent, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = makeControl<QPushButton>(parent, name);
    button->setAutoDefault(true);
    return button;
}

} // namespace shell
