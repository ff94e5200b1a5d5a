// Feeds a target with every file of a folder, each by its name, so that the last name printed is that of the
// file that broke a promise.

#include "tests/fuzz/one_file.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> filesOf(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

void replay(const fs::path& path)
{
    std::cout << path.filename().string() << std::endl;
    std::ifstream stream(path, std::ios::binary);
    const std::vector<char> characters{std::istreambuf_iterator<char>(stream), {}};
    const std::vector<std::uint8_t> bytes(characters.begin(), characters.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2)
        return EXIT_FAILURE;
    const auto files = filesOf(arguments[1]);
    std::ranges::for_each(files, replay);
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
