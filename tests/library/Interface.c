/* The header as C11 and, copied, as C++11; and every function called. */
#include <linewright.h>

int main(void) {
    const linewright_places places = LINEWRIGHT_PLACES_INIT;
    const linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    const linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    const linewright_type *types = NULL;
    const linewright_barcode *barcode = NULL;
    const linewright_results *results = NULL;
    const linewright_text text = linewright_string("1234567");
    size_t count = 0;
    if (linewright_version()[0] == '\0' || linewright_error()[0] != '\0') return 1;
    if (linewright_encode(text, text, NULL, &barcode) != LINEWRIGHT_NOT_OPEN) return 2;
    if (linewright_open(&places) != LINEWRIGHT_DONE) return 3;
    if (linewright_types(&types, &count) != LINEWRIGHT_DONE || count == 0) return 4;
    if (linewright_encode(linewright_string("ean8"), text, &options, &barcode) != LINEWRIGHT_DONE) return 5;
    if (barcode->text.size == 0 || barcode->reason != LINEWRIGHT_MADE) return 6;
    linewright_free_barcode(barcode);
    if (linewright_encode_many(&rows, &options, &results) != LINEWRIGHT_DONE) return 7;
    linewright_free_results(results);
    linewright_draw(text, text, text, &options, &barcode);
    linewright_free_barcode(barcode);
    linewright_verify(text, text, &options, &barcode);
    linewright_free_barcode(barcode);
    return linewright_close() == LINEWRIGHT_DONE ? 0 : 8;
}
