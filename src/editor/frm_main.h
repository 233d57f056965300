#pragma once
// frmMain: the one window of the editor. It owns every field, control and file of a
// run; its procedures are defined across the topic folders, as the banners of
// editor/frm_main_procedures.def say. The controls stand in editor/main_controls.h.
#include "editor/main_controls.h"
#include "editor/records.h"
#include "platform/host.h"
#include "platform/variant.h"
#include "platform/vb_array.h"
#include "platform/vb_files.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tavrin {

using platform::PictureBox;
using vb::Variant;

class MatchCache;   // palette/color_match.h
struct LitPixels;   // tools/text_scan.h
class FrmPrint;     // shell/frm_print.h
namespace filters { // filters/work_buf_kernels.h
struct GridCells;
struct PassArea;
struct PassPlan;
enum class Kernel : int;
} // namespace filters

struct PreviewModel; // model/model_preview.h

class FrmMain : public MainControls {
public:
    // Makes the controls, lays them out from the shell's tables and wires their events.
    explicit FrmMain(platform::Host& host);
    platform::Host& host() { return host_; }
    // The print layout, loaded at its first use (shell/printing.cpp).
    FrmPrint& frmPrint();

    // ================= Procedures without arguments =================
#define TAVRIN_PROCEDURE(name) void name();
#include "editor/frm_main_procedures.def"
#undef TAVRIN_PROCEDURE

    // ================= Events that carry arguments =================
    // editor/lifecycle.cpp
    void Form_Unload(int16_t& Cancel);
    // tools/canvas_mouse.cpp
    void Picture7_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Picture7_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Picture7_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    // palette/color_pick.cpp
    void Picture2_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Picture2_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    // shell/toolbar.cpp
    void tbToolBar_ButtonClick(const std::string& Key);
    // tools/text_tool.cpp
    void Text7_KeyPress(int16_t& KeyAscii);
    // shell/bar_drag.cpp
    void Form_DragDrop(platform::Control& Source, float X, float Y);
    void Picture7_DragDrop(platform::Control& Source, float X, float Y);

    static int32_t Pal_Relative(int32_t color) { return color | 0x2000000; }

    // ================= Fields =================
#define TAVRIN_FIELD(Type, name, ...) Type name{__VA_ARGS__};
#include "editor/frm_main_fields.def"
#undef TAVRIN_FIELD

    // The files of the run, opened by number.
    vb::FileTable Files;

    // ---------------- model/model_preview.cpp ----------------
    // The last model New Skin or the wireframe import read, whole, or nullptr.
    std::shared_ptr<const PreviewModel> previewModel() const { return previewModel_; }
    // Opens the model preview's window; the program sets it (the driver has no window).
    std::function<void()> showModelPreview;

private:
    // ---------------- shell/command_surface.cpp ----------------
    // The tables applied to the controls and every event connected to its handler: the
    // one place where the window is wired.
    void buildCommandSurface();

    // ---------------- shell/bar_drag.cpp ----------------
    // The grips of the floating bars and the two places a bar can be dropped.
    void wireBarDrag();

    // ---------------- shell/printing.cpp ----------------
    // The skin, its path with the date, and its size on frmPrint.
    void fillPrintForm(FrmPrint& form);

    // ---------------- palette/palette_table.cpp ----------------
    // Readers of Pal_Table call this when they have written it: the match's cache of
    // answers is only good for the palette it was made from.
    void paletteChanged();
    // Where a palette reader draws its next colour in Picture2: 16 cells of 11 pixels a row.
    struct PaletteCell {
        int16_t x = 0, y = 0;
    };
    // A palette reader's step: the colour's cell drawn (a part above 255 drawn as 255),
    // then, for records 0 to 257, the record filled and the cell moved on. False for the
    // record past them, where the reading stops.
    bool takePaletteColor(PaletteCell& cell, int record, double red, double green, double blue);

    // ---------------- palette/palette_import.cpp ----------------
    // The file dialog as prepared, its file into Pal_Path, then the reader.
    void importPalette(const char* pattern, const char* title, const char* kind,
                       void (FrmMain::*reader)());

    // ---------------- editor/view.cpp ----------------
    // "Left", "Right", "Up", "Down": the canvas moves by the step, the picture with it.
    void moveCanvas(platform::TwipsProp& edge, double twips);
    // The canvas repainted from picture1, stretched over the whole of it.
    void repaintCanvas();
    // The start of the open commands: clears the view, prepares the dialog, resets the zoom.
    void prepareOpenCommand(const char* pattern, const char* title, const char* kind);
    // kind nullptr: the kind text stays as the last dialog left it.
    void prepareFileDialog(const char* pattern, const char* title, const char* kind);
    // The open dialog as prepared; its answer into File_Name, Cancel raises.
    void askFileToOpen();
    // The showing of a loaded picture, before and after the busy pointer goes off. The
    // end names no tool in SSPanel3: the callers that do so do it themselves.
    void showLoadedPictureStart();
    // Its steps after the "Actual Pixels" toggle: the canvas takes picture1's size and
    // the picture is measured.
    void fitCanvasToPicture();
    // betweenCenters: what runs between the two centrings (a new skin takes its grid there).
    void showLoadedPictureEnd(double panelExtraHeight, void (FrmMain::*betweenCenters)() = nullptr);

