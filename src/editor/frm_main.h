#pragma once
// frmMain: the one window of the editor. It owns every field, control and file of a
// run; its handlers are defined across the topic folders, as the banners say.
#include "editor/records.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/host.h"
#include "platform/picture_box.h"
#include "platform/variant.h"
#include "platform/vb_array.h"
#include "platform/vb_files.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tavrin {

using platform::PictureBox;
using vb::Variant;

class FrmMain : public platform::Form {
public:
    explicit FrmMain(platform::Host& host);
    platform::Host& host() { return host_; }

    // ================= editor/lifecycle.cpp: start and end =================
    void Form_Load();
    void Form_Unload(int16_t& Cancel);
    void Exit_Click();
    void Erase_Array();

    // ================= palette/palette_table.cpp: the palette and the match =================
    void Get_Pal();
    void Temp_Color_Check();
    void RGB_Color();
    static int32_t Pal_Relative(int32_t color) { return color | 0x2000000; }
    void PALE_Click();
    void SSCommand8_Click();
    // Readers of Pal_Table call this when they have written it: the match's cache of
    // answers is only good for the palette it was made from.
    void paletteChanged();

    // ================= editor/view.cpp: the canvas and the view =================
    void ri_Click();
    void frmCenter();
    void Calc_Pixels();
    void ActualPixels_Click();
    void Form_Resize();
    void Form_GotFocus();
    void SSCommand21_Click();
    void SSCommand22_Click();
    void SSCommand23_Click();
    void SSCommand24_Click();
    void SSCommand25_Click();
    void SSCommand26_Click();
    // "Left", "Right", "Up", "Down": the canvas moves by the step, the picture with it.
    void moveCanvas(platform::TwipsProp& edge, double twips);
    // The canvas repainted from picture1, stretched over the whole of it.
    void repaintCanvas();
    // The start of the open commands: clears the view, prepares the dialog, resets the zoom.
    void prepareOpenCommand(const char* pattern, const char* title, const char* kind);
    // The showing of a loaded picture, before and after the busy pointer goes off.
    void showLoadedPictureStart();
    // betweenCenters: what runs between the two centrings (a new skin takes its grid there).
    void showLoadedPictureEnd(double panelExtraHeight, void (FrmMain::*betweenCenters)() = nullptr);

    // ================= skinfiles/pcx_header.cpp =================
    void Get_Header();

    // ================= skinfiles/pcx_reader.cpp =================
    void pcxIm_Click();
    void Get_PCX();

    // ================= skinfiles/pcx_writer.cpp =================
    void ex_Click();
    void SKas_Click();

    // ================= model/md2_reader.cpp: what the editor reads of a model =================
    void Get_Frame();
    void Import_Frame();
    // The readers' common part: fresh tables, the header, both lumps. sizePicture1 gives
    // picture1 the model's skin size between the header and the lumps, as Get_Frame does.
    void readModel(bool sizePicture1);

    // ================= model/wireframe.cpp: the model's mesh over the canvas =================
    void Draw_Frame();
    void wF_Click();
    void wiPop_Click();
    void UCW_Click();
    void wFc_Click();
    void bcolor_Click();
    // Three lines a triangle on box, the corners times zoom; raises at the first corner
    // index that the tables don't hold.
    void drawModelLines(PictureBox& box, double zoom, int32_t color);
    // Tri_Table and UV_Table cut down to the single record 0.
    void dropModelTables();

    // ================= model/new_skin.cpp: a new skin from a model =================
    void NewSkin_Click();
    void Get_NewSkin();

    // ================= model/attributes.cpp: the attribute messages =================
    void ia_Click();
    void ma_Click();

    // ================= shell/toolbar.cpp =================
    void tbToolBar_ButtonClick(const std::string& Key);

    // ================= shell/panels.cpp: showing and hiding the floating bars =================
    void ToolBar_Click();
    void fil_Click();
    void SSCommand27_Click();
    void SSCommand42_Click();
    void SSCommand11_Click();
    void SSCommand9_Click();

