#include "platform/qt/qt_host.h"

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/form_window.h"
#include "platform/vb_error.h"

#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QDate>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QImageReader>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace platform::qt {

namespace {

QWidget* activeParent() { return QApplication::activeWindow(); }

// "*.PCX" in the kind of the dialog, found whatever case the files' names have.
QString nameFilter(const CommonDialog& d) {
    QString pattern = QString::fromStdString(d.Pattern.get());
    if (pattern.isEmpty()) pattern = QString::fromStdString(d.FileName.get());
    if (pattern.isEmpty()) pattern = "*";
    QString kind = QString::fromStdString(d.KindText.get());
    QString patterns = pattern;
    if (pattern.toLower() != pattern) patterns += " " + pattern.toLower();
    QString filter = (kind.isEmpty() ? pattern : kind) + " (" + patterns + ")";
    return filter + ";;All Files (*)";
}

} // namespace

QtHost::QtHost() = default;
QtHost::~QtHost() = default;

int QtHost::MsgBox(const std::string& text, int style) {
    QMessageBox box(activeParent());
    box.setWindowTitle(QApplication::applicationName());
    box.setText(QString::fromStdString(text).replace('\r', '\n'));
    if (style == kStyleYesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
    syncViews();
    int result = box.exec();
    if (style != kStyleYesNo) return kMsgOk;
    return result == QMessageBox::Yes ? kMsgYes : kMsgNo;
}

bool QtHost::fileDialog(CommonDialog& d, bool save) {
    QFileDialog dialog(activeParent(), QString::fromStdString(d.DialogTitle.get()));
    // Our own dialog, not the desktop's: the same on every machine, and drivable.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(nameFilter(d));
    // It proposes the file last chosen, as FileName holds it: its folder, and its name
    // unless that is a pattern. A name without a folder opens where the last dialog was.
    const QString name = QString::fromStdString(d.FileName.get());
    const QFileInfo last(name);
    if (last.fileName() != name)
        dialog.setDirectory(last.absolutePath());
    else if (!lastFolder_.isEmpty())
        dialog.setDirectory(lastFolder_);
    if (!last.fileName().isEmpty() && !last.fileName().contains('*'))
        dialog.selectFile(last.fileName());
    syncViews();
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    d.FileName = dialog.selectedFiles().front().toStdString();
    lastFolder_ = QFileInfo(dialog.selectedFiles().front()).absolutePath();
    return true;
}

bool QtHost::ShowOpen(CommonDialog& dialog) { return fileDialog(dialog, false); }
bool QtHost::ShowSave(CommonDialog& dialog) { return fileDialog(dialog, true); }

bool QtHost::ShowColor(CommonDialog& dialog) {
    const int c = dialog.Color;
    QColor chosen =
        QColorDialog::getColor(QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF), activeParent(),
                               QString(), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid()) return false;
    dialog.Color = chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
    return true;
}

bool QtHost::ShowFont(CommonDialog& dialog) {
    bool ok = false;
    QFont initial(QString::fromStdString(dialog.FontName.get()));
    initial.setPointSizeF(dialog.FontSize);
    QFont font = QFontDialog::getFont(&ok, initial, activeParent(), QString(),
                                      QFontDialog::DontUseNativeDialog);
    if (!ok) return false;
    dialog.FontName = font.family().toStdString();
    dialog.FontSize = font.pointSizeF();
    return true;
}

// The set-up: it chooses the printer and its settings for the prints to come, and
// prints nothing itself.
bool QtHost::ShowPrinter(CommonDialog&) {
    QPrintDialog dialog(&printer(), activeParent());
    dialog.setWindowTitle("Print Setup");
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>())
        if (QPushButton* ok = buttons->button(QDialogButtonBox::Ok)) ok->setText("OK");
    syncViews();
    return dialog.exec() == QDialog::Accepted;
}

PictureHandle QtHost::LoadPicture(const std::string& path) {
    QImageReader reader(QString::fromStdString(path));
    reader.setDecideFormatFromContent(true);
    // Transparency isn't shown: each pixel keeps the colour it has underneath.
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) return nullptr;
    try {
        auto picture = std::make_shared<Raster>(image.width(), image.height(), 0);
        for (int y = 0; y < image.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                picture->at(x, y) = static_cast<uint32_t>(qRed(line[x]) | qGreen(line[x]) << 8 |
                                                          qBlue(line[x]) << 16);
        }
        return picture;
    } catch (const vb::Error&) { // too big to hold
        return nullptr;
    }
}

void QtHost::DoEvents() {
    syncViews();
    QApplication::processEvents();
}

void QtHost::PopupMenu(MenuItem& item) {
    for (auto& [form, window] : windows_) {
        if (form != item.form()) continue;
        QPointer<QMenu> menu = window->menuFor(item);
        syncViews();
        menu->exec(QCursor::pos());
        // Only now: the item chosen runs its handler inside exec, and a handler that
        // serves the event queue would let a menu deleted on closing go while its own
        // code still runs. (A window unloaded meanwhile took its menu with it.)
        delete menu;
        return;
    }
}

void QtHost::ShowForm(Form& form) {
    auto& window = windows_[&form];
    if (!window) window = std::make_unique<FormWindow>(form);
    window->applyWindowState();
    window->raise();
    window->activateWindow();
}

void QtHost::UnloadForm(Form& form) {
    auto it = windows_.find(&form);
    if (it == windows_.end()) return;
    // The form's own button may be running this: let Qt finish with it first.
    FormWindow* window = it->second.release();
    windows_.erase(it);
    window->hide();
    window->deleteLater();
}

std::string QtHost::AppPath() { return QCoreApplication::applicationDirPath().toStdString(); }

std::string QtHost::Date() { return QDate::currentDate().toString("MM-dd-yyyy").toStdString(); }

void QtHost::End() { QCoreApplication::exit(0); }

FormWindow* QtHost::windowFor(const Form& form) const {
    auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second.get();
}

void QtHost::closeAll() { windows_.clear(); }

} // namespace platform::qt
