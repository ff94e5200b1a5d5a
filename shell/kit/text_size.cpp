#include "shell/kit/text_size.h"

#include "shell/looks.h"
#include "shell/looks_file.h"

#include <QApplication>
#include <QFont>

#include <optional>

namespace shell {

namespace {

// The desktop's own font, as long as another size of it is in use.
std::optional<QFont> desktopFont;

// Qt tells the windows later of its own accord, when they may be about to be maximised.
void setFontOfAll(const QFont& font)
{
    QApplication::setFont(font);
    QCoreApplication::sendPostedEvents(qApp, QEvent::ApplicationFontChange);
}

QFont desktopFontIn(int percent)
{
    QFont font = *desktopFont;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * percent / DesktopTextSize);
    else
        font.setPixelSize(font.pixelSize() * percent / DesktopTextSize);
    return font;
}

} // namespace

void applyTextSize()
{
    if (looks.TextSize != DesktopTextSize) {
        if (!desktopFont)
            desktopFont = QApplication::font();
        setFontOfAll(desktopFontIn(looks.TextSize));
    } else if (desktopFont) {
        setFontOfAll(*desktopFont);
        desktopFont.reset();
    }
}

void chooseTextSize(int percent)
{
    if (percent == looks.TextSize)
        return;
    looks.TextSize = percent;
    applyTextSize();
    keepLooks();
}

} // namespace shell
