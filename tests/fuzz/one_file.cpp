#include "tests/fuzz/one_file.h"

#include "platform/random.h"
#include "tests/support/fake_platform.h"

#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

void fuzz::require(bool kept, std::string_view promise)
{
    if (kept)
        return;
    std::cerr << "Broken: " << promise << std::endl;
    std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const struct ScratchFile {
        const fs::path path = fs::temp_directory_path() / ("morvanti-fuzz-" + std::to_string(::getpid()));
        ~ScratchFile() { ::unlink(path.c_str()); }
    } file;
    std::ofstream(file.path, std::ios::binary) << std::string(data, data + size);
    fuzz::require(fs::file_size(file.path) == size, "The file can be written");
    tests::FakePlatform fake;
    platform::use(fake);
    platform::seedWith(1);
    fuzz::readFile(file.path);
    return 0;
}

// Reads every file of a folder, each after its name. Gives way to the main of libFuzzer where that is linked.
[[gnu::weak]] int main(int /*argumentCount*/, char** arguments)
{
    const std::set<fs::path> files{fs::directory_iterator(arguments[1]), fs::directory_iterator()};
    for (const fs::path& path : files) {
        std::cout << path.filename().string() << std::endl;
        std::ifstream stream(path, std::ios::binary);
        const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(stream), {});
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
