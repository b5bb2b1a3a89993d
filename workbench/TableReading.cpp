#include "workbench/TableReading.h"

#include <stop_token>
#include <utility>

#include "merge/EncodingFailure.h"

namespace linewright {

TableReading::TableReading(std::string file, std::optional<Encoding> itsEncoding)
    : name(std::move(file)), encoding(itsEncoding) {}

TableReading::~TableReading() {
    thread.request_stop();
    if (thread.joinable()) thread.join();
}

void TableReading::Start() {
    thread = std::jthread([this](const std::stop_token& stop) { Read(stop); });
}

void TableReading::Read(const std::stop_token& stop) {
    int shown = 0;
    const auto goesOn = [&](int perCent) {
        if (perCent > shown) {
            shown = perCent;
            QMetaObject::invokeMethod(
                this,
                [this, perCent] {
                    if (progressed) progressed(perCent);
                },
                Qt::QueuedConnection);
        }
        return !stop.stop_requested();
    };
    try {
        result.table = TableOfFile(name, encoding, goesOn);
    } catch (const EncodingFailure& failure) {
        result.failure = failure.what();
        result.isOtherEncoding = true;
    } catch (const std::exception& failure) {
        result.failure = failure.what();
    }
    result.isCancelled = stop.stop_requested();
    QMetaObject::invokeMethod(
        this,
        [this] {
            thread.join();
            if (ended) ended(result);
        },
        Qt::QueuedConnection);
}

}  // namespace linewright
