#pragma once
// The controls of the main window, each under the name the form gives it. Their design
// places, captions and handlers stand in the shell's tables; the form's fields and
// procedures in editor/frm_main.h.
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/picture_box.h"

namespace tavrin {

class MainControls : public platform::Form {
public:
    MainControls() : Form("frmMain") {}

    // clang-format off
#define TAVRIN_CONTROL(Type, name) platform::Type name{this, #name}
#define TAVRIN_PICTURE(name, scale, border, autoRedraw, back) \
    platform::PictureBox name{this, #name, {platform::ScaleUnit::scale, border, autoRedraw, back}}
    // clang-format on
    // Picture surfaces: scale, border pixels, AutoRedraw, back colour. Within a panel the
    // controls made later stand on top of those made before.
    TAVRIN_PICTURE(picture1, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture3, Pixels, 4, true, 0x000000); // made first: behind the palette
    TAVRIN_PICTURE(Picture2, Pixels, 4, true, 0xC0C0C0);
    TAVRIN_PICTURE(Picture4, Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture5, Pixels, 4, true, 0xC0C0C0);
    TAVRIN_PICTURE(Picture6, Twips, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture7, Pixels, 0, false, 0xC0C0C0);
    TAVRIN_PICTURE(Picture8, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture9, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture10, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture11, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture12, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture13, Pixels, 0, true, 0x000000);
    TAVRIN_PICTURE(Picture14, Pixels, 0, true, 0x808080);
    TAVRIN_PICTURE(Picture15, Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture16, Pixels, 4, true, 0x000000);
    TAVRIN_PICTURE(Picture24, Pixels, 2, true, 0x000000);
    TAVRIN_PICTURE(Picture25, Pixels, 4, true, 0x000000);
    TAVRIN_PICTURE(Picture26, Pixels, 4, true, 0x000000);

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
    TAVRIN_CONTROL(MenuItem, mPreview); // the model preview, ours
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
};

} // namespace tavrin
