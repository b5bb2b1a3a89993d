#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "documents/Layout.h"
#include "documents/ParagraphStyles.h"
#include "requests/DrawnBarcode.h"

namespace linewright {

class DocumentWriter;

enum class DocumentFormat { kIdml, kOdt, kFodt, kPdf };

/** The format by a file name's ending, in capitals or not. */
std::optional<DocumentFormat> DocumentFormatOf(std::string_view fileName);

/** A document that is wished for. Texts are UTF-8. */
struct DocumentWish {
    DocumentFormat format = DocumentFormat::kPdf;
    /** With its lines. */
    Layout layout{};
    /** What the document is called in a list. */
    std::string title{};
    /** The names of the columns that records have. */
    std::vector<std::string> columns{};
    /** The width of the narrowest bar, in points; the types' own unless stated. */
    std::optional<double> xDimension{};
    /** In place of it: per cent of the types' own. */
    std::optional<double> magnification{};
};

/**
 * A document in which each record has a label (a whole page, or a row of a list, where the layout
 * says so) with its barcode as text in the barcode's font, in a paragraph style of the type's name.
 * Records are set one after the other; a refused one takes no place.
 */
class Document {
  public:
    /** Service and fonts are borrowed. Throws DrawingFailure where the layout's font is not there.
     */
    Document(Service& runService, Fonts& runFonts, DocumentWish documentWish);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document();

    /** Makes the barcode of a record and sets its label; `fields` are its texts by the columns.
     *  Nothing is set where there is no drawing. Warnings tell of text that was cut too; a strict
     *  wish has all of them refused. Throws DrawingFailure where the symbol cannot be had or does
     *  not fit on its label, and RequestFailure. */
    DrawnBarcode Add(const BarcodeWish& barcode, const std::vector<std::string>& fields);
    /** The same with a barcode that was made leniently: asks no plug-in, and may run on another
     *  thread than the one of the requests. */
    DrawnBarcode Add(BarcodeOutcome made, const BarcodeWish& barcode,
                     const std::vector<std::string>& fields);

    /** How many labels were set. */
    std::size_t Labels() const { return labels; }
    /** On how many pages. */
    std::size_t Pages() const;

    /** The file's content. To be called once, as the last, with at least one label. Throws
     *  DrawingFailure where a library cannot do its work. */
    std::string Finish();

  private:
    std::vector<std::vector<std::string>> LinesOf(const BarcodeOutcome& outcome,
                                                  const BarcodeWish& barcode,
                                                  const std::vector<std::string>& fields) const;

    Service& service;
    Fonts& fonts;
    DocumentWish wish;
    ParagraphStyles styles;
    std::unique_ptr<DocumentWriter> writer;
    std::size_t labels = 0;
};

}  // namespace linewright
