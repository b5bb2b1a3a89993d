#include "include/linewright.h"
#include "library/Barcode.h"
#include "library/Drawn.h"
#include "library/Many.h"
#include "library/Opened.h"
#include "library/Sized.h"

// The functions of the interface.

using namespace linewright;

const char* linewright_version(void) {
    return LINEWRIGHT_VERSION;
}

const char* linewright_error(void) {
    return LastSentence();
}

linewright_status linewright_open(const linewright_places* places) {
    return Guarded([places] {
        const linewright_places stated = Sized<linewright_places>(places, LINEWRIGHT_PLACES_INIT);
        if (!TheHost()) {
            TheHost() = std::make_unique<Opened>(stated);
            return LINEWRIGHT_DONE;
        }
        if (!TheHost()->IsAt(stated)) {
            throw CallFailure{LINEWRIGHT_OPEN_OTHERWISE,
                              "it is open already, with another plug-in, folder or locale"};
        }
        ++TheHost()->uses;
        return LINEWRIGHT_DONE;
    });
}

linewright_status linewright_close(void) {
    return WithHost([](Opened& opened) {
        if (--opened.uses == 0) TheHost().reset();
        return LINEWRIGHT_DONE;
    });
}

linewright_status linewright_types(const linewright_type** types, size_t* count) {
    return WithHost([types, count](const Opened& opened) {
        *types = opened.Types().data();
        *count = opened.Types().size();
        return LINEWRIGHT_DONE;
    });
}

linewright_status linewright_encode(linewright_text type, linewright_text data,
                                    const linewright_options* options,
                                    const linewright_barcode** barcode) {
    *barcode = nullptr;
    return WithHost([&](Opened& opened) -> linewright_status {
        const BarcodeWish wish = WishOf(type, data, CheckedOptions(options));
        const BarcodeOutcome outcome = MakeBarcode(opened.Requests(), wish);
        auto made = std::make_unique<Barcode>(opened.Requests(), outcome, wish, opened.Words());
        const linewright_status status = made->Status();
        *barcode = Barcode::HandOut(std::move(made));
        return status;
    });
}

linewright_status linewright_encode_many(const linewright_rows* rows,
                                         const linewright_options* options,
                                         const linewright_results** results) {
    *results = nullptr;
    return WithHost([&](Opened& opened) {
        const linewright_rows stated = Sized<linewright_rows>(rows, LINEWRIGHT_ROWS_INIT);
        *results = Results::HandOut(EncodeMany(opened, stated, CheckedOptions(options)));
        return LINEWRIGHT_DONE;
    });
}

linewright_status linewright_draw(linewright_text type, linewright_text data,
                                  linewright_text format, const linewright_options* options,
                                  const linewright_barcode** barcode) {
    *barcode = nullptr;
    return WithHost([&](Opened& opened) {
        return Draw(opened, type, data, ViewOf(format), CheckedOptions(options), *barcode);
    });
}

linewright_status linewright_verify(linewright_text type, linewright_text data,
                                    const linewright_options* options,
                                    const linewright_barcode** barcode) {
    *barcode = nullptr;
    return WithHost([&](Opened& opened) {
        return ReadBack(opened, type, data, CheckedOptions(options), *barcode);
    });
}

void linewright_free_barcode(const linewright_barcode* barcode) {
    Barcode::TakeBack(barcode);
}

void linewright_free_results(const linewright_results* results) {
    Results::TakeBack(results);
}
