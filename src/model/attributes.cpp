// The two attribute messages of the Options menu. Lines are broken by a carriage return
// alone; what isn't set yet shows as empty text, and the canvas is repainted afterwards.
#include "editor/frm_main.h"

#include <string>

namespace tavrin {

namespace {
const std::string kCR = "\r";
} // namespace

void FrmMain::ia_Click() {
    host_.MsgBox("Image Attributes: " + kCR + Skin_Path + kCR + kCR +
                     "Skin Width: " + Skin_Width.str() + kCR + "Skin Height: " + Skin_Height.str(),
                 platform::kStyleOk);
    ri_Click();
}

void FrmMain::ma_Click() {
    host_.MsgBox("Model Attributes: " + kCR + Model_Path.str() + kCR + kCR +
                     "Number of Triangles: " + std::to_string(MD2_Num_Tris),
                 platform::kStyleOk);
    ri_Click();
}

} // namespace tavrin
