#include "render/PdfForPress.h"

#include <cmath>
#include <new>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <vector>

#include "render/Decimal.h"

namespace linewright {

namespace {

using Object = QPDFObjectHandle;

/** Names of our own in a page's resources. */
constexpr const char* kOverprint = "/LinewrightOverprint";
constexpr const char* kSpotInk = "/LinewrightInk";
/** Our glyphs' widths are multiples of this in thousandths of the size: half of 1/128. */
constexpr double kWidthStep = 1000.0 / 256;

/** What sets the ink for what is filled. */
std::string InkOperation(const Ink& ink) {
    std::string operation;
    switch (ink.kind) {
        case Ink::Kind::kBlack: return "0 g";
        case Ink::Kind::kCmyk:
            for (const double part : ink.cmyk) operation += Decimal(part, 4) + ' ';
            return operation + 'k';
        case Ink::Kind::kSpot: break;
    }
    return std::string(kSpotInk) + " cs 1 scn";
}

/** Passes a page's content on with greys as greys, or all of it in one ink and, where it is asked
 *  for, its text invisible. */
class PressFilter : public Object::TokenFilter {
  public:
    explicit PressFilter(const PressPage* pressPage) : press(pressPage) {}

    void handleToken(const QPDFTokenizer::Token& token) override {
        using Type = QPDFTokenizer::token_type_e;
        const Type type = token.getType();
        if (type == Type::tt_space || type == Type::tt_comment) return;
        if (type == Type::tt_word) {
            WriteOperation(token.getValue());
        } else {
            operands.push_back(token);
        }
    }

    void handleEOF() override { WriteOperands(); }

  private:
    void WriteOperation(const std::string& operation) {
        const bool isRgb = (operation == "rg" || operation == "RG") && operands.size() == 3;
        const bool isGrey = isRgb && operands[0].getValue() == operands[1].getValue() &&
                            operands[0].getValue() == operands[2].getValue();
        const bool isColour = isRgb || operation == "g" || operation == "G";
        if (press != nullptr && isColour) {
            operands.clear();
            write(InkOperation(press->options.ink) + '\n');
            return;
        }
        if (isGrey) operands.resize(1);
        WriteOperands();
        write((isGrey ? (operation == "rg" ? "g" : "G") : operation) + '\n');
        if (operation == "BT" && press != nullptr && !press->paths.empty()) write("3 Tr\n");
    }

    void WriteOperands() {
        for (const QPDFTokenizer::Token& operand : operands) {
            writeToken(operand);
            write(" ");
        }
        operands.clear();
    }

    const PressPage* press;
    std::vector<QPDFTokenizer::Token> operands;
};

Object ExactWidth(Object width) {
    const double cut = width.getNumericValue();
    const double exact = std::ceil(cut / kWidthStep) * kWidthStep;
    return exact - cut >= 1 ? width : Object::newReal(Decimal(exact, 6));
}

void MakeExact(Object widths) {
    for (int i = 0; i < widths.getArrayNItems(); ++i) {
        Object item = widths.getArrayItem(i);
        if (item.isArray()) {
            MakeExact(item);
        } else if (item.isNumber() && item.getNumericValue() != 0) {
            widths.setArrayItem(i, ExactWidth(item));
        }
    }
}

/** Widths of simple fonts, and of those with more than 256 characters: [first [width…]]. */
void MakeWidthsExact(Object font) {
    Object name = font.getKey("/BaseFont");
    const bool isOurs = name.isName() && name.getName().find("+Linewright") != std::string::npos;
    if (!isOurs) return;
    for (const char* key : {"/Widths", "/W"}) {
        if (font.hasKey(key) && font.getKey(key).isArray()) MakeExact(font.getKey(key));
    }
}

/** A tint of the ink, and black in its place where a device does not have it. */
Object SpotSpace(const std::string& name) {
    Object function =
        Object::parse("<< /FunctionType 2 /Domain [0 1] /N 1 /C0 [0 0 0 0] /C1 [0 0 0 1] >>");
    return Object::newArray({Object::newName("/Separation"), Object::newName('/' + name),
                             Object::newName("/DeviceCMYK"), function});
}

void AddResources(QPDFPageObjectHelper& page, const Ink& ink) {
    Object resources = page.getAttribute("/Resources", true);
    const auto add = [&resources](const char* kind, const char* name, const Object& value) {
        if (!resources.hasKey(kind)) resources.replaceKey(kind, Object::newDictionary());
        Object entries = resources.getKey(kind);
        entries.replaceKey(name, value);
    };
    add("/ExtGState", kOverprint, Object::parse("<< /Type /ExtGState /OP true /op true /OPM 1 >>"));
    if (ink.kind == Ink::Kind::kSpot) add("/ColorSpace", kSpotInk, SpotSpace(ink.name));
}

void PreparePage(QPDF& file, QPDFPageObjectHelper page, const PressPage* press) {
    Object dictionary = page.getObjectHandle();
    // Nothing is transparent.
    dictionary.removeKey("/Group");
    dictionary.replaceKey("/TrimBox", page.getMediaBox().shallowCopy());
    page.addContentTokenFilter(std::make_shared<PressFilter>(press));
    if (press == nullptr) return;
    AddResources(page, press->options.ink);
    const std::string data = Object::newUnicodeString(press->options.data).unparse();
    const std::string before = "/Span << /ActualText " + data + " >> BDC\nq\n" + kOverprint +
                               " gs\n" + InkOperation(press->options.ink) + '\n' + press->paths;
    page.addPageContents(file.newStream(before), true);
    page.addPageContents(file.newStream("Q\nEMC\n"), false);
}

}  // namespace

std::string PdfForPress(const std::string& pdf, const std::string& title, const PressPage* press,
                        int lastPagesFirst) {
    try {
        QPDF file;
        file.setSuppressWarnings(true);
        file.processMemoryFile("drawing", pdf.data(), pdf.size());
        for (const QPDFPageObjectHelper& page : QPDFPageDocumentHelper(file).getAllPages()) {
            PreparePage(file, page, press);
        }
        for (int moved = 0; moved < lastPagesFirst; ++moved) {
            QPDFPageDocumentHelper pages(file);
            const QPDFPageObjectHelper last = pages.getAllPages().back();
            pages.removePage(last);
            pages.addPage(last, true);
        }
        for (Object object : file.getAllObjects()) {
            if (object.isDictionary()) MakeWidthsExact(object);
        }
        Object information = Object::newDictionary();
        information.replaceKey("/Title", Object::newUnicodeString(title));
        information.replaceKey("/Producer", Object::newString("Linewright"));
        file.getTrailer().replaceKey("/Info", file.makeIndirectObject(information));
        QPDFWriter writer(file);
        writer.setOutputMemory();
        writer.setDeterministicID(true);
        writer.setObjectStreamMode(qpdf_o_disable);
        writer.write();
        const auto written = writer.getBufferSharedPointer();
        if (file.anyWarnings()) {
            throw std::runtime_error(file.getWarnings().front().getMessageDetail());
        }
        return {reinterpret_cast<const char*>(written->getBuffer()), written->getSize()};
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& failure) {
        throw DrawingFailure(DrawingProblem::Reason::kLibrary,
                             {std::string("QPDF, ") + failure.what()});
    }
}

}  // namespace linewright
