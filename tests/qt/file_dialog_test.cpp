// The real file dialogs propose the file last chosen: its folder and its name, as the
// dialog control's FileName holds them, and the last folder for a pattern or no name.
#include "platform/controls.h"
#include "platform/qt/qt_host.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

struct Shown {
    QString folder, name;
};

// Runs the dialog; while it is open, notes what it proposes and then chooses `choose`
// (a full path) or cancels.
Shown showDialog(platform::qt::QtHost& host, platform::CommonDialog& d, bool save,
                 const QString& choose = {}) {
    Shown shown;
    QTimer poll; // until the dialog has come up
    poll.setInterval(10);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) return;
        poll.stop();
        shown.folder = dialog->directory().absolutePath();
        if (auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit")) shown.name = edit->text();
        if (choose.isEmpty()) return dialog->reject();
        dialog->selectFile(choose);
        static_cast<QDialog*>(dialog)->accept(); // as its OK button does
    });
    poll.start();
    if (save)
        host.ShowSave(d);
    else
        host.ShowOpen(d);
    return shown;
}

TEST(FileDialogs, ProposeTheFileLastChosenAndItsFolder) {
    QTemporaryDir skins, other;
    platform::qt::QtHost host;
    platform::CommonDialog d(nullptr, "CommonDialog1");
    d.Pattern = "*.PCX";
    const QString chosen = skins.filePath("red.pcx");
    QFile(chosen).open(QIODevice::WriteOnly); // an open dialog takes only a file that exists

    // The open commands propose their pattern, which names no file.
    d.FileName = "*.PCX";
    showDialog(host, d, false, chosen);
    EXPECT_EQ(d.FileName.get(), chosen.toStdString());

    struct Case {
        const char* what;
        std::string fileName;
        bool save;
        QString folder, name;
    };
    const Case cases[] = {
        {"Save after an open", chosen.toStdString(), true, skins.path(), "red.pcx"},
        {"a file elsewhere", other.filePath("blue.PCX").toStdString(), true, other.path(),
         "blue.PCX"},
        {"Save As, which empties the name", "", true, skins.path(), ""},
        {"an open's pattern", "*.ACT", false, skins.path(), ""},
        {"a name without a folder", "green.pcx", true, skins.path(), "green.pcx"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        d.FileName = c.fileName;
        const Shown shown = showDialog(host, d, c.save);
        EXPECT_EQ(shown.folder, c.folder);
        EXPECT_EQ(shown.name, c.name);
    }
}

} // namespace
