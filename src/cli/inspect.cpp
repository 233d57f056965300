// `print` and `bounds`: one line each, computed whole before anything is written, so an
// editor error on the way prints nothing.
#include "cli/commands.h"
#include "cli/fields.h"
#include "cli/script_error.h"
#include "cli/targets.h"
#include "platform/variant.h"

namespace tavrin::cli {

namespace {

std::string printPoint(const std::string& path, platform::Control& c, Args& a) {
    auto* box = dynamic_cast<platform::PictureBox*>(&c);
    if (!box) throw ScriptError(path + ": " + c.name() + " is not a picture box");
    double x = a.number("x");
    double y = a.number("y");
    a.end();
    return path + "(" + vb::formatNumber(x) + "," + vb::formatNumber(y) +
           ")=" + std::to_string(box->Point(x, y));
}

} // namespace

void printCommand(Session& s, Args& a) {
    std::string name = a.word("a field or CONTROL.PROPERTY");
    std::string line;
    if (const Field* f = findField(name)) {
        Index i = readIndex(*f, a);
        a.end();
        line = elementName(*f, i) + "=" + f->print(s.mainForm(), i);
    } else if (name.find('.') == std::string::npos) {
        throw ScriptError("no field " + name);
    } else if (Target t = resolve(s, name); t.rest == "Point") {
        line = printPoint(name, t.control, a);
    } else {
        a.end();
        line = name + "=" + findProperty(s, name).text();
    }
    s.out() << line << '\n';
}

void boundsCommand(Session& s, Args& a) {
    std::string name = a.word("an array");
    a.end();
    const Field* f = findField(name);
    if (!f) throw ScriptError("no field " + name);
    if (f->rank == 0) throw ScriptError(name + " is not an array");
    std::string range = f->bounds(s.mainForm());
    s.out() << name << '=' << range << '\n';
}

} // namespace tavrin::cli
