#pragma once

#include <QProxyStyle>

class QStyleOptionFocusRect;

namespace shell {

/// The desktop's style, whose check boxes and radio buttons are as large as the type beside them, and have an
/// outline that can be seen in dark palettes, as the frame of the focus has.
class IndicatorStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// Owns the style that it changes.
    explicit IndicatorStyle(QStyle* style);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

private:
    void drawFocus(const QStyleOptionFocusRect& focus, QPainter* painter, const QWidget* widget) const;
};

} // namespace shell
