// Text for the picture boxes, drawn by Qt. Without antialiasing: a scan that counts every
// pixel that isn't black would take the grey edges for text. At a fixed 96 pixels to the
// inch, so a size in points gives the same pixels on every screen.
#include "platform/qt/qt_host.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

namespace platform::qt {

namespace {

constexpr int kDotsPerMeter96 = 3780; // 96 dpi, as QImage counts resolution

QFont qtFont(const FontSpec& spec) {
    QFont font;
    if (!spec.name.empty()) font.setFamily(QString::fromStdString(spec.name));
    // A size no dialog offers still gives a face of some size.
    font.setPointSizeF(spec.size >= 1 && spec.size <= 1638 ? spec.size : 8.0);
    font.setBold(spec.bold);
    font.setItalic(spec.italic);
    font.setUnderline(spec.underline);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

} // namespace

TextMask QtHost::RenderText(const FontSpec& spec, const std::string& text,
                            const PixelRect& window) {
    const auto w = static_cast<int>(window.x1 - window.x0);
    const auto h = static_cast<int>(window.y1 - window.y0);
    QImage canvas(std::max(w, 1), std::max(h, 1), QImage::Format_RGB32);
    canvas.setDotsPerMeterX(kDotsPerMeter96);
    canvas.setDotsPerMeterY(kDotsPerMeter96);
    canvas.fill(Qt::black);
    const QFont font = qtFont(spec);
    const QFontMetrics metrics(font, &canvas);
    TextMask mask = blankMask(window, metrics.height());
    if (window.empty()) return mask;
    {
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::TextAntialiasing, false);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setFont(font);
        painter.setPen(Qt::white);
        // The line's top left corner, in the window's own pixels.
        painter.drawText(QPointF(static_cast<double>(-window.x0),
                                 static_cast<double>(metrics.ascent() - window.y0)),
                         QString::fromStdString(text));
    }
    std::size_t k = 0;
    for (int y = 0; y < h; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
        for (int x = 0; x < w; ++x, ++k)
            mask.lit[k] = (row[x] & 0xFFFFFFu) != 0;
    }
    return mask;
}

} // namespace platform::qt
