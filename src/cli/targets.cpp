#include "cli/targets.h"

#include "cli/script_error.h"
#include "shell/frm_print.h"

#include <functional>
#include <vector>

namespace tavrin::cli {

namespace {

struct FormEntry {
    const char* name;
    std::function<platform::Form*(Session&)> get;
};

// The forms a name may start with. Naming frmPrint loads it, as any use of it does.
const std::vector<FormEntry>& forms() {
    static const std::vector<FormEntry> table = {
        {"frmMain", [](Session& s) -> platform::Form* { return &s.mainForm(); }},
        {"frmSplash", [](Session& s) -> platform::Form* { return &s.splash(); }},
        {"frmPrint", [](Session& s) -> platform::Form* { return &s.mainForm().frmPrint(); }},
    };
    return table;
}

std::pair<std::string, std::string> splitFirst(const std::string& path) {
    std::size_t dot = path.find('.');
    if (dot == std::string::npos) return {path, ""};
    return {path.substr(0, dot), path.substr(dot + 1)};
}

} // namespace

platform::Form* findForm(Session& s, const std::string& name) {
    for (const FormEntry& f : forms())
        if (name == f.name) return f.get(s);
    return nullptr;
}

Target resolve(Session& s, const std::string& path) {
    auto [head, rest] = splitFirst(path);
    if (platform::Form* form = findForm(s, head)) {
        auto [name, after] = splitFirst(rest);
        if (platform::Control* c = name.empty() ? nullptr : form->find(name)) return {*c, after};
        return {*form, rest};
    }
    if (platform::Control* c = s.mainForm().find(head)) return {*c, rest};
    throw ScriptError("no control or form named " + head);
}

const platform::PropBase& findProperty(Session& s, const std::string& path) {
    Target t = resolve(s, path);
    if (t.rest.empty()) throw ScriptError(path + " names no property");
    const platform::PropBase* p = t.control.property(t.rest);
    if (!p) throw ScriptError(t.control.name() + " has no property " + t.rest);
    return *p;
}

void requireNothingAfter(const Target& t, const std::string& path) {
    if (!t.rest.empty())
        throw ScriptError(path + ": " + t.control.name() + " has no part " + t.rest);
}

} // namespace tavrin::cli
