#pragma once

#include "tests/support/fake_platform.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace tests {

/// Before each test: all shared state as at the program's start, a fake platform, the random generator seeded
/// with a fixed number, and an empty folder as the current one.
class FreshState : public testing::Test {
protected:
    FreshState();
    ~FreshState() override;

    FakePlatform fake;

private:
    std::filesystem::path before_;
    std::filesystem::path folder_;
};

/// Writes a file of exactly these bytes into the current folder.
void writeFile(const std::string& name, std::string_view bytes);

/// The bytes of a file.
std::string bytesOf(const std::filesystem::path& path);

/// Copies a file of the program's samples into the current folder.
void copySample(const std::string& name);

} // namespace tests
