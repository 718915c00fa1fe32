// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace morvel::testing {

// A directory of its own for one test, removed with everything in it afterwards.
class TempDir {
public:
    TempDir() {
        static std::atomic<int> counter = 0;
        m_path = std::filesystem::temp_directory_path() /
                 ("morvel-store-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
        std::filesystem::create_directories(m_path);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::filesystem::path file(const std::string& name) const { return m_path / name; }
    // The names of the files in the directory, for spotting journals left behind.
    std::string listing() const {
        std::string names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names += entry.path().filename().string() + " ";
        return names;
    }

private:
    std::filesystem::path m_path;
};

inline std::string fileBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace morvel::testing
