#pragma once

#include "shell/kit/type.h"

#include <QMargins>
#include <Qt>

#include <functional>
#include <initializer_list>
#include <utility>

class QBoxLayout;
class QGridLayout;
class QLayout;
class QWidget;

namespace shell {

/// The space at the edge of every window, and around its content: of a form or a list, and of a drill, whose
/// lines are short.
inline constexpr QMargins EdgeMargins{MediumSpace, MediumSpace, MediumSpace, MediumSpace};
inline constexpr QMargins FormMargins{LargeSpace, LargeSpace, LargeSpace, LargeSpace};
inline constexpr QMargins DrillMargins{WideSpace, LargeSpace, WideSpace, LargeSpace};

/// How much of the screen a window takes at the most: its frame and its title need the rest.
inline constexpr double ShareOfScreen = 0.9;

/// What stands in a row or a column: a control, a layout within it, or empty space.
class Part {
public:
    /// One that is not stretched is written as the bare control or layout.
    Part(QWidget* control, int stretch = 0, Qt::Alignment place = {});
    Part(QLayout* inner, int stretch = 0);

    /// Space that grows with the window, and space of so many pixels.
    static Part gap(int stretch = 0);
    static Part space(int pixels);

    void addTo(QBoxLayout& layout) const { add_(layout); }

private:
    using Adding = std::function<void(QBoxLayout&)>;

    explicit Part(Adding add) : add_(std::move(add)) {}

    Adding add_;
};

/// Parts from left to right, so many pixels apart.
QBoxLayout* rowOf(int space, std::initializer_list<Part> parts);

/// Parts from top to bottom, so many pixels apart.
QBoxLayout* columnOf(int space, std::initializer_list<Part> parts);

/// The row at the foot of a window: buttons or a note at its left, and the buttons at its right. Tab goes
/// through them in the order in which they were made: make them in this one.
QBoxLayout* buttonRow(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right);

/// An empty grid whose columns and rows stand so many pixels apart.
QGridLayout* gridOf(int betweenColumns, int betweenRows);

/// Makes a layout the whole content of a widget, with these margins.
void setContent(QWidget* whole, const QMargins& margins, QLayout* content);

} // namespace shell
