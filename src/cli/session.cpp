#include "cli/session.h"

#include "cli/script_error.h"
#include "platform/variant.h"

namespace tavrin::cli {

namespace {

std::string answerWord(int answer) {
    switch (answer) {
    case platform::kMsgOk:
        return "ok";
    case platform::kMsgYes:
        return "yes";
    case platform::kMsgNo:
        return "no";
    default:
        return std::to_string(answer);
    }
}

} // namespace

Session::Session(std::string appDir, std::ostream& out) : host_(std::move(appDir)), out_(out) {
    host_.onMsgBox = [this](const platform::ScriptedHost::Shown& shown) {
        out_ << "msgbox " << vb::quote(shown.text) << " style=" << shown.style << " -> "
             << answerWord(shown.answer) << '\n';
    };
    host_.onDialog = [this](const std::string& kind, const std::string& title,
                            const std::optional<std::string>& result) {
        out_ << "dialog " << kind << ' ' << vb::quote(title) << " -> "
             << (result ? *result : std::string("cancel")) << '\n';
    };
    host_.onPrint = [this](const platform::Page& page) {
        out_ << "printed " << page.form << ' ' << vb::formatNumber(page.width) << ' '
             << vb::formatNumber(page.height) << '\n';
        for (const platform::PageItem& c : page.items) {
            out_ << "printed " << page.form << '.' << c.control->name();
            for (double v : {c.left, c.top, c.width, c.height})
                out_ << ' ' << vb::formatNumber(v);
            if (!c.picture) out_ << ' ' << vb::quote(c.text);
            out_ << '\n';
        }
    };
}

Session::~Session() = default;

void Session::start() {
    splash_ = std::make_unique<FrmSplash>(host_, [this] { showMain(); });
    splash_->Form_Load();
    host_.ShowForm(*splash_);
    splash_->SSCommand1_Click();
}

// The splash's "OK" may be clicked again from a script: like the program, it then makes
// a fresh main form in place of the old one.
void Session::showMain() {
    main_ = std::make_unique<FrmMain>(host_);
    main_->Form_Load();
    host_.ShowForm(*main_);
}

FrmMain& Session::mainForm() {
    if (!main_) throw ScriptError("the main form is not loaded");
    return *main_;
}

FrmSplash& Session::splash() {
    if (!splash_) throw ScriptError("the start form is not loaded");
    return *splash_;
}

} // namespace tavrin::cli
