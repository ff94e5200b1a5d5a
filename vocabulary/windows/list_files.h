#pragma once

#include <QDir>

#include <algorithm>
#include <array>

namespace vocabulary {

/// The endings of the word lists; a new list gets the first.
inline constexpr std::array ListEndings = {".lst", ".txt", ".voc"};

/// The names of the word lists in a folder, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder)
{
    QStringList patterns;
    for (const char* const ending : ListEndings)
        patterns << QLatin1Char('*') + QLatin1String(ending);
    return folder.entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

/// A name as it was typed, with ".lst" where it has none of the endings: what follows the dot of "Kap.II" is
/// part of the name. A file of just this name keeps it.
inline QString withEnding(const QDir& folder, const QString& name)
{
    const bool isListed = std::ranges::any_of(ListEndings, [&](const char* ending) {
        return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    });
    return isListed || folder.exists(name) ? name : name + QLatin1String(ListEndings.front());
}

} // namespace vocabulary
