#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "include/linewright.h"

namespace linewright {

inline linewright_text Text(const std::string& text) {
    return {text.data(), text.size()};
}

inline std::string Said(linewright_text text) {
    return text.size == 0 ? "" : std::string(text.data, text.size);
}

/** The library, opened in folders of its own. */
class OpenLibrary : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(folder + "/config");
        std::filesystem::create_directories(folder + "/app");
        ASSERT_EQ(Open(), LINEWRIGHT_DONE) << linewright_error();
    }
    void TearDown() override {
        EXPECT_EQ(linewright_close(), LINEWRIGHT_DONE);
        EXPECT_EQ(linewright_close(), LINEWRIGHT_NOT_OPEN) << "a test has left it open";
        std::filesystem::remove_all(folder);
    }

    linewright_places Places() const {
        linewright_places places = LINEWRIGHT_PLACES_INIT;
        places.config_folder = Text(config);
        places.app_folder = Text(app);
        return places;
    }
    linewright_status Open() const {
        const linewright_places places = Places();
        return linewright_open(&places);
    }

    std::string folder = (std::filesystem::temp_directory_path() /
                          ("linewright-library-" + std::to_string(std::random_device()())))
                             .string();
    std::string config = folder + "/config";
    std::string app = folder + "/app";
};

}  // namespace linewright
