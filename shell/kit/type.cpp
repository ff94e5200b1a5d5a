#include "shell/kit/type.h"

#include "shell/kit/measure.h"

#include <QApplication>
#include <QFont>
#include <QWidget>

namespace shell {

namespace {

// The type of a heading is large enough to be read as well without hinting, which costs more than all else of
// it.
QFont::HintingPreference hintingOf(double factor)
{
    return factor < HeadingType ? QFont::PreferDefaultHinting : QFont::PreferNoHinting;
}

void setFont(QWidget& widget, double factor, QFont::Weight weight)
{
    keepMeasure(widget, "type", [&widget, factor, weight](Growth growth) {
        QFont font = timesAsLarge(QApplication::font(), factor * growth);
        font.setWeight(weight);
        font.setHintingPreference(hintingOf(factor));
        widget.setFont(font);
    });
}

} // namespace

// A desktop gives its font in points or, here and there, in pixels.
QFont timesAsLarge(QFont font, double factor)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qRound(font.pixelSize() * factor));
    return font;
}

void setType(QWidget& widget, double factor)
{
    setFont(widget, factor, QApplication::font().weight());
}

void setBoldType(QWidget& widget, double factor)
{
    setFont(widget, factor, QFont::Bold);
}

void setLeastWidth(QWidget& widget, int characters)
{
    keepMeasure(widget, "width", [&widget, characters](Growth) {
        widget.setMinimumWidth(characters * widget.fontMetrics().averageCharWidth());
    });
}

} // namespace shell
