#pragma once

#include <QKeyEvent>

namespace shell {

/// Whether a key is one of the two Enter keys.
inline bool isEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace shell
