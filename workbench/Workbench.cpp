#include "workbench/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QStandardPaths>

#include "words/Words.h"
#include "workbench/Language.h"

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

WorkbenchOptions Completed(WorkbenchOptions options) {
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
      window(settings, [this](const QString& locale) { SwitchLanguage(locale); }),
      frontEnd(settings, &window, options.beep) {}

Workbench::~Workbench() {
    StopHost();
}

bool Workbench::Start() {
    if (!options.locale.isEmpty()) return StartHost(options.locale);
    const QString wanted = settings.value(kLanguageKey, SystemLocale()).toString();
    return StartHost(wanted) || StartHost(QString());
}

void Workbench::SwitchLanguage(const QString& locale) {
    if (QApplication::activeModalWidget()) return;
    StopHost();
    if (StartHost(locale)) {
        settings.setValue(kLanguageKey, locale);
    } else {
        QMessageBox::critical(&window, window.windowTitle(),
                              Say(Phrase::kNoPlugIn, locale) + QLatin1String(":\n") + Error());
    }
}

bool Workbench::StartHost(const QString& locale) try {
    TranslateQt(locale);
    service.emplace(HostOptions{.plugin = options.plugIn.toStdString(),
                                .roamingFolder = options.roamingFolder.toStdString(),
                                .appFolder = options.appFolder.toStdString(),
                                .locale = locale.toStdString(),
                                .frontEnd = &frontEnd});
    window.ShowPlugIn(*service, options.fonts);
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
