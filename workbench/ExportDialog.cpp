#include "workbench/ExportDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <array>

#include "files/NewFile.h"
#include "host/runtime/Paths.h"
#include "requests/WrittenInk.h"
#include "words/Words.h"
#include "workbench/Colours.h"
#include "workbench/Keep.h"
#include "workbench/Language.h"
#include "workbench/OutputPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kFolderKey = "export/folder";
constexpr auto kFormatKey = "export/format";
constexpr auto kDotsKey = "export/dpi";
constexpr auto kInkKey = "export/ink";
constexpr auto kGreyKey = "export/isGrey";

constexpr std::array kFormats{FileFormat::kPdf, FileFormat::kEps, FileFormat::kSvg,
                              FileFormat::kPng, FileFormat::kTiff};

/** The ending of a name that some kind of file has; "" where what follows a dot is just a name. */
QString KnownEnding(const QString& name) {
    const QString suffix = QFileInfo(name).suffix();
    if (FormatOf(name.toStdString())) return suffix;
    return QMimeDatabase().suffixForFileName(name);
}

}  // namespace

ExportChoice KeptChoice(const QSettings& settings) {
    ExportChoice choice;
    const QString ending = '.' + settings.value(QLatin1String(kFormatKey)).toString();
    choice.format = FormatOf(ending.toStdString()).value_or(choice.format);
    choice.dotsPerInch = settings.value(QLatin1String(kDotsKey), choice.dotsPerInch).toInt();
    choice.ink = settings.value(QLatin1String(kInkKey), choice.ink).toString();
    choice.isGrey = settings.value(QLatin1String(kGreyKey), choice.isGrey).toBool();
    return choice;
}

ExportDialog::ExportDialog(const TakenBarcode& taken, QSettings& userSettings,
                           const QString& locale, QWidget* parent)
    : QDialog(parent), barcode(taken), settings(userSettings), language(locale) {
    setObjectName(QStringLiteral("exportDialog"));
    setWindowTitle(Say(phrases::kExportTitle, language));
    MakeFields();
    Arrange();
    Restore();
    ShowFormat();
    connect(formatBox, &QComboBox::currentIndexChanged, this, [this] { ShowFormat(); });
    connect(browseButton, &QPushButton::clicked, this, [this] { Browse(); });
    connect(saveButton, &QPushButton::clicked, this, [this] { accept(); });
    connect(cancelButton, &QPushButton::clicked, this, [this] { reject(); });
}

void ExportDialog::MakeFields() {
    constexpr int kLeastDots = 72;
    constexpr int kMostDots = 4800;
    constexpr int kReasonLines = 3;
    formatBox = new QComboBox(this);
    formatBox->setObjectName(QStringLiteral("format"));
    for (const FileFormat format : kFormats) formatBox->addItem(EndingOf(format).toUpper());
    nameBox = new QLineEdit(this);
    nameBox->setObjectName(QStringLiteral("file"));
    browseButton = new QPushButton(Say(phrases::kExportBrowse, language), this);
    browseButton->setObjectName(QStringLiteral("browse"));
    browseButton->setAutoDefault(false);
    inkBox = new QComboBox(this);
    inkBox->setObjectName(QStringLiteral("ink"));
    inkBox->setEditable(true);
    inkBox->addItems({QStringLiteral("black"), QStringLiteral("cmyk:0,0,0,100")});
    inkBox->setToolTip(Say(phrases::kExportInkHelp, language));
    inkBox->setAccessibleDescription(inkBox->toolTip());
    dotsBox = new QSpinBox(this);
    dotsBox->setObjectName(QStringLiteral("dots"));
    dotsBox->setRange(kLeastDots, kMostDots);
    greyBox = new QCheckBox(Say(phrases::kExportGrey, language), this);
    greyBox->setObjectName(QStringLiteral("grey"));
    reasonLabel = new QLabel(this);
    reasonLabel->setObjectName(QStringLiteral("reason"));
    reasonLabel->setTextFormat(Qt::PlainText);
    reasonLabel->setWordWrap(true);
    reasonLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    reasonLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    reasonLabel->setFixedHeight(kReasonLines * reasonLabel->fontMetrics().lineSpacing());
    saveButton = new QPushButton(Say(phrases::kExportSave, language), this);
    saveButton->setObjectName(QStringLiteral("save"));
    saveButton->setDefault(true);
    cancelButton = new QPushButton(Say(phrases::kCancel, language), this);
    cancelButton->setObjectName(QStringLiteral("cancel"));
    cancelButton->setAutoDefault(false);
}

void ExportDialog::Arrange() {
    constexpr int kLeastWidth = 480;
    auto* const name = new QHBoxLayout;
    name->addWidget(nameBox, 1);
    name->addWidget(browseButton);
    auto* const form = new QFormLayout(this);
    const auto add = [&](const Phrase& phrase, QWidget* field, QLayout* row) {
        auto* const label = new QLabel(Say(phrase, language), this);
        label->setBuddy(field);
        field->setAccessibleName(SpokenText(label->text()));
        if (row != nullptr) {
            form->addRow(label, row);
        } else {
            form->addRow(label, field);
        }
    };
    add(phrases::kExportFormat, formatBox, nullptr);
    add(phrases::kExportFile, nameBox, name);
    add(phrases::kExportInk, inkBox, nullptr);
    add(phrases::kExportDots, dotsBox, nullptr);
    form->addRow(QString(), greyBox);
    form->addRow(reasonLabel);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(cancelButton);
    form->addRow(buttons);
    setMinimumWidth(kLeastWidth);
    nameBox->setFocus();
}

