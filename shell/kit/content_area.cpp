#include "shell/kit/content_area.h"

#include "shell/kit/type.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace shell {

namespace {

// What the frame, the title and the menus of a window leave its content of the screen.
constexpr double ShareOfScreen = 0.85;

} // namespace

ContentArea::ContentArea(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { showFocus(now); });
}

QSize ContentArea::sizeHint() const
{
    return withScrollBar(widget()->sizeHint());
}

QSize ContentArea::minimumSizeHint() const
{
    return withScrollBar(widget()->minimumSizeHint()).boundedTo(screen()->availableSize() * ShareOfScreen);
}

// Content that is too high for the screen must not become too wide by its scroll bar.
QSize ContentArea::withScrollBar(QSize content) const
{
    if (content.height() > screen()->availableSize().height() * ShareOfScreen)
        content += {verticalScrollBar()->sizeHint().width(), 0};
    return content;
}

// The window has to hear when its content asks for other room.
bool ContentArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ContentArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    showFocus(QApplication::focusWidget());
}

void ContentArea::showFocus(QWidget* focused)
{
    if (focused != nullptr && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused, LargeSpace, LargeSpace);
}

} // namespace shell
