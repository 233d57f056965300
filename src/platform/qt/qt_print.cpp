// Printing a form on the session's printer: its page at 96 pixels to the inch.
#include "platform/controls.h"
#include "platform/form_page.h"
#include "platform/picture_box.h"
#include "platform/qt/qt_host.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>

namespace platform::qt {

namespace {

QColor packedColor(uint32_t c) {
    return {int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF)};
}

QRect pixelsOf(const PageItem& item) {
    auto px = [](double twips) { return static_cast<int>(twips / 15.0); };
    return {px(item.left), px(item.top), px(item.width), px(item.height)};
}

void paintPicture(QPainter& painter, const PageItem& item, const QRect& at) {
    const Raster& r = *item.picture;
    QImage image(std::max(r.width, 1), std::max(r.height, 1), QImage::Format_RGB32);
    for (int y = 0; y < r.height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < r.width; ++x)
            row[x] = packedColor(r.at(x, y)).rgb();
    }
    const auto* box = dynamic_cast<const PictureBox*>(item.control);
    const int inset = box ? box->borderPixels() / 2 : 0;
    const QRect inner = at.adjusted(inset, inset, -inset, -inset);
    painter.save();
    painter.setClipRect(inner);
    if (r.width > 0 && r.height > 0) painter.drawImage(inner.topLeft(), image);
    painter.restore();
}

void paintText(QPainter& painter, const PageItem& item, const QRect& at) {
    QFont font = painter.font();
    double points = 8;
    if (const auto* label = dynamic_cast<const Label*>(item.control)) {
        points = label->FontSize;
        font.setBold(label->FontBold);
    }
    // In pixels: the painter's device may be a printer of its own resolution.
    font.setPixelSize(static_cast<int>(std::lround(std::clamp(points * 96.0 / 72.0, 1.0, 1000.0))));
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(at, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     QString::fromStdString(item.text));
}

// The page at one unit a screen pixel: the back colour (white paper for a system
// colour), each picture's pixels unsmoothed, each caption in its control's type.
void paintPage(QPainter& painter, const Page& page) {
    const auto back = static_cast<uint32_t>(page.backColor);
    const QRect area(0, 0, static_cast<int>(page.width / 15.0),
                     static_cast<int>(page.height / 15.0));
    painter.fillRect(area, (back & 0x80000000u) != 0 ? QColor(Qt::white) : packedColor(back));
    painter.setRenderHint(QPainter::LosslessImageRendering); // a skin's pixels, not a photo's
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    for (const PageItem& item : page.items) {
        const QRect at = pixelsOf(item);
        if (item.picture)
            paintPicture(painter, item, at);
        else if (!item.text.empty())
            paintText(painter, item, at);
    }
}

} // namespace

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
    const Page page = pageOf(form);
    QPrinter& out = printer();
    QPainter painter;
    if (!painter.begin(&out)) return; // no printer and no file: nothing to print on
    const QRectF paper = out.pageLayout().paintRectPixels(out.resolution());
    // Screen pixels at their size on paper; a form wider or taller than the page shrinks.
    const double w = std::max(1.0, page.width / 15.0), h = std::max(1.0, page.height / 15.0);
    const double scale = std::min({out.resolution() / 96.0, paper.width() / w, paper.height() / h});
    painter.scale(scale, scale);
    paintPage(painter, page);
    painter.end();
}

} // namespace platform::qt
