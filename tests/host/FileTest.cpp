#include "FileUtils.h"
#include "StreamUtil.h"
#include "tests/host/HostTest.h"

#include <algorithm>

namespace fs = std::filesystem;

using Io = host::Faults::Io;

namespace {

constexpr OSType kUnknownType = FourCharCode('?', '?', '?', '?');

InterfacePtr<IPMStream> OpenRead(const fs::path& path) {
    return InterfacePtr<IPMStream>(
        StreamUtil::CreateFileStreamRead(FileAt(path), kOpenIn, kUnknownType, kUnknownType));
}

InterfacePtr<IPMStream> OpenWrite(const fs::path& path) {
    return InterfacePtr<IPMStream>(StreamUtil::CreateFileStreamWrite(
        FileAt(path), kOpenOut | kOpenTrunc, kUnknownType, kUnknownType));
}

int32 Write(IPMStream* stream, std::string text) {
    return stream->XferByte(reinterpret_cast<uchar*>(text.data()), static_cast<int32>(text.size()));
}

std::string Read(IPMStream* stream, int32 count) {
    std::string text(static_cast<std::size_t>(count), '#');
    const int32 moved = stream->XferByte(reinterpret_cast<uchar*>(text.data()), count);
    return text.substr(0, static_cast<std::size_t>(moved));
}

std::string PathOf(const IDFile& file) {
    std::string path = ToUtf8(file.GetString());
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

}  // namespace

/** A started host and an empty folder. */
class FileTest : public StartedHostTest {
  protected:
    FileTest() : place(folder / u8"dossier é€"), file(place / u8"data 日本.prf") {
        fs::create_directory(place);
    }
    std::ptrdiff_t CountEntries() const {
        return std::distance(fs::directory_iterator(place), fs::directory_iterator());
    }

