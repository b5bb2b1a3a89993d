#include "workbench/CommandDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "workbench/Language.h"
#include "workbench/OutputPhrases.h"
#include "workbench/Text.h"

namespace linewright {

CommandDialog::CommandDialog(const QString& line, const QString& locale, QWidget* parent)
    : QDialog(parent) {
    constexpr QSize kSize(560, 220);
    setObjectName(QStringLiteral("commandDialog"));
    setWindowTitle(Say(phrases::kCommandTitle, locale));
    auto* const label = new QLabel(Say(phrases::kCommandHelp, locale), this);
    auto* const text = new QPlainTextEdit(line, this);
    text->setObjectName(QStringLiteral("line"));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setWordWrapMode(QTextOption::WrapAnywhere);
    label->setBuddy(text);
    text->setAccessibleName(SpokenText(label->text()));
    auto* const copy = new QPushButton(Say(phrases::kCopyCommand, locale), this);
    copy->setObjectName(QStringLiteral("copy"));
    copy->setDefault(true);
    auto* const close = new QPushButton(Say(phrases::kClose, locale), this);
    close->setObjectName(QStringLiteral("close"));
    close->setAutoDefault(false);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(copy);
    buttons->addWidget(close);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(text, 1);
    column->addLayout(buttons);
    resize(kSize);
    copy->setFocus();
    connect(copy, &QPushButton::clicked, this,
            [line] { QApplication::clipboard()->setText(line); });
    connect(close, &QPushButton::clicked, this, [this] { reject(); });
}

}  // namespace linewright
