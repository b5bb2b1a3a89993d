#include <cairo/cairo-pdf.h>

#include "documents/DocumentWriter.h"
#include "render/CairoPage.h"
#include "render/PdfForPress.h"

namespace linewright {

namespace {

constexpr double kHairline = 0.25;
constexpr double kHairlineGrey = 0.6;

/** Pages are painted as they fill. */
class PdfDocument : public DocumentWriter {
  public:
    explicit PdfDocument(const DocumentFrame& documentFrame)
        : frame(documentFrame),
          page(cairo_pdf_surface_create_for_stream(
              AppendToString, &file, frame.layout.sheet.pageWidth, frame.layout.sheet.pageHeight)) {
    }

    void Add(const Label& label) override {
        const LabelSheet& sheet = frame.layout.sheet;
        if (place == sheet.LabelsOfPage()) EndPage();
        const int row = place / sheet.columns;
        cairo_t* const context = page.Context();
        cairo_save(context);
        cairo_translate(context, sheet.left + place % sheet.columns * sheet.columnPitch,
                        sheet.top + row * sheet.rowPitch);
        Show(label);
        cairo_restore(context);
        ++place;
    }

    std::string Finish() override {
        EndPage();
        page.Finish();
        return PdfForPress(file, frame.title);
    }

  private:
    void Show(const Label& label) {
        cairo_t* const context = page.Context();
        if (frame.layout.isOutlined) {
            cairo_set_source_rgb(context, kHairlineGrey, kHairlineGrey, kHairlineGrey);
            cairo_set_line_width(context, kHairline);
            cairo_rectangle(context, 0, 0, frame.layout.sheet.labelWidth,
                            frame.layout.sheet.labelHeight);
            cairo_stroke(context);
            cairo_set_source_rgb(context, 0, 0, 0);
        }
        for (const LabelText& text : label.texts) Show(text);
        cairo_translate(context, label.symbol.left, label.symbol.top);
        cairo_scale(context, label.drawing->Module(), label.drawing->Module());
        label.drawing->ShowText(context);
    }

    void Show(const LabelText& text) {
        const LabelLine& style = frame.layout.lines[text.line];
        const auto face = frame.fonts.Text({frame.layout.textFamily, style.isBold});
        const TextLine set = face->Set(text.text, style.size);
        face->Show(page.Context(), set, style.size,
                   text.box.left + ShareOf(style.alignment) * (text.box.width - set.width),
                   text.box.top + style.size * kLineBaseline);
    }

    void EndPage() {
        cairo_show_page(page.Context());
        CheckCairo(cairo_status(page.Context()));
        place = 0;
    }

    const DocumentFrame frame;
    std::string file;
    CairoPage page;
    /** Of the next label on its page. */
    int place = 0;
};

}  // namespace

std::unique_ptr<DocumentWriter> MakePdfWriter(const DocumentFrame& frame) {
    return std::make_unique<PdfDocument>(frame);
}

}  // namespace linewright
