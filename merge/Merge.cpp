#include "merge/Merge.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "merge/Failure.h"
#include "requests/PrintedText.h"
#include "text/FontText.h"

namespace linewright {

namespace {

/** Of what the font string of a plain barcode consists. */
constexpr std::string_view kPlainCharacters =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz()*";

/** In points, with as many digits as `fonts list` has. */
std::string SizeOf(const BarcodeType& type, std::optional<double> xDimension) {
    const double x = xDimension.value_or(type.dimensions.xDimension);
    const double size = x / type.dimensions.modulesPerX * type.face->modulesPerEm;
    return fmt::format("{}", std::round(size * 10000) / 10000);
}

bool Has(const std::vector<Result>& results, Result wanted) {
    return std::find(results.begin(), results.end(), wanted) != results.end();
}

}  // namespace

std::vector<Result> ResultsOf(const MergeOptions& options) {
    std::vector<Result> results{Result::kBarcode, Result::kStatus, Result::kMessage,
                                Result::kWarning};
    results.insert(results.end(), options.added.begin(), options.added.end());
    if (options.isVerified) results.insert(results.end(), {Result::kScan, Result::kRead});
    return results;
}

Merge::Merge(const Ways& given, const MergeOptions& wanted, Language sentences)
    : ways(given),
      options(wanted),
      language(sentences),
      plain(ways.service),
      hasFace(Has(wanted.added, Result::kFont) || Has(wanted.added, Result::kSize)),
      hasText(Has(wanted.added, Result::kText)),
      isPlainPossible(!hasText && !ways.scan && !wanted.rows.isArticleNumber &&
                      !ways.results.IsDelimiterAmong(kPlainCharacters)) {}

void Merge::Take(const Record& row) {
    if (!row.isAscii && !ways.out.Has(row.text)) {
        throw Failure(
            fmt::format("line {}: the row has a character that the encoding of the output "
                        "has not",
                        row.line));
    }
    if (row.IsBlank()) return ways.out.Append(row.ending);
    ++counts.rows;
    RowWish wish;
    try {
        wish = ways.columns.WishOf(row);
    } catch (const Failure& failure) {
        return Refuse(row, "", failure.what(), "");
    }
    if (!isPlainPossible || !TakePlainly(row, wish)) TakeClosely(row, wish);
}

bool Merge::TakePlainly(const Record& row, const RowWish& wish) {
    const auto made = plain.Make(wish.type, wish.data, wish.checkCharacter, wish.ratio);
    if (!made) return false;
    counts.upcANumbers.Take(&made->type, wish.data);
    if (options.added.empty() && !ways.results.IsReplacing()) {
        ways.results.AppendPlain(ways.out, row, made->fontString);
        return true;
    }
    ways.results.Clear();
    ways.results.Set(Result::kBarcode, made->fontString);
    ways.results.Set(Result::kStatus, "0");
    SetFace(made->type);
    ways.results.Append(ways.out, row);
    return true;
}

void Merge::TakeClosely(const Record& row, const RowWish& rowWish) {
    const BarcodeWish wish = ways.columns.BarcodeWishOf(rowWish);
    const ScannedBarcode made =
        ways.scan ? ways.scan(wish) : ScannedBarcode{MakeBarcode(ways.service, wish), "", ""};
    const BarcodeOutcome& outcome = made.outcome;
    if (!wish.isArticleNumber) counts.upcANumbers.Take(outcome.type, wish.data);
    const std::string status = outcome.status ? std::to_string(*outcome.status) : "";
    const std::string warning = JoinedWarnings(outcome, language);
    if (!outcome.IsMade()) return Refuse(row, status, WhyRefused(outcome, language), warning);
    const std::string barcode = FontText(outcome.bytes);
    if (!ways.out.Has(barcode)) {
        return Refuse(row, "", "the encoding of the output has not all characters of the barcode",
                      warning);
    }
    if (!outcome.Warnings().empty()) ++counts.warned;
    const std::string text = hasText ? ways.out.Fitted(PrintedText(outcome, wish)) : "";
    const std::string fittedWarning = ways.out.Fitted(warning);
    const std::string scan = ways.out.Fitted(made.scan);
    const std::string read = ways.out.Fitted(made.read);
    ways.results.Clear();
    ways.results.Set(Result::kBarcode, barcode);
    ways.results.Set(Result::kStatus, status);
    ways.results.Set(Result::kWarning, fittedWarning);
    ways.results.Set(Result::kText, text);
    ways.results.Set(Result::kScan, scan);
    ways.results.Set(Result::kRead, read);
    SetFace(*outcome.type);
    ways.results.Append(ways.out, row);
}

void Merge::SetFace(const BarcodeType& type) {
    if (!hasFace || type.face == nullptr) return;
    if (faceType != &type) size = SizeOf(type, options.xDimension);
    faceType = &type;
    ways.results.Set(Result::kFont, type.face->family);
    ways.results.Set(Result::kSize, size);
}

void Merge::Refuse(const Record& row, const std::string& status, const std::string& reason,
                   const std::string& warning) {
    counts.CountRefusal(reason);
    const std::string fittedReason = ways.out.Fitted(reason);
    const std::string fittedWarning = ways.out.Fitted(warning);
    ways.results.Clear();
    ways.results.Set(Result::kStatus, status);
    ways.results.Set(Result::kMessage, fittedReason);
    ways.results.Set(Result::kWarning, fittedWarning);
    ways.results.Append(ways.out, row);
    if (ways.rejects) Reject(row, fittedReason);
}

void Merge::Reject(const Record& row, const std::string& reason) {
    const std::string line = std::to_string(row.line);
    ways.rejectColumns->Clear();
    ways.rejectColumns->Set(Result::kLine, line);
    ways.rejectColumns->Set(Result::kReason, reason);
    ways.rejectColumns->Append(*ways.rejects, row);
}

}  // namespace linewright
