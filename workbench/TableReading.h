#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "merge/CellTable.h"

namespace linewright {

/** Reads a file of cells on a thread of its own. To be used on the window's thread. */
class TableReading final : public QObject {
  public:
    struct Result {
        CellTable table{};
        /** A sentence; "" for none. */
        std::string failure{};
        /** Whether the file is in another encoding. */
        bool isOtherEncoding = false;
        bool isCancelled = false;
    };

    /** The name is UTF-8. */
    TableReading(std::string file, std::optional<Encoding> itsEncoding);
    ~TableReading() override;

    /** Hear of per cents, and of the end; then it may be destroyed, though not in the call. */
    std::function<void(int)> progressed;
    std::function<void(Result&)> ended;

    void Start();
    void Cancel() { thread.request_stop(); }

  private:
    void Read(const std::stop_token& stop);

    std::string name;
    std::optional<Encoding> encoding;
    /** The thread's until it has ended. */
    Result result;
    std::jthread thread;
};

}  // namespace linewright
