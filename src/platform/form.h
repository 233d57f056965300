#pragma once
// A form: a window whose controls stand at absolute positions in twips.
#include "platform/controls.h"

#include <functional>
#include <string>
#include <vector>

namespace platform {

class Form : public Control {
public:
    explicit Form(std::string name);

    Prop<std::string> Caption{this, "Caption"};
    Prop<int> WindowState{this, "WindowState", 0};   // 2: maximised
    Prop<int> MousePointer{this, "MousePointer", 0}; // 11: hourglass
    Prop<int> BackColor{this, "BackColor",
                        static_cast<int>(0x8000000Fu)}; // the system's face colour

    // Told by the view when the window was resized or came to the front.
    std::function<void()> Resize;
    std::function<void()> GotFocus;

    // Every control of the form, in the order they were made.
    const std::vector<Control*>& controls() const { return controls_; }
    Control* find(const std::string& name) const;

    // The control being dragged (Control::Drag), or nullptr.
    Control* dragSource() const { return dragSource_; }
    // The dragged control let go over target at X, Y (target's units): the drag ends and
    // the target's DragDrop runs, if it has one. Without a drag nothing happens.
    void dropOn(Control& target, float X, float Y);
    // Told when a drag begins (1), ends with a drop where the pointer is (2) or is
    // cancelled (0): what a view needs for the outline and the drop.
    std::function<void(Control& source, int action)> DragShown;

private:
    friend class Control;
    void drag(Control& control, int action);
    std::vector<Control*> controls_;
    Control* dragSource_ = nullptr;
};

} // namespace platform
