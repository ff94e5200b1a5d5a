#include "shell/kit/text_size.h"

#include "shell/kit/type.h"
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

} // namespace

void applyTextSize()
{
    if (looks.TextSize != DesktopTextSize) {
        if (!desktopFont)
            desktopFont = QApplication::font();
        setFontOfAll(timesAsLarge(*desktopFont, double(looks.TextSize) / DesktopTextSize));
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
