#pragma once
// The three-dimensional command button: its picture, its caption under the picture or
// alone, its tool tip. A caption too wide for the button is drawn in a smaller type
// until it fits, so that a small button stays readable.
#include "platform/controls.h"

#include <QIcon>
#include <QToolButton>

#include <string>

namespace platform::qt {

class ButtonWidget : public QToolButton {
public:
    ButtonWidget(CommandButton& button, QWidget* parent);
    // Takes the control's caption, picture and tool tip.
    void follow();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitCaption();
    CommandButton& button_;
};

// One of the window's images by its name (a null icon for an empty or unknown name).
QIcon pictureIcon(const std::string& name);

} // namespace platform::qt
