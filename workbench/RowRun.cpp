#include "workbench/RowRun.h"

#include <QElapsedTimer>
#include <stop_token>
#include <utility>

namespace linewright {

namespace {

/** Rows that wait to be taken. */
constexpr std::size_t kMostWaiting = 128;
/** In milliseconds, with some left for the last request. */
constexpr qint64 kSlice = 6;
constexpr std::size_t kRowsBetweenReports = 16;

}  // namespace

RowRun::RowRun(std::size_t rows, MakeRow makeRow, MakeTaker taker, Language sentences)
    : count(rows), make(std::move(makeRow)), makeTaker(std::move(taker)), language(sentences) {
    connect(&slices, &QTimer::timeout, this, [this] { Fill(); });
}

RowRun::~RowRun() {
    thread.request_stop();
    if (thread.joinable()) thread.join();
}

void RowRun::Start() {
    slices.start(0);
    thread = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

void RowRun::Fill() {
    QElapsedTimer clock;
    clock.start();
    try {
        while (made < count && !thread.get_stop_token().stop_requested()) {
            {
                const std::lock_guard lock(mutex);
                isAskedForMore = waiting.size() >= kMostWaiting;
                if (isAskedForMore) return slices.stop();
            }
            RowOut row = make(made++);
            {
                const std::lock_guard lock(mutex);
                waiting.push_back(std::move(row));
            }
            isChanged.notify_one();
            if (clock.elapsed() >= kSlice) return;
        }
    } catch (const RequestFailure& failure) {
        const std::lock_guard lock(mutex);
        requestFailure = Sentence(failure, language);
    }
    slices.stop();
    {
        const std::lock_guard lock(mutex);
        isComplete = true;
    }
    isChanged.notify_one();
}

std::optional<RowOut> RowRun::Pop(const std::stop_token& stop) {
    std::unique_lock lock(mutex);
    isChanged.wait(lock, stop, [this] { return !waiting.empty() || isComplete; });
    if (waiting.empty() || stop.stop_requested()) return std::nullopt;
    RowOut row = std::move(waiting.front());
    waiting.pop_front();
    if (isAskedForMore && waiting.size() < kMostWaiting / 2) {
        isAskedForMore = false;
        QMetaObject::invokeMethod(
            this, [this] { slices.start(0); }, Qt::QueuedConnection);
    }
    return row;
}

void RowRun::Work(const std::stop_token& stop) {
    try {
        const std::unique_ptr<RowTaker> taker = makeTaker();
        while (std::optional<RowOut> row = Pop(stop)) {
            const std::size_t number = row->number;
            std::string data = row->wish.data;
            std::string why = taker->Take(std::move(*row));
            if (why.empty()) {
                ++result.taken;
            } else {
                result.refused.push_back({number, std::move(data), std::move(why)});
            }
            const std::size_t done = result.taken + result.refused.size();
            if (done % kRowsBetweenReports != 0) continue;
            QMetaObject::invokeMethod(
                this,
                [this, done] {
                    if (progressed) progressed(done);
                },
                Qt::QueuedConnection);
        }
        result.failure = requestFailure;
        result.isCancelled = stop.stop_requested();
        if (result.failure.empty() && !result.isCancelled) taker->Finish();
    } catch (const DrawingFailure& failure) {
        result.failure = Sentence(failure, language);
    } catch (const std::exception& failure) {
        result.failure = failure.what();
    }
    QMetaObject::invokeMethod(
        this, [this] { End(); }, Qt::QueuedConnection);
}

void RowRun::End() {
    slices.stop();
    thread.join();
    if (ended) ended(result);
}

}  // namespace linewright
