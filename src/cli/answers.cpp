// `answer KIND ...`: queues the answer for the next dialog or message box of that kind.
#include "cli/commands.h"
#include "cli/script_error.h"

#include <cstdint>
#include <optional>

namespace tavrin::cli {

namespace {

// A bare `cancel` cancels; anything else (a quoted "cancel" too) is the answer.
bool isCancel(const Token& t) { return !t.quoted && t.text == "cancel"; }

std::optional<std::string> pathAnswer(Args& a) {
    const Token& t = a.next("a path or cancel");
    if (isCancel(t)) return std::nullopt;
    return t.text;
}

std::optional<int32_t> colorAnswer(Args& a) {
    if (!a.atEnd() && isCancel(a.peek())) {
        a.next("cancel");
        return std::nullopt;
    }
    return static_cast<int32_t>(a.integer("a colour", 0, 0xFFFFFF));
}

std::optional<platform::ScriptedHost::FontAnswer> fontAnswer(Args& a) {
    if (!a.atEnd() && isCancel(a.peek())) {
        a.next("cancel");
        return std::nullopt;
    }
    std::string name = a.text("a font name");
    double size = a.number("a font size");
    if (size <= 0) throw ScriptError("a font size must be above 0");
    return platform::ScriptedHost::FontAnswer{name, size};
}

} // namespace

void answerCommand(Session& s, Args& a) {
    platform::ScriptedHost& host = s.host();
    std::string kind =
        a.word("an answer kind", {"open", "save", "msgbox", "color", "font", "printer"});
    if (kind == "open") {
        auto path = pathAnswer(a);
        a.end();
        host.answerOpen(path);
    } else if (kind == "save") {
        auto path = pathAnswer(a);
        a.end();
        host.answerSave(path);
    } else if (kind == "msgbox") {
        std::string w = a.word("a message box answer", {"yes", "no", "ok"});
        a.end();
        host.answerMsgBox(w == "yes"  ? platform::kMsgYes
                          : w == "no" ? platform::kMsgNo
                                      : platform::kMsgOk);
    } else if (kind == "color") {
        auto color = colorAnswer(a);
        a.end();
        host.answerColor(color);
    } else if (kind == "font") {
        auto font = fontAnswer(a);
        a.end();
        host.answerFont(font);
    } else {
        bool ok = a.word("a printer answer", {"ok", "cancel"}) == "ok";
        a.end();
        host.answerPrinter(ok);
    }
}

} // namespace tavrin::cli
