#pragma once
// The panels on a form's surface as a user meets them. Controls stack in the order the
// form made them, later ones on top; a panel that a command shows comes to the front, so
// that it is never hidden behind another. A drag of a control (Control::Drag) moves its
// outline with the pointer and, at the release, drops it on the control under the
// pointer, or on the form where no control is.
#include "platform/form.h"

#include <QObject>
#include <QPoint>

#include <map>
#include <vector>

class QWidget;

namespace platform::qt {

class FormWindow;

class FloatingPanels : public QObject {
public:
    // Made once the window's widgets stand; a child of the window.
    FloatingPanels(FormWindow& window, QWidget* surface);
    ~FloatingPanels() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dragShown(Control& source, int action);
    void drop(QPoint global);
    // The control whose widget is at that point of the surface, or the form.
    Control& controlAt(QPoint onSurface, QPoint& local) const;

    FormWindow& window_;
    Form& form_;
    QWidget* surface_;
    QWidget* outline_;
    std::map<const QWidget*, Control*> controls_;
    std::vector<std::pair<Control*, int>> observers_;
    Control* dragged_ = nullptr;
    QPoint grab_;      // the pointer's place in the dragged control's outline
    QPoint lastPress_; // global: where the press that may begin a drag went down
};

} // namespace platform::qt
