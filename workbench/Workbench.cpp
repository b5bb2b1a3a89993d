#include "workbench/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include "words/Words.h"
#include "workbench/Language.h"
#include "workbench/MenuPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kLanguageKey = "language";

/** Where the host keeps what is the user's, the same as for the command. */
QString DefaultRoamingFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Linewright Host");
}

/** The plug-in's place in the build tree and in an installation alike. */
QString DefaultPlugIn() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/" LINEWRIGHT_PLUGIN_FILE));
}

QString DefaultFonts() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/" LINEWRIGHT_FONT_FOLDER));
}

/** The command beside this program, with the options that this program was started with. */
QStringList CommandFor(const WorkbenchOptions& options) {
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/linewright");
    QStringList command{QFileInfo::exists(beside) ? beside : QStringLiteral("linewright")};
    const auto add = [&command](const char* option, const QString& value) {
        if (!value.isEmpty()) command << QLatin1String(option) << value;
    };
    add("--config-dir", options.roamingFolder);
    add("--app-dir", options.appFolder);
    add("--plugin", options.plugIn);
    add("--fonts", options.fonts);
    return command;
}

WorkbenchOptions Completed(WorkbenchOptions options) {
    if (options.command.isEmpty()) options.command = CommandFor(options);
    if (options.plugIn.isEmpty()) options.plugIn = DefaultPlugIn();
    if (options.roamingFolder.isEmpty()) options.roamingFolder = DefaultRoamingFolder();
    if (options.appFolder.isEmpty()) options.appFolder = QCoreApplication::applicationDirPath();
    if (options.fonts.isEmpty()) options.fonts = DefaultFonts();
    if (!options.beep) options.beep = [] { QApplication::beep(); };
    return options;
}

}  // namespace

Workbench::Workbench(const WorkbenchOptions& wanted)
    : options(Completed(wanted)),
      settings(options.roamingFolder + QStringLiteral("/Workbench.ini"), QSettings::IniFormat),
      window(
          settings, [this](const QString& locale) { SwitchLanguage(locale); },
          [this](ActionID action) { frontEnd.Do(action); }),
      frontEnd(settings, &window, options.beep,
               [this](const QString& cells) { window.OfferCells(cells); }) {}

Workbench::~Workbench() {
    StopHost();
}

bool Workbench::Start() {
    if (!options.locale.isEmpty()) return StartHost(options.locale);
    const QString wanted = settings.value(kLanguageKey, SystemLocale()).toString();
    return StartHost(wanted) || StartHost(QString());
}

void Workbench::SwitchLanguage(const QString& locale) {
    const QString before = RunningLocale();
    if (locale == before || QApplication::activeModalWidget()) return;
    const std::vector<WindowFrontEnd::OpenDialog> dialogs = frontEnd.OpenDialogs();
    StopHost();
    if (StartHost(locale)) {
        settings.setValue(QLatin1String(kLanguageKey), locale);
    } else {
        const QString reason = Error();
        StartHost(before);
        QMessageBox::critical(&window, window.windowTitle(),
                              Say(phrases::kNoPlugIn, locale) + QLatin1String(":\n") + reason);
    }
    if (service) frontEnd.OpenAgain(dialogs);
}

bool Workbench::StartHost(const QString& locale) try {
    TranslateQt(locale);
    service.emplace(HostOptions{.plugin = options.plugIn.toStdString(),
                                .roamingFolder = options.roamingFolder.toStdString(),
                                .appFolder = options.appFolder.toStdString(),
                                .locale = locale.toStdString(),
                                .frontEnd = &frontEnd});
    window.ShowPlugIn(*service, {options.fonts.toStdString(), options.command});
    return true;
} catch (const RequestFailure& failure) {
    error = QString::fromStdString(Sentence(failure, LanguageOf(locale.toStdString())));
    return false;
}

void Workbench::StopHost() {
    window.HidePlugIn();
    if (service) service->Stop();
    service.reset();
}

}  // namespace linewright
