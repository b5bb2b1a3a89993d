#ifndef LINEWRIGHT_H
#define LINEWRIGHT_H

/* Barcodes as font text, for programs in any language. C11 and C++11.
 *
 * Texts are UTF-8 with their lengths. What a program hands over stays its own and is read during
 * the call only; what a call hands out is the library's until the program gives it back with the
 * function for it. There is one host a process, behind a lock: any thread may call anything at any
 * time, and calls take turns. No exception comes out. Structs that are handed over begin with their
 * size, as the ..._INIT values have it, and those handed out come as pointers: later releases add
 * fields at the ends of both. */

#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if defined(_WIN32) && defined(LINEWRIGHT_BUILD)
#define LINEWRIGHT_API __declspec(dllexport)
#elif defined(_WIN32)
#define LINEWRIGHT_API __declspec(dllimport)
#else
#define LINEWRIGHT_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef struct linewright_text {
    const char* data;
    size_t size;
} linewright_text;

/** The text that ends with a NUL. */
static inline linewright_text linewright_string(const char* words) {
    linewright_text text;
    text.data = words;
    text.size = strlen(words);
    return text;
}
#define LINEWRIGHT_NO_TEXT_ \
    { NULL, 0 }

/** What a call comes back with. */
enum {
    LINEWRIGHT_DONE = 0,
    /** The data or the type was refused; the barcode says why. */
    LINEWRIGHT_REFUSED = 1,
    LINEWRIGHT_NOT_OPEN = 2,
    /** It is open already, with another plug-in, folder or locale. */
    LINEWRIGHT_OPEN_OTHERWISE = 3,
    /** An argument that cannot be, such as offsets that go back. */
    LINEWRIGHT_BAD_ARGUMENT = 4,
    LINEWRIGHT_NO_MEMORY = 5,
    /** The host, the plug-in or a library does not do its work. */
    LINEWRIGHT_FAILED = 6,
    /** The wishes for a drawing cannot be had. */
    LINEWRIGHT_NO_DRAWING = 7,
    /** This library was built without what draws or without what reads. */
    LINEWRIGHT_LEFT_OUT = 8
};
typedef int32_t linewright_status;

/** What became of data. */
enum {
    LINEWRIGHT_MADE = 0,
    /** Made, and there is something that a person should know of it. */
    LINEWRIGHT_WARNED = 1,
    LINEWRIGHT_UNKNOWN_TYPE = 2,
    /** The plug-in refused the data. */
    LINEWRIGHT_BAD_DATA = 3,
    /** There are warnings, and LINEWRIGHT_STRICT takes them as refusals. */
    LINEWRIGHT_NOT_STRICT = 4
};

/** What scanners made of a drawing. */
enum {
    LINEWRIGHT_NO_SCANNER = 0,
    LINEWRIGHT_SCANS = 1,
    LINEWRIGHT_SCANS_AS_OTHER = 2,
    LINEWRIGHT_DOES_NOT_SCAN = 3
};

/** Where things are; an empty text stands for the usual place, and for the open one where it is
 * open already. The plug-in and the fonts are found from the place of this library. */
typedef struct linewright_places {
    size_t size;
    linewright_text plugin;
    linewright_text config_folder;
    linewright_text app_folder;
    linewright_text fonts;
    /** Of hints and sentences: enUS, deDE, frFR or jaJP. */
    linewright_text locale;
} linewright_places;
#define LINEWRIGHT_PLACES_INIT                                                                    \
    {                                                                                             \
        sizeof(linewright_places), LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_, \
            LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_                                              \
    }

/** Flags of linewright_options. */
enum {
    /** Data is bytes, sent as they are; otherwise UTF-8 that the plug-in converts. */
    LINEWRIGHT_BYTES = 1,
    /** A warning is a refusal. */
    LINEWRIGHT_STRICT = 2,
    /** linewright_encode_many looks for warnings too, which takes longer where there are some. */
    LINEWRIGHT_WARN = 4,
    /** linewright_encode_many hands out the bytes of font strings, not their text. */
    LINEWRIGHT_FONT_BYTES = 8,
    /* Of drawings: */
    LINEWRIGHT_WITH_TEXT = 16,
    LINEWRIGHT_WITHOUT_TEXT = 32,
    LINEWRIGHT_FIT = 64,
    LINEWRIGHT_BEARER = 128,
    LINEWRIGHT_MARGIN_MARKS = 256,
    LINEWRIGHT_GREY = 512
};

/** How a barcode is to be; as the options of the command, an empty text and 0 for what is not
 *  stated. Lengths are written as there: "0.33mm", "10mil", "12pt", "10x". */
typedef struct linewright_options {
    size_t size;
    uint32_t flags;
    /** 0 to 255; not 0 adds the check character where a type leaves it open. */
    uint32_t check;
    /** Of wide bars to narrow ones: 2, 2.5 or 3. */
    double ratio;
    linewright_text x_dimension;
    linewright_text height;
    linewright_text quiet_zone;
    linewright_text bar_width_reduction;
    /** black, cmyk:C,M,Y,K or the name of a spot colour. */
    linewright_text ink;
    double dots_per_inch;
    double pixels_per_module;
} linewright_options;
#define LINEWRIGHT_OPTIONS_INIT                                                          \
    {                                                                                    \
        sizeof(linewright_options), 0, 0, 2.0, LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_, \
            LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_, LINEWRIGHT_NO_TEXT_, 0.0, 0.0      \
    }

