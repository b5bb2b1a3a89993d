#pragma once

#include <memory>
#include <string>
#include <vector>

#include "library/Opened.h"
#include "requests/BarcodeOutcome.h"

namespace linewright {

/** A barcode as it is handed out, with all that its texts point to. */
class Barcode {
  public:
    Barcode(Service& service, const BarcodeOutcome& outcome, const BarcodeWish& wish,
            Language language);
    Barcode(const Barcode&) = delete;
    Barcode& operator=(const Barcode&) = delete;

    /** Keeps a text and gives it as it is handed out. */
    linewright_text Keep(std::string text);
    void AddWarning(std::string sentence);

    linewright_barcode& Fields() { return fields; }
    linewright_status Status() const {
        return fields.reason <= LINEWRIGHT_WARNED ? LINEWRIGHT_DONE : LINEWRIGHT_REFUSED;
    }

    /** Hands it out, from now on its receiver's. */
    static const linewright_barcode* HandOut(std::unique_ptr<Barcode> barcode);
    static void TakeBack(const linewright_barcode* barcode);

  private:
    linewright_barcode fields{};  // first: what is handed out has the object's own address
    std::vector<std::unique_ptr<const std::string>> texts;
    std::vector<linewright_text> warnings;
};

uint32_t ReasonOf(const BarcodeOutcome& outcome);

/** Options as they were stated; `options` may be nullptr. */
linewright_options CheckedOptions(const linewright_options* options);
BarcodeWish WishOf(linewright_text type, linewright_text data, const linewright_options& options);

}  // namespace linewright
