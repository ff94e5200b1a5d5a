#pragma once

#include "platform/platform.h"
#include "shell/kit/text.h"
#include "vocabulary/vocabulary_edits.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

namespace vocabulary {

/// The ending of lists which are read, but never written.
inline constexpr std::string_view KvtmlEnding = ".kvtml";

/// The endings of the lists that are read; the last of them is not written.
inline constexpr std::array<std::string_view, 6> ReadEndings = {OwnEnding, ".txt", ".voc",
                                                                TabEnding, ".csv", KvtmlEnding};
inline constexpr auto WrittenEndings = std::span(ReadEndings).first<ReadEndings.size() - 1>();

using Endings = std::span<const std::string_view>;

inline bool endsWithOneOf(Endings endings, const QString& name)
{
    return std::ranges::any_of(endings, [&](std::string_view ending) {
        return name.endsWith(shell::fromUtf8(ending), Qt::CaseInsensitive);
    });
}

/// The names of the files in a folder that have one of these endings, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder, Endings endings)
{
    QStringList patterns;
    for (const std::string_view ending : endings)
        patterns << QLatin1Char('*') + shell::fromUtf8(ending);
    return folder.entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

/// A name as it was typed, with the program's own ending where it has none of these: what follows the dot of
/// "Kap.II" is part of the name. A file of just this name keeps it, unless it is KVTML.
inline QString withEnding(const QDir& folder, const QString& name, Endings endings)
{
    const bool isKept =
        endsWithOneOf(endings, name) || (folder.exists(name) && !endsWithOneOf({&KvtmlEnding, 1}, name));
    return isKept ? name : name + shell::fromUtf8(OwnEnding);
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
