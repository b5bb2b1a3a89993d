#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <map>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "include/linewright.h"

// The library in C for Python; linewright/__init__.py has what people call.

namespace py = pybind11;

namespace {

linewright_text Text(const std::string& text) {
    return {text.data(), text.size()};
}

std::string Utf8(linewright_text text) {
    return text.size == 0 ? std::string() : std::string(text.data, text.size);
}

py::str Str(linewright_text text) {
    return py::str(Utf8(text));
}

/** Raises what a call that made nothing says of itself: a number and a sentence. */
void Check(linewright_status status) {
    if (status == LINEWRIGHT_DONE || status == LINEWRIGHT_REFUSED) return;
    const std::string sentence = linewright_error();
    if (status == LINEWRIGHT_NO_MEMORY) throw std::bad_alloc();
    if (status == LINEWRIGHT_BAD_ARGUMENT) throw py::value_error(sentence);
    throw std::runtime_error(sentence);
}

/** The wishes of a call; texts as in linewright_options. */
struct Options {
    Options(std::uint32_t flags, std::uint32_t check, double ratio,
            const std::map<std::string, std::string>& lengths, double dpi, double pixels)
        : texts(lengths) {
        options.flags = flags;
        options.check = check;
        options.ratio = ratio;
        options.x_dimension = Text(texts["x_dimension"]);
        options.height = Text(texts["height"]);
        options.quiet_zone = Text(texts["quiet_zone"]);
        options.bar_width_reduction = Text(texts["bar_width_reduction"]);
        options.ink = Text(texts["ink"]);
        options.dots_per_inch = dpi;
        options.pixels_per_module = pixels;
    }
    std::map<std::string, std::string> texts;
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
};

/** A barcode that is handed out, as a dictionary. */
py::dict DictOf(const linewright_barcode& barcode) {
    py::list warnings;
    for (std::size_t i = 0; i < barcode.warning_count; ++i) {
        warnings.append(Str(barcode.warnings[i]));
    }
    py::dict dict;
    dict["reason"] = barcode.reason;
    dict["status"] = barcode.status;
    dict["type"] = Str(barcode.type);
    dict["bytes"] = py::bytes(Utf8(barcode.bytes));
    dict["text"] = Str(barcode.text);
    dict["human_readable"] = Str(barcode.human_readable);
    dict["font"] = Str(barcode.font);
    dict["size"] = barcode.font_size;
    dict["hint"] = Str(barcode.hint);
    dict["message"] = Str(barcode.message);
    dict["position"] = barcode.position;
    dict["warnings"] = warnings;
    dict["file"] = py::bytes(Utf8(barcode.file));
    dict["verdict"] = barcode.verdict;
    dict["read"] = Str(barcode.read);
    return dict;
}

/** Makes a call without the interpreter's lock, and what it hands out a dictionary. */
template <class Call>
py::dict Made(Call call) {
    const linewright_barcode* barcode = nullptr;
    linewright_status status = LINEWRIGHT_FAILED;
    {
        const py::gil_scoped_release released;
        status = call(&barcode);
    }
    const std::unique_ptr<const linewright_barcode, decltype(&linewright_free_barcode)> made(
        barcode, &linewright_free_barcode);
    Check(status);
    return DictOf(*made);
}

void Open(const std::string& plugin, const std::string& config, const std::string& app,
          const std::string& fonts, const std::string& locale) {
    linewright_places places = LINEWRIGHT_PLACES_INIT;
    places.plugin = Text(plugin);
    places.config_folder = Text(config);
    places.app_folder = Text(app);
    places.fonts = Text(fonts);
    places.locale = Text(locale);
    Check(linewright_open(&places));
}

py::list Types() {
    const linewright_type* types = nullptr;
    std::size_t count = 0;
    Check(linewright_types(&types, &count));
    py::list list;
    for (std::size_t i = 0; i < count; ++i) {
        list.append(py::make_tuple(Str(types[i].name), Str(types[i].short_name),
                                   Str(types[i].display_text), Str(types[i].font),
                                   types[i].font_size));
    }
    return list;
}

py::dict Encode(const std::string& type, const std::string& data, const Options& options) {
    return Made([&](const linewright_barcode** barcode) {
        return linewright_encode(Text(type), Text(data), &options.options, barcode);
    });
}

py::dict Draw(const std::string& type, const std::string& data, const std::string& format,
              const Options& options) {
    return Made([&](const linewright_barcode** barcode) {
        return linewright_draw(Text(type), Text(data), Text(format), &options.options, barcode);
    });
}

py::dict Verify(const std::string& type, const std::string& data, const Options& options) {
    return Made([&](const linewright_barcode** barcode) {
        return linewright_verify(Text(type), Text(data), &options.options, barcode);
    });
}

/** Texts of Python as a column. */
struct Column {
    void Add(py::handle item) {
        Py_ssize_t size = 0;
        const char* const text = PyUnicode_AsUTF8AndSize(item.ptr(), &size);
        if (text == nullptr) throw py::error_already_set();
        bytes.append(text, static_cast<std::size_t>(size));
        offsets.push_back(static_cast<int64_t>(bytes.size()));
    }
    linewright_column Given() const { return {bytes.data(), bytes.size(), offsets.data(), 64}; }

    std::string bytes;
    std::vector<int64_t> offsets{0};
};

/** Texts or None for each row that is not None, its status and reason. */
py::tuple EncodeMany(const std::string& type, const py::list& data, const Options& options) {
    Column column;
    column.offsets.reserve(data.size() + 1);
    for (const py::handle item : data) column.Add(item);
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = data.size();
    rows.data = column.Given();
    rows.type = Text(type);
    const linewright_results* results = nullptr;
    linewright_status status = LINEWRIGHT_FAILED;
    {
        const py::gil_scoped_release released;
        status = linewright_encode_many(&rows, &options.options, &results);
    }
    const std::unique_ptr<const linewright_results, decltype(&linewright_free_results)> handedOut(
        results, &linewright_free_results);
    Check(status);
    py::list texts(results->count);
    py::list statuses(results->count);
    py::list reasons(results->count);
    const auto offset = [&](std::size_t place) {
        const linewright_column& made = results->texts;
        return made.offset_bits == 32 ? static_cast<const int32_t*>(made.offsets)[place]
                                      : static_cast<const int64_t*>(made.offsets)[place];
    };
    for (std::size_t i = 0; i < results->count; ++i) {
        const bool isMade = results->reasons[i] <= LINEWRIGHT_WARNED;
        const auto size = static_cast<std::size_t>(offset(i + 1) - offset(i));
        if (isMade) {
            texts[i] = py::str(results->texts.bytes + offset(i), size);
        } else {
            texts[i] = py::none();
        }
        statuses[i] = results->statuses[i];
        reasons[i] = results->reasons[i];
    }
    return py::make_tuple(texts, statuses, reasons);
}

}  // namespace

PYBIND11_MODULE(_library, module) {
    py::class_<Options>(module, "Options")
        .def(py::init<std::uint32_t, std::uint32_t, double,
                      const std::map<std::string, std::string>&, double, double>());
    module.attr("version") = linewright_version();
    module.def("open", &Open);
    module.def("close", [] { Check(linewright_close()); });
    module.def("types", &Types);
    module.def("encode", &Encode);
    module.def("encode_many", &EncodeMany);
    module.def("draw", &Draw);
    module.def("verify", &Verify);
}
