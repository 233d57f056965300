#include "platform/host.h"

#include "platform/vb_error.h"

namespace platform {

double Host::Rnd() {
    rndState_ = (rndState_ * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return static_cast<double>(rndState_) / 16777216.0;
}

void showOpen(Host& host, CommonDialog& dialog) {
    if (!host.ShowOpen(dialog)) vb::raise(vb::CancelSelected);
}
void showSave(Host& host, CommonDialog& dialog) {
    if (!host.ShowSave(dialog)) vb::raise(vb::CancelSelected);
}
void showColor(Host& host, CommonDialog& dialog) {
    if (!host.ShowColor(dialog)) vb::raise(vb::CancelSelected);
}
void showFont(Host& host, CommonDialog& dialog) {
    if (!host.ShowFont(dialog)) vb::raise(vb::CancelSelected);
}
void showPrinter(Host& host, CommonDialog& dialog) {
    if (!host.ShowPrinter(dialog)) vb::raise(vb::CancelSelected);
}

PictureHandle loadPicture(Host& host, const std::string& path) {
    PictureHandle picture = host.LoadPicture(path);
    if (!picture) vb::raise(vb::InvalidPicture);
    return picture;
}

void endProgram(Host& host) {
    host.End();
    throw vb::EndProgram{};
}

} // namespace platform
