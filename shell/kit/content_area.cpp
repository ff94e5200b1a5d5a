#include "shell/kit/content_area.h"

#include "shell/kit/layout.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace shell {

namespace {

// What menus leave to the content of a window.
constexpr double ShareForContent = ShareOfScreen - 0.05;

} // namespace

ContentArea::ContentArea(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
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
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        askForRoom();
        const QSize before = widget()->size();
        fitContent();
        if (widget()->size() != before)
            showFocus(QApplication::focusWidget());
    }
    return QScrollArea::eventFilter(watched, event);
}

void ContentArea::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    askForRoom();
}

void ContentArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fitContent();
    showFocus(QApplication::focusWidget());
}

QSize ContentArea::leastSize(int width) const
{
    const QLayout* const layout = widget()->layout();
    QSize least = widget()->minimumSizeHint();
    if (layout != nullptr && layout->hasHeightForWidth())
        least.setHeight(layout->minimumHeightForWidth(std::max(width, least.width())));
    return least;
}

void ContentArea::askForRoom()
{
    const QSize room = maximumViewportSize();
    const bool breaks = widget()->hasHeightForWidth();
    const int asked = breaks ? widget()->heightForWidth(room.width()) : widget()->sizeHint().height();
    const int missing = asked - room.height();
    if (missing > 0)
        Q_EMIT roomMissing(missing);
}

// Lists and spaces of the content give way before it is scrolled.
void ContentArea::fitContent()
{
    QSize room = maximumViewportSize();
    if (leastSize(room.width()).height() > room.height())
        room -= {verticalScrollBar()->sizeHint().width(), 0};
    const QSize least = leastSize(room.width());
    if (least.width() > room.width())
        room -= {0, horizontalScrollBar()->sizeHint().height()};
    widget()->resize(room.expandedTo(least));
}

// What stands above is seen as far as the focus lets it, and of a box that is typed in its cursor; under a
// pressed button of the mouse nothing moves that needs not.
void ContentArea::showFocus(QWidget* focused)
{
    if (focused == nullptr || !widget()->isAncestorOf(focused))
        return;
    if (QApplication::mouseButtons() == Qt::NoButton)
        verticalScrollBar()->setValue(0);
    ensureWidgetVisible(focused, LargeSpace, LargeSpace);
}

// Its room may just have changed. Of what is wider than the window its beginning is seen.
void ContentArea::bringIntoView(QWidget& shown)
{
    askForRoom();
    fitContent();
    if (widget()->layout() != nullptr)
        widget()->layout()->activate();
    ensureWidgetVisible(&shown, HairSpace, HairSpace);
    if (shown.width() > viewport()->width())
        horizontalScrollBar()->setValue(shown.mapTo(widget(), QPoint(-HairSpace, 0)).x());
}

void bringIntoView(QWidget& shown)
{
    for (QWidget* above = shown.parentWidget(); above != nullptr; above = above->parentWidget())
        if (auto* const area = qobject_cast<ContentArea*>(above))
            area->bringIntoView(shown);
}

} // namespace shell
