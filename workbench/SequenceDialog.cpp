#include "workbench/SequenceDialog.h"

#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <limits>

#include "workbench/ListPhrases.h"
#include "workbench/Text.h"

namespace linewright {

SequenceDialog::SequenceDialog(const QString& locale, QWidget* parent)
    : QDialog(parent), language(locale) {
    constexpr int kUsualCount = 100;
    constexpr int kWidth = 440;
    setWindowTitle(Say(phrases::kSequenceTitle, language));
    setMinimumWidth(kWidth);
    auto* const form = new QFormLayout;
    const auto add = [&](const Phrase& phrase, auto* field, const char* name) {
        field->setObjectName(QLatin1String(name));
        form->addRow(Say(phrase, language), field);
        field->setAccessibleName(SpokenText(Say(phrase, language)));
        return field;
    };
    prefix = add(phrases::kPrefix, new QLineEdit(this), "prefix");
    first = add(phrases::kFirstNumber, new QLineEdit(QStringLiteral("000001"), this), "first");
    suffix = add(phrases::kSuffix, new QLineEdit(this), "suffix");
    step = add(phrases::kStep, new QSpinBox(this), "step");
    count = add(phrases::kHowMany, new QSpinBox(this), "count");
    step->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    step->setValue(1);
    count->setRange(1, static_cast<int>(kLongestSequence));
    count->setValue(kUsualCount);
    preview = new QLabel(this);
    preview->setObjectName(QStringLiteral("preview"));
    preview->setWordWrap(true);
    preview->setTextFormat(Qt::PlainText);
    preview->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    preview->setMinimumHeight(3 * preview->fontMetrics().lineSpacing());
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(preview);
    column->addWidget(buttons);
    for (QLineEdit* const field : {prefix, first, suffix})
        connect(field, &QLineEdit::textChanged, this, [this] { Show(); });
    for (QSpinBox* const field : {step, count})
        connect(field, &QSpinBox::valueChanged, this, [this] { Show(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    first->setFocus();
    first->selectAll();
    Show();
}

Sequence SequenceDialog::Asked() const {
    return {.prefix = prefix->text().toStdString(),
            .first = first->text().trimmed().toStdString(),
            .suffix = suffix->text().toStdString(),
            .step = step->value(),
            .count = static_cast<std::uint64_t>(count->value())};
}

void SequenceDialog::Show() {
    const Sequence sequence = Asked();
    const auto problem = ProblemOf(sequence);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!problem);
    if (!problem) {
        Sequence ends = sequence;
        ends.count = 1;
        const QString begin = QString::fromStdString(TextsOf(ends).front());
        const std::string last = LastNumber(sequence);
        const QString end = QString::fromStdString(
            sequence.prefix + std::string(sequence.first.size() - last.size(), '0') + last +
            sequence.suffix);
        preview->setText(sequence.count == 1 ? begin : begin + QStringLiteral(" … ") + end);
        return;
    }
    switch (*problem) {
        case SequenceProblem::kNoNumber:
        case SequenceProblem::kCount:
            preview->setText(Say(phrases::kNoNumber, language).arg(kMostSequenceDigits));
            break;
        case SequenceProblem::kTooLarge:
            preview->setText(Say(phrases::kTooLarge, language)
                                 .arg(QString::fromStdString(LastNumber(sequence))));
            break;
        case SequenceProblem::kBelowZero:
            preview->setText(Say(phrases::kBelowZero, language)
                                 .arg(QString::fromStdString(LastNumber(sequence))));
            break;
    }
}

}  // namespace linewright
