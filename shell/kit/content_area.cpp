#include "shell/kit/content_area.h"

#include "shell/kit/layout.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace shell {

namespace {

// What menus leave to the content of a window.
constexpr double ShareForContent = ShareOfScreen - 0.05;

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

// The focus goes on while the widgets of an area are being destroyed.
ContentArea::~ContentArea()
{
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ContentArea::sizeHint() const
{
    return withScrollBar(widget()->sizeHint());
}

QSize ContentArea::minimumSizeHint() const
{
    return withScrollBar(widget()->minimumSizeHint()).boundedTo(screen()->availableSize() * ShareForContent);
}

// Content that is too high for the screen must not become too wide by its scroll bar.
QSize ContentArea::withScrollBar(QSize content) const
{
    if (content.height() > screen()->availableSize().height() * ShareForContent)
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
