#include "shell/kit/layout.h"

#include "shell/kit/measure.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

namespace shell {

namespace {

QBoxLayout* filled(QBoxLayout* layout, int space, std::initializer_list<Part> parts)
{
    keepMeasure(*layout, "space", [=](Growth growth) { layout->setSpacing(qRound(space * growth)); });
    for (const Part& part : parts)
        part.addTo(*layout);
    return layout;
}

// On a low screen space between lines gives way before the content is scrolled.
void setLength(QBoxLayout& layout, QSpacerItem& space, int pixels)
{
    const bool upright = layout.direction() == QBoxLayout::TopToBottom;
    space.changeSize(upright ? 0 : pixels, upright ? pixels : 0,
                     upright ? QSizePolicy::Minimum : QSizePolicy::Fixed,
                     upright ? QSizePolicy::Maximum : QSizePolicy::Minimum);
    layout.invalidate();
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
    return Part([=](QBoxLayout& layout) {
        layout.addSpacing(0);
        QSpacerItem* const space = layout.itemAt(layout.count() - 1)->spacerItem();
        keepMeasure(layout, nullptr,
                    [=, &layout](Growth growth) { setLength(layout, *space, qRound(pixels * growth)); });
    });
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
    keepMeasure(*grid, "space", [=](Growth growth) {
        grid->setHorizontalSpacing(qRound(betweenColumns * growth));
        grid->setVerticalSpacing(qRound(betweenRows * growth));
    });
    return grid;
}

void setContent(QWidget* whole, const QMargins& margins, QLayout* content)
{
    keepMeasure(*content, "margins", [=](Growth growth) { content->setContentsMargins(margins * growth); });
    whole->setLayout(content);
}

} // namespace shell
