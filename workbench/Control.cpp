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
        : Control(shown, new QtWidget(parent)), qtWidget(static_cast<QtWidget*>(View())) {}

  protected:
    QtWidget* const qtWidget;
};

class Label final : public ControlOf<QLabel> {
  public:
    using ControlOf::ControlOf;

  private:
    void ShowContent() override { qtWidget->setText(TextFromHost(hostWidget.GetText())); }
};

/** In data every character counts: a zero is not to be taken for a letter. */
QFont DataFont() {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

class EditBox final : public ControlOf<QLineEdit> {
  public:
    EditBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        qtWidget->setFont(DataFont());
        // What the box takes is for the host to say, and to beep about.
        QObject::connect(qtWidget, &QLineEdit::textEdited, qtWidget,
                         [this](const QString& text) { hostWidget.Type(TextForHost(text)); });
    }

  private:
    void ShowContent() override {
        const QString text = TextFromHost(hostWidget.GetText());
        if (text == qtWidget->text()) return;
        // What was refused stood before the cursor, which stays behind what was not.
        const auto behind = qtWidget->text().size() - qtWidget->cursorPosition();
        qtWidget->setText(text);
        qtWidget->setCursorPosition(static_cast<int>(qMax<qsizetype>(0, text.size() - behind)));
    }
};

class ResultBox final : public ControlOf<QLineEdit> {
  public:
    ResultBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        qtWidget->setFont(DataFont());
        qtWidget->setReadOnly(true);
    }

  private:
    void ShowContent() override {
        qtWidget->setText(TextFromHost(hostWidget.GetText()));
        qtWidget->setCursorPosition(0);
    }
};

class Description final : public ControlOf<QPlainTextEdit> {
  public:
    Description(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        constexpr int kColumns = 80;
        constexpr int kLines = 18;
        constexpr int kMargin = 8;
        qtWidget->setReadOnly(true);
        qtWidget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        qtWidget->setTabChangesFocus(true);
        qtWidget->document()->setDocumentMargin(kMargin);
        const QFontMetrics metrics = qtWidget->fontMetrics();
        qtWidget->setMinimumSize(kColumns * metrics.averageCharWidth(),
                                 kLines * metrics.lineSpacing());
    }

  private:
    void ShowContent() override { qtWidget->setPlainText(TextFromHost(hostWidget.GetText())); }
};

class CheckBox final : public ControlOf<QCheckBox> {
  public:
    CheckBox(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        QObject::connect(qtWidget, &QCheckBox::clicked, qtWidget,
                         [this](bool on) { hostWidget.Tick(on); });
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
    PopUp(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        constexpr int kVisibleItems = 30;
        qtWidget->setMaxVisibleItems(kVisibleItems);
        qtWidget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(qtWidget, &QComboBox::activated, qtWidget,
                         [this](int item) { hostWidget.Choose(item); });
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
    Button(host::ShownWidget& shown, QWidget* parent) : ControlOf(shown, parent) {
        QObject::connect(qtWidget, &QPushButton::clicked, qtWidget, [this] { hostWidget.Press(); });
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
