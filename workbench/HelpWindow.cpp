#include "workbench/HelpWindow.h"

#include <QFile>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "workbench/Language.h"
#include "workbench/MenuPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

QString TextIn(const QString& locale) {
    QFile file(QStringLiteral(":/help/%1.md").arg(locale));
    if (!file.exists()) file.setFileName(QStringLiteral(":/help/enUS.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

HelpWindow::HelpWindow(const QString& locale, QWidget* parent) : QDialog(parent) {
    constexpr QSize kSize(600, 480);
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("help"));
    setWindowTitle(SpokenText(Say(phrases::kHelp, locale)));
    auto* const text = new QTextBrowser(this);
    text->setMarkdown(TextIn(locale));
    text->setAccessibleName(windowTitle());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(text);
    resize(kSize.boundedTo(screen()->availableSize()));
}

}  // namespace linewright
