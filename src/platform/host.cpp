#include "platform/host.h"

#include "platform/vb_error.h"

namespace platform {

namespace {
constexpr uint32_t kRndFactor = 0x43FD43FDu, kRndStep = 0xC39EC3u, kRndMask = 0xFFFFFFu;
} // namespace

double Host::Rnd() {
    rndState_ = (rndState_ * kRndFactor + kRndStep) & kRndMask;
    return static_cast<double>(rndState_) / 16777216.0;
}

// n steps of s -> a s + c are one step of s -> A s + C; the pair for 2n is the pair for n
// applied twice, so the count is taken a bit at a time.
void Host::skipRnd(uint64_t count) {
    uint32_t factor = kRndFactor, step = kRndStep;
    for (; count != 0; count >>= 1) {
        if (count & 1) rndState_ = (rndState_ * factor + step) & kRndMask;
        step = (step * (factor + 1)) & kRndMask;
        factor = (factor * factor) & kRndMask;
    }
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