    // ================= editor/undo.cpp: one level of undo =================
    void Undo_Click();
    // The grid half of the snapshot that a press on the canvas takes.
    void takeGridSnapshot();

    // ================= tools/canvas_mouse.cpp: the canvas's three mouse events =================
    void Picture7_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Picture7_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Picture7_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    // Cur_R, Cur_G, Cur_B snapped to the palette: Paint_Color and Color_Index.
    void workOutPaintColor();
    // The pointer's skin pixel into Cur_X, Cur_Y.
    void convertPosition(float X, float Y);
    bool pressNearCanvasEdge(float X, float Y) const;
    void panCanvas(float X, float Y);

    // ================= tools/paint_brushes.cpp: pencil, paint brush, brush size =================
    void pencilAt(float X, float Y);
    void paintBrushAt(float X, float Y);
    // Color_Index into the skin pixel's cell; raises outside the array's bounds.
    void storeSkinPixel(double x, double y);
    void p1_Click();
    void p9_Click();
    void setBrushSize(bool ninePixels);

    // ================= tools/zoom.cpp =================
    void zoomStep(int16_t Button);

    // ================= palette/color_pick.cpp: picking the current colour =================
    void Picture2_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Picture2_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    void Get_Next_Color();
    // The eye-dropper: the canvas pixel under the pointer becomes the current colour.
    void eyeDropperPick(float X, float Y);
    // Moves the XOR marker in Picture2 to the cell of Color_Index and shows its numbers.
    void markPickedColor();

    // ================= palette/tint_value.cpp: the tint value panel =================
    void Slider1_Change();
    void tValue_Click();
    void SSCommand39_Click();
    void makeTintSamples();

    // ================= shell/tool_select.cpp: choosing a tool =================
    void pEdit_Click();
    void SSCommand4_Click();
    void mZoom_Click();
    void SSCommand19_Click();
    void Eye_Click();
    void SSCommand14_Click();
    void Solid_Paint_Select();
    void SSCommand12_Click();
    void SSCommand30_Click();
    void SSCommand31_Click();
    void SSCommand32_Click();

    // ---------------- Skin and files ----------------
    vb::Array<int16_t> Skin_Grid;  // one palette index per skin pixel, y * Skin_Width + x
    vb::Array<int16_t> Undo_Grid;  // the grid as the last press on the canvas found it
    Variant Skin_Width;            // row stride; Xmax + 1 after a PCX load
    Variant Skin_Height;           // rows saved; Ymax + 4 after a PCX load
    Variant Skin_Cols;             // inner width of picture1
    int16_t Skin_Rows = 0;         // inner height of picture1
    vb::Array<uint8_t> PCX_Header{0, 128}; // bytes 1..128: the header the next save writes
    std::string File_Name;
    std::string Skin_Path;
    Variant Pal_Path;
    Variant Pal_Answer;            // 6: Get_Pal reads the file's last 768 bytes
    int16_t Image_Missing = 0;     // 1 until the first open command, then 2
    int16_t Save_As_Flag = 0;

    // ---------------- Picture and view ----------------
    int16_t Pixel_Width = 0;
    int16_t Pixel_Height = 0;
    Variant Scale_X;               // canvas pixels per skin pixel
    Variant Scale_Y;
    Variant Zoom_Factor;
    int16_t Pan_Step = 0;          // twips