    fs::path place;
    fs::path file;
};

TEST_F(FileTest, HoldsAPath) {
    const IDFile none;
    EXPECT_TRUE(none.GetString().IsEmpty());
    IDFile first = FileAt("a");
    IDFile second = first;
    second.SetString(FromUtf8("b"));
    EXPECT_EQ(ToUtf8(first.GetString()), "a");
    first = second;
    EXPECT_EQ(ToUtf8(first.GetString()), "b");
}

TEST_F(FileTest, AppendsEntriesToFolders) {
    IDFile entry = FileAt("a");
    FileUtils::AppendPath(&entry, FromUtf8("b é"));
    EXPECT_EQ(PathOf(entry), "a/b é");
    FileUtils::AppendPath(&entry, FromUtf8("/c"));
    EXPECT_EQ(PathOf(entry), "a/b é/c");
    FileUtils::AppendPath(nullptr, FromUtf8("d"));
}

TEST_F(FileTest, MakesOneFolderAtATime) {
    const fs::path made = place / u8"日本";
    EXPECT_FALSE(FileUtils::CreateFolderIfNeeded(FileAt(made / "below")));
    EXPECT_TRUE(FileUtils::CreateFolderIfNeeded(FileAt(made)));
    EXPECT_TRUE(fs::is_directory(made));
    EXPECT_TRUE(FileUtils::CreateFolderIfNeeded(FileAt(made)));
    WriteFile(file, "");
    EXPECT_FALSE(FileUtils::CreateFolderIfNeeded(FileAt(file)));
    host::Faults::FailIo(Io::kCreateFolder);
    EXPECT_TRUE(FileUtils::CreateFolderIfNeeded(FileAt(made)));
    EXPECT_FALSE(FileUtils::CreateFolderIfNeeded(FileAt(made / "below")));
    EXPECT_FALSE(fs::exists(made / "below"));
}

TEST_F(FileTest, KnowsWhatExists) {
    EXPECT_TRUE(FileUtils::DoesFileExist(FileAt(place)));
    EXPECT_FALSE(FileUtils::DoesFileExist(FileAt(file)));
    WriteFile(file, "");
    EXPECT_TRUE(FileUtils::DoesFileExist(FileAt(file)));
    EXPECT_FALSE(FileUtils::DoesFileExist(IDFile()));
}

TEST_F(FileTest, GivesTheFoldersThatWereSet) {
    IDFile found;
    EXPECT_TRUE(FileUtils::GetAppRoamingDataFolder(&found));
    EXPECT_EQ(fs::path(found.GetString().IsEmpty() ? "" : PathOf(found)), folder / "roaming");
    EXPECT_TRUE(fs::is_directory(folder / "roaming"));
    EXPECT_TRUE(FileUtils::GetAppFolder(&found));
    EXPECT_TRUE(fs::equivalent(PathOf(found), folder));
    EXPECT_FALSE(FileUtils::GetAppFolder(nullptr));
}

TEST_F(FileTest, ReadsToTheEnd) {
    WriteFile(file, std::string("ab\0\r\n\xFF\x1A", 7) + "c");
    const auto stream = OpenRead(file);
    ASSERT_TRUE(stream);
    EXPECT_TRUE(stream->IsReading());
    EXPECT_EQ(Read(stream, 3), std::string("ab\0", 3));
    EXPECT_EQ(stream->GetStreamState(), kStreamStateGood);
    EXPECT_EQ(Read(stream, 0), "");
    EXPECT_EQ(Read(stream, 100),
              "\r\n\xFF\x1A"
              "c");
    EXPECT_EQ(stream->GetStreamState(), kStreamStateEOF);
    EXPECT_EQ(Read(stream, 1), "");
    stream->Close();
    EXPECT_EQ(Read(stream, 1), "");
}

TEST_F(FileTest, ReadsAndWritesIntegersLittleEndian) {
    const auto out = OpenWrite(file);
    int32 number = 0x01020304;
    EXPECT_EQ(out->XferInt32(number), 4);
    number = -2;
    EXPECT_EQ(out->XferInt32(number), 4);
    Write(out, "ab");
    out->Close();
    EXPECT_EQ(ReadFile(file),
              "\x04\x03\x02\x01\xFE\xFF\xFF\xFF"
              "ab");
    const auto in = OpenRead(file);
    EXPECT_EQ(in->XferInt32(number), 4);
    EXPECT_EQ(number, 0x01020304);
    EXPECT_EQ(in->XferInt32(number), 4);
    EXPECT_EQ(number, -2);
    EXPECT_EQ(in->XferInt32(number), 2);
    EXPECT_EQ(number, -2);
    EXPECT_EQ(in->GetStreamState(), kStreamStateEOF);
}

TEST_F(FileTest, HasNoOtherInterface) {
    WriteFile(file, "");
    const auto stream = OpenRead(file);
    EXPECT_EQ(stream->QueryInterface(0x0F05), nullptr);
    const InterfacePtr<IPMUnknown> same(stream, IID_IPMUNKNOWN);
    EXPECT_TRUE(same);
}

TEST_F(FileTest, DoesNotReadWhatIsNoFile) {
    EXPECT_FALSE(OpenRead(file));
    EXPECT_FALSE(OpenRead(place));
    EXPECT_FALSE(OpenRead(fs::path()));
    WriteFile(file, "x");
    EXPECT_FALSE(InterfacePtr<IPMStream>(
        StreamUtil::CreateFileStreamRead(FileAt(file), kOpenOut, kUnknownType, kUnknownType)));
}

TEST_F(FileTest, WritesAFileWholeWhenItIsClosed) {
    WriteFile(file, "old");
    const auto stream = OpenWrite(file);
    ASSERT_TRUE(stream);
    EXPECT_FALSE(stream->IsReading());
    EXPECT_EQ(Write(stream, "new "), 4);
    EXPECT_EQ(Write(stream, "text"), 4);
    EXPECT_EQ(stream->GetStreamState(), kStreamStateGood);
    EXPECT_EQ(ReadFile(file), "old");
    stream->Close();
    EXPECT_EQ(ReadFile(file), "new text");
    EXPECT_NE(stream->GetStreamState(), kStreamStateFailure);
    EXPECT_EQ(Write(stream, "more"), 0);
    stream->Close();
    EXPECT_EQ(ReadFile(file), "new text");
    EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FileTest, WritesANewFileAndAnEmptyOne) {
    OpenWrite(file)->Close();
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(ReadFile(file), "");
    EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FileTest, LeavesTheFileWhenAStreamIsNotClosed) {
    WriteFile(file, "old");
    Write(OpenWrite(file), "new");
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FileTest, WritesTwoStreamsApart) {
    const auto first = OpenWrite(file);
    const auto second = OpenWrite(file);
    Write(first, "first");
    Write(second, "second");
    first->Close();
    EXPECT_EQ(ReadFile(file), "first");
    second->Close();
    EXPECT_EQ(ReadFile(file), "second");
    EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FileTest, DoesNotWriteWhereNoFileCanBe) {
    EXPECT_FALSE(OpenWrite(place));
    EXPECT_FALSE(OpenWrite(place / "none" / "file"));
    EXPECT_FALSE(OpenWrite(fs::path()));
    EXPECT_FALSE(InterfacePtr<IPMStream>(
        StreamUtil::CreateFileStreamWrite(FileAt(file), kOpenOut, kUnknownType, kUnknownType)));
    EXPECT_EQ(CountEntries(), 0);
}

TEST_F(FileTest, FailsToOpenWhenTold) {
    WriteFile(file, "old");
    host::Faults::FailIo(Io::kOpenRead);
    EXPECT_FALSE(OpenRead(file));
    EXPECT_FALSE(OpenWrite(file)) << "what could not be read would be lost";
    host::Faults::FailIo(Io::kOpenWrite);
    EXPECT_TRUE(OpenRead(file));
    EXPECT_FALSE(OpenWrite(file));
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FileTest, FailsToReadWhenTold) {
    WriteFile(file, "old");
    const auto stream = OpenRead(file);
    host::Faults::FailIo(Io::kRead);
    EXPECT_EQ(Read(stream, 2), "");
    EXPECT_EQ(stream->GetStreamState(), kStreamStateFailure);
}

class FailingWriteTest : public FileTest, public testing::WithParamInterface<Io> {};

TEST_P(FailingWriteTest, LeavesTheOldFileAndNoLitter) {
    WriteFile(file, "old");
    const auto stream = OpenWrite(file);
    ASSERT_TRUE(stream);
    host::Faults::FailIo(GetParam());
    EXPECT_EQ(Write(stream, "new"), GetParam() == Io::kWrite ? 0 : 3);
    host::Faults::FailIo(GetParam() == Io::kWrite ? Io::kNone : GetParam());
    stream->Close();
    EXPECT_EQ(stream->GetStreamState(), kStreamStateFailure);
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(CountEntries(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, FailingWriteTest,
                         testing::Values(Io::kWrite, Io::kFlush, Io::kRename));

using FolderTest = HostTest;

TEST_F(FolderTest, IsMadeWithItsParents) {
    roamingText = ToUtf8(folder / "a" / "b" / "c");
    settings.roamingFolder = roamingText.c_str();
    ASSERT_TRUE(Start()) << Error();
    EXPECT_TRUE(fs::is_directory(folder / "a" / "b" / "c"));
}

TEST_F(FolderTest, MayBeUnmakeable) {
    WriteFile(folder / "file", "");
    roamingText = ToUtf8(folder / "file" / "below");
    settings.roamingFolder = roamingText.c_str();
    ASSERT_TRUE(Start()) << Error();
    IDFile found;
    EXPECT_TRUE(FileUtils::GetAppRoamingDataFolder(&found));
    EXPECT_FALSE(FileUtils::DoesFileExist(found));
}

TEST_F(FolderTest, IsThatOfTheProgramForTheApplication) {
    settings.appFolder = nullptr;
    ASSERT_TRUE(Start()) << Error();
    IDFile found;
    ASSERT_TRUE(FileUtils::GetAppFolder(&found));
    EXPECT_TRUE(fs::exists(fs::path(PathOf(found)) / HOST_TESTS)) << PathOf(found);
}

TEST_F(FolderTest, IsUnknownWithoutAHost) {
    IDFile found;
    EXPECT_FALSE(FileUtils::GetAppFolder(&found));
    EXPECT_FALSE(FileUtils::GetAppRoamingDataFolder(&found));
}
