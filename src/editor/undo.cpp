// One level of undo. Each press on the canvas keeps the grid in Undo_Grid and the
// picture in Picture6; Undo_Click puts both back. Nothing else is kept.
#include "editor/frm_main.h"

#include <algorithm>

namespace tavrin {

namespace {

// The whole array in one copy, ending as a cell-by-cell loop over from's bounds would:
// that loop fails at the first cell that `to` lacks, after copying the cells before it.
void copyCells(const vb::Array<int16_t>& from, vb::Array<int16_t>& to) {
    const int64_t lo = from.LBound(), hi = from.UBound();
    if (!to.allocated() || to.LBound() > lo) vb::raise(vb::SubscriptOutOfRange);
    const int64_t last = std::min(hi, to.UBound());
    if (last >= lo) std::copy_n(from.data(), last - lo + 1, to.data() + (lo - to.LBound()));
    if (last < hi) vb::raise(vb::SubscriptOutOfRange);
}

} // namespace

// Before any load Skin_Grid isn't allocated: this raises and the press ends here.
void FrmMain::takeGridSnapshot() { copyCells(Skin_Grid, Undo_Grid); }

// Undo doesn't use the snapshot up: repeating it restores the same state, and nothing
// redoes.
// Right after a load Undo_Grid is all zeros and Picture6 holds the picture of before the
// load, and that is what an undo gives back until the first press.
void FrmMain::Undo_Click() {
    try {
        copyCells(Undo_Grid, Skin_Grid);
        picture1.Picture = Picture6.Picture;
        // The kept picture, whole. Picture6's own Image has the hidden box's size, which
        // would show most skins cropped; with no snapshot yet it is the empty box we show.
        const platform::PictureHandle kept = Picture6.Picture;
        Picture7.PaintPicture(kept ? kept : Picture6.Image(), 0, 0, Picture7.ScaleWidth,
                              Picture7.ScaleHeight);
    } catch (const vb::Error&) {
        // Nothing loaded yet: nothing to give back.
    }
}

} // namespace tavrin