void ExportDialog::Restore() {
    const ExportChoice kept = KeptChoice(settings);
    for (int i = 0; i < formatBox->count(); ++i) {
        if (kFormats[static_cast<std::size_t>(i)] == kept.format) formatBox->setCurrentIndex(i);
    }
    inkBox->setEditText(kept.ink);
    dotsBox->setValue(kept.dotsPerInch);
    greyBox->setChecked(kept.isGrey);
    QString folder = settings.value(QLatin1String(kFolderKey)).toString();
    if (folder.isEmpty() || !QDir(folder).exists()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    nameBox->setText(
        QDir::toNativeSeparators(folder + '/' + barcode.FileName() + '.' + EndingOf(kept.format)));
}

FileFormat ExportDialog::Format() const {
    return kFormats[static_cast<std::size_t>(formatBox->currentIndex())];
}

ExportChoice ExportDialog::Choice() const {
    return {.format = Format(),
            .dotsPerInch = dotsBox->value(),
            .ink = inkBox->currentText().trimmed(),
            .isGrey = greyBox->isChecked()};
}

void ExportDialog::ShowFormat() {
    const FileFormat format = Format();
    inkBox->setEnabled(HasInks(format));
    // A drawing with a resolution of its own has its dots as pixels.
    dotsBox->setEnabled(IsPicture(format) && !barcode.drawn.drawing->DotsPerInch());
    greyBox->setEnabled(IsPicture(format));
    // An ending that is one of these formats follows.
    const QString name = nameBox->text();
    if (!FormatOf(name.toStdString())) return;
    const auto dot = name.lastIndexOf('.');
    nameBox->setText(name.left(dot + 1) + EndingOf(format));
}

void ExportDialog::Browse() {
    const QString ending = EndingOf(Format());
    const QString chosen =
        QFileDialog::getSaveFileName(this, windowTitle(), nameBox->text(),
                                     QStringLiteral("%1 (*.%2)").arg(ending.toUpper(), ending),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) nameBox->setText(QDir::toNativeSeparators(chosen));
}

QString ExportDialog::NameToWrite() {
    const QString name = QDir::fromNativeSeparators(nameBox->text());
    const QString ending = EndingOf(Format());
    if (QFileInfo(name).fileName().isEmpty()) {
        ShowReason(Say(phrases::kNoFileName, language));
        return {};
    }
    if (FormatOf(name.toStdString()) == Format()) return name;
    const QString other = KnownEnding(name);
    if (other.isEmpty()) return name + '.' + ending;
    ShowReason(Say(phrases::kOtherEnding, language).arg(other, ending));
    return {};
}

void ExportDialog::accept() {
    ShowReason({});
    const QString name = NameToWrite();
    if (name.isEmpty()) return;
    if (inkBox->isEnabled() && !FindInk(Choice().ink.toStdString())) {
        ShowReason(Say(phrases::kNoInk, language).arg(Choice().ink));
        return;
    }
    if (QFileInfo::exists(name) &&
        QMessageBox::question(this, windowTitle(), Say(phrases::kAlreadyThere, language).arg(name),
                              QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    Write(name);
}

void ExportDialog::Write(const QString& name) {
    const auto refuse = [&](const std::string& reason) {
        ShowReason(Say(phrases::kCannotWrite, language)
                       .arg(name, AsSentence(QString::fromStdString(reason), language)));
    };
    try {
        files::NewFile file(host::PathFromUtf8(name.toStdString()));
        file.Write(barcode.Content(Choice()));
        if (!file.Keep()) {
            refuse(file.Error());
            return;
        }
    } catch (const DrawingFailure& failure) {
        refuse(Sentence(failure, LanguageOf(language.toStdString())));
        return;
    }
    writtenFile = name;
    Keep(settings, QLatin1String(kFolderKey), QFileInfo(name).absolutePath());
    Keep(settings, QLatin1String(kFormatKey), EndingOf(Format()));
    Keep(settings, QLatin1String(kDotsKey), dotsBox->value());
    Keep(settings, QLatin1String(kInkKey), Choice().ink);
    Keep(settings, QLatin1String(kGreyKey), greyBox->isChecked());
    QDialog::accept();
}

void ExportDialog::ShowReason(const QString& reason) {
    QPalette colours = reasonLabel->palette();
    colours.setColor(QPalette::WindowText, TextColour(Tone::kBad, palette()));
    reasonLabel->setPalette(colours);
    reasonLabel->setText(reason);
    reasonLabel->setToolTip(reason.toHtmlEscaped());
    reasonLabel->setAccessibleName(reason);
}

}  // namespace linewright
