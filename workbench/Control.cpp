#include "workbench/Control.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QSyntaxHighlighter>
#include <algorithm>

#include "text/FontText.h"
#include "types/DescriptionKeys.h"
#include "workbench/DataEdit.h"
#include "workbench/DialogPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

/** A control of one kind of Qt widget. */
template <class QtWidget>
class ControlOf : public Control {
  public:
    ControlOf(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks)
        : Control(shown, new QtWidget(parent)),
          qtWidget(static_cast<QtWidget*>(View())),
          hooks(dialogHooks) {}

  protected:
    QtWidget* const qtWidget;
    const ControlHooks& hooks;
};

class Label final : public ControlOf<QLabel> {
  public:
    using ControlOf::ControlOf;

  private:
    void ShowContent() override { qtWidget->setText(TextFromHost(hostWidget.GetText())); }
};

class EditBox final : public ControlOf<DataEdit> {
  public:
    EditBox(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks,
            const QString& locale)
        : ControlOf(shown, parent, dialogHooks), language(locale) {
        qtWidget->cellsPasted = [this](const QString& cells) { hooks.cellsPasted(cells); };
        // What the box takes is for the host to say, and to beep about.
        QObject::connect(qtWidget, &QLineEdit::textEdited, qtWidget, [this] { Pass(); });
    }

  private:
    void Pass() {
        const QString typed = qtWidget->text();
        const QString before = TextFromHost(hostWidget.GetText());
        if (typed == before) return;
        hostWidget.Type(TextForHost(typed));
        const QString taken = TextFromHost(hostWidget.GetText());
        hooks.said(taken == typed ? QString() : Refused(typed));
        if (taken != before) hooks.used();
    }

    /** Why not all that was typed was taken. */
    QString Refused(const QString& typed) const {
        QString characters;
        for (const uint character : typed.toUcs4()) {
            if (hostWidget.GetMaxCharacter() != 0 && character > hostWidget.GetMaxCharacter()) {
                const char32_t unicode = character;
                characters += QString::fromUcs4(&unicode, 1);
            }
        }
        if (characters.isEmpty())
            return Say(phrases::kTooLong, language).arg(hostWidget.GetMaxLength());
        return Say(phrases::kNotTaken, language).arg(characters);
    }

    void ShowContent() override {
        const QString text = TextFromHost(hostWidget.GetText());
        if (text == qtWidget->text()) return;
        // What was refused stood before the cursor, which stays behind what was not.
        const auto behind = qtWidget->text().size() - qtWidget->cursorPosition();
        qtWidget->SetData(text);
        qtWidget->setCursorPosition(static_cast<int>(qMax<qsizetype>(0, text.size() - behind)));
    }

    QString language;
};

/** A result as text that the barcode fonts draw, wherever it is put: the host's has a character for
 *  each byte of a font string, some of which are no characters to be shown. */
QString FontTextOf(const PMString& result) {
    const QString text = TextFromHost(result);
    std::string bytes;
    for (const QChar character : text) {
        if (character.unicode() > 0xFF) return text;
        bytes += static_cast<char>(character.unicode());
    }
    return QString::fromStdString(FontText(bytes));
}

/** A line to read, with a button that copies it. */
class ResultView final : public QWidget {
  public:
    explicit ResultView(QWidget* parent) : QWidget(parent) {
        line = new QLineEdit(this);
        line->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        line->setReadOnly(true);
        button = new QPushButton(this);
        button->setObjectName(QStringLiteral("copyResult"));
        button->setAutoDefault(false);
        auto* const row = new QHBoxLayout(this);
        row->setContentsMargins({});
        row->addWidget(line, 1);
        row->addWidget(button);
        setFocusProxy(line);
        setFocusPolicy(Qt::StrongFocus);
        connect(button, &QPushButton::clicked, this,
                [this] { QApplication::clipboard()->setText(line->text()); });
    }

    QLineEdit* line;
    QPushButton* button;
};

class ResultBox final : public ControlOf<ResultView> {
  public:
    ResultBox(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks,
              const QString& locale)
        : ControlOf(shown, parent, dialogHooks) {
        qtWidget->button->setText(Say(phrases::kCopyResult, locale));
    }

    void SetStale(bool isStale) override {
        qtWidget->line->setEnabled(!isStale);
        qtWidget->button->setEnabled(!isStale && !qtWidget->line->text().isEmpty());
    }

    QString FreshResult() const override {
        return qtWidget->line->isEnabled() ? qtWidget->line->text() : QString();
    }
    void ShowResult(const QString& text) override {
        qtWidget->line->setText(text);
        SetStale(false);
    }

  private:
    void ShowContent() override {
        qtWidget->line->setText(FontTextOf(hostWidget.GetText()));
        qtWidget->line->setCursorPosition(0);
        SetStale(false);
    }
};

/** Has the labels at the beginnings of paragraphs stand out. */
class HeadingHighlighter final : public QSyntaxHighlighter {
  public:
    explicit HeadingHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {
        for (const char* const key : {kDescriptionLabels.usage, kDescriptionLabels.data,
                                      kDescriptionLabels.sample, kDescriptionLabels.notes}) {
            headings << TextFromHost(PMString(key)).trimmed();
        }
    }

