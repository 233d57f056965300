#include "platform/scripted_host.h"

#include "platform/bmp_format.h"
#include "platform/controls.h"
#include "platform/vb_files.h"

namespace platform {

ScriptedHost::ScriptedHost(std::string appPath) : appPath_(std::move(appPath)) {}

int ScriptedHost::MsgBox(const std::string& text, int style) {
    int answer = kMsgOk;
    if (!msgs_.empty()) {
        answer = msgs_.front();
        msgs_.pop_front();
    } else if (style == kStyleYesNo) {
        throw MissingAnswer("message box \"" + text + "\"");
    }
    Shown shown{text, style, answer};
    messages_.push_back(shown);
    if (onMsgBox) onMsgBox(shown);
    return answer;
}

bool ScriptedHost::fileDialog(std::deque<std::optional<std::string>>& queue, const char* kind,
                              CommonDialog& dialog) {
    if (queue.empty())
        throw MissingAnswer(std::string(kind) + " dialog \"" + dialog.DialogTitle.get() + "\"");
    std::optional<std::string> path = queue.front();
    queue.pop_front();
    if (onDialog) onDialog(kind, dialog.DialogTitle, path);
    if (!path) return false;
    dialog.FileName = *path;
    return true;
}

bool ScriptedHost::ShowOpen(CommonDialog& dialog) { return fileDialog(opens_, "open", dialog); }
bool ScriptedHost::ShowSave(CommonDialog& dialog) { return fileDialog(saves_, "save", dialog); }

bool ScriptedHost::ShowColor(CommonDialog& dialog) {
    if (colors_.empty()) throw MissingAnswer("color dialog");
    auto c = colors_.front();
    colors_.pop_front();
    if (onDialog)
        onDialog("color", dialog.DialogTitle,
                 c ? std::optional<std::string>(std::to_string(*c)) : std::nullopt);
    if (!c) return false;
    dialog.Color = *c;
    return true;
}

bool ScriptedHost::ShowFont(CommonDialog& dialog) {
    if (fonts_.empty()) throw MissingAnswer("font dialog");
    auto f = fonts_.front();
    fonts_.pop_front();
    if (onDialog)
        onDialog("font", dialog.DialogTitle,
                 f ? std::optional<std::string>(f->name) : std::nullopt);
    if (!f) return false;
    dialog.FontName = f->name;
    dialog.FontSize = f->size;
    return true;
}

bool ScriptedHost::ShowPrinter(CommonDialog& dialog) {
    if (printers_.empty()) throw MissingAnswer("printer dialog");
    bool ok = printers_.front();
    printers_.pop_front();
    if (onDialog)
        onDialog("printer", dialog.DialogTitle,
                 ok ? std::optional<std::string>("ok") : std::nullopt);
    return ok;
}

TextMask ScriptedHost::RenderText(const FontSpec& font, const std::string& text,
                                  const PixelRect& window) {
    return bitmapFontText(font, text, window);
}

void ScriptedHost::PrintForm(Form& form) {
    printed_.push_back(pageOf(form));
    if (onPrint) onPrint(printed_.back());
}

PictureHandle ScriptedHost::LoadPicture(const std::string& path) {
    try {
        vb::FileTable files;
        files.OpenForRead(1, path);
        const std::vector<uint8_t> bytes =
            files.GetBytes(1, 1, static_cast<std::size_t>(files.LOF(1)));
        return std::make_shared<const Raster>(decodeBmp(bytes));
    } catch (const vb::Error&) {
        return nullptr;
    }
}

void ScriptedHost::PopupMenu(MenuItem& menu) {
    if (onPopup) onPopup(menu);
}

} // namespace platform
