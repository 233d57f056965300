// The "Model Preview" window follows the painting the way a user sees it: a stroke shows
// at its mouse-up and, while the button is held, within the follow-up delay; moves
// without a button never make it look at the skin.
#include "model/md2_files.h"
#include "platform/qt/model_preview_window.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace tavrin::test {
namespace {

struct PreviewWindow : EditorTest {
    QWidget elsewhere; // where the user's other events land
    std::unique_ptr<platform::qt::ModelPreviewWindow> window;

    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
        // The card on a 64 x 64 skin: a canvas of 4 x 4 pixels is all edge, where a press
        // pans instead of painting.
        Md2 card = previewCard();
        card.skinWidth = card.skinHeight = 64;
        for (auto& st : card.st)
            st = {static_cast<int16_t>(st[0] * 16), static_cast<int16_t>(st[1] * 16)};
        host.answerOpen(dir.write("card.md2", card.bytes()));
        frm.NewSkin_Click();
        window = std::make_unique<platform::qt::ModelPreviewWindow>(frm);
        window->resize(300, 300);
        window->open();
        QApplication::processEvents();
    }
    QImage shown() {
        auto* picture = window->findChild<QWidget*>("previewPicture");
        return picture ? picture->grab().toImage() : QImage();
    }
    // A pencil dot on the skin at (10, 10), which the card's front wears, straight
    // through the canvas's handlers: the window hears of it only by the events below.
    void paintDot(int32_t colour) {
        frm.Cur_Color = colour;
        frm.RGB_Color();
        frm.pEdit_Click();
        frm.Picture7_MouseDown(1, 0, 10.5F, 10.5F);
        frm.Picture7_MouseUp(1, 0, 10.5F, 10.5F);
    }
    void send(QEvent::Type type, Qt::MouseButtons held) {
        QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held,
                          Qt::NoModifier);
        QApplication::sendEvent(&elsewhere, &event);
    }
    void wait(int ms) {
        QTest::qWait(ms);
        QApplication::processEvents();
    }
};

TEST_F(PreviewWindow, AStrokeShowsAtItsMouseUpAndWhileTheButtonIsHeld) {
    const QImage before = shown();
    ASSERT_FALSE(before.isNull());
    paintDot(0x00FF00); // green on the template's black
    send(QEvent::MouseMove, Qt::NoButton);
    wait(120);
    EXPECT_EQ(shown(), before) << "a move without a button made it look at the skin";

    send(QEvent::MouseMove, Qt::LeftButton); // the stroke goes on
    wait(120);
    const QImage during = shown();
    EXPECT_NE(during, before);

    paintDot(0x0000FF); // red
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    wait(10);
    EXPECT_NE(shown(), during);
}

TEST_F(PreviewWindow, ANewModelTakesThePlaceOfTheOldAndADamagedOneSaysWhy) {
    Bytes bytes = previewCard().bytes();
    bytes.resize(bytes.size() - 4); // the last frame runs past the file's end
    host.answerOpen(dir.write("cut.md2", bytes));
    frm.NewSkin_Click();
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    wait(10);
    EXPECT_EQ(window->windowTitle(), "Model Preview - cut.md2");
    auto* groups = window->findChild<QWidget*>("frameGroups");
    ASSERT_NE(groups, nullptr);
    EXPECT_FALSE(groups->isEnabled());
}

} // namespace
} // namespace tavrin::test
