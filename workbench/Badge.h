#pragma once

#include <QLabel>

#include "workbench/Colours.h"

namespace linewright {

/** A few words in a frame of their tone's colour; those that find no room are in the tool tip. */
class Badge final : public QLabel {
  public:
    explicit Badge(QWidget* parent);

    /** `spoken` is what is read aloud in place of the words. */
    void Show(Tone shownTone, const QString& words, const QString& spoken);
    Tone ShownTone() const { return tone; }
    /** All words, whether they find room or not. */
    const QString& Words() const { return words; }

    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Fit();
    void Colour();

    Tone tone = Tone::kNeutral;
    QString words;
};

}  // namespace linewright
