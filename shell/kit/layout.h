#pragma once

#include "shell/kit/type.h"

#include <QMargins>
#include <Qt>

#include <initializer_list>

class QBoxLayout;
class QGridLayout;
class QLayout;
class QWidget;

namespace shell {

/// The space around a window's content: of a form or a list, and of a drill, whose lines are short.
inline constexpr QMargins FormMargins{LargeSpace, LargeSpace, LargeSpace, LargeSpace};
inline constexpr QMargins DrillMargins{WideSpace, LargeSpace, WideSpace, LargeSpace};

/// What stands in a row or a column: a control, a layout within it, or empty space.
class Part {
public:
    /// One that is not stretched is written as the bare control or layout.
    Part(QWidget* control, int stretch = 0, Qt::Alignment place = {})
        : control_(control), stretch_(stretch), place_(place)
    {
    }
    Part(QLayout* inner, int stretch = 0) : inner_(inner), stretch_(stretch) {}

    /// Space that grows with the window, and space of so many pixels.
    static Part gap(int stretch = 0) { return {stretch, 0}; }
    static Part space(int pixels) { return {0, pixels}; }

    void addTo(QBoxLayout& layout) const;

private:
    Part(int stretch, int pixels) : stretch_(stretch), pixels_(pixels) {}

    QWidget* control_ = nullptr;
    QLayout* inner_ = nullptr;
    int stretch_ = 0;
    int pixels_ = 0;
    Qt::Alignment place_;
};

/// Parts from left to right, so many pixels apart.
QBoxLayout* rowOf(int space, std::initializer_list<Part> parts);

/// Parts from top to bottom, so many pixels apart.
QBoxLayout* columnOf(int space, std::initializer_list<Part> parts);

/// The row at the foot of a window: buttons or a note at its left, and the buttons at its right. Buttons are
/// made in this order, in which Tab goes through them.
QBoxLayout* buttonRow(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right);

/// An empty grid whose columns and rows stand so many pixels apart.
QGridLayout* gridOf(int betweenColumns, int betweenRows);

/// Makes a layout the whole content of a widget, with these margins.
void setContent(QWidget* whole, const QMargins& margins, QLayout* content);

} // namespace shell
