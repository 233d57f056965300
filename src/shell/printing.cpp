// "&Print", "&Print Preview", "&Print Setup": the skin laid out on frmPrint, printed as
// it stands or shown.
#include "editor/frm_main.h"
#include "shell/frm_print.h"

namespace tavrin {

// The default instance: made at its first use and loaded anew after a click unloaded it.
FrmPrint& FrmMain::frmPrint() {
    if (!frmPrint_) frmPrint_ = std::make_shared<FrmPrint>(host_);
    if (!frmPrint_->loaded()) frmPrint_->load();
    return *frmPrint_;
}

// Label1 builds on its own caption: prints without an unload in between repeat the path
// and the date in front of the whole line before. Meant.
void FrmMain::fillPrintForm(FrmPrint& form) {
    // picture1's image, not the canvas: a wireframe shows only if drawn into picture1.
    // The box takes the skin's size, so that the preview centres the skin itself.
    const platform::PictureHandle skin = picture1.Image();
    form.picture1.Width = 15.0 * skin->width;
    form.picture1.Height = 15.0 * skin->height;
    form.picture1.Picture = skin;
    form.Label1.Caption = Skin_Path + " " + form.Label1.Caption.get() + " on " + host_.Date();
    form.Label2.Caption =
        "Skin Dimensions = Width: " + Skin_Width.str() + " Height: " + Skin_Height.str();
}

// Printed at once, not shown. The picture is centred only after the print: on paper it
// stands at its design place, under the labels.
void FrmMain::p_Click() {
    FrmPrint& form = frmPrint();
    fillPrintForm(form);
    form.WindowState = 2;
    host_.PrintForm(form);
    form.picture1.Top = static_cast<float>(form.Height / 2 - form.picture1.Height / 2);
}

// The preview: maximised, the skin in its middle. The main window stays usable behind it.
void FrmMain::pP_Click() {
    FrmPrint& form = frmPrint();
    fillPrintForm(form);
    host_.ShowForm(form);
    form.WindowState = 2;
    form.picture1.Left = static_cast<float>(form.Width / 2 - form.picture1.Width / 2);
    form.picture1.Top = static_cast<float>(form.Height / 2 - form.picture1.Height / 2);
}

// The printer set-up works on the session's printer; nothing is read back. Cancel ends it.
void FrmMain::psss_Click() {
    try {
        CommonDialog1.Flags = 0x40;
        platform::showPrinter(host_, CommonDialog1);
    } catch (const vb::Error&) {
    }
}

} // namespace tavrin
