#pragma once

#include <initializer_list>
#include <map>
#include <set>
#include <string>

#include "documents/ParagraphStyles.h"
#include "documents/Xml.h"

namespace linewright {

/** The parts of an OpenDocument text, with the styles that its content takes as it grows. Lengths
 *  are in points. */
class OpenDocumentParts {
  public:
    /** Pages that begin where the first label does. */
    void AddPageStyles(const LabelSheet& sheet);
    void AddStyle(const ParagraphStyle& style);

    /** A table on a page of its own. */
    pugi::xml_node AddTable(double width);
    void AddColumn(pugi::xml_node table, double width);
    /** A row of this height, whatever is in it. */
    pugi::xml_node AddRow(pugi::xml_node table, double height);

    /** Where a cell has hairlines, and the white above what is in it. */
    struct CellSides {
        bool hasLeft = false;
        bool hasRight = false;
        bool hasTopAndBottom = false;
        double top = 0;
    };
    pugi::xml_node AddCell(pugi::xml_node row, const CellSides& sides);

    /** A paragraph so far below the one before it, and so far from its cell's sides. */
    void AddParagraph(pugi::xml_node cell, const ParagraphStyle& style, double gap, double left,
                      double right, const std::string& text);
    /** That one has to stand behind a table; as small as can be. */
    void AddLastParagraph();

    std::string FlatFile(const std::string& title) const;
    std::string Package(const std::string& title) const;

  private:
    /** The name of an automatic style of a family, made where there is none yet that says the same.
     */
    std::string StyleOf(const char* family, const std::string& parent, const char* properties,
                        std::initializer_list<XmlAttribute> said);

    // What the parts hold, below an element each.
    pugi::xml_document fontFaces;
    pugi::xml_document styles;
    pugi::xml_document pageStyles;
    pugi::xml_document automaticStyles;
    pugi::xml_document body;
    /** Of automatic styles, by what they say. */
    std::map<std::string, std::string> styleNames;
    std::set<std::string> families;
    bool hasTable = false;
};

}  // namespace linewright
