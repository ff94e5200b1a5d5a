#include "platform/text_file.h"

#include "platform/code_page.h"

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace platform {

namespace {

TextFile failed(const std::filesystem::path& path, const std::string& reason)
{
    return {{}, Fault{path.filename().string(), 0, reason}};
}

// A file that is cut at its longest ends with its last whole line.
void dropPartOfLine(std::string& bytes)
{
    if (bytes.size() < LongestFile)
        return;
    const std::size_t end = bytes.find_last_of('\n');
    bytes.resize(end == std::string::npos ? 0 : end + 1);
}

} // namespace

TextFile readTextFile(const std::filesystem::path& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (error)
        return failed(path, error.message());
    if (!std::filesystem::is_regular_file(status))
        return failed(path, "not a file that can be read");

    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return failed(path, systemReason(errno));
    const auto size = std::filesystem::file_size(path, error);
    std::string bytes(error ? LongestFile : std::min(static_cast<std::size_t>(size), LongestFile), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.bad())
        return failed(path, systemReason(errno));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    dropPartOfLine(bytes);
    return {decoded(bytes), {}};
}

} // namespace platform
