#include "documents/ReadLayout.h"

#include <fmt/format.h>
#include <toml++/toml.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>

#include "documents/LineText.h"
#include "requests/WrittenLength.h"
#include "text/Nearest.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using Content = LabelLine::Content;

/** Lengths in points. */
constexpr double kLeastLabel = 5 * kMillimetre;
/** No PDF page is longer (ISO 32000-1, annex C). */
constexpr double kMostPage = 14400;
constexpr double kLeastText = 2;
constexpr double kMostText = 144;
constexpr int kMostLabels = 1000;
constexpr std::size_t kMostLines = 100;
/** Measures of sheets are rounded: so far labels may stand over a side, or over each other. */
constexpr double kSlack = 0.05 * kMillimetre;

std::string Shown(double points) {
    return fmt::format("{:.2f} mm", points / kMillimetre);
}

class LayoutFile {
  public:
    LayoutFile(const std::string& content, const std::string& file,
               const std::vector<std::string>& fileColumns)
        : name(Readable(file)), columns(fileColumns) {
        if (content.size() > kMostLayoutBytes) {
            throw LayoutFailure(
                fmt::format("{}: a layout has at most {} bytes", name, kMostLayoutBytes));
        }
        RequireWholeLines(content);
        try {
            root = toml::parse(content, name);
        } catch (const toml::parse_error& error) {
            Fail(error.source(), error.description());
        }
    }

    Layout Read() const {
        ExpectOnly(root, {"sheet", "labels", "padding", "outline", "beside", "font", "line"});
        if (root.contains("sheet") && root.contains("labels")) {
            Fail(*root.get("labels"), "\"sheet\" and \"labels\" say the same: give one of them");
        }
        LabelSheet sheet = kLabelSheets.front();
        if (const toml::node* const named = root.get("sheet")) sheet = NamedSheet(*named);
        if (const toml::node* const labels = root.get("labels")) sheet = OwnSheet(*labels);
        Layout layout = LayoutOn(sheet);
        layout.isBeside = Flag(root, "beside").value_or(layout.isBeside);
        layout.isOutlined = Flag(root, "outline").value_or(layout.isOutlined);
        const double side = std::min(layout.sheet.labelWidth, layout.sheet.labelHeight);
        if (const auto padding = Length(root, "padding", 0, side / 2)) layout.padding = *padding;
        if (const toml::node* const font = root.get("font")) {
            layout.textFamily = Text(*font, "font");
            if (layout.textFamily.empty()) Fail(*font, "\"font\" is the name of a family");
        }
        if (const toml::node* const lines = root.get("line")) layout.lines = Lines(*lines);
        return layout;
    }

  private:
    [[noreturn]] void Fail(const toml::source_region& where, std::string_view what) const {
        throw LayoutFailure(where.begin.line > 0 ? fmt::format("{}, line {}: {}", name,
                                                               where.begin.line, Readable(what))
                                                 : fmt::format("{}: {}", name, Readable(what)));
    }
    [[noreturn]] void Fail(const toml::node& where, std::string_view what) const {
        Fail(where.source(), what);
    }

    /** In toml++ 3.3 some letters behind a string's line that ends with a backslash are undefined
     *  behaviour. Nothing in a layout needs such a string. */
    void RequireWholeLines(const std::string& content) const {
        std::size_t line = 1;
        for (std::size_t begin = 0; begin < content.size(); ++line) {
            const std::size_t end = std::min(content.find('\n', begin), content.size());
            const std::size_t last = content.find_last_not_of(" \t\r", end == 0 ? 0 : end - 1);
            if (end > begin && last != std::string::npos && last >= begin &&
                content[last] == '\\') {
                throw LayoutFailure(
                    fmt::format("{}, line {}: a string ends on the line it begins on", name, line));
            }
            begin = end + 1;
        }
    }

    void ExpectOnly(const toml::table& table, std::initializer_list<std::string_view> known) const {
        for (const auto& [key, node] : table) {
            if (std::find(known.begin(), known.end(), key.str()) != known.end()) continue;
            Fail(key.source(), fmt::format("there is no key \"{}\"; nearest: \"{}\"", key.str(),
                                           Nearest(key.str(), known, 1).front()));
        }
    }

