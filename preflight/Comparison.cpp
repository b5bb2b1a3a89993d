#include "preflight/Comparison.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "merge/Failure.h"
#include "merge/RowFile.h"
#include "scanners/Verification.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr const char* kPageColumn = "page";
/** Two texts are taken for one with a mistake where this much of the longer one is the same from
 *  its ends. */
constexpr double kMistaken = 0.4;

/** Whether a file names pages; the file is opened for it alone. */
bool HasPages(const std::string& name, std::istream& standardInput, const RowOptions& options) {
    if (name == "-" || !options.hasHeader) return false;
    RowFile file(name, standardInput, options);
    const auto& names = file.Columns().Names();
    return std::find(names.begin(), names.end(), kPageColumn) != names.end();
}

std::optional<int> PageIn(std::string_view text, std::uint64_t line) {
    if (text.empty()) return std::nullopt;
    int page = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), page);
    if (error != std::errc() || end != text.data() + text.size() || page < 1) {
        throw Failure("line " + std::to_string(line) + ": \"" + Readable(text) +
                      "\" is no number of a page");
    }
    return page;
}

/** "line 3": the parameters of faults. */
std::string LineText(std::uint64_t line) {
    return std::to_string(line);
}

/** What a reader says of a row's symbol: of Intelligent Mail, whose digits are in the bars in a way
 *  of their own, the bars. */
const std::string& TextIn(const ExpectedSymbol& row) {
    const bool areBars = row.type->symbology == Symbology::kIntelligentMail;
    return areBars ? row.meaning.barsSay : row.meaning.carried;
}

bool Says(const FoundSymbol& symbol, const ExpectedSymbol& row) {
    if (symbol.symbology != row.type->symbology) return false;
    if (symbol.symbology == Symbology::kIntelligentMail) {
        return symbol.reading.data == TextIn(row);
    }
    if (!IsMeant(symbol.reading, row.meaning)) return false;
    const bool isUpcE =
        row.type->code == TypeCode::kUpcE || row.type->code == TypeCode::kClassicUpcE;
    return row.type->symbology != Symbology::kEanUpc ||
           isUpcE == (FormOf(symbol.reading) == EanUpcForm::kUpcE);
}

double Likeness(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t front = 0;
    while (front < shorter && a[front] == b[front]) ++front;
    std::size_t back = 0;
    while (back < shorter - front && a[a.size() - 1 - back] == b[b.size() - 1 - back]) ++back;
    const std::size_t longer = std::max(a.size(), b.size());
    return longer == 0 ? 1 : static_cast<double>(front + back) / static_cast<double>(longer);
}

