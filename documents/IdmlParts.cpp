#include "documents/IdmlParts.h"

#include <fmt/format.h>

#include <array>
#include <utility>

namespace linewright {

namespace {

constexpr const char* kMediaType = "application/vnd.adobe.indesign-idml-package";
constexpr const char* kVersion = "7.0";
constexpr const char* kNamespace = "http://ns.adobe.com/AdobeInDesign/idml/1.0/packaging";
constexpr const char* kLayer = "layer";
constexpr const char* kMaster = "master";
constexpr const char* kHairline = "0.25";
constexpr const char* kNoStyle = "ParagraphStyle/$ID/[No paragraph style]";
constexpr const char* kNoCharacterStyle = "CharacterStyle/$ID/[No character style]";

/** A part that goes by a namespace of its own, with its root. */
pugi::xml_node Root(pugi::xml_document& document, const char* name) {
    Declare(document);
    return AddElement(document, name, {{"xmlns:idPkg", kNamespace}, {"DOMVersion", kVersion}});
}

pugi::xml_node AddTyped(pugi::xml_node parent, const char* name, const char* type,
                        const std::string& value) {
    pugi::xml_node element = AddText(parent, name, value);
    AddAttribute(element, "type", type);
    return element;
}

std::string ContainerXml() {
    pugi::xml_document file;
    Declare(file);
    pugi::xml_node container = AddElement(
        file, "container",
        {{"version", "1.0"}, {"xmlns", "urn:oasis:names:tc:opendocument:xmlns:container"}});
    AddElement(AddElement(container, "rootfiles"), "rootfile",
               {{"full-path", "designmap.xml"}, {"media-type", "text/xml"}});
    return XmlOf(file);
}

std::string GraphicXml() {
    pugi::xml_document file;
    pugi::xml_node root = Root(file, "idPkg:Graphic");
    const auto colour = [&root](const char* name, const char* value) {
        AddElement(root, "Color",
                   {{"Self", std::string("Color/") + name},
                    {"Model", "Process"},
                    {"Space", "CMYK"},
                    {"ColorValue", value},
                    {"Name", name},
                    {"ColorEditable", "false"},
                    {"ColorRemovable", "false"},
                    {"Visible", "true"}});
    };
    colour("Black", "0 0 0 100");
    colour("Paper", "0 0 0 0");
    AddElement(root, "Swatch",
               {{"Self", "Swatch/None"},
                {"Name", "None"},
                {"ColorEditable", "false"},
                {"ColorRemovable", "false"},
                {"Visible", "true"}});
    AddElement(root, "StrokeStyle", {{"Self", "StrokeStyle/$ID/Solid"}, {"Name", "$ID/Solid"}});
    return XmlOf(file);
}

std::string PreferencesXml(const LabelSheet& sheet) {
    pugi::xml_document file;
    pugi::xml_node root = Root(file, "idPkg:Preferences");
    AddElement(root, "DocumentPreference",
               {{"PageHeight", Number(sheet.pageHeight)},
                {"PageWidth", Number(sheet.pageWidth)},
                {"PagesPerDocument", "1"},
                {"FacingPages", "false"},
                {"DocumentBleedTopOffset", "0"},
                {"DocumentBleedBottomOffset", "0"},
                {"DocumentBleedInsideOrLeftOffset", "0"},
                {"DocumentBleedOutsideOrRightOffset", "0"},
                {"DocumentBleedUniformSize", "true"},
                {"Intent", "PrintIntent"}});
    AddElement(root, "TextPreference",
               {{"TypographersQuotes", "false"}, {"SmartTextReflow", "false"}});
    return XmlOf(file);
}

std::string PartOfStory(const std::string& story) {
    return fmt::format("Stories/Story_{}.xml", story);
}

}  // namespace

IdmlParts::IdmlParts(const LabelSheet& labelSheet) : sheet(labelSheet), package(kMediaType) {
    package.Add("META-INF/container.xml", ContainerXml());
}

std::string IdmlParts::Transform(double x, double y) const {
    // A spread's origin is its middle.
    return fmt::format("1 0 0 1 {} {}", Number(x - sheet.pageWidth / 2),
                       Number(y - sheet.pageHeight / 2));
}

void IdmlParts::AddPage() {
    EndPage();
    const std::string number = std::to_string(spreads.size() + 1);
    pugi::xml_node root = Root(spread, "idPkg:Spread");
    items = AddElement(
        root, "Spread",
        {{"Self", "spread" + number},
         {"PageCount", "1"},
         {"BindingLocation", "0"},
         {"ShowMasterItems", "true"},
         {"AllowPageShuffle", "true"},
         {"FlattenerOverride", "Default"},
         {"ItemTransform", fmt::format("1 0 0 1 0 {}", Number(static_cast<double>(spreads.size()) *
                                                              (sheet.pageHeight + kInch)))}});
    AddElement(items, "Page",
               {{"Self", "page" + number},
                {"Name", number},
                {"AppliedMaster", kMaster},
                {"MasterPageTransform", "1 0 0 1 0 0"},
                {"GeometricBounds",
                 fmt::format("0 0 {} {}", Number(sheet.pageHeight), Number(sheet.pageWidth))},
                {"ItemTransform", Transform(0, 0)}});
    spreads.push_back(fmt::format("Spreads/Spread_{}.xml", number));
}

void IdmlParts::EndPage() {
    if (spreads.empty()) return;
    package.Add(spreads.back(), XmlOf(spread));
    spread.reset();
}

void IdmlParts::AddPath(pugi::xml_node item, const LabelBox& box) const {
    AddAttribute(item, "ItemLayer", kLayer);
    AddAttribute(item, "ItemTransform", Transform(box.left, box.top));
    pugi::xml_node properties = AddElement(item, "Properties");
    pugi::xml_node points = AddElement(AddElement(AddElement(properties, "PathGeometry"),
                                                  "GeometryPathType", {{"PathOpen", "false"}}),
                                       "PathPointArray");
    const std::string width = Number(box.width);
    const std::string height = Number(box.height);
    for (const std::string& point :
         {std::string("0 0"), "0 " + height, width + ' ' + height, width + " 0"}) {
        AddElement(points, "PathPointType",
                   {{"Anchor", point}, {"LeftDirection", point}, {"RightDirection", point}});
    }
}

void IdmlParts::AddFrame(const LabelBox& box, double firstBaseline,
                         const std::vector<Paragraph>& paragraphs) {
    const std::string number = std::to_string(++itemCount);
    const std::string story = "story" + number;
    pugi::xml_node frame = AddElement(items, "TextFrame",
                                      {{"Self", "frame" + number},
                                       {"ParentStory", story},
                                       {"PreviousTextFrame", "n"},
                                       {"NextTextFrame", "n"},
                                       {"ContentType", "TextType"},
                                       {"FillColor", "Swatch/None"},
                                       {"StrokeColor", "Swatch/None"},
                                       {"StrokeWeight", "0"}});
    AddPath(frame, box);
    AddElement(frame, "TextFramePreference",
               {{"TextColumnCount", "1"},
                {"FirstBaselineOffset", "FixedHeight"},
                {"MinimumFirstBaselineOffset", Number(firstBaseline)},
                {"VerticalJustification", "TopAlign"}});

    pugi::xml_document file;
    pugi::xml_node text = AddElement(Root(file, "idPkg:Story"), "Story",
                                     {{"Self", story},
                                      {"AppliedTOCStyle", "n"},
                                      {"TrackChanges", "false"},
                                      {"StoryTitle", "$ID/"}});
    for (const Paragraph& paragraph : paragraphs) {
        pugi::xml_node range = AddElement(
            AddElement(text, "ParagraphStyleRange",
                       {{"AppliedParagraphStyle", "ParagraphStyle/" + paragraph.style->name}}),
            "CharacterStyleRange", {{"AppliedCharacterStyle", kNoCharacterStyle}});
        AddText(range, "Content", paragraph.text);
        if (&paragraph != &paragraphs.back()) AddElement(range, "Br");
    }
    stories.push_back(story);
    package.Add(PartOfStory(story), XmlOf(file));
}

void IdmlParts::AddOutline(const LabelBox& box) {
    pugi::xml_node item = AddElement(items, "Rectangle",
                                     {{"Self", "outline" + std::to_string(++itemCount)},
                                      {"ContentType", "Unassigned"},
                                      {"FillColor", "Swatch/None"},
                                      {"StrokeColor", "Color/Black"},
                                      {"StrokeTint", "40"},
                                      {"StrokeWeight", kHairline}});
    AddPath(item, box);
}

void IdmlParts::AddStyle(const ParagraphStyle& style) {
    if (fonts.insert({style.family, style.fontStyle}).second) {
        pugi::xml_node family =
            fontFamilies.find_child_by_attribute("FontFamily", "Name", style.family.c_str());
        if (!family) {
            family = AddElement(
                fontFamilies, "FontFamily",
                {{"Self", "family" + std::to_string(fonts.size())}, {"Name", style.family}});
        }
        AddElement(
            family, "Font",
            {{"Self", fmt::format("{}Font{}", family.attribute("Self").value(), fonts.size())},
             {"FontFamily", style.family},
             {"Name", style.family + ' ' + style.fontStyle},
             {"PostScriptName", style.postScriptName},
             {"FontStyleName", style.fontStyle},
             {"FontType", "TrueType"},
             {"Status", "Installed"}});
    }
    constexpr std::array<const char*, 3> kJustifications{"LeftAlign", "CenterAlign", "RightAlign"};
    pugi::xml_node element =
        AddElement(paragraphStyles, "ParagraphStyle",
                   {{"Self", "ParagraphStyle/" + style.name},
                    {"Name", style.name},
                    {"NextStyle", "ParagraphStyle/" + style.name},
                    {"PointSize", Number(style.size)},
                    {"FontStyle", style.fontStyle},
                    {"FillColor", "Color/Black"},
                    {"Justification", kJustifications[static_cast<std::size_t>(style.alignment)]},
                    {"AppliedLanguage", "$ID/[No Language]"},
                    {"Hyphenation", "false"},
                    {"NoBreak", "true"},
                    {"Ligatures", "false"},
                    {"Tracking", "0"},
                    {"SpaceBefore", "0"},
                    {"SpaceAfter", "0"}});
    pugi::xml_node properties = AddElement(element, "Properties");
    AddTyped(properties, "BasedOn", "object", kNoStyle);
    AddTyped(properties, "Leading", "unit", Number(style.leading));
    AddTyped(properties, "AppliedFont", "string", style.family);
}

std::string IdmlParts::Package(const std::string& title) {
    EndPage();
    pugi::xml_document fontFile;
    AddCopies(Root(fontFile, "idPkg:Fonts"), fontFamilies);
    pugi::xml_document styleFile;
    pugi::xml_node styles = Root(styleFile, "idPkg:Styles");
    pugi::xml_node characters =
        AddElement(styles, "RootCharacterStyleGroup", {{"Self", "characterStyles"}});
    AddElement(characters, "CharacterStyle",
               {{"Self", kNoCharacterStyle}, {"Name", "$ID/[No character style]"}});
    pugi::xml_node paragraphs =
        AddElement(styles, "RootParagraphStyleGroup", {{"Self", "paragraphStyles"}});
    AddElement(paragraphs, "ParagraphStyle",
               {{"Self", kNoStyle}, {"Name", "$ID/[No paragraph style]"}});
    AddCopies(paragraphs, paragraphStyles);

    pugi::xml_document masterFile;
    pugi::xml_node master = AddElement(Root(masterFile, "idPkg:MasterSpread"), "MasterSpread",
                                       {{"Self", kMaster},
                                        {"Name", "A-Master"},
                                        {"NamePrefix", "A"},
                                        {"BaseName", "Master"},
                                        {"PageCount", "1"},
                                        {"ItemTransform", "1 0 0 1 0 0"}});
    AddElement(master, "Page",
               {{"Self", "masterPage"},
                {"Name", "A"},
                {"AppliedMaster", "n"},
                {"GeometricBounds",
                 fmt::format("0 0 {} {}", Number(sheet.pageHeight), Number(sheet.pageWidth))},
                {"ItemTransform", Transform(0, 0)}});

    const auto add = [this](const char* name, const std::string& content) {
        package.Add(name, content);
        return name;
    };
    pugi::xml_document map;
    Declare(map);
    AddInstruction(map, "aid",
                   "style=\"50\" type=\"document\" readerVersion=\"6.0\" featureSet=\"257\" "
                   "product=\"7.0(1)\"");
    pugi::xml_node document = AddElement(map, "Document",
                                         {{"xmlns:idPkg", kNamespace},
                                          {"DOMVersion", kVersion},
                                          {"Self", "document"},
                                          {"StoryList", fmt::format("{}", fmt::join(stories, " "))},
                                          {"Name", title},
                                          {"ZeroPoint", "0 0"},
                                          {"ActiveLayer", kLayer}});
    const auto refer = [&document](const char* kind, const std::string& part) {
        AddElement(document, kind, {{"src", part}});
    };
    refer("idPkg:Graphic", add("Resources/Graphic.xml", GraphicXml()));
    refer("idPkg:Fonts", add("Resources/Fonts.xml", XmlOf(fontFile)));
    refer("idPkg:Styles", add("Resources/Styles.xml", XmlOf(styleFile)));
    refer("idPkg:Preferences", add("Resources/Preferences.xml", PreferencesXml(sheet)));
    AddElement(document, "Layer",
               {{"Self", kLayer},
                {"Name", "Labels"},
                {"Visible", "true"},
                {"Locked", "false"},
                {"Printable", "true"}});
    refer("idPkg:MasterSpread", add("MasterSpreads/MasterSpread_1.xml", XmlOf(masterFile)));
    for (const std::string& part : spreads) refer("idPkg:Spread", part);
    for (const std::string& story : stories) refer("idPkg:Story", PartOfStory(story));
    package.Add("designmap.xml", XmlOf(map));
    return package.Bytes();
}

}  // namespace linewright
