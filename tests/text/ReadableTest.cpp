#include "text/Readable.h"

#include <gtest/gtest.h>

namespace linewright {

namespace {

TEST(Readable, ShowsControlCharactersAsTheirPictures) {
    EXPECT_EQ(Readable(std::string_view("é\0\n\x1B\x1F\x7F ~", 9)),
              "é\u2400\u240A\u241B\u241F\u2421 ~");
}

TEST(Readable, ReplacesWhatHasNoPictureAndWhatIsNotUtf8) {
    EXPECT_EQ(Readable("\xFF\xC2\x80\xC2\x9F\xC2\xA0z"), "\uFFFD\uFFFD\uFFFD\u00A0z");
    EXPECT_EQ(Readable("\xE2\x82"), "\uFFFD\uFFFD");
}

}  // namespace

}  // namespace linewright