    std::string Text(const toml::node& node, std::string_view key) const {
        const auto text = node.value_exact<std::string>();
        if (!text) Fail(node, fmt::format("\"{}\" is a text in quotes", key));
        return *text;
    }

    std::optional<bool> Flag(const toml::table& table, std::string_view key) const {
        const toml::node* const node = table.get(key);
        if (node == nullptr) return std::nullopt;
        const auto flag = node->value_exact<bool>();
        if (!flag) Fail(*node, fmt::format("\"{}\" is true or false", key));
        return *flag;
    }

    /** A number, which is in `unit`, or a text with a unit of its own. */
    std::optional<double> Points(const toml::node& node, double unit) const {
        const auto number = node.value<double>();
        if (number && (node.is_integer() || node.is_floating_point())) return *number * unit;
        const auto text = node.value_exact<std::string>();
        const auto length = text ? FindLength(*text, true) : std::nullopt;
        if (!length || length->isInX) return std::nullopt;
        return length->number;
    }

    std::optional<double> Length(const toml::table& table, std::string_view key, double least,
                                 double most) const {
        const toml::node* const node = table.get(key);
        if (node == nullptr) return std::nullopt;
        const auto points = Points(*node, kMillimetre);
        if (!points || !(*points >= least - kSlack && *points <= most + kSlack)) {
            Fail(*node, fmt::format("\"{}\" is a length such as \"12.5mm\", from {} to {}", key,
                                    Shown(least), Shown(most)));
        }
        return *points;
    }

    double NeededLength(const toml::table& table, std::string_view key, double least,
                        double most) const {
        const auto length = Length(table, key, least, most);
        if (!length) Fail(table, fmt::format("\"{}\" is missing", key));
        return *length;
    }

    int Count(const toml::table& table, std::string_view key) const {
        const toml::node* const node = table.get(key);
        if (node == nullptr) Fail(table, fmt::format("\"{}\" is missing", key));
        const auto count = node->value_exact<std::int64_t>();
        if (!count || *count < 1 || *count > kMostLabels) {
            Fail(*node, fmt::format("\"{}\" is a whole number from 1 to {}", key, kMostLabels));
        }
        return static_cast<int>(*count);
    }

    LabelSheet NamedSheet(const toml::node& node) const {
        const std::string wanted = Text(node, "sheet");
        if (const LabelSheet* const sheet = FindLabelSheet(wanted)) return *sheet;
        std::vector<std::string_view> names;
        names.reserve(kLabelSheets.size());
        for (const LabelSheet& sheet : kLabelSheets) names.push_back(sheet.name);
        Fail(node, fmt::format("there is no sheet \"{}\"; nearest: \"{}\"", wanted,
                               Nearest(wanted, names, 1).front()));
    }

    LabelSheet OwnSheet(const toml::node& node) const {
        if (!node.is_table()) Fail(node, "\"labels\" is a table: [labels]");
        const toml::table& table = *node.as_table();
        ExpectOnly(table, {"page-width", "page-height", "columns", "rows", "width", "height",
                           "left", "top", "column-pitch", "row-pitch"});
        LabelSheet sheet = kLabelSheets.front();
        sheet.name = "";
        const auto page = [&](std::string_view key, double& length) {
            length = Length(table, key, kLeastLabel, kMostPage).value_or(length);
        };
        page("page-width", sheet.pageWidth);
        page("page-height", sheet.pageHeight);
        sheet.columns = Count(table, "columns");
        sheet.rows = Count(table, "rows");
        sheet.labelWidth = NeededLength(table, "width", kLeastLabel, sheet.pageWidth);
        sheet.labelHeight = NeededLength(table, "height", kLeastLabel, sheet.pageHeight);
        sheet.columnPitch = Pitch(table, "column-pitch", "width", sheet.labelWidth);
        sheet.rowPitch = Pitch(table, "row-pitch", "height", sheet.labelHeight);
        sheet.left = First(table, "left", sheet.pageWidth,
                           (sheet.columns - 1) * sheet.columnPitch + sheet.labelWidth, "columns");
        sheet.top = First(table, "top", sheet.pageHeight,
                          (sheet.rows - 1) * sheet.rowPitch + sheet.labelHeight, "rows");
        return sheet;
    }

