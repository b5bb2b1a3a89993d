#include "documents/OpenDocumentParts.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "documents/ZipPackage.h"

namespace linewright {

namespace {

constexpr const char* kMediaType = "application/vnd.oasis.opendocument.text";
constexpr const char* kVersion = "1.3";
constexpr const char* kHairline = "0.25pt solid #999999";
/** A barcode that is a little too long for its cell is not broken. */
constexpr double kOverhang = 3;

std::string Points(double length) {
    return Number(length) + "pt";
}

/** A root with the names of all that occurs below it. */
pugi::xml_node Root(pugi::xml_document& document, const char* name) {
    Declare(document);
    const std::string oasis = "urn:oasis:names:tc:opendocument:xmlns:";
    return AddElement(document, name,
                      {{"xmlns:office", oasis + "office:1.0"},
                       {"xmlns:style", oasis + "style:1.0"},
                       {"xmlns:text", oasis + "text:1.0"},
                       {"xmlns:table", oasis + "table:1.0"},
                       {"xmlns:meta", oasis + "meta:1.0"},
                       {"xmlns:fo", oasis + "xsl-fo-compatible:1.0"},
                       {"xmlns:svg", oasis + "svg-compatible:1.0"},
                       {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
                       {"office:version", kVersion}});
}

void AddMeta(pugi::xml_node root, const std::string& title) {
    pugi::xml_node meta = AddElement(root, "office:meta");
    AddText(meta, "meta:generator", "Linewright");
    AddText(meta, "dc:title", title);
}

/** Appends a part's elements under a name. */
void AddPart(pugi::xml_node root, const char* name, const pugi::xml_document& part) {
    pugi::xml_node parent = AddElement(root, name);
    AddCopies(parent, part);
}

/** Text in which spaces stand as they are (ISO/IEC 26300-3, 6.1.2): readers drop those at the ends
 *  of a paragraph and behind others. */
void AddSpacedText(pugi::xml_node paragraph, const std::string& text) {
    std::string run;
    const auto flush = [&] {
        if (run.empty()) return;
        AppendText(paragraph, run);
        run.clear();
    };
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool isEnd = place == 0 || place + 1 == text.size();
        if (text[place] == ' ' && (isEnd || text[place - 1] == ' ')) {
            flush();
            AddElement(paragraph, "text:s");
        } else {
            run += text[place];
        }
    }
    flush();
}

}  // namespace

std::string OpenDocumentParts::StyleOf(const char* family, const std::string& parent,
                                       const char* properties,
                                       std::initializer_list<XmlAttribute> said) {
    std::string key = fmt::format("{} {}", family, parent);
    for (const XmlAttribute& attribute : said) {
        key.append(" ").append(attribute.name).append("=").append(attribute.value);
    }
    const auto [known, isNew] =
        styleNames.try_emplace(key, fmt::format("Automatic-{}", styleNames.size() + 1));
    if (!isNew) return known->second;
    pugi::xml_node style = AddElement(automaticStyles, "style:style",
                                      {{"style:name", known->second}, {"style:family", family}});
    if (!parent.empty()) {
        const char* const name = std::string_view(family) == "table" ? "style:master-page-name"
                                                                     : "style:parent-style-name";
        AddAttribute(style, name, parent);
    }
    AddElement(style, properties, said);
    return known->second;
}

void OpenDocumentParts::AddPageStyles(const LabelSheet& sheet) {
    pugi::xml_node layout = AddElement(pageStyles, "style:page-layout", {{"style:name", "Sheet"}});
    const bool isWide = sheet.pageWidth > sheet.pageHeight;
    AddElement(layout, "style:page-layout-properties",
               {{"fo:page-width", Points(sheet.pageWidth)},
                {"fo:page-height", Points(sheet.pageHeight)},
                {"style:print-orientation", isWide ? "landscape" : "portrait"},
                {"fo:margin-left", Points(sheet.left)},
                {"fo:margin-top", Points(sheet.top)},
                {"fo:margin-right", "0pt"},
                {"fo:margin-bottom", "0pt"}});
}

void OpenDocumentParts::AddStyle(const ParagraphStyle& style) {
    if (families.insert(style.family).second) {
        AddElement(fontFaces, "style:font-face",
                   {{"style:name", style.family}, {"svg:font-family", '\'' + style.family + '\''}});
    }
    pugi::xml_node element = AddElement(styles, "style:style",
                                        {{"style:name", style.id},
                                         {"style:display-name", style.name},
                                         {"style:family", "paragraph"}});
    constexpr std::array<const char*, 3> kAlignments{"start", "center", "end"};
    // A line of a barcode is as high as its font says: more would stand above it, less cut it off.
    AddElement(element, "style:paragraph-properties",
               {{"fo:line-height", style.isBarcode ? "100%" : Points(style.leading)},
                {"fo:text-align", kAlignments[static_cast<std::size_t>(style.alignment)]},
                {"style:writing-mode", "lr-tb"},
                {"style:text-autospace", "none"},
                {"fo:keep-together", "always"}});
    const std::string size = Points(style.size);
    const char* const weight = style.isBold ? "bold" : "normal";
    pugi::xml_node text = AddElement(element, "style:text-properties",
                                     {{"fo:color", "#000000"},
                                      {"fo:hyphenate", "false"},
                                      {"style:letter-kerning", "false"},
                                      {"fo:letter-spacing", "normal"}});
    // For each kind of writing, as a program may take a character for any of them.
    const auto add = [&](const char* fontName, const char* fontSize, const char* fontWeight,
                         const char* language, const char* country) {
        AddAttribute(text, fontName, style.family);
        AddAttribute(text, fontSize, size);
        AddAttribute(text, fontWeight, weight);
        AddAttribute(text, language, "zxx");
        AddAttribute(text, country, "none");
    };
    add("style:font-name", "fo:font-size", "fo:font-weight", "fo:language", "fo:country");
    add("style:font-name-asian", "style:font-size-asian", "style:font-weight-asian",
        "style:language-asian", "style:country-asian");
    add("style:font-name-complex", "style:font-size-complex", "style:font-weight-complex",
        "style:language-complex", "style:country-complex");
}

pugi::xml_node OpenDocumentParts::AddTable(double width) {
    const std::string style = StyleOf("table", hasTable ? "" : "Sheet", "style:table-properties",
                                      {{"style:width", Points(width)},
                                       {"table:align", "left"},
                                       {"fo:margin-left", "0pt"},
                                       {"table:border-model", "separating"},
                                       {"fo:break-before", hasTable ? "page" : "auto"}});
    hasTable = true;
    return AddElement(body, "table:table", {{"table:style-name", style}});
}

void OpenDocumentParts::AddColumn(pugi::xml_node table, double width) {
    const std::string style = StyleOf("table-column", "", "style:table-column-properties",
                                      {{"style:column-width", Points(width)}});
    AddElement(table, "table:table-column", {{"table:style-name", style}});
}

pugi::xml_node OpenDocumentParts::AddRow(pugi::xml_node table, double height) {
    const std::string style =
        StyleOf("table-row", "", "style:table-row-properties",
                {{"style:row-height", Points(height)}, {"fo:keep-together", "always"}});
    return AddElement(table, "table:table-row", {{"table:style-name", style}});
}

pugi::xml_node OpenDocumentParts::AddCell(pugi::xml_node row, const CellSides& sides) {
    const auto side = [](bool isDrawn) { return isDrawn ? kHairline : "none"; };
    const std::string style = StyleOf("table-cell", "", "style:table-cell-properties",
                                      {{"fo:padding", "0pt"},
                                       {"fo:padding-top", Points(sides.top)},
                                       {"fo:border-left", side(sides.hasLeft)},
                                       {"fo:border-right", side(sides.hasRight)},
                                       {"fo:border-top", side(sides.hasTopAndBottom)},
                                       {"fo:border-bottom", side(sides.hasTopAndBottom)},
                                       {"style:vertical-align", "top"}});
    return AddElement(row, "table:table-cell",
                      {{"table:style-name", style}, {"office:value-type", "string"}});
}

void OpenDocumentParts::AddParagraph(pugi::xml_node cell, const ParagraphStyle& style, double gap,
                                     double left, double right, const std::string& text) {
    const std::string name =
        StyleOf("paragraph", style.id, "style:paragraph-properties",
                {{"fo:margin-left", Points(left)},
                 {"fo:margin-right", Points(style.isBarcode ? -kOverhang : right)},
                 {"fo:margin-top", Points(gap)},
                 {"fo:margin-bottom", "0pt"}});
    AddSpacedText(AddElement(cell, "text:p", {{"text:style-name", name}}), text);
}

void OpenDocumentParts::AddLastParagraph() {
    const std::string name = StyleOf("paragraph", "", "style:paragraph-properties",
                                     {{"fo:line-height", "1pt"}, {"fo:margin", "0pt"}});
    AddElement(body, "text:p", {{"text:style-name", name}});
}

std::string OpenDocumentParts::FlatFile(const std::string& title) const {
    pugi::xml_document file;
    pugi::xml_node root = Root(file, "office:document");
    AddAttribute(root, "office:mimetype", kMediaType);
    AddMeta(root, title);
    AddPart(root, "office:font-face-decls", fontFaces);
    AddPart(root, "office:styles", styles);
    AddPart(root, "office:automatic-styles", pageStyles);
    AddCopies(root.child("office:automatic-styles"), automaticStyles);
    AddElement(AddElement(root, "office:master-styles"), "style:master-page",
               {{"style:name", "Sheet"}, {"style:page-layout-name", "Sheet"}});
    AddPart(AddElement(root, "office:body"), "office:text", body);
    return XmlOf(file);
}

std::string OpenDocumentParts::Package(const std::string& title) const {
    ZipPackage package(kMediaType);
    pugi::xml_document manifest;
    Declare(manifest);
    pugi::xml_node entries =
        AddElement(manifest, "manifest:manifest",
                   {{"xmlns:manifest", "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"},
                    {"manifest:version", kVersion}});
    const auto list = [&](const char* path, const char* mediaType) {
        AddElement(entries, "manifest:file-entry",
                   {{"manifest:full-path", path}, {"manifest:media-type", mediaType}});
    };
    list("/", kMediaType);
    const auto add = [&](const char* name, const pugi::xml_document& file) {
        list(name, "text/xml");
        package.Add(name, XmlOf(file));
    };

    pugi::xml_document contentFile;
    pugi::xml_node content = Root(contentFile, "office:document-content");
    AddPart(content, "office:font-face-decls", fontFaces);
    AddPart(content, "office:automatic-styles", automaticStyles);
    AddPart(AddElement(content, "office:body"), "office:text", body);
    add("content.xml", contentFile);

    pugi::xml_document stylesFile;
    pugi::xml_node root = Root(stylesFile, "office:document-styles");
    AddPart(root, "office:font-face-decls", fontFaces);
    AddPart(root, "office:styles", styles);
    AddPart(root, "office:automatic-styles", pageStyles);
    AddElement(AddElement(root, "office:master-styles"), "style:master-page",
               {{"style:name", "Sheet"}, {"style:page-layout-name", "Sheet"}});
    add("styles.xml", stylesFile);

    pugi::xml_document metaFile;
    AddMeta(Root(metaFile, "office:document-meta"), title);
    add("meta.xml", metaFile);

    package.Add("META-INF/manifest.xml", XmlOf(manifest));
    return package.Bytes();
}

}  // namespace linewright
