// What a user does with a click, the keyboard and the slider, and `set`.
#include "cli/commands.h"
#include "cli/fields.h"
#include "cli/fire.h"
#include "cli/procedures.h"
#include "cli/script_error.h"
#include "cli/targets.h"

#include <algorithm>
#include <climits>

namespace tavrin::cli {

// Hidden and disabled controls run their handler too, so that every handler is reachable.
void clickCommand(Session& s, Args& a) {
    std::string path = a.word("a control");
    a.end();
    Target t = resolve(s, path);
    if (auto* bar = dynamic_cast<platform::Toolbar*>(&t.control); bar && !t.rest.empty()) {
        if (!bar->find(t.rest)) throw ScriptError(bar->name() + " has no button " + t.rest);
        std::string key = t.rest;
        fire(bar->ButtonClick, key);
        return;
    }
    requireNothingAfter(t, path);
    fire(t.control.Click);
}

void callCommand(Session& s, Args& a) {
    std::string name = a.word("a procedure");
    a.end();
    const Procedure* p = findProcedure(name);
    if (!p) throw ScriptError("no procedure " + name);
    p->run(s.mainForm());
}

void typeCommand(Session& s, Args& a) {
    auto& box = controlOf<platform::TextBox>(s, a.word("a text box"), "a text box");
    std::string text = a.text("the text");
    a.end();
    box.Text = text;
}

// The box's KeyPress sees the key first and may change or swallow it (code 0); what it
// lets through is typed at the end of the text, where `type` left the caret.
void keyCommand(Session& s, Args& a) {
    auto& box = controlOf<platform::TextBox>(s, a.word("a text box"), "a text box");
    auto key = static_cast<int16_t>(a.integer("a character code", 0, 255));
    a.end();
    fire(box.KeyPress, key);
    std::string text = box.Text;
    if (key == 8 && !text.empty())
        text.pop_back();
    else if (key >= 32 && key <= 255)
        text += static_cast<char>(key);
    else
        return;
    box.Text = text;
}

// A user can't move the slider past its ends, and a move that ends where it started
// changes nothing.
void sliderCommand(Session& s, Args& a) {
    auto value = static_cast<int>(a.integer("a slider value", INT32_MIN, INT32_MAX));
    a.end();
    platform::Slider& slider = s.mainForm().Slider1;
    value = std::clamp(value, std::min<int>(slider.Min, slider.Max),
                       std::max<int>(slider.Min, slider.Max));
    if (value == slider.Value) return;
    slider.Value = value;
    fire(slider.Change);
}

void setCommand(Session& s, Args& a) {
    std::string name = a.word("a field");
    const Field* f = findField(name);
    if (!f) throw ScriptError("no field " + name);
    if (!f->set) throw ScriptError(name + " can't be set: its elements are records");
    Index i = readIndex(*f, a);
    const Token& value = a.next("a value");
    a.end();
    f->set(s.mainForm(), i, value);
}

} // namespace tavrin::cli
