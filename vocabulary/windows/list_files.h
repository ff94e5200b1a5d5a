#pragma once

#include <QDir>

namespace vocabulary {

/// The names of the word lists in a folder, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder)
{
    return folder.entryList({QStringLiteral("*.lst"), QStringLiteral("*.txt"), QStringLiteral("*.voc")},
                            QDir::Files, QDir::Name | QDir::IgnoreCase);
}

} // namespace vocabulary
