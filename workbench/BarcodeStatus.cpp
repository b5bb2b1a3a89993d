#include "workbench/BarcodeStatus.h"

#include <QStringList>

#include "requests/Fidelity.h"
#include "requests/PrintedText.h"
#include "words/Words.h"
#include "workbench/Language.h"
#include "workbench/PagePhrases.h"

namespace linewright {

QString StatusWords::Takes() const {
    return Say(phrases::kTakes, language).arg(texts.name, texts.takes);
}

BarcodeStatus StatusWords::OfNothing() const {
    return {.badge = Say(phrases::kNothingTyped, language), .message = Takes()};
}

BarcodeStatus StatusWords::OfFailure(const std::string& sentence) const {
    const QString said = AsSentence(QString::fromStdString(sentence), language);
    return {.tone = Tone::kBad,
            .badge = Say(phrases::kNotDrawn, language),
            .message = Say(phrases::kError, language).arg(said),
            .messageTone = Tone::kBad};
}

BarcodeStatus StatusWords::OfRefusal(const BarcodeOutcome& outcome) const {
    const std::string why = WhyRefused(outcome, LanguageOf(language.toStdString()));
    const QString said = AsSentence(QString::fromStdString(why), language);
    return {.tone = Tone::kBad,
            .badge = Say(phrases::kRefused, language),
            .message = Say(phrases::kRefusedBecause, language).arg(said) + ' ' + Takes(),
            .messageTone = Tone::kBad};
}

BarcodeStatus StatusWords::OfDrawn(const DrawnBarcode& drawn) const {
    const Language spoken = LanguageOf(language.toStdString());
    const bool isText = drawn.outcome.type->symbology == Symbology::kText;
    QStringList warnings;
    const auto add = [&](const std::string& sentence) {
        warnings << AsSentence(QString::fromStdString(sentence), language);
    };
    for (const Warning& warning : drawn.outcome.Warnings()) {
        // The badge says it.
        if (isText && warning.reason == WarningReason::kNoBars) continue;
        add(Sentence(warning, spoken));
    }
    for (const DrawingWarning& warning : drawn.warnings) add(Sentence(warning, spoken));
    BarcodeStatus status{.badge = Say(phrases::kChecking, language)};
    if (!warnings.isEmpty()) {
        status.message = Say(phrases::kWarning, language).arg(warnings.join(' '));
        status.messageTone = Tone::kWarning;
    }
    return status;
}

void StatusWords::AddVerdict(BarcodeStatus& status, const BarcodeOutcome& outcome,
                             const BarcodeWish& wish, const Verification* verification) const {
    const auto show = [&](Tone tone, const QString& badge) {
        status.tone = tone;
        status.badge = badge;
    };
    if (verification == nullptr) {
        show(Tone::kBad, Say(phrases::kNotDrawn, language));
        return;
    }
    if (outcome.type->symbology == Symbology::kText) {
        show(Tone::kNeutral, Say(phrases::kDigitsOnly, language));
        return;
    }
    const bool isChanged = FidelityOf(outcome, wish) == Fidelity::kChanged;
    const QString said = QString::fromStdString(PrintedText(outcome, wish));
    switch (verification->verdict) {
        case Verdict::kScans:
            if (isChanged) {
                show(Tone::kWarning, Say(phrases::kScansButSays, language).arg(said));
            } else {
                show(Tone::kGood, Say(phrases::kScans, language));
            }
            break;
        case Verdict::kScansAs:
            show(Tone::kBad, Say(phrases::kScansAs, language)
                                 .arg(QString::fromStdString(verification->WhatWasRead())));
            break;
        case Verdict::kDoesNotScan: show(Tone::kBad, Say(phrases::kDoesNotScan, language)); break;
        case Verdict::kNoScanner:
            if (isChanged) {
                show(Tone::kWarning, Say(phrases::kNoScannerButSays, language).arg(said));
            } else {
                show(Tone::kNeutral, Say(phrases::kNoScanner, language));
            }
            break;
    }
}

}  // namespace linewright
