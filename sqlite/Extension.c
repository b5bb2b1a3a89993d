/* Barcodes in SQL: after `.load linewright_sqlite`
 *
 *     SELECT barcode('ean13', sku), barcode_error('ean13', sku) FROM article;
 *
 * barcode(TYPE, DATA) is the font text, NULL where the data is refused; barcode_error(TYPE, DATA) says why, and is
 * NULL where there is a barcode. Data that is NULL makes neither. A blob is sent to the plug-in as it is, all else as text. */
#include <linewright.h>
#include <sqlite3ext.h>

SQLITE_EXTENSION_INIT1

static linewright_text TextOf(sqlite3_value *value) {
    linewright_text text;
    const int isBlob = sqlite3_value_type(value) == SQLITE_BLOB;
    text.data = isBlob ? (const char *)sqlite3_value_blob(value)
                       : (const char *)sqlite3_value_text(value);
    text.size = (size_t)sqlite3_value_bytes(value);
    return text;
}

/** The barcode of two arguments; NULL where one of them is NULL, or where the call itself fails: then the
 *  statement has its error. */
static const linewright_barcode *Encode(sqlite3_context *context, sqlite3_value **arguments) {
    const linewright_barcode *barcode = NULL;
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    linewright_status status;
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
        sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return NULL;
    if (sqlite3_value_type(arguments[1]) == SQLITE_BLOB) options.flags = LINEWRIGHT_BYTES;
    status = linewright_encode(TextOf(arguments[0]), TextOf(arguments[1]), &options, &barcode);
    if (status == LINEWRIGHT_NO_MEMORY) {
        sqlite3_result_error_nomem(context);
    } else if (barcode == NULL) {
        sqlite3_result_error(context, linewright_error(), -1);
    }
    return barcode;
}

static void ResultText(sqlite3_context *context, linewright_text text) {
    sqlite3_result_text64(context, text.size == 0 ? "" : text.data, text.size, SQLITE_TRANSIENT,
                          SQLITE_UTF8);
}

static int IsMade(const linewright_barcode *barcode) {
    return barcode->reason == LINEWRIGHT_MADE || barcode->reason == LINEWRIGHT_WARNED;
}

static void Barcode(sqlite3_context *context, int count, sqlite3_value **arguments) {
    const linewright_barcode *barcode = Encode(context, arguments);
    (void)count;
    if (barcode != NULL && IsMade(barcode)) ResultText(context, barcode->text);
    linewright_free_barcode(barcode);
}

static void BarcodeError(sqlite3_context *context, int count, sqlite3_value **arguments) {
    const linewright_barcode *barcode = Encode(context, arguments);
    (void)count;
    if (barcode != NULL && !IsMade(barcode)) ResultText(context, barcode->message);
    linewright_free_barcode(barcode);
}

/** The library stays open as long as a connection has the functions. */
static void Close(void *unused) {
    (void)unused;
    linewright_close();
}

#ifdef _WIN32
__declspec(dllexport)
#else
__attribute__((visibility("default")))
#endif
int sqlite3_linewrightsqlite_init(sqlite3 *database, char **error,
                                  const sqlite3_api_routines *routines) {
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    int status;
    SQLITE_EXTENSION_INIT2(routines)
    if (linewright_open(NULL) != LINEWRIGHT_DONE) {
        *error = sqlite3_mprintf("%s", linewright_error());
        return SQLITE_ERROR;
    }
    status = sqlite3_create_function_v2(database, "barcode", 2, flags, NULL, Barcode, NULL, NULL,
                                        Close);
    if (status != SQLITE_OK) return status;
    return sqlite3_create_function_v2(database, "barcode_error", 2, flags, NULL, BarcodeError,
                                      NULL, NULL, NULL);
}
