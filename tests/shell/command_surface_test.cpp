// The menu bar as the table makes it: every item once, its caption, its place and its
// own shortcut. What each item and close button does is in the table of command rows.
#include "shell/command_tables.h"
#include "support/test_support.h"

#include <map>
#include <set>

namespace tavrin::test {
namespace {

using CommandSurface = EditorTest;

std::set<std::string> menuItemsWhere(const FrmMain& frm,
                                     const std::function<bool(const platform::MenuItem&)>& pred) {
    std::set<std::string> names;
    for (const platform::Control* c : frm.controls())
        if (auto* item = dynamic_cast<const platform::MenuItem*>(c); item && pred(*item))
            names.insert(item->name());
    return names;
}

TEST_F(CommandSurface, EveryMenuItemComesFromTheTableOnceWithItsOwnShortcut) {
    std::set<std::string> inTable;
    std::map<std::string, std::string> shortcutOwner;
    int previousLevel = 0;
    for (const shell::MenuRow& m : shell::menuTable()) {
        const platform::MenuItem& item = frm.*m.item;
        SCOPED_TRACE(item.name());
        EXPECT_EQ(frm.find(item.name()), &item); // the name finds the very control
        EXPECT_TRUE(inTable.insert(item.name()).second) << "listed twice";
        EXPECT_EQ(item.Caption.get(), m.caption);
        EXPECT_LE(m.level, previousLevel + 1); // a submenu only under an item above it
        previousLevel = m.level;
        if (m.level == 0) {
            EXPECT_EQ(item.Parent, nullptr);
        } else {
            ASSERT_NE(item.Parent, nullptr);
            EXPECT_FALSE(item.Parent->isSeparator());
        }
        if (!item.Shortcut.empty()) {
            auto [it, fresh] = shortcutOwner.emplace(item.Shortcut, item.name());
            EXPECT_TRUE(fresh) << item.Shortcut << " also on " << it->second;
        }
    }
    EXPECT_EQ(menuItemsWhere(frm, [](auto&) { return true; }), inTable);

    const std::map<std::string, std::string> shortcuts = {
        {"Ctrl+Z", "Undo"},      {"Ctrl+I", "ri"},    {"Ctrl+W", "wF"},     {"Ctrl+Q", "mZoom"},
        {"Ctrl+E", "Eye"},       {"Ctrl+A", "pEdit"}, {"Ctrl+L", "mLine"},  {"Ctrl+F", "mFill"},
        {"Ctrl+R", "mFrect"},    {"Ctrl+G", "Grf"},   {"Ctrl+P", "Pbrush"}, {"Ctrl+X", "AirBrush"},
        {"Ctrl+B", "BlurBrush"}, {"Ctrl+T", "tnnt"}};
    EXPECT_EQ(shortcutOwner, shortcuts);

    EXPECT_EQ(frm.Undo.Parent, &frm.Edfit);
    EXPECT_EQ(frm.pcxIm.Parent, &frm.im);
    EXPECT_EQ(frm.Pop9.Parent, &frm.bsPop);
    EXPECT_EQ(frm.wiPop.Parent, &frm.Pop);
    for (const platform::MenuItem* sep :
         {&frm.space, &frm.space1, &frm.s1, &frm.space2, &frm.s2, &frm.s3, &frm.cer1, &frm.s4,
          &frm.s9, &frm.spacer10, &frm.spacer11, &frm.spacer12})
        EXPECT_TRUE(sep->isSeparator()) << sep->name();
}

} // namespace
} // namespace tavrin::test
