#pragma once

#include "platform/platform.h"
#include "vocabulary/vocabulary_edits.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>

namespace vocabulary {

/// The endings of the word lists; a new list gets the first. Those of ".tsv" are written with tabs.
inline constexpr std::array ListEndings = {".lst", ".txt", ".voc", ".tsv", ".csv"};

/// That of lists which are read, but never written.
inline constexpr auto KvtmlEnding = ".kvtml";

/// The names of the word lists in a folder, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder)
{
    QStringList patterns{QLatin1Char('*') + QLatin1String(KvtmlEnding)};
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
/// refused. What was wrong is told last, so that the message stands above the window that is shown then; of a
/// file that can be divided it is offered to do so.
inline void loadAndTell(const std::filesystem::path& file, const std::function<void()>& next,
                        const std::function<void(const LoadFault&)>& offerDivision)
{
    const auto fault = loadList(file);
    if (!fault || !fault->refused())
        next();
    if (fault && fault->words > 0)
        offerDivision(*fault);
    else if (fault)
        platform::current().showMessage(fault->message());
}

} // namespace vocabulary
