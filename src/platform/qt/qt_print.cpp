// Printing a form: its client area, as its window would show it, on the session's printer.
#include "platform/qt/qt_host.h"

#include <QPrinter>

namespace platform::qt {

QPrinter& QtHost::printer() {
    if (!printer_) printer_ = std::make_unique<QPrinter>();
    return *printer_;
}

void QtHost::PrintForm(Form&) {}

} // namespace platform::qt
