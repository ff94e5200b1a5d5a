#include "shell/kit/passing_note.h"

#include <QToolTip>

namespace shell {

namespace {

constexpr int MillisecondsShown = 1500;

} // namespace

// A tip stands some way below the point that it is given, as a pointer of the mouse would cover it.
void showPassingNote(QWidget& control, const QString& text)
{
    QToolTip::showText(control.mapToGlobal(control.rect().center()), text, &control, {}, MillisecondsShown);
}

} // namespace shell
