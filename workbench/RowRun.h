#pragma once

#include <QObject>
#include <QTimer>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "requests/BarcodeOutcome.h"
#include "words/Words.h"

namespace linewright {

/** A row of a list on its way out. Texts are UTF-8. */
struct RowOut {
    /** From 1. */
    std::size_t number = 1;
    std::vector<std::string> cells{};
    BarcodeWish wish{};
    BarcodeOutcome outcome{};
};

/** Where rows go, one after the other, on a thread that is not the window's. What it has begun and
 *  not finished is undone when it is destroyed. All of it may throw Failure and DrawingFailure. */
class RowTaker {
  public:
    RowTaker() = default;
    RowTaker(const RowTaker&) = delete;
    RowTaker& operator=(const RowTaker&) = delete;
    virtual ~RowTaker() = default;

    /** Why the row is refused, a sentence; "" where it is not. */
    virtual std::string Take(RowOut row) = 0;
    /** All rows were taken. */
    virtual void Finish() = 0;
};

/** What became of a run. */
struct RowRunResult {
    struct Refused {
        std::size_t number;
        std::string data;
        std::string why;
    };

    /** Without the refused ones. */
    std::size_t taken = 0;
    std::vector<Refused> refused{};
    /** What ended it; "" for nothing. */
    std::string failure{};
    bool isCancelled = false;
};

/** Has barcodes made in slices on the window's thread, where requests belong, and taken beside it.
 *  Of rows that are made and not taken there are never many. To be used on the window's thread. */
class RowRun final : public QObject {
  public:
    /** Makes the row of a place; may throw RequestFailure. */
    using MakeRow = std::function<RowOut(std::size_t place)>;
    /** Called on the other thread. */
    using MakeTaker = std::function<std::unique_ptr<RowTaker>()>;

    RowRun(std::size_t rows, MakeRow makeRow, MakeTaker makeTaker, Language sentences);
    ~RowRun() override;

    /** Hear how many rows were taken or refused, and of the end; then it may be destroyed, though
     *  not in the call itself. */
    std::function<void(std::size_t)> progressed;
    std::function<void(const RowRunResult&)> ended;

    void Start();
    /** Ends it soon. What is finished stays, what is not leaves nothing. */
    void Cancel() { thread.request_stop(); }

  private:
    void Fill();
    void Work(const std::stop_token& stop);
    std::optional<RowOut> Pop(const std::stop_token& stop);
    void End();

    std::size_t count;
    MakeRow make;
    MakeTaker makeTaker;
    Language language;
    std::size_t made = 0;
    QTimer slices;

    std::mutex mutex;
    std::condition_variable_any isChanged;
    std::deque<RowOut> waiting;
    bool isComplete = false;
    bool isAskedForMore = false;
    std::string requestFailure;

    /** The worker's until it has ended. */
    RowRunResult result;
    std::jthread thread;
};

}  // namespace linewright
