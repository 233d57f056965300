#pragma once
// Running an event handler the way the view does.

namespace tavrin::cli {

// An empty handler does nothing. The handler runs from a copy: it may replace the
// form that holds the original.
template <class Fn, class... A> void fire(const Fn& handler, A&... args) {
    if (!handler) return;
    Fn copy = handler;
    copy(args...);
}

} // namespace tavrin::cli