    // ---------------- Tools and colour ----------------
    Variant Tool_Mode;
    Variant Filter_Mode;
    vb::Array<PalRecord> Pal_Table{0, 900};
    int32_t Cur_Color = 0;
    Variant Cur_R, Cur_G, Cur_B;
    int32_t Paint_Color = 0;
    int32_t Check_Color = 0;       // in and out of Temp_Color_Check
    Variant Color_Index;           // out of Temp_Color_Check
    Variant Palette_Mode;
    Variant Mask_Color;            // 0.1 while the mask is off: equal to no colour
    Variant Tint_Value;
    Variant Wire_Color;
    int16_t Brush_Size = 0;
    int16_t Brush_Radius = 0;
    Variant Band_Old_X, Band_Old_Y;
    int16_t Text_X = 0, Text_Y = 0;
    vb::Array<TextPixel> Text_Pixels;
    Variant Cur_X, Cur_Y;
    Variant Start_X, Start_Y;
    Variant Band_X, Band_Y;
    int16_t Drag_Active = 0;
    Variant Brush_X, Brush_Y;
    Variant Pan_X, Pan_Y;
    vb::Array3<int16_t> Work_Buf{3, 1501, 1501}; // (channel, row, column), never cleared
    bool Fill_Rect = false;
    int16_t Gradient_On = 0;       // -1 true
    int16_t Gradient_Dark = 0;
    Variant Paint_Shade;
    int16_t Pick_Colored = 0;
    Variant Pick_X, Pick_Y;

    // ---------------- Palette and colour matching ----------------
    Variant Pal_File_Len;
    int32_t Near_Color = 0;
    int16_t Near_Distance = 0;

    // ---------------- Colour picking ----------------
    Variant Pal_X, Pal_Y;
    int32_t Next_Color_1 = 0, Next_Color_2 = 0;
    int32_t Prior_Color_1 = 0, Prior_Color_2 = 0;
    int16_t Mask_State = 0;

    // ---------------- Model ----------------
    Variant Wire_Loaded{0};
    Variant Wire_Shown{0};
    Variant Model_Path;
    vb::Array<TriRecord> Tri_Table;
    vb::Array<UVRecord> UV_Table;
    int32_t MD2_Ident = 0, MD2_Skin_Width = 0, MD2_Skin_Height = 0, MD2_Num_St = 0,
            MD2_Num_Tris = 0, MD2_Ofs_Skins = 0, MD2_Ofs_St = 0, MD2_Ofs_Tris = 0;

    // ---------------- Mask and colour replace ----------------
    vb::Array<MaskRecord> Mask_List;
    int16_t Mask_Count = 0, Mask_Pos = 0;
    int16_t Mask_Scan_X = 0, Mask_Scan_Y = 0;
    int32_t Mask_Pixel = 0, Mask_Row_Pixel = 0;

    // ---------------- Command surface ----------------
    Variant Drag_Offset_X, Drag_Offset_Y;

    // The files of the run, opened by number.
    vb::FileTable Files;

    // ================= Controls =================
#define TAVRIN_CONTROL(Type, name) platform::Type name{this, #name}
#define TAVRIN_PICTURE(name, ...) PictureBox name{this, #name, PictureBox::Design{__VA_ARGS__}}
    // Picture surfaces: scale, border pixels, AutoRedraw, back colour.
    TAVRIN_PICTURE(picture1, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture2, platform::ScaleUnit::Pixels, 4, true, 0xC0C0C0);
    TAVRIN_PICTURE(Picture3, platform::ScaleUnit::Pixels, 4, true, 0x000000);
    TAVRIN_PICTURE(Picture4, platform::ScaleUnit::Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture5, platform::ScaleUnit::Pixels, 4, true, 0xC0C0C0);
    TAVRIN_PICTURE(Picture6, platform::ScaleUnit::Twips, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture7, platform::ScaleUnit::Pixels, 0, false, 0xC0C0C0);
    TAVRIN_PICTURE(Picture8, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture9, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture10, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture11, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture12, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture13, platform::ScaleUnit::Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture14, platform::ScaleUnit::Pixels, 0, true, 0x808080);
    TAVRIN_PICTURE(Picture15, platform::ScaleUnit::Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture16, platform::ScaleUnit::Pixels, 4, true, 0x000000);
    TAVRIN_PICTURE(Picture24, platform::ScaleUnit::Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture25, platform::ScaleUnit::Pixels, 4, true, 0x000000);
    TAVRIN_PICTURE(Picture26, platform::ScaleUnit::Pixels, 4, true, 0x000000);

