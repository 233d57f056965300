#pragma once
// A host whose dialogs and message boxes are answered from queues: the host of the
// tests and of the headless driver. It records what the editor showed.
#include "platform/form_page.h"
#include "platform/host.h"

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace platform {

class ScriptedHost : public Host {
public:
    // A Yes/No message box or a dialog came with no answer queued.
    struct MissingAnswer : std::runtime_error {
        using std::runtime_error::runtime_error;
    };

    struct Shown {
        std::string text;
        int style;
        int answer;
    };

    explicit ScriptedHost(std::string appPath = ".");

    // Queued answers; std::nullopt stands for Cancel.
    void answerOpen(std::optional<std::string> path) { opens_.push_back(std::move(path)); }
    void answerSave(std::optional<std::string> path) { saves_.push_back(std::move(path)); }
    void answerMsgBox(int answer) { msgs_.push_back(answer); }
    void answerColor(std::optional<int32_t> color) { colors_.push_back(color); }
    struct FontAnswer {
        std::string name;
        double size;
    };
    void answerFont(std::optional<FontAnswer> font) { fonts_.push_back(std::move(font)); }
    void answerPrinter(bool ok) { printers_.push_back(ok); }

    // Told of every message box and dialog as it happens.
    std::function<void(const Shown&)> onMsgBox;
    std::function<void(const std::string& kind, const std::string& title,
                       const std::optional<std::string>& result)>
        onDialog;
    std::function<void(MenuItem&)> onPopup;
    std::function<void(const Page&)> onPrint;

    const std::vector<Shown>& messages() const { return messages_; }
    bool ended() const { return ended_; }
    int doEventsCount() const { return doEvents_; }
    const std::vector<Page>& printed() const { return printed_; }
    std::string date = "11-23-2026";

    int MsgBox(const std::string& text, int style) override;
    bool ShowOpen(CommonDialog& dialog) override;
    bool ShowSave(CommonDialog& dialog) override;
    bool ShowColor(CommonDialog& dialog) override;
    bool ShowFont(CommonDialog& dialog) override;
    bool ShowPrinter(CommonDialog& dialog) override;
    // Bitmaps only, through the reader of platform/bmp_format.h.
    PictureHandle LoadPicture(const std::string& path) override;
    void DoEvents() override { ++doEvents_; }
    void PopupMenu(MenuItem& menu) override;
    void ShowForm(Form&) override {}
    void UnloadForm(Form&) override {}
    // The built-in bitmap font (bitmapFontText), the same on every machine.
    TextMask RenderText(const FontSpec& font, const std::string& text,
                        const PixelRect& window) override;
    // Keeps the page, for printed() and onPrint.
    void PrintForm(Form& form) override;
    std::string AppPath() override { return appPath_; }
    std::string Date() override { return date; }
    void End() override { ended_ = true; }

private:
    bool fileDialog(std::deque<std::optional<std::string>>& queue, const char* kind,
                    CommonDialog& dialog);

    std::string appPath_;
    std::deque<std::optional<std::string>> opens_, saves_;
    std::deque<int> msgs_;
    std::deque<std::optional<int32_t>> colors_;
    std::deque<std::optional<FontAnswer>> fonts_;
    std::deque<bool> printers_;
    std::vector<Shown> messages_;
    std::vector<Page> printed_;
    bool ended_ = false;
    int doEvents_ = 0;
};

} // namespace platform
