#pragma once
// The event boundary: every handler the user sets off runs through runEvent, which
// keeps an error that no procedure trapped from taking the program down, and brings
// the widgets up to date with what the handler drew.
#include <functional>

namespace platform::qt {

void runEvent(const std::function<void()>& handler);

// Asks every open window to repaint the pictures whose content changed.
void syncViews();

class FormWindow;
void registerWindow(FormWindow* window);
void unregisterWindow(FormWindow* window);

} // namespace platform::qt