    // Panels: palette, brush kinds, tool name, mask flag, text tool, progress, mask,
    // title bars, actual pixels, tool bar, filter bar, tint value.
    TAVRIN_CONTROL(Panel, SSPanel1);
    TAVRIN_CONTROL(Panel, SSPanel2);
    TAVRIN_CONTROL(Panel, SSPanel3);
    TAVRIN_CONTROL(Panel, SSPanel4);
    TAVRIN_CONTROL(Panel, SSPanel5);
    TAVRIN_CONTROL(Panel, SSPanel6);
    TAVRIN_CONTROL(Panel, SSPanel7);
    TAVRIN_CONTROL(Panel, SSPanel8);
    TAVRIN_CONTROL(Panel, SSPanel9);
    TAVRIN_CONTROL(Panel, SSPanel10);
    TAVRIN_CONTROL(Panel, SSPanel11);
    TAVRIN_CONTROL(Panel, SSPanel12);
    TAVRIN_CONTROL(Panel, SSPanel13);
    TAVRIN_CONTROL(Panel, SSPanel14);
    TAVRIN_CONTROL(Panel, SSPanel15);
    TAVRIN_CONTROL(Panel, SSPanel16);
    TAVRIN_CONTROL(Panel, SSPanel17);

    TAVRIN_CONTROL(CommandButton, SSCommand1);
    TAVRIN_CONTROL(CommandButton, SSCommand2);
    TAVRIN_CONTROL(CommandButton, SSCommand3);
    TAVRIN_CONTROL(CommandButton, SSCommand4);
    TAVRIN_CONTROL(CommandButton, SSCommand5);
    TAVRIN_CONTROL(CommandButton, SSCommand6);
    TAVRIN_CONTROL(CommandButton, SSCommand8);
    TAVRIN_CONTROL(CommandButton, SSCommand9);
    TAVRIN_CONTROL(CommandButton, SSCommand10);
    TAVRIN_CONTROL(CommandButton, SSCommand11);
    TAVRIN_CONTROL(CommandButton, SSCommand12);
    TAVRIN_CONTROL(CommandButton, SSCommand13);
    TAVRIN_CONTROL(CommandButton, SSCommand14);
    TAVRIN_CONTROL(CommandButton, SSCommand15);
    TAVRIN_CONTROL(CommandButton, SSCommand16);
    TAVRIN_CONTROL(CommandButton, SSCommand17);
    TAVRIN_CONTROL(CommandButton, SSCommand18);
    TAVRIN_CONTROL(CommandButton, SSCommand19);
    TAVRIN_CONTROL(CommandButton, SSCommand20);
    TAVRIN_CONTROL(CommandButton, SSCommand21);
    TAVRIN_CONTROL(CommandButton, SSCommand22);
    TAVRIN_CONTROL(CommandButton, SSCommand23);
    TAVRIN_CONTROL(CommandButton, SSCommand24);
    TAVRIN_CONTROL(CommandButton, SSCommand25);
    TAVRIN_CONTROL(CommandButton, SSCommand26);
    TAVRIN_CONTROL(CommandButton, SSCommand27);
    TAVRIN_CONTROL(CommandButton, SSCommand28);
    TAVRIN_CONTROL(CommandButton, SSCommand29);
    TAVRIN_CONTROL(CommandButton, SSCommand30);
    TAVRIN_CONTROL(CommandButton, SSCommand31);
    TAVRIN_CONTROL(CommandButton, SSCommand32);
    TAVRIN_CONTROL(CommandButton, SSCommand33);
    TAVRIN_CONTROL(CommandButton, SSCommand34);
    TAVRIN_CONTROL(CommandButton, SSCommand35);
    TAVRIN_CONTROL(CommandButton, SSCommand36);
    TAVRIN_CONTROL(CommandButton, SSCommand37);
    TAVRIN_CONTROL(CommandButton, SSCommand38);
    TAVRIN_CONTROL(CommandButton, SSCommand39);
    TAVRIN_CONTROL(CommandButton, SSCommand40);
    TAVRIN_CONTROL(CommandButton, SSCommand41);
    TAVRIN_CONTROL(CommandButton, SSCommand42);
    TAVRIN_CONTROL(CommandButton, SSCommand43);