    /** The label's size where nothing is said. */
    double Pitch(const toml::table& table, std::string_view key, std::string_view sizeKey,
                 double size) const {
        const double pitch = Length(table, key, 0, kMostPage).value_or(size);
        if (pitch >= size - kSlack) return std::max(pitch, size);
        Fail(*table.get(key), fmt::format("labels would overlap: \"{}\" is {}, \"{}\" {}", key,
                                          Shown(pitch), sizeKey, Shown(size)));
    }

    /** Where the first label begins: in the middle where nothing is said. */
    double First(const toml::table& table, std::string_view key, double page, double all,
                 std::string_view countKey) const {
        const double first =
            Length(table, key, 0, kMostPage).value_or(std::max(0.0, (page - all) / 2));
        if (first + all <= page + kSlack) return first;
        Fail(*table.get(countKey),
             fmt::format("labels would leave the page: with \"{}\" they take {}, and \"{}\" is {}; "
                         "the page has {}",
                         countKey, Shown(all), key, Shown(first), Shown(page)));
    }

    std::vector<LabelLine> Lines(const toml::node& node) const {
        const toml::array* const array = node.as_array();
        if (array == nullptr) Fail(node, "\"line\" is a list of tables: [[line]]");
        if (array->size() > kMostLines) {
            Fail(node, fmt::format("a label has at most {} lines", kMostLines));
        }
        std::vector<LabelLine> lines;
        lines.reserve(array->size());
        bool hasBarcode = false;
        for (const toml::node& element : *array) {
            lines.push_back(Line(element));
            if (lines.back().content != Content::kBarcode) continue;
            if (hasBarcode) Fail(element, "a label has one barcode, and this is a second");
            hasBarcode = true;
        }
        if (!hasBarcode) Fail(node, "no line has the barcode: barcode = true");
        return lines;
    }

    LabelLine Line(const toml::node& node) const {
        if (!node.is_table()) Fail(node, "\"line\" is a list of tables: [[line]]");
        const toml::table& table = *node.as_table();
        ExpectOnly(table, {"text", "barcode", "readable", "size", "bold", "align"});
        LabelLine line;
        const bool isBarcode = Flag(table, "barcode").value_or(false);
        const bool isReadable = Flag(table, "readable").value_or(false);
        const toml::node* const text = table.get("text");
        if (int{isBarcode} + int{isReadable} + int{text != nullptr} != 1) {
            Fail(node, "a line has one of text = \"…\", barcode = true and readable = true");
        }
        if (isBarcode) line.content = Content::kBarcode;
        if (isReadable) line.content = Content::kReadable;
        if (text != nullptr) line.text = LineText(*text);
        if (const toml::node* const size = table.get("size")) {
            const auto points = Points(*size, 1);
            if (!points || !(*points >= kLeastText && *points <= kMostText)) {
                Fail(*size, fmt::format("\"size\" is a size such as \"9pt\", from {} to {} pt",
                                        kLeastText, kMostText));
            }
            line.size = *points;
        }
        line.isBold = Flag(table, "bold").value_or(false);
        if (const toml::node* const align = table.get("align")) line.alignment = Align(*align);
        return line;
    }

    std::string LineText(const toml::node& node) const {
        std::string text = Text(node, "text");
        if (const auto unknown = UnknownColumn(text, columns)) {
            Fail(node, fmt::format("there is no column \"{}\"; the columns are \"{}\"", *unknown,
                                   fmt::join(columns, "\", \"")));
        }
        return text;
    }

    Alignment Align(const toml::node& node) const {
        const std::map<std::string_view, Alignment> alignments{{"left", Alignment::kLeft},
                                                               {"centre", Alignment::kCentre},
                                                               {"center", Alignment::kCentre},
                                                               {"right", Alignment::kRight}};
        const auto found = alignments.find(node.value_exact<std::string>().value_or(""));
        if (found == alignments.end()) Fail(node, "\"align\" is left, centre or right");
        return found->second;
    }

    std::string name;
    const std::vector<std::string>& columns;
    toml::table root;
};

}  // namespace

Layout ReadLayout(const std::string& content, const std::string& fileName,
                  const std::vector<std::string>& columns) {
    return LayoutFile(content, fileName, columns).Read();
}

}  // namespace linewright
