#include "documents/DocumentFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "documents/ReadLayout.h"
#include "host/runtime/Paths.h"
#include "merge/ByteSource.h"
#include "merge/Csv.h"
#include "merge/OutputFailure.h"
#include "merge/OutputNames.h"
#include "merge/RejectFile.h"
#include "text/Readable.h"
#include "words/Words.h"

namespace linewright {

namespace {

DocumentFormat FormatOf(const std::string& output) {
    if (const auto format = DocumentFormatOf(output)) return *format;
    throw Failure(
        fmt::format("{}: the name must end in .idml, .odt, .fodt or .pdf", Readable(output)));
}

/** The columns that say something beside the barcode, the title in front. */
std::vector<LabelLine> LinesFor(const std::vector<std::string>& columns, const RowOptions& rows) {
    std::vector<std::string> others;
    std::copy_if(columns.begin(), columns.end(), std::back_inserter(others),
                 [&rows](const std::string& name) {
                     return !name.empty() && name != rows.typeColumn && name != rows.dataColumn &&
                            name != "check" && name != "ratio" && name != rows.titleColumn;
                 });
    std::string title = rows.titleColumn.value_or("");
    if (title.empty() && !others.empty()) {
        title = others.front();
        others.erase(others.begin());
    }
    return UsualLines(title, others);
}

Layout LayoutOf(const std::string& name, const std::vector<std::string>& columns,
                const RowOptions& rows) {
    Layout layout;
    if (const LabelSheet* const sheet = FindLabelSheet(name)) {
        layout = LayoutOn(*sheet);
    } else if (!name.empty()) {
        const auto file = OpenInput(name);
        std::string content(kMostLayoutBytes + 1, '\0');
        file->read(content.data(), static_cast<std::streamsize>(content.size()));
        content.resize(static_cast<std::size_t>(file->gcount()));
        layout = ReadLayout(content, name, columns);
    }
    if (!layout.lines.empty()) return layout;
    layout.lines = LinesFor(columns, rows);
    for (LabelLine& line : layout.lines) {
        if (layout.isBeside) line.alignment = Alignment::kLeft;
    }
    return layout;
}

/** Takes rows until there are no more. */
class Run {
  public:
    Run(const DocumentPlace& runPlace, const DocumentFileWish& runWish)
        : place(runPlace),
          wish(runWish),
          format(FormatOf(wish.files.output)),
          file(wish.files.input, place.in, wish.rows.rows),
          fonts(host::PathFromUtf8(wish.fonts)),
          document(place.service, fonts,
                   {.format = format,
                    .layout = LayoutOf(wish.layout, Columns(), wish.rows.rows),
                    .title = host::Utf8FromPath(host::PathFromUtf8(wish.files.input).stem()),
                    .columns = Columns(),
                    .xDimension = wish.xDimension,
                    .magnification = wish.magnification}),
          output(wish.files.output) {
        if (!wish.rows.rejects.empty()) {
            rejects.emplace(wish.rows.rejects, place.out, file, wish.rows.names);
        }
    }

    DocumentResult Take() {
        while (!result.stoppedAt && file.Next()) {
            if (!file.Row().IsBlank()) Take(file.Row());
            place.show(file, result.counts.rows);
        }
        file.Close();
        if (!result.stoppedAt && document.Labels() > 0) {
            result.pages = document.Pages();
            output.Write(document.Finish());
            output.Keep();
        }
        if (rejects) rejects->Keep();
        return result;
    }

  private:
    const std::vector<std::string>& Columns() { return file.Columns().Names(); }

    void Take(const Record& row) {
        ++result.counts.rows;
        try {
            const BarcodeWish barcode = file.Columns().BarcodeWishOf(row);
            fields.clear();
            for (const std::string_view field : row.fields) fields.push_back(CsvValue(field));
            const DrawnBarcode drawn = document.Add(barcode, fields);
            if (!barcode.isArticleNumber) {
                result.counts.upcANumbers.Take(drawn.outcome.type, barcode.data);
            }
            Report(row.line, drawn);
            if (!drawn.drawing) Refuse(row, WhyRefused(drawn.outcome, place.language));
        } catch (const DrawingFailure& failure) {
            if (failure.problem.IsOfMachine()) throw;
            Refuse(row, Sentence(failure, place.language));
        } catch (const OutputFailure&) {
            throw;
        } catch (const Failure& failure) {
            Refuse(row, failure.what());
        }
    }

    void Report(std::uint64_t line, const DrawnBarcode& drawn) {
        const auto warn = [&](const auto& warning) {
            place.say(line, "warning: " + Sentence(warning, place.language));
        };
        if (drawn.outcome.note) {
            place.say(line, "note: " + Sentence(*drawn.outcome.note, place.language));
        }
        for (const Warning& warning : drawn.outcome.Warnings()) warn(warning);
        for (const DrawingWarning& warning : drawn.warnings) warn(warning);
        const bool isWarned = !drawn.outcome.Warnings().empty() || !drawn.warnings.empty();
        if (drawn.drawing && isWarned) ++result.counts.warned;
    }

    void Refuse(const Record& row, const std::string& reason) {
        place.say(row.line, "refused: " + reason);
        MergeCounts one;
        one.CountRefusal(reason);
        result.counts.Add(one);
        if (rejects) rejects->Add(row, reason);
        if (wish.rows.stopAt && result.counts.refused >= *wish.rows.stopAt) {
            result.stoppedAt = row.line;
        }
    }

    const DocumentPlace& place;
    const DocumentFileWish& wish;
    DocumentFormat format;
    RowFile file;
    Fonts fonts;
    Document document;
    OutputFile output;
    std::optional<RejectFile> rejects;
    /** Of a row. */
    std::vector<std::string> fields;
    DocumentResult result;
};

}  // namespace

DocumentResult MakeDocumentFile(const DocumentPlace& place, const DocumentFileWish& wish) {
    RequireOutputs(wish.files, wish.rows);
    const DocumentResult result = Run(place, wish).Take();
    if (!wish.rows.summary.empty()) {
        MergeOutput summary(wish.rows.summary, place.out, Encoding::kUtf8, false);
        summary.Writer().Append(SummaryOf(result.counts));
        summary.Keep();
    }
    if (result.pages > 0 || result.stoppedAt) return result;
    throw Failure(
        fmt::format("{}: {}; nothing is written", Readable(wish.files.input),
                    result.counts.rows == 0 ? "there is no row to set" : "all rows were refused"));
}

}  // namespace linewright
