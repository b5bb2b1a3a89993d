#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <cstdlib>

#include "host/runtime/Host.h"
#include "workbench/Workbench.h"

namespace {

constexpr auto kProgram = "linewright-workbench";
constexpr int kWrongUse = 2;

[[noreturn]] void EndWithSentence(const QString& sentence) {
    std::fprintf(stderr, "%s: %s\n", kProgram, qUtf8Printable(sentence));
    std::exit(kWrongUse);
}

/** Help and version need no display: nothing of Qt's windows is there yet. */
linewright::WorkbenchOptions ParseOptions(const QStringList& arguments) {
    const QCommandLineOption locale("locale", "enUS, deDE, frFR or jaJP.", "NAME");
    const QCommandLineOption config("config-dir", "Folder that holds the preferences.", "DIR");
    const QCommandLineOption app("app-dir", "Folder of the application.", "DIR");
    const QCommandLineOption plugIn("plugin", "The plug-in's library.", "FILE");
    const QCommandLineOption fonts("fonts", "Folder of the barcode fonts.", "DIR");
    QCommandLineParser parser;
    parser.setApplicationDescription("Makes barcodes, as text for their fonts and as drawings.");
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({locale, config, app, plugIn, fonts});
    if (!parser.parse(arguments)) EndWithSentence(parser.errorText());
    if (parser.isSet(version)) parser.showVersion();
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) parser.showHelp();
    if (!parser.positionalArguments().isEmpty()) {
        EndWithSentence(QStringLiteral("\"%1\" is no option; --help lists them")
                            .arg(parser.positionalArguments().constFirst()));
    }
    return {.plugIn = parser.value(plugIn),
            .roamingFolder = parser.value(config),
            .appFolder = parser.value(app),
            .fonts = parser.value(fonts),
            .locale = parser.value(locale),
            .beep = {}};
}

/** Qt aborts where there is no display, with many words on the way. */
void MindDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
    if (type != QtFatalMsg) return;
    std::fprintf(stderr, "%s: there is no display that a window can be shown on\n", kProgram);
    std::_Exit(kWrongUse);
}

}  // namespace

int main(int count, char** values) {
    host::EndWithoutMemory(kProgram);
    QCoreApplication::setApplicationName(kProgram);
    QCoreApplication::setApplicationVersion(LINEWRIGHT_VERSION);
    // The options are ours alone; Qt has one of its own that is called --plugin.
    int countForQt = 1;
    linewright::WorkbenchOptions options;
    {
        const QCoreApplication parsing(count, values);
        options = ParseOptions(QCoreApplication::arguments());
    }
    const QtMessageHandler usual = qInstallMessageHandler(MindDisplay);
    const QApplication program(countForQt, values);
    qInstallMessageHandler(usual);
    linewright::Workbench workbench(options);
    if (!workbench.Start()) {
        std::fprintf(stderr, "%s: %s\n", kProgram, qUtf8Printable(workbench.Error()));
        return 1;
    }
    workbench.Window().show();
    return QApplication::exec();
}
