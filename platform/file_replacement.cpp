#include "platform/file_replacement.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

namespace fs = std::filesystem;

// Closes the file at the end of its scope; errors that matter are met by `fsync` before.
class OpenFile {
public:
    explicit OpenFile(const fs::path& path)
        : descriptor_(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666))
    {
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
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

private:
    int descriptor_;
};

// A link stays a link: the file that it names is replaced.
fs::path finalName(const fs::path& path)
{
    std::error_code error;
    const fs::path target = fs::canonical(path, error);
    return error ? path : target;
}

std::optional<mode_t> rightsOf(const fs::path& path)
{
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? std::optional<mode_t>(status.st_mode & 07777U) : std::nullopt;
}

// No name that a learner would give a file.
fs::path nameWhileWriting(const fs::path& target)
{
    return target.parent_path() / ("." + target.filename().string() + ".being-written");
}

// The system's number for why a file must stay, 0 where nothing forbids to replace it. A rename alone would
// also replace a file that is write-protected.
int reasonNotToReplace(const fs::path& target)
{
    std::error_code error;
    if (fs::is_directory(target, error))
        return EISDIR;
    return ::access(target.c_str(), W_OK) == 0 || errno == ENOENT ? 0 : errno;
}

} // namespace

std::optional<Fault> replaceFile(const fs::path& path, std::string_view bytes)
{
    const auto failed = [&](int errorNumber) {
        return Fault{path.filename().string(), 0, systemReason(errorNumber)};
    };
    const fs::path target = finalName(path);
    if (const int reason = reasonNotToReplace(target); reason != 0)
        return failed(reason);
    const fs::path beside = nameWhileWriting(target);
    ::unlink(beside.c_str());

    const OpenFile file(beside);
    if (!file.isOpen())
        return failed(errno);
    if (const auto rights = rightsOf(target))
        file.setRights(*rights);
    if (file.write(bytes) && ::rename(beside.c_str(), target.c_str()) == 0)
        return {};
    const Fault fault = failed(errno);
    ::unlink(beside.c_str());
    return fault;
}

} // namespace platform
