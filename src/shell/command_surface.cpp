// Applies the command tables to the controls of the main window.
#include "shell/command_tables.h"

#include "platform/vb_error.h"

#include <vector>

namespace tavrin {

namespace {

void setCaption(platform::Control& c, const std::string& caption) {
    if (auto* panel = dynamic_cast<platform::Panel*>(&c)) panel->Caption = caption;
    else if (auto* button = dynamic_cast<platform::CommandButton*>(&c)) button->Caption = caption;
    else if (auto* label = dynamic_cast<platform::Label*>(&c)) label->Caption = caption;
    else if (auto* box = dynamic_cast<platform::TextBox*>(&c)) box->Text = caption;
}

} // namespace

void FrmMain::buildCommandSurface() {
    // Menus: the level of each item says which of the items above it is its parent.
    std::vector<platform::MenuItem*> parents(3, nullptr);
    for (const shell::MenuSpec& m : shell::menuTable()) {
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

    for (const shell::ControlSpec& s : shell::controlTable()) {
        platform::Control* c = find(s.name);
        if (!c) throw std::logic_error(std::string("no control named ") + s.name);
        if (*s.container) c->Container = find(s.container);
        c->Move(s.left, s.top, s.width, s.height);
        if (*s.caption) setCaption(*c, s.caption);
        if (*s.toolTip)
            if (auto* button = dynamic_cast<platform::CommandButton*>(c)) button->ToolTipText = s.toolTip;
        c->Visible = s.visible;
        if (s.click) c->Click = [this, h = s.click] { (this->*h)(); };
    }

    for (const shell::ToolbarSpec& b : shell::toolbarTable())
        tbToolBar.Buttons.push_back({b.key, b.toolTip, 0});
}

} // namespace tavrin
