// Printing a form: its client area drawn as its window would show it, at 96 pixels to
// the inch, on the session's printer.
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"

#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace platform::qt {

QPrinter& QtHost::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::availablePrinters().isEmpty()) {
            printer_->setOutputFormat(QPrinter::PdfFormat);
            printer_->setOutputFileName(QDir::home().filePath("tavrin-print.pdf"));
        }
    }
    return *printer_;
}

void QtHost::PrintForm(Form& form) {
    // A window of its own, never shown: the form as it stands, whether or not it is on
    // the screen and however its window there is sized.
    FormWindow window(form);
    QWidget* page = window.centralWidget();
    page->resize(std::max(1, form.Width.pixels()), std::max(1, form.Height.pixels()));
    QPrinter& out = printer();
    QPainter painter;
    if (!painter.begin(&out)) return; // no printer and no file: nothing to print on
    const QRectF paper = out.pageLayout().paintRectPixels(out.resolution());
    // Screen pixels at their size on paper; a form wider or taller than the page shrinks.
    const double scale = std::min(
        {out.resolution() / 96.0, paper.width() / page->width(), paper.height() / page->height()});
    painter.scale(scale, scale);
    page->render(&painter);
    painter.end();
}

} // namespace platform::qt
