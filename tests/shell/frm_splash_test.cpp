// The start form: version, notes, and its two buttons.
#include "shell/frm_splash.h"
#include "support/test_support.h"

namespace tavrin::test {
namespace {

// Records the forms unloaded, in order with the main form's showing.
struct SplashHost : platform::ScriptedHost {
    std::vector<std::string> events;
    void UnloadForm(platform::Form& form) override { events.push_back("unload " + form.name()); }
};

TEST(FrmSplash, FormLoadShowsTheVersionAndTheNotesAsWritten) {
    SplashHost host;
    FrmSplash splash(host, [] {});
    splash.Form_Load();
    EXPECT_EQ(splash.lblVersion.Caption.get(), "Version 0.3.4");
    EXPECT_EQ(splash.lblProductName.Caption.get(), "Tavrin");
    EXPECT_EQ(splash.lblPlatform.Caption.get(), "Windows 95/NT");

    const auto& items = splash.List1.items();
    ASSERT_EQ(items.size(), 105u);
    EXPECT_EQ(splash.List1.ListCount, 105);
    EXPECT_EQ(items.front(), "First of all thanks for beta testing");
    EXPECT_EQ(items[9], ""); // a section ends with one empty entry
    // Blanks stay where they were typed.
    EXPECT_EQ(items[10], "TIP: TO ZOOM OUT PRESS THE RIGHT MOUSE BUTTON IN ");
    EXPECT_EQ(items[11], "      ZOOM MODE.");
    EXPECT_EQ(items[13], "NEW in Build 034:");
    EXPECT_EQ(items[20], "");
    EXPECT_EQ(items[21], ""); // two after build 034
    EXPECT_EQ(items[22], "NEW in Build 033:");
    EXPECT_EQ(items[37], "NEW in  Build 031:");
    EXPECT_EQ(items[items.size() - 2], "Pan");
    EXPECT_EQ(items.back(), "");
}

TEST(FrmSplash, OkUnloadsTheSplashThenShowsTheEditorAndIQuitEnds) {
    SplashHost host;
    FrmSplash splash(host, [&] { host.events.push_back("show main"); });
    splash.Form_Load();
    splash.SSCommand1.Click();
    EXPECT_EQ(host.events, (std::vector<std::string>{"unload frmSplash", "show main"}));
    EXPECT_FALSE(host.ended());

    SplashHost quitting;
    bool shown = false;
    FrmSplash other(quitting, [&] { shown = true; });
    EXPECT_THROW(other.SSCommand2.Click(), vb::EndProgram);
    EXPECT_TRUE(quitting.ended());
    EXPECT_FALSE(shown);
}

} // namespace
} // namespace tavrin::test
