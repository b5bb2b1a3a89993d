#pragma once

#include <memory>
#include <string>

#include "documents/Label.h"
#include "documents/ParagraphStyles.h"

namespace linewright {

/** Writes labels in a format, one behind the other, each sheet from left to right and downwards. */
class DocumentWriter {
  public:
    DocumentWriter() = default;
    DocumentWriter(const DocumentWriter&) = delete;
    DocumentWriter& operator=(const DocumentWriter&) = delete;
    virtual ~DocumentWriter() = default;

    virtual void Add(const Label& label) = 0;
    /** The file's content. Throws DrawingFailure where a library cannot do its work. */
    virtual std::string Finish() = 0;
};

/** What a writer works with; all of it is borrowed. */
struct DocumentFrame {
    const Layout& layout;
    Fonts& fonts;
    ParagraphStyles& styles;
    /** UTF-8. */
    std::string title;
};

std::unique_ptr<DocumentWriter> MakePdfWriter(const DocumentFrame& frame);
std::unique_ptr<DocumentWriter> MakeIdmlWriter(const DocumentFrame& frame);
/** `isFlat` is one file of XML, else a package of several. */
std::unique_ptr<DocumentWriter> MakeOpenDocumentWriter(const DocumentFrame& frame, bool isFlat);

}  // namespace linewright
