#include "workbench/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QStandardPaths>

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
                           QStringLiteral("/../lib/linewright/" LINEWRIGHT_PLUGIN_FILE));
}

WorkbenchOptions Completed(WorkbenchOptions options) {
    if (options.plugIn.isEmpty()) options.plugIn = DefaultPlugIn();
    if (options.roamingFolder.isEmpty()) options.roamingFolder = DefaultRoamingFolder();
    if (options.appFolder.isEmpty()) options.appFolder = QCoreApplication::applicationDirPath();
    if (!options.beep) options.beep = [] { QApplication::beep(); };
    return options;
}

}  // namespace

Workbench::Workbench(const WorkbenchOptions& options)
    : fOptions(Completed(options)),
      fSettings(fOptions.roamingFolder + QStringLiteral("/Workbench.ini"), QSettings::IniFormat),
      fWindow(fSettings, [this](const QString& locale) { SwitchLanguage(locale); }),
      fFrontEnd(fSettings, &fWindow, fOptions.beep) {}

Workbench::~Workbench() {
    StopHost();
}

bool Workbench::Start() {
    if (!fOptions.locale.isEmpty()) return StartHost(fOptions.locale);
    const QString wanted = fSettings.value(kLanguageKey, SystemLocale()).toString();
    return StartHost(wanted) || StartHost(QString());
}

void Workbench::SwitchLanguage(const QString& locale) {
    if (QApplication::activeModalWidget()) return;
    StopHost();
    if (StartHost(locale)) {
        fSettings.setValue(kLanguageKey, locale);
    } else {
        QMessageBox::critical(&fWindow, fWindow.windowTitle(),
                              Say(Phrase::kNoPlugIn, locale) + QLatin1String(":\n") + Error());
    }
}

bool Workbench::StartHost(const QString& locale) {
    const QByteArray plugIn = fOptions.plugIn.toUtf8();
    const QByteArray roamingFolder = fOptions.roamingFolder.toUtf8();
    const QByteArray appFolder = fOptions.appFolder.toUtf8();
    const QByteArray name = locale.toUtf8();
    const host::Settings settings{.plugin = plugIn.constData(),
                                  .roamingFolder = roamingFolder.constData(),
                                  .appFolder = appFolder.constData(),
                                  .locale = name.isEmpty() ? nullptr : name.constData(),
                                  .frontEnd = &fFrontEnd};
    TranslateQt(locale);
    if (!fHost.Start(settings)) return false;
    fWindow.ShowPlugIn();
    return true;
}

void Workbench::StopHost() {
    fWindow.HidePlugIn();
    fHost.Stop();
}

}  // namespace linewright
