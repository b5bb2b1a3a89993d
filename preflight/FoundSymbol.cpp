#include "preflight/FoundSymbol.h"

namespace linewright {

EanUpcForm FormOf(const Reading& reading) {
    if (reading.symbology == "EAN-8") return EanUpcForm::kEight;
    if (reading.symbology == "UPC-E") return EanUpcForm::kUpcE;
    return EanUpcForm::kThirteenOrTwelve;
}

std::string NameOf(const FoundSymbol& symbol) {
    switch (symbol.symbology) {
        case Symbology::kCode128: return symbol.reading.isGs1 ? "GS1-128" : "Code 128";
        case Symbology::kCode39: return "Code 39";
        case Symbology::kCodabar: return "Codabar";
        case Symbology::kInterleaved2of5: return "Interleaved 2 of 5";
        case Symbology::kMsi: return "MSI";
        case Symbology::kPostnet: return "Postnet";
        case Symbology::kIntelligentMail: return "Intelligent Mail";
        case Symbology::kText: return "bars";
        case Symbology::kEanUpc: break;
    }
    switch (FormOf(symbol.reading)) {
        case EanUpcForm::kEight: return "EAN-8";
        case EanUpcForm::kUpcE: return "UPC-E";
        case EanUpcForm::kThirteenOrTwelve: break;
    }
    return symbol.reading.data.starts_with('0') ? "UPC-A" : "EAN-13";
}

}  // namespace linewright
