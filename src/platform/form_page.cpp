#include "platform/form_page.h"

#include "platform/picture_box.h"

namespace platform {

namespace {

// On paper: visible, and so is every panel it stands in; menus and the dialog never are.
bool onPaper(const Control& c) {
    if (c.kind() == ControlKind::MenuItem || c.kind() == ControlKind::CommonDialog) return false;
    for (const Control* at = &c; at; at = at->Container)
        if (!at->Visible) return false;
    return true;
}

std::string textOf(const Control& c) {
    if (const auto* label = dynamic_cast<const Label*>(&c)) return label->Caption;
    if (const auto* panel = dynamic_cast<const Panel*>(&c)) return panel->Caption;
    if (const auto* button = dynamic_cast<const CommandButton*>(&c)) return button->Caption;
    if (const auto* box = dynamic_cast<const TextBox*>(&c)) return box->Text;
    return "";
}

} // namespace

Page pageOf(const Form& form) {
    Page page{form.name(), form.Width, form.Height, form.BackColor, {}};
    for (const Control* c : form.controls()) {
        if (!onPaper(*c)) continue;
        PageItem item{c, c->Left, c->Top, c->Width, c->Height, textOf(*c), {}};
        for (const Control* at = c->Container; at; at = at->Container) {
            item.left += at->Left;
            item.top += at->Top;
        }
        if (const auto* box = dynamic_cast<const PictureBox*>(c)) item.picture = box->Image();
        page.items.push_back(std::move(item));
    }
    return page;
}

} // namespace platform
