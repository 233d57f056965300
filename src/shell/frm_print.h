#pragma once
// The print layout: a white form with two lines of text and the skin. Printed as it
// stands, it is the page; shown, it is the print preview.
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/host.h"
#include "platform/picture_box.h"

namespace tavrin {

class FrmPrint : public platform::Form {
public:
    explicit FrmPrint(platform::Host& host);

    // Loaded as designed: the design captions and places. The form keeps whatever is
    // done to it from then on, until a click unloads it.
    void load();
    bool loaded() const { return loaded_; }

    // A click on the form itself, not on a label or the picture: the preview ends.
    void Form_Click();

    platform::Label Label1{this, "Label1"};
    platform::Label Label2{this, "Label2"};
    platform::PictureBox picture1{
        this, "picture1", {platform::ScaleUnit::Pixels, 0, true, 0xFFFFFF}};

private:
    platform::Host& host_;
    bool loaded_ = false;
};

} // namespace tavrin
