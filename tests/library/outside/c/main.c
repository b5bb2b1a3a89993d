#include <linewright.h>
#include <stdio.h>

int main(void) {
    const linewright_barcode *barcode = NULL;
    if (linewright_open(NULL) != LINEWRIGHT_DONE) {
        fprintf(stderr, "%s\n", linewright_error());
        return 1;
    }
    linewright_encode(linewright_string("ean13"), linewright_string("400638133393"), NULL, &barcode);
    printf("%.*s\n", (int)barcode->text.size, barcode->text.data);
    linewright_free_barcode(barcode);
    return linewright_close();
}
