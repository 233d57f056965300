#pragma once
// The text box: a line edit while the user edits it, and a field the program paints
// while it only shows what the program set.
#include "platform/controls.h"

#include <QHash>
#include <QLineEdit>
#include <QStaticText>

namespace platform::qt {

class TextBoxWidget : public QLineEdit {
public:
    TextBoxWidget(TextBox& box, QWidget* parent);

    // Shows the control's text. Without the focus it is only painted: QLineEdit lays out
    // every new text when it is set and again when it is painted, and the X and Y boxes
    // take a new one at most moves of the mouse. The line edit takes the text when the
    // user comes to edit it.
    void showText(const QString& text);
    // What the box shows, whichever way it shows it.
    QString shownText() const { return painted_ ? shown_ : text(); }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintShownText(QPainter& p);
    void paintSunkenBorder(QPainter& p);

    TextBox& box_;
    QString shown_;
    bool painted_ = false;
    // Laid-out texts by text: a box shows a few hundred coordinates over and over.
    QHash<QString, QStaticText> layouts_;
};

} // namespace platform::qt
