// The start form: version, notes, and its OK button.
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

    const auto& items = splash.List1.items();
    EXPECT_EQ(items, releaseNotes());
    ASSERT_EQ(items.size(), 105u);
    EXPECT_EQ(splash.List1.ListCount, 105);
    // Blanks stay where they were typed, and a section ends with one empty entry.
    EXPECT_EQ(items[9], "");
    EXPECT_EQ(items[10], "TIP: TO ZOOM OUT PRESS THE RIGHT MOUSE BUTTON IN ");
    EXPECT_EQ(items[11], "      ZOOM MODE.");
    EXPECT_EQ(items[37], "NEW in  Build 031:");
}

// Quitting from the start form is left to the driver's session tests.
TEST(FrmSplash, OkUnloadsTheSplashThenShowsTheEditor) {
    SplashHost host;
    FrmSplash splash(host, [&] { host.events.push_back("show main"); });
    splash.Form_Load();
    splash.SSCommand1.Click();
    EXPECT_EQ(host.events, (std::vector<std::string>{"unload frmSplash", "show main"}));
    EXPECT_FALSE(host.ended());
}

} // namespace
} // namespace tavrin::test
