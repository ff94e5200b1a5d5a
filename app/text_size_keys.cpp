#include "app/text_size_keys.h"

#include "app/key_filter.h"
#include "shell/kit/text_size.h"
#include "shell/looks.h"

#include <QApplication>
#include <QKeyEvent>

#include <optional>

namespace app {

namespace {

// Keyboards have + and 0 with the Shift key, without it, or on their keypad; + often stands above =.
std::optional<int> sizeAskedBy(const QKeyEvent& key)
{
    const auto others = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (others != Qt::ControlModifier)
        return {};
    switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return shell::largerTextSize();
    case Qt::Key_Minus:
        return shell::smallerTextSize();
    case Qt::Key_0:
        return shell::DesktopTextSize;
    default:
        return {};
    }
}

} // namespace

TextSizeKeys::TextSizeKeys()
{
    qApp->installEventFilter(this);
}

bool TextSizeKeys::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto size = sizeAskedBy(*static_cast<QKeyEvent*>(event));
    if (!size || windowWithTheKeys() == nullptr)
        return false;
    shell::chooseTextSize(*size);
    return true;
}

} // namespace app
