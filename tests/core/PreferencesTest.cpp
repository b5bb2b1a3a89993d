#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

#include "CreateObject.h"
#include "InterfacePtr.h"
#include "core/HostMemory.h"
#include "core/PreferencesRecord.h"
#include "plugin/ILWRAppPrefs.h"
#include "plugin/LWRAppPrefs.h"
#include "plugin/PreferencesFile.h"
#include "tests/TestHost.h"

namespace linewright {

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const LinewrightPrefsRecord& record) {
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

std::string ContentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/** A folder for several runs of the host, which removes it at the end. */
class PreferencesTest : public testing::Test {
  protected:
    PreferencesTest() { fs::create_directories(file.parent_path()); }
    ~PreferencesTest() override {
        fs::remove_all(folder);
        preferences = kDefaultPreferences;
    }

    void Write(const std::string& content) const {
        std::ofstream(file, std::ios::binary) << content;
    }

    /** Starts the host and stops it again; returns the alerts. */
    std::vector<std::string> Run() const {
        const TestHost host("qps", folder);
        std::vector<std::string> texts;
        for (const auto& alert : host.recorder.alerts) {
            EXPECT_EQ(alert.kind, host::AlertKind::kWarning);
            texts.push_back(alert.text);
        }
        return texts;
    }

    LinewrightPrefsRecord Changed() const {
        LinewrightPrefsRecord record = kDefaultPreferences;
        record.reservedWord = 0xA1B2C3D4;
        record.code39CheckMode = 1;
        record.codabarStop = 'C';
        record.lastTypeIndex = -3;
        return record;
    }

    const fs::path folder = MakeTestFolder();
    const fs::path file = folder / "config" / "Corvane" / "Config" / "QVT Linewright.prf";
    const std::string defaults = BytesOf(kDefaultPreferences);
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(PreferencesTest, TheDefaultsAreTheStatedBytes) {
    std::string expected(324, '\0');
    const auto put = [&](std::size_t offset, const std::string& bytes) {
        expected.replace(offset, bytes.size(), bytes);
    };
    put(0, "\x0ALinewright");
    put(32, "\x05");
    put(48, "\x09Test Data");
    put(306, "\x01");
    put(308, "\x02");
    put(310, "\x01");
    put(312, "\x01");
    put(314, "\x01");
    put(318, "A");
    put(320, "D");
    EXPECT_EQ(defaults, expected);
}

TEST_F(PreferencesTest, AMissingFileIsWrittenSilently) {
    fs::remove_all(file.parent_path().parent_path());
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), defaults);
}

TEST_F(PreferencesTest, AnEmptyFileIsAMissingOne) {
    Write("");
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), defaults);
}

TEST_F(PreferencesTest, AFileOfOursIsKept) {
    Write(BytesOf(Changed()));
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), BytesOf(Changed()));
}

TEST_F(PreferencesTest, WhatAShortFileLacksIsZero) {
    Write(BytesOf(Changed()).substr(0, 309));
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), BytesOf(Changed()).substr(0, 309) + std::string(15, '\0'));
}

constexpr std::size_t kMegabyte = 1'000'000;
constexpr const char* kResetKey = "0x122100kLWRPrefsResetMessageKey";

TEST_F(PreferencesTest, AFileTooShortForItsVersionIsReset) {
    Write(defaults.substr(0, 32));
    EXPECT_THAT(Run(), ElementsAre(kResetKey));
    EXPECT_EQ(ContentOf(file), defaults);
}

TEST_F(PreferencesTest, AnotherVersionIsReset) {
    for (const uint32 version : {4u, 6u, 0x05000000u}) {
        LinewrightPrefsRecord record = Changed();
        record.version = version;
        Write(BytesOf(record));
        EXPECT_THAT(Run(), ElementsAre(kResetKey)) << version;
        EXPECT_EQ(ContentOf(file), defaults);
    }
}

