#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/PreferencesRecord.h"
#include "host/runtime/HostText.h"
#include "plugin/TypeDescription.h"
#include "render/Decimal.h"
#include "render/Export.h"
#include "render/Fonts.h"
#include "requests/DrawnBarcode.h"
#include "requests/PrintedText.h"
#include "requests/Service.h"
#include "text/FontText.h"
#include "text/Hex.h"
#include "types/BarcodeTypes.h"
#include "web/Answer.h"
#include "web/Json.h"
#include "words/Words.h"

// What JavaScript calls. Input is a type's name and, right behind it, data; the answer is JSON.

namespace linewright::web {

namespace {

// How a barcode is wished for, as one number.
constexpr std::uint32_t kUtf8 = 1;
constexpr std::uint32_t kStrict = 2;
// How a drawing is.
constexpr std::uint32_t kFitted = 4;
constexpr std::uint32_t kBearerBars = 8;
constexpr std::uint32_t kMarginMarks = 16;
constexpr std::uint32_t kText = 32;
constexpr std::uint32_t kNoText = 64;
constexpr std::uint32_t kArticleNumber = 128;

constexpr int kMillimetreDigits = 5;

struct State {
    std::string input;
    std::string answer;
    Language language = Language::kEnglish;
    std::optional<Service> service;
    Fonts fonts{""};
};

State& TheState() {
    static State state;
    return state;
}

BarcodeWish WishOf(std::uint32_t typeLength, std::uint32_t flags, std::uint32_t check,
                   double ratio) {
    const std::string_view input = TheState().input;
    return {.type = std::string(input.substr(0, typeLength)),
            .data = std::string(input.substr(typeLength)),
            .isUtf8 = (flags & kUtf8) != 0,
            .checkCharacter = static_cast<uint8>(check),
            .ratio = ratio,
            .isStrict = (flags & kStrict) != 0,
            .isArticleNumber = (flags & kArticleNumber) != 0};
}

std::string InMillimetres(double points) {
    return Decimal(points / kMillimetre, kMillimetreDigits);
}

void AddOutcome(Json& json, const BarcodeOutcome& outcome, const BarcodeWish& wish) {
    const Language language = CurrentLanguage();
    json.Member("type", outcome.typeName);
    json.Member("shortName", outcome.type ? outcome.type->shortName : "");
    json.PlainMember("status", outcome.status ? std::to_string(*outcome.status) : "null");
    if (outcome.IsMade()) {
        json.Member("hex", ToHex(outcome.bytes));
        json.Member("text", FontText(outcome.bytes));
        json.Member("printed", PrintedText(outcome, wish));
        json.Member("barsSay", outcome.meaning.barsSay);
    } else {
        json.Member("message", WhyRefused(outcome, language));
        json.Member("hint", outcome.hint);
    }
    if (outcome.note) json.Member("note", Sentence(*outcome.note, language));
    json.Name("warnings");
    json.Open('[');
    for (const Warning& warning : outcome.Warnings()) json.Value(Sentence(warning, language));
    json.Close(']');
}

void AddDrawing(Json& json, const DrawnBarcode& drawn, const BarcodeWish& wish) {
    const BarcodeDrawing& drawing = *drawn.drawing;
    const BarcodeType& type = *drawn.outcome.type;
    json.Name("drawingWarnings");
    json.Open('[');
    for (const DrawingWarning& warning : drawn.warnings) {
        json.Value(Sentence(warning, CurrentLanguage()));
    }
    json.Close(']');
    const std::string data = PrintedText(drawn.outcome, wish);
    const std::string title = std::string(type.shortName) + ' ' + data;
    json.Member("svg", SvgOf(drawing, {.title = title, .data = data}));
    json.PlainMember("width", InMillimetres(drawing.Width() * drawing.Module()));
    json.PlainMember("height", InMillimetres(drawing.Height() * drawing.Module()));
    json.PlainMember("xDimension", InMillimetres(drawing.Module() * type.dimensions.modulesPerX));
    json.PlainMember("module", InMillimetres(drawing.Module()));
    json.PlainMember("barHeight", InMillimetres(drawing.BarHeight()));
    json.PlainMember("fontSize", Decimal(drawing.FontSize(), 3));
}

std::string_view NameOf(Group group) {
    switch (group) {
        case Group::kRetail: return "retail";
        case Group::kLogistics: return "logistics";
        case Group::kPostal: return "postal";
        case Group::kLibrary: return "library";
        case Group::kClassic: return "classic";
    }
    return "";
}

std::string_view NameOf(CheckDigit check) {
    switch (check) {
        case CheckDigit::kNone: return "none";
        case CheckDigit::kAlways: return "always";
        case CheckDigit::kOnRequest: return "on request";
        case CheckDigit::kByPreference: return "by preference";
    }
    return "";
}

void AddFont(Json& json, const BarcodeType& type) {
    json.Name("font");
    if (!type.face) return json.Plain("null");
    json.Open('{');
    json.Member("family", type.face->family);
    json.Member("file", std::string(type.face->fileStem) + ".ttf");
    json.PlainMember("size", Decimal(type.face->modulesPerEm * type.Module(), 3));
    json.FlagMember("printsText", type.face->printsText);
    json.Close('}');
}

void AddType(Json& json, const BarcodeType& type, const std::string& displayText) {
    json.Open('{');
    json.Member("name", type.name);
    json.Member("shortName", type.shortName);
    json.Member("displayText", displayText);
    json.Member("description", host::ToUtf8(DescribeType(static_cast<uint16>(type.code))));
    json.Member("group", NameOf(type.group));
    json.Member("family", type.family == Family::kClassic ? "classic" : "current");
    json.Member("check", NameOf(type.check));
    json.FlagMember("hasRatio", type.optionFlags[2] != 0);
    json.FlagMember("hasScanner", HasScanner(type.symbology));
    json.FlagMember("hasFixedHeight", type.HasFixedHeight());
    json.PlainMember("xDimension", InMillimetres(type.dimensions.xDimension));
    json.PlainMember("xLeast", InMillimetres(type.dimensions.xLeast));
    json.PlainMember("xLargest", InMillimetres(type.dimensions.xLargest));
    AddFont(json, type);
    json.Close('}');
}

std::optional<double> Given(double points) {
    return std::isnan(points) ? std::nullopt : std::optional(points);
}

std::optional<Length> GivenLength(double points) {
    return std::isnan(points) ? std::nullopt : std::optional(Length{points});
}

}  // namespace

std::string& Answer() {
    return TheState().answer;
}

Language CurrentLanguage() {
    return TheState().language;
}

extern "C" {

/** Makes room for so many bytes of input, which JavaScript then writes. */
char* Input(std::uint32_t size) {
    TheState().input.resize(size);
    return TheState().input.data();
}

const char* AnswerBytes() {
    return Answer().data();
}

std::uint32_t AnswerLength() {
    return static_cast<std::uint32_t>(Answer().size());
}

/** Starts the plug-in in the locale that is the input, such as "deDE". */
void Start() {
    State& state = TheState();
    state.language = LanguageOf(state.input);
    state.service.emplace(HostOptions{.locale = state.input});
}

/** Lists all types. */
void ListTypes() {
    Answer().clear();
    Json json(Answer());
    json.Open('[');
    const std::vector<TypeDescription> types = TheState().service->Types();
    for (const TypeDescription& described : types) {
        if (const BarcodeType* const type = FindTypeByPrefix(described.typeName)) {
            AddType(json, *type, described.displayText);
        }
    }
    json.Close(']');
}

/** Sends one encode request, as it is, to the plug-in. */
void Request(std::uint32_t typeLength, std::uint32_t flags, std::uint32_t check, double ratio) {
    const BarcodeWish wish = WishOf(typeLength, flags, check, ratio);
    const EncodeAnswer answer = TheState().service->Encode({.typeName = wish.type,
                                                            .data = wish.data,
                                                            .isUtf8 = wish.isUtf8,
                                                            .checkCharacter = wish.checkCharacter,
                                                            .ratio = wish.ratio});
    Answer().clear();
    Json json(Answer());
    json.Open('{');
    json.PlainMember("status", std::to_string(answer.status));
    json.FlagMember("recognised", answer.isRecognised);
    json.Member("hex", ToHex(answer.bytes));
    json.Member("text", FontText(answer.bytes));
    json.Member("hint", answer.hint);
    json.Close('}');
}

/** Makes a barcode. */
void Encode(std::uint32_t typeLength, std::uint32_t flags, std::uint32_t check, double ratio) {
    const BarcodeWish wish = WishOf(typeLength, flags, check, ratio);
    const BarcodeOutcome outcome = MakeBarcode(*TheState().service, wish);
    Answer().clear();
    Json json(Answer());
    json.Open('{');
    AddOutcome(json, outcome, wish);
    json.Close('}');
}

/** Makes a barcode and draws it. Lengths are in points, NaN for what the type has. */
void Draw(std::uint32_t typeLength, std::uint32_t flags, std::uint32_t check, double ratio,
          double xDimension, double height, double quietZone, double barWidthReduction,
          double dotsPerInch) {
    const BarcodeWish wish = WishOf(typeLength, flags, check, ratio);
    DrawingWish drawing{.xDimension = Given(xDimension),
                        .height = GivenLength(height),
                        .quietZone = GivenLength(quietZone),
                        .barWidthReduction = GivenLength(barWidthReduction),
                        .dotsPerInch = Given(dotsPerInch),
                        .isFitted = (flags & kFitted) != 0,
                        .hasBearerBars = (flags & kBearerBars) != 0,
                        .hasMarginMarks = (flags & kMarginMarks) != 0};
    if ((flags & (kText | kNoText)) != 0) drawing.isTextWanted = (flags & kText) != 0;
    const DrawnBarcode drawn = DrawBarcode(*TheState().service, TheState().fonts, wish, drawing);
    Answer().clear();
    Json json(Answer());
    json.Open('{');
    AddOutcome(json, drawn.outcome, wish);
    if (drawn.drawing) AddDrawing(json, drawn, wish);
    json.Close('}');
}

/** Sets the preferences of the classic types, as PreferencesRecord.h numbers them. */
void SetPreferences(std::uint32_t code39CheckMode, std::uint32_t code39UseAsterisk,
                    std::uint32_t i2of5CheckDigit, std::int32_t msiFirstCheck,
                    std::int32_t msiSecondCheck, std::uint32_t codabarStart,
                    std::uint32_t codabarStop) {
    preferences.code39CheckMode = static_cast<uint16>(code39CheckMode);
    preferences.code39UseAsterisk = static_cast<uint8>(code39UseAsterisk);
    preferences.i2of5CheckDigit = static_cast<uint8>(i2of5CheckDigit);
    preferences.msiFirstCheck = static_cast<int16>(msiFirstCheck);
    preferences.msiSecondCheck = static_cast<int16>(msiSecondCheck);
    preferences.codabarStart = static_cast<uint16>(codabarStart);
    preferences.codabarStop = static_cast<uint16>(codabarStop);
}

}  // extern "C"

}  // namespace linewright::web
