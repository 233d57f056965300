#include "platform/qt/button_widget.h"

#include "platform/qt/dispatch.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>

// The images are linked into the Qt layer's library: Qt finds them once this has run.
static void initPictures() { Q_INIT_RESOURCE(icons); }

namespace platform::qt {

namespace {
constexpr double kSmallestType = 5.0; // points
} // namespace

ButtonWidget::ButtonWidget(CommandButton& button, QWidget* parent)
    : QToolButton(parent), button_(button) {
    setIconSize(QSize(16, 16));
    QObject::connect(this, &QToolButton::clicked, this, [this] { runEvent(button_.Click); });
}

void ButtonWidget::follow() {
    const QString caption = QString::fromStdString(button_.Caption);
    const QIcon icon = pictureIcon(button_.Picture);
    setIcon(icon);
    setText(caption);
    setToolTip(QString::fromStdString(button_.ToolTipText));
    setToolButtonStyle(icon.isNull()       ? Qt::ToolButtonTextOnly
                       : caption.isEmpty() ? Qt::ToolButtonIconOnly
                                           : Qt::ToolButtonTextUnderIcon);
    fitCaption();
}

void ButtonWidget::resizeEvent(QResizeEvent* event) {
    QToolButton::resizeEvent(event);
    fitCaption();
}

void ButtonWidget::fitCaption() {
    QString shown = text();
    shown.remove('&');
    QFont type = QApplication::font(this);
    // The bevel takes two pixels on each side.
    while (type.pointSizeF() > kSmallestType &&
           QFontMetrics(type).horizontalAdvance(shown) > width() - 4)
        type.setPointSizeF(type.pointSizeF() - 0.5);
    if (type != font()) setFont(type);
}

QIcon pictureIcon(const std::string& name) {
    static const bool ready = (initPictures(), true);
    (void)ready;
    const QString path = QString(":/icons/%1.xpm").arg(QString::fromStdString(name));
    return name.empty() || !QFile::exists(path) ? QIcon() : QIcon(path);
}

} // namespace platform::qt
