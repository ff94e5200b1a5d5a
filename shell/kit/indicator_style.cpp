#include "shell/kit/indicator_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOptionButton>
#include <QWidget>

#include <algorithm>

namespace shell {

namespace {

// An indicator is as high as a capital with a little air.
constexpr double IndicatorOfLine = 0.75;

// In letters of the button's type, both sides together.
constexpr int SpaceInButton = 2;

bool isIndicatorSize(QStyle::PixelMetric metric)
{
    return metric == QStyle::PM_IndicatorWidth || metric == QStyle::PM_IndicatorHeight ||
           metric == QStyle::PM_ExclusiveIndicatorWidth || metric == QStyle::PM_ExclusiveIndicatorHeight;
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// Of several lists on a window the one that has the focus is framed as a box to write in is.
void drawFrameOfFocus(const QStyleOption& frame, QPainter& painter)
{
    painter.save();
    painter.setPen(frame.palette.color(QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

IndicatorStyle::IndicatorStyle(QStyle* style) : QProxyStyle(style) {}

int IndicatorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int own = QProxyStyle::pixelMetric(metric, option, widget);
    if (!isIndicatorSize(metric) || widget == nullptr)
        return own;
    return std::max(own, qRound(IndicatorOfLine * widget->fontMetrics().height()));
}

// The light copy of a disabled text, a pixel beside it, smears the text on a dark window.
int IndicatorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* result) const
{
    return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, result);
}

// An item of a menu leaves room for a mark of the style's own size.
QSize IndicatorStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                       const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_MenuItem)
        size.rwidth() += pixelMetric(PM_IndicatorWidth, option, widget) -
                         QProxyStyle::pixelMetric(PM_IndicatorWidth, option, widget);
    // Beside a larger type the style's own margin is none.
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button != nullptr && !button->text.isEmpty())
        size.rwidth() =
            std::max(size.width(), contents.width() + SpaceInButton * option->fontMetrics.averageCharWidth());
    return size;
}

// The style's own room for the title of a frame is that of its ink, and cuts the last letter of a large type.
QRect IndicatorStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const
{
    const QRect own = QProxyStyle::subControlRect(control, option, part, widget);
    if (control != CC_GroupBox || part != SC_GroupBoxLabel)
        return own;
    return own.adjusted(0, 0, option->fontMetrics.averageCharWidth(), 0);
}

// A scroll bar that is a control of its own shows that it has the focus.
void IndicatorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_ScrollBar || widget == nullptr || !widget->hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(widget);
    drawFocus(focus, painter, widget);
}

// The frame of the focus is a faint shade of what is chosen, as dark as a dark window.
void IndicatorStyle::drawFocus(const QStyleOptionFocusRect& focus, QPainter* painter,
                               const QWidget* widget) const
{
    QStyleOptionFocusRect plain = focus;
    if (isDark(focus.palette))
        plain.palette.setBrush(QPalette::Highlight, plain.palette.windowText());
    QProxyStyle::drawPrimitive(PE_FrameFocusRect, &plain, painter, widget);
}

// Styles draw the outline by a shade darker than the window, which is not to be seen beside a dark one.
void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    const auto* const focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
    if (element == PE_FrameFocusRect && focus != nullptr) {
        drawFocus(*focus, painter, widget);
        return;
    }
    if (element == PE_Frame && qobject_cast<const QAbstractItemView*>(widget) != nullptr &&
        widget->hasFocus()) {
        drawFrameOfFocus(*option, *painter);
        return;
    }
    const auto* const indicator = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool drawn = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!drawn || indicator == nullptr || !isDark(indicator->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton outlined = *indicator;
    outlined.palette.setBrush(QPalette::Window, outlined.palette.windowText());
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
}

} // namespace shell
