// Every command of the main window as a user reaches it (menu bar, popup, tool bar, the
// brush kinds, filter bar, close buttons and the keys of the file and font tool bar), each
// on a fresh editor: the tool word, filter word and status text it writes or leaves, what
// it does to the brush kinds panel, the check marks and panels it flips, the fields it
// sets, and the first thing it shows.
#include "support/test_support.h"

#include <functional>
#include <map>
#include <set>
#include <span>
#include <sstream>

namespace tavrin::test {
namespace {

enum class Kinds { Leaves, Hides, Shows }; // what the command does to SSPanel2

struct Row {
    const char* names;  // controls, menu items or keys as "tbToolBar.Key", in turn
    const char* tool;   // Tool_Mode after; nullptr: left as it was
    const char* filter; // Filter_Mode after; nullptr: left as it was
    const char* status; // SSPanel3's caption after; nullptr: left as it was
    Kinds kinds;
    const char* says;       // the first message or dialog ("open: TITLE"); "" for none
    const char* after = ""; // "Item+" checked or shown, "Item-" not, "Field=N"
};

// The numbers a row may check, by the name it uses.
using Reading = std::function<double(FrmMain&)>;
const std::map<std::string, Reading>& readings() {
    static const std::map<std::string, Reading> table = {
        {"Pan_Step", [](FrmMain& f) { return double(f.Pan_Step); }},
        {"Brush_Size", [](FrmMain& f) { return double(f.Brush_Size); }},
        {"Brush_Radius", [](FrmMain& f) { return double(f.Brush_Radius); }},
        {"Fill_Rect", [](FrmMain& f) { return f.Fill_Rect ? 1.0 : 0.0; }},
        {"Gradient_On", [](FrmMain& f) { return double(f.Gradient_On); }},
        {"Gradient_Dark", [](FrmMain& f) { return double(f.Gradient_Dark); }},
        {"Paint_Shade", [](FrmMain& f) { return f.Paint_Shade.num(); }},
        {"Picture7.Left", [](FrmMain& f) { return f.Picture7.Left.get(); }},
        {"Picture7.Top", [](FrmMain& f) { return f.Picture7.Top.get(); }},
        {"Bold", [](FrmMain& f) { return f.Picture25.Font.Bold ? 1.0 : 0.0; }},
        {"Italic", [](FrmMain& f) { return f.Picture25.Font.Italic ? 1.0 : 0.0; }},
        {"Underline", [](FrmMain& f) { return f.Picture25.Font.Underline ? 1.0 : 0.0; }},
        {"BoldKey", [](FrmMain& f) { return double(f.tbToolBar.find("Bold")->Value); }},
        {"ItalicKey", [](FrmMain& f) { return double(f.tbToolBar.find("Italic")->Value); }},
        {"UnderlineKey", [](FrmMain& f) { return double(f.tbToolBar.find("Underline")->Value); }},
    };
    return table;
}

// The menu and tool selects, the tool bar's buttons and the brush kinds. Each starts
// with the words and the status text at "before", the brush kinds open (closed for the
// row that opens them), the canvas at 0, 0 and a pan step of 3000.
const Row kToolRows[] = {
    {"SSCommand4", "Draw", nullptr, "Drawing Tool", Kinds::Hides, ""},
    {"SSCommand12", nullptr, nullptr, "Painting Tool", Kinds::Shows, ""},
    {"SSCommand14", "Extract", nullptr, "Eye Dropper Tool", Kinds::Hides, ""},
    {"SSCommand28", "Box", "", "Rectangle", Kinds::Hides, "", "Fill_Rect=0"},
    {"SSCommand29", "Box", "", "Rectangle Fill", Kinds::Hides, "", "Fill_Rect=1 Gradient_On=0"},
    {"SSCommand19", "Zoom", nullptr, "Zoom", Kinds::Hides, ""},
    {"SSCommand21", nullptr, nullptr, "Zoom - Pan 500", Kinds::Hides, "", "Pan_Step=500"},
    {"SSCommand22", nullptr, nullptr, "Zoom - Pan 5000", Kinds::Hides, "", "Pan_Step=5000"},
    {"SSCommand18", nullptr, nullptr, nullptr, Kinds::Leaves, "Almost! I promise it'll be in 035"},
    {"SSCommand23", nullptr, nullptr, nullptr, Kinds::Hides, "", "Picture7.Left=3000"},
    {"SSCommand24", nullptr, nullptr, nullptr, Kinds::Hides, "", "Picture7.Left=-3000"},
    {"SSCommand25", nullptr, nullptr, nullptr, Kinds::Hides, "", "Picture7.Top=3000"},
    {"SSCommand26", nullptr, nullptr, nullptr, Kinds::Hides, "", "Picture7.Top=-3000"},
    {"SSCommand17", "Box", "", "Gradient Fill", Kinds::Hides, "", "Fill_Rect=1 Gradient_On=-1"},
    {"SSCommand20", "Text", nullptr, "Text Tool", Kinds::Hides, ""},
    {"SSCommand30", "dPaint", nullptr, nullptr, Kinds::Hides, "", "Paint_Shade=0"},
    {"SSCommand31", "dPaint", nullptr, nullptr, Kinds::Hides, "", "Paint_Shade=1"},
    {"SSCommand32", "lPaint", nullptr, nullptr, Kinds::Hides, "", "Paint_Shade=1"},
    {"mZoom", "Zoom", nullptr, "Zoom", Kinds::Leaves, ""},
    {"zPop", "Zoom", nullptr, "Zoom", Kinds::Leaves, ""},
    {"Eye", "Extract", nullptr, "Eye Dropper Tool", Kinds::Leaves, ""},
    {"ePop", "Extract", nullptr, "Eye Dropper Tool", Kinds::Leaves, ""},
    {"pEdit", "Draw", nullptr, "Drawing Tool", Kinds::Hides, ""},
    {"pPop", "Draw", nullptr, "Drawing Tool", Kinds::Hides, ""},
    {"mRect", "Box", "", nullptr, Kinds::Hides, "", "Fill_Rect=0"},
    {"mFrect", "Box", "", nullptr, Kinds::Hides, "", "Fill_Rect=1"},
    {"Grf", "Box", "", "Gradient Fill", Kinds::Hides, "", "Fill_Rect=1 Gradient_On=-1"},
    // The menu's rectangles and the outline button leave a gradient on.
    {"Grf mRect", "Box", "", "Gradient Fill", Kinds::Hides, "", "Fill_Rect=0 Gradient_On=-1"},
    {"Grf mFrect", "Box", "", "Gradient Fill", Kinds::Hides, "", "Fill_Rect=1 Gradient_On=-1"},
    {"Grf SSCommand28", "Box", "", "Rectangle", Kinds::Hides, "", "Fill_Rect=0 Gradient_On=-1"},
    {"mLine", "Line", nullptr, "Line Tool", Kinds::Leaves, ""},
    {"pnPop", "dPaint", nullptr, "Paint-Brush", Kinds::Leaves, "", "Paint_Shade=0"},
    // "&Paint Brush" has no handler: neither the item nor Ctrl+P does anything.
    {"Pbrush", nullptr, nullptr, nullptr, Kinds::Leaves, ""},
    // The area filters set the words only.
    {"Sharpen", "Box", "Sharp", nullptr, Kinds::Leaves, ""},
    {"shPop", "Box", "Sharp", nullptr, Kinds::Leaves, ""},
    {"SSCommand40", "Box", "Sharp", nullptr, Kinds::Leaves, ""},
    {"SSCommand37", "Box", "Light", nullptr, Kinds::Leaves, ""},
    {"Blur", "Box", "BlurA", nullptr, Kinds::Leaves, ""},
    {"blPop", "Box", "BlurA", nullptr, Kinds::Leaves, ""},
    {"SSCommand41", "Box", "BlurA", nullptr, Kinds::Leaves, ""},
    {"Emboss", "Box", "Emboss", nullptr, Kinds::Leaves, ""},
    {"emPop", "Box", "Emboss", nullptr, Kinds::Leaves, ""},
    {"SSCommand38", "Box", "Emboss", nullptr, Kinds::Leaves, ""},
    {"Tint", "Box", "Tint", nullptr, Kinds::Leaves, ""},
    {"tiPop", "Box", "Tint", nullptr, Kinds::Leaves, ""},
    {"SSCommand36", "Box", "Tint", nullptr, Kinds::Leaves, ""},
};

// The commands that choose no tool: they leave the words, the status text and the brush
// kinds alone. Dialogs are cancelled and questions answered No.
const Row kOtherRows[] = {
    {"NewSkin", nullptr, nullptr, nullptr, Kinds::Leaves,
     "open: New Skin From Base MD2 Wireframe."},
    {"pcxIm", nullptr, nullptr, nullptr, Kinds::Leaves, "open: Load Quake 2 PCX Skin Image"},
    {"ACT", nullptr, nullptr, nullptr, Kinds::Leaves, "open: Load ACT Color Table Palette"},
    {"ex", nullptr, nullptr, nullptr, Kinds::Leaves, "save: Save Skin PCX "},
    {"SKas", nullptr, nullptr, nullptr, Kinds::Leaves, "save: Save Skin PCX as Filename:"},
    {"psss", nullptr, nullptr, nullptr, Kinds::Leaves, "printer: "},
    {"Exit", nullptr, nullptr, nullptr, Kinds::Leaves, "Exit Tavrin?"},
    {"PALE", nullptr, nullptr, nullptr, Kinds::Leaves, "", "PALE- SSPanel1-"},
    {"ActualPixels", nullptr, nullptr, nullptr, Kinds::Leaves, "", "ActualPixels+ SSPanel11+"},
    {"ActualPixels SSCommand11", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "ActualPixels+ SSPanel11-"},
    {"ToolBar", nullptr, nullptr, nullptr, Kinds::Leaves, "", "ToolBar- SSPanel13-"},
    {"fil", nullptr, nullptr, nullptr, Kinds::Leaves, "", "fil- SSPanel15-"},
    {"SSCommand8", nullptr, nullptr, nullptr, Kinds::Leaves, "", "PALE- SSPanel1-"},
    {"SSCommand8 PALE", nullptr, nullptr, nullptr, Kinds::Leaves, "", "PALE+ SSPanel1+"},
    // These close buttons leave the mark: the item's next use only clears it.
    {"SSCommand27", nullptr, nullptr, nullptr, Kinds::Leaves, "", "ToolBar+ SSPanel13-"},
    {"SSCommand27 ToolBar", nullptr, nullptr, nullptr, Kinds::Leaves, "", "ToolBar- SSPanel13-"},
    {"SSCommand27 ToolBar ToolBar", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "ToolBar+ SSPanel13+"},
    {"SSCommand42", nullptr, nullptr, nullptr, Kinds::Leaves, "", "fil+ SSPanel15-"},
    {"SSCommand42 fil", nullptr, nullptr, nullptr, Kinds::Leaves, "", "fil- SSPanel15-"},
    {"SSCommand42 fil fil", nullptr, nullptr, nullptr, Kinds::Leaves, "", "fil+ SSPanel15+"},
    {"SSCommand9", nullptr, nullptr, nullptr, Kinds::Leaves, "", "Mask- SSPanel7-"},
    {"tValue", nullptr, nullptr, nullptr, Kinds::Leaves, "", "SSPanel16+"},
    {"tValue tValue", nullptr, nullptr, nullptr, Kinds::Leaves, "", "SSPanel16+"},
    {"tValue SSCommand39", nullptr, nullptr, nullptr, Kinds::Leaves, "", "SSPanel16-"},
    // The size already set switches to the other one: at start both give one pixel.
    {"p1", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1+ Pop1+ p9- Pop9- Brush_Size=1 Brush_Radius=1"},
    {"Pop1", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1+ Pop1+ p9- Pop9- Brush_Size=1 Brush_Radius=1"},
    {"p9", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1+ Pop1+ p9- Pop9- Brush_Size=1 Brush_Radius=1"},
    {"Pop9", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1+ Pop1+ p9- Pop9- Brush_Size=1 Brush_Radius=1"},
    {"p1 p1", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1- Pop1- p9+ Pop9+ Brush_Size=3 Brush_Radius=2"},
    {"Pop9 p1", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "p1- Pop1- p9+ Pop9+ Brush_Size=3 Brush_Radius=2"},
    {"gd", nullptr, nullptr, nullptr, Kinds::Leaves, "", "gd+ gl- Gradient_Dark=-1"},
    {"gl", nullptr, nullptr, nullptr, Kinds::Leaves, "", "gd+ gl- Gradient_Dark=-1"},
    {"gd gl", nullptr, nullptr, nullptr, Kinds::Leaves, "", "gd- gl+ Gradient_Dark=0"},
    {"gl gl", nullptr, nullptr, nullptr, Kinds::Leaves, "", "gd- gl+ Gradient_Dark=0"},
    {"wFc", nullptr, nullptr, nullptr, Kinds::Leaves, "color: "},
    {"bcolor", nullptr, nullptr, nullptr, Kinds::Leaves, "color: "},
    {"Cl256", nullptr, nullptr, nullptr, Kinds::Leaves,
     "Note...you will now be unable to go BACK to 256 color."},
    {"tbToolBar.New", nullptr, nullptr, nullptr, Kinds::Leaves,
     "open: New Skin From Base MD2 Wireframe."},
    {"tbToolBar.Open", nullptr, nullptr, nullptr, Kinds::Leaves,
     "open: Load Quake 2 PCX Skin Image"},
    {"tbToolBar.Save", nullptr, nullptr, nullptr, Kinds::Leaves, "save: Save Skin PCX "},
    {"tbToolBar.Cut", nullptr, nullptr, nullptr, Kinds::Leaves, "Not Yet."},
    {"tbToolBar.Copy", nullptr, nullptr, nullptr, Kinds::Leaves, "Not Yet."},
    {"tbToolBar.Paste", nullptr, nullptr, nullptr, Kinds::Leaves, "Not Yet."},
    {"tbToolBar.Bold", nullptr, nullptr, nullptr, Kinds::Leaves, "", "Bold=1 BoldKey=1"},
    {"tbToolBar.Bold tbToolBar.Bold", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "Bold=0 BoldKey=0"},
    {"tbToolBar.Italic", nullptr, nullptr, nullptr, Kinds::Leaves, "", "Italic=1 ItalicKey=1"},
    {"tbToolBar.Underline", nullptr, nullptr, nullptr, Kinds::Leaves, "",
     "Underline=1 UnderlineKey=1"},
    // Cancel leaves the font as it was and shows nothing more.
    {"tbToolBar.Font", nullptr, nullptr, nullptr, Kinds::Leaves, "font: "},
};

// The soft brushes, the mask and fill, Diffuse and Lighten Image.
const Row kSoftRows[] = {
    {"SSCommand13", "Air", nullptr, "Airbrush Tool", Kinds::Hides, ""},
    {"SSCommand16", "Blur", nullptr, "Blurring Brush Tool", Kinds::Hides, ""},
    {"SSCommand15", "Mask", nullptr, "Color Mask", Kinds::Hides, ""},
    {"SSCommand33", "dTtint", nullptr, nullptr, Kinds::Hides, ""},
    {"AirBrush", "Air", nullptr, "Air Brush", Kinds::Leaves, ""},
    {"aPop", "Air", nullptr, "Air Brush", Kinds::Leaves, ""},
    {"BlurBrush", "Blur", nullptr, "Blurring Brush Tool", Kinds::Leaves, ""},
    {"bPop", "Blur", nullptr, "Blurring Brush Tool", Kinds::Leaves, ""},
    {"tnnt", "dTtint", nullptr, nullptr, Kinds::Hides, ""},
    {"tPop", "dTtint", nullptr, nullptr, Kinds::Hides, ""},
    {"mFill", "Fill", nullptr, "Fill Area", Kinds::Leaves, "NEXT BETA!"},
    {"Diffuse", "Box", "Diffuse", nullptr, Kinds::Leaves, ""},
    {"difPop", "Box", "Diffuse", nullptr, Kinds::Leaves, ""},
    {"SSCommand43", "Box", "Diffuse", nullptr, Kinds::Leaves, ""},
    {"Lightt", nullptr, nullptr, nullptr, Kinds::Leaves, ""},
    {"liPop", nullptr, nullptr, nullptr, Kinds::Leaves, ""},
    {"Mask", nullptr, nullptr, nullptr, Kinds::Leaves, "", "Mask- SSPanel7-"},
    {"Mask Mask", nullptr, nullptr, nullptr, Kinds::Leaves, "", "Mask+ SSPanel7+"},
};

class CommandRows : public EditorTest {
protected:
    // Runs the row's command on an editor of its own and checks what the row says.
    void check(const Row& row) {
        SCOPED_TRACE(row.names);
        platform::ScriptedHost h(dir.path().string());
        FrmMain f(h);
        f.Form_Load();
        f.Tool_Mode = "before";
        f.Filter_Mode = "before";
        f.SSPanel3.Caption = "before";
        f.SSPanel2.Visible = row.kinds != Kinds::Shows;
        f.Picture7.Left = 0;
        f.Picture7.Top = 0;
        f.Pan_Step = 3000;
        f.SSPanel7.Visible = true; // as the mask's menu item leaves it
        f.Mask.Checked = true;
        h.answerOpen(std::nullopt);
        h.answerSave(std::nullopt);
        h.answerColor(std::nullopt);
        h.answerFont(std::nullopt);
        h.answerPrinter(false);
        h.answerMsgBox(platform::kMsgNo);
        std::vector<std::string> shown;
        h.onDialog = [&](const std::string& kind, const std::string& title, const auto&) {
            shown.push_back(kind + ": " + title);
        };
        h.onMsgBox = [&](const platform::ScriptedHost::Shown& s) { shown.push_back(s.text); };

        std::istringstream names(row.names);
        for (std::string name; names >> name;)
            activate(f, name);

        EXPECT_EQ(f.Tool_Mode.str(), row.tool ? row.tool : "before");
        EXPECT_EQ(f.Filter_Mode.str(), row.filter ? row.filter : "before");
        EXPECT_EQ(f.SSPanel3.Caption.get(), row.status ? row.status : "before");
        EXPECT_EQ(f.SSPanel2.Visible.get(), row.kinds != Kinds::Hides);
        EXPECT_EQ(shown.empty() ? "" : shown.front(), row.says);
        std::istringstream after(row.after);
        for (std::string item; after >> item;)
            expectAfter(f, item);
    }

    static void activate(FrmMain& f, const std::string& name) {
        const std::string key = "tbToolBar.";
        if (name.rfind(key, 0) == 0) {
            ASSERT_NE(f.tbToolBar.find(name.substr(key.size())), nullptr);
            f.tbToolBar.ButtonClick(name.substr(key.size()));
            return;
        }
        platform::Control* control = f.find(name);
        ASSERT_NE(control, nullptr);
        if (control->Click) control->Click();
    }

    static void expectAfter(FrmMain& f, const std::string& item) {
        SCOPED_TRACE(item);
        if (auto eq = item.find('='); eq != std::string::npos) {
            auto it = readings().find(item.substr(0, eq));
            ASSERT_NE(it, readings().end());
            EXPECT_EQ(it->second(f), std::stod(item.substr(eq + 1)));
            return;
        }
        const bool on = item.back() == '+';
        platform::Control* c = f.find(item.substr(0, item.size() - 1));
        ASSERT_NE(c, nullptr);
        if (auto* menu = dynamic_cast<platform::MenuItem*>(c))
            EXPECT_EQ(menu->Checked.get(), on);
        else
            EXPECT_EQ(c->Visible.get(), on);
    }
};

TEST_F(CommandRows, EachToolCommandSetsItsWordsStatusAndBrushKinds) {
    installGamePalette();
    for (const Row& row : kToolRows)
        check(row);
}

TEST_F(CommandRows, EachOtherCommandDoesItsOwnThingAndLeavesTheTool) {
    installGamePalette();
    for (const Row& row : kOtherRows)
        check(row);
}

TEST_F(CommandRows, EachSoftToolCommandSetsItsWordsStatusAndBrushKinds) {
    installGamePalette();
    for (const Row& row : kSoftRows)
        check(row);
}

// Every command of the window has a row: the menu items, the buttons and the keys.
TEST_F(CommandRows, NoCommandIsLeftWithoutARow) {
    std::set<std::string> rows;
    for (std::span<const Row> table :
         {std::span<const Row>(kToolRows), std::span<const Row>(kOtherRows),
          std::span<const Row>(kSoftRows)})
        for (const Row& r : table) {
            std::istringstream names(r.names);
            for (std::string name; names >> name;)
                rows.insert(name);
        }
    // Rows of their own tests: printing, help, the attributes, wireframes, undo, the
    // colour modes, picture and palette import, the mask's list, the model preview.
    const std::set<std::string> elsewhere = {"Masked", "p",       "pP",       "tbToolBar.Print",
                                             "H",      "About",   "ia",       "ma",
                                             "wF",     "wiPop",   "UCW",      "Undo",
                                             "ri",     "CLhigh",  "OpenSkin", "PAL2",
                                             "MD2Im",  "mPreview"};
    std::set<const platform::Control*> submenus;
    for (const platform::Control* c : frm.controls())
        if (auto* item = dynamic_cast<const platform::MenuItem*>(c); item && item->Parent)
            submenus.insert(item->Parent);
    for (const platform::Control* c : frm.controls()) {
        auto* item = dynamic_cast<const platform::MenuItem*>(c);
        auto* button = dynamic_cast<const platform::CommandButton*>(c);
        const bool command =
            (item && item->Parent && !item->isSeparator() && !submenus.count(c)) || button;
        if (!command || c->Container == &frm.SSPanel5 || c->Container == &frm.SSPanel7 ||
            c->name() == "SSCommand34" || c->name() == "SSCommand35")
            continue;
        EXPECT_TRUE(rows.count(c->name()) || elsewhere.count(c->name())) << c->name();
    }
    for (const platform::Toolbar::Button& b : frm.tbToolBar.Buttons) {
        const std::string name = "tbToolBar." + b.Key;
        EXPECT_TRUE(b.Key.empty() || rows.count(name) || elsewhere.count(name)) << name;
    }
}

} // namespace
} // namespace tavrin::test
