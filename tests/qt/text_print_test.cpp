// The window's text and printing: Qt's fonts print into the text tool's preview without
// grey edges, Enter in the text box reaches the tool, the form prints to a PDF file, and
// the preview goes at a click on its free area only.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/print_page.h"
#include "platform/qt/qt_host.h"
#include "shell/frm_print.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <set>

namespace {

using platform::qt::FormWindow;
using platform::qt::QtHost;

struct QtWindow : ::testing::Test {
    QtHost host;
    tavrin::FrmMain frm{host};
    void TearDown() override { host.closeAll(); }

    // Types the line into Text7 and presses Enter, as a user does.
    void enterText(FormWindow& window, const QString& text) {
        auto* edit = qobject_cast<QLineEdit*>(window.widgetFor(&frm.Text7));
        ASSERT_NE(edit, nullptr);
        edit->clear();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    // The colours in the preview, and how many of its pixels are lit.
    std::set<int32_t> previewColours(int* lit) const {
        std::set<int32_t> colours;
        *lit = 0;
        for (int y = 0; y < frm.Picture25.innerHeight(); ++y)
            for (int x = 0; x < frm.Picture25.innerWidth(); ++x) {
                colours.insert(frm.Picture25.Point(x, y));
                *lit += frm.Picture25.Point(x, y) != 0;
            }
        return colours;
    }
};

TEST_F(QtWindow, EnterPrintsTheTextIntoThePreviewInOneColourAndTheScanListsIt) {
    FormWindow window(frm);
    frm.SSPanel5.Visible = true;
    window.show();
    frm.Paint_Color = 0x00C0FF;
    enterText(window, "Tavrin");
    ASSERT_TRUE(frm.Text_Pixels.allocated());
    int lit = 0;
    EXPECT_EQ(previewColours(&lit), (std::set<int32_t>{0, 0x00C0FF}));
    // Unsmoothed: the same line drawn smoothed lights its grey edges too, which the scan
    // would all take for text.
    QImage smooth(240, 60, QImage::Format_RGB32);
    smooth.setDotsPerMeterX(3780);
    smooth.setDotsPerMeterY(3780);
    smooth.fill(Qt::black);
    {
        QPainter painter(&smooth);
        QFont font;
        font.setPointSizeF(8);
        font.setStyleStrategy(QFont::PreferAntialias);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QPointF(1, 20), "Tavrin");
    }
    int smoothLit = 0;
    for (int y = 0; y < smooth.height(); ++y)
        for (int x = 0; x < smooth.width(); ++x)
            smoothLit += (smooth.pixel(x, y) & 0xFFFFFF) != 0;
    EXPECT_GT(lit, 30);
    EXPECT_LT(lit, smoothLit * 3 / 4);
    EXPECT_TRUE(frm.Text_Pixels(lit).X != 0 || frm.Text_Pixels(lit).Y != 0);
    EXPECT_EQ(frm.Text_Pixels(lit + 1).X, 0);
    const double plainWidth = frm.Picture25.Width, plainHeight = frm.Picture25.Height;
    EXPECT_LT(plainWidth, 3495);

    // Bold from the tool bar, then a larger size from the font dialog's field: each counts
    // at the next Enter.
    frm.tbToolBar_ButtonClick("Bold");
    int boldLit = 0;
    previewColours(&boldLit);
    EXPECT_EQ(boldLit, lit);
    enterText(window, "Tavrin");
    previewColours(&boldLit);
    EXPECT_GT(boldLit, lit);
    frm.CommonDialog1.FontSize = 16;
    enterText(window, "Tavrin");
    EXPECT_GT(frm.Picture25.Height, plainHeight);
    EXPECT_GT(frm.Picture25.Width, plainWidth);
}

TEST_F(QtWindow, PrintWritesThePageToAPdfFileWithTheSkinOnIt) {
    QTemporaryDir dir;
    const QString pdf = dir.filePath("page.pdf");
    host.printer().setOutputFormat(QPrinter::PdfFormat);
    host.printer().setOutputFileName(pdf);
    // A 24 x 16 skin, red with a green corner.
    frm.picture1.Width = 24 * 15;
    frm.picture1.Height = 16 * 15;
    frm.picture1.Line(0, 0, 23, 15, 0x0000FF, platform::kFilledBoxKind);
    frm.picture1.Line(0, 0, 5, 5, 0x00FF00, platform::kFilledBoxKind);
    frm.Skin_Path = "red.pcx";
    frm.p_Click();

    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n"), 1) << "one page";
    // The skin as an image of its own pixels, kept exactly, and the labels' text.
    EXPECT_TRUE(bytes.contains("/Subtype /Image\n/Width 24\n/Height 16\n"));
    EXPECT_FALSE(bytes.contains("/DCTDecode"));
    EXPECT_TRUE(bytes.contains("/Type /Font"));

    // What the page holds, painted on screen pixels: white paper, the skin where the form
    // now has it, and ink in the first label's line.
    QImage shown(9420 / 15, 7185 / 15, QImage::Format_RGB32);
    const tavrin::FrmPrint& form = frm.frmPrint();
    {
        QPainter painter(&shown);
        platform::qt::paintPage(painter, platform::pageOf(form));
    }
    const QPoint skin(form.picture1.Left.pixels(), form.picture1.Top.pixels());
    EXPECT_EQ(shown.pixelColor(skin + QPoint(1, 1)), QColor(0, 255, 0));
    EXPECT_EQ(shown.pixelColor(skin + QPoint(20, 12)), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(skin + QPoint(24, 16)), QColor(Qt::white));
    int ink = 0;
    for (int y = 60 / 15; y < 330 / 15; ++y)
        for (int x = 0; x < shown.width(); ++x)
            ink += qGray(shown.pixel(x, y)) < 128;
    EXPECT_GT(ink, 50);
}

TEST_F(QtWindow, ThePreviewIsMaximisedAndGoesAtAClickOnItsFreeAreaOnly) {
    frm.picture1.Width = 40 * 15;
    frm.picture1.Height = 30 * 15;
    frm.pP_Click();
    tavrin::FrmPrint& form = frm.frmPrint();
    FormWindow* window = host.windowFor(form);
    ASSERT_NE(window, nullptr);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(form.Width.pixels(), screen.width());
    EXPECT_EQ(form.picture1.Left.pixels(), screen.width() / 2 - 20);
    QWidget* label = window->widgetFor(&form.Label1);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(qobject_cast<QLabel*>(label)->text().toStdString(), form.Label1.Caption.get());
    QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseClick(window->widgetFor(&form.picture1), Qt::LeftButton);
    EXPECT_TRUE(form.loaded());
    EXPECT_EQ(host.windowFor(form), window);
    QTest::mouseClick(window->centralWidget(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, window->centralWidget()->height() - 5));
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(host.windowFor(form), nullptr);
}

} // namespace
