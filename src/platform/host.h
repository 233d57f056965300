#pragma once
// The one interface between the editor and the machine it runs on: message boxes,
// dialogs, the event queue, the popup menu, printing, pictures and fonts from the
// system, the date, the program's folder, the end of the program. The Qt host serves
// the real program; the scripted host serves tests and the headless driver.
#include "platform/raster.h"
#include "platform/text_mask.h"

#include <cstdint>
#include <string>

namespace platform {

class CommonDialog;
class Form;
class MenuItem;

inline constexpr int kMsgOk = 1;
inline constexpr int kMsgYes = 6;
inline constexpr int kMsgNo = 7;
inline constexpr int kStyleOk = 0;
inline constexpr int kStyleYesNo = 4;

class Host {
public:
    virtual ~Host() = default;

    // A message box with no title and no icon, style 0 (OK) or 4 (Yes, No).
    // Returns 1 (OK), 6 (Yes) or 7 (No).
    virtual int MsgBox(const std::string& text, int style) = 0;

    // The common dialog's dialogs. They read and write the dialog's properties
    // (FileName, DialogTitle, Pattern, Color, Flags, FontName, FontSize) and return
    // false for Cancel.
    virtual bool ShowOpen(CommonDialog& dialog) = 0;
    virtual bool ShowSave(CommonDialog& dialog) = 0;
    virtual bool ShowColor(CommonDialog& dialog) = 0;
    virtual bool ShowFont(CommonDialog& dialog) = 0;
    virtual bool ShowPrinter(CommonDialog& dialog) = 0;

    // LoadPicture: the picture in the file, of any kind the platform reads (bitmaps at
    // least); nothing when the file can't be read as a picture.
    virtual PictureHandle LoadPicture(const std::string& path) = 0;

    // Serves the event queue once: other events may run on the editor's state.
    virtual void DoEvents() = 0;
    // Shows a menu of the form at the pointer and returns when it closes.
    virtual void PopupMenu(MenuItem& menu) = 0;

    // A form was loaded and shown, or unloaded.
    virtual void ShowForm(Form& form) = 0;
    virtual void UnloadForm(Form& form) = 0;

    // Which pixels of the window (a part of the line, see TextMask) the text lights
    // in the font. The window is never larger than the box that asks.
    virtual TextMask RenderText(const FontSpec& font, const std::string& text,
                                const PixelRect& window) = 0;
    // Prints the form's client area, as it stands, on the current printer.
    virtual void PrintForm(Form& form) = 0;

    // The folder of the program, without a trailing separator.
    virtual std::string AppPath() = 0;
    // Today's date as month-day-year with hyphens.
    virtual std::string Date() = 0;

    // The program ends at once. The caller throws vb::EndProgram right after.
    virtual void End() = 0;

    // The runtime's uniform generator in [0, 1), never seeded: every run gives the
    // same sequence.
    double Rnd();
    // Moves the generator on as `count` calls of Rnd would, at once: the pixels of a
    // filter that lie far off the skin still draw their numbers.
    void skipRnd(uint64_t count);

private:
    uint32_t rndState_ = 0x50000;
};

// The dialog calls as the editor makes them: Cancel raises the dialog's error.
void showOpen(Host& host, CommonDialog& dialog);
void showSave(Host& host, CommonDialog& dialog);
void showColor(Host& host, CommonDialog& dialog);
void showFont(Host& host, CommonDialog& dialog);
void showPrinter(Host& host, CommonDialog& dialog);

// LoadPicture as the editor calls it: a file that gives no picture raises "Invalid picture".
PictureHandle loadPicture(Host& host, const std::string& path);

// End: tells the host, then unwinds to the event dispatcher.
[[noreturn]] void endProgram(Host& host);

} // namespace platform
