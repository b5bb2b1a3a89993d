#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "host/runtime/Host.h"
#include "workbench/Workbench.h"

namespace {

linewright::WorkbenchOptions ParseOptions(const QStringList& arguments) {
    const QCommandLineOption locale("locale", "enUS, deDE, frFR or jaJP.", "NAME");
    const QCommandLineOption config("config-dir", "Folder that holds the preferences.", "DIR");
    const QCommandLineOption app("app-dir", "Folder of the application.", "DIR");
    const QCommandLineOption plugIn("plugin", "The plug-in's library.", "FILE");
    const QCommandLineOption fonts("fonts", "Folder of the barcode fonts.", "DIR");
    QCommandLineParser parser;
    parser.setApplicationDescription("Turns data into text for barcode fonts, in a window.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({locale, config, app, plugIn, fonts});
    parser.process(arguments);
    return {.plugIn = parser.value(plugIn),
            .roamingFolder = parser.value(config),
            .appFolder = parser.value(app),
            .fonts = parser.value(fonts),
            .locale = parser.value(locale),
            .beep = {}};
}

}  // namespace

int main(int count, char** values) {
    host::EndWithoutMemory("linewright-workbench");
    QStringList arguments;
    for (int i = 0; i < count; ++i) arguments << QString::fromLocal8Bit(values[i]);
    // The options are ours alone; Qt has one of its own that is called --plugin.
    int countForQt = 1;
    const QApplication program(countForQt, values);
    QApplication::setApplicationName("linewright-workbench");
    QApplication::setApplicationDisplayName("Linewright");
    QApplication::setApplicationVersion(LINEWRIGHT_VERSION);
    linewright::Workbench workbench(ParseOptions(arguments));
    if (!workbench.Start()) {
        std::fprintf(stderr, "linewright-workbench: %s\n", qUtf8Printable(workbench.Error()));
        return 1;
    }
    workbench.Window().show();
    return QApplication::exec();
}
