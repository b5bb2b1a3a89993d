#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>

#include "CreateObject.h"
#include "InterfacePtr.h"
#include "core/EncodeBarcodeData.h"
#include "core/IORTALinewright.h"
#include "core/PreferencesRecord.h"
#include "tests/HostStrings.h"
#include "tests/JsonLines.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "tests/VectorCalls.h"

// Runs the rows of tests/vectors, one test each. A row that names a type is encoded by the rooms
// linked in here and, unless it sets preferences, by the loaded plug-in too.

namespace linewright {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

class PreferencesGuard {
  public:
    explicit PreferencesGuard(const nlohmann::json& changes) {
        for (const auto& [name, value] : changes.items()) Set(name, value);
    }
    PreferencesGuard(const PreferencesGuard&) = delete;
    PreferencesGuard& operator=(const PreferencesGuard&) = delete;
    ~PreferencesGuard() { preferences = saved; }

  private:
    static void Set(const std::string& name, const nlohmann::json& value) {
        const auto assign = [&](auto& field) {
            field = value.get<std::remove_reference_t<decltype(field)>>();
        };
        if (name == "code39CheckMode") return assign(preferences.code39CheckMode);
        if (name == "code39UseAsterisk") return assign(preferences.code39UseAsterisk);
        if (name == "i2of5CheckDigit") return assign(preferences.i2of5CheckDigit);
        if (name == "msiFirstCheck") return assign(preferences.msiFirstCheck);
        if (name == "msiSecondCheck") return assign(preferences.msiSecondCheck);
        if (name == "codabarStart") return assign(preferences.codabarStart);
        if (name == "codabarStop") return assign(preferences.codabarStop);
        throw std::runtime_error("no preference is named " + name);
    }

