#pragma once
// The window's stock controls as plain data: panels, buttons, labels, text boxes, menu
// items, list box, slider, status bar, progress bar, tool bar, common dialog. The
// editor assigns their properties; a view (Qt, or nothing in the headless driver)
// observes them and calls back into the editor when the user acts.
#include "platform/prop.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace platform {

class Form;

// The mouse on a control, as the form's events give it: Button 1 left, 2 right, 4 middle
// (in a move, the buttons held, summed); Shift 1 Shift, 2 Ctrl, 4 Alt, summed; X and Y in
// the control's own units. Set by the editor; the view calls them.
using MouseHandler = std::function<void(int16_t Button, int16_t Shift, float X, float Y)>;

enum class ControlKind {
    Form,
    PictureBox,
    Panel,
    Button,
    Label,
    TextBox,
    ListBox,
    Slider,
    StatusBar,
    ProgressBar,
    MenuItem,
    Toolbar,
    CommonDialog
};

class Control {
    // Declared first: the properties below register themselves here as they are made.
    std::vector<PropBase*> props_;

public:
    // What changed: a property, or (prop == nullptr) the control's content, which a
    // Refresh or a change of pixels reports.
    using Observer = std::function<void(const PropBase* prop)>;

    Control(Form* form, std::string name, ControlKind kind);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    const std::string& name() const { return name_; }
    ControlKind kind() const { return kind_; }
    Form* form() const { return form_; }

    // The panel it stands in, or nullptr for the form itself.
    Control* Container = nullptr;

    TwipsProp Left{this, "Left"};
    TwipsProp Top{this, "Top"};
    TwipsProp Width{this, "Width"};
    TwipsProp Height{this, "Height"};
    Prop<bool> Visible{this, "Visible", true};
    Prop<bool> Enabled{this, "Enabled", true};

    // What a click on it runs; set by the shell's tables.
    std::function<void()> Click;
    // DragDrop(Source, X, Y): a dragged control was let go over this one, X and Y in this
    // one's units. Set by the editor; a control without it ignores drops.
    std::function<void(Control& Source, float X, float Y)> DragDrop;
    // The platform's drag of this control: 1 begins it (a view moves an outline of it with
    // the pointer), 2 ends it with a drop where the pointer is, 0 cancels it.
    void Drag(int action);

    void Move(double left, double top, double width, double height);
    void Refresh() { notify(nullptr); }

    int observe(Observer fn);
    void unobserve(int id);
    void notify(const PropBase* prop);

    const std::vector<PropBase*>& properties() const { return props_; }
    const PropBase* property(const std::string& name) const;

    // Called for every TwipsProp assignment before it is stored: returns the value to
    // keep (whole pixels) or raises InvalidPropertyValue / OutOfMemory.
    virtual double checkGeometry(const TwipsProp& prop, double twips);
    virtual void geometryChanged(const TwipsProp&) {}

private:
    friend class PropBase;
    std::string name_;
    ControlKind kind_;
    Form* form_;
    std::vector<std::pair<int, Observer>> observers_;
    int nextObserver_ = 1;
};

class Panel : public Control { // a three-dimensional panel with a caption
public:
    Panel(Form* form, std::string name) : Control(form, std::move(name), ControlKind::Panel) {}
    Prop<std::string> Caption{this, "Caption"};
    // X and Y in twips from the panel's top left corner.
    MouseHandler MouseDown, MouseUp;
};

class CommandButton : public Control { // a three-dimensional button with caption, icon, tool tip
public:
    CommandButton(Form* form, std::string name)
        : Control(form, std::move(name), ControlKind::Button) {}
    Prop<std::string> Caption{this, "Caption"};
    Prop<std::string> ToolTipText{this, "ToolTipText"};
    Prop<std::string> Picture{this, "Picture"}; // the name of its image, or empty
};

class Label : public Control {
public:
    Label(Form* form, std::string name) : Control(form, std::move(name), ControlKind::Label) {}
    Prop<std::string> Caption{this, "Caption"};
    Prop<double> FontSize{this, "FontSize", 8.0};
    Prop<bool> FontBold{this, "FontBold", false};
};

class TextBox : public Control {
public:
    TextBox(Form* form, std::string name) : Control(form, std::move(name), ControlKind::TextBox) {}
    Prop<std::string> Text{this, "Text"};
    // KeyPress(KeyAscii): the view calls it for each character typed.
    std::function<void(int16_t& keyAscii)> KeyPress;
};

class ListBox : public Control {
public:
    ListBox(Form* form, std::string name) : Control(form, std::move(name), ControlKind::ListBox) {}
    void AddItem(const std::string& item);
    const std::vector<std::string>& items() const { return items_; }
    Prop<int> ListCount{this, "ListCount", 0};

private:
    std::vector<std::string> items_;
};

class Slider : public Control {
public:
    Slider(Form* form, std::string name) : Control(form, std::move(name), ControlKind::Slider) {}
    Prop<int> Min{this, "Min", 0};
    Prop<int> Max{this, "Max", 10};
    Prop<int> Value{this, "Value", 0};
    std::function<void()> Change;
};

class StatusBar : public Control {
public:
    StatusBar(Form* form, std::string name)
        : Control(form, std::move(name), ControlKind::StatusBar) {}
    struct PanelText {
        Prop<std::string> Text;
    };
    // Panels(1) is the only panel the editor writes.
    PanelText& Panels(int index);

private:
    PanelText panel1_{{this, "Panels(1).Text"}};
};

class ProgressBar : public Control {
public:
    ProgressBar(Form* form, std::string name)
        : Control(form, std::move(name), ControlKind::ProgressBar) {}
    Prop<double> Min{this, "Min", 0};
    Prop<double> Max{this, "Max", 100};
    Prop<double> Value{this, "Value", 0};
};

class MenuItem : public Control {
public:
    MenuItem(Form* form, std::string name)
        : Control(form, std::move(name), ControlKind::MenuItem) {}
    Prop<std::string> Caption{this, "Caption"};
    Prop<bool> Checked{this, "Checked", false};
    std::string Shortcut; // "Ctrl+Z", or empty
    MenuItem* Parent = nullptr;
    bool isSeparator() const { return Caption.get() == "-"; }
};

class Toolbar : public Control {
public:
    Toolbar(Form* form, std::string name) : Control(form, std::move(name), ControlKind::Toolbar) {}
    struct Button {
        std::string Key; // empty for a separator
        std::string ToolTipText;
        int Value = 0;     // 1 pressed
        std::string Image; // the name of its image in the window's image list
    };
    std::vector<Button> Buttons;
    Button* find(const std::string& key);
    void setValue(const std::string& key, int value);
    // ButtonClick(Key): set by the shell.
    std::function<void(const std::string& key)> ButtonClick;
};

// The window has one shared dialog control, so whatever a command sets on it is still
// there for the next command.
class CommonDialog : public Control {
public:
    CommonDialog(Form* form, std::string name)
        : Control(form, std::move(name), ControlKind::CommonDialog) {}
    Prop<std::string> FileName{this, "FileName"};
    Prop<std::string> DialogTitle{this, "DialogTitle"};
    Prop<std::string> KindText{this, "KindText"}; // the kind of file named in the filter
    Prop<std::string> Pattern{this, "Pattern"};   // "*.PCX"
    Prop<int> Color{this, "Color", 0};
    Prop<int> Flags{this, "Flags", 0};
    Prop<std::string> FontName{this, "FontName"};
    Prop<double> FontSize{this, "FontSize", 8.0};
};

} // namespace platform
