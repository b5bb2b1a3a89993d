#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/** A test with an empty folder of its own. */
class TestFolder : public testing::Test {
  protected:
    TestFolder()
        : folder(std::filesystem::temp_directory_path() /
                 (u8"files test é " +
                  std::filesystem::path(std::to_string(std::random_device()())).u8string())) {
        std::filesystem::create_directory(folder);
    }
    ~TestFolder() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void Put(const std::string& name, std::string_view content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
    }
    std::string Get(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /** The names in the folder, in order; not those of locks. */
    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            if (name != ".linewright-lock") names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::filesystem::path folder;
};
