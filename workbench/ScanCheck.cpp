#include "workbench/ScanCheck.h"

#include <QMetaObject>
#include <optional>
#include <utility>

namespace linewright {

struct ScanCheck::Task {
    BarcodeDrawing drawing;
    Meaning meaning;
    std::optional<Verification> verification;
};

ScanCheck::ScanCheck(std::function<void(const Verification*)> listener)
    : hear(std::move(listener)) {
    pool.setMaxThreadCount(1);
}

ScanCheck::~ScanCheck() {
    pool.waitForDone();
}

void ScanCheck::Check(const BarcodeDrawing& drawing, const Meaning& meaning) {
    wanted = std::make_shared<Task>(Task{drawing, meaning, std::nullopt});
    waiting = wanted;
    if (!isBusy) Begin();
}

void ScanCheck::Forget() {
    wanted = nullptr;
    waiting = nullptr;
}

void ScanCheck::Begin() {
    isBusy = true;
    pool.start([this, task = std::exchange(waiting, nullptr)]() mutable {
        try {
            task->verification = Verify(task->drawing, task->meaning);
        } catch (const DrawingFailure&) {
            task->verification.reset();
        }
        // The task ends where it began, on the main thread.
        QMetaObject::invokeMethod(
            this, [this, done = std::move(task)] { End(done); }, Qt::QueuedConnection);
    });
}

void ScanCheck::End(const std::shared_ptr<Task>& done) {
    isBusy = false;
    if (waiting) Begin();
    if (done != wanted) return;
    hear(done->verification ? &*done->verification : nullptr);
}

}  // namespace linewright