/** A barcode, or why there is none. */
typedef struct linewright_barcode {
    /** One of LINEWRIGHT_MADE and what follows it. */
    uint32_t reason;
    /** The plug-in's: 0, or why it refused the data (-6300 its length, -6301 a character, …). */
    int32_t status;
    /** The type name that was sent to the plug-in. */
    linewright_text type;
    /** The font string; of data that the plug-in refused what it left, such as a marker. */
    linewright_text bytes;
    /** The font string as text to be set in the font; empty for a refusal. */
    linewright_text text;
    /** What people read below the bars. */
    linewright_text human_readable;
    /** The font's family, and its size in points; empty and 0 for a type without bars. */
    linewright_text font;
    double font_size;
    /** The plug-in's hint on refused data, and a sentence that says why there is no barcode. */
    linewright_text hint;
    linewright_text message;
    /** Where the character stands that was refused, in bytes from 0; -1 where none is to blame. */
    int64_t position;
    const linewright_text* warnings;
    size_t warning_count;
    /** Of linewright_draw: the file's content. */
    linewright_text file;
    /** Of linewright_verify: one of LINEWRIGHT_NO_SCANNER and what follows it, and what was read.
     */
    uint32_t verdict;
    linewright_text read;
} linewright_barcode;

/** Texts one behind the other: text i has the bytes from offsets[i] up to offsets[i + 1]. */
typedef struct linewright_column {
    const char* bytes;
    size_t size;
    /** int32_t or int64_t, one more than there are texts. */
    const void* offsets;
    uint32_t offset_bits;
} linewright_column;
#define LINEWRIGHT_NO_COLUMN_ \
    { NULL, 0, NULL, 64 }

/** Rows to be encoded. A column that is not there (NULL) leaves it to the one value for all. */
typedef struct linewright_rows {
    size_t size;
    size_t count;
    linewright_column data;
    linewright_text type;
    linewright_column types;
    const uint8_t* checks;
    const double* ratios;
} linewright_rows;
#define LINEWRIGHT_ROWS_INIT                                                    \
    {                                                                           \
        sizeof(linewright_rows), 0, LINEWRIGHT_NO_COLUMN_, LINEWRIGHT_NO_TEXT_, \
            LINEWRIGHT_NO_COLUMN_, NULL, NULL                                   \
    }

/** What became of rows: as many of each as there were rows; a refused row's text is empty. */
typedef struct linewright_results {
    size_t count;
    /** Font text, or font strings; offsets have 32 bits where all fits, else 64. */
    linewright_column texts;
    const int32_t* statuses;
    const uint8_t* reasons;
} linewright_results;

/** A barcode type. */
typedef struct linewright_type {
    linewright_text name;
    linewright_text short_name;
    /** In the locale. */
    linewright_text display_text;
    linewright_text font;
    double font_size;
} linewright_type;

/** The release of the library, such as "1.0.0"; static, ended by a NUL. */
LINEWRIGHT_API const char* linewright_version(void);

/** Why this thread's last call did not come back with LINEWRIGHT_DONE: a sentence in UTF-8, ended
 * by a NUL, until the thread's next call. */
LINEWRIGHT_API const char* linewright_error(void);

/** Starts host and plug-in, or counts one more that has them open; NULL for all usual places. Each
 * open that came back with LINEWRIGHT_DONE wants a close. */
LINEWRIGHT_API linewright_status linewright_open(const linewright_places* places);
/** The last close stops them. Results stay. */
LINEWRIGHT_API linewright_status linewright_close(void);

/** All types; the list stays until the last close, and is not freed. */
LINEWRIGHT_API linewright_status linewright_types(const linewright_type** types, size_t* count);

/** Makes one barcode. `type` is a type name or what people write, such as EAN-13; `options` may be
 * NULL. The barcode is handed out for LINEWRIGHT_DONE and LINEWRIGHT_REFUSED, otherwise NULL. */
LINEWRIGHT_API linewright_status linewright_encode(linewright_text type, linewright_text data,
                                                   const linewright_options* options,
                                                   const linewright_barcode** barcode);

/** Makes many; a row that is refused says so in its results and keeps none from being made. The
 * lock is held all the while. */
LINEWRIGHT_API linewright_status linewright_encode_many(const linewright_rows* rows,
                                                        const linewright_options* options,
                                                        const linewright_results** results);

/** The same as linewright_encode, drawn: `format` is pdf, eps, svg, png or tiff. */
LINEWRIGHT_API linewright_status linewright_draw(linewright_text type, linewright_text data,
                                                 linewright_text format,
                                                 const linewright_options* options,
                                                 const linewright_barcode** barcode);

/** The same as linewright_encode, drawn and read by scanners. */
LINEWRIGHT_API linewright_status linewright_verify(linewright_text type, linewright_text data,
                                                   const linewright_options* options,
                                                   const linewright_barcode** barcode);

/** Gives back a barcode or results, with all that they point to; NULL is none. */
LINEWRIGHT_API void linewright_free_barcode(const linewright_barcode* barcode);
LINEWRIGHT_API void linewright_free_results(const linewright_results* results);

#ifdef __cplusplus
}
#endif

#endif