TEST_F(PreferencesTest, AnotherSignatureIsReset) {
    for (const char* const signature : {"\x0Alinewright", "\x09Linewrigh", "\x0BLinewright!", ""}) {
        LinewrightPrefsRecord record = Changed();
        std::memset(&record.signature, 0, sizeof record.signature);
        std::memcpy(&record.signature, signature, std::strlen(signature));
        Write(BytesOf(record));
        EXPECT_THAT(Run(), ElementsAre(kResetKey)) << signature;
        EXPECT_EQ(ContentOf(file), defaults);
    }
}

TEST_F(PreferencesTest, OfALongFileOnlyTheRecordCounts) {
    Write(BytesOf(Changed()) + std::string(10 * kMegabyte, 'x'));
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), BytesOf(Changed()));
    Write(std::string(10 * kMegabyte, 'x'));
    EXPECT_THAT(Run(), ElementsAre(kResetKey));
    EXPECT_EQ(ContentOf(file), defaults);
}

TEST_F(PreferencesTest, AFolderInTheFilesPlaceStays) {
    fs::create_directory(file);
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(PreferencesTest, WhatCannotBeReadGivesTheDefaultsAndStays) {
    for (const auto io : {host::Faults::Io::kOpenRead, host::Faults::Io::kRead}) {
        Write(BytesOf(Changed()));
        host::Faults::FailIo(io);
        EXPECT_THAT(Run(), IsEmpty());
        EXPECT_EQ(ContentOf(file), BytesOf(Changed()));
    }
}

TEST_F(PreferencesTest, WhatCannotBeWrittenStaysAsItWas) {
    using Io = host::Faults::Io;
    LinewrightPrefsRecord old = Changed();
    old.version = 4;
    for (const auto io : {Io::kOpenWrite, Io::kWrite, Io::kFlush, Io::kRename}) {
        Write(BytesOf(old));
        host::Faults::FailIo(io);
        EXPECT_THAT(Run(), ElementsAre(kResetKey));
        EXPECT_EQ(ContentOf(file), BytesOf(old));
        EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
    }
}

TEST_F(PreferencesTest, WithoutFoldersNothingIsWritten) {
    fs::remove_all(file.parent_path().parent_path());
    host::Faults::FailIo(host::Faults::Io::kCreateFolder);
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(PreferencesTest, AnInstallationMayKeepThemBesideTheApplication) {
    const fs::path local = folder / "app" / "Plug-Ins" / "Corvane" / "Config";
    fs::create_directories(local);
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(local / "QVT Linewright.prf"), defaults);
    EXPECT_FALSE(fs::exists(file));
    fs::remove_all(local.parent_path());
    EXPECT_THAT(Run(), IsEmpty());
    EXPECT_EQ(ContentOf(file), defaults);
}

TEST_F(PreferencesTest, AreSavedAndLoaded) {
    const TestHost host("qps", folder);
    preferences = Changed();
    EXPECT_TRUE(SavePreferences());
    preferences = kDefaultPreferences;
    EXPECT_TRUE(LoadPreferences());
    EXPECT_EQ(BytesOf(preferences), BytesOf(Changed()));
}

TEST_F(PreferencesTest, WithoutMemoryTheDefaultsHold) {
    const TestHost host("qps", folder);
    preferences = Changed();
    EXPECT_TRUE(SavePreferences());
    host::Faults::FailAllocation(1);
    EXPECT_FALSE(LoadPreferences());
    EXPECT_EQ(BytesOf(preferences), defaults);
}

/** A boss without interfaces, and a stream in memory. */
class LoneBoss : public IPMUnknown {
  public:
    IPMUnknown* QueryInterface(PMIID) const override { return nullptr; }
    void AddRef() const override {}
    void Release() const override {}
};

class TestStream : public IPMStream {
  public:
    explicit TestStream(bool reads) : reading(reads) {}
    IPMUnknown* QueryInterface(PMIID) const override { return nullptr; }
    void AddRef() const override {}
    void Release() const override {}
    bool16 IsReading() const override { return reading; }
    int32 XferByte(uchar* buffer, int32 count) override {
        if (!reading) {
            bytes.append(reinterpret_cast<const char*>(buffer), static_cast<std::size_t>(count));
            return count;
        }
        const std::size_t moved =
            bytes.copy(reinterpret_cast<char*>(buffer), static_cast<std::size_t>(count), position);
        position += moved;
        return static_cast<int32>(moved);
    }
    int32 XferInt32(int32& value) override {
        return XferByte(reinterpret_cast<uchar*>(&value), sizeof value);
    }
    StreamState GetStreamState() const override { return kStreamStateGood; }
    void Close() override {}

    std::string bytes;

  private:
    bool reading;
    std::size_t position = 0;
};

std::string Stored(const ILWRAppPrefs& object) {
    uint32 size = 77;
    uint8* const copy = object.CopyBlock(&size);
    EXPECT_EQ(copy == nullptr && size != 0, false);
    std::string text(reinterpret_cast<char*>(copy), size);
    FreeBlock(copy);
    return text;
}

void Store(ILWRAppPrefs& object, const std::string& text) {
    object.SetBlock(reinterpret_cast<const uint8*>(text.data()), static_cast<uint32>(text.size()));
}

TEST(LWRAppPrefs, KeepsACopyOfABlockInTheDatabase) {
    const TestHost host;
    const InterfacePtr<ILWRAppPrefs> object(
        static_cast<ILWRAppPrefs*>(CreateObject(kLinewrightAppPrefsBoss, IID_ILWRAPPPREFS)));
    ASSERT_NE(object.get(), nullptr);
    EXPECT_EQ(Stored(*object), "");
    EXPECT_EQ(object->CopyBlock(nullptr), nullptr);
    std::string text("a\0b", 3);
    Store(*object, text);
    text[0] = 'x';
    EXPECT_EQ(Stored(*object), std::string("a\0b", 3));
    Store(*object, "longer than before");
    EXPECT_EQ(Stored(*object), "longer than before");
    object->SetBlock(nullptr, 5);
    EXPECT_EQ(object->CopyBlock(nullptr), nullptr);
}

TEST(LWRAppPrefs, WithoutMemoryKeepsWhatIsStored) {
    const TestHost host;
    LoneBoss boss;
    LWRAppPrefs object(&boss);
    Store(object, "first");
    host::Faults::FailAllocation(1);
    Store(object, "second");
    EXPECT_EQ(Stored(object), "first");
    host::Faults::FailAllocation(1);
    EXPECT_EQ(object.CopyBlock(nullptr), nullptr);
}

TEST(LWRAppPrefs, IsWrittenAsSizeAndBytes) {
    const TestHost host;
    LoneBoss boss;
    LWRAppPrefs object(&boss);
    TestStream empty(false);
    object.ReadWrite(&empty, kLWRAppPrefsImpl);
    EXPECT_EQ(empty.bytes, "\xFF\xFF\xFF\xFF");
    Store(object, "abc");
    TestStream full(false);
    object.ReadWrite(&full, kLWRAppPrefsImpl);
    EXPECT_EQ(full.bytes, std::string("\3\0\0\0abc", 7));
}

TEST(LWRAppPrefs, IsReadAsSizeAndBytes) {
    const TestHost host;
    LoneBoss boss;
    LWRAppPrefs object(&boss);
    const auto read = [&](const std::string& bytes) {
        TestStream stream(true);
        stream.bytes = bytes;
        object.ReadWrite(&stream, kLWRAppPrefsImpl);
    };
    read(std::string("\3\0\0\0abc", 7));
    EXPECT_EQ(Stored(object), "abc");
    for (const std::string& bad :
         {std::string("\xFF\xFF\xFF\xFF"), std::string(), std::string("\3\0\0\0ab", 6),
          std::string("\xFE\xFF\xFF\xFF-----")}) {
        Store(object, "old");
        read(bad);
        EXPECT_EQ(object.CopyBlock(nullptr), nullptr);
    }
}

}  // namespace

}  // namespace linewright
