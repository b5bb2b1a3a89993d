#include "files/NewFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "files/DraftName.h"
#include "files/FolderLock.h"
#include "tests/files/TestFolder.h"

namespace fs = std::filesystem;

using namespace std::chrono_literals;
using testing::StartsWith;

using NewFileTest = TestFolder;

TEST_F(NewFileTest, IsThereWholeOnceItIsKept) {
    Put("a", "old");
    files::NewFile file(folder / "a");
    EXPECT_TRUE(file.Write("new "));
    EXPECT_TRUE(file.Write("text"));
    EXPECT_EQ(Get("a"), "old");
    EXPECT_TRUE(file.Keep());
    EXPECT_EQ(Get("a"), "new text");
    EXPECT_EQ(file.Error(), "");
    EXPECT_THAT(Entries(), testing::ElementsAre("a"));
}

TEST_F(NewFileTest, LeavesNothingWithoutKeep) {
    Put("a", "old");
    {
        files::NewFile file(folder / "a");
        EXPECT_TRUE(file.Write("new"));
        EXPECT_EQ(Entries().size(), 2u);
    }
    EXPECT_EQ(Get("a"), "old");
    EXPECT_THAT(Entries(), testing::ElementsAre("a"));
}

TEST_F(NewFileTest, OfTwoAtOnceEachIsWhole) {
    files::NewFile first(folder / "a");
    files::NewFile second(folder / "a");
    EXPECT_TRUE(first.Write(std::string(100'000, '1')));
    EXPECT_TRUE(second.Write("2"));
    EXPECT_TRUE(first.Keep());
    EXPECT_EQ(Get("a"), std::string(100'000, '1'));
    EXPECT_TRUE(second.Keep());
    EXPECT_EQ(Get("a"), "2");
    EXPECT_THAT(Entries(), testing::ElementsAre("a"));
}

TEST_F(NewFileTest, TakesAnyNameThatTheFileSystemTakes) {
    for (const std::size_t length : {1u, 251u, 252u, 255u}) {
        const std::string name(length, 'n');
        files::NewFile file(folder / name);
        EXPECT_TRUE(file.Write("x"));
        EXPECT_TRUE(file.Keep()) << length << ": " << file.Error();
        EXPECT_EQ(Get(name), "x") << length;
    }
    {
        files::NewFile file(folder / std::string(256, 'n'));
        EXPECT_FALSE(file.Keep());
        EXPECT_THAT(file.Error(), StartsWith("cannot be written: "));
    }
    EXPECT_EQ(Entries().size(), 4u);
}

TEST_F(NewFileTest, SaysWhyItCannotBe) {
    fs::create_directory(folder / "inner");
    Put("read-only", "old");
    fs::permissions(folder / "read-only", fs::perms::owner_read);
    const std::vector<std::pair<fs::path, std::string>> rows{
        {fs::path(), "is no name of a file"},   {folder / "inner", "is a folder"},
        {folder / "inner" / "", "is a folder"}, {folder / "none" / "a", "cannot be written: "},
        {folder / "read-only", "is read-only"},
    };
    for (const auto& [path, error] : rows) {
        files::NewFile file(path);
        EXPECT_THAT(file.Error(), StartsWith(error)) << path;
        EXPECT_FALSE(file.Write("new")) << path;
        EXPECT_FALSE(file.Keep()) << path;
    }
    EXPECT_EQ(Get("read-only"), "old");
    EXPECT_THAT(Entries(), testing::ElementsAre("inner", "read-only"));
    fs::permissions(folder / "read-only", fs::perms::owner_all);
}

TEST_F(NewFileTest, LeavesTheSameAloneWhenAsked) {
    const std::string longText(40'000, 'x');
    const auto longAgo = fs::file_time_type::clock::now() - 100h;
    const auto written = [&](const std::string& text, files::Manner manner) {
        fs::last_write_time(folder / "a", longAgo);
        files::NewFile file(folder / "a", manner);
        file.Write(text);
        EXPECT_TRUE(file.Keep());
        EXPECT_EQ(Get("a"), text);
        EXPECT_THAT(Entries(), testing::ElementsAre("a"));
        return fs::last_write_time(folder / "a") > longAgo + 1h;
    };
    Put("a", longText);
    EXPECT_FALSE(written(longText, {.leavesSame = true}));
    EXPECT_TRUE(written(longText, {}));
    EXPECT_TRUE(written(longText + "x", {.leavesSame = true}));
    EXPECT_TRUE(written(longText + "y", {.leavesSame = true}));
    EXPECT_TRUE(written("", {.leavesSame = true}));
    EXPECT_FALSE(written("", {.leavesSame = true}));
}

TEST_F(NewFileTest, StartsAfreshWhenAsked) {
    Put("a", "old");
    fs::permissions(folder / "a", fs::perms::owner_read);
    files::NewFile file(folder / "a", {.startsAfresh = true});
    EXPECT_TRUE(file.Write("new"));
    EXPECT_TRUE(file.Keep()) << file.Error();
    EXPECT_EQ(Get("a"), "new");
    EXPECT_NE(fs::status(folder / "a").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(NewFileTest, ClearsAwayDraftsThatAreAnHourOldAndNobodysAnyMore) {
    const auto put = [this](const std::string& name, std::chrono::minutes age) {
        Put(name, "x");
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - age);
        return name;
    };
    const std::string stale = put(files::NewDraftName(), 61min);
    const std::string fresh = put(files::NewDraftName(), 59min);
    const std::string other = put(".linewright-1.draft", 1000min);
    files::NewFile writing(folder / "slow");
    writing.Write("x");
    for (const std::string& name : Entries()) {
        std::error_code locked;
        if (files::IsDraftName(name) && name != stale && name != fresh)
            fs::last_write_time(folder / name, fs::file_time_type::clock::now() - 61min, locked);
    }
    EXPECT_THAT(Entries(), testing::Not(testing::Contains(stale)));
    files::NewFile file(folder / "a");
    EXPECT_TRUE(file.Keep());
    EXPECT_TRUE(writing.Keep()) << writing.Error();
    EXPECT_THAT(Entries(), testing::UnorderedElementsAre("a", "slow", fresh, other));
}

TEST(DraftNameTest, IsKnownAgain) {
    const std::string name = files::NewDraftName();
    EXPECT_EQ(name.size(), files::kDraftNameLength);
    EXPECT_TRUE(files::IsDraftName(name));
    EXPECT_NE(name, files::NewDraftName());
    EXPECT_FALSE(files::IsDraftName(""));
    EXPECT_FALSE(files::IsDraftName(name + "x"));
    EXPECT_FALSE(files::IsDraftName(name.substr(1) + "t"));
    EXPECT_FALSE(files::IsDraftName(".linewright-" + std::string(32, 'g') + ".draft"));
}

using FolderLockTest = TestFolder;

TEST_F(FolderLockTest, IsHadByOneAtATime) {
    {
        const files::FolderLock lock(folder);
        EXPECT_TRUE(lock.IsHeld());
        EXPECT_FALSE(files::FolderLock(folder, 0ms).IsHeld());
    }
    const files::FolderLock again(folder);
    EXPECT_TRUE(again.IsHeld());
}

TEST_F(FolderLockTest, IsNoneWhereThereIsNoFolder) {
    EXPECT_FALSE(files::FolderLock(folder / "none").IsHeld());
    Put("a", "");
    EXPECT_FALSE(files::FolderLock(folder / "a").IsHeld());
}