    // ---------------- model/md2_reader.cpp, wireframe.cpp ----------------
    // The readers' common part: fresh tables, the header, both lumps. sizePicture1 gives
    // picture1 the model's skin size between the header and the lumps, as Get_Frame does.
    void readModel(bool sizePicture1);
    // Three lines a triangle on box, the corners times zoom; raises at the first corner
    // index that the tables don't hold.
    void drawModelLines(PictureBox& box, double zoom, int32_t color);
    // A dropped model: both tables keep only record 0, so no triangle is left to draw.
    void dropModelTables();
    // The check marks of "&Wire Frame" and of the popup's item.
    void markWireShown(bool shown);
    // File_Name read whole for the model preview; what the editor reads is untouched.
    void keepPreviewModel();

    // ---------------- editor/undo.cpp ----------------
    // The grid half of the snapshot that a press on the canvas takes.
    void takeGridSnapshot();

    // ---------------- tools/canvas_mouse.cpp ----------------
    // Cur_R, Cur_G, Cur_B snapped to the palette: Paint_Color and Color_Index.
    void workOutPaintColor();
    // The pointer's skin pixel into Cur_X, Cur_Y.
    void convertPosition(float X, float Y);
    bool pressNearCanvasEdge(float X, float Y) const;
    void panCanvas(float X, float Y);
    // The band's fixed corner, Band_X and Band_Y, from the press kept in Start_X, Start_Y.
    void convertBandStart();
    // Filter_Mode names one of the six area filters.
    bool isFilterWord() const;

    // ---------------- tools/shapes.cpp, pixel_runs.cpp ----------------
    // The XOR band of a "Line" or "Box" drag, moved to the pointer.
    void rubberBand();
    // The release of a drag: the line, the rectangle; both end alike.
    void finishLine();
    void finishRectangle();
    void endShape();
    void outlineRectangle();
    void fillRectangle();
    // Where the tools' writes can land: picture1's pixels and the skin's, from 0, 0.
    platform::PixelRect paintableArea() const;
    // Skin_Grid as the tools address it.
    filters::GridCells gridCells();
    // Pixels x to x + count - 1 of row y on picture1, as PSet sets them one at a time.
    void setPictureRow(int64_t x, int64_t y, const int32_t* colors, int64_t count);
    // The same pixels as Point reads them one at a time: -1 off the picture.
    void getPictureRow(int64_t x, int64_t y, int32_t* colors, int64_t count) const;

    // ---------------- shell/shape_select.cpp ----------------
    // "Box" with the filter word: the next box dragged runs that filter.
    void chooseFilter(const char* word);
    void chooseRectangle(bool filled);

    // ---------------- filters/area_filters.cpp ----------------
    // The release of a box drag with a filter word: the band taken away, the corners
    // sorted, the filter run.
    void runBoxFilter();
    // The filter over the sorted box of Band_X, Band_Y, Cur_X, Cur_Y, then the canvas.
    void filterBox(filters::Kernel kernel);
    // The two passes through Work_Buf of the plan; the fields they use as work fields
    // (Color_Index, Check_Color, the match's, and Cur_Color for a pass from the picture)
    // left as the last pixel left them. The brushes that smooth use it on their squares.
    void workBufPasses(const filters::PassPlan& plan);

    // ---------------- tools/paint_brushes.cpp, zoom.cpp ----------------
    void pencilAt(float X, float Y);
    void paintBrushAt(float X, float Y);
    // Color_Index into the skin pixel's cell; raises outside the array's bounds.
    void storeSkinPixel(double x, double y);
    void storeSkinPixel(double x, double y, const Variant& index);
    void setBrushSize(bool ninePixels);
    void zoomStep(int16_t Button);

    // ---------------- tools/soft_brushes.cpp ----------------
    // The branches of "Air", "Blur", "dTtint" and "Fill" at the converted Cur_X, Cur_Y.
    void airBrushAt(float X, float Y);
    void blurBrushAt();
    void tintBrushAt();
    void fillAt();

    // ---------------- filters/color_mask.cpp ----------------
    // The walk over the list from Mask_Pos on: each listed pixel set on Picture26.
    void drawMaskPreview();
    // Every listed pixel of picture1 in the colour, and its cell the colour's index.
    void applyMask(int32_t color);

    // ---------------- tools/text_tool.cpp ----------------
    // A press of the text tool: keeps the pixel and opens the panel.
    void placeText();
    // Text_Pixels made anew from the preview's lit pixels.
    LitPixels scanTextPreview();

    // ---------------- palette/color_pick.cpp, tint_value.cpp ----------------
    // The eye-dropper: the canvas pixel under the pointer becomes the current colour.
    void eyeDropperPick(float X, float Y);
    // Moves the XOR marker in Picture2 to the cell of Color_Index and shows its numbers.
    void markPickedColor();
    void makeTintSamples();

    platform::Host& host_;
    // The match's remembered answers, made at the first match. Shared, not unique: the
    // form knows the cache only by name.
    std::shared_ptr<MatchCache> matchCache_;
    std::shared_ptr<FrmPrint> frmPrint_; // shared for the same reason
    // Read by keepPreviewModel at each model the readers open.
    std::shared_ptr<const PreviewModel> previewModel_;
};

} // namespace tavrin
