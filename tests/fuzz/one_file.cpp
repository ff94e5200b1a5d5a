#include "tests/fuzz/one_file.h"

#include "platform/random.h"
#include "tests/support/fake_platform.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace fuzz {

namespace fs = std::filesystem;

namespace {

class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string pattern = (fs::temp_directory_path() / "morvanti-fuzz-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no folder for the file");
        path_ = pattern;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

} // namespace

fs::path beginWithFile(const std::uint8_t* data, std::size_t size)
{
    static const ScratchFolder folder;
    static std::optional<tests::FakePlatform> fake;
    platform::use(fake.emplace());
    platform::seedWith(1);
    const fs::path path = folder.path() / "file";
    const std::string bytes(data, data + size);
    std::ofstream stream(path, std::ios::binary);
    stream << bytes << std::flush;
    require(stream.good(), "The file can be written");
    return path;
}

void require(bool kept, std::string_view promise)
{
    if (kept)
        return;
    std::cerr << "Broken: " << promise << std::endl;
    std::abort();
}

} // namespace fuzz
