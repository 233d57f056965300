#include "shell/command_tables.h"

namespace tavrin::shell {

namespace {
// Shorthands that keep one item to one line.
constexpr bool on = true;
constexpr bool off = false;
} // namespace

const std::vector<MenuRow>& menuTable() {
    using F = FrmMain;
    // clang-format off
    static const std::vector<MenuRow> table = {
        // item            lvl caption                              shortcut  checked visible enabled handler
        {&F::File,          0, "&File",                              "",       off, on,  on,  nullptr},
        {&F::NewSkin,       1, "&New Skin",                          "",       off, on,  on,  &F::NewSkin_Click},
        {&F::im,            1, "&Open Skin",                         "",       off, on,  on,  nullptr},
        {&F::pcxIm,         2, "&PCX File",                          "",       off, on,  on,  &F::pcxIm_Click},
        {&F::MD2Im,         2, "&MD2 File",                          "",       off, off, off, nullptr},
        {&F::OpenSkin,      2, "&Import Image",                      "",       off, off, off, &F::OpenSkin_Click},
        {&F::space,         1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::IP,            1, "&Import Palette",                    "",       off, on,  on,  nullptr},
        {&F::ACT,           2, "&ACT Color Table (Adobe)",           "",       off, on,  on,  &F::ACT_Click},
        {&F::PAL2,          2, "&PAL palette (Paint Shop Pro )",     "",       off, on,  on,  &F::PAL2_Click},
        {&F::space1,        1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::ex,            1, "&Save Skin",                         "",       off, on,  on,  &F::ex_Click},
        {&F::SKas,          1, "&Save Skin As",                      "",       off, on,  on,  &F::SKas_Click},
        {&F::s1,            1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::p,             1, "&Print",                             "",       off, on,  on,  &F::p_Click},
        {&F::pP,            1, "&Print Preview",                     "",       off, on,  on,  &F::pP_Click},
        {&F::psss,          1, "&Print Setup",                       "",       off, on,  on,  &F::psss_Click},
        {&F::space2,        1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::Exit,          1, "&Exit",                              "",       off, on,  on,  &F::Exit_Click},
        {&F::Edfit,         0, "&Edit",                              "",       off, on,  on,  nullptr},
        {&F::Undo,          1, "&Undo",                              "Ctrl+Z", off, on,  on,  &F::Undo_Click},
        {&F::s2,            1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::ri,            1, "&Refresh Image",                     "Ctrl+I", off, on,  on,  &F::ri_Click},
        {&F::V,             0, "&View",                              "",       off, on,  on,  nullptr},
        {&F::PALE,          1, "&Palette",                           "",       on,  on,  on,  &F::PALE_Click},
        {&F::ActualPixels,  1, "&Actual Pixels",                     "",       off, on,  on,  &F::ActualPixels_Click},
        {&F::Mask,          1, "&Mask",                              "",       off, on,  on,  &F::Mask_Click},
        {&F::ToolBar,       1, "&Tool Bar",                          "",       on,  on,  on,  &F::ToolBar_Click},
        {&F::fil,           1, "&Filter Bar",                        "",       on,  on,  on,  &F::fil_Click},
        {&F::s3,            1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::wF,            1, "&Wire Frame",                        "Ctrl+W", off, on,  on,  &F::wF_Click},
        {&F::UCW,           1, "&Unload Current Wireframe",          "",       off, on,  on,  &F::UCW_Click},
        {&F::tools,         0, "&Tools",                             "",       off, on,  on,  nullptr},
        {&F::mZoom,         1, "&Zoom",                              "Ctrl+Q", off, on,  on,  &F::mZoom_Click},
        {&F::Eye,           1, "&Eye-Dropper",                       "Ctrl+E", off, on,  on,  &F::Eye_Click},
        {&F::pEdit,         1, "&Pixel Edit",                        "Ctrl+A", off, on,  on,  &F::pEdit_Click},
        {&F::mLine,         1, "&Line",                              "Ctrl+L", off, off, off, &F::mLine_Click},
        {&F::mFill,         1, "&Fill",                              "Ctrl+F", off, on,  on,  &F::mFill_Click},
        {&F::mRect,         1, "&Rectangle",                         "",       off, on,  on,  &F::mRect_Click},
        {&F::mFrect,        1, "Re&ctangle Fill",                    "Ctrl+R", off, on,  on,  &F::mFrect_Click},
        {&F::Grf,           1, "&Gradient Rectangle Fill",           "Ctrl+G", off, on,  on,  &F::Grf_Click},
        {&F::Filter,        0, "&Filters",                           "",       off, on,  on,  nullptr},
        {&F::Masked,        1, "&Masked Image ",                     "",       off, on,  on,  &F::Masked_Click},
        {&F::Tint,          1, "&Tint",                              "",       off, on,  on,  &F::Tint_Click},
        {&F::Lightt,        1, "&Lighten Image",                     "",       off, on,  on,  &F::Lightt_Click},
        {&F::Emboss,        1, "&Emboss",                            "",       off, on,  on,  &F::Emboss_Click},
        {&F::Blur,          1, "&Blur",                              "",       off, on,  on,  &F::Blur_Click},
        {&F::Sharpen,       1, "&Sharpen",                           "",       off, on,  on,  &F::Sharpen_Click},
        {&F::Diffuse,       1, "&Diffuse",                           "",       off, on,  on,  &F::Diffuse_Click},
        {&F::Brush,         0, "&Brushes",                           "",       off, on,  on,  nullptr},
        {&F::Pbrush,        1, "&Paint Brush",                       "Ctrl+P", off, on,  on,  nullptr},
        {&F::AirBrush,      1, "&Air Brush",                         "Ctrl+X", off, on,  on,  &F::AirBrush_Click},
        {&F::BlurBrush,     1, "&Blur Brush",                        "Ctrl+B", off, on,  on,  &F::BlurBrush_Click},
        {&F::tnnt,          1, "&Tint Brush",                        "Ctrl+T", off, on,  on,  &F::tnnt_Click},
        {&F::cOption,       0, "&Options",                           "",       off, on,  on,  nullptr},
        {&F::bSize,         1, "&Brush Size",                        "",       off, on,  on,  nullptr},
        {&F::p1,            2, "&1 Pixels",                          "",       off, on,  on,  &F::p1_Click},
        {&F::p9,            2, "&9 Pixels",                          "",       on,  on,  on,  &F::p9_Click},
        {&F::tValue,        1, "&Tint Value",                        "",       off, on,  on,  &F::tValue_Click},
        {&F::cer1,          1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::gf,            1, "&Gradient Fill",                     "",       off, on,  on,  nullptr},
        {&F::gd,            2, "&Dark",                              "",       off, on,  on,  &F::gd_Click},
        {&F::gl,            2, "&Light",                             "",       on,  on,  on,  &F::gl_Click},
        {&F::s4,            1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::wFc,           1, "&Wire Frame Color",                  "",       off, on,  on,  &F::wFc_Click},
        {&F::bcolor,        1, "&Background Color",                  "",       off, on,  on,  &F::bcolor_Click},
        {&F::s9,            1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::ia,            1, "&Image Attributes",                  "",       off, on,  on,  &F::ia_Click},
        {&F::ma,            1, "&Model Attributes",                  "",       off, on,  on,  &F::ma_Click},
        {&F::Mode,          0, "&Mode",                              "",       off, off, on,  nullptr},
        {&F::Cl256,         1, "&Edit in 256 Color ",                "",       on,  on,  off, &F::Cl256_Click},
        {&F::CLhigh,        1, "&Edit in High-Color",                "",       off, on,  off, &F::CLhigh_Click},
        {&F::HelpMe,        0, "&Help",                              "",       off, on,  on,  nullptr},
        {&F::H,             1, "&Help",                              "",       off, on,  on,  &F::H_Click},
        {&F::About,         1, "&About",                             "",       off, on,  on,  &F::About_Click},
        // The canvas's popup menu: hidden from the bar, opened by the right button.
        {&F::Pop,           0, "Popup",                              "",       off, off, on,  nullptr},
        {&F::zPop,          1, "Zoom",                               "",       off, on,  on,  &F::mZoom_Click},
        {&F::spacer11,      1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::ePop,          1, "Eye-Dropper",                        "",       off, on,  on,  &F::Eye_Click},
        {&F::aPop,          1, "Air-Brush",                          "",       off, on,  on,  &F::AirBrush_Click},
        {&F::bPop,          1, "Blur-Brush",                         "",       off, on,  on,  &F::BlurBrush_Click},
        {&F::tPop,          1, "Tint-Brush",                         "",       off, on,  on,  &F::tnnt_Click},
        {&F::pnPop,         1, "Paintbrush",                         "",       off, on,  on,  &F::Solid_Paint_Select},
        {&F::pPop,          1, "Pencil",                             "",       off, on,  on,  &F::pEdit_Click},
        {&F::bsPop,         1, "Brush Size",                         "",       off, on,  on,  nullptr},
        {&F::Pop1,          2, "1 Pixels",                           "",       off, on,  on,  &F::p1_Click},
        {&F::Pop9,          2, "9 Pixels",                           "",       off, on,  on,  &F::p9_Click},
        {&F::spacer10,      1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::difPop,        1, "Diffuse",                            "",       off, on,  on,  &F::Diffuse_Click},
        {&F::blPop,         1, "Blur",                               "",       off, on,  on,  &F::Blur_Click},
        {&F::emPop,         1, "Emboss",                             "",       off, on,  on,  &F::Emboss_Click},
        {&F::tiPop,         1, "Tint",                               "",       off, on,  on,  &F::Tint_Click},
        {&F::liPop,         1, "Lighten",                            "",       off, on,  on,  &F::Lightt_Click},
        {&F::shPop,         1, "Sharpen",                            "",       off, on,  on,  &F::Sharpen_Click},
        {&F::spacer12,      1, "-",                                  "",       off, on,  on,  nullptr},
        {&F::wiPop,         1, "Wireframe",                          "",       off, on,  on,  &F::wiPop_Click},
    };
    // clang-format on
    return table;
}

const std::vector<ToolbarRow>& toolbarTable() {
    static const std::vector<ToolbarRow> table = {
        {"New", "New Skin"},
        {"Open", "Open Skin"},
        {"Save", "Save Skin"},
        {"", ""},
        {"Print", "Print Skin"},
        {"", ""},
        {"Cut", "Cut"},
        {"Copy", "Copy"},
        {"Paste", "Paste"},
        {"", ""},
        {"Bold", "Bold"},
        {"Italic", "Italic"},
        {"Underline", "Underline"},
        {"", ""},
        {"Font", "Change/Select Font"},
    };
    return table;
}

} // namespace tavrin::shell
