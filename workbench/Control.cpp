#include "workbench/Control.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <algorithm>

#include "workbench/Text.h"

namespace linewright {

namespace {

/** A control of one kind of Qt widget. */
template <class QtWidget>
class ControlOf : public Control {
  public:
    ControlOf(host::ShownWidget& shown, QWidget* parent)
        : Control(shown, new QtWidget(parent)), fWidget(static_cast<QtWidget*>(View())) {}

  protected:
    QtWidget* const fWidget;
};

class Label final : public ControlOf<QLabel> {
  public:
    using ControlOf::ControlOf;

  private:
    void ShowContent() override { fWidget->setText(TextFromHost(fShown.GetText())); }
};

/** In data every character counts: a zero is not to be taken for a letter. */
QFont DataFont() {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

class EditBox final : public ControlOf<QLineEdit> {
  public:
    EditBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        fWidget->setFont(DataFont());
        // What the box takes is for the host to say, and to beep about.
        QObject::connect(fWidget, &QLineEdit::textEdited, fWidget,
                         [this](const QString& text) { fShown.Type(TextForHost(text)); });
    }

  private:
    void ShowContent() override {
        const QString text = TextFromHost(fShown.GetText());
        if (text == fWidget->text()) return;
        // What was refused stood before the cursor, which stays behind what was not.
        const auto behind = fWidget->text().size() - fWidget->cursorPosition();
        fWidget->setText(text);
        fWidget->setCursorPosition(static_cast<int>(qMax<qsizetype>(0, text.size() - behind)));
    }
};

class ResultBox final : public ControlOf<QLineEdit> {
  public:
    ResultBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        fWidget->setFont(DataFont());
        fWidget->setReadOnly(true);
    }

  private:
    void ShowContent() override {
        fWidget->setText(TextFromHost(fShown.GetText()));
        fWidget->setCursorPosition(0);
    }
};

class Description final : public ControlOf<QPlainTextEdit> {
  public:
    Description(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        constexpr int kColumns = 80;
        constexpr int kLines = 18;
        constexpr int kMargin = 8;
        fWidget->setReadOnly(true);
        fWidget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        fWidget->setTabChangesFocus(true);
        fWidget->document()->setDocumentMargin(kMargin);
        const QFontMetrics metrics = fWidget->fontMetrics();
        fWidget->setMinimumSize(kColumns * metrics.averageCharWidth(),
                                kLines * metrics.lineSpacing());
    }

  private:
    void ShowContent() override { fWidget->setPlainText(TextFromHost(fShown.GetText())); }
};

class CheckBox final : public ControlOf<QCheckBox> {
  public:
    CheckBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        QObject::connect(fWidget, &QCheckBox::clicked, fWidget,
                         [this](bool on) { fShown.Tick(on); });
    }

  private:
    void ShowContent() override {
        fWidget->setText(TextFromHost(fShown.GetText()));
        fWidget->setCheckState(static_cast<Qt::CheckState>(fShown.GetState()));
        fWidget->setTristate(fShown.GetState() == Qt::PartiallyChecked);
    }
};

class PopUp final : public ControlOf<QComboBox> {
  public:
    PopUp(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        constexpr int kVisibleItems = 30;
        fWidget->setMaxVisibleItems(kVisibleItems);
        fWidget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(fWidget, &QComboBox::activated, fWidget,
                         [this](int item) { fShown.Choose(item); });
    }

  private:
    void ShowContent() override {
        int overhang = 0;
        fWidget->clear();
        const auto* const items = static_cast<QStandardItemModel*>(fWidget->model());
        for (int32 i = 0; i < fShown.CountItems(); ++i) {
            const QString text = TextFromHost(fShown.GetItem(i));
            fWidget->addItem(text);
            items->item(i)->setEnabled(fShown.IsItemEnabled(i));
            const QFontMetrics metrics = fWidget->fontMetrics();
            overhang = std::max(
                overhang, metrics.horizontalAdvance(text) - metrics.boundingRect(text).width());
        }
        // The size hint goes by the ink, the text is cut by its advance.
        fWidget->setMinimumWidth(fWidget->sizeHint().width() + overhang);
        fWidget->setCurrentIndex(fShown.GetSelected());
    }
};

class Button final : public ControlOf<QPushButton> {
  public:
    Button(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        QObject::connect(fWidget, &QPushButton::clicked, fWidget, [this] { fShown.Press(); });
    }

  private:
    void ShowContent() override {
        constexpr int kPadding = 10;
        fWidget->setText(TextFromHost(fShown.GetText()));
        fWidget->setMinimumWidth(fWidget->sizeHint().width() + 2 * kPadding);
    }
};

}  // namespace

void Control::Show() {
    const QSignalBlocker silence(fView);
    fView->setEnabled(fShown.IsEnabled());
    ShowContent();
}

std::unique_ptr<Control> MakeControl(host::ShownWidget& shown, QWidget* parent) {
    std::unique_ptr<Control> control;
    switch (shown.GetKind()) {
        case host::WidgetKind::kLabel: control = std::make_unique<Label>(shown, parent); break;
        case host::WidgetKind::kEditBox: control = std::make_unique<EditBox>(shown, parent); break;
        case host::WidgetKind::kResultBox:
            control = std::make_unique<ResultBox>(shown, parent);
            break;
        case host::WidgetKind::kDescription:
            control = std::make_unique<Description>(shown, parent);
            break;
        case host::WidgetKind::kCheckBox:
            control = std::make_unique<CheckBox>(shown, parent);
            break;
        case host::WidgetKind::kPopUp: control = std::make_unique<PopUp>(shown, parent); break;
        case host::WidgetKind::kButton: control = std::make_unique<Button>(shown, parent); break;
    }
    control->Show();
    return control;
}

}  // namespace linewright
