#include "app/working_folder.h"

#include "platform/file_replacement.h"
#include "verbs/verb_list_file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace app {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 4> SampleKinds = {".cfg", ".lst", ".wav", ".hlp"};

// Where the samples may lie, seen from the program's folder: installed, and built in the source tree.
constexpr std::array<std::string_view, 2> SamplePlaces = {"../share/morvanti", "../../data"};

bool isSample(const fs::path& path)
{
    std::string kind = path.extension().string();
    std::ranges::transform(kind, kind.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return std::ranges::find(SampleKinds, kind) != SampleKinds.end();
}

fs::path variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

// Whole or not at all: what is there already stays, and so half a sample would stay for ever.
bool copySample(const fs::path& sample, const fs::path& folder)
{
    const fs::path copy = folder / sample.filename();
    if (fs::exists(copy))
        return true;
    std::string bytes(fs::file_size(sample), '\0');
    std::ifstream stream(sample, std::ios::binary);
    return stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())) &&
           !platform::replaceFile(copy, bytes);
}

// The verb list comes last: while it is missing, the folder is not yet filled.
bool fillFromSamples(const fs::path& folder, const fs::path& samples)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(samples))
        if (isSample(entry.path()) && entry.path().filename() != verbs::VerbListFileName &&
            !copySample(entry.path(), folder))
            return false;
    return copySample(samples / verbs::VerbListFileName, folder);
}

// Where the own folder cannot be had, the program works where it was started, without lists.
void enterOwnFolder(const fs::path& samples)
{
    const fs::path own = ownFolder();
    if (own.empty())
        return;
    try {
        fs::create_directories(own);
        const bool filled = samples.empty() || fs::exists(own / verbs::VerbListFileName);
        if (filled || fillFromSamples(own, samples))
            fs::current_path(own);
    } catch (const fs::filesystem_error&) {
        return;
    }
}

} // namespace

fs::path ownFolder()
{
    const fs::path data = variable("XDG_DATA_HOME");
    if (data.is_absolute())
        return data / "morvanti";
    const fs::path home = variable("HOME");
    return home.is_absolute() ? home / ".local/share/morvanti" : fs::path();
}

fs::path samplesBeside(const fs::path& programFolder)
{
    std::error_code error;
    for (const std::string_view place : SamplePlaces)
        if (fs::exists(programFolder / place / verbs::VerbListFileName, error))
            return programFolder / place;
    return {};
}

std::optional<std::string> enterWorkingFolder(const std::optional<std::string>& folder,
                                              const fs::path& samples)
{
    std::error_code error;
    if (folder) {
        fs::current_path(*folder, error);
        return error ? std::optional(*folder + ": " + error.message()) : std::nullopt;
    }
    if (!fs::exists(verbs::VerbListFileName, error))
        enterOwnFolder(samples);
    return {};
}

} // namespace app
