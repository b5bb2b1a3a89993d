#include "packaging/windows/PathList.h"

#include <gtest/gtest.h>

namespace linewright {
namespace {

constexpr const wchar_t* kFolder = L"C:\\Größe 日本\\bin";

struct Row {
    std::wstring list;
    std::wstring with;
    std::wstring without;
};

const Row kRows[] = {
    {L"", L"C:\\Größe 日本\\bin", L""},
    {L"C:\\a", L"C:\\a;C:\\Größe 日本\\bin", L"C:\\a"},
    {L"C:\\a;", L"C:\\a;;C:\\Größe 日本\\bin", L"C:\\a;"},
    {L"%HOME%\\a;;\"C:\\b;c\"", L"%HOME%\\a;;\"C:\\b;c\";C:\\Größe 日本\\bin",
     L"%HOME%\\a;;\"C:\\b;c\""},
    {L"C:\\Größe 日本\\bin", L"C:\\Größe 日本\\bin", L""},
    {L"C:\\Größe 日本\\bin\\;C:\\a", L"C:\\Größe 日本\\bin\\;C:\\a", L"C:\\a"},
    {L"C:\\a;\"c:\\GRÖSSE 日本\\BIN\"", L"C:\\a;\"c:\\GRÖSSE 日本\\BIN\";C:\\Größe 日本\\bin",
     L"C:\\a;\"c:\\GRÖSSE 日本\\BIN\""},
    {L"C:\\a;\"c:\\GRÖßE 日本\\BIN\";C:\\b", L"C:\\a;\"c:\\GRÖßE 日本\\BIN\";C:\\b",
     L"C:\\a;C:\\b"},
    {L"C:\\Größe 日本\\binary", L"C:\\Größe 日本\\binary;C:\\Größe 日本\\bin",
     L"C:\\Größe 日本\\binary"},
};

TEST(PathList, PutsAFolderInOnceAndTakesItOutAgain) {
    for (const Row& row : kRows) {
        EXPECT_EQ(WithFolder(row.list, kFolder), row.with);
        EXPECT_EQ(WithoutFolder(row.list, kFolder), row.without);
        EXPECT_EQ(WithoutFolder(row.with, kFolder), row.without);
    }
}

TEST(PathList, QuotesAFolderWithASemicolon) {
    const std::wstring with = WithFolder(L"C:\\a", L"C:\\b;c");
    EXPECT_EQ(with, L"C:\\a;\"C:\\b;c\"");
    EXPECT_EQ(WithoutFolder(with, L"C:\\b;c"), L"C:\\a");
}

TEST(PathList, HasNoLongestLength) {
    const std::wstring list = std::wstring(20'000, L'x') + L";C:\\a";
    EXPECT_EQ(WithoutFolder(WithFolder(list, kFolder), kFolder), list);
}

}  // namespace
}  // namespace linewright
