#include "vocabulary/list_division.h"

#include "vocabulary/vocabulary_file.h"
#include "vocabulary/vocabulary_tester.h"

#include <algorithm>
#include <span>
#include <string>
#include <system_error>

namespace vocabulary {

namespace {

using Path = std::filesystem::path;

constexpr int LastNumber = 9999;

Path numbered(const Path& path, int number)
{
    Path name = path.stem();
    name += "-" + std::to_string(number) + std::string(OwnEnding);
    return path.parent_path() / name;
}

// A link that leads nowhere takes a name as well.
bool isTaken(const Path& path)
{
    std::error_code error;
    return std::filesystem::symlink_status(path, error).type() != std::filesystem::file_type::not_found;
}

// So many names side by side that no file has; none where all numbers are taken.
std::vector<Path> freeNames(const Path& path, std::size_t count)
{
    std::vector<Path> names;
    for (int number = 1; number <= LastNumber && names.size() < count; ++number) {
        names.push_back(numbered(path, number));
        if (isTaken(names.back()))
            names.clear();
    }
    return names.size() == count ? names : std::vector<Path>{};
}

void removeAll(std::span<const Path> paths)
{
    std::error_code error;
    for (const Path& path : paths)
        std::filesystem::remove(path, error);
}

} // namespace

int listsFor(int words)
{
    return (words + LastCountedWord - 1) / LastCountedWord;
}

Division divideList(const Path& path)
{
    const VocabularyFile file = readVocabularyFile(path);
    if (file.records.empty() && file.fault)
        return {{}, file.fault->fault};
    const auto lists = static_cast<std::size_t>(listsFor(static_cast<int>(file.records.size())));
    const std::vector<Path> names = freeNames(path, lists);
    if (names.empty())
        return {{}, platform::Fault{path.filename().string(), 0, "all names for its parts are taken"}};
    for (std::span<const WordRecord> rest = file.records; const Path& name : names) {
        const std::size_t words = std::min<std::size_t>(rest.size(), LastCountedWord);
        if (auto fault = writeVocabularyFile(name, rest.first(words))) {
            removeAll(std::span(names).first(static_cast<std::size_t>(&name - names.data())));
            return {{}, std::move(fault)};
        }
        rest = rest.subspan(words);
    }
    return {names, {}, file.fault ? file.fault->loss : std::nullopt};
}

} // namespace vocabulary
