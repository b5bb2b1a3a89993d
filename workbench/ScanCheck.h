#pragma once

#include <QObject>
#include <QThreadPool>
#include <functional>
#include <memory>

#include "render/BarcodeDrawing.h"
#include "scanners/Verification.h"

namespace linewright {

/** Has scanners read drawings, beside the main thread: one at a time, and of those that wait only
 *  the last. What is said is always of the last one asked for. Main thread only. */
class ScanCheck final : public QObject {
  public:
    /** `hear` gets a verdict, or nullptr where the picture could not be made. */
    explicit ScanCheck(std::function<void(const Verification*)> hear);
    ~ScanCheck() override;

    void Check(const BarcodeDrawing& drawing, const Meaning& meaning);
    /** Nothing is said of what was asked for until now. */
    void Forget();

  private:
    struct Task;
    void Begin();
    void End(const std::shared_ptr<Task>& done);

    std::function<void(const Verification*)> hear;
    std::shared_ptr<Task> waiting;
    /** The one whose verdict is wanted; nullptr for none. */
    std::shared_ptr<Task> wanted;
    bool isBusy = false;
    QThreadPool pool;
};

}  // namespace linewright
