#pragma once
// The host of the real program: Qt's message boxes and dialogs, its event loop, and a
// window for each form that is shown.
#include "platform/host.h"

#include <QString>

#include <map>
#include <memory>

class QPrinter;

namespace platform::qt {

class FormWindow;

class QtHost : public Host {
public:
    QtHost();
    ~QtHost() override;

    int MsgBox(const std::string& text, int style) override;
    bool ShowOpen(CommonDialog& dialog) override;
    bool ShowSave(CommonDialog& dialog) override;
    bool ShowColor(CommonDialog& dialog) override;
    bool ShowFont(CommonDialog& dialog) override;
    bool ShowPrinter(CommonDialog& dialog) override;
    // Through Qt's image readers (BMP, PNG, GIF, JPEG and whatever plugins there are),
    // chosen by the file's content, not its name.
    PictureHandle LoadPicture(const std::string& path) override;
    void DoEvents() override;
    void PopupMenu(MenuItem& menu) override;
    void ShowForm(Form& form) override;
    void UnloadForm(Form& form) override;
    // qt_text.cpp: QPainter's text, without antialiasing, at 96 pixels to the inch.
    TextMask RenderText(const FontSpec& font, const std::string& text,
                        const PixelRect& window) override;
    // qt_print.cpp
    void PrintForm(Form& form) override;
    std::string AppPath() override;
    std::string Date() override;
    void End() override;

    FormWindow* windowFor(const Form& form) const;
    // Closes every window while the forms still stand: call before the forms go.
    void closeAll();
    // The printer of the session, which the set-up dialog and every print share. With
    // no printer installed it writes a PDF file (tavrin-print.pdf in the home folder).
    QPrinter& printer();

private:
    bool fileDialog(CommonDialog& dialog, bool save);
    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
    std::unique_ptr<QPrinter> printer_;
    QString lastFolder_; // where the file dialogs last chose a file
};

} // namespace platform::qt
