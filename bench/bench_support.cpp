#include "bench_support.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <list>
#include <random>
#include <unistd.h>

namespace tavrin::bench {

namespace fs = std::filesystem;

namespace {

// Beside the program, on the disk the build lives on: the file paths are timed on a real
// disk rather than wherever the temporary folder happens to be.
fs::path programFolder() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    return ec ? fs::current_path() : exe.parent_path();
}

// One for each editor: an editor made and dropped while another works (the benchmark's
// skin is written on first use) takes only its own folder with it.
std::string makeFolder() {
    static int made = 0;
    fs::path dir = programFolder() /
                   ("bench-files-" + std::to_string(getpid()) + "-" + std::to_string(++made));
    fs::create_directories(dir);
    fs::copy_file(TAVRIN_PALETTE_FILE, dir / "Quake2.PAL", fs::copy_options::overwrite_existing);
    return dir.string();
}

const std::string kRealSkin = "md2/SnowfallEagle-Volition3D/Bin/Assets/Models/Blade/blade.pcx";
constexpr int kBig = 1024;

// A PCX of w x h taking its rows from the left of `pixels`, kBig wide.
std::vector<uint8_t> encodeSkin(const std::vector<uint8_t>& pixels, int w, int h) {
    std::vector<uint8_t> out(128, 0);
    out[0] = 10, out[1] = 5, out[2] = 1, out[3] = 8;
    out[8] = (w - 1) & 0xFF, out[9] = (w - 1) >> 8, out[10] = (h - 1) & 0xFF,
    out[11] = (h - 1) >> 8;
    out[65] = 1, out[66] = w & 0xFF, out[67] = w >> 8, out[68] = 1;
    for (int y = 0; y < h; ++y) {
        const uint8_t* row = pixels.data() + static_cast<std::size_t>(y) * kBig;
        for (int i = 0; i < w;) {
            int n = 1;
            while (i + n < w && row[i + n] == row[i] && n < 63)
                ++n;
            if (n > 1 || row[i] >= 192) out.push_back(static_cast<uint8_t>(192 + n));
            out.push_back(row[i]);
            i += n;
        }
    }
    out.push_back(0x0C);
    std::ifstream pal(TAVRIN_PALETTE_FILE, std::ios::binary);
    out.insert(out.end(), std::istreambuf_iterator<char>(pal), std::istreambuf_iterator<char>());
    return out;
}

// The pixels of a real skin repeated over 1024 x 1024, so that the runs are a painted
// skin's; without the real files, patches of one colour broken by noise.
std::vector<uint8_t> bigSkinPixels() {
    std::vector<uint8_t> pixels(static_cast<std::size_t>(kBig) * kBig);
    const fs::path real = fs::path(TAVRIN_REALDATA) / kRealSkin;
    if (fs::exists(real)) {
        Editor e;
        e.host.answerOpen(real.string());
        e.host.answerMsgBox(platform::kMsgNo);
        e.frm.pcxIm_Click();
        const int w = e.frm.Skin_Width, h = e.frm.Skin_Height - 3; // the rows are Ymax + 1
        if (w > 0 && h > 0) {
            for (int y = 0; y < kBig; ++y)
                for (int x = 0; x < kBig; ++x)
                    pixels[static_cast<std::size_t>(y) * kBig + x] =
                        static_cast<uint8_t>(e.frm.Skin_Grid((y % h) * w + x % w));
            return pixels;
        }
    }
    std::mt19937 rng(7);
    for (int y = 0; y < kBig; ++y)
        for (int x = 0; x < kBig; ++x)
            pixels[static_cast<std::size_t>(y) * kBig + x] =
                rng() % 8 == 0 ? static_cast<uint8_t>(rng() % 256)
                               : static_cast<uint8_t>(((x / 24) * 7 + (y / 32) * 13) % 256);
    return pixels;
}

} // namespace

Editor::Editor() : folder(makeFolder()), host(folder), frm(host) { frm.Form_Load(); }

Editor::~Editor() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

void Editor::openBigSkin() {
    host.answerOpen(bigSkinPath());
    host.answerMsgBox(platform::kMsgNo);
    frm.pcxIm_Click();
}

void Editor::zoomIn(int presses) {
    frm.mZoom_Click();
    for (int i = 0; i < presses; ++i) {
        const auto x = static_cast<float>(frm.Picture7.ScaleWidth / 2);
        const auto y = static_cast<float>(frm.Picture7.ScaleHeight / 2);
        frm.Picture7.MouseDown(1, 0, x, y);
        frm.Picture7.MouseUp(1, 0, x, y);
    }
}

void Editor::choosePencil() { frm.pEdit_Click(); }

void View::show() {
    for (const platform::PixelRect& d :
         box.takeDamage().intersect(platform::PixelRect{0, 0, 1920, 1080}))
        box.render(d, buffer.data(), d.x1 - d.x0, platform::PixelOrder::Xrgb);
    benchmark::DoNotOptimize(buffer.data());
}

namespace {

std::string writeSkin(const std::string& name, int w, int h) {
    static const std::vector<uint8_t> pixels = bigSkinPixels();
    const std::string p =
        (programFolder() / (name + "-" + std::to_string(getpid()) + ".pcx")).string();
    const std::vector<uint8_t> bytes = encodeSkin(pixels, w, h);
    std::ofstream(p, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return p;
}

// Removes the skins written for the run when it ends.
struct Written {
    std::list<std::string> paths; // a list: the references handed out stay good
    ~Written() {
        for (const std::string& p : paths)
            std::remove(p.c_str());
    }
};

const std::string& keep(std::string path) {
    static Written written;
    written.paths.push_back(std::move(path));
    return written.paths.back();
}

} // namespace

const std::string& bigSkinPath() {
    static const std::string& path = keep(writeSkin("tavrin-bench-skin", kBig, kBig));
    return path;
}

const std::string& tallSkinPath() {
    static const std::string& path = keep(writeSkin("tavrin-bench-tall", 440, kBig));
    return path;
}

std::vector<int32_t> skinColours() {
    Editor e;
    std::string path = bigSkinPath();
    const fs::path real = fs::path(TAVRIN_REALDATA) / kRealSkin;
    if (fs::exists(real)) path = real.string();
    e.host.answerOpen(path);
    e.host.answerMsgBox(platform::kMsgYes);
    e.frm.pcxIm_Click();
    std::vector<int32_t> colours;
    const int w = e.frm.picture1.innerWidth(), h = e.frm.picture1.innerHeight();
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            colours.push_back(e.frm.picture1.Point(x, y));
    return colours;
}

Stroke::Stroke(void (*choose)(Editor&)) {
    e.openBigSkin();
    e.zoomIn(3);
    if (choose)
        choose(e);
    else
        e.choosePencil();
    e.frm.Cur_R = 200;
    press(100, 100);
}

void Stroke::press(float x, float y) {
    e.frm.Picture7.MouseDown(1, 0, x, y);
    e.frm.Picture7.MouseUp(1, 0, x, y);
    shown();
}

void Stroke::move(int64_t i) {
    e.frm.Picture7.MouseMove(1, 0, at(i, 1920), at(i / 3, 1080));
    shown();
}

bool Stroke::painted() const {
    const FrmMain& f = e.frm;
    return f.picture1.Point(f.Cur_X, f.Cur_Y) == f.Paint_Color;
}

} // namespace tavrin::bench
