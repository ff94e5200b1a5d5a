#pragma once

#include "platform/platform.h"
#include "vocabulary/vocabulary_edits.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>

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

/// Loads the list of a file in the place of the one in memory, and takes the next step where it is not
/// refused. What was wrong is told last, so that the message stands above the window that is shown then.
inline void loadAndTell(const std::filesystem::path& file, const std::function<void()>& next)
{
    const auto fault = loadList(file);
    if (!fault || !fault->refused())
        next();
    if (fault)
        platform::current().showMessage(fault->message());
}

} // namespace vocabulary
