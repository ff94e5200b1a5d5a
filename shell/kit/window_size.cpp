#include "shell/kit/layout.h"
#include "shell/kit/measure.h"
#include "shell/kit/window.h"

#include <QLayout>
#include <QScreen>
#include <QWindow>

#include <algorithm>

// The size of a normal window: what its content asks for, as long as the learner gives it no other.

namespace shell {

namespace {

// Of the width more, as a frame needs less at its sides than above and below.
constexpr double ShareOfWidth = 0.97;

// A hidden window lays nothing out of its own accord when what was written into it asks for other room.
void layOutUpFrom(QWidget& content)
{
    for (QWidget* above = &content; above != nullptr; above = above->parentWidget()) {
        if (above->layout() != nullptr)
            above->layout()->activate();
        above->updateGeometry();
    }
}

} // namespace

// A window larger than the screen would hide its buttons.
QSize Window::onScreen(QSize asked) const
{
    const QSize room = screen()->availableSize();
    return asked.boundedTo({qRound(room.width() * ShareOfWidth), qRound(room.height() * ShareOfScreen)});
}

// A window that was maximised from the first has no place of its own yet.
void Window::fitContent()
{
    if (maximised_)
        return;
    if (layout() != nullptr)
        layout()->activate();
    const bool hasPlace = fitted_.isValid();
    resize(onScreen(sizeHint()));
    fitted_ = size();
    sizeForgotten_ = false;
    if (!isVisible())
        return;
    if (!hasPlace)
        centreOnScreen();
    stayOnScreen();
}

// What asked for more room may give it back soon: the window does not become smaller for that.
void Window::growTo(QSize asked)
{
    const QSize grown = size().expandedTo(onScreen(asked));
    if (grown == size())
        return;
    resize(grown);
    fitted_ = size();
    if (!isVisible())
        return;
    if (windowHandle()->isExposed())
        stayOnScreen();
    else
        centreAsShown();
}

void Window::growInHeight(int pixels)
{
    if (isVisible() && !maximised_ && isAsFitted())
        growTo(size() + QSize(0, pixels));
}

void Window::growFor(QWidget& content)
{
    if (!isAsFitted())
        return;
    if (maximised_) {
        forgetSize();
        return;
    }
    layOutUpFrom(content);
    growTo(sizeHint());
}

void Window::widenFor(QLayout& row)
{
    QWidget* const block = row.parentWidget();
    keepMeasure(*block, "row", [&row, block](Growth) {
        block->layout()->invalidate();
        block->layout()->activate();
        const QMargins margins = block->layout()->contentsMargins();
        const int wanted = row.sizeHint().width() + margins.left() + margins.right();
        block->setMaximumWidth(std::max(block->maximumWidth(), wanted));
    });
    growFor(*block);
}

void Window::stayOnScreen()
{
    const QRect room = screen()->availableGeometry();
    const QPoint last = room.bottomRight() - QPoint(frameGeometry().width(), frameGeometry().height());
    const QPoint place(std::max(room.left(), std::min(x(), last.x())),
                       std::max(room.top(), std::min(y(), last.y())));
    if (place != pos())
        move(place);
}

// Once the content has taken its new measures; the window may have been maximised by then.
void Window::fitContentSoon()
{
    QMetaObject::invokeMethod(this, &Window::fitContent, Qt::QueuedConnection);
}

// Content that asks for more room since then has made the window larger.
bool Window::isAsFitted() const
{
    const QSize inNormalState = maximised_ ? normalGeometry().size() : size();
    return fitted_.isValid() && inNormalState == fitted_.expandedTo(minimumSize());
}

void Window::fitAnew(QWidget& content)
{
    if (!isAsFitted())
        return;
    layOutUpFrom(content);
    forgetSize();
}

void Window::forgetSize()
{
    sizeForgotten_ = true;
}

} // namespace shell
