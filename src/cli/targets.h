#pragma once
// Names of forms, controls and properties as a script writes them: `SSPanel3`,
// `frmSplash.List1`, `tbToolBar.Open`, `StatusBar1.Panels(1).Text`, `frmMain.Caption`.
#include "cli/script_error.h"
#include "cli/session.h"
#include "platform/form.h"

#include <string>

namespace tavrin::cli {

// nullptr when no form of that name is loaded.
platform::Form* findForm(Session& s, const std::string& name);

struct Target {
    platform::Control& control; // a control, or a form itself
    std::string rest;           // what follows its name after a dot, or ""
};

// [FORM.]CONTROL[.REST] or FORM[.REST]; a bare name is a control of the main form.
// Throws ScriptError when the name is no form or control.
Target resolve(Session& s, const std::string& path);

// CONTROL.PROPERTY as above; throws ScriptError when the control has no such property.
const platform::PropBase& findProperty(Session& s, const std::string& path);

// The control of that name, of type T (what = "a text box"); throws ScriptError.
template <class T> T& controlOf(Session& s, const std::string& path, const char* what);

void requireNothingAfter(const Target& t, const std::string& path);

template <class T> T& controlOf(Session& s, const std::string& path, const char* what) {
    Target t = resolve(s, path);
    requireNothingAfter(t, path);
    auto* c = dynamic_cast<T*>(&t.control);
    if (!c) throw ScriptError(path + " is not " + what);
    return *c;
}

} // namespace tavrin::cli
