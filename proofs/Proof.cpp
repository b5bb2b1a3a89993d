#include "proofs/Proof.h"

#include <fmt/format.h>

#include <utility>

#include "scanners/VerdictWords.h"
#include "text/Readable.h"

namespace linewright {

namespace {

std::string FontOf(const BarcodeDrawing& drawing, const BarcodeType& type) {
    if (type.face == nullptr) return "text, for any face";
    return fmt::format("{}, {:.2f} pt", type.face->family, drawing.FontSize());
}

std::string SizeOf(const BarcodeDrawing& drawing, const BarcodeType& type) {
    const double x = drawing.Module() * type.dimensions.modulesPerX;
    return fmt::format("X {:.3f} mm, {:.1f} %; bars {:.2f} mm high", x / kMillimetre,
                       100 * x / type.dimensions.xDimension, drawing.BarHeight() / kMillimetre);
}

}  // namespace

std::string ProofCounts::Summary() const {
    return fmt::format("{} rows: {} drawn ({} scan, {} do not, {} have no scanner), {} refused",
                       rows, rows - refused, rows - refused - unreadable - withoutScanner,
                       unreadable, withoutScanner, refused);
}

void Proof::Refuse(const BarcodeWish& wish, const std::string& why, std::uint64_t line) {
    ++counts.rows;
    ++counts.refused;
    refused.push_back(
        fmt::format("line {}  {}  {}", line, Readable(wish.type), Readable(wish.data)));
    refused.push_back(fmt::format("    refused  {}", why));
}

void Proof::Show(const DrawnBarcode& drawn, const BarcodeWish& wish, const std::string& title,
                 std::uint64_t line) {
    const BarcodeType& type = *drawn.outcome.type;
    const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
    const std::string read = verification.WhatWasRead();
    std::vector<std::string> lines{
        fmt::format("data  {}", Readable(wish.data)),
        fmt::format("font  {}", FontOf(*drawn.drawing, type)),
        fmt::format("size  {}", SizeOf(*drawn.drawing, type)),
        fmt::format("read  {}{}", VerdictWords(verification), read.empty() ? "" : ": " + read)};
    if (type.face == nullptr) lines.erase(lines.begin() + 2);
    if (drawn.outcome.note) {
        lines.push_back("note  " + Sentence(*drawn.outcome.note, language));
    }
    for (const Warning& warning : drawn.outcome.Warnings()) {
        lines.push_back("note  " + Sentence(warning, language));
    }
    for (const DrawingWarning& warning : drawn.warnings) {
        lines.push_back("note  " + Sentence(warning, language));
    }
    std::string head = fmt::format("{}, line {}", type.shortName, line);
    if (!title.empty()) head = fmt::format("{}  ({})", Readable(title), head);
    sheet.Add({*drawn.drawing, std::move(head), std::move(lines)});
    ++counts.rows;
    if (verification.verdict == Verdict::kNoScanner) ++counts.withoutScanner;
    if (verification.IsBad()) ++counts.unreadable;
}

std::string Proof::Finish(const std::string& date) {
    std::vector<std::string> lines{date, counts.Summary(), ""};
    lines.insert(lines.end(), refused.begin(), refused.end());
    return sheet.Finish(lines);
}

}  // namespace linewright
