#include "platform/qt/dispatch.h"

#include "platform/qt/form_window.h"
#include "platform/vb_error.h"

#include <algorithm>
#include <iostream>
#include <vector>

namespace platform::qt {

namespace {
std::vector<FormWindow*>& windows() {
    static std::vector<FormWindow*> all;
    return all;
}
} // namespace

void registerWindow(FormWindow* window) { windows().push_back(window); }

void unregisterWindow(FormWindow* window) {
    auto& all = windows();
    all.erase(std::remove(all.begin(), all.end(), window), all.end());
}

void syncViews() {
    for (FormWindow* w : windows())
        w->syncPictures();
}

void runEvent(const std::function<void()>& handler) {
    try {
        if (handler) handler();
    } catch (const vb::Error& e) {
        // The runtime would have stopped here; an editor keeps its window open.
        std::cerr << "tavrin: untrapped error " << e.number() << ": " << e.what() << "\n";
    } catch (const vb::EndProgram&) {
        // The host has already asked the event loop to quit.
    }
    syncViews();
}

} // namespace platform::qt
