#include "shell/kit/type.h"

#include <QApplication>
#include <QFont>
#include <QWidget>

namespace shell {

namespace {

// A desktop gives its font in points or, here and there, in pixels.
QFont scaledFont(double factor)
{
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qRound(font.pixelSize() * factor));
    return font;
}

} // namespace

void setType(QWidget& widget, double factor)
{
    widget.setFont(scaledFont(factor));
}

void setLeastWidth(QWidget& widget, int characters)
{
    widget.setMinimumWidth(characters * widget.fontMetrics().averageCharWidth());
}

void setBoldType(QWidget& widget, double factor)
{
    QFont font = scaledFont(factor);
    font.setBold(true);
    widget.setFont(font);
}

} // namespace shell
