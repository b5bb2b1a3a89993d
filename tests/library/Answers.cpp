#include <iostream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "include/linewright.h"
#include "text/Hex.h"

// Answers the requests of `linewright stream` by the library in C, each for itself ("one") or as
// columns ("many"): Answers one|many CONFIG-FOLDER APP-FOLDER.

namespace linewright {

namespace {

using nlohmann::json;

linewright_text Text(const std::string& text) {
    return {text.data(), text.size()};
}

struct Row {
    std::string type;
    std::string data;
    bool isUtf8 = true;
    unsigned check = 0;
    double ratio = 2;
};

Row RowOf(const json& request) {
    Row row{.type = request.at("type"), .data = {}};
    if (request.contains("hex")) {
        row.data = FromHex(request.at("hex").get<std::string>()).value();
        row.isUtf8 = request.value("utf8", false);
    } else {
        row.data = request.at("data");
    }
    row.check = request.value("check", 0U);
    row.ratio = request.value("ratio", 2.0);
    return row;
}

json Answer(int32_t status, bool isRecognised, std::string_view bytes) {
    return {{"status", status}, {"recognised", isRecognised}, {"hex", ToHex(bytes)}};
}

json AnswerOne(const Row& row) {
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    options.flags = row.isUtf8 ? 0 : LINEWRIGHT_BYTES;
    options.check = row.check;
    options.ratio = row.ratio;
    const linewright_barcode* barcode = nullptr;
    const linewright_status status =
        linewright_encode(Text(row.type), Text(row.data), &options, &barcode);
    if (barcode == nullptr) throw std::runtime_error(linewright_error());
    if ((status == LINEWRIGHT_DONE) != (barcode->reason <= LINEWRIGHT_WARNED)) {
        throw std::runtime_error("status and reason contradict each other");
    }
    json answer = Answer(barcode->status, barcode->reason != LINEWRIGHT_UNKNOWN_TYPE,
                         {barcode->bytes.data, barcode->bytes.size});
    answer["hint"] = std::string(barcode->hint.data, barcode->hint.size);
    linewright_free_barcode(barcode);
    return answer;
}

struct Column {
    void Add(const std::string& text) {
        bytes += text;
        offsets.push_back(static_cast<int64_t>(bytes.size()));
    }
    linewright_column Given() const { return {bytes.data(), bytes.size(), offsets.data(), 64}; }
    std::string bytes{};
    std::vector<int64_t> offsets{0};
};

/** The answers to those of the rows that are UTF-8, or are not. */
void AnswerMany(const std::vector<Row>& all, bool isUtf8, std::vector<json>& answers) {
    Column data;
    Column types;
    std::vector<uint8_t> checks;
    std::vector<double> ratios;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].isUtf8 != isUtf8) continue;
        data.Add(all[i].data);
        types.Add(all[i].type);
        checks.push_back(static_cast<uint8_t>(all[i].check));
        ratios.push_back(all[i].ratio);
        places.push_back(i);
    }
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = places.size();
    rows.data = data.Given();
    rows.types = types.Given();
    rows.checks = checks.data();
    rows.ratios = ratios.data();
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    options.flags = LINEWRIGHT_FONT_BYTES | (isUtf8 ? 0U : static_cast<uint32_t>(LINEWRIGHT_BYTES));
    const linewright_results* results = nullptr;
    if (linewright_encode_many(&rows, &options, &results) != LINEWRIGHT_DONE) {
        throw std::runtime_error(linewright_error());
    }
    const auto* const offsets = static_cast<const int32_t*>(results->texts.offsets);
    for (std::size_t i = 0; i < results->count; ++i) {
        answers[places[i]] =
            Answer(results->statuses[i], results->reasons[i] != LINEWRIGHT_UNKNOWN_TYPE,
                   std::string_view(results->texts.bytes + offsets[i],
                                    results->texts.bytes + offsets[i + 1]));
    }
    linewright_free_results(results);
}

int Run(const std::string& mode, const std::string& config, const std::string& app) {
    linewright_places places = LINEWRIGHT_PLACES_INIT;
    places.config_folder = Text(config);
    places.app_folder = Text(app);
    if (linewright_open(&places) != LINEWRIGHT_DONE) throw std::runtime_error(linewright_error());
    std::vector<Row> rows;
    for (std::string line; std::getline(std::cin, line);) rows.push_back(RowOf(json::parse(line)));
    std::vector<json> answers(rows.size());
    if (mode == "many") {
        AnswerMany(rows, true, answers);
        AnswerMany(rows, false, answers);
    } else {
        for (std::size_t i = 0; i < rows.size(); ++i) answers[i] = AnswerOne(rows[i]);
    }
    for (const json& answer : answers) std::cout << answer.dump() << '\n';
    return linewright_close();
}

}  // namespace

}  // namespace linewright

int main(int count, char** words) try {
    if (count != 4) throw std::runtime_error("usage: one|many CONFIG-FOLDER APP-FOLDER");
    return linewright::Run(words[1], words[2], words[3]);
} catch (const std::exception& error) {
    std::cerr << words[0] << ": " << error.what() << '\n';
    return 1;
}
