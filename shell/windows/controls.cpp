#include "shell/windows/controls.h"

#include <QLabel>
#include <QPushButton>

namespace shell {

QLabel* makeLabel(QWidget* parent, const char* name)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    return button;
}

} // namespace shell
