#pragma once

#include <QString>

#include "requests/DrawnBarcode.h"
#include "scanners/Verification.h"
#include "workbench/Colours.h"
#include "workbench/TypeTexts.h"

namespace linewright {

/** What the page says of what became of the data, in words that need no colour. */
struct BarcodeStatus {
    Tone tone = Tone::kNeutral;
    /** A few words. */
    QString badge{};
    /** Whole sentences; "" for none. */
    QString message{};
    Tone messageTone = Tone::kNeutral;
};

/** Says the status of data of a type, in a locale. */
class StatusWords {
  public:
    StatusWords(const TypeTexts& typeTexts, const QString& locale)
        : texts(typeTexts), language(locale) {}

    BarcodeStatus OfNothing() const;
    BarcodeStatus OfFailure(const std::string& sentence) const;
    BarcodeStatus OfRefusal(const BarcodeOutcome& outcome) const;
    /** Of a barcode that was drawn, before scanners have said anything of it. */
    BarcodeStatus OfDrawn(const DrawnBarcode& drawn) const;
    /** What the badge says when they have; nullptr where they could not be asked. */
    void AddVerdict(BarcodeStatus& status, const BarcodeOutcome& outcome, const BarcodeWish& wish,
                    const Verification* verification) const;

  private:
    QString Takes() const;

    const TypeTexts& texts;
    QString language;
};

}  // namespace linewright
