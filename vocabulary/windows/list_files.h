#pragma once

#include <QDir>

namespace vocabulary {

/// The names of the word lists in a folder, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder)
{
    return folder.entryList({QStringLiteral("*.lst"), QStringLiteral("*.txt"), QStringLiteral("*.voc")},
                            QDir::Files, QDir::Name | QDir::IgnoreCase);
}

/// A name as it was typed, with ".lst" where it has none of the endings that are listed: what follows the dot
/// of "Kap.II" is part of the name. A file of just this name keeps it.
inline QString withEnding(const QDir& folder, const QString& name)
{
    for (const char* const ending : {".lst", ".txt", ".voc"})
        if (name.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
            return name;
    return folder.exists(name) ? name : name + QStringLiteral(".lst");
}

} // namespace vocabulary
