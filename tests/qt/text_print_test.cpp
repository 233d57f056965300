// The window's text and printing: Enter in the text box prints the line into the text
// tool's preview in Qt's fonts without grey edges; the form prints to a PDF file with the
// skin on its page.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"
#include "shell/frm_print.h"

#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

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
    int previewLit() const {
        int lit = 0;
        for (int y = 0; y < frm.Picture25.innerHeight(); ++y)
            for (int x = 0; x < frm.Picture25.innerWidth(); ++x)
                lit += frm.Picture25.Point(x, y) != 0;
        return lit;
    }
};

// The same line drawn smoothed at 96 dpi: how many pixels its grey edges light too.
int smoothLit(const QString& text) {
    QImage smooth(240, 60, QImage::Format_RGB32);
    smooth.setDotsPerMeterX(3780);
    smooth.setDotsPerMeterY(3780);
    smooth.fill(Qt::black);
    QPainter painter(&smooth);
    QFont font;
    font.setPointSizeF(8);
    font.setStyleStrategy(QFont::PreferAntialias);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(1, 20), text);
    painter.end();
    int lit = 0;
    for (int y = 0; y < smooth.height(); ++y)
        for (int x = 0; x < smooth.width(); ++x)
            lit += (smooth.pixel(x, y) & 0xFFFFFF) != 0;
    return lit;
}

TEST_F(QtWindow, EnterPrintsTheTextUnsmoothedAndStylesAndSizeCountFromTheNextEnter) {
    FormWindow window(frm);
    frm.SSPanel5.Visible = true;
    window.show();
    frm.Paint_Color = 0x00C0FF;
    enterText(window, "Tavrin");
    const int lit = previewLit();
    // Smoothed, the grey edges would all count as text.
    EXPECT_GT(lit, 30);
    EXPECT_LT(lit, smoothLit("Tavrin") * 3 / 4);
    EXPECT_EQ(frm.Text_Pixels(lit + 1).X, 0);
    EXPECT_TRUE(frm.Text_Pixels(lit).X != 0);
    const double plainWidth = frm.Picture25.Width, plainHeight = frm.Picture25.Height;

    frm.tbToolBar_ButtonClick("Bold");
    EXPECT_EQ(previewLit(), lit);
    enterText(window, "Tavrin");
    EXPECT_GT(previewLit(), lit);
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
}

} // namespace
