#include <fmt/format.h>

#include <set>

#include "cli/DrawingAdvice.h"
#include "cli/DrawnFile.h"
#include "cli/Progress.h"
#include "cli/VerdictWords.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "merge/OutputFile.h"
#include "merge/RowFile.h"
#include "text/Readable.h"

namespace linewright {

namespace {

struct Counts {
    std::size_t rows = 0;
    std::size_t refused = 0;
    std::size_t unreadable = 0;

    std::string Summary() const {
        return fmt::format("{} rows: {} drawn, {} refused", rows, rows - refused, refused);
    }
};

/** What a row says, fit to be part of a file's name. */
std::string NamePart(std::string_view text) {
    std::string part = Readable(text);
    for (char& byte : part) {
        if (std::string_view("/\\:*?\"<>|").find(byte) != std::string_view::npos) byte = '_';
    }
    return part;
}

std::string Replaced(std::string text, std::string_view place, const std::string& part) {
    for (std::size_t at = text.find(place); at != text.npos; at = text.find(place, at)) {
        text.replace(at, place.size(), part);
        at += part.size();
    }
    return text;
}

std::string NameOf(const std::string& pattern, const Record& row, const BarcodeWish& wish) {
    std::string name = Replaced(pattern, "{line}", std::to_string(row.line));
    name = Replaced(name, "{type}", NamePart(wish.type));
    return Replaced(name, "{data}", NamePart(wish.data));
}

/** Draws rows until there are no more. */
class RowDrawer {
  public:
    RowDrawer(Service& runService, const DrawOptions& runOptions, const FileWish& fileWish,
              Console& runConsole)
        : service(runService),
          options(runOptions),
          file(fileWish),
          console(runConsole),
          fonts(host::PathFromUtf8(runOptions.fonts)) {}

    void Draw(RowColumns& columns, const Record& row) {
        ++counts.rows;
        try {
            const BarcodeWish wish = columns.BarcodeWishOf(row);
            const DrawnBarcode drawn = DrawBarcode(service, fonts, wish, options.drawing);
            Report(row, drawn);
            if (drawn.drawing) {
                Write(NameOf(options.output, row, wish),
                      ContentOf(drawn, wish, file.format, file.options));
                if (options.isVerified) Verify(row, drawn);
                return;
            }
        } catch (const DrawingFailure& failure) {
            if (failure.problem.IsOfMachine()) throw;
            Say(row, AdvisedSentence(failure, console.language));
        } catch (const Failure& failure) {
            Say(row, failure.what());
        }
        ++counts.refused;
    }

    Counts counts;

  private:
    void Say(const Record& row, std::string_view sentence) {
        console.err << fmt::format("linewright: line {}: {}\n", row.line, sentence);
    }

    void Report(const Record& row, const DrawnBarcode& drawn) {
        if (drawn.outcome.note) {
            Say(row, "note: " + Sentence(*drawn.outcome.note, console.language));
        }
        for (const Warning& warning : drawn.outcome.Warnings()) {
            Say(row, "warning: " + Sentence(warning, console.language));
        }
        for (const DrawingWarning& warning : drawn.warnings) {
            Say(row, "warning: " + AdvisedSentence(warning, console.language));
        }
        if (!drawn.drawing) Say(row, "refused: " + WhyRefused(drawn.outcome, console.language));
    }

    void Write(const std::string& name, const std::string& content) {
        if (!names.insert(name).second) {
            throw Failure(
                fmt::format("{}: another row has this name already; {{line}} tells them "
                            "apart",
                            Readable(name)));
        }
        OutputFile output(name);
        output.Write(content);
        output.Keep();
    }

    void Verify(const Record& row, const DrawnBarcode& drawn) {
        const Verification verification = linewright::Verify(*drawn.drawing, drawn.outcome.meaning);
        if (!verification.IsBad()) return;
        ++counts.unreadable;
        Say(row, VerdictWords(verification));
    }

    Service& service;
    const DrawOptions& options;
    const FileWish& file;
    Console& console;
    Fonts fonts;
    std::set<std::string> names;
};

}  // namespace

ExitStatus RunDrawRows(Service& service, const DrawOptions& options, const FileWish& file,
                       Console& console) {
    if (options.output.find('{') == std::string::npos) {
        throw Failure(
            "draw wants TYPE and DATA, or a CSV file and -o with {line}, {type} or {data} in it, "
            "such as \"{line}-{data}.pdf\"");
    }
    RowOptions rows = options.rows;
    rows.isCheckWanted = options.encode.isCheckWanted;
    rows.isStrict = options.encode.isStrict;
    rows.isArticleNumber = options.encode.isArticleNumber;
    rows.ratio = options.encode.ratio;
    const std::string& input = options.encode.type;
    RowFile source(input, console.in, rows);
    RowDrawer drawer(service, options, file, console);
    {
        Progress progress(console);
        while (source.Next()) {
            if (!source.Row().IsBlank()) drawer.Draw(source.Columns(), source.Row());
            progress.Show(source, drawer.counts.rows);
        }
    }
    console.err << drawer.counts.Summary() << '\n';
    if (drawer.counts.unreadable > 0) return kDoesNotScan;
    return drawer.counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