class Comparer {
  public:
    Comparer(std::vector<FoundSymbol>& foundSymbols, std::vector<ExpectedSymbol>& expectedSymbols)
        : symbols(foundSymbols), rows(expectedSymbols) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rowsOf[TextIn(rows[row])].push_back(row);
        }
    }

    /** Gives each symbol that is sure, or each that is doubtful, the first free row that it says;
     *  with `isOnPage` one that wants its page. */
    void MatchExactly(bool isDoubtful, bool isOnPage) {
        for (FoundSymbol& symbol : symbols) {
            if (symbol.line || symbol.isDoubtful != isDoubtful || !symbol.reading.isFound) continue;
            for (const std::size_t place : RowsSaying(symbol)) {
                ExpectedSymbol& row = rows[place];
                if (row.isFound || (isOnPage && row.page.value_or(symbol.page) != symbol.page)) {
                    continue;
                }
                row.isFound = true;
                symbol.line = row.line;
                if (!isOnPage) {
                    symbol.faults.push_back(
                        {Fault::Kind::kWrongPage, {std::to_string(*row.page), LineText(row.line)}});
                }
                break;
            }
        }
    }

    /** What was found once too often. */
    void FindDoubles() {
        for (FoundSymbol& symbol : symbols) {
            if (symbol.line || symbol.isDoubtful || !symbol.reading.isFound) continue;
            const auto saying = RowsSaying(symbol);
            if (saying.empty()) continue;
            symbol.line = rows[saying.front()].line;
            symbol.faults.push_back({Fault::Kind::kTwice, {LineText(*symbol.line)}});
        }
    }

    /** Symbols that stand for a row with a mistake, and those that stand for none. */
    void FindMistakes() {
        for (FoundSymbol& symbol : symbols) {
            if (symbol.line || symbol.isDoubtful || !symbol.reading.isFound) continue;
            ExpectedSymbol* nearest = nullptr;
            double most = kMistaken;
            for (ExpectedSymbol& row : rows) {
                if (row.isFound || row.page.value_or(symbol.page) != symbol.page) continue;
                const bool isSame = row.type->symbology == symbol.symbology;
                const double likeness = Likeness(TextIn(row), symbol.reading.data);
                if (likeness < most || (!isSame && likeness < 1)) continue;
                most = likeness;
                nearest = &row;
            }
            if (nearest == nullptr) {
                symbol.faults.push_back({Fault::Kind::kUnexpected, {}});
                continue;
            }
            nearest->isFound = true;
            symbol.line = nearest->line;
            const bool isOtherSymbology = nearest->type->symbology != symbol.symbology ||
                                          TextIn(*nearest) == symbol.reading.data;
            symbol.faults.push_back(
                {isOtherSymbology && nearest->meaning.addOn == symbol.reading.addOn
                     ? Fault::Kind::kOtherSymbology
                     : Fault::Kind::kOtherData,
                 {LineText(nearest->line), std::string(nearest->type->shortName),
                  WhatItMeans(*nearest)}});
        }
    }

    static std::string WhatItMeans(const ExpectedSymbol& row) {
        // The bars of Intelligent Mail tell a person nothing.
        if (row.type->symbology == Symbology::kIntelligentMail) return Readable(row.data);
        const std::string carried = Readable(Utf8FromLatin1(row.meaning.carried));
        return row.meaning.addOn.empty() ? carried : carried + " +" + row.meaning.addOn;
    }

  private:
    std::vector<std::size_t> RowsSaying(const FoundSymbol& symbol) const {
        std::vector<std::size_t> saying;
        const auto found = rowsOf.find(symbol.reading.data);
        if (found == rowsOf.end()) return saying;
        std::copy_if(found->second.begin(), found->second.end(), std::back_inserter(saying),
                     [&](std::size_t row) { return Says(symbol, rows[row]); });
        return saying;
    }

    std::vector<FoundSymbol>& symbols;
    std::vector<ExpectedSymbol>& rows;
    std::map<std::string, std::vector<std::size_t>> rowsOf;
};

}  // namespace

Expectations ExpectationsOf(Service& service, const std::string& name, std::istream& standardInput,
                            const RowOptions& options, Language language) {
    RowOptions wanted = options;
    if (HasPages(name, standardInput, options)) wanted.titleColumn = kPageColumn;
    RowFile file(name, standardInput, wanted);
    Expectations expected;
    while (file.Next()) {
        const Record& record = file.Row();
        if (record.IsBlank()) continue;
        ExpectedSymbol row;
        row.line = record.line;
        std::string why;
        try {
            const BarcodeWish wish = file.Columns().BarcodeWishOf(record);
            BarcodeOutcome outcome = MakeBarcode(service, wish);
            why = WhyRefused(outcome, language);
            row.type = outcome.type;
            row.data = wish.data;
            row.meaning = std::move(outcome.meaning);
        } catch (const Failure& failure) {
            why = failure.what();
        }
        if (!why.empty()) {
            expected.refused.push_back({Fault::Kind::kRefusedRow, {LineText(row.line), why}});
            continue;
        }
        if (wanted.titleColumn) {
            row.page =
                file.Named([&] { return PageIn(file.Columns().TitleOf(record), record.line); });
        }
        if (row.type->symbology != Symbology::kText) expected.symbols.push_back(std::move(row));
    }
    return expected;
}

std::vector<Fault> Compare(std::vector<FoundSymbol>& symbols, Expectations& expected,
                           std::optional<int> page) {
    Comparer comparer(symbols, expected.symbols);
    for (const bool isDoubtful : {false, true}) {
        comparer.MatchExactly(isDoubtful, true);
        comparer.MatchExactly(isDoubtful, false);
    }
    comparer.FindDoubles();
    comparer.FindMistakes();
    std::vector<Fault> faults;
    for (const ExpectedSymbol& row : expected.symbols) {
        // Of one page alone nobody can say what the others hold.
        if (row.isFound || (page && row.page != page)) continue;
        faults.push_back(
            {Fault::Kind::kMissing,
             {LineText(row.line), std::string(row.type->shortName), Comparer::WhatItMeans(row)}});
    }
    faults.insert(faults.end(), expected.refused.begin(), expected.refused.end());
    return faults;
}

}  // namespace linewright
