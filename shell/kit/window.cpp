#include "shell/kit/window.h"

#include "shell/kit/content_area.h"
#include "shell/kit/text.h"
#include "shell/settings.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace shell {

namespace {

// Beside it the spacers' stretch is so little that they grow only once the block has its greatest size.
constexpr int BlockStretch = 1000;

// A maximised window grows by the room that it has beyond this, by quarters of its size.
constexpr QSize DesignedSize{960, 600};
constexpr double StepsOfGrowth = 4;
constexpr Growth GreatestGrowth = 2;

Growth growthIn(QSize room)
{
    const double timesDesigned =
        std::min(room.width() / double{DesignedSize.width()}, room.height() / double{DesignedSize.height()});
    return std::clamp(std::floor(timesDesigned * StepsOfGrowth) / StepsOfGrowth, 1.0, GreatestGrowth);
}

// Qt hangs where windows stand above each other in a circle: the lower one then lets go of the one below it.
void putAbove(QWindow& window, QWindow* below)
{
    if (below != nullptr && window.isAncestorOf(below))
        below->setTransientParent(nullptr);
    window.setTransientParent(below);
}

} // namespace

Window::Window(std::string_view name, std::string_view activeName) : activeName_(activeName)
{
    setObjectName(fromUtf8(name));
}

void Window::closeOnEscape()
{
    auto* const escape = new QShortcut(Qt::Key_Escape, this);
    escape->setAutoRepeat(false);
    connect(escape, &QShortcut::activated, this, [this] { closeBoxPressed(); });
}

void Window::showInMainWindowState()
{
    if (settings.MainWindowState == window_state::Maximised)
        showGrown();
    else
        showAsDesigned();
    raise();
    activateWindow();
}

// A new size would hide from Qt that the hidden window is still maximised.
void Window::showAsDesigned()
{
    setWindowState(windowState() & ~Qt::WindowMaximized);
    if (growth_ != 1 || maximised_ || !measured_) {
        maximised_ = false;
        forgetSize();
        takeSize(1);
    }
    const bool hadPlace = fitted_.isValid();
    const QSize before = size();
    if (sizeForgotten_ || !hadPlace)
        fitContent();
    if (settings.MainWindowState == window_state::Normal)
        showNormal();
    else
        show();
    if (hadPlace && size() != before)
        stayOnScreen();
}

// Takes the size that it will have at once: fonts of another size need not be loaded.
void Window::showGrown()
{
    if (!isVisible()) {
        maximised_ = true;
        sizeForgotten_ = sizeForgotten_ || !fitted_.isValid();
        takeSize(growthIn(screen()->availableSize()));
    }
    showMaximized();
}

void Window::standAboveModal()
{
    const QWidget* const below = isModal() ? QApplication::activeWindow() : QApplication::activeModalWidget();
    if (below != this)
        putAbove(*windowHandle(), below == nullptr ? nullptr : below->windowHandle());
}

void Window::showInFront()
{
    if (!measured_)
        takeSize(growth_);
    winId();
    standAboveModal();
    if (!isVisible())
        centreAsShown();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Window::centreAsShown()
{
    centreOnScreen();
    windowHandle()->installEventFilter(this);
}

// A window that was never shown has no frame yet. Its place is set without the frame, as a widget may hear of
// its new frame late. A place of its own would take a maximised window out of that state.
void Window::centreOnScreen()
{
    if (isMaximized())
        return;
    const QMargins frame = windowHandle()->frameMargins();
    QRect place = QRect({}, size()).marginsAdded(frame);
    place.moveCenter(screen()->geometry().center());
    setGeometry(place.marginsRemoved(frame));
}

// The desktop has framed a window by the time that it is to be painted first.
bool Window::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose && windowHandle()->isExposed()) {
        watched->removeEventFilter(this);
        centreOnScreen();
    }
    return false;
}

QWidget* Window::centredBlock(QSize charactersAndLines)
{
    auto* const area = new ContentArea(new QWidget, this);
    connect(area, &ContentArea::roomMissing, this, &Window::growInHeight);
    const bool asHighAsItsLines = charactersAndLines.height() == AsItsLines;
    auto* const block = new QWidget(area->widget());
    keepMeasure(*block, "size", [=, this](Growth) {
        if (!measured_)
            return;
        const QFontMetrics metrics(font());
        block->setMaximumWidth(charactersAndLines.width() * metrics.averageCharWidth());
        if (!asHighAsItsLines)
            block->setMaximumHeight(charactersAndLines.height() * metrics.lineSpacing());
    });

    auto* const row = rowOf(0, {Part::gap(1), {block, BlockStretch}, Part::gap(1)});
    auto* const column =
        columnOf(0, {Part::gap(1), {row, asHighAsItsLines ? 0 : BlockStretch}, Part::gap(1)});
    if (asHighAsItsLines)
        keepMeasure(*column, "above", [=, this](Growth) { column->setStretch(0, maximised_ ? 1 : 0); });
    setContent(area->widget(), EdgeMargins, column);
    setContent(this, {}, columnOf(0, {area}));
    return block;
}

void Window::layOutLines(QSize charactersAndLines, const QMargins& margins, std::initializer_list<Part> lines)
{
    setContent(centredBlock(charactersAndLines), margins, columnOf(MediumSpace, lines));
}

// By the size that it has, since a window manager may maximise a window before or after it gives it its size.
// That it took the state from a window that hid may be heard when that is being shown again.
void Window::grow()
{
    if (!isVisible() || (maximised_ && !isMaximized() && !windowHandle()->isExposed()))
        return;
    const Growth growth = isMaximized() ? growthIn(size()) : 1;
    const bool becameNormal = maximised_ && !isMaximized();
    if (growth == growth_ && maximised_ == isMaximized())
        return;
    maximised_ = isMaximized();
    takeSize(growth);
    if (becameNormal && sizeForgotten_)
        fitContentSoon();
}

// A window in the designed size has the desktop's own font. Content that asks for more room would take a
// maximised one out of that state.
void Window::takeSize(Growth growth)
{
    growth_ = growth;
    measured_ = true;
    if (layout() != nullptr)
        layout()->setSizeConstraint(maximised_ ? QLayout::SetNoConstraint : QLayout::SetDefaultConstraint);
    setFont(growth == 1 ? QFont() : timesAsLarge(QApplication::font(), growth));
    takeMeasures(*this, growth);
}

// The desktop may give a hidden maximised window its normal size, and take it back when the window is shown:
// Qt would keep what was painted before.
void Window::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    update();
    grow();
}

void Window::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        grow();
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || isHidden())
        return;
    if (!activeName_.empty())
        settings.ActiveWindowName = activeName_;
    becameActive();
}

// A change of the desktop's font does not come as a change of the window where it has a font of its own.
bool Window::event(QEvent* event)
{
    if (event->type() != QEvent::ApplicationFontChange)
        return QWidget::event(event);
    const bool fits = isAsFitted();
    const bool known = QWidget::event(event);
    takeSize(growth_);
    if (fits && (maximised_ || isHidden()))
        forgetSize();
    else if (fits)
        fitContentSoon();
    return known;
}

void Window::closeEvent(QCloseEvent* event)
{
    event->ignore();
    closeBoxPressed();
}

} // namespace shell