    LinewrightPrefsRecord saved = preferences;
};

bool IsUtf8(const Row& row) {
    return row.fields.Value("utf8", false);
}

Outcome EncodeHere(const Row& row) {
    const PreferencesGuard guard(row.fields.Value("prefs", nlohmann::json::object()));
    TestBlock block(row.data);
    uint16 recognised = 0;
    PMString hint;
    PMString humanReadable;
    const int status = EncodeBarcodeData(&block.bytes, MakePString(row.call), &block.length,
                                         IsUtf8(row), &recognised, static_cast<uint16>(row.check),
                                         row.ratio, 0, &hint, &humanReadable);
    return {status, block.Text(), Latin1(hint), Latin1(humanReadable), recognised == 1};
}

Outcome EncodeThere(const Row& row) {
    const InterfacePtr<IORTALinewright> service(
        static_cast<IORTALinewright*>(CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
    TestBlock block(row.data);
    uint16 recognised = 0;
    PMString hint;
    LinewrightRequestParams params{};
    params.convertFromUtf8 = IsUtf8(row);
    params.checkCharacter = static_cast<uint8>(row.check);
    params.dataLength = block.length;
    params.ratio = row.ratio;
    params.slot1 = &block.bytes;
    params.slot2 = &recognised;
    params.slot3 = &hint;
    params.typeName = MakePString(row.call);
    LinewrightRequest request{0, kEncodeRequest, &params};
    service->ProcessRequest(&request);
    block.length = params.dataLength;
    return {request.result, block.Text(), Latin1(hint), std::nullopt, recognised == 1};
}

Row RowOf(const nlohmann::json& object) {
    const RowFields fields(object);
    return {fields.At("call").get<std::string>(), BytesOf(fields.Value("data", nlohmann::json(""))),
            fields.Value("check", 0), fields.Value("ratio", 2.0), fields};
}

Outcome RunHere(const Row& row) {
    const auto call = RegisteredCalls().find(row.call);
    if (call != RegisteredCalls().end()) return call->second(row);
    if (!row.call.empty() && row.call[0] != '_')
        throw std::runtime_error("no function is registered as " + row.call);
    return EncodeHere(row);
}

bool MeetsThePlugIn(const Row& row) {
    return !RegisteredCalls().contains(row.call) && !row.fields.Contains("prefs");
}

/** The outcome as a row's fields. */
Json FieldsOf(const Outcome& outcome) {
    Json fields;
    if (outcome.status) fields["status"] = *outcome.status;
    if (outcome.result) fields["result"] = TextOf(*outcome.result);
    if (outcome.hint) fields["hint"] = TextOf(*outcome.hint);
    if (outcome.humanReadable) fields["hr"] = TextOf(*outcome.humanReadable);
    if (outcome.recognised) fields["recognised"] = *outcome.recognised;
    return fields;
}

constexpr const char* kExpectations[] = {"status", "result", "hint", "hr", "recognised"};

/** An expectation in the form of FieldsOf: long texts may be written as parts. */
Json Expected(const nlohmann::json& field) {
    return field.is_array() ? Json(TextOf(BytesOf(field))) : Json(field);
}

bool HasExpectation(const Row& row) {
    return std::any_of(std::begin(kExpectations), std::end(kExpectations),
                       [&row](const char* name) { return row.fields.Contains(name); });
}

/** Compares the expectations that stand in the row; `absent` names one that this way has none of.
 */
void Compare(const Row& row, const Outcome& outcome, const char* where,
             std::string_view absent = {}) {
    const Json fields = FieldsOf(outcome);
    for (const char* const name : kExpectations) {
        if (!row.fields.Contains(name) || absent == name) continue;
        EXPECT_EQ(Expected(row.fields.At(name)).dump(), fields.value(name, Json()).dump())
            << name << " " << where;
    }
}

class RowTest : public testing::Test {
  public:
    explicit RowTest(nlohmann::json rowFields) : fields(std::move(rowFields)) {}

    void TestBody() override {
        const Row row = RowOf(fields);
        ASSERT_TRUE(row.fields.Contains("from")) << "a row says where its expectation comes from";
        ASSERT_TRUE(HasExpectation(row)) << "a row says what must come of it";
        const auto before = host::CountMemory().liveBlocks;
        const Outcome here = RunHere(row);
        Compare(row, here, "of the rooms linked in");
        if (MeetsThePlugIn(row)) Compare(row, EncodeThere(row), "of the loaded plug-in", "hr");
        EXPECT_EQ(host::CountMemory().liveBlocks, before);
        EXPECT_EQ(row.fields.Unread(), "") << "nothing reads these members";
    }

  private:
    nlohmann::json fields;
};

std::vector<fs::path> VectorFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(LINEWRIGHT_TESTS) / "vectors"))
        if (entry.path().extension() == ".jsonl") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/** A filter of GoogleTest takes colons and hyphens for its own. */
std::string SuiteOf(const fs::path& file) {
    std::string name = file.stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void RegisterRows(const fs::path& file) {
    for (const JsonLine& row : ReadJsonLines(file)) {
        testing::RegisterTest(
            SuiteOf(file).c_str(), NameOf(row).c_str(), nullptr, nullptr, file.string().c_str(),
            row.number, [fields = row.fields]() -> testing::Test* { return new RowTest(fields); });
    }
}

/** Writes the rows anew with what comes out now, for a person to read in the diff. */
void WriteAnew(const fs::path& file) {
    const TestHost host;
    auto lines = LinesOf(file);
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines) {
        if (!IsRow(line)) {
            stream << line << '\n';
            continue;
        }
        Json row = Json::parse(line);
        const Json fields = FieldsOf(RunHere(RowOf(row)));
        for (const char* const name : kExpectations)
            if (row.contains(name) && Expected(row[name]) != fields.value(name, Json()))
                row[name] = fields.value(name, Json());
        stream << row.dump(-1, ' ', true) << '\n';
    }
}

class HostEnvironment : public testing::Environment {
  public:
    void SetUp() override { host = std::make_unique<TestHost>(); }
    void TearDown() override { host.reset(); }

  private:
    std::unique_ptr<TestHost> host;
};

}  // namespace

}  // namespace linewright

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::string> words(argv + 1, argv + argc);
    const bool isWritten = !words.empty() && words.front() == "--write";
    if (isWritten) words.erase(words.begin());
    try {
        const std::vector<std::filesystem::path> files(words.begin(), words.end());
        for (const auto& file : files.empty() ? linewright::VectorFiles() : files)
            isWritten ? linewright::WriteAnew(file) : linewright::RegisterRows(file);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    if (isWritten) return 0;
    testing::AddGlobalTestEnvironment(new linewright::HostEnvironment);
    const int failure = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() > 0) return failure;
    std::cerr << "no row has such a name\n";
    return 1;
}
