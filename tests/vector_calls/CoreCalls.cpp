#include "core/BarcodeTypeRegistry.h"
#include "core/CharClasses.h"
#include "core/ConvertUtf8Data.h"
#include "core/DataBlock.h"
#include "core/EncodeBarcodeData.h"
#include "core/ExportedFunctions.h"
#include "core/Formatting.h"
#include "core/PString.h"
#include "core/ReplaceMarkers.h"
#include "tests/HostStrings.h"
#include "tests/TestBlock.h"
#include "tests/VectorCalls.h"

namespace linewright {

namespace {

int32 Number(const Row& row, const char* name) {
    return row.fields.At(name).get<int32>();
}

std::string Text(const Row& row, const char* name) {
    return BytesOf(row.fields.At(name));
}

uint8 Fill(const Row& row) {
    return static_cast<uint8>(Text(row, "fill").at(0));
}

/** A call that edits the data in its block. */
Call Edit(void (*edit)(DataBlock data, const Row& row)) {
    return [edit](const Row& row) {
        TestBlock block(row.data);
        edit(block.Data(), row);
        return Outcome{.result = block.Text()};
    };
}

Outcome ResultOf(const PString& string) {
    return {.result = std::string(string.View())};
}

Outcome CallReplaceMarkers(const Row& row) {
    PMString message = HostString(row.data);
    PMString texts[4];
    const PMString* given[4] = {};
    std::size_t count = 0;
    for (const auto& field : row.fields.At("replacements")) {
        if (field.is_string()) {
            texts[count] = HostString(BytesOf(field));
            given[count] = &texts[count];
        }
        ++count;
    }
    ReplaceMarkers(message, given[0], given[1], given[2], given[3]);
    return {.result = Latin1(message)};
}

const bool kRegistered = RegisterCalls({
    {"IsInRange",
     [](const Row& row) {
         return Outcome{
             .status = IsInRange(Number(row, "value"), Number(row, "min"), Number(row, "max"))};
     }},
    {"IsInList",
     [](const Row& row) {
         const auto list = row.fields.At("list").get<std::vector<int32>>();
         return Outcome{.status =
                            IsInList(Number(row, "value"), list.data(),
                                     row.fields.Value("count", static_cast<int32>(list.size())))};
     }},
    {"CheckCharClasses",
     [](const Row& row) {
         const bool hasExtra = row.fields.Contains("extra");
         const std::string extra = hasExtra ? Text(row, "extra") : "";
         return Outcome{.status = CheckCharClasses(reinterpret_cast<const uint8*>(row.data.data()),
                                                   static_cast<int32>(row.data.size()),
                                                   Number(row, "classes"),
                                                   hasExtra ? extra.c_str() : nullptr)};
     }},
    {"PadLeft",
     Edit([](DataBlock data, const Row& row) { PadLeft(data, Number(row, "target"), Fill(row)); })},
    {"PadToParity", Edit([](DataBlock data, const Row& row) {
         PadToParity(data, static_cast<int16>(Number(row, "wantOdd")), Fill(row));
     })},
    {"DropExtraLastChar", Edit([](DataBlock data, const Row& row) {
         DropExtraLastChar(data, static_cast<uint32>(Number(row, "n")));
     })},
    {"TrimSpaces", Edit([](DataBlock data, const Row&) { TrimSpaces(data); })},
    {"ConvertUtf8Data", Edit([](DataBlock data, const Row&) { ConvertUtf8Data(data); })},
    {"EncodeNotSupported",
     [](const Row& row) {
         TestBlock block(row.data);
         const int status = EncodeNotSupported(block.Data());
         return Outcome{.status = status, .result = block.Text()};
     }},
    {"AppendPString",
     [](const Row& row) {
         PString dest = MakePString(row.data);
         AppendPString(dest, MakePString(Text(row, "append")));
         return ResultOf(dest);
     }},
    {"AppendCStringToPString",
     [](const Row& row) {
         PString dest = MakePString(row.data);
         AppendCStringToPString(&dest, Text(row, "append").c_str());
         return ResultOf(dest);
     }},
    {"PStringFromCString",
     [](const Row& row) {
         PString dest = MakePString("before");
         PStringFromCString(&dest, row.data.c_str());
         return ResultOf(dest);
     }},
    {"ComparePStrings",
     [](const Row& row) {
         return Outcome{.status =
                            ComparePStrings(MakePString(row.data), MakePString(Text(row, "with")))};
     }},
    {"ComparePStringToCString",
     [](const Row& row) {
         return Outcome{
             .status = ComparePStringToCString(row.data.c_str(), MakePString(Text(row, "with")))};
     }},
    {"NumberToPString",
     [](const Row& row) {
         PString dest = MakePString("before");
         NumberToPString(Number(row, "value"), dest);
         return ResultOf(dest);
     }},
    {"PStringToNumber",
     [](const Row& row) {
         uint32 number = 77;
         PStringToNumber(MakePString(row.data), number);
         return Outcome{.result = std::to_string(number)};
     }},
    {"FormatAlternatives",
     [](const Row& row) {
         const auto list = row.fields.At("list").get<std::vector<int32>>();
         PMString out = HostString("before");
         FormatAlternatives(list.data(), row.fields.Value("count", static_cast<int32>(list.size())),
                            out);
         return Outcome{.result = Latin1(out)};
     }},
    {"strrev",
     [](const Row& row) {
         std::string text = row.data;
         return Outcome{.result = std::string(LinewrightStrrev(text.data()))};
     }},
    {"strupr",
     [](const Row& row) {
         std::string text = row.data;
         return Outcome{.result = std::string(LinewrightStrupr(text.data()))};
     }},
    {"ReplaceMarkers", CallReplaceMarkers},
    {"LookupTypeByName",
     [](const Row& row) { return Outcome{.status = LookupTypeByName(MakePString(row.data))}; }},
    {"DisplayTextForCode",
     [](const Row& row) {
         PMString out = HostString("before");
         const int status = DisplayTextForCode(static_cast<uint16>(Number(row, "code")), out);
         return Outcome{.status = status, .result = Latin1(out)};
     }},
});

}  // namespace

}  // namespace linewright
