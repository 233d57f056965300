#include "platform/qt/button_widget.h"

#include "platform/qt/dispatch.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>

#include <algorithm>

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

// Buttons of one size side by side take the type that fits the widest caption among
// them, so that a row of them reads evenly.
void ButtonWidget::fitCaption() {
    QList<ButtonWidget*> row;
    if (parentWidget())
        for (auto* b : parentWidget()->findChildren<ButtonWidget*>(Qt::FindDirectChildrenOnly))
            if (b->size() == size()) row.append(b);
    if (!row.contains(this)) row.append(this);
    const auto fits = [&](const QFont& type) {
        const QFontMetrics metrics(type);
        // The bevel takes two pixels on each side.
        return std::all_of(row.begin(), row.end(), [&](ButtonWidget* b) {
            return metrics.horizontalAdvance(b->text().remove('&')) <= width() - 4;
        });
    };
    QFont type = QApplication::font(this);
    while (type.pointSizeF() > kSmallestType && !fits(type))
        type.setPointSizeF(type.pointSizeF() - 0.5);
    for (ButtonWidget* b : row)
        if (type != b->font()) b->setFont(type);
}

QIcon pictureIcon(const std::string& name) {
    static const bool ready = (initPictures(), true);
    (void)ready;
    const QString path = QString(":/icons/%1.xpm").arg(QString::fromStdString(name));
    return name.empty() || !QFile::exists(path) ? QIcon() : QIcon(path);
}

} // namespace platform::qt
