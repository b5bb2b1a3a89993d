#include "workbench/RowTakers.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "host/runtime/Paths.h"
#include "merge/Csv.h"
#include "text/FileNamePart.h"
#include "text/FontText.h"

namespace linewright {

namespace {

constexpr char kDelimiter = ',';
/** Of the data in a file's name, in bytes. */
constexpr std::size_t kLongestPart = 80;

std::string WithoutHalfCharacter(std::string text) {
    constexpr unsigned char kContinuation = 0x80;
    constexpr unsigned char kMask = 0xC0;
    if (text.size() <= kLongestPart) return text;
    std::size_t size = kLongestPart;
    while (size > 0 && (static_cast<unsigned char>(text[size]) & kMask) == kContinuation) --size;
    text.resize(size);
    return text;
}

/** A prefix that keeps the results' names apart from the file's. */
std::string PrefixFor(const std::vector<std::string>& names, const std::vector<Result>& results) {
    std::string prefix;
    const auto isTaken = [&](Result result) {
        return std::find(names.begin(), names.end(), prefix + std::string(NameOf(result))) !=
               names.end();
    };
    while (std::any_of(results.begin(), results.end(), isTaken)) prefix += "linewright-";
    return prefix;
}

}  // namespace

std::string DrawingTaker::Take(RowOut row) {
    std::string why;
    try {
        DrawnBarcode drawn = DrawOutcome(fonts, std::move(row.outcome), row.wish, drawing.wish);
        if (drawn.drawing) {
            TakeDrawn(std::move(drawn), row);
            return "";
        }
        why = WhyRefused(drawn.outcome, drawing.language);
    } catch (const DrawingFailure& failure) {
        if (failure.problem.IsOfMachine()) throw;
        why = Sentence(failure, drawing.language);
    }
    TakeRefused(row, why);
    return why;
}

std::string RowFileName(std::size_t number, const std::string& data, const std::string& ending) {
    constexpr int kDigits = 6;
    return fmt::format("{:0{}}-{}.{}", number, kDigits, WithoutHalfCharacter(FileNamePart(data)),
                       ending);
}

FilesTaker::FilesTaker(const RowDrawing& how, std::filesystem::path place, std::string fileEnding)
    : DrawingTaker(how), folder(std::move(place)), ending(std::move(fileEnding)) {}

void FilesTaker::TakeDrawn(DrawnBarcode drawn, const RowOut& row) {
    const std::filesystem::path name =
        folder / host::PathFromUtf8(RowFileName(row.number, row.wish.data, ending));
    const FileFormat format = FormatOf("." + ending).value_or(FileFormat::kPdf);
    OutputFile file(host::Utf8FromPath(name));
    file.Write(ContentOf(drawn, row.wish, format, {}));
    file.Keep();
}

ProofTaker::ProofTaker(const RowDrawing& how, const std::string& fileName, const std::string& title,
                       std::string proofDate)
    : DrawingTaker(how),
      file(fileName),
      date(std::move(proofDate)),
      proof(fonts, Paper::kA4, title, how.language) {}

void ProofTaker::TakeDrawn(DrawnBarcode drawn, const RowOut& row) {
    proof.Show(drawn, row.wish, "", row.number);
}

void ProofTaker::TakeRefused(const RowOut& row, const std::string& why) {
    proof.Refuse(row.wish, why, row.number);
}

void ProofTaker::Finish() {
    file.Write(proof.Finish(date));
    file.Keep();
}

void KeepingTaker::TakeDrawn(DrawnBarcode drawn, const RowOut& row) {
    rows->push_back({row.number, row.wish.data, std::move(*drawn.drawing)});
}

LabelTaker::LabelTaker(const std::string& fileName, std::shared_ptr<Fonts> documentFonts,
                       std::shared_ptr<Document> labels, Language sentences)
    : file(fileName),
      fonts(std::move(documentFonts)),
      document(std::move(labels)),
      language(sentences) {}

std::string LabelTaker::Take(RowOut row) {
    try {
        const DrawnBarcode drawn = document->Add(std::move(row.outcome), row.wish, row.cells);
        return WhyRefused(drawn.outcome, language);
    } catch (const DrawingFailure& failure) {
        if (failure.problem.IsOfMachine()) throw;
        return Sentence(failure, language);
    }
}

void LabelTaker::Finish() {
    if (document->Labels() == 0) return;
    file.Write(document->Finish());
    file.Keep();
}

CsvTaker::CsvTaker(const std::string& fileName,
                   const std::optional<std::vector<std::string>>& names, std::size_t width,
                   Language sentences)
    : language(sentences), file(fileName), writer(file, Encoding::kUtf8) {
    const std::vector<Result> wanted{Result::kBarcode, Result::kStatus, Result::kMessage,
                                     Result::kWarning};
    const std::vector<std::string> columns =
        names.value_or(std::vector<std::string>(width, std::string()));
    ResultNames resultNames;
    resultNames.prefix = PrefixFor(columns, wanted);
    results.emplace(wanted, columns, resultNames, true, kDelimiter);
    if (names) Write(*names, true);
}

std::string CsvTaker::Take(RowOut row) {
    const BarcodeOutcome& outcome = row.outcome;
    const std::string barcode = outcome.IsMade() ? FontText(outcome.bytes) : "";
    const std::string status = outcome.status ? std::to_string(*outcome.status) : "";
    std::string message = WhyRefused(outcome, language);
    const std::string warning = JoinedWarnings(outcome, language);
    results->Clear();
    results->Set(Result::kBarcode, barcode);
    results->Set(Result::kStatus, status);
    results->Set(Result::kMessage, message);
    results->Set(Result::kWarning, warning);
    Write(row.cells, false);
    return message;
}

void CsvTaker::Write(const std::vector<std::string>& cells, bool isHeader) {
    std::string text;
    std::vector<std::string_view> fields(cells.size());
    for (const std::string& cell : cells) {
        if (&cell != &cells.front()) text += kDelimiter;
        text += CsvField(cell, kDelimiter);
    }
    Record record{.text = text, .ending = "\n"};
    record.fields = fields;
    record.fieldCount = fields.size();
    if (isHeader) {
        results->AppendHeader(writer, record);
    } else {
        results->Append(writer, record);
    }
}

void CsvTaker::Finish() {
    writer.Flush();
    file.Keep();
}

}  // namespace linewright
