#include "platform/file_replacement.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

namespace fs = std::filesystem;

// A new file in a folder, of a name that no other file has there. Unless it was put in its place, it is
// removed at the end of its scope.
class NewFile {
public:
    explicit NewFile(const fs::path& folder)
    {
        int number = 0;
        do
            path_ = folder / (".morvanti-being-written-" + std::to_string(number++));
        while (!opened() && errno == EEXIST);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (!isOpen())
            return;
        ::close(descriptor_); // errors that matter were met by `fsync`
        if (!inPlace_)
            ::unlink(path_.c_str());
    }

    bool isOpen() const { return descriptor_ >= 0; }

    // Whatever the process takes from the files that it makes.
    void setRights(mode_t mode) const { static_cast<void>(::fchmod(descriptor_, mode)); }

    bool write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return ::fsync(descriptor_) == 0;
    }

    bool putInPlace(const fs::path& target)
    {
        inPlace_ = ::rename(path_.c_str(), target.c_str()) == 0;
        return inPlace_;
    }

private:
    bool opened()
    {
        descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        return isOpen();
    }

    fs::path path_;
    int descriptor_ = -1;
    bool inPlace_ = false;
};

// A link stays a link: the file that it names is replaced, or made where it is missing.
fs::path finalName(fs::path path)
{
    std::error_code error;
    while (fs::is_symlink(path, error))
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

// Why what stands there must stay; nothing where it can be replaced, or there is none. A rename alone would
// also replace a pipe, or a file that is write-protected.
std::optional<std::string> reasonToStay(const fs::path& path, const struct stat& standing)
{
    if (S_ISDIR(standing.st_mode))
        return systemReason(EISDIR);
    if (!S_ISREG(standing.st_mode))
        return "not a file that can be written";
    if (::access(path.c_str(), W_OK) != 0)
        return systemReason(errno);
    return {};
}

} // namespace

std::optional<Fault> replaceFile(const fs::path& path, std::string_view bytes)
{
    const auto failed = [&](const std::string& reason) { return Fault{path.filename().string(), 0, reason}; };
    struct stat standing {};
    const bool stands = ::stat(path.c_str(), &standing) == 0;
    if (!stands && errno != ENOENT)
        return failed(systemReason(errno));
    if (const auto reason = stands ? reasonToStay(path, standing) : std::nullopt)
        return failed(*reason);

    const fs::path target = finalName(path);
    NewFile file(target.parent_path());
    if (!file.isOpen())
        return failed(systemReason(errno));
    if (stands)
        file.setRights(standing.st_mode & 07777U);
    if (!file.write(bytes) || !file.putInPlace(target))
        return failed(systemReason(errno));
    return {};
}

} // namespace platform