  protected:
    void highlightBlock(const QString& text) override {
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        for (const QString& heading : headings) {
            if (!heading.isEmpty() && text.startsWith(heading))
                setFormat(0, static_cast<int>(heading.size()), bold);
        }
    }

  private:
    QStringList headings;
};

class Description final : public ControlOf<QPlainTextEdit> {
  public:
    Description(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks)
        : ControlOf(shown, parent, dialogHooks) {
        // On a small screen it scrolls.
        constexpr int kColumns = 60;
        constexpr int kLines = 6;
        constexpr int kMargin = 8;
        qtWidget->setReadOnly(true);
        qtWidget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        qtWidget->setTabChangesFocus(true);
        qtWidget->document()->setDocumentMargin(kMargin);
        new HeadingHighlighter(qtWidget->document());
        const QFontMetrics metrics = qtWidget->fontMetrics();
        qtWidget->setMinimumSize(kColumns * metrics.averageCharWidth(),
                                 kLines * metrics.lineSpacing());
    }

  private:
    void ShowContent() override { qtWidget->setPlainText(TextFromHost(hostWidget.GetText())); }
};

class CheckBox final : public ControlOf<QCheckBox> {
  public:
    CheckBox(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks)
        : ControlOf(shown, parent, dialogHooks) {
        QObject::connect(qtWidget, &QCheckBox::clicked, qtWidget, [this](bool on) {
            hostWidget.Tick(on);
            hooks.used();
        });
    }

  private:
    void ShowContent() override {
        qtWidget->setText(TextFromHost(hostWidget.GetText()));
        qtWidget->setCheckState(static_cast<Qt::CheckState>(hostWidget.GetState()));
        qtWidget->setTristate(hostWidget.GetState() == Qt::PartiallyChecked);
    }
};

class PopUp final : public ControlOf<QComboBox> {
  public:
    PopUp(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks)
        : ControlOf(shown, parent, dialogHooks) {
        constexpr int kVisibleItems = 30;
        qtWidget->setMaxVisibleItems(kVisibleItems);
        qtWidget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(qtWidget, &QComboBox::activated, qtWidget, [this](int item) {
            if (hostWidget.GetSelected() == item) return;
            hostWidget.Choose(item);
            hooks.used();
        });
    }

  private:
    void ShowContent() override {
        int overhang = 0;
        qtWidget->clear();
        const auto* const items = static_cast<QStandardItemModel*>(qtWidget->model());
        for (int32 i = 0; i < hostWidget.CountItems(); ++i) {
            const QString text = TextFromHost(hostWidget.GetItem(i));
            qtWidget->addItem(text);
            items->item(i)->setEnabled(hostWidget.IsItemEnabled(i));
            const QFontMetrics metrics = qtWidget->fontMetrics();
            overhang = std::max(
                overhang, metrics.horizontalAdvance(text) - metrics.boundingRect(text).width());
        }
        // The size hint goes by the ink, the text is cut by its advance.
        qtWidget->setMinimumWidth(qtWidget->sizeHint().width() + overhang);
        qtWidget->setCurrentIndex(hostWidget.GetSelected());
    }
};

class Button final : public ControlOf<QPushButton> {
  public:
    Button(host::ShownWidget& shown, QWidget* parent, const ControlHooks& dialogHooks)
        : ControlOf(shown, parent, dialogHooks) {
        QObject::connect(qtWidget, &QPushButton::clicked, qtWidget, [this] {
            hostWidget.Press();
            hooks.pressed(hostWidget);
        });
    }

  private:
    void ShowContent() override {
        constexpr int kPadding = 10;
        qtWidget->setText(TextFromHost(hostWidget.GetText()));
        qtWidget->setMinimumWidth(qtWidget->sizeHint().width() + 2 * kPadding);
    }
};

}  // namespace

void Control::Show() {
    const QSignalBlocker silence(view);
    view->setEnabled(hostWidget.IsEnabled());
    ShowContent();
}

std::unique_ptr<Control> MakeControl(host::ShownWidget& shown, QWidget* parent,
                                     const ControlHooks& hooks, const QString& locale) {
    std::unique_ptr<Control> control;
    switch (shown.GetKind()) {
        case host::WidgetKind::kLabel:
            control = std::make_unique<Label>(shown, parent, hooks);
            break;
        case host::WidgetKind::kEditBox:
            control = std::make_unique<EditBox>(shown, parent, hooks, locale);
            break;
        case host::WidgetKind::kResultBox:
            control = std::make_unique<ResultBox>(shown, parent, hooks, locale);
            break;
        case host::WidgetKind::kDescription:
            control = std::make_unique<Description>(shown, parent, hooks);
            break;
        case host::WidgetKind::kCheckBox:
            control = std::make_unique<CheckBox>(shown, parent, hooks);
            break;
        case host::WidgetKind::kPopUp:
            control = std::make_unique<PopUp>(shown, parent, hooks);
            break;
        case host::WidgetKind::kButton:
            control = std::make_unique<Button>(shown, parent, hooks);
            break;
    }
    control->Show();
    return control;
}

}  // namespace linewright
