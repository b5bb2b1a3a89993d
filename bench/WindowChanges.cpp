// How long the window's main thread takes for a change of its data, and whether its memory grows.

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "workbench/Workbench.h"

namespace {

/** The process's own memory, in KiB. */
long ResidentKibibytes() {
    std::ifstream statm("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    statm >> whole >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/** What a person sees of a change: all that the main thread does before it waits again. */
double MillisecondsOf(QLineEdit& data, const QString& text) {
    QElapsedTimer timer;
    timer.start();
    data.setText(text);
    QApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int count, char** values) {
    constexpr int kTimed = 500;
    constexpr int kWarm = 2000;
    constexpr int kChanges = 10000;
    constexpr int kLength = 200;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication program(count, values);
    const QTemporaryDir folder;
    linewright::Workbench workbench({.plugIn = {},
                                     .roamingFolder = folder.path(),
                                     .appFolder = {},
                                     .fonts = {},
                                     .locale = QStringLiteral("enUS"),
                                     .beep = [] {}});
    if (!workbench.Start()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(workbench.Error()));
        return 1;
    }
    workbench.Window().show();
    workbench.Window().resize(900, 600);
    auto& filter = *workbench.Window().findChild<QLineEdit*>(QStringLiteral("filter"));
    filter.setText(QStringLiteral("code128"));
    Q_EMIT filter.returnPressed();
    auto& data = *workbench.Window().findChild<QLineEdit*>(QStringLiteral("data"));
    const auto textOf = [](int number) {
        return QString(kLength - 6, QChar('A' + number % 26)) +
               QString::number(100000 + number % 900000);
    };
    std::vector<double> times;
    times.reserve(kTimed);
    for (int i = 0; i < kTimed; ++i) times.push_back(MillisecondsOf(data, textOf(i)));
    std::sort(times.begin(), times.end());
    std::printf("a change of %d characters: median %.2f ms, 99 %% %.2f ms\n", kLength,
                times[kTimed / 2], times[kTimed * 99 / 100]);
    for (int i = 0; i < kWarm; ++i) MillisecondsOf(data, textOf(i));
    const long before = ResidentKibibytes();
    for (int i = 0; i < kChanges; ++i) MillisecondsOf(data, textOf(i));
    const long after = ResidentKibibytes();
    std::printf("memory: %ld KiB, after %d changes %ld KiB\n", before, kChanges, after);
    return 0;
}