    TAVRIN_CONTROL(Label, Label1);
    TAVRIN_CONTROL(Label, Label2);
    TAVRIN_CONTROL(Label, Label5);
    TAVRIN_CONTROL(Label, Label6);
    TAVRIN_CONTROL(Label, Label7);
    TAVRIN_CONTROL(Label, Label8);
    TAVRIN_CONTROL(Label, Label9);
    TAVRIN_CONTROL(Label, Label10);

    TAVRIN_CONTROL(TextBox, Text1);
    TAVRIN_CONTROL(TextBox, Text2);
    TAVRIN_CONTROL(TextBox, Text3);
    TAVRIN_CONTROL(TextBox, Text4);
    TAVRIN_CONTROL(TextBox, Text5);
    TAVRIN_CONTROL(TextBox, Text6);
    TAVRIN_CONTROL(TextBox, Text7);

    TAVRIN_CONTROL(Slider, Slider1);
    TAVRIN_CONTROL(StatusBar, StatusBar1);
    TAVRIN_CONTROL(ProgressBar, ProgressBar1);
    TAVRIN_CONTROL(CommonDialog, CommonDialog1);
    TAVRIN_CONTROL(Toolbar, tbToolBar);

    // Menu bar; separators are items with the caption "-".
    TAVRIN_CONTROL(MenuItem, File);
    TAVRIN_CONTROL(MenuItem, NewSkin);
    TAVRIN_CONTROL(MenuItem, im);
    TAVRIN_CONTROL(MenuItem, pcxIm);
    TAVRIN_CONTROL(MenuItem, MD2Im);
    TAVRIN_CONTROL(MenuItem, OpenSkin);
    TAVRIN_CONTROL(MenuItem, space);
    TAVRIN_CONTROL(MenuItem, IP);
    TAVRIN_CONTROL(MenuItem, ACT);
    TAVRIN_CONTROL(MenuItem, PAL2);
    TAVRIN_CONTROL(MenuItem, space1);
    TAVRIN_CONTROL(MenuItem, ex);
    TAVRIN_CONTROL(MenuItem, SKas);
    TAVRIN_CONTROL(MenuItem, s1);
    TAVRIN_CONTROL(MenuItem, p);
    TAVRIN_CONTROL(MenuItem, pP);
    TAVRIN_CONTROL(MenuItem, psss);
    TAVRIN_CONTROL(MenuItem, space2);
    TAVRIN_CONTROL(MenuItem, Exit);
    TAVRIN_CONTROL(MenuItem, Edfit);
    TAVRIN_CONTROL(MenuItem, Undo);
    TAVRIN_CONTROL(MenuItem, s2);
    TAVRIN_CONTROL(MenuItem, ri);
    TAVRIN_CONTROL(MenuItem, V);
    TAVRIN_CONTROL(MenuItem, PALE);
    TAVRIN_CONTROL(MenuItem, ActualPixels);
    TAVRIN_CONTROL(MenuItem, Mask);
    TAVRIN_CONTROL(MenuItem, ToolBar);
    TAVRIN_CONTROL(MenuItem, fil);
    TAVRIN_CONTROL(MenuItem, s3);
    TAVRIN_CONTROL(MenuItem, wF);
    TAVRIN_CONTROL(MenuItem, UCW);
    TAVRIN_CONTROL(MenuItem, tools);
    TAVRIN_CONTROL(MenuItem, mZoom);
    TAVRIN_CONTROL(MenuItem, Eye);
    TAVRIN_CONTROL(MenuItem, pEdit);
    TAVRIN_CONTROL(MenuItem, mLine);
    TAVRIN_CONTROL(MenuItem, mFill);
    TAVRIN_CONTROL(MenuItem, mRect);
    TAVRIN_CONTROL(MenuItem, mFrect);
    TAVRIN_CONTROL(MenuItem, Grf);
    TAVRIN_CONTROL(MenuItem, Filter);
    TAVRIN_CONTROL(MenuItem, Masked);
    TAVRIN_CONTROL(MenuItem, Tint);
    TAVRIN_CONTROL(MenuItem, Lightt);
    TAVRIN_CONTROL(MenuItem, Emboss);
    TAVRIN_CONTROL(MenuItem, Blur);
    TAVRIN_CONTROL(MenuItem, Sharpen);
    TAVRIN_CONTROL(MenuItem, Diffuse);
    TAVRIN_CONTROL(MenuItem, Brush);
    TAVRIN_CONTROL(MenuItem, Pbrush);
    TAVRIN_CONTROL(MenuItem, AirBrush);
    TAVRIN_CONTROL(MenuItem, BlurBrush);
    TAVRIN_CONTROL(MenuItem, tnnt);
    TAVRIN_CONTROL(MenuItem, cOption);
    TAVRIN_CONTROL(MenuItem, bSize);
    TAVRIN_CONTROL(MenuItem, p1);
    TAVRIN_CONTROL(MenuItem, p9);
    TAVRIN_CONTROL(MenuItem, tValue);
    TAVRIN_CONTROL(MenuItem, cer1);
    TAVRIN_CONTROL(MenuItem, gf);
    TAVRIN_CONTROL(MenuItem, gd);
    TAVRIN_CONTROL(MenuItem, gl);
    TAVRIN_CONTROL(MenuItem, s4);
    TAVRIN_CONTROL(MenuItem, wFc);
    TAVRIN_CONTROL(MenuItem, bcolor);
    TAVRIN_CONTROL(MenuItem, s9);
    TAVRIN_CONTROL(MenuItem, ia);
    TAVRIN_CONTROL(MenuItem, ma);
    TAVRIN_CONTROL(MenuItem, Mode);
    TAVRIN_CONTROL(MenuItem, Cl256);
    TAVRIN_CONTROL(MenuItem, CLhigh);
    TAVRIN_CONTROL(MenuItem, HelpMe);
    TAVRIN_CONTROL(MenuItem, H);
    TAVRIN_CONTROL(MenuItem, About);
    // The canvas's popup menu, hidden from the bar.
    TAVRIN_CONTROL(MenuItem, Pop);
    TAVRIN_CONTROL(MenuItem, zPop);
    TAVRIN_CONTROL(MenuItem, spacer11);
    TAVRIN_CONTROL(MenuItem, ePop);
    TAVRIN_CONTROL(MenuItem, aPop);
    TAVRIN_CONTROL(MenuItem, bPop);
    TAVRIN_CONTROL(MenuItem, tPop);
    TAVRIN_CONTROL(MenuItem, pnPop);
    TAVRIN_CONTROL(MenuItem, pPop);
    TAVRIN_CONTROL(MenuItem, bsPop);
    TAVRIN_CONTROL(MenuItem, Pop1);
    TAVRIN_CONTROL(MenuItem, Pop9);
    TAVRIN_CONTROL(MenuItem, spacer10);
    TAVRIN_CONTROL(MenuItem, difPop);
    TAVRIN_CONTROL(MenuItem, blPop);
    TAVRIN_CONTROL(MenuItem, emPop);
    TAVRIN_CONTROL(MenuItem, tiPop);
    TAVRIN_CONTROL(MenuItem, liPop);
    TAVRIN_CONTROL(MenuItem, shPop);
    TAVRIN_CONTROL(MenuItem, spacer12);
    TAVRIN_CONTROL(MenuItem, wiPop);
#undef TAVRIN_CONTROL
#undef TAVRIN_PICTURE

    // ================= tools/event_wiring.cpp =================
    // The events that carry arguments (mouse, slider), connected as the form is made.
    // Declared after the controls so that they exist by then.
    struct EventWiring {
        explicit EventWiring(FrmMain& frm);
    };
    EventWiring eventWiring_{*this};

private:
    // shell/command_surface.cpp: applies the command tables to the controls.
    void buildCommandSurface();

    platform::Host& host_;

    // The match's remembered answers (palette/color_cache.h); empty after paletteChanged.
    struct MatchCache;
    std::shared_ptr<MatchCache> matchCache_;
};

} // namespace tavrin
