#pragma once
// One run of the editor without a window: the scripted host, the start form and the
// main form, and the output every command prints to.
#include "editor/frm_main.h"
#include "platform/scripted_host.h"
#include "shell/frm_splash.h"

#include <memory>
#include <ostream>
#include <string>

namespace tavrin::cli {

class Session {
public:
    Session(std::string appDir, std::ostream& out);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    // Starts as a user does: the start form loads, then its "OK" shows the main form.
    void start();

    platform::ScriptedHost& host() { return host_; }
    std::ostream& out() { return out_; }
    FrmMain& mainForm();
    FrmSplash& splash();

private:
    void showMain();

    platform::ScriptedHost host_;
    std::ostream& out_;
    std::unique_ptr<FrmSplash> splash_;
    std::unique_ptr<FrmMain> main_;
};

} // namespace tavrin::cli
