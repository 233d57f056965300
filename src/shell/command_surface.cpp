// Lays out the main window from the command tables and connects every event of its
// controls to the form's handler: the one place where the window is wired.
#include "shell/command_tables.h"

#include "editor/frm_main.h"

#include "platform/vb_error.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tavrin {

namespace {

void setCaption(platform::Control& c, const std::string& caption) {
    if (auto* panel = dynamic_cast<platform::Panel*>(&c))
        panel->Caption = caption;
    else if (auto* button = dynamic_cast<platform::CommandButton*>(&c))
        button->Caption = caption;
    else if (auto* label = dynamic_cast<platform::Label*>(&c))
        label->Caption = caption;
    else if (auto* box = dynamic_cast<platform::TextBox*>(&c))
        box->Text = caption;
}

void applyPictures(FrmMain& frm) {
    const std::string toolbar = frm.tbToolBar.name() + ".";
    for (const shell::PictureRow& p : shell::pictureTable()) {
        const std::string name = p.control;
        platform::Toolbar::Button* key =
            name.rfind(toolbar, 0) == 0 ? frm.tbToolBar.find(name.substr(toolbar.size())) : nullptr;
        auto* button = dynamic_cast<platform::CommandButton*>(frm.find(name));
        if (key)
            key->Image = p.picture;
        else if (button)
            button->Picture = p.picture;
        else
            throw std::logic_error("no button named " + name);
    }
}

} // namespace

void FrmMain::buildCommandSurface() {
    // The tint samples are drawn into their boxes before the boxes take their places.
    Slider1.Max = 5;
    Slider1.Value = 1;
    makeTintSamples();

    // Menus: the level of each item says which of the items above it is its parent.
    std::vector<platform::MenuItem*> parents(3, nullptr);
    for (const shell::MenuRow& m : shell::menuTable()) {
        platform::MenuItem& item = this->*m.item;
        item.Caption = m.caption;
        item.Shortcut = m.shortcut;
        item.Checked = m.checked;
        item.Visible = m.visible;
        item.Enabled = m.enabled;
        item.Parent = m.level > 0 ? parents[static_cast<std::size_t>(m.level - 1)] : nullptr;
        parents[static_cast<std::size_t>(m.level)] = &item;
        if (m.handler) item.Click = [this, h = m.handler] { (this->*h)(); };
    }

    for (const shell::ControlRow& s : shell::controlTable()) {
        platform::Control* c = find(s.name);
        if (!c) throw std::logic_error(std::string("no control named ") + s.name);
        if (*s.container) c->Container = find(s.container);
        c->Move(s.left, s.top, s.width, s.height);
        if (*s.caption) setCaption(*c, s.caption);
        if (*s.toolTip)
            if (auto* button = dynamic_cast<platform::CommandButton*>(c))
                button->ToolTipText = s.toolTip;
        c->Visible = s.visible;
        if (s.click) c->Click = [this, h = s.click] { (this->*h)(); };
    }

    for (const shell::ToolbarRow& b : shell::toolbarTable())
        tbToolBar.Buttons.push_back({b.key, b.toolTip, 0, ""});
    tbToolBar.ButtonClick = [this](const std::string& key) { tbToolBar_ButtonClick(key); };
    applyPictures(*this);

    // The events that carry arguments, which the tables (clicks only) can't hold.
    Resize = [this] { Form_Resize(); };
    GotFocus = [this] { Form_GotFocus(); };
    Picture7.MouseDown = [this](int16_t b, int16_t s, float x, float y) {
        Picture7_MouseDown(b, s, x, y);
    };
    Picture7.MouseMove = [this](int16_t b, int16_t s, float x, float y) {
        Picture7_MouseMove(b, s, x, y);
    };
    Picture7.MouseUp = [this](int16_t b, int16_t s, float x, float y) {
        Picture7_MouseUp(b, s, x, y);
    };
    Picture2.MouseDown = [this](int16_t b, int16_t s, float x, float y) {
        Picture2_MouseDown(b, s, x, y);
    };
    Picture2.MouseUp = [this](int16_t b, int16_t s, float x, float y) {
        Picture2_MouseUp(b, s, x, y);
    };
    Slider1.Change = [this] { Slider1_Change(); };
    Text7.KeyPress = [this](int16_t& key) { Text7_KeyPress(key); };
    wireBarDrag();
}

} // namespace tavrin
