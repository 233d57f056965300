// `preview`: the model preview's picture of the last model read, wearing the skin as it
// stands, written as a PPM file, so that a script sees exactly what the window shows.
#include "cli/commands.h"
#include "cli/ppm_file.h"
#include "model/model_preview.h"

namespace tavrin::cli {

// preview FRAME YAW PITCH WIDTH HEIGHT PATH [flat|smooth [ZOOM]]
void previewCommand(Session& s, Args& a) {
    const auto frame = a.integer("a frame", 0, kMd2MostFrames - 1);
    PreviewView view;
    view.yaw = a.number("a yaw in degrees");
    view.pitch = a.number("a pitch in degrees");
    const auto width = static_cast<int>(a.integer("a width", 1, 4096));
    const auto height = static_cast<int>(a.integer("a height", 1, 4096));
    const std::string path = a.text("a path");
    if (!a.atEnd()) view.smooth = a.word("the lighting", {"flat", "smooth"}) == "smooth";
    if (!a.atEnd()) view.zoom = a.number("a zoom");
    a.end();
    const FrmMain& frm = s.mainForm();
    const auto model = frm.previewModel();
    if (const std::string problem = previewProblem(model.get()); !problem.empty()) {
        s.out() << "preview \"" << problem << "\"\n";
        return;
    }
    const Md2Mesh& mesh = model->read.mesh;
    writePpm(path, width, height,
             renderPreview(mesh, static_cast<std::size_t>(frame), editorSkinTexture(frm), view,
                           width, height));
    s.out() << "preview " << width << ' ' << height << " frame " << frame << " of "
            << mesh.frames.size() << '\n';
}

} // namespace tavrin::cli
