#include "shell/kit/layout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

namespace shell {

namespace {

QBoxLayout* filled(QBoxLayout* layout, int space, std::initializer_list<Part> parts)
{
    layout->setSpacing(space);
    for (const Part& part : parts)
        part.addTo(*layout);
    return layout;
}

} // namespace

Part::Part(QWidget* control, int stretch, Qt::Alignment place)
    : add_([=](QBoxLayout& layout) { layout.addWidget(control, stretch, place); })
{
}

Part::Part(QLayout* inner, int stretch) : add_([=](QBoxLayout& layout) { layout.addLayout(inner, stretch); })
{
}

Part Part::gap(int stretch)
{
    return Part([=](QBoxLayout& layout) { layout.addStretch(stretch); });
}

Part Part::space(int pixels)
{
    return Part([=](QBoxLayout& layout) { layout.addSpacing(pixels); });
}

QBoxLayout* rowOf(int space, std::initializer_list<Part> parts)
{
    return filled(new QHBoxLayout, space, parts);
}

QBoxLayout* columnOf(int space, std::initializer_list<Part> parts)
{
    return filled(new QVBoxLayout, space, parts);
}

QBoxLayout* buttonRow(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right)
{
    auto* const row = rowOf(SmallSpace, {});
    for (QWidget* const control : left)
        row->addWidget(control);
    row->addStretch();
    for (QWidget* const control : right)
        row->addWidget(control);
    return row;
}

QGridLayout* gridOf(int betweenColumns, int betweenRows)
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(betweenColumns);
    grid->setVerticalSpacing(betweenRows);
    return grid;
}

void setContent(QWidget* whole, const QMargins& margins, QLayout* content)
{
    content->setContentsMargins(margins);
    whole->setLayout(content);
}

} // namespace shell
